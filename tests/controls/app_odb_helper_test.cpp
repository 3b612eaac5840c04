#include "controls/app_odb_helper.h"

#include "controls/bar_button.h"
#include "tests/controls/bar_button_test.h"

namespace korvane::controls {
namespace {

constexpr UINT kId = 9000;

// The least that a button can be; it writes down what it was asked.
class ProbeButton final : public BarButton<ProbeButton> {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneTestProbe_WndClass", .base = L"BUTTON"};

    void Paint(HDC, const base::Rect&, const ButtonFacts& asked) { facts = asked; }
    [[nodiscard]] const wchar_t* ThemeClasses() const {
        ++themesOpened;
        return L"BUTTON";
    }

    ButtonFacts facts;
    mutable int themesOpened = 0;
};

class AppOdbHelper : public BarButtonTest {
protected:
    void SetUp() override {
        BarButtonTest::SetUp();
        Put(button, {0, 0, 40, 32}, kId, L"名前");
    }
    // Paintings are counted on a bar that is to be seen.
    void ShowBar() {
        ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
        ::UpdateWindow(button.Handle());
        host.sent.clear();
    }
    // Everything that waits to be painted, painted.
    int DrawCount() {
        ::UpdateWindow(button.Handle());
        return host.DrawCount(kId);
    }

    ProbeButton button;
};

TEST_F(AppOdbHelper, ForcesTheOwnerDrawStyle) {
    const LONG_PTR style = ::GetWindowLongPtrW(button.Handle(), GWL_STYLE);

    EXPECT_EQ(style & BS_TYPEMASK, 11);
    EXPECT_TRUE(style & WS_CHILD);
    EXPECT_TRUE(style & WS_CLIPSIBLINGS);
}

TEST_F(AppOdbHelper, ErasesNothing) {
    const test::Canvas canvas{{4, 4}};

    EXPECT_EQ(Send(button.Handle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc())), 1);

    EXPECT_EQ(canvas.Pixel(1, 1), test::Canvas::kUntouched);
}

TEST_F(AppOdbHelper, TellsThePaintingWhatTheItemStateSays) {
    (void)Paint(button, ODS_SELECTED | ODS_FOCUS);
    EXPECT_TRUE(button.facts.pressed);
    EXPECT_TRUE(button.facts.focused);
    EXPECT_FALSE(button.facts.disabled);

    (void)Paint(button, ODS_DISABLED);
    EXPECT_TRUE(button.facts.disabled);
    EXPECT_FALSE(button.facts.pressed);
}

TEST_F(AppOdbHelper, RedrawsOnceWhenTheMouseComesAndNotAgainInside) {
    ShowBar();

    SendMouse(button.Handle(), WM_MOUSEMOVE, {1, 1});
    EXPECT_EQ(DrawCount(), 1);
    EXPECT_TRUE(button.facts.hot);

    SendMouse(button.Handle(), WM_MOUSEMOVE, {2, 2});
    SendMouse(button.Handle(), WM_MOUSEMOVE, {9, 9});
    EXPECT_EQ(DrawCount(), 1);
}

TEST_F(AppOdbHelper, RedrawsOnceWhenTheMouseLeaves) {
    Enter(button);
    // The button procedure now takes the mouse for over the button as well, and would paint too when it leaves.
    Send(button.Handle(), WM_MOUSEHOVER);
    ShowBar();

    Send(button.Handle(), WM_MOUSELEAVE);

    EXPECT_EQ(DrawCount(), 1);
    EXPECT_FALSE(button.facts.hot);
}

TEST_F(AppOdbHelper, IsRedrawnAtOnceAndNotWithTheNextPainting) {
    ShowBar();

    SendMouse(button.Handle(), WM_MOUSEMOVE, {1, 1});

    EXPECT_EQ(host.DrawCount(kId), 1);
}

TEST_F(AppOdbHelper, IsNotHotWhenTheMouseComesWithItsButtonHeld) {
    ShowBar();

    SendMouse(button.Handle(), WM_MOUSEMOVE, {1, 1}, MK_LBUTTON);

    EXPECT_FALSE(button.Hot());
    EXPECT_EQ(DrawCount(), 0);
}

TEST_F(AppOdbHelper, AsksToBeToldWhenTheMouseLeaves) {
    // Windows tracks only a mouse that is there.
    ShowBar();
    const base::Rect place = fw::WindowRect(button.Handle());
    ::SetCursorPos(place.left + 5, place.top + 5);

    Enter(button);

    TRACKMOUSEEVENT asked{};
    asked.cbSize = sizeof asked;
    asked.dwFlags = TME_QUERY;
    ::TrackMouseEvent(&asked);
    EXPECT_EQ(asked.hwndTrack, button.Handle());
    EXPECT_TRUE(asked.dwFlags & TME_LEAVE);
}

TEST_F(AppOdbHelper, StopsBeingHotWhenPressed) {
    Enter(button);

    SendMouse(button.Handle(), WM_LBUTTONDOWN, {1, 1}, MK_LBUTTON);

    EXPECT_FALSE(button.Hot());
}

TEST_F(AppOdbHelper, ReportsAClickToItsParent) {
    Click(button.Handle());

    EXPECT_EQ(host.CommandCount(kId, BN_CLICKED), 1);
}

TEST_F(AppOdbHelper, CountsEveryPressOfAQuickPair) {
    Click(button.Handle());
    SendMouse(button.Handle(), WM_LBUTTONDBLCLK, {1, 1}, MK_LBUTTON);
    SendMouse(button.Handle(), WM_LBUTTONUP, {1, 1});

    EXPECT_EQ(host.CommandCount(kId, BN_CLICKED), 2);
    EXPECT_EQ(host.CommandCount(kId, BN_DOUBLECLICKED), 0);
}

TEST_F(AppOdbHelper, IsClickedByTheSpaceBarAndByEnter) {
    Send(button.Handle(), WM_KEYDOWN, VK_SPACE);
    Send(button.Handle(), WM_KEYUP, VK_SPACE);
    EXPECT_EQ(host.CommandCount(kId, BN_CLICKED), 1);

    Send(button.Handle(), WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(host.CommandCount(kId, BN_CLICKED), 2);
}

TEST_F(AppOdbHelper, IsClickedOnceByAnEnterKeyThatIsHeld) {
    constexpr LPARAM kRepeated = LPARAM{KF_REPEAT} << 16;

    Send(button.Handle(), WM_KEYDOWN, VK_RETURN);
    Send(button.Handle(), WM_KEYDOWN, VK_RETURN, kRepeated);

    EXPECT_EQ(host.CommandCount(kId, BN_CLICKED), 1);
}

TEST_F(AppOdbHelper, IsNotHotWhileDisabledNorRightAfter) {
    Enter(button);

    ::EnableWindow(button.Handle(), FALSE);
    EXPECT_FALSE(button.Hot());

    SendMouse(button.Handle(), WM_MOUSEMOVE, {1, 1});
    ::EnableWindow(button.Handle(), TRUE);
    EXPECT_FALSE(button.Hot());
}

TEST_F(AppOdbHelper, OpensItsThemeOnCreationAndAgainWhenTheThemeChanges) {
    EXPECT_EQ(button.themesOpened, 1);
    EXPECT_TRUE(static_cast<bool>(button.CurrentTheme()));

    Send(button.Handle(), WM_THEMECHANGED);

    EXPECT_EQ(button.themesOpened, 2);
    EXPECT_TRUE(static_cast<bool>(button.CurrentTheme()));
}

TEST_F(AppOdbHelper, HasNoThemeLeftWhenItsWindowIsGone) {
    ::DestroyWindow(button.Handle());

    EXPECT_FALSE(static_cast<bool>(button.CurrentTheme()));
    EXPECT_EQ(button.Handle(), nullptr);
}

TEST_F(AppOdbHelper, LeavesTheDeviceContextAsItWas) {
    const test::Canvas canvas{{40, 32}};
    ::SetTextColor(canvas.Dc(), kRed);
    const HGDIOBJ font = ::GetCurrentObject(canvas.Dc(), OBJ_FONT);
    DRAWITEMSTRUCT item{};
    item.hwndItem = button.Handle();
    item.hDC = canvas.Dc();
    item.rcItem = {0, 0, 40, 32};

    Send(Host(), WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&item));

    EXPECT_EQ(::GetTextColor(canvas.Dc()), kRed);
    EXPECT_EQ(::GetCurrentObject(canvas.Dc(), OBJ_FONT), font);
}

TEST_F(AppOdbHelper, PaintsNothingIntoAnEmptyRectangle) {
    DRAWITEMSTRUCT item{};
    item.hwndItem = button.Handle();
    item.itemState = ODS_SELECTED;

    EXPECT_NE(Send(Host(), WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&item)), 0);

    EXPECT_FALSE(button.facts.pressed);
}

// What stands in the tooltip for the button.
struct Tool {
    UINT flags = 0;
    HWND window = nullptr;
    UINT_PTR id = 0;
    std::wstring text;
};

Tool OnlyTool(HWND tip) {
    TTTOOLINFOW info{};
    info.cbSize = sizeof info;
    wchar_t text[200] = L"";
    info.lpszText = text;
    if (::SendMessageW(tip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&info)) == 0) return {};
    return {info.uFlags, info.hwnd, info.uId, text};
}

TEST_F(AppOdbHelper, IsNamedByATooltipWithTheTextOfItsWindow) {
    const HWND tip = button.TipWindow();

    ASSERT_EQ(Send(tip, TTM_GETTOOLCOUNT), 1);
    const Tool tool = OnlyTool(tip);
    EXPECT_EQ(tool.text, L"名前");
    EXPECT_EQ(tool.window, Host());
    EXPECT_EQ(tool.id, reinterpret_cast<UINT_PTR>(button.Handle()));
    EXPECT_EQ(tool.flags & (TTF_IDISHWND | TTF_SUBCLASS), UINT{TTF_IDISHWND | TTF_SUBCLASS});
    EXPECT_EQ(::GetWindow(tip, GW_OWNER), Host());
}

TEST_F(AppOdbHelper, TakesAnotherTooltipTextAtAnyTime) {
    button.SetTip(L"別の名前");

    EXPECT_EQ(OnlyTool(button.TipWindow()).text, L"別の名前");
}

TEST_F(AppOdbHelper, TakesTheTooltipTextThatWasSetBeforeItsCreation) {
    ProbeButton other;
    other.SetTip(L"先");
    Put(other, {50, 0, 90, 32}, kId + 1, L"後");

    EXPECT_EQ(OnlyTool(other.TipWindow()).text, L"先");
}

TEST_F(AppOdbHelper, TakesItsTooltipWithIt) {
    const HWND tip = button.TipWindow();
    ASSERT_TRUE(::IsWindow(tip));

    ::DestroyWindow(button.Handle());

    EXPECT_FALSE(::IsWindow(tip));
}

} // namespace
} // namespace korvane::controls
