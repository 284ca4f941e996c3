#include <support/resourcedialogfixture.h>
#include <support/testmain.h>

using JedTest::DescriptionPtr;
using JedTest::receiver;
using JedTest::RESOURCE_KINDS;

namespace {

const QString HT720 = "HT720";
const QString TRV9K = "TRV9KScanSettings";
const QString RECORDER = "SignalRecorder";

const char* const SIGNAL_DETECTOR = "Signal detector";
const char* const HOPPER_DETECTOR = "Hopper detector";

/// What a user has set, and which resource there is.
struct Setting
{
    int kind;         // position in RESOURCE_KINDS, -1 for a type that is none
    int detectorType; // number in the job file
    bool isDetecting;
    bool isProducing;
    bool isRecombining;
    int channels;
    QString connectable;

    bool hasDetectors() const { return kind == 0 || kind == 1; }
    bool produces() const { return isDetecting && detectorType == 1; }
    bool separates() const { return isDetecting && detectorType == 2; }
    bool records() const { return produces() && isProducing; }
    bool usesBaseResource() const
    {
        return isDetecting && channels >= 1 && !connectable.isEmpty() && (detectorType != 2 || isRecombining);
    }
    bool usesChannels() const { return separates() ? isRecombining : produces() && kind == 0; }
};

QString sorted(QStringList names)
{
    names.sort();
    return names.join(' ');
}

/// The fields that the user sees then, in the order of their names.
QString expectedFields(const Setting& setting, bool hasBoxBeenTouched)
{
    const bool isCovering = setting.usesBaseResource() && setting.detectorType == 2;
    const std::pair<const char*, bool> fields[] = {
        {"TunerType", true},
        {"BaseResource", true},
        {"TunerName", true},
        {"RecordLocation", setting.kind >= 0 && setting.kind <= 2},
        {"Detector", setting.hasDetectors()},
        {"DetectorType", setting.hasDetectors() && (setting.isDetecting || !hasBoxBeenTouched)},
        {"Production", setting.produces()},
        {"AutoSeparation", setting.separates()},
        {"FilterSeparation", setting.separates()},
        {"OnlineRecombination", setting.separates()},
        {"DetectorRecordLocation", setting.records()},
        {"DSCChannels", setting.usesChannels()},
        {"DetectorBaseResource", setting.usesBaseResource()},
        {"MinCoverage", isCovering},
        {"AutoRecording", isCovering},
    };
    QStringList names;
    for (const auto& field : fields) {
        if (field.second)
            names << field.first;
    }
    return sorted(names);
}

/// The results then, with everything else checked, a coverage of 70 % and the last record location.
QString expectedResults(const Setting& setting)
{
    static const QStringList s_types = {"EnergyDetector", "SignalDetector", "HopperDetector"};
    static const QStringList s_locations = {"Receiver", "Station", "Station"};
    const bool isSeparator = setting.detectorType == 2;
    QStringList flags;
    if (setting.isDetecting)
        flags << "detector";
    if (setting.records())
        flags << "production";
    if (isSeparator)
        flags << QStringList({"auto", "filter"});
    if (isSeparator && setting.isRecombining)
        flags << "online";
    if (isSeparator)
        flags << "recording";
    const bool hasBaseResource = setting.isDetecting && setting.channels >= 1;
    return QString("A||%1|%2|%3 DSC|%4%|%5|%6|%7")
        .arg(s_locations.value(setting.kind), s_types.at(setting.detectorType),
             QString::number(setting.channels), isSeparator ? "70" : "50", setting.records() ? "Center" : "",
             hasBaseResource ? setting.connectable.section(' ', 0, 0) : "", flags.join(' '));
}

} // namespace

class TstResourceSelectionDetector : public QObject, private JedTest::ResourceDialogFixture
{
    Q_OBJECT
private slots:
    void cleanup() { close(); }

    void fieldsAndResultsOfEverySetting_data();
    void fieldsAndResultsOfEverySetting();
    void detectorTypes_data();
    void detectorTypes();
    void detectorTypesAnnounceNothingWhileTheyAreFilled();
    void detectorBoxHidesItsType();
    void typeWithoutDetectorsAndBack_data();
    void typeWithoutDetectorsAndBack();
    void typeWithoutDetectorsHasNoBaseResources();
    void secondTypeWithoutDetectorsForgetsTheBox();
    void otherTypeWithDetectorsBeginsWithThePreset();
    void channelWordingFollowsTheDetectorType();
    void channelsAppearWithOnlineRecombination();
    void onlineRecombinationShowsChannelsOfAnyDetector();
    void separationShowsChannelsOfAnyType();
    void hiddenChannelsStillCount();
    void productionEndsWithItsDetectorType();
    void productionShowsTheRecordLocation();
    void baseResourcesAreFilled_data();
    void baseResourcesAreFilled();
    void choiceStaysAmongTheSameBaseResources();
    void cancelledDialogHasNeutralResults();

private:
    void apply(const Setting& setting);
};

void TstResourceSelectionDetector::apply(const Setting& setting)
{
    for (const char* const name : {"AutoSeparation", "FilterSeparation", "AutoRecording"})
        check(name)->setChecked(true);
    spin("MinCoverage")->setValue(70);
    combo("DetectorRecordLocation")->setCurrentIndex(2);
    check("OnlineRecombination")->setChecked(setting.isRecombining);
    spin("DSCChannels")->setValue(setting.channels);
    if (!setting.hasDetectors())
        return;
    combo("DetectorType")->setCurrentIndex(setting.detectorType - 1);
    // As a user does it: the box is checked, its fields are set, and then it may be unchecked again.
    check("Detector")->setChecked(false);
    check("Detector")->setChecked(true);
    check("Production")->setChecked(setting.isProducing);
    check("Detector")->setChecked(setting.isDetecting);
}

void TstResourceSelectionDetector::fieldsAndResultsOfEverySetting_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("preset");
    QTest::addColumn<QString>("connectable");
    for (int kind = -1; kind < RESOURCE_KINDS.size(); ++kind) {
        for (const bool preset : {false, true}) {
            for (const char* const connectable : {"", "X", "Y X"}) {
                const QString name = QString("%1, preset %2, [%3]")
                                         .arg(RESOURCE_KINDS.value(kind, "Strange"))
                                         .arg(preset)
                                         .arg(connectable);
                QTest::newRow(qPrintable(name)) << kind << preset << connectable;
            }
        }
    }
}

void TstResourceSelectionDetector::fieldsAndResultsOfEverySetting()
{
    QFETCH(int, kind);
    QFETCH(bool, preset);
    QFETCH(QString, connectable);

    const bool hasDetectors = kind == 0 || kind == 1;
    const QList<int> detectorTypes = kind == 0 ? QList<int>{1, 2} : QList<int>{kind == 1 ? 1 : 0};
    for (const int detectorType : detectorTypes) {
        for (int bits = 0; bits < 16; ++bits) {
            Setting setting{kind,       detectorTypes.first(), preset && hasDetectors, false, false, 0,
                            connectable};
            open({receiver(RESOURCE_KINDS.value(kind, "Strange"), "A", QString(), connectable)},
                 {true, preset, false, {}});
            QCOMPARE(visibleFields(), expectedFields(setting, false));
            QCOMPARE(check("Detector")->isChecked(), preset && hasDetectors);

            setting = {kind,
                       detectorType,
                       hasDetectors && (bits & 1) != 0,
                       (bits & 2) != 0,
                       (bits & 4) != 0,
                       (bits & 8) != 0 ? 5 : 0,
                       connectable};
            apply(setting);
            if (hasDetectors)
                QCOMPARE(visibleFields(), expectedFields(setting, true));
            m_dialog->accept();
            QCOMPARE(results(), expectedResults(setting));
        }
    }
}

void TstResourceSelectionDetector::detectorTypes_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("types");
    QTest::newRow("two") << HT720 << "[Signal detector], Hopper detector";
    QTest::newRow("one") << TRV9K << "[Signal detector] disabled";
}

void TstResourceSelectionDetector::detectorTypes()
{
    QFETCH(QString, kind);
    QFETCH(QString, types);
    open({receiver(kind, "A")}, {});
    QCOMPARE(entries("DetectorType"), types);
    QVERIFY(isVisible("Detector"));
}

void TstResourceSelectionDetector::detectorTypesAnnounceNothingWhileTheyAreFilled()
{
    open({receiver(HT720, "A"), receiver(TRV9K, "B")}, {true, true, false, {}});
    combo("DetectorType")->setCurrentIndex(1);
    QSignalSpy spy(combo("DetectorType"), SIGNAL(currentIndexChanged(QString)));
    combo("TunerType")->setCurrentIndex(1);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(entries("DetectorType"), QString("[Signal detector] disabled"));
    QVERIFY(isVisible("Production"));
    QVERIFY(!isVisible("AutoSeparation"));
}

void TstResourceSelectionDetector::detectorBoxHidesItsType()
{
    open({receiver(HT720, "A")}, {});
    QVERIFY(isVisible("DetectorType"));
    check("Detector")->setChecked(true);
    QVERIFY(isVisible("DetectorType"));
    check("Detector")->setChecked(false);
    QVERIFY(!isVisible("DetectorType"));
    QCOMPARE(combo("DetectorType")->currentText(), QString(SIGNAL_DETECTOR));
}

void TstResourceSelectionDetector::typeWithoutDetectorsAndBack_data()
{
    QTest::addColumn<bool>("preset");
    QTest::addColumn<bool>("checked");
    for (const bool preset : {false, true}) {
        for (const bool checked : {false, true})
            QTest::newRow(qPrintable(QString("preset %1, then %2").arg(preset).arg(checked)))
                << preset << checked;
    }
}

void TstResourceSelectionDetector::typeWithoutDetectorsAndBack()
{
    QFETCH(bool, preset);
    QFETCH(bool, checked);

    open({receiver(HT720, "A", QString(), "X"), receiver(RECORDER, "B")}, {true, preset, false, {}});
    check("Detector")->setChecked(checked);
    spin("DSCChannels")->setValue(1);
    combo("TunerType")->setCurrentText(RECORDER);
    QCOMPARE(visibleFields(), QString("BaseResource TunerName TunerType"));
    QVERIFY(!check("Detector")->isChecked());
    QCOMPARE(combo("DetectorBaseResource")->count(), 0);

    combo("TunerType")->setCurrentText(HT720);
    QCOMPARE(check("Detector")->isChecked(), checked);
    QVERIFY(isVisible("Detector"));
    QCOMPARE(isVisible("DetectorType"), checked);
    QCOMPARE(isVisible("Production"), checked);
    QCOMPARE(isVisible("DSCChannels"), checked);
    QCOMPARE(isVisible("DetectorBaseResource"), checked);
    QCOMPARE(entries("DetectorBaseResource"), QString("[X] disabled"));
}

void TstResourceSelectionDetector::typeWithoutDetectorsHasNoBaseResources()
{
    for (const bool preset : {true, false}) {
        open({receiver(HT720, "A", "", "C1 C2"), receiver(RECORDER, "B", "", "C3")},
             {true, preset, false, {}});
        QCOMPARE(combo("DetectorBaseResource")->count(), 2);
        combo("TunerType")->setCurrentText(RECORDER);
        QCOMPARE(combo("DetectorBaseResource")->count(), 0);
        combo("TunerType")->setCurrentText(HT720);
        QCOMPARE(entries("DetectorBaseResource"), QString("[C1], C2"));
    }
}

void TstResourceSelectionDetector::secondTypeWithoutDetectorsForgetsTheBox()
{
    open({receiver(HT720, "A"), receiver(RECORDER, "B"), receiver("DirectionFinder", "C")},
         {true, true, false, {}});
    combo("TunerType")->setCurrentText(RECORDER);
    combo("TunerType")->setCurrentText("DirectionFinder");
    combo("TunerType")->setCurrentText(HT720);
    QVERIFY(!check("Detector")->isChecked());
}

void TstResourceSelectionDetector::otherTypeWithDetectorsBeginsWithThePreset()
{
    open({receiver(HT720, "A"), receiver(TRV9K, "B")}, {true, false, false, {}});
    check("Detector")->setChecked(true);
    combo("TunerType")->setCurrentText(TRV9K);
    QVERIFY(!check("Detector")->isChecked());
    QVERIFY(isVisible("Detector"));
    QVERIFY(!isVisible("DetectorType"));
}

void TstResourceSelectionDetector::channelWordingFollowsTheDetectorType()
{
    open({receiver(HT720, "A")}, {true, true, false, {}});
    const auto wording = [this] {
        return find<QLabel>("DSCChannelsLabel")->text() + "|" + spin("DSCChannels")->toolTip() + "|" +
               spin("DSCChannels")->accessibleName();
    };
    const QString usual = "DSC Channels|set number of DSC Channels|DSC Channels";
    QCOMPARE(wording(), usual);
    combo("DetectorType")->setCurrentText(HOPPER_DETECTOR);
    QCOMPARE(wording(), QString("ST Channels|set number of ST Channels|ST Channels"));
    combo("DetectorType")->setCurrentText(SIGNAL_DETECTOR);
    QCOMPARE(wording(), usual);
}

void TstResourceSelectionDetector::channelsAppearWithOnlineRecombination()
{
    open({receiver(HT720, "A", QString(), "X Y"), receiver(HT720, "B")}, {true, true, false, {}});
    spin("DSCChannels")->setValue(3);
    QVERIFY(isVisible("DetectorBaseResource"));
    combo("DetectorType")->setCurrentText(HOPPER_DETECTOR);
    const QStringList depending = {"DSCChannels", "DetectorBaseResource", "MinCoverage", "AutoRecording"};
    const auto areVisible = [&](bool visible) {
        return std::all_of(depending.begin(), depending.end(),
                           [&](const QString& name) { return isVisible(name) == visible; });
    };
    QVERIFY(areVisible(false));
    check("OnlineRecombination")->setChecked(true);
    QVERIFY(areVisible(true));
    spin("DSCChannels")->setValue(0);
    QVERIFY(isVisible("DSCChannels"));
    QVERIFY(!isVisible("DetectorBaseResource"));
    QVERIFY(!isVisible("MinCoverage"));
    spin("DSCChannels")->setValue(128);
    QVERIFY(areVisible(true));
    combo("BaseResource")->setCurrentText("B"); // with nothing that could be connected
    QVERIFY(isVisible("DSCChannels"));
    QVERIFY(!isVisible("DetectorBaseResource"));
    QVERIFY(!isVisible("AutoRecording"));
    combo("BaseResource")->setCurrentText("A");
    QVERIFY(areVisible(true));
    check("OnlineRecombination")->setChecked(false);
    QVERIFY(areVisible(false));
}

// The box is hidden then; it only happens to code that sets hidden fields.
void TstResourceSelectionDetector::onlineRecombinationShowsChannelsOfAnyDetector()
{
    open({receiver(TRV9K, "A", QString(), "X")}, {true, true, false, {}});
    QVERIFY(!isVisible("DSCChannels"));
    check("OnlineRecombination")->setChecked(true);
    QVERIFY(isVisible("DSCChannels"));
    check("OnlineRecombination")->setChecked(false);
    QVERIFY(!isVisible("DSCChannels"));
}

// No type but the first offers a detector that separates; it decides nevertheless.
void TstResourceSelectionDetector::separationShowsChannelsOfAnyType()
{
    open({receiver(TRV9K, "A")}, {true, true, false, {}});
    check("OnlineRecombination")->setChecked(true);
    combo("DetectorType")->addItem(HOPPER_DETECTOR);
    combo("DetectorType")->setCurrentIndex(1);
    QVERIFY(isVisible("DSCChannels"));
    combo("DetectorType")->setCurrentIndex(0);
    QVERIFY(!isVisible("DSCChannels"));
}

void TstResourceSelectionDetector::hiddenChannelsStillCount()
{
    open({receiver(HT720, "A", QString(), "X"), receiver(TRV9K, "B", QString(), "Y")},
         {true, true, false, {}});
    spin("DSCChannels")->setValue(4);
    combo("TunerType")->setCurrentText(TRV9K);
    QVERIFY(!isVisible("DSCChannels"));
    QVERIFY(isVisible("DetectorBaseResource"));
    m_dialog->accept();
    QCOMPARE(results(), QString("B||Station|SignalDetector|4 DSC|50%||Y|detector"));
}

void TstResourceSelectionDetector::productionEndsWithItsDetectorType()
{
    open({receiver(HT720, "A")}, {true, true, false, {}});
    check("Production")->setChecked(true);
    combo("DetectorType")->setCurrentText(HOPPER_DETECTOR);
    QVERIFY(!check("Production")->isChecked());
    QVERIFY(!isVisible("DetectorRecordLocation"));
    combo("DetectorType")->setCurrentText(SIGNAL_DETECTOR);
    QVERIFY(!check("Production")->isChecked());
    check("Production")->setChecked(true);
    check("Detector")->setChecked(false);
    QVERIFY(!check("Production")->isChecked());
}

void TstResourceSelectionDetector::productionShowsTheRecordLocation()
{
    open({receiver(HT720, "A")}, {true, true, false, {}});
    QVERIFY(!isVisible("DetectorRecordLocation"));
    check("Production")->setChecked(true);
    QVERIFY(isVisible("DetectorRecordLocation"));
    combo("DetectorRecordLocation")->setCurrentIndex(0);
    m_dialog->accept();
    QCOMPARE(m_dialog->getDetectorRecordLocation(), QString("Detector"));
    check("Production")->setChecked(false);
    QVERIFY(!isVisible("DetectorRecordLocation"));
    m_dialog->accept();
    QCOMPARE(m_dialog->getDetectorRecordLocation(), QString());
}

void TstResourceSelectionDetector::baseResourcesAreFilled_data()
{
    QTest::addColumn<QString>("connectable");
    QTest::addColumn<QString>("filled");
    QTest::newRow("one") << "X"
                         << "[X] disabled";
    QTest::newRow("two, in their order") << "Y X"
                                         << "[Y], X";
    QTest::newRow("other texts") << "y z"
                                 << "[y], z";
    QTest::newRow("one more") << "P Q R"
                              << "[P], Q, R";
    QTest::newRow("none") << ""
                          << "";
}

void TstResourceSelectionDetector::baseResourcesAreFilled()
{
    QFETCH(QString, connectable);
    QFETCH(QString, filled);
    open({receiver(HT720, "A", QString(), connectable), receiver(HT720, "B", QString(), "P Q")},
         {true, true, false, {}});
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(entries("DetectorBaseResource"), filled);
        combo("BaseResource")->setCurrentIndex(1);
        QCOMPARE(entries("DetectorBaseResource"), QString("[P], Q"));
        combo("BaseResource")->setCurrentIndex(0);
    }
}

void TstResourceSelectionDetector::choiceStaysAmongTheSameBaseResources()
{
    open({receiver(HT720, "A", QString(), "X Y"), receiver(HT720, "B", QString(), "Y X"),
          receiver(HT720, "C", QString(), "Y Z"), receiver(HT720, "D", QString(), "y z")},
         {true, true, false, {}});
    spin("DSCChannels")->setValue(1);
    combo("DetectorBaseResource")->setCurrentIndex(1);
    combo("BaseResource")->setCurrentIndex(1); // the same two, in another order
    QCOMPARE(entries("DetectorBaseResource"), QString("X, [Y]"));
    spin("DSCChannels")->setValue(2);
    QCOMPARE(entries("DetectorBaseResource"), QString("X, [Y]"));
    combo("BaseResource")->setCurrentIndex(2);
    QCOMPARE(entries("DetectorBaseResource"), QString("[Y], Z"));
    combo("BaseResource")->setCurrentIndex(3); // the same but for their case
    QCOMPARE(entries("DetectorBaseResource"), QString("[y], z"));
    m_dialog->accept();
    QCOMPARE(m_dialog->getDetectorBaseResource(), QString("y"));
}

void TstResourceSelectionDetector::cancelledDialogHasNeutralResults()
{
    open({receiver(HT720, "A", "Timed Manual", "X")}, {true, true, true, {}});
    check("PreClassifier")->setChecked(true);
    check("OnlineRecombination")->setChecked(true);
    apply({0, 2, true, false, true, 7, "X"});
    m_dialog->accept();
    QCOMPARE(results(), QString("A|Timed|Receiver|HopperDetector|7 DSC|70%||X|"
                                "detector auto filter online recording preclassifier"));
    m_dialog->reject();
    QCOMPARE(results(), QString("none||||0 DSC|0%|||"));

    combo("DetectorType")->setCurrentIndex(0);
    check("Production")->setChecked(true);
    m_dialog->accept();
    QCOMPARE(m_dialog->getDetectorRecordLocation(), QString("Center"));
    QVERIFY(m_dialog->isProductionSet());
    m_dialog->done(2);
    QCOMPARE(results(), QString("none||||0 DSC|0%|||"));
}

JED_TEST_MAIN(TstResourceSelectionDetector)
#include "tst_resourceselectiondetector.moc"
