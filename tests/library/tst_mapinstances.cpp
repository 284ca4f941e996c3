#include <mapviewlayermanager.h>
#include <QCoreApplication>
#include <QProcess>
#include <QSharedMemory>
#include <QTemporaryDir>
#include <support/recordingmap.h>
#include <sys/select.h>
#include <unistd.h>

using JedTest::RecordingMap;
using JEDVEPLUGIN::MapViewLayerManager;

namespace {
const char* const STAY_ARGUMENT = "--stay";   // NAME: one manager, until the standard input is closed.
const char* const STORM_ARGUMENT = "--storm"; // NAME COUNT: so many managers, one after the other.

int stay(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    MapViewLayerManager::getInstance(argv[2]);
    std::puts("ready");
    std::fflush(stdout);
    // The link needs the event loop; somebody who closes the input wants an end.
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [] {
        fd_set input;
        FD_ZERO(&input);
        FD_SET(0, &input);
        timeval now{0, 0};
        char byte = 0;
        if (select(1, &input, nullptr, nullptr, &now) > 0 && read(0, &byte, 1) <= 0)
            QCoreApplication::quit();
    });
    timer.start(5);
    return QCoreApplication::exec();
}

int storm(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    for (int i = 0; i < QByteArray(argv[3]).toInt(); ++i)
        delete MapViewLayerManager::getInstance(argv[2]);
    return 0;
}

/// A process with a manager, and the map that it finds.
class Editor
{
public:
    explicit Editor(const QString& name)
        : m_map(QString("jed-map-%1-%2").arg(QCoreApplication::applicationPid()).arg(++s_count))
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("JED_MAPVIEW",
                           QString("jed-map-%1-%2").arg(QCoreApplication::applicationPid()).arg(s_count));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_map.start();
        m_process.start(QCoreApplication::applicationFilePath(), {STAY_ARGUMENT, name});
        [this] { QTRY_VERIFY_WITH_TIMEOUT(m_process.canReadLine(), 20000); }();
    }
    ~Editor() { close(); }

    QString name()
    {
        [this] { QTRY_VERIFY_WITH_TIMEOUT(!m_map.clientName().isEmpty(), 20000); }();
        return m_map.clientName();
    }
    void close()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished(20000);
    }
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(20000);
    }

private:
    static int s_count;
    RecordingMap m_map;
    QProcess m_process;
};

int Editor::s_count = 0;
} // namespace

// How processes that use one name are told apart. Real processes, since a killed one leaves its count behind.
class TstMapInstances : public QObject
{
    Q_OBJECT
private slots:
    void init();

    void furtherProcessesHaveNumbers();
    void countStandsInASegmentOfItsName();
    void longNamesHaveNumbersToo_data();
    void longNamesHaveNumbersToo();
    void otherNamesAreCountedApart();
    void onlyProcessIsKilled();
    void oneOfSeveralIsKilled();
    void manyStartAndStopAtOnce();

private:
    QString m_name; // Another one for each test.
};

void TstMapInstances::init()
{
    static int count = 0;
    m_name = QString("editor %1 %2").arg(QCoreApplication::applicationPid()).arg(++count);
}

void TstMapInstances::furtherProcessesHaveNumbers()
{
    Editor first(m_name);
    QCOMPARE(first.name(), m_name);
    Editor second(m_name);
    QCOMPARE(second.name(), m_name + " (1)");
    Editor third(m_name);
    QCOMPARE(third.name(), m_name + " (2)");
    second.close();
    Editor fourth(m_name);
    QCOMPARE(fourth.name(), m_name + " (2)");
    for (Editor* editor : {&first, &third, &fourth})
        editor->close();
    QCOMPARE(Editor(m_name).name(), m_name);
}

void TstMapInstances::countStandsInASegmentOfItsName()
{
    // As another edition of the library would find it, and leave it behind.
    QSharedMemory segment("JOBEDITORVE_MAPVIEWLAYERMANAGER_LOCALINSTANCES_" + m_name);
    QVERIFY(segment.create(4));
    qint32& count = *static_cast<qint32*>(segment.data());
    count = 3;
    Editor fourth(m_name);
    QCOMPARE(fourth.name(), m_name + " (3)");
    QCOMPARE(count, 4);
    fourth.close();
    QCOMPARE(count, 3);
}

void TstMapInstances::longNamesHaveNumbersToo_data()
{
    QTest::addColumn<QString>("letters");
    QTest::newRow("120") << QString(120 - m_name.size(), 'x');
    QTest::newRow("121") << QString(121 - m_name.size(), 'x');
    QTest::newRow("5000") << QString(5000, 'x');
    QTest::newRow("120 of two bytes") << QString(120 - m_name.size(), QChar(0xe4));
    QTest::newRow("1000 of three bytes") << QString(1000, QChar(0x5730));
}

void TstMapInstances::longNamesHaveNumbersToo()
{
    QFETCH(QString, letters);
    const QString name = m_name + letters;
    Editor first(name);
    QCOMPARE(first.name(), name);
    Editor other(name + "x");
    QCOMPARE(other.name(), name + "x");
    Editor second(name);
    QCOMPARE(second.name(), name + " (1)");
}

void TstMapInstances::otherNamesAreCountedApart()
{
    Editor first(m_name);
    Editor other(m_name + " b");
    QCOMPARE(first.name(), m_name);
    QCOMPARE(other.name(), m_name + " b");
}

void TstMapInstances::onlyProcessIsKilled()
{
    const int rounds = qEnvironmentVariableIsSet("JED_SLOW_TESTS") ? 100 : 10;
    for (int round = 0; round < rounds; ++round) {
        Editor killed(m_name);
        QCOMPARE(killed.name(), m_name);
        killed.kill();
    }
    QCOMPARE(Editor(m_name).name(), m_name);
}

void TstMapInstances::oneOfSeveralIsKilled()
{
    Editor first(m_name);
    Editor killed(m_name);
    QCOMPARE(killed.name(), m_name + " (1)");
    killed.kill();
    // Its count stays until the last one ends.
    Editor third(m_name);
    QCOMPARE(third.name(), m_name + " (2)");
    first.close();
    third.close();
    QCOMPARE(Editor(m_name).name(), m_name);
}

void TstMapInstances::manyStartAndStopAtOnce()
{
    const QString rounds = qEnvironmentVariableIsSet("JED_SLOW_TESTS") ? "1000" : "100";
    // The counter starts anew when nobody uses it, so somebody has to: a count too many or too few shows in the
    // next name.
    Editor stays(m_name);
    QCOMPARE(stays.name(), m_name);
    QVector<QProcess*> processes;
    for (int i = 0; i < 4; ++i) {
        processes.append(new QProcess(this));
        processes.last()->start(QCoreApplication::applicationFilePath(), {STORM_ARGUMENT, m_name, rounds});
    }
    for (QProcess* process : qAsConst(processes)) {
        QVERIFY(process->waitForFinished(120000));
        QCOMPARE(process->exitCode(), 0);
    }
    QCOMPARE(Editor(m_name).name(), m_name + " (1)");
    stays.close();
    QCOMPARE(Editor(m_name).name(), m_name);
}

int main(int argc, char** argv)
{
    if (argc > 2 && qstrcmp(argv[1], STAY_ARGUMENT) == 0)
        return stay(argc, argv);
    if (argc > 3 && qstrcmp(argv[1], STORM_ARGUMENT) == 0)
        return storm(argc, argv);
    QCoreApplication application(argc, argv);
    TstMapInstances test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mapinstances.moc"
