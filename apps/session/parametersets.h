#pragma once

#include <QString>
#include <QStringList>

/// Look-ups by name among parameter sets and the components that supply them.
namespace Session {

QStringList parameterSetNames();

/// The names of the components that supply some parameter set to some type of resource.
QStringList componentNames();

} // namespace Session
