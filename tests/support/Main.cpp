#include "TemporarySettings.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const TemporarySettings settings;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
