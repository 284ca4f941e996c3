#pragma once

#include <QTreeWidget>

namespace Session {
class JobSession;
}

/// How much of each receiver the job takes, and what is left.
class ResourcePane : public QTreeWidget
{
    Q_OBJECT
public:
    explicit ResourcePane(Session::JobSession* session, QWidget* parent = nullptr);

private:
    void refreshSoon();
    void refresh();

    Session::JobSession* m_session; // Not owned.
    bool m_isRefreshPending = false;
};
