#pragma once

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace JedTest {

/// Style and colours that are the same everywhere, so that pictures can be compared.
inline void useColours(bool dark)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (!dark) {
        QApplication::setPalette(QApplication::style()->standardPalette());
        return;
    }
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::ToolTipBase, QColor(53, 53, 53));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
    QApplication::setPalette(palette);
}

} // namespace JedTest
