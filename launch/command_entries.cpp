#include "launch/command_entries.h"

#include <shellapi.h>

#include "framework/icons.h"
#include "framework/string_table.h"
#include "framework/windows_program.h"
#include "launch/logic/launch_limits.h"
#include "launch/logic/path_parts.h"
#include "launch/search_path.h"
#include "launch/stored_line.h"

namespace korvane::launch {

CommandEntry LoadCommandEntry(UINT command, const settings::ProfileStore& store) {
    const StoredLine line = command >= ID_LAUNCH_BUTTON_1 ? ReadStoredLine(store, LaunchItemIndex(command))
                                                          : StoredLine{fw::LoadText(command), true};
    CommandEntry entry = ParseCommandEntry(line.text);
    entry.builtIn = line.builtIn;
    return entry;
}

std::wstring ProgramOf(const CommandEntry& entry) {
    return entry.builtIn ? fw::WindowsProgram(entry.path) : entry.path;
}

fw::UniqueIcon IconOf(const CommandEntry& entry) {
    if (!entry.HasIcon()) return {};
    return fw::ExtractSmallIcon(entry.builtIn ? fw::WindowsProgram(entry.iconFile) : entry.iconFile, entry.iconIndex);
}

std::wstring FolderOfEntry(const CommandEntry& entry) {
    std::wstring folder{FolderOf(WithFolderFound(TypedPath(entry.path)))};
    const DWORD attributes = folder.empty() ? INVALID_FILE_ATTRIBUTES : ::GetFileAttributesW(folder.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY)) folder.clear();
    return folder;
}

INT_PTR RunCommandEntry(const CommandEntry& entry, int showCommand) {
    return reinterpret_cast<INT_PTR>(::ShellExecuteW(
        nullptr, L"open", ProgramOf(entry).c_str(), entry.arguments.c_str(), entry.workingFolder.c_str(), showCommand));
}

} // namespace korvane::launch
