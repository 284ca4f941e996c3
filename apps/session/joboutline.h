#pragma once

#include <QJsonObject>
#include <QString>
#include <QVector>

namespace REPORTGENERATOR {
class IRGObject;
struct Field;
} // namespace REPORTGENERATOR

/// File elements in readable form, guided by their field tables.
namespace Session {

/// One thing that is set in an element, or the title of a group.
struct OutlineRow
{
    int level;     ///< 0 for what the element holds itself
    QString label; ///< a parameter set is named as well as labelled
    QString value; ///< with its unit, on one line
    bool isGroup;
    const REPORTGENERATOR::Field* field; ///< what the schema says about it; constant, never null
};

/// What is set in an element, in the order of the file. What no table knows is left out.
QVector<OutlineRow> outlineRows(const REPORTGENERATOR::IRGObject& element);

/// What is set in an element, one line each: label, value and unit, groups and lists with what they hold indented
/// below.
/// \param indent  blanks before each line
QString outlineText(const REPORTGENERATOR::IRGObject& element, int indent);

/// The same for programs: names and values as in the file, lists as arrays, numbers as numbers.
QJsonObject outlineJson(const REPORTGENERATOR::IRGObject& element);

} // namespace Session
