#pragma once

#include <vector>

/// A place on the map in degrees: x is the longitude, y the latitude.
struct MST_POINT
{
    double x = 0;
    double y = 0;
};

/// What happened to an object on the map. One record for each handler, of the handler's name without "on_".
struct MST_EVENT_OBJECT
{
    int id = 0; ///< of the map object
};

struct MST_EVENT_GROUP_DELETE : MST_EVENT_OBJECT
{
};
struct MST_EVENT_LAYER_DELETE : MST_EVENT_OBJECT
{
};
struct MST_EVENT_OVERLAY_DELETE : MST_EVENT_OBJECT
{
};
struct MST_EVENT_SHAPE_DELETE : MST_EVENT_OBJECT
{
};
struct MST_EVENT_GROUP_CREATE : MST_EVENT_OBJECT
{
};
struct MST_EVENT_GROUP_SELECT : MST_EVENT_OBJECT
{
};
struct MST_EVENT_GROUP_DESELECT : MST_EVENT_OBJECT
{
};
struct MST_EVENT_GROUP_OPEN : MST_EVENT_OBJECT
{
};
struct MST_EVENT_MENU : MST_EVENT_OBJECT
{
};
struct MST_EVENT_COMMON_DATA : MST_EVENT_OBJECT
{
};

/// A polygon was moved, by so many degrees.
struct MST_EVENT_GROUP_MOVE : MST_EVENT_OBJECT
{
    double dx = 0;
    double dy = 0;
};

/// A rectangle was moved or changed its size; these are its new edges.
struct MST_EVENT_GROUP_MOVE_EX : MST_EVENT_OBJECT
{
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// Two opposite corners of what is visible.
struct MST_EVENT_VISIBLE_WW
{
    MST_POINT first;
    MST_POINT second;
};
/// Two opposite corners of the whole map.
struct MST_EVENT_WW
{
    MST_POINT first;
    MST_POINT second;
};

struct MST_EVENT_MOUSE_ACT : MST_EVENT_OBJECT
{
    MST_POINT place;
};

/// The map objects that a search found.
struct MST_EVENT_RESULT_IDS
{
    std::vector<int> ids;
};

/// The user has finished drawing a polygon; id is the shape.
struct MST_EVENT_POLY_CREATE : MST_EVENT_OBJECT
{
    std::vector<MST_POINT> points;
};
