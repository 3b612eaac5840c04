#include "app/logic/session_end.h"

#include "res/ids.h"

namespace korvane::app {
namespace {

// ExitWindowsEx's.
constexpr unsigned kLogOff = 0;
constexpr unsigned kShutDown = 1;
constexpr unsigned kReboot = 2;

void Report(unsigned long code, SessionHost& host) {
    host.SetMessageBoxOpen(true);
    host.ShowError(code);
    host.SetMessageBoxOpen(false);
}

} // namespace

SessionCommand SessionCommandOf(unsigned command, bool windows8OrLater) {
    switch (command) {
    case ID_SIGN_OUT:
        return {kLogOff, windows8OrLater ? unsigned{IDS_SIGN_OUT_VERB} : unsigned{IDS_LOG_OFF_VERB}};
    case ID_SHUT_DOWN:
        return {kShutDown, IDS_SHUT_DOWN_VERB};
    default:
        return {kReboot, IDS_RESTART_VERB};
    }
}

void EndSession(unsigned command, bool windows8OrLater, SessionHost& host) {
    if (const unsigned long error = host.EnableShutdownPrivilege(); error != 0) {
        Report(error, host);
        return;
    }
    const SessionCommand session = SessionCommandOf(command, windows8OrLater);
    host.SetMessageBoxOpen(true);
    // Without a "Yes" the flag stays set on purpose: until the next message box the bar stays out, as if this one were
    // still open.
    if (!host.Ask(session.verbId)) return;
    host.SetMessageBoxOpen(false);
    if (const unsigned long error = host.LeaveWindows(session.flags); error != 0) Report(error, host);
}

} // namespace korvane::app
