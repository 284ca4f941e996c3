#include "csvreader.h"

#include <QCoreApplication>

namespace {
const QChar QUOTE = QLatin1Char('"');
const QChar LINE_FEED = QLatin1Char('\n');
const QChar CARRIAGE_RETURN = QLatin1Char('\r');
constexpr int MAX_FIELDS = 256;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::CsvReader)
};
} // namespace

namespace Session {

QString withLineFeeds(QString text)
{
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(CARRIAGE_RETURN, LINE_FEED);
}

CsvReader::CsvReader(const QString& text, QChar separator, Quoting quoting)
    : m_text(withLineFeeds(text))
    , m_separator(separator)
    , m_quoting(quoting)
{
}

bool CsvReader::next()
{
    m_fields.clear();
    m_fault.clear();
    m_line = m_nextLine;
    if (m_position >= m_text.size())
        return false;
    for (bool isMore = true; isMore;) {
        const bool isQuoted = m_quoting == WITH_QUOTES && isAt(QUOTE);
        m_fields.append(isQuoted ? quotedField() : plainField());
        isMore = m_fault.isEmpty() && isAt(m_separator);
        if (isMore)
            ++m_position;
        if (m_fields.size() > MAX_FIELDS)
            m_fault = Texts::tr("it has more than %1 fields").arg(MAX_FIELDS);
        isMore = isMore && m_fault.isEmpty();
    }
    skipLine();
    return true;
}

QString CsvReader::quotedField()
{
    QString field;
    const int begin = m_position;
    for (++m_position;;) {
        const int quote = m_text.indexOf(QUOTE, m_position);
        if (quote < 0) {
            m_fault = Texts::tr("a quote is opened and not closed");
            break;
        }
        field += m_text.midRef(m_position, quote - m_position);
        m_position = quote + 1;
        if (!isAt(QUOTE))
            break;
        field += QUOTE;
        ++m_position;
    }
    if (m_fault.isEmpty() && m_position < m_text.size() && !isAt(m_separator) && !isAtLineEnd())
        m_fault = Texts::tr("something stands behind a closing quote");
    if (!m_fault.isEmpty()) {
        // Only this line is given up, since those that the quotes would take in may be good.
        m_position = begin;
        return plainField();
    }
    m_nextLine += field.count(LINE_FEED);
    return field;
}

QString CsvReader::plainField()
{
    const int begin = m_position;
    while (m_position < m_text.size() && !isAt(m_separator) && !isAtLineEnd())
        ++m_position;
    const QString field = m_text.mid(begin, m_position - begin);
    if (m_quoting == WITH_QUOTES && m_fault.isEmpty() && field.contains(QUOTE))
        m_fault = Texts::tr("a quote stands in a field without quotes");
    return field;
}

void CsvReader::skipLine()
{
    while (m_position < m_text.size() && !isAtLineEnd())
        ++m_position;
    ++m_position;
    ++m_nextLine;
}

bool CsvReader::isAt(QChar character) const
{
    return m_position < m_text.size() && m_text.at(m_position) == character;
}

bool CsvReader::isAtLineEnd() const
{
    return isAt(LINE_FEED);
}

} // namespace Session
