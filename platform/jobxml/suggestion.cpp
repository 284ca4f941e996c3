#include <jobxml/suggestion.h>

#include <algorithm>
#include <QCoreApplication>
#include <QVector>

namespace {
// Longer words are not mistyped names; the distance takes time in the product of the lengths.
constexpr int MAX_LETTERS = 200;
constexpr int MAX_CHANGES = 3;

int distance(const QString& from, const QString& to)
{
    QVector<int> row(to.size() + 1);
    for (int column = 0; column <= to.size(); ++column)
        row[column] = column;
    for (int i = 0; i < from.size(); ++i) {
        int diagonal = row.at(0);
        row[0] = i + 1;
        for (int j = 0; j < to.size(); ++j) {
            const int replaced = diagonal + (from.at(i) == to.at(j) ? 0 : 1);
            diagonal = row.at(j + 1);
            row[j + 1] = std::min({replaced, row.at(j) + 1, row.at(j + 1) + 1});
        }
    }
    return row.last();
}
} // namespace

namespace JobXml {

QString nearest(const QString& word, const QStringList& candidates)
{
    QString best;
    int bestDistance = 0;
    const QString wanted = word.toCaseFolded();
    for (const QString& candidate : candidates) {
        if (word.size() > MAX_LETTERS || candidate.size() > MAX_LETTERS)
            continue;
        const int changes = distance(wanted, candidate.toCaseFolded());
        const int allowed = std::min((std::max(word.size(), candidate.size()) + 2) / 3, MAX_CHANGES);
        if (changes <= allowed && (best.isNull() || changes < bestDistance)) {
            best = candidate;
            bestDistance = changes;
        }
    }
    return best;
}

QString suggestion(const QString& word, const QStringList& candidates)
{
    const QString candidate = nearest(word, candidates);
    if (candidate.isNull())
        return QString();
    return QCoreApplication::translate("JobXml::Suggestion", " Did you mean \"%1\"?").arg(candidate);
}

} // namespace JobXml
