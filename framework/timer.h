#pragma once

#include <windows.h>

#include <chrono>

namespace fw {

// A window timer that is killed with its owner. It arrives as WM_TIMER.
class Timer {
public:
    Timer() = default;
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer() { Stop(); }

    // Starting again restarts the period. False when Windows has no timer left.
    bool Start(HWND window, UINT_PTR id, std::chrono::milliseconds period) {
        Stop();
        if (::SetTimer(window, id, static_cast<UINT>(period.count()), nullptr) == 0) return false;
        window_ = window;
        id_ = id;
        return true;
    }
    void Stop() {
        if (window_) ::KillTimer(window_, id_);
        window_ = nullptr;
    }
    [[nodiscard]] bool Running() const { return window_ != nullptr; }

private:
    HWND window_ = nullptr;
    UINT_PTR id_ = 0;
};

} // namespace fw
