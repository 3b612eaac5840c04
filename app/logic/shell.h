#pragma once

#include <optional>

#include "app/logic/dock_rules.h"
#include "base/geometry.h"

namespace korvane::app {

// What the shell does for application desktop toolbars, asked in the name of one window. Rectangles are in screen
// pixels. Every call may call back before it returns.
class Shell {
public:
    virtual ~Shell() = default;

    // From now on the shell knows the window and sends it notifications. False when it refuses.
    virtual bool Register() = 0;
    // Gives back everything that was reserved or claimed. Harmless without a registration.
    virtual void Unregister() = 0;

    // What is free of a place at the edge.
    [[nodiscard]] virtual base::Rect QueryPlace(Edge edge, const base::Rect& wanted) = 0;
    // Takes the place away from the work area; gives the place that the window really gets.
    [[nodiscard]] virtual base::Rect ReservePlace(Edge edge, const base::Rect& wanted) = 0;

    // Whether a bar of another program hides itself at the edge. Only one can.
    [[nodiscard]] virtual bool OtherBarHidesAt(Edge edge) = 0;
    // Claims the edge for hiding, or lets go of it. False when the shell refuses.
    [[nodiscard]] virtual bool SetAutoHide(Edge edge, bool on) = 0;

    // Where Windows' task bar is; empty when there is none.
    [[nodiscard]] virtual std::optional<base::Rect> TaskBar() = 0;

    // What the shell wants to hear from a registered window.
    virtual void TellPlaceChanged(Edge edge) = 0;
    virtual void TellActivated(Edge edge, bool active) = 0;
};

} // namespace korvane::app
