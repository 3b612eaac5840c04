#pragma once

#include <windows.h>

#include <commctrl.h>

#include "controls/bar_button.h"
#include "framework/gdiplus_image.h"

namespace korvane::controls {

// A button with one 16 by 16 image. A click reaches the parent as BN_CLICKED.
class CToolButton final : public BarButton<CToolButton> {
public:
    static constexpr fw::WindowClass kClass{.name = L"ToolButton_WndClass", .base = L"BUTTON"};

    // The image is the icon, or else the one of the lists, or else the picture. Each may be set, and the icon and the
    // picture taken away again, at any time.
    void SetIcon(fw::UniqueIcon icon);
    // Both lists are borrowed; without a list for the disabled state the normal one serves.
    void SetImageListIndex(HIMAGELIST normal, HIMAGELIST disabled, int index);
    void SetImage(fw::PngImage image);

    // While set, the keyboard focus looks like the mouse over the button.
    void SetFocusShownAsHot(bool shown);

    // For the mix-ins.
    void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts);
    [[nodiscard]] const wchar_t* ThemeClasses() const;

private:
    void RedrawIfCreated() const;
    void PaintImage(HDC dc, const base::Rect& area, ButtonState state) const;

    fw::UniqueIcon icon_;
    HIMAGELIST normalImages_ = nullptr;
    HIMAGELIST disabledImages_ = nullptr;
    int imageIndex_ = -1;
    fw::PngImage image_;
    bool focusShownAsHot_ = false;
};

} // namespace korvane::controls
