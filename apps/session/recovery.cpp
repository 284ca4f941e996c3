#include "recovery.h"

#include "savefile.h"

#include <algorithm>
#include <jedsubsettingfactory.h>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QUuid>

namespace Session {

namespace {
constexpr int IDLE_DELAY = 10 * 1000;
constexpr int LATEST_DELAY = 60 * 1000;

const QLatin1String FILE_SUFFIX(".recovery");
const QLatin1String LOCK_SUFFIX(".lock");
const QLatin1String FORMAT("job recovery 1");

QString timeText(const QDateTime& time)
{
    return time.isValid() ? time.toUTC().toString(Qt::ISODateWithMs) : QString();
}

QDateTime timeOf(const QJsonValue& text)
{
    return QDateTime::fromString(text.toString(), Qt::ISODateWithMs).toUTC();
}

QDateTime savedTimeOf(const QString& path)
{
    const QFileInfo info(path);
    return !path.isEmpty() && info.isFile() ? info.lastModified().toUTC() : QDateTime();
}

// One line that says what it is, then the job file.
QByteArray toBytes(const LeftJob& job)
{
    const QJsonObject head{{QStringLiteral("format"), QString(FORMAT)},
                           {QStringLiteral("path"), job.path},
                           {QStringLiteral("name"), job.name},
                           {QStringLiteral("written"), timeText(job.written)},
                           {QStringLiteral("saved"), timeText(job.savedTime)}};
    return QJsonDocument(head).toJson(QJsonDocument::Compact) + '\n' + job.content;
}

bool fromBytes(const QByteArray& bytes, LeftJob* job)
{
    const int end = bytes.indexOf('\n');
    const QJsonObject head = QJsonDocument::fromJson(bytes.left(std::max(end, 0))).object();
    if (head.value(QStringLiteral("format")).toString() != FORMAT)
        return false;
    job->path = head.value(QStringLiteral("path")).toString();
    job->name = head.value(QStringLiteral("name")).toString();
    job->written = timeOf(head.value(QStringLiteral("written")));
    job->savedTime = timeOf(head.value(QStringLiteral("saved")));
    job->content = bytes.mid(end + 1);
    return true;
}

// Locked, if no living process holds it.
std::unique_ptr<QLockFile> lockOf(const QString& file)
{
    auto lock = std::make_unique<QLockFile>(file + LOCK_SUFFIX);
    // However long an editor runs: only the end of its process frees the lock.
    lock->setStaleLockTime(0);
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

// Of a save that was interrupted between giving the new file a name and putting it in place.
void removeInterruptedSaves(const QDir& folder, const QString& file)
{
    for (const QString& name :
         folder.entryList({QFileInfo(file).fileName() + QStringLiteral(".??????")}, QDir::Files))
        QFile::remove(folder.absoluteFilePath(name));
}

// Names of the copies, also of those that were never written to the end.
QStringList copiesIn(const QDir& folder)
{
    QStringList names =
        folder.entryList({QLatin1Char('*') + FILE_SUFFIX, QLatin1Char('*') + FILE_SUFFIX + LOCK_SUFFIX},
                         QDir::Files | QDir::Hidden, QDir::Name);
    for (QString& name : names) {
        if (name.endsWith(LOCK_SUFFIX))
            name.chop(LOCK_SUFFIX.size());
    }
    names.removeDuplicates();
    return names;
}

bool takeUp(const QDir& folder, const QString& name, LeftJob* job)
{
    job->file = folder.absoluteFilePath(name);
    job->lock = lockOf(job->file);
    if (!job->lock)
        return false;
    removeInterruptedSaves(folder, job->file);
    QByteArray bytes;
    return readFile(job->file, &bytes, nullptr) && fromBytes(bytes, job);
}
} // namespace

Recovery::Recovery(JobSession* session, const QString& folder, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_folder(folder)
{
    m_idle.setSingleShot(true);
    m_latest.setSingleShot(true);
    setDelays(IDLE_DELAY, LATEST_DELAY);
    connect(&m_idle, &QTimer::timeout, this, &Recovery::keep);
    connect(&m_latest, &QTimer::timeout, this, &Recovery::keep);
    watch();
}

Recovery::~Recovery()
{
    clear();
}

QString Recovery::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/recovery");
}

QList<LeftJob> Recovery::leftJobs(const QString& folder)
{
    QList<LeftJob> result;
    const QDir dir(folder);
    for (const QString& name : copiesIn(dir)) {
        LeftJob job;
        if (takeUp(dir, name, &job))
            result.append(job);
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const LeftJob& left, const LeftJob& right) { return left.written > right.written; });
    return result;
}

bool Recovery::recover(const LeftJob& job, Findings* findings)
{
    if (!m_session->recover(job.content, job.path, findings))
        return false;
    const QDateTime present = savedTimeOf(job.path);
    if (present.isValid() && present != job.savedTime)
        findings->append({Finding::WARNING, job.path, 0, 0,
                          tr("was saved by another program after the recovered job was read from it"),
                          tr("Compare the two before you save.")});
    if (keep())
        discard(job);
    return true;
}

void Recovery::discard(const LeftJob& job)
{
    QFile::remove(job.file);
    job.lock->unlock();
}

void Recovery::setDelays(int idle, int latest)
{
    m_idle.setInterval(idle);
    m_latest.setInterval(latest);
}

bool Recovery::keep()
{
    m_idle.stop();
    m_latest.stop();
    if (!m_session->isModified())
        return false;
    QString reason;
    if (m_file.isEmpty()) {
        QDir().mkpath(m_folder);
        const QString file = QStringLiteral("%1/%2%3").arg(
            m_folder, QUuid::createUuid().toString(QUuid::WithoutBraces), FILE_SUFFIX);
        m_lock = lockOf(file);
        if (!m_lock) {
            emit failed(tr("the folder %1 cannot be written to").arg(QDir::toNativeSeparators(m_folder)));
            return false;
        }
        m_file = file;
    }
    LeftJob job;
    job.path = m_session->document().path();
    job.name = m_session->document().job().GetJobInformation().GetName();
    job.written = QDateTime::currentDateTimeUtc();
    job.savedTime = savedTimeOf(job.path);
    job.content = content();
    if (saveFile(m_file, toBytes(job), &reason))
        return true;
    emit failed(reason);
    return false;
}

void Recovery::watch()
{
    connect(m_session->undoStack(), &QUndoStack::indexChanged, this, &Recovery::noteChange);
    connect(m_session->undoStack(), &QUndoStack::cleanChanged, this, &Recovery::noteChange);
    connect(m_session, &JobSession::jobLeaving, this, &Recovery::clear);
    connect(m_session, &JobSession::jobReplaced, this, &Recovery::takeAsRead);
    connect(m_session, &JobSession::settingChanged, this, &Recovery::forget);
    connect(m_session, &JobSession::settingLeaving, this, &Recovery::forget);
    for (const JobSession::Factory* factory : m_session->factories())
        connect(factory, &JobSession::Factory::stateChanged, this, &Recovery::forget);
}

void Recovery::noteChange()
{
    if (!m_session->isModified())
        return clear();
    m_idle.start();
    if (!m_latest.isActive())
        m_latest.start();
}

void Recovery::clear()
{
    m_idle.stop();
    m_latest.stop();
    if (m_file.isEmpty())
        return;
    QFile::remove(m_file);
    m_lock.reset();
    m_file.clear();
}

// What nobody has changed is written as it was read.
void Recovery::takeAsRead()
{
    m_written.clear();
    for (int i = 0; i < m_session->topLevelCount(); ++i)
        m_written.insert(m_session->topLevel(i).number, m_session->topLevel(i).subjob);
}

void Recovery::forget(const JEDVEPLUGIN::ISubSetting* setting)
{
    const int index = m_session->rootIndex(setting);
    if (index >= 0)
        m_written.remove(m_session->topLevel(index).number);
}

// As JobSession::draft(), but only what changed since the last time is composed again: a large job must not stand
// still for its copy.
QByteArray Recovery::content()
{
    m_session->flushEdits();
    QHash<int, JobXml::Subjob> written;
    QVector<JobXml::Subjob> subjobs;
    for (int i = 0; i < m_session->topLevelCount(); ++i) {
        const int number = m_session->topLevel(i).number;
        const auto known = m_written.constFind(number);
        JobXml::Subjob& subjob = written[number];
        if (known != m_written.constEnd())
            subjob = *known;
        else
            m_session->composeSubjob(i, &subjob, nullptr);
        subjobs.append(subjob);
    }
    m_written = written;
    JobDocument draft = m_session->document();
    draft.job().SetSubjob(subjobs);
    return draft.text();
}

} // namespace Session
