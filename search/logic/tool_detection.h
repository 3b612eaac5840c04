#pragma once

#include <span>

#include "search/logic/search_tool.h"

namespace korvane::search {

// Looks for the tools in the machine's registry, in one view of it after another until one names the tool, and keeps
// their paths in the settings. The setting of a tool that is not there is removed.
void KeepToolPaths(settings::ProfileStore& settings, std::span<const settings::ProfileStore* const> machineViews);

} // namespace korvane::search
