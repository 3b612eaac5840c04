#include "launch/logic/launch_row_layout.h"

#include <gtest/gtest.h>

#include <string>

using namespace korvane;
using namespace korvane::launch;

namespace {

std::string Text(const base::Rect& r) {
    return std::to_string(r.left) + "," + std::to_string(r.top) + "-" + std::to_string(r.right) + "," +
           std::to_string(r.bottom);
}

} // namespace

TEST(LaunchRowLayout, PlacesIconFrameAndTwoLines) {
    const auto row = LayOutLaunchRow({10, 100, 310, 134}, 15, base::DpiScale{96});

    EXPECT_EQ(Text(row.line), "10,133-310,134");
    EXPECT_EQ(Text(row.frame), "15,104-53,132");
    EXPECT_EQ(Text(row.icon), "26,110-42,126");
    EXPECT_EQ(Text(row.firstLine), "58,102-305,117");
    EXPECT_EQ(Text(row.secondLine), "58,117-305,132");
}

TEST(LaunchRowLayout, CentresTheIconInItsFrameAtEveryScale) {
    for (const int dpi : {96, 120, 144, 192}) {
        const auto row = LayOutLaunchRow({0, 0, 600, 100}, 30, base::DpiScale{dpi});
        EXPECT_NEAR(row.icon.left - row.frame.left, row.frame.right - row.icon.right, 1) << dpi;
        EXPECT_NEAR(row.icon.top - row.frame.top, row.frame.bottom - row.icon.bottom, 1) << dpi;
    }
}

TEST(LaunchRowHeight, HoldsTwoLinesAndFourPixels) {
    EXPECT_EQ(LaunchRowHeight(15, base::DpiScale{96}), 34);
    EXPECT_EQ(LaunchRowHeight(30, base::DpiScale{192}), 68);
}
