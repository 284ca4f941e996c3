#pragma once

#include <quilappstartup/idllinstance.h>

/// What the test libraries make. It knows its name and can tell when it goes.
class TestComponent : public IDllInstance
{
public:
    explicit TestComponent(const QString& name)
        : m_name(name)
    {
    }
    ~TestComponent() override
    {
        if (m_deleted != nullptr)
            *m_deleted = true;
    }
    virtual QString name() const { return m_name; }
    virtual void tellDeletion(bool* deleted) { m_deleted = deleted; }

private:
    QString m_name;
    bool* m_deleted = nullptr; // Not owned; null: nobody wants to know.
};
