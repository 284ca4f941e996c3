#pragma once

#include <jobxml/job.h>
#include <quilappstartup/cfgcenter.h>
#include <resourceselectiondialog.h>
#include <support/plugindriver.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QTimer>

namespace JedTest {

/// Makes the example station the installation of the process, with the GUI components of this build.
inline void useStation()
{
    qunsetenv(CfgCenter::ENVIRONMENT_VARIABLE);
    CfgCenter::Instance()->SetInstallation(QStringLiteral(JED_SOURCE_DIR "/installation"));
    CfgCenter::Instance()->AddComponentFolder(QStringLiteral(JED_COMPONENTS));
}

/// A plug-in of this build.
class LoadedPlugin : public PluginDriver
{
public:
    /// \param name  "minimal"
    explicit LoadedPlugin(const QString& name, const QString& path = QStringLiteral("/Test/"),
                          const QString& rulesDir = QString())
        : PluginDriver(
              QStringLiteral("%1/lib%2.so").arg(name == "minimal" ? JED_EXAMPLE_PLUGINS : JED_PLUGINS, name),
              path, rulesDir)
    {
    }
};

/// A sub-job that names a receiver and nothing else.
inline JobXml::Subjob subjobOn(const QString& type, const QString& baseResource,
                               const QString& name = "Watch")
{
    JobXml::Subjob subjob;
    subjob.SetName(name);
    subjob.SetStartupMode(JobXml::Subjob::NameToStartupMode("Automatic"));
    subjob.GetResourceDescription().SetType(JobXml::ResourceDescription::NameToType(type));
    subjob.GetResourceDescription().SetBaseResource(baseResource);
    return subjob;
}

/// An example job of the station.
inline JobXml::Job exampleJob(const QString& name)
{
    QFile file(QStringLiteral(JED_SOURCE_DIR "/installation/Jobs/%1.xml").arg(name));
    JobXml::Job job;
    if (!file.open(QIODevice::ReadOnly) || !job.SetXmlString(QString::fromUtf8(file.readAll()), true))
        qFatal("no job %s", qPrintable(name));
    return job;
}

/// Whether a job that holds the sub-job follows the schema.
inline bool isValidInJob(const JobXml::Subjob& subjob, QString* reason)
{
    JobXml::Job job;
    job.GetJobInformation().SetJobType(JobXml::JobInformation::JOBTYPE_SEARCH);
    job.GetJobInformation().SetName("Job");
    job.AppendSubjob(subjob);
    JobXml::Job read;
    read.SetXmlString(job.GetXmlString(true), true);
    read.SetValidate(true);
    const bool isValid = read.Check();
    *reason = read.GetCheckReason();
    return isValid;
}

/// Answers the resource selection dialog that comes up next.
/// \param resource  "TYPE/BASE" to choose; empty: cancel
inline void answerDialog(const QString& resource)
{
    QTimer::singleShot(0, qApp, [resource] {
        auto* const dialog =
            qobject_cast<JEDVEPLUGIN::ResourceSelectionDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            qFatal("no dialog");
        if (resource.isEmpty()) {
            dialog->findChild<QAbstractButton*>("ResourceSelection_CancelButton")->click();
            return;
        }
        dialog->findChild<QComboBox*>("ResourceSelection_TunerType")
            ->setCurrentText(resource.section('/', 0, 0));
        dialog->findChild<QComboBox*>("ResourceSelection_BaseResource")
            ->setCurrentText(resource.section('/', 1));
        dialog->findChild<QAbstractButton*>("ResourceSelection_OkButton")->click();
    });
}

} // namespace JedTest
