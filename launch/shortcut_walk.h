#pragma once

#include <windows.h>

#include <atomic>
#include <optional>
#include <string>
#include <vector>

#include "framework/handle.h"

namespace korvane::launch {

// Finds the shortcut files of a folder one by one, those of a subfolder at the place where it is met. What cannot be
// opened is passed over.
class ShortcutWalk {
public:
    ShortcutWalk(const std::wstring& folder, bool subfolders);

    // The full path of the next shortcut; empty at the end, or as soon as `stop` is set.
    [[nodiscard]] std::optional<std::wstring> Next(const std::atomic<bool>& stop);

private:
    // One folder on any volume of this computer, by whatever path it is reached.
    struct Identity {
        DWORD volume;
        DWORD high;
        DWORD low;
        friend bool operator==(const Identity&, const Identity&) = default;
    };
    struct Folder {
        std::wstring path; // ends with a backslash
        fw::UniqueHandle<HANDLE, &::FindClose> search;
        std::optional<WIN32_FIND_DATAW> first; // which the search gave when it was opened
    };

    [[nodiscard]] static std::optional<Identity> IdentityOf(const std::wstring& folder);
    [[nodiscard]] static bool NextEntry(Folder& folder, WIN32_FIND_DATAW& entry);
    [[nodiscard]] bool MayFollow(const std::wstring& link);
    void Enter(std::wstring path);

    bool subfolders_;
    std::vector<Folder> open_; // from the outermost to the one that is being read
    std::vector<Identity> followed_;
};

} // namespace korvane::launch
