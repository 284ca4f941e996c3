#include <zubase/observable.h>

#include <algorithm>

IObserver::~IObserver() = default;

Observable::~Observable()
{
    if (m_audience == nullptr)
        return;
    m_audience->isOver = true;
    if (m_audience->walks == 0)
        cleanUp(m_audience);
}

void Observable::AddObserver(IObserver* observer)
{
    if (observer == nullptr)
        return;
    if (m_audience == nullptr)
        m_audience = new Audience;
    std::vector<IObserver*>& observers = m_audience->observers;
    if (std::find(observers.begin(), observers.end(), observer) == observers.end())
        observers.push_back(observer);
}

void Observable::DeleteObserver(IObserver* observer)
{
    if (observer == nullptr || m_audience == nullptr)
        return;
    std::vector<IObserver*>& observers = m_audience->observers;
    const auto found = std::find(observers.begin(), observers.end(), observer);
    if (found == observers.end())
        return;
    *found = nullptr;
    m_audience->hasHoles = true;
    if (m_audience->walks == 0)
        cleanUp(m_audience);
}

bool Observable::isHeard() const
{
    return std::any_of(m_audience->observers.begin(), m_audience->observers.end(),
                       [](const IObserver* observer) { return observer != nullptr; });
}

/// With no notification under way: closes the holes, or ends what has outlived its observable.
void Observable::cleanUp(Audience* audience)
{
    if (audience->isOver) {
        delete audience;
        return;
    }
    std::vector<IObserver*>& observers = audience->observers;
    observers.erase(std::remove(observers.begin(), observers.end(), nullptr), observers.end());
    audience->hasHoles = false;
}
