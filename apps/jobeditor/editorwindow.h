#pragma once

#include <enjobtype.h>
#include <QMainWindow>
#include <session/finding.h>

class EditorPane;
class MapControl;
class ProblemsPane;
class QAction;
class QMenu;
class QStackedWidget;
class RulesPane;
class StartPage;
class TreePane;

namespace JEDVEPLUGIN {
class ISubSetting;
class JEDSubSettingFactory;
} // namespace JEDVEPLUGIN
namespace Session {
class JobSession;
class PluginHost;
class Recovery;
} // namespace Session

/// The job editor's window: the setting tree at the left, the editor of the selected setting beside it, problems,
/// receivers and traced messages in docks below.
class EditorWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// \param host     the plug-ins; not owned, outlives the window
    /// \param session  the job; likewise
    EditorWindow(Session::PluginHost* host, Session::JobSession* session);

    void newJob(JEDVE::enJOB_TYPE type);
    /// Opens a job file; what is wrong with it is told in a box.
    bool openFile(const QString& path);
    void setCurrentSetting(JEDVEPLUGIN::ISubSetting* setting);

    /// Shows the session's job instead of the start page.
    void showJob();

    /// Offers the jobs that were not saved when an editor came to no good end, if there are any.
    /// \return whether there were
    bool offerRecovery();

    /// Window and docks as they were when the editor was last used.
    void restoreLayout();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildFileMenu();
    void buildEditMenu();
    void buildViewMenu();
    void buildHelpMenu();
    void buildDocks();
    void fillAddMenu(QMenu* menu);
    void addEntries(QMenu* menu, JEDVEPLUGIN::JEDSubSettingFactory* factory,
                    JEDVEPLUGIN::ISubSetting* parent);
    void fillRecentMenu(QMenu* menu);
    void fillManualMenu(QMenu* menu);
    void showManual(const QString& file);
    QString summary() const;

    bool askToSave();
    void open();
    bool save();
    bool saveAs();
    bool saveTo(const QString& path);
    void revert();
    void remember(const QString& path);
    QStringList recentJobs() const;
    QStringList exampleJobs() const;
    void tell(const QString& title, const Session::Findings& findings);
    void watchFile(const QString& path);
    void fileChanged();

    void cut();
    void copy();
    void paste();
    void duplicate();
    void importList();
    void removeCurrent();
    void moveCurrent(int step);
    void applyToOthers();
    void setReadOnly(bool readOnly);
    void showField(JEDVEPLUGIN::ISubSetting* setting, const QString& parameterSet, const QString& field);

    void showStart();
    void showOpened();
    void showCurrent();
    void updateActions();
    void updateTitle();

    Session::PluginHost* m_host;    // Not owned.
    Session::JobSession* m_session; // Not owned.
    class QFileSystemWatcher* m_watcher;
    Session::Recovery* m_recovery;
    QStackedWidget* m_pages;
    StartPage* m_startPage;
    TreePane* m_tree;
    EditorPane* m_editor;
    MapControl* m_map;
    ProblemsPane* m_problems = nullptr;
    RulesPane* m_rules = nullptr;
    QMenu* m_settingMenu = nullptr;
    QAction* m_readOnly = nullptr;
    QAction* m_copy = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QList<QAction*> m_jobActions;     // Need a job.
    QList<QAction*> m_changeActions;  // Need a job that can be changed.
    QList<QAction*> m_settingActions; // Need a selected setting that can be changed.
    bool m_hasJob = false;
};
