#include "jedsubsettingfactory.h"

#include "common/tracing_p.h"
#include "jedcommonhelper.h"

#include <quilappstartup/cfgcenter.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

#include <limits>

namespace JEDVEPLUGIN {

namespace {
const int ADMIN_VIEW = 2;
const QLatin1String INSTALLATION_DIR_KEY("BasicInstallationDir");
} // namespace

JEDSubSettingFactory::JEDSubSettingFactory(const QString& name)
    : name(name)
    , currentJobType(JEDVE::JOB_TYPE_UNKNOWN)
    , readOnly(false)
{
    // Under the names that the signals' signatures have, so that queued connections find them.
    qRegisterMetaType<JEDVE::enJOB_TYPE>("JEDVE::enJOB_TYPE");
    qRegisterMetaType<ISubSetting*>("JEDVEPLUGIN::ISubSetting*");
}

JEDSubSettingFactory::~JEDSubSettingFactory() = default;

QString JEDSubSettingFactory::getName() const
{
    return name;
}

const QStringList& JEDSubSettingFactory::supportedTypes(bool topLevel) const
{
    return topLevel ? supportedTypesOf(QString()) : supportedTypeList;
}

const QList<JEDVE::enJOB_TYPE> JEDSubSettingFactory::supportedJobTypes() const
{
    return jobTypes;
}

JEDVE::enJOB_TYPE JEDSubSettingFactory::getCurrentJobType() const
{
    return currentJobType;
}

void JEDSubSettingFactory::setReadOnly(bool readOnly)
{
    this->readOnly = readOnly;
    changeReadOnly(readOnly);
}

bool JEDSubSettingFactory::isReadOnly() const
{
    return readOnly;
}

bool JEDSubSettingFactory::isAppendable(ISubSetting*, const QString&) const
{
    return true;
}

int JEDSubSettingFactory::getMaxCount(const QString&) const
{
    return std::numeric_limits<int>::max();
}

void JEDSubSettingFactory::setRulesDir(const QString& folder)
{
    rulesDir = folder;
}

void JEDSubSettingFactory::setResourceDir(const QString& folder)
{
    resourceDir = folder;
}

void JEDSubSettingFactory::initializeRuleEngine() {}

QPixmap* JEDSubSettingFactory::getSettingIcon(const QString&) const
{
    return nullptr;
}

bool JEDSubSettingFactory::supportsImportProfile() const
{
    return false;
}

bool JEDSubSettingFactory::canImportProfile(const ISubSetting*)
{
    return false;
}

QList<ISubSetting*> JEDSubSettingFactory::importProfile(const QString&, ISubSetting*)
{
    return {};
}

QString JEDSubSettingFactory::manual() const
{
    return QString();
}

void JEDSubSettingFactory::slot_setCurrentJobType(JEDVE::enJOB_TYPE jobType)
{
    currentJobType = jobType;
    traceJobType({TracePoints::SUB_SETTING_FACTORY, __LINE__},
                 QString("%1: slot_setCurrentJobType(%2)")
                     .arg(getName(), 0, QLatin1Char(' '))
                     .arg(JEDCommonHelper::JobTypeToString(jobType), 0, QLatin1Char(' ')));
    emit currentJobTypeChanged(currentJobType);
}

QString JEDSubSettingFactory::defaultManualPath(const QString& file) const
{
    const QString installationDir =
        CfgCenter::Instance()
            ->GetAdminCfg(ADMIN_VIEW)
            ->GetString(INSTALLATION_DIR_KEY, QCoreApplication::applicationDirPath());
    return QDir(installationDir).absoluteFilePath(QString("Manuals/%1").arg(file));
}

} // namespace JEDVEPLUGIN
