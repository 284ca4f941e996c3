#pragma once

#include <QPointer>
#include <QWidget>

class QTreeView;
class RuleRunFilter;

namespace JEDVEPLUGIN {
class ISubSetting;
}
namespace Session {
class JobSession;
class RuleLog;
} // namespace Session

/// The rules that ran since the start, newest below, with what they changed and what went wrong, and a mark beside
/// each field that a rule has set. Rules that run for too long are stopped while the pane lives. Return or a double
/// click leads to the field. Times are UTC.
class RulesPane : public QWidget
{
    Q_OBJECT
public:
    explicit RulesPane(Session::JobSession* session, QWidget* parent = nullptr);
    ~RulesPane() override;

    /// Brings the marks in an editor widget up to date, from now on with every change.
    /// \param widget  may be null
    void markFields(QWidget* widget);

    const Session::RuleLog& log() const { return *m_log; }

signals:
    void fieldChosen(JEDVEPLUGIN::ISubSetting* setting, const QString& parameterSet, const QString& field);
    /// How many of the runs have faults.
    void faultCountChanged(int count);

private:
    void choose(const QModelIndex& index);
    void countFaults();
    void scrollToNewest();
    void markField(const QString& path);

    Session::JobSession* m_session; // Not owned.
    Session::RuleLog* m_log;
    RuleRunFilter* m_filter;
    QTreeView* m_view;
    QPointer<QWidget> m_marked; // Whose fields are marked.
};
