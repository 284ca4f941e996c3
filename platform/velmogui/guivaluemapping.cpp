#include <velmogui/guivaluemapping.h>

namespace VelmoGui {

GuiValueMapping::GuiValueMapping(const QString& name, ValueBase* value)
    : m_name(name)
    , m_value(value)
{
}

} // namespace VelmoGui
