#pragma once

#include <velmogui/velmogui_export.h>

#include <QStringList>
#include <QWidget>

class QListWidget;
class QToolButton;

namespace VelmoGui {

/// A short list of texts that can be edited in place, with buttons to add and to remove. The Insert key adds, Delete
/// removes, F2 edits; cells of a spreadsheet are pasted behind the current entry, one entry each. GUI thread only.
class VELMOGUI_EXPORT TextList : public QWidget
{
    Q_OBJECT
public:
    explicit TextList(QWidget* parent = nullptr);

    QStringList texts() const;
    /// Emits nothing.
    void setTexts(const QStringList& texts);
    /// For screen readers: the list and its buttons.
    void setName(const QString& name);
    void setReadOnly(bool readOnly);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The user changed the list.
    void textsChanged();

private:
    void add();
    void paste();
    void removeCurrent();
    void appendItem(const QString& text);

    QListWidget* m_list;
    QToolButton* m_add;
    QToolButton* m_remove;
    bool m_isReadOnly = false;
};

} // namespace VelmoGui
