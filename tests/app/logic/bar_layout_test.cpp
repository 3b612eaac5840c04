#include "app/logic/bar_layout.h"

#include <gtest/gtest.h>

#include <string>

using korvane::app::BarLayout;
using korvane::app::BarLayoutOptions;
using korvane::app::LayOutBar;
using korvane::base::DpiScale;
using korvane::base::Rect;

namespace {

std::string Text(const Rect& r) {
    return std::to_string(r.left) + "," + std::to_string(r.top) + "-" + std::to_string(r.right) + "," +
           std::to_string(r.bottom);
}

// The horizontal extents of everything that moves with the width, from left to right.
std::string Row(const BarLayout& bar) {
    const auto span = [](const Rect& r) { return std::to_string(r.left) + "-" + std::to_string(r.right); };
    std::string row = "A " + span(bar.commandRegion) + " box " + span(bar.commandBox) + " drop " +
                      span(bar.commandHistory) + " run " + span(bar.run) + " B " + span(bar.searchRegion) +
                      " chooser " + span(bar.searchChooser) + " box " + span(bar.searchBox) + " drop " +
                      span(bar.searchHistory) + " search " + span(bar.search) + " panel " + span(bar.controlPanel) +
                      " launch";
    for (const Rect& launch : bar.launch) row += " " + std::to_string(launch.left);
    return row + " options " + span(bar.options) + " help " + span(bar.help) + " clock " + span(bar.clock) + " exit " +
           span(bar.exit);
}

constexpr BarLayoutOptions kDocked{};
constexpr BarLayoutOptions kDockedWithClock{.clockShown = true};
constexpr BarLayoutOptions kFloating{.windowMode = true};
constexpr BarLayoutOptions kFloatingWithClock{.clockShown = true, .windowMode = true};

} // namespace

// Half width (1024 - 597) / 2 = 213.
TEST(BarLayout, DockedAt1024WithoutTheClock) {
    EXPECT_EQ(Row(LayOutBar(1024, kDocked)),
              "A 127-340 box 151-302 drop 302-317 run 317-339 B 344-677 chooser 345-485 box 485-639 drop 639-654 "
              "search 654-676 panel 682-812 launch 812 848 884 options 920-956 help 956-992 clock 992-1092 exit "
              "999-1017");
}

// Half width (1024 - 100 - 597) / 2 = 163.
TEST(BarLayout, DockedAt1024WithTheClock) {
    EXPECT_EQ(Row(LayOutBar(1024, kDockedWithClock)),
              "A 127-290 box 151-252 drop 252-267 run 267-289 B 294-577 chooser 295-435 box 435-539 drop 539-554 "
              "search 554-576 panel 582-712 launch 712 748 784 options 820-856 help 856-892 clock 892-992 exit "
              "999-1017");
}

// Half width (1280 - 597) / 2 = 341, the odd pixel dropped.
TEST(BarLayout, DockedAt1280WithoutTheClock) {
    EXPECT_EQ(Row(LayOutBar(1280, kDocked)),
              "A 127-468 box 151-430 drop 430-445 run 445-467 B 472-933 chooser 473-613 box 613-895 drop 895-910 "
              "search 910-932 panel 938-1068 launch 1068 1104 1140 options 1176-1212 help 1212-1248 clock 1248-1348 "
              "exit 1255-1273");
}

// Half width (1280 - 100 - 597) / 2 = 291.
TEST(BarLayout, DockedAt1280WithTheClock) {
    EXPECT_EQ(Row(LayOutBar(1280, kDockedWithClock)),
              "A 127-418 box 151-380 drop 380-395 run 395-417 B 422-833 chooser 423-563 box 563-795 drop 795-810 "
              "search 810-832 panel 838-968 launch 968 1004 1040 options 1076-1112 help 1112-1148 clock 1148-1248 "
              "exit 1255-1273");
}

// Half width (1920 - 597) / 2 = 661.
TEST(BarLayout, DockedAt1920WithoutTheClock) {
    EXPECT_EQ(Row(LayOutBar(1920, kDocked)),
              "A 127-788 box 151-750 drop 750-765 run 765-787 B 792-1573 chooser 793-933 box 933-1535 drop 1535-1550 "
              "search 1550-1572 panel 1578-1708 launch 1708 1744 1780 options 1816-1852 help 1852-1888 clock "
              "1888-1988 exit 1895-1913");
}

// Half width (1920 - 100 - 597) / 2 = 611.
TEST(BarLayout, DockedAt1920WithTheClock) {
    EXPECT_EQ(Row(LayOutBar(1920, kDockedWithClock)),
              "A 127-738 box 151-700 drop 700-715 run 715-737 B 742-1473 chooser 743-883 box 883-1435 drop 1435-1450 "
              "search 1450-1472 panel 1478-1608 launch 1608 1644 1680 options 1716-1752 help 1752-1788 clock "
              "1788-1888 exit 1895-1913");
}

// Floating, the exit button's zone of 32 pixels is given to the rest: half width (1024 + 32 - 597) / 2 = 229.
TEST(BarLayout, FloatingAt1024WithoutTheClock) {
    EXPECT_EQ(Row(LayOutBar(1024, kFloating)),
              "A 127-356 box 151-318 drop 318-333 run 333-355 B 360-709 chooser 361-501 box 501-671 drop 671-686 "
              "search 686-708 panel 714-844 launch 844 880 916 options 952-988 help 988-1024 clock 1024-1124 exit "
              "999-1017");
}

// Half width (1024 - 100 + 32 - 597) / 2 = 179.
TEST(BarLayout, FloatingAt1024WithTheClock) {
    EXPECT_EQ(Row(LayOutBar(1024, kFloatingWithClock)),
              "A 127-306 box 151-268 drop 268-283 run 283-305 B 310-609 chooser 311-451 box 451-571 drop 571-586 "
              "search 586-608 panel 614-744 launch 744 780 816 options 852-888 help 888-924 clock 924-1024 exit "
              "999-1017");
}

TEST(BarLayout, HasTheVerticalFiguresOfWindows8AndLater) {
    const BarLayout bar = LayOutBar(1024, kDocked);

    EXPECT_EQ(Text(bar.mainMenu), "4,0-124,32");
    EXPECT_EQ(Text(bar.commandRegion), "127,4-340,28");
    EXPECT_EQ(Text(bar.commandBox), "151,8-302,24");
    EXPECT_EQ(Text(bar.commandHistory), "302,6-317,26");
    EXPECT_EQ(Text(bar.searchHistory), "639,6-654,26");
    EXPECT_EQ(Text(bar.searchChooser), "345,5-485,27");
    EXPECT_EQ(Text(bar.run), "317,5-339,27");
    EXPECT_EQ(Text(bar.controlPanel), "682,0-812,32");
    EXPECT_EQ(Text(bar.clock), "992,0-1092,32");
    EXPECT_EQ(Text(bar.exit), "999,7-1017,25");
    EXPECT_EQ(Text(bar.commandIcon), "132,8-148,24");
}

TEST(BarLayout, Windows7HasTallerHistoryButtonsAndChooser) {
    const BarLayout bar = LayOutBar(1024, {.windows8OrLater = false});

    EXPECT_EQ(Text(bar.commandHistory), "302,5-317,27");
    EXPECT_EQ(Text(bar.searchHistory), "639,5-654,27");
    EXPECT_EQ(Text(bar.searchChooser), "345,4-485,28");
    EXPECT_EQ(Text(bar.mainMenu), "4,0-124,32");
}

TEST(BarLayout, VistaHasControlsOf30PixelsOnePixelLower) {
    const BarLayout bar = LayOutBar(1024, {.windows7OrLater = false, .windows8OrLater = false});

    EXPECT_EQ(Text(bar.mainMenu), "4,1-124,31");
    EXPECT_EQ(Text(bar.controlPanel), "682,1-812,31");
    EXPECT_EQ(Text(bar.launch[0]), "812,1-848,31");
    EXPECT_EQ(Text(bar.options), "920,1-956,31");
    EXPECT_EQ(Text(bar.help), "956,1-992,31");
    EXPECT_EQ(Text(bar.clock), "992,1-1092,31");
}

TEST(BarLayout, ScalesEveryFigureWithTheScreen) {
    const BarLayout single = LayOutBar(1024, kDocked);
    const BarLayout twofold = LayOutBar(2048, {.scale = DpiScale{192}});

    EXPECT_EQ(twofold.commandRegion.left, 2 * single.commandRegion.left);
    // The odd pixel that is lost when 427 is halved is not lost at twice the size.
    EXPECT_EQ(twofold.commandRegion.right, 2 * single.commandRegion.right + 1);
    EXPECT_EQ(twofold.controlPanel, (Rect{1364, 0, 1624, 64}));
    EXPECT_EQ(twofold.exit, (Rect{1998, 14, 2034, 50}));
}

TEST(BarLayout, NeverTurnsABoxInsideOutHoweverNarrowTheWindow) {
    for (int width = 0; width < 1024; ++width) {
        const BarLayout bar = LayOutBar(width, kFloatingWithClock);

        ASSERT_GE(bar.commandBox.Width(), 0) << width;
        ASSERT_GE(bar.searchBox.Width(), 0) << width;
        ASSERT_LE(bar.commandBox.right, bar.commandHistory.left) << width;
    }
}

TEST(BarLayout, LeavesRoomToTypeAtTheNarrowestWidthOfAFloatingBar) {
    const BarLayout bar = LayOutBar(korvane::app::NarrowestBarPx(DpiScale{}), kFloatingWithClock);

    EXPECT_GE(bar.commandBox.Width(), 50);
    EXPECT_GE(bar.searchBox.Width(), 50);
}
