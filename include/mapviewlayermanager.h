#pragma once

#include "jedvepb_export.h"

#include <mapviewinterface/mapviewinterface.h>

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSharedMemory>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtGui/QPolygonF>

#include <memory>

namespace JEDVEPLUGIN {

/// Shows rectangles and polygons of settings on the map, keeps them up to date, lets the user draw a polygon, and
/// tells what the user moves or deletes there. There is one for the process.
///
/// Objects live here until they are removed or the user deletes them on the map, whether there is a map or not: they
/// are drawn when the link comes, and again after it was lost. Ids are counted up; a new object takes the place of one
/// that an update made under its id. GUI thread only.
class JEDVEPB_EXPORT MapViewLayerManager : public QObject, public MapViewInterface
{
    Q_OBJECT
public:
    /// Id of an object of this manager, from 1; 0 stands for none.
    using tObjectID = quint64;
    /// Kinds of what is drawn on the map.
    enum enObjType : int { OBJ_LAYER = 0, OBJ_GROUP = 1, OBJ_SHAPE = 2 };
    /// Properties of a layer by name; booleans, colours, and what has a text form.
    using MapViewProperties = QHash<QString, QVariant>;

    ~MapViewLayerManager() override;

    /// The manager, made when it is asked for first and deleted with the application object.
    /// \param name  by which the map program knows this process; with a number behind it if other processes use the
    ///              name already. Not looked at again once there is a manager.
    static MapViewLayerManager* getInstance(const QString& name);

    /// Draws a rectangle. \param layer  of which name; made if there is none \param tooltip  may be empty
    /// \return the new object's id
    tObjectID addRect(const QString& layer, QString name, const QRectF& rect, const QString& tooltip);
    /// The same for a polygon; it is closed by itself.
    tObjectID addPolygon(const QString& layer, const QString& name, const QPolygonF& polygon,
                         const QString& tooltip);
    /// Makes an object a rectangle with these properties, in its layer. An id that is not in use is taken into use
    /// with a layer without name; 0 is ignored.
    void updateRect(tObjectID id, const QString& name, const QRectF& rect, const QString& tooltip);
    /// The same for a polygon.
    void updatePolygon(tObjectID id, const QString& name, const QPolygonF& polygon, const QString& tooltip);
    /// An unknown id is ignored.
    void updateTooltip(tObjectID id, const QString& tooltip);
    /// An unknown id is ignored.
    void removeObject(tObjectID id);
    /// The same for many, with the map painted once.
    void removeObjects(const QVector<tObjectID>& ids);
    /// Lets the user draw a polygon; polygonCreated() tells when it is done, and it is an ordinary polygon from then
    /// on. \return 0 without a map, and as long as another one is being drawn
    tObjectID createPolygonByUser(const QString& layer, const QString& name);
    /// Selects an object on the map and brings it into view.
    void showInMapView(tObjectID id);
    /// Two opposite corners of what the map shows.
    /// \return false, with the points as they were, without a map
    bool visibleWW(QPointF& first, QPointF& second);
    /// Properties of a layer, with defaults when they are asked for first; they count when the layer is drawn. The
    /// reference holds until the properties of another layer are asked for.
    MapViewProperties& getLayerProperties(const QString& layer);
    /// Takes a layer that is drawn off the map, with all objects in it.
    void deleteLayer(const QString& layer);
    /// What an object is on the map: a group, as soon as it is drawn; OBJ_LAYER, which is 0, as long as it is not.
    enObjType getObjectType(tObjectID id);

signals:
    /// The link to the map came or went.
    void linkStateChanged(bool connected);
    /// The user deleted an object on the map; its id is void.
    void objectDeleted(JEDVEPLUGIN::MapViewLayerManager::tObjectID id);
    /// The user moved a rectangle or changed its size.
    void rectMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID id, const QRectF& rect);
    /// The user moved a polygon.
    void polygonMoved(JEDVEPLUGIN::MapViewLayerManager::tObjectID id, const QPolygonF& polygon);
    /// The user has drawn the polygon of createPolygonByUser().
    void polygonCreated(JEDVEPLUGIN::MapViewLayerManager::tObjectID id, const QPolygonF& polygon);

protected:
    void onInitializeMapView() override;
    void onResetMapView() override;
    void on_MST_EVENT_GROUP_DELETE(const MST_EVENT_GROUP_DELETE& event) override;
    void on_MST_EVENT_LAYER_DELETE(const MST_EVENT_LAYER_DELETE& event) override;
    void on_MST_EVENT_OVERLAY_DELETE(const MST_EVENT_OVERLAY_DELETE& event) override;
    void on_MST_EVENT_SHAPE_DELETE(const MST_EVENT_SHAPE_DELETE& event) override;
    void on_MST_EVENT_GROUP_CREATE(const MST_EVENT_GROUP_CREATE& event) override;
    void on_MST_EVENT_GROUP_MOVE(const MST_EVENT_GROUP_MOVE& event) override;
    void on_MST_EVENT_GROUP_MOVE_EX(const MST_EVENT_GROUP_MOVE_EX& event) override;
    void on_MST_EVENT_GROUP_SELECT(const MST_EVENT_GROUP_SELECT& event) override;
    void on_MST_EVENT_GROUP_DESELECT(const MST_EVENT_GROUP_DESELECT& event) override;
    void on_MST_EVENT_VISIBLE_WW(const MST_EVENT_VISIBLE_WW& event) override;
    void on_MST_EVENT_WW(const MST_EVENT_WW& event) override;
    void on_MST_EVENT_MENU(const MST_EVENT_MENU& event) override;
    void on_MST_EVENT_MOUSE_ACT(const MST_EVENT_MOUSE_ACT& event) override;
    void on_MST_EVENT_COMMON_DATA(const MST_EVENT_COMMON_DATA& event) override;
    void on_MST_EVENT_GROUP_OPEN(const MST_EVENT_GROUP_OPEN& event) override;
    void on_MST_EVENT_RESULT_IDS(const MST_EVENT_RESULT_IDS& event) override;
    void on_MST_EVENT_POLY_CREATE(const MST_EVENT_POLY_CREATE& event) override;

private:
    struct Data;

    MapViewLayerManager(const QString& server, const QString& name, QObject* parent);

    tObjectID nextObjId();
    tObjectID addObject(const QString& layer, const QString& name, int type, const QVector<QPointF>& points,
                        const QString& tooltip);
    void updateObject(tObjectID id, const QString& name, int type, const QVector<QPointF>& points,
                      const QString& tooltip);
    void draw(tObjectID id);
    int drawnLayer(const QString& name);
    int drawShape(int group, tObjectID id);
    void eraseFromMap(tObjectID id);
    void handleDeletion(int mapId);

    static MapViewLayerManager* s_instance;
    static QSharedMemory s_instanceCounter;

    std::unique_ptr<Data> m_data;
};

} // namespace JEDVEPLUGIN
