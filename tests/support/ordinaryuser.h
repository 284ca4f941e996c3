#pragma once

#include <unistd.h>

namespace JedTest {

/// While it lives, the administrator has the rights of somebody without any, so that a file can be one that does not
/// open. Nothing for anybody else.
class OrdinaryUser
{
public:
    OrdinaryUser()
        : m_isChanged(geteuid() == 0 && seteuid(NOBODY) == 0)
    {
    }
    ~OrdinaryUser()
    {
        if (m_isChanged && seteuid(0) != 0)
            _exit(1);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static constexpr uid_t NOBODY = 65534;

    bool m_isChanged;
};

} // namespace JedTest
