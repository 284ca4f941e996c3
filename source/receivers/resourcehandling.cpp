#include "parametersetmapper.h"

namespace JEDVEPLUGIN {

// The table stands in front of the mapper that is built from it: within one file this is the order in which
// the two come into being.
const QString ParameterSetMapper::s_globalMap[][3] = {
    {"HT720", "ActivityDetectionSettingsComponent", "ActivityDetectionSettings"},
    {"HT720", "ADemComponent", "ADemSettings"},
    {"HT720", "ClassifierSettingsComponent", "ClassifierSettings"},
    {"HT720", "DDemComponent", "DDemSettings"},
    {"HT720", "DFLocateComponent", "DF_Settings"},
    {"HT720", "DSCSettingsComponent", "DSCSettings"},
    {"HT720", "EDSettingsComponent", "EDSettings"},
    {"HT720", "FFTSettingsComponent", "FFTSettings"},
    {"HT720", "TunerSettingsComponent", "TunerSettings"},
    {"HT720", "TunerSettingsComponent", "AntennaSettings"},
    {"HT720", "JobAutomaticSettingsComponent", "JobAutomaticSettings"},
    {"HT720", "AutoRecordingComponent", "AutoRecordingSettings"},
    {"HT720", "SignalDescriptionsComponent", "SignalDescriptions"},
    {"HT720", "FHPJobSettingsComponent", "FHPJobSettings"},
    {"HT720", "CompressionSettingsComponent", "CompressionSettings"},
    {"TRV9KScanSettings", "ScanSettingsComponent", "ScanSettings"},
    {"TRV9KScanSettings", "ScanSettingsComponent", "DF_Settings"},
    {"TRV9KScanSettings", "ScanSettingsComponent", "FFTSettings"},
    {"TRV9KScanSettings", "ScanSettingsComponent", "TunerSettings"},
    {"DirectionFinder", "MultiSettingsComponent", "TunerSettings"},
    {"DirectionFinder", "MultiSettingsComponent", "ADemSettings"},
    {"DirectionFinder", "MultiSettingsComponent", "FFTSettings"},
    {"DirectionFinder", "MultiSettingsComponent", "DF_Settings"},
    {"DirectionFinder", "MultiSettingsComponent", "ScanSettings"},
};
const ParameterSetMapper ParameterSetMapper::s_mapper;

const QList<QString> ParameterSetMapper::getParameterSetNames(const QString& componentName)
{
    // The hash gives the values of a key from the newest to the oldest, the order that callers rely on.
    return s_mapper.m_setsByComponent.values(componentName.toLower());
}

const QString& ParameterSetMapper::getComponentName(const QString& resourceType,
                                                    const QString& parameterSetName)
{
    static const QString none;
    const auto components = s_mapper.m_componentsByResource.constFind(resourceType);
    if (components == s_mapper.m_componentsByResource.constEnd())
        return none;
    const auto component = components->constFind(parameterSetName);
    return component == components->constEnd() ? none : *component;
}

ParameterSetMapper::ParameterSetMapper()
{
    for (const auto& [resourceType, component, parameterSet] : s_globalMap) {
        m_setsByComponent.insert(component.toLower(), parameterSet);
        m_componentsByResource[resourceType].insert(parameterSet, component);
    }
}

} // namespace JEDVEPLUGIN
