#pragma once

#include <QJsonObject>
#include <QString>

namespace REPORTGENERATOR {
class IRGObject;
}

/// File elements in readable form, guided by their field tables.
namespace Session {

/// What is set in an element, one line each: label, value and unit, groups and lists with what they hold indented
/// below. Parameter sets are named as well as labelled. What no table knows is not shown.
/// \param indent  blanks before each line
QString outlineText(const REPORTGENERATOR::IRGObject& element, int indent);

/// The same for programs: names and values as in the file, lists as arrays, numbers as numbers.
QJsonObject outlineJson(const REPORTGENERATOR::IRGObject& element);

} // namespace Session
