#pragma once

#include <values/tree.h>
#include <zubase/observable.h>

namespace JEDVEPLUGIN {

/// Holds a value of the value tree that belongs to somebody else.
/// \tparam T  a class derived from ValueBase
template <class T>
class ValuePtr
{
public:
    T* Get() const { return m_value; }
    T* operator->() const { return m_value; }
    /// False if no value is held.
    explicit operator bool() const { return m_value != nullptr; }

protected:
    ValuePtr() = default;
    ~ValuePtr() = default;

    T* m_value = nullptr; // Not owned.
};

/// Holds a value and observes it, together with an owner who wants to hear of its changes. When the value
/// goes away the pointer becomes null by itself, so nobody touches a value that is no more. GUI thread only.
template <class T>
class ValueObservingPtr : public ValuePtr<T>, public IObserver
{
public:
    /// Holds nothing at first.
    /// \param owner  is attached to each value that is held; not owned, outlives this object, may be null
    explicit ValueObservingPtr(IObserver* owner)
        : m_owner(owner)
    {
    }
    /// Detaches the owner and itself.
    ~ValueObservingPtr() override { detach(); }

    /// Detaches both observers from the old value and attaches them to the new one, the owner first.
    /// \param value  may be null
    void Set(T* value)
    {
        detach();
        this->m_value = value;
        if (value) {
            value->AddObserver(m_owner);
            value->AddObserver(this);
        }
    }

    /// Takes what the value tree holds under \p path. Without effect if there is nothing, or something of
    /// another type.
    void SetByPath(const QString& path)
    {
        if (T* const value = dynamic_cast<T*>(Tree::Instance()->FindByPath(path)))
            Set(value);
    }

    /// Lets the value go when it tells that it is leaving.
    void Update(Observable*, TChangeCode code) override
    {
        if (code == CHANGE_STATE && this->m_value && this->m_value->GetState() == STATE_LEAVING)
            Set(nullptr);
    }

private:
    Q_DISABLE_COPY(ValueObservingPtr)

    void detach()
    {
        if (!this->m_value)
            return;
        this->m_value->DeleteObserver(m_owner);
        this->m_value->DeleteObserver(this);
    }

    IObserver* m_owner; // Not owned.
};

} // namespace JEDVEPLUGIN
