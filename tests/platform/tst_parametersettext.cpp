#include <jobxml/parametersettext.h>
#include <support/settingvalues.h>

using JedTest::addSelection;
using JedTest::addValue;
using JedTest::addValueFor;
using JedTest::inElement;
using JedTest::makeNode;
using JedTest::nodeForEveryField;
using JobXml::ParameterSetText;
using REPORTGENERATOR::FieldKind;
using Report = ParameterSetText::Report;

class TstParameterSetText : public QObject
{
    Q_OBJECT
private slots:
    void roundTripOfEverySet_data();
    void roundTripOfEverySet();
    void textIsValid_data();
    void textIsValid();
    void eachKindOfValueIsWritten();
    void selectionOfNumbers();
    void selectionWithoutCurrentItemLeavesTheFieldUnset();
    void namesThatTheEnumerationDoesNotHave();
    void valueWithoutFieldIsReported();
    void childNodeIsReported();
    void fieldWithoutValueIsReported();
    void repeatedGroupHasNoPath();
    void unknownSet();
    void listAndSingleDoNotGoTogether();
    void listWithATextThatDoesNotConvert();
    void textsOfOtherKinds_data();
    void textsOfOtherKinds();
    void numberOutsideTheFieldsRange();
    void baseKeepsWhatTheNodeHasNoValueFor();
    void baseIsOverwrittenByValues();
    void baseKeepsDefaultsUnset_data();
    void baseKeepsDefaultsUnset();
    void brokenBase();
    void nodeWithoutValuesGivesAValidSet();
    void namesAreEscaped();
    void reportIsReplaced();
    void reportMayBeNull();
    void fieldsByPath();
};

namespace {

QStringList textsOf(const Node& node)
{
    QStringList result;
    const QVector<ValueBase*> values = node.GetValues();
    for (const ValueBase* value : values)
        result << value->GetId() + "=" + value->GetText();
    return result;
}

void addSets()
{
    QTest::addColumn<QString>("set");
    const QVector<REPORTGENERATOR::ParameterSet> sets = JobXml::parameterSets();
    for (const REPORTGENERATOR::ParameterSet& set : sets)
        QTest::newRow(set.name) << QString::fromLatin1(set.name);
}

} // namespace

void TstParameterSetText::roundTripOfEverySet_data()
{
    addSets();
}

void TstParameterSetText::roundTripOfEverySet()
{
    QFETCH(QString, set);
    const auto written = nodeForEveryField(set, true);
    const auto read = nodeForEveryField(set, false);
    QVERIFY(textsOf(*written) != textsOf(*read));

    Report writeReport;
    const QString text = ParameterSetText::toText(*written, QString(), &writeReport);
    QVERIFY2(writeReport.isClean(), qPrintable(writeReport.textsNotConverted.join(' ')));
    QVERIFY(writeReport.fieldsWithoutValue.isEmpty());
    Report readReport;
    QVERIFY(ParameterSetText::fromText(*read, text, &readReport));

    QVERIFY2(readReport.isClean(), qPrintable(readReport.textsNotConverted.join(' ')));
    QCOMPARE(textsOf(*read), textsOf(*written));
    QCOMPARE(ParameterSetText::toText(*read), text);
}

void TstParameterSetText::textIsValid_data()
{
    addSets();
}

void TstParameterSetText::textIsValid()
{
    QFETCH(QString, set);
    const QString text = ParameterSetText::toText(*nodeForEveryField(set, true));
    const std::unique_ptr<REPORTGENERATOR::IRGObject> element(JobXml::findParameterSet(set)->table->create());
    element->SetValidate(true);

    QVERIFY2(element->SetXmlString(text, false), qPrintable(element->GetCheckReason()));
    QCOMPARE(element->GetXmlString(), text);
}

void TstParameterSetText::eachKindOfValueIsWritten()
{
    const auto node = makeNode("ClassifierSettings");
    addValue<ValueBool>(*node, "StopAtFirstResult")->SetValue(false);
    addValue<ValueInt>(*node, "MinimumConfidence")->SetValue(75);
    auto* time = addValue<NumericInt>(*node, "ObservationTime");
    time->SetMinMax(100, 5000, 100);
    time->SetValue(2500);
    auto* ratio = addValue<NumericDouble>(*node, "MinimumSignalToNoise");
    ratio->SetMinMax(0, 40, 0.5);
    ratio->SetValue(6.5);
    auto* bandwidth = addValue<NumericInt64>(*node, "Bandwidth");
    bandwidth->SetMinMax(0, 1000000, 1);
    bandwidth->SetValue(12500);
    addSelection(*node, "Mode", {"Single", "Continuous"})->SelectIndex(1);
    addValue<ValueString>(*node, "Library")->SetValue("HF services");
    addValue<StringList>(*node, "SearchedClass")->SetItems({"Voice", "Morse"});

    Report report;
    const QString text = ParameterSetText::toText(*node, QString(), &report);

    QVERIFY(report.isClean());
    JobXml::Classification_Settings set;
    QVERIFY(set.SetXmlString(text, false));
    QCOMPARE(set.GetStopAtFirstResult(), false);
    QCOMPARE(set.GetMinimumConfidence(), 75);
    QCOMPARE(set.GetObservationTime(), 2500);
    QCOMPARE(set.GetMinimumSignalToNoise(), 6.5);
    QCOMPARE(set.GetBandwidth(), Q_INT64_C(12500));
    QCOMPARE(JobXml::Classification_Settings::ModeToName(set.GetMode()), QString("Continuous"));
    QCOMPARE(set.GetLibrary(), QString("HF services"));
    QCOMPARE(set.GetSearchedClass(), (QVector<QString>{"Voice", "Morse"}));
    QVERIFY(!set.IsReportUnknownSet());
}

void TstParameterSetText::selectionOfNumbers()
{
    const auto node = makeNode("FFTSettings");
    auto* length = addValue<ValueSelection>(*node, "Length");
    length->AddItem("2 K", 2048, 1);
    length->AddItem("1 M", 1048576, 2);
    length->SelectIndex(1);

    const QString text = ParameterSetText::toText(*node);
    QVERIFY(text.contains("<Length>1048576</Length>"));
    length->SelectIndex(0);
    Report report;
    QVERIFY(ParameterSetText::fromText(*node, text, &report));

    QVERIFY(report.isClean());
    QCOMPARE(length->GetCurrentIndex(), 1);
}

void TstParameterSetText::selectionWithoutCurrentItemLeavesTheFieldUnset()
{
    const auto node = makeNode("DF_Settings");
    addSelection(*node, "Method", {"Doppler"});
    addValue<ValueSelection>(*node, "MaximumAge")->AddItem("short", 100, 0);

    Report report;
    const QString text =
        ParameterSetText::toText(*node, inElement("<MaximumAge>500</MaximumAge>", "DF_Settings"), &report);

    QCOMPARE(report.textsNotConverted, (QStringList{"Method", "MaximumAge"}));
    QVERIFY(!text.contains("MaximumAge"));
    QVERIFY(text.contains("<Method>Interferometer</Method>"));
}

void TstParameterSetText::namesThatTheEnumerationDoesNotHave()
{
    const auto node = makeNode("FFTSettings");
    addSelection(*node, "Window", {"von Hann"})->SelectIndex(0);

    Report report;
    const QString text = ParameterSetText::toText(*node, QString(), &report);

    QCOMPARE(report.textsNotConverted, QStringList("Window"));
    QVERIFY(text.contains("<Window>Hann</Window>"));
}

void TstParameterSetText::valueWithoutFieldIsReported()
{
    const auto node = makeNode("TunerSettings");
    addValue<ValueInt64>(*node, "CenterFrequency")->SetValue(121500000);
    auto* unknown = addValue<ValueString>(*node, "Colour");
    unknown->SetValue("red");
    addValue<ValueString>(*node, "centerFrequency");

    Report report;
    const QString text = ParameterSetText::toText(*node, QString(), &report);
    QCOMPARE(report.valuesWithoutField, (QStringList{"Colour", "centerFrequency"}));
    QVERIFY(!report.isClean());
    QVERIFY(!text.contains("red"));
    QVERIFY(ParameterSetText::fromText(*node, text, &report));

    QCOMPARE(report.valuesWithoutField, (QStringList{"Colour", "centerFrequency"}));
    QCOMPARE(unknown->GetValue(), QString("red"));
}

void TstParameterSetText::childNodeIsReported()
{
    const auto node = makeNode("ScanSettings");
    addValue<ValueInt64>(*node->AddChildNode("Range"), "StartFrequency");

    Report report;
    ParameterSetText::toText(*node, QString(), &report);

    QCOMPARE(report.valuesWithoutField, QStringList("Range"));
}

void TstParameterSetText::fieldWithoutValueIsReported()
{
    const auto node = makeNode("ScanSettings");
    for (const char* id :
         {"Mode", "Direction", "Cycles", "CyclePause", "SkipKnown", "Range.Name", "Range.StartFrequency",
          "Range.StopFrequency", "Range.StepWidth", "Range.Bandwidth"})
        addValueFor(*node, {id, ParameterSetText::field("ScanSettings", id)}, true);

    Report report;
    const QString text = ParameterSetText::toText(*node, QString(), &report);

    const QStringList expected{"SuppressedFrequency",          "Range.Detail.Threshold",
                               "Range.Detail.DwellTime",       "Range.Detail.SignalTime",
                               "Range.Detail.MeasurementTime", "HoldCriteria.Hold",
                               "HoldCriteria.HoldTime",        "HoldCriteria.Resume"};
    QCOMPARE(report.fieldsWithoutValue, expected);
    QVERIFY(report.isClean());
    QVERIFY(ParameterSetText::fromText(*node, text, &report));
    QCOMPARE(report.fieldsWithoutValue, expected);
}

void TstParameterSetText::repeatedGroupHasNoPath()
{
    const auto node = makeNode("SignalDescriptions");
    addValue<ValueString>(*node, "SignalDescription");
    addValue<ValueString>(*node, "SignalDescription.Name");
    addValue<ValueString>(*node, "SignalDescription[0].Name");

    Report report;
    ParameterSetText::toText(*node, QString(), &report);

    QCOMPARE(report.valuesWithoutField,
             (QStringList{"SignalDescription", "SignalDescription.Name", "SignalDescription[0].Name"}));
    QVERIFY(!report.fieldsWithoutValue.contains("SignalDescription"));
}

void TstParameterSetText::unknownSet()
{
    const auto node = makeNode("tunersettings");
    auto* value = addValue<ValueInt>(*node, "Gain");

    Report report;
    QVERIFY(ParameterSetText::toText(*node, QString(), &report).isNull());
    QCOMPARE(report.failure, QString("tunersettings is no parameter set"));
    QVERIFY(!ParameterSetText::fromText(*node, inElement("<Gain>3</Gain>"), &report));

    QCOMPARE(report.failure, QString("tunersettings is no parameter set"));
    QVERIFY(!report.isClean());
    QCOMPARE(value->GetValue(), 0);
}

void TstParameterSetText::listAndSingleDoNotGoTogether()
{
    const auto node = makeNode("TunerSettings");
    auto* list = addValue<StringList>(*node, "ChannelName");
    list->SetItems({"one"});
    const auto other = makeNode("StorageSettings");
    auto* single = addValue<ValueString>(*other, "Keyword");
    single->SetValue("word");

    Report report;
    QVERIFY(!ParameterSetText::toText(*node, QString(), &report).contains("ChannelName"));
    QCOMPARE(report.textsNotConverted, QStringList("ChannelName"));
    QVERIFY(ParameterSetText::fromText(*node, inElement("<ChannelName>a</ChannelName>"), &report));
    QCOMPARE(report.textsNotConverted, QStringList("ChannelName"));
    QCOMPARE(list->GetItems(), QVector<QString>{"one"});
    ParameterSetText::toText(*other, QString(), &report);
    QCOMPARE(report.textsNotConverted, QStringList("Keyword"));
    QVERIFY(ParameterSetText::fromText(*other, "<StorageSettings><Keyword>a</Keyword></StorageSettings>",
                                       &report));
    QCOMPARE(report.textsNotConverted, QStringList("Keyword"));
    QCOMPARE(single->GetValue(), QString("word"));
}

void TstParameterSetText::listWithATextThatDoesNotConvert()
{
    const auto node = makeNode("ScanSettings");
    addValue<StringList>(*node, "SuppressedFrequency")->SetItems({"161975000", "channel 16"});

    Report report;
    const QString text = ParameterSetText::toText(*node, QString(), &report);

    QCOMPARE(report.textsNotConverted, QStringList("SuppressedFrequency"));
    QVERIFY(!text.contains("SuppressedFrequency"));
}

void TstParameterSetText::textsOfOtherKinds_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("taken");
    QTest::newRow("number in a text") << "Gain"
                                      << "12.5" << true;
    QTest::newRow("no number") << "Gain"
                               << "much" << false;
    QTest::newRow("comma") << "Gain"
                           << "12,5" << false;
    QTest::newRow("not a number") << "Gain"
                                  << "NaN" << false;
    QTest::newRow("fraction for an integer") << "Attenuation"
                                             << "12.5" << false;
    QTest::newRow("beyond 32 bits") << "SettlingTime"
                                    << "4294967296" << false;
    QTest::newRow("yes and no") << "Preselector"
                                << "false" << true;
    QTest::newRow("neither yes nor no") << "Preselector"
                                        << "perhaps" << false;
    QTest::newRow("enumeration by name") << "Reference"
                                         << "External" << true;
    QTest::newRow("enumeration by its GUI text") << "Reference"
                                                 << "External 10 MHz" << false;
}

void TstParameterSetText::textsOfOtherKinds()
{
    QFETCH(QString, path);
    QFETCH(QString, text);
    QFETCH(bool, taken);
    const auto node = makeNode("TunerSettings");
    addValue<ValueString>(*node, path)->SetValue(text);

    Report report;
    const QString written = ParameterSetText::toText(*node, QString(), &report);

    QCOMPARE(report.textsNotConverted, taken ? QStringList() : QStringList(path));
    QCOMPARE(written.contains("<" + path + ">" + text + "</" + path + ">"), taken);
}

void TstParameterSetText::numberOutsideTheFieldsRange()
{
    const auto node = makeNode("TunerSettings");
    addValue<ValueInt>(*node, "Attenuation")->SetValue(91);
    addValue<ValueInt64>(*node, "CenterFrequency")->SetValue(-1);

    Report report;
    const QString text = ParameterSetText::toText(*node, QString(), &report);

    QCOMPARE(report.textsNotConverted, (QStringList{"Attenuation", "CenterFrequency"}));
    QVERIFY(!text.contains("91"));
    QVERIFY(text.contains("<CenterFrequency>145000000</CenterFrequency>"));
}

void TstParameterSetText::baseKeepsWhatTheNodeHasNoValueFor()
{
    const auto node = makeNode("SignalDescriptions");
    addValue<ValueString>(*node, "ProfileName")->SetValue("Coast");
    const QString base = "<SignalDescriptions><!-- by hand --><ProfileName>old</ProfileName>"
                         "<MatchMode>All</MatchMode><Remark by=\"us\">kept</Remark>"
                         "<SignalDescription><Name>Navtex</Name></SignalDescription></SignalDescriptions>";

    Report report;
    const QString text = ParameterSetText::toText(*node, base, &report);

    QVERIFY(report.isClean());
    for (const char* part :
         {"<!-- by hand -->", "<ProfileName>Coast</ProfileName>", "<MatchMode>All</MatchMode>",
          "<Remark by=\"us\">kept</Remark>", "<Name>Navtex</Name>"})
        QVERIFY2(text.contains(part), qPrintable(text));
    QVERIFY(!text.contains("old"));
}

void TstParameterSetText::baseIsOverwrittenByValues()
{
    const auto node = makeNode("StorageSettings");
    addValue<StringList>(*node, "Keyword");
    addValue<ValueString>(*node, "FileNamePattern");

    const QString text = ParameterSetText::toText(
        *node, inElement("<FileNamePattern>x</FileNamePattern><Keyword>a</Keyword><Keyword>b</Keyword>",
                         "StorageSettings"));

    QVERIFY(!text.contains("Keyword"));
    QVERIFY(!text.contains(">x<"));
    QVERIFY(text.contains("<FileNamePattern"));
}

void TstParameterSetText::baseKeepsDefaultsUnset_data()
{
    addSets();
}

void TstParameterSetText::baseKeepsDefaultsUnset()
{
    QFETCH(QString, set);
    const auto node = nodeForEveryField(set, true);
    // Only what is required.
    const QString base = ParameterSetText::toText(*makeNode(set));

    QVERIFY(ParameterSetText::fromText(*node, base));
    QCOMPARE(ParameterSetText::toText(*node, base), base);

    // Without a base everything is said.
    QVERIFY(ParameterSetText::toText(*node).count('\n') > base.count('\n'));
}

void TstParameterSetText::brokenBase()
{
    const auto node = makeNode("TunerSettings");
    addValue<ValueInt>(*node, "Gain");

    Report report;
    QVERIFY(ParameterSetText::toText(*node, "<Scan_Settings/>", &report).isNull());

    QVERIFY(!report.failure.isEmpty());
}

void TstParameterSetText::nodeWithoutValuesGivesAValidSet()
{
    Report report;
    const QString text = ParameterSetText::toText(*makeNode("AlarmSettings"), QString(), &report);

    JobXml::AlarmSettings set;
    set.SetValidate(true);
    QVERIFY2(set.SetXmlString(text, false), qPrintable(set.GetCheckReason()));
    QVERIFY(report.isClean());
    QCOMPARE(report.fieldsWithoutValue, ParameterSetText::fieldPaths("AlarmSettings"));
}

void TstParameterSetText::namesAreEscaped()
{
    const auto node = makeNode("TunerSettings");
    auto* name = addValue<ValueString>(*node, "ChannelName");
    const QString awkward = QString::fromUtf8("<16> & \"70\" 'é' \t%1 ]]>");
    name->SetValue(awkward);

    const QString text = ParameterSetText::toText(*node);
    name->SetValue(QString());
    QVERIFY(ParameterSetText::fromText(*node, text));

    QCOMPARE(name->GetValue(), awkward);
}

void TstParameterSetText::reportIsReplaced()
{
    Report report;
    report.failure = "old";
    report.valuesWithoutField << "old";

    ParameterSetText::toText(*makeNode("TunerSettings"), QString(), &report);

    QVERIFY(report.isClean());
}

void TstParameterSetText::reportMayBeNull()
{
    const auto node = makeNode("TunerSettings");
    addValue<ValueInt>(*node, "Nothing");

    QVERIFY(!ParameterSetText::toText(*node, QString(), nullptr).isEmpty());
    QVERIFY(ParameterSetText::fromText(*node, "<FFM_Settings/>", nullptr));
}

void TstParameterSetText::fieldsByPath()
{
    QCOMPARE(ParameterSetText::fieldPaths("ScanSettings").mid(5, 6),
             (QStringList{"SuppressedFrequency", "Range.Name", "Range.StartFrequency", "Range.StopFrequency",
                          "Range.StepWidth", "Range.Bandwidth"}));
    QVERIFY(ParameterSetText::fieldPaths("Scan_Settings").isEmpty());
    QCOMPARE(ParameterSetText::field("ScanSettings", "Range.Detail.Threshold")->kind, FieldKind::Double);
    QVERIFY(!ParameterSetText::field("ScanSettings", "Range.Detail"));
    QVERIFY(!ParameterSetText::field("ScanSettings", "Range.Threshold"));
    QVERIFY(!ParameterSetText::field("SignalDescriptions", "SignalDescription[0].Name"));
    QVERIFY(!ParameterSetText::field("Nothing", "Gain"));
    for (const QString& path : ParameterSetText::fieldPaths("FHPJobSettings"))
        QVERIFY2(ParameterSetText::field("FHPJobSettings", path), qPrintable(path));
}

QTEST_GUILESS_MAIN(TstParameterSetText)
#include "tst_parametersettext.moc"
