#pragma once

#include <gtest/gtest.h>

#include <uxtheme.h>

#include "base/colour.h"
#include "controls/logic/button_state.h"
#include "controls/tool_tip_helper.h"
#include "framework/gdi.h"
#include "framework/gdiplus_image.h"
#include "framework/handle.h"
#include "framework/window.h"
#include "tests/support/canvas.h"
#include "tests/support/fake_bar_host.h"
#include "tests/support/window_test.h"

namespace korvane::controls {

inline constexpr base::Colour kDarkBar = base::Colour::Rgb(159, 22, 106);
inline constexpr base::Colour kLightBarColour = base::Colour::Rgb(240, 240, 240);
inline constexpr COLORREF kBlack = RGB(0, 0, 0);
inline constexpr COLORREF kWhite = RGB(255, 255, 255);
inline constexpr COLORREF kRed = RGB(255, 0, 0);
inline constexpr COLORREF kGreen = RGB(0, 255, 0);

// A bar of one colour, on which a test puts buttons and has them painted into memory.
class BarButtonTest : public test::WindowTest {
protected:
    void SetUp() override {
        test::WindowTest::SetUp();
        host.ground = kDarkBar.value;
    }

    template <class Button>
    void Put(Button& button, RECT rect, UINT id = 9000, const wchar_t* text = L"") {
        ASSERT_TRUE(button.Create({.text = text,
                                   .rect = rect,
                                   .style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN,
                                   .parent = Host(),
                                   .id = id}));
        // The tooltip comes with the first message that the loop takes.
        MSG makeTip{};
        ASSERT_TRUE(::PeekMessageW(&makeTip, button.Handle(), kMakeTipMessage, kMakeTipMessage, PM_REMOVE));
        ::DispatchMessageW(&makeTip);
    }

    // The system's own themes are none of the test's business where a look of ours is looked at.
    static void TakeThemeAway(const fw::WindowObject& button) {
        ::SetWindowTheme(button.Handle(), L" ", L" ");
        Send(button.Handle(), WM_THEMECHANGED);
    }

    // Has the button painted as Windows would, with ODS_ flags.
    [[nodiscard]] test::Canvas Paint(const fw::WindowObject& button, UINT itemState = 0) const {
        const HWND window = button.Handle();
        const base::Rect area = fw::ClientRect(window);
        test::Canvas canvas{area.Extent()};
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.CtlID = static_cast<UINT>(::GetDlgCtrlID(window));
        item.itemAction = ODA_DRAWENTIRE;
        item.itemState = itemState;
        item.hwndItem = window;
        item.hDC = canvas.Dc();
        item.rcItem = fw::ToWindows(area);
        EXPECT_NE(Send(Host(), WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item)), 0);
        return canvas;
    }

    // Makes the button hot. The cursor is elsewhere, so Windows posts that it left; no test lets that message in.
    static void Enter(const fw::WindowObject& button) { SendMouse(button.Handle(), WM_MOUSEMOVE, {1, 1}); }

    [[nodiscard]] COLORREF Ground() const { return host.ground.value_or(0); }
    // The flat plate of a button without a theme.
    [[nodiscard]] COLORREF Plate(ButtonState state) const {
        return PlateColour({Ground()}, state).value_or(base::Colour{Ground()}).value;
    }

    // An icon of one colour.
    [[nodiscard]] static fw::UniqueIcon MakeIcon(COLORREF colour, int side = 16) {
        const test::Canvas face{{side, side}};
        face.Fill({0, 0, side, side}, colour);
        const fw::UniqueBitmap picture{::CreateCompatibleBitmap(face.Dc(), side, side)};
        {
            const fw::UniqueMemoryDc dc{::CreateCompatibleDC(face.Dc())};
            const fw::SelectedObject selected{dc.Get(), picture.Get()};
            ::BitBlt(dc.Get(), 0, 0, side, side, face.Dc(), 0, 0, SRCCOPY);
        }
        // No bit of the mask is set: every pixel of the icon is opaque.
        const std::vector<BYTE> zeros(static_cast<std::size_t>(side * side), 0);
        const fw::UniqueBitmap mask{::CreateBitmap(side, side, 1, 1, zeros.data())};
        ICONINFO info{};
        info.fIcon = TRUE;
        info.hbmMask = mask.Get();
        info.hbmColor = picture.Get();
        return fw::UniqueIcon{::CreateIconIndirect(&info)};
    }

    fw::GdiplusSession gdiplus;
    test::FakeBarHost bar;
};

} // namespace korvane::controls
