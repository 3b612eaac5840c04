#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/geometry.h"

namespace korvane::controls {

// One reading of the local clock. Sunday is 0.
struct ClockReading {
    unsigned year = 0;
    unsigned month = 0;
    unsigned day = 0;
    unsigned dayOfWeek = 0;
    unsigned hour = 0;
    unsigned minute = 0;
    unsigned second = 0;
    friend constexpr bool operator==(const ClockReading&, const ClockReading&) = default;
};

// Identifiers of the string table: 130 plus the setting. The setting is not clamped; another number is looked up in the
// table like these.
inline constexpr unsigned kFirstClockFormat = 130;
inline constexpr unsigned kTime = 130;
inline constexpr unsigned kTimeWithSeconds = 131;
inline constexpr unsigned kTimeAndDate = 132;
inline constexpr unsigned kTimeWithSecondsAndDate = 133;
inline constexpr unsigned kDate = 134;
inline constexpr unsigned kNoClockFormat = 0xFFFFFFFF;

[[nodiscard]] constexpr unsigned ClockFormatOf(int setting) {
    return kFirstClockFormat + static_cast<unsigned>(setting);
}

[[nodiscard]] constexpr bool HasTwoLines(unsigned formatId) {
    return formatId == kTimeAndDate || formatId == kTimeWithSecondsAndDate;
}

// What the clock shows, in the wording of the format's text. A format that is none of the five gets the date. Empty for
// kNoClockFormat: the clock then keeps what it shows.
[[nodiscard]] std::optional<std::wstring> ClockText(unsigned formatId, std::wstring_view formatText,
                                                    const ClockReading& now);

// One character, Sunday first.
[[nodiscard]] std::wstring_view DayOfWeekName(unsigned dayOfWeek);

// The full date with the day of the week.
[[nodiscard]] std::wstring ClockTip(const ClockReading& now);

// What the date/time pop-up shows: the time with seconds, and the date with the day of the week.
[[nodiscard]] std::wstring PopUpTime(const ClockReading& now);
[[nodiscard]] std::wstring PopUpDate(const ClockReading& now);

// The clock follows the notification area of the Windows it runs on.
enum class ClockStyle {
    kPlain = 0,       // before Windows 7: no hover or pressed look
    kTray = 1,        // Windows 7 and 8: two lines in a small font, from the top
    kTrayBarFont = 2, // since Windows 10: two lines in the bar's font, in the middle
};

[[nodiscard]] constexpr ClockStyle ClockStyleOf(bool windows7, bool windows10) {
    if (!windows7) return ClockStyle::kPlain;
    return windows10 ? ClockStyle::kTrayBarFont : ClockStyle::kTray;
}

[[nodiscard]] constexpr bool UsesSmallFont(unsigned formatId, ClockStyle style) {
    return HasTwoLines(formatId) && style != ClockStyle::kTrayBarFont;
}

// Where text of the given size goes. Two lines in the small font start at the top of the button.
[[nodiscard]] constexpr base::Rect PlaceClockText(const base::Rect& item, base::Size text, unsigned formatId,
                                                  ClockStyle style) {
    const base::Rect centred = base::Centred(item, text);
    return UsesSmallFont(formatId, style) ? centred.Offset(0, item.top - centred.top) : centred;
}

} // namespace korvane::controls
