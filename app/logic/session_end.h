#pragma once

namespace korvane::app {

// How Windows is to end, and what the question calls it.
struct SessionCommand {
    unsigned flags;  // of ExitWindowsEx; never with force, so that programs may still refuse
    unsigned verbId; // of the string table
    friend bool operator==(const SessionCommand&, const SessionCommand&) = default;
};

// A command that is neither signing out nor shutting down restarts.
[[nodiscard]] SessionCommand SessionCommandOf(unsigned command, bool windows8OrLater);

// What ending the Windows session needs of Windows and of the bar. Error codes are those of Windows, 0 for success.
class SessionHost {
public:
    virtual ~SessionHost() = default;

    [[nodiscard]] virtual unsigned long EnableShutdownPrivilege() = 0;
    // Asks whether Windows is to end in the way that the verb says. True for "Yes".
    [[nodiscard]] virtual bool Ask(unsigned verbId) = 0;
    virtual void ShowError(unsigned long code) = 0;
    [[nodiscard]] virtual unsigned long LeaveWindows(unsigned flags) = 0;
    // While a message box is open the bar does not hide and its notification icon is deaf.
    virtual void SetMessageBoxOpen(bool open) = 0;
};

// Asks, always, and ends the session on "Yes".
void EndSession(unsigned command, bool windows8OrLater, SessionHost& host);

} // namespace korvane::app
