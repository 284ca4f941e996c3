#pragma once

#include "mapscene.h"
#include "viewport.h"

#include <QPixmap>
#include <QRegion>
#include <QWidget>

/// The map as one sees it, and what one does there with mouse and keyboard.
///
/// What is painted is kept: a shift of the map paints the strips that come into view, a change of a shape what lies
/// below it.
class MapCanvas : public QWidget
{
    Q_OBJECT
public:
    /// \param scene  must outlive the canvas
    MapCanvas(MapScene* scene, QWidget* parent);

    const Viewport& viewport() const { return m_view; }
    bool isDrawing() const { return m_drawing != 0; }

    void shift(const QPoint& pixels);
    void zoom(double factor);
    void showWorld();
    /// All that is drawn and visible.
    void showObjects();
    void showGroup(quint64 key);
    void selectAll();
    /// \return false, with nothing selected, behind the last one or before the first
    bool selectNext(bool forward);
    void eraseSelection();

signals:
    /// In degrees.
    void viewChanged(const QRectF& area);
    /// What the user may want to know now.
    void hint(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum Gesture { GESTURE_NONE, GESTURE_SHIFT, GESTURE_MOVE };

    void invalidate(const QRectF& degrees);
    void refresh();
    void viewHasChanged();
    void describeSelection();
    void paintMarks(QPainter* painter);

    MapKey groupAt(const QPoint& pixel) const;
    void click(const QPoint& pixel, bool adds);
    QPointF offsetInDegrees(const QPoint& pixels) const;

    void startDrawing();
    bool drawByKey(int key, const QPoint& direction, Qt::KeyboardModifiers modifiers);
    void addPoint(const QPointF& place);
    void finishDrawing();

    MapScene* m_scene; // Not owned.
    Viewport m_view;
    QPixmap m_picture; // The map without marks; right but for m_dirty.
    QRegion m_dirty;

    Gesture m_gesture = GESTURE_NONE;
    bool m_isDragged = false; // The mouse was moved far enough to mean it.
    QPoint m_pressed;
    QPoint m_last;

    MapKey m_drawing = 0; // The polygon that the user draws; 0: none.
    QPolygonF m_points;
    QPointF m_cross; // Degrees.
};
