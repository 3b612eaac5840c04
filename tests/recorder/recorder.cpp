// Stands for whatever the program starts: appends its own command line to a log, one UTF-8 line per start, and ends.

#include <windows.h>

#include <array>
#include <string>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    std::array<wchar_t, MAX_PATH> folder{};
    ::GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    const std::wstring log = std::wstring{folder.data()} + L"korvane_recorder.txt";

    const wchar_t* const commandLine = ::GetCommandLineW();
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, commandLine, -1, nullptr, 0, nullptr, nullptr);
    std::string line(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, commandLine, -1, line.data(), length, nullptr, nullptr);
    line.back() = '\n';

    // One write in append mode, so that a reader never sees half a line.
    const HANDLE file = ::CreateFileW(log.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return 1;
    DWORD written = 0;
    ::WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    ::CloseHandle(file);
    return 0;
}
