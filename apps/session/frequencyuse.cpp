#include "frequencyuse.h"

#include "tuneritem.h"
#include <jobxml/quantity.h>

#include <algorithm>
#include <componentdescriptor.h>
#include <jobxml/job.h>
#include <jobxml/settings.h>
#include <jobxml/tunerproperties.h>
#include <kit/jobplaces.h>
#include <QCoreApplication>
#include <QMap>
#include <reportlayer/fieldaccess.h>
#include <resourcedescription.h>

using REPORTGENERATOR::childElement;
using REPORTGENERATOR::ElementTable;
using REPORTGENERATOR::Field;
using REPORTGENERATOR::fieldText;
using REPORTGENERATOR::IRGObject;
using Session::FrequencyRange;
using Session::FrequencyUse;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::FrequencyUse)
};

// Which fields of an element say where the receiver works: two edges, or a middle and the bandwidth around it.
struct Place
{
    QLatin1String className;
    QLatin1String first;
    QLatin1String second;
    bool isBand;
    QLatin1String name;
};

const Place PLACES[] = {
    {QLatin1String("Range"), QLatin1String("StartFrequency"), QLatin1String("StopFrequency"), false,
     QLatin1String("Name")},
    {QLatin1String("ST_Settings"), QLatin1String("LowerFrequency"), QLatin1String("UpperFrequency"), false,
     QLatin1String("NetName")},
    {QLatin1String("FFM_Settings"), QLatin1String("CenterFrequency"), QLatin1String("Bandwidth"), true,
     QLatin1String("ChannelName")},
    {QLatin1String("ShortTime_Settings"), QLatin1String("CenterFrequency"), QLatin1String("Bandwidth"), true,
     QLatin1String("SignalName")},
    {QLatin1String("FrequencyItem"), QLatin1String("Frequency"), QLatin1String("Bandwidth"), true,
     QLatin1String("Name")},
};

// Its frequencies are those of signals that are looked for wherever the receiver works.
const QLatin1String WANTED_SIGNALS("SignalDescriptions");

const Place* placeOf(const ElementTable& table)
{
    const auto found = std::find_if(std::begin(PLACES), std::end(PLACES), [&table](const Place& place) {
        return place.className == QLatin1String(table.className);
    });
    return found == std::end(PLACES) ? nullptr : found;
}

QString joined(const QString& path, const QString& name)
{
    return path.isEmpty() ? name : path + QLatin1Char('.') + name;
}

// Goes through a parameter set or list and collects its ranges.
class Collector
{
public:
    Collector(const Field& field, FrequencyUse* use)
        : m_use(use)
    {
        const REPORTGENERATOR::ParameterSet* const set = PluginKit::findParameterSet(*field.element);
        m_source = set ? set->label() : field.label();
        m_parameterSet = set ? QString::fromLatin1(set->name) : QString();
    }

    void collect(const IRGObject& element, const QString& path, const QString& name)
    {
        const ElementTable& table = element.table();
        if (WANTED_SIGNALS == QLatin1String(table.className) || !isUsed(element))
            return;
        const QString ownName = fieldText(element, QStringLiteral("Name"));
        if (const Place* const place = placeOf(table))
            append(element, *place, path, name);
        for (int i = 0; i < table.fieldCount; ++i) {
            const Field& field = table.fields[i];
            if (field.element)
                collectField(element, field, path, ownName.isEmpty() ? name : ownName);
        }
    }

private:
    // What is switched off, or goes by channels that the job does not hold.
    bool isUsed(const IRGObject& element)
    {
        if (fieldText(element, QStringLiteral("Active")) == QLatin1String("false"))
            return false;
        const auto* const scan = dynamic_cast<const JobXml::Scan_Settings*>(&element);
        const bool isStored = scan && scan->GetMode() == JobXml::Scan_Settings::MODE_MEMORY;
        if (isStored)
            m_use->untold.append(
                Texts::tr("%1: the scan goes through stored channels, which the job does not name")
                    .arg(m_source));
        return !isStored;
    }

    void collectField(const IRGObject& element, const Field& field, const QString& path, const QString& name)
    {
        const QString child = QLatin1String(field.name);
        const int count = REPORTGENERATOR::itemCount(element, child);
        for (int i = 0; i < count; ++i) {
            const QString step = field.list ? QStringLiteral("%1[%2]").arg(child, QString::number(i)) : child;
            collect(*childElement(element, step), joined(path, step), name);
        }
    }

    void append(const IRGObject& element, const Place& place, const QString& path, const QString& name)
    {
        FrequencyRange range;
        const qint64 first = fieldText(element, place.first).toLongLong();
        const qint64 second = fieldText(element, place.second).toLongLong();
        range.isBand = place.isBand;
        range.from = place.isBand ? first - second / 2 : first;
        range.to = place.isBand ? first + second / 2 : second;
        range.name = fieldText(element, place.name);
        if (range.name.isEmpty())
            range.name = name;
        range.source = m_source;
        range.parameterSet = m_parameterSet;
        range.field = joined(path, place.first);
        if (range.from <= range.to)
            m_use->ranges.append(range);
        else
            m_use->untold.append(
                Texts::tr("%1: the range from %2 to %3 ends before it begins")
                    .arg(m_source, Session::frequencyText(first), Session::frequencyText(second)));
    }

    FrequencyUse* m_use; // Not owned.
    QString m_source;
    QString m_parameterSet;
};

// Whether a value of a receiver says where it can work: it stands for a field of a place, and has limits.
bool isLimit(const ElementTable& set, const Session::TunerItem& item)
{
    const QString group = item.id.section(QLatin1Char('.'), 0, -2);
    const Field* const field = group.isEmpty() ? nullptr : REPORTGENERATOR::findField(set, group);
    const ElementTable* const table = group.isEmpty() ? &set : field ? field->element : nullptr;
    const Place* const place = table ? placeOf(*table) : nullptr;
    const QString name = item.id.section(QLatin1Char('.'), -1);
    return place && item.hasRange && (name == place->first || (!place->isBand && name == place->second));
}

// From the lowest limit to the highest, per group of values: from and to of a scan have limits of their own.
void collectLimits(const JobXml::Node& node, QVector<FrequencyRange>* ranges)
{
    const REPORTGENERATOR::ParameterSet* const set = JobXml::findParameterSet(node.Getid());
    QMap<QString, FrequencyRange> byGroup;
    for (const JobXml::ValueItem& value : node.GetValueItem()) {
        const Session::TunerItem item = Session::tunerItem(value);
        if (!set || !isLimit(*set->table, item) || item.minimum > item.maximum)
            continue;
        const QString group = item.id.section(QLatin1Char('.'), 0, -2);
        const bool isFirst = !byGroup.contains(group);
        FrequencyRange& range = byGroup[group];
        range.from = isFirst ? qint64(item.minimum) : std::min(range.from, qint64(item.minimum));
        range.to = std::max(range.to, qint64(item.maximum));
    }
    for (const FrequencyRange& range : qAsConst(byGroup))
        ranges->append(range);
}

QVector<FrequencyRange> united(QVector<FrequencyRange> ranges)
{
    std::sort(ranges.begin(), ranges.end(),
              [](const FrequencyRange& left, const FrequencyRange& right) { return left.from < right.from; });
    QVector<FrequencyRange> result;
    for (const FrequencyRange& range : qAsConst(ranges)) {
        if (result.isEmpty() || range.from > result.last().to)
            result.append(range);
        else
            result.last().to = std::max(result.last().to, range.to);
    }
    return result;
}
} // namespace

namespace Session {

QString FrequencyRange::toText() const
{
    if (from == to)
        return frequencyText(from);
    return isBand ? QStringLiteral("%1 ± %2").arg(frequencyText(from + (to - from) / 2),
                                                  frequencyText((to - from) / 2))
                  : QStringLiteral("%1 … %2").arg(frequencyText(from), frequencyText(to));
}

FrequencyUse usedFrequencies(const JobXml::Subjob& subjob)
{
    FrequencyUse use;
    const JobXml::Settings& settings = subjob.GetSettings();
    const ElementTable& table = settings.table();
    for (int i = 0; i < table.fieldCount; ++i) {
        const Field& field = table.fields[i];
        const QString name = QLatin1String(field.name);
        if (field.element && REPORTGENERATOR::isFieldSet(settings, name))
            Collector(field, &use).collect(*childElement(settings, name), QString(), QString());
    }
    if (use.ranges.isEmpty() && use.untold.isEmpty())
        use.untold.append(Texts::tr("The settings name no frequencies"));
    return use;
}

FrequencyUse coveredFrequencies(const JEDVEPLUGIN::ResourceDescription& receiver)
{
    FrequencyUse use;
    for (const auto& component : receiver.getComponents()) {
        for (const JobXml::Node& node : component->getVtNodes())
            collectLimits(node, &use.ranges);
    }
    use.ranges = united(use.ranges);
    if (use.ranges.isEmpty())
        use.untold.append(Texts::tr("What the receiver covers cannot be told: its values have no limits"));
    return use;
}

QString frequencyText(qint64 frequency)
{
    return JobXml::readableQuantity(QString::number(frequency), QStringLiteral("Hz"));
}

} // namespace Session
