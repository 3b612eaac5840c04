#include "controls/menu_bar_button.h"

#include <algorithm>

#include "controls/drop_down_button.h"
#include "controls/korvane_button.h"
#include "controls/text_drop_button.h"
#include "res/ids.h"
#include "tests/controls/bar_button_test.h"

namespace korvane::controls {
namespace {

constexpr UINT kChosen = ID_ABOUT;

class MenuButton : public BarButtonTest {
protected:
    void SetUp() override {
        BarButtonTest::SetUp();
        Put(button, {4, 0, 124, 32}, ID_MAIN_MENU);
        TakeThemeAway(button);
        host.sent.clear();
    }
    [[nodiscard]] std::wstring PopupBelow(int popup, const RECT& r) const {
        const base::Rect at = fw::WindowRect(Host());
        return base::FormatText(L"popup %d flags 322 at %d,%d; ", popup, at.left + static_cast<int>(r.left),
                                at.top + static_cast<int>(r.bottom));
    }
    void Press() { SendMouse(button.Handle(), WM_LBUTTONDOWN, {5, 5}, MK_LBUTTON); }

    CKorvaneButton button{bar};
};

TEST_F(MenuButton, OpensItsMenuAfterThePressAndBelowItself) {
    Press();
    EXPECT_TRUE(button.MenuShown());
    EXPECT_EQ(bar.log, L"");

    Pump();

    EXPECT_EQ(bar.log, PopupBelow(POPUP_MAIN, {4, 0, 124, 32}));
    EXPECT_FALSE(button.MenuShown());
}

TEST_F(MenuButton, PostsThePrivateMessageOnAPress) {
    Press();

    MSG posted{};
    EXPECT_TRUE(::PeekMessageW(&posted, button.Handle(), 32868, 32868, PM_REMOVE));
}

TEST_F(MenuButton, OpensItsMenuAboveItselfAtTheBottomOfTheScreen) {
    RECT work{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    ::SetWindowPos(Host(), nullptr, 10, static_cast<int>(work.bottom) - 32, 800, 32, SWP_NOZORDER | SWP_NOACTIVATE);

    Press();
    Pump();

    EXPECT_EQ(bar.log, base::FormatText(L"popup 0 flags 354 at 14,%d; ", static_cast<int>(work.bottom) - 32));
}

TEST_F(MenuButton, LooksPressedForAsLongAsTheMenuIsOpen) {
    COLORREF corner = 0;
    bool pushed = true;
    bar.whileOpen = [&] {
        pushed = (Send(button.Handle(), BM_GETSTATE) & BST_PUSHED) != 0;
        corner = Paint(button).Pixel(0, 0);
    };

    Click(button.Handle());
    Pump();

    EXPECT_FALSE(pushed);
    EXPECT_EQ(corner, Plate(ButtonState::kPressed));
    EXPECT_EQ(Paint(button).Pixel(0, 0), Ground());
}

TEST_F(MenuButton, IsRedrawnWhenTheMenuCloses) {
    ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
    ::UpdateWindow(button.Handle());
    bar.whileOpen = [&] {
        ::UpdateWindow(button.Handle());
        host.sent.clear();
    };

    Press();
    Send(button.Handle(), kOpenMenuMessage);

    EXPECT_EQ(host.DrawCount(ID_MAIN_MENU), 1);
}

TEST_F(MenuButton, LetsGoOfTheMouseBeforeTheMenuOpens) {
    HWND captured = button.Handle();
    bar.whileOpen = [&] { captured = ::GetCapture(); };

    Press();
    Pump();

    EXPECT_EQ(captured, nullptr);
}

TEST_F(MenuButton, PostsTheChosenCommandToItsParentAndNothingElse) {
    bar.answer = kChosen;
    LPARAM from = 1;
    host.answer = [&](const fw::Message& m) -> fw::Reply {
        if (m.id == WM_COMMAND) from = m.lparam;
        return fw::kPassOn;
    };

    Click(button.Handle());
    EXPECT_EQ(host.CommandCount(kChosen, 0), 0);
    Pump();

    EXPECT_EQ(host.CommandCount(kChosen, 0), 1);
    EXPECT_EQ(from, 0);
    EXPECT_EQ(host.CommandCount(ID_MAIN_MENU, BN_CLICKED), 0);
}

TEST_F(MenuButton, PostsNothingWhenNothingWasChosen) {
    Click(button.Handle());
    Pump();

    EXPECT_TRUE(
        std::none_of(host.sent.begin(), host.sent.end(), [](const auto& m) { return m.message == WM_COMMAND; }));
}

TEST_F(MenuButton, ReportsNoClickWhenTheMouseIsLetGoAfterTheMenu) {
    Press();
    Pump();
    SendMouse(button.Handle(), WM_LBUTTONUP, {5, 5});

    EXPECT_EQ(host.CommandCount(ID_MAIN_MENU, BN_CLICKED), 0);
}

TEST_F(MenuButton, OpensByTheSpaceBarByEnterAndByBmClick) {
    Send(button.Handle(), WM_KEYDOWN, VK_SPACE);
    Pump();
    Send(button.Handle(), WM_KEYUP, VK_SPACE);
    EXPECT_EQ(bar.log, PopupBelow(POPUP_MAIN, {4, 0, 124, 32}));

    bar.log.clear();
    Send(button.Handle(), WM_KEYDOWN, VK_RETURN);
    Pump();
    EXPECT_EQ(bar.log, PopupBelow(POPUP_MAIN, {4, 0, 124, 32}));

    bar.log.clear();
    Send(button.Handle(), BM_CLICK);
    Pump();
    EXPECT_EQ(bar.log, PopupBelow(POPUP_MAIN, {4, 0, 124, 32}));
    EXPECT_EQ(host.CommandCount(ID_MAIN_MENU, BN_CLICKED), 0);
}

TEST_F(MenuButton, OpensOnceByAKeyThatIsHeld) {
    constexpr LPARAM kRepeated = LPARAM{KF_REPEAT} << 16;

    Send(button.Handle(), WM_KEYDOWN, VK_SPACE);
    Send(button.Handle(), WM_KEYDOWN, VK_SPACE, kRepeated);
    Pump();

    EXPECT_EQ(bar.log, PopupBelow(POPUP_MAIN, {4, 0, 124, 32}));
}

// A dialog manager sends the click in the button's name.
TEST_F(MenuButton, OpensOnAClickThatTheButtonItselfDidNotMake) {
    Send(Host(), WM_COMMAND, MAKEWPARAM(ID_MAIN_MENU, BN_CLICKED), reinterpret_cast<LPARAM>(button.Handle()));
    Pump();

    EXPECT_EQ(bar.log, PopupBelow(POPUP_MAIN, {4, 0, 124, 32}));
}

TEST_F(MenuButton, StaysShutWhileDisabled) {
    ::EnableWindow(button.Handle(), FALSE);

    Press();
    Send(button.Handle(), WM_KEYDOWN, VK_SPACE);
    Send(button.Handle(), BM_CLICK);
    Pump();

    EXPECT_EQ(bar.log, L"");
    EXPECT_FALSE(button.MenuShown());
}

TEST_F(MenuButton, OpensNoSecondMenuWhileOneIsOpen) {
    bar.whileOpen = [&] { Send(button.Handle(), kOpenMenuMessage); };

    Press();
    Pump();

    EXPECT_EQ(bar.log, PopupBelow(POPUP_MAIN, {4, 0, 124, 32}));
}

TEST_F(MenuButton, IsShutAndNotOpenedAgainByThePressThatClosedItsMenu) {
    bool pressed = false;
    bar.whileOpen = [&] {
        if (!pressed) ::PostMessageW(button.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
        pressed = true;
    };

    Press();
    Pump();

    EXPECT_EQ(bar.log, PopupBelow(POPUP_MAIN, {4, 0, 124, 32}));
    EXPECT_FALSE(button.MenuShown());
}

TEST_F(MenuButton, KeepsTheEndOfTheProgramThatWasAskedForWhileItsMenuWasOpen) {
    bar.whileOpen = [] { ::PostQuitMessage(3); };

    Press();

    EXPECT_EQ(Pump(), 3);
}

TEST_F(MenuButton, SurvivesThatTheBarIsClosedWhileItsMenuIsOpen) {
    bar.answer = kChosen;
    bar.whileOpen = [&] { ::DestroyWindow(button.Handle()); };

    Press();
    Pump();

    EXPECT_EQ(host.CommandCount(kChosen, 0), 0);
}

class TextDropMenu : public MenuButton {};

TEST_F(TextDropMenu, IsTheSearchMenuForTheSearchCommandChooser) {
    CTextDropButton chooser{bar};
    Put(chooser, {200, 5, 340, 27}, ID_SEARCH_CHOOSER);

    Click(chooser.Handle());
    Pump();

    EXPECT_EQ(bar.log, PopupBelow(POPUP_SEARCH, {200, 5, 340, 27}));
}

TEST_F(TextDropMenu, IsTheControlPanelMenuForAnyOtherButton) {
    CTextDropButton controlPanel{bar};
    Put(controlPanel, {400, 0, 530, 32}, ID_CONTROL_PANEL);

    Send(Host(), WM_COMMAND, MAKEWPARAM(ID_CONTROL_PANEL, BN_CLICKED), reinterpret_cast<LPARAM>(controlPanel.Handle()));
    Pump();

    EXPECT_EQ(bar.log, PopupBelow(POPUP_CONTROL_PANEL, {400, 0, 530, 32}));
}

class HistoryDropButton : public BarButtonTest {
protected:
    void SetUp() override {
        BarButtonTest::SetUp();
        host.ground = kWhite;
        Put(button, {100, 6, 115, 26}, ID_COMMAND_HISTORY);
        TakeThemeAway(button);
        host.sent.clear();
    }

    CDropDownButton button;
};

TEST_F(HistoryDropButton, AsksItsParentToOpenOnceForOnePress) {
    LPARAM from = 0;
    host.answer = [&](const fw::Message& m) -> fw::Reply {
        if (m.id == WM_COMMAND) from = m.lparam;
        return fw::kPassOn;
    };

    Click(button.Handle());
    EXPECT_EQ(host.CommandCount(ID_COMMAND_HISTORY, BN_CLICKED), 0);
    Pump();

    EXPECT_EQ(host.CommandCount(ID_COMMAND_HISTORY, BN_CLICKED), 1);
    EXPECT_EQ(from, reinterpret_cast<LPARAM>(button.Handle()));
}

TEST_F(HistoryDropButton, LooksPressedUntilItsParentSaysThatThePopUpIsGone) {
    Click(button.Handle());
    Pump();
    EXPECT_EQ(Paint(button).Pixel(0, 0), Plate(ButtonState::kPressed));

    button.SetMenuShown(false);
    EXPECT_EQ(Paint(button).Pixel(0, 0), Ground());
}

TEST_F(HistoryDropButton, OpensByTheSpaceBar) {
    Send(button.Handle(), WM_KEYDOWN, VK_SPACE);
    Pump();
    Send(button.Handle(), WM_KEYUP, VK_SPACE);

    EXPECT_EQ(host.CommandCount(ID_COMMAND_HISTORY, BN_CLICKED), 1);
    EXPECT_TRUE(button.MenuShown());
}

TEST_F(HistoryDropButton, ShowsPressedAtOnceWhenItIsOpenedFromElsewhere) {
    ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
    ::UpdateWindow(button.Handle());
    host.sent.clear();

    button.ShowPressed();

    EXPECT_EQ(host.DrawCount(ID_COMMAND_HISTORY), 1);
    EXPECT_EQ(Paint(button).Pixel(0, 0), Plate(ButtonState::kPressed));
    EXPECT_EQ(host.CommandCount(ID_COMMAND_HISTORY, BN_CLICKED), 0);
}

TEST_F(HistoryDropButton, LetsItsParentDestroyItWhileItAsks) {
    host.answer = [&](const fw::Message& m) -> fw::Reply {
        if (m.id == WM_COMMAND) ::DestroyWindow(button.Handle());
        return fw::kPassOn;
    };

    Click(button.Handle());
    Pump();

    EXPECT_EQ(button.Handle(), nullptr);
}

} // namespace
} // namespace korvane::controls
