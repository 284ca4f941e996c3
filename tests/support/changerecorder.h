#pragma once

#include <zubase/observable.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

namespace JedTest {

/// Writes down what it is told, one "name:code" each, into a list that several recorders may share. Has to
/// outlive what it observes, or to be detached before.
class ChangeRecorder : public IObserver
{
public:
    using Action = std::function<void(Observable*, TChangeCode)>;

    /// \param log  not owned
    ChangeRecorder(const QString& name, QStringList* log)
        : m_name(name)
        , m_log(log)
    {
    }

    /// What to do, after writing, at every notification.
    void setAction(Action action) { m_action = std::move(action); }

    void Update(Observable* sender, TChangeCode code) override
    {
        m_log->append(QStringLiteral("%1:%2").arg(m_name, QString::number(code)));
        if (m_action)
            m_action(sender, code);
    }

private:
    QString m_name;
    QStringList* m_log; // Not owned.
    Action m_action;
};

/// The lines since the last call, joined by blanks.
inline QString takeAll(QStringList* log)
{
    const QString text = log->join(QLatin1Char(' '));
    log->clear();
    return text;
}

} // namespace JedTest
