#pragma once

#include <mapviewinterface/mapmessage.h>

class MapViewInterface;

/// Calls the handlers of a client.
class MapDispatch
{
public:
    static void tellInitialized(MapViewInterface* client);
    static void tellReset(MapViewInterface* client);
    /// Messages of an unknown kind, or without the points that they need, are left out.
    static void tell(MapViewInterface* client, const MapMessage& message);
};
