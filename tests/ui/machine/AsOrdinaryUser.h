#pragma once

#include <gtest/gtest.h>

#include <sys/types.h>
#include <unistd.h>

// To the superuser no file is read-only. Meanwhile the tests ask as somebody else.
class AsOrdinaryUser {
public:
    AsOrdinaryUser() : m_real(getuid()) { Become(m_real == 0 ? Nobody : m_real); }
    ~AsOrdinaryUser() { Become(m_real); }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

private:
    static constexpr uid_t Nobody = 65534;
    static void Become(uid_t user) { EXPECT_EQ(setreuid(user, static_cast<uid_t>(-1)), 0); }

    uid_t m_real;
};
