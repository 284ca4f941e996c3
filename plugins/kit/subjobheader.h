#pragma once

#include <enjobtype.h>

#include <QStringList>
#include <resourceuse.h>

namespace JobXml {
class Subjob;
}

namespace PluginKit {

/// A sub-job without its parameter sets: name, start-up mode, receiver, pre-classifier, detectors.
JobXml::Subjob headerOf(const JobXml::Subjob& subjob);

/// Makes these things of a sub-job those of the header. What is the same already is not touched, so that the sub-job
/// is written as it was.
void writeHeader(const JobXml::Subjob& header, JobXml::Subjob* subjob);

/// The receivers that a sub-job takes: its own, those of its detectors' channels, and those that detectors use by
/// themselves.
/// \param setting  whom they are told for; may be null
QList<JEDVEPLUGIN::ResourceUse> resourcesOf(const JobXml::Subjob& subjob, JEDVEPLUGIN::ISubSetting* setting);

/// The start-up modes that can be chosen in a job of that type.
/// \param offered  those of the receiver; empty: it leaves the choice to the job
QStringList startupModes(const QStringList& offered, JEDVE::enJOB_TYPE jobType);

} // namespace PluginKit
