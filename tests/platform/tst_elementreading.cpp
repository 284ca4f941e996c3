#include <QElapsedTimer>
#include <sampleelements/sample.h>

using namespace Sample;

namespace {

const char* const LOADED =
    "<Station name=\"before\"><Frequency>1</Frequency><Area><Low>2</Low></Area></Station>";

QString attributes(int count)
{
    QString result;
    for (int i = 0; i < count; ++i)
        result += QString(" a%1=\"%1\"").arg(i);
    return result;
}

QString nested(int levels)
{
    return QString("<x>").repeated(levels) + QString("</x>").repeated(levels);
}

} // namespace

/// What SetXmlString() accepts, keeps and refuses.
class TstElementReading : public QObject
{
    Q_OBJECT
private slots:
    void allKindsOfFieldsAreRead();
    void refusedTextLeavesTheContent_data();
    void refusedTextLeavesTheContent();
    void reasonIsClearedBySuccess();
    void versionIsThatOfTheLastDocument();
    void rootMayHaveTheNameOfAFieldOrOfTheClass();
    void valuesConvertAsTheSchemaSays_data();
    void valuesConvertAsTheSchemaSays();
    void textKeepsItsBlanks();
    void valuesThatDoNotConvertStayUnset();
    void setterReplacesAValueThatDidNotConvert();
    void wrongListItemIsLeftOutOfTheList();
    void repeatedElementIsKeptButNotRead();
    void secondAlternativeIsKeptButNotRead();
    void unknownAlternativeGivesNoChoice();
    void orderOfElementsDoesNotMatter();
    void problemsAreLimited();
    void byteOrderMarkIsSkipped();
    void replacementCharacterIsTextOnly();
    void manyAttributesAreAccepted();
    void tagsInCommentsAndSectionsAreNotCounted();
    void tooManyAttributesEndAtOnce_data();
    void tooManyAttributesEndAtOnce();
    void levelsAreLimited();
    void textLengthIsLimited();
    void deepTextEndsAtOnce();
};

void TstElementReading::allKindsOfFieldsAreRead()
{
    Station station;
    QVERIFY(station.SetXmlString(
        "<Station version=\"1.2\" name=\"n\" kind=\"At sea\" demodulation=\"AM\" count=\"9\" "
        "active=\"false\">"
        "<Remark>r</Remark><Frequency>2999999999</Frequency><Level>-1.5</Level><Gain>0.1</Gain><Offset>1e-3</"
        "Offset>"
        "<Counter>-9000000000</Counter><Created>2024-01-02T03:04:05Z</Created><Area><Low>1</Low></Area>"
        "<Mode>FM</Mode><Mode>J3E-USB</Mode><Tag>a</Tag><Tag/><Step>1</Step><Step>-2</Step><Weight>0.1</"
        "Weight>"
        "<Channel id=\"1\" number=\"4\"><Detail><Threshold>7</Threshold></Detail></Channel><Channel "
        "id=\"2\"/>"
        "<Signal label=\"l\"><Digital><Rate>1200</Rate></Digital></Signal></Station>",
        true));
    QCOMPARE(station.Getname(), QString("n"));
    QCOMPARE(station.Getkind(), Station::KIND_AT_SEA);
    QCOMPARE(station.Getdemodulation(), Station::DEMODULATION_AM);
    QCOMPARE(station.Getcount(), 9);
    QCOMPARE(station.Getactive(), false);
    QCOMPARE(station.GetRemark(), QString("r"));
    QCOMPARE(station.GetFrequency(), Q_INT64_C(2999999999));
    QCOMPARE(station.GetLevel(), -1.5);
    QCOMPARE(station.GetGain(), 0.1F);
    QCOMPARE(station.GetOffset(), 0.001);
    QCOMPARE(station.GetCounter(), Q_INT64_C(-9000000000));
    QCOMPARE(station.GetCreated(), QString("2024-01-02T03:04:05Z"));
    QCOMPARE(station.GetArea().GetLow(), Q_INT64_C(1));
    QVERIFY(!station.IsScanSet());
    QCOMPARE(station.GetMode(), QVector<Station::Mode>({Station::MODE_FM, Station::MODE_J3E_USB}));
    QCOMPARE(station.GetTag(), QVector<QString>({"a", ""}));
    QCOMPARE(station.GetStep(), QVector<int>({1, -2}));
    QCOMPARE(station.GetWeight(), QVector<float>({0.1F}));
    QCOMPARE(station.GetChannel().size(), 2);
    QCOMPARE(station.GetChannel().at(0).GetDetail().GetThreshold(), 7.0);
    QVERIFY(!station.GetChannel().at(1).IsDetailSet());
    QCOMPARE(station.GetSignal().GetChoiceSignal(), 1);
    QCOMPARE(station.GetSignal().GetDigital().GetRate(), 1200);
    QVERIFY(station.problems().isEmpty());
}

void TstElementReading::refusedTextLeavesTheContent_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QString& text, int line, int column, const char* reason) {
        QTest::newRow(name) << text << line << column << QString(reason);
    };
    row("empty document", "", 1, 0, "Premature end of document.");
    row("blanks only", " \n ", 2, 1, "Premature end of document.");
    row("no XML", "hello", 1, 1, "Start tag expected.");
    row("unfinished", "<Station name=\"a\">\n<Area>", 2, 6, "Premature end of document.");
    row("wrong end tag", "<Station>\n</Area>", 2, 7, "Opening and ending tag mismatch.");
    row("second root", "<Station/><Station/>", 1, 20, "Extra content at end of document.");
    row("text behind the root", "<Station/>\nx", 2, 1, "Extra content at end of document.");
    row("attribute given twice", "<Station name=\"a\" name=\"b\"/>", 1, 28, "Attribute 'name' redefined.");
    row("tag in an attribute", "<Station name=\"<\"/>", 1, 16, "Unexpected '<'.");
    row("unknown entity", "<Station>&nbsp;</Station>", 1, 15, "Entity 'nbsp' not declared.");
    row("wrong root", "<?xml version=\"1.0\"?>\n<Area/>", 2, 7, "The root is <Area> instead of <Station>");
    row("root in a namespace", "<s:Station xmlns:s=\"urn:s\"/>", 1, 28,
        "The root is <s:Station> instead of <Station>");
    row("document type", "<?xml version=\"1.0\"?>\n <!-- a --> <!DOCTYPE Station>\n<Station/>", 2, 12,
        "A document type is not allowed");
    row("document type with entities", "<!DOCTYPE S [<!ENTITY a \"b\">]><Station>&a;</Station>", 1, 0,
        "A document type is not allowed");
    row("document type later", "<Station><!DOCTYPE a></Station>", 1, 21, nullptr);
    row("NUL", QString("<Station>\n") + QChar() + "</Station>", 2, 0, "The text holds a NUL character");
    row("forbidden character", QString("<Station>") + QChar(1) + "</Station>", 1, 10, nullptr);
    row("257 attributes", "<Station>\n <Area" + attributes(257) + "/></Station>", 2, 1,
        "An element has more than 256 attributes");
}

void TstElementReading::refusedTextLeavesTheContent()
{
    QFETCH(QString, text);
    QFETCH(int, line);
    QFETCH(int, column);
    QFETCH(QString, reason);
    Station station;
    QVERIFY(station.SetXmlString(LOADED, false));
    const QString before = station.GetXmlString();
    QVERIFY(!station.SetXmlString(text, true));
    QCOMPARE(station.GetXmlString(), before);
    if (!reason.isEmpty())
        QCOMPARE(station.GetCheckReason(), reason);
    QVERIFY(!station.GetCheckReason().isEmpty());
    QCOMPARE(QPoint(station.GetCheckColumn(), station.GetCheckLine()), QPoint(column, line));
    QVERIFY(!station.Check());
    if (!text.isEmpty())
        QVERIFY(!station.SetXmlString(text, false));
}

void TstElementReading::reasonIsClearedBySuccess()
{
    Station station;
    QVERIFY(!station.SetXmlString("<a/>", false));
    QVERIFY(station.SetXmlString(LOADED, false));
    QVERIFY(station.GetCheckReason().isEmpty());
    QCOMPARE(station.GetCheckLine(), 0);
    QCOMPARE(station.GetCheckColumn(), 0);
    QVERIFY(station.Check());
}

void TstElementReading::versionIsThatOfTheLastDocument()
{
    Station station;
    QVERIFY(station.SetXmlString("<Station version=\"1.0\"/>", true));
    QCOMPARE(station.GetInitialVersionLoaded(), QString("1.0"));
    QVERIFY(!station.SetXmlString("<Station version=\"2.0\">", true));
    QCOMPARE(station.GetInitialVersionLoaded(), QString("1.0"));
    station.Setversion("3.0");
    QCOMPARE(station.GetInitialVersionLoaded(), QString("1.0"));
    QVERIFY(station.SetXmlString("<Station/>", true));
    QVERIFY(station.GetInitialVersionLoaded().isNull());
    QVERIFY(station.SetXmlString("<Station version=\"4.0\"/>", false));
    QVERIFY(station.GetInitialVersionLoaded().isNull());
    QCOMPARE(station.Getversion(), QString("4.0"));
    Detail detail;
    QVERIFY(detail.SetXmlString("<Detail version=\"5\"/>", true));
    QCOMPARE(detail.GetInitialVersionLoaded(), QString("5"));
}

void TstElementReading::rootMayHaveTheNameOfAFieldOrOfTheClass()
{
    Range range;
    QVERIFY(range.SetXmlString("<Scan><Low>1</Low></Scan>", false));
    QVERIFY(range.SetXmlString("<Area><Low>2</Low></Area>", false));
    QVERIFY(range.SetXmlString("<?xml version=\"1.0\"?><!--c--><Range><Low>3</Low></Range>", false));
    QCOMPARE(range.GetLow(), Q_INT64_C(3));
    QVERIFY(!range.SetXmlString("<scan><Low>4</Low></scan>", false));
}

void TstElementReading::valuesConvertAsTheSchemaSays_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written"); // null: does not convert
    const auto row = [](const char* field, const char* text, const char* written) {
        QTest::newRow(qPrintable(QString("%1 %2").arg(field, text)))
            << QString(field) << QString(text) << QString(written);
    };
    row("Counter", "007", "7");
    row("Counter", "+5", "5");
    row("Counter", " \n-5\t", "-5");
    row("Counter", "9223372036854775807", "9223372036854775807");
    row("Counter", "-9223372036854775808", "-9223372036854775808");
    row("Counter", "9223372036854775808", nullptr);
    row("Counter", "-9223372036854775809", nullptr);
    row("Counter", "92233720368547758070", nullptr);
    row("Counter", "1.0", nullptr);
    row("Counter", "1 0", nullptr);
    row("Counter", "", nullptr);
    row("Counter", "-", nullptr);
    row("Counter", "0x10", nullptr);
    row("Counter", "\u0661", nullptr);
    row("Counter", "\u00a01", nullptr);
    row("Step", "2147483647", "2147483647");
    row("Step", "-2147483648", "-2147483648");
    row("Step", "2147483648", nullptr);
    row("Offset", "1.50", "1.5");
    row("Offset", ".5", "0.5");
    row("Offset", "5.", "5");
    row("Offset", "+1E2", "100");
    row("Offset", "1e300", "1e+300");
    row("Offset", "0.1", "0.1");
    row("Offset", "INF", "INF");
    row("Offset", "-INF", "-INF");
    row("Offset", "NaN", "NaN");
    row("Offset", "inf", nullptr);
    row("Offset", "nan", nullptr);
    row("Offset", "1,5", nullptr);
    row("Offset", "1e", nullptr);
    row("Offset", "+-1", nullptr);
    row("Offset", "--1", nullptr);
    row("Offset", ".", nullptr);
    row("Offset", "1e999", nullptr);
    row("Offset", "0x1p3", nullptr);
    row("Gain", "0.1", "0.1");
    row("Gain", "16777217", "16777216");
    row("Gain", "1e39", nullptr);
    row("active", "1", "true");
    row("active", " false ", "false");
    row("active", "True", nullptr);
    row("active", "yes", nullptr);
    row("kind", "At sea", "At sea");
    row("kind", "at sea", nullptr);
    row("kind", " Fixed", nullptr);
    row("Mode", "J3E-USB", "J3E-USB");
}

void TstElementReading::valuesConvertAsTheSchemaSays()
{
    QFETCH(QString, field);
    QFETCH(QString, text);
    QFETCH(QString, written);
    const bool attribute = field.at(0).isLower();
    Station station;
    const QString xml =
        attribute ? QString("<Station %1=\"%2\"/>") : QString("<Station><%1>%2</%1></Station>");
    QVERIFY(station.SetXmlString(xml.arg(field, text), false));
    const QString pattern = attribute ? QString(" %1=\"%2\"") : QString("<%1>%2</%1>");
    QCOMPARE(station.problems().size(), written.isNull() ? 1 : 0);
    const QString expected = pattern.arg(field, written.isNull() ? text : written);
    QVERIFY2(station.GetXmlString().contains(expected) || text.isEmpty(), qPrintable(station.GetXmlString()));
    QVERIFY(station.Check() != written.isNull());
}

void TstElementReading::textKeepsItsBlanks()
{
    Station station;
    QVERIFY(station.SetXmlString(
        "<Station name=\" a&#10;b \"><Remark> x\n <![CDATA[<&> ]]>y</Remark><Tag> </Tag></Station>", false));
    QCOMPARE(station.Getname(), QString(" a\nb "));
    QCOMPARE(station.GetRemark(), QString(" x\n <&> y"));
    QCOMPARE(station.GetTag().at(0), QString(" "));
    QVERIFY(station.SetXmlString("<Station><Remark/></Station>", false));
    QVERIFY(station.IsRemarkSet());
    QVERIFY(station.GetRemark().isEmpty());
}

void TstElementReading::valuesThatDoNotConvertStayUnset()
{
    Station station;
    QVERIFY(station.SetXmlString(
        "<Station count=\"many\"\n kind=\"Air\"><Level unit=\"V\">loud</Level>\n<Gain>1<b/></Gain>"
        "</Station>",
        false));
    QVERIFY(!station.IscountSet() && !station.IskindSet() && !station.IsLevelSet() && !station.IsGainSet());
    QCOMPARE(station.Getcount(), 5);
    QCOMPARE(static_cast<int>(station.Getkind()), -1);
    QStringList problems;
    for (const REPORTGENERATOR::Problem& problem : station.problems())
        problems.append(QString("%1: %2").arg(problem.line).arg(problem.reason));
    QCOMPARE(problems, QStringList({"2: \"many\" is no value of count", "2: \"Air\" is no value of kind",
                                    "2: \"loud\" is no value of Level", "3: \"1\" is no value of Gain"}));
    QVERIFY(!station.Check());
    const QString text = station.GetXmlString();
    for (const char* kept :
         {" count=\"many\"", " kind=\"Air\"", "<Level unit=\"V\">loud</Level>", "<Gain>1<b/></Gain>"})
        QVERIFY2(text.contains(kept), kept);
}

void TstElementReading::setterReplacesAValueThatDidNotConvert()
{
    Station station;
    QVERIFY(station.SetXmlString(
        "<Station count=\"many\" kind=\"Air\"><Level>loud</Level><Gain>x</Gain></Station>", false));
    station.Setcount(3);
    station.Resetkind();
    station.SetLevel(2);
    station.ResetGain();
    const QString text = station.GetXmlString();
    QVERIFY(text.contains(" count=\"3\"") && text.contains("<Level>2</Level>"));
    QVERIFY(!text.contains("many") && !text.contains("Air") && !text.contains("loud") &&
            !text.contains("Gain"));
}

void TstElementReading::wrongListItemIsLeftOutOfTheList()
{
    Station station;
    QVERIFY(station.SetXmlString("<Station><Step>1</Step><Step>two</Step><Step>3</Step></Station>", false));
    QCOMPARE(station.GetStep(), QVector<int>({1, 3}));
    QVERIFY(station.GetXmlString().contains("<Step>1</Step>\n  <Step>two</Step>\n  <Step>3</Step>"));
    QCOMPARE(station.problems().size(), 1);
}

void TstElementReading::repeatedElementIsKeptButNotRead()
{
    Station station;
    QVERIFY(station.SetXmlString(
        "<Station><Level>1</Level><Level>2</Level><Area><Low>3</Low></Area><Area/></Station>", false));
    QCOMPARE(station.GetLevel(), 1.0);
    QCOMPARE(station.GetArea().GetLow(), Q_INT64_C(3));
    QCOMPARE(station.problems().size(), 2);
    QCOMPARE(station.problems().at(0).reason, QString("<Level> is one element too many"));
    QVERIFY(station.GetXmlString().contains("<Level>1</Level>\n  <Level>2</Level>"));
    QVERIFY(station.GetXmlString().contains("</Area>\n  <Area/>"));
}

void TstElementReading::secondAlternativeIsKeptButNotRead()
{
    Signal signal;
    QVERIFY(signal.SetXmlString("<Signal><Silence/><Analog deviation=\"1\"/></Signal>", false));
    QCOMPARE(signal.GetChoiceSignal(), 2);
    QVERIFY(!signal.IsAnalogSet());
    QCOMPARE(signal.problems().size(), 1);
    QVERIFY(signal.GetXmlString().contains("<Analog deviation=\"1\"/>"));
}

void TstElementReading::unknownAlternativeGivesNoChoice()
{
    Signal signal;
    QVERIFY(signal.SetXmlString("<Signal><Optical wave=\"1\"/></Signal>", false));
    QCOMPARE(signal.GetChoiceSignal(), -1);
    QVERIFY(signal.isSet());
    QCOMPARE(signal.GetXmlString(), QString("<Signal>\n  <Optical wave=\"1\"/>\n</Signal>"));
}

void TstElementReading::orderOfElementsDoesNotMatter()
{
    Station station;
    QVERIFY(station.SetXmlString(
        "<Station><Tag>a</Tag><Step>1</Step><Tag>b</Tag><Remark>r</Remark><Step>2</Step></Station>", false));
    QCOMPARE(station.GetTag(), QVector<QString>({"a", "b"}));
    QCOMPARE(station.GetStep(), QVector<int>({1, 2}));
    QCOMPARE(station.GetRemark(), QString("r"));
    QVERIFY(station.problems().isEmpty());
}

void TstElementReading::problemsAreLimited()
{
    Station station;
    QVERIFY(
        station.SetXmlString("<Station>" + QString("<Step>x</Step>").repeated(1000) + "</Station>", false));
    QCOMPARE(station.problems().size(), 100);
    QCOMPARE(station.GetXmlString().count("<Step>x</Step>"), 1000);
}

void TstElementReading::byteOrderMarkIsSkipped()
{
    Station station;
    const QString text = QChar(QChar::ByteOrderMark) + QString("<Station>\n<other/><Tag>a</Tag></Station>");
    QVERIFY(station.SetXmlString(text, true));
    QVERIFY(station.GetXmlString().contains(">\n  <other/>\n  <Frequency>"));
}

void TstElementReading::replacementCharacterIsTextOnly()
{
    const QString broken = QString::fromUtf8("\xff");
    Station station;
    QVERIFY(station.SetXmlString(QString("<Station name=\"%1\"><Remark>%1</Remark></Station>").arg(broken),
                                 false));
    QCOMPARE(station.GetRemark(), broken);
    QCOMPARE(station.Getname(), broken);
    QVERIFY(!station.SetXmlString(QString("<Station n%1=\"a\"/>").arg(broken), false));
    QCOMPARE(station.GetCheckReason(), QString("The name of an attribute holds a wrong character"));
    QVERIFY(!station.SetXmlString(QString("<Station><a%1/></Station>").arg(broken), false));
    QVERIFY(!station.SetXmlString(QString("<Station><a n%1=\"b\"/></Station>").arg(broken), false));
    QVERIFY(!station.SetXmlString(QString("<Station><a><b n%1=\"b\"/></a></Station>").arg(broken), false));
    QVERIFY(!station.SetXmlString(QString("<Station><Level n%1=\"b\"/></Station>").arg(broken), false));
    QVERIFY(station.SetXmlString(QStringLiteral("<Station h\u00f6he=\"1\"/>"), false));
}

void TstElementReading::manyAttributesAreAccepted()
{
    Station station;
    QVERIFY(station.SetXmlString("<Station" + attributes(256) + "/>", false));
    QCOMPARE(station.GetXmlString(), "<Station" + attributes(256) +
                                         " name=\"\">\n  <Frequency>145000000</Frequency>\n"
                                         "  <Area>\n    <Low>0</Low>\n  </Area>\n</Station>");
    const QString longValue(100000, 'x');
    QVERIFY(station.SetXmlString("<Station name=\"" + longValue + "\" a='\"=\"' b='>'/>", false));
    QCOMPARE(station.Getname(), longValue);
}

void TstElementReading::tagsInCommentsAndSectionsAreNotCounted()
{
    const QString tag = "<a" + attributes(300) + "/>";
    for (const QString& around :
         {QString("<!-- %1 -->"), QString("<Remark><![CDATA[%1]]></Remark>"), QString("<?pi %1?>")}) {
        Station station;
        QVERIFY(station.SetXmlString("<Station>" + around.arg(tag) + "</Station>", false));
        QVERIFY(station.GetXmlString().contains("a299"));
        QVERIFY(!station.SetXmlString("<Station>" + around.arg(tag) + tag + "</Station>", false));
        QCOMPARE(station.GetCheckReason(), QString("An element has more than 256 attributes"));
    }
}

void TstElementReading::tooManyAttributesEndAtOnce_data()
{
    QTest::addColumn<QString>("text");
    const QString many = attributes(200000);
    QTest::newRow("root") << "<Station" + many + "/>";
    QTest::newRow("unfinished") << "<Station" + many;
    QTest::newRow("behind many small tags")
        << "<Station>" + QString("<a/>").repeated(100000) + "<b" + many + "/></Station>";
    QTest::newRow("without blanks") << "<Station" + QString(many).remove(' ') + "/>";
    QTest::newRow("behind a comment of tags")
        << "<Station><!--" + QString("<a/>").repeated(1000) + "--><b" + many + "/></Station>";
    QTest::newRow("behind a section like it")
        << "<Station><![CDATA[<b" + many + "/>]]><b" + many + "/></Station>";
}

void TstElementReading::tooManyAttributesEndAtOnce()
{
    QFETCH(QString, text);
    Station station;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!station.SetXmlString(text, false));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(station.GetCheckReason(), QString("An element has more than 256 attributes"));
}

void TstElementReading::levelsAreLimited()
{
    Station station;
    QVERIFY(station.SetXmlString("<Station>" + nested(255) + "</Station>", false));
    QVERIFY(!station.SetXmlString("<Station>" + nested(256) + "</Station>", false));
    QCOMPARE(station.GetCheckReason(), QString("Elements are nested more than 256 levels deep"));
    QVERIFY(station.SetXmlString("<Station><Area>" + nested(254) + "</Area></Station>", false));
    QVERIFY(!station.SetXmlString("<Station><Area>" + nested(255) + "</Area></Station>", false));
    QVERIFY(!station.SetXmlString("<Station><Remark>" + nested(255) + "</Remark></Station>", false));
}

void TstElementReading::textLengthIsLimited()
{
    const int limit = 64 * 1024 * 1024;
    QString text = "<Station/>";
    text += QString(limit - text.size(), '\n');
    Station station;
    QVERIFY(station.SetXmlString(text, false));
    text += '\n';
    QVERIFY(!station.SetXmlString(text, false));
    QCOMPARE(station.GetCheckReason(), QString("The text is longer than 64 Mi characters"));
}

void TstElementReading::deepTextEndsAtOnce()
{
    Station station;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!station.SetXmlString(QString("<Station>") + QString("<x>").repeated(1000000), false));
    QVERIFY(timer.elapsed() < 1000);
}

QTEST_GUILESS_MAIN(TstElementReading)
#include "tst_elementreading.moc"
