#pragma once

#include <windows.h>

#include "base/colour.h"
#include "base/geometry.h"

namespace fw {

// Selects an object into a device context and puts the old one back.
class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object) : dc_{dc}, previous_{::SelectObject(dc, object)} {}
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;
    ~SelectedObject() { ::SelectObject(dc_, previous_); }

private:
    HDC dc_;
    HGDIOBJ previous_;
};

// Saves a device context and restores it.
class SavedDc {
public:
    explicit SavedDc(HDC dc) : dc_{dc}, state_{::SaveDC(dc)} {}
    SavedDc(const SavedDc&) = delete;
    SavedDc& operator=(const SavedDc&) = delete;
    ~SavedDc() { ::RestoreDC(dc_, state_); }

private:
    HDC dc_;
    int state_;
};

// A window's device context, released at the end of the scope.
class WindowDc {
public:
    explicit WindowDc(HWND window) : window_{window}, dc_{::GetDC(window)} {}
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    ~WindowDc() { ::ReleaseDC(window_, dc_); }
    [[nodiscard]] HDC Get() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
};

constexpr korvane::base::Rect FromWindows(const RECT& r) {
    return {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right), static_cast<int>(r.bottom)};
}
constexpr RECT ToWindows(const korvane::base::Rect& r) {
    return {r.left, r.top, r.right, r.bottom};
}
constexpr COLORREF ToWindows(korvane::base::Colour colour) {
    return colour.value;
}

[[nodiscard]] inline korvane::base::Rect ClientRect(HWND window) {
    RECT r{};
    ::GetClientRect(window, &r);
    return FromWindows(r);
}
[[nodiscard]] inline korvane::base::Rect WindowRect(HWND window) {
    RECT r{};
    ::GetWindowRect(window, &r);
    return FromWindows(r);
}

} // namespace fw
