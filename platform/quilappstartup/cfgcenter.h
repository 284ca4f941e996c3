#pragma once

#include <quilappstartup/cfg.h>
#include <quilappstartup/quilappstartup_export.h>

#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <vector>

class DllInstances;
class IDllInstance;
class IniFile;

/// Gives out the configurations of the installation and the instances of its component libraries. One for
/// the process; made on first use, never destroyed. GUI thread only.
///
/// An installation is a folder with a file "installation.ini" (UTF-8, sections and key=value lines;
/// backslashes in values stand for themselves). A value whose key ends in "Dir" or "Folder" is a path: unless
/// it is empty it is taken relative to the installation's folder and given out absolute. Paths that start
/// like those of Windows ("C:\", "\\server") are absolute everywhere.
///
/// The folder is, in this order: what SetInstallation() was given, the environment variable JED_INSTALLATION,
/// what SetDefaultInstallation() was given. It is read when the first configuration is asked for.
class QUILAPPSTARTUP_EXPORT CfgCenter
{
public:
    static constexpr const char* INI_FILE_NAME = "installation.ini";
    static constexpr const char* ENVIRONMENT_VARIABLE = "JED_INSTALLATION";
    /// The section of GetAdminCfg().
    static constexpr const char* ADMIN_SECTION = "Administration";

    /// Never null.
    static CfgCenter* Instance();

    /// Names the installation to use, an empty text meaning none. What was read before is read anew when it
    /// is asked for next; configurations that were given out stay valid and keep what they hold.
    void SetInstallation(const QString& folder);
    /// As SetInstallation(), for the folder that comes last.
    void SetDefaultInstallation(const QString& folder);
    /// The folder in use, absolute; empty if there is none.
    QString GetInstallation() const;
    /// What was wrong with the installation's file, a text for each; traced too when it is read. Empty if all
    /// of it was read, and without an installation.
    QStringList GetProblems();

    /// The configuration of the whole installation ("BasicInstallationDir", "VelmoDataDir"). Never null;
    /// without an installation it has no keys. Owned by the centre.
    /// \param view  which view of the installation's on its configuration; here they are all the same
    Cfg* GetAdminCfg(int view);
    /// The configuration of one application or subject, null if the installation has no such section. The
    /// same object for the same arguments. Owned by the centre.
    /// \param name  name of the section ("JobManagement"); upper and lower case are different
    /// \param view  as for GetAdminCfg()
    /// \param variant  if it is not empty, the section "name.variant" is meant
    Cfg* CreateCfg(const QString& name, int view, const QString& variant);

    /// Adds a folder with component libraries; it need not exist. Those of the installation come first.
    void AddComponentFolder(const QString& folder);
    /// The folders in which component libraries are looked for: the "ComponentFolder" of the installation's
    /// section "Administration" if it is set and not empty, then those added, in their order.
    QStringList GetComponentFolders();

    /// Makes a new instance out of a component library, which is examined before any of its code runs and
    /// stays loaded until the process ends. The two last arguments are start-up options of an installation's
    /// own edition; here they change nothing. Throws ZuException, its reason, which is traced too, being what
    /// is wrong and what to do.
    /// \param fileName      "Name.dll" on every system, without a folder
    /// \param instanceName  by which GetDllInstanceByFileName() finds it, usually empty
    /// \return never null; the centre's, to be released by DestroyDllInstanceByPointer()
    IDllInstance* CreateDllInstanceByFileName(const QString& fileName, const QString& instanceName, bool,
                                              bool);
    /// The oldest living instance of that library and name, null if there is none. Loads nothing.
    IDllInstance* GetDllInstanceByFileName(const QString& fileName, const QString& instanceName) const;
    /// Deletes an instance.
    /// \return false, with nothing done, for null and for what CreateDllInstanceByFileName() has not made
    bool DestroyDllInstanceByPointer(IDllInstance* instance);

private:
    CfgCenter();
    ~CfgCenter();
    Q_DISABLE_COPY(CfgCenter)

    const IniFile& iniFile();
    Cfg* cfgOfSection(const QString& section);
    void forgetWhatWasRead();

    QString m_folder;
    QString m_defaultFolder;
    QString m_readFolder;                           // The installation that m_iniFile belongs to.
    std::unique_ptr<IniFile> m_iniFile;             // Null until the first configuration is asked for.
    std::map<QString, std::unique_ptr<Cfg>> m_cfgs; // By section.
    std::vector<std::unique_ptr<Cfg>> m_formerCfgs; // Given out, of installations in use before.
    QStringList m_componentFolders;                 // Those added.
    std::unique_ptr<DllInstances> m_dllInstances;   // Never null.
};
