#pragma once

#include "controls/bar_button.h"

namespace korvane::controls {

// A step button with an arrow to the left or right. A click reaches the parent as BN_CLICKED.
class CUpDownButton final : public BarButton<CUpDownButton> {
public:
    static constexpr fw::WindowClass kClass{.name = L"UpDownButton_WndClass", .base = L"BUTTON"};

    static constexpr bool kTakesFocusByMouse = true;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_GETDLGCODE>(&CUpDownButton::OnDialogCode),
            fw::Chain<BarButton<CUpDownButton>>(),
        };
    }

    CUpDownButton(Direction direction, base::Colour arrow) : direction_{direction}, arrow_{arrow} {}

    void SetArrowColour(base::Colour arrow);

    // For the mix-ins.
    void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts);
    [[nodiscard]] const wchar_t* ThemeClasses() const;

private:
    LRESULT OnDialogCode(const fw::Message& message);
    [[nodiscard]] base::Colour ArrowOn(base::Colour ground, ButtonState state) const;

    Direction direction_;
    base::Colour arrow_;
};

} // namespace korvane::controls
