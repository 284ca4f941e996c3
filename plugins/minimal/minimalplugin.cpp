// The one to copy: a whole plug-in for the job editor. It offers sub-jobs on HT720 receivers, each with one parameter
// set, the settings of the tuner. They are made in the dialog, edited, copied, undone, read from job files and written
// into them: that is what the kit does with a declaration.
//
// To make a plug-in of your own out of it: copy the folder, give it another name, and change the declaration.

#include <ijobeditorplugin.h>
#include <kit/kitfactory.h>

#include <QCoreApplication>

namespace {

PluginKit::PluginDeclaration declaration()
{
    // The kind of setting that the plug-in offers. A plug-in with more of them says which can be created below which.
    PluginKit::SettingType subjob;
    subjob.type = QLatin1String(PluginKit::SUB_JOB);
    subjob.displayName = QCoreApplication::translate("MinimalPlugin", "Sub-job");
    subjob.parameterSets = QStringList{"TunerSettings"}; // As far as the receiver has them.
    subjob.icon = "TunerSettingsComponent";              // The picture of that component.

    PluginKit::PluginDeclaration plugin;
    plugin.name = "Minimal"; // Also its place in the value tree: without a "/".
    plugin.description = QCoreApplication::translate("MinimalPlugin", "Tunes one receiver for each sub-job.");
    plugin.jobTypes = {JEDVE::JOB_TYPE_MEASUREMENT}; // Jobs in which no other plug-in claims these receivers.
    plugin.resourceTypes = QStringList{"HT720"};     // The receivers that can be chosen,
    plugin.requiredComponents = QStringList{"TunerSettingsComponent"}; // if they have all of these.
    plugin.types = {subjob};
    return plugin;
}

// What the editor finds in the library. Once it has accepted the file, it asks for one factory.
class MinimalPlugin : public QObject, public JEDVEPLUGIN::IJobEditorPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IJobEditorPlugin_iid FILE "plugin.json") // Written by jed_add_plugin().
    Q_INTERFACES(JEDVEPLUGIN::IJobEditorPlugin)
public:
    JEDVEPLUGIN::JEDAbstractSubSettingFactory* createFactory() override
    {
        return new PluginKit::KitFactory(declaration());
    }
};

} // namespace

#include "minimalplugin.moc"
