#include <jobxml/parametersettext.h>
#include <support/changerecorder.h>
#include <support/settingvalues.h>

using JedTest::addSelection;
using JedTest::addValue;
using JedTest::inElement;
using JedTest::makeNode;
using JedTest::nodeForEveryField;
using JobXml::ParameterSetText;
using Report = ParameterSetText::Report;

class TstParameterSetTextReading : public QObject
{
    Q_OBJECT
private slots:
    void eachKindOfValueIsRead();
    void itemThatIsNotOffered();
    void brokenText_data();
    void brokenText();
    void numberOutsideTheValuesRangeIsClamped();
    void unsetFieldGivesItsDefault();
    void emptyTextOfTheSetGivesDefaults();
    void textThatTheFieldDoesNotTake();
    void largeNumbersAreExact();
    void wholeRealsReadAsIntegers();
    void emptyTextLeavesATimeUnset();
    void readingTellsObservers();
    void readingTheSameTellsNobody();
};

void TstParameterSetTextReading::eachKindOfValueIsRead()
{
    JobXml::AntennaSettings set;
    set.SetSelection(JobXml::AntennaSettings::NameToSelection("Fixed"));
    set.SetAntennaName("Discone & co");
    set.SetAlternativeAntenna({"Whip", "Loop"});
    set.SetPreamplifier(true);
    set.SetAttenuation(20);
    set.SetAntennaFactor(12.25);
    set.SetUpperFrequency(1300000000);
    set.GetRotator().SetAzimuth(270.5);
    const auto node = makeNode("AntennaSettings");
    auto* selection = addSelection(*node, "Selection", {"Automatic", "Fixed"});
    auto* name = addValue<ValueString>(*node, "AntennaName");
    auto* alternatives = addValue<StringList>(*node, "AlternativeAntenna");
    auto* preamplifier = addValue<ValueBool>(*node, "Preamplifier");
    auto* attenuation = addValue<NumericInt>(*node, "Attenuation");
    auto* factor = addValue<ValueDouble>(*node, "AntennaFactor");
    auto* upper = addValue<NumericInt64>(*node, "UpperFrequency");
    auto* azimuth = addValue<NumericDouble>(*node, "Rotator.Azimuth");

    Report report;
    QVERIFY(ParameterSetText::fromText(*node, set.GetXmlString(), &report));

    QVERIFY(report.isClean());
    QCOMPARE(selection->GetCurrentIndex(), 1);
    QCOMPARE(name->GetValue(), QString("Discone & co"));
    QCOMPARE(alternatives->GetItems(), (QVector<QString>{"Whip", "Loop"}));
    QCOMPARE(preamplifier->GetValue(), true);
    QCOMPARE(attenuation->GetValue(), 20);
    QCOMPARE(factor->GetValue(), 12.25);
    QCOMPARE(upper->GetValue(), Q_INT64_C(1300000000));
    QCOMPARE(azimuth->GetValue(), 270.5);
}

void TstParameterSetTextReading::itemThatIsNotOffered()
{
    const auto node = makeNode("FFTSettings");
    auto* length = addValue<ValueSelection>(*node, "Length");
    length->AddItem("2048", 2048, 0);
    length->SelectIndex(0);
    auto* window = addSelection(*node, "Window", {"Hann", "Hamming"});
    window->SelectIndex(1);

    Report report;
    QVERIFY(ParameterSetText::fromText(
        *node, inElement("<Length>4096</Length><Window>FlatTop</Window>", "FFTSettings"), &report));

    QCOMPARE(report.textsNotConverted, (QStringList{"Length", "Window"}));
    QCOMPARE(length->GetCurrentIndex(), 0);
    QCOMPARE(window->GetCurrentIndex(), 1);
}

void TstParameterSetTextReading::brokenText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no XML") << "frequency";
    QTest::newRow("unfinished") << "<FFM_Settings><Gain>3</Gain>";
    QTest::newRow("another set") << inElement("<Gain>3</Gain>", "Scan_Settings");
    QTest::newRow("document type") << "<!DOCTYPE x>" + inElement("<Gain>3</Gain>");
}

void TstParameterSetTextReading::brokenText()
{
    QFETCH(QString, text);
    const auto node = makeNode("TunerSettings");
    auto* value = addValue<ValueInt>(*node, "Gain");
    value->SetValue(7);

    Report report;
    QVERIFY(!ParameterSetText::fromText(*node, text, &report));

    QVERIFY2(report.failure.startsWith("Line 1, column "), qPrintable(report.failure));
    QVERIFY(report.fieldsWithoutValue.isEmpty());
    QCOMPARE(value->GetValue(), 7);
}

void TstParameterSetTextReading::numberOutsideTheValuesRangeIsClamped()
{
    const auto node = makeNode("TunerSettings");
    auto* frequency = addValue<NumericInt64>(*node, "CenterFrequency");
    frequency->SetMinMax(9000, 30000000, 1);
    auto* gain = addValue<NumericDouble>(*node, "Gain");
    gain->SetMinMax(0, 40, 0.5);

    Report report;
    const QString text = inElement("<CenterFrequency>156800000</CenterFrequency><Gain>40</Gain>");
    QVERIFY(ParameterSetText::fromText(*node, text, &report));

    QCOMPARE(report.valuesClamped, QStringList("CenterFrequency"));
    QVERIFY(report.textsNotConverted.isEmpty());
    QVERIFY(!report.isClean());
    QCOMPARE(frequency->GetValue(), Q_INT64_C(30000000));
    QCOMPARE(gain->GetValue(), 40.0);
}

void TstParameterSetTextReading::unsetFieldGivesItsDefault()
{
    const auto node = makeNode("TunerSettings");
    auto* gain = addValue<ValueDouble>(*node, "Gain");
    gain->SetValue(77);
    auto* name = addValue<ValueString>(*node, "ChannelName");
    name->SetValue("Channel 16");
    auto* mode = addSelection(*node, "GainControl", {"Frozen", "Automatic"});
    mode->SelectIndex(0);
    const auto other = makeNode("StorageSettings");
    auto* keywords = addValue<StringList>(*other, "Keyword");
    keywords->SetItems({"a"});

    Report report;
    QVERIFY(ParameterSetText::fromText(*node, "<FFM_Settings/>", &report));
    QVERIFY(report.isClean());
    QVERIFY(ParameterSetText::fromText(*other, "<StorageSettings/>", &report));

    QVERIFY(report.isClean());
    QCOMPARE(gain->GetValue(), 30.0);
    QCOMPARE(name->GetValue(), QString());
    QCOMPARE(mode->GetCurrentItem()->GetName(), QString("Automatic"));
    QCOMPARE(keywords->GetItemCount(), 0);
}

void TstParameterSetTextReading::emptyTextOfTheSetGivesDefaults()
{
    const auto node = makeNode("TunerSettings");
    auto* gain = addValue<ValueDouble>(*node, "Gain");
    gain->SetValue(77);

    QVERIFY(ParameterSetText::fromText(*node, QString()));

    QCOMPARE(gain->GetValue(), 30.0);
}

void TstParameterSetTextReading::textThatTheFieldDoesNotTake()
{
    const auto node = makeNode("TunerSettings");
    auto* gain = addValue<ValueDouble>(*node, "Gain");
    const QString text = inElement("<Gain>loud</Gain>");

    Report report;
    QVERIFY(ParameterSetText::fromText(*node, text, &report));
    QCOMPARE(report.problemsOfText.size(), 1);
    QVERIFY2(report.problemsOfText.constFirst().startsWith("Line 1, column "),
             qPrintable(report.problemsOfText.constFirst()));
    QVERIFY(!report.isClean());
    QCOMPARE(gain->GetValue(), 30.0);
    ParameterSetText::toText(*node, text, &report);

    QCOMPARE(report.problemsOfText.size(), 1);
}

void TstParameterSetTextReading::readingTellsObservers()
{
    const auto node = makeNode("TunerSettings");
    auto* gain = addValue<NumericDouble>(*node, "Gain");
    QStringList log;
    JedTest::ChangeRecorder recorder("gain", &log);
    gain->AddObserver(&recorder);

    QVERIFY(ParameterSetText::fromText(*node, inElement("<Gain>12.5</Gain>")));

    QCOMPARE(log, QStringList("gain:3"));
    gain->DeleteObserver(&recorder);
}

void TstParameterSetTextReading::readingTheSameTellsNobody()
{
    const auto node = nodeForEveryField("ScanSettings", true);
    const QString text = ParameterSetText::toText(*node);
    QStringList log;
    JedTest::ChangeRecorder recorder("value", &log);
    const QVector<ValueBase*> values = node->GetValues();
    for (ValueBase* value : values)
        value->AddObserver(&recorder);

    QVERIFY(ParameterSetText::fromText(*node, text));

    QCOMPARE(log, QStringList());
    for (ValueBase* value : values)
        value->DeleteObserver(&recorder);
}

void TstParameterSetTextReading::largeNumbersAreExact()
{
    const auto node = makeNode("StorageSettings");
    auto* size = addValue<ValueInt64>(*node, "MaximumSize");
    const qint64 largest = std::numeric_limits<qint64>::max();
    size->SetValue(largest);

    const QString text = ParameterSetText::toText(*node);
    size->SetValue(0);
    Report report;
    QVERIFY(ParameterSetText::fromText(*node, text, &report));

    QVERIFY(report.isClean());
    QCOMPARE(size->GetValue(), largest);
}

void TstParameterSetTextReading::wholeRealsReadAsIntegers()
{
    const auto node = makeNode("TunerSettings");
    auto* frequency = addValue<ValueDouble>(*node, "CenterFrequency");
    frequency->SetValue(1e9);
    auto* gain = addValue<ValueInt>(*node, "Gain");
    gain->SetValue(100);

    Report report;
    const QString text = ParameterSetText::toText(*node, QString(), &report);
    QVERIFY(report.isClean());
    QVERIFY(text.contains("<CenterFrequency>1000000000</CenterFrequency>"));
    frequency->SetValue(0);
    gain->SetValue(0);
    QVERIFY(ParameterSetText::fromText(*node, text, &report));

    QVERIFY(report.isClean());
    QCOMPARE(frequency->GetValue(), 1e9);
    QCOMPARE(gain->GetValue(), 100);
}

void TstParameterSetTextReading::emptyTextLeavesATimeUnset()
{
    const auto node = makeNode("JobAutomaticSettings");
    auto* start = addValue<ValueString>(*node, "StartTime");
    auto* group = addValue<ValueString>(*node, "OperatorGroup");

    Report report;
    const QString text = ParameterSetText::toText(*node, QString(), &report);
    QVERIFY(report.isClean());
    JobXml::JobAutomaticSettings set;
    QVERIFY(set.SetXmlString(text, false));
    QVERIFY(!set.IsStartTimeSet());
    QVERIFY(set.IsOperatorGroupSet());
    start->SetValue("2024-01-01T00:00:00Z");
    group->SetValue("night watch");
    QVERIFY(ParameterSetText::fromText(*node, text, &report));

    QVERIFY(report.isClean());
    QCOMPARE(start->GetValue(), QString());
    QCOMPARE(group->GetValue(), QString());
}

QTEST_GUILESS_MAIN(TstParameterSetTextReading)
#include "tst_parametersettext_reading.moc"
