#pragma once

#include <support/recordingmap.h>

#include <QStringList>

namespace JedTest {

/// What a recording map shows, for tests that look at the whole of it.
class MapShapes
{
public:
    struct Shape
    {
        MapMessageKind kind = MAP_CREATE_RECT;
        QString layer;
        QString name;
        QString tooltip;
        QVector<QPointF> points;
        int group = 0; ///< the map's id of its group
        int shape = 0; ///< the map's id of the shape
    };

    explicit MapShapes(RecordingMap& map)
        : m_map(map)
    {
    }

    /// The shapes in the order of their names.
    QVector<Shape> all()
    {
        for (const MapMessage& message : m_map.take())
            apply(message);
        QVector<Shape> result;
        for (const Shape& shape : qAsConst(m_shapes)) {
            if (shape.shape != 0)
                result.append(shape);
        }
        std::sort(result.begin(), result.end(), [](const Shape& left, const Shape& right) {
            return left.layer + left.name < right.layer + right.name;
        });
        return result;
    }
    /// Each as "layer: name x,y x,y".
    QStringList texts()
    {
        QStringList result;
        for (const Shape& shape : all()) {
            QString text = QStringLiteral("%1: %2").arg(shape.layer, shape.name);
            for (const QPointF& point : shape.points)
                text += QStringLiteral(" %1,%2").arg(point.x()).arg(point.y());
            result.append(text);
        }
        return result;
    }
    /// The first one of that name.
    Shape named(const QString& name)
    {
        for (const Shape& shape : all()) {
            if (shape.name == name)
                return shape;
        }
        return Shape();
    }
    /// The group that was selected last; 0 if none was.
    int selected()
    {
        all();
        return m_selected;
    }
    /// What the user deletes is gone without a message of the client.
    void drop(int group)
    {
        all();
        m_shapes.remove(group);
    }
    /// What the user moves is elsewhere without one.
    void move(int group, const QVector<QPointF>& points)
    {
        all();
        m_shapes[group].points = points;
    }
    /// A new link begins with an empty map.
    void clear()
    {
        m_map.take();
        m_layers.clear();
        m_shapes.clear();
        m_selected = 0;
    }

private:
    void apply(const MapMessage& message)
    {
        if (message.kind == MAP_CREATE_LAYER) {
            m_layers.insert(message.id, message.text);
        } else if (message.kind == MAP_CREATE_GROUP) {
            Shape& shape = m_shapes[message.id];
            shape.group = message.id;
            shape.layer = m_layers.value(message.parent);
            shape.name = message.text;
        } else if (message.kind >= MAP_CREATE_RECT && message.kind <= MAP_CREATE_EDITABLE) {
            Shape& shape = m_shapes[message.parent];
            shape.kind = message.kind;
            shape.shape = message.id;
            shape.points = message.points;
        } else if (message.kind == MAP_TOOL_TIP) {
            m_shapes[message.id].tooltip = message.text;
        } else if (message.kind == MAP_DELETE) {
            m_shapes.remove(message.id);
        } else if (message.kind == MAP_SELECT) {
            m_selected = message.id;
        }
    }

    RecordingMap& m_map;
    QHash<int, QString> m_layers;
    QHash<int, Shape> m_shapes; // By group.
    int m_selected = 0;
};

} // namespace JedTest
