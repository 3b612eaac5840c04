#pragma once

#include <windows.h>

#include <commctrl.h>

#include <utility>

#include "base/geometry.h"
#include "controls/bar_painting.h"
#include "controls/logic/button_state.h"
#include "framework/gdi.h"
#include "framework/high_contrast.h"
#include "framework/message_map.h"
#include "framework/scoped_flag.h"

namespace korvane::controls {

// Mix-in of an owner-drawn button T over the system's BUTTON: it paints when the parent reflects the draw message, and
// follows the mouse. T paints itself with `void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts)`; the
// device context comes back as it was, whatever T selects into it. A press of the mouse leaves the keyboard where it is
// unless T has `kTakesFocusByMouse`.
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
            fw::On<WM_SETFOCUS>(&CAppODBHelper::OnSetFocus),
            fw::On<WM_KILLFOCUS>(&CAppODBHelper::OnKillFocus),
            fw::On<WM_GETDLGCODE>(&CAppODBHelper::OnDialogCode),
            fw::On<WM_KEYDOWN>(&CAppODBHelper::OnKeyDown),
            fw::On<WM_ENABLE>(&CAppODBHelper::OnEnable),
        };
    }

    [[nodiscard]] bool Hot() const { return hot_; }
    [[nodiscard]] bool MenuShown() const { return menuShown_; }

    // Whether the button tells that it has the keyboard focus. At first it does not: mouse users need no such thing.
    void SetFocusShown(bool shown) {
        if (std::exchange(focusShown_, shown) != shown && Self().Handle()) Self().Redraw();
    }

protected:
    // The owner-draw style cannot be among those of creation: the BUTTON procedure goes by the ones it saw then.
    void ForceOwnerDraw() {
        const HWND window = Self().Handle();
        ::SetWindowLongPtrW(window, GWL_STYLE, ::GetWindowLongPtrW(window, GWL_STYLE) | BS_OWNERDRAW);
    }

    bool hot_ = false;
    // The button's menu is open or about to open.
    bool menuShown_ = false;
    // As it is for the painting that is going on.
    bool highContrast_ = false;

private:
    T& Self() { return static_cast<T&>(*this); }

    bool OnDrawItem(const DRAWITEMSTRUCT& item) {
        const base::Rect area = fw::FromWindows(item.rcItem);
        if (area.Empty()) return true;
        const PaintBuffer buffer{item.hDC, area};
        const auto in = [&](UINT state) { return (item.itemState & state) != 0; };
        const ButtonFacts facts{.pressed = in(ODS_SELECTED),
                                .menuShown = menuShown_,
                                .disabled = in(ODS_DISABLED),
                                .hot = hot_,
                                .focused = in(ODS_FOCUS),
                                .focusShown = focusShown_};
        highContrast_ = fw::HighContrast();
        {
            const fw::SavedDc saved{buffer.Dc()};
            Self().Paint(buffer.Dc(), area, facts);
        }
        if (facts.ShowsFocus()) PaintFocusFrame(buffer.Dc(), area, highContrast_);
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

    LRESULT OnPress(const fw::Message& m) {
        hot_ = false;
        const fw::ScopedFlag pressing{pressing_};
        return Self().Default(m);
    }

    // The button procedure takes the keyboard at a press. It goes back at once, and the procedure hears nothing of
    // that: it would take the loss of the focus for the end of the press.
    fw::Reply OnSetFocus(const fw::Message& m) {
        if (T::kTakesFocusByMouse || !pressing_) return fw::kPassOn;
        const auto before = reinterpret_cast<HWND>(m.wparam);
        ::SetFocus(before ? before : ::GetParent(m.window));
        return LRESULT{0};
    }
    fw::Reply OnKillFocus(const fw::Message&) {
        if (T::kTakesFocusByMouse || !pressing_) return fw::kPassOn;
        return LRESULT{0};
    }

    // The dialog manager does not know an owner-drawn button for a push button, and would take Enter on it for the
    // default button's. Said to be one, it would be given the style of one in the place of the owner-draw style.
    LRESULT OnDialogCode(const fw::Message& m) {
        const auto* const key = reinterpret_cast<const MSG*>(m.lparam);
        const bool enter = key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
        return DLGC_BUTTON | (enter ? DLGC_WANTMESSAGE : 0);
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

    bool focusShown_ = false;
    // A press of the mouse is being handed to the button procedure.
    bool pressing_ = false;
};

} // namespace korvane::controls
