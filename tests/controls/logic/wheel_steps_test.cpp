#include "controls/logic/wheel_steps.h"

#include <gtest/gtest.h>

namespace korvane::controls {
namespace {

TEST(WheelSteps, MakesOneStepOfEveryNotch) {
    WheelSteps wheel;

    EXPECT_EQ(wheel.Turn(kWheelNotch), 1);
    EXPECT_EQ(wheel.Turn(-kWheelNotch), -1);
    EXPECT_EQ(wheel.Turn(3 * kWheelNotch), 3);
}

TEST(WheelSteps, GathersThePartsThatAFineWheelSends) {
    WheelSteps wheel;

    EXPECT_EQ(wheel.Turn(50), 0);
    EXPECT_EQ(wheel.Turn(50), 0);
    EXPECT_EQ(wheel.Turn(50), 1);
    EXPECT_EQ(wheel.Turn(90), 1);
}

TEST(WheelSteps, ForgetsAPartWhenTheWheelTurnsBack) {
    WheelSteps wheel;
    EXPECT_EQ(wheel.Turn(100), 0);

    EXPECT_EQ(wheel.Turn(-100), 0);
    EXPECT_EQ(wheel.Turn(-20), -1);
}

} // namespace
} // namespace korvane::controls
