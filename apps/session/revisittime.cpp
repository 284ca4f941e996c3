#include "revisittime.h"

#include <jobxml/quantity.h>

#include <algorithm>
#include <cmath>
#include <jobxml/job.h>
#include <QCoreApplication>
#include <QSet>
#include <reportlayer/elementtable.h>

using JobXml::HoldCriteria;
using JobXml::Scan_Settings;
using Session::durationText;
using Session::RevisitTime;

namespace {
constexpr double SECOND = 1000;
constexpr double MINUTE = 60 * SECOND;
constexpr double HOUR = 60 * MINUTE;
constexpr double DAY = 24 * HOUR;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::RevisitTime)
};

QString labelOf(const char* field)
{
    const REPORTGENERATOR::ElementTable& table = JobXml::Settings::fieldTable();
    return table.fields[table.fieldIndex(QLatin1String(field))].label();
}

RevisitTime unknown(RevisitTime revisit, const QString& reason)
{
    revisit.isKnown = false;
    revisit.notes = QStringList(reason);
    return revisit;
}

double settlingTime(const JobXml::FFM_Settings& tuner, bool isSet)
{
    return isSet ? tuner.GetSettlingTime() : 0;
}

// On a frequency where there is nothing.
double freeTime(const JobXml::Detail& detail)
{
    return std::max(detail.GetDwellTime(), detail.GetMeasurementTime());
}

qint64 stepCount(const Scan_Settings& scan)
{
    const JobXml::Range& range = scan.GetRange();
    const qint64 from = range.GetStartFrequency();
    const qint64 to = range.GetStopFrequency();
    const qint64 width = range.GetStepWidth();
    const qint64 all = width > 0 ? (to - from) / width + 1 : 1;
    QSet<qint64> suppressed;
    for (const qint64 frequency : scan.GetSuppressedFrequency()) {
        const qint64 step = width > 0 ? (frequency - from + width / 2) / width : 0;
        if (frequency >= from && frequency <= to && step < all)
            suppressed.insert(step);
    }
    return all - suppressed.size();
}

qint64 blockCount(const Scan_Settings& scan, qint64 bandwidth)
{
    const JobXml::Range& range = scan.GetRange();
    const qint64 width = range.GetStopFrequency() - range.GetStartFrequency();
    return std::max<qint64>(1, (width + bandwidth - 1) / bandwidth);
}

// What an occupied frequency does to the time.
QString occupiedNote(const Scan_Settings& scan, double free)
{
    const HoldCriteria& hold = scan.GetHoldCriteria();
    const bool isHeld = scan.IsHoldCriteriaSet() && hold.GetHold();
    if (isHeld && hold.GetResume() == HoldCriteria::RESUME_OPERATOR)
        return Texts::tr("The scan stays on an occupied frequency until the operator lets it go on");
    if (isHeld && hold.GetResume() == HoldCriteria::RESUME_SIGNALLOST)
        return Texts::tr("The scan stays on an occupied frequency until the signal is lost");
    const double stay = isHeld ? hold.GetHoldTime() : scan.GetRange().GetDetail().GetSignalTime();
    return Texts::tr("Each occupied frequency adds up to %1").arg(durationText(std::max(0.0, stay - free)));
}

QString stepNote(qint64 steps, double stay)
{
    return Texts::tr("%1 steps of %2").arg(QString::number(steps), durationText(stay));
}

RevisitTime ofScan(const Scan_Settings& scan, const JobXml::Settings& settings)
{
    RevisitTime result;
    const JobXml::Range& range = scan.GetRange();
    const JobXml::FFM_Settings& tuner = settings.GetFFM_Settings();
    result.source = labelOf("Scan_Settings");
    if (!range.GetName().isEmpty())
        result.source = Texts::tr("%1, %2").arg(result.source, range.GetName());
    const bool isPanorama = scan.GetMode() == Scan_Settings::MODE_PANORAMA;
    if (scan.GetMode() == Scan_Settings::MODE_MEMORY)
        return unknown(result, Texts::tr("The job does not name the stored channels"));
    if (range.GetStopFrequency() < range.GetStartFrequency())
        return unknown(result, Texts::tr("The scan ends before it begins"));
    if (!isPanorama && range.GetStepWidth() <= 0 && range.GetStopFrequency() != range.GetStartFrequency())
        return unknown(result, Texts::tr("The scan has no step width"));
    if (isPanorama && (!settings.IsFFM_SettingsSet() || tuner.GetBandwidth() <= 0))
        return unknown(result, Texts::tr("The bandwidth of the tuner is not known"));
    result.steps = isPanorama ? blockCount(scan, tuner.GetBandwidth()) : stepCount(scan);
    const double free = freeTime(range.GetDetail());
    const double stay = settlingTime(tuner, settings.IsFFM_SettingsSet()) + free;
    result.time = double(result.steps) * stay + scan.GetCyclePause();
    result.notes = QStringList{stepNote(result.steps, stay), occupiedNote(scan, free)};
    if (scan.GetDirection() == Scan_Settings::DIRECTION_ALTERNATING)
        result.notes.append(
            Texts::tr("At the ends of the range up to twice as long, since the direction changes"));
    if (scan.GetCycles() == 1)
        result.notes.append(Texts::tr("The scan runs once"));
    return result;
}

RevisitTime ofFrequencies(const JobXml::FrequencyListSettings& list, const JobXml::Settings& settings)
{
    RevisitTime result;
    result.source = labelOf("FrequencyListSettings");
    const QVector<JobXml::FrequencyItem>& items = list.GetFrequencyItem();
    result.steps = std::count_if(items.begin(), items.end(),
                                 [](const JobXml::FrequencyItem& item) { return item.GetActive(); });
    const double stay =
        settlingTime(settings.GetFFM_Settings(), settings.IsFFM_SettingsSet()) + list.GetDwellTime();
    result.time = double(result.steps) * stay;
    result.notes.append(stepNote(result.steps, stay));
    return result.steps > 0 ? result : unknown(result, Texts::tr("No entry of the list is used"));
}

RevisitTime ofTransmitters(const JobXml::TransmitterListSettings& list)
{
    RevisitTime result;
    result.source = labelOf("TransmitterListSettings");
    for (const JobXml::TransmitterItem& item : list.GetTransmitterItem()) {
        if (!item.GetActive())
            continue;
        ++result.steps;
        result.time +=
            settlingTime(item.GetFFM_Settings(), item.IsFFM_SettingsSet()) + freeTime(item.GetDetail());
    }
    if (result.steps == 0)
        return unknown(result, Texts::tr("No entry of the list is used"));
    result.notes.append(Texts::tr("%1 steps").arg(result.steps));
    return result;
}

// Two units, the smaller one left out when there is nothing of it.
QString twoUnits(qint64 count, qint64 ratio, const QString& large, const QString& small)
{
    const QString whole = QStringLiteral("%1 %2").arg(QString::number(count / ratio), large);
    return count % ratio == 0 ? whole
                              : whole + QStringLiteral(" %1 %2").arg(QString::number(count % ratio), small);
}
} // namespace

namespace Session {

QVector<RevisitTime> revisitTimes(const JobXml::Subjob& subjob)
{
    const JobXml::Settings& settings = subjob.GetSettings();
    QVector<RevisitTime> result;
    if (settings.IsScan_SettingsSet())
        result.append(ofScan(settings.GetScan_Settings(), settings));
    if (settings.IsFrequencyListSettingsSet())
        result.append(ofFrequencies(settings.GetFrequencyListSettings(), settings));
    if (settings.IsTransmitterListSettingsSet())
        result.append(ofTransmitters(settings.GetTransmitterListSettings()));
    return result;
}

QString durationText(double time)
{
    const QString minutes = QStringLiteral("min");
    const QString hours = QStringLiteral("h");
    if (std::round(time) < SECOND)
        return QStringLiteral("%1 ms").arg(QString::number(std::round(time)));
    if (std::round(time / SECOND) < 60)
        return QStringLiteral("%1 s").arg(QString::number(time / SECOND, 'g', 3));
    if (std::round(time / SECOND) < 3600)
        return twoUnits(std::llround(time / SECOND), 60, minutes, QStringLiteral("s"));
    if (std::round(time / MINUTE) < DAY / MINUTE)
        return twoUnits(std::llround(time / MINUTE), 60, hours, minutes);
    return twoUnits(std::llround(time / HOUR), 24, QStringLiteral("d"), hours);
}

} // namespace Session
