#include <velmogui/parametersetcomponent.h>
#include <velmogui/parameterseteditor.h>

#include <QGuiApplication>
#include <QPainter>

namespace VelmoGui {

namespace {
constexpr int ICON_EXTENT = 24;

// White letters on a ground of medium brightness: legible on light and on dark windows.
QPixmap drawnIcon(const QString& letters, int hue)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap pixmap(QSize(ICON_EXTENT, ICON_EXTENT) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromHsv(hue, 170, 150));
    painter.drawRoundedRect(QRectF(1, 1, ICON_EXTENT - 2, ICON_EXTENT - 2), 5, 5);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(letters.size() > 1 ? 11 : 15);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(0, 0, ICON_EXTENT, ICON_EXTENT), Qt::AlignCenter, letters);
    return pixmap;
}
} // namespace

ParameterSetComponent::ParameterSetComponent(const QStringList& parameterSets, const QString& letters,
                                             int hue)
    : m_parameterSets(parameterSets)
    , m_letters(letters)
    , m_hue(hue)
{
}

const QPixmap* ParameterSetComponent::GetIcon() const
{
    // Pixmaps need an application with windows; tools load components without one.
    if (m_icon.isNull() && qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        m_icon = drawnIcon(m_letters, m_hue);
    return m_icon.isNull() ? nullptr : &m_icon;
}

QStringList ParameterSetComponent::GetParameterSets() const
{
    return m_parameterSets;
}

QWidget* ParameterSetComponent::CreateWidget(const QString& parameterSet, Node* values, QWidget* parent)
{
    return values && m_parameterSets.contains(parameterSet)
               ? new ParameterSetEditor(parameterSet, values, parent)
               : nullptr;
}

} // namespace VelmoGui
