#pragma once

#include <values/valuebase.h>

/// Tells CHANGE_PATH if the path name of an object changes between construction and tellChange(). Without
/// observers no path is made.
class PathWatch
{
public:
    /// \param object  not owned, may be null
    explicit PathWatch(ValueBase* object)
        : m_object(object != nullptr && object->HasObservers() ? object : nullptr)
        , m_before(m_object != nullptr ? m_object->GetPathName() : QString())
    {
    }
    void tellChange() const
    {
        if (m_object != nullptr && m_object->GetPathName() != m_before)
            m_object->NotifyObservers(CHANGE_PATH);
    }

private:
    Q_DISABLE_COPY(PathWatch)

    ValueBase* m_object; // Not owned.
    QString m_before;
};
