#include <algorithm>
#include <QCoreApplication>
#include <reportlayer/textbounds.h>

namespace REPORTGENERATOR {

namespace {

// A start tag with more attributes than allowed is longer than this, and holds no second '<'.
const int SHORTEST_SUSPECT = 4 * MAXIMUM_ATTRIBUTES;

struct Skipped
{
    QLatin1String begin;
    QLatin1String end;
};

const Skipped SKIPPED[] = {
    {QLatin1String("<!--"), QLatin1String("-->")},
    {QLatin1String("<![CDATA["), QLatin1String("]]>")},
    {QLatin1String("<?"), QLatin1String("?>")},
};

bool startsAt(const QString& text, int position, QLatin1String what)
{
    return text.midRef(position, what.size()) == what;
}

// Behind a comment, a character section or an instruction that begins at the position; -1: none does.
int behindSkipped(const QString& text, int position)
{
    for (const Skipped& skipped : SKIPPED) {
        if (!startsAt(text, position, skipped.begin))
            continue;
        const int end = text.indexOf(skipped.end, position + skipped.begin.size());
        return end < 0 ? text.size() : end + skipped.end.size();
    }
    return -1;
}

int behindBlanks(const QString& text, int position)
{
    while (position < text.size() && text.at(position).isSpace())
        ++position;
    return position;
}

Prolog findProlog(const QString& text)
{
    Prolog result;
    if (startsAt(text, 0, QLatin1String("<?xml")) && text.size() > 5 && text.at(5).isSpace())
        result.begin = behindSkipped(text, 0);
    result.end = behindBlanks(text, result.begin);
    for (int next = behindSkipped(text, result.end); next >= 0; next = behindSkipped(text, result.end))
        result.end = behindBlanks(text, next);
    return result;
}

// Counts quoted values up to the end of the tag that begins at the position; moves the position behind it.
int countAttributes(const QString& text, int* position)
{
    int count = 0;
    int i = *position + 1;
    while (i < text.size() && text.at(i) != QLatin1Char('>')) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            ++count;
            i = text.indexOf(c, i + 1);
            if (i < 0)
                i = text.size() - 1;
        }
        ++i;
    }
    *position = i;
    return count;
}

// Goes through all of the markup; the position of the first tag with too many attributes, or -1.
int exactSearch(const QString& text, int position)
{
    position = text.indexOf(QLatin1Char('<'), position);
    while (position >= 0) {
        int next = behindSkipped(text, position);
        if (next < 0) {
            next = position;
            if (countAttributes(text, &next) > MAXIMUM_ATTRIBUTES)
                return position;
        }
        position = text.indexOf(QLatin1Char('<'), next);
    }
    return -1;
}

// Leaps from '<' to '<' and looks closer only where the next one is far off.
int findCrowdedTag(const QString& text, int position)
{
    const QChar* const data = text.constData();
    const int size = text.size();
    while (position >= 0 && size - position > SHORTEST_SUSPECT) {
        int last = position + SHORTEST_SUSPECT;
        while (last > position && data[last] != QLatin1Char('<'))
            --last;
        if (last > position) {
            position = last;
            continue;
        }
        int tagEnd = position;
        if (countAttributes(text, &tagEnd) > MAXIMUM_ATTRIBUTES)
            return exactSearch(text, 0);
        position = text.indexOf(QLatin1Char('<'), position + SHORTEST_SUSPECT);
    }
    return -1;
}

QString boundText(const char* text)
{
    return QCoreApplication::translate("ReportLayer", text);
}

} // namespace

Problem problemAt(const QString& text, int position, const QString& reason)
{
    const int line = std::count(text.begin(), text.begin() + position, QLatin1Char('\n'));
    const int lineBegin = position > 0 ? text.lastIndexOf(QLatin1Char('\n'), position - 1) + 1 : 0;
    return {line + 1, position - lineBegin, reason};
}

bool keepsBounds(const QString& text, Prolog* prolog, Problem* failure)
{
    if (text.size() > MAXIMUM_TEXT_LENGTH) {
        failure->reason =
            boundText(QT_TRANSLATE_NOOP("ReportLayer", "The text is longer than 64 Mi characters"));
        return false;
    }
    const int nul = text.indexOf(QChar());
    if (nul >= 0) {
        *failure = problemAt(text, nul,
                             boundText(QT_TRANSLATE_NOOP("ReportLayer", "The text holds a NUL character")));
        return false;
    }
    *prolog = findProlog(text);
    if (startsAt(text, prolog->end, QLatin1String("<!DOCTYPE"))) {
        *failure = problemAt(text, prolog->end,
                             boundText(QT_TRANSLATE_NOOP("ReportLayer", "A document type is not allowed")));
        return false;
    }
    const int crowded = findCrowdedTag(text, prolog->end);
    if (crowded >= 0) {
        *failure =
            problemAt(text, crowded,
                      boundText(QT_TRANSLATE_NOOP("ReportLayer", "An element has more than 256 attributes")));
        return false;
    }
    return true;
}

} // namespace REPORTGENERATOR
