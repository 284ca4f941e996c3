#include "ruleobjectmanager.h"

#include "rulerun_p.h"
#include "scriptableboolean.h"
#include "scriptablenumericfloat.h"
#include "scriptablenumericint.h"
#include "scriptablenumericint64.h"
#include "scriptableselection.h"
#include "scriptablestring.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtScript/QScriptEngine>
#include <QtScript/QScriptProgram>
#include <QtScript/QScriptValueIterator>

namespace JEDVEPLUGIN {

namespace {

const qint64 MAX_SCRIPT_BYTES = 64 * 1024 * 1024;

/// Not destroyed, since managers may outlive the static objects of this library.
QSet<const RuleObjectManager*>& livingManagers()
{
    static auto* const managers = new QSet<const RuleObjectManager*>;
    return *managers;
}

/// The parsed text of each script file, so that a run evaluates it without parsing it again.
QMap<QString, QScriptProgram>& programs()
{
    static QMap<QString, QScriptProgram> parsed;
    return parsed;
}

/// An object may be registered under several names, and what it sets off may delete others.
void deleteObjects(const QMap<QString, ScriptableObject*>& registry)
{
    QList<QPointer<ScriptableObject>> objects;
    for (ScriptableObject* object : registry)
        objects.append(object);
    for (const QPointer<ScriptableObject>& object : objects)
        delete object.data();
}

template <class T>
T* lookUp(const QMap<QString, ScriptableObject*>& registry, const QString& name)
{
    return dynamic_cast<T*>(registry.value(name, nullptr));
}

/// \param isOfType  whether a script value has the type of \p value
template <class T>
bool storeScriptValue(QHash<QString, QScriptValue>& scriptValues, const QScriptValue& scope,
                      const QString& name, const T& value, bool (QScriptValue::*isOfType)() const)
{
    QScriptValue variable = scope.property(name, QScriptValue::ResolvePrototype);
    if (!variable.isValid() || !(variable.*isOfType)())
        return false;
    const QScriptValue scriptValue(value);
    variable.setData(scriptValue);
    scriptValues.insert(name, scriptValue);
    return true;
}

} // namespace

bool isRuleManagerAlive(const RuleObjectManager* manager)
{
    return livingManagers().contains(manager);
}

// Destroyed in reverse order: the engines go before what refers to them.
QMap<QString, QScriptEngine*> RuleObjectManager::s_ScriptEngines;
QMap<QString, QString> RuleObjectManager::s_ScriptContents;
QMap<QString, QScriptValue> RuleObjectManager::s_ScriptGlobalPrototypes;
QMutex RuleObjectManager::s_Mutex(QMutex::Recursive);
RuleObjectManager::MapCleaner RuleObjectManager::s_mapCleaner;

RuleObjectManager::MapCleaner::~MapCleaner()
{
    const QList<QScriptEngine*> engines = s_ScriptEngines.values();
    qDeleteAll(engines);
    s_ScriptEngines.clear();
    s_ScriptGlobalPrototypes.clear();
}

RuleObjectManager::RuleObjectManager(QString scriptFile)
    : m_scriptFile(std::move(scriptFile))
{
    const QMutexLocker lock(&s_Mutex);
    m_engine = s_ScriptEngines.value(m_scriptFile, nullptr);
    if (!m_engine) {
        m_engine = new QScriptEngine;
        s_ScriptEngines.insert(m_scriptFile, m_engine);
        s_ScriptGlobalPrototypes.insert(m_scriptFile, m_engine->globalObject());
        const QString text = readScript(m_scriptFile);
        s_ScriptContents.insert(m_scriptFile, text);
        programs().insert(m_scriptFile, QScriptProgram(text, m_scriptFile, 1));
    }
    m_globalObject = m_engine->newObject();
    QScriptValueIterator property(s_ScriptGlobalPrototypes.value(m_scriptFile));
    while (property.hasNext()) {
        property.next();
        m_globalObject.setProperty(property.name(), property.value(), QScriptValue::KeepExistingFlags);
    }
    m_registry = std::shared_ptr<Registry>(new Registry, [](Registry* registry) {
        deleteObjects(*registry);
        delete registry;
    });
    livingManagers().insert(this);
    tellRuleMonitor([this](IRuleMonitor* monitor) { monitor->managerConstructed(this, m_scriptFile); });
}

RuleObjectManager::~RuleObjectManager()
{
    tellRuleMonitor([this](IRuleMonitor* monitor) { monitor->managerDestroyed(this); });
    livingManagers().remove(this);
    RuleRun::forgetManager(this);
}

RuleObjectManager::RuleObjectManager(const RuleObjectManager& other)
    : m_isInit(other.m_isInit)
    , m_isRuleExecutionActive(other.m_isRuleExecutionActive)
    , m_lastResult(other.m_lastResult)
    , m_engine(other.m_engine)
    , m_globalObject(other.m_globalObject)
    , m_scriptFile(other.m_scriptFile)
    , m_objectsType(other.m_objectsType)
    , m_registry(other.m_registry)
    , m_scriptValues(other.m_scriptValues)
{
    livingManagers().insert(this);
    tellRuleMonitor([this](IRuleMonitor* monitor) { monitor->managerConstructed(this, m_scriptFile); });
}

RuleObjectManager& RuleObjectManager::operator=(const RuleObjectManager& other) = default;

bool RuleObjectManager::IsInit()
{
    return m_isInit;
}

void RuleObjectManager::InitFinished()
{
    m_isInit = true;
}

bool RuleObjectManager::IsRuleExecutionActive() const
{
    return m_isRuleExecutionActive;
}

void RuleObjectManager::setRuleExecutionActive(bool active)
{
    m_isRuleExecutionActive = active;
}

void RuleObjectManager::RegisterScriptableObject(ScriptableObject* obj, QString name)
{
    if (!obj)
        return;
    m_globalObject.setProperty(name, m_engine->newQObject(obj, QScriptEngine::QtOwnership),
                               QScriptValue::KeepExistingFlags);
    m_registry->insert(name, obj);
    // Whoever deletes it, a script included, must not leave it here to be deleted again.
    const std::weak_ptr<Registry> weakRegistry = m_registry;
    QObject::connect(obj, &QObject::destroyed, obj, [this, obj, name, weakRegistry] {
        const std::shared_ptr<Registry> registry = weakRegistry.lock();
        if (!registry || registry->value(name) != obj)
            return;
        registry->remove(name);
        tellRuleMonitor([&](IRuleMonitor* monitor) {
            monitor->objectRemoved(isRuleManagerAlive(this) ? this : nullptr, name);
        });
    });
    tellRuleMonitor([&](IRuleMonitor* monitor) {
        monitor->objectRegistered({this, obj, name, QString::fromLatin1(obj->metaObject()->className()),
                                   obj->m_valueTreePath, obj->m_ruleFunction});
    });
}

void RuleObjectManager::RegisterScriptableObject(ScriptableObject* obj)
{
    if (obj)
        RegisterScriptableObject(obj, obj->GetValueTreePath().section('/', -1));
}

void RuleObjectManager::UnregisterScriptableObject(QString name)
{
    if (m_registry->remove(name) > 0)
        tellRuleMonitor([&](IRuleMonitor* monitor) { monitor->objectRemoved(this, name); });
}

void RuleObjectManager::ReloadScriptAndRun(QString functionName)
{
    const QMutexLocker lock(&s_Mutex);
    if (!m_isRuleExecutionActive || !RuleRun::mayBegin())
        return;
    // What the script sets off may delete this manager, so this is looked at only while the run is not over.
    RuleRun run({this, m_engine, m_globalObject, m_scriptFile, functionName});
    const QScriptValue result = run.evaluate(programs().value(m_scriptFile));
    if (run.isOver())
        return;
    m_lastResult = result;
    const QHash<QString, QScriptValue> scriptValues = m_scriptValues;
    for (auto it = scriptValues.cbegin(); it != scriptValues.cend() && !run.isOver(); ++it)
        m_globalObject.setProperty(it.key(), it.value(), QScriptValue::KeepExistingFlags);
    if (!run.isOver())
        run.call([&] { RunJSFunction(functionName); });
}

void RuleObjectManager::RunJSFunction(QString functionName)
{
    m_engine->globalObject().property(functionName, QScriptValue::ResolvePrototype).call();
}

QMap<QString, ScriptableObject*>* RuleObjectManager::GetScriptableObjects() const
{
    return m_registry.get();
}

QMap<QString, ScriptableObject*>::iterator RuleObjectManager::GetScriptableObjectsBegin() const
{
    return m_registry->begin();
}

QMap<QString, ScriptableObject*>::iterator RuleObjectManager::GetScriptableObjectsEnd() const
{
    return m_registry->end();
}

ScriptableObject* RuleObjectManager::GetScriptableObject(const QString& name) const
{
    return m_registry->value(name, nullptr);
}

ScriptableSelection* RuleObjectManager::GetScriptableSelection(const QString& name) const
{
    return lookUp<ScriptableSelection>(*m_registry, name);
}

ScriptableBoolean* RuleObjectManager::GetScriptableBoolean(const QString& name) const
{
    return lookUp<ScriptableBoolean>(*m_registry, name);
}

ScriptableString* RuleObjectManager::GetScriptableString(const QString& name) const
{
    return lookUp<ScriptableString>(*m_registry, name);
}

ScriptableNumericFloat* RuleObjectManager::GetScriptableNumericFloat(const QString& name) const
{
    return lookUp<ScriptableNumericFloat>(*m_registry, name);
}

ScriptableNumericInt* RuleObjectManager::GetScriptableNumericInt(const QString& name) const
{
    return lookUp<ScriptableNumericInt>(*m_registry, name);
}

ScriptableNumericInt64* RuleObjectManager::GetScriptableNumericInt64(const QString& name) const
{
    return lookUp<ScriptableNumericInt64>(*m_registry, name);
}

void RuleObjectManager::SetObjectsType(const QString& type)
{
    m_objectsType = type;
}

const QString& RuleObjectManager::ObjectsType() const
{
    return m_objectsType;
}

bool RuleObjectManager::setScriptValue(const QString& name, const QString& value)
{
    return storeScriptValue(m_scriptValues, m_globalObject, name, value, &QScriptValue::isString);
}

bool RuleObjectManager::setScriptValue(const QString& name, bool value)
{
    return storeScriptValue(m_scriptValues, m_globalObject, name, value, &QScriptValue::isBool);
}

bool RuleObjectManager::setScriptValue(const QString& name, double value)
{
    return storeScriptValue(m_scriptValues, m_globalObject, name, value, &QScriptValue::isNumber);
}

void RuleObjectManager::detatchScriptValue(const QString& name)
{
    m_scriptValues.remove(name);
}

/// What is no regular file counts as one that does not open: opening a pipe may never return.
QString RuleObjectManager::readScript(const QString& path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || info.size() > MAX_SCRIPT_BYTES || !file.open(QIODevice::ReadOnly))
        return QString();
    return QString(file.readAll());
}

} // namespace JEDVEPLUGIN
