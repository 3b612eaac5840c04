#pragma once

#include <windows.h>

#include <vector>

namespace korvane::test {

// The pop-up menus of this thread that open while it lives, in their order. One at a time.
class PopupsOpened {
public:
    PopupsOpened() {
        opened_.clear();
        hook_ = ::SetWindowsHookExW(WH_CALLWNDPROC, &OnMessage, nullptr, ::GetCurrentThreadId());
    }
    PopupsOpened(const PopupsOpened&) = delete;
    PopupsOpened& operator=(const PopupsOpened&) = delete;
    ~PopupsOpened() { ::UnhookWindowsHookEx(hook_); }

    // Null when none did.
    [[nodiscard]] HMENU First() const { return opened_.empty() ? nullptr : opened_.front(); }

private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM wparam, LPARAM lparam) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lparam);
        if (code == HC_ACTION && message.message == WM_INITMENUPOPUP)
            opened_.push_back(reinterpret_cast<HMENU>(message.wParam));
        return ::CallNextHookEx(nullptr, code, wparam, lparam);
    }

    static inline std::vector<HMENU> opened_;
    HHOOK hook_ = nullptr;
};

} // namespace korvane::test
