#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <utility>

#include "framework/window_text.h"

namespace korvane::test {

// Works with the first dialog that opens on this thread while it lives, as soon as the dialog has set itself up, and
// remembers what it was called. What is to happen later, `act` posts. One at a time.
class DialogAnswer {
public:
    explicit DialogAnswer(std::function<void(HWND dialog)> act) : act_{std::move(act)} {
        current_ = this;
        hook_ = ::SetWindowsHookExW(WH_CALLWNDPROCRET, &OnMessage, nullptr, ::GetCurrentThreadId());
    }
    // Cancels it.
    DialogAnswer() : DialogAnswer{[](HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); }} {}
    DialogAnswer(const DialogAnswer&) = delete;
    DialogAnswer& operator=(const DialogAnswer&) = delete;
    ~DialogAnswer() {
        ::UnhookWindowsHookEx(hook_);
        current_ = nullptr;
    }

    // Empty when none has opened.
    [[nodiscard]] const std::wstring& Caption() const { return caption_; }

private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM wparam, LPARAM lparam) {
        const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lparam);
        if (code == HC_ACTION && message.message == WM_INITDIALOG && !current_->seen_ &&
            (::GetWindowLongPtrW(message.hwnd, GWL_STYLE) & WS_CHILD) == 0) {
            current_->seen_ = true;
            current_->caption_ = fw::WindowText(message.hwnd);
            current_->act_(message.hwnd);
        }
        return ::CallNextHookEx(nullptr, code, wparam, lparam);
    }

    static inline DialogAnswer* current_ = nullptr;
    std::function<void(HWND)> act_;
    HHOOK hook_ = nullptr;
    bool seen_ = false;
    std::wstring caption_;
};

} // namespace korvane::test
