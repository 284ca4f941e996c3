#include "loadedplugin.h"

#include <reportlayer/fieldaccess.h>
#include <resourcedescription.h>
#include <selectableresourcemodel.h>
#include <subjobwidget.h>
#include <support/testmain.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>

using JedTest::LoadedPlugin;
using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::JEDSubSettingFactory;
using JEDVEPLUGIN::SelectableResourceModel;
using JEDVEPLUGIN::SubJobWidget;

/// The widget of a sub-job, on a real plug-in.
class TstSubjobPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { JedTest::useStation(); }
    void init();
    void cleanup() { m_plugin.reset(); }
    void theFieldsShowTheSubJob();
    void showingChangesNothing();
    void editsReachTheSubJob_data();
    void editsReachTheSubJob();
    void undoReachesTheFields();
    void switchingTheDetectorOffDropsIt();
    void typesOfDetectorsHaveTheirFields();
    void autonomousReceivers();
    void jobsWithoutDetectors();
    void theWidgetStaysTheSame();
    void theWidgetGoesWithTheNode();

private:
    template <class Field>
    Field* field(const char* name) const
    {
        return m_page->findChild<Field*>(name);
    }
    JobXml::Subjob written() const;
    QString text(const QString& path) const;

    std::unique_ptr<LoadedPlugin> m_plugin;
    ISubSetting* m_node = nullptr;  // The plug-in's.
    SubJobWidget* m_page = nullptr; // The node's.
};

namespace {
JobXml::Subjob hopperSubjob()
{
    JobXml::Subjob subjob = JedTest::subjobOn("HT720", "VUHF-3");
    subjob.SetPreClassifier(true);
    subjob.GetResourceDescription().SetRecordLocation(
        JobXml::ResourceDescription::NameToRecordLocation("Station"));
    JobXml::Detector detector;
    detector.SetType(JobXml::Detector::TYPE_HOPPERDETECTOR);
    detector.SetFilterSeparation(true);
    detector.SetOnlineRecombination(true);
    detector.SetDSCChannels(5);
    detector.SetBaseResource("VUHF-CH");
    detector.SetMinCoverage(30);
    detector.SetAutoRecording(true);
    JobXml::AutonomousSCP scp;
    scp.SetType(JobXml::AutonomousSCP::TYPE_HT720);
    scp.SetBaseResource("VUHF-2");
    scp.SetCount(1);
    detector.AppendAutonomousSCP(scp);
    scp.SetBaseResource("Gone");
    detector.AppendAutonomousSCP(scp);
    subjob.AppendDetector(detector);
    return subjob;
}
} // namespace

void TstSubjobPage::init()
{
    m_plugin = std::make_unique<LoadedPlugin>("search");
    m_node = m_plugin->get()->readSubjob(hopperSubjob(), nullptr);
    QVERIFY(m_node);
    m_page = dynamic_cast<SubJobWidget*>(m_node->getWidget());
    if (!m_page)
        m_page = m_node->getWidget()->findChild<SubJobWidget*>();
    QVERIFY(m_page);
}

JobXml::Subjob TstSubjobPage::written() const
{
    JobXml::Subjob subjob = hopperSubjob();
    m_plugin->get()->writeSubjob(m_node, subjob, nullptr);
    return subjob;
}

QString TstSubjobPage::text(const QString& path) const
{
    const JobXml::Subjob subjob = written();
    if (!path.startsWith("Detector."))
        return REPORTGENERATOR::fieldText(subjob, path);
    return REPORTGENERATOR::fieldText(subjob, QString(path).replace("Detector.", "Detector[0]."));
}

void TstSubjobPage::theFieldsShowTheSubJob()
{
    QCOMPARE(field<QLineEdit>("subJobWidget_Name")->text(), QString("Short-range devices"));
    QCOMPARE(field<QComboBox>("subJobWidget_StartupModes")->currentText(), QString("Starts with the job"));
    QCOMPARE(field<QComboBox>("subJobWidget_RecordLocation")->currentText(),
             QString("Server of the station"));
    QVERIFY(field<QCheckBox>("subJobWidget_PreClassifier")->isChecked());
    QVERIFY(field<QCheckBox>("subjobWidget_Detector")->isChecked());
    QCOMPARE(field<QComboBox>("subjobWidget_DetectorType")->currentText(), QString("Hopper detector"));
    QVERIFY(!field<QCheckBox>("subjobWidget_AutoSeparation")->isChecked());
    QVERIFY(field<QCheckBox>("subjobWidget_FilterSeparation")->isChecked());
    QVERIFY(field<QCheckBox>("subjobWidget_OnlineRecombination")->isChecked());
    QCOMPARE(field<QSpinBox>("subjobWidget_DSCChannels")->value(), 5);
    QCOMPARE(field<QComboBox>("subJobWidget_DetectorBaseResource")->currentText(), QString("VUHF-CH"));
    QCOMPARE(field<QSpinBox>("subjobWidget_MinCoverage")->value(), 30);
    QVERIFY(field<QCheckBox>("subjobWidget_AutoRecording")->isChecked());
    for (const char* shown : {"subjobWidget_FilterSeparation", "subjobWidget_DSCChannels",
                              "subjobWidget_AutoRecording", "subjobWidget_DetectorType"})
        QVERIFY2(!field<QWidget>(shown)->isHidden(), shown);
    QVERIFY(field<QWidget>("subjobWidget_Production")->isHidden());
}

void TstSubjobPage::showingChangesNothing()
{
    QVERIFY(!m_plugin->get()->isModified());
    QCOMPARE(written().GetXmlString(false), hopperSubjob().GetXmlString(false));
}

void TstSubjobPage::editsReachTheSubJob_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("written");
    const auto row = [](const char* name, const QVariant& value, const char* path, const char* written) {
        QTest::newRow(path) << QString(name) << value << QString(path) << QString(written);
    };
    row("subJobWidget_StartupModes", "Started by the operator", "StartupMode", "Manual");
    row("subJobWidget_RecordLocation", "Monitoring centre", "ResourceDescription.RecordLocation", "Center");
    row("subJobWidget_PreClassifier", false, "PreClassifier", "false");
    row("subjobWidget_DetectorType", "Signal detector", "Detector.Type", "SignalDetector");
    row("subjobWidget_AutoSeparation", true, "Detector.AutoSeparation", "true");
    row("subjobWidget_FilterSeparation", false, "Detector.FilterSeparation", "false");
    row("subjobWidget_OnlineRecombination", false, "Detector.OnlineRecombination", "false");
    row("subjobWidget_DSCChannels", 7, "Detector.DSCChannels", "7");
    row("subjobWidget_MinCoverage", 60, "Detector.MinCoverage", "60");
    row("subjobWidget_AutoRecording", false, "Detector.AutoRecording", "false");
}

void TstSubjobPage::editsReachTheSubJob()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    QFETCH(QString, path);
    QSignalSpy changed(m_plugin->get(), &JEDSubSettingFactory::stateChanged);
    const QByteArray objectName = name.toUtf8();
    if (value.type() == QVariant::Bool)
        field<QCheckBox>(objectName)->setChecked(value.toBool());
    else if (value.type() == QVariant::Int)
        field<QSpinBox>(objectName)->setValue(value.toInt());
    else
        field<QComboBox>(objectName)->setCurrentText(value.toString());
    QTEST(text(path), "written");
    QVERIFY(m_plugin->get()->isModified());
    QVERIFY(changed.count() >= 1);
    QCOMPARE(changed.at(0).at(0).value<ISubSetting*>(), m_node);
    QString reason;
    QVERIFY2(JedTest::isValidInJob(written(), &reason), qPrintable(reason));
}

void TstSubjobPage::undoReachesTheFields()
{
    const QString before = m_node->parameterSetText("SubJob");
    field<QSpinBox>("subjobWidget_DSCChannels")->setValue(9);
    field<QComboBox>("subJobWidget_StartupModes")->setCurrentText("Started by the operator");
    QVERIFY(m_node->setParameterSetText("SubJob", before));
    QCOMPARE(field<QSpinBox>("subjobWidget_DSCChannels")->value(), 5);
    QCOMPARE(field<QComboBox>("subJobWidget_StartupModes")->currentText(), QString("Starts with the job"));
    QCOMPARE(m_node->parameterSetText("SubJob"), before);
}

void TstSubjobPage::switchingTheDetectorOffDropsIt()
{
    field<QCheckBox>("subjobWidget_Detector")->setChecked(false);
    QCOMPARE(written().GetDetector().size(), 0);
    field<QCheckBox>("subjobWidget_Detector")->setChecked(true);
    QCOMPARE(written().GetDetector().size(), 1);
    QCOMPARE(text("Detector.Type"), QString("HopperDetector"));
    QCOMPARE(text("Detector.DSCChannels"), QString("5"));
}

void TstSubjobPage::typesOfDetectorsHaveTheirFields()
{
    field<QComboBox>("subjobWidget_DetectorType")->setCurrentText("Signal detector");
    QVERIFY(!field<QWidget>("subjobWidget_Production")->isHidden());
    QVERIFY(field<QWidget>("subjobWidget_FilterSeparation")->isHidden());
    const JobXml::Detector detector = written().GetDetector().value(0);
    QVERIFY(!detector.IsFilterSeparationSet() && !detector.IsMinCoverageSet() &&
            !detector.IsAutoRecordingSet());
    field<QCheckBox>("subjobWidget_Production")->setChecked(true);
    field<QComboBox>("subJobWidget_DetectorRecordLocation")->setCurrentText("Monitoring centre");
    QCOMPARE(text("Detector.Production"), QString("true"));
    QCOMPARE(text("Detector.RecordLocation"), QString("Center"));
}

void TstSubjobPage::autonomousReceivers()
{
    auto* const model = qobject_cast<SelectableResourceModel*>(m_page->getSCPModel());
    QVERIFY(model);
    QCOMPARE(model->getSelectionCount(nullptr), 1);
    for (const auto& description : model->getResources()) {
        if (description->getBaseResource() == "HF-CH" && description->getType() == "HT720")
            QVERIFY(model->selectResource(description, 2));
    }
    QStringList receivers;
    const JobXml::Detector detector = written().GetDetector().value(0);
    for (const JobXml::AutonomousSCP& scp : detector.GetAutonomousSCP())
        receivers.append(QString("%1 %2").arg(scp.GetBaseResource(), QString::number(scp.GetCount())));
    receivers.sort();
    QCOMPARE(receivers, QStringList({"Gone 1", "HF-CH 2", "VUHF-2 1"}));
}

void TstSubjobPage::jobsWithoutDetectors()
{
    m_plugin->get()->slot_setCurrentJobType(JEDVE::JOB_TYPE_SURVEILLANCE);
    QVERIFY(!field<QCheckBox>("subjobWidget_Detector")->isEnabled());
    QVERIFY(!m_plugin->get()->isModified());
    QCOMPARE(written().GetXmlString(false), hopperSubjob().GetXmlString(false));
}

void TstSubjobPage::theWidgetStaysTheSame()
{
    QWidget* const widget = m_node->getWidget();
    QCOMPARE(m_node->getWidget(), widget);
    m_plugin->get()->setReadOnly(true);
    QCOMPARE(m_node->getWidget(), widget);
    QVERIFY(!qobject_cast<QTabWidget*>(widget)->widget(0)->isEnabled());
}

void TstSubjobPage::theWidgetGoesWithTheNode()
{
    const QPointer<QWidget> widget = m_node->getWidget();
    QVERIFY(m_plugin->get()->deleteSubSetting(m_node));
    QVERIFY(widget.isNull());
}

JED_TEST_MAIN(TstSubjobPage)
#include "tst_subjobpage.moc"
