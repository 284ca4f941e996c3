#include "pluginhost.h"

#include "installation.h"

#include <ijobeditorplugin.h>
#include <jedabstractsubsettingfactory.h>
#include <jedvepb_version.h>
#include <QCoreApplication>
#include <QDir>
#include <QSet>
#include <quilappstartup/cfgcenter.h>
#include <zubase/zuexception.h>

using JEDVEPLUGIN::IJobEditorPlugin;
using JEDVEPLUGIN::JEDAbstractSubSettingFactory;
using JEDVEPLUGIN::JEDSubSettingFactory;

namespace Session {

namespace {
constexpr int ADMINISTRATION_VIEW = 2;
// Below it each plug-in has its node in the value tree.
const char* const NODE_PATH = "/JobEditor/";

// Tells a factory where it works, in the order that factories rely on.
void startUp(JEDAbstractSubSettingFactory* factory)
{
    const QDir installation(installationFolder());
    factory->setRulesDir(installation.filePath(QStringLiteral("Rules")));
    factory->setResourceDir(installation.path());
    factory->initialize(QLatin1String(NODE_PATH), nullptr);
    factory->initializeRuleEngine();
}
} // namespace

PluginHost::PluginHost() = default;

PluginHost::~PluginHost()
{
    while (!m_plugins.empty())
        m_plugins.pop_back();
}

QStringList PluginHost::defaultFolders()
{
    QStringList folders;
    const QString configured = CfgCenter::Instance()
                                   ->GetAdminCfg(ADMINISTRATION_VIEW)
                                   ->GetString(QStringLiteral("PluginFolder"), QString());
    if (!configured.isEmpty())
        folders.append(configured);
    folders.append(
        QDir::cleanPath(QCoreApplication::applicationDirPath() +
                        QStringLiteral("/../lib/jobeditorve/plugins-%1").arg(JEDVEPB_INTERFACE_VERSION)));
    return folders;
}

void PluginHost::load(const QStringList& folders)
{
    QSet<QString> names;
    for (const QString& folder : folders) {
        const QDir dir(folder);
        // With everything that is no folder: a pipe or a dangling link gets its verdict, too.
        for (const QString& name :
             dir.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot, QDir::Name)) {
            if (names.contains(name))
                continue;
            names.insert(name);
            m_plugins.push_back(loadFile(dir.absoluteFilePath(name)));
        }
    }
}

QList<JEDSubSettingFactory*> PluginHost::factories() const
{
    QList<JEDSubSettingFactory*> result;
    for (const Plugin& plugin : m_plugins) {
        if (plugin.factory)
            result.append(plugin.factory.get());
    }
    return result;
}

JEDSubSettingFactory* PluginHost::factory(const QString& name) const
{
    for (JEDSubSettingFactory* candidate : factories()) {
        if (candidate->getName().compare(name, Qt::CaseInsensitive) == 0)
            return candidate;
    }
    return nullptr;
}

PluginHost::Plugin PluginHost::loadFile(const QString& path)
{
    const LibraryExaminer examiner({QCoreApplication::translate("Session::PluginHost", "plug-in"),
                                    QLatin1String(IJobEditorPlugin_iid), JEDVEPB_INTERFACE_VERSION});
    Plugin result;
    result.report = examiner.load(path, [&result](QObject* object) {
        auto* const plugin = qobject_cast<IJobEditorPlugin*>(object);
        if (!plugin)
            return LIBRARY_NO_FACTORY;
        std::unique_ptr<JEDAbstractSubSettingFactory> factory(plugin->createFactory());
        if (!factory)
            return LIBRARY_FACTORY_GAVE_NOTHING;
        startUp(factory.get());
        result.factory = std::move(factory);
        return LIBRARY_ACCEPTED;
    });
    return result;
}

} // namespace Session
