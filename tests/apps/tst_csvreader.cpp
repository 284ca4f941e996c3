#include <session/csvreader.h>

using Session::CsvReader;

namespace {
// "line[field|field]" for each record, "line!fault" for one that is damaged.
QStringList records(const QString& text, QChar separator = ',',
                    CsvReader::Quoting quoting = CsvReader::WITH_QUOTES)
{
    QStringList result;
    CsvReader reader(text, separator, quoting);
    while (reader.next()) {
        const QString line = QString::number(reader.line());
        result.append(reader.fault().isEmpty() ? line + '[' + reader.fields().join('|') + ']'
                                               : line + '!' + reader.fault());
    }
    return result;
}
} // namespace

class TstCsvReader : public QObject
{
    Q_OBJECT
private slots:
    void recordsAreRead_data();
    void recordsAreRead();
    void otherSeparators();
    void positionEndsAtTheEnd();
    void crowdedRecords();
};

void TstCsvReader::recordsAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const QString& text, const QStringList& expected) {
        QTest::newRow(name) << text << expected;
    };
    const QString notClosed = "a quote is opened and not closed";
    const QString behind = "something stands behind a closing quote";
    const QString within = "a quote stands in a field without quotes";
    row("nothing", "", {});
    row("one field", "a", {"1[a]"});
    row("one record", "a,b,c\n", {"1[a|b|c]"});
    row("empty fields", ",,\n", {"1[||]"});
    row("blanks belong to the fields", " a , b \n", {"1[ a | b ]"});
    row("empty lines", "\n\na", {"1[]", "2[]", "3[a]"});
    row("LF", "a\nb\n", {"1[a]", "2[b]"});
    row("CRLF", "a\r\nb\r\n", {"1[a]", "2[b]"});
    row("CR", "a\rb\r", {"1[a]", "2[b]"});
    row("CR at the end", "a,b\r", {"1[a|b]"});
    row("mixed line ends", "a\rb\r\nc\nd", {"1[a]", "2[b]", "3[c]", "4[d]"});
    row("quoted", "\"a\",\"b\"", {"1[a|b]"});
    row("empty quotes", "\"\",\"\"", {"1[|]"});
    row("separator in quotes", "\"a,b\",c", {"1[a,b|c]"});
    row("doubled quotes", "\"\"\"a\"\" b\",c", {"1[\"a\" b|c]"});
    row("only a quote", "\"\"\"\"", {"1[\"]"});
    row("line ends in quotes", "\"a\nb\",c\r\n\"d\r\ne\"\nf", {"1[a\nb|c]", "3[d\ne]", "5[f]"});
    row("never closed", "a,\"b\nc,d\n", {"1!" + notClosed, "2[c|d]"});
    row("never closed, doubled", "\"a\"\"\nb", {"1!" + notClosed, "2[b]"});
    row("behind a quote", "\"a\"b,c\nd", {"1!" + behind, "2[d]"});
    row("blank behind a quote", "\"a\" ,c\nd", {"1!" + behind, "2[d]"});
    row("closed by the next line", "\"a,b\n\"c\",d\ne", {"1!" + behind, "2[c|d]", "3[e]"});
    row("quote within", "a\"b,c\nd", {"1!" + within, "2[d]"});
}

void TstCsvReader::recordsAreRead()
{
    QFETCH(QString, text);
    QTEST(records(text), "expected");
}

void TstCsvReader::otherSeparators()
{
    QCOMPARE(records("a;b,c;\"d;e\"", ';'), QStringList{"1[a|b,c|d;e]"});
    QCOMPARE(records("a;\"b;c\";\"", ';', CsvReader::WITHOUT_QUOTES), QStringList{"1[a|\"b|c\"|\"]"});
}

void TstCsvReader::positionEndsAtTheEnd()
{
    CsvReader reader("a,b\n\"c\nd\",e\n", ',', CsvReader::WITH_QUOTES);
    QCOMPARE(reader.position(), 0);
    QVERIFY(reader.next());
    QCOMPARE(reader.position(), 4);
    QVERIFY(reader.next());
    QCOMPARE(reader.position(), 12);
    QVERIFY(!reader.next());
}

void TstCsvReader::crowdedRecords()
{
    QCOMPARE(records(QString(255, ',') + "\na").size(), 2);
    QVERIFY(!records(QString(255, ',')).first().contains('!'));
    QCOMPARE(records(QString(256, ',') + "\na"), QStringList({"1!it has more than 256 fields", "2[a]"}));
    QCOMPARE(records(QString(1000000, ',') + "\na").last(), QString("2[a]"));
}

QTEST_GUILESS_MAIN(TstCsvReader)
#include "tst_csvreader.moc"
