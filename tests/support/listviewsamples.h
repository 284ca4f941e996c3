#pragma once

#include "frequencylistview.h"

#include <support/testmain.h>

#include <QAbstractItemModelTester>
#include <QStandardItemModel>
#include <QStringList>

#include <utility>

/// Remembers which rows it was told to remove.
class SampleListModel : public QStandardItemModel
{
public:
    SampleListModel(int rows, int columns)
        : QStandardItemModel(rows, columns)
    {
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column)
                setItem(row, column, new QStandardItem(QString("%1.%2").arg(row).arg(column)));
        }
    }
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override
    {
        const QString under = parent.isValid() ? " under " + parent.data().toString() : QString();
        m_removed << QString("%1,%2%3").arg(row).arg(count).arg(under);
        return QStandardItemModel::removeRows(row, count, parent);
    }

    QStringList m_removed;
};

/// Opens what the view keeps to itself, and tells what it is asked to do.
class OpenListView : public JEDVEPLUGIN::FrequencyListView
{
public:
    using FrequencyListView::FrequencyListView;
    using FrequencyListView::layoutAboutToChange;
    using FrequencyListView::layoutChanged;
    using FrequencyListView::sizeHintForColumn;
    using FrequencyListView::slotHeaderContextMenu;

    void scrollTo(const QModelIndex& index, ScrollHint hint) override
    {
        m_scrolled << QString("%1:%2").arg(index.row()).arg(hint);
        FrequencyListView::scrollTo(index, hint);
    }

    QStringList m_scrolled;
};

/// The signals of a view in the order of their emission.
class ListViewSignals : public QObject
{
public:
    explicit ListViewSignals(JEDVEPLUGIN::FrequencyListView* view)
    {
        using JEDVEPLUGIN::FrequencyListView;
        connect(view, &FrequencyListView::si_currentFrequencyChanged, this,
                [this](int current, int previous) {
                    m_log << QString("current %1 %2").arg(current).arg(previous);
                });
        connect(view, &FrequencyListView::si_dataChanged, this, [this] { m_log << "data"; });
        connect(view, &FrequencyListView::si_rootIndexChanged, this, [this](const QModelIndex& index) {
            m_log << "root " + (index.isValid() ? index.data().toString() : QString("none"));
        });
    }
    QString take() { return std::exchange(m_log, QStringList()).join(", "); }

private:
    QStringList m_log;
};

/// A list view of eight rows and three columns on the screen, nothing selected, the first row current.
class ListViewFixture
{
public:
    /// \return false if the window does not come up
    bool open()
    {
        m_model = std::make_unique<SampleListModel>(8, 3);
        m_model->setHorizontalHeaderLabels({"Frequency", "Name", "Mode"});
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        m_view = std::make_unique<OpenListView>(nullptr, true, true);
        m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        m_view->setModel(m_model.get());
        m_view->resize(400, 300);
        m_view->show();
        const bool exposed = QTest::qWaitForWindowExposed(m_view.get());
        m_signals = std::make_unique<ListViewSignals>(m_view.get());
        m_view->m_scrolled.clear();
        return exposed;
    }

    void close()
    {
        m_signals.reset();
        m_view.reset();
        m_tester.reset();
        m_model.reset();
    }

    std::unique_ptr<SampleListModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<OpenListView> m_view;
    std::unique_ptr<ListViewSignals> m_signals;
};
