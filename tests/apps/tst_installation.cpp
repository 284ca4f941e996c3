#include <quilappstartup/cfgcenter.h>
#include <quilappstartup/translationcenter.h>
#include <session/installation.h>
#include <session/savefile.h>

using Session::chooseInstallation;
using Session::templateFolder;

class TstInstallation : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { qunsetenv("JED_INSTALLATION"); }
    void theOptionComesFirst();
    void aFolderWithoutConfigurationIsRefused();
    void aMissingFolderIsRefused();
    void aBadLineIsNamed();
    void languageOfTheInstallation();
    void templateFolderOf_data();
    void templateFolderOf();

private:
    QString makeInstallation(const QString& name, const QByteArray& configuration = "[Administration]\n");
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_error;
};

void TstInstallation::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_error.clear();
}

QString TstInstallation::makeInstallation(const QString& name, const QByteArray& configuration)
{
    QDir(m_folder->path()).mkdir(name);
    Session::saveFile(m_folder->filePath(name + "/installation.ini"), configuration, nullptr);
    return m_folder->filePath(name);
}

void TstInstallation::theOptionComesFirst()
{
    const QString option = makeInstallation("option");
    const QString environment = makeInstallation("environment");
    const QString example = makeInstallation("example");
    QVERIFY(chooseInstallation("", example, &m_error));
    QCOMPARE(CfgCenter::Instance()->GetInstallation(), example);
    qputenv("JED_INSTALLATION", environment.toUtf8());
    QVERIFY(chooseInstallation("", example, &m_error));
    QCOMPARE(CfgCenter::Instance()->GetInstallation(), environment);
    QVERIFY(chooseInstallation(option, example, &m_error));
    QCOMPARE(CfgCenter::Instance()->GetInstallation(), option);
    QVERIFY(m_error.isEmpty());
}

void TstInstallation::aFolderWithoutConfigurationIsRefused()
{
    QVERIFY(!chooseInstallation(m_folder->path(), "", &m_error));
    QCOMPARE(m_error, QString("%1 is no installation: it has no installation.ini").arg(m_folder->path()));
}

void TstInstallation::aMissingFolderIsRefused()
{
    QVERIFY(!chooseInstallation(m_folder->filePath("none"), "", &m_error));
    QCOMPARE(m_error, QString("the installation folder %1 does not exist").arg(m_folder->filePath("none")));
}

void TstInstallation::aBadLineIsNamed()
{
    const QString folder = makeInstallation("bad", "[Administration]\nno key here\n");
    QVERIFY(!chooseInstallation(folder, "", &m_error));
    QVERIFY2(m_error.contains("installation.ini:2"), qPrintable(m_error));
}

void TstInstallation::languageOfTheInstallation()
{
    TranslationCenter::Instance()->AddFolder(JED_BINARY_DIR "/lib/jobeditorve/translations");
    QVERIFY(
        chooseInstallation(makeInstallation("german", "[Administration]\nLanguage = de\n"), "", &m_error));
    QCOMPARE(QCoreApplication::translate("JobXml", "Frequency"), QString("Frequency"));
    QVERIFY2(Session::useLanguage(&m_error), qPrintable(m_error));
    QCOMPARE(QCoreApplication::translate("JobXml", "Frequency"), QString("Frequenz"));
    QVERIFY(chooseInstallation(makeInstallation("english"), "", &m_error));
    QVERIFY(Session::useLanguage(&m_error));
    QCOMPARE(QCoreApplication::translate("JobXml", "Frequency"), QString("Frequency"));
    const QString unknown = makeInstallation("unknown", "[Administration]\nLanguage = xx\n");
    QVERIFY(chooseInstallation(unknown, "", &m_error));
    QVERIFY(!Session::useLanguage(&m_error));
    QCOMPARE(m_error, QString("there is no translation into xx, the language of the installation"));
    TranslationCenter::Instance()->SetLanguage(QString());
}

void TstInstallation::templateFolderOf_data()
{
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QString>("folder"); // Below the installation's folder, unless it is absolute.
    QTest::newRow("from the data folder")
        << QByteArray("[Administration]\nVelmoDataDir=data\n") << "data/TemplateFolder";
    QTest::newRow("named") << QByteArray("[Administration]\nVelmoDataDir=data\n"
                                         "[JobManagement]\nTemplateFolder=receivers\n")
                           << "receivers";
    QTest::newRow("section without the key")
        << QByteArray("[Administration]\nVelmoDataDir=data\n[JobManagement]\n") << "data/TemplateFolder";
    QTest::newRow("empty") << QByteArray("[JobManagement]\nTemplateFolder=\n") << "";
    QTest::newRow("absolute") << QByteArray("[JobManagement]\nTemplateFolder=/srv/receivers\n")
                              << "/srv/receivers";
}

void TstInstallation::templateFolderOf()
{
    QFETCH(QByteArray, configuration);
    QFETCH(QString, folder);
    const QString installation = makeInstallation("one", configuration);
    QVERIFY(chooseInstallation(installation, "", &m_error));
    if (!folder.isEmpty() && !folder.startsWith('/'))
        folder = installation + '/' + folder;
    QCOMPARE(templateFolder(), folder);
}

QTEST_GUILESS_MAIN(TstInstallation)
#include "tst_installation.moc"
