#pragma once

#include "enjobtype.h"
#include "isubsetting.h"
#include "jedvepb_export.h"
#include "problem.h"
#include "resourceuse.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QPixmap;
class QWidget;

namespace JobXml {
class Subjob;
}

namespace JEDVEPLUGIN {

/// A plug-in, as the job editor sees it: all that the editor wants of a plug-in it asks here, and nodes of the
/// setting tree are known to it as ISubSetting only. GUI thread only.
///
/// Plug-ins derive from JEDAbstractSubSettingFactory, which fills in what needs receivers and components. The
/// life of a factory:
/// 1. The plug-in makes it and fills jobTypes and supportedTypeList in its constructor.
/// 2. The editor calls setRulesDir() and setResourceDir() and initialises it; from then on components, value
///    tree and rules may be used. It connects to the signals and tells the job type by
///    slot_setCurrentJobType(), at the start and after every change.
/// 3. A job is opened: for each sub-job of the file, in its order, the editor looks for a factory that
///    claimsSubjob() and lets it readSubjob(). Sub-jobs that nobody claims stay in the file as they are.
/// 4. The user works: createSubSetting() or createSubSettingByUser(), duplicateSubSetting(), pasteMimeText(),
///    deleteSubSetting(). Before, the editor asks needsUserInputOnCreation(), isAppendable(), getMaxCount() and
///    isDeletable(). Undo and redo set parameter-set texts of nodes, and paste what was deleted.
/// 5. The job is saved: writeSubjob() for each top-level setting, then setModified(false). It is closed:
///    clear().
/// 6. At the end the editor deletes the nodes (clear()), then the factory, while the application object lives.
///
/// The order of the virtual operations is part of the binary interface: new ones are appended at the end.
class JEDVEPB_EXPORT JEDSubSettingFactory : public QObject
{
    Q_OBJECT
public:
    /// \param name  the plug-in's name, which the user sees and the value tree uses; without "/"
    explicit JEDSubSettingFactory(const QString& name);
    ~JEDSubSettingFactory() override;

    QString getName() const;
    /// The setting types that can be created.
    /// \param topLevel  true: those that may be created without a parent, which is supportedTypesOf() of an
    ///                  empty type; false: all of them
    const QStringList& supportedTypes(bool topLevel) const;
    const QList<JEDVE::enJOB_TYPE> supportedJobTypes() const;
    /// -1 until the editor has told one.
    JEDVE::enJOB_TYPE getCurrentJobType() const;
    /// Stores the flag and passes it to changeReadOnly(), also if nothing changes.
    void setReadOnly(bool readOnly);
    bool isReadOnly() const;

    /// Makes a node with default values and hangs it into the tree: appended to \p parent, or to the top-level
    /// settings. Only for types that need no user input.
    /// \param type    one of supportedTypes()
    /// \param parent  null for a top-level setting
    /// \return the node, owned by its parent or, at the top, by the factory; null, with nothing changed, for an
    ///         unknown type or a parent that cannot have it
    virtual ISubSetting* createSubSetting(const QString& type, ISubSetting* parent) = 0;
    /// The same for types that need user input: asks for it first, in a modal dialog.
    /// \param window  parent of the dialog, may be null
    /// \return null, with nothing changed, also if the user cancels
    virtual ISubSetting* createSubSettingByUser(const QString& type, ISubSetting* parent,
                                                QWidget* window) = 0;
    /// Makes a copy of a node with its subtree, beside the original, as the last one of its type.
    /// \return null, with nothing changed, for a stranger or if there may be no further one of its type
    virtual ISubSetting* duplicateSubSetting(ISubSetting* setting) = 0;
    /// Takes a node out of the tree and deletes it with its subtree.
    /// \return false, with nothing changed, for null, a stranger or a node that isDeletable() denies
    virtual bool deleteSubSetting(ISubSetting* setting) = 0;
    /// Makes a node with its subtree out of what ISubSetting::getMimeText() gave, hung into the tree as by
    /// createSubSetting(). The editor moves it to its place afterwards.
    /// \return null, with nothing changed, if the text cannot be read or does not belong below \p parent
    virtual ISubSetting* pasteMimeText(const QString& text, ISubSetting* parent) = 0;
    /// The text for a setting type in menus, in the user's language; the type itself if it is unknown.
    virtual QString settingDisplayName(const QString& type) const = 0;
    /// Whether a sub-job of a job file is one of this plug-in's.
    virtual bool claimsSubjob(const JobXml::Subjob& subjob) const = 0;
    /// Makes a top-level setting out of a sub-job that this plug-in claims.
    /// \param problems  what could not be taken over is appended; may be null
    /// \return null, with nothing changed, if no setting can be made of it; the reason is one of the problems
    virtual ISubSetting* readSubjob(const JobXml::Subjob& subjob, QList<Problem>* problems) = 0;
    /// Writes a top-level setting with its subtree into a sub-job of a job file; what the sub-job holds beyond
    /// that stays in it.
    /// \param problems  what the job file cannot hold is appended; may be null
    /// \return false if the sub-job must not be saved as it is now
    virtual bool writeSubjob(ISubSetting* setting, JobXml::Subjob& subjob, QList<Problem>* problems) = 0;
    /// Deletes all settings. Afterwards nothing is modified.
    virtual void clear() = 0;
    /// Whether a setting was changed, made, moved or deleted since setModified(false).
    virtual bool isModified() const = 0;
    /// Emits modifiedChanged() if the state changes.
    virtual void setModified(bool modified) = 0;
    /// Whether nodes of a type are made by createSubSettingByUser().
    virtual bool needsUserInputOnCreation(const QString& type) const = 0;

    /// Whether a node of a type may be appended; true here.
    /// \param parent  null for a top-level setting
    virtual bool isAppendable(ISubSetting* parent, const QString& type) const;
    /// Whether the user may delete a node.
    virtual bool isDeletable(ISubSetting* setting) const = 0;
    /// How many nodes of a type one parent may have; here 2147483647, which is no limit.
    virtual int getMaxCount(const QString& type) const;
    /// The setting types that may be created below a node of a type.
    /// \param type  empty: those without a parent
    /// \return a list that lasts as long as the factory; empty for an unknown type
    virtual const QStringList& supportedTypesOf(const QString& type) const = 0;
    /// The settings without a parent, in display order. They are the factory's.
    virtual QList<ISubSetting*> topLevelSettings() const = 0;
    /// What the settings take of the installation's receivers when the job runs.
    virtual QList<ResourceUse> resourceUse() const = 0;
    /// What the plug-in is for, in one sentence in the user's language.
    virtual QString description() const = 0;
    /// Folder of the rule scripts. Stores it.
    virtual void setRulesDir(const QString& folder);
    /// Folder of the plug-in's other files. Stores it.
    virtual void setResourceDir(const QString& folder);
    /// For plug-ins with rules: called once, after the components are loaded. Does nothing here.
    virtual void initializeRuleEngine();
    /// Picture of a setting type, null here. The factory's.
    virtual QPixmap* getSettingIcon(const QString& type) const;
    /// Whether there is a kind of profile file that settings can be imported from; false here.
    virtual bool supportsImportProfile() const;
    /// Whether a profile can be imported into a node; false here.
    virtual bool canImportProfile(const ISubSetting* setting);
    /// Imports settings out of a profile file.
    /// \param parent  where they go
    /// \return the nodes that were made, owned by their parent; empty here
    virtual QList<ISubSetting*> importProfile(const QString& file, ISubSetting* parent);
    /// Path of the plug-in's manual; empty, as here, if it has none.
    virtual QString manual() const;

public slots:
    /// Stores the job type and emits currentJobTypeChanged(), also if nothing changes.
    void slot_setCurrentJobType(JEDVE::enJOB_TYPE jobType);

signals:
    /// The plug-in's settings became modified, or clean again.
    void modifiedChanged(bool bModified);
    /// A setting looks different now: its text, colour, icon or problems.
    void stateChanged(JEDVEPLUGIN::ISubSetting* setting);
    void currentJobTypeChanged(JEDVE::enJOB_TYPE jobType);
    /// Asks the editor to delete a setting, as if the user had done it.
    void deleteSubSettingRequest(JEDVEPLUGIN::ISubSetting* setting);
    /// Asks the editor to create a setting of \p type below \p setting, as if the user had done it.
    void createSubSettingRequest(const QString& type, JEDVEPLUGIN::ISubSetting* setting);

protected:
    /// Called by setReadOnly(): passes the flag on to the settings.
    virtual void changeReadOnly(bool readOnly) = 0;

    /// Path of a manual that is installed with the installation: \p file below the folder "Manuals" of its
    /// "BasicInstallationDir", or of the application's folder if the installation does not name one.
    QString defaultManualPath(const QString& file) const;

private:
    QString name;

protected:
    QStringList supportedTypeList;     ///< filled by the plug-in
    QString rulesDir;                  ///< empty until told
    QString resourceDir;               ///< empty until told
    QList<JEDVE::enJOB_TYPE> jobTypes; ///< filled by the plug-in: the job types that it can be used in

private:
    JEDVE::enJOB_TYPE currentJobType;
    bool readOnly;
};

} // namespace JEDVEPLUGIN
