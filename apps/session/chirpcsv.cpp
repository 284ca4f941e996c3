#include "csvreader.h"
#include "frequencysource.h"

#include <QCoreApplication>

// Comma-separated memories of hand-held radios. Columns are found by the header, since their number and order have
// changed over time; frequencies are in MHz.

namespace {
const QChar SEPARATOR = QLatin1Char(',');
const QLatin1String LOCATION("Location"); // The number of the memory, which says nothing about the station.
constexpr int MEGAHERTZ_DECIMALS = 6;

const Session::ModeCounterpart MODES[] = {
    {"FM", "FM", 15000}, {"NFM", "FM", 12500}, {"WFM", "FM", 120000}, {"AM", "AM", 6000},
    {"NAM", "AM", 6000}, {"USB", "USB", 2700}, {"LSB", "LSB", 2700},  {"CW", "CW", 500},
    {"CWR", "CW", 500},  {"NCW", "CW", 300},   {"NCWR", "CW", 300},   {nullptr, nullptr, 0},
};

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::FrequencyImport)
};

// Where the columns are.
struct Header
{
    QStringList names;
    int frequency = -1;
    int name = -1;
    int mode = -1;

    explicit Header(const QStringList& fields)
    {
        for (const QString& field : fields)
            names.append(field.trimmed());
        frequency = names.indexOf(QStringLiteral("Frequency"));
        name = names.indexOf(QStringLiteral("Name"));
        mode = names.indexOf(QStringLiteral("Mode"));
    }
    bool isComplete() const { return frequency >= 0 && mode >= 0; }
};

Session::SourceEntry toEntry(const Session::CsvReader& reader, const Header& header)
{
    const QStringList& fields = reader.fields();
    Session::SourceEntry entry;
    entry.line = reader.line();
    entry.fault = reader.fault();
    entry.frequency = fields.value(header.frequency);
    entry.name = fields.value(header.name);
    entry.mode = fields.value(header.mode);
    if (entry.fault.isEmpty() && fields.size() != header.names.size())
        entry.fault = Texts::tr("number of fields: %1, expected: %2")
                          .arg(QString::number(fields.size()), QString::number(header.names.size()));
    return entry;
}

bool isLike(const QString& beginning)
{
    Session::CsvReader reader(beginning, SEPARATOR, Session::CsvReader::WITH_QUOTES);
    return reader.next() && Header(reader.fields()).isComplete();
}

void read(const QString& text, Session::EntryCollector* collector)
{
    Session::CsvReader reader(text, SEPARATOR, Session::CsvReader::WITH_QUOTES);
    const bool hasHeader = reader.next() && reader.fault().isEmpty();
    const Header header(reader.fields());
    if (!hasHeader || !header.isComplete()) {
        collector->fail(1, Texts::tr("its first line does not name the columns Frequency and Mode"));
        return;
    }
    while (reader.next()) {
        const QStringList& fields = reader.fields();
        if (fields.size() == 1 && fields.first().trimmed().isEmpty())
            continue;
        for (int i = 0; i < std::min(fields.size(), header.names.size()); ++i) {
            const bool isUsed = i == header.frequency || i == header.name || i == header.mode;
            if (!isUsed && !fields.at(i).trimmed().isEmpty() && header.names.at(i) != LOCATION)
                collector->leaveOut(header.names.at(i));
        }
        if (!collector->take(toEntry(reader, header), reader.position(), text.size()))
            return;
    }
}
} // namespace

namespace Session {

const FrequencyFormat CHIRP_CSV = {
    "chirp", QT_TRANSLATE_NOOP("Session::FrequencyImport", "CHIRP memories (CSV)"),
    MODES,   MEGAHERTZ_DECIMALS,
    isLike,  read};

} // namespace Session
