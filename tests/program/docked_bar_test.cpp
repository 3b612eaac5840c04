// The bar at an edge of the screen: its place, its mode and what it gives back when it leaves.

#include "tests/program/docked_bar.h"

namespace korvane::test {
namespace {

using testing::HasSubstr;

TEST_F(DockedBar, StandsAtTheTopAndTakesItsStripFromTheWorkArea) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(PlaceIn(bar, TopOf(besideTaskBar_)), TopOf(besideTaskBar_));
    EXPECT_EQ(Text(shell_.ReservedBy(bar)), TopOf(besideTaskBar_));
    EXPECT_EQ(WorkArea().top, kBarPx);
    EXPECT_EQ(shell_.Steps(), "NEW QUERYPOS SETPOS");
}

TEST_F(DockedBar, StandsThereWhateverStateItsShortcutAsksFor) {
    for (const WORD showCommand : {WORD{SW_SHOWMINNOACTIVE}, WORD{SW_SHOWMAXIMIZED}, WORD{SW_HIDE}}) {
        const Program program{{.showCommand = showCommand}};
        const HWND bar = program.WaitForBar();
        ASSERT_NE(bar, nullptr) << showCommand;

        EXPECT_EQ(PlaceIn(bar, TopOf(screen_)), TopOf(screen_)) << showCommand;
        EXPECT_FALSE(::IsIconic(bar)) << showCommand;
        EXPECT_FALSE(::IsZoomed(bar)) << showCommand;
        Close(bar);
        EXPECT_EQ(program.WaitForExit(), 0U) << showCommand;
    }
}

TEST_F(DockedBar, IsABareToolWindow) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    const LONG style = ::GetWindowLongW(bar, GWL_STYLE);
    const LONG extended = ::GetWindowLongW(bar, GWL_EXSTYLE);
    EXPECT_EQ(style & (WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX), 0);
    constexpr DWORD kDocked = WS_POPUP | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    EXPECT_EQ(static_cast<DWORD>(style) & kDocked, kDocked);
    EXPECT_EQ(extended & (WS_EX_TOOLWINDOW | WS_EX_APPWINDOW), WS_EX_TOOLWINDOW);
}

TEST_F(DockedBar, IsTopmostFromTheStart) {
    for (const DWORD hides : {DWORD{0}, DWORD{1}}) {
        WriteSetting(kSettings, L"DesktopBarAutoHide", hides);
        const Program program;
        const HWND bar = program.WaitForBar();
        ASSERT_NE(bar, nullptr) << hides;

        EXPECT_TRUE(WaitUntil([&] { return (::GetWindowLongW(bar, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; })) << hides;

        Close(bar);
        EXPECT_EQ(program.WaitForExit(), 0U) << hides;
    }
}

TEST_F(DockedBar, StandsAboveTheTaskBarAtTheBottom) {
    DockAtTheBottom();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(PlaceIn(bar, BottomOf(besideTaskBar_)), BottomOf(besideTaskBar_));
    EXPECT_EQ(WorkArea().bottom, height_ - FakeShell::kTaskBarPx - kBarPx);
}

TEST_F(DockedBar, StandsBelowATaskBarAtTheTop) {
    shell_.MoveTaskBar(ABE_TOP);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    const RECT free{0, FakeShell::kTaskBarPx, width_, height_};
    EXPECT_EQ(PlaceIn(bar, TopOf(free)), TopOf(free));
}

TEST_F(DockedBar, StandsBesideATaskBarAtTheSide) {
    shell_.MoveTaskBar(ABE_LEFT, 60);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    const RECT free{60, 0, width_, height_};
    EXPECT_EQ(PlaceIn(bar, TopOf(free)), TopOf(free));
}

TEST_F(DockedBar, StandsBesideABarOfAnotherProgram) {
    shell_.ReserveStrip(ABE_TOP, 50);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    const RECT free{0, 50, width_, height_};
    EXPECT_EQ(PlaceIn(bar, TopOf(free)), TopOf(free));
}

TEST_F(DockedBar, StandsAtTheEdgeAlthoughTheShellRefusesIt) {
    shell_.RefuseRegistrations();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(PlaceIn(bar, TopOf(besideTaskBar_)), TopOf(besideTaskBar_));
    EXPECT_FALSE(program.ShowsBox());
    Close(bar);
    EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(DockedBar, FloatsAndDocksAgainOnCommand) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kToggleMode);
    ASSERT_TRUE(WaitUntilItFloats(bar));
    EXPECT_EQ(Text(WorkArea()), Text(besideTaskBar_));
    EXPECT_FALSE(shell_.Registered(bar));
    EXPECT_EQ(::GetWindowLongW(bar, GWL_EXSTYLE) & (WS_EX_TOOLWINDOW | WS_EX_APPWINDOW), WS_EX_APPWINDOW);

    Command(bar, kToggleMode);
    EXPECT_EQ(PlaceIn(bar, TopOf(besideTaskBar_)), TopOf(besideTaskBar_));
    EXPECT_FALSE(Floats(bar));
    EXPECT_EQ(WorkArea().top, kBarPx);
}

TEST_F(DockedBar, FloatsWithItsKey) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kCommandBox)));

    PressKeys({VK_CONTROL, VK_SHIFT, 'A'});

    EXPECT_TRUE(WaitUntilItFloats(bar));
}

TEST_F(DockedBar, FloatsWhereItWasLeft) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kToggleMode);
    ASSERT_TRUE(WaitUntilItFloats(bar));

    RECT place{};
    ::GetWindowRect(bar, &place);
    EXPECT_EQ(place.left, kFloatingPlace[0]);
    EXPECT_EQ(place.top, kFloatingPlace[1]);
    EXPECT_EQ(place.right, kFloatingPlace[2]);
}

TEST_F(DockedBar, HasTheExitButtonOnlyWhileItIsDocked) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(::IsWindowVisible(Control(bar, kExit)));

    Command(bar, kToggleMode);
    ASSERT_TRUE(WaitUntilItFloats(bar));
    EXPECT_FALSE(::IsWindowVisible(Control(bar, kExit)));

    Command(bar, kToggleMode);
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowVisible(bar) && ::IsWindowVisible(Control(bar, kExit)); }));
}

TEST_F(DockedBar, EndsByItsExitButton) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Click(Control(bar, kExit));

    EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(DockedBar, IsNotDockedForAUserWhoDoesNotKeepPlacements) {
    WriteSetting(kPlacement, L"SaveWindowPlacement", DWORD{0});
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_TRUE(Floats(bar));
    EXPECT_EQ(shell_.Count("NEW"), 0);
    EXPECT_EQ(Text(WorkArea()), Text(besideTaskBar_));
}

TEST_F(DockedBar, TellsTheShellOfItsActivation) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    shell_.ClearLog();

    ::SendMessageW(bar, WM_ACTIVATE, WA_ACTIVE, 0);
    ::SendMessageW(bar, WM_ACTIVATE, WA_INACTIVE, 0);

    const auto told = shell_.Log("ACTIVATE");
    ASSERT_GE(told.size(), 2u);
    EXPECT_THAT(told[told.size() - 2], HasSubstr(" lparam 1 "));
    EXPECT_THAT(told.back(), HasSubstr(" lparam 0 "));
}

TEST_F(DockedBar, TellsTheShellOfItsMoves) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    shell_.ClearLog();

    ::SetWindowPos(bar, nullptr, 0, 3, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);

    EXPECT_TRUE(WaitForCount("WINDOWPOSCHANGED", 1));
}

TEST_F(DockedBar, TellsTheShellNothingWhileItFloats) {
    WriteSetting(kPlacement, L"DefaultDesktopBarMode", DWORD{0});
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    ::SendMessageW(bar, WM_ACTIVATE, WA_ACTIVE, 0);
    ::SetWindowPos(bar, nullptr, 90, 300, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    ASSERT_TRUE(WaitUntilIdle(bar));

    EXPECT_EQ(shell_.Count("ACTIVATE"), 0);
    EXPECT_EQ(shell_.Count("WINDOWPOSCHANGED"), 0);
}

TEST_F(DockedBar, KeepsItsModeAndTheFloatingPlaceForTheNextStart) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);

    EXPECT_EQ(ReadNumber(kPlacement, L"DefaultDesktopBarMode"), 1u);
    const auto saved = ReadRect(kPlacement, L"WindowPosRect");
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->left, kFloatingPlace[0]);
    EXPECT_EQ(saved->top, kFloatingPlace[1]);
    EXPECT_EQ(saved->right, kFloatingPlace[2]);
}

TEST_F(DockedBar, KeepsThatItFloatsForTheNextStart) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kToggleMode);
    ASSERT_TRUE(WaitUntilItFloats(bar));

    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);

    EXPECT_EQ(ReadNumber(kPlacement, L"DefaultDesktopBarMode"), 0u);
}

// ---- Leaving

class LeavingTheEdge : public DockedBar {
protected:
    void ExpectEverythingGivenBack(HWND bar) const {
        EXPECT_FALSE(shell_.Registered(bar));
        EXPECT_EQ(shell_.Count("gone"), 0) << "the shell had to find it out by itself";
        EXPECT_EQ(Text(WorkArea()), Text(besideTaskBar_));
    }
};

TEST_F(LeavingTheEdge, ByClosingGivesTheStripBack) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    shell_.ClearLog();

    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);

    EXPECT_EQ(shell_.Steps(), "REMOVE");
    ExpectEverythingGivenBack(bar);
}

TEST_F(LeavingTheEdge, LetsGoOfAutoHideFirst) {
    HideAutomatically();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(shell_.AutoHideOwner(ABE_TOP), bar);
    shell_.ClearLog();

    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);

    EXPECT_EQ(shell_.Steps(), "SETAUTOHIDEBAR(0) REMOVE");
    EXPECT_EQ(shell_.AutoHideOwner(ABE_TOP), nullptr);
    ExpectEverythingGivenBack(bar);
}

TEST_F(LeavingTheEdge, WithTheSessionGivesTheStripBack) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    shell_.ClearLog();

    ::SendMessageW(bar, WM_ENDSESSION, TRUE, 0);

    EXPECT_EQ(shell_.Steps(), "REMOVE");
    EXPECT_EQ(ReadNumber(kPlacement, L"DefaultDesktopBarMode"), 1u);
    ExpectEverythingGivenBack(bar);
}

TEST_F(LeavingTheEdge, WithTheSessionLetsGoOfAutoHideFirst) {
    HideAutomatically();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(shell_.AutoHideOwner(ABE_TOP), bar);
    shell_.ClearLog();

    ::SendMessageW(bar, WM_ENDSESSION, TRUE, 0);

    EXPECT_EQ(shell_.Steps(), "SETAUTOHIDEBAR(0) REMOVE");
    ExpectEverythingGivenBack(bar);
}

TEST_F(LeavingTheEdge, ASessionThatGoesOnKeepsTheStrip) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    shell_.ClearLog();

    ::SendMessageW(bar, WM_ENDSESSION, FALSE, 0);

    EXPECT_EQ(shell_.Steps(), "");
    EXPECT_TRUE(shell_.Registered(bar));
}

TEST_F(LeavingTheEdge, WithoutClosingGivesTheStripBackToo) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    ::PostThreadMessageW(::GetWindowThreadProcessId(bar, nullptr), WM_QUIT, 0, 0);
    ASSERT_TRUE(program.WaitForExit());

    ExpectEverythingGivenBack(bar);
}

TEST_F(LeavingTheEdge, ByACrashGivesTheStripBackToo) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    // A thread that begins where no code is.
    const fw::UniqueKernelHandle process{::OpenProcess(PROCESS_ALL_ACCESS, FALSE, program.Id())};
    const auto nowhere = reinterpret_cast<LPTHREAD_START_ROUTINE>(UINT_PTR{0x10});
    const fw::UniqueKernelHandle thread{::CreateRemoteThread(process.Get(), nullptr, 0, nowhere, nullptr, 0, nullptr)};
    ASSERT_TRUE(thread);
    ASSERT_TRUE(program.WaitForExit());

    ExpectEverythingGivenBack(bar);
}

TEST_F(LeavingTheEdge, WaitsForAnAnswerThatSaysYes) {
    WriteSetting(kSettings, L"ConfirmExitApp", DWORD{0});
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Close(bar);
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);

    ASSERT_TRUE(box.Press(IDNO));

    EXPECT_TRUE(shell_.Registered(bar));
    EXPECT_EQ(shell_.Count("REMOVE"), 0);
    EXPECT_EQ(PlaceIn(bar, TopOf(besideTaskBar_)), TopOf(besideTaskBar_));
}

// ---- The floating bar's borders

class FloatingBar : public ProgramTest {
protected:
    static LRESULT HitTest(HWND bar, LONG x, LONG y) { return ::SendMessageW(bar, WM_NCHITTEST, 0, MAKELPARAM(x, y)); }
};

TEST_F(FloatingBar, IsMovedByItsTopBorderAndNeverMadeTaller) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    RECT place{};
    ::GetWindowRect(bar, &place);
    const LONG middle = (place.left + place.right) / 2;

    for (const LONG x : {place.left, middle, place.right - 1}) {
        EXPECT_EQ(HitTest(bar, x, place.top), HTCAPTION) << x;
        EXPECT_EQ(HitTest(bar, x, place.bottom - 1), HTCLIENT) << x;
    }
    const LONG beside = (place.top + place.bottom) / 2;
    EXPECT_EQ(HitTest(bar, place.left, beside), HTLEFT);
    EXPECT_EQ(HitTest(bar, place.right - 1, beside), HTRIGHT);
}

} // namespace
} // namespace korvane::test
