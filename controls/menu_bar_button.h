#pragma once

#include "controls/bar_button.h"

namespace korvane::controls {

// The private message with which a pressed button asks itself to open its menu, once the press has been dealt with.
inline constexpr UINT kOpenMenuMessage = WM_APP + 100;

// Shows the host's pop-up below the button, or above it where there is no room; gives the chosen command, or 0.
[[nodiscard]] UINT TrackMenuAt(HWND button, BarHost& host, int popup);

// Base of the bar's buttons that open something. A press, the space bar, Enter and BM_CLICK all lead to T's
// `void OpenMenu()`, and none of them makes the button procedure report a click as well.
template <class T>
class MenuBarButton : public BarButton<T> {
public:
    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_LBUTTONDOWN>(&MenuBarButton::OnMenuPress),  fw::On<WM_LBUTTONUP>(&MenuBarButton::OnRelease),
            fw::On<WM_KEYDOWN>(&MenuBarButton::OnMenuKey),        fw::On<BM_CLICK>(&MenuBarButton::OnClick),
            fw::On<kOpenMenuMessage>(&MenuBarButton::OnOpenMenu), fw::Chain<BarButton<T>>(),
        };
    }

    // Pressed for as long as the menu is open, and redrawn at once.
    void SetMenuShown(bool shown) {
        MarkMenuShown(shown);
        if (this->Handle()) this->Redraw();
    }
    void ShowPressed() { SetMenuShown(true); }

    // What a press does, without the mouse: the button shows pressed at once, and its menu opens when the messages
    // before it are done.
    void OpenSoon() {
        if (!::IsWindowEnabled(this->Handle())) return;
        ShowPressed();
        ::PostMessageW(this->Handle(), kOpenMenuMessage, 0, 0);
    }

protected:
    // Opens a pop-up of the bar's menu and posts the chosen command to the parent.
    void TrackPopupOf(BarHost& host, int popup) {
        if (tracking_) return;
        tracking_ = true;
        const HWND window = this->Handle();
        const UINT command = TrackMenuAt(window, host, popup);
        // The bar may have been closed while the menu was open, and this object with it.
        if (fw::WindowObject::From(window) != this) return;
        tracking_ = false;
        SetMenuShown(false);
        if (command != 0) ::PostMessageW(::GetParent(window), WM_COMMAND, LOWORD(command), 0);
    }

private:
    // The name of the button would only hide the first rows of what it opens.
    void MarkMenuShown(bool shown) {
        this->menuShown_ = shown;
        this->AllowTip(!shown);
    }

    // The press goes on to the button procedure, which sets the focus and captures the mouse. A press while the menu is
    // still open is meant to close it, which it has already done by taking the activation away from a pop-up.
    fw::Reply OnMenuPress(const fw::Message& m) {
        if (!::IsWindowEnabled(m.window) || this->menuShown_) return LRESULT{0};
        MarkMenuShown(true);
        ::PostMessageW(m.window, kOpenMenuMessage, 0, 0);
        return fw::kPassOn;
    }

    // Let go before the menu came: without the capture the button procedure has nothing to report.
    fw::Reply OnRelease(const fw::Message& m) {
        ReleaseMouse(m.window);
        return fw::kPassOn;
    }

    fw::Reply OnMenuKey(const fw::Message& m) {
        if (m.wparam != VK_SPACE) return fw::kPassOn;
        if ((HIWORD(m.lparam) & KF_REPEAT) == 0) OpenSoon();
        return LRESULT{0};
    }

    void OnClick(const fw::Message&) { OpenSoon(); }

    void OnOpenMenu(const fw::Message& m) {
        ReleaseMouse(m.window);
        static_cast<T&>(*this).OpenMenu();
    }

    static void ReleaseMouse(HWND window) {
        if (::GetCapture() == window) ::ReleaseCapture();
    }

    bool tracking_ = false;
};

} // namespace korvane::controls
