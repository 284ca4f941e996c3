#include "fieldplaces.h"

#include "jobsession.h"

#include <isubsetting.h>
#include <jobxml/parametersettext.h>
#include <jobxml/settings.h>
#include <QWidget>
#include <reportlayer/elementtable.h>
#include <values/valuebase.h>
#include <velmogui/parameterseteditor.h>
#include <velmogui/valuecontrol.h>

using JEDVEPLUGIN::ISubSetting;

namespace Session {

namespace {
QString setOf(const QString& valueTreePath)
{
    return valueTreePath.section(QLatin1Char('/'), -2, -2);
}

QString idOf(const QString& valueTreePath)
{
    return valueTreePath.section(QLatin1Char('/'), -1);
}

// The setting among \p setting and those below it whose editor shows the value.
ISubSetting* findSetting(ISubSetting* setting, const QString& valueTreePath)
{
    if (setting->parameterSetNames().contains(setOf(valueTreePath))) {
        const ValueBase* const value = fieldValue(setting, setOf(valueTreePath), idOf(valueTreePath));
        if (value && value->GetPathName() == valueTreePath)
            return setting;
    }
    for (int i = 0; i < setting->childCount(); ++i) {
        if (ISubSetting* const found = findSetting(setting->child(i), valueTreePath))
            return found;
    }
    return nullptr;
}
} // namespace

ISubSetting* findCarrier(ISubSetting* setting, const QString& parameterSet)
{
    if (!setting || setting->parameterSetNames().contains(parameterSet))
        return setting;
    for (int i = 0; i < setting->childCount(); ++i) {
        if (ISubSetting* const found = findCarrier(setting->child(i), parameterSet))
            return found;
    }
    return nullptr;
}

ValueBase* fieldValue(ISubSetting* setting, const QString& parameterSet, const QString& field)
{
    const QWidget* const widget = setting->getWidget();
    if (!widget)
        return nullptr;
    for (const auto* editor : widget->findChildren<VelmoGui::ParameterSetEditor*>()) {
        const VelmoGui::ValueControl* const control =
            editor->name() == parameterSet ? editor->control(field) : nullptr;
        if (control)
            return control->value();
    }
    return nullptr;
}

FieldPlace findField(const JobSession& session, const QString& valueTreePath)
{
    for (int i = 0; i < session.topLevelCount(); ++i) {
        ISubSetting* const top = session.topLevel(i).setting;
        if (ISubSetting* const found = top ? findSetting(top, valueTreePath) : nullptr)
            return {found, setOf(valueTreePath), idOf(valueTreePath)};
    }
    return FieldPlace();
}

QString fieldLabel(const QString& valueTreePath)
{
    const REPORTGENERATOR::Field* const field =
        JobXml::ParameterSetText::field(setOf(valueTreePath), idOf(valueTreePath));
    return field ? field->label() : idOf(valueTreePath);
}

QString fieldTitle(const QString& valueTreePath)
{
    const REPORTGENERATOR::ParameterSet* const set = JobXml::findParameterSet(setOf(valueTreePath));
    const QString label = fieldLabel(valueTreePath);
    return set ? QStringLiteral("%1 / %2").arg(set->label(), label) : label;
}

QString fieldOfPath(const QString& valueTreePath)
{
    return valueTreePath.section(QLatin1Char('/'), -2);
}

} // namespace Session
