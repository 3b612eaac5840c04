#pragma once

#include "settings/logic/file_replacing.h"

namespace korvane::settings {

// The files of Windows.
class WindowsFiles final : public FileOperations {
public:
    [[nodiscard]] unsigned long WriteNew(const std::wstring& path, std::string_view bytes) override;
    [[nodiscard]] unsigned long CopyNew(const std::wstring& from, const std::wstring& to) override;
    [[nodiscard]] bool Exists(const std::wstring& path) const override;
    [[nodiscard]] unsigned long Replace(const std::wstring& target, const std::wstring& with) override;
    [[nodiscard]] unsigned long MoveOver(const std::wstring& from, const std::wstring& to) override;
    [[nodiscard]] unsigned long Delete(const std::wstring& path) override;
};

// A file's whole content, or why it could not be read.
struct FileContent {
    unsigned long error = 0; // a Windows error code
    std::string bytes;

    // True when there is no such file, or no such folder.
    [[nodiscard]] bool Missing() const;
};

// A file that is larger than `most` bytes is not read (ERROR_FILE_TOO_LARGE).
[[nodiscard]] FileContent ReadContent(const std::wstring& path, unsigned long most);

} // namespace korvane::settings
