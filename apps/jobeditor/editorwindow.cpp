#include "editorwindow.h"

#include "editorpane.h"
#include "fieldfocus.h"
#include "frequencypane.h"
#include "mapcontrol.h"
#include "problemspane.h"
#include "recoverydialog.h"
#include "resourcepane.h"
#include "rulespane.h"
#include "startpage.h"
#include "tracepane.h"
#include "treepane.h"

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <jobxml/job.h>
#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <session/jobsession.h>

using JEDVEPLUGIN::ISubSetting;
using Session::Findings;
using Session::JobSession;
using Session::LeftJob;
using Session::Recovery;

namespace {
constexpr int DOCK_HEIGHT = 200;

// What cannot be used says why.
void setUsable(QAction* action, const QString& obstacle)
{
    action->setEnabled(obstacle.isEmpty());
    action->setToolTip(obstacle.isEmpty() ? action->whatsThis() : obstacle);
}
} // namespace

EditorWindow::EditorWindow(Session::PluginHost* host, JobSession* session)
    : m_host(host)
    , m_session(session)
    , m_watcher(new QFileSystemWatcher(this))
    , m_recovery(new Recovery(session, Recovery::defaultFolder(), this))
    , m_pages(new QStackedWidget(this))
    , m_startPage(new StartPage(this))
    , m_tree(new TreePane(session, this))
    , m_editor(new EditorPane(this))
    , m_map(new MapControl(this, session))
{
    setObjectName(QStringLiteral("jobEditor"));
    resize(1100, 780);
    auto* const splitter = new QSplitter(this);
    splitter->setObjectName(QStringLiteral("splitter"));
    splitter->addWidget(m_tree);
    splitter->addWidget(m_editor);
    splitter->setStretchFactor(1, 3);
    m_pages->addWidget(m_startPage);
    m_pages->addWidget(splitter);
    setCentralWidget(m_pages);
    statusBar();
    buildDocks();
    buildFileMenu();
    buildEditMenu();
    buildViewMenu();
    buildHelpMenu();
    for (QMenu* menu : menuBar()->findChildren<QMenu*>())
        menu->setToolTipsVisible(true);

    connect(m_startPage, &StartPage::newJobWanted, this, &EditorWindow::newJob);
    connect(m_startPage, &StartPage::openWanted, this, &EditorWindow::openFile);
    connect(m_tree, &TreePane::currentChanged, this, &EditorWindow::showCurrent);
    connect(session, &JobSession::structureChanged, this, &EditorWindow::updateActions);
    connect(session, &JobSession::settingChanged, this, &EditorWindow::updateActions);
    connect(session->undoStack(), &QUndoStack::indexChanged, this, &EditorWindow::updateTitle);
    connect(session->undoStack(), &QUndoStack::cleanChanged, this, &EditorWindow::updateTitle);
    connect(m_watcher, &QFileSystemWatcher::fileChanged, this, &EditorWindow::fileChanged);
    connect(m_recovery, &Recovery::failed, this, [this](const QString& reason) {
        statusBar()->showMessage(tr("No copy of the job for recovery could be kept: %1").arg(reason));
    });
    showStart();
}

void EditorWindow::newJob(JEDVE::enJOB_TYPE type)
{
    if (!askToSave())
        return;
    m_editor->clear();
    m_session->begin(type, JobXml::JobInformation::GetGUIJobTypes().value(int(type)));
    watchFile(QString());
    showJob();
}

bool EditorWindow::openFile(const QString& path)
{
    if (!askToSave())
        return false;
    m_editor->clear();
    Findings findings;
    const bool isOpen = m_session->open(path, &findings);
    if (isOpen) {
        remember(path);
        showOpened();
    }
    if (Session::needsAttention(findings))
        tell(isOpen ? tr("The job was opened, but not all of it was understood.")
                    : tr("The job could not be opened."),
             findings);
    return isOpen;
}

void EditorWindow::showOpened()
{
    watchFile(m_session->document().path());
    showJob();
    m_tree->setCurrentSetting(m_session->settingAt({0}));
}

bool EditorWindow::offerRecovery()
{
    const QList<LeftJob> jobs = Recovery::leftJobs(Recovery::defaultFolder());
    if (jobs.isEmpty())
        return false;
    RecoveryDialog dialog(jobs, this);
    if (dialog.exec() != QDialog::Accepted || !askToSave())
        return true;
    m_editor->clear();
    Findings findings;
    const bool isOpen = m_recovery->recover(dialog.chosen(), &findings);
    if (isOpen)
        showOpened();
    if (Session::needsAttention(findings))
        tell(isOpen ? tr("The job was recovered, but there is something to know about it.")
                    : tr("The job could not be recovered."),
             findings);
    return true;
}

void EditorWindow::setCurrentSetting(ISubSetting* setting)
{
    m_tree->setCurrentSetting(setting);
}

void EditorWindow::restoreLayout()
{
    const QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray());
    restoreState(settings.value(QStringLiteral("window/state")).toByteArray());
}

void EditorWindow::closeEvent(QCloseEvent* event)
{
    if (!askToSave())
        return event->ignore();
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/state"), saveState());
    m_editor->clear();
    event->accept();
}

void EditorWindow::buildDocks()
{
    const auto add = [this](const QString& name, const QString& title, QWidget* content) {
        auto* const dock = new QDockWidget(title, this);
        dock->setObjectName(name);
        dock->setWidget(content);
        addDockWidget(Qt::BottomDockWidgetArea, dock);
        // A dock behind another one is not hidden but out of sight: the focus is not to go there.
        connect(dock, &QDockWidget::visibilityChanged, content, &QWidget::setEnabled);
        return dock;
    };
    m_problems = new ProblemsPane(m_session, this);
    QDockWidget* const problems = add(QStringLiteral("problemsDock"), tr("Problems"), m_problems);
    auto* const resources = new ResourcePane(m_session, this);
    QDockWidget* const receivers = add(QStringLiteral("resourcesDock"), tr("Receivers"), resources);
    QDockWidget* const trace = add(QStringLiteral("traceDock"), tr("Messages"), new TracePane(this));
    auto* const frequencies = new FrequencyPane(m_session, this);
    QDockWidget* const strip = add(QStringLiteral("frequenciesDock"), tr("Frequencies"), frequencies);
    tabifyDockWidget(problems, strip);
    tabifyDockWidget(strip, receivers);
    tabifyDockWidget(receivers, trace);
    m_rules = new RulesPane(m_session, this);
    QDockWidget* const rules = add(QStringLiteral("rulesDock"), tr("Rules"), m_rules);
    tabifyDockWidget(receivers, rules);
    problems->raise();
    resizeDocks({problems}, {DOCK_HEIGHT}, Qt::Vertical);
    connect(m_problems, &ProblemsPane::problemChosen, this, &EditorWindow::showField);
    connect(m_problems, &ProblemsPane::subjobChosen, m_tree, &TreePane::setCurrentSubjob);
    connect(resources, &ResourcePane::subjobChosen, m_tree, &TreePane::setCurrentSubjob);
    connect(m_rules, &RulesPane::fieldChosen, this, &EditorWindow::showField);
    connect(m_rules, &RulesPane::faultCountChanged, this, [rules](int count) {
        rules->setWindowTitle(count == 0 ? tr("Rules") : tr("Rules (%1 failed)").arg(count));
    });
    connect(frequencies, &FrequencyPane::fieldChosen, this, &EditorWindow::showField);
    connect(frequencies, &FrequencyPane::subjobChosen, m_tree, &TreePane::setCurrentSubjob);
    connect(m_problems, &ProblemsPane::countChanged, this, [problems](int count) {
        problems->setWindowTitle(count == 0 ? tr("Problems") : tr("Problems (%1)").arg(count));
    });
}

bool EditorWindow::saveTo(const QString& path)
{
    Findings findings;
    m_watcher->removePaths(m_watcher->files());
    const bool isSaved = m_session->save(path, &findings);
    if (isSaved) {
        remember(path);
        watchFile(path);
        statusBar()->showMessage(tr("Saved as %1").arg(QDir::toNativeSeparators(path)), 5000);
    }
    if (Session::needsAttention(findings))
        tell(isSaved ? tr("The job was saved, but the file cannot hold all of it.")
                     : tr("The job was not saved."),
             findings);
    updateTitle();
    return isSaved;
}

void EditorWindow::remember(const QString& path)
{
    QStringList files = recentJobs();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    files.removeAll(absolute);
    files.prepend(absolute);
    QSettings().setValue(QStringLiteral("recentJobs"), QStringList(files.mid(0, 8)));
}

QStringList EditorWindow::recentJobs() const
{
    return QSettings().value(QStringLiteral("recentJobs")).toStringList();
}

void EditorWindow::watchFile(const QString& path)
{
    if (!m_watcher->files().isEmpty())
        m_watcher->removePaths(m_watcher->files());
    if (!path.isEmpty())
        m_watcher->addPath(path);
}

void EditorWindow::showField(ISubSetting* setting, const QString& parameterSet, const QString& field)
{
    m_tree->setCurrentSetting(setting);
    if (QWidget* const editor = setting->getWidget())
        focusField(editor, parameterSet, field);
}

void EditorWindow::showJob()
{
    m_hasJob = true;
    m_pages->setCurrentIndex(1);
    m_tree->setFocus();
    showCurrent();
    updateTitle();
}

void EditorWindow::showStart()
{
    m_hasJob = false;
    m_startPage->setRecentJobs(recentJobs());
    m_startPage->setExampleJobs(exampleJobs());
    m_pages->setCurrentIndex(0);
    updateActions();
    updateTitle();
}

void EditorWindow::showCurrent()
{
    m_session->flushEdits();
    m_session->endEditStep();
    const int unclaimed = m_tree->currentUnclaimed();
    m_editor->show(m_tree->currentSetting(),
                   unclaimed >= 0
                       ? tr("This sub-job is kept as it is. %1").arg(m_session->topLevel(unclaimed).reason)
                       : tr("Add a setting, or select one in the tree."));
    m_rules->markFields(m_tree->currentSetting() ? m_tree->currentSetting()->getWidget() : nullptr);
    updateActions();
}

void EditorWindow::updateActions()
{
    ISubSetting* const setting = m_tree->currentSetting();
    const QString noJob = m_hasJob ? QString() : tr("There is no job yet");
    const QString locked =
        m_hasJob && m_session->isReadOnly() ? tr("The job is open for looking only") : noJob;
    QString noSetting = m_hasJob && !setting ? tr("No setting is selected in the tree") : noJob;
    for (QAction* action : qAsConst(m_jobActions))
        setUsable(action, noJob);
    for (QAction* action : qAsConst(m_changeActions))
        setUsable(action, locked);
    setUsable(m_copy, noSetting);
    m_readOnly->setChecked(m_session->isReadOnly());
    const QUndoStack* const steps = m_session->undoStack();
    setUsable(m_undo, locked.isEmpty() && !steps->canUndo() ? tr("There is nothing to be undone") : locked);
    setUsable(m_redo,
              locked.isEmpty() && !steps->canRedo() ? tr("There is nothing to be done again") : locked);
    if (setting && setting->isReadOnly())
        noSetting = tr("The setting cannot be changed");
    for (QAction* action : qAsConst(m_settingActions))
        setUsable(action, noSetting);
}

void EditorWindow::setReadOnly(bool readOnly)
{
    m_session->setReadOnly(readOnly);
    updateTitle();
}

void EditorWindow::updateTitle()
{
    const QString name = m_session->document().job().GetJobInformation().GetName();
    const QString path = m_session->document().path();
    setWindowModified(m_hasJob && m_session->isModified());
    setWindowFilePath(m_hasJob ? path : QString());
    const QString shown = path.isEmpty() ? name : QFileInfo(path).fileName();
    setWindowTitle(!m_hasJob                 ? tr("Job editor")
                   : m_session->isReadOnly() ? tr("%1[*] (read only) - Job editor").arg(shown)
                                             : tr("%1[*] - Job editor").arg(shown));
}
