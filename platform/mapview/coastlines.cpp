#include "coastlines.h"

#include <QFile>
#include <QList>

static void makeResourceKnown()
{
    Q_INIT_RESOURCE(mapview);
}

namespace {
constexpr double UNITS = 100; // In a degree.

// The file is made by dev/make-coastlines, which describes it.
QVector<MapLine> readLines()
{
    makeResourceKnown();
    QVector<MapLine> lines;
    QFile file(QStringLiteral(":/mapview/coastlines.txt"));
    file.open(QIODevice::ReadOnly);
    while (!file.atEnd()) {
        const QList<QByteArray> words = file.readLine().trimmed().split(' ');
        QPolygonF points;
        QPoint place;
        for (int i = 1; i + 1 < words.size(); i += 2) {
            place += QPoint(words[i].toInt(), words[i + 1].toInt());
            points.append(QPointF(place) / UNITS);
        }
        if (words.first() == "land" || words.first() == "border")
            lines.append({words.first() == "land", points, points.boundingRect()});
    }
    return lines;
}
} // namespace

const QVector<MapLine>& coastlines()
{
    static const QVector<MapLine> LINES = readLines();
    return LINES;
}
