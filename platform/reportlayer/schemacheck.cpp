#include "schemacheck_p.h"
#include <cstring>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlschemas.h>
#include <memory>
#include <QByteArray>
#include <QHash>
#include <QMutex>

namespace REPORTGENERATOR {

namespace {

template <class T, void (*FREE)(T*)>
struct Freed
{
    void operator()(T* object) const { FREE(object); }
};

using SchemaParser =
    std::unique_ptr<xmlSchemaParserCtxt, Freed<xmlSchemaParserCtxt, xmlSchemaFreeParserCtxt>>;
using SchemaRun = std::unique_ptr<xmlSchemaValidCtxt, Freed<xmlSchemaValidCtxt, xmlSchemaFreeValidCtxt>>;
using Parser = std::unique_ptr<xmlParserCtxt, Freed<xmlParserCtxt, xmlFreeParserCtxt>>;

struct Finding
{
    xmlParserCtxtPtr parser; // Not owned; null while a schema is read.
    Problem* problem;
};

void keepFirst(void* receiver, xmlErrorPtr error)
{
    auto* finding = static_cast<Finding*>(receiver);
    if (!finding->problem->reason.isEmpty())
        return;
    finding->problem->reason = QString::fromUtf8(error->message).trimmed();
    if (finding->parser && finding->parser->input) {
        finding->problem->line = finding->parser->input->line;
        finding->problem->column = finding->parser->input->col;
    }
}

// A schema declares the roots of documents only; an element that stands alone gets a declaration of its own.
QByteArray schemaTextFor(const ElementTable& table, const QString& rootName)
{
    QByteArray text = table.schema->text();
    if (table.documentRoot && rootName == QLatin1String(table.elementName))
        return text;
    const QByteArray declaration =
        "<xs:element name=\"" + rootName.toLatin1() + "\" type=\"" + table.className + "\"/>\n";
    return text.insert(text.lastIndexOf("</xs:schema>"), declaration);
}

xmlSchemaPtr readSchema(const QByteArray& text, Problem* failure)
{
    const SchemaParser parser(xmlSchemaNewMemParserCtxt(text.constData(), text.size()));
    Finding finding = {nullptr, failure};
    xmlSchemaSetParserStructuredErrors(parser.get(), keepFirst, &finding);
    return xmlSchemaParse(parser.get());
}

// Reading a schema takes far longer than using it, so each is kept until the process ends.
xmlSchemaPtr schemaFor(const ElementTable& table, const QString& rootName, Problem* failure)
{
    static QMutex mutex;
    static auto* const known = new QHash<QByteArray, xmlSchemaPtr>;
    const QMutexLocker lock(&mutex);
    const QByteArray key = QByteArray(table.schema->name) + '/' + table.className + '/' + rootName.toLatin1();
    const auto found = known->constFind(key);
    if (found != known->constEnd())
        return found.value();
    xmlInitParser();
    const xmlSchemaPtr schema = readSchema(schemaTextFor(table, rootName), failure);
    known->insert(key, schema);
    return schema;
}

} // namespace

bool keepsToSchema(const ElementTable& table, const QString& rootName, const QString& text, Problem* failure)
{
    const xmlSchemaPtr schema = schemaFor(table, rootName, failure);
    if (!schema) {
        if (failure->reason.isEmpty())
            failure->reason =
                QStringLiteral("The schema %1 cannot be read").arg(QLatin1String(table.schema->name));
        return false;
    }
    const QByteArray bytes = text.toUtf8();
    const Parser parser(xmlCreateMemoryParserCtxt(bytes.constData(), bytes.size()));
    const SchemaRun run(xmlSchemaNewValidCtxt(schema));
    if (!parser || !run) {
        failure->reason = QStringLiteral("No memory to validate");
        return false;
    }
    xmlCtxtUseOptions(parser.get(), XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_IGNORE_ENC);
    Finding finding = {parser.get(), failure};
    xmlSchemaSetValidStructuredErrors(run.get(), keepFirst, &finding);

    // The validator takes the place of the parser's own handler, which would build a document.
    xmlSAXHandler silent;
    std::memset(&silent, 0, sizeof silent);
    silent.initialized = XML_SAX2_MAGIC;
    xmlSAXHandlerPtr own = parser->sax;
    parser->sax = &silent;
    xmlSchemaSAXPlugPtr plug = xmlSchemaSAXPlug(run.get(), &parser->sax, &parser->userData);
    xmlParseDocument(parser.get());
    const bool valid = parser->wellFormed != 0 && xmlSchemaIsValid(run.get()) == 1;
    xmlSchemaSAXUnplug(plug);
    parser->sax = own;
    if (!valid && failure->reason.isEmpty())
        keepFirst(&finding, &parser->lastError);
    return valid;
}

} // namespace REPORTGENERATOR
