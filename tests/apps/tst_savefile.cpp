#include <csignal>
#include <session/savefile.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using Session::readFile;
using Session::saveFile;

namespace {
QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<cannot be read>");
}

// Saves in a child process that may not write files beyond limit bytes; true if the save said it succeeded.
// A full disk looks the same to the writer: part of a write succeeds, the rest is refused.
bool savesBelowLimit(const QString& path, const QByteArray& content, rlim_t limit)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit bound{limit, limit};
        setrlimit(RLIMIT_FSIZE, &bound);
        QString error;
        const bool saved = saveFile(path, content, &error);
        _exit(saved ? 0 : error.isEmpty() ? 2 : 1);
    }
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) == 2)
        qFatal("the child process did not come to an end");
    return WEXITSTATUS(status) == 0;
}
} // namespace

class TstSaveFile : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void aNewFileHoldsTheContent();
    void anExistingFileIsReplaced();
    void aShortWriteLeavesTheOldFile_data();
    void aShortWriteLeavesTheOldFile();
    void aKilledProcessLeavesTheOldFile();
    void aLinkIsFollowed();
    void whatIsNoFileIsRefused();
    void aWriteProtectedFileIsNamed();
    void theRightsOfTheFileStay();
    void whatKilledProcessesLeftGoes();
    void aLongNameIsSaved();
    void aMissingFolderIsNamed();
    void readingGivesTheWholeFile();
    void readingRefuses_data();
    void readingRefuses();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TstSaveFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TstSaveFile::aNewFileHoldsTheContent()
{
    QString error;
    QVERIFY(saveFile(path("new.xml"), "<Job/>\n", &error));
    QCOMPARE(contentOf(path("new.xml")), QByteArray("<Job/>\n"));
    QVERIFY(error.isEmpty());
    QVERIFY(saveFile(path("empty.xml"), QByteArray(), nullptr));
    QCOMPARE(contentOf(path("empty.xml")), QByteArray());
}

void TstSaveFile::anExistingFileIsReplaced()
{
    QVERIFY(saveFile(path("job.xml"), "a long first content", nullptr));
    QVERIFY(saveFile(path("job.xml"), "short", nullptr));
    QCOMPARE(contentOf(path("job.xml")), QByteArray("short"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{"job.xml"});
}

void TstSaveFile::aShortWriteLeavesTheOldFile_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("limit");
    QTest::addColumn<bool>("saved");
    QTest::newRow("fits exactly") << 4096 << 4096 << true;
    QTest::newRow("one byte too many, in the buffer") << 4097 << 4096 << false;
    QTest::newRow("one byte too many, written through") << 1000001 << 1000000 << false;
    QTest::newRow("large, little room") << 8 * 1024 * 1024 << 65536 << false;
    QTest::newRow("no room at all") << 10 << 0 << false;
}

void TstSaveFile::aShortWriteLeavesTheOldFile()
{
    QFETCH(int, size);
    QFETCH(int, limit);
    QFETCH(bool, saved);
    const QByteArray content(size, 'x');
    QVERIFY(saveFile(path("job.xml"), "good", nullptr));
    QCOMPARE(savesBelowLimit(path("job.xml"), content, rlim_t(limit)), saved);
    QCOMPARE(contentOf(path("job.xml")), saved ? content : QByteArray("good"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{"job.xml"});
}

void TstSaveFile::aKilledProcessLeavesTheOldFile()
{
    const QByteArray content(16 * 1024 * 1024, 'y');
    QVERIFY(saveFile(path("job.xml"), "good", nullptr));
    const pid_t child = fork();
    if (child == 0) {
        for (;;)
            saveFile(path("job.xml"), content, nullptr);
    }
    // Wherever the signal hits, the file is the old one or the new one.
    QTest::qWait(60);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const QByteArray after = contentOf(path("job.xml"));
    QVERIFY(after == "good" || after == content);
}

void TstSaveFile::aLinkIsFollowed()
{
    QVERIFY(saveFile(path("real.xml"), "old", nullptr));
    QVERIFY(QFile::link(path("real.xml"), path("link.xml")));
    QVERIFY(saveFile(path("link.xml"), "new", nullptr));
    QCOMPARE(contentOf(path("real.xml")), QByteArray("new"));
    QVERIFY(QFileInfo(path("link.xml")).isSymLink());
}

void TstSaveFile::whatIsNoFileIsRefused()
{
    QString error;
    QVERIFY(!saveFile(m_folder->path(), "x", &error));
    QCOMPARE(error, QString("it is no regular file"));
    QVERIFY(QFile::link("/dev/full", path("device.xml")));
    QVERIFY(!saveFile(path("device.xml"), "x", &error));
    QCOMPARE(error, QString("it is no regular file"));
}

void TstSaveFile::aWriteProtectedFileIsNamed()
{
    constexpr uid_t NOBODY = 65534;
    QVERIFY(saveFile(path("job.xml"), "good", nullptr));
    QVERIFY(QFile::setPermissions(path("job.xml"), QFile::ReadOwner | QFile::ReadOther));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777)));
    const pid_t child = fork();
    if (child == 0) {
        // Nothing is write-protected for the superuser.
        QString error;
        const bool isOther = geteuid() != 0 || setuid(NOBODY) == 0;
        const bool isSaved = saveFile(path("job.xml"), "x", &error);
        _exit(isOther && !isSaved && error == "it is write-protected" ? 0 : 1);
    }
    int status = -1;
    QCOMPARE(waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
    QCOMPARE(contentOf(path("job.xml")), QByteArray("good"));
}

void TstSaveFile::theRightsOfTheFileStay()
{
    const auto rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    QVERIFY(saveFile(path("job.xml"), "old", nullptr));
    QVERIFY(QFile::setPermissions(path("job.xml"), rights));
    QVERIFY(saveFile(path("job.xml"), "new", nullptr));
    QCOMPARE(QFile::permissions(path("job.xml")) & ~(QFile::ReadUser | QFile::WriteUser), rights);
}

void TstSaveFile::whatKilledProcessesLeftGoes()
{
    // No process has the number 4194999; the last two are somebody else's.
    const QString alive = QString(".job.xml.%1.saving").arg(getppid());
    for (const QString& name : {QString(".job.xml.4194999.saving"), alive, QString(".job.xml.notes.saving"),
                                QString("job.xml.backup")}) {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(saveFile(path("job.xml"), "new", nullptr));
    QStringList kept{alive, ".job.xml.notes.saving", "job.xml", "job.xml.backup"};
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden, QDir::Name), kept);
}

void TstSaveFile::aLongNameIsSaved()
{
    const QString name(255, 'n');
    QVERIFY(saveFile(path(name), "content", nullptr));
    QCOMPARE(contentOf(path(name)), QByteArray("content"));
}

void TstSaveFile::aMissingFolderIsNamed()
{
    QString error;
    QVERIFY(!saveFile(path("none/job.xml"), "x", &error));
    QCOMPARE(error, QString("the folder %1 does not exist").arg(path("none")));
    QVERIFY(!saveFile(QString(), "x", &error));
    QVERIFY(!error.isEmpty());
}

void TstSaveFile::readingGivesTheWholeFile()
{
    QByteArray content("before");
    QString error;
    QVERIFY(saveFile(path("job.xml"), "line\r\nline\n", nullptr));
    QVERIFY(readFile(path("job.xml"), &content, &error));
    QCOMPARE(content, QByteArray("line\r\nline\n"));
    QVERIFY(error.isEmpty());
}

void TstSaveFile::readingRefuses_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "none.xml"
                             << "there is no such file";
    QTest::newRow("folder") << "folder"
                            << "it is no regular file";
    QTest::newRow("pipe") << "pipe"
                          << "it is no regular file";
    QTest::newRow("device") << "device"
                            << "it is no regular file";
    QTest::newRow("too large") << "large"
                               << "it is larger than 64 MiB";
}

void TstSaveFile::readingRefuses()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QVERIFY(QDir(m_folder->path()).mkdir("folder"));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    QVERIFY(QFile::link("/dev/zero", path("device")));
    QFile large(path("large"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(Session::MAX_FILE_SIZE + 1));
    QByteArray content("before");
    QString error;
    QVERIFY(!readFile(path(name), &content, &error));
    QCOMPARE(error, reason);
    QVERIFY(content.isEmpty());
}

QTEST_GUILESS_MAIN(TstSaveFile)
#include "tst_savefile.moc"
