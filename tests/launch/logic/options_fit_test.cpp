#include "launch/logic/options_fit.h"

#include <gtest/gtest.h>

using namespace korvane::base;
using namespace korvane::launch;

namespace {

constexpr Size kWindow{620, 560};
constexpr Size kPage{450, 470};
constexpr Size kBars{17, 17};

TEST(OptionsFit, LeavesThemAloneWhereTheyHaveRoom) {
    EXPECT_EQ(FitOptions(kWindow, kPage, {620, 560}, kBars), (OptionsFit{kWindow, kPage, false}));
}

TEST(OptionsFit, TakesFromThePageWhatTheScreenIsTooLow) {
    EXPECT_EQ(FitOptions(kWindow, kPage, {1024, 500}, kBars), (OptionsFit{{637, 500}, {467, 410}, true}));
}

TEST(OptionsFit, TakesFromThePageWhatTheScreenIsTooNarrow) {
    EXPECT_EQ(FitOptions(kWindow, kPage, {600, 700}, kBars), (OptionsFit{{600, 577}, {430, 487}, true}));
}

TEST(OptionsFit, ScrollsBothWaysWhereOneBarTakesTheOthersRoom) {
    EXPECT_EQ(FitOptions(kWindow, kPage, {620, 500}, kBars), (OptionsFit{{620, 500}, {450, 410}, true}));
    EXPECT_EQ(FitOptions(kWindow, kPage, {600, 560}, kBars), (OptionsFit{{600, 560}, {430, 470}, true}));
}

TEST(OptionsFit, IsNeverLargerThanTheScreen) {
    for (const Size area : {Size{100, 60}, Size{400, 300}, Size{620, 559}, Size{619, 2000}}) {
        const OptionsFit fit = FitOptions(kWindow, kPage, area, kBars);
        EXPECT_LE(fit.window.width, area.width);
        EXPECT_LE(fit.window.height, area.height);
        EXPECT_GE(fit.page.width, 0);
        EXPECT_GE(fit.page.height, 0);
    }
}

TEST(PageScrolling, StaysBetweenTheEnds) {
    EXPECT_EQ(ScrollPosition(-5, 400, 470), 0);
    EXPECT_EQ(ScrollPosition(50, 400, 470), 50);
    EXPECT_EQ(ScrollPosition(500, 400, 470), 70);
    EXPECT_EQ(ScrollPosition(10, 500, 470), 0);
}

TEST(PageScrolling, GoesNoFartherThanToShowWhatIsWanted) {
    EXPECT_EQ(ScrolledTo(0, 400, 100, 120), 0);
    EXPECT_EQ(ScrolledTo(0, 400, 440, 460), 60);
    EXPECT_EQ(ScrolledTo(60, 400, 10, 30), 10);
}

TEST(PageScrolling, ShowsTheBeginningOfWhatIsTooLarge) {
    EXPECT_EQ(ScrolledTo(0, 100, 20, 300), 20);
}

} // namespace
