#pragma once

#include <QTreeWidget>
#include <session/pacedrefresh.h>

namespace Session {
class JobSession;
}

/// How much of each receiver the job takes, and what is left: first those that it takes, then the others. Return or a
/// double click leads to the sub-job that takes it.
class ResourcePane : public QTreeWidget
{
    Q_OBJECT
public:
    explicit ResourcePane(Session::JobSession* session, QWidget* parent = nullptr);

signals:
    /// \param subjob  position in the job of the last one that takes the receiver
    void subjobChosen(int subjob);

private:
    void refresh();
    void choose(QTreeWidgetItem* item);

    Session::JobSession* m_session; // Not owned.
    Session::PacedRefresh m_refresh;
};
