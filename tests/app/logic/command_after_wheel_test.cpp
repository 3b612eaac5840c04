#include "app/logic/command_after_wheel.h"

#include <gtest/gtest.h>

#include <array>

using namespace korvane::app;

TEST(CommandAfterWheel, GoesDownTheListTowardsTheUser) {
    constexpr std::array commands{5001U, 5003U, 5010U};

    EXPECT_EQ(CommandAfterWheel(commands, 5001, -1), 5003U);
    EXPECT_EQ(CommandAfterWheel(commands, 5010, 1), 5003U);
    EXPECT_EQ(CommandAfterWheel(commands, 5003, 0), 5003U);
}

TEST(CommandAfterWheel, StopsAtBothEnds) {
    constexpr std::array commands{5001U, 5003U, 5010U};

    EXPECT_EQ(CommandAfterWheel(commands, 5003, -5), 5010U);
    EXPECT_EQ(CommandAfterWheel(commands, 5003, 5), 5001U);
}

TEST(CommandAfterWheel, LeavesACommandThatIsNotListed) {
    EXPECT_EQ(CommandAfterWheel({}, 5001, -1), 5001U);
}
