#pragma once

#include <jobxml/tunerproperties.h>
#include <QString>

namespace JedTest {

/// A component out of the text of its nodes, read as leniently as a tuner property file.
inline JobXml::Component component(const QString& nodes)
{
    JobXml::TunerProperties file;
    file.SetValidate(false);
    const bool isRead = file.SetXmlString(
        QStringLiteral("<TunerProperties name='n' type='HT720' baseresource='b' quantity='1'>"
                       "<Component type='Tuner' name='ADemComponent' optional='true'>%1</Component>"
                       "</TunerProperties>")
            .arg(nodes),
        true);
    return isRead ? file.GetComponent().value(0) : JobXml::Component();
}

/// A component with one node "Set" that holds the value items of \p items.
inline JobXml::Component withItems(const QString& items)
{
    return component(QStringLiteral("<Node id='Set'>%1</Node>").arg(items));
}

} // namespace JedTest
