#include <session/elementpositions.h>
#include <session/texttable.h>

using Session::ElementPositions;
using Session::TextTable;

namespace {
const char* const TEXT = "<?xml version=\"1.0\"?>\r\n"
                         "<!-- <Node/> -->\n"
                         "<Root\n"
                         "    a=\"x>y\">\n"
                         "  <Node/> <Node\n"
                         "      id=\"1\"><Item/></Node>\n"
                         "  <Other>\xc3\xa4\xf0\x9f\x93\xa1<Node/></Other>\n"
                         "</Root>\n";
}

class TstElementPositions : public QObject
{
    Q_OBJECT
private slots:
    void elementsBeginAt_data();
    void elementsBeginAt();
    void aFaultEndsTheWalk();
    void columnsAreAligned();
};

void TstElementPositions::elementsBeginAt_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("position");
    QTest::newRow("root") << ""
                          << "3:1";
    QTest::newRow("child") << "Node:0"
                           << "5:3";
    QTest::newRow("second on a line") << "Node:1"
                                      << "5:11";
    QTest::newRow("grandchild") << "Node:1/Item:0"
                                << "6:14";
    QTest::newRow("siblings are counted by name") << "Other:0"
                                                  << "7:3";
    QTest::newRow("counted anew in each parent; letters beyond 16 bits") << "Other:0/Node:0"
                                                                         << "7:13";
    QTest::newRow("none") << "Node:2"
                          << "0:0";
}

void TstElementPositions::elementsBeginAt()
{
    QFETCH(QString, path);
    const ElementPositions positions(QString::fromUtf8(TEXT));
    const ElementPositions::Position position = positions.at(path);
    QTEST(QString("%1:%2").arg(QString::number(position.line), QString::number(position.column)), "position");
}

void TstElementPositions::aFaultEndsTheWalk()
{
    const ElementPositions positions("<Root>\n<Node/>\n<Node></Root>");
    QCOMPARE(positions.at("Node:0").line, 2);
    QCOMPARE(positions.at("Node:1").line, 3);
    QCOMPARE(ElementPositions("no markup").at("").line, 0);
    QCOMPARE(ElementPositions("</Root>").at("").line, 0);
}

void TstElementPositions::columnsAreAligned()
{
    TextTable table(2);
    QVERIFY(table.isEmpty());
    table.append({"a", "long word", "c"});
    table.append({"longer"});
    table.append({"", "b", ""});
    QCOMPARE(table.toText(), QString("  a       long word  c\n  longer\n          b\n"));
    QCOMPARE(TextTable().toText(), QString());
}

QTEST_GUILESS_MAIN(TstElementPositions)
#include "tst_elementpositions.moc"
