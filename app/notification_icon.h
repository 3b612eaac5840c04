#pragma once

#include <windows.h>

#include <shellapi.h>

#include <functional>

namespace korvane::app {

// The program's icon in the notification area. The mouse over it reaches its window as kMessage, with the mouse message
// in lparam.
class NotificationIcon {
public:
    static constexpr UINT kMessage = WM_APP + 2;

    // Tells the shell; tests listen in its place.
    using Shell = std::function<BOOL(DWORD message, NOTIFYICONDATAW* data)>;

    explicit NotificationIcon(Shell shell = &::Shell_NotifyIconW) : shell_{std::move(shell)} {}
    NotificationIcon(const NotificationIcon&) = delete;
    NotificationIcon& operator=(const NotificationIcon&) = delete;
    ~NotificationIcon() { Remove(); }

    // The small icon stays the caller's, who keeps it for as long as this one is there. False when there is no
    // notification area yet; the icon then appears with it.
    bool Add(HWND window, HICON smallIcon);
    // Harmless when there is no icon.
    void Remove();

    // The shell sends this to all top-level windows when it has made a notification area, which is empty then: at its
    // start, and when it had to be started again.
    [[nodiscard]] static UINT AreaCreatedMessage();
    void OnAreaCreated();

private:
    bool Tell(DWORD message);

    Shell shell_;
    HWND window_ = nullptr;
    HICON icon_ = nullptr;
};

} // namespace korvane::app
