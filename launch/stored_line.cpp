#include "launch/stored_line.h"

#include "framework/string_table.h"
#include "launch/logic/launch_limits.h"
#include "settings/logic/setting_keys.h"

namespace korvane::launch {

StoredLine ReadStoredLine(const settings::ProfileStore& store, int index) {
    if (index < 0 || index >= MaxLaunchItems) return {};
    StoredLine line{store.Read(settings::keys::LaunchMenuItem, index + 1), false};
    if (line.text.empty() && index < MinLaunchItems) line = {fw::LoadText(LaunchItemCommandId(index)), true};
    return line;
}

} // namespace korvane::launch
