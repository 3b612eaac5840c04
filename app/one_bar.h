#pragma once

#include <windows.h>

#include <array>

#include "app/logic/one_bar.h"
#include "framework/named_mutex.h"

namespace korvane::app {

// This copy of the program among those of the session. What it claims it holds until it is gone.
class ThisCopy final : private OtherCopies {
public:
    // Whether this copy is to make the bar. May wait for another copy that is about to.
    [[nodiscard]] StartVerdict Decide() { return DecideStart(*this); }

    // The bar of any copy; null when there is none.
    [[nodiscard]] static HWND FindBar();

private:
    bool TakeClaim(int claim, std::chrono::milliseconds patience) override;
    BarPresence LookForBar() override;

    std::array<fw::NamedMutex, kClaims> claims_{fw::NamedMutex{L"Local\\Korvane.Bar"},
                                                fw::NamedMutex{L"Local\\Korvane.Bar.Second"}};
};

} // namespace korvane::app
