#include "jobplaces.h"

#include "parametersets.h"

#include <jobxml/job.h>
#include <jobxmlhandler.h>
#include <memory>
#include <QXmlStreamReader>

using JEDVEPLUGIN::JobXmlHandler;
using REPORTGENERATOR::ElementTable;
using REPORTGENERATOR::Field;

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

const ElementTable* childTable(const ElementTable& table, const QString& name)
{
    const int index = table.fieldIndex(name);
    return index < 0 ? nullptr : table.fields[index].element;
}

// The element that the reader has just entered, alone and in the layout that elements are written in.
QString takeElement(QXmlStreamReader* reader, const QString& text, const ElementTable& table)
{
    // No "<" may stand inside a tag, so the last one before the reader's place begins the tag.
    const int start = text.lastIndexOf(QLatin1Char('<'), int(reader->characterOffset()) - 1);
    reader->skipCurrentElement();
    const std::unique_ptr<REPORTGENERATOR::IRGObject> element(table.create());
    element->SetXmlString(text.mid(start, int(reader->characterOffset()) - start), false);
    return element->GetXmlString(false);
}

// The parameter sets among the children of the element that the reader has just entered.
void collectSets(QXmlStreamReader* reader, const QString& text, const ElementTable& table,
                 QList<Session::CarriedSet>* sets)
{
    while (reader->readNextStartElement()) {
        const ElementTable* child = childTable(table, reader->name().toString());
        const REPORTGENERATOR::ParameterSet* set = child ? Session::findParameterSet(*child) : nullptr;
        if (set)
            sets->append({set, takeElement(reader, text, *child)});
        else
            reader->skipCurrentElement();
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
    for (const REPORTGENERATOR::IRGObject* part :
         {static_cast<const REPORTGENERATOR::IRGObject*>(&subjob),
          static_cast<const REPORTGENERATOR::IRGObject*>(&subjob.GetSettings())}) {
        const QString text = part->GetXmlString(false);
        QXmlStreamReader reader(text);
        if (reader.readNextStartElement())
            collectSets(&reader, text, part->table(), &sets);
    }
    return sets;
}

QStringList putParameterSet(const QString& name, const QString& xml, JobXml::Subjob* subjob)
{
    JobXmlHandler* const handler = JobXmlHandler::getInstance();
    if (belongsToSubjob(name))
        handler->addSubjobSetting(name, xml, *subjob);
    else
        handler->addParameterSetObject(name, xml, subjob->GetSettings());
    QStringList missing = childNames(xml);
    for (const CarriedSet& carried : carriedSets(*subjob)) {
        if (name != QLatin1String(carried.set->name))
            continue;
        for (const QString& child : childNames(carried.xml))
            missing.removeAll(child);
    }
    missing.removeDuplicates();
    return missing;
}

bool isCarriedByJobFile(const QString& name)
{
    const REPORTGENERATOR::ParameterSet* set = findParameterSet(name);
    // The handler reports names that it does not know; there is no need to bother it with them.
    if (!set || JobXmlHandler::getInstance()->getSettingType(name) < 0)
        return false;
    JobXml::Subjob subjob;
    putParameterSet(name, QStringLiteral("<%1/>").arg(QLatin1String(set->table->elementName)), &subjob);
    return !carriedSets(subjob).isEmpty();
}

} // namespace Session
