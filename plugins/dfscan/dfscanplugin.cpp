#include <ijobeditorplugin.h>
#include <kit/kitfactory.h>

#include <QCoreApplication>

using PluginKit::SettingType;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(DfScanPlugin)
};

// Type, its text, parameter sets, types below, icon, category, whether it comes with a new sub-job.
QList<SettingType> settingTypes()
{
    return {
        {PluginKit::SUB_JOB,
         Texts::tr("DF scan"),
         {},
         {"GeneralSettings", "Scan", "DirectionFinding", "Tuner", "Demodulation", "Spectrum", "Detection",
          "Recording"},
         "MultiSettingsComponent",
         {},
         false},
        {"GeneralSettings",
         Texts::tr("General settings"),
         {"JobAutomaticSettings", "AlarmSettings", "ActivityGeneration"},
         {},
         "JobAutomaticSettingsComponent",
         PluginKit::GENERAL_SETTINGS,
         true},
        {"Scan", Texts::tr("Scan"), {"ScanSettings"}, {}, "ScanSettingsComponent", {}, true},
        {"DirectionFinding",
         Texts::tr("Direction finding"),
         {"DF_Settings"},
         {},
         "MultiSettingsComponent",
         {},
         true},
        {"Tuner",
         Texts::tr("Tuner"),
         {"TunerSettings", "AntennaSettings"},
         {},
         "TunerSettingsComponent",
         {},
         true},
        {"Demodulation",
         Texts::tr("Demodulation"),
         {"ADemSettings"},
         {},
         "MultiSettingsComponent",
         {},
         false},
        {"Spectrum", Texts::tr("Spectrum"), {"FFTSettings"}, {}, "FFTSettingsComponent", {}, false},
        {"Detection", Texts::tr("Emission detection"), {"EDSettings"}, {}, "EDSettingsComponent", {}, true},
        {"Recording",
         Texts::tr("Recording"),
         {"AutoRecordingSettings", "CompressionSettings"},
         {},
         "AutoRecordingComponent",
         {},
         true},
    };
}

PluginKit::PluginDeclaration declaration()
{
    PluginKit::PluginDeclaration plugin;
    plugin.name = "DFScan";
    plugin.description = Texts::tr("Takes bearings and measures signals.");
    plugin.jobTypes = {JEDVE::JOB_TYPE_DF_SCAN, JEDVE::JOB_TYPE_MEASUREMENT};
    plugin.resourceTypes =
        QStringList{"DirectionFinder", "TRV9KScanSettings", "MeasurementReceiver", "SignalRecorder"};
    plugin.types = settingTypes();
    plugin.regions = {{"DF_Settings", "Region"}};
    plugin.manual = "dfscan.html";
    return plugin;
}

class DfScanPlugin : public QObject, public JEDVEPLUGIN::IJobEditorPlugin
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

#include "dfscanplugin.moc"
