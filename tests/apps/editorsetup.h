#pragma once

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QSettings>
#include <session/installation.h>

namespace JedTest {

/// What tests of the editor's windows begin with: the example station, settings in files, no traces on stderr.
inline void useEditorStation()
{
    QLoggingCategory::setFilterRules(QStringLiteral("jobeditorve.trace=false"));
    QCoreApplication::setOrganizationName(QStringLiteral("jobeditorve-tests"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QString error;
    if (!Session::chooseInstallation(QStringLiteral(JED_SOURCE_DIR "/installation"), QString(), &error))
        qFatal("%s", qPrintable(error));
}

} // namespace JedTest
