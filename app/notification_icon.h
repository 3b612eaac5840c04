#pragma once

#include <windows.h>

#include <shellapi.h>

#include <functional>

#include "framework/timer.h"

namespace korvane::app {

// The program's icon in the notification area. The mouse over it reaches its window as kMessage, with the mouse message
// in lparam.
class NotificationIcon {
public:
    static constexpr UINT kMessage = WM_APP + 2;

    // Tells the shell; tests listen in its place.
    using Shell = std::function<BOOL(DWORD message, NOTIFYICONDATAW* data)>;

    // The timer is the window's one of this identifier. It runs only while a busy shell is to be asked again.
    explicit NotificationIcon(UINT_PTR timerId, Shell shell = &::Shell_NotifyIconW)
        : timerId_{timerId}, shell_{std::move(shell)} {}
    NotificationIcon(const NotificationIcon&) = delete;
    NotificationIcon& operator=(const NotificationIcon&) = delete;
    ~NotificationIcon() { Remove(); }

    // The small icon stays the caller's, who keeps it for as long as this one is there. False when there is no
    // notification area yet, or the shell is too busy to answer; the icon then appears later.
    bool Add(HWND window, HICON smallIcon);
    // Harmless when there is no icon.
    void Remove();

    // The shell sends this to all top-level windows when it has made a notification area, which is empty then: at its
    // start, and when it had to be started again.
    [[nodiscard]] static UINT AreaCreatedMessage();
    void OnAreaCreated();
    // WM_TIMER. False when the timer is another's.
    bool OnTimer(UINT_PTR id);

private:
    enum class Before { kNotThere, kPerhapsThere };
    bool Try(Before before);
    // ERROR_SUCCESS when the shell did it. A refusal may come without a reason.
    DWORD Tell(DWORD message);

    UINT_PTR timerId_;
    Shell shell_;
    fw::Timer timer_;
    int attempts_ = 0;
    HWND window_ = nullptr;
    HICON icon_ = nullptr;
};

} // namespace korvane::app
