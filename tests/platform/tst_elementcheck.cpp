#include <libxml/parser.h>
#include <libxml/xmlschemas.h>
#include <QRandomGenerator>
#include <sampleelements/sample.h>

using namespace Sample;

namespace {

const char* const DOCUMENT = R"(<?xml version="1.0" encoding="UTF-8"?>
<Station version="1.2" name="Coast" kind="At sea" demodulation="AM" count="7" active="true">
  <Remark>a</Remark>
  <Frequency>156800000</Frequency>
  <Level>12.5</Level>
  <Gain>0.1</Gain>
  <Counter>-3</Counter>
  <Area>
    <Low>1</Low>
    <High>2</High>
    <Detail>
      <Threshold>6.5</Threshold>
      <DwellTime>20</DwellTime>
    </Detail>
  </Area>
  <Mode>AM</Mode>
  <Mode>J3E-USB</Mode>
  <Step>1</Step>
  <Weight>1.5</Weight>
  <Channel id="16" number="1"/>
  <Channel id="17">
    <Detail>
      <Threshold>-20</Threshold>
    </Detail>
  </Channel>
  <Signal label="l">
    <Digital>
      <Rate>1200</Rate>
    </Digital>
  </Signal>
</Station>
)";

// A judgement of our own: libxml2 with the schema files as they are.
class Judge
{
public:
    Judge()
    {
        const std::unique_ptr<xmlSchemaParserCtxt, decltype(&xmlSchemaFreeParserCtxt)> parser(
            xmlSchemaNewParserCtxt(JED_SAMPLE_SCHEMA), xmlSchemaFreeParserCtxt);
        m_schema = xmlSchemaParse(parser.get());
    }
    ~Judge() { xmlSchemaFree(m_schema); }
    bool isReady() const { return m_schema != nullptr; }
    bool isValid(const QString& text) const
    {
        const QByteArray bytes = text.toUtf8();
        const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
            xmlReadMemory(bytes.constData(), bytes.size(), nullptr, "UTF-8",
                          XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
            xmlFreeDoc);
        const std::unique_ptr<xmlSchemaValidCtxt, decltype(&xmlSchemaFreeValidCtxt)> run(
            xmlSchemaNewValidCtxt(m_schema), xmlSchemaFreeValidCtxt);
        xmlSchemaSetValidStructuredErrors(run.get(), ignore, nullptr);
        return document && xmlSchemaValidateDoc(run.get(), document.get()) == 0;
    }

private:
    static void ignore(void*, xmlErrorPtr) {}

    xmlSchemaPtr m_schema = nullptr;
};

const char* const VALUES[] = {"",
                              " ",
                              "1",
                              "-1",
                              "007",
                              "+5",
                              "1.5",
                              "-20",
                              "130.5",
                              "1e3",
                              "NaN",
                              "INF",
                              "+INF",
                              ".5",
                              "5.",
                              "x",
                              "AM",
                              " AM",
                              "At sea",
                              "true",
                              "0",
                              "TRUE",
                              "&#65;",
                              " 7 ",
                              "--",
                              "1e99",
                              "3000000001",
                              "2147483648",
                              "99999999999999999999"};

// One random change: another value, or a line that is gone, given twice or somewhere else.
QString changed(QString text, QRandomGenerator* random)
{
    QStringList lines = text.split('\n');
    const int at = 1 + random->bounded(lines.size() - 2);
    const int other = 1 + random->bounded(lines.size() - 2);
    const QString value = QString::fromLatin1(VALUES[random->bounded(static_cast<int>(std::size(VALUES)))]);
    QString& line = lines[at];
    const QRegularExpression textValue(">[^<>]*<");
    const QRegularExpression attributeValue("\"[^\"]*\"");
    switch (random->bounded(8)) {
    case 0:
        lines.removeAt(at);
        break;
    case 1:
        lines.insert(other, line);
        break;
    case 2:
        lines.move(at, other);
        break;
    case 3:
        line.replace("<Digital>", "<Analog/>").replace("</Digital>", "");
        break;
    case 4:
        line.insert(line.indexOf('<'), random->bounded(2) == 0 ? "<!-- c -->" : "<other/>");
        break;
    case 5:
        line.replace(QRegularExpression(" [a-z]+=\"[^\"]*\""), random->bounded(2) == 0 ? "" : " other=\"1\"");
        break;
    default:
        if (line.contains(textValue))
            line.replace(textValue, ">" + value + "<");
        else
            line.replace(attributeValue, "\"" + value + "\"");
        break;
    }
    return lines.join('\n');
}

} // namespace

/// Validating: Check(), SetValidate() and what they say.
class TstElementCheck : public QObject
{
    Q_OBJECT
private slots:
    void validatingIsOffAtFirst();
    void checkWithoutValidatingTellsOfTheLastLoad();
    void checkNamesThePlaceInTheLoadedText_data();
    void checkNamesThePlaceInTheLoadedText();
    void loadingWithValidatingRefusesWhatBreaksTheSchema();
    void changedContentIsCheckedAsItWouldBeWritten();
    void changeOfAListIsNoticed();
    void changeBelowIsNoticed();
    void elementsThatStandAloneAreChecked();
    void declaredEncodingDoesNotMatter();
    void commentsDoNotMatter();
    void hintWhereTheSchemaIsDoesNotMatter();
    void dateIsLeftToTheSchema();
    void randomTextsGetTheSameVerdict();
};

void TstElementCheck::validatingIsOffAtFirst()
{
    Station station;
    QVERIFY(!station.GetValidate());
    QVERIFY(station.Check());
    QVERIFY(station.SetXmlString("<Station/>", true));
    QVERIFY(station.Check());
    station.SetValidate(true);
    QVERIFY(station.GetValidate());
    QVERIFY(!station.Check());
    station.SetValidate(false);
    QVERIFY(Station(station).GetValidate() == false);
}

void TstElementCheck::checkWithoutValidatingTellsOfTheLastLoad()
{
    Station station;
    QVERIFY(!station.SetXmlString("<Station>", true));
    QVERIFY(!station.Check());
    QVERIFY(station.SetXmlString("<Station count=\"x\"/>", true));
    QVERIFY(!station.Check());
    QVERIFY(station.SetXmlString("<Station count=\"-1000\"><other/></Station>", true));
    QVERIFY(station.Check());
}

void TstElementCheck::checkNamesThePlaceInTheLoadedText_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* from, const char* to, int line, const char* reason) {
        QTest::newRow(name) << QString(from) << QString(to) << line << QString(reason);
    };
    row("missing attribute", " name=\"Coast\"", "", 2, "The attribute 'name' is required");
    row("missing element", "    <Low>1</Low>\n", "", 9, "Expected is ( Low )");
    row("unknown attribute", "number=\"1\"", "colour=\"1\"", 20, "The attribute 'colour' is not allowed");
    row("unknown element", "<Gain>0.1</Gain>", "<Loss>0.1</Loss>", 6, "This element is not expected");
    row("wrong order", "<Gain>0.1</Gain>", "<Area><Low>1</Low></Area>", 7, "This element is not expected");
    row("wrong value", "<Step>1", "<Step>one", 18, "'one' is not a valid value");
    row("above the range", "12.5", "131", 5, "maximum value allowed");
    row("below the range", "156800000", "-1", 4, "minimum value allowed");
    row("no value of the enumeration", "\"At sea\"", "\"Afloat\"", 2, "not an element of the set");
    row("text between elements", "<Gain>0.1</Gain>", "x", 7, "Character content");
    row("no alternative", "<Digital>\n      <Rate>1200</Rate>\n    </Digital>\n", "", 27,
        "Missing child element");
}

void TstElementCheck::checkNamesThePlaceInTheLoadedText()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(int, line);
    QFETCH(QString, reason);
    QVERIFY(QString(DOCUMENT).contains(from));
    Station station;
    QVERIFY(station.SetXmlString(QString(DOCUMENT).replace(from, to), true));
    station.SetValidate(true);
    QVERIFY(!station.Check());
    QVERIFY2(station.GetCheckReason().contains(reason), qPrintable(station.GetCheckReason()));
    QCOMPARE(station.GetCheckLine(), line);
    QVERIFY(station.GetCheckColumn() > 0);
    QVERIFY(station.SetXmlString(DOCUMENT, true));
    QVERIFY(station.Check());
    QVERIFY(station.GetCheckReason().isEmpty());
    QCOMPARE(station.GetCheckLine(), 0);
}

void TstElementCheck::loadingWithValidatingRefusesWhatBreaksTheSchema()
{
    Station station;
    station.SetValidate(true);
    QVERIFY(station.SetXmlString(DOCUMENT, true));
    QVERIFY(!station.SetXmlString(QString(DOCUMENT).replace("12.5", "131"), true));
    QCOMPARE(station.GetLevel(), 12.5);
    QCOMPARE(station.GetCheckLine(), 5);
    QVERIFY(station.GetCheckReason().contains("131"));
    QVERIFY(!station.SetXmlString("<Station>", true));
    QCOMPARE(station.GetLevel(), 12.5);
}

void TstElementCheck::changedContentIsCheckedAsItWouldBeWritten()
{
    Station station;
    station.SetValidate(true);
    QVERIFY(station.SetXmlString(DOCUMENT, true));
    station.SetLevel(500);
    QVERIFY(!station.Check());
    QVERIFY(station.GetCheckReason().contains("500"));
    QCOMPARE(station.GetXmlString(true).split('\n').value(station.GetCheckLine() - 1),
             QString("  <Level>500</Level>"));
    station.SetLevel(5);
    QVERIFY(station.Check());
    QVERIFY(station.GetCheckReason().isEmpty());
    Station made;
    made.SetValidate(true);
    made.Setname("a");
    made.GetArea();
    QVERIFY(made.Check());
    made.GetSignal().Setlabel("x");
    QVERIFY(!made.Check());
}

void TstElementCheck::changeOfAListIsNoticed()
{
    Station station;
    station.SetValidate(true);
    QVERIFY(station.SetXmlString(DOCUMENT, true));
    station.GetChannel().append(Channel());
    station.GetChannel().last().GetDetail().SetThreshold(1000);
    QVERIFY(!station.Check());
}

void TstElementCheck::changeBelowIsNoticed()
{
    Station station;
    station.SetValidate(true);
    QVERIFY(station.SetXmlString(DOCUMENT, true));
    Detail& detail = station.GetArea().GetDetail();
    QVERIFY(station.Check());
    detail.SetThreshold(1000);
    QVERIFY(!station.Check());
    QVERIFY(detail.SetXmlString("<Detail><Threshold>1</Threshold></Detail>", false));
    QVERIFY(station.Check());
    QVERIFY(detail.SetXmlString("<Detail><Threshold>1000</Threshold></Detail>", false));
    QVERIFY(!station.Check());
}

void TstElementCheck::elementsThatStandAloneAreChecked()
{
    for (const char* name : {"Range", "Area", "Scan"}) {
        Range range;
        range.SetValidate(true);
        QVERIFY(range.SetXmlString(QString("<%1><Low>1</Low><!--c--></%1>").arg(name), false));
        QVERIFY(!range.SetXmlString(QString("<%1><High>1</High></%1>").arg(name), false));
        QVERIFY2(range.GetCheckReason().contains("Expected is ( Low )"), qPrintable(range.GetCheckReason()));
        QVERIFY(range.Check());
        range.SetLow(-1);
        QVERIFY(!range.Check());
    }
    Signal signal;
    signal.SetValidate(true);
    QVERIFY(signal.SetXmlString("<Signal><Silence/></Signal>", false));
    QVERIFY(!signal.SetXmlString("<Signal/>", false));
    QVERIFY(!signal.SetXmlString("<Signal><Silence/><Silence/></Signal>", false));
}

void TstElementCheck::declaredEncodingDoesNotMatter()
{
    Station station;
    QVERIFY(station.SetXmlString(QString(DOCUMENT)
                                     .replace("UTF-8", "ISO-8859-1")
                                     .replace("Coast", QStringLiteral("K\u00fcste"))
                                     .replace("12.5", "131"),
                                 true));
    station.SetValidate(true);
    QVERIFY(!station.Check());
    QVERIFY2(station.GetCheckReason().contains("131"), qPrintable(station.GetCheckReason()));
}

void TstElementCheck::commentsDoNotMatter()
{
    Station station;
    station.SetValidate(true);
    QVERIFY(station.SetXmlString(
        QString(DOCUMENT).replace("<Gain>", "<!--c--><?p?><Gain>").replace("12.5", "12<!--c-->.5"), true));
    QVERIFY(station.Check());
    QCOMPARE(station.GetLevel(), 12.5);
}

void TstElementCheck::hintWhereTheSchemaIsDoesNotMatter()
{
    const QString hint = " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                         "xsi:noNamespaceSchemaLocation=\"nowhere.xsd\"";
    const QString text = QString(DOCUMENT).replace(" active=\"true\"", " active=\"true\"" + hint);
    Station station;
    station.SetValidate(true);
    QVERIFY2(station.SetXmlString(text, true), qPrintable(station.GetCheckReason()));
    QVERIFY(station.Check());
    QCOMPARE(station.GetXmlString(true), text);
}

void TstElementCheck::dateIsLeftToTheSchema()
{
    const QString text = QString(DOCUMENT).replace("<Area>", "<Created>%1</Created><Area>");
    Station station;
    station.SetValidate(true);
    QVERIFY(station.SetXmlString(text.arg("2024-02-29T10:00:00Z"), true));
    QVERIFY(!station.SetXmlString(text.arg("2023-02-29T10:00:00Z"), true));
    QVERIFY(!station.SetXmlString(text.arg("yesterday"), true));
    QCOMPARE(station.GetCreated(), QString("2024-02-29T10:00:00Z"));
}

// Most texts that keep to the schema are recognised while they are read. The verdict must be that of the
// schema.
void TstElementCheck::randomTextsGetTheSameVerdict()
{
    const Judge judge;
    QVERIFY(judge.isReady());
    QVERIFY(judge.isValid(DOCUMENT));
    QRandomGenerator random(20240305);
    int valid = 0;
    int invalid = 0;
    for (int i = 0; i < 4000; ++i) {
        QString text = changed(DOCUMENT, &random);
        if (i % 3 == 0)
            text = changed(text, &random);
        Station station;
        const bool loaded = station.SetXmlString(text, true);
        station.SetValidate(true);
        const bool checked = loaded && station.Check();
        QVERIFY2(checked == judge.isValid(text), qPrintable(text + station.GetCheckReason()));
        QCOMPARE(station.GetCheckReason().isEmpty(), checked);
        ++(checked ? valid : invalid);
        if (loaded)
            QCOMPARE(station.SetXmlString(text, true), checked);
    }
    QVERIFY2(valid > 500 && invalid > 500, qPrintable(QString("%1 %2").arg(valid).arg(invalid)));
}

QTEST_GUILESS_MAIN(TstElementCheck)
#include "tst_elementcheck.moc"
