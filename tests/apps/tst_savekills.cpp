#include <csignal>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <session/jobdocument.h>
#include <session/savefile.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using Session::Findings;
using Session::JobDocument;

namespace {
constexpr int MAX_DELAY = 4000; // us

QByteArray contentOf(const QString& path)
{
    QByteArray content;
    return Session::readFile(path, &content, nullptr) ? content : QByteArray("<cannot be read>");
}

// A process that saves two versions in turn until it is killed, as soon as it has begun.
template <typename Save>
void killWhileSaving(const Save& save, int delay)
{
    int begun[2];
    if (pipe(begun) != 0)
        qFatal("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        if (write(begun[1], "x", 1) != 1)
            _exit(1);
        for (int version = 0;; ++version)
            save(version % 2);
    }
    char byte = 0;
    const bool hasBegun = read(begun[0], &byte, 1) == 1;
    close(begun[0]);
    close(begun[1]);
    usleep(useconds_t(delay));
    kill(child, SIGKILL);
    int status = 0;
    if (!hasBegun || waitpid(child, &status, 0) != child || !WIFSIGNALED(status))
        qFatal("the child process was not killed");
}

// Whether a child process that may not write files beyond a limit could save. A full disk looks the same to the
// writer: part of what is written succeeds, the rest is refused.
bool savesBelowLimit(JobDocument& document, const QString& path, rlim_t limit)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit bound{limit, limit};
        setrlimit(RLIMIT_FSIZE, &bound);
        Findings findings;
        const bool isSaved = document.save(path, &findings);
        _exit(isSaved ? 0 : findings.isEmpty() ? 2 : 1);
    }
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) == 2)
        qFatal("the child process did not come to an end");
    return WEXITSTATUS(status) == 0;
}
} // namespace

class TstSaveKills : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void noKillLosesTheJob_data();
    void noKillLosesTheJob();
    void noFullDiskLosesTheJob();

private:
    JobDocument m_documents[2];
};

void TstSaveKills::initTestCase()
{
    for (int version = 0; version < 2; ++version) {
        Findings findings;
        QVERIFY(m_documents[version].load(JED_SOURCE_DIR "/installation/Jobs/search.xml", &findings));
        m_documents[version].job().GetJobInformation().SetName(QString("Version %1").arg(version));
    }
}

void TstSaveKills::noKillLosesTheJob_data()
{
    QTest::addColumn<int>("copies");
    QTest::newRow("small job") << 1;
    QTest::newRow("large job") << 200;
}

void TstSaveKills::noKillLosesTheJob()
{
    QFETCH(int, copies);
    QByteArray versions[2];
    for (int version = 0; version < 2; ++version) {
        JobXml::Job& job = m_documents[version].job();
        const QVector<JobXml::Subjob> subjobs = job.GetSubjob();
        for (int i = 1; i < copies; ++i)
            job.AppendSubjob(subjobs.first());
        versions[version] = m_documents[version].text();
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath("job.xml");
    QVERIFY(Session::saveFile(path, versions[0], nullptr));
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    const int count = qEnvironmentVariableIsSet("JED_SLOW_TESTS") ? 1000 : 100;
    int seen[2] = {0, 0};
    for (int i = 0; i < count; ++i) {
        const bool isValidated = copies == 1 && i % 2 == 0;
        const auto save = [&](int version) {
            Findings findings;
            if (isValidated)
                m_documents[version].save(path, &findings);
            else
                Session::saveFile(path, versions[version], nullptr);
        };
        killWhileSaving(save, random.bounded(MAX_DELAY));
        const QByteArray content = contentOf(path);
        QVERIFY2(content == versions[0] || content == versions[1],
                 qPrintable(QString("kill %1, seed %2: %3 bytes").arg(i).arg(seed).arg(content.size())));
        ++seen[content == versions[1]];
        // The file, and what the last killed process left.
        QVERIFY(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size() <= 2);
    }
    QVERIFY(seen[0] > 0 && seen[1] > 0);
    QVERIFY(Session::saveFile(path, versions[0], nullptr));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"job.xml"});
}

void TstSaveKills::noFullDiskLosesTheJob()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("job.xml");
    Findings findings;
    QVERIFY(m_documents[0].save(path, &findings));
    const QByteArray before = m_documents[0].text();
    const int size = m_documents[1].text().size();
    const int step = qEnvironmentVariableIsSet("JED_SLOW_TESTS") ? 97 : 997;
    for (int room = 0; room < size; room += step) {
        QVERIFY2(!savesBelowLimit(m_documents[1], path, rlim_t(room)), qPrintable(QString::number(room)));
        QCOMPARE(contentOf(path), before);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"job.xml"});
    }
    QVERIFY(!savesBelowLimit(m_documents[1], path, rlim_t(size - 1)));
    QVERIFY(savesBelowLimit(m_documents[1], path, rlim_t(size)));
    QCOMPARE(contentOf(path), m_documents[1].text());
}

QTEST_GUILESS_MAIN(TstSaveKills)
#include "tst_savekills.moc"
