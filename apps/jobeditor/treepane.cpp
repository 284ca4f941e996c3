#include "treepane.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>
#include <session/jobsession.h>
#include <session/settingtreemodel.h>

using JEDVEPLUGIN::ISubSetting;
using Session::JobSession;
using Session::SettingTreeModel;

TreePane::TreePane(JobSession* session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_model(new SettingTreeModel(session, this))
    , m_filter(new QSortFilterProxyModel(this))
    , m_filterEdit(new QLineEdit(this))
    , m_view(new QTreeView(this))
{
    m_filter->setSourceModel(m_model);
    m_filter->setRecursiveFilteringEnabled(true);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filterEdit->setObjectName(QStringLiteral("settingFilter"));
    m_filterEdit->setPlaceholderText(tr("Filter settings"));
    m_filterEdit->setAccessibleName(tr("Filter settings"));
    m_filterEdit->setClearButtonEnabled(true);
    connect(m_filterEdit, &QLineEdit::textChanged, m_filter, &QSortFilterProxyModel::setFilterFixedString);

    m_view->setObjectName(QStringLiteral("settingTree"));
    m_view->setAccessibleName(tr("Settings of the job"));
    m_view->setModel(m_filter);
    m_view->setHeaderHidden(true);
    m_view->setUniformRowHeights(true);
    setFocusProxy(m_view);
    m_view->setDragDropMode(QAbstractItemView::DragDrop);
    m_view->setDefaultDropAction(Qt::MoveAction);
    m_view->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &TreePane::showRowMenu);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &TreePane::currentChanged);
    connect(m_filter, &QAbstractItemModel::modelReset, m_view, &QTreeView::expandAll);
    connect(m_filter, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& parent, int first, int last) {
                for (int row = first; row <= last; ++row)
                    m_view->expandRecursively(m_filter->index(row, 0, parent));
            });

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_filterEdit);
    layout->addWidget(m_view);
}

ISubSetting* TreePane::currentSetting() const
{
    return m_model->settingOf(m_filter->mapToSource(m_view->currentIndex()));
}

int TreePane::currentUnclaimed() const
{
    const QModelIndex index = m_filter->mapToSource(m_view->currentIndex());
    return index.isValid() && !m_model->settingOf(index) ? index.row() : -1;
}

void TreePane::setCurrentSetting(ISubSetting* setting)
{
    select(m_model->indexOf(setting));
}

void TreePane::setCurrentSubjob(int subjob)
{
    select(m_model->index(subjob, 0));
}

void TreePane::focusFilter()
{
    m_filterEdit->setFocus(Qt::ShortcutFocusReason);
    m_filterEdit->selectAll();
}

void TreePane::editName()
{
    m_view->edit(m_view->currentIndex());
}

void TreePane::showRowMenu(const QPoint& position)
{
    if (m_rowMenu)
        m_rowMenu->popup(m_view->viewport()->mapToGlobal(position));
}

void TreePane::select(const QModelIndex& sourceIndex)
{
    if (sourceIndex.isValid() && !m_filter->mapFromSource(sourceIndex).isValid())
        m_filterEdit->clear();
    const QModelIndex index = m_filter->mapFromSource(sourceIndex);
    m_view->setCurrentIndex(index);
    m_view->expand(index.parent());
    m_view->scrollTo(index);
}
