#pragma once

#include <windows.h>

#include <string>

#include "tests/support/moved_system_file.h"
#include "tests/support/program_driver.h"
#include "tests/support/program_surroundings.h"

namespace korvane::test {

// While it lives, a program of Windows is gone from the system folder, and the recorder goes by its name in a folder
// that a program under test is to be given as its search path.
class StandInProgram {
public:
    explicit StandInProgram(const wchar_t* name) : original_{name}, path_{Folder() + name} {
        installed_ = original_.Moved() &&
                     ::CopyFileW((recorder::Folder() + L"\\rec.exe").c_str(), path_.c_str(), FALSE) != FALSE;
    }
    StandInProgram(const StandInProgram&) = delete;
    StandInProgram& operator=(const StandInProgram&) = delete;
    // It may still be running.
    ~StandInProgram() {
        WaitUntil([this] { return ::DeleteFileW(path_.c_str()) || ::GetLastError() == ERROR_FILE_NOT_FOUND; });
    }

    [[nodiscard]] bool Installed() const { return installed_; }
    [[nodiscard]] static std::wstring Folder() { return OwnFolder(); }

private:
    MovedSystemFile original_;
    std::wstring path_;
    bool installed_ = false;
};

} // namespace korvane::test
