#include "subjobwidget.h"

#include "selectableresourcemodel.h"

#include <support/resourcesamples.h>
#include <support/subjobwidgetfixture.h>
#include <support/testmain.h>

#include <QAbstractProxyModel>
#include <QStandardItemModel>

using JedTest::ALL_MODES;
using JedTest::DETECTOR_LOCATION_TEXTS;
using JedTest::DETECTOR_LOCATIONS;
using JedTest::entries;
using JedTest::RECORD_LOCATION_TEXTS;
using JedTest::RECORD_LOCATIONS;
using JedTest::SubJobFields;
using JedTest::SubJobSignals;
using JedTest::tuner;
using JEDVEPLUGIN::SubJobWidget;

class TstSubJobWidgetValues : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void startupMode();
    void recordLocation();
    void detectorRecordLocation();
    void detectorType();
    void detectorTypeThatIsNotOffered();
    void detectorTypeIsAppendedOnce();
    void channelTextFollowsTheDetectorType_data();
    void channelTextFollowsTheDetectorType();
    void channels_data();
    void channels();
    void minCoverage_data();
    void minCoverage();
    void checkBox_data();
    void checkBox();
    void userChangeIsTold();
    void detectorCanBeDisabled();
    void scpModelIsTheSourceOfTheTable();
    void deletedSCPModelIsForgotten();
    void everyFieldIsBlocked();
    void blockedSettersEmitNothing();

private:
    SubJobFields fields() const { return SubJobFields(*m_widget); }

    std::unique_ptr<SubJobWidget> m_widget;
    std::unique_ptr<SubJobSignals> m_signals;
};

void TstSubJobWidgetValues::init()
{
    m_widget = std::make_unique<SubJobWidget>(true, true, nullptr);
    m_signals = std::make_unique<SubJobSignals>(m_widget.get());
}

void TstSubJobWidgetValues::cleanup()
{
    m_signals.reset();
    m_widget.reset();
}

void TstSubJobWidgetValues::startupMode()
{
    m_widget->setResourceDescription(tuner("HT720", "A", ALL_MODES), {});
    const QStringList texts = {"Started by the operator", "Starts with the job", "Starts at the set time",
                               "Runs permanently", "Starts on request of another job"};
    for (const int index : {1, 2, 3, 4, 0}) {
        m_widget->setStartupMode(ALL_MODES[index]);
        QCOMPARE(fields().startupModes()->currentText(), texts[index]);
        QCOMPARE(m_widget->getStartupMode(), ALL_MODES[index]);
        QCOMPARE(m_signals->take(), "startUpMode(" + ALL_MODES[index] + ")");
        m_widget->setStartupMode(ALL_MODES[index]);
        QCOMPARE(m_signals->take(), QString());
    }
    m_widget->setStartupMode("Sometimes");
    QCOMPARE(fields().startupModes()->currentIndex(), -1);
    QCOMPARE(m_widget->getStartupMode(), QString(""));
    QCOMPARE(m_signals->take(), QString("startUpMode()"));
}

void TstSubJobWidgetValues::recordLocation()
{
    m_widget->setResourceDescription(tuner("HT720", "A"), {});
    for (const int index : {0, 2, 3, 1}) {
        m_widget->setRecordLocation(RECORD_LOCATIONS[index]);
        QCOMPARE(fields().recordLocation()->currentText(), RECORD_LOCATION_TEXTS[index]);
        QCOMPARE(m_widget->getRecordLocation(), RECORD_LOCATIONS[index]);
        QCOMPARE(m_signals->take(), "location(" + RECORD_LOCATIONS[index] + ")");
    }
    m_widget->setRecordLocation("At the receiver");
    QCOMPARE(fields().recordLocation()->currentIndex(), -1);
    QCOMPARE(m_widget->getRecordLocation(), QString());
    QCOMPARE(m_signals->take(), QString("location()"));
}

void TstSubJobWidgetValues::detectorRecordLocation()
{
    m_widget->setResourceDescription(tuner("HT720", "A"), {});
    m_widget->setDetector(true, SubJobWidget::DetectorProduction);
    m_widget->setProduction(true);
    m_signals->take();
    for (const int index : {0, 2, 1}) {
        m_widget->setDetectorRecordLocation(DETECTOR_LOCATIONS[index]);
        QCOMPARE(fields().detectorRecordLocation()->currentText(), DETECTOR_LOCATION_TEXTS[index]);
        QCOMPARE(m_widget->getDetectorRecordLocation(), DETECTOR_LOCATIONS[index]);
        QCOMPARE(m_signals->take(), "detectorLocation(" + DETECTOR_LOCATIONS[index] + ")");
    }
    fields().detectorRecordLocation()->addItem("Elsewhere");
    fields().detectorRecordLocation()->setCurrentIndex(3);
    QCOMPARE(m_widget->getDetectorRecordLocation(), QString());

    m_widget->setDetectorRecordLocation("Center");
    m_widget->setProduction(false);
    QCOMPARE(m_widget->getDetectorRecordLocation(), QString());
    m_widget->setProduction(true);
    m_widget->setDetector(false, SubJobWidget::DetectorProduction);
    QCOMPARE(m_widget->getDetectorRecordLocation(), QString());
    m_widget->setDetector(true, SubJobWidget::DetectorChannels);
    QCOMPARE(m_widget->getDetectorRecordLocation(), QString());
    m_widget->setDetector(true, SubJobWidget::DetectorProduction);
    QCOMPARE(m_widget->getDetectorRecordLocation(), QString("Center"));
}

void TstSubJobWidgetValues::detectorType()
{
    m_widget->setResourceDescription(tuner("HT720", "A"), {});
    QCOMPARE(m_widget->getDetectorType(), QString("SignalDetector"));
    m_widget->setDetectorType("HopperDetector");
    QCOMPARE(fields().detectorType()->currentText(), QString("Hopper detector"));
    QCOMPARE(m_widget->getDetectorType(), QString("HopperDetector"));
    QCOMPARE(m_signals->take(), QString("type(HopperDetector)"));
    m_widget->setDetectorType("HopperDetector");
    QCOMPARE(m_signals->take(), QString());
    m_widget->setDetectorType("Signal detector");
    QCOMPARE(m_widget->getDetectorType(), QString("SignalDetector"));
    QCOMPARE(m_signals->take(), QString("type(SignalDetector)"));
    QCOMPARE(fields().detectorType()->count(), 2);
}

void TstSubJobWidgetValues::detectorTypeThatIsNotOffered()
{
    m_widget->setResourceDescription(tuner("TRV9KScanSettings", "A"), {});
    m_widget->setDetectorType("HopperDetector");
    QCOMPARE(entries(fields().detectorType()), QStringList({"Signal detector", "Hopper detector"}));
    QCOMPARE(fields().detectorType()->currentIndex(), 1);
    QCOMPARE(m_signals->take(), QString("type(HopperDetector)"));

    m_widget->setDetectorType("Of tomorrow");
    QCOMPARE(entries(fields().detectorType()),
             QStringList({"Signal detector", "Hopper detector", "Of tomorrow"}));
    QCOMPARE(m_widget->getDetectorType(), QString("Of tomorrow"));
    QCOMPARE(m_signals->take(), QString("type()"));
}

void TstSubJobWidgetValues::detectorTypeIsAppendedOnce()
{
    m_widget->setDetectorType("EnergyDetector");
    QCOMPARE(entries(fields().detectorType()), QStringList({"Energy detector"}));
    QCOMPARE(m_signals->take(), QString("type(EnergyDetector)"));
    m_widget->setDetectorType("SignalDetector");
    m_widget->setDetectorType("EnergyDetector");
    m_widget->setDetectorType("EnergyDetector");
    QCOMPARE(entries(fields().detectorType()), QStringList({"Energy detector", "Signal detector"}));
    QCOMPARE(fields().detectorType()->currentIndex(), 0);
}

void TstSubJobWidgetValues::channelTextFollowsTheDetectorType_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("EnergyDetector") << "DSC Channels";
    QTest::newRow("SignalDetector") << "DSC Channels";
    QTest::newRow("HopperDetector") << "ST Channels";
    QTest::newRow("Of tomorrow") << "DSC Channels";
}

void TstSubJobWidgetValues::channelTextFollowsTheDetectorType()
{
    QFETCH(QString, text);
    const QLabel* label = fields().label("subjobWidget_DSCChannelsLabel");
    for (const bool blocked : {false, true}) {
        m_widget->setDetectorType(QTest::currentDataTag() == QByteArray("HopperDetector") ? "SignalDetector"
                                                                                          : "HopperDetector");
        QVERIFY(label->text() != text);
        m_widget->blockAllSignals(blocked);
        m_widget->setDetectorType(QTest::currentDataTag());
        QCOMPARE(label->text(), text);
        QCOMPARE(fields().channels()->toolTip(), "set number of " + text);
        QCOMPARE(fields().channels()->accessibleName(), text);
    }
    m_widget->blockAllSignals(false);

    fields().detectorType()->setCurrentIndex(fields().detectorType()->findText("Hopper detector"));
    QCOMPARE(label->text(), QString("ST Channels"));
    fields().detectorType()->setCurrentIndex(-1);
    QCOMPARE(label->text(), QString("DSC Channels"));
}

void TstSubJobWidgetValues::channels_data()
{
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("got");
    QTest::newRow("least") << 0 << 0;
    QTest::newRow("most") << 128 << 128;
    QTest::newRow("one more than most") << 129 << 128;
    QTest::newRow("negative") << -1 << 0;
}

void TstSubJobWidgetValues::channels()
{
    QFETCH(int, set);
    QFETCH(int, got);
    m_widget->setDSCChannels(17);
    QCOMPARE(m_signals->take(), QString("channels(17) base()"));
    m_widget->setDSCChannels(set);
    QCOMPARE(m_widget->getDSCChannels(), got);
    QCOMPARE(fields().channels()->value(), got);
    QCOMPARE(m_signals->take(), QString("channels(%1) base()").arg(got));
    m_widget->setDSCChannels(set);
    QCOMPARE(m_signals->take(), QString());
}

void TstSubJobWidgetValues::minCoverage_data()
{
    QTest::addColumn<quint32>("set");
    QTest::addColumn<quint32>("got");
    QTest::newRow("least") << 0u << 0u;
    QTest::newRow("most") << 100u << 100u;
    QTest::newRow("one more than most") << 101u << 100u;
    QTest::newRow("more than an int holds") << 4000000000u << 100u;
}

void TstSubJobWidgetValues::minCoverage()
{
    QFETCH(quint32, set);
    QFETCH(quint32, got);
    m_widget->setMinCoverage(17);
    QCOMPARE(m_signals->take(), QString("coverage(17)"));
    m_widget->setMinCoverage(set);
    QCOMPARE(m_widget->getMinCoverage(), got);
    QCOMPARE(fields().minCoverage()->value(), int(got));
    QCOMPARE(m_signals->take(), QString("coverage(%1)").arg(got));
    m_widget->setMinCoverage(set);
    QCOMPARE(m_signals->take(), QString());
}

namespace {
struct CheckBoxAccess
{
    void (SubJobWidget::*set)(bool);
    bool (SubJobWidget::*isSet)() const;
};
} // namespace
Q_DECLARE_METATYPE(CheckBoxAccess)

void TstSubJobWidgetValues::checkBox_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<CheckBoxAccess>("access");
    QTest::addColumn<QString>("told");
    QTest::newRow("pre-classifier") << "subJobWidget_PreClassifier"
                                    << CheckBoxAccess{&SubJobWidget::setPreClassifier,
                                                      &SubJobWidget::isPreClassifierSet}
                                    << "preClassifier(%1)";
    QTest::newRow("production") << "subjobWidget_Production"
                                << CheckBoxAccess{&SubJobWidget::setProduction,
                                                  &SubJobWidget::isProductionSet}
                                << "production(%1) detectorLocation()";
    QTest::newRow("auto separation") << "subjobWidget_AutoSeparation"
                                     << CheckBoxAccess{&SubJobWidget::setAutoSeparation,
                                                       &SubJobWidget::isAutoSeparationSet}
                                     << "auto(%1)";
    QTest::newRow("filter separation")
        << "subjobWidget_FilterSeparation"
        << CheckBoxAccess{&SubJobWidget::setFilterSeparation, &SubJobWidget::isFilterSeparationSet}
        << "filter(%1)";
    QTest::newRow("online recombination")
        << "subjobWidget_OnlineRecombination"
        << CheckBoxAccess{&SubJobWidget::setOnlineRecombination, &SubJobWidget::isOnlineRecombinationSet}
        << "online(%1)";
    QTest::newRow("auto recording") << "subjobWidget_AutoRecording"
                                    << CheckBoxAccess{&SubJobWidget::setAutoRecording,
                                                      &SubJobWidget::isAutoRecordingSet}
                                    << "recording(%1)";
}

void TstSubJobWidgetValues::checkBox()
{
    QFETCH(QString, field);
    QFETCH(CheckBoxAccess, access);
    QFETCH(QString, told);
    auto* box = fields().check(qPrintable(field));
    for (const bool on : {true, false}) {
        (m_widget.get()->*access.set)(on);
        QCOMPARE((m_widget.get()->*access.isSet)(), on);
        QCOMPARE(box->isChecked(), on);
        QCOMPARE(m_signals->take(), told.arg(on ? "true" : "false"));
        (m_widget.get()->*access.set)(on);
        QCOMPARE(m_signals->take(), QString());
    }
    box->click();
    QVERIFY((m_widget.get()->*access.isSet)());
    QCOMPARE(m_signals->take(), told.arg("true"));
}

void TstSubJobWidgetValues::userChangeIsTold()
{
    m_widget->setResourceDescription(tuner("HT720", "A", ALL_MODES, {"C1", "C2"}), {});
    m_widget->setDetector(true,
                          SubJobWidget::DetectorProduction | SubJobWidget::DetectorBaseResourceForChannels);
    m_widget->setProduction(true);
    m_signals->take();
    fields().startupModes()->setCurrentIndex(3);
    QCOMPARE(m_signals->take(), QString("startUpMode(Permanent)"));
    fields().recordLocation()->setCurrentIndex(0);
    QCOMPARE(m_signals->take(), QString("location(None)"));
    fields().detectorRecordLocation()->setCurrentIndex(0);
    QCOMPARE(m_signals->take(), QString("detectorLocation(Detector)"));
    fields().detectorBaseResource()->setCurrentIndex(1);
    QCOMPARE(m_signals->take(), QString("base(C2)"));
    fields().detectorType()->setCurrentIndex(1);
    QCOMPARE(m_signals->take(), QString("type(HopperDetector)"));
    QTest::keyClick(fields().channels(), Qt::Key_Up);
    QCOMPARE(m_signals->take(), QString("channels(1) base(C2)"));
    QTest::keyClick(fields().minCoverage(), Qt::Key_Up);
    QCOMPARE(m_signals->take(), QString("coverage(1)"));
}

void TstSubJobWidgetValues::detectorCanBeDisabled()
{
    QVERIFY(fields().detector()->isEnabled());
    m_widget->enableDetector(false);
    QVERIFY(!fields().detector()->isEnabled());
    QVERIFY(fields().detectorType()->isEnabled());
    m_widget->enableDetector(true);
    QVERIFY(fields().detector()->isEnabled());
    QCOMPARE(m_signals->take(), QString());
}

void TstSubJobWidgetValues::scpModelIsTheSourceOfTheTable()
{
    JEDVEPLUGIN::SelectableResourceModel model(JedTest::resources({"A 2", "B 3"}), nullptr);
    m_widget->setSCPModel(&model);
    QCOMPARE(m_widget->getSCPModel(), &model);
    QCOMPARE(qobject_cast<QAbstractProxyModel*>(fields().scps()->model())->sourceModel(), &model);
    QCOMPARE(fields().scps()->model()->rowCount(), 2);
    QCOMPARE(m_signals->take(), QString());

    QStandardItemModel other(5, 3);
    m_widget->setSCPModel(&other);
    QCOMPARE(m_widget->getSCPModel(), &other);
    model.slotSelectAll();
    QCOMPARE(m_signals->take(), QString());
    m_widget->setSCPModel(nullptr);
    QVERIFY(!m_widget->getSCPModel());
    QCOMPARE(fields().scps()->model()->rowCount(), 0);
    m_widget->setSCPModel(&model);
    QCOMPARE(fields().scps()->model()->index(0, 0).data().toString(), QString("A"));
}

void TstSubJobWidgetValues::deletedSCPModelIsForgotten()
{
    auto model = std::make_unique<JEDVEPLUGIN::SelectableResourceModel>(JedTest::resources({"A 2"}), nullptr);
    m_widget->setSCPModel(model.get());
    m_widget->setDetector(true, SubJobWidget::DetectorScpList);
    model.reset();
    QVERIFY(!m_widget->getSCPModel());
    m_widget->setDetector(true, SubJobWidget::DetectorScpList);
    QCOMPARE(JedTest::visibleDetectorFields(*m_widget), QString("type"));
}

void TstSubJobWidgetValues::everyFieldIsBlocked()
{
    for (const bool block : {true, false}) {
        m_widget->blockAllSignals(block);
        QCOMPARE(m_widget->signalsBlocked(), block);
        QCOMPARE(m_widget->findChildren<QComboBox*>().size(), 5);
        for (const QComboBox* box : m_widget->findChildren<QComboBox*>())
            QCOMPARE(box->signalsBlocked(), block);
        QCOMPARE(m_widget->findChildren<QCheckBox*>().size(), 7);
        for (const QCheckBox* box : m_widget->findChildren<QCheckBox*>())
            QCOMPARE(box->signalsBlocked(), block);
        QCOMPARE(m_widget->findChildren<QSpinBox*>().size(), 2);
        for (const QSpinBox* box : m_widget->findChildren<QSpinBox*>())
            QCOMPARE(box->signalsBlocked(), block);
        QCOMPARE(fields().scps()->signalsBlocked(), block);
    }
}

void TstSubJobWidgetValues::blockedSettersEmitNothing()
{
    m_widget->setResourceDescription(tuner("HT720", "A", ALL_MODES, {"C1", "C2"}), {});
    m_widget->blockAllSignals(true);
    m_widget->setStartupMode("Timed");
    m_widget->setRecordLocation("Center");
    m_widget->setDetector(true, QFlags<SubJobWidget::DetectorOption>(QFlag(127)));
    m_widget->setDetectorType("HopperDetector");
    m_widget->setDetectorRecordLocation("Center");
    m_widget->setDetectorBaseResource("C2");
    m_widget->setDSCChannels(3);
    m_widget->setMinCoverage(40);
    m_widget->setPreClassifier(true);
    m_widget->setProduction(true);
    m_widget->setAutoSeparation(true);
    m_widget->setFilterSeparation(true);
    m_widget->setOnlineRecombination(true);
    m_widget->setAutoRecording(true);
    QCOMPARE(m_signals->take(), QString());
    m_widget->blockAllSignals(false);
    QCOMPARE(m_signals->take(), QString());

    const QStringList names = {m_widget->getStartupMode(), m_widget->getRecordLocation(),
                               m_widget->getDetectorType(), m_widget->getDetectorRecordLocation(),
                               m_widget->getDetectorBaseResource()};
    QCOMPARE(names, QStringList({"Timed", "Center", "HopperDetector", "Center", "C2"}));
    QVERIFY(m_widget->isDetectorSet());
    m_widget->setProduction(false);
    QCOMPARE(m_signals->take(), QString("production(false) detectorLocation()"));
}

JED_TEST_MAIN(TstSubJobWidgetValues)
#include "tst_subjobwidget_values.moc"
