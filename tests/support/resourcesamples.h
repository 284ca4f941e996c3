#pragma once

#include "resourcedescription.h"

#include <QStringList>

#include <memory>

namespace JedTest {

using DescriptionPtr = std::shared_ptr<JEDVEPLUGIN::ResourceDescription>;

/// A description as it is read from a tuner property file without components. The type is free.
inline DescriptionPtr resource(const QString& type, const QString& base, const QString& parent, int quantity)
{
    const QString parentAttribute =
        parent.isEmpty() ? QString() : QStringLiteral("parentBaseResource='%1'").arg(parent.toHtmlEscaped());
    auto description = std::make_shared<JEDVEPLUGIN::ResourceDescription>(
        QStringLiteral(
            "<TunerProperties version='1.1' name='%1' type='HT720' baseresource='%1' quantity='%2' %3>"
            "<Component type='Tuner' name='ADemComponent' optional='false'/></TunerProperties>")
            .arg(base.toHtmlEscaped(), QString::number(quantity), parentAttribute));
    description->setType(type);
    return description;
}

/// Descriptions of type "T" out of texts "base quantity [parent]".
inline QList<DescriptionPtr> resources(const QStringList& texts)
{
    QList<DescriptionPtr> descriptions;
    for (const QString& text : texts) {
        descriptions << resource("T", text.section(' ', 0, 0), text.section(' ', 2),
                                 text.section(' ', 1, 1).toInt());
    }
    return descriptions;
}

} // namespace JedTest
