#include "controls/tool_button.h"

#include <utility>

namespace korvane::controls {
namespace {

// Of 255: how much of the ground covers the icon of a disabled button.
constexpr BYTE kDisabledCover = 155;

bool DrawIcon(HDC dc, const base::Rect& at, HICON icon) {
    return ::DrawIconEx(dc, at.left, at.top, icon, at.Width(), at.Height(), 0, nullptr, DI_NORMAL) != FALSE;
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

void CToolButton::SetIcon(fw::UniqueIcon icon, fw::ImageKind kind) {
    icon_ = std::move(icon);
    iconKind_ = kind;
    RedrawIfCreated();
}

void CToolButton::SetImageListIndex(HIMAGELIST normal, HIMAGELIST disabled, int index, fw::ImageKind kind) {
    normalImages_ = normal;
    disabledImages_ = disabled;
    imageIndex_ = index;
    listKind_ = kind;
    RedrawIfCreated();
}

void CToolButton::SetImage(fw::PngImage image) {
    image_ = std::move(image);
    RedrawIfCreated();
}

void CToolButton::RedrawIfCreated() const {
    if (Handle()) Redraw();
}

void CToolButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = StateOf(facts);
    PaintGround(dc, area, state);
    PaintImage(dc, area, state);
}

void CToolButton::PaintImage(HDC dc, const base::Rect& area, ButtonState state) const {
    const int side = fw::Scale()(kIconPx);
    const base::Rect at = Pushed(base::Centred(area, {side, side}), state, fw::Scale());
    if (icon_) return PaintIcon(dc, at, state);
    if (normalImages_ && imageIndex_ >= 0) return PaintListImage(dc, area, state);
    image_.Draw(dc, at);
}

void CToolButton::PaintIcon(HDC dc, const base::Rect& at, ButtonState state) const {
    const base::Rect own = base::Rect::At({0, 0}, at.Extent());
    if (PaintInSystemColour(dc, at, state, iconKind_, [&](HDC one) { return DrawIcon(one, own, icon_.Get()); })) return;
    if (state == ButtonState::kDisabled) {
        DrawReceding(dc, at, icon_.Get());
    } else {
        DrawIcon(dc, at, icon_.Get());
    }
}

void CToolButton::PaintListImage(HDC dc, const base::Rect& area, ButtonState state) const {
    const bool disabled = state == ButtonState::kDisabled && disabledImages_ && !highContrast_;
    const HIMAGELIST list = disabled ? disabledImages_ : normalImages_;
    // A list is drawn in the size of its images, whatever that is.
    const int side = fw::Scale()(kIconPx);
    base::Size size{side, side};
    ::ImageList_GetIconSize(list, &size.width, &size.height);
    const base::Rect at = Pushed(base::Centred(area, size), state, fw::Scale());
    const auto draw = [&](HDC on, int left, int top) {
        return ::ImageList_Draw(list, imageIndex_, on, left, top, ILD_TRANSPARENT) != FALSE;
    };
    if (!PaintInSystemColour(dc, at, state, listKind_, [&](HDC one) { return draw(one, 0, 0); }))
        draw(dc, at.left, at.top);
}

bool CToolButton::PaintInSystemColour(HDC dc, const base::Rect& at, ButtonState state, fw::ImageKind kind,
                                      const fw::Painter& paint) const {
    if (!highContrast_ || kind != fw::ImageKind::kDrawing) return false;
    fw::DrawSilhouette(dc, at, fw::ToWindows(SystemColour(TextColourInHighContrast(state))), paint);
    return true;
}

const wchar_t* CToolButton::ThemeClasses() const {
    return BarButtonTheme(fw::IsWindowsAtLeast(fw::kWindows7));
}

} // namespace korvane::controls
