#pragma once

#include <windows.h>

#include "app/bar_controls.h"
#include "app/logic/bar_walk.h"
#include "search/logic/history.h"

namespace korvane::app {

// Where the keyboard is on the bar. It belongs in one of the two boxes: whatever else had it gives it back there. The
// user can also walk along the buttons, and leave the bar for the window that they came from.
class BarKeyboard {
public:
    // The controls outlive it.
    explicit BarKeyboard(BarControls& controls) : controls_{controls} {}

    // The bar itself, once its controls are there.
    void Begin(HWND bar) { bar_ = bar; }

    // The box that has the keyboard, or gets it back.
    [[nodiscard]] search::Box Home() const { return home_; }
    [[nodiscard]] search::CEditEx& BoxWindow(search::Box box) const;
    void SetHome(search::Box box) { home_ = box; }
    // Gives the keyboard to the home box, unless another window of the desktop has it.
    void Return();
    void GoTo(search::Box box);
    // Likewise with all of the box's text selected, so that typing replaces it.
    void GoToAllOf(search::Box box);

    // One of the bar's buttons was pressed: a run button's box gets the keyboard, after any other the home box.
    void OnPressed(UINT button);

    // Brings the bar to the foreground with the keyboard in a box. Where the user came from is remembered.
    void Summon(search::Box box);
    // Brings the bar to the foreground with the keyboard in a box, where the user has just put something.
    void Take(search::Box box);
    // Gives the keyboard to the window that the user came from, or else to the topmost one below the bar.
    void Leave();
    // The user works in another program and will come from there the next time.
    void ForgetOrigin() { origin_ = nullptr; }
    // The user has worked with the text that they were brought to.
    void Touch() { untouched_ = false; }

    // A key that goes to the bar or one of its controls. True when it has been dealt with; commands are posted to the
    // bar. `enterRuns` is the setting EnableEnterEvent.
    [[nodiscard]] bool OnKey(const MSG& message, bool enterRuns);

    // The user types, or walks: what they do must be seen.
    [[nodiscard]] bool IsForEyes(const MSG& message) const;

private:
    [[nodiscard]] search::CEditEx& BoxOf(HWND window) const;
    [[nodiscard]] bool OnWalkKey(const MSG& message);
    [[nodiscard]] bool OnBoxKey(const MSG& message, bool enterRuns);
    void Walk(WalkKey key);
    void Post(UINT command) const;

    BarControls& controls_;
    HWND bar_ = nullptr;
    search::Box home_ = search::Box::kCommand;
    HWND origin_ = nullptr;
    bool untouched_ = false;
};

} // namespace korvane::app
