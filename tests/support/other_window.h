#pragma once

#include <windows.h>

#include <atomic>
#include <future>
#include <thread>

#include "tests/support/wait.h"

namespace korvane::test {

// A window of another program, which this process plays. It has a thread of its own, for a window that does not answer
// would hold up whoever broadcasts something.
class OtherWindow {
public:
    explicit OtherWindow(const wchar_t* title, int showCommand = SW_SHOWNOACTIVATE) {
        activated_ = false;
        std::promise<HWND> created;
        auto window = created.get_future();
        thread_ = std::thread{[title, showCommand, &created] { Serve(title, showCommand, created); }};
        window_ = window.get();
    }
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;
    ~OtherWindow() {
        ::PostMessageW(window_, WM_CLOSE, 0, 0);
        thread_.join();
    }

    [[nodiscard]] HWND Handle() const { return window_; }
    // Has the user work with this window; false when it did not get the foreground.
    [[nodiscard]] bool TakeForeground() const {
        return WaitUntil([&] { return ::GetForegroundWindow() == window_ || (::SetForegroundWindow(window_), false); });
    }
    void ForgetActivation() const { activated_ = false; }
    [[nodiscard]] bool WaitUntilActivated() const {
        return WaitUntil([] { return activated_.load(); });
    }

private:
    static void Serve(const wchar_t* title, int showCommand, std::promise<HWND>& created) {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = &Procedure;
        windowClass.lpszClassName = L"OtherProgram_WndClass";
        ::RegisterClassW(&windowClass);
        const HWND window = ::CreateWindowExW(0, windowClass.lpszClassName, title, WS_OVERLAPPEDWINDOW, 700, 500, 400,
                                              200, nullptr, nullptr, nullptr, nullptr);
        ::ShowWindow(window, showCommand);
        created.set_value(window);
        MSG message{};
        while (::GetMessageW(&message, nullptr, 0, 0) > 0) ::DispatchMessageW(&message);
    }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
        if (message == WM_ACTIVATE && LOWORD(wparam) != WA_INACTIVE) activated_ = true;
        if (message == WM_DESTROY) ::PostQuitMessage(0);
        return ::DefWindowProcW(window, message, wparam, lparam);
    }

    static inline std::atomic<bool> activated_ = false;
    std::thread thread_;
    HWND window_ = nullptr;
};

} // namespace korvane::test
