// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

namespace lumen {

/// Takes the rights of a superuser, whom no mode bits stop, away for a while.
class WithoutPrivileges
{
public:
    WithoutPrivileges() : m_dropped(geteuid() == 0)
    {
        constexpr uid_t kNobody = 65534;
        if (m_dropped && setresuid(kNobody, kNobody, 0) != 0)
            ADD_FAILURE() << "the rights stay";
    }
    ~WithoutPrivileges()
    {
        if (m_dropped && setresuid(0, 0, 0) != 0)
            ADD_FAILURE() << "the rights don't come back";
    }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

private:
    bool m_dropped;
};

} // namespace lumen
