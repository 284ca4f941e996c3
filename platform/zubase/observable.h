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
    bool HasObservers() const { return m_audience != nullptr && isHeard(); }

    /// Tells every observer but \p except.
    /// \param except  who made the change and need not hear of it, may be null
    /// \return false if an observer has deleted this object, so that the caller must not touch it any more
    bool NotifyObservers(TChangeCode code, IObserver* except = nullptr);

private:
    Q_DISABLE_COPY(Observable)

    /// The observers. Outlives the observable until its last notification has ended.
    struct Audience
    {
        std::vector<IObserver*>
            observers;       // Not owned; null where somebody was detached during a notification.
        int walks = 0;       // Notifications that are under way.
        bool isOver = false; // The observable is no more.
        bool hasHoles = false;
    };

    /// A notification that is under way; ends also when an observer throws.
    class Walk
    {
    public:
        explicit Walk(Audience* audience)
            : m_audience(audience)
        {
            ++audience->walks;
        }
        ~Walk()
        {
            if (--m_audience->walks == 0 && (m_audience->isOver || m_audience->hasHoles))
                cleanUp(m_audience);
        }

    private:
        Q_DISABLE_COPY(Walk)

        Audience* m_audience; // Not owned.
    };

    bool isHeard() const;
    static void cleanUp(Audience* audience);

    Audience* m_audience =
        nullptr; // Owned, unless a notification is under way. Null until somebody attaches.
};

inline bool Observable::NotifyObservers(TChangeCode code, IObserver* except)
{
    Audience* const audience = m_audience;
    if (audience == nullptr)
        return true;
    const Walk walk(audience);
    const std::size_t count = audience->observers.size();
    for (std::size_t i = 0; i < count; ++i) {
        IObserver* const observer = audience->observers[i];
        if (observer == nullptr || observer == except)
            continue;
        observer->Update(this, code);
        if (audience->isOver)
            return false;
    }
    return true;
}
