#include "frequencysource.h"

#include "csvreader.h"
#include "savefile.h"

#include <algorithm>
#include <freqstorexml/frequencystore.h>
#include <jobxml/quantity.h>
#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <reportlayer/fieldaccess.h>

using FreqStoreXml::Audio_Settings;
using FreqStoreXml::FFM_Settings;

namespace {
const Session::FrequencyFormat* const FORMATS[] = {&Session::GQRX_BOOKMARKS, &Session::SDRSHARP_FREQUENCIES,
                                                   &Session::SDRPP_BOOKMARKS, &Session::CHIRP_CSV};
constexpr int BEGINNING = 4096;    // Characters that a guess looks at.
constexpr int MAX_NAME = 1000;     // Characters.
constexpr int MAX_SHOWN = 40;      // Characters of something wrong.
constexpr int PROGRESS_STEP = 256; // Entries.

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::FrequencyImport)
};

const Session::FrequencyFormat* formatOf(const QString& name)
{
    const auto found = std::find_if(std::begin(FORMATS), std::end(FORMATS), [&name](const auto* format) {
        return name == QLatin1String(format->name);
    });
    return found == std::end(FORMATS) ? nullptr : *found;
}

// Short, and without anything that a terminal would act upon.
QString shown(const QString& text)
{
    QString result = text.size() > MAX_SHOWN ? text.left(MAX_SHOWN) + QStringLiteral("…") : text;
    for (QChar& character : result) {
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    }
    return result;
}

// Why a text cannot be taken over letter by letter; empty if it can.
QString textFault(const QString& text)
{
    if (text.size() > MAX_NAME)
        return Texts::tr("the name has more than %1 characters").arg(MAX_NAME);
    if (text.contains(QChar::ReplacementCharacter) || Session::decodedText(text.toUtf8()) != text)
        return Texts::tr("the name holds something that is no UTF-8");
    const bool isPrintable = std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        return character.isSpace() ||
               (character.category() != QChar::Other_Control && !character.isNonCharacter());
    });
    return isPrintable ? QString() : Texts::tr("the name holds a control character");
}

// A decimal text as a whole number of units, each ten to the power of -decimals; by its digits, since binary fractions
// are not exact. Empty, or why it is none.
QString wholeNumber(const QString& text, int decimals, qint64* number)
{
    static const QRegularExpression FORM(
        QStringLiteral("^([+-]?)(?=\\.?[0-9])0*([0-9]*)(?:\\.([0-9]*?)0*)?$"));
    constexpr int MAX_DIGITS = 18; // Fits 64 bits.
    const QRegularExpressionMatch match = FORM.match(text);
    if (!match.hasMatch())
        return Texts::tr("%1 is no number").arg(shown(text));
    const QString fraction = match.captured(3);
    if (fraction.size() > decimals)
        return Texts::tr("%1 is no whole number of hertz").arg(shown(text));
    const QString digits = match.captured(2) + fraction.leftJustified(decimals, QLatin1Char('0'));
    if (digits.size() > MAX_DIGITS)
        return Texts::tr("%1 is out of range").arg(shown(text));
    *number = (match.captured(1) + digits).toLongLong();
    return QString();
}

// Empty, or why a field cannot hold a number of hertz.
QString rangeFault(const char* tunerField, qint64 hertz)
{
    const REPORTGENERATOR::Field* const field =
        REPORTGENERATOR::findField(FFM_Settings::fieldTable(), QLatin1String(tunerField));
    if (hertz > 0 && field->isInRange(hertz))
        return QString();
    const auto readable = [](const QString& number) {
        return JobXml::readableQuantity(number, QStringLiteral("Hz"));
    };
    return Texts::tr("%1 is outside of 1 Hz to %2")
        .arg(readable(QString::number(hertz)), readable(field->maximum().toString()));
}

QString hertzText(qint64 hertz)
{
    return JobXml::readableQuantity(QString::number(hertz), QStringLiteral("Hz"));
}

FreqStoreXml::FrequencyStoreEntry toEntry(const Session::ImportedLine& line, const QString& format)
{
    FreqStoreXml::FrequencyStoreEntry entry;
    FFM_Settings& tuner = entry.GetFFM_Settings();
    tuner.SetCenterFrequency(line.hertz);
    tuner.SetBandwidth(line.bandwidth);
    tuner.SetChannelName(line.entryName);
    Audio_Settings& audio = entry.GetAudio_Settings();
    audio.SetDemodulation(Audio_Settings::NameToDemodulation(line.demodulation));
    audio.SetBandwidth(line.bandwidth);
    entry.GetProfile_Data().SetProfileID(format + QLatin1Char(':') + QString::number(line.line));
    entry.GetProfile_Data().SetProfileName(line.entryName);
    return entry;
}
} // namespace

namespace Session {

QString ImportedLine::becomes() const
{
    if (!isTaken())
        return Texts::tr("refused: %1").arg(reason);
    const QString width =
        isUsualBandwidth ? Texts::tr("%1 (usual)").arg(hertzText(bandwidth)) : hertzText(bandwidth);
    QStringList words{hertzText(hertz), demodulation, width};
    if (name.isEmpty())
        words.append(Texts::tr("named %1").arg(entryName));
    return words.join(QLatin1String(", "));
}

int FrequencyImport::takenCount() const
{
    return std::count_if(lines.cbegin(), lines.cend(),
                         [](const ImportedLine& line) { return line.isTaken(); });
}

FreqStoreXml::FrequencyStoreList FrequencyImport::toList(const QString& name) const
{
    FreqStoreXml::FrequencyStoreList list;
    list.SetName(name);
    for (const ImportedLine& line : lines) {
        if (line.isTaken())
            list.AppendFrequencyStoreEntry(toEntry(line, format));
    }
    return list;
}

QStringList frequencyFormats()
{
    QStringList names;
    for (const FrequencyFormat* format : FORMATS)
        names.append(QLatin1String(format->name));
    return names;
}

QString frequencyFormatText(const QString& format)
{
    const FrequencyFormat* const found = formatOf(format);
    return found ? QCoreApplication::translate("Session::FrequencyImport", found->text) : QString();
}

QString guessFrequencyFormat(const QByteArray& content)
{
    const QString beginning = withLineFeeds(decodedText(content.left(BEGINNING))).trimmed();
    for (const FrequencyFormat* format : FORMATS) {
        if (format->isLike(beginning))
            return QLatin1String(format->name);
    }
    return QString();
}

FrequencyImport importFrequencies(const QByteArray& content, const QString& format,
                                  const REPORTGENERATOR::ReadProgress& progress)
{
    FrequencyImport result;
    result.format = format;
    const FrequencyFormat* const reader = formatOf(format);
    if (!reader) {
        result.failure = Texts::tr("there is no format \"%1\"").arg(format);
        return result;
    }
    EntryCollector collector(reader->modes, reader->decimals, progress, &result);
    const QString text = withLineFeeds(decodedText(content));
    if (content.size() > MAX_LIST_SIZE)
        collector.fail(0, Texts::tr("it is larger than %1 MiB").arg(MAX_LIST_SIZE / (1024 * 1024)));
    else if (text.contains(QChar()))
        collector.fail(0, Texts::tr("it is no text in UTF-8"));
    else
        reader->read(text, &collector);
    if (result.failure.isEmpty() && result.lines.isEmpty())
        collector.fail(0, Texts::tr("it has no entries"));
    return result;
}

FrequencyImport importFrequencyFile(const QString& path, const QString& format,
                                    const REPORTGENERATOR::ReadProgress& progress)
{
    FrequencyImport result;
    result.format = format;
    QByteArray content;
    if (QFileInfo(path).size() > MAX_LIST_SIZE)
        result.failure = Texts::tr("it is larger than %1 MiB").arg(MAX_LIST_SIZE / (1024 * 1024));
    else if (readFile(path, &content, &result.failure))
        return importFrequencies(content, format, progress);
    return result;
}

EntryCollector::EntryCollector(const ModeCounterpart* modes, int decimals,
                               const REPORTGENERATOR::ReadProgress& progress, FrequencyImport* result)
    : m_modes(modes)
    , m_decimals(decimals)
    , m_progress(progress)
    , m_result(result)
{
}

bool EntryCollector::take(const SourceEntry& entry, int done, int total)
{
    const int count = m_result->lines.size();
    if (count >= MAX_LIST_ENTRIES) {
        fail(entry.line, Texts::tr("it has more than %1 entries").arg(MAX_LIST_ENTRIES));
        return false;
    }
    if (count % PROGRESS_STEP == 0 && m_progress && !m_progress(done, total)) {
        fail(0, Texts::tr("reading was stopped"));
        m_result->isStopped = true;
        return false;
    }
    ImportedLine line;
    line.line = entry.line;
    line.name = shown(entry.name.simplified());
    line.frequency = shown(entry.frequency.trimmed());
    line.mode = shown(entry.mode.trimmed());
    line.reason = decide(entry, &line);
    m_result->lines.append(line);
    return true;
}

void EntryCollector::leaveOut(const QString& what)
{
    if (!m_result->leftOut.contains(what))
        m_result->leftOut.append(what);
}

void EntryCollector::fail(int line, const QString& reason)
{
    m_result->lines.clear();
    m_result->leftOut.clear();
    m_result->failureLine = line;
    m_result->failure = reason;
}

// Empty, or why the entry is refused.
QString EntryCollector::decide(const SourceEntry& entry, ImportedLine* line) const
{
    if (!entry.fault.isEmpty())
        return entry.fault;
    if (line->frequency.isEmpty())
        return Texts::tr("it has no frequency");
    if (line->mode.isEmpty())
        return Texts::tr("it has no mode");
    const ModeCounterpart* const mode = counterpart(entry.mode);
    QString fault = textFault(entry.name.trimmed());
    if (fault.isEmpty())
        fault = wholeNumber(entry.frequency.trimmed(), m_decimals, &line->hertz);
    if (fault.isEmpty())
        fault = rangeFault("CenterFrequency", line->hertz);
    if (fault.isEmpty() && !mode)
        fault = Texts::tr("the mode %1 has no counterpart").arg(line->mode);
    if (!fault.isEmpty())
        return fault;
    line->demodulation = QLatin1String(mode->demodulation);
    line->entryName = entry.name.simplified().isEmpty() ? hertzText(line->hertz) : entry.name.simplified();
    return decideBandwidth(entry.bandwidth.trimmed(), mode->usualBandwidth, line);
}

QString EntryCollector::decideBandwidth(const QString& bandwidth, qint64 usual, ImportedLine* line)
{
    QString fault = bandwidth.isEmpty() ? QString() : wholeNumber(bandwidth, 0, &line->bandwidth);
    line->isUsualBandwidth = line->bandwidth == 0;
    if (line->isUsualBandwidth)
        line->bandwidth = usual;
    if (fault.isEmpty())
        fault = rangeFault("Bandwidth", line->bandwidth);
    return fault.isEmpty() ? QString() : Texts::tr("bandwidth: %1").arg(fault);
}

const ModeCounterpart* EntryCollector::counterpart(const QString& mode) const
{
    const QString wanted = mode.simplified();
    for (const ModeCounterpart* row = m_modes; row->mode; ++row) {
        if (wanted.compare(QLatin1String(row->mode), Qt::CaseInsensitive) == 0)
            return row;
    }
    return nullptr;
}

} // namespace Session
