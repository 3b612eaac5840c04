#pragma once

#include "controls/bar_button.h"

namespace korvane::controls {

// A step button with an arrow to the left or right. A click reaches the parent as BN_CLICKED.
class CUpDownButton final : public BarButton<CUpDownButton> {
public:
    static constexpr fw::WindowClass kClass{.name = L"UpDownButton_WndClass", .base = L"BUTTON"};

    CUpDownButton(Direction direction, base::Colour arrow) : direction_{direction}, arrow_{arrow} {}

    void SetArrowColour(base::Colour arrow);
    // Whether a frame tells that it has the keyboard focus. At first it does not: mouse users need no such thing.
    void SetFocusShown(bool shown);

    // For the mix-ins.
    void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts);
    [[nodiscard]] const wchar_t* ThemeClasses() const;

private:
    Direction direction_;
    base::Colour arrow_;
    bool focusShown_ = false;
};

} // namespace korvane::controls
