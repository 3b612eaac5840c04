#pragma once

#include <windows.h>

namespace korvane::test {

// Counts how often one message is sent to one window of this thread while it lives, and keeps its last wparam. One at a
// time.
class MessageCount {
public:
    MessageCount(HWND window, UINT message) {
        window_ = window;
        message_ = message;
        count_ = 0;
        last_ = 0;
        hook_ = ::SetWindowsHookExW(WH_CALLWNDPROC, &OnMessage, nullptr, ::GetCurrentThreadId());
    }
    MessageCount(const MessageCount&) = delete;
    MessageCount& operator=(const MessageCount&) = delete;
    ~MessageCount() { ::UnhookWindowsHookEx(hook_); }

    [[nodiscard]] int Count() const { return count_; }
    [[nodiscard]] WPARAM LastWparam() const { return last_; }

private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM wparam, LPARAM lparam) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lparam);
        if (code == HC_ACTION && message.hwnd == window_ && message.message == message_) {
            ++count_;
            last_ = message.wParam;
        }
        return ::CallNextHookEx(nullptr, code, wparam, lparam);
    }

    static inline HWND window_ = nullptr;
    static inline UINT message_ = 0;
    static inline int count_ = 0;
    static inline WPARAM last_ = 0;
    HHOOK hook_ = nullptr;
};

} // namespace korvane::test
