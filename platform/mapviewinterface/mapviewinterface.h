#pragma once

#include <mapviewinterface/mapviewevents.h>
#include <mapviewinterface/mapviewinterface_export.h>
#include <memory>
#include <QString>
#include <string>

class MapLink;

/// A client of the map view, which is a program of its own. Derive from it and override the handlers of interest.
///
/// Nothing waits: commands are queued and sent by the event loop, and while the map program does not read, the queue
/// holds the newest state of each object only. The link comes when a map program is there and goes with it; after
/// onInitializeMapView() the map is empty and everything is to be drawn, after onResetMapView() all ids are void. A
/// call without a link does nothing and gives 0.
///
/// On the map there are layers in the one overlay, groups in layers, and one shape in a group. Ids are above 0 and
/// unique as long as the link lasts. Places are in degrees. GUI thread only; handlers are called from the event loop,
/// never inside a call.
class MAPVIEWINTERFACE_EXPORT MapViewInterface
{
public:
    /// \param server  name of the map program's local socket; empty: the usual one
    /// \param name    by which the map program knows this client
    MapViewInterface(const QString& server, const QString& name);
    virtual ~MapViewInterface();

    bool isConnected() const;
    /// Id of the overlay in which all layers lie.
    int getOverlay() const;

    int createMapViewLayer(int overlay, const std::wstring& name);
    /// \param properties  NAME=VALUE joined by ";"
    void setLayerProperties(int layer, const std::wstring& properties);
    int createMapViewGroup(int layer, const std::wstring& name);
    /// \param count  shapes of this kind to be made; 1
    int createMapViewRect(int group, const std::wstring& name, double left, double top, double right,
                          double bottom, int count);
    int createMapViewPolygon(int group, const std::wstring& name, int pointCount, const MST_POINT* points,
                             int count);
    /// A polygon whose points the user sets, see on_MST_EVENT_POLY_CREATE().
    int createMapViewEditablePoly(int group, const std::wstring& name, int count);
    /// \param hasText  false: no tool tip, whatever the text is
    void setToolTip(int group, bool hasText, const std::wstring& text);
    /// \param code  171 for a layer, 172 for a group, 173 for a shape
    void deleteMapViewObj(int id, int code);
    /// Selects a group and shows it. \param mode  6: centred
    void selectInMap(int id, int mode);
    /// Off while much is drawn: the map is painted when it is on again.
    void setPaint(bool on);
    /// Whether on_MST_EVENT_VISIBLE_WW() is wanted.
    void setMapViewVisibleWW(bool on);
    /// Whether on_MST_EVENT_WW() is wanted.
    void setMapViewWW(bool on);

protected:
    /// The link has come.
    virtual void onInitializeMapView();
    /// The link has gone.
    virtual void onResetMapView();
    virtual void on_MST_EVENT_GROUP_DELETE(const MST_EVENT_GROUP_DELETE& event);
    virtual void on_MST_EVENT_LAYER_DELETE(const MST_EVENT_LAYER_DELETE& event);
    virtual void on_MST_EVENT_OVERLAY_DELETE(const MST_EVENT_OVERLAY_DELETE& event);
    virtual void on_MST_EVENT_SHAPE_DELETE(const MST_EVENT_SHAPE_DELETE& event);
    virtual void on_MST_EVENT_GROUP_CREATE(const MST_EVENT_GROUP_CREATE& event);
    virtual void on_MST_EVENT_GROUP_MOVE(const MST_EVENT_GROUP_MOVE& event);
    virtual void on_MST_EVENT_GROUP_MOVE_EX(const MST_EVENT_GROUP_MOVE_EX& event);
    virtual void on_MST_EVENT_GROUP_SELECT(const MST_EVENT_GROUP_SELECT& event);
    virtual void on_MST_EVENT_GROUP_DESELECT(const MST_EVENT_GROUP_DESELECT& event);
    virtual void on_MST_EVENT_VISIBLE_WW(const MST_EVENT_VISIBLE_WW& event);
    virtual void on_MST_EVENT_WW(const MST_EVENT_WW& event);
    virtual void on_MST_EVENT_MENU(const MST_EVENT_MENU& event);
    virtual void on_MST_EVENT_MOUSE_ACT(const MST_EVENT_MOUSE_ACT& event);
    virtual void on_MST_EVENT_COMMON_DATA(const MST_EVENT_COMMON_DATA& event);
    virtual void on_MST_EVENT_GROUP_OPEN(const MST_EVENT_GROUP_OPEN& event);
    virtual void on_MST_EVENT_RESULT_IDS(const MST_EVENT_RESULT_IDS& event);
    virtual void on_MST_EVENT_POLY_CREATE(const MST_EVENT_POLY_CREATE& event);

private:
    friend class MapDispatch;
    MapViewInterface(const MapViewInterface&) = delete;
    MapViewInterface& operator=(const MapViewInterface&) = delete;

    std::unique_ptr<MapLink> m_link;
};
