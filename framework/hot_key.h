#pragma once

#include <windows.h>

namespace fw {

// A global hot key of a window, released with its owner. Another program may hold it already; then it is simply not
// ours.
class HotKey {
public:
    HotKey() = default;
    HotKey(const HotKey&) = delete;
    HotKey& operator=(const HotKey&) = delete;
    ~HotKey() { Unregister(); }

    // `modifiers` are MOD_ flags. It arrives as WM_HOTKEY with `id`.
    bool Register(HWND window, int id, UINT modifiers, UINT virtualKey) {
        Unregister();
        if (!::RegisterHotKey(window, id, modifiers, virtualKey)) return false;
        window_ = window;
        id_ = id;
        return true;
    }
    void Unregister() {
        if (window_) ::UnregisterHotKey(window_, id_);
        window_ = nullptr;
    }
    [[nodiscard]] bool Registered() const { return window_ != nullptr; }

private:
    HWND window_ = nullptr;
    int id_ = 0;
};

} // namespace fw
