#pragma once

#include <QtTest>
#include <quilappstartup/cfgcenter.h>
#include <resourcedescription.h>
#include <session/finding.h>

namespace JedTest {

/// The receivers of the example station.
inline QList<std::shared_ptr<JEDVEPLUGIN::ResourceDescription>> stationResources()
{
    QLoggingCategory::setFilterRules(QStringLiteral("jobeditorve.trace=false"));
    CfgCenter::Instance()->SetInstallation(QStringLiteral(JED_SOURCE_DIR "/installation"));
    return JEDVEPLUGIN::ResourceDescription::readAllResourceFiles();
}

/// The findings as text, one after the other.
inline QString textOf(const Session::Findings& findings)
{
    QStringList lines;
    for (const Session::Finding& finding : findings)
        lines.append(finding.toText());
    return lines.join('\n');
}

} // namespace JedTest
