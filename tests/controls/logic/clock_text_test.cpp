#include "controls/logic/clock_text.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace korvane::controls {
namespace {

// 5 March 2026 was a Thursday.
constexpr ClockReading kMorning{2026, 3, 5, 4, 9, 5, 7};

struct ClockCase {
    const char* name;
    int setting;
    const wchar_t* format;
    const wchar_t* text;
};

class ClockTextOf : public testing::TestWithParam<ClockCase> {};

TEST_P(ClockTextOf, FillsTheFormatsArguments) {
    const ClockCase& c = GetParam();

    EXPECT_EQ(ClockText(ClockFormatOf(c.setting), c.format, kMorning), c.text);
}

INSTANTIATE_TEST_SUITE_P(
    Formats, ClockTextOf,
    testing::Values(ClockCase{"Time", 0, L"%02u:%02u", L"09:05"},
                    ClockCase{"Seconds", 1, L"%02u:%02u:%02u", L"09:05:07"},
                    ClockCase{"TimeAndDate", 2, L"%02u:%02u\r\n%02u/%02u/%02u", L"09:05\r\n2026/03/05"},
                    ClockCase{"SecondsAndDate", 3, L"%02u:%02u:%02u\r\n%02u/%02u/%02u", L"09:05:07\r\n2026/03/05"},
                    ClockCase{"Date", 4, L"%02u/%02u/%02u", L"2026/03/05"},
                    // The setting is not clamped: whatever stands under the identifier gets year, month and day.
                    ClockCase{"UnknownFormatThatExists", 7, L"%u-%u-%u", L"2026-3-5"},
                    ClockCase{"UnknownFormatThatDoesNotExist", 7, L"", L""},
                    ClockCase{"BelowTheFirst", -2, L"Korvane", L"Korvane"},
                    ClockCase{"FewerPlacesThanArguments", 7, L"%u", L"2026"}),
    [](const auto& each) { return std::string{each.param.name}; });

TEST(ClockText, IsNotMadeWithoutAFormat) {
    EXPECT_EQ(ClockText(kNoClockFormat, L"%02u", kMorning), std::nullopt);
    EXPECT_EQ(ClockFormatOf(-131), kNoClockFormat);
}

TEST(ClockText, CountsHoursFrom0To23) {
    EXPECT_EQ(ClockText(kTime, L"%02u:%02u", {2026, 1, 1, 4, 0, 0, 0}), L"00:00");
    EXPECT_EQ(ClockText(kTime, L"%02u:%02u", {2026, 1, 1, 4, 23, 59, 0}), L"23:59");
}

TEST(ClockFormat, IsTheStringAtOneHundredAndThirtyPlusTheSetting) {
    EXPECT_EQ(ClockFormatOf(0), 130U);
    EXPECT_EQ(ClockFormatOf(4), 134U);
    EXPECT_EQ(ClockFormatOf(7), 137U);
}

TEST(ClockFormat, HasTwoLinesWhenItShowsTimeAndDate) {
    for (unsigned id = kTime; id <= kDate; ++id) EXPECT_EQ(HasTwoLines(id), id == 132 || id == 133) << id;
}

TEST(ClockTip, NamesTheDateAndTheDayOfTheWeek) {
    EXPECT_EQ(ClockTip({2026, 11, 15, 0, 12, 0, 0}), L"2026年11月15日(日)");
    EXPECT_EQ(ClockTip(kMorning), L"2026年3月5日(木)");
}

TEST(ClockTip, KnowsEveryDayOfTheWeek) {
    const std::array<std::wstring, 7> days{L"日", L"月", L"火", L"水", L"木", L"金", L"土"};
    for (unsigned day = 0; day < days.size(); ++day)
        EXPECT_EQ(ClockTip({2026, 11, 15 + day, day, 0, 0, 0}),
                  L"2026年11月" + std::to_wstring(15 + day) + L"日(" + days[day] + L")");
}

TEST(ClockTip, ChangesExactlyAtMidnight) {
    const ClockReading before{2026, 11, 15, 0, 23, 59, 59};
    const ClockReading after{2026, 11, 16, 1, 0, 0, 0};

    EXPECT_EQ(ClockTip(before), ClockTip({2026, 11, 15, 0, 0, 0, 0}));
    EXPECT_NE(ClockTip(before), ClockTip(after));
}

TEST(PopUpText, IsTheTimeWithSecondsAndTheDateWithTheDayOfTheWeek) {
    EXPECT_EQ(PopUpTime(kMorning), L"09:05:07");
    EXPECT_EQ(PopUpDate(kMorning), L"2026年3月5日 木曜日");
    EXPECT_EQ(PopUpTime({2026, 11, 15, 0, 23, 59, 59}), L"23:59:59");
    EXPECT_EQ(PopUpDate({2026, 11, 15, 0, 23, 59, 59}), L"2026年11月15日 日曜日");
}

TEST(PopUpText, ReachesFromTheFirstToTheLastYearOfTheSystem) {
    EXPECT_EQ(PopUpDate({1601, 1, 1, 1, 0, 0, 0}), L"1601年1月1日 月曜日");
    EXPECT_EQ(PopUpDate({30827, 12, 31, 5, 0, 0, 0}), L"30827年12月31日 金曜日");
}

TEST(ClockStyle, FollowsTheVersionOfWindows) {
    EXPECT_EQ(ClockStyleOf(false, false), ClockStyle::kPlain);
    EXPECT_EQ(ClockStyleOf(true, false), ClockStyle::kTray);
    EXPECT_EQ(ClockStyleOf(true, true), ClockStyle::kTrayBarFont);
    // The later version is asked only where the earlier test passed.
    EXPECT_EQ(ClockStyleOf(false, true), ClockStyle::kPlain);
}

TEST(ClockStyle, UsesTheSmallFontForTwoLinesBeforeWindows10) {
    EXPECT_TRUE(UsesSmallFont(kTimeAndDate, ClockStyle::kPlain));
    EXPECT_TRUE(UsesSmallFont(kTimeWithSecondsAndDate, ClockStyle::kTray));
    EXPECT_FALSE(UsesSmallFont(kTimeAndDate, ClockStyle::kTrayBarFont));
    EXPECT_FALSE(UsesSmallFont(kTime, ClockStyle::kTray));
    EXPECT_FALSE(UsesSmallFont(kDate, ClockStyle::kPlain));
}

constexpr base::Rect kClock{0, 0, 100, 32};

TEST(ClockPlace, IsTheMiddleForOneLine) {
    EXPECT_EQ(PlaceClockText(kClock, {36, 17}, kTime, ClockStyle::kTray), (base::Rect{32, 7, 68, 24}));
}

TEST(ClockPlace, IsTheTopForTwoLinesBeforeWindows10) {
    EXPECT_EQ(PlaceClockText(kClock, {61, 30}, kTimeAndDate, ClockStyle::kTray), (base::Rect{19, 0, 80, 30}));
    EXPECT_EQ(PlaceClockText(kClock, {61, 30}, kTimeAndDate, ClockStyle::kPlain).top, 0);
}

TEST(ClockPlace, IsTheMiddleForTwoLinesSinceWindows10) {
    EXPECT_EQ(PlaceClockText(kClock, {61, 28}, kTimeAndDate, ClockStyle::kTrayBarFont), (base::Rect{19, 2, 80, 30}));
}

TEST(ClockPlace, OfTextWiderThanTheClockRoundsTowardZero) {
    EXPECT_EQ(PlaceClockText(kClock, {105, 35}, kTime, ClockStyle::kTray).TopLeft(), (base::Point{-2, -1}));
}

} // namespace
} // namespace korvane::controls
