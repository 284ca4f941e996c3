#pragma once

#include <QListView>
#include <session/frequencyaxis.h>

namespace Session {
class FrequencyModel;
}

/// The frequencies of a job along an axis: a band for each sub-job, with a bar for each range that it works at and below
/// them, hatched, what its receiver covers; what could not be told stands there as a sentence.
///
/// Arrow keys go from bar to bar, Home and End to the first and the last, Page Up and Page Down from sub-job to sub-job;
/// Return or a click chooses. Plus, minus and Ctrl with the wheel zoom, 0 shows all. For screen readers it is the list of
/// its model.
class FrequencyStrip : public QListView
{
    Q_OBJECT
public:
    /// \param model  not owned, outlives the strip
    explicit FrequencyStrip(Session::FrequencyModel* model, QWidget* parent = nullptr);

    bool isLogarithmic() const { return m_axis.isLogarithmic(); }
    /// How many times longer than the window the axis is; 1 shows all.
    double zoom() const { return m_zoom; }

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint& point) const override;
    void doItemsLayout() override;
    void reset() override;
    QSize minimumSizeHint() const override;

public slots:
    void setLogarithmic(bool isLogarithmic);
    void zoomIn();
    void zoomOut();
    void showAll();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void updateGeometries() override;
    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                     const QVector<int>& roles = QVector<int>()) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;

private:
    // Where a row of the model is drawn, from the top of the first band.
    struct Place
    {
        int top = 0;
        int height = 0;
    };
    struct Band
    {
        int top = 0;
        int height = 0;
    };

    int placeBars(int first, int end, int top);
    int axisHeight() const;
    QRect plot() const;
    double contentWidth() const;
    double xOf(double frequency) const;
    double unitAt(double x) const;
    QRectF barOf(int row) const;
    void setZoom(double zoom, double x);
    QModelIndex vertical(bool isUp) const;
    QModelIndex firstOf(int subjob) const;
    void paintBands(QPainter* painter) const;
    void paintItem(QPainter* painter, int row) const;
    void paintBar(QPainter* painter, int row, const QRectF& bar) const;
    void paintLabels(QPainter* painter) const;
    void paintAxis(QPainter* painter, const QVector<qint64>& ticks) const;

    Session::FrequencyModel* m_model; // Not owned.
    Session::FrequencyAxis m_axis;
    QVector<Place> m_places; // By row.
    QVector<Band> m_bands;   // By sub-job.
    int m_labelWidth = 0;
    int m_height = 0; // Of all bands.
    double m_zoom = 1;
};
