#pragma once

#include <windows.h>

#include <commctrl.h>

#include "controls/bar_button.h"
#include "framework/gdiplus_image.h"
#include "framework/pixel_bitmap.h"

namespace korvane::controls {

// A button with one 16 by 16 image. A click reaches the parent as BN_CLICKED.
class CToolButton final : public BarButton<CToolButton> {
public:
    static constexpr fw::WindowClass kClass{.name = L"ToolButton_WndClass", .base = L"BUTTON"};

    // The image is the icon, or else the one of the lists, or else the picture. Each may be set, and the icon and the
    // picture taken away again, at any time.
    void SetIcon(fw::UniqueIcon icon, fw::ImageKind kind = fw::ImageKind::kPicture);
    // Both lists are borrowed; without a list for the disabled state the normal one serves.
    void SetImageListIndex(HIMAGELIST normal, HIMAGELIST disabled, int index,
                           fw::ImageKind kind = fw::ImageKind::kPicture);
    void SetImage(fw::PngImage image);

    // For the mix-ins.
    void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts);
    [[nodiscard]] const wchar_t* ThemeClasses() const;

private:
    void RedrawIfCreated() const;
    void PaintImage(HDC dc, const base::Rect& area, ButtonState state) const;
    void PaintIcon(HDC dc, const base::Rect& at, ButtonState state) const;
    void PaintListImage(HDC dc, const base::Rect& area, ButtonState state) const;
    // True when it was done.
    [[nodiscard]] bool PaintInSystemColour(HDC dc, const base::Rect& at, ButtonState state, fw::ImageKind kind,
                                           const fw::Painter& paint) const;

    fw::UniqueIcon icon_;
    fw::ImageKind iconKind_ = fw::ImageKind::kPicture;
    HIMAGELIST normalImages_ = nullptr;
    HIMAGELIST disabledImages_ = nullptr;
    int imageIndex_ = -1;
    fw::ImageKind listKind_ = fw::ImageKind::kPicture;
    fw::PngImage image_;
};

} // namespace korvane::controls
