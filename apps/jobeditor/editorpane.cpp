#include "editorpane.h"

#include "tableediting.h"

#include <isubsetting.h>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {
constexpr int ICON_SIZE = 24;
}

EditorPane::EditorPane(QWidget* parent)
    : QWidget(parent)
    , m_icon(new QLabel(this))
    , m_title(new QLabel(this))
    , m_text(new QLabel(this))
    , m_stack(new QStackedWidget(this))
{
    QFont font = m_title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    m_title->setFont(font);
    m_title->setTextFormat(Qt::PlainText);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_stack->addWidget(m_text);

    auto* const head = new QHBoxLayout;
    head->addWidget(m_icon);
    head->addWidget(m_title, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 0, 0, 0);
    layout->addLayout(head);
    layout->addWidget(m_stack, 1);
}

void EditorPane::show(JEDVEPLUGIN::ISubSetting* setting, const QString& text)
{
    const QPixmap* const pixmap = setting ? setting->getPixmap() : nullptr;
    // An icon knows how many pixels the screen has for it.
    m_icon->setPixmap(pixmap ? QIcon(*pixmap).pixmap(ICON_SIZE) : QPixmap());
    m_icon->setVisible(pixmap != nullptr);
    m_title->setText(setting ? setting->getDisplayName() : QString());
    QWidget* const widget = setting ? setting->getWidget() : nullptr;
    if (!widget) {
        m_text->setText(setting ? tr("This setting has nothing to edit.") : text);
        m_stack->setCurrentWidget(m_text);
        return;
    }
    if (m_stack->indexOf(widget) < 0)
        m_stack->addWidget(widget);
    TableEditing::install(widget);
    m_stack->setCurrentWidget(widget);
}

void EditorPane::clear()
{
    while (m_stack->count() > 1) {
        QWidget* const widget = m_stack->widget(1);
        m_stack->removeWidget(widget);
        widget->setParent(nullptr);
    }
    show(nullptr, QString());
}
