#include "search/logic/file_type_list.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "res/ids.h"

namespace korvane::search {
namespace {

constexpr std::wstring_view kInitial = L"*.cpp;*.cxx;*.c;*.h;*.inl;*.rc\n"
                                       L"*.htm;*.html;*.asp;*.aspx;*.shtml;*.shtm;*.css\n"
                                       L"*.txt\n"
                                       L"*.*";

// More entries than anybody has made; a list of another hand may have any number.
constexpr std::size_t kMostRead = 100;

} // namespace

FileTypeList::FileTypeList() {
    Append(kInitial);
}

FileTypeList FileTypeList::Restore(std::wstring_view kept) {
    FileTypeList list;
    const auto initial = std::exchange(list.entries_, {});
    list.Append(kept);
    if (list.entries_.empty()) list.entries_ = initial;
    return list;
}

void FileTypeList::Append(std::wstring_view lines) {
    // Whoever edits the list by hand may leave carriage returns and blanks.
    for (const std::wstring_view line : base::SplitText(lines, L'\n', kMostRead))
        if (const auto entry = base::Trimmed(line); !entry.empty()) entries_.emplace_back(entry);
}

std::wstring FileTypeList::Kept() const {
    std::wstring kept;
    for (std::size_t i = 0; i < std::min(entries_.size(), kMostKept); ++i) kept.append(entries_[i]).append(L"\n");
    return kept;
}

std::vector<std::wstring>::const_iterator FileTypeList::Find(std::wstring_view entry) const {
    return std::find_if(entries_.begin(), entries_.end(), [&](const std::wstring& one) {
        return base::EqualIgnoringAsciiCase(one, base::Trimmed(entry));
    });
}

bool FileTypeList::Has(std::wstring_view entry) const {
    return Find(entry) != entries_.end();
}

void FileTypeList::Use(std::wstring_view entry) {
    // A copy, for the text may belong to an entry that is about to go.
    std::wstring used{base::Trimmed(entry)};
    if (used.empty()) return;
    Remove(used);
    entries_.insert(entries_.begin(), std::move(used));
}

void FileTypeList::Remove(std::wstring_view entry) {
    if (const auto found = Find(entry); found != entries_.end()) entries_.erase(found);
}

std::vector<base::MenuRow> FileTypeMenu(const FileTypeList& list, std::wstring_view typed,
                                        const FileTypeMenuTexts& texts) {
    const bool known = list.Has(typed);
    return {{ID_ADD_FILE_TYPE, texts.add, !known && !base::Trimmed(typed).empty()},
            {ID_REMOVE_FILE_TYPE, texts.remove, known},
            {},
            {ID_RESTORE_FILE_TYPES, texts.restore, !list.IsInitial()}};
}

} // namespace korvane::search
