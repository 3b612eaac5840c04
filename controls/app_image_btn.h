#pragma once

#include <windows.h>

#include <commctrl.h>

#include "controls/bar_button.h"

namespace korvane::controls {

// A push button of a dialog with a picture for its face. The dialog reflects WM_DRAWITEM.
class CAppImageBtn final : public BarButton<CAppImageBtn> {
public:
    static constexpr fw::WindowClass kClass{.name = L"AppImageBtn_WndClass", .base = L"BUTTON"};

    static constexpr bool kTakesFocusByMouse = true;

    // Borrowed: image 0 is shown normally and image 1 while disabled.
    void SetImages(HIMAGELIST images);

    // Takes the place of a dialog's ordinary button: its rectangle, style, identifier, text, font and turn in the tab
    // order. The button of the template is gone afterwards. False, and nothing changed, when there is no such button or
    // no window to be had.
    [[nodiscard]] bool Replace(HWND dialog, int id);

    // For the mix-ins.
    void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts);
    [[nodiscard]] const wchar_t* ThemeClasses() const { return kDialogButtonTheme; }

private:
    void PaintImage(HDC dc, const base::Rect& area, ButtonState state) const;

    HIMAGELIST images_ = nullptr;
};

} // namespace korvane::controls
