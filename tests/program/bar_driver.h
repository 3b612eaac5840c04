#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "tests/support/program_driver.h"
#include "tests/support/wait.h"

// What a user does with the bar, for tests that drive it from outside.
namespace korvane::test {

// The display server may swallow a press or a click while it hands out the focus, so what the user does is repeated
// until it has done its work.
template <class Action, class Condition>
[[nodiscard]] bool RepeatUntil(Action&& act, Condition&& done) {
    constexpr std::chrono::seconds kForOneTry{3};
    return WaitUntil([&] {
        act();
        return WaitUntil(done, kForOneTry);
    });
}

// ---- Menus, of any program

[[nodiscard]] inline HWND OpenMenu() {
    for (const HWND window : AllWindows(L"#32768"))
        if (::IsWindowVisible(window)) return window;
    return nullptr;
}
[[nodiscard]] inline bool WaitForMenu() {
    return WaitUntil([] { return OpenMenu() != nullptr; });
}
[[nodiscard]] inline bool WaitForNoMenu() {
    return WaitUntil([] { return OpenMenu() == nullptr; });
}

// Chooses from the open menu by a letter that leads to one item only.
[[nodiscard]] inline bool ChooseByKey(WORD key) {
    return WaitForMenu() && RepeatUntil([key] { PressKeys({key}); }, [] { return OpenMenu() == nullptr; });
}

// ---- The mouse

template <class Condition>
[[nodiscard]] bool ClickUntil(HWND window, Condition&& done) {
    return RepeatUntil([window] { Click(window); }, std::forward<Condition>(done));
}

inline void SendMouse(HWND window, std::initializer_list<MOUSEINPUT> events) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    ::SetCursorPos((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    for (const MOUSEINPUT& event : events) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi = event;
        ::SendInput(1, &input, sizeof input);
    }
}
inline void RightClick(HWND window) {
    SendMouse(window, {{0, 0, 0, MOUSEEVENTF_RIGHTDOWN, 0, 0}, {0, 0, 0, MOUSEEVENTF_RIGHTUP, 0, 0}});
}
[[nodiscard]] inline bool RightClickForMenu(HWND window) {
    return RepeatUntil([window] { RightClick(window); }, [] { return OpenMenu() != nullptr; });
}
// Away from the user if positive.
inline void TurnWheel(HWND window, int steps) {
    SendMouse(window, {{0, 0, static_cast<DWORD>(steps * WHEEL_DELTA), MOUSEEVENTF_WHEEL, 0, 0}});
}

// ---- The keyboard

// Presses a key and repeats it as often as a keyboard does while it is held.
inline void HoldKey(WORD key, int repeats) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    for (int i = 0; i <= repeats; ++i) ::SendInput(1, &input, sizeof input);
    input.ki.dwFlags = KEYEVENTF_KEYUP;
    ::SendInput(1, &input, sizeof input);
}

// ---- Parts of the bar

// The list of the open history that has the keyboard; null when there is none at the deadline.
[[nodiscard]] inline HWND HistoryList(const Program& program) {
    return WaitUntil([&]() -> HWND {
        for (const HWND window : WindowsOf(program.Id(), L"#32770"))
            if (const HWND list = ::FindWindowExW(window, nullptr, WC_LISTVIEWW, nullptr))
                if (FocusOf(list) == list) return list;
        return nullptr;
    });
}

// A dialog of the program; null when there is none at the deadline.
[[nodiscard]] inline HWND WaitForDialog(const Program& program) {
    return WaitUntil([&]() -> HWND {
        const auto dialogs = WindowsOf(program.Id(), L"#32770");
        return dialogs.empty() ? nullptr : dialogs.front();
    });
}

// The control of a dialog that shows exactly this text.
[[nodiscard]] inline HWND ChildWithText(HWND dialog, const std::wstring& text) {
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (TextOf(child) == text) return child;
    return nullptr;
}

} // namespace korvane::test
