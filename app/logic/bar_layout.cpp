#include "app/logic/bar_layout.h"

#include <algorithm>

namespace korvane::app {
namespace {

// Design figures in pixels at 96 dpi.

// What the controls of fixed width take beside the two boxes. A figure of its own, not the sum of their widths.
constexpr int kFixedControlsWidthPx = 597;
// From the control panel button's left edge to the end of the bar, without the clock.
constexpr int kRightBlockWidthPx = 342;
constexpr int kClockWidthPx = 100;
// What floating saves: the exit button and its margins.
constexpr int kExitZoneWidthPx = 32;

constexpr base::Rect kMainMenu{4, 0, 124, kBarHeightPx};
constexpr int kRegionLeftPx = 127;
constexpr int kRegionTopPx = 4;
constexpr int kRegionBottomPx = 28;
constexpr int kRegionGapPx = 4;
constexpr int kChooserRoomPx = 120;
constexpr int kBoxLeftPx = 151;
constexpr int kBoxTopPx = 8;
constexpr int kBoxHeightPx = 16;
constexpr base::Rect kCommandIcon{132, 8, 148, 24};
constexpr int kRunButtonFromRightPx = 23;
constexpr int kRunButtonTopPx = 5;
constexpr int kRunButtonSizePx = 22;
constexpr int kHistoryButtonFromRightPx = 38;
constexpr int kHistoryButtonWidthPx = 15;
constexpr int kChooserWidthPx = 140;
constexpr int kControlPanelWidthPx = 130;
constexpr int kToolButtonWidthPx = 36;
constexpr int kClockFromBlockLeftPx = 310;
constexpr int kExitFromRightPx = 25;
constexpr int kExitTopPx = 7;
constexpr int kExitSizePx = 18;

// Between these two edges at the given top; never of negative width, however narrow the bar.
base::Rect Span(int left, int right, int top, int height) {
    return {left, top, std::max(left, right), top + height};
}

} // namespace

BarLayout LayOutBar(int clientWidthPx, const BarLayoutOptions& options) {
    const base::DpiScale& px = options.scale;
    BarLayout bar;

    const int barHeight = px(kBarHeightPx);
    const auto centred = [&](int left, int width, int height) {
        return base::Rect::At({left, (barHeight - height) / 2}, {width, height});
    };

    int reserved = options.clockShown ? px(kClockWidthPx) : 0;
    if (options.windowMode) reserved -= px(kExitZoneWidthPx);
    const int half = (clientWidthPx - reserved - px(kFixedControlsWidthPx)) / 2;

    // Both regions keep at least the room of what stands in them, so that nothing turns inside out on a narrow window.
    const int narrowestHalf = px(kBoxLeftPx - kRegionLeftPx + kHistoryButtonFromRightPx);
    const int regionWidth = std::max(half, narrowestHalf);
    bar.commandRegion = {px(kRegionLeftPx), px(kRegionTopPx), px(kRegionLeftPx) + regionWidth, px(kRegionBottomPx)};
    bar.searchRegion = bar.commandRegion.Offset(regionWidth + px(kRegionGapPx), 0);
    bar.searchRegion.right += px(kChooserRoomPx);
    bar.commandIcon = base::Rect::At({px(kCommandIcon.left), px(kCommandIcon.top)},
                                     {px(kCommandIcon.Width()), px(kCommandIcon.Height())});

    const int controlHeight = px(options.windows7OrLater ? 32 : 30);
    bar.mainMenu = centred(px(kMainMenu.left), px(kMainMenu.Width()), controlHeight);

    const auto runButton = [&](const base::Rect& region) {
        return base::Rect::At({region.right - px(kRunButtonFromRightPx), px(kRunButtonTopPx)},
                              {px(kRunButtonSizePx), px(kRunButtonSizePx)});
    };
    bar.run = runButton(bar.commandRegion);
    bar.search = runButton(bar.searchRegion);

    const int historyHeight = px(options.windows8OrLater ? 20 : 22);
    const auto historyButton = [&](const base::Rect& region) {
        return centred(region.right - px(kHistoryButtonFromRightPx), px(kHistoryButtonWidthPx), historyHeight);
    };
    bar.commandHistory = historyButton(bar.commandRegion);
    bar.searchHistory = historyButton(bar.searchRegion);

    bar.searchChooser = base::Rect::At({bar.searchRegion.left + px(1), px(options.windows8OrLater ? 5 : 4)},
                                       {px(kChooserWidthPx), px(options.windows8OrLater ? 22 : 24)});
    bar.searchBox = Span(bar.searchChooser.right, bar.searchHistory.left, px(kBoxTopPx), px(kBoxHeightPx));
    bar.commandBox = Span(px(kBoxLeftPx), bar.commandHistory.left, px(kBoxTopPx), px(kBoxHeightPx));

    const int blockLeft = clientWidthPx - reserved - px(kRightBlockWidthPx);
    bar.controlPanel = centred(blockLeft, px(kControlPanelWidthPx), controlHeight);
    const auto toolButton = [&](int position) {
        return centred(blockLeft + px(kControlPanelWidthPx + position * kToolButtonWidthPx), px(kToolButtonWidthPx),
                       controlHeight);
    };
    for (int i = 0; i < 3; ++i) bar.launch[static_cast<std::size_t>(i)] = toolButton(i);
    bar.options = toolButton(3);
    bar.help = toolButton(4);
    bar.clock = centred(blockLeft + px(kClockFromBlockLeftPx), px(kClockWidthPx), controlHeight);
    bar.exit =
        base::Rect::At({clientWidthPx - px(kExitFromRightPx), px(kExitTopPx)}, {px(kExitSizePx), px(kExitSizePx)});
    return bar;
}

int NarrowestBarPx(const base::DpiScale& scale) {
    return scale(900);
}

} // namespace korvane::app
