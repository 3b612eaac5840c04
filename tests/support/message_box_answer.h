#pragma once

#include <windows.h>

#include <string>

#include "framework/window_text.h"

namespace korvane::test {

// Answers every message box of this thread with one button, as soon as it is active, and remembers what the last one
// said. One at a time.
class MessageBoxAnswer {
public:
    explicit MessageBoxAnswer(int button) : button_{button} {
        current_ = this;
        // The box's own hook for centring may sit before this one and keep the activation to itself; the message that
        // shows the box comes in any case.
        hook_ = ::SetWindowsHookExW(WH_CALLWNDPROCRET, &OnMessage, nullptr, ::GetCurrentThreadId());
    }
    MessageBoxAnswer(const MessageBoxAnswer&) = delete;
    MessageBoxAnswer& operator=(const MessageBoxAnswer&) = delete;
    ~MessageBoxAnswer() {
        ::UnhookWindowsHookEx(hook_);
        current_ = nullptr;
    }

    [[nodiscard]] const std::wstring& Caption() const { return caption_; }
    [[nodiscard]] const std::wstring& Text() const { return text_; }
    [[nodiscard]] int Count() const { return count_; }

private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM wparam, LPARAM lparam) {
        const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lparam);
        // A message box is a dialog whose text has the identifier 0xFFFF.
        constexpr int kTextId = 0xFFFF;
        if (code == HC_ACTION && message.message == WM_INITDIALOG && ::GetDlgItem(message.hwnd, kTextId)) {
            current_->caption_ = fw::WindowText(message.hwnd);
            current_->text_ = fw::WindowText(::GetDlgItem(message.hwnd, kTextId));
            ++current_->count_;
            ::PostMessageW(message.hwnd, WM_COMMAND, static_cast<WPARAM>(current_->button_), 0);
        }
        return ::CallNextHookEx(nullptr, code, wparam, lparam);
    }

    static inline MessageBoxAnswer* current_ = nullptr;
    HHOOK hook_ = nullptr;
    int button_;
    int count_ = 0;
    std::wstring caption_;
    std::wstring text_;
};

} // namespace korvane::test
