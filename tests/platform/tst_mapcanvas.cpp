#include <mapview/mapcanvas.h>
#include <mapview/mappainter.h>
#include <mapview/mapscene.h>
#include <QElapsedTimer>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>
#include <support/testmain.h>

namespace {
constexpr int LAYER = 2;
constexpr int FIRST_GROUP = 10;
constexpr int CUT_EDGES = 30; // Pixels: smooth lines are rounded differently where they are cut.

MapMessage command(MapMessageKind kind, int id, int parent, const QString& text = QString(),
                   const QVector<QPointF>& points = {}, int code = 0)
{
    MapMessage message;
    message.kind = kind;
    message.id = id;
    message.parent = parent;
    message.code = code;
    message.text = text;
    message.points = points;
    return message;
}

QVector<QPointF> rect(double left, double top, double right, double bottom)
{
    return {QPointF(left, top), QPointF(right, bottom)};
}

QString text(const MapMessage& message)
{
    QString points;
    for (const QPointF& point : message.points)
        points += QString(" %1,%2")
                      .arg(std::round(point.x() * 1000) / 1000)
                      .arg(std::round(point.y() * 1000) / 1000);
    return QString("%1 %2%3").arg(message.kind).arg(message.id).arg(points);
}

QString line(MapMessageKind kind, int id, const QString& points = QString())
{
    return QString("%1 %2%3").arg(kind).arg(id).arg(points);
}

// Pixels that are clearly of another colour.
int difference(const QImage& first, const QImage& second)
{
    constexpr int CLEAR = 16;
    int count = first.size() == second.size() ? 0 : first.width() * first.height();
    for (int y = 0; y < std::min(first.height(), second.height()); ++y) {
        for (int x = 0; x < std::min(first.width(), second.width()); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            const auto differs = [](int one, int other) { return std::abs(one - other) > CLEAR; };
            count +=
                differs(qRed(a), qRed(b)) || differs(qGreen(a), qGreen(b)) || differs(qBlue(a), qBlue(b));
        }
    }
    return count;
}

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_count += event->type() == QEvent::Paint;
        return false;
    }

    int m_count = 0;
};
} // namespace

// What a user does on the map, and what clients are told of it.
class TstMapCanvas : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void worldFitsAtFirst();
    void wheelKeepsThePlaceBelowTheMouse();
    void dragShiftsTheMap();
    void keysShiftAndZoom();
    void landIsPaintedHoweverNear();
    void shiftedPictureIsThatPaintedAnew();
    void changesArePaintedWhereTheyAre();
    void nothingIsPaintedWhileAClientDrawsMuch();

    void clickSelects();
    void controlClickAddsAndTakesAway();
    void tabGoesThroughTheObjectsAndOn();
    void clientShowsAnObject();

    void selectedShapesAreDragged();
    void escapeEndsADrag();
    void shapesAreMovedByKeys();
    void moveEndsAtTheEdgeOfTheWorld();
    void shapesThatMayNotBeMovedStay();
    void deleteDeletesWhatMayBeDeleted();
    void toolTipIsShownAsItIs();

    void polygonIsDrawnWithTheMouse();
    void polygonIsClosedAtItsFirstPoint();
    void polygonIsDrawnWithKeys();
    void pointIsTakenBack();
    void twoPointsAreNoPolygon();
    void drawingIsGivenUp();
    void clientTakesADrawingBack();
    void drawingsWaitForEachOther();

    void manySelectedShapesAreDeleted();
    void accessibleWords();
    void manyShapesArePannedWithoutAStall();

private:
    QPoint pixel(double x, double y) const { return m_canvas->viewport().toPixels(QPointF(x, y)).toPoint(); }
    QPoint pixel(const QPointF& place) const { return pixel(place.x(), place.y()); }
    void drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void moveMouse(const QPoint& to);
    int addRect(double left, double top, double right, double bottom);
    int addPolygon(const QVector<QPointF>& points);
    QStringList takeTold();
    QImage freshPicture();

    std::unique_ptr<MapScene> m_scene;
    std::unique_ptr<MapCanvas> m_canvas;
    int m_client = 0;
    int m_lastId = 0;
    QStringList m_told;
};

void TstMapCanvas::init()
{
    m_scene = std::make_unique<MapScene>();
    m_canvas = std::make_unique<MapCanvas>(m_scene.get(), nullptr);
    m_told.clear();
    connect(m_scene.get(), &MapScene::told, this,
            [this](int, const MapMessage& message) { m_told << text(message); });
    m_client = m_scene->addClient("editor");
    m_lastId = FIRST_GROUP - 1;
    m_scene->apply(m_client, command(MAP_CREATE_LAYER, LAYER, 1, "Regions"));
    m_scene->apply(m_client, command(MAP_LAYER_PROPERTIES, LAYER, 0, "EDIT=TRUE;O_DELETE=TRUE;O_MOVE=TRUE"));
    m_canvas->resize(720, 360);
    m_canvas->show();
    QVERIFY(QTest::qWaitForWindowActive(m_canvas.get()));
    m_canvas->setFocus();
}

void TstMapCanvas::cleanup()
{
    m_canvas.reset();
    m_scene.reset();
}

void TstMapCanvas::drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers)
{
    QTest::mousePress(m_canvas.get(), Qt::LeftButton, modifiers, from);
    moveMouse((from + to) / 2);
    moveMouse(to);
    QTest::mouseRelease(m_canvas.get(), Qt::LeftButton, modifiers, to);
}

// With the left button pressed.
void TstMapCanvas::moveMouse(const QPoint& to)
{
    QMouseEvent event(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_canvas.get(), &event);
}

int TstMapCanvas::addRect(double left, double top, double right, double bottom)
{
    const int group = ++m_lastId;
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, group, LAYER, QString("Object %1").arg(group)));
    m_scene->apply(m_client, command(MAP_CREATE_RECT, ++m_lastId, group, "", rect(left, top, right, bottom)));
    return group;
}

int TstMapCanvas::addPolygon(const QVector<QPointF>& points)
{
    const int group = ++m_lastId;
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, group, LAYER, QString("Object %1").arg(group)));
    m_scene->apply(m_client, command(MAP_CREATE_POLYGON, ++m_lastId, group, "", points));
    return group;
}

QStringList TstMapCanvas::takeTold()
{
    QStringList told;
    told.swap(m_told);
    return told;
}

// As it would be painted from the beginning.
QImage TstMapCanvas::freshPicture()
{
    QPixmap pixmap(m_canvas->size());
    QPainter painter(&pixmap);
    painter.setFont(m_canvas->font());
    MapPainter::paintMap(&painter, m_canvas->viewport(), *m_scene, m_canvas->palette(), m_canvas->rect());
    MapPainter::paintGrid(&painter, m_canvas->viewport(), m_canvas->palette(), MapPainter::LABELS);
    return pixmap.toImage();
}

void TstMapCanvas::worldFitsAtFirst()
{
    QCOMPARE(m_canvas->viewport().scale(), 2.0);
    QCOMPARE(m_canvas->viewport().area(), QRectF(-180, -90, 360, 180));
    // No wider than the world is the map ever.
    m_canvas->zoom(0.1);
    QCOMPARE(m_canvas->viewport().scale(), 2.0);
    m_canvas->zoom(1e9);
    QVERIFY(m_canvas->viewport().area().width() > 0.01);
}

void TstMapCanvas::wheelKeepsThePlaceBelowTheMouse()
{
    const QPoint mouse(500, 80);
    const QPointF before = m_canvas->viewport().toDegrees(QPointF(mouse));
    QWheelEvent wheel(mouse, m_canvas->mapToGlobal(mouse), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_canvas.get(), &wheel);
    QCOMPARE(m_canvas->viewport().scale(), 3.0);
    const QPointF after = m_canvas->viewport().toDegrees(QPointF(mouse));
    QVERIFY((after - before).manhattanLength() < 1);
}

void TstMapCanvas::dragShiftsTheMap()
{
    m_canvas->zoom(4);
    QSignalSpy views(m_canvas.get(), &MapCanvas::viewChanged);
    const QPointF before = m_canvas->viewport().toDegrees(QPointF(100, 100));
    drag(QPoint(100, 100), QPoint(160, 70));
    QCOMPARE(m_canvas->viewport().toDegrees(QPointF(160, 70)), before);
    QVERIFY(!views.isEmpty());
    QCOMPARE(views.last()[0].toRectF(), m_canvas->viewport().area());
}

void TstMapCanvas::keysShiftAndZoom()
{
    QTest::keyClick(m_canvas.get(), Qt::Key_Plus);
    QTest::keyClick(m_canvas.get(), Qt::Key_Plus);
    QCOMPARE(m_canvas->viewport().scale(), 4.5);
    const QPointF middle = m_canvas->viewport().toDegrees(m_canvas->viewport().middle());
    QTest::keyClick(m_canvas.get(), Qt::Key_Right);
    QTest::keyClick(m_canvas.get(), Qt::Key_Up);
    QCOMPARE(m_canvas->viewport().toDegrees(m_canvas->viewport().middle()) - middle,
             QPointF(72 / 4.5, 36 / 4.5));
    QTest::keyClick(m_canvas.get(), Qt::Key_Minus);
    QCOMPARE(m_canvas->viewport().scale(), 3.0);
    QTest::keyClick(m_canvas.get(), Qt::Key_Home);
    QCOMPARE(m_canvas->viewport().area(), QRectF(-180, -90, 360, 180));
}

// What lies far outside the window is the painter's business.
void TstMapCanvas::landIsPaintedHoweverNear()
{
    const auto colorAt = [this](double x, double y) {
        const int group = addRect(x, y + 1e-6, x + 1e-6, y);
        m_canvas->showWorld();
        m_canvas->zoom(1e9);
        m_scene->apply(m_client, command(MAP_SELECT, group, 0, "", {}, 6));
        m_scene->select({});
        // Beside the shape and all lines of the graticule.
        return freshPicture().pixelColor(pixel(x, y) + QPoint(23, 31));
    };
    const QColor land = colorAt(20.003, 10.003);
    QCOMPARE(colorAt(90.003, 60.003), land);
    QVERIFY(colorAt(-40.003, 30.003) != land);
    QCOMPARE(m_canvas->viewport().scale(), 20000.0);
}

void TstMapCanvas::shiftedPictureIsThatPaintedAnew()
{
    m_canvas->zoom(7);
    for (int i = 0; i < 20; ++i)
        addRect(i * 2, 10, i * 2 + 1, 5);
    const int polygon = addPolygon({QPointF(-10, -10), QPointF(10, 10), QPointF(-10, 12)});
    m_scene->select({mapKey(m_client, polygon)});
    m_canvas->grab();
    for (const QPoint& step :
         {QPoint(13, 0), QPoint(-5, 7), QPoint(0, -31), QPoint(300, 200), QPoint(-900, 3)}) {
        // With something to be painted before the shift.
        m_scene->move({mapKey(m_client, FIRST_GROUP)}, QPointF(1, 1));
        m_canvas->shift(step);
        QVERIFY(difference(m_canvas->grab().toImage(), freshPicture()) <= CUT_EDGES);
    }
}

void TstMapCanvas::changesArePaintedWhereTheyAre()
{
    const int first = addRect(0, 10, 10, 0);
    addRect(5, 15, 15, 5);
    m_canvas->grab();
    const auto isRight = [this] {
        return difference(m_canvas->grab().toImage(), freshPicture()) <= CUT_EDGES;
    };
    m_scene->select({mapKey(m_client, first)});
    QVERIFY(isRight());
    m_scene->move(m_scene->selection(), QPointF(30, 30));
    QVERIFY(isRight());
    m_scene->erase(m_scene->selection());
    QVERIFY(isRight());
    m_scene->setLayerVisible(m_client, LAYER, false);
    QVERIFY(isRight());
    m_scene->removeClient(m_client);
    QVERIFY(isRight());
}

void TstMapCanvas::nothingIsPaintedWhileAClientDrawsMuch()
{
    PaintCounter counter(m_canvas.get());
    m_scene->apply(m_client, command(MAP_PAINT, 0, 0));
    QCoreApplication::processEvents();
    counter.m_count = 0;
    addRect(0, 10, 10, 0);
    QCoreApplication::processEvents();
    QCOMPARE(counter.m_count, 0);
    // It may be shifted all the same.
    m_canvas->zoom(2);
    QCoreApplication::processEvents();
    QCOMPARE(counter.m_count, 1);
    addRect(0, 10, 10, 0);
    m_scene->apply(m_client, command(MAP_PAINT, 0, 0, "", {}, 1));
    QCoreApplication::processEvents();
    QCOMPARE(counter.m_count, 2);
    // A client that goes meanwhile does not keep the map from being painted.
    m_scene->apply(m_client, command(MAP_PAINT, 0, 0));
    m_scene->removeClient(m_client);
    QCoreApplication::processEvents();
    QCOMPARE(counter.m_count, 3);
}

void TstMapCanvas::clickSelects()
{
    const int lower = addRect(0, 20, 20, 0);
    const int upper = addRect(10, 20, 30, 0);
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(5, 10));
    QCOMPARE(takeTold(), QStringList{line(MAP_GROUP_SELECTED, lower)});
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(15, 10));
    QCOMPARE(takeTold(), QStringList({line(MAP_GROUP_DESELECTED, lower), line(MAP_GROUP_SELECTED, upper)}));
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(-50, 10));
    QCOMPARE(takeTold(), QStringList{line(MAP_GROUP_DESELECTED, upper)});
    // Beside a polygon, but in the box around it.
    const int polygon = addPolygon({QPointF(-100, 0), QPointF(-60, 0), QPointF(-100, 40)});
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(-62, 38));
    QCOMPARE(takeTold(), QStringList());
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(-98, 5));
    QCOMPARE(takeTold(), QStringList{line(MAP_GROUP_SELECTED, polygon)});
}

void TstMapCanvas::controlClickAddsAndTakesAway()
{
    const int first = addRect(0, 20, 20, 0);
    const int second = addRect(40, 20, 60, 0);
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, Qt::ControlModifier, pixel(10, 10));
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, Qt::ControlModifier, pixel(50, 10));
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, Qt::ControlModifier, pixel(10, 10));
    QCOMPARE(takeTold(), QStringList({line(MAP_GROUP_SELECTED, first), line(MAP_GROUP_SELECTED, second),
                                      line(MAP_GROUP_DESELECTED, first)}));
}

void TstMapCanvas::tabGoesThroughTheObjectsAndOn()
{
    QWidget window;
    MapCanvas canvas(m_scene.get(), &window);
    QWidget next(&window);
    next.setFocusPolicy(Qt::StrongFocus);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    canvas.setFocus();
    const int first = addRect(0, 20, 20, 0);
    const int second = addRect(30, 20, 60, 0);
    QTest::keyClick(&canvas, Qt::Key_Tab);
    QTest::keyClick(&canvas, Qt::Key_Tab);
    QTest::keyClick(&canvas, Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(&canvas, Qt::Key_Tab);
    QCOMPARE(takeTold(), QStringList({line(MAP_GROUP_SELECTED, first), line(MAP_GROUP_DESELECTED, first),
                                      line(MAP_GROUP_SELECTED, second), line(MAP_GROUP_DESELECTED, second),
                                      line(MAP_GROUP_SELECTED, first), line(MAP_GROUP_DESELECTED, first),
                                      line(MAP_GROUP_SELECTED, second)}));
    QVERIFY(canvas.hasFocus());
    QTest::keyClick(&canvas, Qt::Key_Tab);
    QVERIFY(next.hasFocus());
    QCOMPARE(takeTold(), QStringList{line(MAP_GROUP_DESELECTED, second)});
}

void TstMapCanvas::clientShowsAnObject()
{
    const int group = addRect(100, 60, 101, 59);
    m_canvas->zoom(20);
    m_scene->apply(m_client, command(MAP_SELECT, group, 0, "", {}, 6));
    QCOMPARE(takeTold(), QStringList{line(MAP_GROUP_SELECTED, group)});
    QVERIFY((m_canvas->viewport().area().center() - QPointF(100.5, 59.5)).manhattanLength() < 0.1);
    // One that is larger than what was visible is shown whole.
    const int large = addRect(-60, 40, 0, -10);
    m_scene->apply(m_client, command(MAP_SELECT, large, 0, "", {}, 6));
    QVERIFY(m_canvas->viewport().area().contains(QRectF(-60, -10, 60, 50)));
    // Nothing that is not there.
    m_scene->apply(m_client, command(MAP_SELECT, 4711, 0, "", {}, 6));
    QCOMPARE(m_scene->selection().size(), 1);
}

void TstMapCanvas::selectedShapesAreDragged()
{
    const int box = addRect(0, 20, 20, 0);
    const int polygon = addPolygon({QPointF(-50, 0), QPointF(-30, 0), QPointF(-50, 20)});
    m_canvas->selectAll();
    takeTold();
    drag(pixel(10, 10), pixel(10, 10) + QPoint(20, -10));
    QStringList told = takeTold();
    told.sort();
    QCOMPARE(told, QStringList({line(MAP_GROUP_MOVED, polygon, " 10,5"),
                                line(MAP_GROUP_RESIZED, box, " 10,25 30,5")}));
    QCOMPARE(m_scene->group(mapKey(m_client, polygon))->points.first(), QPointF(-40, 5));
}

void TstMapCanvas::escapeEndsADrag()
{
    const int box = addRect(0, 20, 20, 0);
    m_scene->select({mapKey(m_client, box)});
    takeTold();
    QTest::mousePress(m_canvas.get(), Qt::LeftButton, {}, pixel(10, 10));
    moveMouse(pixel(40, 10));
    QTest::keyClick(m_canvas.get(), Qt::Key_Escape);
    QTest::mouseRelease(m_canvas.get(), Qt::LeftButton, {}, pixel(40, 10));
    QCOMPARE(takeTold(), QStringList());
    QCOMPARE(m_scene->group(mapKey(m_client, box))->box.left(), 0.0);
}

void TstMapCanvas::shapesAreMovedByKeys()
{
    const int box = addRect(0, 20, 20, 0);
    QTest::keyClick(m_canvas.get(), Qt::Key_Tab);
    takeTold();
    QTest::keyClick(m_canvas.get(), Qt::Key_Right, Qt::AltModifier);
    QTest::keyClick(m_canvas.get(), Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(takeTold(), QStringList({line(MAP_GROUP_RESIZED, box, " 4,20 24,0"),
                                      line(MAP_GROUP_RESIZED, box, " 4,19.5 24,-0.5")}));
}

void TstMapCanvas::moveEndsAtTheEdgeOfTheWorld()
{
    const int box = addRect(150, 20, 178, 0);
    m_scene->select({mapKey(m_client, box)});
    takeTold();
    m_scene->move(m_scene->selection(), QPointF(10, 100));
    m_scene->move(m_scene->selection(), QPointF(10, 100));
    QCOMPARE(takeTold(), QStringList{line(MAP_GROUP_RESIZED, box, " 152,90 180,70")});
}

void TstMapCanvas::shapesThatMayNotBeMovedStay()
{
    const int box = addRect(0, 20, 20, 0);
    m_scene->apply(m_client, command(MAP_LAYER_PROPERTIES, LAYER, 0, "EDIT=TRUE;O_MOVE=FALSE"));
    m_scene->select({mapKey(m_client, box)});
    takeTold();
    drag(pixel(10, 10), pixel(40, 10));
    QTest::keyClick(m_canvas.get(), Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(takeTold(), QStringList());
    QCOMPARE(m_scene->group(mapKey(m_client, box))->box, QRectF(0, 0, 20, 20));
}

void TstMapCanvas::deleteDeletesWhatMayBeDeleted()
{
    const int box = addRect(0, 20, 20, 0);
    m_scene->apply(m_client, command(MAP_CREATE_LAYER, 3, 1, "Fixed"));
    m_scene->apply(m_client, command(MAP_LAYER_PROPERTIES, 3, 0, "EDIT=FALSE;O_DELETE=TRUE"));
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, 4, 3));
    m_scene->apply(m_client, command(MAP_CREATE_RECT, 5, 4, "", rect(40, 20, 60, 0)));
    m_canvas->selectAll();
    QCOMPARE(m_scene->selection().size(), 2);
    takeTold();
    QSignalSpy hints(m_canvas.get(), &MapCanvas::hint);
    m_canvas->eraseSelection();
    QCOMPARE(takeTold(), QStringList{line(MAP_GROUP_DELETED, box)});
    QCOMPARE(m_scene->selection(), QSet<MapKey>{mapKey(m_client, 4)});
    QCOMPARE(hints.last()[0].toString(), QString("1 of 2 may not be deleted"));
}

void TstMapCanvas::toolTipIsShownAsItIs()
{
    const int box = addRect(0, 20, 20, 0);
    m_scene->apply(m_client, command(MAP_TOOL_TIP, box, 0, "<b>1</b>"));
    QHelpEvent help(QEvent::ToolTip, pixel(10, 10), m_canvas->mapToGlobal(pixel(10, 10)));
    QApplication::sendEvent(m_canvas.get(), &help);
    QVERIFY(QToolTip::text().contains("&lt;b&gt;1&lt;/b&gt;"));
    m_scene->apply(m_client, command(MAP_TOOL_TIP, box, 0, ""));
    QApplication::sendEvent(m_canvas.get(), &help);
    QVERIFY(QToolTip::text().contains("Object 10"));
}

void TstMapCanvas::polygonIsDrawnWithTheMouse()
{
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, 4, LAYER, "Drawn"));
    m_scene->apply(m_client, command(MAP_CREATE_EDITABLE, 5, 4));
    QVERIFY(m_canvas->isDrawing());
    for (const QPoint& place : {pixel(0, 0), pixel(40, 0), pixel(40, 30)})
        QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, place);
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(0, 30));
    QTest::mouseDClick(m_canvas.get(), Qt::LeftButton, {}, pixel(0, 30));
    QVERIFY(!m_canvas->isDrawing());
    QCOMPARE(takeTold(), QStringList{line(MAP_POLYGON_DRAWN, 5, " 0,0 40,0 40,30 0,30")});
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(20, 15));
    QCOMPARE(takeTold(), QStringList{line(MAP_GROUP_SELECTED, 4)});
}

void TstMapCanvas::polygonIsClosedAtItsFirstPoint()
{
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, 4, LAYER, "Drawn"));
    m_scene->apply(m_client, command(MAP_CREATE_EDITABLE, 5, 4));
    for (const QPoint& place : {pixel(0, 0), pixel(40, 0), pixel(40, 30), pixel(0, 0) + QPoint(2, 1)})
        QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, place);
    QCOMPARE(takeTold(), QStringList{line(MAP_POLYGON_DRAWN, 5, " 0,0 40,0 40,30")});
}

void TstMapCanvas::polygonIsDrawnWithKeys()
{
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, 4, LAYER, "Drawn"));
    m_scene->apply(m_client, command(MAP_CREATE_EDITABLE, 5, 4));
    const auto press = [this](int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(m_canvas.get(), Qt::Key(key), modifiers);
    };
    press(Qt::Key_Return);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    press(Qt::Key_Down, Qt::ControlModifier);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    QCOMPARE(takeTold(), QStringList{line(MAP_POLYGON_DRAWN, 5, " 0,0 4,0 4,-0.5")});
    QVERIFY(!m_canvas->isDrawing());
}

void TstMapCanvas::pointIsTakenBack()
{
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, 4, LAYER, "Drawn"));
    m_scene->apply(m_client, command(MAP_CREATE_EDITABLE, 5, 4));
    QTest::keyClick(m_canvas.get(), Qt::Key_Backspace);
    for (const QPoint& place : {pixel(0, 0), pixel(40, 0), pixel(80, 80)})
        QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, place);
    QTest::keyClick(m_canvas.get(), Qt::Key_Backspace);
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(40, 30));
    QTest::keyClick(m_canvas.get(), Qt::Key_Return);
    QCOMPARE(takeTold(), QStringList{line(MAP_POLYGON_DRAWN, 5, " 0,0 40,0 40,30")});
}

void TstMapCanvas::twoPointsAreNoPolygon()
{
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, 4, LAYER, "Drawn"));
    m_scene->apply(m_client, command(MAP_CREATE_EDITABLE, 5, 4));
    QSignalSpy hints(m_canvas.get(), &MapCanvas::hint);
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(0, 0));
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(40, 0));
    QTest::keyClick(m_canvas.get(), Qt::Key_Return);
    QVERIFY(m_canvas->isDrawing());
    QCOMPARE(takeTold(), QStringList());
    QCOMPARE(hints.last()[0].toString(), QString("A polygon has three points at least."));
}

void TstMapCanvas::drawingIsGivenUp()
{
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, 4, LAYER, "Drawn"));
    m_scene->apply(m_client, command(MAP_CREATE_EDITABLE, 5, 4));
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(0, 0));
    QTest::keyClick(m_canvas.get(), Qt::Key_Escape);
    QVERIFY(!m_canvas->isDrawing());
    QCOMPARE(takeTold(), QStringList{line(MAP_GROUP_DELETED, 4)});
}

void TstMapCanvas::clientTakesADrawingBack()
{
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, 4, LAYER, "Drawn"));
    m_scene->apply(m_client, command(MAP_CREATE_EDITABLE, 5, 4));
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(0, 0));
    m_scene->apply(m_client, command(MAP_DELETE, 4, 0, "", {}, 172));
    QVERIFY(!m_canvas->isDrawing());
    QCOMPARE(takeTold(), QStringList());
}

void TstMapCanvas::drawingsWaitForEachOther()
{
    const int other = m_scene->addClient("other");
    m_scene->apply(m_client, command(MAP_CREATE_GROUP, 4, LAYER, "Drawn"));
    m_scene->apply(m_client, command(MAP_CREATE_EDITABLE, 5, 4));
    m_scene->apply(other, command(MAP_CREATE_LAYER, 2, 1, "Other"));
    m_scene->apply(other, command(MAP_CREATE_GROUP, 6, 2, "Drawn"));
    m_scene->apply(other, command(MAP_CREATE_EDITABLE, 7, 6));
    QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, pixel(10, 10));
    QTest::keyClick(m_canvas.get(), Qt::Key_Escape);
    QVERIFY(m_canvas->isDrawing());
    for (const QPoint& place : {pixel(0, 0), pixel(40, 0), pixel(40, 30)})
        QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, place);
    QTest::keyClick(m_canvas.get(), Qt::Key_Return);
    QCOMPARE(takeTold(),
             QStringList({line(MAP_GROUP_DELETED, 4), line(MAP_POLYGON_DRAWN, 7, " 0,0 40,0 40,30")}));
}

void TstMapCanvas::manySelectedShapesAreDeleted()
{
    constexpr int STALL = 5000; // ms; what grows with the square would take minutes
    for (int i = 0; i < 10000; ++i)
        addRect(i % 100, 10, i % 100 + 1, 9);
    QElapsedTimer timer;
    timer.start();
    m_canvas->selectAll();
    m_canvas->eraseSelection();
    QCoreApplication::processEvents();
    QVERIFY2(timer.elapsed() < STALL, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(m_canvas->accessibleDescription(),
             QString("Tab selects an object, arrows shift the map, + and - zoom."));
}

void TstMapCanvas::accessibleWords()
{
    QCOMPARE(m_canvas->accessibleName(), QString("Map"));
    const int box = addRect(0, 20, 20, 0);
    m_scene->select({mapKey(m_client, box)});
    QCOMPARE(m_canvas->accessibleDescription(),
             QString("Object 10 is selected. Alt+arrows move it, Ctrl+arrows by a pixel."));
    addRect(0, 20, 20, 0);
    m_canvas->selectAll();
    QCOMPARE(m_canvas->accessibleDescription(), QString("2 objects are selected"));
}

void TstMapCanvas::manyShapesArePannedWithoutAStall()
{
    constexpr int SHAPES = 10000;
    constexpr int STALL = 1000; // ms; ten times what would be felt
    for (int i = 0; i < SHAPES; ++i) {
        const double x = -90 + i % 100 * 1.8;
        const double y = -45 + i / 100 * 0.9;
        if (i % 2)
            addRect(x, y + 0.6, x + 1.2, y);
        else
            addPolygon({QPointF(x, y), QPointF(x + 1, y + 0.3), QPointF(x, y + 0.6)});
    }
    m_canvas->resize(1200, 800);
    m_canvas->zoom(2);
    qint64 longest = 0;
    QElapsedTimer timer;
    timer.start();
    m_canvas->repaint();
    const qint64 whole = timer.nsecsElapsed();
    for (int i = 0; i < 50; ++i) {
        timer.start();
        m_canvas->shift(QPoint(i % 2 ? 9 : -12, i % 3 ? 5 : -7));
        m_canvas->repaint();
        longest = std::max(longest, timer.nsecsElapsed());
    }
    qInfo("painted whole in %.1f ms, the longest of 50 steps took %.1f ms", double(whole) / 1e6,
          double(longest) / 1e6);
    QVERIFY(longest < STALL * 1000000LL);
}

JED_TEST_MAIN(TstMapCanvas)
#include "tst_mapcanvas.moc"
