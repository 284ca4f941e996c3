#pragma once

#include "jobsession.h"

#include <memory>
#include <QDateTime>
#include <QLockFile>
#include <QObject>
#include <QTimer>

namespace Session {

/// What an editor that came to no good end left of a job.
struct LeftJob
{
    QString file;        ///< the recovery file
    QString path;        ///< of the job; empty if it was never saved
    QString name;        ///< of the job
    QDateTime written;   ///< UTC, of its last change that is in the recovery file, or shortly after
    QDateTime savedTime; ///< UTC, of the job's file then; invalid if there was none
    QByteArray content;  ///< the job as it would have been saved

    /// Keeps other editors from offering the same one.
    std::shared_ptr<QLockFile> lock;
};

/// Keeps a copy of the changed job beside, for the case that the editor does not come to a good end. The copy is
/// renewed when nothing was changed for a while, in the midst of changes at the latest after a minute; it is
/// removed when there is nothing left that could be lost: the job was saved, given up, or is as it was saved.
///
/// Several editors may use one folder: each copy has a lock that falls with its process. GUI thread only.
class Recovery : public QObject
{
    Q_OBJECT
public:
    /// \param session  not owned, outlives the object
    /// \param folder   made when it is needed
    Recovery(JobSession* session, const QString& folder, QObject* parent = nullptr);
    /// Removes the copy: whoever ends in order has asked whether the job is to be saved.
    ~Recovery() override;

    /// The user's own one for this program.
    static QString defaultFolder();

    /// The copies that no running editor holds, newest first. Removes what interrupted saves left beside them.
    static QList<LeftJob> leftJobs(const QString& folder);
    /// Opens such a job as a changed one under its old path, and keeps a copy of its own instead.
    /// \return false, with the job in the session as it was, if the copy holds no job; the reason is a finding
    bool recover(const LeftJob& job, Findings* findings);
    /// Gives such a job up for good.
    static void discard(const LeftJob& job);

    /// \param idle    after the last change, ms
    /// \param latest  after the first change that is not kept yet, ms
    void setDelays(int idle, int latest);
    /// Writes the copy now, if the job is changed.
    bool keep();

signals:
    /// The copy could not be written; the old one stays. \param reason  for a person to read
    void failed(const QString& reason);

private:
    void watch();
    void noteChange();
    void clear();
    void takeAsRead();
    void forget(const JEDVEPLUGIN::ISubSetting* setting);
    QByteArray content();

    JobSession* m_session; // Not owned.
    const QString m_folder;
    QString m_file; // Empty: there is no copy.
    std::unique_ptr<QLockFile> m_lock;
    QTimer m_idle;
    QTimer m_latest;
    QHash<int, JobXml::Subjob> m_written; // By the number of the top-level setting, until it changes.
};

} // namespace Session
