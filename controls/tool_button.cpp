#include "controls/tool_button.h"

#include <utility>

namespace korvane::controls {
namespace {

// Of 255: how much of the ground covers the icon of a disabled button.
constexpr BYTE kDisabledCover = 155;

void DrawIcon(HDC dc, const base::Rect& at, HICON icon) {
    ::DrawIconEx(dc, at.left, at.top, icon, at.Width(), at.Height(), 0, nullptr, DI_NORMAL);
}

// An icon has no disabled look of its own; it recedes into the ground, so that nobody presses it in vain.
void DrawReceding(HDC dc, const base::Rect& at, HICON icon) {
    const fw::UniqueMemoryDc ground{::CreateCompatibleDC(dc)};
    const fw::UniqueBitmap bitmap{::CreateCompatibleBitmap(dc, at.Width(), at.Height())};
    const fw::SelectedObject selected{ground.Get(), bitmap.Get()};
    ::BitBlt(ground.Get(), 0, 0, at.Width(), at.Height(), dc, at.left, at.top, SRCCOPY);
    DrawIcon(dc, at, icon);
    ::GdiAlphaBlend(dc, at.left, at.top, at.Width(), at.Height(), ground.Get(), 0, 0, at.Width(), at.Height(),
                    {AC_SRC_OVER, 0, kDisabledCover, 0});
}

} // namespace

void CToolButton::SetIcon(fw::UniqueIcon icon) {
    icon_ = std::move(icon);
    RedrawIfCreated();
}

void CToolButton::SetImageListIndex(HIMAGELIST normal, HIMAGELIST disabled, int index) {
    normalImages_ = normal;
    disabledImages_ = disabled;
    imageIndex_ = index;
    RedrawIfCreated();
}

void CToolButton::SetImage(fw::PngImage image) {
    image_ = std::move(image);
    RedrawIfCreated();
}

void CToolButton::SetFocusShownAsHot(bool shown) {
    focusShownAsHot_ = shown;
    RedrawIfCreated();
}

void CToolButton::RedrawIfCreated() const {
    if (Handle()) Redraw();
}

void CToolButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = ToolButtonState(facts, focusShownAsHot_);
    PaintGround(dc, area, state);
    PaintImage(dc, area, state);
}

void CToolButton::PaintImage(HDC dc, const base::Rect& area, ButtonState state) const {
    const int side = fw::Scale()(kIconPx);
    const base::Rect at = Pushed(base::Centred(area, {side, side}), state, fw::Scale());
    if (icon_) {
        if (state == ButtonState::kDisabled) {
            DrawReceding(dc, at, icon_.Get());
        } else {
            DrawIcon(dc, at, icon_.Get());
        }
        return;
    }
    if (normalImages_ && imageIndex_ >= 0) {
        const bool disabled = state == ButtonState::kDisabled && disabledImages_;
        const HIMAGELIST list = disabled ? disabledImages_ : normalImages_;
        // A list is drawn in the size of its images, whatever that is.
        base::Size size{side, side};
        ::ImageList_GetIconSize(list, &size.width, &size.height);
        const base::Rect own = Pushed(base::Centred(area, size), state, fw::Scale());
        ::ImageList_Draw(list, imageIndex_, dc, own.left, own.top, ILD_TRANSPARENT);
        return;
    }
    image_.Draw(dc, at);
}

const wchar_t* CToolButton::ThemeClasses() const {
    return BarButtonTheme(fw::IsWindowsAtLeast(fw::kWindows7));
}

} // namespace korvane::controls
