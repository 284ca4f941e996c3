#include "elementpositions.h"

#include <QVector>
#include <QXmlStreamReader>

namespace {
struct Level
{
    QString path;
    QHash<QString, int> counts; // Of the children so far, by name.
};

QString childPath(Level* parent, const QString& name)
{
    const QString step = name + QLatin1Char(':') + QString::number(parent->counts[name]++);
    return parent->path.isEmpty() ? step : parent->path + QLatin1Char('/') + step;
}
} // namespace

namespace Session {

ElementPositions::ElementPositions(const QString& xml)
{
    QXmlStreamReader reader(xml);
    QVector<Level> levels;
    int line = 1;
    int lineStart = 0;
    int passed = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isEndElement()) {
            levels.removeLast();
        } else if (reader.isStartElement()) {
            // No "<" may stand inside a tag, so the last one before the reader's place begins the tag.
            const int start = xml.lastIndexOf(QLatin1Char('<'), int(reader.characterOffset()) - 1);
            for (; passed < start; ++passed) {
                if (xml.at(passed) == QLatin1Char('\n')) {
                    ++line;
                    lineStart = passed + 1;
                }
            }
            const QString path =
                levels.isEmpty() ? QString() : childPath(&levels.last(), reader.name().toString());
            m_positions.insert(path, {line, start - lineStart + 1});
            levels.append({path, {}});
        }
    }
}

} // namespace Session
