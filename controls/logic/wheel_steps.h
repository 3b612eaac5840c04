#pragma once

namespace korvane::controls {

// A notch of the mouse wheel, as the messages have it (WHEEL_DELTA). Finer wheels send parts of it.
inline constexpr int kWheelNotch = 120;

// Makes whole steps out of what a wheel sends.
class WheelSteps {
public:
    // How many steps it is now: positive away from the user, which is towards what is earlier. What is left of a
    // step counts next time, unless the wheel turns back.
    [[nodiscard]] constexpr int Turn(int delta) {
        if ((delta > 0) != (rest_ > 0)) rest_ = 0;
        rest_ += delta;
        const int steps = rest_ / kWheelNotch;
        rest_ %= kWheelNotch;
        return steps;
    }

private:
    int rest_ = 0;
};

} // namespace korvane::controls
