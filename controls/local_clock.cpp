#include "controls/local_clock.h"

#include <windows.h>

namespace korvane::controls {
namespace {

class WindowsLocalClock final : public LocalClock {
public:
    [[nodiscard]] ClockReading Now() const override {
        SYSTEMTIME t{};
        ::GetLocalTime(&t);
        return {t.wYear, t.wMonth, t.wDay, t.wDayOfWeek, t.wHour, t.wMinute, t.wSecond};
    }
};

} // namespace

const LocalClock& SystemLocalClock() {
    static const WindowsLocalClock clock;
    return clock;
}

} // namespace korvane::controls
