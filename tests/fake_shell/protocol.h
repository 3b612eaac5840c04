#pragma once

#include <windows.h>

// What a test may tell the fake shell or ask it, as messages to its window.
namespace korvane::fake_shell {

// Wine's SHAppBarMessage takes the first window of this class for the shell. Wine's own is a message-only window, so
// any top-level one is found before it.
inline constexpr wchar_t kServiceClass[] = L"WineAppBar";

enum Command : UINT {
    // wparam: edge; lparam: thickness in pixels.
    kMoveTaskBar = WM_APP,
    // wparam: whether it hides itself.
    kSetTaskBarAutoHide,
    // Another bar takes the auto-hide of an edge. wparam: edge.
    kOccupyAutoHide,
    // Another bar docks. wparam: edge; lparam: thickness in pixels. The answer is the bar.
    kReserveStrip,
    // The bar that kReserveStrip gave leaves. wparam: the bar.
    kGiveStripBack,
    // wparam: an appbar message that is refused from now on; lparam: whether it is.
    kRefuse,
    // A notification to every registered bar. wparam: ABN_...; lparam: its argument.
    kNotify,
    // The shell comes to its end and starts again, knowing nothing. wparam: how many times.
    kRestart,
    // Restarting the log.
    kClearLog,
    // A side of the rectangle that a bar has reserved. wparam: the bar; lparam: 0 left, 1 top, 2 right, 3 bottom.
    kAskReserved,
    // Whether a bar is registered. wparam: the bar.
    kAskRegistered,
    // The bar that owns the auto-hide of an edge. wparam: edge.
    kAskAutoHideOwner,
};

// The text of its window (WM_GETTEXT) is the log.

} // namespace korvane::fake_shell
