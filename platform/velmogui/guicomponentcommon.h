#pragma once

#include <velmogui/guivaluemapping.h>

#include <QString>

#include <map>
#include <memory>

namespace VelmoGui {

/// A GUI component's place in the value tree: its parameter sets are the nodes there. GUI thread only.
class VELMOGUI_EXPORT GuiComponentCommon
{
public:
    /// \param path  of the component's node; a "/" that is missing at its beginning or end is added
    explicit GuiComponentCommon(const QString& path);
    virtual ~GuiComponentCommon();

    /// Begins and ends with "/".
    const QString& GetPath() const { return m_path; }
    /// Looks for the parameter set in the value tree as it is now.
    /// \return null if there is none of that name; the component's, valid until the next call with this name
    GuiValueMapping* GetParameterSet(const QString& name);

private:
    Q_DISABLE_COPY(GuiComponentCommon)

    QString m_path;
    std::map<QString, std::unique_ptr<GuiValueMapping>> m_mappings; // By name.
};

} // namespace VelmoGui
