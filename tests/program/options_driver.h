#pragma once

#include <windows.h>

#include <chrono>
#include <initializer_list>
#include <string>
#include <string_view>

#include "framework/gdi.h"
#include "tests/program/program_test.h"

namespace korvane::test {

// The options' pages by the commands that open them.
enum OptionsCommand : int { kMainOptions = 2009, kLaunchOptions = 4063, kCommandOptions = 5000 };

// Controls of the options as the outside world knows them.
inline constexpr int kOptionsOk = 6;
inline constexpr int kOptionsCancel = 2;
inline constexpr int kOptionsHelp = 1009;
inline constexpr int kOptionsTree = 1023;

// Waits until a dialog has the keyboard and keeps it. The window manager may hand the keyboard back late to the window
// that had it before, and what is typed in between is lost. A dialog that was passed over is brought to the front, as a
// user would do it.
[[nodiscard]] inline bool WaitForKeyboard(HWND dialog) {
    constexpr ULONGLONG kSettledMs = 400;
    constexpr ULONGLONG kPassedOverMs = 2000;
    ULONGLONG last = ::GetTickCount64(); // when it did not have the keyboard
    ULONGLONG raised = last;
    return WaitUntil([&] {
        const ULONGLONG now = ::GetTickCount64();
        if (::GetForegroundWindow() == dialog && ::IsChild(dialog, FocusOf(dialog)))
            return now - last >= kSettledMs && WaitUntilIdle(dialog);
        last = now;
        if (now - raised > kPassedOverMs) {
            ::SetForegroundWindow(dialog);
            raised = now;
        }
        return false;
    });
}

// The program's dialog that holds a control of its own, once it has the keyboard; null when there is none at the
// deadline.
[[nodiscard]] inline HWND WaitForDialogWith(const Program& program, int control) {
    const HWND dialog = WaitUntil([&]() -> HWND {
        for (const HWND window : WindowsOf(program.Id(), L"#32770"))
            if (::GetDlgItem(window, control)) return window;
        return nullptr;
    });
    return dialog && WaitForKeyboard(dialog) ? dialog : nullptr;
}

// Walks with Tab until a control has the keyboard, one press at a time: a press that is still on its way would walk
// past it.
[[nodiscard]] inline bool TabTo(HWND control, std::initializer_list<WORD> keys = {VK_TAB}) {
    return WaitUntil([&] {
        const HWND before = FocusOf(control);
        if (before == control) return true;
        PressKeys(keys);
        WaitUntil([&] { return FocusOf(control) != before; }, std::chrono::seconds{2});
        return false;
    });
}

[[nodiscard]] inline bool WaitUntilGone(HWND window) {
    return WaitUntil([&] { return !::IsWindow(window) || !::IsWindowVisible(window); });
}

// Clicks a button that closes its dialog. A busy display server can swallow a click; a user would click once more, too.
[[nodiscard]] inline bool ClickAway(HWND dialog, int button) {
    for (int attempt = 0; attempt < 5; ++attempt) {
        Click(::GetDlgItem(dialog, button));
        if (WaitUntil([&] { return !::IsWindow(dialog) || !::IsWindowVisible(dialog); }, std::chrono::seconds{4}))
            return true;
    }
    return false;
}

// Opens the options and drives them with real keys and clicks.
class OptionsTest : public ProgramTest {
protected:
    void SetUp() override {
        ProgramTest::SetUp();
        CloseWithoutQuestion();
    }

    // The bar with the options open on a page; null when they did not open.
    HWND Open(const Program& program, OptionsCommand command) {
        bar = program.WaitForBar();
        if (!bar) return nullptr;
        Command(bar, command);
        return WaitForDialogWith(program, kOptionsTree);
    }
    // The same by the bar's button. A busy display server can swallow a click; a user would click once more, too.
    HWND OpenByButton(const Program& program) {
        bar = program.WaitForBar();
        if (!bar) return nullptr;
        for (int attempt = 0; attempt < 5 && WindowsOf(program.Id(), L"#32770").empty(); ++attempt) {
            Click(Control(bar, kOptions));
            WaitUntil([&] { return !WindowsOf(program.Id(), L"#32770").empty(); }, std::chrono::seconds{4});
        }
        return WaitForDialogWith(program, kOptionsTree);
    }
    // The page on view. On a small screen it is seen through a window that scrolls.
    static HWND PageOf(HWND options) {
        const HWND view = ::FindWindowExW(options, nullptr, L"OptionPageView_WndClass", nullptr);
        for (HWND child = ::GetWindow(view ? view : options, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
            if (ClassOf(child) == L"#32770" && ::IsWindowVisible(child)) return child;
        return nullptr;
    }
    // A control of the page on view.
    static HWND On(HWND options, int id) { return ::GetDlgItem(PageOf(options), id); }
    static std::wstring TextOn(HWND options, int id) { return TextOf(On(options, id)); }
    static bool IsChecked(HWND options, int id) {
        return ::SendMessageW(On(options, id), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    static bool WaitForCaption(HWND options, const std::wstring& caption) {
        return WaitUntil([&] { return TextOf(options) == caption; });
    }
    static bool WaitForFocus(HWND control) {
        return WaitUntil([&] { return FocusOf(control) == control; });
    }
    static bool WaitUntilEnabled(HWND control, bool enabled = true) {
        return WaitUntil([&] { return (::IsWindowEnabled(control) != FALSE) == enabled; });
    }
    // A letter with Alt.
    static void Press(WORD letter) { PressKeys({VK_MENU, letter}); }
    // Presses OK with the mouse and waits until the dialog is gone and the bar has taken everything over.
    bool Confirm(HWND options) const {
        return ClickAway(options, kOptionsOk) && WaitUntil([&] { return ::IsWindowEnabled(bar) != FALSE; }) &&
               WaitUntilIdle(bar);
    }
    bool CancelByKey(HWND options) const {
        PressKeys({VK_ESCAPE});
        return WaitUntilGone(options) && WaitUntilIdle(bar);
    }
    bool CloseBar(const Program& program) const {
        Close(bar);
        return program.WaitForExit() == 0U;
    }

    HWND bar = nullptr;
};

} // namespace korvane::test
