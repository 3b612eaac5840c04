#include "controls/app_image_btn.h"

#include "framework/pixel_bitmap.h"
#include "framework/placeholder.h"

namespace korvane::controls {
namespace {

// How far the focus rectangle stands inside the button, at 96 dpi.
constexpr int kThemedFocusInset = 3;
constexpr int kClassicFocusInset = 4;

void PaintClassicPlate(HDC dc, const base::Rect& area, ButtonState state) {
    RECT r = fw::ToWindows(area);
    ::DrawFrameControl(dc, &r, DFC_BUTTON, DFCS_BUTTONPUSH | (state == ButtonState::kPressed ? UINT{DFCS_PUSHED} : 0U));
}

} // namespace

void CAppImageBtn::SetImages(HIMAGELIST images) {
    images_ = images;
    if (Handle()) Redraw();
}

bool CAppImageBtn::Replace(HWND dialog, int id) {
    // The type of the placeholder's button must not stay: it would be mixed with the owner-draw type.
    return fw::TakePlace(*this, dialog, id, {.without = BS_TYPEMASK});
}

void CAppImageBtn::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = StateOf(facts);
    // The classic plate is in the system's colours.
    const bool themed = CurrentTheme() && !highContrast_;
    if (themed) {
        PaintGround(dc, area, state);
    } else {
        PaintClassicPlate(dc, area, state);
    }
    PaintImage(dc, area, state);
    if (!facts.focused) return;
    const RECT focus = fw::ToWindows(area.Inset(fw::Scale()(themed ? kThemedFocusInset : kClassicFocusInset)));
    ::SetTextColor(dc, ::GetSysColor(COLOR_BTNTEXT));
    ::SetBkColor(dc, ::GetSysColor(COLOR_BTNFACE));
    ::DrawFocusRect(dc, &focus);
}

void CAppImageBtn::PaintImage(HDC dc, const base::Rect& area, ButtonState state) const {
    if (!images_) return;
    base::Size size;
    ::ImageList_GetIconSize(images_, &size.width, &size.height);
    const base::Rect at = Pushed(base::Centred(area, size), state, fw::Scale());
    if (highContrast_) {
        const int colour = state == ButtonState::kDisabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT;
        return fw::DrawSilhouette(dc, at, ::GetSysColor(colour), [this](HDC one) {
            return ::ImageList_Draw(images_, 0, one, 0, 0, ILD_TRANSPARENT) != FALSE;
        });
    }
    const int index = state == ButtonState::kDisabled && ::ImageList_GetImageCount(images_) > 1 ? 1 : 0;
    ::ImageList_Draw(images_, index, dc, at.left, at.top, ILD_TRANSPARENT);
}

} // namespace korvane::controls
