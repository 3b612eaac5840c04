#pragma once

#include <windows.h>

#include "tests/support/pump.h"
#include "tests/support/wait.h"

namespace korvane::test {

// A window of another program, which this test plays.
class OtherWindow {
public:
    explicit OtherWindow(const wchar_t* title) {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = &Procedure;
        windowClass.lpszClassName = L"OtherProgram_WndClass";
        ::RegisterClassW(&windowClass);
        activated_ = false;
        window_ = ::CreateWindowExW(0, windowClass.lpszClassName, title, WS_OVERLAPPEDWINDOW, 700, 500, 400, 200,
                                    nullptr, nullptr, nullptr, nullptr);
        ::ShowWindow(window_, SW_SHOWNOACTIVATE);
        PumpMessages();
    }
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;
    ~OtherWindow() { ::DestroyWindow(window_); }

    [[nodiscard]] HWND Handle() const { return window_; }
    // Has the user work with this window; false when it did not get the foreground.
    [[nodiscard]] bool TakeForeground() const {
        return WaitUntil([&] {
            PumpMessages();
            return ::GetForegroundWindow() == window_ || (::SetForegroundWindow(window_), false);
        });
    }
    void ForgetActivation() const { activated_ = false; }
    [[nodiscard]] bool WaitUntilActivated() const {
        return WaitUntil([] {
            PumpMessages();
            return activated_;
        });
    }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
        if (message == WM_ACTIVATE && LOWORD(wparam) != WA_INACTIVE) activated_ = true;
        return ::DefWindowProcW(window, message, wparam, lparam);
    }
    static inline bool activated_ = false;
    HWND window_ = nullptr;
};

} // namespace korvane::test
