#pragma once

#include <quilappstartup/idllinstance.h>
#include <velmogui/velmogui_export.h>

#include <QStringList>

class Node;
class QPixmap;
class QWidget;

/// The framework of the GUI components.
namespace VelmoGui {

/// What a GUI component's library makes: the editor of one kind of receiver component. Made and released
/// through the CfgCenter. GUI thread only.
class VELMOGUI_EXPORT IGuiComponent : public IDllInstance
{
public:
    IGuiComponent();
    ~IGuiComponent() override;

    /// The component's picture, null if it has none. The component's.
    virtual const QPixmap* GetIcon() const = 0;
    /// The parameter sets that it has an editor for; none, unless a component overrides it.
    virtual QStringList GetParameterSets() const;
    /// Makes the editor of a parameter set.
    /// \param values  node of the set in the value tree; not owned
    /// \return the caller's, unless \p parent owns it; null for a set that the component has no editor for
    virtual QWidget* CreateWidget(const QString& parameterSet, Node* values, QWidget* parent);
};

} // namespace VelmoGui
