#include <velmogui/spreadsheetrows.h>

class TstSpreadsheetRows : public QObject
{
    Q_OBJECT
private slots:
    void rows_data();
    void rows();
};

void TstSpreadsheetRows::rows_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rows"); // Cells in brackets, a line for each row.
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("blank") << " \n\n"
                           << "";
    QTest::newRow("one cell") << "433.92"
                              << "[433.92]";
    QTest::newRow("one column") << "1\n2\n3"
                                << "[1]\n[2]\n[3]";
    QTest::newRow("line end at the end") << "1\n2\n"
                                         << "[1]\n[2]";
    QTest::newRow("lines of another system") << "1\r\n2\r3"
                                             << "[1]\n[2]\n[3]";
    QTest::newRow("tabs") << "1\tname\n2\t"
                          << "[1][name]\n[2][]";
    QTest::newRow("semicolons") << "1;name\n2;"
                                << "[1][name]\n[2][]";
    QTest::newRow("semicolons beside tabs") << "a;b\tc"
                                            << "[a;b][c]";
    QTest::newRow("decimal comma") << "7,1;7,2"
                                   << "[7,1][7,2]";
    QTest::newRow("quoted") << "\"a;b\";\"say \"\"so\"\"\""
                            << "[a;b][say \"so\"]";
    QTest::newRow("line end in quotes") << "\"a\nb\"\tc"
                                        << "[a\nb][c]";
    QTest::newRow("quote that is not closed") << "\"a;b"
                                              << "[a;b]";
    QTest::newRow("text behind quotes") << "\"a\"b;c"
                                        << "[ab][c]";
    QTest::newRow("blanks around") << "  1 ;\t 2 "
                                   << "[1 ;][2]";
    QTest::newRow("empty row within") << "1\n\n2"
                                      << "[1]\n[]\n[2]";
}

void TstSpreadsheetRows::rows()
{
    QFETCH(QString, text);
    QFETCH(QString, rows);
    QStringList found;
    for (const QStringList& row : VelmoGui::spreadsheetRows(text))
        found.append('[' + row.join("][") + ']');
    QCOMPARE(found.join('\n'), rows);
}

QTEST_GUILESS_MAIN(TstSpreadsheetRows)
#include "tst_spreadsheetrows.moc"
