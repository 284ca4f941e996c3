#include "frequencystrip.h"

#include <algorithm>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QtMath>
#include <session/frequencymodel.h>

using Session::FrequencyModel;

namespace {
constexpr int GAP = 4;
constexpr int TICK = 4;
constexpr int MOST_LABEL_WIDTH = 180;
constexpr int LEAST_PLOT_WIDTH = 160;
constexpr double LEAST_BAR = 3; // Pixels, so that a single frequency is seen.
constexpr double ZOOM_STEP = 1.5;
constexpr double MOST_CONTENT = 1e9; // Pixels; scroll bars count in int.

QColor blended(const QColor& front, const QColor& back, double share)
{
    return QColor::fromRgbF(front.redF() * share + back.redF() * (1 - share),
                            front.greenF() * share + back.greenF() * (1 - share),
                            front.blueF() * share + back.blueF() * (1 - share));
}
} // namespace

FrequencyStrip::FrequencyStrip(FrequencyModel* model, QWidget* parent)
    : QListView(parent)
    , m_model(model)
{
    setObjectName(QStringLiteral("frequencies"));
    setAccessibleName(tr("Frequencies of the job"));
    setWhatsThis(
        tr("Each sub-job has a band. Its bars are the frequencies that it works at; the hatched bars "
           "below them are what its receiver covers."));
    setModel(model);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setMouseTracking(true);
}

QRect FrequencyStrip::visualRect(const QModelIndex& index) const
{
    return index.isValid() && index.row() < m_places.size() ? barOf(index.row()).toAlignedRect() : QRect();
}

void FrequencyStrip::scrollTo(const QModelIndex& index, ScrollHint)
{
    if (!index.isValid() || index.row() >= m_places.size())
        return;
    const QRect area = plot();
    const QRectF bar = barOf(index.row());
    if (bar.top() < area.top())
        verticalScrollBar()->setValue(verticalOffset() + qFloor(bar.top()) - area.top() - GAP);
    else if (bar.bottom() > area.bottom())
        verticalScrollBar()->setValue(verticalOffset() + qCeil(bar.bottom()) - area.bottom() + GAP);
    if (bar.right() < area.left() || bar.left() > area.right())
        horizontalScrollBar()->setValue(horizontalOffset() + qRound(bar.center().x() - area.center().x()));
}

QModelIndex FrequencyStrip::indexAt(const QPoint& point) const
{
    const QRect area = plot();
    if (point.y() < area.top())
        return QModelIndex();
    // A name stands for its sub-job.
    for (int subjob = 0; point.x() < area.left() && subjob < m_bands.size(); ++subjob) {
        const int top = area.top() + m_bands.at(subjob).top - verticalOffset();
        if (point.y() >= top && point.y() < top + m_bands.at(subjob).height)
            return firstOf(subjob);
    }
    for (int row = m_places.size() - 1; row >= 0 && point.x() >= area.left(); --row) {
        if (barOf(row).adjusted(-1, -1, 1, 1).contains(point))
            return m_model->index(row);
    }
    return QModelIndex();
}

void FrequencyStrip::doItemsLayout()
{
    m_places.fill(Place(), m_model->rowCount());
    m_bands.clear();
    m_labelWidth = 0;
    qint64 lowest = 0;
    qint64 highest = -1;
    int top = 0;
    int row = 0;
    for (int subjob = 0; subjob < m_model->subjobCount(); ++subjob) {
        m_labelWidth = qMax(m_labelWidth, fontMetrics().horizontalAdvance(m_model->subjobName(subjob)));
        const int first = row;
        while (row < m_places.size() && m_model->item(row).subjob == subjob) {
            const FrequencyModel::Item& item = m_model->item(row++);
            if (item.kind == FrequencyModel::UNTOLD)
                continue;
            lowest = highest < 0 ? item.range.from : qMin(lowest, item.range.from);
            highest = qMax(highest, item.range.to);
        }
        const int bottom = qMax(placeBars(first, row, top + GAP), top + GAP + fontMetrics().height()) + GAP;
        m_bands.append({top, bottom - top});
        top = bottom;
    }
    m_height = top;
    m_labelWidth = qMin(m_labelWidth + 1, MOST_LABEL_WIDTH) + 2 * GAP; // Widths are rounded.
    m_axis.setRange(lowest, qMax(lowest, highest));
    QAbstractItemView::doItemsLayout();
}

void FrequencyStrip::reset()
{
    QListView::reset();
    m_places.clear();
    scheduleDelayedItemsLayout();
}

QSize FrequencyStrip::minimumSizeHint() const
{
    return QSize(MOST_LABEL_WIDTH + LEAST_PLOT_WIDTH, axisHeight() + 3 * fontMetrics().height());
}

void FrequencyStrip::setLogarithmic(bool isLogarithmic)
{
    m_axis.setLogarithmic(isLogarithmic);
    showAll();
}

void FrequencyStrip::zoomIn()
{
    setZoom(m_zoom * ZOOM_STEP, plot().center().x());
}

void FrequencyStrip::zoomOut()
{
    setZoom(m_zoom / ZOOM_STEP, plot().center().x());
}

void FrequencyStrip::showAll()
{
    setZoom(1, plot().center().x());
}

void FrequencyStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    const QRect area = plot();
    painter.fillRect(viewport()->rect(), palette().base());
    paintBands(&painter);
    const int most = area.width() / (fontMetrics().horizontalAdvance(QStringLiteral("000 MHz")) + 3 * GAP);
    const QVector<qint64> ticks = m_axis.ticks(unitAt(area.left()), unitAt(area.right()), most);
    painter.setClipRect(area);
    painter.setPen(blended(palette().color(QPalette::Text), palette().color(QPalette::Base), 0.15));
    for (const qint64 tick : ticks)
        painter.drawLine(QLineF(xOf(tick), area.top(), xOf(tick), area.bottom()));
    for (int row = 0; row < m_places.size(); ++row)
        paintItem(&painter, row);
    painter.setClipping(false);
    paintLabels(&painter);
    paintAxis(&painter, ticks);
}

void FrequencyStrip::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_0:
        return showAll();
    default:
        QListView::keyPressEvent(event);
    }
}

void FrequencyStrip::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier))
        return QListView::wheelEvent(event);
    setZoom(m_zoom * qPow(ZOOM_STEP, event->angleDelta().y() / 120.0), event->position().x());
    event->accept();
}

void FrequencyStrip::showEvent(QShowEvent* event)
{
    m_model->setWatched(true);
    QListView::showEvent(event);
}

void FrequencyStrip::hideEvent(QHideEvent* event)
{
    m_model->setWatched(false);
    QListView::hideEvent(event);
}

void FrequencyStrip::updateGeometries()
{
    QAbstractItemView::updateGeometries();
    const QRect area = plot();
    verticalScrollBar()->setPageStep(area.height());
    verticalScrollBar()->setSingleStep(fontMetrics().height());
    verticalScrollBar()->setRange(0, qMax(0, m_height - area.height()));
    horizontalScrollBar()->setPageStep(area.width());
    horizontalScrollBar()->setSingleStep(area.width() / 20);
    horizontalScrollBar()->setRange(0, qMax(0, qRound(contentWidth()) - area.width()));
}

void FrequencyStrip::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                 const QVector<int>& roles)
{
    QListView::dataChanged(topLeft, bottomRight, roles);
    doItemsLayout();
}

QModelIndex FrequencyStrip::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int last = m_model->rowCount() - 1;
    const QModelIndex current = currentIndex();
    if (last < 0 || !current.isValid())
        return m_model->index(0);
    const int subjob = m_model->item(current.row()).subjob;
    switch (action) {
    case MoveUp:
    case MoveDown:
        return vertical(action == MoveUp);
    case MoveHome:
        return m_model->index(0);
    case MoveEnd:
        return m_model->index(last);
    case MovePageUp:
        return firstOf(qMax(0, subjob - 1));
    case MovePageDown:
        return firstOf(qMin(m_model->subjobCount() - 1, subjob + 1));
    case MoveLeft:
    case MovePrevious:
        return m_model->index(qMax(0, current.row() - 1));
    case MoveRight:
    case MoveNext:
        return m_model->index(qMin(last, current.row() + 1));
    }
    return current;
}

int FrequencyStrip::horizontalOffset() const
{
    return horizontalScrollBar()->value();
}

int FrequencyStrip::verticalOffset() const
{
    return verticalScrollBar()->value();
}

void FrequencyStrip::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    const QModelIndex index = indexAt(rect.center());
    selectionModel()->select(QItemSelection(index, index), command);
}

QRegion FrequencyStrip::visualRegionForSelection(const QItemSelection& selection) const
{
    QRegion region;
    for (const QModelIndex& index : selection.indexes())
        region += visualRect(index).adjusted(-2, -2, 2, 2);
    return region;
}

// Bars that overlap get lanes below each other. Returns where the next thing goes.
int FrequencyStrip::placeBars(int first, int end, int top)
{
    const int barHeight = fontMetrics().height() + 2;
    const int coverHeight = fontMetrics().height() / 2;
    QVector<qint64> laneEnds;
    int row = first;
    for (; row < end && m_model->item(row).kind == FrequencyModel::USED; ++row) {
        const Session::FrequencyRange& range = m_model->item(row).range;
        int lane = 0;
        while (lane < laneEnds.size() && laneEnds.at(lane) >= range.from)
            ++lane;
        if (lane == laneEnds.size())
            laneEnds.append(range.to);
        laneEnds[lane] = range.to;
        m_places[row] = {top + lane * (barHeight + 2), barHeight};
    }
    top += laneEnds.size() * (barHeight + 2);
    bool isCovered = false;
    for (; row < end && m_model->item(row).kind == FrequencyModel::COVERED; ++row) {
        m_places[row] = {top, coverHeight};
        isCovered = true;
    }
    top += isCovered ? coverHeight + 2 : 0;
    for (; row < end; ++row) {
        m_places[row] = {top, fontMetrics().height()};
        top += fontMetrics().height();
    }
    return top;
}

int FrequencyStrip::axisHeight() const
{
    return fontMetrics().height() + TICK + 2;
}

// Where the bars are drawn.
QRect FrequencyStrip::plot() const
{
    return viewport()->rect().adjusted(m_labelWidth, axisHeight(), 0, 0);
}

double FrequencyStrip::contentWidth() const
{
    return plot().width() * m_zoom;
}

double FrequencyStrip::xOf(double frequency) const
{
    return plot().left() + m_axis.unitOf(frequency) * contentWidth() - horizontalOffset();
}

double FrequencyStrip::unitAt(double x) const
{
    return (x - plot().left() + horizontalOffset()) / qMax(1.0, contentWidth());
}

QRectF FrequencyStrip::barOf(int row) const
{
    const FrequencyModel::Item& item = m_model->item(row);
    const QRect area = plot();
    const double top = area.top() + m_places.at(row).top - verticalOffset();
    if (item.kind == FrequencyModel::UNTOLD)
        return QRectF(area.left() + GAP, top, area.width() - 2 * GAP, m_places.at(row).height);
    const double left = xOf(double(item.range.from));
    const double right = xOf(double(item.range.to));
    const double width = qMax(LEAST_BAR, right - left);
    return QRectF((left + right - width) / 2, top, width, m_places.at(row).height);
}

// What stands at x stays there.
void FrequencyStrip::setZoom(double zoom, double x)
{
    const double unit = unitAt(x);
    m_zoom = qBound(1.0, zoom, MOST_CONTENT / qMax(1, plot().width()));
    updateGeometries();
    horizontalScrollBar()->setValue(qRound(unit * contentWidth() - (x - plot().left())));
    viewport()->update();
}

// The nearest bar above or below.
QModelIndex FrequencyStrip::vertical(bool isUp) const
{
    const QRectF from = barOf(currentIndex().row());
    int nearest = currentIndex().row();
    double leastDistance = -1;
    for (int row = 0; row < m_places.size(); ++row) {
        const QRectF bar = barOf(row);
        const double down = isUp ? from.top() - bar.bottom() : bar.top() - from.bottom();
        const double aside = qMax(0.0, qMax(bar.left() - from.right(), from.left() - bar.right()));
        // Beside counts only among those of one lane.
        const double distance = down * MOST_CONTENT + aside;
        if (down >= 0 && (leastDistance < 0 || distance < leastDistance)) {
            leastDistance = distance;
            nearest = row;
        }
    }
    return m_model->index(nearest);
}

QModelIndex FrequencyStrip::firstOf(int subjob) const
{
    for (int row = 0; row < m_places.size(); ++row) {
        if (m_model->item(row).subjob == subjob)
            return m_model->index(row);
    }
    return QModelIndex();
}

void FrequencyStrip::paintBands(QPainter* painter) const
{
    const QRect area = plot();
    for (int subjob = 1; subjob < m_bands.size(); subjob += 2) {
        const Band& band = m_bands.at(subjob);
        painter->fillRect(0, area.top() + band.top - verticalOffset(), viewport()->width(), band.height,
                          palette().alternateBase());
    }
}

void FrequencyStrip::paintItem(QPainter* painter, int row) const
{
    const QRectF area = plot().adjusted(-2, 0, 2, 0);
    const QRectF bar = barOf(row);
    if (!bar.intersects(area))
        return;
    if (m_model->item(row).kind == FrequencyModel::UNTOLD) {
        painter->setPen(palette().color(QPalette::Text));
        painter->drawText(
            bar, Qt::AlignLeft | Qt::AlignVCenter,
            fontMetrics().elidedText(m_model->item(row).sentence, Qt::ElideRight, int(bar.width())));
    } else {
        // Painters do not like bars of a million pixels.
        paintBar(painter, row, bar.intersected(area));
    }
    if (currentIndex().row() != row || !hasFocus())
        return;
    painter->setPen(QPen(palette().color(QPalette::Text), 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(bar.intersected(area).adjusted(-1, -1, 1, 1));
}

void FrequencyStrip::paintBar(QPainter* painter, int row, const QRectF& bar) const
{
    const FrequencyModel::Item& item = m_model->item(row);
    const QColor text = palette().color(QPalette::Text);
    const QColor base = palette().color(QPalette::Base);
    painter->setPen(blended(text, base, 0.6));
    if (item.kind == FrequencyModel::COVERED) {
        painter->setBrush(QBrush(blended(text, base, 0.6), Qt::BDiagPattern));
        painter->drawRect(bar);
        return;
    }
    painter->setBrush(palette().highlight());
    painter->drawRect(bar);
    const QString name = item.range.name.isEmpty() ? item.range.source : item.range.name;
    const QRectF inner = bar.adjusted(GAP, 0, -GAP, 0);
    painter->setPen(palette().color(QPalette::HighlightedText));
    if (inner.width() >= fontMetrics().horizontalAdvance(QStringLiteral("MMM")))
        painter->drawText(inner, Qt::AlignCenter,
                          fontMetrics().elidedText(name, Qt::ElideRight, int(inner.width())));
}

// The names of the sub-jobs, over whatever was scrolled below them.
void FrequencyStrip::paintLabels(QPainter* painter) const
{
    const QRect area = plot();
    for (int subjob = 0; subjob < m_bands.size(); ++subjob) {
        const Band& band = m_bands.at(subjob);
        const QRect box(0, area.top() + band.top - verticalOffset(), m_labelWidth, band.height);
        painter->setPen(palette().color(QPalette::Text));
        painter->drawText(
            box.adjusted(GAP, GAP, -GAP, -GAP), Qt::AlignLeft | Qt::AlignTop,
            fontMetrics().elidedText(m_model->subjobName(subjob), Qt::ElideRight, m_labelWidth - 2 * GAP));
    }
    painter->setPen(blended(palette().color(QPalette::Text), palette().color(QPalette::Base), 0.4));
    painter->drawLine(area.left() - 1, area.top(), area.left() - 1, area.bottom());
}

void FrequencyStrip::paintAxis(QPainter* painter, const QVector<qint64>& ticks) const
{
    const QRect area = plot();
    painter->fillRect(0, 0, viewport()->width(), area.top(), palette().window());
    painter->setPen(palette().color(QPalette::WindowText));
    painter->drawLine(area.left(), area.top() - 1, area.right(), area.top() - 1);
    int free = area.left();
    for (const qint64 tick : ticks) {
        const double x = xOf(double(tick));
        painter->drawLine(QLineF(x, area.top() - TICK, x, area.top() - 1));
        const QString text = Session::frequencyText(tick);
        const int width = fontMetrics().horizontalAdvance(text);
        const int left = qBound(area.left(), qRound(x) - width / 2, area.right() - width);
        if (left < free)
            continue;
        painter->drawText(QRect(left, 0, width + 1, area.top() - TICK), Qt::AlignCenter, text);
        free = left + width + 2 * GAP;
    }
}
