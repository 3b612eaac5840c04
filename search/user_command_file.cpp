#include "search/user_command_file.h"

#include <windows.h>

#include <string_view>
#include <utility>

#include "framework/handle.h"

namespace korvane::search {
namespace {

fw::UniqueKernelHandle OpenFile(const std::wstring& path, DWORD access, DWORD disposition) {
    const HANDLE file =
        ::CreateFileW(path.c_str(), access, FILE_SHARE_READ, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return fw::UniqueKernelHandle{file == INVALID_HANDLE_VALUE ? nullptr : file};
}

std::optional<std::string> ReadWhole(const std::wstring& path) {
    const auto file = OpenFile(path, GENERIC_READ, OPEN_EXISTING);
    LARGE_INTEGER size{};
    if (!file || !::GetFileSizeEx(file.Get(), &size) || size.HighPart != 0) return std::nullopt;
    std::string bytes(size.LowPart, '\0');
    DWORD read = 0;
    if (!::ReadFile(file.Get(), bytes.data(), size.LowPart, &read, nullptr) || read != size.LowPart)
        return std::nullopt;
    return bytes;
}

// Replaces the file's content. Gives the Windows error code, 0 for success.
unsigned long WriteWhole(const std::wstring& path, std::string_view bytes) {
    const auto file = OpenFile(path, GENERIC_WRITE, CREATE_ALWAYS);
    if (!file) return ::GetLastError();
    DWORD written = 0;
    if (!::WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr))
        return ::GetLastError();
    return written == bytes.size() ? 0 : ERROR_DISK_FULL;
}

// The bytes of a text in UTF-16, low byte first, behind a byte order mark.
std::string AsUtf16File(std::wstring_view text) {
    std::string bytes = "\xFF\xFE";
    for (const wchar_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

} // namespace

WindowsUserCommandFile::WindowsUserCommandFile(std::wstring path, std::wstring header)
    : path_{std::move(path)}, header_{std::move(header)} {}

unsigned long WindowsUserCommandFile::Recreate() {
    // The profile functions may still hold the file's old content; this makes them let go of it.
    ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, path_.c_str());
    before_ = ReadWhole(path_);
    const unsigned long error = WriteWhole(path_, AsUtf16File(header_));
    // A full disk, say: with a file that was opened but not written the old content is gone, unless it is put back.
    if (error != 0 && before_) Restore();
    return error;
}

void WindowsUserCommandFile::Restore() {
    ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, path_.c_str());
    if (before_) {
        WriteWhole(path_, *before_);
    } else {
        ::DeleteFileW(path_.c_str());
    }
}

unsigned long WindowsUserCommandFile::Delete() {
    if (::DeleteFileW(path_.c_str())) return 0;
    const unsigned long error = ::GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ? 0 : error;
}

} // namespace korvane::search
