#include <QRandomGenerator>
#include <sampleelements/sample.h>

using namespace Sample;

namespace {

const char* const DOCUMENT = R"(<?xml version="1.0" encoding="UTF-8"?>
<Station version="1.2" name="Coast &quot;A&quot;" kind="At sea" count="7">
  <Remark>a &lt; b</Remark>
  <Frequency>156800000</Frequency>
  <Gain>0.1</Gain>
  <Area>
    <Low>1</Low>
    <Detail>
      <Threshold>6.5</Threshold>
    </Detail>
  </Area>
  <Mode>AM</Mode>
  <Mode>J3E-USB</Mode>
  <Channel id="16"/>
  <Channel id="17" number="2"/>
  <Signal label="l">
    <Digital>
      <Rate>1200</Rate>
    </Digital>
  </Signal>
</Station>
)";

QString resaved(const QString& text)
{
    Station station;
    return station.SetXmlString(text, true) ? station.GetXmlString(true) : station.GetCheckReason();
}

// Body of a station in one line, with its required fields, as it is written.
QString written(const QString& text)
{
    Station station;
    if (!station.SetXmlString(text, false))
        return station.GetCheckReason();
    return station.GetXmlString().remove(QRegularExpression("\n *"));
}

// A numbered piece of something that no table knows.
QString foreignPiece(int number, QRandomGenerator* random)
{
    const QStringList pieces = {"<x%1/>",
                                "<x%1 a='>'>\r\n  t <y b=\"%1\">&amp;</y></x%1>",
                                "<!-- c%1 \U0001F4E1 -->",
                                "<?p%1 <q?>",
                                QStringLiteral("text%1 \u00b5 &lt; \U0001F4E1"),
                                "<![CDATA[<z%1>]]>",
                                "<Low><Low n='%1'/></Low>"};
    return pieces.at(random->bounded(pieces.size())).arg(number);
}

// Foreign pieces, and blanks of any kind, between known elements on two levels.
QString documentOfPieces(QRandomGenerator* random, int* number)
{
    const QStringList known = {"<Remark>\U0001F4E1&#x41;</Remark>",
                               "<Frequency> 5 </Frequency>",
                               "<Area>@<Low>1</Low>@<Detail>@<Threshold>2</Threshold>@</Detail>@</Area>",
                               "<Tag>a</Tag>",
                               "<Tag><![CDATA[b]]></Tag>",
                               "<Channel id=\"1\">@</Channel>",
                               "<Signal>@<Silence>@</Silence>@</Signal>"};
    QString body;
    for (const QString& element : known)
        body += "@" + element;
    QString result = "<Station name='a'>";
    for (const QChar c : body + "@") {
        if (c != '@') {
            result += c;
            continue;
        }
        for (int i = random->bounded(3); i > 0; --i)
            result += QString(random->bounded(3), '\n') + foreignPiece((*number)++, random) + " ";
    }
    return result + "</Station>";
}

} // namespace

/// The layout of what is written, and that nothing is lost on the way through an element.
class TstElementWriting : public QObject
{
    Q_OBJECT
private slots:
    void layoutOfADocument();
    void elementAloneHasNoHeaderAndNoLineEnd();
    void unsetElementIsWrittenAsNothing();
    void requiredFieldsAreWrittenWithTheirDefaults();
    void requiredEnumerationWithoutValueIsLeftOut();
    void versionOfTheSchemaIsWrittenUnlessThereIsOne();
    void numbersAreWrittenAsShortAsTheyCanBeReadAgain_data();
    void numbersAreWrittenAsShortAsTheyCanBeReadAgain();
    void specialCharactersAreEscaped();
    void forbiddenCharactersAreReplaced();
    void foreignContentKeepsItsPlace_data();
    void foreignContentKeepsItsPlace();
    void foreignContentSurvivesManyRounds();
    void randomForeignContentSurvives();
    void foreignContentFollowsItsSibling();
    void contentBesideTheRootIsKept();
    void otherLayoutsAreBroughtIntoOursOnce();
    void manyForeignPartsAreWrittenInLinearTime();
};

void TstElementWriting::layoutOfADocument()
{
    Station station;
    station.Setversion("1.2");
    station.Setname("Coast \"A\"");
    station.Setkind(Station::KIND_AT_SEA);
    station.Setcount(7);
    station.GetSignal().GetDigital().SetRate(1200);
    station.GetSignal().Setlabel("l");
    station.SetMode({Station::MODE_AM, Station::MODE_J3E_USB});
    station.SetRemark("a < b");
    station.SetFrequency(156800000);
    station.SetGain(0.1F);
    station.GetArea().SetLow(1);
    station.GetArea().SetDetail(Detail());
    Channel channel;
    channel.Setid("16");
    station.AppendChannel(channel);
    channel.Setid("17");
    channel.Setnumber(2);
    station.AppendChannel(channel);
    QCOMPARE(station.GetXmlString(true), QString(DOCUMENT));
    QCOMPARE(resaved(DOCUMENT), QString(DOCUMENT));
}

void TstElementWriting::elementAloneHasNoHeaderAndNoLineEnd()
{
    Detail detail;
    detail.SetThreshold(1);
    QCOMPARE(detail.GetXmlString(), QString("<Detail>\n  <Threshold>1</Threshold>\n</Detail>"));
    QCOMPARE(
        detail.GetXmlString(true),
        QString(
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Detail>\n  <Threshold>1</Threshold>\n</Detail>\n"));
}

void TstElementWriting::unsetElementIsWrittenAsNothing()
{
    Station station;
    QVERIFY(station.GetXmlString().isEmpty());
    QVERIFY(station.GetScan().GetXmlString().isEmpty());
    QVERIFY(station.GetXmlString(true).contains("<Station version=\"1.2\" name=\"\">"));
}

void TstElementWriting::requiredFieldsAreWrittenWithTheirDefaults()
{
    QCOMPARE(
        written("<Station/>"),
        QString("<Station name=\"\"><Frequency>145000000</Frequency><Area><Low>0</Low></Area></Station>"));
    Channel channel;
    QVERIFY(channel.SetXmlString("<Channel><Detail/></Channel>", false));
    QCOMPARE(channel.GetXmlString(),
             QString("<Channel id=\"\">\n  <Detail>\n    <Threshold>6.5</Threshold>\n  </Detail>\n"
                     "</Channel>"));
}

void TstElementWriting::requiredEnumerationWithoutValueIsLeftOut()
{
    Light light;
    QVERIFY(light.SetXmlString("<Light/>", false));
    QCOMPARE(light.GetXmlString(), QString("<Light/>"));
    light.Setcolour(Light::COLOUR_GREEN);
    QCOMPARE(light.GetXmlString(), QString("<Light colour=\"green\"/>"));
}

void TstElementWriting::versionOfTheSchemaIsWrittenUnlessThereIsOne()
{
    QVERIFY(resaved("<Station name=\"a\"/>").contains("<Station version=\"1.2\" name=\"a\">"));
    QVERIFY(
        resaved("<Station name=\"a\" version=\"1.1\"/>").contains("<Station version=\"1.1\" name=\"a\">"));
    QVERIFY(!written("<Station name=\"a\"/>").contains("version"));
}

void TstElementWriting::numbersAreWrittenAsShortAsTheyCanBeReadAgain_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("asDouble");
    QTest::addColumn<QString>("asFloat");
    QTest::newRow("tenth") << 0.1 << "0.1"
                           << "0.1";
    QTest::newRow("third") << 1.0 / 3 << "0.3333333333333333"
                           << "0.33333334";
    QTest::newRow("whole") << 433920000.0 << "433920000"
                           << "433920000";
    QTest::newRow("round") << 100000.0 << "100000"
                           << "100000";
    QTest::newRow("round and negative") << -3e9 << "-3000000000"
                                        << "-3000000000";
    QTest::newRow("largest whole one that is exact") << 9007199254740992.0 << "9007199254740992"
                                                     << "9007199254740992";
    QTest::newRow("next one") << 9007199254740994.0 << "9007199254740994"
                              << "9007199254740992";
    QTest::newRow("not quite round") << 100000.5 << "100000.5"
                                     << "100000.5";
    QTest::newRow("zero") << 0.0 << "0"
                          << "0";
    QTest::newRow("negative zero") << -0.0 << "-0"
                                   << "-0";
    QTest::newRow("small") << 1e-7 << "1e-07"
                           << "1e-07";
    QTest::newRow("large") << 1e22 << "1e+22"
                           << "1e+22";
    QTest::newRow("infinite") << -std::numeric_limits<double>::infinity() << "-INF"
                              << "-INF";
}

void TstElementWriting::numbersAreWrittenAsShortAsTheyCanBeReadAgain()
{
    QFETCH(double, value);
    QFETCH(QString, asDouble);
    QFETCH(QString, asFloat);
    Station station;
    station.SetOffset(value);
    station.SetGain(static_cast<float>(value));
    const QString text = station.GetXmlString();
    QVERIFY2(text.contains("<Offset>" + asDouble + "</Offset>"), qPrintable(text));
    QVERIFY2(text.contains("<Gain>" + asFloat + "</Gain>"), qPrintable(text));
    Station read;
    QVERIFY(read.SetXmlString(text, false));
    QCOMPARE(read.GetOffset(), value);
    QCOMPARE(read.GetGain(), static_cast<float>(value));
}

void TstElementWriting::specialCharactersAreEscaped()
{
    const QString special = QStringLiteral("<&>\"' \t\n\r]]> \u00b5 \U0001F4E1");
    Station station;
    station.Setname(special);
    station.SetRemark(special);
    station.SetTag({special, " "});
    const QString text = station.GetXmlString();
    QVERIFY(text.contains(
        QStringLiteral(" name=\"&lt;&amp;&gt;&quot;' &#9;&#10;&#13;]]&gt; \u00b5 \U0001F4E1\"")));
    QVERIFY(
        text.contains(QStringLiteral("<Remark>&lt;&amp;&gt;\"' \t\n&#13;]]&gt; \u00b5 \U0001F4E1</Remark>")));
    Station read;
    QVERIFY(read.SetXmlString(text, false));
    QCOMPARE(read.Getname(), special);
    QCOMPARE(read.GetRemark(), special);
    QCOMPARE(read.GetTag(), QVector<QString>({special, " "}));
    QCOMPARE(read.GetXmlString(), text);
}

void TstElementWriting::forbiddenCharactersAreReplaced()
{
    QString bad = "a";
    QString replaced = "a";
    for (const int code : {0, 1, 0x1f, 0xfffe, 0xffff, 0xd800, 0xdc00}) {
        bad += QChar(code) + QString("a");
        replaced += QChar(QChar::ReplacementCharacter) + QString("a");
    }
    Station station;
    station.Setname(bad);
    station.SetRemark(bad);
    Station read;
    QVERIFY(read.SetXmlString(station.GetXmlString(), false));
    QCOMPARE(read.Getname(), replaced);
    QCOMPARE(read.GetRemark(), replaced);
}

void TstElementWriting::foreignContentKeepsItsPlace_data()
{
    QTest::addColumn<QString>("text"); // with all required fields, in the order of the table, in one line
    const auto row = [](const char* name, const char* attributes, const char* first, const char* middle,
                        const char* last) {
        QTest::newRow(name)
            << QString("<Station%1>%2<Frequency>1</Frequency>%3<Area><Low>2</Low></Area>%4</Station>")
                   .arg(attributes, first, middle, last);
    };
    row("nothing foreign", " name=\"a\"", "", "", "");
    row("elements", " name=\"a\"", "<x/>", "<y z=\"1\">t<u/>v</y>", "<x><Low>1</Low></x>");
    row("comments", " name=\"a\"", "<!--1-->", "<!-- 2 --><!--3-->", "<!--4 -->");
    row("instructions", " name=\"a\"", "<?one two?>", "<?three?>", "");
    row("text", " name=\"a\"", "one", "two<x/>three", "&lt;four&gt;");
    row("sections", " name=\"a\"", "<![CDATA[ <one> ]]>", "", "");
    row("attributes", " u=\"0\" name=\"a\" v=\"1\" w=\"&quot;\" count=\"3\" x=\"&#10;\"", "", "", "");
    row("namespaces", " xmlns=\"urn:a\" xmlns:b=\"urn:b\" name=\"a\" b:c=\"d\"", "<b:e xmlns:f=\"urn:f\"/>",
        "", "");
    row("values that do not convert", " name=\"a\" count=\"many\"", "", "<Level>loud</Level>",
        "<Step>1</Step><Step>x</Step>");
    row("within child elements", " name=\"a\"", "", "",
        "<Scan q=\"1\"><!--a--><Low>3</Low><!--b--><High>4</High><y/></Scan>");
    row("behind the items of lists", " name=\"a\"", "", "",
        "<Tag>1</Tag><!--1--><Tag>2</Tag><Tag>3</Tag><!--3--><Channel id=\"1\"/><!--c1--><Channel "
        "id=\"2\"/><!--c2--><z/>");
    row("on simple elements", " name=\"a\"", "<Remark lang=\"en\" dir=\"x\">r</Remark>",
        "<Level unit=\"V\">5</Level>", "<Step n=\"1\">1</Step><Step>2</Step><Step n=\"3\">3</Step>");
    row("in choices", " name=\"a\"", "", "",
        "<Signal u=\"1\"><!--a--><Digital><v/></Digital><!--b--></Signal>");
}

void TstElementWriting::foreignContentKeepsItsPlace()
{
    QFETCH(QString, text);
    QCOMPARE(written(text), text);
    const QString once = resaved(text);
    QCOMPARE(resaved(once), once);
}

void TstElementWriting::foreignContentSurvivesManyRounds()
{
    const QString text =
        "<Station name=\"a\"><x>\n\n   <y a='1'  b=\"2\"/>\r\n text </x><Remark>r<!--in--></Remark>\n\n"
        "  <!-- two\n     lines -->  tail <Frequency>1</Frequency></Station>";
    const QString once = resaved(text);
    QVERIFY(once.contains("  <x>\n\n   <y a='1'  b=\"2\"/>\n text </x>\n  <Remark>r</Remark>\n  <!--in-->\n"
                          "  <!-- two\n     lines -->\n  tail\n  <Frequency>"));
    QString text2 = once;
    for (int i = 0; i < 5; ++i)
        text2 = resaved(text2);
    QCOMPARE(text2, once);
}

void TstElementWriting::randomForeignContentSurvives()
{
    QRandomGenerator random(16);
    int total = 0;
    const QRegularExpression numbered("(?:<x|c|<\\?p|text|<z|n=')(\\d+)");
    for (int round = 0; round < 300; ++round) {
        int count = 0;
        const QString once = resaved(documentOfPieces(&random, &count));
        QStringList found;
        for (auto match = numbered.globalMatch(once); match.hasNext();)
            found.append(match.next().captured(1));
        found.removeDuplicates();
        total += count;
        QVERIFY2(found.size() == count, qPrintable(once));
        for (int i = 0; i < count; ++i)
            QCOMPARE(found.at(i), QString::number(i));
        QCOMPARE(resaved(once), once);
    }
    QVERIFY(total > 1000);
}

void TstElementWriting::foreignContentFollowsItsSibling()
{
    Station station;
    QVERIFY(station.SetXmlString(
        "<Station name=\"a\"><Remark>r</Remark><!--behind remark--><Frequency>1</Frequency><Tag>1</Tag>"
        "<!--first--><Tag>2</Tag><!--second--></Station>",
        false));
    station.ResetRemark();
    station.GetTag().removeLast();
    const QString text = station.GetXmlString();
    QVERIFY2(text.contains("<Station name=\"a\">\n  <!--behind remark-->\n  <Frequency>"), qPrintable(text));
    QVERIFY2(text.contains("<Tag>1</Tag>\n  <!--first-->\n  <!--second-->\n"), qPrintable(text));
    station.reset();
    QVERIFY(station.GetXmlString().isEmpty());
    station.Setname("b");
    QVERIFY(!station.GetXmlString().contains("<!--"));
}

void TstElementWriting::contentBesideTheRootIsKept()
{
    const QString body = QString(DOCUMENT).section('\n', 1);
    const QString text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- before\n  both -->\n<?style x?>\n" + body +
        "<!-- after -->\n<?end?>\n";
    QCOMPARE(resaved(text), text);
    QCOMPARE(resaved("\n<!--a-->" + body), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!--a-->\n" + body);
    QCOMPARE(resaved("<?xml version=\"1.0\"?>" + body), QString(DOCUMENT));
    Station station;
    QVERIFY(station.SetXmlString(text, true));
    QVERIFY(!station.GetXmlString().contains("before"));
}

void TstElementWriting::otherLayoutsAreBroughtIntoOursOnce()
{
    const QString body = QString(DOCUMENT).section('\n', 1);
    QCOMPARE(
        resaved("<?xml version='1.0' encoding='ISO-8859-1' standalone='yes'?>" + QString(body).remove("\n")),
        QString(DOCUMENT));
    QCOMPARE(resaved(QString(DOCUMENT).replace("\n", "\r\n")), QString(DOCUMENT));
    QCOMPARE(resaved(QString(DOCUMENT).replace("  ", "\t")), QString(DOCUMENT));
    QCOMPARE(
        resaved(QString(DOCUMENT).replace(" count=\"7\"", "").replace("<Station", "<Station count='007'")),
        QString(DOCUMENT));
    QCOMPARE(resaved(QString(DOCUMENT).replace("<Rate>1200<", "<Rate> +1200\n<")), QString(DOCUMENT));
}

void TstElementWriting::manyForeignPartsAreWrittenInLinearTime()
{
    const QString text =
        "<Station>" + QString("<Tag n=\"1\">a</Tag><!--c--><x/>").repeated(30000) + "</Station>";
    Station station;
    QVERIFY(station.SetXmlString(text, false));
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(station.GetXmlString().count("<!--c-->\n  <x/>"), 30000);
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(TstElementWriting)
#include "tst_elementwriting.moc"
