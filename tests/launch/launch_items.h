#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "base/format_text.h"
#include "settings/logic/setting_keys.h"
#include "tests/support/fake_store.h"
#include "tests/support/icon_file.h"
#include "tests/support/temp_folder.h"

namespace korvane::test {

// Stored launch items with icon files that can be told apart.
class LaunchItems {
public:
    FakeStore store;
    TempFolder folder;

    void Put(int number, std::wstring_view line) { store.Write(settings::keys::LaunchMenuItem, number, line); }
    // An item with an icon of its own colour and the name "n<number>".
    void PutWhole(int number) { Put(number, LineOf(number, base::FormatText(L"n%d", number))); }
    [[nodiscard]] std::wstring LineOf(int number, std::wstring_view name) const {
        const std::wstring icon = Icon(base::FormatText(L"%d.ico", number), ColourOfItem(number));
        return base::FormatText(L"p%d.exe,a%d,f%d,%s,0,%s", number, number, number, std::wstring_view{icon}, name);
    }
    void PutWholeUpTo(int last) {
        for (int number = 1; number <= last; ++number) PutWhole(number);
    }

    // Makes an icon file and gives its full path.
    [[nodiscard]] std::wstring Icon(std::wstring_view name, COLORREF colour) const {
        folder.Write(name, IconFile(colour));
        return folder.File(name);
    }
    [[nodiscard]] static COLORREF ColourOfItem(int number) { return RGB(number * 6, 255 - number, 7); }
};

} // namespace korvane::test
