#pragma once

// The visual styles' class lists with which the buttons of the bar are drawn, by the version of Windows.
namespace korvane::controls {

// Buttons that look like the notification area's clock, which has a look of its own since Windows 7.
[[nodiscard]] constexpr const wchar_t* BarButtonTheme(bool windows7) {
    return windows7 ? L"TRAYNOTIFY::CLOCK" : L"TOOLBAR";
}

inline constexpr const wchar_t* kDropDownButtonTheme = L"TOOLBAR";

[[nodiscard]] constexpr const wchar_t* StepButtonTheme(bool windows8) {
    return windows8 ? L"TASKBAR::TOOLBAR" : L"TOOLBAR";
}

inline constexpr const wchar_t* kExitButtonTheme = L"WINDOW";
inline constexpr const wchar_t* kDialogButtonTheme = L"BUTTON";

// Parts of these classes. A toolbar's button, the tray's clock and a push button all are part 1.
inline constexpr int kPlatePart = 1;
inline constexpr int kSmallClosePart = 19;

} // namespace korvane::controls
