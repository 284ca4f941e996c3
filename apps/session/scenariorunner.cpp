#include "scenariorunner.h"

#include "jobdocument.h"
#include <jobxml/valuetext.h>

#include <kit/subjobtree.h>
#include <QCoreApplication>
#include <values/valuebase.h>

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::ScenarioRunner)
};
} // namespace

namespace Session {

ScenarioRunner::ScenarioRunner(const JobComposer::Resources& resources)
    : m_composer(resources)
{
}

ScenarioRunner::Outcome ScenarioRunner::run(const Scenario& scenario)
{
    m_place = scenario.name();
    for (const Scenario::Step& step : scenario.steps()) {
        const Outcome outcome = runStep(step);
        if (outcome != DONE)
            return outcome;
    }
    return DONE;
}

ScenarioRunner::Outcome ScenarioRunner::runStep(const Scenario::Step& step)
{
    struct Action
    {
        QLatin1String verb;
        Outcome (ScenarioRunner::*run)(const QStringList& arguments);
    };
    static const Action ACTIONS[] = {
        {QLatin1String("new"), &ScenarioRunner::begin},
        {QLatin1String("add"), &ScenarioRunner::add},
        {QLatin1String("set"), &ScenarioRunner::set},
        {QLatin1String("select"), &ScenarioRunner::select},
        {QLatin1String("expect"), &ScenarioRunner::expect},
        {QLatin1String("save"), &ScenarioRunner::save},
    };
    m_line = step.line;
    for (const Action& action : ACTIONS) {
        if (step.verb == action.verb)
            return (this->*action.run)(step.arguments);
    }
    return stop(REFUSED, Texts::tr("\"%1\" is a step for the job editor").arg(step.verb),
                Texts::tr("Run it with: jobeditor --batch FILE"));
}

ScenarioRunner::Outcome ScenarioRunner::begin(const QStringList& arguments)
{
    return refused(m_composer.begin(arguments.value(0), arguments.value(1)));
}

ScenarioRunner::Outcome ScenarioRunner::add(const QStringList& arguments)
{
    return refused(m_composer.addSubjob(arguments.value(0), arguments.value(1)));
}

ScenarioRunner::Outcome ScenarioRunner::set(const QStringList& arguments)
{
    return refused(m_composer.setValue(arguments.value(0), arguments.value(1)));
}

ScenarioRunner::Outcome ScenarioRunner::select(const QStringList& arguments)
{
    bool isNumber = false;
    const int number = arguments.value(0).toInt(&isNumber);
    if (!isNumber)
        return stop(REFUSED, Texts::tr("\"%1\" is no number of a sub-job").arg(arguments.value(0)));
    return refused(m_composer.selectSubjob(number));
}

ScenarioRunner::Outcome ScenarioRunner::expect(const QStringList& arguments)
{
    const QString what = arguments.value(0);
    const QString wanted = arguments.value(1);
    QString found = QString::number(m_composer.subjobCount());
    if (what != QLatin1String("subjobs")) {
        const ValueBase* const value = m_composer.value(what);
        if (!value)
            return refused(false);
        const QString readable = JobXml::readableValue(*value, PluginKit::SubjobTree::field(what));
        found = wanted == readable ? readable : value->GetText();
    }
    if (found == wanted)
        return DONE;
    return stop(MISSED, Texts::tr("%1 is \"%2\", not \"%3\" as expected").arg(what, found, wanted));
}

ScenarioRunner::Outcome ScenarioRunner::save(const QStringList& arguments)
{
    JobDocument document;
    Findings losses;
    if (!m_composer.compose(&document, &losses))
        return refused(false);
    if (!document.validate(&m_findings))
        return MISSED;
    if (!document.save(arguments.value(0), &m_findings))
        return FAULT;
    m_findings += losses;
    m_savedFiles.append(arguments.value(0));
    return DONE;
}

ScenarioRunner::Outcome ScenarioRunner::refused(bool isDone)
{
    return isDone ? DONE : stop(REFUSED, m_composer.fault().text, m_composer.fault().advice);
}

ScenarioRunner::Outcome ScenarioRunner::stop(Outcome outcome, const QString& text, const QString& advice)
{
    m_findings.append({Finding::FAILURE, m_place, m_place.isEmpty() ? 0 : m_line, 0, text, advice});
    return outcome;
}

} // namespace Session
