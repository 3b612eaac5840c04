#pragma once

#include <chrono>
#include <cstdint>

#include "base/geometry.h"

namespace korvane::app {

// Timers of the frame that docking needs; the values are the timers' identifiers.
enum class DockTimer : unsigned {
    kHideCheck = 1,     // has the mouse left the bar?
    kShowCheck = 2,     // does the mouse still touch the strip?
    kRepositioning = 3, // deaf to moved neighbours until then
    kDockAgain = 4,     // the shell or the screen changed
};

enum class ZOrder { kKeep, kTopmost, kNotTopmost, kTop, kBottom };

// A window as a plain number; 0 is none.
using WindowId = std::uintptr_t;

// The bar's window as docking sees it. Nothing here activates it, but showing it again when it was active before it was
// hidden.
class DockedWindow {
public:
    virtual ~DockedWindow() = default;

    // Of the monitor that is nearest to a rectangle.
    [[nodiscard]] virtual base::Rect WorkAreaAt(const base::Rect& place) const = 0;
    // The rectangle itself where the user can get hold of a window there, otherwise the nearest such one.
    [[nodiscard]] virtual base::Rect Reachable(const base::Rect& place) const = 0;
    [[nodiscard]] virtual base::Rect Place() const = 0;
    [[nodiscard]] virtual bool Visible() const = 0;
    virtual void Hide() = 0;
    virtual void Show() = 0;

    // A docked window is a bare tool window; a floating one has a caption, borders and a place in the task bar.
    virtual void BecomeDocked() = 0;
    virtual void BecomeFloating(bool topmost) = 0;

    virtual void MoveTo(const base::Rect& place, ZOrder order) = 0;
    virtual void SetZOrder(ZOrder order) = 0;
    // A step of a slide, painted at once: the bar itself when it comes, what it uncovers when it goes.
    virtual void SlideTo(int top, bool coming) = 0;
    // The controls that a hidden bar must not show in its strip.
    virtual void ShowControls(bool shown) = 0;

    [[nodiscard]] virtual bool CursorInside() const = 0;
    // A menu, a drop-down or a message box of the bar is open, or a selection is being dragged out of a box.
    [[nodiscard]] virtual bool InUse() const = 0;
    // What is typed goes to the bar: it is in front, and one of its controls has the keyboard.
    [[nodiscard]] virtual bool HasKeyboard() const = 0;

    [[nodiscard]] virtual WindowId WindowAbove() const = 0;
    // In the given order, kTopmost or kNotTopmost, just behind another window. False when that window is gone, or when
    // no topmost window can stand there.
    virtual bool PutBehind(WindowId window, ZOrder order) = 0;

    // Starting again restarts the period.
    virtual void StartTimer(DockTimer timer, std::chrono::milliseconds period) = 0;
    virtual void StopTimer(DockTimer timer) = 0;
    [[nodiscard]] virtual std::chrono::milliseconds Now() const = 0;
    // Without handling messages meanwhile.
    virtual void Wait(std::chrono::milliseconds time) = 0;

    // The mode or auto-hide changed: what the bar shows follows.
    virtual void DockingChanged() = 0;
};

} // namespace korvane::app
