#pragma once

#include <QString>
#include <QVector>
#include <reportlayer/elementtable.h>

namespace JedTest {

/// A field of a parameter set under the path that it has below the set's element.
struct PathAndField
{
    QString path;
    const REPORTGENERATOR::Field* field;
};

/// The simple fields below an element, depth first. Groups that are repeated are left out unless \p withRepeated.
inline QVector<PathAndField> settingFields(const REPORTGENERATOR::ElementTable& table,
                                           bool withRepeated = false, const QString& prefix = QString())
{
    QVector<PathAndField> result;
    for (int i = 0; i < table.fieldCount; ++i) {
        const REPORTGENERATOR::Field& field = table.fields[i];
        const QString path = prefix + QLatin1String(field.name);
        if (field.kind != REPORTGENERATOR::FieldKind::Element)
            result.append({path, &field});
        else if (withRepeated || !field.list)
            result += settingFields(*field.element, withRepeated, path + QLatin1Char('.'));
    }
    return result;
}

} // namespace JedTest
