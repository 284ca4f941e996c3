#pragma once

#include "jedvepb_export.h"

#include <QHeaderView>

namespace JEDVEPLUGIN {

/// Header with a check box in every section, which a press of any mouse button toggles. The state of section
/// \a i is the header data \a i of the model for Qt::CheckStateRole, checked only when its integer value
/// is 2. A press goes to the check box alone: it never sorts, moves or selects a section. GUI thread only.
class JEDVEPB_EXPORT CheckedHeaderView : public QHeaderView
{
    Q_OBJECT
public:
    /// \param parent  owner, may be null; the view that shows the header owns it anyway
    explicit CheckedHeaderView(Qt::Orientation orientation, QWidget* parent);

protected:
    /// The base's section with the check box centred in it, grey while the header is disabled.
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    /// Writes Qt::Checked (2) or Qt::Unchecked (0) with setHeaderData. Nothing while the header is disabled
    /// or beside the sections. A model that refuses keeps its state.
    void mousePressEvent(QMouseEvent* event) override;
    /// Size of an empty check box, 12 pixels wider; the section's text plays no part.
    QSize sectionSizeFromContents(int logicalIndex) const override;

private:
    bool isOn(int logicalIndex) const;
    QRect checkBoxRect(const QRect& sectionRect) const;
};

} // namespace JEDVEPLUGIN
