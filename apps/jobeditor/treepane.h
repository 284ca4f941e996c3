#pragma once

#include <QWidget>

class QLineEdit;
class QMenu;
class QSortFilterProxyModel;
class QTreeView;

namespace JEDVEPLUGIN {
class ISubSetting;
}
namespace Session {
class JobSession;
class SettingTreeModel;
} // namespace Session

/// The settings of the job as a tree with a filter above it. Keeps the selection over changes of the tree.
class TreePane : public QWidget
{
    Q_OBJECT
public:
    explicit TreePane(Session::JobSession* session, QWidget* parent = nullptr);

    /// Null if nothing is selected, or a sub-job without a plug-in.
    JEDVEPLUGIN::ISubSetting* currentSetting() const;
    /// Position of the selected top-level row that has no setting, else -1.
    int currentUnclaimed() const;
    void setCurrentSetting(JEDVEPLUGIN::ISubSetting* setting);
    /// The sub-job at that position, also one without a plug-in.
    void setCurrentSubjob(int subjob);
    /// What is shown for a right click or the menu key on a row. Not owned.
    void setRowMenu(QMenu* menu) { m_rowMenu = menu; }
    void focusFilter();
    void editName();

signals:
    /// Another row was selected, or the selected one went away.
    void currentChanged();

private:
    void showRowMenu(const QPoint& position);
    void select(const QModelIndex& sourceIndex);

    Session::JobSession* m_session; // Not owned.
    Session::SettingTreeModel* m_model;
    QSortFilterProxyModel* m_filter;
    QLineEdit* m_filterEdit;
    QTreeView* m_view;
    QMenu* m_rowMenu = nullptr;
};
