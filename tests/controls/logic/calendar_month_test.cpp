#include "controls/logic/calendar_month.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace korvane::controls {
namespace {

// Sunday, 15 November 2026, at noon.
constexpr ClockReading kToday{2026, 11, 15, 0, 12, 0, 0};

// The weeks as rows of text: days of other months in brackets, today with a star.
std::string Weeks(const CalendarMonth& month) {
    std::string text;
    for (std::size_t i = 0; i < month.cells.size(); ++i) {
        const DayCell& cell = month.cells[i];
        const std::string day = std::to_string(cell.day);
        text += cell.isOtherMonth ? "(" + day + ")" : cell.isToday ? day + "*" : day;
        text += i % kDaysInWeek + 1 == kDaysInWeek ? "\n" : " ";
    }
    return text;
}

TEST(CalendarMonth, ShowsSixWeeksAroundTheMonth) {
    EXPECT_EQ(Weeks(BuildMonth({2026, 10}, kToday)), "(27) (28) (29) (30) 1 2 3\n"
                                                     "4 5 6 7 8 9 10\n"
                                                     "11 12 13 14 15 16 17\n"
                                                     "18 19 20 21 22 23 24\n"
                                                     "25 26 27 28 29 30 31\n"
                                                     "(1) (2) (3) (4) (5) (6) (7)\n");
}

TEST(CalendarMonth, ThatBeginsOnASundayShowsNoDayOfTheMonthBefore) {
    EXPECT_EQ(Weeks(BuildMonth({2026, 11}, kToday)), "1 2 3 4 5 6 7\n"
                                                     "8 9 10 11 12 13 14\n"
                                                     "15* 16 17 18 19 20 21\n"
                                                     "22 23 24 25 26 27 28\n"
                                                     "29 30 (1) (2) (3) (4) (5)\n"
                                                     "(6) (7) (8) (9) (10) (11) (12)\n");
}

TEST(CalendarMonth, OfFourWeeksLeavesTwoWeeksToTheNext) {
    EXPECT_EQ(Weeks(BuildMonth({2026, 2}, kToday)), "1 2 3 4 5 6 7\n"
                                                    "8 9 10 11 12 13 14\n"
                                                    "15 16 17 18 19 20 21\n"
                                                    "22 23 24 25 26 27 28\n"
                                                    "(1) (2) (3) (4) (5) (6) (7)\n"
                                                    "(8) (9) (10) (11) (12) (13) (14)\n");
}

TEST(CalendarMonth, MayReachIntoTheSixthWeek) {
    EXPECT_EQ(Weeks(BuildMonth({2026, 8}, kToday)), "(26) (27) (28) (29) (30) (31) 1\n"
                                                    "2 3 4 5 6 7 8\n"
                                                    "9 10 11 12 13 14 15\n"
                                                    "16 17 18 19 20 21 22\n"
                                                    "23 24 25 26 27 28 29\n"
                                                    "30 31 (1) (2) (3) (4) (5)\n");
}

TEST(CalendarMonth, KnowsTheLeapYearsOfTheCenturies) {
    EXPECT_EQ(DaysIn({2100, 2}), 28U);
    EXPECT_EQ(DaysIn({2000, 2}), 29U);
    EXPECT_EQ(DaysIn({2024, 2}), 29U);
    EXPECT_EQ(DaysIn({2026, 2}), 28U);
}

// 1 March 2100 is a Monday, so there is room for one day of February's 28.
TEST(CalendarMonth, ShowsOfFebruary2100OnlyWhatTheFirstOfMarchRequires) {
    const CalendarMonth march = BuildMonth({2100, 3}, kToday);

    EXPECT_EQ(march.cells[0], (DayCell{.isToday = false, .isOtherMonth = true, .day = 28}));
    EXPECT_EQ(march.cells[1], (DayCell{.isToday = false, .isOtherMonth = false, .day = 1}));
}

TEST(CalendarMonth, ShowsTheLeapDayBeforeMarch) {
    // 1 March 2000 was a Wednesday.
    EXPECT_TRUE(Weeks(BuildMonth({2000, 3}, kToday)).starts_with("(27) (28) (29) 1 2 3 4\n"));
}

TEST(CalendarMonth, ShowsDecembersLastDaysBeforeJanuary) {
    // 1 January 2027 is a Friday.
    EXPECT_TRUE(Weeks(BuildMonth({2027, 1}, kToday)).starts_with("(27) (28) (29) (30) (31) 1 2\n"));
}

TEST(CalendarMonth, IsNamedByItsYearAndMonth) {
    EXPECT_EQ(BuildMonth({2026, 11}, kToday).title, L"2026年11月");
    EXPECT_EQ(BuildMonth({1601, 1}, kToday).title, L"1601年1月");
    EXPECT_EQ(BuildMonth({30827, 12}, kToday).title, L"30827年12月");
}

TEST(CalendarMonth, MarksTodayInTheCurrentMonthAlone) {
    EXPECT_TRUE(BuildMonth({2026, 11}, kToday).showsToday);
    for (const CalendarPage other : {CalendarPage{2026, 10}, {2026, 12}, {2025, 11}, {2027, 11}}) {
        const CalendarMonth month = BuildMonth(other, kToday);
        EXPECT_FALSE(month.showsToday);
        for (const DayCell& cell : month.cells) EXPECT_FALSE(cell.isToday);
    }
}

// The 1st of the next month is in the calendar as well.
TEST(CalendarMonth, MarksNoDayOfAnotherMonth) {
    const CalendarMonth month = BuildMonth({2026, 11}, {2026, 11, 1, 0, 12, 0, 0});

    EXPECT_TRUE(month.cells[0].isToday);
    EXPECT_EQ(month.cells[30].day, 1U);
    EXPECT_FALSE(month.cells[30].isToday);
}

TEST(CalendarMonth, AgreesWithTheGregorianCalendarInEveryMonthThatWindowsKnows) {
    using namespace std::chrono;
    int monthsChecked = 0;
    int wrong = 0;
    for (CalendarPage page = kFirstPage;; page = NextPage(page)) {
        const year_month shown = year{static_cast<int>(page.shownYear)} / static_cast<int>(page.shownMonth);
        const auto lengthOf = [](year_month m) { return static_cast<unsigned>((m / last).day()); };
        const unsigned days = lengthOf(shown);
        const unsigned daysBefore = lengthOf(shown - months{1});
        const unsigned first = weekday{sys_days{shown / 1}}.c_encoding();
        const CalendarMonth month = BuildMonth(page, kToday);

        bool right = month.cells.size() == 42;
        for (unsigned i = 0; i < 42; ++i) {
            const DayCell& cell = month.cells[i];
            const bool before = i < first;
            const bool after = i >= first + days;
            const unsigned day = before ? daysBefore - first + i + 1 : after ? i - first - days + 1 : i - first + 1;
            right = right && cell.day == day && cell.isOtherMonth == (before || after);
        }
        if (!right && ++wrong < 5) ADD_FAILURE() << page.shownYear << "/" << page.shownMonth << "\n" << Weeks(month);
        ++monthsChecked;
        if (page == kLastPage) break;
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(monthsChecked, (30827 - 1601 + 1) * 12);
}

TEST(CalendarPage, TurnsWithinAYearAndAcrossIt) {
    EXPECT_EQ(PreviousPage({2026, 11}), (CalendarPage{2026, 10}));
    EXPECT_EQ(PreviousPage({2026, 1}), (CalendarPage{2025, 12}));
    EXPECT_EQ(NextPage({2026, 11}), (CalendarPage{2026, 12}));
    EXPECT_EQ(NextPage({2026, 12}), (CalendarPage{2027, 1}));
}

TEST(CalendarPage, DoesNotTurnBeforeTheFirstNorAfterTheLastMonthOfTheSystem) {
    EXPECT_EQ(PreviousPage({1601, 1}), (CalendarPage{1601, 1}));
    EXPECT_EQ(PreviousPage({1601, 2}), (CalendarPage{1601, 1}));
    EXPECT_EQ(PreviousPage({1602, 1}), (CalendarPage{1601, 12}));
    EXPECT_EQ(NextPage({30827, 12}), (CalendarPage{30827, 12}));
    EXPECT_EQ(NextPage({30827, 11}), (CalendarPage{30827, 12}));
    EXPECT_EQ(NextPage({30826, 12}), (CalendarPage{30827, 1}));
}

TEST(CalendarPage, ComesBackFromEveryTurn) {
    for (CalendarPage page = kFirstPage; page != kLastPage; page = NextPage(page))
        ASSERT_EQ(PreviousPage(NextPage(page)), page) << page.shownYear << "/" << page.shownMonth;
}

TEST(CalendarFilling, FollowsTheClockOnlyWhileTheCurrentMonthIsShown) {
    EXPECT_TRUE(MayFill(Filling::kFollowing, /*showsToday=*/true));
    EXPECT_FALSE(MayFill(Filling::kFollowing, /*showsToday=*/false));
}

TEST(CalendarFilling, GoesWhereTheUserTurns) {
    EXPECT_TRUE(MayFill(Filling::kTurned, true));
    EXPECT_TRUE(MayFill(Filling::kTurned, false));
}

TEST(CalendarColour, OfOtherMonthsIsHalfwayBetweenGroundAndTextRoundedDown) {
    using base::Colour;
    EXPECT_EQ(Between(Colour::Rgb(0, 0, 0), Colour::Rgb(255, 255, 255)), Colour::Rgb(127, 127, 127));
    EXPECT_EQ(Between(Colour::Rgb(159, 22, 106), Colour::Rgb(255, 255, 255)), Colour::Rgb(207, 138, 180));
    EXPECT_EQ(Between(Colour::Rgb(240, 241, 1), Colour::Rgb(0, 0, 0)), Colour::Rgb(120, 120, 0));
}

} // namespace
} // namespace korvane::controls
