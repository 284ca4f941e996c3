#include "csvreader.h"
#include "frequencysource.h"

#include <QCoreApplication>

// Two blocks of fields between semicolons, each below a comment with its column names: tags with their colours, then,
// behind an empty line, bookmarks.

namespace {
enum Column { FREQUENCY, NAME, MODULATION, BANDWIDTH, TAGS, COLUMN_COUNT };
enum Block { NO_BLOCK, TAG_BLOCK, BOOKMARK_BLOCK };

const QChar SEPARATOR = QLatin1Char(';');
const QLatin1String COMMENT("#");

const Session::ModeCounterpart MODES[] = {
    {"AM", "AM", 6000},           {"AM-Sync", "AM", 6000},      {"LSB", "LSB", 2700},
    {"USB", "USB", 2700},         {"CW-L", "CW", 500},          {"CW-U", "CW", 500},
    {"Narrow FM", "FM", 12500},   {"WFM (mono)", "FM", 120000}, {"WFM (stereo)", "FM", 120000},
    {"WFM (oirt)", "FM", 120000}, {nullptr, nullptr, 0},
};

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::FrequencyImport)
};

// The block that a comment with column names begins; the one before it for other comments.
Block blockOf(const QString& comment, Block current)
{
    const QString words = comment.mid(COMMENT.size()).simplified();
    if (words.startsWith(QLatin1String("Tag name"), Qt::CaseInsensitive))
        return TAG_BLOCK;
    return words.startsWith(QLatin1String("Frequency"), Qt::CaseInsensitive) ? BOOKMARK_BLOCK : current;
}

Session::SourceEntry toEntry(const Session::CsvReader& reader, Block block)
{
    const QStringList& fields = reader.fields();
    Session::SourceEntry entry;
    entry.line = reader.line();
    entry.fault = reader.fault();
    entry.frequency = fields.value(FREQUENCY);
    entry.name = fields.value(NAME);
    entry.mode = fields.value(MODULATION);
    entry.bandwidth = fields.value(BANDWIDTH);
    if (!entry.fault.isEmpty())
        return entry;
    if (block == NO_BLOCK)
        entry.fault = Texts::tr("it stands before the column names");
    else if (fields.size() != COLUMN_COUNT && fields.size() != TAGS)
        entry.fault = Texts::tr("number of fields: %1, expected: %2")
                          .arg(QString::number(fields.size()), QString::number(COLUMN_COUNT));
    return entry;
}

bool isLike(const QString& beginning)
{
    return beginning.startsWith(COMMENT) && beginning.section(QLatin1Char('\n'), 0, 0).contains(SEPARATOR);
}

void read(const QString& text, Session::EntryCollector* collector)
{
    Session::CsvReader reader(text, SEPARATOR, Session::CsvReader::WITHOUT_QUOTES);
    Block block = NO_BLOCK;
    while (reader.next()) {
        const QString first = reader.fields().first().trimmed();
        if (first.isEmpty() && reader.fields().size() == 1) {
            block = block == TAG_BLOCK ? NO_BLOCK : block;
            continue;
        }
        if (first.startsWith(COMMENT)) {
            block = blockOf(first, block);
            continue;
        }
        if (block == TAG_BLOCK || !reader.fields().value(TAGS).trimmed().isEmpty())
            collector->leaveOut(block == TAG_BLOCK ? Texts::tr("list of tags") : QStringLiteral("Tags"));
        if (block != TAG_BLOCK && !collector->take(toEntry(reader, block), reader.position(), text.size()))
            return;
    }
}
} // namespace

namespace Session {

const FrequencyFormat GQRX_BOOKMARKS = {
    "gqrx", QT_TRANSLATE_NOOP("Session::FrequencyImport", "gqrx bookmarks (bookmarks.csv)"), MODES, 0, isLike,
    read};

} // namespace Session
