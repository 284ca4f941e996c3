#include <reportlayer/fieldaccess.h>
#include <sampleelements/sample.h>

using namespace Sample;
using namespace REPORTGENERATOR;

/// Fields by path.
class TstFieldAccess : public QObject
{
    Q_OBJECT
private slots:
    void findsFieldsByPath();
    void unknownPathsGiveNothing_data();
    void unknownPathsGiveNothing();
    void listsThePathsOfAllSimpleFields();
    void readsEveryKindAsText();
    void writesEveryKindFromText();
    void refusesWhatTheFieldCannotHold_data();
    void refusesWhatTheFieldCannotHold();
    void readsAndWritesValues();
    void valuesOfSinglePrecisionAreRounded();
    void listsOfSimpleValues();
    void listsOfElements();
    void resetsFields();
    void childElements();
};

void TstFieldAccess::findsFieldsByPath()
{
    const ElementTable& table = Station::fieldTable();
    QCOMPARE(findField(table, "name"), &table.fields[table.fieldIndex("name")]);
    QCOMPARE(findField(table, "Scan.Detail.Threshold"), &Detail::fieldTable().fields[0]);
    QCOMPARE(findField(table, "Channel.Detail.Threshold"), &Detail::fieldTable().fields[0]);
    QCOMPARE(findField(table, "Channel[7].Detail.Threshold"), &Detail::fieldTable().fields[0]);
    QCOMPARE(findField(table, "Scan.Detail")->element, &Detail::fieldTable());
    QCOMPARE(findField(table, "Signal.Digital.Rate")->kind, FieldKind::Int);
}

void TstFieldAccess::unknownPathsGiveNothing_data()
{
    QTest::addColumn<QString>("path");
    for (const char* path : {"",
                             ".",
                             "none",
                             "Name",
                             "name.",
                             ".name",
                             "name.x",
                             "Scan.",
                             "Scan..Low",
                             "Scan.none",
                             "Scan[0]",
                             "Scan[0].Low",
                             "name[0]",
                             "Channel[0].id",
                             "Channel.id",
                             "Channel[-1].id",
                             "Channel[x].id",
                             "Channel[].id",
                             "Channel[0",
                             "Tag[0]"})
        QTest::newRow(path) << QString(path);
}

void TstFieldAccess::unknownPathsGiveNothing()
{
    QFETCH(QString, path);
    Station station;
    QVERIFY(fieldText(station, path).isNull());
    QVERIFY(!fieldValue(station, path).isValid());
    QVERIFY(!setFieldText(station, path, "1"));
    QVERIFY(!setFieldValue(station, path, 1));
    QVERIFY(!setFieldTexts(station, path, {"1"}));
    QVERIFY(fieldTexts(station, path).isEmpty());
    QVERIFY(!isFieldSet(station, path));
    QCOMPARE(itemCount(station, path), 0);
    QVERIFY(!resetField(station, path));
    QVERIFY(appendElement(station, path) == nullptr);
    QVERIFY(path.isEmpty() || childElement(station, path) == nullptr);
    QVERIFY(!station.isSet());
}

void TstFieldAccess::listsThePathsOfAllSimpleFields()
{
    QCOMPARE(fieldPaths(Station::fieldTable()), QStringList({"version",
                                                             "name",
                                                             "kind",
                                                             "demodulation",
                                                             "count",
                                                             "active",
                                                             "Remark",
                                                             "Frequency",
                                                             "Level",
                                                             "Gain",
                                                             "Offset",
                                                             "Counter",
                                                             "Created",
                                                             "Area.Low",
                                                             "Area.High",
                                                             "Area.Detail.Threshold",
                                                             "Area.Detail.DwellTime",
                                                             "Scan.Low",
                                                             "Scan.High",
                                                             "Scan.Detail.Threshold",
                                                             "Scan.Detail.DwellTime",
                                                             "Mode",
                                                             "Tag",
                                                             "Step",
                                                             "Weight",
                                                             "Signal.label",
                                                             "Signal.Analog.deviation",
                                                             "Signal.Digital.Rate"}));
    QVERIFY(fieldPaths(Silence::fieldTable()).isEmpty());
}

void TstFieldAccess::readsEveryKindAsText()
{
    Station station;
    QCOMPARE(fieldText(station, "count"), QString("5"));
    QCOMPARE(fieldText(station, "demodulation"), QString("FM"));
    QVERIFY(fieldText(station, "kind").isNull());
    QCOMPARE(fieldText(station, "Scan.Detail.Threshold"), QString("6.5"));
    station.Setname("n");
    station.Setkind(Station::KIND_AT_SEA);
    station.Setactive(false);
    station.SetCounter(-5);
    station.SetGain(0.1F);
    station.SetOffset(0.1);
    station.GetScan().SetHigh(7);
    station.GetSignal().GetDigital().SetRate(9);
    QCOMPARE(fieldText(station, "name"), QString("n"));
    QCOMPARE(fieldText(station, "kind"), QString("At sea"));
    QCOMPARE(fieldText(station, "active"), QString("false"));
    QCOMPARE(fieldText(station, "Counter"), QString("-5"));
    QCOMPARE(fieldText(station, "Gain"), QString("0.1"));
    QCOMPARE(fieldText(station, "Offset"), QString("0.1"));
    QCOMPARE(fieldText(station, "Scan.High"), QString("7"));
    QCOMPARE(fieldText(station, "Signal.Digital.Rate"), QString("9"));
    QVERIFY(fieldText(station, "Scan").isNull());
    QVERIFY(fieldText(station, "Tag").isNull());
}

void TstFieldAccess::writesEveryKindFromText()
{
    Station station;
    QVERIFY(setFieldText(station, "name", " n "));
    QVERIFY(setFieldText(station, "kind", "Fixed"));
    QVERIFY(setFieldText(station, "active", "0"));
    QVERIFY(setFieldText(station, "count", " 8 "));
    QVERIFY(setFieldText(station, "Counter", "9223372036854775807"));
    QVERIFY(setFieldText(station, "Gain", "1.5"));
    QVERIFY(setFieldText(station, "Level", "130"));
    QVERIFY(setFieldText(station, "Scan.Detail.DwellTime", "20"));
    QVERIFY(setFieldText(station, "Signal.Analog.deviation", "3"));
    QCOMPARE(station.Getname(), QString(" n "));
    QCOMPARE(station.Getkind(), Station::KIND_FIXED);
    QCOMPARE(station.Getactive(), false);
    QCOMPARE(station.Getcount(), 8);
    QCOMPARE(station.GetCounter(), std::numeric_limits<qint64>::max());
    QCOMPARE(station.GetGain(), 1.5F);
    QCOMPARE(station.GetLevel(), 130.0);
    QCOMPARE(station.GetScan().GetDetail().GetDwellTime(), 20);
    QCOMPARE(station.GetSignal().GetChoiceSignal(), 0);
    QVERIFY(isFieldSet(station, "Scan.Detail.DwellTime") && !isFieldSet(station, "Scan.Low"));
    QVERIFY(isFieldSet(station, "Scan") && !isFieldSet(station, "Area"));
}

void TstFieldAccess::refusesWhatTheFieldCannotHold_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::newRow("no number") << "count"
                               << "x";
    QTest::newRow("empty number") << "count"
                                  << "";
    QTest::newRow("too large for int") << "count"
                                       << "2147483648";
    QTest::newRow("fraction") << "count"
                              << "1.5";
    QTest::newRow("below the range") << "Frequency"
                                     << "-1";
    QTest::newRow("above the range") << "Frequency"
                                     << "3000000001";
    QTest::newRow("real above the range") << "Level"
                                          << "130.001";
    QTest::newRow("NaN in a range") << "Level"
                                    << "NaN";
    QTest::newRow("too large for float") << "Gain"
                                         << "1e39";
    QTest::newRow("no such name") << "kind"
                                  << "fixed";
    QTest::newRow("GUI text") << "demodulation"
                              << "Amplitude";
    QTest::newRow("no boolean") << "active"
                                << "yes";
    QTest::newRow("element") << "Scan"
                             << "1";
    QTest::newRow("list") << "Tag"
                          << "a";
}

void TstFieldAccess::refusesWhatTheFieldCannotHold()
{
    QFETCH(QString, path);
    QFETCH(QString, text);
    Station station;
    QVERIFY(!setFieldText(station, path, text));
    QVERIFY(!setFieldValue(station, path, text));
    QVERIFY(!station.isSet());
}

void TstFieldAccess::readsAndWritesValues()
{
    Station station;
    QCOMPARE(fieldValue(station, "kind"), QVariant(-1));
    QCOMPARE(fieldValue(station, "Frequency"), QVariant(Q_INT64_C(145000000)));
    QVERIFY(setFieldValue(station, "name", "n"));
    QVERIFY(setFieldValue(station, "kind", 1));
    QVERIFY(setFieldValue(station, "demodulation", "AM"));
    QVERIFY(setFieldValue(station, "active", false));
    QVERIFY(setFieldValue(station, "count", Q_INT64_C(3)));
    QVERIFY(setFieldValue(station, "Frequency", 7));
    QVERIFY(setFieldValue(station, "Offset", 1.0 / 3));
    QVERIFY(!setFieldValue(station, "count", 1.5));
    QVERIFY(!setFieldValue(station, "count", QVariant()));
    QVERIFY(!setFieldValue(station, "kind", 2));
    QVERIFY(!setFieldValue(station, "kind", -1));
    QCOMPARE(fieldValue(station, "name"), QVariant("n"));
    QCOMPARE(fieldValue(station, "kind"), QVariant(1));
    QCOMPARE(fieldValue(station, "demodulation"), QVariant(0));
    QCOMPARE(fieldValue(station, "active"), QVariant(false));
    QCOMPARE(fieldValue(station, "count"), QVariant(3));
    QCOMPARE(fieldValue(station, "Frequency"), QVariant(Q_INT64_C(7)));
    QCOMPARE(fieldValue(station, "Offset"), QVariant(1.0 / 3));
}

void TstFieldAccess::valuesOfSinglePrecisionAreRounded()
{
    Station station;
    QVERIFY(setFieldValue(station, "Gain", 0.1));
    QCOMPARE(station.GetGain(), 0.1F);
    QVERIFY(setFieldValue(station, "Gain", 16777217.0));
    QCOMPARE(station.GetGain(), 16777216.0F);
    QVERIFY(!setFieldValue(station, "Gain", 1e300));
}

void TstFieldAccess::listsOfSimpleValues()
{
    Station station;
    QVERIFY(setFieldTexts(station, "Step", {"1", "-2"}));
    QVERIFY(!setFieldTexts(station, "Step", {"1", "x"}));
    QVERIFY(setFieldTexts(station, "Mode", {"FM", "AM"}));
    QVERIFY(setFieldTexts(station, "Weight", {"0.1"}));
    QVERIFY(setFieldTexts(station, "Tag", {"a", "", "b"}));
    QVERIFY(!setFieldTexts(station, "name", {"a"}));
    QVERIFY(!setFieldTexts(station, "Channel", {"a"}));
    QCOMPARE(station.GetStep(), QVector<int>({1, -2}));
    QCOMPARE(station.GetMode(), QVector<Station::Mode>({Station::MODE_FM, Station::MODE_AM}));
    QCOMPARE(fieldTexts(station, "Step"), QStringList({"1", "-2"}));
    QCOMPARE(fieldTexts(station, "Mode"), QStringList({"FM", "AM"}));
    QCOMPARE(fieldTexts(station, "Weight"), QStringList({"0.1"}));
    QCOMPARE(fieldTexts(station, "Tag"), QStringList({"a", "", "b"}));
    QVERIFY(fieldTexts(station, "count").isEmpty());
    station.Setcount(4);
    QCOMPARE(fieldTexts(station, "count"), QStringList({"4"}));
    QCOMPARE(itemCount(station, "Tag"), 3);
    QVERIFY(setFieldTexts(station, "Tag", {}));
    QVERIFY(!isFieldSet(station, "Tag"));
}

void TstFieldAccess::listsOfElements()
{
    Station station;
    IRGObject* item = appendElement(station, "Channel");
    QVERIFY(dynamic_cast<Channel*>(item) != nullptr);
    appendElement(station, "Channel");
    QVERIFY(setFieldText(station, "Channel[0].id", "a"));
    QVERIFY(setFieldText(station, "Channel[1].Detail.DwellTime", "3"));
    QVERIFY(!setFieldText(station, "Channel[2].id", "c"));
    QCOMPARE(itemCount(station, "Channel"), 2);
    QCOMPARE(itemCount(station, "Channel[1]"), 1);
    QCOMPARE(itemCount(station, "Channel[2]"), 0);
    QCOMPARE(station.GetChannel().at(0).Getid(), QString("a"));
    QCOMPARE(fieldText(station, "Channel[1].Detail.DwellTime"), QString("3"));
    QCOMPARE(childElement(station, "Channel[1]"), &station.GetChannel()[1]);
    QVERIFY(childElement(station, "Channel") == nullptr);
    QVERIFY(appendElement(station, "Tag") == nullptr);
    QVERIFY(appendElement(station, "Scan") == nullptr);
    QVERIFY(resetField(station, "Channel"));
    QVERIFY(!station.IsChannelSet());
}

void TstFieldAccess::resetsFields()
{
    Station station;
    station.Setname("a");
    station.GetScan().SetLow(1);
    station.GetScan().GetDetail().SetDwellTime(2);
    QVERIFY(resetField(station, "name"));
    QVERIFY(resetField(station, "Scan.Detail"));
    QVERIFY(!station.IsnameSet() && station.IsScanSet() && !station.GetScan().IsDetailSet());
    QVERIFY(!resetField(station, "Channel[0]"));
}

void TstFieldAccess::childElements()
{
    Station station;
    const Station& constant = station;
    QCOMPARE(childElement(constant, ""), &station);
    QCOMPARE(&childElement(constant, "Scan.Detail")->table(), &Detail::fieldTable());
    QVERIFY(!station.isSet());
    QCOMPARE(childElement(station, "Scan.Detail"), &station.GetScan().GetDetail());
    QCOMPARE(childElement(constant, "Scan.Detail"), &station.GetScan().GetDetail());
    QVERIFY(childElement(station, "Scan.Low") == nullptr);
}

QTEST_GUILESS_MAIN(TstFieldAccess)
#include "tst_fieldaccess.moc"
