#include <quilappstartup/cfgcenter.h>
#include <support/tracerecorder.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

#include <sys/stat.h>

class TstCfgCenter : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void instanceIsOne();
    void withoutAnInstallation();
    void whichInstallation_data();
    void whichInstallation();
    void installationIsAbsolute();
    void adminIsOneForAllViews();
    void createNeedsASection();
    void variantNamesASectionOfItsOwn();
    void stringOrDefault();
    void keysInOrder();
    void paths_data();
    void paths();
    void syntax_data();
    void syntax();
    void wrongLinesAreTold();
    void unreadableFiles_data();
    void unreadableFiles();
    void aPipeDoesNotBlock();
    void problemsAreTracedOnce();
    void otherInstallationKeepsWhatWasGivenOut();

private:
    QString makeInstallation(const QByteArray& ini);

    std::unique_ptr<QTemporaryDir> m_folder;
    int m_installations = 0;
};

namespace {

CfgCenter& center()
{
    return *CfgCenter::Instance();
}

/// Asks the centre when all static objects of this program go, which it has to outlive.
class AtTheEnd
{
public:
    ~AtTheEnd()
    {
        if (CfgCenter::Instance() != m_center ||
            center().GetAdminCfg(2)->GetString("key", "default") != "default")
            std::_Exit(EXIT_FAILURE);
    }
    void arm() { m_center = CfgCenter::Instance(); }

private:
    CfgCenter* m_center = nullptr;
};

AtTheEnd s_atTheEnd; // Made before the centre, so it goes after everything static that the centre could be.

/// "section: key=value, …" for each of the sections.
QString describe(const QStringList& sections)
{
    QStringList lines;
    for (const QString& section : sections) {
        const Cfg* const cfg = center().CreateCfg(section, 4, "");
        QStringList entries;
        for (const QString& key : cfg == nullptr ? QStringList("null") : cfg->GetKeys())
            entries.append(cfg == nullptr ? key : QString("%1=%2").arg(key, cfg->GetString(key)));
        lines.append(QString("%1: %2").arg(section, entries.join(", ")));
    }
    return lines.join("; ");
}

} // namespace

void TstCfgCenter::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    qunsetenv(CfgCenter::ENVIRONMENT_VARIABLE);
    center().SetDefaultInstallation(QString());
    center().SetInstallation(QString());
    s_atTheEnd.arm();
}

/// A new folder with that file in it, in use from now on.
QString TstCfgCenter::makeInstallation(const QByteArray& ini)
{
    const QString path = m_folder->filePath(QString::number(++m_installations));
    if (!QDir().mkpath(path))
        qFatal("no folder for the installation");
    QFile file(QDir(path).filePath(CfgCenter::INI_FILE_NAME));
    if (!file.open(QIODevice::WriteOnly) || file.write(ini) != ini.size())
        qFatal("no file for the installation");
    center().SetInstallation(path);
    return path;
}

void TstCfgCenter::instanceIsOne()
{
    QVERIFY(CfgCenter::Instance() != nullptr);
    QCOMPARE(CfgCenter::Instance(), CfgCenter::Instance());
}

void TstCfgCenter::withoutAnInstallation()
{
    QCOMPARE(center().GetInstallation(), QString());
    QCOMPARE(center().GetProblems(), QStringList());
    Cfg* const admin = center().GetAdminCfg(2);
    QVERIFY(admin != nullptr);
    QCOMPARE(admin->GetKeys(), QStringList());
    QCOMPARE(admin->GetString("BasicInstallationDir", "/usr/bin"), QString("/usr/bin"));
    QVERIFY(center().CreateCfg("JobManagement", 4, "") == nullptr);
}

void TstCfgCenter::whichInstallation_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QByteArray>("environment");
    QTest::addColumn<QString>("byDefault");
    QTest::addColumn<QString>("used");
    QTest::newRow("given before all") << "/given" << QByteArray("/environment") << "/default"
                                      << "/given";
    QTest::newRow("environment before default") << "" << QByteArray("/environment") << "/default"
                                                << "/environment";
    QTest::newRow("empty environment") << "" << QByteArray("") << "/default"
                                       << "/default";
    QTest::newRow("given without default") << "/given" << QByteArray() << ""
                                           << "/given";
    QTest::newRow("environment alone") << "" << QByteArray("/environment") << ""
                                       << "/environment";
}

void TstCfgCenter::whichInstallation()
{
    QFETCH(QString, given);
    QFETCH(QByteArray, environment);
    QFETCH(QString, byDefault);
    QFETCH(QString, used);
    center().SetInstallation(given);
    center().SetDefaultInstallation(byDefault);
    if (!environment.isNull())
        qputenv(CfgCenter::ENVIRONMENT_VARIABLE, environment);
    QCOMPARE(center().GetInstallation(), used);
    const JedTest::TraceMask mask(0);
    QCOMPARE(center().GetProblems().size(), 1); // It is that folder that is looked into.
    QVERIFY(center().GetProblems().first().startsWith(used + "/installation.ini:"));
    qunsetenv(CfgCenter::ENVIRONMENT_VARIABLE);
}

void TstCfgCenter::installationIsAbsolute()
{
    center().SetInstallation("some/folder");
    QCOMPARE(center().GetInstallation(), QDir::current().absoluteFilePath("some/folder"));
}

void TstCfgCenter::adminIsOneForAllViews()
{
    makeInstallation("[Administration]\nSite=Coast\n");
    Cfg* const admin = center().GetAdminCfg(2);
    QVERIFY(admin != nullptr);
    QCOMPARE(admin->GetName(), QString("Administration"));
    QCOMPARE(admin->GetString("Site"), QString("Coast"));
    QCOMPARE(center().GetAdminCfg(2), admin);
    QCOMPARE(center().GetAdminCfg(4), admin);

    makeInstallation("[JobManagement]\nkey=1\n");
    QVERIFY(center().GetAdminCfg(2) != nullptr);
    QCOMPARE(center().GetAdminCfg(2)->GetKeys(), QStringList());
    QVERIFY(center().CreateCfg("Administration", 4, "") == nullptr); // Asking for it makes no section.
}

void TstCfgCenter::createNeedsASection()
{
    makeInstallation("[JobManagement]\nkey=1\n[Empty]\n");
    Cfg* const cfg = center().CreateCfg("JobManagement", 4, "");
    QVERIFY(cfg != nullptr);
    QCOMPARE(cfg->GetName(), QString("JobManagement"));
    QCOMPARE(center().CreateCfg("JobManagement", 4, QString()), cfg);
    QVERIFY(center().CreateCfg("Empty", 4, "") != nullptr);
    for (const char* name : {"", "jobmanagement", "JobManagement ", "key", "Administration"})
        QVERIFY2(center().CreateCfg(name, 4, "") == nullptr, name);
}

void TstCfgCenter::variantNamesASectionOfItsOwn()
{
    makeInstallation("[Map]\nkey=all\n[Map.harbour]\nkey=harbour\n");
    QCOMPARE(center().CreateCfg("Map", 4, "harbour")->GetString("key"), QString("harbour"));
    QCOMPARE(center().CreateCfg("Map", 4, "")->GetString("key"), QString("all"));
    QVERIFY(center().CreateCfg("Map", 4, "airport") == nullptr);
}

void TstCfgCenter::stringOrDefault()
{
    makeInstallation("[A]\nkey=text\nempty=\n");
    const Cfg* const cfg = center().CreateCfg("A", 4, "");
    QCOMPARE(cfg->GetString("key", "default"), QString("text"));
    QCOMPARE(cfg->GetString("empty", "default"), QString(""));
    QVERIFY(!cfg->GetString("empty", "default").isNull());
    QCOMPARE(cfg->GetString("missing", "default"), QString("default"));
    QCOMPARE(cfg->GetString("Key", "default"), QString("default"));
    QVERIFY(cfg->GetString("missing").isNull());
    QVERIFY(cfg->HasKey("empty"));
    QVERIFY(!cfg->HasKey("missing"));
}

void TstCfgCenter::keysInOrder()
{
    makeInstallation("[A]\nc=3\na=1\nb=2\n");
    QCOMPARE(center().CreateCfg("A", 4, "")->GetKeys(), (QStringList{"a", "b", "c"}));
}

void TstCfgCenter::paths_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("text"); // "~" is the installation's folder.
    QTest::newRow("relative") << "VelmoDataDir=data"
                              << "~/data";
    QTest::newRow("relative, deeper") << "TemplateFolder=data/./Template/"
                                      << "~/data/Template";
    QTest::newRow("the folder itself") << "BasicInstallationDir=."
                                       << "~";
    QTest::newRow("absolute") << "VelmoDataDir=/srv/data"
                              << "/srv/data";
    QTest::newRow("backslashes stay") << "TemplateFolder=data\\Template\\"
                                      << "~/data\\Template\\";
    QTest::newRow("Windows") << "VelmoDataDir=C:\\Sites\\Coast\\new"
                             << "C:\\Sites\\Coast\\new";
    QTest::newRow("Windows with slashes") << "VelmoDataDir=d:/Sites"
                                          << "d:/Sites";
    QTest::newRow("server") << "VelmoDataDir=\\\\server\\share"
                            << "\\\\server\\share";
    QTest::newRow("empty") << "TemplateFolder="
                           << "";
    QTest::newRow("no path") << "Site=data"
                             << "data";
    QTest::newRow("ending in the middle") << "DirName=data"
                                          << "data";
    QTest::newRow("ending in lower case") << "subdir=data"
                                          << "data";
}

void TstCfgCenter::paths()
{
    QFETCH(QString, line);
    QFETCH(QString, text);
    const QString folder =
        makeInstallation("[Administration]\n" + line.toUtf8() + "\n[Other]\n" + line.toUtf8());
    const QString key = line.section('=', 0, 0);
    text.replace('~', folder);
    QCOMPARE(center().GetAdminCfg(2)->GetString(key, "default"), text);
    QCOMPARE(center().CreateCfg("Other", 4, "")->GetString(key, "default"), text);
}

void TstCfgCenter::syntax_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<QString>("read"); // Sections A and B.
    QTest::newRow("empty") << QByteArray("") << "A: null; B: null";
    QTest::newRow("comments") << QByteArray("; [A]\n# [A]\n  ;x=1\n[B]\n#k=1\nk=2 ; no comment\n")
                              << "A: null; B: k=2 ; no comment";
    QTest::newRow("blanks") << QByteArray("\n \n [ A ] \n  k  =  some text  \n\n[B]")
                            << "A: k=some text; B: ";
    QTest::newRow("Windows line ends") << QByteArray("[A]\r\nk=1\r\n[B]\r\nk=2\r\n") << "A: k=1; B: k=2";
    QTest::newRow("no last line end") << QByteArray("[A]\nk=1") << "A: k=1; B: null";
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF[A]\nk=1\n") << "A: k=1; B: null";
    QTest::newRow("not ASCII") << QByteArray("[A]\nk=K\xC3\xBCste\n")
                               << QString::fromUtf8("A: k=Küste; B: null");
    QTest::newRow("quotes and backslashes")
        << QByteArray("[A]\nk=\"C:\\new\\table\" %1\n") << "A: k=\"C:\\new\\table\" %1; B: null";
    QTest::newRow("equal signs") << QByteArray("[A]\nk=a=b=\n") << "A: k=a=b=; B: null";
    QTest::newRow("later key") << QByteArray("[A]\nk=1\nk=2\n") << "A: k=2; B: null";
    QTest::newRow("continued section") << QByteArray("[A]\nk=1\n[B]\n[A]\nl=2\n") << "A: k=1, l=2; B: ";
    QTest::newRow("brackets in a value") << QByteArray("[A]\nk=[B]\n") << "A: k=[B]; B: null";
}

void TstCfgCenter::syntax()
{
    QFETCH(QByteArray, ini);
    QFETCH(QString, read);
    makeInstallation(ini);
    QCOMPARE(describe({"A", "B"}), read);
    QCOMPARE(center().GetProblems(), QStringList());
}

void TstCfgCenter::wrongLinesAreTold()
{
    JedTest::TraceRecorder recorder;
    makeInstallation("early=1\n[A]\nk=1\nno equal sign\n=no key\n[B\nl=\xFF\n");
    QCOMPARE(describe({"A", "B"}), QString::fromUtf8("A: k=1, l=\xEF\xBF\xBD; B: null"));
    const QString reason = ": neither [section] nor key=value in a section";
    QStringList expected;
    for (const char* line : {"1", "4", "5", "6"})
        expected.append("installation.ini:" + QString(line) + reason);
    QCOMPARE(center().GetProblems(), expected);
}

void TstCfgCenter::unreadableFiles_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no folder") << "no folder"
                               << "there is no such file";
    QTest::newRow("no file") << "no file"
                             << "there is no such file";
    QTest::newRow("folder") << "folder"
                            << "not a file of up to 1 MiB";
    QTest::newRow("too big") << "too big"
                             << "not a file of up to 1 MiB";
}

void TstCfgCenter::unreadableFiles()
{
    QFETCH(QString, kind);
    QFETCH(QString, reason);
    JedTest::TraceRecorder recorder;
    QByteArray big = "[Administration]\nkey=1\n";
    big.append(QByteArray(1024 * 1024 + 1 - big.size(), '\n'));
    const QString path = makeInstallation(big) + "/installation.ini";
    if (kind != "too big")
        QVERIFY(QFile::remove(path));
    if (kind == "folder")
        QVERIFY(QDir().mkpath(path));
    if (kind == "no folder")
        QVERIFY(QDir().rmdir(center().GetInstallation()));
    QCOMPARE(center().GetAdminCfg(2)->GetKeys(), QStringList());
    QCOMPARE(center().GetProblems(), QStringList(path + ": " + reason));
    QCOMPARE(recorder.take().size(), 1);

    makeInstallation(big.left(1024 * 1024)); // Just small enough.
    QCOMPARE(center().GetAdminCfg(2)->GetString("key"), QString("1"));
}

void TstCfgCenter::aPipeDoesNotBlock()
{
    const JedTest::TraceMask mask(0);
    const QString path = makeInstallation("") + "/installation.ini";
    QVERIFY(QFile::remove(path));
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QCOMPARE(center().GetProblems(), QStringList(path + ": not a file of up to 1 MiB"));
}

void TstCfgCenter::problemsAreTracedOnce()
{
    JedTest::TraceRecorder recorder;
    makeInstallation("nonsense\n");
    QCOMPARE(recorder.take(), QStringList()); // Nothing is read before it is asked for.
    center().GetAdminCfg(2);
    const QStringList traced = recorder.take();
    QCOMPARE(traced.size(), 1);
    QVERIFY(traced.first().startsWith("cfgcenter:"));
    QVERIFY(traced.first().endsWith(center().GetProblems().first()));
    center().CreateCfg("A", 4, "");
    QCOMPARE(recorder.take(), QStringList());

    const JedTest::TraceMask mask(ErrorHandler::TRACE_JOB_TYPE);
    makeInstallation("nonsense\n");
    QCOMPARE(center().GetProblems().size(), 1);
    QCOMPARE(recorder.take(), QStringList());
}

void TstCfgCenter::otherInstallationKeepsWhatWasGivenOut()
{
    makeInstallation("[Administration]\nSite=first\n[A]\nk=1\n");
    Cfg* const admin = center().GetAdminCfg(2);
    Cfg* const cfg = center().CreateCfg("A", 4, "");
    makeInstallation("[Administration]\nSite=second\n");
    QCOMPARE(center().GetAdminCfg(2)->GetString("Site"), QString("second"));
    QVERIFY(center().CreateCfg("A", 4, "") == nullptr);
    QVERIFY(center().GetAdminCfg(2) != admin);
    QCOMPARE(admin->GetString("Site"), QString("first"));
    QCOMPARE(cfg->GetString("k"), QString("1"));

    const QString folder = center().GetInstallation();
    center().SetInstallation(QString());
    center().SetDefaultInstallation(folder);
    QCOMPARE(center().GetAdminCfg(2)->GetString("Site"), QString("second"));
}

QTEST_GUILESS_MAIN(TstCfgCenter)
#include "tst_cfgcenter.moc"
