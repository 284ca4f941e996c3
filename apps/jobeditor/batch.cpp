#include "batch.h"

#include "editorwindow.h"
#include "importdialog.h"
#include "mapcontrol.h"
#include "mappicture.h"
#include "rulespane.h"

#include <isubsetting.h>
#include <jedcommonhelper.h>
#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QDockWidget>
#include <QPalette>
#include <QPixmap>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <resourcedescription.h>
#include <resourceselectiondialog.h>
#include <session/fieldplaces.h>
#include <session/headlessdialogs.h>
#include <session/rulelog.h>
#include <session/savefile.h>
#include <session/sessionrunner.h>

using Session::Finding;
using Session::JobSession;
using Session::Scenario;
using Session::SessionRunner;

namespace {
class WindowArtist : public SessionRunner::Artist
{
public:
    WindowArtist(EditorWindow* window, JobSession* session)
        : m_window(window)
        , m_session(session)
    {
    }

    bool drawSetting(JobSession::Setting* current, const QString& file) override
    {
        m_window->setCurrentSetting(current);
        return write(m_window, file);
    }

    bool drawDialog(const QString& type, const QString& detector, const QString& file) override
    {
        JEDVEPLUGIN::ResourceSelectionDialog dialog(JEDVEPLUGIN::ResourceDescription::readAllResourceFiles(),
                                                    true, true, true, JobXml::Subjob::GetStartupModes(),
                                                    m_window);
        const auto choose = [&dialog](const char* name, const QString& text) {
            if (auto* const box = dialog.findChild<QComboBox*>(QLatin1String(name)))
                box->setCurrentIndex(box->findText(text));
        };
        choose("ResourceSelection_TunerType", type);
        choose("ResourceSelection_DetectorType", JEDVEPLUGIN::JEDCommonHelper::detectorTypeToGUI(detector));
        dialog.show();
        return write(&dialog, file);
    }

    bool drawDock(const QString& name, JobSession::Setting* current, const QString& file) override
    {
        auto* const dock = m_window->findChild<QDockWidget*>(name + QStringLiteral("Dock"));
        if (!dock)
            return false;
        dock->show();
        dock->raise();
        m_window->setCurrentSetting(current);
        return write(m_window, file);
    }

    bool drawMap(JobSession::Setting* current, const QString& file) override
    {
        m_window->setCurrentSetting(current);
        return writeMapPicture(file);
    }

    bool drawImport(JobSession::Setting* target, const QString& list, const QString& file) override
    {
        ImportDialog dialog(m_session, target, m_window);
        dialog.readFile(list);
        dialog.show();
        return write(&dialog, file);
    }

    bool drawWindow(const QString& name, JobSession::Setting* current, const QString& file) override
    {
        auto* const action = m_window->findChild<QAction*>(name + QStringLiteral("Action"));
        m_window->setCurrentSetting(current);
        if (!action || !action->isEnabled())
            return false;
        bool isWritten = false;
        QTimer::singleShot(0, m_window, [&isWritten, &file] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            isWritten = dialog && write(dialog, file);
            if (dialog)
                dialog->reject();
        });
        action->trigger();
        return isWritten;
    }

private:
    static bool write(QWidget* widget, const QString& file)
    {
        // Widgets are laid out when their events have come.
        QApplication::processEvents();
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        return widget->grab().save(&buffer, "PNG") && Session::saveFile(file, bytes, nullptr);
    }

    EditorWindow* m_window; // Not owned.
    JobSession* m_session;  // Not owned.
};

QString titleOf(const JobSession::Setting* setting)
{
    const auto* const above = setting->parent();
    return above ? QStringLiteral("%1 / %2").arg(titleOf(above), setting->getDisplayName())
                 : setting->getDisplayName();
}

// One line for each value that stands as a rule has set it. Not translated: scripts read it.
QString valuesSetByRules(const JobSession& session, const Session::RuleLog& log)
{
    QStringList paths = log.marks().keys();
    paths.sort();
    QString result;
    for (const QString& path : qAsConst(paths)) {
        const Session::RuleMark mark = log.marks().value(path);
        const Session::FieldPlace place = Session::findField(session, path);
        result += QStringLiteral("Set by rules: %1 / %2 %3 -> %4 (%5)\n")
                      .arg(place.setting ? titleOf(place.setting) : path, Session::fieldLabel(path),
                           mark.before, mark.after, mark.function);
    }
    return result;
}

int fail(const Finding& finding)
{
    QTextStream(stderr) << finding.toText() << '\n';
    return 2;
}
} // namespace

int runBatch(const QString& scenarioFile, EditorWindow* window, JobSession* session)
{
    const Session::HeadlessDialogs dialogs;
    QByteArray bytes;
    QString reason;
    if (!Session::readFile(scenarioFile, &bytes, &reason))
        return fail({Finding::FAILURE, scenarioFile, 0, 0, reason, QString()});
    Scenario scenario;
    Finding finding;
    if (!scenario.parse(Session::decodedText(bytes), scenarioFile, &finding))
        return fail(finding);
    QObject::connect(session, &JobSession::jobReplaced, window, &EditorWindow::showJob);
    window->show();
    WindowArtist artist(window, session);
    SessionRunner runner(session, &artist);
    const bool isDone = runner.run(scenario);
    for (const Finding& found : runner.findings())
        QTextStream(stderr) << found.toText() << '\n';
    for (const QString& file : runner.files())
        QTextStream(stdout) << file << '\n';
    if (const auto* const rules = window->findChild<RulesPane*>())
        QTextStream(stdout) << valuesSetByRules(*session, rules->log());
    return isDone ? 0 : 1;
}

void standAlone()
{
    MapControl::useMapOfItsOwn();
    static const QTemporaryDir s_folder;
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat})
        QSettings::setPath(format, QSettings::UserScope, s_folder.path());
}

int failBatch(const QString& reason)
{
    return fail({Finding::FAILURE, QString(), 0, 0, reason, QString()});
}

void useFixedLooks(bool isDark)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    QPalette palette(isDark ? QColor(53, 53, 53) : QColor(239, 239, 239));
    palette.setColor(QPalette::Base, isDark ? QColor(35, 35, 35) : QColor(Qt::white));
    palette.setColor(QPalette::AlternateBase, isDark ? QColor(45, 45, 45) : QColor(247, 247, 247));
    palette.setColor(QPalette::ToolTipBase, palette.color(QPalette::Base));
    palette.setColor(QPalette::ToolTipText, palette.color(QPalette::Text));
    palette.setColor(QPalette::Highlight, isDark ? QColor(42, 130, 218) : QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, isDark ? QColor(150, 150, 150) : QColor(110, 110, 110));
    QApplication::setPalette(palette);
}
