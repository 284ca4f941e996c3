#pragma once

#include "rulefindings.h"
#include "ruleobject.h"

#include <QtScript/QScriptClass>
#include <QtScript/QScriptValue>

class QScriptContext;

namespace RuleChecking {

/// Is told what a script does to its objects.
class IRuleListener
{
public:
    virtual ~IRuleListener();

    virtual void objectRead(int object) = 0;
    /// \param isChange  the value is another one now, so that its rule would run
    virtual void valueWritten(int object, bool isChange) = 0;
    /// \param member  property or method that it is about
    virtual void found(RuleFinding number, int object, const QString& member, const QString& text) = 0;
};

/// Plays the scriptable objects of a script: has their properties and methods, keeps what is written to them as the values
/// would, and tells of all that would go wrong without a message.
class RuleRecorder : public QScriptClass
{
public:
    /// \param objects   what they hold; changed by the script. Not owned, like the others.
    RuleRecorder(QScriptEngine* engine, QVector<RuleObject>* objects, IRuleListener* listener);

    /// Makes the objects global variables.
    void publish();

    /// Properties and methods of a kind.
    static QStringList members(RuleObject::Kind kind);
    /// The kind whose member this probably is; false if no kind has it.
    static bool guessKind(const QString& member, RuleObject::Kind* kind);
    /// "ScriptableString"
    static QString className(RuleObject::Kind kind);

    QueryFlags queryProperty(const QScriptValue& object, const QScriptString& name, QueryFlags flags,
                             uint* id) override;
    QScriptValue property(const QScriptValue& object, const QScriptString& name, uint id) override;
    void setProperty(QScriptValue& object, const QScriptString& name, uint id,
                     const QScriptValue& value) override;
    QString name() const override { return QStringLiteral("Scriptable"); }

private:
    static QScriptValue callMethod(QScriptContext* context, QScriptEngine* engine, void* recorder);
    QScriptValue call(int index, uint member, QScriptContext* context);
    QScriptValue select(int index, const QScriptContext& context);
    QScriptValue itemOf(int index, uint member, int key);
    void addItem(int index, const QScriptContext& context);
    void removeItem(int index, const QScriptContext& context);
    void deleteItems(int index);

    void write(int index, uint member, const QScriptValue& value);
    void writeNumber(int index, uint member, double wanted);
    double asStored(int index, uint member, double wanted);
    void setNumber(int index, double value);
    void found(RuleFinding number, int index, uint member, const QString& text);

    QVector<RuleObject>* m_objects;              // Not owned.
    IRuleListener* m_listener;                   // Not owned.
    QVector<QHash<QString, QScriptValue>> m_own; // Script properties by object.
    QVector<bool> m_isCounted;                   // Objects whose items the script counted.
};

} // namespace RuleChecking
