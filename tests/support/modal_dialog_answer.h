#pragma once

#include <windows.h>

#include <functional>
#include <utility>

#include "framework/message_map.h"

namespace korvane::test {

// Answers every dialog of this thread that has a certain control: once it is set up, `fill` gets its window, then the
// button is pressed. One at a time.
class ModalDialogAnswer {
public:
    ModalDialogAnswer(int control, int button, std::function<void(HWND)> fill = {})
        : control_{control}, button_{button}, fill_{std::move(fill)} {
        current_ = this;
        hook_ = ::SetWindowsHookExW(WH_CALLWNDPROCRET, &OnMessage, nullptr, ::GetCurrentThreadId());
    }
    ModalDialogAnswer(const ModalDialogAnswer&) = delete;
    ModalDialogAnswer& operator=(const ModalDialogAnswer&) = delete;
    ~ModalDialogAnswer() {
        ::UnhookWindowsHookEx(hook_);
        current_ = nullptr;
    }

    [[nodiscard]] int Count() const { return count_; }

private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM wparam, LPARAM lparam) {
        const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lparam);
        if (code == HC_ACTION && message.message == WM_INITDIALOG && ::GetDlgItem(message.hwnd, current_->control_)) {
            ++current_->count_;
            if (current_->fill_) current_->fill_(message.hwnd);
            ::PostMessageW(message.hwnd, WM_COMMAND, static_cast<WPARAM>(current_->button_), 0);
        }
        return ::CallNextHookEx(nullptr, code, wparam, lparam);
    }

    static inline ModalDialogAnswer* current_ = nullptr;
    HHOOK hook_ = nullptr;
    int control_;
    int button_;
    int count_ = 0;
    std::function<void(HWND)> fill_;
};

} // namespace korvane::test
