#pragma once

#include <windows.h>

#include <shellapi.h>

#include "app/logic/shell.h"

namespace korvane::app {

// The shell's notifications arrive at the bar as this message: the notification in wParam.
inline constexpr UINT kShellMessage = WM_APP + 1;

// The Windows shell, asked with SHAppBarMessage. While a window is registered, an end of the process that nobody
// foresaw gives its strip of the screen back too, as far as such a process still can.
class WinShell final : public Shell {
public:
    WinShell() = default;
    WinShell(const WinShell&) = delete;
    WinShell& operator=(const WinShell&) = delete;
    ~WinShell() override;

    // The window in whose name everything is asked; before that nothing may be asked.
    void SetWindow(HWND window) { window_ = window; }

    bool Register() override;
    void Unregister() override;
    [[nodiscard]] base::Rect QueryPlace(Edge edge, const base::Rect& wanted) override;
    [[nodiscard]] base::Rect ReservePlace(Edge edge, const base::Rect& wanted) override;
    [[nodiscard]] bool OtherBarHidesAt(Edge edge) override;
    [[nodiscard]] bool SetAutoHide(Edge edge, bool on) override;
    [[nodiscard]] std::optional<base::Rect> TaskBar() override;
    void TellPlaceChanged(Edge edge) override;
    void TellActivated(Edge edge, bool active) override;

private:
    [[nodiscard]] APPBARDATA Data() const;
    [[nodiscard]] APPBARDATA Data(Edge edge, LPARAM lparam = 0) const;
    [[nodiscard]] base::Rect Place(DWORD message, Edge edge, const base::Rect& wanted) const;

    HWND window_ = nullptr;
    Edge edge_ = Edge::kTop;
};

} // namespace korvane::app
