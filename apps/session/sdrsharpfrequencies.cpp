#include "frequencysource.h"

#include <QCoreApplication>
#include <QHash>
#include <QXmlStreamReader>
#include <reportlayer/textbounds.h>

// An XML list of memory entries, whose fields are elements with text. Frequencies are in Hz.

namespace {
const QLatin1String ROOT("ArrayOfMemoryEntry");
const QLatin1String ENTRY("MemoryEntry");
constexpr int MAX_LEVELS = 256;

const Session::ModeCounterpart MODES[] = {
    {"NFM", "FM", 12500}, {"WFM", "FM", 120000}, {"AM", "AM", 6000},    {"LSB", "LSB", 2700},
    {"USB", "USB", 2700}, {"CW", "CW", 500},     {nullptr, nullptr, 0},
};

// Where a field of a memory entry goes.
struct FieldPlace
{
    QLatin1String name;
    QString Session::SourceEntry::*member;
};

const FieldPlace FIELDS[] = {
    {QLatin1String("Name"), &Session::SourceEntry::name},
    {QLatin1String("Frequency"), &Session::SourceEntry::frequency},
    {QLatin1String("DetectorType"), &Session::SourceEntry::mode},
    {QLatin1String("FilterBandwidth"), &Session::SourceEntry::bandwidth},
};

// Contents of further fields that say nothing.
const QStringList NOTHING{QString(), QStringLiteral("0"), QStringLiteral("false")};

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::FrequencyImport)
};

// Reads an entry, level for level in a loop; the reader stands behind its start tag.
class EntryReader
{
public:
    EntryReader(QXmlStreamReader* reader, Session::EntryCollector* collector)
        : m_reader(reader)
        , m_collector(collector)
    {
    }

    Session::SourceEntry read(bool isMemoryEntry)
    {
        m_entry.line = int(m_reader->lineNumber());
        if (!isMemoryEntry)
            m_entry.fault =
                Texts::tr("the element \"%1\" is no MemoryEntry").arg(m_reader->name().toString());
        for (int level = 1; level > 0 && !m_reader->hasError();) {
            const QXmlStreamReader::TokenType token = m_reader->readNext();
            if (token == QXmlStreamReader::StartElement && ++level > MAX_LEVELS)
                m_reader->raiseError(Texts::tr("elements are nested more than %1 levels").arg(MAX_LEVELS));
            else if (token == QXmlStreamReader::StartElement)
                beginElement(level);
            else if (token == QXmlStreamReader::Characters)
                m_text += m_reader->text();
            else if (token == QXmlStreamReader::EndElement && level-- == 2)
                endField();
        }
        return m_entry;
    }

private:
    void beginElement(int level)
    {
        if (level > 2)
            m_entry.fault = Texts::tr("there are elements within \"%1\"").arg(m_field);
        else
            m_field = m_reader->name().toString();
        m_text.clear();
    }

    void endField()
    {
        for (const FieldPlace& place : FIELDS) {
            if (m_field != place.name)
                continue;
            if (!(m_entry.*place.member).isNull())
                m_entry.fault = Texts::tr("\"%1\" is given twice").arg(m_field);
            m_entry.*place.member = m_text.isNull() ? QString("") : m_text;
            return;
        }
        if (!NOTHING.contains(m_text.trimmed()) && m_entry.fault.isEmpty())
            m_collector->leaveOut(m_field);
    }

    QXmlStreamReader* m_reader;           // Not owned.
    Session::EntryCollector* m_collector; // Not owned.
    Session::SourceEntry m_entry;
    QString m_field; // Name of the field that is being read.
    QString m_text;
};

bool isLike(const QString& beginning)
{
    return beginning.contains(QLatin1Char('<') + ROOT);
}

void read(const QString& text, Session::EntryCollector* collector)
{
    REPORTGENERATOR::Prolog prolog;
    REPORTGENERATOR::Problem problem;
    if (!REPORTGENERATOR::keepsBounds(text, &prolog, &problem)) {
        collector->fail(problem.line, problem.reason);
        return;
    }
    QXmlStreamReader reader(text);
    if (reader.readNextStartElement() && reader.name() != ROOT) {
        collector->fail(
            int(reader.lineNumber()),
            Texts::tr("it begins with \"%1\", not with \"%2\"").arg(reader.name().toString(), ROOT));
        return;
    }
    while (!reader.atEnd() && !reader.hasError()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const Session::SourceEntry entry = EntryReader(&reader, collector).read(reader.name() == ENTRY);
        if (!reader.hasError() && !collector->take(entry, int(reader.characterOffset()), text.size()))
            return;
    }
    if (reader.hasError())
        collector->fail(int(reader.lineNumber()), Texts::tr("it is damaged: %1").arg(reader.errorString()));
}
} // namespace

namespace Session {

const FrequencyFormat SDRSHARP_FREQUENCIES = {
    "sdrsharp", QT_TRANSLATE_NOOP("Session::FrequencyImport", "SDR# frequencies (frequencies.xml)"),
    MODES,      0,
    isLike,     read};

} // namespace Session
