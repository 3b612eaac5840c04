#include "search/win_process_starter.h"

#include <windows.h>

#include <shellapi.h>

#include "framework/handle.h"

namespace korvane::search {

unsigned long WinProcessStarter::StartCommandLine(const std::wstring& commandLine) {
    // CreateProcess writes into the command line that it is given.
    std::wstring line = commandLine;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, NORMAL_PRIORITY_CLASS, nullptr, nullptr,
                          &startup, &process)) {
        const unsigned long error = ::GetLastError();
        return error != 0 ? error : ERROR_GEN_FAILURE;
    }
    const fw::UniqueKernelHandle thread{process.hThread};
    const fw::UniqueKernelHandle owner{process.hProcess};
    return 0;
}

int WinProcessStarter::Open(const std::wstring& file) {
    const HINSTANCE result = ::ShellExecuteW(nullptr, L"open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return static_cast<int>(reinterpret_cast<INT_PTR>(result));
}

} // namespace korvane::search
