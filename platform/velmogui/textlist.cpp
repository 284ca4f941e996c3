#include <velmogui/spreadsheetrows.h>
#include <velmogui/textlist.h>

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace VelmoGui {

namespace {
constexpr int VISIBLE_ROWS = 4;
}

TextList::TextList(QWidget* parent)
    : QWidget(parent)
    , m_list(new QListWidget(this))
    , m_add(new QToolButton(this))
    , m_remove(new QToolButton(this))
{
    m_add->setText(QStringLiteral("+"));
    m_remove->setText(QStringLiteral("\u2212"));
    m_add->setToolTip(tr("Add an entry (Insert)"));
    m_remove->setToolTip(tr("Remove the entry (Delete)"));
    m_list->setMaximumHeight(m_list->fontMetrics().height() * (VISIBLE_ROWS + 1));
    connect(m_add, &QToolButton::clicked, this, &TextList::add);
    connect(m_remove, &QToolButton::clicked, this, &TextList::removeCurrent);
    connect(m_list, &QListWidget::itemChanged, this, &TextList::textsChanged);
    m_list->installEventFilter(this);
    setReadOnly(false);
    auto* const buttons = new QVBoxLayout;
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    layout->addLayout(buttons);
    setFocusProxy(m_list);
}

QStringList TextList::texts() const
{
    QStringList result;
    for (int row = 0; row < m_list->count(); ++row)
        result.append(m_list->item(row)->text());
    return result;
}

void TextList::setTexts(const QStringList& texts)
{
    const QSignalBlocker blocker(m_list);
    const int row = m_list->currentRow();
    m_list->clear();
    for (const QString& text : texts)
        appendItem(text);
    m_list->setCurrentRow(qMin(row, m_list->count() - 1));
}

void TextList::setName(const QString& name)
{
    m_list->setAccessibleName(name);
    m_add->setAccessibleName(tr("%1: add an entry").arg(name));
    m_remove->setAccessibleName(tr("%1: remove the entry").arg(name));
}

void TextList::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    m_list->setEditTriggers(readOnly ? QAbstractItemView::NoEditTriggers
                                     : QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_add->setDisabled(readOnly);
    m_remove->setDisabled(readOnly);
}

bool TextList::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress;
    const int key = isKey ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (m_isReadOnly)
        return QWidget::eventFilter(watched, event);
    if (key == Qt::Key_Insert)
        add();
    else if (key == Qt::Key_Delete)
        removeCurrent();
    else if (isKey && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste))
        paste();
    else
        return QWidget::eventFilter(watched, event);
    return true;
}

void TextList::add()
{
    {
        const QSignalBlocker blocker(m_list);
        appendItem(QString());
    }
    m_list->setCurrentRow(m_list->count() - 1);
    m_list->editItem(m_list->currentItem());
}

void TextList::paste()
{
    QStringList pasted;
    for (const QStringList& row : spreadsheetRows(QApplication::clipboard()->text()))
        pasted += row;
    pasted.removeAll(QString());
    if (pasted.isEmpty())
        return;
    const int place = m_list->currentRow() < 0 ? m_list->count() : m_list->currentRow() + 1;
    const QStringList present = texts();
    setTexts(present.mid(0, place) + pasted + present.mid(place));
    m_list->setCurrentRow(place + pasted.size() - 1);
    emit textsChanged();
}

void TextList::removeCurrent()
{
    if (m_list->currentRow() < 0)
        return;
    delete m_list->takeItem(m_list->currentRow());
    emit textsChanged();
}

void TextList::appendItem(const QString& text)
{
    auto* const item = new QListWidgetItem(text, m_list);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
}

} // namespace VelmoGui
