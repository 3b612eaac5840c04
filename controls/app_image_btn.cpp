#include "controls/app_image_btn.h"

#include <string>

#include "framework/window_text.h"

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
    const HWND placeholder = ::GetDlgItem(dialog, id);
    if (!placeholder) return false;
    const std::wstring text = fw::WindowText(placeholder);
    RECT r{};
    ::GetWindowRect(placeholder, &r);
    ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&r), 2);
    // The type of the placeholder's button must not stay: it would be mixed with the owner-draw type.
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(placeholder, GWL_STYLE)) & ~DWORD{BS_TYPEMASK};
    const auto font = ::SendMessageW(placeholder, WM_GETFONT, 0, 0);
    if (!Create({.text = text.c_str(), .rect = r, .style = style, .parent = dialog, .id = static_cast<UINT_PTR>(id)}))
        return false;
    ::SendMessageW(Handle(), WM_SETFONT, static_cast<WPARAM>(font), FALSE);
    ::SetWindowPos(Handle(), placeholder, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ::DestroyWindow(placeholder);
    return true;
}

void CAppImageBtn::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = StateOf(facts);
    const bool themed = static_cast<bool>(CurrentTheme());
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
    const int index = state == ButtonState::kDisabled && ::ImageList_GetImageCount(images_) > 1 ? 1 : 0;
    ::ImageList_Draw(images_, index, dc, at.left, at.top, ILD_TRANSPARENT);
}

} // namespace korvane::controls
