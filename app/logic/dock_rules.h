#pragma once

#include <chrono>
#include <optional>

#include "base/dpi.h"
#include "base/geometry.h"

// The geometry of a docked bar. Pixels of the screen throughout, where nothing else is said.
namespace korvane::app {

// The edges of the screen that a bar can be docked to, with the numbers that the shell gives them (ABE_TOP,
// ABE_BOTTOM).
enum class Edge : unsigned { kTop = 1, kBottom = 3 };

// The edge that the setting DesktopBarEdge stands for.
[[nodiscard]] constexpr Edge EdgeOfSetting(int value) {
    return value > 0 ? Edge::kBottom : Edge::kTop;
}

// The strip of the given thickness along one edge of an area.
[[nodiscard]] constexpr base::Rect StripAt(Edge edge, base::Rect area, int thickness) {
    if (edge == Edge::kTop) {
        area.bottom = area.top + thickness;
    } else {
        area.top = area.bottom - thickness;
    }
    return area;
}

// The work area as it would be without the bar's own reservation. The shell never moves a bar over what it has reserved
// itself, so a bar that gets thinner would otherwise leave a gap behind it.
[[nodiscard]] constexpr base::Rect WithoutReservation(base::Rect workArea, const std::optional<base::Rect>& reserved,
                                                      Edge edge) {
    if (!reserved) return workArea;
    if (edge == Edge::kTop && reserved->bottom == workArea.top) workArea.top = reserved->top;
    if (edge == Edge::kBottom && reserved->top == workArea.bottom) workArea.bottom = reserved->bottom;
    return workArea;
}

// Design figures. A hidden bar leaves one row to be touched, and two where Windows' task bar lies on the same edge,
// whose own hidden strip would cover the one.
inline constexpr int kHiddenThicknessPx = 1;
inline constexpr int kHiddenThicknessBesideTaskBarPx = 2;

// Whether a task bar with this rectangle lies on the edge. Where it lies is taken from its corner, as task bars span
// the whole of the primary screen's edge.
[[nodiscard]] constexpr bool TaskBarLiesOn(Edge edge, const base::Rect& taskBar) {
    if (taskBar.left != 0) return false;
    if (taskBar.top != 0) return edge == Edge::kBottom;
    return edge == Edge::kTop && taskBar.right > taskBar.bottom;
}

// `taskBar` is empty when the shell did not tell.
[[nodiscard]] constexpr int HiddenThickness(Edge edge, const std::optional<base::Rect>& taskBar,
                                            const base::DpiScale& scale) {
    return scale(taskBar && TaskBarLiesOn(edge, *taskBar) ? kHiddenThicknessBesideTaskBarPx : kHiddenThicknessPx);
}

inline constexpr std::chrono::milliseconds kSlideTime{200};

// How far a slide moves the bar: the way between the middles of two rectangles, doubled. A bar that is cut down to its
// strip so leaves the screen by its whole height but for the strip.
[[nodiscard]] constexpr int SlideDistance(const base::Rect& from, const base::Rect& to) {
    return (to.top + to.bottom) - (from.top + from.bottom);
}

// The sliding bar's top edge after a time; `elapsed` is below the slide's time.
[[nodiscard]] constexpr int SlideTop(int startTop, std::chrono::milliseconds elapsed, int distance) {
    return startTop + static_cast<int>(elapsed.count() * distance / kSlideTime.count());
}

} // namespace korvane::app
