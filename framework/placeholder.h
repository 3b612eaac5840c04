#pragma once

#include <windows.h>

#include <string>

#include "framework/window.h"

namespace fw {

// A control of a dialog's template that only keeps the place for a window of this program's own.
class Placeholder {
public:
    // What the window does not take over from the control, and what it has beyond that.
    struct Changes {
        DWORD without = 0; // styles of the control that mean something else to the window
        DWORD with = 0;
        int id = 0; // 0 keeps the control's
    };

    Placeholder(HWND dialog, int id);

    explicit operator bool() const { return control_ != nullptr; }
    [[nodiscard]] CreateOptions Options(const Changes& changes) const;
    // Gives the window the control's font and its turn in the tab order, and removes the control.
    void HandOverTo(HWND window);

private:
    HWND control_;
    std::wstring text_;
    RECT place_{}; // in the dialog's client area
};

// Creates `window` in the place of a control: with its rectangle, styles, identifier, text, font and turn in the tab
// order. The control is gone afterwards. False, and nothing changed, when there is no such control or no window to be
// had.
template <class T>
[[nodiscard]] bool TakePlace(Window<T>& window, HWND dialog, int id, const Placeholder::Changes& changes = {}) {
    Placeholder placeholder{dialog, id};
    if (!placeholder || !window.Create(placeholder.Options(changes))) return false;
    placeholder.HandOverTo(window.Handle());
    return true;
}

} // namespace fw
