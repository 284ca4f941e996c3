#include "components/testcomponent.h"

#include <quilappstartup/cfgcenter.h>
#include <support/tracerecorder.h>
#include <zubase/zuexception.h>

#include <QDir>
#include <QTemporaryDir>

class TstComponents : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void foldersOfTheInstallationComeFirst();
    void emptyComponentFolderIsNone();
    void everyCallMakesANewInstance();
    void getFindsTheOldestOfThatName();
    void getLoadsNothing();
    void destroyedInstanceIsGone();
    void strangersAreNotDestroyed();
    void whatCannotBeUsedIsAnException_data();
    void whatCannotBeUsedIsAnException();
    void failureIsTracedOnlyIfAskedFor();
    void failureLeavesWhatThereIs();

private:
    TestComponent* make(const QString& fileName, const QString& instanceName = QString());

    QList<IDllInstance*> m_made;
    bool m_firstDeleted = false; // Told by components, which cleanup() deletes at the latest.
    bool m_secondDeleted = false;
};

namespace {

/// The reason of the exception, empty if there was none.
QString failureOf(const QString& fileName, const QString& instanceName)
{
    try {
        CfgCenter::Instance()->CreateDllInstanceByFileName(fileName, instanceName, false, false);
    } catch (const ZuException& failure) {
        if (failure.GetErrorClass() != "CfgCenter" ||
            failure.GetErrorMethod() != "CreateDllInstanceByFileName")
            return QString("thrown by %1").arg(failure.what());
        return failure.GetErrorReason();
    }
    return QString();
}

IDllInstance* get(const QString& fileName, const QString& instanceName = QString())
{
    return CfgCenter::Instance()->GetDllInstanceByFileName(fileName, instanceName);
}

void writeInstallation(const QTemporaryDir& folder, const QByteArray& lines)
{
    QFile file(folder.filePath("installation.ini"));
    if (!file.open(QIODevice::WriteOnly) || file.write("[Administration]\n" + lines) < 0)
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

} // namespace

TestComponent* TstComponents::make(const QString& fileName, const QString& instanceName)
{
    m_made << CfgCenter::Instance()->CreateDllInstanceByFileName(fileName, instanceName, false, false);
    // Not dynamic_cast: the class is compiled into test and library alike.
    return static_cast<TestComponent*>(m_made.last());
}

void TstComponents::initTestCase()
{
    qunsetenv(CfgCenter::ENVIRONMENT_VARIABLE);
    CfgCenter::Instance()->AddComponentFolder(JED_TEST_COMPONENTS);
}

void TstComponents::cleanup()
{
    for (IDllInstance* instance : qAsConst(m_made))
        CfgCenter::Instance()->DestroyDllInstanceByPointer(instance);
    m_made.clear();
    CfgCenter::Instance()->SetInstallation(QString());
}

void TstComponents::foldersOfTheInstallationComeFirst()
{
    CfgCenter* center = CfgCenter::Instance();
    QCOMPARE(center->GetComponentFolders(), QStringList(JED_TEST_COMPONENTS));
    QTemporaryDir installation;
    writeInstallation(installation, "ComponentFolder = parts/gui\n");
    center->SetInstallation(installation.path());
    center->AddComponentFolder(JED_TEST_COMPONENTS);
    center->AddComponentFolder(QString());
    QCOMPARE(center->GetComponentFolders(),
             QStringList({QDir(installation.path()).absoluteFilePath("parts/gui"), JED_TEST_COMPONENTS}));
    QVERIFY(QDir(installation.path()).mkpath("parts/gui"));
    QVERIFY(QFile::copy(JED_TEST_COMPONENTS "/libGoodComponent.so",
                        installation.filePath("parts/gui/libMoved.so")));
    QCOMPARE(make("Moved.dll", "from the installation")->name(), QString("from the installation"));
}

void TstComponents::emptyComponentFolderIsNone()
{
    QTemporaryDir installation;
    writeInstallation(installation, "ComponentFolder =\n");
    CfgCenter::Instance()->SetInstallation(installation.path());
    QCOMPARE(CfgCenter::Instance()->GetComponentFolders(), QStringList(JED_TEST_COMPONENTS));
}

void TstComponents::everyCallMakesANewInstance()
{
    TestComponent* first = make("GoodComponent.dll", "first");
    TestComponent* second = make("GoodComponent.dll", "second");
    TestComponent* other = make("OtherComponent.dll");
    QVERIFY(first != second);
    QVERIFY(first != other);
    QCOMPARE(first->name(), QString("first"));
    QCOMPARE(second->name(), QString("second"));
    QCOMPARE(other->name(), QString());
}

void TstComponents::getFindsTheOldestOfThatName()
{
    IDllInstance* named = make("GoodComponent.dll", "named");
    IDllInstance* oldest = make("GoodComponent.dll");
    make("GoodComponent.dll");
    QCOMPARE(get("GoodComponent.dll"), oldest);
    QCOMPARE(get("GoodComponent.dll", ""), oldest);
    QCOMPARE(get("GoodComponent.dll", "named"), named);
    QCOMPARE(get("libGoodComponent.so", "named"), named);
    QVERIFY(get("GoodComponent.dll", "Named") == nullptr);
    QVERIFY(get("OtherComponent.dll") == nullptr);
}

void TstComponents::getLoadsNothing()
{
    QVERIFY(get("GoodComponent.dll") == nullptr);
    QVERIFY(get("Absent.dll") == nullptr);
    QVERIFY(get("../components/GoodComponent.dll") == nullptr);
    QVERIFY(get(QString()) == nullptr);
}

void TstComponents::destroyedInstanceIsGone()
{
    TestComponent* first = make("GoodComponent.dll");
    TestComponent* second = make("GoodComponent.dll");
    first->tellDeletion(&m_firstDeleted);
    second->tellDeletion(&m_secondDeleted);
    IDllInstance* gone = first;
    QVERIFY(CfgCenter::Instance()->DestroyDllInstanceByPointer(gone));
    m_made.removeOne(gone);
    QVERIFY(m_firstDeleted);
    QVERIFY(!m_secondDeleted);
    QCOMPARE(get("GoodComponent.dll"), second);
    QVERIFY(!CfgCenter::Instance()->DestroyDllInstanceByPointer(gone));
}

void TstComponents::strangersAreNotDestroyed()
{
    TestComponent stranger("stranger");
    QVERIFY(!CfgCenter::Instance()->DestroyDllInstanceByPointer(nullptr));
    QVERIFY(!CfgCenter::Instance()->DestroyDllInstanceByPointer(&stranger));
    QCOMPARE(stranger.name(), QString("stranger"));
}

void TstComponents::whatCannotBeUsedIsAnException_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("instanceName");
    QTest::addColumn<QString>("reason");
    const QString folder = JED_TEST_COMPONENTS;
    QTest::newRow("missing") << "Absent.dll"
                             << ""
                             << "libAbsent.so: there is no such component in " + folder;
    QTest::newRow("a path") << "../x.dll"
                            << ""
                            << "\"../x.dll\" is not the plain file name of a component.";
    QTest::newRow("older") << "OlderComponent.dll"
                           << "" << folder + "/libOlderComponent.so: built for interface version 0, but";
    QTest::newRow("missing symbol") << "MissingSymbolComponent.dll"
                                    << ""
                                    << folder + "/libMissingSymbolComponent.so: the system cannot load it";
    QTest::newRow("no factory") << "NoFactoryComponent.dll"
                                << ""
                                << folder +
                                       "/libNoFactoryComponent.so: its plug-in object makes no component. "
                                       "Tell its author: the object has to implement "
                                       "\"jobeditorve.component\" and name it in Q_INTERFACES.";
    QTest::newRow("plug-in object throws") << "ThrowingComponent.dll"
                                           << ""
                                           << folder + "/libThrowingComponent.so: it gave up while making a "
                                                       "component: no licence.";
    const QString good = folder + "/libGoodComponent.so: ";
    QTest::newRow("factory gives a reason")
        << "GoodComponent.dll"
        << "throw reason" << good + "it gave up while making a component: no such antenna.";
    QTest::newRow("factory throws") << "GoodComponent.dll"
                                    << "throw standard"
                                    << good + "it gave up while making a component: no memory on the card.";
    QTest::newRow("factory throws a number") << "GoodComponent.dll"
                                             << "throw number"
                                             << good + "it gave up while making a component: an unknown "
                                                       "exception.";
    QTest::newRow("factory gives nothing")
        << "GoodComponent.dll"
        << "nothing" << good + "it made no component and gave no reason. Tell its author.";
}

void TstComponents::whatCannotBeUsedIsAnException()
{
    QFETCH(QString, fileName);
    QFETCH(QString, instanceName);
    QFETCH(QString, reason);
    JedTest::TraceRecorder traces;
    const QString told = failureOf(fileName, instanceName);
    QVERIFY2(told.startsWith(reason), qPrintable(told));
    const QStringList traced = traces.take();
    QCOMPARE(traced.size(), 1);
    QVERIFY2(traced.first().startsWith("cfgcenter:"), qPrintable(traced.first()));
    QVERIFY2(traced.first().endsWith(": " + told), qPrintable(traced.first()));
    QVERIFY(get(fileName, instanceName) == nullptr);
}

void TstComponents::failureIsTracedOnlyIfAskedFor()
{
    const JedTest::TraceMask mask(0);
    JedTest::TraceRecorder traces;
    QVERIFY(!failureOf("Absent.dll", QString()).isEmpty());
    QCOMPARE(traces.take(), QStringList());
}

void TstComponents::failureLeavesWhatThereIs()
{
    const JedTest::TraceMask mask(0);
    IDllInstance* before = make("GoodComponent.dll");
    QVERIFY(!failureOf("GoodComponent.dll", "throw standard").isEmpty());
    QCOMPARE(get("GoodComponent.dll"), before);
    QVERIFY(make("GoodComponent.dll") != before);
}

QTEST_GUILESS_MAIN(TstComponents)
#include "tst_components.moc"
