#include "jedcommonhelper.h"

#include <limits>

using JEDVE::enJOB_TYPE;
using JEDVEPLUGIN::JEDCommonHelper;
using JobXml::Detector;
using JobXml::ResourceDescription;

class TstCapabilities : public QObject
{
    Q_OBJECT
private slots:
    void jobFileHasWhatIsReliedOn();
    void detectorByJobType_data();
    void detectorByJobType();
    void resourceAndDetector_data();
    void resourceAndDetector();
    void resource_data();
    void resource();
    void detector_data();
    void detector();
    void resourceNamesAreConverted_data();
    void resourceNamesAreConverted();
    void availableDetectorsAreTheSupportedOnes();
    void recordLocationNames_data();
    void recordLocationNames();
    void detectorTypeTexts_data();
    void detectorTypeTexts();
    void sortedResources_data();
    void sortedResources();
    void sortedResourceNames_data();
    void sortedResourceNames();
    void everyOrderIsSortedAlike();
};

namespace {

// What is none of the kinds: just outside, and what only looks like a kind in fewer bits.
const QList<int> OUTSIDE = {
    -2, -1, 5, 256, 65536, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
const QList<int> RESOURCES = QList<int>({0, 1, 2, 3, 4}) + OUTSIDE;
const QList<int> DETECTORS = QList<int>({0, 1, 2, 3, 4}) + OUTSIDE;

ResourceDescription::Type resourceType(int number)
{
    return ResourceDescription::Type(number);
}

Detector::Type detectorType(int number)
{
    return Detector::Type(number);
}

/// The names of the answers that are yes.
QString told(std::initializer_list<std::pair<const char*, bool>> answers)
{
    QStringList names;
    for (const auto& answer : answers) {
        if (answer.second)
            names << answer.first;
    }
    return names.join(' ');
}

} // namespace

void TstCapabilities::jobFileHasWhatIsReliedOn()
{
    QVERIFY(ResourceDescription::GetTypes().size() >= 5);
    QVERIFY(ResourceDescription::GetGUIRecordLocations().size() >= 3);
    QVERIFY(Detector::GetTypes().size() >= 3);
    QCOMPARE(Detector::GetTypes().size(), Detector::GetGUITypes().size());
    for (int i = 0; i < Detector::GetTypes().size(); ++i)
        QVERIFY(!Detector::GetTypes().contains(Detector::GetGUITypes().at(i)));
}

void TstCapabilities::detectorByJobType_data()
{
    QTest::addColumn<int>("jobType");
    QTest::addColumn<bool>("supported");
    for (const int jobType : RESOURCES)
        QTest::newRow(qPrintable(QString::number(jobType))) << jobType << (jobType != 2);
}

void TstCapabilities::detectorByJobType()
{
    QFETCH(int, jobType);
    QFETCH(bool, supported);
    QCOMPARE(JEDCommonHelper::supportsDetector(enJOB_TYPE(jobType)), supported);
}

void TstCapabilities::resourceAndDetector_data()
{
    QTest::addColumn<int>("resource");
    QTest::addColumn<int>("detector");
    QTest::addColumn<QString>("answers");
    const QMap<QPair<int, int>, QString> yes = {
        {{0, 1}, "DetectorType DSCChannel"}, {{0, 2}, "DetectorType DSCChannel"}, {{1, 1}, "DetectorType"}};
    for (const int resource : RESOURCES) {
        for (const int detector : DETECTORS)
            QTest::newRow(qPrintable(QString("R%1 D%2").arg(resource).arg(detector)))
                << resource << detector << yes.value({resource, detector}, "");
    }
}

void TstCapabilities::resourceAndDetector()
{
    QFETCH(int, resource);
    QFETCH(int, detector);
    QFETCH(QString, answers);
    const ResourceDescription::Type r = resourceType(resource);
    const Detector::Type d = detectorType(detector);
    QCOMPARE(told({{"DetectorType", JEDCommonHelper::supportsDetectorType(r, d)},
                   {"DSCChannel", JEDCommonHelper::supportsDSCChannel(r, d)}}),
             answers);
}

void TstCapabilities::resource_data()
{
    QTest::addColumn<int>("resource");
    QTest::addColumn<QString>("answers");
    QTest::addColumn<QStringList>("detectors");
    QTest::addColumn<QStringList>("recordLocations");
    QTest::addColumn<QString>("defaultRecordLocation");
    const QStringList detectors = Detector::GetGUITypes();
    const QStringList locations = ResourceDescription::GetGUIRecordLocations();
    const QString both = "AutonomousSCPs RecordLocation";
    QTest::newRow("R0") << 0 << both << QStringList(detectors.mid(1, 2)) << locations << locations.at(1);
    QTest::newRow("R1") << 1 << both << QStringList(detectors.mid(1, 1)) << locations << locations.at(2);
    QTest::newRow("R2") << 2 << "RecordLocation" << QStringList() << locations << locations.at(2);
    for (const int resource : QList<int>({3, 4}) + OUTSIDE)
        QTest::newRow(qPrintable(QString("R%1").arg(resource)))
            << resource << "" << QStringList() << QStringList() << QString();
}

void TstCapabilities::resource()
{
    QFETCH(int, resource);
    QFETCH(QString, answers);
    QFETCH(QStringList, detectors);
    QFETCH(QStringList, recordLocations);
    QFETCH(QString, defaultRecordLocation);
    const ResourceDescription::Type r = resourceType(resource);
    QCOMPARE(told({{"AutonomousSCPs", JEDCommonHelper::supportsAutonomousSCPs(r)},
                   {"RecordLocation", JEDCommonHelper::providesRecordLocation(r)}}),
             answers);
    QCOMPARE(JEDCommonHelper::getAvailableDetectorTypes(r), detectors);
    QCOMPARE(JEDCommonHelper::getAvailableGUIRecordLocations(r), recordLocations);
    QCOMPARE(JEDCommonHelper::getDefaultGUIRecordLocation(r), defaultRecordLocation);
    QCOMPARE(JEDCommonHelper::getDefaultGUIRecordLocation(r).isNull(), defaultRecordLocation.isNull());
}

void TstCapabilities::detector_data()
{
    QTest::addColumn<int>("detector");
    QTest::addColumn<QString>("answers");
    const QMap<int, QString> yes = {{1, "AutonomousSCPs BaseResource Production"},
                                    {2, "BaseResource ProcessingSettings MinCoverage AutoRecording"}};
    for (const int detector : DETECTORS)
        QTest::newRow(qPrintable(QString("D%1").arg(detector))) << detector << yes.value(detector, "");
}

void TstCapabilities::detector()
{
    QFETCH(int, detector);
    QFETCH(QString, answers);
    const Detector::Type d = detectorType(detector);
    QCOMPARE(told({{"AutonomousSCPs", JEDCommonHelper::supportsAutonomousSCPs(d)},
                   {"BaseResource", JEDCommonHelper::supportsDetectorBaseResource(d)},
                   {"Production", JEDCommonHelper::supportsProduction(d)},
                   {"ProcessingSettings", JEDCommonHelper::supportsDetectorProcessingSettings(d)},
                   {"MinCoverage", JEDCommonHelper::supportsMinCoverage(d)},
                   {"AutoRecording", JEDCommonHelper::supportsAutoRecording(d)}}),
             answers);
}

void TstCapabilities::resourceNamesAreConverted_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("resource");
    const QStringList names = ResourceDescription::GetTypes();
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(qPrintable(names.at(i))) << names.at(i) << i;
    QTest::newRow("small letters") << names.first().toLower() << -1;
    QTest::newRow("text for the user") << ResourceDescription::GetGUITypes().first() << -1;
    QTest::newRow("number") << "0" << -1;
    QTest::newRow("empty") << "" << -1;
    QTest::newRow("null") << QString() << -1;
}

void TstCapabilities::resourceNamesAreConverted()
{
    QFETCH(QString, name);
    QFETCH(int, resource);
    const ResourceDescription::Type r = resourceType(resource);
    QCOMPARE(JEDCommonHelper::supportsAutonomousSCPs(name), JEDCommonHelper::supportsAutonomousSCPs(r));
    QCOMPARE(JEDCommonHelper::providesRecordLocation(name), JEDCommonHelper::providesRecordLocation(r));
    QCOMPARE(JEDCommonHelper::getAvailableDetectorTypes(name), JEDCommonHelper::getAvailableDetectorTypes(r));
    QCOMPARE(JEDCommonHelper::getAvailableGUIRecordLocations(name),
             JEDCommonHelper::getAvailableGUIRecordLocations(r));
    QCOMPARE(JEDCommonHelper::getDefaultGUIRecordLocation(name),
             JEDCommonHelper::getDefaultGUIRecordLocation(r));
    QCOMPARE(JEDCommonHelper::getDefaultGUIRecordLocation(name).isNull(),
             JEDCommonHelper::getDefaultGUIRecordLocation(r).isNull());
}

void TstCapabilities::availableDetectorsAreTheSupportedOnes()
{
    for (const int resource : RESOURCES) {
        QStringList supported;
        for (const int detector : DETECTORS) {
            if (JEDCommonHelper::supportsDetectorType(resourceType(resource), detectorType(detector)))
                supported << Detector::GetGUITypes().value(detector);
        }
        QCOMPARE(JEDCommonHelper::getAvailableDetectorTypes(resourceType(resource)), supported);
    }
}

void TstCapabilities::recordLocationNames_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = ResourceDescription::GetRecordLocations() + Detector::GetRecordLocations();
    for (const QString& name : names + QStringList({"", "nowhere", names.first().toUpper()}))
        QTest::newRow(qPrintable("name " + name)) << name;
}

void TstCapabilities::recordLocationNames()
{
    QFETCH(QString, name);
    QCOMPARE(int(JEDCommonHelper::getRecordLocation(name)),
             ResourceDescription::GetRecordLocations().indexOf(name));
    QCOMPARE(int(JEDCommonHelper::getDetectorRecordLocation(name)),
             Detector::GetRecordLocations().indexOf(name));
}

void TstCapabilities::detectorTypeTexts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const QStringList names = Detector::GetTypes();
    const QStringList texts = Detector::GetGUITypes();
    for (int i = 0; i < names.size(); ++i)
        QTest::newRow(qPrintable(names.at(i))) << names.at(i) << texts.at(i);
    for (const QString& unknown : {QString(), QString("Detector"), names.first().toUpper()})
        QTest::newRow(qPrintable("unknown " + unknown)) << unknown << unknown;
}

void TstCapabilities::detectorTypeTexts()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QCOMPARE(JEDCommonHelper::detectorTypeToGUI(name), text);
    QCOMPARE(JEDCommonHelper::detectorTypeFromGUI(text), name);
    QCOMPARE(JEDCommonHelper::detectorTypeToGUI(text), text);
    QCOMPARE(JEDCommonHelper::detectorTypeFromGUI(name), name);
}

void TstCapabilities::sortedResources_data()
{
    QTest::addColumn<QList<int>>("resources");
    QTest::addColumn<QList<int>>("sorted");
    QTest::newRow("none") << QList<int>() << QList<int>();
    QTest::newRow("one") << QList<int>({2}) << QList<int>({2});
    QTest::newRow("the three kinds") << QList<int>({2, 1, 0}) << QList<int>({0, 1, 2});
    QTest::newRow("two") << QList<int>({4, 2}) << QList<int>({4, 2});
    QTest::newRow("equal ranks stay as they are")
        << QList<int>({3, 0, 2, 4, 1}) << QList<int>({3, 0, 4, 1, 2});
    QTest::newRow("unknown ones last") << QList<int>({7, 2, -1, 1}) << QList<int>({1, 2, 7, -1});
    QTest::newRow("several times") << QList<int>({2, 1, 2, 1}) << QList<int>({1, 1, 2, 2});
}

void TstCapabilities::sortedResources()
{
    QFETCH(QList<int>, resources);
    QFETCH(QList<int>, sorted);
    QList<ResourceDescription::Type> types;
    for (const int resource : resources)
        types << resourceType(resource);
    const QList<ResourceDescription::Type> before = types;
    JEDCommonHelper::sortResourceTypes(types);
    QList<int> numbers;
    for (const ResourceDescription::Type type : types)
        numbers << type;
    QCOMPARE(numbers, sorted);
    QCOMPARE(before.size(), resources.size()); // A copy made before is not sorted along.
    for (int i = 0; i < before.size(); ++i)
        QCOMPARE(int(before.at(i)), resources.at(i));
}

void TstCapabilities::sortedResourceNames_data()
{
    QTest::addColumn<QStringList>("resources");
    QTest::addColumn<QStringList>("sorted");
    const QStringList r = ResourceDescription::GetTypes();
    QTest::newRow("none") << QStringList() << QStringList();
    QTest::newRow("the three kinds") << QStringList({r[2], r[1], r[0]}) << QStringList({r[0], r[1], r[2]});
    QTest::newRow("two") << QStringList({r[4], r[2]}) << QStringList({r[4], r[2]});
    QTest::newRow("equal ranks stay as they are")
        << QStringList({r[4], r[1], r[3], r[0]}) << QStringList({r[4], r[3], r[0], r[1]});
    QTest::newRow("unknown ones last")
        << QStringList({"x", r[2], "", r[1]}) << QStringList({r[1], r[2], "x", ""});
}

void TstCapabilities::sortedResourceNames()
{
    QFETCH(QStringList, resources);
    QFETCH(QStringList, sorted);
    JEDCommonHelper::sortResourceTypes(resources);
    QCOMPARE(resources, sorted);
}

void TstCapabilities::everyOrderIsSortedAlike()
{
    const QMap<int, int> ranks = {{2, 0}, {1, 1}, {3, 2}, {4, 2}, {0, 2}};
    QList<int> order = {-1, 0, 1, 2, 3, 4, 5};
    do {
        QList<ResourceDescription::Type> types;
        for (const int resource : qAsConst(order))
            types << resourceType(resource);
        JEDCommonHelper::sortResourceTypes(types);
        for (int i = 1; i < types.size(); ++i)
            QVERIFY(ranks.value(types.at(i - 1), -1) >= ranks.value(types.at(i), -1));
    } while (std::next_permutation(order.begin(), order.end()));
}

QTEST_GUILESS_MAIN(TstCapabilities)
#include "tst_capabilities.moc"
