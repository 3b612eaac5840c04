#include "search/win_process_starter.h"

#include <windows.h>

#include <shellapi.h>

#include "framework/handle.h"

namespace korvane::search {
namespace {

int AskShell(const wchar_t* file, const wchar_t* arguments) {
    const HINSTANCE result = ::ShellExecuteW(nullptr, L"open", file, arguments, nullptr, SW_SHOWNORMAL);
    return static_cast<int>(reinterpret_cast<INT_PTR>(result));
}

} // namespace

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
    return AskShell(file.c_str(), nullptr);
}

int WinProcessStarter::OpenProgram(const std::wstring& program, const std::wstring& arguments) {
    return AskShell(program.c_str(), arguments.c_str());
}

std::optional<std::wstring> WinProcessStarter::FindProgram(const std::wstring& name) {
    // As CreateProcess looks for it.
    constexpr const wchar_t* kExtension = L".exe";
    constexpr DWORD kLongestPath = 32767; // that Windows knows
    for (const DWORD room : {DWORD{MAX_PATH}, kLongestPath}) {
        std::wstring path(room, L'\0');
        const DWORD length = ::SearchPathW(nullptr, name.c_str(), kExtension, room, path.data(), nullptr);
        if (length >= room) continue;
        path.resize(length);
        const DWORD kind = length != 0 ? ::GetFileAttributesW(path.c_str()) : INVALID_FILE_ATTRIBUTES;
        if (kind == INVALID_FILE_ATTRIBUTES || (kind & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;
        return path;
    }
    return std::nullopt;
}

} // namespace korvane::search
