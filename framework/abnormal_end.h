#pragma once

// How the process ends on its own: by a crash, or by an exception that nobody took. Nothing that the system calls back
// lets one pass, for what became of it on the way through the system's own code would depend on who had caused the
// call.
namespace fw {

// Sees to it from now on that such an end is one: an exception is followed by no message of the runtime's, below which
// the windows would go on. Crashes are then reported by the system as always.
void GuardAgainstAbnormalEnd();

// The one thing that is done before; null for none. It is called once, in whatever state the process is.
void SetLastAct(void (*act)());

// What a process exits with whose exception nobody took: ERROR_UNHANDLED_EXCEPTION, which not all headers have.
inline constexpr unsigned kExitUnhandledException = 574;

} // namespace fw
