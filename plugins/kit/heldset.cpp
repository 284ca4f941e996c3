#include "heldset.h"

#include <jobxml/parametersettext.h>
#include <jobxml/settings.h>
#include <memory>
#include <QCoreApplication>
#include <QScopedValueRollback>
#include <values/node.h>
#include <values/valuelist.h>

using JEDVEPLUGIN::Problem;
using JobXml::ParameterSetText;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(PluginKit::HeldSet)
};

bool isTextOf(const QString& set, const QString& xml)
{
    const REPORTGENERATOR::ParameterSet* const found = JobXml::findParameterSet(set);
    if (!found)
        return false;
    const std::unique_ptr<REPORTGENERATOR::IRGObject> element(found->table->create());
    return element->SetXmlString(xml, false);
}
} // namespace

namespace PluginKit {

HeldSet::HeldSet(const QString& name, Node* values, const std::function<void()>& changed)
    : m_name(name)
    , m_values(values)
    , m_changed(changed)
{
    if (!values)
        return;
    for (ValueBase* value : values->GetValues()) {
        value->AddObserver(this);
        m_watched.append(value);
    }
    values->AddObserver(this);
    m_watched.append(values);
}

HeldSet::~HeldSet()
{
    for (Observable* value : qAsConst(m_watched))
        value->DeleteObserver(this);
}

QString HeldSet::text() const
{
    return m_values ? ParameterSetText::toText(*m_values, m_base) : m_base;
}

bool HeldSet::setText(const QString& xml)
{
    const QString before = text();
    if (!readText(xml))
        return false;
    if (text() != before)
        m_changed();
    return true;
}

QList<Problem> HeldSet::problems() const
{
    QList<Problem> result = m_problems;
    if (!m_values)
        return result;
    ParameterSetText::Report report;
    ParameterSetText::toText(*m_values, m_base, &report);
    for (const QString& field : report.valuesWithoutField + report.textsNotConverted)
        result.append({Problem::SEVERITY_ERROR, m_name, field,
                       Texts::tr("%1/%2 cannot be written into a job file").arg(m_name, field)});
    return result;
}

void HeldSet::Update(Observable* sender, TChangeCode code)
{
    if (code == CHANGE_STATE && static_cast<ValueBase*>(sender)->GetState() == STATE_LEAVING) {
        m_watched.removeOne(sender);
        if (sender == m_values)
            m_values = nullptr;
        return;
    }
    const bool isContent =
        code == CHANGE_VALUE || (code == CHANGE_ITEMS && dynamic_cast<StringList*>(sender));
    if (m_isReading || !isContent)
        return;
    forgetProblem(static_cast<ValueBase*>(sender)->GetId());
    m_changed();
}

bool HeldSet::readText(const QString& xml)
{
    if (!m_values && !isTextOf(m_name, xml))
        return false;
    ParameterSetText::Report report;
    {
        const QScopedValueRollback<bool> reading(m_isReading, true);
        if (m_values && !ParameterSetText::fromText(*m_values, xml, &report))
            return false;
    }
    m_base = xml;
    m_problems.clear();
    const auto tell = [this](const QStringList& fields, const QString& text) {
        for (const QString& field : fields)
            m_problems.append({Problem::SEVERITY_WARNING, m_name, field, text.arg(m_name, field)});
    };
    tell(report.valuesClamped,
         Texts::tr("%1/%2 was outside what the receiver takes; the nearest limit counts"));
    tell(report.textsNotConverted, Texts::tr("%1/%2 does not fit the receiver, which keeps its own value"));
    for (const QString& problem : qAsConst(report.problemsOfText))
        m_problems.append(
            {Problem::SEVERITY_WARNING, m_name, QString(), QStringLiteral("%1: %2").arg(m_name, problem)});
    return true;
}

void HeldSet::forgetProblem(const QString& field)
{
    for (int i = m_problems.size(); i-- > 0;) {
        if (m_problems.at(i).field == field)
            m_problems.removeAt(i);
    }
}

} // namespace PluginKit
