#include "controls/logic/clock_text.h"

#include <array>

#include "base/format_text.h"

namespace korvane::controls {

using base::FormatText;

std::optional<std::wstring> ClockText(unsigned formatId, std::wstring_view formatText, const ClockReading& now) {
    switch (formatId) {
    case kNoClockFormat:
        return std::nullopt;
    case kTime:
        return FormatText(formatText, now.hour, now.minute);
    case kTimeWithSeconds:
        return FormatText(formatText, now.hour, now.minute, now.second);
    case kTimeAndDate:
        return FormatText(formatText, now.hour, now.minute, now.year, now.month, now.day);
    case kTimeWithSecondsAndDate:
        return FormatText(formatText, now.hour, now.minute, now.second, now.year, now.month, now.day);
    default:
        return FormatText(formatText, now.year, now.month, now.day);
    }
}

std::wstring_view DayOfWeekName(unsigned dayOfWeek) {
    static constexpr std::array<std::wstring_view, 7> kDays{L"日", L"月", L"火", L"水", L"木", L"金", L"土"};
    return kDays[dayOfWeek % kDays.size()];
}

std::wstring ClockTip(const ClockReading& now) {
    return FormatText(L"%u年%u月%u日(%s)", now.year, now.month, now.day, DayOfWeekName(now.dayOfWeek));
}

std::wstring PopUpTime(const ClockReading& now) {
    return FormatText(L"%02u:%02u:%02u", now.hour, now.minute, now.second);
}

std::wstring PopUpDate(const ClockReading& now) {
    return FormatText(L"%u年%u月%u日 %s曜日", now.year, now.month, now.day, DayOfWeekName(now.dayOfWeek));
}

} // namespace korvane::controls
