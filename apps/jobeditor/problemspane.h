#pragma once

#include <QTreeWidget>
#include <session/jobproblems.h>
#include <session/pacedrefresh.h>

/// What is wrong with the job, one row a problem. Return or a double click leads to the field.
class ProblemsPane : public QTreeWidget
{
    Q_OBJECT
public:
    explicit ProblemsPane(Session::JobSession* session, QWidget* parent = nullptr);

    int problemCount() const { return topLevelItemCount(); }

signals:
    void problemChosen(JEDVEPLUGIN::ISubSetting* setting, const QString& parameterSet, const QString& field);
    /// The same for a sub-job without a plug-in. \param subjob  position in the job
    void subjobChosen(int subjob);
    void countChanged(int count);

private:
    void refresh();
    void choose(QTreeWidgetItem* item);

    Session::ProblemFinder m_finder;
    QList<Session::JobProblem> m_shown;
    Session::PacedRefresh m_refresh;
};
