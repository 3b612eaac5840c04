#pragma once

#include <array>

#include "base/dpi.h"
#include "base/geometry.h"

namespace korvane::app {

// What the place of the bar's controls depends on besides the width.
struct BarLayoutOptions {
    bool clockShown = false;
    bool windowMode = false;     // floating: without the exit button, whose place the others take
    bool windows7OrLater = true; // older systems have slightly lower controls
    bool windows8OrLater = true; // newer looks want slightly smaller drop-down buttons
    base::DpiScale scale{};
};

// Where everything on the bar stands, in client pixels.
struct BarLayout {
    base::Rect commandRegion; // the white field behind the command input box and its buttons
    base::Rect searchRegion;
    base::Rect commandIcon;

    base::Rect mainMenu;
    base::Rect commandBox;
    base::Rect searchBox;
    base::Rect commandHistory;
    base::Rect searchHistory;
    base::Rect searchChooser;
    base::Rect run;
    base::Rect search;
    base::Rect controlPanel;
    std::array<base::Rect, 3> launch;
    base::Rect options;
    base::Rect help;
    base::Rect clock;
    base::Rect exit;
};

// Design figure: the bar's height.
inline constexpr int kBarHeightPx = 32;

[[nodiscard]] BarLayout LayOutBar(int clientWidthPx, const BarLayoutOptions& options);

// The width below which the boxes would be too narrow to type into.
[[nodiscard]] int NarrowestBarPx(const base::DpiScale& scale);

} // namespace korvane::app
