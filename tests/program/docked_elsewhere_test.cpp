// The docked bar on screens and Windows versions of its own, see CMakeLists.txt.

#include "tests/program/docked_bar.h"

namespace korvane::test {
namespace {

class DockedOnAScreen1024Wide : public DockedBar {};

// clang-format off
constexpr char kDocked1024[] =
    "2000 4,0-124,32\n"
    "2001 151,8-302,24\n"
    "2002 485,8-639,24\n"
    "2003 302,5-317,27\n"
    "2004 639,5-654,27\n"
    "2007 345,4-485,28\n"
    "2005 317,5-339,27\n"
    "2006 654,5-676,27\n"
    "2008 682,0-812,32\n"
    "4025 812,0-848,32\n"
    "4026 848,0-884,32\n"
    "4027 884,0-920,32\n"
    "2009 920,0-956,32\n"
    "57666 956,0-992,32\n"
    "57665 999,7-1017,25\n";

constexpr char kDockedWithClock1024[] =
    "2000 4,0-124,32\n"
    "2001 151,8-252,24\n"
    "2002 435,8-539,24\n"
    "2003 252,5-267,27\n"
    "2004 539,5-554,27\n"
    "2007 295,4-435,28\n"
    "2005 267,5-289,27\n"
    "2006 554,5-576,27\n"
    "2008 582,0-712,32\n"
    "4025 712,0-748,32\n"
    "4026 748,0-784,32\n"
    "4027 784,0-820,32\n"
    "2009 820,0-856,32\n"
    "57666 856,0-892,32\n"
    "2014 892,0-992,32\n"
    "57665 999,7-1017,25\n";
// clang-format on

TEST_F(DockedOnAScreen1024Wide, LaysTheBarOut) {
    ASSERT_EQ(width_, 1024);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(PlaceIn(bar, "0,0-1024,32"), "0,0-1024,32");

    EXPECT_EQ(PictureOf(bar), kDocked1024);
}

TEST_F(DockedOnAScreen1024Wide, MakesRoomForTheClock) {
    WriteSetting(kSettings, L"ShowTimeBarClock", 1);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(PlaceIn(bar, "0,0-1024,32"), "0,0-1024,32");

    EXPECT_EQ(PictureOf(bar), kDockedWithClock1024);
}

TEST_F(DockedOnAScreen1024Wide, LaysTheBarOutAgainAfterFloating) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kToggleMode);
    ASSERT_TRUE(WaitUntilItFloats(bar));
    ASSERT_TRUE(SetClientWidth(bar, 1024));
    EXPECT_EQ(PictureOf(bar), kFloating1024);

    Command(bar, kToggleMode);
    ASSERT_EQ(PlaceIn(bar, "0,0-1024,32"), "0,0-1024,32");
    ASSERT_TRUE(WaitUntilIdle(bar));

    EXPECT_EQ(PictureOf(bar), kDocked1024);
}

class DockedOnVista : public DockedBar {};

TEST_F(DockedOnVista, TheStripKeepsAllItsControls) {
    PretendWindowsIs(L"vista");
    HideAutomatically();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    const std::string strip = TopOf(screen_, 1);
    ASSERT_EQ(PlaceIn(bar, strip), strip);
    ASSERT_TRUE(WaitUntilIdle(bar));

    for (const int id : kControls) {
        const bool visible = (::GetWindowLongW(::GetDlgItem(bar, id), GWL_STYLE) & WS_VISIBLE) != 0;
        EXPECT_EQ(visible, id != kClock) << id;
    }
}

} // namespace
} // namespace korvane::test
