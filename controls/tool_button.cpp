#include "controls/tool_button.h"

#include <utility>

namespace korvane::controls {

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
        ::DrawIconEx(dc, at.left, at.top, icon_.Get(), side, side, 0, nullptr, DI_NORMAL);
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
