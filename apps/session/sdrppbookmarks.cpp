#include "frequencysource.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

// Bookmarks in a JSON object under their names, with numbers for frequency, bandwidth (Hz) and mode.

namespace {
const QString BOOKMARKS = QStringLiteral("bookmarks");
constexpr int BOOKMARK_LEVEL = 2; // Of the names, within the list and "bookmarks".

const char* const MODE_NAMES[] = {"NFM", "WFM", "AM", "DSB", "USB", "CW", "LSB", "RAW"}; // By number.

const Session::ModeCounterpart MODES[] = {
    {"NFM", "FM", 12500}, {"WFM", "FM", 120000}, {"AM", "AM", 6000},    {"USB", "USB", 2700},
    {"CW", "CW", 500},    {"LSB", "LSB", 2700},  {nullptr, nullptr, 0},
};

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::FrequencyImport)
};

// A name of a bookmark where it stands in the text; the parsed object keeps neither order nor repetitions.
struct NamePlace
{
    QString name;
    int line = 0;
    int begin = 0; // Of its literal.
    int length = 0;
    QString key; // The name; another one if the same name follows.
};

// Goes through any text; what it finds is of use if the text has no fault.
class NameFinder
{
public:
    explicit NameFinder(const QString& text)
        : m_text(text)
    {
    }

    QVector<NamePlace> find()
    {
        while (m_position < m_text.size()) {
            const QChar character = m_text.at(m_position);
            if (character == QLatin1Char('"')) {
                takeString();
                continue;
            }
            if (character == QLatin1Char('{') || character == QLatin1Char('['))
                ++m_level;
            else if (character == QLatin1Char('}') || character == QLatin1Char(']'))
                --m_level;
            else if (character == QLatin1Char('\n'))
                ++m_line;
            ++m_position;
        }
        return m_places;
    }

private:
    void takeString()
    {
        const int begin = m_position++;
        while (m_position < m_text.size() && m_text.at(m_position) != QLatin1Char('"'))
            m_position += m_text.at(m_position) == QLatin1Char('\\') ? 2 : 1;
        const QString literal = m_text.mid(begin, ++m_position - begin);
        int behind = m_position;
        while (behind < m_text.size() && m_text.at(behind).isSpace())
            ++behind;
        if (behind >= m_text.size() || m_text.at(behind) != QLatin1Char(':'))
            return;
        const QString name = QJsonDocument::fromJson('[' + literal.toUtf8() + ']').array().first().toString();
        if (m_level == 1)
            m_isWithin = name == BOOKMARKS;
        else if (m_level == BOOKMARK_LEVEL && m_isWithin)
            m_places.append({name, m_line, begin, literal.size(), name});
    }

    const QString& m_text;
    int m_position = 0;
    int m_line = 1;
    int m_level = 0;
    bool m_isWithin = false; // In "bookmarks".
    QVector<NamePlace> m_places;
};

// The digits of a number; of anything else its text as JSON.
QString numberText(const QJsonValue& value)
{
    constexpr double MAX_EXACT = 9007199254740992.0; // From here on doubles have gaps.
    const double number = value.toDouble();
    if (value.isDouble() && std::abs(number) < MAX_EXACT)
        return QString::number(number, 'f', QLocale::FloatingPointShortest);
    return value.isUndefined()
               ? QString()
               : QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact))
                     .mid(1)
                     .chopped(1);
}

QString modeText(const QJsonValue& value)
{
    const int count = int(std::size(MODE_NAMES));
    for (int i = 0; i < count; ++i) {
        if (value.isDouble() && value.toDouble() == i)
            return QLatin1String(MODE_NAMES[i]);
    }
    return numberText(value);
}

Session::SourceEntry toEntry(const NamePlace& place, const QJsonValue& bookmark,
                             Session::EntryCollector* collector)
{
    const QJsonObject object = bookmark.toObject();
    Session::SourceEntry entry;
    entry.line = place.line;
    entry.name = place.name;
    entry.frequency = numberText(object.value(QLatin1String("frequency")));
    entry.mode = modeText(object.value(QLatin1String("mode")));
    entry.bandwidth = numberText(object.value(QLatin1String("bandwidth")));
    if (!bookmark.isObject())
        entry.fault = Texts::tr("it is no object with frequency and mode");
    static const QStringList KNOWN{QStringLiteral("frequency"), QStringLiteral("mode"),
                                   QStringLiteral("bandwidth")};
    for (const QString& key : object.keys()) {
        if (!KNOWN.contains(key))
            collector->leaveOut(key);
    }
    return entry;
}

bool isLike(const QString& beginning)
{
    return beginning.startsWith(QLatin1Char('{'));
}

// Gives names that come again keys of their own: Qt's parser would keep the last one only, and not free the others.
QString withUniqueKeys(const QString& text, QVector<NamePlace>* places)
{
    QSet<QString> seen;
    for (int i = places->size(); i-- > 0;) {
        NamePlace& place = (*places)[i];
        if (seen.contains(place.name))
            place.key = QChar(1) + QString::number(i);
        seen.insert(place.name);
    }
    QString result;
    int done = 0;
    for (int i = 0; i < places->size(); ++i) {
        const NamePlace& place = places->at(i);
        if (place.key == place.name)
            continue;
        result += text.midRef(done, place.begin - done) + QStringLiteral("\"\\u0001%1\"").arg(i);
        done = place.begin + place.length;
    }
    return result + text.midRef(done);
}

void read(const QString& text, Session::EntryCollector* collector)
{
    QVector<NamePlace> places = NameFinder(text).find();
    QJsonParseError error;
    const QByteArray bytes = withUniqueKeys(text, &places).toUtf8();
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    const QJsonValue bookmarks = document.object().value(BOOKMARKS);
    if (document.isNull()) {
        collector->fail(bytes.left(error.offset).count('\n') + 1,
                        Texts::tr("it is damaged: %1").arg(error.errorString()));
        return;
    }
    if (!bookmarks.isObject()) {
        collector->fail(0, Texts::tr("it has no object \"bookmarks\""));
        return;
    }
    const QJsonObject byKey = bookmarks.toObject();
    for (int i = 0; i < places.size(); ++i) {
        const NamePlace& place = places.at(i);
        Session::SourceEntry entry = toEntry(place, byKey.value(place.key), collector);
        if (place.key != place.name)
            entry.fault = Texts::tr("another bookmark of this name follows");
        if (!collector->take(entry, i, places.size()))
            return;
    }
}
} // namespace

namespace Session {

const FrequencyFormat SDRPP_BOOKMARKS = {
    "sdrpp", QT_TRANSLATE_NOOP("Session::FrequencyImport", "SDR++ bookmarks (JSON)"), MODES, 0, isLike, read};

} // namespace Session
