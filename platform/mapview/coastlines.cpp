#include "coastlines.h"

#include <QFile>
#include <QList>

namespace {
constexpr double UNITS = 100; // In a degree.
} // namespace

static void makeResourceKnown()
{
    Q_INIT_RESOURCE(mapview);
}

const Coastlines& Coastlines::instance()
{
    static const Coastlines lines;
    return lines;
}

// The file is made by dev/make-coastlines, which describes it.
Coastlines::Coastlines()
{
    makeResourceKnown();
    QFile file(QStringLiteral(":/mapview/coastlines.txt"));
    file.open(QIODevice::ReadOnly);
    while (!file.atEnd()) {
        const QList<QByteArray> words = file.readLine().trimmed().split(' ');
        MapLine line;
        QPoint place;
        for (int i = 1; i + 1 < words.size(); i += 2) {
            place += QPoint(words[i].toInt(), words[i + 1].toInt());
            line.points.append(QPointF(place) / UNITS);
        }
        line.box = line.points.boundingRect();
        if (words.first() == "land")
            m_land.append(line);
        else if (words.first() == "border")
            m_borders.append(line);
    }
}
