#pragma once

#include <problem.h>
#include <QList>
#include <QString>
#include <QStringList>

class Node;

namespace JobXml {
class Subjob;
}
namespace REPORTGENERATOR {
struct ElementTable;
struct ParameterSet;
} // namespace REPORTGENERATOR

/// Which parameter sets a job file holds, and where.
namespace PluginKit {

/// A parameter set that a sub-job carries.
struct CarriedSet
{
    const REPORTGENERATOR::ParameterSet* set; ///< constant, never null
    QString xml;                              ///< its element, in the layout that elements are written in
};

/// The parameter set whose content elements of this class are; constant, null if there is none.
const REPORTGENERATOR::ParameterSet* findParameterSet(const REPORTGENERATOR::ElementTable& table);

/// The parameter sets that are set in a sub-job, in the order of the file.
QList<CarriedSet> carriedSets(const JobXml::Subjob& subjob);

/// Puts the text of a parameter set where the library's job file handler wants it.
void putParameterSet(const QString& name, const QString& xml, JobXml::Subjob* subjob);

/// The same, and tells as warnings what a job file cannot hold. It takes nothing of a set that has no place in it.
QList<JEDVEPLUGIN::Problem> putText(const QString& name, const QString& xml, JobXml::Subjob* subjob);

/// The same with the values of a parameter set.
/// \param set   a node of the value tree that is named by the parameter set
/// \param base  text of the same set that gives what the node has no value for; may be empty
/// \return before the warnings, an error for each value that is lost on the way
QList<JEDVEPLUGIN::Problem> putValues(const Node& set, const QString& base, JobXml::Subjob* subjob);

/// Takes a parameter set out of a sub-job.
void removeParameterSet(const QString& name, JobXml::Subjob* subjob);

/// What of a parameter set's text a job file cannot hold: "SET" if all of it, else "SET/PART" for each field or group that
/// the job file handler takes out.
QStringList lostParts(const QString& name, const QString& xml);

/// Whether a parameter set of that name finds a place in a job file.
bool isCarriedByJobFile(const QString& name);

} // namespace PluginKit
