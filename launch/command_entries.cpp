#include "launch/command_entries.h"

#include <shellapi.h>

#include "framework/string_table.h"
#include "launch/logic/launch_limits.h"
#include "launch/logic/path_parts.h"
#include "launch/search_path.h"
#include "launch/stored_line.h"

namespace korvane::launch {

CommandEntry LoadCommandEntry(UINT command, const settings::ProfileStore& store) {
    return ParseCommandEntry(command >= ID_LAUNCH_BUTTON_1 ? ReadStoredLine(store, LaunchItemIndex(command)).text
                                                           : fw::LoadText(command));
}

std::wstring FolderOfEntry(const CommandEntry& entry) {
    std::wstring folder{FolderOf(WithFolderFound(TypedPath(entry.path)))};
    const DWORD attributes = folder.empty() ? INVALID_FILE_ATTRIBUTES : ::GetFileAttributesW(folder.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY)) folder.clear();
    return folder;
}

INT_PTR RunCommandEntry(const CommandEntry& entry, int showCommand) {
    return reinterpret_cast<INT_PTR>(::ShellExecuteW(nullptr, L"open", entry.path.c_str(), entry.arguments.c_str(),
                                                     entry.workingFolder.c_str(), showCommand));
}

} // namespace korvane::launch
