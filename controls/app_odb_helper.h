#pragma once

#include <windows.h>

#include <commctrl.h>

#include "base/geometry.h"
#include "controls/bar_painting.h"
#include "controls/logic/button_state.h"
#include "framework/gdi.h"
#include "framework/message_map.h"

namespace korvane::controls {

// Mix-in of an owner-drawn button T over the system's BUTTON: it paints when the parent reflects the draw message, and
// follows the mouse. T paints itself with `void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts)`; the
// device context comes back as it was, whatever T selects into it.
template <class T>
class CAppODBHelper {
public:
    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::OnReflected<WM_DRAWITEM>(&CAppODBHelper::OnDrawItem),
            fw::On<WM_ERASEBKGND>(&CAppODBHelper::OnEraseBackground),
            fw::On<WM_MOUSEMOVE>(&CAppODBHelper::OnMouseMove),
            fw::On<WM_MOUSELEAVE>(&CAppODBHelper::OnMouseLeave),
            fw::On<WM_LBUTTONDOWN>(&CAppODBHelper::OnPress),
            fw::On<WM_LBUTTONDBLCLK>(&CAppODBHelper::OnDoubleClick),
            fw::On<WM_KEYDOWN>(&CAppODBHelper::OnKeyDown),
            fw::On<WM_ENABLE>(&CAppODBHelper::OnEnable),
        };
    }

    [[nodiscard]] bool Hot() const { return hot_; }
    [[nodiscard]] bool MenuShown() const { return menuShown_; }

protected:
    // The owner-draw style cannot be among those of creation: the BUTTON procedure goes by the ones it saw then.
    void ForceOwnerDraw() {
        const HWND window = Self().Handle();
        ::SetWindowLongPtrW(window, GWL_STYLE, ::GetWindowLongPtrW(window, GWL_STYLE) | BS_OWNERDRAW);
    }

    bool hot_ = false;
    // The button's menu is open or about to open.
    bool menuShown_ = false;

private:
    T& Self() { return static_cast<T&>(*this); }

    bool OnDrawItem(const DRAWITEMSTRUCT& item) {
        const base::Rect area = fw::FromWindows(item.rcItem);
        if (area.Empty()) return true;
        const PaintBuffer buffer{item.hDC, area};
        const fw::SavedDc saved{buffer.Dc()};
        const auto in = [&](UINT state) { return (item.itemState & state) != 0; };
        Self().Paint(buffer.Dc(), area,
                     {.pressed = in(ODS_SELECTED),
                      .menuShown = menuShown_,
                      .disabled = in(ODS_DISABLED),
                      .hot = hot_,
                      .focused = in(ODS_FOCUS)});
        return true;
    }

    // The draw step covers the whole button.
    bool OnEraseBackground(const fw::Message&) { return true; }

    LRESULT OnMouseMove(const fw::Message& m) {
        const bool entered = !hot_ && (m.wparam & MK_LBUTTON) == 0 && ::IsWindowEnabled(m.window);
        if (entered) {
            TRACKMOUSEEVENT leave{};
            leave.cbSize = sizeof leave;
            leave.dwFlags = TME_LEAVE;
            leave.hwndTrack = m.window;
            ::TrackMouseEvent(&leave);
            hot_ = true;
        }
        // First, because the button procedure may invalidate the button as well: one painting serves both.
        const LRESULT result = Self().Default(m);
        if (entered) Self().Redraw();
        return result;
    }

    // Kept from the button procedure, which would paint a second time.
    void OnMouseLeave() {
        hot_ = false;
        Self().Redraw();
    }

    fw::Reply OnPress(const fw::Message&) {
        hot_ = false;
        return fw::kPassOn;
    }

    // To an owner-drawn button the second press of a quick pair is a double click, which is not a click; here every
    // press counts.
    LRESULT OnDoubleClick(const fw::Message& m) { return ::SendMessageW(m.window, WM_LBUTTONDOWN, m.wparam, m.lparam); }

    // The button procedure knows the space bar only; Enter is otherwise the dialog manager's.
    fw::Reply OnKeyDown(const fw::Message& m) {
        if (m.wparam != VK_RETURN) return fw::kPassOn;
        if ((HIWORD(m.lparam) & KF_REPEAT) == 0) ::SendMessageW(m.window, BM_CLICK, 0, 0);
        return LRESULT{0};
    }

    // A disabled window hears nothing of the mouse and would stay hot for ever.
    fw::Reply OnEnable(const fw::Message& m) {
        if (m.wparam == FALSE) hot_ = false;
        return fw::kPassOn;
    }
};

} // namespace korvane::controls
