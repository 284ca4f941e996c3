#include "loadedplugin.h"

#include <QLabel>
#include <QLineEdit>
#include <reportlayer/fieldaccess.h>
#include <support/testmain.h>
#include <values/tree.h>
#include <values/valuenumeric.h>
#include <velmogui/parameterseteditor.h>

using JedTest::LoadedPlugin;
using JedTest::subjobOn;
using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::JEDSubSettingFactory;
using JEDVEPLUGIN::Problem;

class TstSearchPlugin : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { JedTest::useStation(); }
    void newSubJobsHaveWhatTheReceiverHas_data();
    void newSubJobsHaveWhatTheReceiverHas();
    void nodesAreOfferedAsFarAsTheReceiverHasThem();
    void generalSettingsAreOfTheirCategory();
    void deletedNodesTakeTheirSetsAlong();
    void newNodesStartWithTheDefaults();
    void receiversThatAreMissing();
    void setsThatTheReceiverDoesNotHave();
    void valuesThatTheReceiverDoesNotTake();
    void valuesLieInTheValueTree();
    void settingsAreEditedInTheirWidgets_data();
    void settingsAreEditedInTheirWidgets();
    void readOnlySettingsCannotBeEdited();
    void rulesFollowChanges_data();
    void rulesFollowChanges();
    void rulesRestWhileTextsAreTaken();
    void withoutTheScriptThereAreNoRules();
    void scansThatEndBeforeTheyBegin();
    void problemsFollowTheTypeOfTheJob();
    void subJobsAreClaimedByReceiverAndJob();
    void nodesAreMovedAndPastedInTheirOrder();
    void nodesArePastedWhereTheyFit();
    void pasteKeepsWhatOnlyTheFileKnows();
    void detectorsComeFromTheDialog();

private:
    static ISubSetting* scanner(const LoadedPlugin& plugin);
    static QStringList typesBelow(ISubSetting* node);
    static ISubSetting* below(ISubSetting* node, const QString& type);
};

namespace {
const char* const SUB_JOB = "SubJob";
const char* const RULES = JED_SOURCE_DIR "/installation/Rules";

QStringList textsOf(const QList<Problem>& problems)
{
    QStringList result;
    for (const Problem& problem : problems)
        result.append(
            QString("%1 %2/%3: %4")
                .arg(QString::number(problem.severity), problem.parameterSet, problem.field, problem.text));
    return result;
}
} // namespace

ISubSetting* TstSearchPlugin::scanner(const LoadedPlugin& plugin)
{
    JedTest::answerDialog("TRV9KScanSettings/VUHF-1");
    return plugin->createSubSettingByUser(SUB_JOB, nullptr, nullptr);
}

QStringList TstSearchPlugin::typesBelow(ISubSetting* node)
{
    QStringList result;
    for (int i = 0; i < node->childCount(); ++i)
        result.append(node->child(i)->getSettingType());
    return result;
}

ISubSetting* TstSearchPlugin::below(ISubSetting* node, const QString& type)
{
    return node->settingAtTypePosition(type, 0);
}

void TstSearchPlugin::newSubJobsHaveWhatTheReceiverHas_data()
{
    QTest::addColumn<QStringList>("types");
    QTest::newRow("HT720/HF-1") << QStringList{"GeneralSettings", "Spectrum", "Tuner"};
    QTest::newRow("HT720/HF-2") << QStringList{"GeneralSettings", "Spectrum", "Tuner"};
    QTest::newRow("HT720/VUHF-3") << QStringList{"Spectrum", "Tuner"};
    QTest::newRow("HT720/HF-CH") << QStringList{"Tuner"};
    QTest::newRow("TRV9KScanSettings/VUHF-1") << QStringList{"Scan", "Spectrum", "Tuner"};
    QTest::newRow("DirectionFinder/DF-HF") << QStringList{"Scan", "Spectrum", "Tuner"};
}

void TstSearchPlugin::newSubJobsHaveWhatTheReceiverHas()
{
    const LoadedPlugin plugin("search");
    JedTest::answerDialog(QTest::currentDataTag());
    ISubSetting* const node = plugin->createSubSettingByUser(SUB_JOB, nullptr, nullptr);
    QVERIFY(node);
    QTEST(typesBelow(node), "types");
    for (int i = 0; i < node->childCount(); ++i) {
        ISubSetting* const child = node->child(i);
        QCOMPARE(child->parent(), node);
        QCOMPARE(child->getDisplayName(), plugin->settingDisplayName(child->getSettingType()));
        QVERIFY(!child->setDisplayName("Other"));
        QVERIFY(!child->parameterSetNames().isEmpty());
        QVERIFY(child->getPixmap());
        QCOMPARE(child->getPixmap(), plugin->getSettingIcon(child->getSettingType()));
        QVERIFY(child->isDragEnabled() && !child->isDropEnabled());
    }
    QVERIFY(node->isDropEnabled() && node->getPixmap());
    QVERIFY(!plugin->getSettingIcon("unknown"));
}

void TstSearchPlugin::nodesAreOfferedAsFarAsTheReceiverHasThem()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = scanner(plugin);
    QCOMPARE(plugin->supportedTypesOf(SUB_JOB), QStringList({"GeneralSettings", "Scan", "Spectrum", "Tuner",
                                                             "Demodulation", "DirectionFinding"}));
    QVERIFY(!plugin->isAppendable(node, "Scan")); // Has one already.
    QVERIFY(!plugin->isAppendable(node, "GeneralSettings"));
    QVERIFY(!plugin->isAppendable(nullptr, "Scan"));
    QVERIFY(!plugin->isAppendable(below(node, "Scan"), "Tuner"));
    QCOMPARE(plugin->getMaxCount("Scan"), 1);
    QVERIFY(plugin->isAppendable(node, "DirectionFinding"));
    ISubSetting* const bearing = plugin->createSubSetting("DirectionFinding", node);
    QVERIFY(bearing);
    QCOMPARE(bearing->parameterSetNames(), QStringList("DF_Settings"));
    QVERIFY(!plugin->createSubSetting("DirectionFinding", node));
    QCOMPARE(plugin->createSubSettingByUser("DirectionFinding", node, nullptr), nullptr);
    QVERIFY(plugin->deleteSubSetting(bearing));
    QVERIFY(plugin->createSubSettingByUser("DirectionFinding", node, nullptr));
}

void TstSearchPlugin::generalSettingsAreOfTheirCategory()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = plugin->readSubjob(subjobOn("HT720", "HF-1"), nullptr);
    ISubSetting* const general = plugin->createSubSetting("GeneralSettings", node);
    QCOMPARE(general->getSettingCategory(), QString("GeneralSettings"));
    QCOMPARE(general->parameterSetNames(), QStringList({"JobAutomaticSettings", "AutoRecordingSettings",
                                                        "CompressionSettings", "AlarmSettings"}));
    QCOMPARE(plugin->createSubSetting("Tuner", node)->getSettingCategory(), QString());
}

void TstSearchPlugin::deletedNodesTakeTheirSetsAlong()
{
    const LoadedPlugin plugin("search");
    const JobXml::Subjob subjob = JedTest::exampleJob("search").GetSubjob().at(1);
    ISubSetting* const node = plugin->readSubjob(subjob, nullptr);
    QCOMPARE(typesBelow(node), QStringList({"Spectrum", "Tuner", "Demodulation"}));
    QVERIFY(plugin->deleteSubSetting(below(node, "Tuner")));
    JobXml::Subjob written = subjob;
    QVERIFY(plugin->writeSubjob(node, written, nullptr));
    QVERIFY(!written.GetSettings().IsFFM_SettingsSet() && !written.GetSettings().IsAntennaSettingsSet());
    JobXml::Subjob expected = subjob;
    expected.GetSettings().ResetFFM_Settings();
    expected.GetSettings().ResetAntennaSettings();
    QCOMPARE(written.GetXmlString(false), expected.GetXmlString(false));
}

void TstSearchPlugin::newNodesStartWithTheDefaults()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = scanner(plugin);
    const QString fresh = below(node, "Scan")->parameterSetText("ScanSettings");
    QString edited = fresh;
    edited.replace(QRegularExpression("<Cycles>\\d+<"), "<Cycles>7<");
    QVERIFY(below(node, "Scan")->setParameterSetText("ScanSettings", edited));
    QVERIFY(below(node, "Scan")->parameterSetText("ScanSettings") != fresh);
    QVERIFY(plugin->deleteSubSetting(below(node, "Scan")));
    QVERIFY(plugin->createSubSetting("Scan", node));
    QCOMPARE(below(node, "Scan")->parameterSetText("ScanSettings"), fresh);
    QCOMPARE(typesBelow(node), QStringList({"Spectrum", "Tuner", "Scan"}));
}

void TstSearchPlugin::receiversThatAreMissing()
{
    const LoadedPlugin plugin("search");
    JobXml::Subjob subjob = JedTest::exampleJob("search").GetSubjob().at(0);
    subjob.GetResourceDescription().SetBaseResource("Gone");
    QList<Problem> problems;
    ISubSetting* const node = plugin->readSubjob(subjob, &problems);
    QVERIFY(node);
    const QStringList expected(
        "2 SubJob/ResourceDescription.BaseResource: The installation does not offer the "
        "receiver TRV9KScanSettings/Gone");
    QCOMPARE(textsOf(problems), expected);
    QCOMPARE(textsOf(node->problems()), expected);
    QVERIFY(node->overwriteTreeColor());
    QCOMPARE(node->getTreeColor(), QColor(Qt::gray));
    QVERIFY(
        node->getToolTip().endsWith("\nThe installation does not offer the receiver TRV9KScanSettings/Gone"));
    QVERIFY(node->getWidget());
    JobXml::Subjob written = subjob;
    QVERIFY(plugin->writeSubjob(node, written, nullptr));
    QCOMPARE(written.GetXmlString(false), subjob.GetXmlString(false));
    // Its sets are text, which can be replaced by such.
    ISubSetting* const tuner = below(node, "Tuner");
    QVERIFY(!tuner->setParameterSetText("TunerSettings", "<FFTSettings/>"));
    QVERIFY(tuner->setParameterSetText("TunerSettings",
                                       "<FFM_Settings><CenterFrequency>5</CenterFrequency></FFM_Settings>"));
    QVERIFY(plugin->isModified());
    QVERIFY(plugin->writeSubjob(node, written, nullptr));
    QCOMPARE(written.GetSettings().GetFFM_Settings().GetCenterFrequency(), 5);
    QVERIFY(plugin->duplicateSubSetting(node));
    QVERIFY(!plugin->isAppendable(node, "DirectionFinding"));
}

void TstSearchPlugin::setsThatTheReceiverDoesNotHave()
{
    const LoadedPlugin plugin("search");
    JobXml::Subjob subjob = subjobOn("HT720", "HF-1");
    subjob.GetSettings().GetDF_Settings().SetIntegrationTime(77);
    ISubSetting* const node = plugin->readSubjob(subjob, nullptr);
    QCOMPARE(typesBelow(node), QStringList("DirectionFinding"));
    QVERIFY(below(node, "DirectionFinding")->parameterSetText("DF_Settings").contains(">77<"));
    QStringList texts;
    for (const QLabel* label : below(node, "DirectionFinding")->getWidget()->findChildren<QLabel*>())
        texts.append(label->text());
    QCOMPARE(texts, QStringList("There is no editor for these settings. They stay as they are."));
    JobXml::Subjob written = subjob;
    QVERIFY(plugin->writeSubjob(node, written, nullptr));
    QCOMPARE(written.GetXmlString(false), subjob.GetXmlString(false));
}

void TstSearchPlugin::valuesThatTheReceiverDoesNotTake()
{
    const LoadedPlugin plugin("search");
    JobXml::Subjob subjob = JedTest::exampleJob("search").GetSubjob().at(0);
    subjob.GetSettings().GetFFM_Settings().SetCenterFrequency(1000);
    QList<Problem> problems;
    ISubSetting* const node = plugin->readSubjob(subjob, &problems);
    const QStringList expected(
        "1 TunerSettings/CenterFrequency: TunerSettings/CenterFrequency was outside what "
        "the receiver takes; the nearest limit counts");
    QCOMPARE(textsOf(problems), expected);
    ISubSetting* const tuner = below(node, "Tuner");
    QCOMPARE(textsOf(tuner->problems()), expected);
    auto* const other = dynamic_cast<NumericInt64*>(
        Tree::Instance()->FindByPath("/Test/Search/SubJob1/TunerSettings/Bandwidth"));
    auto* const frequency = dynamic_cast<NumericInt64*>(
        Tree::Instance()->FindByPath("/Test/Search/SubJob1/TunerSettings/CenterFrequency"));
    QVERIFY(other && frequency);
    other->SetValue(other->GetValue() + 1);
    QCOMPARE(textsOf(tuner->problems()), expected);
    frequency->SetValue(frequency->GetValue() + 1);
    QCOMPARE(textsOf(tuner->problems()), QStringList());
}

void TstSearchPlugin::valuesLieInTheValueTree()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const first = scanner(plugin);
    ISubSetting* const second = scanner(plugin);
    Tree* const tree = Tree::Instance();
    QVERIFY(tree->FindNode("/Test/Search/SubJob1/ScanSettings"));
    QVERIFY(tree->FindNode("/Test/Search/SubJob2/ScanSettings"));
    auto* const value =
        dynamic_cast<NumericInt*>(tree->FindByPath("/Test/Search/SubJob2/ScanSettings/Cycles"));
    QVERIFY(value);
    plugin->setModified(false);
    QSignalSpy changed(plugin.get(), &JEDSubSettingFactory::stateChanged);
    value->SetValue(9);
    QVERIFY(plugin->isModified());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<ISubSetting*>(), below(second, "Scan"));
    QVERIFY(below(second, "Scan")->parameterSetText("ScanSettings").contains("<Cycles>9</Cycles>"));
    QVERIFY(!below(first, "Scan")->parameterSetText("ScanSettings").contains("<Cycles>9</Cycles>"));
    plugin->deleteSubSetting(first);
    QVERIFY(!tree->FindNode("/Test/Search/SubJob1"));
    scanner(plugin);
    QVERIFY(tree->FindNode("/Test/Search/SubJob1/ScanSettings"));
}

void TstSearchPlugin::settingsAreEditedInTheirWidgets_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");
    QTest::newRow("Scan") << "ScanSettings"
                          << "Range.StopFrequency"
                          << "130.5M"
                          << "<StopFrequency>130500000<";
    QTest::newRow("Tuner") << "TunerSettings"
                           << "CenterFrequency"
                           << "121,5 MHz"
                           << "<CenterFrequency>121500000<";
    QTest::newRow("Spectrum") << "FFTSettings"
                              << "Span"
                              << "500k"
                              << "<Span>500000<";
}

void TstSearchPlugin::settingsAreEditedInTheirWidgets()
{
    QFETCH(QString, set);
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QString, written);
    const LoadedPlugin plugin("search");
    ISubSetting* const node = below(scanner(plugin), QTest::currentDataTag());
    plugin->setModified(false);
    QWidget* const widget = node->getWidget();
    QVERIFY(widget);
    auto* const line = widget->findChild<QLineEdit*>(set + "/" + field);
    QVERIFY(line);
    QSignalSpy changed(plugin.get(), &JEDSubSettingFactory::stateChanged);
    line->selectAll();
    QTest::keyClicks(line, typed);
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY2(node->parameterSetText(set).contains(written), qPrintable(node->parameterSetText(set)));
    QVERIFY(plugin->isModified());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<ISubSetting*>(), node);
    JobXml::Subjob subjob;
    QVERIFY(plugin->writeSubjob(node->parent(), subjob, nullptr));
    QVERIFY(subjob.GetXmlString(false).contains(written));
    // Undo shows at once.
    const QString shown = line->text();
    ISubSetting* const fresh = below(scanner(plugin), QTest::currentDataTag());
    QVERIFY(node->setParameterSetText(set, fresh->parameterSetText(set)));
    QVERIFY(line->text() != shown);
}

void TstSearchPlugin::readOnlySettingsCannotBeEdited()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const scan = below(scanner(plugin), "Scan");
    plugin->setReadOnly(true);
    const auto* const editor = scan->getWidget()->findChild<VelmoGui::ParameterSetEditor*>();
    QVERIFY(editor && !editor->isEnabled());
    plugin->setReadOnly(false);
    QVERIFY(editor->isEnabled());
}

void TstSearchPlugin::rulesFollowChanges_data()
{
    QTest::addColumn<QString>("receiver");
    QTest::addColumn<QString>("changed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("followed");
    QTest::addColumn<QString>("result");
    QTest::newRow("bandwidth follows step") << "TRV9KScanSettings/VUHF-1"
                                            << "ScanSettings/Range.StepWidth"
                                            << "12500"
                                            << "ScanSettings/Range.Bandwidth"
                                            << "12500";
    QTest::newRow("bandwidth follows step in hertz") << "DirectionFinder/DF-HF"
                                                     << "ScanSettings/Range.StepWidth"
                                                     << "2000"
                                                     << "ScanSettings/Range.Bandwidth"
                                                     << "2000";
    QTest::newRow("bandwidth follows demodulation") << "HT720/HF-1"
                                                    << "ADemSettings/Demodulation"
                                                    << "CW"
                                                    << "ADemSettings/Bandwidth"
                                                    << "500";
    QTest::newRow("span follows bandwidth") << "HT720/VUHF-1"
                                            << "TunerSettings/Bandwidth"
                                            << "10000"
                                            << "FFTSettings/Span"
                                            << "10000";
    QTest::newRow("wide enough") << "HT720/VUHF-1"
                                 << "TunerSettings/Bandwidth"
                                 << "2000000"
                                 << "FFTSettings/Span"
                                 << "2000000";
}

void TstSearchPlugin::rulesFollowChanges()
{
    QFETCH(QString, receiver);
    QFETCH(QString, changed);
    QFETCH(QString, text);
    QFETCH(QString, followed);
    const LoadedPlugin plugin("search", "/Test/", RULES);
    JedTest::answerDialog(receiver);
    QVERIFY(plugin->createSubSettingByUser(SUB_JOB, nullptr, nullptr));
    const QString path = "/Test/Search/SubJob1/";
    QVERIFY(Tree::Instance()->FindByPath(path + changed)->SetText(text));
    QTEST(Tree::Instance()->FindByPath(path + followed)->GetText(), "result");
}

void TstSearchPlugin::rulesRestWhileTextsAreTaken()
{
    const LoadedPlugin plugin("search", "/Test/", RULES);
    ISubSetting* const scan = below(scanner(plugin), "Scan");
    const QString before = scan->parameterSetText("ScanSettings");
    ValueBase* const step = Tree::Instance()->FindByPath("/Test/Search/SubJob1/ScanSettings/Range.StepWidth");
    QVERIFY(before.contains("<Bandwidth>8000<"));
    QVERIFY(step->SetText("12500"));
    const QString after = scan->parameterSetText("ScanSettings");
    QVERIFY(after.contains("<Bandwidth>12500<"));
    QVERIFY(scan->setParameterSetText("ScanSettings", before));
    QCOMPARE(scan->parameterSetText("ScanSettings"), before);
    // What an operator has typed against the rule stays in a copy.
    QString typed = after;
    typed.replace("<Bandwidth>12500<", "<Bandwidth>9000<");
    QVERIFY(scan->setParameterSetText("ScanSettings", typed));
    ISubSetting* const copy = plugin->duplicateSubSetting(scan->parent());
    QCOMPARE(below(copy, "Scan")->parameterSetText("ScanSettings"), typed);
    QVERIFY(step->SetText("25000"));
    QVERIFY(scan->parameterSetText("ScanSettings").contains("<Bandwidth>25000<"));
    QCOMPARE(below(copy, "Scan")->parameterSetText("ScanSettings"), typed);
}

void TstSearchPlugin::withoutTheScriptThereAreNoRules()
{
    const LoadedPlugin plugin("search", "/Test/", JED_SOURCE_DIR "/installation");
    scanner(plugin);
    const QString path = "/Test/Search/SubJob1/ScanSettings/Range.";
    QVERIFY(Tree::Instance()->FindByPath(path + "StepWidth")->SetText("12500"));
    QCOMPARE(Tree::Instance()->FindByPath(path + "Bandwidth")->GetText(), QString("8000"));
}

void TstSearchPlugin::scansThatEndBeforeTheyBegin()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const scan = below(scanner(plugin), "Scan");
    const QString path = "/Test/Search/SubJob1/ScanSettings/Range.";
    auto* const start = dynamic_cast<NumericInt64*>(Tree::Instance()->FindByPath(path + "StartFrequency"));
    auto* const stop = dynamic_cast<NumericInt64*>(Tree::Instance()->FindByPath(path + "StopFrequency"));
    QVERIFY(start && stop);
    QVERIFY(scan->problems().isEmpty());
    start->SetValue(stop->GetValue());
    QCOMPARE(textsOf(scan->problems()),
             QStringList("2 ScanSettings/Range.StopFrequency: The scan ends before it begins"));
    start->SetValue(stop->GetValue() - 1);
    QCOMPARE(textsOf(scan->problems()),
             QStringList("1 ScanSettings/Range.StepWidth: The scan has a single step"));
    QVERIFY(scan->getToolTip().contains("The scan has a single step"));
}

void TstSearchPlugin::problemsFollowTheTypeOfTheJob()
{
    const LoadedPlugin plugin("search");
    JobXml::Subjob subjob = subjobOn("HT720", "VUHF-3");
    JobXml::Detector detector;
    detector.SetType(JobXml::Detector::TYPE_SIGNALDETECTOR);
    subjob.AppendDetector(detector);
    ISubSetting* const node = plugin->readSubjob(subjob, nullptr);
    QCOMPARE(textsOf(node->problems()), QStringList());
    QSignalSpy changed(plugin.get(), &JEDSubSettingFactory::stateChanged);
    plugin->slot_setCurrentJobType(JEDVE::JOB_TYPE_SURVEILLANCE);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(
        textsOf(node->problems()),
        QStringList(
            {"1 SubJob/StartupMode: The receiver does not offer the start-up mode \"Starts with the job\" "
             "for this type of job",
             "1 SubJob/Detector: Jobs of this type have no detectors"}));
    plugin->slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    QCOMPARE(textsOf(node->problems()), QStringList());
    ISubSetting* const scan = plugin->readSubjob(
        [&subjob] {
            JobXml::Subjob other = subjob;
            other.GetResourceDescription() = subjobOn("TRV9KScanSettings", "VUHF-1").GetResourceDescription();
            QVector<JobXml::Detector> detectors = other.GetDetector();
            detectors.first().SetType(JobXml::Detector::TYPE_HOPPERDETECTOR);
            other.SetDetector(detectors);
            return other;
        }(),
        nullptr);
    QCOMPARE(textsOf(scan->problems()),
             QStringList("1 SubJob/Detector: The receiver does not offer the detector \"Hopper detector\""));
    QVERIFY(!plugin->isModified());
}

void TstSearchPlugin::subJobsAreClaimedByReceiverAndJob()
{
    const LoadedPlugin plugin("search");
    const JobXml::Subjob subjob = subjobOn("HT720", "HF-1");
    QVERIFY(plugin->claimsSubjob(subjob));
    QVERIFY(!plugin->claimsSubjob(subjobOn("SignalRecorder", "REC-1")));
    QVERIFY(!plugin->readSubjob(subjobOn("SignalRecorder", "REC-1"), nullptr));
    plugin->slot_setCurrentJobType(JEDVE::JOB_TYPE_MEASUREMENT);
    QVERIFY(!plugin->claimsSubjob(subjob));
    plugin->slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    QVERIFY(plugin->claimsSubjob(subjob));
    QVERIFY(plugin->topLevelSettings().isEmpty());
}

void TstSearchPlugin::nodesAreMovedAndPastedInTheirOrder()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = scanner(plugin);
    plugin->setModified(false);
    QSignalSpy changed(plugin.get(), &JEDSubSettingFactory::stateChanged);
    QVERIFY(node->canMoveChild(node->child(2)));
    node->moveChild(2, 0);
    QCOMPARE(typesBelow(node), QStringList({"Tuner", "Scan", "Spectrum"}));
    QVERIFY(plugin->isModified());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(typesBelow(plugin->duplicateSubSetting(node)), typesBelow(node));
}

void TstSearchPlugin::nodesArePastedWhereTheyFit()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const scanning = scanner(plugin);
    ISubSetting* const other = plugin->readSubjob(subjobOn("TRV9KScanSettings", "VUHF-2"), nullptr);
    ISubSetting* const tuning = plugin->readSubjob(subjobOn("HT720", "HF-1"), nullptr);
    const QString text = below(scanning, "Scan")->getMimeText(1);
    QVERIFY(!plugin->pasteMimeText(text, nullptr));
    QVERIFY(!plugin->pasteMimeText(text, scanning));
    QVERIFY(!plugin->pasteMimeText(text, tuning));
    QVERIFY(!plugin->pasteMimeText(scanning->getMimeText(0), other));
    ISubSetting* const pasted = plugin->pasteMimeText(text, other);
    QVERIFY(pasted);
    QCOMPARE(pasted->parent(), other);
    QVERIFY(!plugin->duplicateSubSetting(pasted)); // There may be but one.
}

void TstSearchPlugin::pasteKeepsWhatOnlyTheFileKnows()
{
    const LoadedPlugin plugin("search");
    JobXml::Subjob subjob = subjobOn("HT720", "HF-1");
    subjob.GetSettings().GetAlarmSettings();
    subjob.GetActivityGeneration();
    const auto setAll = [](REPORTGENERATOR::IRGObject& element) {
        for (const QString& path : REPORTGENERATOR::fieldPaths(element.table()))
            REPORTGENERATOR::setFieldText(element, path, REPORTGENERATOR::fieldText(element, path));
    };
    setAll(subjob.GetSettings().GetAlarmSettings());
    setAll(subjob.GetActivityGeneration());
    ISubSetting* const node = plugin->readSubjob(subjob, nullptr);
    ISubSetting* const copy = plugin->duplicateSubSetting(node);
    QCOMPARE(below(copy, "GeneralSettings")->parameterSetNames(),
             QStringList({"ActivityGeneration", "AlarmSettings"}));
    JobXml::Subjob written;
    QVERIFY(copy->setDisplayName(node->getDisplayName()));
    QVERIFY(plugin->writeSubjob(copy, written, nullptr));
    QCOMPARE(written.GetXmlString(false), subjob.GetXmlString(false));
}

void TstSearchPlugin::detectorsComeFromTheDialog()
{
    const LoadedPlugin plugin("search");
    plugin->slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    QTimer::singleShot(0, qApp, [] {
        QWidget* const dialog = QApplication::activeModalWidget();
        const auto box = [dialog](const char* name) { return dialog->findChild<QComboBox*>(name); };
        box("ResourceSelection_TunerType")->setCurrentText("HT720");
        box("ResourceSelection_BaseResource")->setCurrentText("VUHF-1");
        dialog->findChild<QAbstractButton*>("ResourceSelection_Detector")->setChecked(true);
        box("ResourceSelection_DetectorType")->setCurrentText("Signal detector");
        dialog->findChild<QAbstractButton*>("ResourceSelection_PreClassifier")->setChecked(true);
        dialog->findChild<QAbstractButton*>("ResourceSelection_OkButton")->click();
    });
    ISubSetting* const node = plugin->createSubSettingByUser(SUB_JOB, nullptr, nullptr);
    QVERIFY(node);
    JobXml::Subjob subjob;
    QVERIFY(plugin->writeSubjob(node, subjob, nullptr));
    QVERIFY(subjob.GetPreClassifier());
    QCOMPARE(subjob.GetDetector().size(), 1);
    QCOMPARE(subjob.GetDetector().at(0).GetType(), JobXml::Detector::TYPE_SIGNALDETECTOR);
    QVERIFY(!subjob.GetDetector().at(0).IsMinCoverageSet());
    QCOMPARE(subjob.GetResourceDescription().GetName(), QString("Marine VHF"));
    QString reason;
    QVERIFY2(JedTest::isValidInJob(subjob, &reason), qPrintable(reason));
}

JED_TEST_MAIN(TstSearchPlugin)
#include "tst_searchplugin.moc"
