#include "mapobjects_p.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QLockFile>

namespace JEDVEPLUGIN {

namespace {
constexpr int LOCK_TIME = 1000;        // ms
constexpr int MOST_NAME_LETTERS = 120; // The system makes file names of keys, which end at 255 letters.

QString hashOf(const QString& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex());
}

QString keyOf(const QString& name)
{
    return QStringLiteral("JOBEDITORVE_MAPVIEWLAYERMANAGER_LOCALINSTANCES_%1")
        .arg(name.size() > MOST_NAME_LETTERS ? hashOf(name) : name);
}

// Making a segment resets its lock, so that "make it, else attach to it" loses counts when processes start at the
// same time: all steps happen under a lock of their own.
QString lockFileName(const QString& key)
{
    return QDir::temp().filePath(QStringLiteral("jobeditorve-%1.lock").arg(hashOf(key)));
}

bool makeOrAttach(QSharedMemory& memory)
{
    // Where segments outlive their processes, attaching once and leaving drops one that nobody uses any more.
    if (memory.attach(QSharedMemory::ReadWrite))
        memory.detach();
    if (memory.create(sizeof(qint32), QSharedMemory::ReadWrite)) {
        memory.lock();
        *static_cast<qint32*>(memory.data()) = 0;
        return true;
    }
    return memory.error() == QSharedMemory::AlreadyExists && memory.attach(QSharedMemory::ReadWrite) &&
           memory.lock();
}
} // namespace

int InstanceCounter::enter(const QString& name)
{
    const QString key = keyOf(name);
    QLockFile steps(lockFileName(key));
    if (!steps.tryLock(LOCK_TIME))
        return 0;
    m_memory.setKey(key);
    return makeOrAttach(m_memory) ? change(1) : 0;
}

void InstanceCounter::leave()
{
    if (!m_memory.isAttached())
        return;
    QLockFile steps(lockFileName(m_memory.key()));
    steps.tryLock(LOCK_TIME);
    m_memory.lock();
    change(-1);
    m_memory.detach();
}

// The segment is locked; unlocks it.
int InstanceCounter::change(int difference)
{
    qint32& count = *static_cast<qint32*>(m_memory.data());
    count += difference;
    const int result = count;
    m_memory.unlock();
    return result;
}

} // namespace JEDVEPLUGIN
