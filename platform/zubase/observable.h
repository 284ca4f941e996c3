#pragma once

#include <zubase/zubase_export.h>

#include <QtGlobal>

#include <cstddef>
#include <vector>

class Observable;

/// What has changed, as told to observers. The numbers are fixed.
enum TChangeCode : int {
    CHANGE_STATE =
        2, ///< the state, see TValueState; the last thing that an object which is being deleted tells
    CHANGE_VALUE = 3, ///< the value, or which item is the current one
    CHANGE_RANGE = 4, ///< minimum, maximum or step
    CHANGE_ITEMS = 5, ///< the items of a selection or list
    CHANGE_PATH = 6   ///< the address in the value tree
};

/// Somebody who wants to hear of changes. An observer is not owned by what it observes and has to detach
/// itself before it is deleted.
class ZUBASE_EXPORT IObserver
{
public:
    virtual ~IObserver();

    /// Called after the change, on the thread that made it. May attach and detach any observer, change \p
    /// sender again (which tells everybody anew, nested) and delete it.
    /// \param sender  who has changed, never null
    virtual void Update(Observable* sender, TChangeCode code) = 0;
};

/// Something that tells its observers when it has changed. Not copyable, since observers know it by its
/// address. One thread only.
class ZUBASE_EXPORT Observable
{
public:
    Observable() = default;
    /// Ends every notification that is still under way. Does not tell anybody.
    virtual ~Observable();

    /// Observers are told in the order of attaching. Attaching twice counts once, null is ignored. Who
    /// attaches during a notification is told from the next one on.
    void AddObserver(IObserver* observer);
    /// Unknown observers and null are ignored. Who is detached during a notification is no longer told, not
    /// even by that one.
    void DeleteObserver(IObserver* observer);
    bool HasObservers() const;

    /// Tells every observer but \p except.
    /// \param except  who made the change and need not hear of it, may be null
    /// \return false if an observer has deleted this object, so that the caller must not touch it any more
    bool NotifyObservers(TChangeCode code, IObserver* except = nullptr);

private:
    Q_DISABLE_COPY(Observable)

    /// A notification that is under way, on the stack of NotifyObservers(). They form a chain, innermost
    /// first.
    class Walk
    {
    public:
        explicit Walk(Observable* observable)
            : m_observable(observable)
            , m_outer(observable->m_walk)
        {
            observable->m_walk = this;
        }
        ~Walk()
        {
            if (m_observable != nullptr)
                m_observable->endWalk(m_outer);
        }
        bool isEnded() const { return m_observable == nullptr; }

    private:
        Q_DISABLE_COPY(Walk)
        friend class Observable;

        Observable* m_observable; // Not owned, null as soon as it is deleted.
        Walk* m_outer;            // Not owned, null for the outermost one.
    };

    void endWalk(Walk* outer)
    {
        m_walk = outer;
        if (outer == nullptr && m_hasHoles)
            closeHoles();
    }
    void closeHoles();

    std::vector<IObserver*> m_observers; // Not owned; null where somebody was detached during a notification.
    Walk* m_walk = nullptr;              // The innermost notification, not owned.
    bool m_hasHoles = false;
};

inline bool Observable::NotifyObservers(TChangeCode code, IObserver* except)
{
    if (m_observers.empty())
        return true;
    const Walk walk(this);
    const std::size_t count = m_observers.size();
    for (std::size_t i = 0; i < count; ++i) {
        IObserver* const observer = m_observers[i];
        if (observer == nullptr || observer == except)
            continue;
        observer->Update(this, code);
        if (walk.isEnded())
            return false;
    }
    return true;
}
