#pragma once

#include <problem.h>
#include <zubase/observable.h>

#include <QList>
#include <QString>
#include <QVector>

#include <functional>

class Node;

namespace PluginKit {

/// A parameter set that a setting carries: values of the value tree where the receiver has the set, otherwise just
/// its text, so that nothing is lost that the installation does not know. GUI thread only.
class HeldSet : public IObserver
{
public:
    /// \param values   node of the set, which may go before this object; null: text only
    /// \param changed  called after every change, once per setText(); must not delete this object
    HeldSet(const QString& name, Node* values, const std::function<void()>& changed);
    ~HeldSet() override;

    const QString& name() const { return m_name; }
    /// Null for a set that is text only.
    Node* values() const { return m_values; }
    /// What the values were read from, which knows more than they do.
    const QString& base() const { return m_base; }

    QString text() const;
    /// \return false, with nothing changed, if it is no text of that set
    bool setText(const QString& xml);
    /// What did not fit when the text was read and was not changed since, and what would be lost in writing.
    QList<JEDVEPLUGIN::Problem> problems() const;

    void Update(Observable* sender, TChangeCode code) override;

private:
    bool readText(const QString& xml);
    void forgetProblem(const QString& field);

    QString m_name;
    Node* m_values;
    QString m_base;
    std::function<void()> m_changed;
    QList<JEDVEPLUGIN::Problem> m_problems; // Of reading.
    QVector<Observable*> m_watched;         // The values, as long as they live.
    bool m_isReading = false;
};

} // namespace PluginKit
