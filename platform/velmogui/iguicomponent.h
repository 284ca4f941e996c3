#pragma once

#include <quilappstartup/idllinstance.h>
#include <velmogui/velmogui_export.h>

class QPixmap;

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
};

} // namespace VelmoGui
