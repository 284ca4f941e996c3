#pragma once

#include "jedvepb_export.h"

#include <QtCore/QObject>

class QLineEdit;
class QWidget;

namespace JEDVEPLUGIN {

/// Shows the whole text of a line edit as its tool tip while the text is wider than the field. One adapter serves any
/// number of line edits; they are not remembered, and one that is deleted needs no notice. Not for
/// passwords: the text is shown as it is. GUI thread only.
class JEDVEPB_EXPORT LineEditTooltipAdapter : public QObject
{
    Q_OBJECT
public:
    /// \param parent  owner, may be null
    explicit LineEditTooltipAdapter(QObject* parent);

    /// Null is ignored.
    void addLineEdit(QLineEdit* edit);
    /// The line edit shows its own tool tip again. Null is ignored.
    void removeLineEdit(QLineEdit* edit);
    /// Adds the widget, if it is a line edit, and every line edit below it; those inside spin boxes and editable
    /// combo boxes, too. Line edits that come later are not added. Null is ignored.
    void addAllLineEdits(QWidget* widget);

    /// Answers the request for a tool tip: with the text if it is wider than the widget, otherwise with the line edit's
    /// own tool tip, of which an empty one shows nothing.
    /// \return true for the tool tip of a line edit, false for all else, which goes on as usual
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace JEDVEPLUGIN
