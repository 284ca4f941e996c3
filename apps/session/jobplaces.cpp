#include "jobplaces.h"

#include "parametersets.h"

#include <jobxml/job.h>
#include <jobxmlhandler.h>
#include <QXmlStreamReader>
#include <reportlayer/fieldaccess.h>

using JEDVEPLUGIN::JobXmlHandler;

namespace {
// The sets that belong to the sub-job itself, not to its block of settings.
const QLatin1String SETS_OF_SUBJOB[] = {
    QLatin1String("ActivityGeneration"),
    QLatin1String("AutoRecordingSettings"),
    QLatin1String("CompressionSettings"),
};

bool belongsToSubjob(const QString& name)
{
    for (const QLatin1String& set : SETS_OF_SUBJOB) {
        if (name == set)
            return true;
    }
    return false;
}

// The parameter sets that are set among the children of an element.
void collectSets(const REPORTGENERATOR::IRGObject& parent, QList<Session::CarriedSet>* sets)
{
    const REPORTGENERATOR::ElementTable& table = parent.table();
    for (int i = 0; i < table.fieldCount; ++i) {
        const REPORTGENERATOR::Field& field = table.fields[i];
        const QString name = QLatin1String(field.name);
        const REPORTGENERATOR::ParameterSet* set =
            field.element ? Session::findParameterSet(*field.element) : nullptr;
        if (set && REPORTGENERATOR::isFieldSet(parent, name))
            sets->append({set, REPORTGENERATOR::childElement(parent, name)->GetXmlString(false)});
    }
}

QStringList childNames(const QString& xml)
{
    QStringList names;
    QXmlStreamReader reader(xml);
    reader.readNextStartElement();
    while (reader.readNextStartElement()) {
        names.append(reader.name().toString());
        reader.skipCurrentElement();
    }
    return names;
}
} // namespace

namespace Session {

QList<CarriedSet> carriedSets(const JobXml::Subjob& subjob)
{
    QList<CarriedSet> sets;
    collectSets(subjob, &sets);
    collectSets(subjob.GetSettings(), &sets);
    return sets;
}

void putParameterSet(const QString& name, const QString& xml, JobXml::Subjob* subjob)
{
    JobXmlHandler* const handler = JobXmlHandler::getInstance();
    if (belongsToSubjob(name))
        handler->addSubjobSetting(name, xml, *subjob);
    else
        handler->addParameterSetObject(name, xml, subjob->GetSettings());
}

QStringList lostParts(const QString& name, const QString& xml)
{
    if (!isCarriedByJobFile(name))
        return {name};
    JobXml::Subjob subjob;
    putParameterSet(name, xml, &subjob);
    QStringList kept;
    for (const CarriedSet& carried : carriedSets(subjob))
        kept += childNames(carried.xml);
    QStringList lost;
    for (const QString& part : childNames(xml)) {
        const QString path = name + QLatin1Char('/') + part;
        if (!kept.contains(part) && !lost.contains(path))
            lost.append(path);
    }
    return lost;
}

bool isCarriedByJobFile(const QString& name)
{
    const REPORTGENERATOR::ParameterSet* set = JobXml::findParameterSet(name);
    // The handler reports names that it does not know; there is no need to bother it with them.
    if (!set || JobXmlHandler::getInstance()->getSettingType(name) < 0)
        return false;
    JobXml::Subjob subjob;
    putParameterSet(name, QStringLiteral("<%1/>").arg(QLatin1String(set->table->elementName)), &subjob);
    return !carriedSets(subjob).isEmpty();
}

} // namespace Session
