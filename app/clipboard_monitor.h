#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "framework/timer.h"

namespace korvane::app {

// Listens to the clipboard on behalf of a window, which hands on WM_CLIPBOARDUPDATE and WM_TIMER, and tells the text
// that was copied, made fit for a box of one line. A clipboard that another program holds open is tried again from the
// window's timer, so that nothing waits for it.
class ClipboardMonitor {
public:
    using Sink = std::function<void(const std::wstring& text)>;
    // Asked before the clipboard is opened.
    using Wanted = std::function<bool()>;

    // The timer is the window's one of this identifier. The text that the sink gets is never empty.
    ClipboardMonitor(UINT_PTR timerId, Wanted wanted, Sink sink);
    ClipboardMonitor(const ClipboardMonitor&) = delete;
    ClipboardMonitor& operator=(const ClipboardMonitor&) = delete;
    ~ClipboardMonitor() { Stop(); }

    // False when Windows does not take the window as a listener.
    bool Start(HWND window);
    // Before the window goes.
    void Stop();

    // WM_CLIPBOARDUPDATE. Content that is newer makes an open attempt at the old one pointless.
    void OnUpdate();
    // WM_TIMER. False when the timer is another's.
    bool OnTimer(UINT_PTR id);

private:
    void Try();

    UINT_PTR timerId_;
    Wanted wanted_;
    Sink sink_;
    HWND window_ = nullptr;
    fw::Timer timer_;
    int attemptsLeft_ = 0;
};

} // namespace korvane::app
