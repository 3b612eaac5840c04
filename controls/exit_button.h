#pragma once

#include "controls/bar_button.h"

namespace korvane::controls {

// The small close button at the bar's end. A click reaches the frame as BN_CLICKED.
class CExitButton final : public BarButton<CExitButton> {
public:
    static constexpr fw::WindowClass kClass{.name = L"ExitButton_WndClass", .base = L"BUTTON"};

    // For the mix-ins.
    void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts);
    [[nodiscard]] const wchar_t* ThemeClasses() const { return kExitButtonTheme; }

private:
    void PaintCross(HDC dc, const base::Rect& area, ButtonState state) const;
};

} // namespace korvane::controls
