#pragma once

#include <windows.h>

#include <string>

namespace korvane::test {

// Has Windows refuse to create the windows of one class, from the given one on, on this thread while it lives. One at a
// time.
class RefusedWindow {
public:
    explicit RefusedWindow(const wchar_t* windowClass, int allowed = 0) {
        class_ = windowClass;
        allowed_ = allowed;
        hook_ = ::SetWindowsHookExW(WH_CBT, &OnEvent, nullptr, ::GetCurrentThreadId());
    }
    RefusedWindow(const RefusedWindow&) = delete;
    RefusedWindow& operator=(const RefusedWindow&) = delete;
    ~RefusedWindow() { ::UnhookWindowsHookEx(hook_); }

private:
    static LRESULT CALLBACK OnEvent(int code, WPARAM wparam, LPARAM lparam) {
        if (code == HCBT_CREATEWND) {
            wchar_t name[64]{};
            ::GetClassNameW(reinterpret_cast<HWND>(wparam), name, 64);
            if (class_ == name && allowed_-- <= 0) return 1;
        }
        return ::CallNextHookEx(nullptr, code, wparam, lparam);
    }

    static inline std::wstring class_;
    static inline int allowed_ = 0;
    HHOOK hook_ = nullptr;
};

} // namespace korvane::test
