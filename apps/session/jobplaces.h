#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace JobXml {
class Subjob;
}
namespace REPORTGENERATOR {
struct ParameterSet;
}

/// Which parameter sets a job file holds, and where.
namespace Session {

/// A parameter set that a sub-job carries.
struct CarriedSet
{
    const REPORTGENERATOR::ParameterSet* set; ///< constant, never null
    QString xml;                              ///< its element, in the layout that elements are written in
};

/// The parameter sets that are set in a sub-job, in the order of the file.
QList<CarriedSet> carriedSets(const JobXml::Subjob& subjob);

/// Puts the text of a parameter set where the library's job file handler wants it.
void putParameterSet(const QString& name, const QString& xml, JobXml::Subjob* subjob);

/// What of a parameter set's text a job file cannot hold: "SET" if all of it, else "SET/PART" for each field or group that
/// the job file handler takes out.
QStringList lostParts(const QString& name, const QString& xml);

/// Whether a parameter set of that name finds a place in a job file.
bool isCarriedByJobFile(const QString& name);

} // namespace Session
