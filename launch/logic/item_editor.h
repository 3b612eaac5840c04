#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korvane::launch {

// Characters that the editor takes for a name.
inline constexpr std::size_t kLongestItemName = 50;

// Which buttons of the editor can be pressed.
struct ItemEditorButtons {
    bool ok;
    bool changeIcon;
    friend bool operator==(const ItemEditorButtons&, const ItemEditorButtons&) = default;
};

// By the texts of the two fields that an item needs. One of blanks alone counts as empty, for that is how it would be
// read back from the settings.
[[nodiscard]] ItemEditorButtons ButtonsFor(std::wstring_view program, std::wstring_view name);

// A program's description as a name that the field takes; cut where it is too long, but not within a character that
// needs two units.
[[nodiscard]] std::wstring NameFrom(std::wstring_view description);

} // namespace korvane::launch
