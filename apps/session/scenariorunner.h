#pragma once

#include "jobcomposer.h"
#include "scenario.h"

#include <QStringList>

namespace Session {

/// Runs a scenario: composes the job that it describes and saves it where it says so. GUI thread only.
class ScenarioRunner
{
public:
    enum Outcome {
        DONE,    ///< all steps were done
        REFUSED, ///< a step asks for what does not exist or does not fit
        MISSED,  ///< an expectation was not met, or the job does not follow the schema
        FAULT,   ///< the file could not be written
    };

    explicit ScenarioRunner(const JobComposer::Resources& resources);

    /// Runs the steps up to the first that is not done.
    Outcome run(const Scenario& scenario);

    /// Why a step was not done, with the scenario's name (if it has one) and the step's line, and what got lost in files that were
    /// written.
    const Findings& findings() const { return m_findings; }
    /// The files that were written, in order.
    const QStringList& savedFiles() const { return m_savedFiles; }
    int subjobCount() const { return m_composer.subjobCount(); }

private:
    Outcome runStep(const Scenario::Step& step);
    Outcome begin(const QStringList& arguments);
    Outcome add(const QStringList& arguments);
    Outcome set(const QStringList& arguments);
    Outcome select(const QStringList& arguments);
    Outcome expect(const QStringList& arguments);
    Outcome save(const QStringList& arguments);
    Outcome refused(bool isDone);
    Outcome stop(Outcome outcome, const QString& text, const QString& advice = QString());

    JobComposer m_composer;
    Findings m_findings;
    QStringList m_savedFiles;
    QString m_place; // The scenario's name.
    int m_line = 0;  // Of the step.
};

} // namespace Session
