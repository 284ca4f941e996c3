#pragma once

#include <QString>
#include <QStringList>

namespace JobXml {
class ValueItem;
}
namespace REPORTGENERATOR {
struct Field;
}

namespace Session {

/// What the ten kinds of value items of a tuner property file have in common.
struct TunerItem
{
    QString id;
    bool isNumber = false;
    bool hasRange = false;
    double value = 0; ///< a selection's: position of the default
    double minimum = 0;
    double maximum = 0;
    double step = 0;
    bool isSelection = false;
    QStringList items; ///< of a selection or a list
};

/// An item without an id if the file's item is of no known kind.
TunerItem tunerItem(const JobXml::ValueItem& item);

/// What is wrong with an item for the field that it stands for, one sentence part each: a default outside its range,
/// a range that is empty or reaches beyond that of the field, selection items that the field does not know.
QStringList tunerItemFaults(const TunerItem& item, const REPORTGENERATOR::Field& field);

} // namespace Session
