#pragma once

#include "jedvepb_export.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtScript/QScriptValue>

#include <memory>

class QScriptEngine;

namespace JEDVEPLUGIN {

class ScriptableBoolean;
class ScriptableNumericFloat;
class ScriptableNumericInt;
class ScriptableNumericInt64;
class ScriptableObject;
class ScriptableSelection;
class ScriptableString;

/// Binds one rule script to the scriptable objects of one setting, and runs a function of the script when
/// one of their values changes.
///
/// Managers of the same file share one script engine and the text of the file, which is read once for the
/// life of the library, but each has a global scope of its own. Every rule run evaluates the whole script
/// anew, so script variables start from their initial values each time; what the host sets with
/// setScriptValue() comes on top. Functions and variables of the script exist from the first run on.
///
/// Nothing is reported: a file that cannot be read, a syntax error, an exception of the script or a missing
/// function leave the run without effect. Who wants to know installs a monitor (rulemonitor.h).
///
/// Expected order: construct, register the objects, InitFinished(). An application object has to exist. GUI
/// thread only.
class JEDVEPB_EXPORT RuleObjectManager
{
public:
    /// \param scriptFile  path of the script; files are told apart by this text, upper and lower case included
    explicit RuleObjectManager(QString scriptFile);
    /// Deletes the registered objects, unless a copy of this manager still holds them. May be called by what
    /// a rule sets off.
    virtual ~RuleObjectManager();

    /// The copy shares engine, scope and registry, and has flags and script values of its own. Objects are
    /// run by the manager that they were constructed with.
    RuleObjectManager(const RuleObjectManager& other);
    /// As the copy; the objects registered so far are deleted unless another copy holds them.
    RuleObjectManager& operator=(const RuleObjectManager& other);

    /// False until InitFinished(); up to then, changes run no rules.
    bool IsInit();
    void InitFinished();

    /// True at first. A change while it is off is lost.
    bool IsRuleExecutionActive() const;
    void setRuleExecutionActive(bool active);

    /// Publishes \p obj to the script as \p name and owns it from then on. An earlier object of that name
    /// becomes the caller's again. Null is ignored. An object that is deleted leaves the registry.
    void RegisterScriptableObject(ScriptableObject* obj, QString name);
    /// As above, under the last part of the object's value-tree path.
    void RegisterScriptableObject(ScriptableObject* obj);
    /// Gives the object back to the caller. Scripts can still reach it.
    void UnregisterScriptableObject(QString name);

    /// Evaluates the script and calls \p functionName without arguments. Nothing happens while rule execution
    /// is off. A run that is set off by what another run does takes place inside it, after which the outer
    /// one goes on in its own scope.
    void ReloadScriptAndRun(QString functionName);

    /// The registered objects by name. The map belongs to the manager and its copies.
    QMap<QString, ScriptableObject*>* GetScriptableObjects() const;
    QMap<QString, ScriptableObject*>::iterator GetScriptableObjectsBegin() const;
    QMap<QString, ScriptableObject*>::iterator GetScriptableObjectsEnd() const;

    /// The object registered under \p name; null if there is none, or one of another class.
    ScriptableObject* GetScriptableObject(const QString& name) const;
    ScriptableSelection* GetScriptableSelection(const QString& name) const;
    ScriptableBoolean* GetScriptableBoolean(const QString& name) const;
    ScriptableString* GetScriptableString(const QString& name) const;
    ScriptableNumericFloat* GetScriptableNumericFloat(const QString& name) const;
    ScriptableNumericInt* GetScriptableNumericInt(const QString& name) const;
    ScriptableNumericInt64* GetScriptableNumericInt64(const QString& name) const;

    /// A tag for the host, empty at first, without meaning to the manager.
    void SetObjectsType(const QString& type);
    const QString& ObjectsType() const;

    /// Overrides a variable of the script from the next run on. Give a literal text as a QString, or it is taken
    /// for a truth value.
    /// \return false, with nothing changed, unless the scope has a variable of that name and type; so always
    ///         before the first run
    bool setScriptValue(const QString& name, const QString& value);
    bool setScriptValue(const QString& name, bool value);
    bool setScriptValue(const QString& name, double value);
    /// The script's own initial value holds again from the next run on.
    void detatchScriptValue(const QString& name);

private:
    using Registry = QMap<QString, ScriptableObject*>;

    class MapCleaner
    {
    public:
        /// Deletes all engines.
        ~MapCleaner();
    };

    static QString readScript(const QString& path);
    void RunJSFunction(QString functionName);

    // Keyed by script file.
    static QMap<QString, QScriptEngine*> s_ScriptEngines; // Owned.
    static QMap<QString, QString> s_ScriptContents;
    static QMap<QString, QScriptValue> s_ScriptGlobalPrototypes;
    static QMutex s_Mutex;
    static MapCleaner s_mapCleaner;

    bool m_isInit = false;
    bool m_isRuleExecutionActive = true;
    QScriptValue m_lastResult;
    QScriptEngine* m_engine; // Not owned.
    QScriptValue m_globalObject;
    QString m_scriptFile;
    QString m_objectsType;
    std::shared_ptr<Registry> m_registry; // Owns the objects; shared with copies.
    QHash<QString, QScriptValue> m_scriptValues;
};

} // namespace JEDVEPLUGIN
