#pragma once

#include <QWidget>

class QSortFilterProxyModel;
class QStandardItemModel;
class QTreeView;

/// What the library and the plug-ins have traced since the start, newest below. Times are UTC.
class TracePane : public QWidget
{
    Q_OBJECT
public:
    explicit TracePane(QWidget* parent = nullptr);
    ~TracePane() override;

private:
    void append(const QString& message, const QString& source);

    QStandardItemModel* m_model;
    QSortFilterProxyModel* m_filter;
    QTreeView* m_view;
    int m_sink = 0;
};
