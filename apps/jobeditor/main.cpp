#include <jobeditor/batch.h>
#include <jobeditor/editorwindow.h>

#include <QCommandLineParser>
#include <QMessageBox>
#include <QSettings>
#include <session/application.h>
#include <session/installation.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const std::unique_ptr<QApplication> application = Session::makeApplication(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("jobeditor"));
    QCoreApplication::setOrganizationName(QStringLiteral("jobeditorve"));
    QCoreApplication::setApplicationVersion(QStringLiteral(JED_VERSION));
    QCommandLineParser parser;
    const auto text = [](const char* source) { return QCoreApplication::translate("main", source); };
    parser.setApplicationDescription(text("Composes jobs for radio monitoring."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({{QStringLiteral("installation"), text("Folder of the installation."), text("DIR")},
                       {QStringLiteral("plugin-dir"), text("A further folder with plug-ins."), text("DIR")},
                       {QStringLiteral("clean-settings"), text("Forget window places and recent jobs.")},
                       {QStringLiteral("batch"), text("Run a scenario without a person."), text("FILE")},
                       {QStringLiteral("dark"), text("Light colours on dark windows.")}});
    parser.addPositionalArgument(QStringLiteral("job"), text("Job file to open."), QStringLiteral("[job]"));
    parser.process(*application);

    if (parser.isSet(QStringLiteral("clean-settings")))
        QSettings().clear();
    const QString scenario = parser.value(QStringLiteral("batch"));
    const bool isDark = parser.isSet(QStringLiteral("dark"));
    if (!scenario.isEmpty())
        standAlone();
    if (isDark || !scenario.isEmpty())
        useFixedLooks(isDark);
    QString error;
    if (!Session::chooseInstallation(parser.value(QStringLiteral("installation")),
                                     QStringLiteral(JED_EXAMPLE_INSTALLATION), &error) ||
        !Session::useLanguage(&error)) {
        if (!scenario.isEmpty())
            return failBatch(error);
        QMessageBox::warning(nullptr, text("Job editor"), error);
    }
    Session::PluginHost host;
    host.load(parser.values(QStringLiteral("plugin-dir")) + Session::PluginHost::defaultFolders());
    Session::JobSession session(host.factories());
    EditorWindow window(&host, &session);
    if (!scenario.isEmpty())
        return runBatch(scenario, &window, &session);
    window.restoreLayout();
    window.show();
    if (!parser.positionalArguments().isEmpty())
        window.openFile(parser.positionalArguments().first());
    window.offerRecovery();
    return QApplication::exec();
}
