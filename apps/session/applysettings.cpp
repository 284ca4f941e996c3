#include "applysettings.h"

#include "settingwalk.h"

#include <algorithm>
#include <isubsetting.h>
#include <jobxml/settings.h>
#include <QCoreApplication>

namespace Session {

namespace {
using Setting = JobSession::Setting;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::ApplySettings)
};
} // namespace

QStringList applicableSets(const Setting& setting)
{
    QStringList result;
    for (const QString& name : setting.parameterSetNames()) {
        if (JobXml::findParameterSet(name))
            result.append(name);
    }
    return result;
}

QVector<Setting*> similarSettings(const JobSession& session, const Setting* setting)
{
    QVector<Setting*> result;
    for (int i = 0; i < session.topLevelCount(); ++i) {
        const JobSession::TopLevel& top = session.topLevel(i);
        if (top.setting && top.factory == session.factoryOf(setting))
            walk(top.setting, [&result, setting](Setting* each) {
                if (each != setting && each->getSettingType() == setting->getSettingType() &&
                    !each->isReadOnly())
                    result.append(each);
            });
    }
    return result;
}

QVector<Setting*> applySettings(JobSession* session, const Setting* source, const QStringList& sets,
                                const QVector<Setting*>& targets)
{
    const auto differs = [source, &sets](const Setting* target) {
        return std::any_of(sets.cbegin(), sets.cend(), [source, target](const QString& set) {
            return target->parameterSetNames().contains(set) &&
                   target->parameterSetText(set) != source->parameterSetText(set);
        });
    };
    QVector<Setting*> refused;
    session->flushEdits();
    session->endEditStep();
    // A step without content could not be told from one that went wrong.
    const bool isStep = std::any_of(targets.cbegin(), targets.cend(), differs);
    if (isStep)
        session->undoStack()->beginMacro(Texts::tr("Apply %1").arg(source->getDisplayName()));
    for (Setting* target : targets) {
        bool isTaken = true;
        for (const QString& set : sets)
            isTaken = session->setParameterSet(target, set, source->parameterSetText(set)) && isTaken;
        if (!isTaken)
            refused.append(target);
    }
    if (isStep)
        session->undoStack()->endMacro();
    session->endEditStep();
    return refused;
}

} // namespace Session
