#pragma once

#include "controls/menu_bar_button.h"

namespace korvane::controls {

// A narrow button with an arrow, beside a box. What it opens is the parent's: the parent gets BN_CLICKED while the
// button shows pressed, and ends that with SetMenuShown(false) when its pop-up closes.
class CDropDownButton final : public MenuBarButton<CDropDownButton> {
public:
    static constexpr fw::WindowClass kClass{.name = L"DropDownButton_WndClass", .base = L"BUTTON"};

    // For the mix-ins.
    void OpenMenu();
    void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts);
    [[nodiscard]] const wchar_t* ThemeClasses() const { return kDropDownButtonTheme; }
};

} // namespace korvane::controls
