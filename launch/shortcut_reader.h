#pragma once

#include <string>

#include "launch/importable_item.h"
#include "launch/shortcut_roots.h"

namespace korvane::launch {

// Finds out what is behind a shortcut file. Several threads may ask at the same time, each with COM initialised; an
// answer may take long, or never come, when a computer on the network does not answer.
class ShortcutReader {
public:
    virtual ~ShortcutReader() = default;
    [[nodiscard]] virtual ImportableItem Read(const std::wstring& file, ShortcutRoots& roots) = 0;
};

} // namespace korvane::launch
