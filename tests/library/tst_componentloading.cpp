#include "jedcommonhelper.h"

#include <quilappstartup/cfgcenter.h>
#include <support/tracerecorder.h>
#include <velmogui/iguicomponent.h>

using JEDVEPLUGIN::JEDCommonHelper;
using VelmoGui::IGuiComponent;

class TstComponentLoading : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void firstRequestMakesTheComponent();
    void existingComponentIsReturnedUnlessForced();
    void forcedRequestNeverReturnsAnExistingOne();
    void namedInstanceIsNotTheComponent();
    void unloadedComponentIsGone();
    void unloadOfNothingIsIgnored();
    void failureIsNullAndTraced_data();
    void failureIsNullAndTraced();
    void failureIsTracedOnlyIfAskedFor();
    void componentWithoutGuiIsNotKept();

private:
    IGuiComponent* load(const QString& name, bool forceNewInstance);

    QList<IGuiComponent*> m_loaded;
};

namespace {

IDllInstance* existing(const QString& fileName)
{
    return CfgCenter::Instance()->GetDllInstanceByFileName(fileName, QString());
}

/// What the library traces itself; the platform tells its reasons in lines of its own.
QStringList ofTheLibrary(const QStringList& traces)
{
    return traces.filter(QRegularExpression("^jedcommonhelper:"));
}

} // namespace

IGuiComponent* TstComponentLoading::load(const QString& name, bool forceNewInstance)
{
    IGuiComponent* component = JEDCommonHelper::loadComponent(name, forceNewInstance);
    if (component && !m_loaded.contains(component))
        m_loaded << component;
    return component;
}

void TstComponentLoading::initTestCase()
{
    qunsetenv(CfgCenter::ENVIRONMENT_VARIABLE);
    CfgCenter::Instance()->AddComponentFolder(JED_TEST_COMPONENTS);
}

void TstComponentLoading::cleanup()
{
    for (IGuiComponent* component : qAsConst(m_loaded))
        JEDCommonHelper::unloadComponent(component);
    m_loaded.clear();
    QVERIFY(existing("GuiComponent.dll") == nullptr);
}

void TstComponentLoading::firstRequestMakesTheComponent()
{
    JedTest::TraceRecorder traces;
    QVERIFY(existing("GuiComponent.dll") == nullptr);
    IGuiComponent* component = load("GuiComponent", false);
    QVERIFY(component != nullptr);
    QVERIFY(component->GetIcon() == nullptr);
    QCOMPARE(existing("GuiComponent.dll"), static_cast<IDllInstance*>(component));
    QCOMPARE(traces.take(), QStringList());
}

void TstComponentLoading::existingComponentIsReturnedUnlessForced()
{
    IGuiComponent* component = load("GuiComponent", true);
    QVERIFY(component != nullptr);
    QCOMPARE(load("GuiComponent", false), component);
    QCOMPARE(load("GuiComponent", false), component);
}

void TstComponentLoading::forcedRequestNeverReturnsAnExistingOne()
{
    IGuiComponent* first = load("GuiComponent", true);
    IGuiComponent* second = load("GuiComponent", true);
    IGuiComponent* third = load("GuiComponent", true);
    QVERIFY(first && second && third);
    QVERIFY(first != second && first != third && second != third);
    QCOMPARE(load("GuiComponent", false), first);
}

void TstComponentLoading::namedInstanceIsNotTheComponent()
{
    IDllInstance* named =
        CfgCenter::Instance()->CreateDllInstanceByFileName("GuiComponent.dll", "named", false, false);
    IGuiComponent* component = load("GuiComponent", false);
    QVERIFY(component != nullptr);
    QVERIFY(component != named);
    QVERIFY(CfgCenter::Instance()->DestroyDllInstanceByPointer(named));
}

void TstComponentLoading::unloadedComponentIsGone()
{
    IGuiComponent* first = load("GuiComponent", true);
    IGuiComponent* second = load("GuiComponent", true);
    m_loaded.removeOne(first);
    IDllInstance* gone = first;
    JEDCommonHelper::unloadComponent(first);
    QCOMPARE(load("GuiComponent", false), second);
    QVERIFY(!CfgCenter::Instance()->DestroyDllInstanceByPointer(gone));
}

void TstComponentLoading::unloadOfNothingIsIgnored()
{
    JedTest::TraceRecorder traces;
    JEDCommonHelper::unloadComponent(nullptr);
    QCOMPARE(traces.take(), QStringList());
}

void TstComponentLoading::failureIsNullAndTraced_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "Absent";
    QTest::newRow("no name") << QString();
    QTest::newRow("a path") << "../components/GuiComponent";
    QTest::newRow("ending too much") << "GuiComponent.dll";
    QTest::newRow("a number is thrown") << "FailingGuiComponent";
    QTest::newRow("plug-in object throws") << "ThrowingComponent";
    QTest::newRow("no GUI") << "GoodComponent";
    QTest::newRow("marker in the name") << "Comp%1onent";
}

void TstComponentLoading::failureIsNullAndTraced()
{
    QFETCH(QString, name);
    for (const bool forceNewInstance : {false, true}) {
        JedTest::TraceRecorder traces;
        QVERIFY(JEDCommonHelper::loadComponent(name, forceNewInstance) == nullptr);
        QCOMPARE(ofTheLibrary(traces.take()),
                 QStringList("jedcommonhelper:69: Exception in JEDCommonHelper::loadComponent: " + name));
    }
}

void TstComponentLoading::failureIsTracedOnlyIfAskedFor()
{
    const JedTest::TraceMask mask(~0x20u);
    JedTest::TraceRecorder traces;
    QVERIFY(JEDCommonHelper::loadComponent("Absent", false) == nullptr);
    QCOMPARE(traces.take(), QStringList());
}

void TstComponentLoading::componentWithoutGuiIsNotKept()
{
    const JedTest::TraceMask mask(0);
    QVERIFY(JEDCommonHelper::loadComponent("GoodComponent", true) == nullptr);
    QVERIFY(existing("GoodComponent.dll") == nullptr);
    IDllInstance* stranger =
        CfgCenter::Instance()->CreateDllInstanceByFileName("GoodComponent.dll", QString(), false, false);
    QVERIFY(JEDCommonHelper::loadComponent("GoodComponent", false) == nullptr);
    QCOMPARE(existing("GoodComponent.dll"), stranger);
    QVERIFY(CfgCenter::Instance()->DestroyDllInstanceByPointer(stranger));
    QVERIFY(existing("GoodComponent.dll") == nullptr);
}

QTEST_GUILESS_MAIN(TstComponentLoading)
#include "tst_componentloading.moc"
