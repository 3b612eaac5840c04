#pragma once

#include <algorithm>
#include <iterator>
#include <span>

namespace korvane::app {

// Makes whole steps of a wheel's turns: a fine wheel reports parts of a step.
class WheelSteps {
public:
    // Takes the turn of one message, away from the user if positive; gives the steps that are complete with it, in the
    // same direction.
    [[nodiscard]] constexpr int Turn(int delta) {
        constexpr int kStep = 120; // WHEEL_DELTA
        // A turn back begins anew.
        if ((delta < 0) != (rest_ < 0)) rest_ = 0;
        rest_ += delta;
        const int steps = rest_ / kStep;
        rest_ %= kStep;
        return steps;
    }

private:
    int rest_ = 0;
};

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
