#include "parametersets.h"

#include <jobxml/settings.h>
#include <jobxml/tunerproperties.h>
#include <parametersetmapper.h>

using REPORTGENERATOR::ParameterSet;

namespace Session {

QStringList parameterSetNames()
{
    QStringList result;
    for (const ParameterSet& set : JobXml::parameterSets())
        result.append(QLatin1String(set.name));
    return result;
}

QStringList componentNames()
{
    QStringList result;
    for (const QString& type : JobXml::TunerProperties::Gettypes()) {
        for (const QString& set : parameterSetNames()) {
            const QString& component = JEDVEPLUGIN::ParameterSetMapper::getComponentName(type, set);
            if (!component.isEmpty() && !result.contains(component))
                result.append(component);
        }
    }
    return result;
}

} // namespace Session
