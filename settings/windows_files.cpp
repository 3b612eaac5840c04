#include "settings/windows_files.h"

#include <windows.h>

#include <algorithm>

#include "framework/handle.h"

namespace korvane::settings {
namespace {

fw::UniqueKernelHandle OpenFile(const std::wstring& path, DWORD access, DWORD sharing, DWORD disposition) {
    const HANDLE file =
        ::CreateFileW(path.c_str(), access, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return fw::UniqueKernelHandle{file == INVALID_HANDLE_VALUE ? nullptr : file};
}

// A call may take less than it was given.
unsigned long WriteAll(HANDLE file, std::string_view bytes) {
    constexpr std::size_t kMostAtOnce = 1 << 20;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto part = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
        if (!::WriteFile(file, bytes.data(), part, &written, nullptr)) return ::GetLastError();
        if (written == 0) return ERROR_DISK_FULL;
        bytes.remove_prefix(written);
    }
    return 0;
}

bool MeansMissing(unsigned long error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

unsigned long ErrorUnless(BOOL succeeded) {
    return succeeded ? 0 : ::GetLastError();
}

} // namespace

unsigned long WindowsFiles::WriteNew(const std::wstring& path, std::string_view bytes) {
    const auto file = OpenFile(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS);
    if (!file) return ::GetLastError();
    if (const unsigned long error = WriteAll(file.Get(), bytes)) return error;
    return ErrorUnless(::FlushFileBuffers(file.Get()));
}

unsigned long WindowsFiles::CopyNew(const std::wstring& from, const std::wstring& to) {
    constexpr BOOL kOverwrite = FALSE;
    if (!::CopyFileW(from.c_str(), to.c_str(), kOverwrite)) return ::GetLastError();
    // A copy takes over the attributes too, and one that cannot be written could not be replaced by the next one.
    ::SetFileAttributesW(to.c_str(), FILE_ATTRIBUTE_NORMAL);
    const auto file = OpenFile(to, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
    if (!file) return ::GetLastError();
    return ErrorUnless(::FlushFileBuffers(file.Get()));
}

bool WindowsFiles::Exists(const std::wstring& path) const {
    return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

unsigned long WindowsFiles::Replace(const std::wstring& target, const std::wstring& with) {
    return ErrorUnless(
        ::ReplaceFileW(target.c_str(), with.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr));
}

unsigned long WindowsFiles::MoveOver(const std::wstring& from, const std::wstring& to) {
    return ErrorUnless(::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

unsigned long WindowsFiles::Delete(const std::wstring& path) {
    const unsigned long error = ErrorUnless(::DeleteFileW(path.c_str()));
    return MeansMissing(error) ? 0 : error;
}

bool FileContent::Missing() const {
    return MeansMissing(error);
}

FileContent ReadContent(const std::wstring& path, unsigned long most) {
    const auto file =
        OpenFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
    if (!file) return {::GetLastError(), {}};
    LARGE_INTEGER size{};
    if (!::GetFileSizeEx(file.Get(), &size)) return {::GetLastError(), {}};
    if (size.QuadPart > static_cast<LONGLONG>(most)) return {ERROR_FILE_TOO_LARGE, {}};
    FileContent content;
    content.bytes.resize(size.LowPart);
    DWORD read = 0;
    if (!::ReadFile(file.Get(), content.bytes.data(), size.LowPart, &read, nullptr)) return {::GetLastError(), {}};
    content.bytes.resize(read);
    return content;
}

} // namespace korvane::settings
