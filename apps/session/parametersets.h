#pragma once

#include <QString>
#include <QStringList>
#include <reportlayer/elementtable.h>

/// Look-ups by name among parameter sets and the components that supply them.
namespace Session {

/// The parameter set whose content elements of this class are; constant, null if there is none.
const REPORTGENERATOR::ParameterSet* findParameterSet(const REPORTGENERATOR::ElementTable& table);
QStringList parameterSetNames();

/// The names of the components that supply some parameter set to some type of resource.
QStringList componentNames();

} // namespace Session
