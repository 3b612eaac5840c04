#pragma once

#include <windows.h>

namespace korvane::app {

// Whether a window is a pop-up of another one, or a pop-up's pop-up.
[[nodiscard]] bool BelongsTo(HWND owner, HWND window);

// Keeps the caption of a window looking active while one of its own pop-ups, a dialog or a history, has the keyboard:
// to the user it is all one window.
class ActiveCaption {
public:
    // WM_ACTIVATE of the window; `other` is what gets the activation from it or had it before.
    void OnActivate(HWND window, UINT how, HWND other);
    // WM_ACTIVATEAPP of the window. With a pop-up active Windows has nothing to tell the caption then.
    void OnActivateApp(HWND window, bool active) const;

private:
    HWND popUp_ = nullptr; // the one that the window gave the activation to
};

} // namespace korvane::app
