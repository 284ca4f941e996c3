#include "loadedplugin.h"

#include <kit/detectorchoice.h>
#include <kit/kitfactory.h>
#include <kit/mimetext.h>
#include <kit/subjobheader.h>
#include <support/testmain.h>
#include <values/node.h>
#include <values/valuenumeric.h>

#include <QDir>

using JedTest::subjobOn;
using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::Problem;
using PluginKit::DetectorChoice;
using PluginKit::HeldSet;
using PluginKit::KitFactory;
using PluginKit::NodeText;
using PluginKit::PluginDeclaration;
using PluginKit::SettingType;

/// The kit with declarations that the plug-ins of this tree do not have.
class TstKitFactory : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { JedTest::useStation(); }
    void theDeclarationIsWhatTheFactoryTells();
    void strangeSubjobIsRefusedWithTheReason_data();
    void strangeSubjobIsRefusedWithTheReason();
    void settingsLieBelowSettings();
    void typesMayBeTheirOwnChildren();
    void severalOfOneType();
    void whatAJobFileCannotHoldIsTold();
    void withoutANodeInTheValueTree();
    void pluginsFindProblemsOfTheirOwn();
    void heldSetsOutliveTheirValues();
    void heldSetsTellOncePerText();
    void headersLeaveOutTheParameterSets();
    void headersTouchOnlyWhatDiffers();
    void startupModes_data();
    void startupModes();
    void detectors_data();
    void detectors();
    void mimeTextsAreReadAsTheyWereWritten();
};

namespace {
SettingType typeOf(const QString& name, const QStringList& sets, const QStringList& children = {})
{
    SettingType type;
    type.type = name;
    type.displayName = name.toUpper();
    type.parameterSets = sets;
    type.children = children;
    return type;
}

PluginDeclaration declarationOf(const QList<SettingType>& types)
{
    PluginDeclaration declaration;
    declaration.name = "Kit";
    declaration.description = "For tests.";
    declaration.manual = "kit.html";
    declaration.jobTypes = {JEDVE::JOB_TYPE_SEARCH, JEDVE::JOB_TYPE_DF_SCAN};
    declaration.resourceTypes = QStringList("HT720");
    declaration.types = types;
    return declaration;
}

template <class Factory = KitFactory>
std::unique_ptr<Factory> factoryOf(const QList<SettingType>& types, const QString& path = "/Test/")
{
    auto factory = std::make_unique<Factory>(declarationOf(types));
    JedTest::TraceRecorder traces;
    factory->initialize(path, nullptr);
    return factory;
}

QStringList typesOf(ISubSetting* node)
{
    QStringList result(node->getSettingType());
    for (int i = 0; i < node->childCount(); ++i) {
        for (const QString& type : typesOf(node->child(i)))
            result.append(">" + type);
    }
    return result;
}

/// Finds something wrong with every setting.
class FussyFactory : public KitFactory
{
public:
    using KitFactory::KitFactory;
    QList<Problem> findProblems(const PluginKit::SettingNode& node) const override
    {
        return {{Problem::SEVERITY_NOTE, QString(), QString(), node.getSettingType() + " is there"}};
    }
};
} // namespace

void TstKitFactory::theDeclarationIsWhatTheFactoryTells()
{
    SettingType several = typeOf("Tuner", {"TunerSettings"});
    several.maxCount = 4;
    const auto factory = factoryOf({typeOf("SubJob", {}, {"Tuner"}), several});
    QCOMPARE(factory->getName(), QString("Kit"));
    QCOMPARE(factory->description(), QString("For tests."));
    QCOMPARE(factory->supportedTypes(false), QStringList({"SubJob", "Tuner"}));
    QCOMPARE(factory->supportedTypesOf("SubJob"), QStringList("Tuner"));
    QVERIFY(factory->supportedTypesOf("Tuner").isEmpty());
    QCOMPARE(factory->settingDisplayName("Tuner"), QString("TUNER"));
    QCOMPARE(factory->getMaxCount("Tuner"), 4);
    QCOMPARE(factory->supportedJobTypes(), factory->declared().jobTypes);
    QCOMPARE(QDir::cleanPath(factory->manual()),
             QDir::cleanPath(QStringLiteral(JED_SOURCE_DIR "/installation/Manuals/kit.html")));
    QVERIFY(!factory->receivers().isEmpty());
    QVERIFY(factory->receiver("HF-1", "HT720"));
    QVERIFY(!factory->receiver("HF-1", "TRV9KScanSettings"));
    QVERIFY(!factory->getSettingIcon("Tuner"));
}

void TstKitFactory::strangeSubjobIsRefusedWithTheReason_data()
{
    QTest::addColumn<QString>("receiver");
    QTest::addColumn<int>("jobType");
    QTest::addColumn<QString>("reason");
    QTest::newRow("receiver") << "DirectionFinder" << int(JEDVE::JOB_TYPE_SEARCH)
                              << "uses receivers of type HT720 only";
    QTest::newRow("job") << "HT720" << int(JEDVE::JOB_TYPE_PRODUCTION) << "is not for jobs of this type";
}

void TstKitFactory::strangeSubjobIsRefusedWithTheReason()
{
    QFETCH(QString, receiver);
    QFETCH(int, jobType);
    QFETCH(QString, reason);
    const auto factory = factoryOf({typeOf("SubJob", {})});
    factory->slot_setCurrentJobType(static_cast<JEDVE::enJOB_TYPE>(jobType));
    QList<Problem> problems;
    QVERIFY(!factory->readSubjob(subjobOn(receiver, "HF-1"), &problems));
    QVERIFY(!factory->readSubjob(subjobOn(receiver, "HF-1"), nullptr));
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems[0].text, reason);
    QVERIFY(factory->topLevelSettings().isEmpty());
}

void TstKitFactory::settingsLieBelowSettings()
{
    const auto factory =
        factoryOf({typeOf("SubJob", {"TunerSettings"}, {"Group", "Fft"}), typeOf("Group", {}, {"Dem"}),
                   typeOf("Dem", {"ADemSettings"}), typeOf("Fft", {"FFTSettings"})});
    ISubSetting* const node = factory->readSubjob(subjobOn("HT720", "HF-1"), nullptr);
    QCOMPARE(typesOf(node), QStringList("SubJob"));
    ISubSetting* const group = factory->createSubSetting("Group", node);
    QVERIFY(group && group->parameterSetNames().isEmpty() && !group->getWidget());
    QVERIFY(group->isDropEnabled());
    QVERIFY(!factory->createSubSetting("Dem", node));
    ISubSetting* const dem = factory->createSubSetting("Dem", group);
    QVERIFY(dem);
    JobXml::Subjob written;
    QVERIFY(factory->writeSubjob(node, written, nullptr));
    QVERIFY(written.GetSettings().IsAudio_SettingsSet());
    const QStringList expected({"SubJob", ">Group", ">>Dem"});
    QCOMPARE(typesOf(factory->readSubjob(written, nullptr)), expected);
    QCOMPARE(typesOf(factory->duplicateSubSetting(node)), expected);
    QVERIFY(factory->pasteMimeText(group->getMimeText(1),
                                   factory->readSubjob(subjobOn("HT720", "HF-2"), nullptr)));
    QVERIFY(factory->deleteSubSetting(group));
    QVERIFY(factory->writeSubjob(node, written, nullptr));
    QVERIFY(!written.GetSettings().IsAudio_SettingsSet());
    // One of the sub-job's own sets that it does not hold is not in the job file.
    QVERIFY(!written.GetSettings().IsFFM_SettingsSet());
}

void TstKitFactory::typesMayBeTheirOwnChildren()
{
    const auto factory =
        factoryOf({typeOf("SubJob", {}, {"Ring"}), typeOf("Ring", {"TunerSettings"}, {"Ring"})});
    const JobXml::Subjob subjob = JedTest::exampleJob("search").GetSubjob().at(1);
    ISubSetting* const node = factory->readSubjob(subjob, nullptr);
    QCOMPARE(typesOf(node), QStringList({"SubJob", ">Ring"}));
    JobXml::Subjob written = subjob;
    QVERIFY(factory->writeSubjob(node, written, nullptr));
    QCOMPARE(written.GetXmlString(false), subjob.GetXmlString(false));
}

void TstKitFactory::severalOfOneType()
{
    SettingType note = typeOf("Note", {});
    note.maxCount = 2;
    const auto factory = factoryOf({typeOf("SubJob", {}, {"Note"}), note});
    ISubSetting* const node = factory->readSubjob(subjobOn("HT720", "HF-1"), nullptr);
    ISubSetting* const first = factory->createSubSetting("Note", node);
    QVERIFY(factory->duplicateSubSetting(first));
    QVERIFY(!factory->createSubSetting("Note", node));
    QVERIFY(!factory->duplicateSubSetting(first));
    QCOMPARE(node->typeCount("Note"), 2);
}

void TstKitFactory::whatAJobFileCannotHoldIsTold()
{
    const auto factory =
        factoryOf({typeOf("SubJob", {}, {"Activity"}), typeOf("Activity", {"ActivityDetectionSettings"})});
    ISubSetting* const node = factory->readSubjob(subjobOn("HT720", "HF-2"), nullptr);
    QVERIFY(factory->createSubSetting("Activity", node));
    JobXml::Subjob written;
    QList<Problem> problems;
    QVERIFY(factory->writeSubjob(node, written, &problems));
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.at(0).severity, Problem::SEVERITY_WARNING);
    QCOMPARE(problems.at(0).parameterSet, QString("ActivityDetectionSettings"));
    QCOMPARE(problems.at(0).text, QString("ActivityDetectionSettings is lost: a job file cannot hold it"));
    QVERIFY(factory->writeSubjob(node, written, nullptr));
}

void TstKitFactory::withoutANodeInTheValueTree()
{
    const auto factory = factoryOf({typeOf("SubJob", {"TunerSettings"})}, "no//path/");
    QVERIFY(!factory->valueTreeNode());
    JobXml::Subjob subjob = subjobOn("HT720", "HF-1");
    subjob.GetSettings().GetFFM_Settings().SetCenterFrequency(5000000);
    ISubSetting* const node = factory->readSubjob(subjob, nullptr);
    QVERIFY(node->parameterSetText("TunerSettings").contains("<CenterFrequency>5000000<"));
    QVERIFY(node->getWidget());
}

void TstKitFactory::pluginsFindProblemsOfTheirOwn()
{
    const auto factory =
        factoryOf<FussyFactory>({typeOf("SubJob", {}, {"Tuner"}), typeOf("Tuner", {"TunerSettings"})});
    ISubSetting* const node = factory->readSubjob(subjobOn("HT720", "HF-1"), nullptr);
    ISubSetting* const tuner = factory->createSubSetting("Tuner", node);
    QCOMPARE(tuner->problems().size(), 1);
    QCOMPARE(tuner->getToolTip(), QString("TUNER\nTuner is there"));
    JobXml::Subjob written;
    QVERIFY(factory->writeSubjob(node, written, nullptr));
    QList<Problem> problems;
    QVERIFY(factory->readSubjob(written, &problems));
    QCOMPARE(problems.size(), 2);
}

void TstKitFactory::heldSetsOutliveTheirValues()
{
    auto values = std::make_unique<Node>();
    values->SetName("TunerSettings");
    auto* const bandwidth = new NumericInt64;
    bandwidth->SetName("Bandwidth");
    values->AddChild(bandwidth);
    int changes = 0;
    HeldSet set("TunerSettings", values.get(), [&changes] { ++changes; });
    bandwidth->SetValue(5);
    QCOMPARE(changes, 1);
    values.reset();
    QCOMPARE(changes, 1);
    QVERIFY(!set.values());
    QVERIFY(set.setText("<FFM_Settings/>"));
    QCOMPARE(set.text(), QString("<FFM_Settings/>"));
    QVERIFY(set.problems().isEmpty());
}

void TstKitFactory::heldSetsTellOncePerText()
{
    Node values;
    values.SetName("TunerSettings");
    for (const char* field : {"Bandwidth", "CenterFrequency", "Unknown"}) {
        auto* const value = new NumericInt64;
        value->SetName(field);
        values.AddChild(value);
    }
    int changes = 0;
    HeldSet set("TunerSettings", &values, [&changes] { ++changes; });
    QVERIFY(set.setText(
        "<FFM_Settings><CenterFrequency>7</CenterFrequency><Bandwidth>8</Bandwidth></FFM_Settings>"));
    QCOMPARE(changes, 1);
    QVERIFY(!set.setText("<FFTSettings/>"));
    QCOMPARE(changes, 1);
    QCOMPARE(set.problems().size(), 1);
    QCOMPARE(set.problems().at(0).text, QString("TunerSettings/Unknown cannot be written into a job file"));
    QCOMPARE(set.problems().at(0).severity, Problem::SEVERITY_ERROR);
    // What is not in the values stays with the text that they came from.
    QVERIFY(set.setText("<FFM_Settings><CenterFrequency>7</CenterFrequency><Gain>3</Gain></FFM_Settings>"));
    QVERIFY(set.text().contains("<Gain>3</Gain>"));
    values.GetChild("Bandwidth")->SetState(STATE_NOT_NORMAL);
    QCOMPARE(changes, 2);
}

void TstKitFactory::headersLeaveOutTheParameterSets()
{
    JobXml::Subjob subjob = subjobOn("HT720", "HF-1");
    subjob.GetSettings().GetFFM_Settings().SetCenterFrequency(5);
    subjob.GetActivityGeneration().SetXmlString("<ActivityGeneration/>", false);
    const JobXml::Subjob header = PluginKit::headerOf(subjob);
    QVERIFY(!header.GetXmlString(false).contains("FFM_Settings"));
    QVERIFY(!header.IsActivityGenerationSet());
    QCOMPARE(header.GetName(), subjob.GetName());
}

void TstKitFactory::headersTouchOnlyWhatDiffers()
{
    const QString text =
        "<Subjob><!-- morning --><Name>A</Name><StartupMode>Timed</StartupMode><ResourceDescription>"
        "<Type>HT720</Type><BaseResource>HF-1</BaseResource><Extra>1</Extra></ResourceDescription>"
        "<Settings/></Subjob>";
    JobXml::Subjob subjob;
    QVERIFY(subjob.SetXmlString(text, false));
    const QString before = subjob.GetXmlString(false);
    JobXml::Subjob header = PluginKit::headerOf(subjob);
    PluginKit::writeHeader(header, &subjob);
    QCOMPARE(subjob.GetXmlString(false), before);
    header.SetPreClassifier(true);
    PluginKit::writeHeader(header, &subjob);
    QVERIFY(subjob.GetPreClassifier());
    header.ResetPreClassifier();
    PluginKit::writeHeader(header, &subjob);
    QVERIFY(!subjob.IsPreClassifierSet());
}

void TstKitFactory::startupModes_data()
{
    QTest::addColumn<QStringList>("offered");
    QTest::addColumn<int>("jobType");
    QTest::addColumn<QStringList>("modes");
    const QStringList all = JobXml::Subjob::GetStartupModes();
    QTest::newRow("receiver's") << QStringList{"Timed", "Manual"} << int(JEDVE::JOB_TYPE_SEARCH)
                                << QStringList{"Timed", "Manual"};
    QTest::newRow("any") << QStringList() << int(JEDVE::JOB_TYPE_UNKNOWN) << all;
    QTest::newRow("surveillance") << all << int(JEDVE::JOB_TYPE_SURVEILLANCE) << QStringList("Permanent");
    QTest::newRow("surveillance, any")
        << QStringList() << int(JEDVE::JOB_TYPE_SURVEILLANCE) << QStringList("Permanent");
    QTest::newRow("none left") << QStringList("Manual") << int(JEDVE::JOB_TYPE_SURVEILLANCE) << QStringList();
}

void TstKitFactory::startupModes()
{
    QFETCH(QStringList, offered);
    QFETCH(int, jobType);
    QTEST(PluginKit::startupModes(offered, JEDVE::enJOB_TYPE(jobType)), "modes");
}

void TstKitFactory::detectors_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("fields");
    QTest::newRow("EnergyDetector") << "EnergyDetector"
                                    << "Type BaseResource";
    QTest::newRow("SignalDetector") << "SignalDetector"
                                    << "Type Production DSCChannels BaseResource";
    QTest::newRow("HopperDetector") << "HopperDetector"
                                    << "Type AutoSeparation FilterSeparation OnlineRecombination DSCChannels "
                                       "BaseResource MinCoverage AutoRecording";
}

void TstKitFactory::detectors()
{
    QFETCH(QString, type);
    const DetectorChoice choice{true, type, true, QString(), true, true, true, 3, "HF-CH", 20, true};
    JobXml::Subjob subjob = subjobOn("HT720", "HF-1");
    JobXml::Detector other;
    other.SetMinCoverage(10);
    subjob.AppendDetector(other);
    subjob.AppendDetector(other);
    PluginKit::setDetector(choice, &subjob);
    QCOMPARE(subjob.GetDetector().size(), 2);
    QStringList fields;
    for (const QString& line : subjob.GetDetector().at(0).GetXmlString(false).split('\n')) {
        const QString name = line.trimmed().section('<', 1, 1).section('>', 0, 0);
        if (line.contains("</") && name != "/Detector")
            fields.append(name);
    }
    QTEST(fields.join(' '), "fields");
    QCOMPARE(subjob.GetDetector().at(1).GetXmlString(false), other.GetXmlString(false));
    PluginKit::setDetector(DetectorChoice(), &subjob);
    QCOMPARE(subjob.GetDetector().size(), 1);
    PluginKit::setDetector(DetectorChoice(), &subjob);
    PluginKit::setDetector(DetectorChoice(), &subjob);
    QCOMPARE(subjob.GetDetector().size(), 0);
}

void TstKitFactory::mimeTextsAreReadAsTheyWereWritten()
{
    NodeText child;
    child.type = "Child";
    child.sets = {{"Set", QString::fromUtf8("<a>\n\t\"ä\\ü\" ]]> </a>")}};
    NodeText node;
    node.plugin = "Kit";
    node.type = "SubJob";
    node.children = {child, child};
    for (const int indent : {0, 8}) {
        NodeText read;
        QVERIFY(PluginKit::fromMimeText(PluginKit::toMimeText(node, indent), &read));
        QCOMPARE(read.plugin, node.plugin);
        QCOMPARE(read.type, node.type);
        QCOMPARE(read.children.size(), 2);
        QCOMPARE(read.children.at(1).sets.at(0).name, QString("Set"));
        QCOMPARE(read.children.at(1).sets.at(0).xml, child.sets.at(0).xml);
    }
    NodeText untouched = child;
    QVERIFY(!PluginKit::fromMimeText("{\"plugin\":\"Kit\"}", &untouched));
    QCOMPARE(untouched.type, child.type);
}

JED_TEST_MAIN(TstKitFactory)
#include "tst_kitfactory.moc"
