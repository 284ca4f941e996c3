#pragma once

#include <quilappstartup/cfg.h>
#include <quilappstartup/quilappstartup_export.h>

#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <vector>

class IniFile;

/// Gives out the configurations of the installation. One for the process; made on first use, never destroyed.
/// GUI thread only.
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
};
