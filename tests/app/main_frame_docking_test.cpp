#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "framework/monitors.h"
#include "settings/logic/window_placement.h"
#include "tests/support/main_frame_fixture.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/message_count.h"
#include "tests/support/pump.h"

using namespace korvane;
namespace keys = settings::keys;

namespace {

class DockedFrameTest : public test::MainFrameTest {
protected:
    void StartDocked() {
        settings.Write(keys::SaveWindowPlacement, 1);
        settings.Write(keys::DefaultDesktopBarMode, 1);
    }
    [[nodiscard]] DWORD Style() { return static_cast<DWORD>(::GetWindowLongPtrW(Bar().Handle(), GWL_STYLE)); }
    [[nodiscard]] DWORD ExtendedStyle() { return static_cast<DWORD>(::GetWindowLongPtrW(Bar().Handle(), GWL_EXSTYLE)); }
    [[nodiscard]] bool Shown(int id) { return (::GetWindowLongPtrW(Child(id), GWL_STYLE) & WS_VISIBLE) != 0; }
    [[nodiscard]] std::vector<int> HiddenChildren() {
        std::vector<int> hidden;
        for (HWND child = ::GetWindow(Child(ID_MAIN_MENU), GW_HWNDFIRST); child;
             child = ::GetWindow(child, GW_HWNDNEXT))
            if (!Shown(::GetDlgCtrlID(child))) hidden.push_back(::GetDlgCtrlID(child));
        return hidden;
    }
    void Command(UINT id) { Send(WM_COMMAND, id); }

    static constexpr DWORD kFloatingOnly = WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
};

} // namespace

TEST_F(DockedFrameTest, IsABareToolWindowWhileDocked) {
    StartDocked();

    EXPECT_EQ(Style() & (kFloatingOnly | WS_POPUP), WS_POPUP);
    EXPECT_EQ(ExtendedStyle() & (WS_EX_TOOLWINDOW | WS_EX_APPWINDOW), DWORD{WS_EX_TOOLWINDOW});
    EXPECT_EQ(fw::ClientRect(Bar().Handle()).Height(), 32);
}

TEST_F(DockedFrameTest, IsAnOrdinaryWindowAgainWhenItFloats) {
    StartDocked();

    Command(ID_DESKTOP_BAR_MODE);

    EXPECT_EQ(Style() & (kFloatingOnly | WS_POPUP), kFloatingOnly);
    EXPECT_EQ(ExtendedStyle() & (WS_EX_TOOLWINDOW | WS_EX_APPWINDOW), DWORD{WS_EX_APPWINDOW});
    EXPECT_EQ(fw::ClientRect(Bar().Handle()).Height(), 32);
}

TEST_F(DockedFrameTest, SpansTheWorkAreaAtItsEdge) {
    StartDocked();
    settings.Write(keys::DesktopBarEdge, 1);

    const base::Rect place = fw::WindowRect(Bar().Handle());

    const base::Rect area = fw::WorkAreaOf(Bar().Handle());
    EXPECT_EQ(place, (base::Rect{area.left, area.bottom - 32, area.right, area.bottom}));
}

TEST_F(DockedFrameTest, HasItsExitButtonOnlyWhileDocked) {
    EXPECT_FALSE(Shown(ID_EXIT));

    Command(ID_DESKTOP_BAR_MODE);
    EXPECT_TRUE(Shown(ID_EXIT));

    Command(ID_DESKTOP_BAR_MODE);
    EXPECT_FALSE(Shown(ID_EXIT));
}

TEST_F(DockedFrameTest, GivesTheExitButtonItsPlaceOnlyWhileDocked) {
    SetClientWidth(1024);
    EXPECT_EQ(PlaceOf(ID_CONTROL_PANEL), "714,0-844,32");

    Command(ID_DESKTOP_BAR_MODE);

    const int width = fw::ClientRect(Bar().Handle()).Width();
    EXPECT_EQ(PlaceOf(ID_CONTROL_PANEL),
              std::to_string(width - 342) + ",0-" + std::to_string(width - 342 + 130) + ",32");
    EXPECT_EQ(PlaceOf(ID_EXIT), std::to_string(width - 25) + ",7-" + std::to_string(width - 7) + ",25");
}

TEST_F(DockedFrameTest, ComesBackToTheRectangleThatItFloatedAt) {
    Bar();
    ::SetWindowPos(Bar().Handle(), nullptr, 40, 50, 1100, 60, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    const base::Rect floating = fw::WindowRect(Bar().Handle());

    Command(ID_DESKTOP_BAR_MODE);
    Command(ID_DESKTOP_BAR_MODE);

    EXPECT_EQ(fw::WindowRect(Bar().Handle()), floating);
}

TEST_F(DockedFrameTest, ComesBackWithinReachWhereItsMonitorIsGone) {
    Bar();
    ::SetWindowPos(Bar().Handle(), nullptr, -9000, -9000, 1100, 60, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);

    Command(ID_DESKTOP_BAR_MODE);
    Command(ID_DESKTOP_BAR_MODE);

    const base::Rect place = fw::WindowRect(Bar().Handle());
    EXPECT_EQ(base::Intersection(place, fw::WorkAreas().front()), place);
}

TEST_F(DockedFrameTest, SavesItsModeAndTheRectangleThatItFloatedAt) {
    settings.Write(keys::SaveWindowPlacement, 1);
    settings.Write(keys::ConfirmExitApp, 1);
    Bar();
    ::SetWindowPos(Bar().Handle(), nullptr, 40, 50, 1100, 60, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    const base::Rect floating = fw::WindowRect(Bar().Handle());
    Command(ID_DESKTOP_BAR_MODE);

    Send(WM_CLOSE);

    EXPECT_EQ(settings.Read(keys::DefaultDesktopBarMode), 1);
    const auto bytes = settings.Read(keys::WindowPosRect);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(settings::DecodeRect(*bytes), floating);
}

TEST_F(DockedFrameTest, AMaximisedBarDocksLikeAnyOther) {
    Bar();
    ::ShowWindow(Bar().Handle(), SW_SHOWMAXIMIZED);

    Command(ID_DESKTOP_BAR_MODE);

    EXPECT_FALSE(::IsZoomed(Bar().Handle()));
    EXPECT_EQ(fw::WindowRect(Bar().Handle()).Height(), 32);
}

TEST_F(DockedFrameTest, AMinimisedBarDocksLikeAnyOther) {
    Bar();
    ::ShowWindow(Bar().Handle(), SW_SHOWMINNOACTIVE);

    Command(ID_DESKTOP_BAR_MODE);

    EXPECT_FALSE(::IsIconic(Bar().Handle()));
    EXPECT_EQ(fw::WindowRect(Bar().Handle()).Height(), 32);
}

TEST_F(DockedFrameTest, ItsCaptionLooksActiveWhileADialogOfItIs) {
    const fw::UniqueHandle<HWND, &::DestroyWindow> dialog{::CreateWindowExW(WS_EX_NOACTIVATE, L"STATIC", L"",
                                                                            WS_POPUP | WS_VISIBLE, 0, 0, 10, 10,
                                                                            Bar().Handle(), nullptr, nullptr, nullptr)};
    const test::MessageCount painted{Bar().Handle(), WM_NCACTIVATE};

    Send(WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(dialog.Get()));
    EXPECT_EQ(painted.Count(), 1);
    EXPECT_EQ(painted.LastWparam(), WPARAM{TRUE});

    Send(WM_ACTIVATEAPP, FALSE);
    EXPECT_EQ(painted.LastWparam(), WPARAM{FALSE}) << "with another program in front";
}

TEST_F(DockedFrameTest, HidesSevenControlsInItsStrip) {
    StartDocked();
    settings.Write(keys::DesktopBarAutoHide, 1);

    EXPECT_EQ(fw::WindowRect(Bar().Handle()).Height(), 1);
    EXPECT_EQ(HiddenChildren(), (std::vector{ID_MAIN_MENU, ID_CONTROL_PANEL, ID_LAUNCH_BUTTON_1, ID_LAUNCH_BUTTON_2,
                                             ID_LAUNCH_BUTTON_3, ID_OPTIONS, ID_HELP_CONTENTS, ID_CLOCK}));
}

TEST_F(DockedFrameTest, ShowsThemAgainOnTheWayOut) {
    StartDocked();
    settings.Write(keys::DesktopBarAutoHide, 1);
    Bar();

    Send(WM_HOTKEY, HOTKEY_SHOW_BAR);

    EXPECT_EQ(fw::WindowRect(Bar().Handle()).Height(), 32);
    EXPECT_EQ(HiddenChildren(), std::vector{ID_CLOCK}) << "which the settings do not show";
}

TEST_F(DockedFrameTest, HidesTheClockWithTheOthersWhileItIsShown) {
    StartDocked();
    settings.Write(keys::DesktopBarAutoHide, 1);
    settings.Write(keys::ShowTimeBarClock, 1);
    EXPECT_FALSE(Shown(ID_CLOCK));

    Send(WM_HOTKEY, HOTKEY_SHOW_BAR);

    EXPECT_TRUE(Shown(ID_CLOCK));
}

TEST_F(DockedFrameTest, StaysOutAfterARefusedQuestionUntilTheNextBoxHasBeenAnswered) {
    StartDocked();
    settings.Write(keys::DesktopBarAutoHide, 1);
    settings.Write(keys::LaunchMenuItem, 4, L"C:\\nowhere\\gone.exe, , ,notepad.exe,0,gone");
    Bar();
    // By the mouse: with the hot key the keyboard would come along and keep it out as well.
    Send(app::NotificationIcon::kMessage, 0, WM_LBUTTONDBLCLK);
    ::SetCursorPos(600, 400);
    {
        const test::MessageBoxAnswer answer{IDNO};
        Send(WM_COMMAND, ID_SIGN_OUT);
    }

    Send(WM_TIMER, 1);
    EXPECT_EQ(fw::WindowRect(Bar().Handle()).Height(), 32);

    {
        const test::MessageBoxAnswer answer{IDOK};
        Send(WM_COMMAND, ID_LAUNCH_FIRST);
        EXPECT_EQ(answer.Count(), 1);
    }
    Send(WM_TIMER, 1);
    EXPECT_EQ(fw::WindowRect(Bar().Handle()).Height(), 1);
}

TEST_F(DockedFrameTest, TogglesBeingOnTopOnlyWhileItFloats) {
    Command(ID_TOPMOST);
    EXPECT_EQ(settings.Read(keys::TopMostWindow), 1);
    Command(ID_TOPMOST);
    EXPECT_EQ(settings.Read(keys::TopMostWindow), 0);

    Command(ID_DESKTOP_BAR_MODE);
    Command(ID_TOPMOST);

    EXPECT_EQ(settings.Read(keys::TopMostWindow), 0);
}

TEST_F(DockedFrameTest, ForeignTimersDoNotMoveIt) {
    StartDocked();
    Bar();

    Send(WM_TIMER, 99);
    Send(WM_TIMER, 0);

    EXPECT_EQ(fw::WindowRect(Bar().Handle()).Height(), 32);
}

TEST_F(DockedFrameTest, ANarrowScreenEndsItWithAMessageAndWithoutAQuestion) {
    Bar();
    const test::MessageBoxAnswer answer{IDOK};

    Send(WM_DISPLAYCHANGE, 32, MAKELPARAM(1023, 768));

    EXPECT_EQ(answer.Caption(), L"Korvane");
    EXPECT_EQ(answer.Text(),
              L"Korvane は 横幅 1,024 ピクセル以上の画面解像度でご利用いただけます。\n\nKorvane を終了します。");
    EXPECT_EQ(test::PumpMessages(), 0) << "the exit code";
    EXPECT_EQ(answer.Count(), 1);
}

TEST_F(DockedFrameTest, AScreenOf1024PixelsIsWideEnough) {
    Bar();
    const test::MessageBoxAnswer answer{IDOK};

    Send(WM_DISPLAYCHANGE, 32, MAKELPARAM(1024, 768));

    EXPECT_EQ(test::PumpMessages(), std::nullopt);
    EXPECT_EQ(answer.Count(), 0);
}

TEST_F(DockedFrameTest, AScreenThatIsWideAgainBeforeTheAnswerLeavesNothingHalfDone) {
    StartDocked();
    Bar();
    const test::MessageBoxAnswer answer{IDOK};
    // Both arrive while the message is up.
    ::PostMessageW(Bar().Handle(), WM_DISPLAYCHANGE, 32, MAKELPARAM(1920, 1080));
    ::PostMessageW(Bar().Handle(), WM_DISPLAYCHANGE, 32, MAKELPARAM(800, 600));

    Send(WM_DISPLAYCHANGE, 32, MAKELPARAM(800, 600));

    EXPECT_EQ(fw::WindowRect(Bar().Handle()).Height(), 32) << "docked once more, until it closes as it said";
    EXPECT_EQ(test::PumpMessages(), 0);
    EXPECT_EQ(answer.Count(), 1);
}

// A window manager may hand the bar the foreground when it is shown again; the bar itself must not take it.
TEST_F(DockedFrameTest, LeavesTheActivationToTheWindowThatHasItWhenItDocksAgain) {
    StartDocked();
    ::ShowWindow(Bar().Handle(), SW_SHOWNA);
    const fw::UniqueHandle<HWND, &::DestroyWindow> other{
        ::CreateWindowExW(0, L"STATIC", L"other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 300, 300, 300, 200, nullptr,
                          nullptr, nullptr, nullptr)};
    ::SetActiveWindow(other.Get());
    ASSERT_EQ(::GetActiveWindow(), other.Get());

    Send(app::kShellMessage, ABN_STATECHANGE);

    EXPECT_TRUE(::IsWindowVisible(Bar().Handle()));
    EXPECT_EQ(::GetActiveWindow(), other.Get());
}
