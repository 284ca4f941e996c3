#include <quilappstartup/cfgcenter.h>

#include <quilappstartup/dllinstances_p.h>
#include <quilappstartup/inifile_p.h>

#include <zubase/errorhandler.h>
#include <zubase/trace.h>
#include <zubase/zuexception.h>

#include <QDir>

namespace {

const char* const SOURCE_FILE = "cfgcenter";
const QLatin1String COMPONENT_FOLDER_KEY("ComponentFolder");

const QLatin1String PATH_KEY_ENDINGS[] = {QLatin1String("Dir"), QLatin1String("Folder")};

void traceProblem(const QString& problem)
{
    if ((ErrorHandler::Instance()->GetTraceMask() & ErrorHandler::TRACE_ERRORS) != 0)
        _Q_Trace(problem, SOURCE_FILE, __LINE__);
}

bool isPathKey(const QString& key)
{
    for (const QLatin1String& ending : PATH_KEY_ENDINGS) {
        if (key.endsWith(ending))
            return true;
    }
    return false;
}

bool isWindowsPath(const QString& path)
{
    return path.startsWith(QLatin1String("\\\\")) ||
           (path.size() > 2 && path.at(0).isLetter() && path.at(1) == QLatin1Char(':') &&
            (path.at(2) == QLatin1Char('\\') || path.at(2) == QLatin1Char('/')));
}

QHash<QString, QString> withAbsolutePaths(const IniFile::Entries& entries, const QDir& folder)
{
    QHash<QString, QString> result = entries;
    for (auto entry = result.begin(); entry != result.end(); ++entry) {
        if (isPathKey(entry.key()) && !entry.value().isEmpty() && !isWindowsPath(entry.value()))
            entry.value() = QDir::cleanPath(folder.absoluteFilePath(entry.value()));
    }
    return result;
}

} // namespace

CfgCenter* CfgCenter::Instance()
{
    static CfgCenter* const s_instance = new CfgCenter;
    return s_instance;
}

CfgCenter::CfgCenter()
    : m_dllInstances(std::make_unique<DllInstances>())
{
}

CfgCenter::~CfgCenter() = default;

void CfgCenter::SetInstallation(const QString& folder)
{
    m_folder = folder;
    forgetWhatWasRead();
}

void CfgCenter::SetDefaultInstallation(const QString& folder)
{
    m_defaultFolder = folder;
    forgetWhatWasRead();
}

QString CfgCenter::GetInstallation() const
{
    for (const QString& folder : {m_folder, qEnvironmentVariable(ENVIRONMENT_VARIABLE), m_defaultFolder}) {
        if (!folder.isEmpty())
            return QDir(folder).absolutePath();
    }
    return QString();
}

QStringList CfgCenter::GetProblems()
{
    return iniFile().problems();
}

Cfg* CfgCenter::GetAdminCfg(int)
{
    return cfgOfSection(QLatin1String(ADMIN_SECTION));
}

Cfg* CfgCenter::CreateCfg(const QString& name, int, const QString& variant)
{
    const QString section = variant.isEmpty() ? name : QString("%1.%2").arg(name, variant);
    return iniFile().hasSection(section) ? cfgOfSection(section) : nullptr;
}

void CfgCenter::AddComponentFolder(const QString& folder)
{
    if (!folder.isEmpty() && !m_componentFolders.contains(folder))
        m_componentFolders.append(folder);
}

QStringList CfgCenter::GetComponentFolders()
{
    QStringList folders = m_componentFolders;
    const QString configured = cfgOfSection(QLatin1String(ADMIN_SECTION))->GetString(COMPONENT_FOLDER_KEY);
    if (!configured.isEmpty())
        folders.prepend(configured);
    return folders;
}

IDllInstance* CfgCenter::CreateDllInstanceByFileName(const QString& fileName, const QString& instanceName,
                                                     bool, bool)
{
    try {
        return m_dllInstances->create(fileName, instanceName, GetComponentFolders());
    } catch (const ZuException& failure) {
        traceProblem(failure.GetErrorReason());
        throw;
    }
}

IDllInstance* CfgCenter::GetDllInstanceByFileName(const QString& fileName, const QString& instanceName) const
{
    return m_dllInstances->find(fileName, instanceName);
}

bool CfgCenter::DestroyDllInstanceByPointer(IDllInstance* instance)
{
    return m_dllInstances->destroy(instance);
}

const IniFile& CfgCenter::iniFile()
{
    if (m_iniFile != nullptr)
        return *m_iniFile;
    m_readFolder = GetInstallation();
    m_iniFile = m_readFolder.isEmpty()
                    ? std::make_unique<IniFile>()
                    : std::make_unique<IniFile>(QDir(m_readFolder).filePath(QLatin1String(INI_FILE_NAME)));
    for (const QString& problem : m_iniFile->problems())
        traceProblem(problem);
    return *m_iniFile;
}

Cfg* CfgCenter::cfgOfSection(const QString& section)
{
    const IniFile& file = iniFile();
    std::unique_ptr<Cfg>& cfg = m_cfgs[section];
    if (cfg == nullptr)
        cfg = std::make_unique<Cfg>(section, withAbsolutePaths(file.section(section), QDir(m_readFolder)));
    return cfg.get();
}

void CfgCenter::forgetWhatWasRead()
{
    m_iniFile.reset();
    for (auto& cfg : m_cfgs)
        m_formerCfgs.push_back(std::move(cfg.second));
    m_cfgs.clear();
}
