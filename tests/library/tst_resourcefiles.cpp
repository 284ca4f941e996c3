#include "resourcedescription.h"

#include <QDir>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextStream>
#include <quilappstartup/cfgcenter.h>
#include <support/ordinaryuser.h>
#include <support/testmain.h>
#include <zubase/errorhandler.h>

#include <sys/resource.h>
#include <sys/stat.h>

// Files are read once per process. So each case runs in a process of its own: this program with "--read", an
// installation and the steps to take, which prints what happens, one line for each event.

using JEDVEPLUGIN::ResourceDescription;

namespace {

using Descriptions = QList<std::shared_ptr<ResourceDescription>>;

const qint64 LARGEST_FILE = 64 * 1024 * 1024; // bytes
const qint64 MOST_MEMORY = 256 * 1024 * 1024; // bytes

void print(const QString& line)
{
    QTextStream(stdout) << QString(line).replace('\n', '~') << '\n';
}

void printDescriptions(const QString& what, const Descriptions& descriptions)
{
    QStringList names;
    for (const auto& description : descriptions)
        names.append(QStringLiteral("%1/%2").arg(description->getType(), description->getName()));
    print(QStringLiteral("%1: %2").arg(what, names.join(", ")));
}

/// Describes each message box that is shown and presses its button.
class BoxPresser : public QObject
{
protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* const box = qobject_cast<QMessageBox*>(object);
        if (box != nullptr && event->type() == QEvent::Show)
            QTimer::singleShot(50, box, [box] { answer(box); });
        return false;
    }

private:
    static void answer(QMessageBox* box)
    {
        const bool isTheOne = QApplication::activeModalWidget() == box;
        print(QStringLiteral("box: %1|%2").arg(box->windowTitle(), box->text()));
        print(QStringLiteral("box: icon %1 buttons %2 modal %3 parent %4")
                  .arg(QString::number(box->icon()), QString::number(box->standardButtons()),
                       QString::number(isTheOne && box->isModal()),
                       QString::number(box->parent() != nullptr)));
        // Qt makes the one button the default when none is named.
        print(QStringLiteral("box: default button %1").arg(box->standardButton(box->defaultButton())));
        printDescriptions("read meanwhile", ResourceDescription::readAllResourceFiles());
        box->button(QMessageBox::Ok)->click();
    }
};

void adapt(Descriptions descriptions)
{
    descriptions.first()->setType("Adapted");
    descriptions.removeLast();
    descriptions.append(nullptr);
}

/// One step of a reading process: "read", "adapt", "mask BITS", "move FROM TO".
void takeStep(const QStringList& words)
{
    const QString step = words.value(0);
    if (step == "read")
        printDescriptions("read", ResourceDescription::readAllResourceFiles());
    else if (step == "adapt")
        adapt(ResourceDescription::readAllResourceFiles());
    else if (step == "mask")
        ErrorHandler::Instance()->SetTraceMask(words.value(1).toUInt(nullptr, 16));
    else if (step == "move")
        print(QStringLiteral("moved: %1").arg(QFile::rename(words.value(1), words.value(2))));
    else if (step == "read-as-anybody") {
        const JedTest::OrdinaryUser user;
        printDescriptions("read", ResourceDescription::readAllResourceFiles());
    }
}

int readAsTold(int argc, char** argv)
{
    const auto application = JedTest::makeApplication(argc, argv);
    BoxPresser presser;
    application->installEventFilter(&presser);
    QLoggingCategory::setFilterRules("jobeditorve.trace=false");
    ErrorHandler::Instance()->AddTraceSink([](const TraceRecord& record) {
        print(
            QStringLiteral("%1:%2: %3").arg(record.sourceFile, QString::number(record.line), record.message));
    });
    CfgCenter::Instance()->SetInstallation(application->arguments().at(2));
    for (const QString& step : application->arguments().mid(3))
        takeStep(step.split(' '));
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    QTextStream(stderr) << usage.ru_maxrss;
    return 0;
}

QString tunerProperties(const QString& name, const QString& version = "1.2")
{
    return QStringLiteral(
               "<TunerProperties name='%1' type='HT720' baseresource='b' quantity='1' version='%2'/>\n")
        .arg(name, version);
}

/// The traces of one file: "reading", and another line unless it is 0.
QStringList traces(const QString& file, int line = 0)
{
    QStringList lines = {"resourcehandling:382: Reading Tuner Property File: " + file};
    if (line == 421)
        lines.append("resourcehandling:421: unable to open Tuner Property File: " + file);
    if (line == 416)
        lines.append("resourcehandling:416: no valid Tuner Property File: " + file);
    return lines;
}

QStringList boxLines(const QString& folder, const QString& files, const QString& readMeanwhile)
{
    return {"box: Tuner Properties Version Check|There are Tuner Properties in folder " + folder +
                " with an invalid version:~" + files +
                "~Try to export the Tuner Properties or check your configuration!",
            QStringLiteral("box: icon %1 buttons %2 modal 1 parent 0")
                .arg(QMessageBox::Warning)
                .arg(QMessageBox::Ok),
            QStringLiteral("box: default button %1").arg(QMessageBox::Ok),
            "read meanwhile: " + readMeanwhile};
}

} // namespace

class TstResourceFiles : public QObject
{
    Q_OBJECT
private slots:
    void init();

    void readsEveryFileInTheOrderOfTheNames();
    void leavesOutWhatIsNoVisibleFile();
    void readsTheFilesOfTheExampleInstallation();
    void readsTheFolderOfWrongFiles();
    void skipsWhatIsNotValid();
    void skipsWhatDoesNotOpen();
    void skipsWhatIsNoRegularFile();
    void skipsFilesAboveTheLargestSize();
    void hostileFilesCostLittleMemory();
    void decodesTheFilesAsUtf8();

    void oneWarningListsTheOutdatedFiles();
    void theSecondCallReadsNothingAndWarnsOfNothing();
    void anEmptyFolderIsReadOnceToo();
    void everyCallGivesACopyOfTheListWithTheSameDescriptions();
    void oneBitOfTheMaskDecidesOnTraces();

    void theFolder_data();
    void theFolder();
    void aMissingFolderIsEmpty_data();
    void aMissingFolderIsEmpty();
    void anInstallationThatIsNotThereIsEmpty();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    void write(const QString& name, const QByteArray& bytes);
    QStringList run(const QStringList& steps = {"read"});

    std::unique_ptr<QTemporaryDir> m_folder;
    qint64 m_mostMemory = 0; // bytes, of the last run
};

/// A new installation whose template folder is "Templates".
void TstResourceFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(QDir(path("")).mkpath("Templates"));
    write("installation.ini", "[JobManagement]\nTemplateFolder = Templates\n");
}

void TstResourceFiles::write(const QString& name, const QByteArray& bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

/// What a process prints that takes the steps with the installation; its current folder is the
/// installation's.
QStringList TstResourceFiles::run(const QStringList& steps)
{
    QProcess process;
    process.setWorkingDirectory(path(""));
    process.start(QCoreApplication::applicationFilePath(), QStringList({"--read", path("")}) + steps);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return {QStringLiteral("the process failed: ") + process.readAllStandardError()};
    m_mostMemory = process.readAllStandardError().trimmed().split('\n').last().toLongLong() * 1024;
    QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split('\n');
    lines.removeLast();
    return lines;
}

void TstResourceFiles::readsEveryFileInTheOrderOfTheNames()
{
    for (const char* const name : {"b.xml", "A.txt", "10.xml", "9", "_x.xml.bak", "C.XML"})
        write(QStringLiteral("Templates/%1").arg(name), tunerProperties(name).toUtf8());

    QCOMPARE(run(),
             traces("10.xml") + traces("9") + traces("_x.xml.bak") + traces("A.txt") + traces("b.xml") +
                 traces("C.XML") +
                 QStringList("read: HT720/10.xml, HT720/9, HT720/_x.xml.bak, HT720/A.txt, HT720/b.xml, "
                             "HT720/C.XML"));
}

void TstResourceFiles::leavesOutWhatIsNoVisibleFile()
{
    write("Templates/.hidden.xml", tunerProperties("hidden").toUtf8());
    write("Templates/folder.xml/inner.xml", tunerProperties("inner").toUtf8());
    write("outside.xml", tunerProperties("outside").toUtf8());
    QVERIFY(QFile::link("nowhere", path("Templates/broken.xml")));
    QVERIFY(QFile::link(path("outside.xml"), path("Templates/link.xml")));

    QCOMPARE(run(), traces("link.xml") + QStringList("read: HT720/outside"));
}

void TstResourceFiles::readsTheFilesOfTheExampleInstallation()
{
    const QDir example(JED_SOURCE_DIR "/installation/TemplateFolder");
    write("installation.ini", "[JobManagement]\nTemplateFolder = " + example.path().toUtf8());

    const QStringList lines = run();

    QStringList expected;
    for (const QString& file : example.entryList(QDir::Files))
        expected += traces(file);
    QCOMPARE(lines.mid(0, lines.size() - 1), expected);
    QCOMPARE(lines.last().count(','), example.entryList(QDir::Files).size() - 1);
}

void TstResourceFiles::readsTheFolderOfWrongFiles()
{
    const QDir wrong(JED_SOURCE_DIR "/tests/data/tuner");
    const QMap<QString, QString> taken = {
        {"cyclic-1.xml", "HT720/Ring, first"},
        {"cyclic-2.xml", "HT720/Ring, second"},
        {"cyclic-3.xml", "HT720/Ring, third"},
        {"cyclic-own-parent.xml", "HT720/Its own parent"},
        {"default-outside.xml", "HT720/Default outside"},
        {"duplicate-1.xml", "HT720/Duplicate, first"},
        {"duplicate-2.xml", "HT720/Duplicate, second"},
        {"missing-parent.xml", "HT720/Missing parent"},
        {"no-number.xml", "HT720/No number"},
        {"no-version.xml", "HT720/No version"},
        {"not-utf8.xml", "HT720/Not K\uFFFDste"},
        {"range-upside-down.xml", "HT720/Range upside down"},
        {"unknown-component.xml", "HT720/Unknown component"},
        {"unknown-field.xml", "HT720/Unknown field"},
        {"unknown-kind.xml", "HT720/Unknown kind"},
        {"unknown-type.xml", "/Unknown type"},
    };
    write("installation.ini", "[JobManagement]\nTemplateFolder = " + wrong.path().toUtf8());

    QStringList expected;
    for (const QString& file : wrong.entryList(QDir::Files))
        expected += traces(file, taken.contains(file) ? 0 : 416);
    const QString names = QStringList(taken.values()).join(", ");
    QCOMPARE(run(), expected + boxLines(wrong.path(), "outdated-number.xml~outdated-word.xml", names) +
                        QStringList("read: " + names));
}

void TstResourceFiles::skipsWhatIsNotValid()
{
    write("Templates/1.xml", tunerProperties("1").toUtf8());
    write("Templates/2.xml", "");
    write("Templates/3.xml", "<TunerProperties version='1.0'>");
    write("Templates/4.xml", "no markup");
    write("Templates/5.xml", tunerProperties("5", "").toUtf8());

    QCOMPARE(run(), traces("1.xml") + traces("2.xml", 416) + traces("3.xml", 416) + traces("4.xml", 416) +
                        traces("5.xml") + QStringList("read: HT720/1, HT720/5"));
}

void TstResourceFiles::skipsWhatDoesNotOpen()
{
    write("Templates/1.xml", tunerProperties("1").toUtf8());
    write("Templates/2.xml", tunerProperties("2").toUtf8());
    write("Templates/3.xml", tunerProperties("3").toUtf8());
    QVERIFY(QFile::setPermissions(path("Templates/2.xml"), QFile::Permissions()));
    // Everybody may look into the folder.
    QVERIFY(QFile::setPermissions(path(""), QFile::Permissions(0x7755)));

    QCOMPARE(run({"read-as-anybody"}), traces("1.xml") + traces("2.xml", 421) + traces("3.xml") +
                                           QStringList("read: HT720/1, HT720/3"));
}

void TstResourceFiles::skipsWhatIsNoRegularFile()
{
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    QCOMPARE(mkfifo(QFile::encodeName(path("Templates/pipe.xml")).constData(), 0600), 0);
    QVERIFY(QFile::link(path("pipe"), path("Templates/1.xml")));
    QVERIFY(QFile::link("/dev/zero", path("Templates/2.xml")));
    write("Templates/3.xml", tunerProperties("3").toUtf8());

    // A pipe itself is not listed, a link to one is.
    QCOMPARE(run(),
             traces("1.xml", 421) + traces("2.xml", 421) + traces("3.xml") + QStringList("read: HT720/3"));
}

void TstResourceFiles::skipsFilesAboveTheLargestSize()
{
    const QByteArray text = tunerProperties("padded").toUtf8();
    write("Templates/1.xml", text + QByteArray(int(LARGEST_FILE) - text.size(), ' '));
    write("Templates/2.xml", text + QByteArray(int(LARGEST_FILE) - text.size() + 1, ' '));

    QCOMPARE(run(), traces("1.xml") + traces("2.xml", 421) + QStringList("read: HT720/padded"));
}

void TstResourceFiles::hostileFilesCostLittleMemory()
{
    write("Templates/1.xml", "");
    QVERIFY(QFile::resize(path("Templates/1.xml"), LARGEST_FILE));
    write("Templates/2.xml", "");
    QVERIFY(QFile::resize(path("Templates/2.xml"), 100 * LARGEST_FILE));
    QVERIFY(QFile::link("/dev/zero", path("Templates/3.xml")));
    write("Templates/4.xml", "<a" + QByteArray(" b='c'").repeated(200000) + "/>");
    write("Templates/5.xml", "<TunerProperties>" + QByteArray("<a>").repeated(1000000));

    QCOMPARE(run(), traces("1.xml", 416) + traces("2.xml", 421) + traces("3.xml", 421) +
                        traces("4.xml", 416) + traces("5.xml", 416) + QStringList("read: "));
#if !defined(__SANITIZE_ADDRESS__)
    QVERIFY2(m_mostMemory < MOST_MEMORY, qPrintable(QString::number(m_mostMemory)));
#endif
}

void TstResourceFiles::decodesTheFilesAsUtf8()
{
    const QByteArray text = tunerProperties("K\u00fcste").toUtf8();
    write("Templates/1.xml", text);
    write("Templates/2.xml", "\xEF\xBB\xBF" + text);
    write("Templates/3.xml", "<?xml version='1.0' encoding='ISO-8859-1'?>\r\n" + text);
    write("Templates/4.xml", QByteArray(text).replace("K\xC3\xBC", "K\xFC"));
    write("Templates/5.xml", QByteArray(text).replace("<Tuner", "<T\xFCner"));
    write("Templates/6.xml", text + '\0');
    write("Templates/7.xml", QByteArray(text).replace("name=", "na\xFCme="));

    QCOMPARE(run(), traces("1.xml") + traces("2.xml") + traces("3.xml") + traces("4.xml") +
                        traces("5.xml", 416) + traces("6.xml", 416) + traces("7.xml", 416) +
                        QStringList(QString(
                            "read: HT720/K\u00fcste, HT720/K\u00fcste, HT720/K\u00fcste, HT720/K\uFFFDste")));
}

void TstResourceFiles::oneWarningListsTheOutdatedFiles()
{
    write("Templates/z.xml", tunerProperties("old", "1.0").toUtf8());
    write("Templates/B.xml", tunerProperties("no number", "abc").toUtf8());
    write("Templates/a.xml", tunerProperties("good", "1.1").toUtf8());
    write("Templates/c.xml", "<");
    write("Templates/%1.xml", tunerProperties("old", "0.9").toUtf8());

    QCOMPARE(run(), traces("%1.xml", 416) + traces("a.xml") + traces("B.xml", 416) + traces("c.xml", 416) +
                        traces("z.xml", 416) +
                        boxLines(path("Templates"), "%1.xml~B.xml~z.xml", "HT720/good") +
                        QStringList("read: HT720/good"));
}

void TstResourceFiles::theSecondCallReadsNothingAndWarnsOfNothing()
{
    write("Templates/a.xml", tunerProperties("a").toUtf8());
    write("Templates/b.xml", tunerProperties("b", "1.0").toUtf8());
    write("later.xml", tunerProperties("later").toUtf8());
    write("outdated.xml", tunerProperties("outdated", "1.0").toUtf8());

    QCOMPARE(run({"read", "move later.xml Templates/c.xml", "move outdated.xml Templates/d.xml",
                  "move Templates/a.xml a.xml", "read"}),
             traces("a.xml") + traces("b.xml", 416) + boxLines(path("Templates"), "b.xml", "HT720/a") +
                 QStringList({"read: HT720/a", "moved: 1", "moved: 1", "moved: 1", "read: HT720/a"}));
}

void TstResourceFiles::anEmptyFolderIsReadOnceToo()
{
    write("later.xml", tunerProperties("later").toUtf8());

    QCOMPARE(run({"read", "move later.xml Templates/a.xml", "read"}),
             QStringList({"read: ", "moved: 1", "read: "}));
}

void TstResourceFiles::everyCallGivesACopyOfTheListWithTheSameDescriptions()
{
    write("Templates/a.xml", tunerProperties("a").toUtf8());
    write("Templates/b.xml", tunerProperties("b").toUtf8());

    QCOMPARE(run({"adapt", "read"}),
             traces("a.xml") + traces("b.xml") + QStringList("read: Adapted/a, HT720/b"));
}

void TstResourceFiles::oneBitOfTheMaskDecidesOnTraces()
{
    write("Templates/a.xml", tunerProperties("a").toUtf8());
    write("Templates/b.xml", tunerProperties("b", "1.0").toUtf8());
    QVERIFY(QFile::link("/dev/zero", path("Templates/c.xml")));
    const QStringList rest = boxLines(path("Templates"), "b.xml", "HT720/a") + QStringList("read: HT720/a");

    QCOMPARE(run({"mask ffffffdf", "read"}), rest);
    QCOMPARE(run({"mask 20", "read"}), traces("a.xml") + traces("b.xml", 416) + traces("c.xml", 421) + rest);
}

void TstResourceFiles::theFolder_data()
{
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QString>("folder");

    QTest::newRow("key of JobManagement")
        << QByteArray("[Administration]\nVelmoDataDir = data\n[JobManagement]\nTemplateFolder = own\n")
        << "own";
    QTest::newRow("key of JobManagement with a slash at the end")
        << QByteArray("[JobManagement]\nTemplateFolder = own/\n") << "own";
    QTest::newRow("key of JobManagement in the way of Windows")
        << QByteArray("[JobManagement]\nTemplateFolder = deep\\below\\\n") << "deep/below";
    QTest::newRow("JobManagement without the key")
        << QByteArray("[Administration]\nVelmoDataDir = data\n[JobManagement]\nJobFolder = Jobs\n")
        << "data/TemplateFolder";
    QTest::newRow("no JobManagement")
        << QByteArray("[Administration]\nVelmoDataDir = data\n") << "data/TemplateFolder";
    QTest::newRow("key in the wrong section")
        << QByteArray("[Administration]\nVelmoDataDir = data\nTemplateFolder = own\n")
        << "data/TemplateFolder";
}

void TstResourceFiles::theFolder()
{
    QFETCH(QByteArray, configuration);
    QFETCH(QString, folder);
    write("installation.ini", configuration);
    for (const QString other : {"own", "deep/below", "data", "data/TemplateFolder", "TemplateFolder", "."})
        write(other + "/a.xml", tunerProperties("wrong").toUtf8());
    write(folder + "/a.xml", tunerProperties("right", "1.0").toUtf8());

    QCOMPARE(run(), traces("a.xml", 416) + boxLines(path(folder), "a.xml", "") + QStringList("read: "));
}

void TstResourceFiles::aMissingFolderIsEmpty_data()
{
    QTest::addColumn<QByteArray>("configuration");

    QTest::newRow("missing") << QByteArray("[JobManagement]\nTemplateFolder = nowhere\n");
    QTest::newRow("a file") << QByteArray("[JobManagement]\nTemplateFolder = a.xml\n");
    QTest::newRow("without files") << QByteArray("[JobManagement]\nTemplateFolder = Templates\n");
    QTest::newRow("empty text") << QByteArray("[JobManagement]\nTemplateFolder =\n");
    QTest::newRow("missing in the data folder") << QByteArray("[Administration]\nVelmoDataDir = nowhere\n");
}

void TstResourceFiles::aMissingFolderIsEmpty()
{
    QFETCH(QByteArray, configuration);
    write("installation.ini", configuration);
    write("a.xml", tunerProperties("of the current folder").toUtf8());

    QCOMPARE(run(), QStringList("read: "));
}

void TstResourceFiles::anInstallationThatIsNotThereIsEmpty()
{
    QVERIFY2(!QFileInfo::exists("/TemplateFolder"), "the folder that stands for no data folder is there");
    write("installation.ini", "");
    write("TemplateFolder/a.xml", tunerProperties("of the current folder").toUtf8());

    QCOMPARE(run(), QStringList("read: "));
}

int main(int argc, char** argv)
{
    if (argc > 2 && qstrcmp(argv[1], "--read") == 0)
        return readAsTold(argc, argv);
    return JedTest::run<TstResourceFiles>(argc, argv);
}
#include "tst_resourcefiles.moc"
