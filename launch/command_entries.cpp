#include "launch/command_entries.h"

#include <shellapi.h>

#include "framework/string_table.h"
#include "res/ids.h"
#include "settings/logic/setting_keys.h"

namespace korvane::launch {

CommandEntry LoadCommandEntry(UINT command, const settings::ProfileStore& store) {
    std::wstring line;
    if (command >= ID_LAUNCH_BUTTON_1) {
        const int number = static_cast<int>(command) - ID_LAUNCH_BUTTON_1 + 1;
        line = store.Read(settings::keys::LaunchMenuItem, number);
    }
    if (line.empty()) line = fw::LoadText(command);
    return ParseCommandEntry(line);
}

INT_PTR RunCommandEntry(const CommandEntry& entry, int showCommand) {
    return reinterpret_cast<INT_PTR>(::ShellExecuteW(nullptr, L"open", entry.path.c_str(), entry.arguments.c_str(),
                                                     entry.workingFolder.c_str(), showCommand));
}

} // namespace korvane::launch
