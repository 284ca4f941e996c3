#include "jedcommonhelper.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using JEDVEPLUGIN::JEDCommonHelper;

class TstCopyXml : public QObject
{
    Q_OBJECT
private slots:
    void contentOfAnElementIsCopiedWithItsEnd_data();
    void contentOfAnElementIsCopiedWithItsEnd();
    void readerIsLeftOnTheEndTag();
    void fromAStartTagOnItsSiblingsFollow();
    void fromTheStartOfTheDocumentAllIsCopied();
    void nothingIsReadAtTheEnd();
    void brokenInputEndsTheCopy_data();
    void brokenInputEndsTheCopy();
    void shapeParameterIsProducable_data();
    void shapeParameterIsProducable();
};

namespace {

/// What is copied from just inside the root element on, into an element of another name.
QString copied(const QString& xml)
{
    QXmlStreamReader reader(xml);
    QString text;
    QXmlStreamWriter writer(&text);
    writer.writeStartElement("COPY");
    reader.readNextStartElement();
    reader.readNext();
    JEDCommonHelper::CopyXml(reader, writer);
    return text;
}

} // namespace

void TstCopyXml::contentOfAnElementIsCopiedWithItsEnd_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("copy");
    const auto row = [](const char* name, const char* xml, const char* copy) {
        QTest::newRow(name) << QString(xml) << QString(copy);
    };
    row("nothing inside", "<r/>", "<COPY/>");
    row("an empty element", "<r/>", "<COPY/>");
    row("children with attributes", "<r><a x=\"1\" y=\"2\"><b z=\"3\">text</b></a><c/></r>",
        "<COPY><a x=\"1\" y=\"2\"><b z=\"3\">text</b></a><c/></COPY>");
    row("attributes of the element around", "<r x=\"1\"><a/></r>", "<COPY><a/></COPY>");
    row("the same name inside", "<r><r><r/></r></r>", "<COPY><r><r/></r></COPY>");
    row("blank text between elements", "<r>\n  <a>\n    <b/>\t</a> </r>", "<COPY><a><b/></a></COPY>");
    row("blank text in an element", "<r><a> </a></r>", "<COPY><a/></COPY>");
    row("blanks around a text", "<r><a> b </a></r>", "<COPY><a> b </a></COPY>");
    row("mixed content", "<r>a<b>c</b>d</r>", "<COPY>a<b>c</b>d</COPY>");
    row("comments and instructions", "<r><!-- a --><b/><?c d?>e</r>", "<COPY><b/>e</COPY>");
    row("escapes", "<r><a x=\"&lt;&amp;&quot;\">&lt;&amp;&gt;</a></r>",
        "<COPY><a x=\"&lt;&amp;&quot;\">&lt;&amp;&gt;</a></COPY>");
    row("line break in an attribute", "<r><a x=\"b&#10;c\"/></r>", "<COPY><a x=\"b&#10;c\"/></COPY>");
    row("unparsed text", "<r><![CDATA[a<b]]></r>", "<COPY><![CDATA[a<b]]></COPY>");
    row("blank unparsed text", "<r><![CDATA[ ]]></r>", "<COPY><![CDATA[ ]]></COPY>");
    row("what follows the element", "<r><a/></r><!-- b -->", "<COPY><a/></COPY>");
    row("namespaces", "<r><p:a xmlns:p=\"urn:p\" p:x=\"1\"/></r>",
        "<COPY><n1:a xmlns:n1=\"urn:p\" xmlns:p=\"urn:p\" p:x=\"1\"/></COPY>");
}

void TstCopyXml::contentOfAnElementIsCopiedWithItsEnd()
{
    QFETCH(QString, xml);
    QFETCH(QString, copy);
    QCOMPARE(copied(xml), copy);
}

void TstCopyXml::readerIsLeftOnTheEndTag()
{
    QXmlStreamReader reader("<top><r><a/></r><next/></top>");
    QString text;
    QXmlStreamWriter writer(&text);
    QVERIFY(reader.readNextStartElement() && reader.readNextStartElement());
    reader.readNext();
    JEDCommonHelper::CopyXml(reader, writer);
    QCOMPARE(reader.tokenType(), QXmlStreamReader::EndElement);
    QCOMPARE(reader.name().toString(), QString("r"));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.name().toString(), QString("next"));
}

void TstCopyXml::fromAStartTagOnItsSiblingsFollow()
{
    QXmlStreamReader reader("<top><a x=\"1\"><b/></a><c/>d</top>");
    QString text;
    QXmlStreamWriter writer(&text);
    writer.writeStartElement("COPY");
    QVERIFY(reader.readNextStartElement() && reader.readNextStartElement());
    JEDCommonHelper::CopyXml(reader, writer);
    QCOMPARE(text, QString("<COPY><a x=\"1\"><b/></a><c/>d</COPY>"));
    QCOMPARE(reader.name().toString(), QString("top"));
}

void TstCopyXml::fromTheStartOfTheDocumentAllIsCopied()
{
    QXmlStreamReader reader("<?xml version=\"1.0\"?><!DOCTYPE r><!-- a --><r><b>c</b></r>");
    QString text;
    QXmlStreamWriter writer(&text);
    JEDCommonHelper::CopyXml(reader, writer);
    QCOMPARE(text, QString("<r><b>c</b></r>"));
    QVERIFY(reader.atEnd());
    QVERIFY(!reader.hasError());
}

void TstCopyXml::nothingIsReadAtTheEnd()
{
    QXmlStreamReader reader("<r/>");
    while (!reader.atEnd())
        reader.readNext();
    QString text;
    QXmlStreamWriter writer(&text);
    JEDCommonHelper::CopyXml(reader, writer);
    QCOMPARE(text, QString());
}

void TstCopyXml::brokenInputEndsTheCopy_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("copy");
    QTest::newRow("cut off") << "<r><a>b</a><c>d"
                             << "<COPY><a>b</a><c";
    QTest::newRow("wrong end tag") << "<r><a>b</a><c></d></r>"
                                   << "<COPY><a>b</a><c";
    QTest::newRow("no markup") << "<r><a/>&</r>"
                               << "<COPY><a/>";
}

void TstCopyXml::brokenInputEndsTheCopy()
{
    QFETCH(QString, xml);
    QFETCH(QString, copy);
    QCOMPARE(copied(xml), copy);
}

void TstCopyXml::shapeParameterIsProducable_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("producable");
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("no XML") << "shape" << false;
    QTest::newRow("a lone root") << "<r/>" << false;
    QTest::newRow("a root with a blank") << "<r> </r>" << false;
    QTest::newRow("a root with a text") << "<r>text</r>" << false;
    QTest::newRow("a root with a comment") << "<r><!-- <a/> --></r>" << false;
    QTest::newRow("a root with an attribute") << "<r a=\"1\"/>" << false;
    QTest::newRow("one child") << "<r><a/></r>" << true;
    QTest::newRow("a child behind a text") << "<r>text<a/></r>" << true;
    QTest::newRow("a child, cut off") << "<r><a>" << true;
    QTest::newRow("two roots") << "<r></r><a/>" << false;
    QTest::newRow("with a declaration") << "<?xml version=\"1.0\"?>\n<r>\n  <a/>\n</r>\n" << true;
}

void TstCopyXml::shapeParameterIsProducable()
{
    QFETCH(QString, xml);
    QFETCH(bool, producable);
    QCOMPARE(JEDCommonHelper::isShapeParameterProducable(xml), producable);
}

QTEST_GUILESS_MAIN(TstCopyXml)
#include "tst_copyxml.moc"
