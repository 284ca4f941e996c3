#include "tracepane.h"

#include <QDateTime>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>
#include <zubase/errorhandler.h>

namespace {
constexpr int MAX_ROWS = 10000;
}

TracePane::TracePane(QWidget* parent)
    : QWidget(parent)
    , m_model(new QStandardItemModel(0, 3, this))
    , m_filter(new QSortFilterProxyModel(this))
    , m_view(new QTreeView(this))
{
    m_model->setHorizontalHeaderLabels({tr("Time (UTC)"), tr("Source"), tr("Message")});
    m_filter->setSourceModel(m_model);
    m_filter->setFilterKeyColumn(-1);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto* const filterEdit = new QLineEdit(this);
    filterEdit->setPlaceholderText(tr("Filter messages"));
    filterEdit->setAccessibleName(tr("Filter messages"));
    filterEdit->setClearButtonEnabled(true);
    connect(filterEdit, &QLineEdit::textChanged, m_filter, &QSortFilterProxyModel::setFilterFixedString);
    m_view->setModel(m_filter);
    m_view->setAccessibleName(tr("Traced messages"));
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(filterEdit);
    layout->addWidget(m_view);

    // Messages may come from any thread and while views are being painted: they are appended by the event loop.
    m_sink = ErrorHandler::Instance()->AddTraceSink([pane = QPointer<TracePane>(this)](
                                                        const TraceRecord& record) {
        const QString source = QStringLiteral("%1:%2").arg(record.sourceFile, QString::number(record.line));
        if (pane)
            QMetaObject::invokeMethod(
                pane, [pane, record, source] { pane->append(record.message, source); }, Qt::QueuedConnection);
    });
}

TracePane::~TracePane()
{
    ErrorHandler::Instance()->RemoveTraceSink(m_sink);
}

void TracePane::append(const QString& message, const QString& source)
{
    if (m_model->rowCount() >= MAX_ROWS)
        m_model->removeRow(0);
    const QString time = QDateTime::currentDateTimeUtc().toString(QStringLiteral("HH:mm:ss.zzz"));
    m_model->appendRow({new QStandardItem(time), new QStandardItem(source), new QStandardItem(message)});
    m_view->scrollToBottom();
}
