#include "controls/logic/calendar_layout.h"

#include <gtest/gtest.h>

namespace korvane::controls {
namespace {

using base::Rect;

constexpr base::DpiScale kPlain{96};
constexpr int kScales[]{96, 110, 120, 132, 144, 168, 192};

TEST(CalendarLayout, HasCellsOf28By16InRowsOfSevenFromLine34) {
    for (int week = 0; week < 6; ++week)
        for (int column = 0; column < 7; ++column)
            EXPECT_EQ(CellRect(static_cast<std::size_t>(week * 7 + column), kPlain),
                      (Rect{column * 28, 34 + week * 16, column * 28 + 28, 34 + week * 16 + 16}));
}

TEST(CalendarLayout, HasItsTitleOverTheNamesOfTheDays) {
    EXPECT_EQ(TitleRect(kPlain), (Rect{0, 0, 196, 16}));
    EXPECT_EQ(WeekdayRect(0, kPlain), (Rect{0, 16, 28, 32}));
    EXPECT_EQ(WeekdayRect(6, kPlain), (Rect{168, 16, 196, 32}));
}

TEST(CalendarLayout, Takes196By130AtItsPlaceInThePopUp) {
    EXPECT_EQ(CalendarRect(kPlain), (Rect{62, 100, 62 + 196, 100 + 130}));
    EXPECT_EQ(PopUpSize(kPlain), (base::Size{320, 240}));
}

TEST(CalendarLayout, HasAButtonOf25By25OnEitherSide) {
    EXPECT_EQ(StepButtonRect(kPreviousMonthButton, kPlain), (Rect{30, 170, 55, 195}));
    EXPECT_EQ(StepButtonRect(kNextMonthButton, kPlain), (Rect{264, 170, 289, 195}));
}

TEST(CalendarLayout, GrowsWithTheScreensDots) {
    constexpr base::DpiScale doubled{192};

    EXPECT_EQ(CalendarRect(doubled), (Rect{124, 200, 124 + 392, 200 + 260}));
    EXPECT_EQ(CellRect(8, doubled), (Rect{56, 100, 112, 132}));
}

TEST(CalendarLayout, CutsOffNothingAtAnyScale) {
    for (const int dpi : kScales) {
        const base::DpiScale scale{dpi};
        const Rect calendar = CalendarRect(scale);
        const Rect last = CellRect(41, scale);
        const base::Size popUp = PopUpSize(scale);

        EXPECT_EQ(last.right, calendar.Width()) << dpi;
        EXPECT_EQ(last.bottom, calendar.Height()) << dpi;
        EXPECT_LE(WeekdayRect(0, scale).bottom, scale(kRuleTop) + 1) << dpi;
        EXPECT_LT(calendar.bottom, popUp.height) << dpi;
        EXPECT_LT(StepButtonRect(kPreviousMonthButton, scale).right, calendar.left) << dpi;
        EXPECT_GT(StepButtonRect(kNextMonthButton, scale).left, calendar.right) << dpi;
        EXPECT_LT(StepButtonRect(kNextMonthButton, scale).right, popUp.width) << dpi;
    }
}

} // namespace
} // namespace korvane::controls
