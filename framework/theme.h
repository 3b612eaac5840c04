#pragma once

#include <windows.h>

#include "base/geometry.h"

namespace fw {

// True when "uxtheme.dll" can be loaded. Asked once per process; the answer is kept.
[[nodiscard]] bool ThemesAvailable();

// True while the user has a visual style and the program takes part in it. Asked anew at every call.
[[nodiscard]] bool VisualStylesActive();

// A visual style's theme for one window. Empty where there is no theme: every call on an empty theme does nothing, so
// that callers draw their content all the same. The library is loaded by its full path when the first theme is opened.
class Theme {
public:
    Theme() = default;
    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;
    ~Theme() { Close(); }

    // Closes what was open. `classes` is a class list of OpenThemeData, such as L"TRAYNOTIFY::CLOCK".
    void Open(HWND window, const wchar_t* classes);
    void Close();
    explicit operator bool() const { return theme_ != nullptr; }

    void DrawBackground(HDC dc, int part, int state, const korvane::base::Rect& rect) const;

private:
    HANDLE theme_ = nullptr;
};

// Lets the parent paint what shows through a themed child. False when themes are not available, so that the caller can
// fill the background itself.
bool DrawThemedParentBackground(HWND child, HDC dc, const korvane::base::Rect& rect);

// SetWindowTheme with a sub-application name such as L"EXPLORER".
void SetWindowTheme(HWND window, const wchar_t* subApplication);

} // namespace fw
