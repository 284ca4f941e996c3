#include "searchfactory.h"

#include <QCoreApplication>
#include <values/valuebase.h>

using JEDVEPLUGIN::Problem;
using PluginKit::SettingNode;
using PluginKit::SettingType;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(SearchFactory)
};

// Type, its text, parameter sets, types below, icon, category, whether it comes with a new sub-job.
QList<SettingType> settingTypes()
{
    return {
        {PluginKit::SUB_JOB,
         Texts::tr("Search"),
         {},
         {"GeneralSettings", "Scan", "Spectrum", "Tuner", "Demodulation", "DirectionFinding"},
         "ScanSettingsComponent"},
        {"GeneralSettings",
         Texts::tr("General settings"),
         {"JobAutomaticSettings", "AutoRecordingSettings", "CompressionSettings", "ActivityGeneration",
          "AlarmSettings"},
         {},
         "JobAutomaticSettingsComponent",
         PluginKit::GENERAL_SETTINGS,
         true},
        {"Scan", Texts::tr("Scan"), {"ScanSettings"}, {}, "ScanSettingsComponent", {}, true},
        {"Spectrum", Texts::tr("Spectrum"), {"FFTSettings"}, {}, "FFTSettingsComponent", {}, true},
        {"Tuner",
         Texts::tr("Tuner"),
         {"TunerSettings", "AntennaSettings"},
         {},
         "TunerSettingsComponent",
         {},
         true},
        {"Demodulation", Texts::tr("Demodulation"), {"ADemSettings"}, {}, "ADemComponent"},
        {"DirectionFinding", Texts::tr("Direction finding"), {"DF_Settings"}, {}, "DFLocateComponent"},
    };
}

PluginKit::PluginDeclaration searchDeclaration()
{
    PluginKit::PluginDeclaration plugin;
    plugin.name = "Search";
    plugin.description = Texts::tr("Searches frequency ranges for signals.");
    plugin.jobTypes = {JEDVE::JOB_TYPE_SEARCH, JEDVE::JOB_TYPE_SURVEILLANCE};
    plugin.resourceTypes = QStringList{"HT720", "TRV9KScanSettings", "DirectionFinder"};
    plugin.ruleFile = "search.js";
    plugin.manual = "search.html";
    plugin.types = settingTypes();
    plugin.regions = {{"DF_Settings", "Region"}};
    plugin.hasDetector = true;
    plugin.hasPreClassifier = true;
    return plugin;
}

double number(const SettingNode& node, const QString& set, const QString& field)
{
    const ValueBase* const value = node.value(set, field);
    return value ? value->GetText().toDouble() : 0.0;
}
} // namespace

SearchFactory::SearchFactory()
    : KitFactory(searchDeclaration())
{
}

QList<Problem> SearchFactory::findProblems(const SettingNode& node) const
{
    const QString scan = "ScanSettings";
    if (!node.value(scan, "Range.StartFrequency"))
        return {};
    QList<Problem> problems;
    const double start = number(node, scan, "Range.StartFrequency");
    const double stop = number(node, scan, "Range.StopFrequency");
    if (start >= stop)
        problems.append({Problem::SEVERITY_ERROR, scan, "Range.StopFrequency",
                         Texts::tr("The scan ends before it begins")});
    else if (number(node, scan, "Range.StepWidth") > stop - start)
        problems.append(
            {Problem::SEVERITY_WARNING, scan, "Range.StepWidth", Texts::tr("The scan has a single step")});
    return problems;
}
