#include <QProcess>
#include <session/savefile.h>

// What jedtool prints, letter by letter: each case is a session of commands, in a folder of its own, whose output and
// exit codes are compared with a file in tests/data/expected/jedtool. dev/accept-output writes those files anew.

namespace {
const char* const EXPECTED_FOLDER = JED_SOURCE_DIR "/tests/data/expected/jedtool/";
constexpr int MOST_TIME = 2000; // Of one command, in ms.

bool copyFiles(const QString& from, const QString& to)
{
    bool isDone = QDir().mkpath(to);
    for (const QString& name : QDir(from).entryList(QDir::Files))
        isDone = isDone && QFile::copy(from + '/' + name, to + '/' + name);
    return isDone;
}
} // namespace

class TstJedtool : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void output_data();
    void output();
    void anOutdatedFileEndsInTime();
    void aFullDiskLeavesTheOldFile();
    void theEnvironmentNamesTheInstallation();
    void tracesAreShownWhenAskedFor();

private:
    struct Result
    {
        int exitCode = -1;
        QByteArray output;
        QByteArray errors;
        qint64 time = 0; // ms
    };
    Result run(const QString& command, const QStringList& environment = {});
    QString transcript(const QString& command);
    QByteArray neutral(QByteArray text) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

// "wrong" is an installation with all that can be wrong, "outdated" one with a good and an outdated file, "bare" one
// without files, "unreadable" one whose configuration is no good.
void TstJedtool::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    const QString data = JED_SOURCE_DIR "/tests/data/";
    const QByteArray configuration = "[JobManagement]\nTemplateFolder=TemplateFolder\n";
    for (const QString name : {"wrong", "outdated", "bare", "unreadable"}) {
        QVERIFY(QDir().mkpath(m_folder->filePath(name + "/TemplateFolder")));
        QVERIFY(Session::saveFile(m_folder->filePath(name + "/installation.ini"), configuration, nullptr));
    }
    QVERIFY(Session::saveFile(m_folder->filePath("unreadable/installation.ini"), "[JobManagement]\nnothing\n",
                              nullptr));
    QVERIFY(copyFiles(data + "tuner", m_folder->filePath("wrong/TemplateFolder")));
    for (const QString name : {"outdated-number.xml", "no-version.xml"})
        QVERIFY(QFile::copy(data + "tuner/" + name, m_folder->filePath("outdated/TemplateFolder/" + name)));
    QVERIFY(copyFiles(data + "jobs", m_folder->filePath("jobs")));
    QVERIFY(copyFiles(data + "rules/wrong", m_folder->filePath("scripts")));
    QVERIFY(QFile::copy(data + "rules/objects.txt", m_folder->filePath("scripts/objects.txt")));
    QVERIFY(copyFiles(data + "rules/trace", m_folder->filePath("rules")));
    QVERIFY(copyFiles(data + "lists", m_folder->filePath("lists")));
}

TstJedtool::Result TstJedtool::run(const QString& command, const QStringList& environment)
{
    QProcess process;
    process.setWorkingDirectory(m_folder->path());
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"JED_INSTALLATION", "XDG_RUNTIME_DIR", "QT_LOGGING_RULES", "QT_QPA_PLATFORM"})
        variables.remove(name);
    variables.insert("SOURCE_DATE_EPOCH", "1700000000");
    for (const QString& variable : environment)
        variables.insert(variable.section('=', 0, 0), variable.section('=', 1));
    process.setProcessEnvironment(variables);
    QElapsedTimer clock;
    clock.start();
    process.start(JED_BINARY_DIR "/bin/jedtool", QProcess::splitCommand(command));
    process.waitForFinished();
    Result result;
    result.time = clock.elapsed();
    if (process.exitStatus() == QProcess::NormalExit)
        result.exitCode = process.exitCode();
    result.output = neutral(process.readAllStandardOutput());
    result.errors = neutral(process.readAllStandardError());
    return result;
}

// Without what differs between machines.
QByteArray TstJedtool::neutral(QByteArray text) const
{
    text.replace(QFile::encodeName(m_folder->path()), "<folder>");
    text.replace(JED_SOURCE_DIR, "<source>");
    return text.replace(qVersion(), "<version>");
}

QString TstJedtool::transcript(const QString& command)
{
    const Result result = run(command);
    QString text = QString("$ jedtool %1\n").arg(command) + QString::fromUtf8(result.output);
    if (!result.errors.isEmpty())
        text += "--- errors\n" + QString::fromUtf8(result.errors);
    return text + QString("--- exit code %1\n\n").arg(result.exitCode);
}

void TstJedtool::output_data()
{
    QTest::addColumn<QStringList>("commands");
    const QString search = "job new --type Search --resource HT720/HF-1 ";
    QTest::newRow("help") << QStringList{"--help",
                                         "--version",
                                         "resources --help",
                                         "resources list --help",
                                         "resources show --help",
                                         "resources check --help",
                                         "job --help",
                                         "job new --help",
                                         "job show --help",
                                         "job check --help",
                                         "rules --help",
                                         "rules check --help",
                                         "rules findings --help",
                                         "freq --help",
                                         "freq import --help",
                                         "freq show --help",
                                         "freq check --help"};
    QTest::newRow("usage") << QStringList{"",
                                          "resources",
                                          "resorces list",
                                          "resources lst",
                                          "nothing",
                                          "resources list extra",
                                          "resources show",
                                          "job check",
                                          "resources list --formt json",
                                          "resources list --format xml",
                                          "resources list --format html",
                                          "job show jobs/search.xml --format pdf",
                                          "resources list --installation",
                                          "resources list --installation nowhere",
                                          "resources list --installation jobs",
                                          "resources list --installation unreadable"};
    QTest::newRow("resources-list") << QStringList{"resources list",
                                                   "--installation outdated resources list --format json"};
    QTest::newRow("resources-list-faults")
        << QStringList{"resources list --installation outdated", "resources list --installation wrong",
                       "resources list --installation bare"};
    QTest::newRow("resources-show") << QStringList{
        "resources show HT720/HF-2", "resources show \"Signal recorder\"",
        "resources show MR-1 --format json", "resources show HF-1", "resources show HT720/HF1"};
    QTest::newRow("resources-check") << QStringList{"resources check", "resources check --installation wrong",
                                                    "resources check --installation outdated --format json",
                                                    "resources check --installation bare"};
    QTest::newRow("resources-check-files") << QStringList{
        "resources check wrong/TemplateFolder/duplicate-1.xml wrong/TemplateFolder/missing-parent.xml",
        "resources check outdated/TemplateFolder/no-version.xml",
        "resources check jobs/search.xml --installation bare", "resources check none.xml"};
    QTest::newRow("plugin") << QStringList{"plugin list --plugin-dir jobs", "plugin inspect search",
                                           "plugin inspect Production --format json", "plugin inspect serch"};
    QTest::newRow("rules-findings") << QStringList{"rules findings", "rules findings --markdown"};
    QTest::newRow("rules-check") << QStringList{
        "rules check scripts/many-at-once.js --objects scripts/objects.txt",
        "rules check scripts/many-at-once.js --objects scripts/objects.txt --format json",
        "rules check scripts/let-and-arrow.js",
        "rules check scripts/open-bracket.js",
        "rules check scripts/loop-without-an-end.js",
        "rules check scripts/object-mistyped.js --plugin search",
        "rules check none.js",
        "rules check scripts/many-at-once.js --objects none.txt",
        "rules check scripts/many-at-once.js --objects scripts/counter.js",
        "rules check scripts/many-at-once.js --plugin serch",
        "rules check scripts/many-at-once.js --plugin production"};
    const QString trace = "rules trace rules/nested.js --plugin search ";
    const QString hf = "--resource HT720/HF-1 ";
    QTest::newRow("rules-trace") << QStringList{
        trace + hf +
            "--set TunerSettings/Bandwidth=5k --set TunerSettings/Gain=3 --set TunerSettings/Bandwidth=5k",
        trace + "--set TunerSettings/Bandwidth=5k --format json",
        "rules trace rules/unreadable.js --plugin search --set TunerSettings/Bandwidth=5k"};
    QTest::newRow("rules-trace-refused")
        << QStringList{"rules trace --help",
                       "rules trace",
                       "rules trace none.js --plugin search --set TunerSettings/Bandwidth=5k",
                       "rules trace rules/nested.js --set TunerSettings/Bandwidth=5k",
                       "rules trace rules/nested.js --plugin serch --set TunerSettings/Bandwidth=5k",
                       "rules trace rules/nested.js --plugin dfscan --set TunerSettings/Bandwidth=5k",
                       trace,
                       trace + "--set TunerSettings/Bandwidth",
                       trace + "--set TunerSettings/Bandwith=5k",
                       trace + "--resource HT720/HF1 --set TunerSettings/Bandwidth=5k",
                       trace + hf + "--set NoSet/Field=1",
                       trace + hf + "--set TunerSettings/Bandwidth=wide"};
    QTest::newRow("job-plugin") << QStringList{
        search + "--set TunerSettings/CenterFrequency=8.4145M --plugin search --out plugin.xml",
        "job check plugin.xml", search + "--plugin nobody --out plugin.xml",
        search + "--set NoSet/Field=1 --plugin search --out plugin.xml",
        "job new --type Measurement --resource HT720/HF-1 --plugin search --out plugin.xml --format json"};
    QTest::newRow("job") << QStringList{
        "job new --type Search --name \"Morning watch\" --resource HT720/HF-1 "
        "--startup-mode Automatic --set TunerSettings/CenterFrequency=8.4145M "
        "--set TunerSettings/ChannelName=a=b --resource TRV9KScanSettings/VUHF-1 "
        "--set ScanSettings/Range.Detail.Threshold=15 --out job.xml",
        "job check job.xml", "job show job.xml", "job show job.xml --format json",
        "job check job.xml --format json"};
    QTest::newRow("job-new-losses") << QStringList{
        "job new --type Measurement --resource HT720/HF-2 --out lossy.xml",
        "job check lossy.xml",
        "job new --type Measurement --resource HT720/HF-2 --out lossy.xml --format json",
        search + "--set StorageSettings/Format=WAV --out storage.xml",
        "job check storage.xml --format json",
        "job new --type Production --resource HT720/VUHF-1 --set DSCSettings/HoldTime=5s --out dsc.xml",
        "job check dsc.xml"};
    QTest::newRow("job-new-refused") << QStringList{
        "job new",
        "job new --type Search --out job.xml",
        search,
        search + "--out nowhere/job.xml",
        "job new --type Serch --resource HT720/HF-1 --out job.xml",
        "job new --type Search --resource HT720/HF1 --out job.xml",
        "job new --type Search --set TunerSettings/Gain=1 --out job.xml",
        search + "--set TunerSettings/Gain --out job.xml",
        search + "--set TunerSetting/Gain=1 --out job.xml",
        search + "--set TunerSettings/CenterFrequency=156.8M --out job.xml",
        search + "--set TunerSettings/CenterFrequency=high --out job.xml",
        search + "--startup-mode Never --out job.xml",
        search + "--startup-mode Never --out job.xml --format json",
        "job new --type Surveillance --resource HT720/HF-2 --out job.xml",
        "job show job.xml"};
    QTest::newRow("job-scenario") << QStringList{
        search + "--set \"TunerSettings/ChannelName=Channel 16\" --out job.xml --print-scenario",
        "job new --scenario jobs/watch.scenario",
        "job check watch.xml",
        "job new --scenario jobs/mistyped.scenario",
        "job new --scenario jobs/missed.scenario",
        "job new --scenario none.scenario"};
    QTest::newRow("freq-import") << QStringList{
        "freq import lists/gqrx.csv --as gqrx --dry-run",
        "freq show list.xml",
        "freq import lists/gqrx.csv --as gqrx --out list.xml",
        "freq check list.xml",
        "freq show list.xml",
        "freq import lists/sdrsharp.xml --as sdrsharp --out list.xml",
        "freq check list.xml --format json",
        "freq import lists/sdrpp.json --as sdrpp --out list.xml",
        "freq check list.xml",
        "freq import lists/chirp.csv --as chirp --out list.xml --format json",
        "freq check list.xml",
        "freq show list.xml --format json"};
    QTest::newRow("freq-import-refused") << QStringList{
        "freq import lists/gqrx.csv",
        "freq import lists/gqrx.csv --as gqrz --dry-run",
        "freq import lists/gqrx.csv --as gqrx",
        "freq import lists/gqrx.csv --as gqrx --out nowhere/list.xml",
        "freq import lists/none.csv --as gqrx --dry-run",
        "freq import lists --as gqrx --dry-run",
        "freq import lists/chirp.csv --as sdrpp --dry-run",
        "freq import lists/gqrx-damaged-bytes.csv --as gqrx --out list.xml",
        "freq import lists/sdrsharp-damaged-cut-off.xml --as sdrsharp --out list.xml --format json",
        "freq check list.xml",
        "freq check lists/gqrx.csv",
        "freq check lists/store-damaged.xml",
        "freq check lists/store-mixed.xml --format json",
        "freq show lists/store-mixed.xml",
        "freq show jobs/search.xml"};
    QTest::newRow("job-check-faults") << QStringList{"job check jobs/unknown-receiver.xml",
                                                     "job check jobs/outside-the-schema.xml",
                                                     "job check jobs/cut-off.xml",
                                                     "job check jobs/no-number.xml",
                                                     "job check none.xml",
                                                     "job check .",
                                                     "job show jobs/no-number.xml"};
}

void TstJedtool::output()
{
    QFETCH(QStringList, commands);
    QString text;
    for (const QString& command : commands)
        text += transcript(command);
    const QString file = EXPECTED_FOLDER + QString(QTest::currentDataTag()) + ".txt";
    if (qEnvironmentVariableIsSet("JED_ACCEPT_OUTPUT")) {
        QVERIFY(QDir().mkpath(EXPECTED_FOLDER));
        QVERIFY(Session::saveFile(file, text.toUtf8(), nullptr));
    }
    QByteArray expected;
    QVERIFY2(Session::readFile(file, &expected, nullptr), qPrintable(file));
    const QStringList lines = text.split('\n');
    const QStringList expectedLines = QString::fromUtf8(expected).split('\n');
    for (int i = 0; i < std::max(lines.size(), expectedLines.size()); ++i)
        QCOMPARE(lines.value(i), expectedLines.value(i));
}

void TstJedtool::anOutdatedFileEndsInTime()
{
    for (const QString command : {"resources list", "resources check", "resources show NOV-1"}) {
        const Result result = run(command + " --installation outdated");
        QVERIFY2(result.time < MOST_TIME, qPrintable(QString::number(result.time)));
        QCOMPARE(result.exitCode, command.contains("show") ? 0 : 1);
    }
}

// The process may not write files of more than eight blocks, which looks to it like a full disk.
void TstJedtool::aFullDiskLeavesTheOldFile()
{
    QVERIFY(Session::saveFile(m_folder->filePath("job.xml"), "the old one", nullptr));
    QProcess shell;
    shell.setWorkingDirectory(m_folder->path());
    shell.start("sh",
                {"-c", "trap '' XFSZ; ulimit -f 8; exec " JED_BINARY_DIR "/bin/jedtool job new --type Search "
                       "--resource HT720/HF-1 --resource HT720/VUHF-1 --out job.xml"});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.exitCode(), 3);
    QCOMPARE(shell.readAllStandardOutput(), QByteArray());
    QCOMPARE(shell.readAllStandardError(),
             QByteArray(
                 "job.xml: error: cannot be written: not everything could be written, the disk may be full\n"
                 "    The file is as it was before.\n"));
    QByteArray content;
    QVERIFY(Session::readFile(m_folder->filePath("job.xml"), &content, nullptr));
    QCOMPARE(content, QByteArray("the old one"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{"job.xml"});
}

void TstJedtool::theEnvironmentNamesTheInstallation()
{
    const Result result = run("resources show NOV-1", {"JED_INSTALLATION=" + m_folder->filePath("outdated")});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.startsWith("HT720/NOV-1\n"));
    QVERIFY(run("resources show HT720/HF-1").output.startsWith("HT720/HF-1\n"));
    const Result option = run("resources show HF-1 --installation bare",
                              {"JED_INSTALLATION=" + m_folder->filePath("outdated")});
    QCOMPARE(option.exitCode, 2);
}

void TstJedtool::tracesAreShownWhenAskedFor()
{
    const QString command = "resources list --installation outdated";
    QVERIFY(!run(command).errors.contains("Reading Tuner Property File"));
    QVERIFY(run(command, {"QT_LOGGING_RULES=jobeditorve.trace=true"})
                .errors.contains("Reading Tuner Property File: no-version.xml"));
}

QTEST_GUILESS_MAIN(TstJedtool)
#include "tst_jedtool.moc"
