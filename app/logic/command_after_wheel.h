#pragma once

#include <algorithm>
#include <iterator>
#include <span>

namespace korvane::app {

// The command to which the wheel leads from the current one: towards the user is down the list, and it ends at both
// ends. A command that is not in the list stays.
[[nodiscard]] constexpr unsigned CommandAfterWheel(std::span<const unsigned> commands, unsigned current, int steps) {
    const auto found = std::ranges::find(commands, current);
    if (found == commands.end()) return current;
    const auto last = static_cast<std::ptrdiff_t>(commands.size()) - 1;
    const std::ptrdiff_t at = std::distance(commands.begin(), found) - steps;
    return commands[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(at, 0, last))];
}

} // namespace korvane::app
