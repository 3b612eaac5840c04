#pragma once

#include <string>

#include "framework/handle.h"

namespace korvane::launch {

// What was found behind a shortcut. It owns its icon.
struct ImportableItem {
    bool selectable = false;
    fw::UniqueIcon icon; // small
    int iconIndex = 0;
    std::wstring name;
    std::wstring path;
    std::wstring arguments;
    std::wstring workingFolder;
    std::wstring iconFile;
};

} // namespace korvane::launch
