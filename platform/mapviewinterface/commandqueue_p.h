#pragma once

#include <map>
#include <mapviewinterface/mapmessage.h>
#include <QHash>
#include <QPair>
#include <QSet>

/// What is still to be sent to the map program. Holds the newest state of each object only, so that it does not grow
/// while the map program does not read.
class CommandQueue
{
public:
    /// A deletion takes back what was not sent of the object; another command replaces the one of its kind.
    void push(const MapMessage& message);
    bool isEmpty() const { return m_commands.empty(); }
    int size() const { return int(m_commands.size()); }
    MapMessage takeFirst();
    void clear();

private:
    using Key = QPair<int, int>; // Object, and what is said of it.

    static Key keyOf(const MapMessage& message);
    void remove(const Key& key);

    std::map<quint64, MapMessage> m_commands; // In the order in which they go out.
    QHash<Key, quint64> m_places;
    quint64 m_lastPlace = 0;
};
