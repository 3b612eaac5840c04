#pragma once

#include "controls/logic/clock_text.h"

namespace korvane::controls {

// Where the time comes from. Tests have a clock of their own.
class LocalClock {
public:
    [[nodiscard]] virtual ClockReading Now() const = 0;

protected:
    ~LocalClock() = default;
};

// The computer's local time; lives as long as the program.
[[nodiscard]] const LocalClock& SystemLocalClock();

} // namespace korvane::controls
