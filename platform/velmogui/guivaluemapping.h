#pragma once

#include <velmogui/velmogui_export.h>

#include <QString>

class ValueBase;

namespace VelmoGui {

/// A parameter set of a GUI component and what holds its values in the value tree. A plain value.
class VELMOGUI_EXPORT GuiValueMapping
{
public:
    /// \param name   of the parameter set
    /// \param value  the node of the set, or its one value; not owned
    GuiValueMapping(const QString& name, ValueBase* value);

    const QString& GetName() const { return m_name; }
    ValueBase* GetValue() const { return m_value; }

private:
    QString m_name;
    ValueBase* m_value; // Not owned.
};

} // namespace VelmoGui
