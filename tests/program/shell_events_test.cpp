// What the docked bar does when the shell or the screen changes.

#include "tests/program/docked_bar.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;

constexpr UINT_PTR kRepositioning = 3; // the bar's timer
// Long enough for the bar to do what it must not do.
constexpr std::chrono::milliseconds kGrace{1500};

class ShellEvents : public DockedBar {
protected:
    // Starts with the bar at its place; null when it does not come.
    HWND WaitForDocked(const Program& program) const {
        const HWND bar = program.WaitForBar();
        return bar != nullptr && PlaceIn(bar, top_) == top_ && WaitUntilIdle(bar) ? bar : nullptr;
    }
    // Empties the log, so that what is counted was caused by what follows.
    HWND WaitForDockedAndForget(const Program& program) const {
        const HWND bar = WaitForDocked(program);
        shell_.ClearLog();
        return bar;
    }
    bool DockedAgain(HWND bar, int times) const {
        return WaitForCount("SETPOS", times) && PlaceIn(bar, top_) == top_ && WaitUntilIdle(bar);
    }

    const std::string top_ = TopOf(screen_);
};

TEST_F(ShellEvents, AChangedStateDocksTheBarAgain) {
    const Program program;
    const HWND bar = WaitForDockedAndForget(program);
    ASSERT_NE(bar, nullptr);

    shell_.Notify(ABN_STATECHANGE);

    ASSERT_TRUE(DockedAgain(bar, 1));
    EXPECT_EQ(shell_.Steps(), "REMOVE NEW QUERYPOS SETPOS");
    EXPECT_FALSE(Floats(bar));
    EXPECT_EQ(WorkArea().top, kBarPx);
}

TEST_F(ShellEvents, MovedBarsDockTheBarOnceHoweverManyReportIt) {
    const Program program;
    const HWND bar = WaitForDockedAndForget(program);
    ASSERT_NE(bar, nullptr);

    shell_.Notify(ABN_POSCHANGED);
    shell_.Notify(ABN_POSCHANGED);
    ASSERT_TRUE(DockedAgain(bar, 1));
    // Told after them, so that it is handled after them.
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);

    EXPECT_EQ(shell_.Count("SETPOS"), 1);
}

TEST_F(ShellEvents, TheBarListensAgainAfterAPause) {
    const Program program;
    const HWND bar = WaitForDockedAndForget(program);
    ASSERT_NE(bar, nullptr);
    shell_.Notify(ABN_POSCHANGED);
    ASSERT_TRUE(DockedAgain(bar, 1));

    ::PostMessageW(bar, WM_TIMER, kRepositioning, 0);
    shell_.Notify(ABN_POSCHANGED);

    EXPECT_TRUE(DockedAgain(bar, 2));
}

TEST_F(ShellEvents, TheBarMakesWayForATaskBarThatMoves) {
    const Program program;
    const HWND bar = WaitForDocked(program);
    ASSERT_NE(bar, nullptr);

    shell_.MoveTaskBar(ABE_TOP);

    const RECT free{0, FakeShell::kTaskBarPx, width_, height_};
    EXPECT_EQ(PlaceIn(bar, TopOf(free)), TopOf(free));
}

TEST_F(ShellEvents, TheBarTakesThePlaceOfATaskBarThatHides) {
    DockAtTheBottom();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(PlaceIn(bar, BottomOf(besideTaskBar_)), BottomOf(besideTaskBar_));

    shell_.HideTaskBarAutomatically();

    EXPECT_EQ(PlaceIn(bar, BottomOf(screen_)), BottomOf(screen_));
}

TEST_F(ShellEvents, AHiddenBarHidesAgainAfterwards) {
    HideAutomatically();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    const std::string strip = TopOf(screen_, 1);
    ASSERT_EQ(PlaceIn(bar, strip), strip);
    shell_.ClearLog();

    shell_.Notify(ABN_STATECHANGE);

    ASSERT_TRUE(WaitForCount("SETPOS", 2));
    EXPECT_EQ(PlaceIn(bar, strip), strip);
    EXPECT_EQ(shell_.AutoHideOwner(ABE_TOP), bar);
}

TEST_F(ShellEvents, ArrangedWindowsAreNoneOfTheBarsBusiness) {
    const Program program;
    const HWND bar = WaitForDockedAndForget(program);
    ASSERT_NE(bar, nullptr);

    shell_.Notify(ABN_WINDOWARRANGE, TRUE);
    shell_.Notify(ABN_WINDOWARRANGE, FALSE);
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);

    EXPECT_EQ(shell_.Steps(), "REMOVE");
}

// ---- Full-screen programs

// Another program's window, of this process.
class OtherWindow {
public:
    OtherWindow()
        : window_{::CreateWindowExW(WS_EX_TOOLWINDOW, L"Static", L"", WS_POPUP | WS_VISIBLE, 300, 300, 200, 100,
                                    nullptr, nullptr, nullptr, nullptr)} {}
    ~OtherWindow() { ::DestroyWindow(window_); }
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;

    [[nodiscard]] bool IsAbove(HWND other) const {
        for (HWND below = window_; below != nullptr; below = ::GetWindow(below, GW_HWNDNEXT))
            if (below == other) return true;
        return false;
    }

private:
    HWND window_;
};

TEST_F(ShellEvents, AFullScreenProgramSendsTheBarToTheBottomUntilItCloses) {
    const Program program;
    const HWND bar = WaitForDocked(program);
    ASSERT_NE(bar, nullptr);
    const OtherWindow other;
    ::SetWindowPos(bar, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ASSERT_TRUE(WaitUntil([&] { return !other.IsAbove(bar); }));

    shell_.Notify(ABN_FULLSCREENAPP, TRUE);
    EXPECT_TRUE(WaitUntil([&] { return other.IsAbove(bar); }));

    shell_.Notify(ABN_FULLSCREENAPP, FALSE);
    EXPECT_TRUE(WaitUntil([&] { return !other.IsAbove(bar); }));
    EXPECT_EQ(PlaceOf(bar), top_);
}

TEST_F(ShellEvents, AFullScreenProgramThatClosesWithoutHavingOpenedDoesNoHarm) {
    const Program program;
    const HWND bar = WaitForDocked(program);
    ASSERT_NE(bar, nullptr);

    shell_.Notify(ABN_FULLSCREENAPP, FALSE);

    ASSERT_TRUE(WaitUntilIdle(bar));
    EXPECT_EQ(PlaceOf(bar), top_);
}

// ---- A new shell

TEST_F(ShellEvents, ANewShellGetsToKnowTheBar) {
    const Program program;
    const HWND bar = WaitForDockedAndForget(program);
    ASSERT_NE(bar, nullptr);

    shell_.Restart();

    ASSERT_TRUE(DockedAgain(bar, 1));
    EXPECT_TRUE(shell_.Registered(bar));
    EXPECT_EQ(WorkArea().top, kBarPx);
}

TEST_F(ShellEvents, ANewShellThatReportsItselfThreeTimesGetsToKnowTheBarOnce) {
    const Program program;
    const HWND bar = WaitForDockedAndForget(program);
    ASSERT_NE(bar, nullptr);

    shell_.Restart(3);

    ASSERT_TRUE(DockedAgain(bar, 1));
    EXPECT_FALSE(WaitUntil([&] { return shell_.Count("SETPOS") > 1; }, kGrace));
    EXPECT_EQ(shell_.Count("NEW"), 1);
    EXPECT_TRUE(shell_.Registered(bar));
}

TEST_F(ShellEvents, ANewShellIsToldThatTheBarHides) {
    HideAutomatically();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    const std::string strip = TopOf(screen_, 1);
    ASSERT_EQ(PlaceIn(bar, strip), strip);

    shell_.Restart();

    EXPECT_TRUE(WaitUntil([&] { return shell_.AutoHideOwner(ABE_TOP) == bar; }));
    EXPECT_EQ(PlaceIn(bar, strip), strip);
    EXPECT_TRUE(WaitUntil([&] { return WorkArea().top == 1; }));
}

TEST_F(ShellEvents, ANewShellIsNoneOfTheFloatingBarsBusiness) {
    WriteSetting(kPlacement, L"DefaultDesktopBarMode", DWORD{0});
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    shell_.Restart();

    EXPECT_FALSE(WaitUntil([&] { return shell_.Count("NEW") > 0; }, kGrace));
    EXPECT_TRUE(Floats(bar));
}

// ---- The screen

LPARAM ScreenOf(int width, int height) {
    return MAKELPARAM(width, height);
}

TEST_F(ShellEvents, AScreenOfAnotherSizeDocksTheBarAgain) {
    const Program program;
    const HWND bar = WaitForDockedAndForget(program);
    ASSERT_NE(bar, nullptr);

    ::PostMessageW(bar, WM_DISPLAYCHANGE, 32, ScreenOf(1024, 768));

    EXPECT_TRUE(DockedAgain(bar, 1));
    EXPECT_FALSE(program.ShowsBox());
}

TEST_F(ShellEvents, AScreenTooNarrowForTheBarEndsItWithoutAQuestion) {
    WriteSetting(kSettings, L"ConfirmExitApp", DWORD{0});
    const Program program;
    const HWND bar = WaitForDocked(program);
    ASSERT_NE(bar, nullptr);

    ::PostMessageW(bar, WM_DISPLAYCHANGE, 32, ScreenOf(1023, 768));

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(),
              L"Korvane は 横幅 1,024 ピクセル以上の画面解像度でご利用いただけます。\n\nKorvane を終了します。");
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    EXPECT_THAT(box.Buttons(), ElementsAre(IDOK));
    EXPECT_EQ(::GetWindow(box.Handle(), GW_OWNER), bar);
    EXPECT_TRUE(::IsWindowVisible(bar));
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_EQ(program.WaitForExit(), 0u);
    EXPECT_FALSE(shell_.Registered(bar));
    EXPECT_EQ(Text(WorkArea()), Text(besideTaskBar_));
}

TEST_F(ShellEvents, AScreenTooNarrowEndsTheFloatingBarToo) {
    WriteSetting(kPlacement, L"DefaultDesktopBarMode", DWORD{0});
    WriteSetting(kSettings, L"ConfirmExitApp", DWORD{0});
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    ::PostMessageW(bar, WM_DISPLAYCHANGE, 32, ScreenOf(800, 600));

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_EQ(program.WaitForExit(), 0u);
}

} // namespace
} // namespace korvane::test
