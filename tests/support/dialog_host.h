#pragma once

#include <windows.h>

#include <string>

#include "tests/support/pump.h"

namespace korvane::test {

// A hidden dialog without controls of its own, for the pages of one.
class DialogHost {
public:
    explicit DialogHost(const std::wstring& title) {
        // The template is followed by three empty texts: menu, class and title.
        struct {
            DLGTEMPLATE head;
            WORD empty[3];
        } dialog{};
        dialog.head.style = WS_POPUP | WS_CAPTION;
        dialog.head.cx = 400;
        dialog.head.cy = 300;
        window_ = ::CreateDialogIndirectParamW(::GetModuleHandleW(nullptr), &dialog.head, nullptr, &Procedure, 0);
        ::SetWindowTextW(window_, title.c_str());
    }
    DialogHost(const DialogHost&) = delete;
    DialogHost& operator=(const DialogHost&) = delete;
    ~DialogHost() { ::DestroyWindow(window_); }

    [[nodiscard]] HWND Handle() const { return window_; }

    // A key as the dialog's message loop gets it, for the window that has the focus.
    void Key(UINT message, WPARAM key) const {
        // Of a key with Alt, Windows tells so in this bit.
        constexpr LPARAM kWithAlt = 1 << 29;
        MSG m{::GetFocus(), message, key, message == WM_SYSCHAR ? kWithAlt : 0, 0, {}};
        if (!::IsDialogMessageW(window_, &m)) ::DispatchMessageW(&m);
        PumpMessages();
    }

private:
    static INT_PTR CALLBACK Procedure(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

    HWND window_ = nullptr;
};

} // namespace korvane::test
