#include "framework/abnormal_end.h"

#include <windows.h>

#include <cstdlib>
#include <exception>
#include <utility>

namespace fw {
namespace {

void (*g_lastAct)() = nullptr;
LPTOP_LEVEL_EXCEPTION_FILTER g_previousFilter = nullptr;

void DoLastAct() noexcept {
    if (auto* const act = std::exchange(g_lastAct, nullptr)) act();
}

LONG WINAPI OnCrash(EXCEPTION_POINTERS* exception) noexcept {
    DoLastAct();
    return g_previousFilter ? g_previousFilter(exception) : EXCEPTION_CONTINUE_SEARCH;
}

[[noreturn]] void OnTerminate() noexcept {
    DoLastAct();
    ::TerminateProcess(::GetCurrentProcess(), kExitUnhandledException);
    // Never reached; the compiler does not know.
    std::abort();
}

} // namespace

void GuardAgainstAbnormalEnd() {
    static const bool guarded = [] {
        g_previousFilter = ::SetUnhandledExceptionFilter(&OnCrash);
        std::set_terminate(&OnTerminate);
        return true;
    }();
    static_cast<void>(guarded);
}

void SetLastAct(void (*act)()) {
    g_lastAct = act;
}

} // namespace fw
