#include "jobplaces.h"

#include <jobxml/job.h>
#include <jobxml/parametersettext.h>
#include <jobxml/settings.h>
#include <jobxmlhandler.h>
#include <QCoreApplication>
#include <QXmlStreamReader>
#include <reportlayer/fieldaccess.h>
#include <values/node.h>

using JEDVEPLUGIN::JobXmlHandler;
using JEDVEPLUGIN::Problem;
using JobXml::ParameterSetText;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(PluginKit::JobPlaces)
};

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
void collectSets(const REPORTGENERATOR::IRGObject& parent, QList<PluginKit::CarriedSet>* sets)
{
    const REPORTGENERATOR::ElementTable& table = parent.table();
    for (int i = 0; i < table.fieldCount; ++i) {
        const REPORTGENERATOR::Field& field = table.fields[i];
        const QString name = QLatin1String(field.name);
        const REPORTGENERATOR::ParameterSet* set =
            field.element ? PluginKit::findParameterSet(*field.element) : nullptr;
        if (set && REPORTGENERATOR::isFieldSet(parent, name))
            sets->append({set, REPORTGENERATOR::childElement(parent, name)->GetXmlString(false)});
    }
}

// The field of an element that holds a parameter set; empty if there is none.
QString fieldOf(const QString& set, const REPORTGENERATOR::ElementTable& table)
{
    for (int i = 0; i < table.fieldCount; ++i) {
        const REPORTGENERATOR::Field& field = table.fields[i];
        const REPORTGENERATOR::ParameterSet* found =
            field.element ? PluginKit::findParameterSet(*field.element) : nullptr;
        if (found && set == QLatin1String(found->name))
            return QLatin1String(field.name);
    }
    return QString();
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

namespace PluginKit {

const REPORTGENERATOR::ParameterSet* findParameterSet(const REPORTGENERATOR::ElementTable& table)
{
    for (const REPORTGENERATOR::ParameterSet& set : JobXml::parameterSets()) {
        if (set.table == &table)
            return JobXml::findParameterSet(QLatin1String(set.name));
    }
    return nullptr;
}

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

QList<Problem> putText(const QString& name, const QString& xml, JobXml::Subjob* subjob)
{
    QList<Problem> problems;
    for (const QString& part : lostParts(name, xml))
        problems.append({Problem::SEVERITY_WARNING, name, part.section(QLatin1Char('/'), 1),
                         Texts::tr("%1 is lost: a job file cannot hold it").arg(part)});
    if (isCarriedByJobFile(name))
        putParameterSet(name, xml, subjob);
    return problems;
}

QList<Problem> putValues(const Node& set, const QString& base, JobXml::Subjob* subjob)
{
    const QString name = set.GetId();
    QList<Problem> problems;
    ParameterSetText::Report report;
    const QString xml = ParameterSetText::toText(set, base, &report);
    for (const QString& id : report.valuesWithoutField)
        problems.append({Problem::SEVERITY_ERROR, name, id,
                         Texts::tr("%1/%2 is lost: the parameter set has no such field").arg(name, id)});
    for (const QString& id : report.textsNotConverted)
        problems.append({Problem::SEVERITY_ERROR, name, id,
                         Texts::tr("%1/%2 is lost: its field does not take \"%3\"")
                             .arg(name, id, set.GetChild(id)->GetText())});
    return problems + putText(name, xml, subjob);
}

void removeParameterSet(const QString& name, JobXml::Subjob* subjob)
{
    REPORTGENERATOR::IRGObject* const places[] = {subjob, &subjob->GetSettings()};
    for (REPORTGENERATOR::IRGObject* place : places) {
        const QString field = fieldOf(name, place->table());
        if (!field.isEmpty())
            REPORTGENERATOR::resetField(*place, field);
    }
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

} // namespace PluginKit
