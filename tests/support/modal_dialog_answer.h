#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <utility>

#include "framework/window_text.h"

namespace korvane::test {

// Answers every dialog that this thread opens, as soon as it has been set up, and remembers the last one's title.
// `before` is called with the dialog first. One at a time.
class ModalDialogAnswer {
public:
    // `before` does all that is to be done.
    static constexpr int kNoButton = 0;

    explicit ModalDialogAnswer(int button, std::function<void(HWND)> before = {})
        : ModalDialogAnswer{kAnyDialog, button, std::move(before)} {}
    // Only the dialogs that have a certain control.
    ModalDialogAnswer(int control, int button, std::function<void(HWND)> before = {})
        : control_{control}, button_{button}, before_{std::move(before)} {
        current_ = this;
        hook_ = ::SetWindowsHookExW(WH_CALLWNDPROCRET, &OnMessage, nullptr, ::GetCurrentThreadId());
    }
    ModalDialogAnswer(const ModalDialogAnswer&) = delete;
    ModalDialogAnswer& operator=(const ModalDialogAnswer&) = delete;
    ~ModalDialogAnswer() {
        ::UnhookWindowsHookEx(hook_);
        current_ = nullptr;
    }

    [[nodiscard]] const std::wstring& Caption() const { return caption_; }
    [[nodiscard]] HWND Owner() const { return owner_; }
    [[nodiscard]] int Count() const { return count_; }

private:
    static constexpr int kAnyDialog = 0;

    static LRESULT CALLBACK OnMessage(int code, WPARAM wparam, LPARAM lparam) {
        const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lparam);
        if (code == HC_ACTION && message.message == WM_INITDIALOG && current_->Meets(message.hwnd))
            current_->Answer(message.hwnd);
        return ::CallNextHookEx(nullptr, code, wparam, lparam);
    }
    [[nodiscard]] bool Meets(HWND dialog) const { return control_ == kAnyDialog || ::GetDlgItem(dialog, control_); }
    void Answer(HWND dialog) {
        ++count_;
        caption_ = fw::WindowText(dialog);
        owner_ = ::GetWindow(dialog, GW_OWNER);
        if (before_) before_(dialog);
        if (button_ != kNoButton) ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button_), 0);
    }

    static inline ModalDialogAnswer* current_ = nullptr;
    HHOOK hook_ = nullptr;
    int control_;
    int button_;
    std::function<void(HWND)> before_;
    int count_ = 0;
    HWND owner_ = nullptr;
    std::wstring caption_;
};

} // namespace korvane::test
