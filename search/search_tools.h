#pragma once

#include "settings/logic/profile_store.h"

namespace korvane::search {

// Finds out which of the local search tools are installed on this machine, and keeps the paths of their programs in the
// settings. Another program may have been installed or removed at any time since the last call.
void DetectSearchTools(settings::ProfileStore& settings);

} // namespace korvane::search
