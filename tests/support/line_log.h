#pragma once

#include <windows.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "framework/handle.h"

// Logs that one process writes and another reads: lines of UTF-8 in a file of the temporary folder.
namespace korvane::test {

[[nodiscard]] inline std::wstring LogPath(std::wstring_view fileName) {
    std::array<wchar_t, MAX_PATH> folder{};
    ::GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    return std::wstring{folder.data()}.append(fileName);
}

inline bool AppendLine(std::wstring_view fileName, std::wstring_view text) {
    const auto characters = static_cast<int>(text.size());
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), characters, nullptr, 0, nullptr, nullptr);
    std::string line(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), characters, line.data(), length, nullptr, nullptr);
    line += '\n';

    // One write in append mode, so that a reader never sees half a line.
    const HANDLE file = ::CreateFileW(LogPath(fileName).c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    const fw::UniqueKernelHandle owner{file};
    DWORD written = 0;
    return ::WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr) != 0;
}

// Oldest first.
[[nodiscard]] inline std::vector<std::wstring> LoggedLines(std::wstring_view fileName) {
    const HANDLE file = ::CreateFileW(LogPath(fileName).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    const fw::UniqueKernelHandle owner{file};
    std::string bytes(::GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    bytes.resize(read);

    std::vector<std::wstring> lines;
    for (std::size_t start = 0, end = 0; (end = bytes.find('\n', start)) != std::string::npos; start = end + 1) {
        const int length = static_cast<int>(end - start);
        std::wstring line(static_cast<std::size_t>(length), L'\0');
        line.resize(static_cast<std::size_t>(
            ::MultiByteToWideChar(CP_UTF8, 0, bytes.data() + start, length, line.data(), length)));
        lines.push_back(std::move(line));
    }
    return lines;
}

inline void ForgetLog(std::wstring_view fileName) {
    ::DeleteFileW(LogPath(fileName).c_str());
}

} // namespace korvane::test
