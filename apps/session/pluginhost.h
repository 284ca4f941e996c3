#pragma once

#include <memory>
#include <QList>
#include <QString>
#include <QStringList>
#include <quilappstartup/libraryexaminer.h>
#include <vector>

namespace JEDVEPLUGIN {
class JEDAbstractSubSettingFactory;
class JEDSubSettingFactory;
} // namespace JEDVEPLUGIN

namespace Session {

/// The plug-ins of the editor and the tools: finds them in folders, looks at each file before any of its code runs,
/// and makes their factories. A plug-in that cannot be used is told with the reason; the others go on. GUI thread
/// only.
class PluginHost
{
public:
    /// A file of the plug-in folders.
    struct Plugin
    {
        LibraryReport report; ///< what was found, and the verdict
        std::unique_ptr<JEDVEPLUGIN::JEDAbstractSubSettingFactory> factory; ///< null if it is not used
    };

    PluginHost();
    /// Deletes the factories, the last one first.
    ~PluginHost();

    /// The folders in which plug-ins are looked for: "PluginFolder" of the installation's section "Administration",
    /// then the one that belongs to the running program.
    static QStringList defaultFolders();

    /// Examines all files of the folders, in order of their names, and makes the factories of those that are
    /// accepted; of two files of one name the first counts. To be called once, when the installation was chosen.
    /// \param folders  plain folders; one that does not exist is empty
    void load(const QStringList& folders);

    /// Every file of the folders, used or not.
    const std::vector<Plugin>& plugins() const { return m_plugins; }
    /// In the order of the files.
    QList<JEDVEPLUGIN::JEDSubSettingFactory*> factories() const;
    /// Null if there is no plug-in of that name. Upper and lower case are the same.
    JEDVEPLUGIN::JEDSubSettingFactory* factory(const QString& name) const;

private:
    Plugin loadFile(const QString& path);

    std::vector<Plugin> m_plugins;
};

} // namespace Session
