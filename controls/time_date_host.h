#pragma once

#include <windows.h>

namespace korvane::controls {

// What the date/time pop-up needs of the bar, which must outlive it.
class TimeDateHost {
public:
    // Both borrowed. The bar may replace its brush while the pop-up is open, so it is asked for again and again.
    [[nodiscard]] virtual HBRUSH BarBrush() const = 0;
    [[nodiscard]] virtual HFONT BarFont() const = 0;

    // The shell was asked for the date and time settings; its result, above 32 when it started them. The pop-up closes
    // as soon as another window is active, so what is to be told to the user must not be owned by it.
    virtual void OnTimeSettingsStarted(INT_PTR shellResult) = 0;

    // The pop-up is gone, for whatever reason. Called once for each that was opened.
    virtual void OnTimeDateClosed() = 0;

protected:
    ~TimeDateHost() = default;
};

} // namespace korvane::controls
