#pragma once

#include <QDialog>
#include <session/recovery.h>

class QTreeWidget;

/// Offers the jobs that editors left which came to no good end: one can be recovered, all others stay for later or
/// are given up.
class RecoveryDialog : public QDialog
{
    Q_OBJECT
public:
    /// \param jobs  at least one, newest first
    RecoveryDialog(const QList<Session::LeftJob>& jobs, QWidget* parent);

    /// The job that is to be recovered, once the dialog was accepted.
    const Session::LeftJob& chosen() const;

private:
    void fill();
    void discardCurrent();

    QList<Session::LeftJob> m_jobs;
    QTreeWidget* m_list;
};
