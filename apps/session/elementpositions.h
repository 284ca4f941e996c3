#pragma once

#include <QHash>
#include <QString>

namespace Session {

/// Where the elements of an XML text begin, for findings about elements that have been read by other means.
class ElementPositions
{
public:
    struct Position
    {
        int line = 0;   // From 1; 0: no such element.
        int column = 0; // Of the "<", from 1.
    };

    /// Goes through the text once, up to its end or its first fault.
    explicit ElementPositions(const QString& xml);

    /// \param path  names of the elements from the root's children on, each with its number among the siblings of
    ///              its name, counted from 0: "Component:1/Node:0". Empty: the root.
    Position at(const QString& path) const { return m_positions.value(path); }

private:
    QHash<QString, Position> m_positions; // By path.
};

} // namespace Session
