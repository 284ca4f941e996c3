#pragma once

#include "jedvepb_export.h"

#include <zubase/observable.h>

#include <QtCore/QObject>
#include <QtCore/QString>

namespace JEDVEPLUGIN {

class RuleObjectManager;

/// What a rule script sees of one parameter value: properties and invokable methods of the class derived for
/// the value's type. In the other direction it runs a function of the script whenever the value changes.
///
/// It works on the value that the value tree holds under the path of the value given at construction. If
/// there is none, or once that value has gone away, getters answer 0, false or the empty text and setters do
/// nothing. Nothing is thrown, not even what an observer of the value throws. GUI thread only.
class JEDVEPB_EXPORT ScriptableObject : public QObject, public IObserver
{
    Q_OBJECT
public:
    /// \param manager  runs the rule; not owned, may be null, after which no rule is run
    explicit ScriptableObject(RuleObjectManager* manager);

    /// Path in the value tree, empty if there was no value at construction. Registered without a name, the
    /// object is known to scripts by the last part of it.
    virtual QString GetValueTreePath() const;
    /// Registers the value in the value tree under \p path. Nothing happens without a value.
    virtual void SetValueTreePath(QString path) = 0;
    /// Takes over what \p other holds if it is of the same class, otherwise nothing. Rules run as for any
    /// change. The classes say what is taken over.
    /// \param other  may be null
    virtual void SetValue(ScriptableObject* other) = 0;

    /// Runs the rule function when the value has changed and the manager is initialised. A change that this
    /// object's own rule makes does not run it again.
    void Update(Observable* sender, TChangeCode code) override;

protected:
    QString m_valueTreePath;
    QString m_ruleFunction;
    RuleObjectManager* m_manager; // Not owned; owns this once it is registered.
    qint32 m_depth = 0;           // above 0 while the object's own rule is running

private:
    Q_DISABLE_COPY(ScriptableObject)
    friend class RuleObjectManager;
};

} // namespace JEDVEPLUGIN
