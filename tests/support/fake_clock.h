#pragma once

#include "controls/local_clock.h"

namespace korvane::test {

// A clock that stands still until the test moves it.
class FakeClock final : public controls::LocalClock {
public:
    [[nodiscard]] controls::ClockReading Now() const override { return now; }

    // 5 March 2026, a Thursday.
    controls::ClockReading now{2026, 3, 5, 4, 9, 5, 7};
};

} // namespace korvane::test
