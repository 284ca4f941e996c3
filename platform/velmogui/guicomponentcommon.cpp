#include <velmogui/guicomponentcommon.h>

#include <values/tree.h>

namespace VelmoGui {

namespace {
const QLatin1Char SEPARATOR('/');

QString withSeparators(const QString& path)
{
    const QString begun = path.startsWith(SEPARATOR) ? path : SEPARATOR + path;
    return begun.endsWith(SEPARATOR) ? begun : begun + SEPARATOR;
}
} // namespace

GuiComponentCommon::GuiComponentCommon(const QString& path)
    : m_path(withSeparators(path))
{
}

GuiComponentCommon::~GuiComponentCommon() = default;

GuiValueMapping* GuiComponentCommon::GetParameterSet(const QString& name)
{
    ValueBase* const value = name.isEmpty() ? nullptr : Tree::Instance()->FindByPath(m_path + name);
    if (!value) {
        m_mappings.erase(name);
        return nullptr;
    }
    std::unique_ptr<GuiValueMapping>& mapping = m_mappings[name];
    if (!mapping || mapping->GetValue() != value)
        mapping = std::make_unique<GuiValueMapping>(name, value);
    return mapping.get();
}

} // namespace VelmoGui
