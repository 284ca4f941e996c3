#pragma once

#include <QObject>

class QAbstractItemView;

/// What people are used to from spreadsheets, for the tables in the editors of plug-ins: cells of a spreadsheet are
/// pasted from the current cell on, into rows that are there and as far as they can be edited; a value that is typed
/// while several cells of a column are selected goes into all of them. GUI thread only.
class TableEditing : public QObject
{
    Q_OBJECT
public:
    /// Makes all item views below a widget do so, once each. Views without cells that can be edited are as before.
    static void install(QWidget* editor);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit TableEditing(QAbstractItemView* view);
    bool paste();
    void fillColumn(QWidget* editor);

    QAbstractItemView* m_view; // The parent.
};
