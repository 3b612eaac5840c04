#pragma once

#include <string>

#include "settings/logic/profile_store.h"

namespace korvane::launch {

// The line of a launch item as it is stored.
struct StoredLine {
    std::wstring text; // empty when there is no such item
    bool builtIn = false;
};

// The item at an index of the list. Where nothing is stored the first three have lines of the program's own.
[[nodiscard]] StoredLine ReadStoredLine(const settings::ProfileStore& store, int index);

} // namespace korvane::launch
