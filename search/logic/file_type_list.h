#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/menu_rows.h"

namespace korvane::search {

// The file name patterns that a search with a text editor offers, each an entry such as "*.c;*.h". Upper and lower case
// make no difference, and neither do blanks around an entry.
class FileTypeList {
public:
    // More are offered while the dialog is open, but only so many are kept.
    static constexpr std::size_t kMostKept = 10;

    // The entries that everybody starts with.
    FileTypeList();
    // What was kept: entries that end in a line feed. Empty lines count for nothing, and without any entry it is the
    // list that everybody starts with.
    [[nodiscard]] static FileTypeList Restore(std::wstring_view kept);
    [[nodiscard]] std::wstring Kept() const;

    [[nodiscard]] const std::vector<std::wstring>& Entries() const { return entries_; }
    [[nodiscard]] bool Has(std::wstring_view entry) const;
    [[nodiscard]] bool IsInitial() const { return *this == FileTypeList{}; }

    // Puts an entry at the top, whether it is new or stood further down. So the list begins with what was used last.
    void Use(std::wstring_view entry);
    void Remove(std::wstring_view entry);

    friend bool operator==(const FileTypeList&, const FileTypeList&) = default;

private:
    [[nodiscard]] std::vector<std::wstring>::const_iterator Find(std::wstring_view entry) const;
    void Append(std::wstring_view lines);

    std::vector<std::wstring> entries_;
};

struct FileTypeMenuTexts {
    std::wstring add;
    std::wstring remove;
    std::wstring restore;
};

// The menu that edits the list, for the pattern that has been typed or chosen; what would change nothing is greyed.
[[nodiscard]] std::vector<base::MenuRow> FileTypeMenu(const FileTypeList& list, std::wstring_view typed,
                                                      const FileTypeMenuTexts& texts);

} // namespace korvane::search
