#include "jedsubsettingfactory.h"

#include <support/samplefactory.h>
#include <support/samplenode.h>
#include <support/tracerecorder.h>

#include <quilappstartup/cfgcenter.h>

#include <QDir>
#include <QMetaMethod>
#include <QTemporaryDir>

#include <type_traits>

using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::JEDSubSettingFactory;
using JEDVEPLUGIN::ResourceUse;

class TstJEDSubSettingFactory : public QObject
{
    Q_OBJECT
private slots:
    void freshFactory();
    void nameIsThatOfTheConstructor();
    void supportedTypesAreTheListOrThePlugins();
    void supportedJobTypesAreACopy();
    void foldersAreStored();
    void baseAsksNothingOfThePlugin();
    void readOnlyIsStoredThenPassedOnEachTime();
    void jobTypeIsStoredTracedAndTold_data();
    void jobTypeIsStoredTracedAndTold();
    void jobTypeIsToldEachTime();
    void jobTypeIsTracedOnlyIfAskedFor();
    void nameIsFilledInFirst();
    void signature_data();
    void signature();
    void signalsCanBeQueued();
    void manualLiesInTheInstallation();
    void manualLiesBesideTheApplicationOtherwise();
    void manualPathIsOneBelowTheFolder();
    void resourceUseIsOneOfNothing();
};

Q_DECLARE_METATYPE(QMetaMethod::MethodType)

namespace {

const quint32 ERRORS = 0x20;
const quint32 JOB_TYPES = 0x40;

/// The trace without its line, which is free.
QString withoutLine(const QString& trace)
{
    const int line = trace.indexOf(':') + 1;
    return trace.left(line - 1) + trace.mid(trace.indexOf(':', line));
}

} // namespace

void TstJEDSubSettingFactory::freshFactory()
{
    SampleFactory factory("Search");
    QVERIFY(factory.parent() == nullptr);
    QCOMPARE(int(factory.getCurrentJobType()), -1);
    QVERIFY(!factory.isReadOnly());
    QCOMPARE(factory.supportedTypes(false), QStringList());
    QVERIFY(factory.supportedJobTypes().isEmpty());
    QVERIFY(factory.rulesDir.isNull());
    QVERIFY(factory.resourceDir.isNull());
    QCOMPARE(factory.getMaxCount("SubJob"), 2147483647);
    QCOMPARE(factory.getMaxCount(QString()), 2147483647);
    QVERIFY(factory.isAppendable(nullptr, "SubJob"));
    SampleNode node("SubJob");
    QVERIFY(factory.isAppendable(&node, QString()));
    QVERIFY(factory.getSettingIcon("SubJob") == nullptr);
    QVERIFY(!factory.supportsImportProfile());
    QVERIFY(!factory.canImportProfile(nullptr));
    QVERIFY(!factory.canImportProfile(&node));
    QVERIFY(factory.importProfile("list.xml", &node).isEmpty());
    QVERIFY(factory.manual().isEmpty());
}

void TstJEDSubSettingFactory::nameIsThatOfTheConstructor()
{
    QCOMPARE(SampleFactory("Search").getName(), QString("Search"));
    QCOMPARE(SampleFactory(QString()).getName(), QString());
    static_assert(!std::is_convertible<QString, SampleFactory>::value, "a name is no factory");
    static_assert(std::is_abstract<JEDSubSettingFactory>::value, "plug-ins have to complete it");
}

void TstJEDSubSettingFactory::supportedTypesAreTheListOrThePlugins()
{
    SampleFactory factory("Search");
    factory.supportedTypeList = QStringList({"SubJob", "Scan"});
    factory.m_typesOf = QStringList("SubJob");
    QCOMPARE(factory.supportedTypes(false), QStringList({"SubJob", "Scan"}));
    QCOMPARE(&factory.supportedTypes(false), &factory.supportedTypeList);
    QVERIFY(factory.m_askedTypes.isEmpty());
    QCOMPARE(&factory.supportedTypes(true), &factory.m_typesOf);
    QCOMPARE(factory.m_askedTypes, QStringList(QString()));
}

void TstJEDSubSettingFactory::supportedJobTypesAreACopy()
{
    SampleFactory factory("Search");
    factory.jobTypes = {JEDVE::JOB_TYPE_SEARCH, JEDVE::JOB_TYPE_DF_SCAN};
    const QList<JEDVE::enJOB_TYPE> before = factory.supportedJobTypes();
    factory.jobTypes.clear();
    QCOMPARE(before, (QList<JEDVE::enJOB_TYPE>{JEDVE::JOB_TYPE_SEARCH, JEDVE::JOB_TYPE_DF_SCAN}));
    QVERIFY(factory.supportedJobTypes().isEmpty());
}

void TstJEDSubSettingFactory::foldersAreStored()
{
    SampleFactory factory("Search");
    factory.setRulesDir("/rules");
    QCOMPARE(factory.rulesDir, QString("/rules"));
    QVERIFY(factory.resourceDir.isNull());
    factory.setResourceDir("/resources");
    QCOMPARE(factory.resourceDir, QString("/resources"));
    QCOMPARE(factory.rulesDir, QString("/rules"));
}

void TstJEDSubSettingFactory::baseAsksNothingOfThePlugin()
{
    SampleFactory factory("Search");
    factory.initializeRuleEngine();
    factory.setRulesDir("/rules");
    factory.setResourceDir("/resources");
    factory.slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    factory.importProfile("list.xml", nullptr);
    QVERIFY(factory.m_calls.isEmpty());
}

void TstJEDSubSettingFactory::readOnlyIsStoredThenPassedOnEachTime()
{
    SampleFactory factory("Search");
    factory.setReadOnly(true);
    QVERIFY(factory.isReadOnly());
    factory.setReadOnly(true);
    factory.setReadOnly(false);
    QVERIFY(!factory.isReadOnly());
    QCOMPARE(factory.m_calls,
             QStringList({"changeReadOnly 1, is 1", "changeReadOnly 1, is 1", "changeReadOnly 0, is 0"}));
}

void TstJEDSubSettingFactory::jobTypeIsStoredTracedAndTold_data()
{
    QTest::addColumn<int>("jobType");
    QTest::addColumn<QString>("name");
    QTest::newRow("production") << 0 << "Production";
    QTest::newRow("search") << 1 << "Search";
    QTest::newRow("surveillance") << 2 << "Surveillance";
    QTest::newRow("DF scan") << 3 << "DFScan";
    QTest::newRow("measurement") << 4 << "Measurement";
    QTest::newRow("unknown") << -1 << "";
    QTest::newRow("none of them") << 5 << "";
}

void TstJEDSubSettingFactory::jobTypeIsStoredTracedAndTold()
{
    QFETCH(int, jobType);
    QFETCH(QString, name);
    const JedTest::TraceMask mask(JOB_TYPES);
    JedTest::TraceRecorder traces;
    SampleFactory factory("My plug-in");
    QStringList order;
    connect(&factory, &JEDSubSettingFactory::currentJobTypeChanged, this,
            [&order, &factory, &traces](JEDVE::enJOB_TYPE told) {
                order << QString("%1, is %2").arg(int(told)).arg(int(factory.getCurrentJobType()));
                order << traces.take();
            });
    QVERIFY(QMetaObject::invokeMethod(&factory, "slot_setCurrentJobType",
                                      Q_ARG(JEDVE::enJOB_TYPE, JEDVE::enJOB_TYPE(jobType))));
    QCOMPARE(int(factory.getCurrentJobType()), jobType);
    QCOMPARE(order.size(), 2);
    QCOMPARE(order.first(), QString("%1, is %1").arg(jobType));
    QCOMPARE(withoutLine(order.last()),
             QString("jedsubsettingfactory: My plug-in: slot_setCurrentJobType(%1)").arg(name));
}

void TstJEDSubSettingFactory::jobTypeIsToldEachTime()
{
    SampleFactory factory("Search");
    QSignalSpy told(&factory, &JEDSubSettingFactory::currentJobTypeChanged);
    factory.slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    factory.slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    QCOMPARE(told.size(), 2);
    QCOMPARE(told.at(1).at(0).value<JEDVE::enJOB_TYPE>(), JEDVE::JOB_TYPE_SEARCH);
}

void TstJEDSubSettingFactory::jobTypeIsTracedOnlyIfAskedFor()
{
    JedTest::TraceRecorder traces;
    SampleFactory factory("Search");
    factory.slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    const JedTest::TraceMask mask(~JOB_TYPES);
    factory.slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    QCOMPARE(traces.take(), QStringList());
    const JedTest::TraceMask both(JOB_TYPES | ERRORS);
    factory.slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    QCOMPARE(traces.take().size(), 1);
}

void TstJEDSubSettingFactory::nameIsFilledInFirst()
{
    const JedTest::TraceMask mask(JOB_TYPES);
    JedTest::TraceRecorder traces;
    SampleFactory factory("100 %2");
    factory.slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    QCOMPARE(withoutLine(traces.take().value(0)),
             QString("jedsubsettingfactory: 100 Search: slot_setCurrentJobType(Search)"));
}

void TstJEDSubSettingFactory::signature_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QMetaMethod::MethodType>("type");
    QTest::addColumn<QByteArray>("parameters");
    const auto row = [](const char* signature, QMetaMethod::MethodType type, const char* parameters) {
        QTest::newRow(signature) << QByteArray(signature) << type << QByteArray(parameters);
    };
    row("modifiedChanged(bool)", QMetaMethod::Signal, "bModified");
    row("stateChanged(JEDVEPLUGIN::ISubSetting*)", QMetaMethod::Signal, "setting");
    row("currentJobTypeChanged(JEDVE::enJOB_TYPE)", QMetaMethod::Signal, "jobType");
    row("deleteSubSettingRequest(JEDVEPLUGIN::ISubSetting*)", QMetaMethod::Signal, "setting");
    row("createSubSettingRequest(QString,JEDVEPLUGIN::ISubSetting*)", QMetaMethod::Signal, "type,setting");
    row("slot_setCurrentJobType(JEDVE::enJOB_TYPE)", QMetaMethod::Slot, "jobType");
}

void TstJEDSubSettingFactory::signature()
{
    QFETCH(QByteArray, signature);
    QFETCH(QMetaMethod::MethodType, type);
    QFETCH(QByteArray, parameters);
    const QMetaObject& meta = JEDSubSettingFactory::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("JEDVEPLUGIN::JEDSubSettingFactory"));
    const int index = meta.indexOfMethod(signature);
    QVERIFY(index >= meta.methodOffset());
    const QMetaMethod method = meta.method(index);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(method.methodType(), type);
    QCOMPARE(method.access(), QMetaMethod::Public);
    QCOMPARE(method.parameterNames().join(','), parameters);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 6);
}

void TstJEDSubSettingFactory::signalsCanBeQueued()
{
    SampleFactory sender("Search");
    SampleFactory receiver("Production");
    SampleNode node("SubJob");
    connect(&sender, SIGNAL(currentJobTypeChanged(JEDVE::enJOB_TYPE)), &receiver,
            SLOT(slot_setCurrentJobType(JEDVE::enJOB_TYPE)), Qt::QueuedConnection);
    connect(&sender, SIGNAL(stateChanged(JEDVEPLUGIN::ISubSetting*)), &receiver,
            SIGNAL(deleteSubSettingRequest(JEDVEPLUGIN::ISubSetting*)), Qt::QueuedConnection);
    QSignalSpy requested(&receiver, &JEDSubSettingFactory::deleteSubSettingRequest);
    sender.slot_setCurrentJobType(JEDVE::JOB_TYPE_MEASUREMENT);
    emit sender.stateChanged(&node);
    QCOMPARE(int(receiver.getCurrentJobType()), -1);
    QCoreApplication::processEvents();
    QCOMPARE(receiver.getCurrentJobType(), JEDVE::JOB_TYPE_MEASUREMENT);
    QCOMPARE(requested.size(), 1);
    QCOMPARE(requested.at(0).at(0).value<ISubSetting*>(), static_cast<ISubSetting*>(&node));
}

void TstJEDSubSettingFactory::manualLiesInTheInstallation()
{
    QTemporaryDir installation;
    QFile file(installation.filePath("installation.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Administration]\nBasicInstallationDir = station\n");
    file.close();
    CfgCenter::Instance()->SetInstallation(installation.path());
    const SampleFactory factory("Search");
    QCOMPARE(factory.defaultManualPath("search.pdf"),
             QDir(installation.path()).absoluteFilePath("station/Manuals/search.pdf"));
}

void TstJEDSubSettingFactory::manualLiesBesideTheApplicationOtherwise()
{
    QTemporaryDir installation;
    QFile file(installation.filePath("installation.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Administration]\nVelmoDataDir = .\n");
    file.close();
    CfgCenter::Instance()->SetInstallation(installation.path());
    const SampleFactory factory("Search");
    QCOMPARE(factory.defaultManualPath("search.pdf"),
             QCoreApplication::applicationDirPath() + "/Manuals/search.pdf");
}

void TstJEDSubSettingFactory::manualPathIsOneBelowTheFolder()
{
    CfgCenter::Instance()->SetInstallation(QString());
    const SampleFactory factory("Search");
    const QString folder = QCoreApplication::applicationDirPath() + "/Manuals/";
    QCOMPARE(factory.defaultManualPath(QString()), folder);
    QCOMPARE(factory.defaultManualPath("en/100%1.pdf"), folder + "en/100%1.pdf");
}

void TstJEDSubSettingFactory::resourceUseIsOneOfNothing()
{
    const ResourceUse use;
    QVERIFY(use.setting == nullptr);
    QVERIFY(use.type.isNull());
    QVERIFY(use.baseResource.isNull());
    QCOMPARE(use.count, 1);
}

QTEST_GUILESS_MAIN(TstJEDSubSettingFactory)
#include "tst_jedsubsettingfactory.moc"
