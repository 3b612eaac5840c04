#pragma once

#include "launch/shortcut_reader.h"

namespace korvane::launch {

// A shortcut of which nothing but its name is known; it cannot be selected.
[[nodiscard]] ImportableItem UnresolvedItem(const std::wstring& file);

// Asks the shell. What a shortcut says is taken as it stands: a target that has moved is not searched for, for that
// could take minutes and open boxes.
class ShellShortcutReader final : public ShortcutReader {
public:
    [[nodiscard]] ImportableItem Read(const std::wstring& file, ShortcutRoots& roots) override;
};

} // namespace korvane::launch
