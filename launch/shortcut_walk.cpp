#include "launch/shortcut_walk.h"

#include <algorithm>
#include <utility>

#include "launch/logic/import_rules.h"
#include "launch/logic/path_parts.h"
#include "search/logic/folder_text.h"

namespace korvane::launch {

ShortcutWalk::ShortcutWalk(const std::wstring& folder, bool subfolders) : subfolders_{subfolders} {
    // No folder at all would become the root of the current drive.
    if (!folder.empty()) Enter(search::WithBackslash(folder));
}

std::optional<std::wstring> ShortcutWalk::Next(const std::atomic<bool>& stop) {
    while (!open_.empty() && !stop) {
        WIN32_FIND_DATAW entry{};
        if (!NextEntry(open_.back(), entry)) {
            open_.pop_back();
            continue;
        }
        std::wstring path = open_.back().path + entry.cFileName;
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            if (IsShortcut(entry.cFileName)) return path;
            continue;
        }
        if (!subfolders_ || IsDotEntry(entry.cFileName)) continue;
        const bool isLink = (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
        if (!isLink || MayFollow(path)) Enter(path + L'\\');
    }
    return std::nullopt;
}

void ShortcutWalk::Enter(std::wstring path) {
    const std::wstring pattern = path + L"*.*";
    // A longer one could not be searched, and links that lead in a circle end here at the latest.
    if (pattern.size() >= MAX_PATH) return;
    WIN32_FIND_DATAW first{};
    const HANDLE search = ::FindFirstFileW(pattern.c_str(), &first);
    if (search == INVALID_HANDLE_VALUE) return;
    open_.push_back({std::move(path), fw::UniqueHandle<HANDLE, &::FindClose>{search}, first});
}

bool ShortcutWalk::NextEntry(Folder& folder, WIN32_FIND_DATAW& entry) {
    if (!folder.first) return ::FindNextFileW(folder.search.Get(), &entry) != FALSE;
    entry = *folder.first;
    folder.first.reset();
    return true;
}

bool ShortcutWalk::MayFollow(const std::wstring& link) {
    const std::optional<Identity> target = IdentityOf(link);
    if (!target) return false;
    // Not back to where the walk comes from, and not a second time to the same place, or two folders with links to each
    // other would keep it going for ever.
    if (std::find(followed_.begin(), followed_.end(), *target) != followed_.end()) return false;
    const bool leadsBack = std::any_of(open_.begin(), open_.end(),
                                       [&](const Folder& folder) { return IdentityOf(folder.path) == target; });
    if (leadsBack) return false;
    followed_.push_back(*target);
    return true;
}

std::optional<ShortcutWalk::Identity> ShortcutWalk::IdentityOf(const std::wstring& folder) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    // Only with this flag can a folder be opened.
    const HANDLE opened =
        ::CreateFileW(folder.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened == INVALID_HANDLE_VALUE) return std::nullopt;
    const fw::UniqueKernelHandle file{opened};
    BY_HANDLE_FILE_INFORMATION information{};
    if (!::GetFileInformationByHandle(file.Get(), &information)) return std::nullopt;
    return Identity{information.dwVolumeSerialNumber, information.nFileIndexHigh, information.nFileIndexLow};
}

} // namespace korvane::launch
