#pragma once

#include <velmogui/iguicomponent.h>

#include <QPixmap>
#include <QStringList>

namespace VelmoGui {

/// A GUI component whose parameter sets are edited by a ParameterSetEditor each. GUI thread only.
class VELMOGUI_EXPORT ParameterSetComponent : public IGuiComponent
{
public:
    /// \param letters  one or two, drawn as the icon
    /// \param hue      of the icon, 0 to 359
    ParameterSetComponent(const QStringList& parameterSets, const QString& letters, int hue);

    const QPixmap* GetIcon() const override;
    QStringList GetParameterSets() const override;
    QWidget* CreateWidget(const QString& parameterSet, Node* values, QWidget* parent) override;

private:
    QStringList m_parameterSets;
    QString m_letters;
    int m_hue;
    mutable QPixmap m_icon; // Drawn when it is asked for first.
};

} // namespace VelmoGui
