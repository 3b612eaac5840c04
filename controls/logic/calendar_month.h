#pragma once

#include <array>
#include <string>

#include "base/colour.h"
#include "controls/logic/clock_text.h"
#include "res/ids.h"

namespace korvane::controls {

// The month that the calendar is turned to; January is 1.
struct CalendarPage {
    unsigned shownYear = 0;
    unsigned shownMonth = 0;
    friend constexpr bool operator==(const CalendarPage&, const CalendarPage&) = default;
};

// The years that the system's date type accepts.
inline constexpr CalendarPage kFirstPage{1601, 1};
inline constexpr CalendarPage kLastPage{30827, 12};

[[nodiscard]] constexpr CalendarPage PageOf(const ClockReading& now) {
    return {now.year, now.month};
}

// The buttons that turn the calendar, which are created with it and stand in no dialog template.
inline constexpr unsigned kPreviousMonthButton = IDC_PREVIOUS_MONTH;
inline constexpr unsigned kNextMonthButton = IDC_NEXT_MONTH;

// Nothing is before the first page or after the last.
[[nodiscard]] CalendarPage PreviousPage(CalendarPage page);
[[nodiscard]] CalendarPage NextPage(CalendarPage page);

// Sunday is 0.
[[nodiscard]] unsigned WeekdayOfFirst(CalendarPage page);
[[nodiscard]] unsigned DaysIn(CalendarPage page);

// One place of the calendar.
struct DayCell {
    bool isToday = false;
    bool isOtherMonth = false;
    unsigned day = 0; // 1 to 31
    friend constexpr bool operator==(const DayCell&, const DayCell&) = default;
};

inline constexpr std::size_t kDaysInWeek = 7;
inline constexpr std::size_t kWeeksShown = 6;

struct CalendarMonth {
    std::wstring title;
    // The month is the current one, as a calendar begins.
    bool showsToday = true;
    // Week by week, Sundays first.
    std::array<DayCell, kDaysInWeek * kWeeksShown> cells{};
};

[[nodiscard]] CalendarMonth BuildMonth(CalendarPage page, const ClockReading& today);

// Why the calendar is filled.
enum class Filling {
    kTurned,   // the user asked for that month
    kFollowing // the date changed, or the user asked for the current month
};

// A calendar that the user turned away from the current month is not pulled back by the clock.
[[nodiscard]] constexpr bool MayFill(Filling filling, bool showsToday) {
    return filling == Filling::kTurned || showsToday;
}

// Halfway from one colour to the other in each channel.
[[nodiscard]] constexpr base::Colour Between(base::Colour a, base::Colour b) {
    const auto half = [](int x, int y) { return static_cast<unsigned>((x + y) / 2); };
    return base::Colour::Rgb(half(a.Red(), b.Red()), half(a.Green(), b.Green()), half(a.Blue(), b.Blue()));
}

} // namespace korvane::controls
