#include "settings/logic/auto_hide_delay.h"

#include <gtest/gtest.h>

#include <climits>

namespace korvane::settings {
namespace {

using std::chrono::milliseconds;

TEST(AutoHideDelay, CountsInHalfSecondsFromHalfASecond) {
    EXPECT_EQ(AutoHideDelay(0), milliseconds{500});
    EXPECT_EQ(AutoHideDelay(3), milliseconds{2000});
    EXPECT_EQ(AutoHideDelay(9), milliseconds{5000});
}

TEST(AutoHideDelay, TakesANegativeIndexForTheFirst) {
    EXPECT_EQ(AutoHideDelay(-1), milliseconds{500});
    EXPECT_EQ(AutoHideDelay(INT_MIN), milliseconds{500});
}

TEST(AutoHideDelay, NeverExceedsWhatATimerCanHold) {
    EXPECT_EQ(AutoHideDelay(4294966), milliseconds{2147483500});
    EXPECT_EQ(AutoHideDelay(4294967), milliseconds{0x7FFFFFFF});
    EXPECT_EQ(AutoHideDelay(INT_MAX), milliseconds{0x7FFFFFFF});
}

} // namespace
} // namespace korvane::settings
