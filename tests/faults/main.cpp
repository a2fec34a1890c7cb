#include "Mounts.h"

#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    SeparateMounts(); // tests that mount something are left out where that is not possible
    return RUN_ALL_TESTS();
}
