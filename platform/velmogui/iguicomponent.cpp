#include <velmogui/iguicomponent.h>

namespace VelmoGui {

IGuiComponent::IGuiComponent() = default;

IGuiComponent::~IGuiComponent() = default;

} // namespace VelmoGui
