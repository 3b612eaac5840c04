#pragma once

#include "base/dpi.h"
#include "base/geometry.h"
#include "controls/logic/calendar_month.h"

// Where the parts of the calendar and of its pop-up stand: figures at 96 dpi, scaled to the screen's pixels.
namespace korvane::controls {

inline constexpr base::Size kCellSize{28, 16};
inline constexpr int kRuleTop = 32;  // of the line above the days
inline constexpr int kCellsTop = 34; // of the first week

// Of the whole calendar: made of its parts, so that rounding cuts off no week.
[[nodiscard]] constexpr base::Size CalendarSize(const base::DpiScale& scale) {
    return {static_cast<int>(kDaysInWeek) * scale(kCellSize.width),
            scale(kCellsTop) + static_cast<int>(kWeeksShown) * scale(kCellSize.height)};
}

[[nodiscard]] constexpr base::Rect CellRect(std::size_t index, const base::DpiScale& scale) {
    const auto column = static_cast<int>(index % kDaysInWeek);
    const auto week = static_cast<int>(index / kDaysInWeek);
    const base::Size cell{scale(kCellSize.width), scale(kCellSize.height)};
    return base::Rect::At({column * cell.width, scale(kCellsTop) + week * cell.height}, cell);
}

[[nodiscard]] constexpr base::Rect TitleRect(const base::DpiScale& scale) {
    return {0, 0, CalendarSize(scale).width, scale(kCellSize.height)};
}

// Of a day's name, Sunday first: over its column and under the title.
[[nodiscard]] constexpr base::Rect WeekdayRect(std::size_t column, const base::DpiScale& scale) {
    const base::Rect below = CellRect(column, scale);
    return base::Rect::At({below.left, scale(kCellSize.height)}, below.Extent());
}

inline constexpr base::Size kPopUpSize{320, 240};
inline constexpr base::Point kCalendarPlace{62, 100};
inline constexpr int kDateTop = 60; // of the line with the date, under the time's

[[nodiscard]] constexpr base::Size PopUpSize(const base::DpiScale& scale) {
    return {scale(kPopUpSize.width), scale(kPopUpSize.height)};
}

[[nodiscard]] constexpr base::Rect CalendarRect(const base::DpiScale& scale) {
    return base::Rect::At({scale(kCalendarPlace.x), scale(kCalendarPlace.y)}, CalendarSize(scale));
}

// The two buttons stand on either side of the calendar.
[[nodiscard]] constexpr base::Rect StepButtonRect(unsigned button, const base::DpiScale& scale) {
    constexpr int kLeftOfPrevious = 30;
    constexpr int kLeftOfNext = 264;
    constexpr int kTop = 170;
    constexpr int kSide = 25;
    const int left = button == kPreviousMonthButton ? kLeftOfPrevious : kLeftOfNext;
    return base::Rect::At({scale(left), scale(kTop)}, {scale(kSide), scale(kSide)});
}

} // namespace korvane::controls
