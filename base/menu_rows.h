#pragma once

#include <string>
#include <vector>

namespace korvane::base {

// A row of a menu; without a command it is a separator.
struct MenuRow {
    unsigned command = 0;
    std::wstring text;
    bool enabled = true;

    [[nodiscard]] bool IsSeparator() const { return command == 0; }
    friend bool operator==(const MenuRow&, const MenuRow&) = default;
};

// Long menus stand in blocks of five with a separator between two blocks, and none after the last.
inline constexpr std::size_t kMenuBlock = 5;

// Inserts the separators: the first at position 5, then one at every sixth while that is below the growing length.
inline void GroupByFive(std::vector<MenuRow>& rows) {
    for (std::size_t at = kMenuBlock; at < rows.size(); at += kMenuBlock + 1)
        rows.emplace(rows.begin() + static_cast<std::ptrdiff_t>(at));
}

} // namespace korvane::base
