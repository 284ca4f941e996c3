#include <velmogui/iguicomponent.h>

namespace VelmoGui {

IGuiComponent::IGuiComponent() = default;

IGuiComponent::~IGuiComponent() = default;

QStringList IGuiComponent::GetParameterSets() const
{
    return QStringList();
}

QWidget* IGuiComponent::CreateWidget(const QString&, Node*, QWidget*)
{
    return nullptr;
}

} // namespace VelmoGui
