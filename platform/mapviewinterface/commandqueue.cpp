#include "commandqueue_p.h"

namespace {
enum Aspect { ASPECT_EXISTENCE, ASPECT_PROPERTIES, ASPECT_TOOL_TIP, ASPECT_DELETION, ASPECT_VIEW };

bool isCreation(MapMessageKind kind)
{
    return kind == MAP_CREATE_LAYER || (kind >= MAP_CREATE_GROUP && kind <= MAP_CREATE_EDITABLE);
}
} // namespace

void CommandQueue::push(const MapMessage& message)
{
    if (message.kind == MAP_DELETE) {
        const bool wasSent = !m_places.contains({message.id, ASPECT_EXISTENCE});
        for (const int aspect : {ASPECT_EXISTENCE, ASPECT_PROPERTIES, ASPECT_TOOL_TIP})
            remove({message.id, aspect});
        if (!wasSent)
            return;
    }
    const Key key = keyOf(message);
    // Of what concerns the whole view the newest comes last: painting goes on only behind what was drawn.
    if (key.second == ASPECT_VIEW)
        remove(key);
    const auto place = m_places.constFind(key);
    if (place != m_places.cend()) {
        m_commands[*place] = message;
        return;
    }
    m_places.insert(key, ++m_lastPlace);
    m_commands.emplace(m_lastPlace, message);
}

MapMessage CommandQueue::takeFirst()
{
    const auto first = m_commands.begin();
    const MapMessage message = first->second;
    m_places.remove(keyOf(message));
    m_commands.erase(first);
    return message;
}

void CommandQueue::clear()
{
    m_commands.clear();
    m_places.clear();
}

CommandQueue::Key CommandQueue::keyOf(const MapMessage& message)
{
    if (isCreation(message.kind))
        return {message.id, ASPECT_EXISTENCE};
    switch (message.kind) {
    case MAP_LAYER_PROPERTIES:
        return {message.id, ASPECT_PROPERTIES};
    case MAP_TOOL_TIP:
        return {message.id, ASPECT_TOOL_TIP};
    case MAP_DELETE:
        return {message.id, ASPECT_DELETION};
    default:
        return {-int(message.kind), ASPECT_VIEW};
    }
}

void CommandQueue::remove(const Key& key)
{
    const auto place = m_places.find(key);
    if (place == m_places.end())
        return;
    m_commands.erase(*place);
    m_places.erase(place);
}
