#include "ui/machine/AsOrdinaryUser.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace {

constexpr unsigned Root = 0;
constexpr unsigned Nobody = 65534;

bool isChanged = false;

} // namespace

AsOrdinaryUser::AsOrdinaryUser() {
    if (geteuid() == Root) {
        EXPECT_EQ(setresgid(Nobody, Nobody, getegid()), 0);
        EXPECT_EQ(setresuid(Nobody, Nobody, Root), 0);
        isChanged = true;
    }
}

AsOrdinaryUser::~AsOrdinaryUser() {
    if (isChanged) {
        EXPECT_EQ(setresuid(Root, Root, Root), 0);
        EXPECT_EQ(setresgid(Root, Root, Root), 0);
        isChanged = false;
    }
}
