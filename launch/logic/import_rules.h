#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "launch/logic/launch_line.h"
#include "res/ids.h"

// What is decided when launch items are made of the shortcuts in a folder.
namespace korvane::launch {

enum class ImportFolder : std::uint8_t { kPrograms, kCommonPrograms, kQuickLaunch, kAskedFor };

// A row of the box that offers where to look.
struct ImportSource {
    unsigned textId;
    ImportFolder folder;
    bool subfolders;
};

inline constexpr std::array kImportSources{
    ImportSource{IDS_IMPORT_START_MENU, ImportFolder::kPrograms, true},
    ImportSource{IDS_IMPORT_COMMON_MENU, ImportFolder::kCommonPrograms, true},
    ImportSource{IDS_IMPORT_QUICK_LAUNCH, ImportFolder::kQuickLaunch, false},
    ImportSource{IDS_IMPORT_ELSEWHERE, ImportFolder::kAskedFor, true},
};
// Below the roaming application data.
inline constexpr std::wstring_view kQuickLaunchFolder = L"Microsoft\\Internet Explorer\\Quick Launch";

// What choosing a row leads to. The rows behind the fixed ones are folders that were asked for before.
enum class SourceStep : std::uint8_t { kNothing, kAskForFolder, kScanSpecialFolder, kScanFolderAskedFor };
[[nodiscard]] SourceStep StepForSource(int chosen, int current);
[[nodiscard]] bool ScansSubfolders(int source);

// The entries that every folder has for itself and for the one above.
[[nodiscard]] bool IsDotEntry(std::wstring_view name);

// A launch item is kept as one line without quoting. Where that line reads back as something else, the item and all
// that follow it in the list would be lost at the next start, so such a shortcut is not offered.
[[nodiscard]] bool CanBeKept(const LaunchLineParts& parts);

// What stands beside the buttons: that it is being searched, or that all of it came to nothing.
enum class ImportNote : std::uint8_t { kNone, kSearching, kNothingFound };
[[nodiscard]] constexpr ImportNote NoteFor(bool searching, bool anySelectable) {
    if (searching) return ImportNote::kSearching;
    return anySelectable ? ImportNote::kNone : ImportNote::kNothingFound;
}

struct ImportRow {
    bool selectable;
    bool selected;
    bool selectedBefore; // when the selection was looked at last
};
// The selected rows that are not to be: those that cannot be, and those for which there is no place. What was selected
// before keeps its place; then the upper rows come first.
[[nodiscard]] std::vector<int> RefusedRows(std::span<const ImportRow> rows, int places);

// The share "\\computer\share" or the drive "x:" that a path begins with, in small letters; empty for any other path.
[[nodiscard]] std::wstring RootOf(std::wstring_view path);

} // namespace korvane::launch
