#pragma once

#include <QApplication>
#include <QMenu>
#include <QTimer>

#include <functional>

namespace JedTest {

/// Runs \p drive on the next menu that pops up, once the menu's own event loop runs; then closes the menu if it is
/// still open. Does nothing, and returns from the event loop, when no menu comes up within two seconds.
class PopupDriver : public QObject
{
public:
    explicit PopupDriver(std::function<void(QMenu*)> drive)
        : m_drive(std::move(drive))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
        m_timer.start(10);
    }

    /// How many menus were driven: 0 or 1.
    int menus() const { return m_menus; }

private:
    void look()
    {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu && --m_patience > 0)
            return;
        m_timer.stop();
        if (!menu)
            return;
        ++m_menus;
        m_drive(menu);
        menu->close();
    }

    std::function<void(QMenu*)> m_drive;
    QTimer m_timer;
    int m_patience = 200; // looks, 10 ms apart
    int m_menus = 0;
};

} // namespace JedTest
