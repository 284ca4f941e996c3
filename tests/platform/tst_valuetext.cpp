#include <jobxml/parametersettext.h>
#include <jobxml/valuetext.h>
#include <reportlayer/elementtable.h>
#include <values/value.h>
#include <values/valuelist.h>
#include <values/valuenumeric.h>
#include <values/valueselection.h>

using JobXml::assignText;
using JobXml::ParameterSetText;
using REPORTGENERATOR::Field;

namespace {
// A value of each kind with the field that it stands for.
struct Sample
{
    std::unique_ptr<ValueBase> value;
    const Field* field;
};

std::unique_ptr<ValueBase> selection(const QStringList& items, const QVector<double>& values = {})
{
    auto result = std::make_unique<ValueSelection>();
    for (int i = 0; i < items.size(); ++i)
        result->AddItem(items.at(i), values.value(i, i), i);
    result->SelectIndex(0);
    return result;
}

template <typename Numeric, typename Number>
std::unique_ptr<ValueBase> numeric(Number minimum, Number maximum, Number value)
{
    auto result = std::make_unique<Numeric>();
    result->SetMinMax(minimum, maximum, 1);
    result->SetValue(value);
    return result;
}

Sample sample(const QString& kind)
{
    const auto field = [](const char* path) { return ParameterSetText::field("TunerSettings", path); };
    if (kind == "frequency")
        return {numeric<NumericInt64>(20000000LL, 3000000000LL, 100000000LL), field("CenterFrequency")};
    if (kind == "frequency without range")
        return {std::make_unique<ValueInt64>(), field("CenterFrequency")};
    if (kind == "attenuation")
        return {numeric<NumericInt>(0, 40, 10), field("Attenuation")};
    if (kind == "threshold")
        return {numeric<NumericDouble>(-20.0, 120.0, 8.0), field("Threshold")};
    if (kind == "time")
        return {numeric<NumericInt>(0, 3600000, 2), field("SettlingTime")};
    if (kind == "truth")
        return {std::make_unique<ValueBool>(), field("Preselector")};
    if (kind == "mode")
        return {selection({"Automatic", "Manual", "LowNoise"}), field("AttenuationMode")};
    if (kind == "mode as text")
        return {std::make_unique<ValueString>(), field("AttenuationMode")};
    if (kind == "bandwidth")
        return {selection({"narrow", "wide"}, {10000, 200000}), field("Bandwidth")};
    if (kind == "text")
        return {std::make_unique<ValueString>(), field("ChannelName")};
    if (kind == "list")
        return {std::make_unique<StringList>(),
                ParameterSetText::field("AntennaSettings", "AlternativeAntenna")};
    return {std::make_unique<ValueDouble>(), nullptr};
}
} // namespace

class TstValueText : public QObject
{
    Q_OBJECT
private slots:
    void assigning_data();
    void assigning();
    void refusing_data();
    void refusing();
    void reading_data();
    void reading();
    void itemsOfAList_data();
    void itemsOfAList();
};

void TstValueText::assigning_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    QTest::newRow("prefix") << "frequency"
                            << "156.8M"
                            << "156800000";
    QTest::newRow("lower bound") << "frequency"
                                 << "20 MHz"
                                 << "20000000";
    QTest::newRow("upper bound") << "frequency"
                                 << "3G"
                                 << "3000000000";
    QTest::newRow("range of the field alone") << "frequency without range"
                                              << "40G"
                                              << "40000000000";
    QTest::newRow("whole") << "attenuation"
                           << "30"
                           << "30";
    QTest::newRow("decimals") << "threshold"
                              << "-12.5 dBµV"
                              << "-12.5";
    QTest::newRow("seconds") << "time"
                             << "1.5s"
                             << "1500";
    QTest::newRow("true") << "truth"
                          << "true"
                          << "true";
    QTest::newRow("Yes") << "truth"
                         << "Yes"
                         << "true";
    QTest::newRow("on") << "truth"
                        << "on"
                        << "true";
    QTest::newRow("1") << "truth"
                       << "1"
                       << "true";
    QTest::newRow("off") << "truth"
                         << "OFF"
                         << "false";
    QTest::newRow("item by name") << "mode"
                                  << "LowNoise"
                                  << "LowNoise";
    QTest::newRow("item by what the user is shown") << "mode"
                                                    << "Fixed value"
                                                    << "Manual";
    QTest::newRow("text by what the user is shown") << "mode as text"
                                                    << "Fixed value"
                                                    << "Manual";
    QTest::newRow("item by its number") << "bandwidth"
                                        << "200k"
                                        << "wide";
    QTest::newRow("text as it stands") << "text"
                                       << " Channel 16, port "
                                       << " Channel 16, port ";
    QTest::newRow("empty text") << "text"
                                << ""
                                << "";
    QTest::newRow("list") << "list"
                          << "Loop, Whip,,"
                          << "Loop\nWhip\n";
    QTest::newRow("empty list") << "list"
                                << ""
                                << "";
    QTest::newRow("no field") << "number"
                              << "1e3"
                              << "1000";
}

void TstValueText::assigning()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    const Sample s = sample(kind);
    QString reason;
    QVERIFY2(assignText(s.value.get(), s.field, text, &reason), qPrintable(reason));
    QTEST(s.value->GetText(), "value");
}

void TstValueText::refusing_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("below the range") << "frequency"
                                     << "19999999"
                                     << "19.999999 MHz is outside 20 MHz … 3 GHz";
    QTest::newRow("above the range") << "frequency"
                                     << "3.1G"
                                     << "3.1 GHz is outside 20 MHz … 3 GHz";
    QTest::newRow("above the field's range") << "frequency without range"
                                             << "41G"
                                             << "41 GHz is outside 0 Hz … 40 GHz";
    QTest::newRow("not whole") << "frequency"
                               << "156.8000005M"
                               << "\"156.8000005M\" is no whole number in Hz, kHz, MHz, GHz";
    QTest::newRow("prefix without a meaning") << "attenuation"
                                              << "1k"
                                              << "\"1k\" is no whole number in dB";
    QTest::newRow("no number") << "threshold"
                               << "low"
                               << "\"low\" is no number in dBµV";
    QTest::newRow("no number, no unit") << "number"
                                        << "low"
                                        << "\"low\" is no number";
    QTest::newRow("neither") << "truth"
                             << "maybe"
                             << "\"maybe\" is neither true nor false";
    QTest::newRow("unknown item") << "mode"
                                  << "Off"
                                  << "\"Off\" is none of Automatic, Manual, LowNoise";
    QTest::newRow("mistyped item")
        << "mode"
        << "Manuel"
        << "\"Manuel\" is none of Automatic, Manual, LowNoise. Did you mean \"Manual\"?";
    QTest::newRow("number of a named item") << "mode"
                                            << "1"
                                            << "\"1\" is none of Automatic, Manual, LowNoise";
    QTest::newRow("number of no item") << "bandwidth"
                                       << "5k"
                                       << "\"5k\" is none of narrow, wide";
    QTest::newRow("unknown name for a text")
        << "mode as text"
        << "Off"
        << "\"Off\" is none of Automatic, Manual, LowNoise, LowDistortion";
}

void TstValueText::refusing()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    const Sample s = sample(kind);
    const QString before = s.value->GetText();
    QString reason;
    QVERIFY(!assignText(s.value.get(), s.field, text, &reason));
    QTEST(reason, "reason");
    QCOMPARE(s.value->GetText(), before);
}

void TstValueText::reading_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("range");
    QTest::newRow("frequency") << "frequency"
                               << "156.8M"
                               << "156.8 MHz"
                               << "20 MHz … 3 GHz";
    QTest::newRow("no range") << "frequency without range"
                              << "1k"
                              << "1 kHz"
                              << "";
    QTest::newRow("threshold") << "threshold"
                               << "0"
                               << "0 dBµV"
                               << "-20 dBµV … 120 dBµV";
    QTest::newRow("mode") << "mode"
                          << "Manual"
                          << "Manual"
                          << "Automatic, Manual, LowNoise";
    QTest::newRow("list") << "list"
                          << "a,b"
                          << "a, b"
                          << "";
    QTest::newRow("text") << "text"
                          << "16"
                          << "16"
                          << "";
}

void TstValueText::reading()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    const Sample s = sample(kind);
    QString reason;
    QVERIFY2(assignText(s.value.get(), s.field, text, &reason), qPrintable(reason));
    QTEST(JobXml::readableValue(*s.value, s.field), "value");
    QTEST(JobXml::readableRange(*s.value, s.field), "range");
}

void TstValueText::itemsOfAList_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QString>("reason");
    const QStringList before = {"118000000"};
    const QStringList beforeShown = {"118 MHz"};
    QTest::newRow("units") << "ScanSettings"
                           << "SuppressedFrequency" << QStringList{"121,5 MHz", "243.0M", "9000"}
                           << QStringList{"121500000", "243000000", "9000"}
                           << QStringList{"121.5 MHz", "243 MHz", "9 kHz"} << "";
    QTest::newRow("blanks are left out") << "ScanSettings"
                                         << "SuppressedFrequency" << QStringList{" 9 kHz ", " ", ""}
                                         << QStringList{"9000"} << QStringList{"9 kHz"} << "";
    QTest::newRow("none") << "ScanSettings"
                          << "SuppressedFrequency" << QStringList() << QStringList() << QStringList() << "";
    QTest::newRow("no number") << "ScanSettings"
                               << "SuppressedFrequency" << QStringList{"9 kHz", "channel 16"} << before
                               << beforeShown << "\"channel 16\" is no whole number in Hz, kHz, MHz, GHz";
    QTest::newRow("highest") << "ScanSettings"
                             << "SuppressedFrequency" << QStringList{"40 GHz"} << QStringList{"40000000000"}
                             << QStringList{"40 GHz"} << "";
    QTest::newRow("above") << "ScanSettings"
                           << "SuppressedFrequency" << QStringList{"40000000001"} << before << beforeShown
                           << "40.000000001 GHz is outside 0 Hz … 40 GHz";
    QTest::newRow("names and texts") << "CompressionSettings"
                                     << "ExcludedContent" << QStringList{"Demodulated audio", "Spectra"}
                                     << QStringList{"Audio", "Spectrum"}
                                     << QStringList{"Demodulated audio", "Spectra"} << "";
}

void TstValueText::itemsOfAList()
{
    QFETCH(QString, set);
    QFETCH(QString, path);
    QFETCH(QStringList, texts);
    QFETCH(QString, reason);
    const Field* const field = ParameterSetText::field(set, path);
    QVERIFY(field);
    StringList list;
    list.PushBack("118000000");
    QString told;
    QCOMPARE(JobXml::assignItems(&list, field, texts, &told), reason.isEmpty());
    QCOMPARE(told, reason);
    QTEST(QStringList(list.GetItems().toList()), "items");
    QTEST(JobXml::readableItems(list, field), "shown");
}

QTEST_GUILESS_MAIN(TstValueText)
#include "tst_valuetext.moc"
