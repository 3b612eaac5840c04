#pragma once

#include <windows.h>

#include <array>
#include <string>
#include <string_view>

#include "tests/support/wait.h"

namespace korvane::test {

// Takes a file of the system folder away, and puts it back at the end of its life over whatever stands there then. It
// is moved and never written over, for the file may be shared with other test runs.
class MovedSystemFile {
public:
    explicit MovedSystemFile(std::wstring_view name) : path_{SystemFolder().append(name)} {
        // What a test that was killed left behind.
        PutBack();
        moved_ = ::MoveFileExW(path_.c_str(), Saved().c_str(), 0) != 0;
    }
    MovedSystemFile(const MovedSystemFile&) = delete;
    MovedSystemFile& operator=(const MovedSystemFile&) = delete;
    ~MovedSystemFile() { PutBack(); }

    [[nodiscard]] bool Moved() const { return moved_; }
    // Where the file was.
    [[nodiscard]] const std::wstring& Path() const { return path_; }

private:
    static std::wstring SystemFolder() {
        std::array<wchar_t, MAX_PATH> folder{};
        ::GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
        return std::wstring{folder.data()} + L"\\";
    }
    [[nodiscard]] std::wstring Saved() const { return path_ + L".saved"; }
    void PutBack() const {
        if (::GetFileAttributesW(Saved().c_str()) == INVALID_FILE_ATTRIBUTES) return;
        // What stands in its place may be in use by a program that is just ending.
        WaitUntil([&] {
            ::DeleteFileW(path_.c_str());
            return ::MoveFileExW(Saved().c_str(), path_.c_str(), 0) != 0;
        });
    }

    std::wstring path_;
    bool moved_ = false;
};

} // namespace korvane::test
