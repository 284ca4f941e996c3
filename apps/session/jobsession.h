#pragma once

#include "finding.h"
#include "jobdocument.h"

#include <enjobtype.h>
#include <problem.h>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QUndoStack>
#include <QVector>
#include <vector>

namespace JEDVEPLUGIN {
class ISubSetting;
class JEDSubSettingFactory;
} // namespace JEDVEPLUGIN

namespace Session {

/// Where a setting stands: its position among the top-level settings of the job, then its position below each
/// parent. Empty stands for the job itself.
using SettingPath = QVector<int>;

/// A setting with its subtree, for bringing it back as it was.
struct SettingContent
{
    QString text;          ///< as for pasting
    QString name;          ///< pasting may give another one
    JobXml::Subjob subjob; ///< of a top-level setting: what the file had beyond it
};

/// A job that is worked on: settings of several plug-ins in the order of the job file, and every change of them as
/// a step that can be undone. Knows plug-ins as JEDSubSettingFactory and nodes as ISubSetting. A sub-job that no
/// plug-in claims keeps its place and its content.
///
/// Changes that plug-ins make by themselves (an editor widget, a rule) become steps when the event loop is
/// reached; flushEdits() collects them at once. GUI thread only.
class JobSession : public QObject
{
    Q_OBJECT
public:
    using Factory = JEDVEPLUGIN::JEDSubSettingFactory;
    using Setting = JEDVEPLUGIN::ISubSetting;

    /// One of the job's sub-jobs.
    struct TopLevel
    {
        Factory* factory = nullptr; ///< null: no plug-in claims it. Not owned.
        Setting* setting = nullptr; ///< null likewise. The factory's.
        JobXml::Subjob subjob;      ///< as the file had it
        QString reason;             ///< why it has no setting
        int number = 0;             ///< its own in this session, from 1
    };

    /// \param factories  those of the plug-ins, in the order in which they are asked; not owned, they outlive the
    ///                   session
    explicit JobSession(const QList<Factory*>& factories, QObject* parent = nullptr);
    ~JobSession() override;

    /// Drops the present job and begins an empty one, which can be edited.
    void begin(JEDVE::enJOB_TYPE type, const QString& name);
    /// Drops the present job and takes a job file over.
    /// \return false, with the job as it was, if the file cannot be read; the reason is a finding
    bool open(const QString& path, Findings* findings);
    /// Drops the present job and takes the content of a job file over as a job that is changed and not saved.
    /// \param path  the file that the job is saved to; empty if there is none yet
    /// \return false, with the job as it was, if the content is no job; the reason is a finding
    bool recover(const QByteArray& content, const QString& path, Findings* findings);
    /// Writes the job in one piece.
    /// \return false, with the old file untouched; the reason is a finding
    bool save(const QString& path, Findings* findings);
    /// Writes the settings into the document, as save() does, without a file.
    /// \return false if a plug-in says that a setting must not be saved as it is
    bool compose(Findings* findings);

    /// The job file as it stands, also where a plug-in says that a setting must not be saved as it is.
    QByteArray draft();

    /// One of the sub-jobs as the file would hold it now.
    /// \param problems  what a job file cannot hold is appended; may be null
    /// \return false if its plug-in says that it must not be saved as it is
    bool composeSubjob(int index, JobXml::Subjob* subjob, QList<JEDVEPLUGIN::Problem>* problems) const;

    bool isModified() const;
    /// A job that is only looked at: nothing of it can be changed, and there is nothing to undo meanwhile.
    void setReadOnly(bool readOnly);
    bool isReadOnly() const { return m_isReadOnly; }
    JobDocument& document() { return m_document; }
    const JobDocument& document() const { return m_document; }
    JEDVE::enJOB_TYPE jobType() const;
    const QList<Factory*>& factories() const { return m_factories; }
    /// The factories that support the type of the job.
    QList<Factory*> activeFactories() const;

    int topLevelCount() const { return int(m_topLevel.size()); }
    const TopLevel& topLevel(int index) const { return m_topLevel[size_t(index)]; }
    /// Position among the top-level settings, -1 for a stranger.
    int topLevelIndex(const Setting* setting) const;
    /// The same of the top-level setting that a setting is below.
    int rootIndex(const Setting* setting) const;
    /// The factory of a setting of this job, null for a stranger.
    Factory* factoryOf(const Setting* setting) const;
    SettingPath pathOf(Setting* setting) const;
    /// Null if there is nothing at that place, or a sub-job without a plug-in.
    Setting* settingAt(const SettingPath& path) const;

    /// What may be added below a parent now. \param parent  null: at the top, of \p factory
    QStringList addableTypes(Factory* factory, Setting* parent) const;
    /// \param window  parent of a dialog in which the user is asked, if the type needs that
    Setting* add(Factory* factory, const QString& type, Setting* parent, QWidget* window);
    /// Adds a sub-job as a job file describes it, by the first plug-in that claims it. \return null if none does
    Setting* addSubjob(const JobXml::Subjob& subjob);
    bool remove(Setting* setting);
    Setting* duplicate(Setting* setting);
    /// The setting with its subtree as text; empty if it has none.
    QString textOf(Setting* setting) const;
    /// \param parent  null: at the top; the factories are asked in turn
    Setting* paste(const QString& text, Setting* parent);
    bool rename(Setting* setting, const QString& name);
    /// Moves a child of \p parent (null: a top-level setting). \param to  position in front of which it goes
    bool move(Setting* parent, int from, int to);
    bool setParameterSet(Setting* setting, const QString& name, const QString& xml);

    /// Lets the plug-in of a setting take a profile over, in one step.
    /// \param file  of a format that the library knows as a profile
    /// \param made  receives the settings that came; may not be null
    /// \return false if nothing was changed
    bool importProfile(Setting* setting, const QString& file, QList<Setting*>* made);

    /// Collects what plug-ins have changed by themselves. \param step  what undo calls it
    void flushEdits();
    /// The next edit of a value begins a step of its own.
    void endEditStep() { ++m_editStep; }

    QUndoStack* undoStack() { return &m_undoStack; }

signals:
    /// Settings came, went or moved.
    void structureChanged();
    /// A setting looks different now, or its values changed.
    void settingChanged(JEDVEPLUGIN::ISubSetting* setting);
    /// A setting is about to be deleted with its subtree; structureChanged() follows.
    void settingLeaving(JEDVEPLUGIN::ISubSetting* setting);
    /// The job is about to be dropped with all its settings; jobReplaced() follows.
    void jobLeaving();
    /// Another job was begun or opened.
    void jobReplaced();

private:
    friend class SettingCommand;
    friend class ImportCommand;

    // While there is one, settings come and go without a word; views are told once, at its end.
    class StructureHold
    {
    public:
        explicit StructureHold(JobSession* session);
        ~StructureHold();

    private:
        Q_DISABLE_COPY(StructureHold)
        JobSession* m_session;
    };

    using Texts = QHash<QString, QString>;

    void drop();
    void prepareFactories();
    void takeOver(const JobDocument& document, Findings* findings);
    QVector<JobXml::Subjob> writtenSubjobs(bool* isComplete, Findings* findings);
    TopLevel newTopLevel(Factory* factory, Setting* setting, const JobXml::Subjob& subjob);
    TopLevel read(const JobXml::Subjob& subjob, const QString& place, Findings* findings);
    void watch(Factory* factory);
    void noteState(Setting* setting);
    void remember(Setting* setting);
    void forget(Setting* setting);
    void push(QUndoCommand* command);
    void tellStructure();
    SettingContent contentOf(Setting* setting) const;
    void tellInserted(Setting* setting);
    Setting* inserted(Factory* factory, Setting* setting, const QString& step);

    // The changes themselves, without a step; used by the steps.
    Setting* insertText(Factory* factory, const SettingContent& content, const SettingPath& path);
    bool removeAt(const SettingPath& path);
    void moveAt(const SettingPath& parent, int from, int to);
    bool setTextAt(const SettingPath& path, const QString& name, const QString& xml);
    bool renameAt(const SettingPath& path, const QString& name);

    QList<Factory*> m_factories;
    JobDocument m_document;
    std::vector<TopLevel> m_topLevel;
    QHash<Setting*, Texts> m_known; // Parameter-set texts as they were at the last step.
    QSet<Setting*> m_changed;       // Settings that told of a change since.
    QUndoStack m_undoStack;
    class ImportCommand* m_collected = nullptr; // Gathers the steps instead of the stack. Not owned.
    int m_structureHolds = 0;
    int m_lastNumber = 0;
    int m_editStep = 0;
    bool m_isReadOnly = false;
    bool m_isWorking = false; // A step of ours runs: what plug-ins tell belongs to it.
    bool m_isFlushPending = false;
};

} // namespace Session
