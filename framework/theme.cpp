#include "framework/theme.h"

#include <uxtheme.h>

#include "framework/gdi.h"
#include "framework/system_library.h"

namespace fw {
namespace {

// The library stays loaded from the first theme to the end of the process: a theme of another window may still need it.
struct Uxtheme {
    UniqueLibrary library = LoadSystemLibrary(L"uxtheme.dll");
    decltype(&::OpenThemeData) open = FunctionOf<decltype(::OpenThemeData)>(library.Get(), "OpenThemeData");
    decltype(&::CloseThemeData) close = FunctionOf<decltype(::CloseThemeData)>(library.Get(), "CloseThemeData");
    decltype(&::DrawThemeBackground) drawBackground =
        FunctionOf<decltype(::DrawThemeBackground)>(library.Get(), "DrawThemeBackground");
    decltype(&::DrawThemeParentBackground) drawParentBackground =
        FunctionOf<decltype(::DrawThemeParentBackground)>(library.Get(), "DrawThemeParentBackground");
    decltype(&::SetWindowTheme) setWindowTheme =
        FunctionOf<decltype(::SetWindowTheme)>(library.Get(), "SetWindowTheme");
    decltype(&::IsThemeActive) isThemeActive = FunctionOf<decltype(::IsThemeActive)>(library.Get(), "IsThemeActive");
    decltype(&::IsAppThemed) isAppThemed = FunctionOf<decltype(::IsAppThemed)>(library.Get(), "IsAppThemed");
};

const Uxtheme& Library() {
    // A function-local static is initialised once even when two threads get here together.
    static const Uxtheme uxtheme;
    return uxtheme;
}

} // namespace

bool ThemesAvailable() {
    return static_cast<bool>(Library().library);
}

bool VisualStylesActive() {
    const Uxtheme& themes = Library();
    return themes.isThemeActive && themes.isAppThemed && themes.isThemeActive() && themes.isAppThemed();
}

void Theme::Open(HWND window, const wchar_t* classes) {
    Close();
    if (Library().open) theme_ = Library().open(window, classes);
}

void Theme::Close() {
    if (theme_) Library().close(theme_);
    theme_ = nullptr;
}

void Theme::DrawBackground(HDC dc, int part, int state, const korvane::base::Rect& rect) const {
    if (!theme_ || !Library().drawBackground) return;
    const RECT target = ToWindows(rect);
    Library().drawBackground(theme_, dc, part, state, &target, nullptr);
}

bool DrawThemedParentBackground(HWND child, HDC dc, const korvane::base::Rect& rect) {
    if (!Library().drawParentBackground) return false;
    RECT target = ToWindows(rect);
    return SUCCEEDED(Library().drawParentBackground(child, dc, &target));
}

void SetWindowTheme(HWND window, const wchar_t* subApplication) {
    if (Library().setWindowTheme) Library().setWindowTheme(window, subApplication, nullptr);
}

} // namespace fw
