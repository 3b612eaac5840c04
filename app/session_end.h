#pragma once

#include <windows.h>

#include "app/logic/session_end.h"

namespace korvane::app {

// Ends the Windows session on behalf of the bar.
class WinSessionHost final : public SessionHost {
public:
    // `messageBoxOpen` is the bar's own flag; bar and flag outlive this object.
    WinSessionHost(HWND bar, bool& messageBoxOpen) : bar_{bar}, messageBoxOpen_{messageBoxOpen} {}

    // Once enabled, the privilege stays so for as long as the program runs.
    [[nodiscard]] unsigned long EnableShutdownPrivilege() override;
    [[nodiscard]] bool Ask(unsigned verbId) override;
    void ShowError(unsigned long code) override;
    [[nodiscard]] unsigned long LeaveWindows(unsigned flags) override;
    void SetMessageBoxOpen(bool open) override { messageBoxOpen_ = open; }

private:
    HWND bar_;
    bool& messageBoxOpen_;
};

// What the commands from 4100 to 4102 do.
void EndWindowsSession(UINT command, HWND bar, bool& messageBoxOpen);

} // namespace korvane::app
