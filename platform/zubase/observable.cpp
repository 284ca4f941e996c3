#include <zubase/observable.h>

#include <algorithm>

IObserver::~IObserver() = default;

Observable::~Observable()
{
    for (Walk* walk = m_walk; walk != nullptr; walk = walk->m_outer)
        walk->m_observable = nullptr;
}

void Observable::AddObserver(IObserver* observer)
{
    if (observer == nullptr ||
        std::find(m_observers.begin(), m_observers.end(), observer) != m_observers.end())
        return;
    m_observers.push_back(observer);
}

void Observable::DeleteObserver(IObserver* observer)
{
    const auto found = std::find(m_observers.begin(), m_observers.end(), observer);
    if (observer == nullptr || found == m_observers.end())
        return;
    if (m_walk == nullptr) {
        m_observers.erase(found);
        return;
    }
    *found = nullptr;
    m_hasHoles = true;
}

bool Observable::HasObservers() const
{
    return std::any_of(m_observers.begin(), m_observers.end(),
                       [](const IObserver* observer) { return observer != nullptr; });
}

void Observable::closeHoles()
{
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), nullptr), m_observers.end());
    m_hasHoles = false;
}
