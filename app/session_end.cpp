#include "app/session_end.h"

#include "framework/centred_message_box.h"
#include "framework/handle.h"
#include "framework/string_table.h"
#include "framework/windows_version.h"
#include "res/ids.h"

namespace korvane::app {
namespace {

// The error of the call before; never 0, which would read as success.
unsigned long ErrorOfLastCall() {
    const DWORD error = ::GetLastError();
    return error != ERROR_SUCCESS ? error : DWORD{ERROR_GEN_FAILURE};
}

} // namespace

unsigned long WinSessionHost::EnableShutdownPrivilege() {
    HANDLE opened = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &opened))
        return ErrorOfLastCall();
    const fw::UniqueKernelHandle token{opened};

    TOKEN_PRIVILEGES privileges{};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    // The adjustment succeeds also for a user who has no such privilege; Windows then refuses to end, and says why.
    if (!::LookupPrivilegeValueW(nullptr, L"SeShutdownPrivilege", &privileges.Privileges[0].Luid) ||
        !::AdjustTokenPrivileges(token.Get(), FALSE, &privileges, 0, nullptr, nullptr))
        return ErrorOfLastCall();
    return ERROR_SUCCESS;
}

bool WinSessionHost::Ask(unsigned verbId) {
    const std::wstring verb = fw::LoadText(verbId);
    const std::wstring question = fw::FormatResource(IDS_SESSION_QUESTION, std::wstring_view{verb});
    return fw::ShowProductMessage(bar_, question, MB_YESNOCANCEL | MB_ICONQUESTION, fw::Centring::kNone) == IDYES;
}

void WinSessionHost::ShowError(unsigned long code) {
    fw::ShowProductSystemError(bar_, code);
}

unsigned long WinSessionHost::LeaveWindows(unsigned flags) {
    return ::ExitWindowsEx(flags, 0) ? DWORD{ERROR_SUCCESS} : ErrorOfLastCall();
}

void EndWindowsSession(UINT command, HWND bar, bool& messageBoxOpen) {
    WinSessionHost host{bar, messageBoxOpen};
    EndSession(command, fw::IsWindowsAtLeast(fw::kWindows8), host);
}

} // namespace korvane::app
