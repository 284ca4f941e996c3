#include <ijobeditorplugin.h>
#include <kit/kitfactory.h>

#include <QCoreApplication>

using PluginKit::SettingType;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ProductionPlugin)
};

// Type, its text, parameter sets, types below, icon, category, whether it comes with a new sub-job.
QList<SettingType> settingTypes()
{
    return {
        {PluginKit::SUB_JOB,
         Texts::tr("Production"),
         {},
         {"GeneralSettings", "Tuner", "Demodulation", "DigitalDemodulation", "Classifier", "Recording",
          "Spectrum"},
         "ADemComponent",
         {},
         false},
        {"GeneralSettings",
         Texts::tr("General settings"),
         {"JobAutomaticSettings", "AlarmSettings", "ActivityGeneration"},
         {},
         "JobAutomaticSettingsComponent",
         PluginKit::GENERAL_SETTINGS,
         true},
        {"Tuner",
         Texts::tr("Tuner"),
         {"TunerSettings", "AntennaSettings"},
         {},
         "TunerSettingsComponent",
         {},
         true},
        {"Demodulation", Texts::tr("Demodulation"), {"ADemSettings"}, {}, "ADemComponent", {}, true},
        {"DigitalDemodulation",
         Texts::tr("Digital demodulation"),
         {"DDemSettings"},
         {},
         "DDemComponent",
         {},
         false},
        {"Classifier",
         Texts::tr("Classifier"),
         {"ClassifierSettings"},
         {},
         "ClassifierSettingsComponent",
         {},
         true},
        {"Recording",
         Texts::tr("Recording"),
         {"AutoRecordingSettings", "CompressionSettings"},
         {},
         "AutoRecordingComponent",
         {},
         true},
        {"Spectrum", Texts::tr("Spectrum"), {"FFTSettings"}, {}, "FFTSettingsComponent", {}, false},
    };
}

PluginKit::PluginDeclaration declaration()
{
    PluginKit::PluginDeclaration plugin;
    plugin.name = "Production";
    plugin.description = Texts::tr("Produces the content of signals on fixed frequencies.");
    plugin.jobTypes = {JEDVE::JOB_TYPE_PRODUCTION};
    plugin.resourceTypes = QStringList{"HT720"};
    plugin.types = settingTypes();
    plugin.manual = "production.html";
    plugin.hasDetector = true;
    return plugin;
}

class ProductionPlugin : public QObject, public JEDVEPLUGIN::IJobEditorPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IJobEditorPlugin_iid FILE "plugin.json")
    Q_INTERFACES(JEDVEPLUGIN::IJobEditorPlugin)
public:
    JEDVEPLUGIN::JEDAbstractSubSettingFactory* createFactory() override
    {
        return new PluginKit::KitFactory(declaration());
    }
};
} // namespace

#include "productionplugin.moc"
