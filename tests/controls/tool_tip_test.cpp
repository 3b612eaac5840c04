#include "controls/tool_tip_helper.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/tool_button.h"
#include "controls/tool_tip_rest.h"
#include "framework/message_loop.h"
#include "tests/controls/bar_button_test.h"
#include "tests/support/wait.h"

namespace korvane::controls {
namespace {

// A tool of a tooltip as it is asked for at a point.
struct Found {
    UINT flags = 0;
    base::Rect place;
    std::wstring text;
};

class ToolTips : public BarButtonTest {
protected:
    void SetUp() override {
        BarButtonTest::SetUp();
        Put(button, {10, 5, 32, 27}, 2005, L"実行");
    }
    [[nodiscard]] std::vector<Found> Tools() const {
        std::vector<Found> tools;
        const LRESULT count = Send(button.TipWindow(), TTM_GETTOOLCOUNT);
        for (LRESULT i = 0; i < count; ++i) {
            wchar_t text[100]{};
            TTTOOLINFOW tool{};
            tool.cbSize = sizeof tool;
            tool.lpszText = text;
            Send(button.TipWindow(), TTM_ENUMTOOLSW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&tool));
            tools.push_back({tool.uFlags, fw::FromWindows(tool.rect), text});
        }
        return tools;
    }

    CToolButton button;
};

TEST_F(ToolTips, StandForAGreyedButtonInItsPlaceOnTheBar) {
    ::EnableWindow(button.Handle(), FALSE);

    const std::vector<Found> tools = Tools();
    ASSERT_EQ(tools.size(), 2U);
    EXPECT_FALSE(tools[1].flags & TTF_IDISHWND);
    EXPECT_EQ(tools[1].place, (base::Rect{10, 5, 32, 27}));
    EXPECT_EQ(tools[1].text, L"実行");
}

TEST_F(ToolTips, LeaveThePlaceWhenTheButtonCanBePressedAgain) {
    ::EnableWindow(button.Handle(), FALSE);
    ::EnableWindow(button.Handle(), TRUE);

    EXPECT_EQ(Tools().size(), 1U);
}

TEST_F(ToolTips, StandForAButtonThatWasCreatedGreyed) {
    CToolButton greyed;
    ASSERT_TRUE(greyed.Create({.text = L"検索",
                               .rect = {50, 5, 72, 27},
                               .style = WS_CHILD | WS_VISIBLE | WS_DISABLED,
                               .parent = Host(),
                               .id = 2006}));
    Pump();

    EXPECT_EQ(Send(greyed.TipWindow(), TTM_GETTOOLCOUNT), 2);
}

TEST_F(ToolTips, FollowAGreyedButtonThatIsMoved) {
    ::EnableWindow(button.Handle(), FALSE);

    ::SetWindowPos(button.Handle(), nullptr, 100, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER);

    ASSERT_EQ(Tools().size(), 2U);
    EXPECT_EQ(Tools()[1].place, (base::Rect{100, 5, 122, 27}));
}

TEST_F(ToolTips, TellANewTextOfAGreyedButtonToo) {
    ::EnableWindow(button.Handle(), FALSE);

    button.SetTip(L"別");

    ASSERT_EQ(Tools().size(), 2U);
    EXPECT_EQ(Tools()[0].text, L"別");
    EXPECT_EQ(Tools()[1].text, L"別");
}

// A real mouse over each of two greyed buttons in turn.
TEST_F(ToolTips, ComeForEveryGreyedButton) {
    CToolButton other;
    Put(other, {50, 5, 72, 27}, 2006, L"検索");
    ::ShowWindow(Host(), SW_SHOW);
    ::SetForegroundWindow(Host());
    for (const CToolButton* const one : {&button, &other}) {
        ::EnableWindow(one->Handle(), FALSE);
        Send(one->TipWindow(), TTM_SETDELAYTIME, TTDT_INITIAL, 20);
    }
    for (const CToolButton* const one : {&button, &other}) {
        const base::Rect place = fw::WindowRect(one->Handle());
        ::SetCursorPos(place.left + 8, place.top + 8);
        POINT at{place.left + 8, place.top + 8};
        ::ScreenToClient(Host(), &at);

        SendMouse(Host(), WM_MOUSEMOVE, at);

        EXPECT_TRUE(test::WaitUntil([&] {
            Pump();
            return ::IsWindowVisible(one->TipWindow()) != FALSE;
        }));
    }
}

TEST_F(ToolTips, LetGoOfTheBarWithTheButton) {
    ::EnableWindow(button.Handle(), FALSE);

    ::DestroyWindow(button.Handle());

    SendMouse(Host(), WM_MOUSEMOVE, {15, 15});
    EXPECT_EQ(button.TipWindow(), nullptr);
}

// The mouse is over a place of the bar that has a tooltip.
class ToolTipRestTest : public ToolTips {
protected:
    void SetUp() override {
        ToolTips::SetUp();
        ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
        rest.Watch(loop, Host());
        place = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_NOTIFY, 100, 100, 200, 100, Host(),
                                  nullptr, nullptr, nullptr);
        tip = ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, TTS_ALWAYSTIP, 0, 0, 0, 0, Host(), nullptr, nullptr,
                                nullptr);
        Send(tip, TTM_SETDELAYTIME, TTDT_INITIAL, 20);
        std::wstring text = L"説明";
        TTTOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = Host();
        tool.uId = reinterpret_cast<UINT_PTR>(place);
        tool.lpszText = text.data();
        Send(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    void TearDown() override { ::DestroyWindow(tip); }

    // As Windows tells of it, to a mouse that has moved since the last time.
    void MoveMouse() {
        const base::Rect over = fw::WindowRect(place);
        ++moves;
        ::SetCursorPos(over.left + 50 + moves, over.top + 50);
        Arrive(WM_MOUSEMOVE);
    }
    void Arrive(UINT message) {
        POINT at{};
        ::GetCursorPos(&at);
        POINT inside = at;
        ::ScreenToClient(place, &inside);
        loop.Process({place, message, 0, MAKELPARAM(inside.x, inside.y), 0, at});
    }
    [[nodiscard]] bool Shown() const { return ::IsWindowVisible(tip) != FALSE; }
    void LetItCome() {
        MoveMouse();
        ASSERT_TRUE(test::WaitUntil([this] {
            Pump();
            return Shown();
        }));
    }
    // Long enough for every delay: a timer that was set afterwards has run out.
    void LetTimePass() {
        ::SetTimer(Host(), 1, 200, nullptr);
        MSG tick{};
        while (::GetMessageW(&tick, nullptr, 0, 0) > 0 && !(tick.message == WM_TIMER && tick.hwnd == Host()))
            ::DispatchMessageW(&tick);
        ::KillTimer(Host(), 1);
    }

    fw::MessageLoop loop;
    ToolTipRest rest;
    HWND place = nullptr;
    HWND tip = nullptr;
    int moves = 0;
};

TEST_F(ToolTipRestTest, HidesATooltipWithAKey) {
    for (const UINT key : {WM_KEYDOWN, WM_SYSKEYDOWN, WM_HOTKEY, WM_MOUSEWHEEL}) {
        LetItCome();

        Arrive(key);

        EXPECT_FALSE(Shown()) << key;
    }
}

TEST_F(ToolTipRestTest, HidesATooltipWhenSomethingOpens) {
    LetItCome();

    rest.Begin();

    EXPECT_FALSE(Shown());
}

TEST_F(ToolTipRestTest, KeepsOneFromComingWhoseDelayHasBegun) {
    MoveMouse();

    Arrive(WM_KEYDOWN);
    LetTimePass();

    EXPECT_FALSE(Shown());
}

TEST_F(ToolTipRestTest, LetsThemComeAgainWhenTheMouseMoves) {
    LetItCome();
    Arrive(WM_KEYDOWN);
    // A mouse move that tells of no new place.
    Arrive(WM_MOUSEMOVE);
    LetTimePass();
    EXPECT_FALSE(Shown());

    LetItCome();
}

TEST_F(ToolTipRestTest, LeavesTheTooltipsOfOtherWindowsAlone) {
    rest.Watch(loop, button.Handle());
    LetItCome();

    rest.Begin();

    EXPECT_TRUE(Shown());
}

TEST_F(ToolTipRestTest, HearsOfAKeyThatAnEarlierFilterTakes) {
    struct TakeAll final : fw::MessageFilter {
        bool PreTranslate(const MSG&) override { return true; }
    } takeAll;
    LetItCome();
    const auto first = loop.Add(takeAll);
    ToolTipRest last;
    last.Watch(loop, Host());

    Arrive(WM_KEYDOWN);

    EXPECT_FALSE(Shown());
}

TEST_F(ToolTipRestTest, LetsEveryMessageGoOn) {
    host.sent.clear();

    loop.Process({Host(), WM_COMMAND, MAKEWPARAM(77, 5), 0, 0, {}});

    EXPECT_EQ(host.CommandCount(77, 5), 1);
}

} // namespace
} // namespace korvane::controls
