#pragma once

#include "mapcontrol.h"

/// Writes a picture of a map program of its own with what the plug-ins of this process draw on a map. The environment
/// must name a local socket that no other map program has, see MapControl::useMapOfItsOwn().
/// \param program  the map program
/// \return false if there is no such program, or the file could not be written
bool writeMapPicture(const QString& file, const QString& program = MapControl::defaultProgram());
