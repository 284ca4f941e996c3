#include "installation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <quilappstartup/cfgcenter.h>
#include <quilappstartup/translationcenter.h>

namespace {
// The views of the configuration that the library asks for.
constexpr int ADMINISTRATION_VIEW = 2;
constexpr int JOB_MANAGEMENT_VIEW = 4;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::Installation)
};

QString programFolder(const QString& name)
{
    return QDir::cleanPath(
        QStringLiteral("%1/../lib/jobeditorve/%2").arg(QCoreApplication::applicationDirPath(), name));
}
} // namespace

namespace Session {

bool chooseInstallation(const QString& folder, const QString& exampleFolder, QString* error)
{
    CfgCenter* const center = CfgCenter::Instance();
    // An installed program brings the example along.
    const QString brought = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                            QStringLiteral("/../share/jobeditorve/installation"));
    center->SetDefaultInstallation(QFileInfo(brought).isDir() ? brought : exampleFolder);
    center->SetInstallation(folder);
    // The components that belong to the running program; the installation's own come first.
    center->AddComponentFolder(programFolder(QStringLiteral("components")));
    TranslationCenter::Instance()->AddFolder(programFolder(QStringLiteral("translations")));
    const QString chosen = center->GetInstallation();
    const QString iniFile = QDir(chosen).filePath(QLatin1String(CfgCenter::INI_FILE_NAME));
    if (!QFileInfo(chosen).isDir())
        *error = Texts::tr("the installation folder %1 does not exist").arg(chosen);
    else if (!QFileInfo(iniFile).isFile())
        *error = Texts::tr("%1 is no installation: it has no %2")
                     .arg(chosen, QLatin1String(CfgCenter::INI_FILE_NAME));
    else
        *error = center->GetProblems().join(QLatin1Char('\n'));
    return error->isEmpty();
}

bool useLanguage(QString* error)
{
    const QString language =
        CfgCenter::Instance()->GetAdminCfg(ADMINISTRATION_VIEW)->GetString(QStringLiteral("Language"));
    if (TranslationCenter::Instance()->SetLanguage(language))
        return true;
    *error = Texts::tr("there is no translation into %1, the language of the installation").arg(language);
    return false;
}

QString installationFolder()
{
    return CfgCenter::Instance()->GetInstallation();
}

QString templateFolder()
{
    CfgCenter* const center = CfgCenter::Instance();
    QString folder = center->GetAdminCfg(ADMINISTRATION_VIEW)->GetString(QStringLiteral("VelmoDataDir")) +
                     QLatin1String("\\TemplateFolder\\");
    if (const Cfg* jobManagement =
            center->CreateCfg(QStringLiteral("JobManagement"), JOB_MANAGEMENT_VIEW, QString()))
        folder = jobManagement->GetString(QStringLiteral("TemplateFolder"), folder);
    if (folder.isEmpty())
        return folder;
    return QDir(folder.replace(QLatin1Char('\\'), QLatin1Char('/'))).absolutePath();
}

} // namespace Session
