#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/support/icon_library.h"
#include "tests/support/moved_system_file.h"
#include "tests/support/temp_folder.h"

namespace korvane::test {

// While it lives, the system's library of icons cannot be found.
class NoSystemIcons {
private:
    MovedSystemFile original_{L"imageres.dll"};
};

// While it lives, the system's library of icons is one whose icons can be told apart; it stands on the search path.
class SystemIcons {
public:
    SystemIcons() {
        std::vector<COLORREF> colours;
        for (int i = 0; i < kCount; ++i) colours.push_back(ColourOf(i));
        folder_.Write(L"imageres.dll", IconLibrary{colours}.Bytes());

        constexpr DWORD kLongest = 32767;
        oldPath_.resize(kLongest);
        oldPath_.resize(::GetEnvironmentVariableW(L"PATH", oldPath_.data(), kLongest));
        ::SetEnvironmentVariableW(L"PATH", (oldPath_ + L";" + folder_.Path()).c_str());
    }
    SystemIcons(const SystemIcons&) = delete;
    SystemIcons& operator=(const SystemIcons&) = delete;
    ~SystemIcons() { ::SetEnvironmentVariableW(L"PATH", oldPath_.c_str()); }

    [[nodiscard]] std::wstring File() const { return folder_.File(L"imageres.dll"); }
    [[nodiscard]] static COLORREF ColourOf(int index) { return RGB(index * 10, 100, 255 - index * 10); }

private:
    static constexpr int kCount = 20;

    NoSystemIcons none_;
    TempFolder folder_;
    std::wstring oldPath_;
};

} // namespace korvane::test
