#include "subjobwidget.h"

#include "selectableresourcemodel.h"

#include <support/resourcesamples.h>
#include <support/subjobwidgetfixture.h>
#include <support/testmain.h>

using JedTest::resources;
using JedTest::SubJobFields;
using JedTest::SubJobSignals;
using JedTest::tuner;
using JedTest::visibleDetectorFields;
using JEDVEPLUGIN::SelectableResourceModel;
using JEDVEPLUGIN::SubJobWidget;

namespace {

using Options = QFlags<SubJobWidget::DetectorOption>;

Options options(int value)
{
    return Options(QFlag(value));
}

/// All that decides which fields of the detector are shown.
struct Situation
{
    int flags;
    bool on;
    bool production;
    bool online;
    int channels;
    int scps;      // 0 none, 1 some, 2 some and one of them is chosen
    bool hasBases; // base resources of the detector
};

const int SITUATIONS = 128 * 2 * 2 * 2 * 2 * 3 * 2;

Situation situation(int number)
{
    const auto take = [&number](int values) {
        const int value = number % values;
        number /= values;
        return value;
    };
    Situation is = {};
    is.flags = take(128);
    is.on = take(2) == 1;
    is.production = take(2) == 1;
    is.online = take(2) == 1;
    is.channels = take(2);
    is.scps = take(3);
    is.hasBases = take(2) == 1;
    return is;
}

QString described(const Situation& is)
{
    return QString("flags %1 on %2 production %3 online %4 channels %5 scps %6 bases %7")
        .arg(is.flags)
        .arg(is.on)
        .arg(is.production)
        .arg(is.online)
        .arg(is.channels)
        .arg(is.scps)
        .arg(is.hasBases);
}

/// Field by field, what is seen in a situation.
QString expectedFields(const Situation& is)
{
    const auto flag = [&is](int value) { return (is.flags & value) != 0; };
    const bool haveChannels = is.channels > 0 && (is.online || !flag(8));
    const bool forScps = is.scps == 2 && flag(4);
    const bool forDetector = flag(64) && is.on && (haveChannels || !flag(2));
    const QList<QPair<const char*, bool>> fields = {
        {"type", is.on},
        {"production", is.on && flag(1)},
        {"auto", is.on && flag(8)},
        {"filter", is.on && flag(8)},
        {"online", is.on && flag(8)},
        {"location", is.on && flag(1) && is.production},
        {"channels", is.on && (flag(8) ? is.online : flag(2))},
        {"base", (forDetector || forScps) && is.hasBases},
        {"coverage", is.on && flag(16) && is.online && is.channels > 0},
        {"recording", is.on && flag(32) && is.online && is.channels > 0},
        {"scps", is.on && flag(4) && is.scps > 0},
    };
    QStringList visible;
    for (const auto& field : fields) {
        if (field.second)
            visible << field.first;
    }
    return visible.join(' ');
}

} // namespace

class TstSubJobWidgetDetector : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void fieldsOfEverySituation();
    void fieldsFollowTheUser();
    void detectorBaseResourceOfEverySituation();
    void hopperWithoutRecombinationHasNoChannels();
    void chosenScpNeedsABaseResourceWithoutADetector();
    void fieldsOfEachTunerAndDetector_data();
    void fieldsOfEachTunerAndDetector();

    void setDetectorTellsWhatHolds();
    void setDetectorTellsTheRecombination();
    void setDetectorThroughTheBox();
    void callersOptionsWin();
    void setDetectorWhileBlocked();
    void setDetectorWithoutLocationKeepsIt();
    void userSwitchesTheDetector();
    void detectorTypeKeepsTheOptions();
    void productionIsTold();
    void recombinationIsTold_data();
    void recombinationIsTold();
    void channelsAreToldBeforeTheBaseResource();

private:
    SubJobFields fields() const { return SubJobFields(*m_widget); }

    std::unique_ptr<SubJobWidget> m_widget;
    std::unique_ptr<SelectableResourceModel> m_scps;
    std::unique_ptr<SubJobSignals> m_signals;
};

void TstSubJobWidgetDetector::init()
{
    m_scps = std::make_unique<SelectableResourceModel>(resources({"A 2", "B 3", "C 0"}), nullptr);
    m_widget = std::make_unique<SubJobWidget>(true, true, nullptr);
    m_signals = std::make_unique<SubJobSignals>(m_widget.get());
}

void TstSubJobWidgetDetector::cleanup()
{
    m_signals.reset();
    m_widget.reset();
    m_scps.reset();
}

void TstSubJobWidgetDetector::fieldsOfEverySituation()
{
    const auto with = tuner("HT720", "T", {}, {"C1", "C2"});
    const auto without = tuner("HT720", "T");
    SelectableResourceModel empty(nullptr);
    SelectableResourceModel chosen(resources({"A 2", "B 3"}), nullptr);
    chosen.slotSelectAll();
    SelectableResourceModel* const models[] = {&empty, m_scps.get(), &chosen};
    for (int number = 0; number < SITUATIONS; ++number) {
        const Situation is = situation(number);
        m_widget->setResourceDescription(is.hasBases ? with : without, {});
        m_widget->setSCPModel(models[is.scps]);
        m_widget->setProduction(is.production);
        m_widget->setOnlineRecombination(is.online);
        m_widget->setDSCChannels(is.channels);
        m_widget->setDetector(is.on, options(is.flags));
        QVERIFY2(visibleDetectorFields(*m_widget) == expectedFields(is),
                 qPrintable(described(is) + "\n    is " + visibleDetectorFields(*m_widget) + "\nshall " +
                            expectedFields(is)));
        QCOMPARE(m_widget->isDetectorSet(), is.on);
    }
}

void TstSubJobWidgetDetector::fieldsFollowTheUser()
{
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1"}), {});
    for (int number = 0; number < SITUATIONS; ++number) {
        const Situation is = situation(number);
        if (!is.hasBases || is.scps == 0)
            continue;
        m_scps->slotDeselectAll();
        m_widget->setSCPModel(m_scps.get());
        m_widget->setProduction(!is.production);
        m_widget->setOnlineRecombination(!is.online);
        m_widget->setDSCChannels(7);
        m_widget->setDetector(is.on, options(is.flags));

        fields().production()->click();
        fields().onlineRecombination()->click();
        fields().channels()->setValue(is.channels);
        if (is.scps == 2)
            m_scps->setHeaderData(0, Qt::Vertical, 2, Qt::CheckStateRole);
        QVERIFY2(visibleDetectorFields(*m_widget) == expectedFields(is),
                 qPrintable(described(is) + "\n    is " + visibleDetectorFields(*m_widget) + "\nshall " +
                            expectedFields(is)));
    }
}

void TstSubJobWidgetDetector::detectorBaseResourceOfEverySituation()
{
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1", "C2"}), {});
    m_widget->setDetectorBaseResource("C2");
    for (int number = 0; number < SITUATIONS; ++number) {
        const Situation is = situation(number);
        if (!is.hasBases || is.scps == 0)
            continue;
        m_widget->setSCPModel(m_scps.get());
        if (is.scps == 2)
            m_scps->slotSelectAll();
        else
            m_scps->slotDeselectAll();
        m_widget->setOnlineRecombination(is.online);
        m_widget->setDSCChannels(is.channels);
        m_widget->setDetector(is.on, options(is.flags));
        const bool isNeeded = expectedFields(is).split(' ').contains("base");
        QVERIFY2(m_widget->getDetectorBaseResource() == QString(isNeeded ? "C2" : ""),
                 qPrintable(described(is)));
    }
}

void TstSubJobWidgetDetector::hopperWithoutRecombinationHasNoChannels()
{
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1"}), {});
    m_widget->setDetectorType("HopperDetector");
    m_widget->setDSCChannels(4);
    fields().detector()->click();
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type auto filter online"));
    fields().onlineRecombination()->click();
    QCOMPARE(visibleDetectorFields(*m_widget),
             QString("type auto filter online channels base coverage recording"));
    fields().channels()->setValue(0);
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type auto filter online channels"));
    fields().channels()->setValue(1);
    fields().onlineRecombination()->click();
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type auto filter online"));
}

void TstSubJobWidgetDetector::chosenScpNeedsABaseResourceWithoutADetector()
{
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1"}), {});
    m_widget->setSCPModel(m_scps.get());
    m_scps->slotSelectAll();
    m_widget->setDetector(false, SubJobWidget::DetectorScpList);
    QCOMPARE(visibleDetectorFields(*m_widget), QString("base"));
    QCOMPARE(m_widget->getDetectorBaseResource(), QString("C1"));
    m_widget->setDetector(false, SubJobWidget::DetectorChannels);
    QCOMPARE(visibleDetectorFields(*m_widget), QString());
}

void TstSubJobWidgetDetector::fieldsOfEachTunerAndDetector_data()
{
    QTest::addColumn<QString>("tunerType");
    QTest::addColumn<QString>("detectorType");
    QTest::addColumn<QString>("plain");  // production, a channel and an SCP are chosen
    QTest::addColumn<QString>("online"); // online recombination too
    const QString hopper = "type auto filter online";
    const QString recombined = " channels base coverage recording";
    const auto row = [](const char* tuner, const char* detector, const QString& plain,
                        const QString& online) {
        QTest::newRow(qPrintable(QString("%1, %2").arg(tuner, detector)))
            << tuner << detector << plain << online;
    };
    row("HT720", "EnergyDetector", "type base scps", "type base scps");
    row("HT720", "SignalDetector", "type production location channels base scps",
        "type production location channels base scps");
    row("HT720", "HopperDetector", hopper + " base scps", hopper + recombined + " scps");
    row("HT720", "unknown", "type base scps", "type base scps");
    row("TRV9KScanSettings", "EnergyDetector", "type base scps", "type base scps");
    row("TRV9KScanSettings", "SignalDetector", "type production location base scps",
        "type production location base scps");
    row("TRV9KScanSettings", "HopperDetector", hopper + " base scps", hopper + recombined + " scps");
    row("TRV9KScanSettings", "unknown", "type base scps", "type base scps");
    for (const char* other : {"DirectionFinder", "MeasurementReceiver", "SignalRecorder", "unknown"}) {
        row(other, "EnergyDetector", "type", "type");
        row(other, "SignalDetector", "type production location base", "type production location base");
        row(other, "HopperDetector", hopper + " base", hopper + recombined);
        row(other, "unknown", "type", "type");
    }
}

void TstSubJobWidgetDetector::fieldsOfEachTunerAndDetector()
{
    QFETCH(QString, tunerType);
    QFETCH(QString, detectorType);
    QFETCH(QString, plain);
    QFETCH(QString, online);
    m_widget->setResourceDescription(tuner(tunerType, "T", {}, {"C1"}), {});
    m_widget->setDetectorType(detectorType);
    m_widget->setSCPModel(m_scps.get());
    m_scps->slotSelectAll();
    m_widget->setProduction(true);
    m_widget->setDSCChannels(2);
    fields().detector()->click();
    QCOMPARE(visibleDetectorFields(*m_widget), plain);
    fields().onlineRecombination()->click();
    QCOMPARE(visibleDetectorFields(*m_widget), online);
    fields().detector()->click();
    const bool hasScps = tunerType == "HT720" || tunerType == "TRV9KScanSettings";
    QCOMPARE(visibleDetectorFields(*m_widget), QString(hasScps ? "base" : ""));
}

void TstSubJobWidgetDetector::setDetectorTellsWhatHolds()
{
    m_widget->setDetector(false, {});
    QCOMPARE(m_signals->take(), QString("base() production(false) detectorLocation()"));
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1"}), {});
    m_widget->blockAllSignals(true);
    m_widget->setProduction(true);
    m_widget->setDSCChannels(2);
    m_widget->setDetector(true, {});
    m_widget->blockAllSignals(false);
    m_widget->setDetector(true, options(1 + 2 + 64));
    QCOMPARE(m_signals->take(), QString("base(C1) production(true) detectorLocation(Station)"));
}

void TstSubJobWidgetDetector::setDetectorTellsTheRecombination()
{
    m_widget->setDetector(false, SubJobWidget::DetectorSeparation);
    QCOMPARE(m_signals->take(), QString("online(false) base() base() production(false) detectorLocation()"));
    m_widget->blockAllSignals(true);
    m_widget->setOnlineRecombination(true);
    m_widget->blockAllSignals(false);
    m_widget->setDetector(false, SubJobWidget::DetectorSeparation);
    QCOMPARE(m_signals->take(), QString("online(true) base() base() production(false) detectorLocation()"));
}

void TstSubJobWidgetDetector::setDetectorThroughTheBox()
{
    m_widget->setDetector(true, {});
    QCOMPARE(m_signals->take(), QString("base() production(false) detectorLocation() detector(true) "
                                        "base() production(false) detectorLocation()"));
    m_widget->setDetector(true, {});
    QCOMPARE(m_signals->take(), QString("base() production(false) detectorLocation()"));
    m_widget->setDetector(false, {});
    QCOMPARE(m_signals->take(), QString("base() production(false) detectorLocation() detector(false) "
                                        "base() production(false) detectorLocation()"));
}

void TstSubJobWidgetDetector::callersOptionsWin()
{
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1"}), {});
    m_widget->setDetectorType("HopperDetector");
    m_widget->setProduction(true);
    m_widget->setDetector(true, SubJobWidget::DetectorProduction);
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type production location"));
    QCOMPARE(m_widget->getDetectorRecordLocation(), QString("Station"));
    fields().production()->click();
    fields().production()->click();
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type production location"));
}

void TstSubJobWidgetDetector::setDetectorWhileBlocked()
{
    m_widget->blockAllSignals(true);
    m_widget->setDetector(true, options(1 + 8));
    m_widget->blockAllSignals(false);
    QCOMPARE(m_signals->take(), QString());
    QVERIFY(fields().detector()->isChecked());
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type production auto filter online"));
}

void TstSubJobWidgetDetector::setDetectorWithoutLocationKeepsIt()
{
    m_widget->setResourceDescription(tuner("HT720", "T"), {});
    m_widget->setProduction(true);
    m_widget->setDetectorRecordLocation("Center");
    m_widget->setDetector(true, SubJobWidget::DetectorChannels);
    QVERIFY(m_widget->isProductionSet());
    m_widget->setDetector(true, SubJobWidget::DetectorProduction);
    QCOMPARE(m_widget->getDetectorRecordLocation(), QString("Center"));
}

void TstSubJobWidgetDetector::userSwitchesTheDetector()
{
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1"}), {});
    m_signals->take();
    fields().detector()->click();
    QVERIFY(m_widget->isDetectorSet());
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type production channels"));
    QCOMPARE(m_signals->take(), QString("base() production(false) detectorLocation() detector(true)"));
    fields().detector()->click();
    QVERIFY(!m_widget->isDetectorSet());
    QCOMPARE(visibleDetectorFields(*m_widget), QString());
    QCOMPARE(m_signals->take(), QString("base() production(false) detectorLocation() detector(false)"));

    m_widget->setDetectorType("HopperDetector");
    m_signals->take();
    fields().detector()->click();
    QCOMPARE(m_signals->take(),
             QString("online(false) base() base() production(false) detectorLocation() detector(true)"));
}

void TstSubJobWidgetDetector::detectorTypeKeepsTheOptions()
{
    m_widget->setResourceDescription(tuner("HT720", "T"), {});
    fields().detector()->click();
    m_signals->take();
    fields().detectorType()->setCurrentIndex(1);
    QCOMPARE(m_signals->take(), QString("type(HopperDetector)"));
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type production channels"));
}

void TstSubJobWidgetDetector::productionIsTold()
{
    m_widget->setResourceDescription(tuner("HT720", "T"), {});
    m_widget->setDetector(true, SubJobWidget::DetectorProduction);
    m_signals->take();
    fields().production()->click();
    QCOMPARE(m_signals->take(), QString("production(true) detectorLocation(Station)"));
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type production location"));
    fields().production()->click();
    QCOMPARE(m_signals->take(), QString("production(false) detectorLocation()"));
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type production"));
}

void TstSubJobWidgetDetector::recombinationIsTold_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("told");
    QTest::newRow("without separation") << 127 - 8 << "online(true)";
    QTest::newRow("with separation") << 127 << "online(true) base(C1)";
}

void TstSubJobWidgetDetector::recombinationIsTold()
{
    QFETCH(int, flags);
    QFETCH(QString, told);
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1"}), {});
    m_widget->setDSCChannels(1);
    m_widget->setDetector(true, options(flags));
    m_signals->take();
    fields().onlineRecombination()->click();
    QCOMPARE(m_signals->take(), told);
}

void TstSubJobWidgetDetector::channelsAreToldBeforeTheBaseResource()
{
    m_widget->setResourceDescription(tuner("HT720", "T", {}, {"C1"}), {});
    m_widget->setDetector(true, options(2 + 64));
    m_signals->take();
    fields().channels()->setValue(3);
    QCOMPARE(m_signals->take(), QString("channels(3) base(C1)"));
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type channels base"));
    fields().channels()->setValue(0);
    QCOMPARE(m_signals->take(), QString("channels(0) base()"));
    QCOMPARE(visibleDetectorFields(*m_widget), QString("type channels"));
}

JED_TEST_MAIN(TstSubJobWidgetDetector)
#include "tst_subjobwidget_detector.moc"
