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
/// \return what of the set did not get there: the names of its fields or groups that the handler takes out
QStringList putParameterSet(const QString& name, const QString& xml, JobXml::Subjob* subjob);

/// Whether a parameter set of that name finds a place in a job file.
bool isCarriedByJobFile(const QString& name);

} // namespace Session
