#pragma once

#include <algorithm>
#include <chrono>

namespace korvane::settings {

// The time that the value of DesktopBarAutoHideSecond stands for: the page's list begins with half a second and goes on
// in steps of half a second. A damaged value gives the nearest time that a window timer can hold.
[[nodiscard]] constexpr std::chrono::milliseconds AutoHideDelay(int index) {
    using std::chrono::milliseconds;
    constexpr milliseconds kStep{500};
    // USER_TIMER_MAXIMUM: a longer period would be taken for one millisecond.
    constexpr milliseconds kLongestTimer{0x7FFFFFFF};
    return std::min(kStep * (milliseconds::rep{std::max(index, 0)} + 1), kLongestTimer);
}

} // namespace korvane::settings
