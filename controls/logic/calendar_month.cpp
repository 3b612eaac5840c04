#include "controls/logic/calendar_month.h"

#include "base/format_text.h"

namespace korvane::controls {
namespace {

constexpr unsigned kJanuary = 1;
constexpr unsigned kFebruary = 2;
constexpr unsigned kDecember = 12;

constexpr bool IsLeapYear(unsigned year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

} // namespace

CalendarPage PreviousPage(CalendarPage page) {
    if (page == kFirstPage) return page;
    if (page.shownMonth == kJanuary) return {page.shownYear - 1, kDecember};
    return {page.shownYear, page.shownMonth - 1};
}

CalendarPage NextPage(CalendarPage page) {
    if (page == kLastPage) return page;
    if (page.shownMonth == kDecember) return {page.shownYear + 1, kJanuary};
    return {page.shownYear, page.shownMonth + 1};
}

unsigned WeekdayOfFirst(CalendarPage page) {
    // January and February count as the last months of the year before, so that the leap day ends a year.
    const bool endOfYear = page.shownMonth <= kFebruary;
    const unsigned year = endOfYear ? page.shownYear - 1 : page.shownYear;
    const unsigned month = endOfYear ? page.shownMonth + 12 : page.shownMonth;
    return (year + year / 4 - year / 100 + year / 400 + (13 * month + 8) / 5 + 1) % 7;
}

unsigned DaysIn(CalendarPage page) {
    switch (page.shownMonth) {
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    case kFebruary:
        return IsLeapYear(page.shownYear) ? 29 : 28;
    default:
        return 31;
    }
}

CalendarMonth BuildMonth(CalendarPage page, const ClockReading& today) {
    CalendarMonth month;
    month.title = base::FormatText(L"%u年%u月", page.shownYear, page.shownMonth);
    month.showsToday = page == PageOf(today);

    // Counted from the 1st; "month 0" of the year has 31 days, as December has.
    const int firstCell = static_cast<int>(WeekdayOfFirst(page));
    const int days = static_cast<int>(DaysIn(page));
    const int daysBefore = static_cast<int>(DaysIn({page.shownYear, page.shownMonth - 1}));
    for (int i = 0; i < static_cast<int>(month.cells.size()); ++i) {
        const int day = i - firstCell + 1;
        DayCell& cell = month.cells[static_cast<std::size_t>(i)];
        cell.isOtherMonth = day < 1 || day > days;
        cell.day = static_cast<unsigned>(day < 1 ? day + daysBefore : day > days ? day - days : day);
        cell.isToday = month.showsToday && !cell.isOtherMonth && cell.day == today.day;
    }
    return month;
}

} // namespace korvane::controls
