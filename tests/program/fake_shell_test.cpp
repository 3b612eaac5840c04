// The shell that the tests of docked bars lean on, asked by bars of this process.

#include "tests/support/fake_shell.h"

#include <gmock/gmock.h>

#include "tests/support/program_driver.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

constexpr UINT kCallbackMessage = WM_APP + 1;

// A bar of this process, which does what its test says.
class OwnBar {
public:
    OwnBar()
        : window_{::CreateWindowExW(WS_EX_TOOLWINDOW, L"Static", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr,
                                    nullptr)} {
        ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        ::SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
    }
    ~OwnBar() { ::DestroyWindow(window_); }
    OwnBar(const OwnBar&) = delete;
    OwnBar& operator=(const OwnBar&) = delete;

    [[nodiscard]] HWND Handle() const { return window_; }

    UINT_PTR Send(DWORD message, UINT edge = ABE_TOP, LPARAM lparam = 0) const {
        RECT rect{};
        return Send(message, edge, lparam, rect);
    }
    UINT_PTR Send(DWORD message, UINT edge, LPARAM lparam, RECT& rect) const {
        APPBARDATA data{};
        data.cbSize = sizeof data;
        data.hWnd = window_;
        data.uCallbackMessage = kCallbackMessage;
        data.uEdge = edge;
        data.rc = rect;
        data.lParam = lparam;
        const UINT_PTR answer = ::SHAppBarMessage(message, &data);
        rect = data.rc;
        return answer;
    }
    // The rectangle that the shell makes of one.
    [[nodiscard]] std::string Query(UINT edge, RECT rect) const {
        Send(ABM_QUERYPOS, edge, 0, rect);
        return Text(rect);
    }
    std::string Reserve(UINT edge, RECT rect) const {
        Send(ABM_SETPOS, edge, 0, rect);
        return Text(rect);
    }

    // The notifications that have come since the last question, "1(0) " for ABN_POSCHANGED with the argument 0.
    [[nodiscard]] std::string Notifications() const {
        std::string heard;
        MSG message{};
        while (::PeekMessageW(&message, window_, kCallbackMessage, kCallbackMessage, PM_REMOVE))
            heard += std::to_string(message.wParam) + "(" + std::to_string(message.lParam) + ") ";
        return heard;
    }

    // How often "TaskbarCreated" was heard.
    [[nodiscard]] int Broadcasts() const {
        MSG message{};
        ::PeekMessageW(&message, window_, 0, 0, PM_NOREMOVE); // lets in what is delivered without a queue
        return broadcasts_;
    }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM wparam, LPARAM lparam) {
        static const UINT created = ::RegisterWindowMessageW(L"TaskbarCreated");
        if (id == created) ++reinterpret_cast<OwnBar*>(::GetWindowLongPtrW(window, GWLP_USERDATA))->broadcasts_;
        return ::DefWindowProcW(window, id, wparam, lparam);
    }

    HWND window_;
    int broadcasts_ = 0;
};

class FakeShellTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(shell_.Running()); }

    const int width_ = ::GetSystemMetrics(SM_CXSCREEN);
    const int height_ = ::GetSystemMetrics(SM_CYSCREEN);
    const std::string wholeScreen_ = Text({0, 0, width_, height_});
    const std::string besideTaskBar_ = Text({0, 0, width_, height_ - FakeShell::kTaskBarPx});
    const FakeShell shell_;
    const OwnBar bar_;
};

TEST_F(FakeShellTest, LeavesTheTaskBarOutOfTheWorkArea) {
    EXPECT_EQ(Text(WorkArea()), besideTaskBar_);
}

TEST_F(FakeShellTest, RegistersABarOnce) {
    EXPECT_EQ(bar_.Send(ABM_NEW), 1u);
    EXPECT_EQ(bar_.Send(ABM_NEW), 0u);

    EXPECT_TRUE(shell_.Registered(bar_.Handle()));
}

TEST_F(FakeShellTest, CanRefuseEveryRegistration) {
    shell_.RefuseRegistrations();

    EXPECT_EQ(bar_.Send(ABM_NEW), 0u);

    EXPECT_FALSE(shell_.Registered(bar_.Handle()));
    shell_.RefuseRegistrations(false);
    EXPECT_EQ(bar_.Send(ABM_NEW), 1u);
}

TEST_F(FakeShellTest, TakesAReservedStripOutOfTheWorkAreaAtOnce) {
    bar_.Send(ABM_NEW);

    EXPECT_EQ(bar_.Reserve(ABE_TOP, {0, 0, width_, 32}), Text({0, 0, width_, 32}));

    EXPECT_EQ(Text(WorkArea()), Text({0, 32, width_, height_ - FakeShell::kTaskBarPx}));
    EXPECT_EQ(Text(shell_.ReservedBy(bar_.Handle())), Text({0, 0, width_, 32}));
}

TEST_F(FakeShellTest, ReservesNothingForABarThatIsNotRegistered) {
    RECT rect{0, 0, width_, 32};

    EXPECT_EQ(bar_.Send(ABM_SETPOS, ABE_TOP, 0, rect), 0u);

    EXPECT_EQ(Text(WorkArea()), besideTaskBar_);
}

TEST_F(FakeShellTest, OnlyQueryingReservesNothing) {
    bar_.Send(ABM_NEW);

    EXPECT_EQ(bar_.Query(ABE_TOP, {0, 0, width_, 32}), Text({0, 0, width_, 32}));

    EXPECT_EQ(Text(WorkArea()), besideTaskBar_);
}

TEST_F(FakeShellTest, GivesTheStripOfABarThatLeavesBack) {
    bar_.Send(ABM_NEW);
    bar_.Reserve(ABE_TOP, {0, 0, width_, 32});

    EXPECT_EQ(bar_.Send(ABM_REMOVE), 1u);

    EXPECT_EQ(Text(WorkArea()), besideTaskBar_);
    EXPECT_FALSE(shell_.Registered(bar_.Handle()));
}

TEST_F(FakeShellTest, RemovingABarTwiceDoesNoHarm) {
    bar_.Send(ABM_NEW);
    bar_.Send(ABM_REMOVE);

    EXPECT_EQ(bar_.Send(ABM_REMOVE), 1u);

    EXPECT_EQ(bar_.Send(ABM_NEW), 1u);
}

TEST_F(FakeShellTest, FindsOutWhenABarDiesWithoutAWord) {
    {
        const OwnBar mortal;
        mortal.Send(ABM_NEW);
        mortal.Reserve(ABE_TOP, {0, 0, width_, 32});
        mortal.Send(ABM_SETAUTOHIDEBAR, ABE_TOP, 1);
    }

    EXPECT_TRUE(WaitUntil([&] { return Text(WorkArea()) == besideTaskBar_; }));
    EXPECT_EQ(shell_.AutoHideOwner(ABE_TOP), nullptr);
}

TEST_F(FakeShellTest, CutsAProposalToTheScreen) {
    bar_.Send(ABM_NEW);

    EXPECT_EQ(bar_.Query(ABE_TOP, {-50, -20, width_ + 50, 32}), Text({0, 0, width_, 32}));
}

TEST_F(FakeShellTest, MovesOnlyTheSideAtTheEdgeOutOfTheTaskBar) {
    bar_.Send(ABM_NEW);
    shell_.MoveTaskBar(ABE_TOP);

    EXPECT_EQ(bar_.Query(ABE_TOP, {0, 0, width_, 32}), Text({0, 40, width_, 32}));
}

TEST_F(FakeShellTest, ReservesBesideTheTaskBarWhateverIsProposed) {
    bar_.Send(ABM_NEW);

    EXPECT_EQ(bar_.Reserve(ABE_BOTTOM, {0, height_ - 72, width_, height_}),
              Text({0, height_ - 72, width_, height_ - 40}));

    EXPECT_EQ(Text(WorkArea()), Text({0, 0, width_, height_ - 72}));
}

struct TaskBarCase {
    const char* name;
    UINT edge;
};

class TaskBarOfTheFakeShell : public FakeShellTest, public testing::WithParamInterface<TaskBarCase> {};

TEST_P(TaskBarOfTheFakeShell, StandsAtTheEdgeThatIsChosen) {
    shell_.MoveTaskBar(GetParam().edge, 60);

    APPBARDATA data{};
    data.cbSize = sizeof data;
    ASSERT_EQ(::SHAppBarMessage(ABM_GETTASKBARPOS, &data), 1u);
    EXPECT_EQ(data.uEdge, GetParam().edge);
    // The screen is the task bar and the work area.
    const RECT area = WorkArea();
    RECT rest{0, 0, width_, height_};
    ASSERT_TRUE(::SubtractRect(&rest, &rest, &data.rc));
    EXPECT_EQ(Text(rest), Text(area));
}

TEST_P(TaskBarOfTheFakeShell, LeavesTheWholeScreenWhileItHidesItself) {
    shell_.MoveTaskBar(GetParam().edge);

    shell_.HideTaskBarAutomatically();

    EXPECT_EQ(Text(WorkArea()), wholeScreen_);
    EXPECT_NE(bar_.Send(ABM_GETSTATE) & ABS_AUTOHIDE, 0u);
    EXPECT_NE(shell_.AutoHideOwner(GetParam().edge), nullptr);
    shell_.HideTaskBarAutomatically(false);
    EXPECT_EQ(shell_.AutoHideOwner(GetParam().edge), nullptr);
    EXPECT_NE(Text(WorkArea()), wholeScreen_);
}

INSTANTIATE_TEST_SUITE_P(Edges, TaskBarOfTheFakeShell,
                         testing::Values(TaskBarCase{"Left", ABE_LEFT}, TaskBarCase{"Top", ABE_TOP},
                                         TaskBarCase{"Right", ABE_RIGHT}, TaskBarCase{"Bottom", ABE_BOTTOM}),
                         [](const auto& test) { return std::string{test.param.name}; });

TEST_F(FakeShellTest, CanRefuseTheQuestionForTheTaskBar) {
    shell_.Refuse(ABM_GETTASKBARPOS);

    APPBARDATA data{};
    data.cbSize = sizeof data;
    EXPECT_EQ(::SHAppBarMessage(ABM_GETTASKBARPOS, &data), 0u);
}

TEST_F(FakeShellTest, PutsABarBesideAnotherAtTheSameEdge) {
    const HWND other = shell_.ReserveStrip(ABE_TOP, 50);
    bar_.Send(ABM_NEW);

    EXPECT_EQ(bar_.Reserve(ABE_TOP, {0, 0, width_, 82}), Text({0, 50, width_, 82}));

    EXPECT_EQ(Text(shell_.ReservedBy(other)), Text({0, 0, width_, 50}));
    EXPECT_EQ(Text(WorkArea()), Text({0, 82, width_, height_ - 40}));
    shell_.GiveStripBack(other);
    EXPECT_EQ(Text(shell_.ReservedBy(other)), "0,0-0,0");
}

TEST_F(FakeShellTest, ABarAtTheOtherEdgeIsNoObstacle) {
    shell_.ReserveStrip(ABE_BOTTOM, 50);
    bar_.Send(ABM_NEW);

    EXPECT_EQ(bar_.Reserve(ABE_TOP, {0, 0, width_, 32}), Text({0, 0, width_, 32}));

    EXPECT_EQ(Text(WorkArea()), Text({0, 32, width_, height_ - 90}));
}

TEST_F(FakeShellTest, TellsOnlyTheOtherBarsOfAChange) {
    const OwnBar other;
    bar_.Send(ABM_NEW);
    other.Send(ABM_NEW);

    bar_.Reserve(ABE_TOP, {0, 0, width_, 32});

    EXPECT_EQ(bar_.Notifications(), "");
    EXPECT_EQ(other.Notifications(), "1(0) ");
    bar_.Reserve(ABE_TOP, {0, 0, width_, 32}); // nothing changes
    EXPECT_EQ(other.Notifications(), "");
    bar_.Send(ABM_REMOVE);
    EXPECT_EQ(other.Notifications(), "1(0) ");
}

TEST_F(FakeShellTest, TellsEveryBarThatTheTaskBarMoved) {
    bar_.Send(ABM_NEW);

    shell_.MoveTaskBar(ABE_LEFT);

    EXPECT_EQ(bar_.Notifications(), "1(0) ");
}

TEST_F(FakeShellTest, TellsEveryBarThatTheTaskBarHides) {
    bar_.Send(ABM_NEW);

    shell_.HideTaskBarAutomatically();

    EXPECT_EQ(bar_.Notifications(), "0(0) 1(0) ");
}

TEST_F(FakeShellTest, PassesNotificationsOfTestsOn) {
    bar_.Send(ABM_NEW);

    shell_.Notify(ABN_FULLSCREENAPP, TRUE);
    shell_.Notify(ABN_FULLSCREENAPP, FALSE);
    shell_.Notify(ABN_WINDOWARRANGE, TRUE);

    EXPECT_EQ(bar_.Notifications(), "2(1) 2(0) 3(1) ");
}

TEST_F(FakeShellTest, GivesTheAutoHideOfAnEdgeToOneBar) {
    const OwnBar other;
    bar_.Send(ABM_NEW);
    other.Send(ABM_NEW);

    EXPECT_EQ(bar_.Send(ABM_SETAUTOHIDEBAR, ABE_TOP, 1), 1u);
    EXPECT_EQ(bar_.Send(ABM_SETAUTOHIDEBAR, ABE_TOP, 1), 1u);
    EXPECT_EQ(other.Send(ABM_SETAUTOHIDEBAR, ABE_TOP, 1), 0u);
    EXPECT_EQ(other.Send(ABM_SETAUTOHIDEBAR, ABE_BOTTOM, 1), 1u);

    EXPECT_EQ(other.Send(ABM_GETAUTOHIDEBAR, ABE_TOP), reinterpret_cast<UINT_PTR>(bar_.Handle()));
    EXPECT_EQ(shell_.AutoHideOwner(ABE_BOTTOM), other.Handle());
}

TEST_F(FakeShellTest, KeepsTheAutoHideOfAnEdgeUntilItsOwnerGivesItUp) {
    const OwnBar other;
    bar_.Send(ABM_NEW);
    bar_.Send(ABM_SETAUTOHIDEBAR, ABE_TOP, 1);

    EXPECT_EQ(other.Send(ABM_SETAUTOHIDEBAR, ABE_TOP, 0), 1u);
    bar_.Send(ABM_REMOVE);
    EXPECT_EQ(shell_.AutoHideOwner(ABE_TOP), bar_.Handle());

    EXPECT_EQ(bar_.Send(ABM_SETAUTOHIDEBAR, ABE_TOP, 0), 1u);
    EXPECT_EQ(shell_.AutoHideOwner(ABE_TOP), nullptr);
}

TEST_F(FakeShellTest, LetsAnotherBarHideItselfAtAnEdge) {
    shell_.OccupyAutoHide(ABE_BOTTOM);
    bar_.Send(ABM_NEW);

    EXPECT_NE(bar_.Send(ABM_GETAUTOHIDEBAR, ABE_BOTTOM), 0u);
    EXPECT_EQ(bar_.Send(ABM_SETAUTOHIDEBAR, ABE_BOTTOM, 1), 0u);
    EXPECT_EQ(bar_.Send(ABM_SETAUTOHIDEBAR, ABE_TOP, 1), 1u);
}

TEST_F(FakeShellTest, CanRefuseAutoHideThoughTheEdgeIsFree) {
    shell_.RefuseAutoHide();
    bar_.Send(ABM_NEW);

    EXPECT_EQ(bar_.Send(ABM_GETAUTOHIDEBAR, ABE_TOP), 0u);
    EXPECT_EQ(bar_.Send(ABM_SETAUTOHIDEBAR, ABE_TOP, 1), 0u);
}

TEST_F(FakeShellTest, ForgetsAllBarsWhenItRestarts) {
    bar_.Send(ABM_NEW);
    bar_.Reserve(ABE_TOP, {0, 0, width_, 32});
    bar_.Send(ABM_SETAUTOHIDEBAR, ABE_TOP, 1);

    shell_.Restart(3);

    EXPECT_FALSE(shell_.Registered(bar_.Handle()));
    EXPECT_EQ(shell_.AutoHideOwner(ABE_TOP), nullptr);
    EXPECT_EQ(Text(WorkArea()), besideTaskBar_);
    EXPECT_EQ(bar_.Broadcasts(), 3);
}

TEST_F(FakeShellTest, KeepsAReadableLog) {
    shell_.ClearLog();
    bar_.Send(ABM_NEW);
    bar_.Reserve(ABE_BOTTOM, {0, height_ - 72, width_, height_ - 40});
    bar_.Send(ABM_SETAUTOHIDEBAR, ABE_BOTTOM, 1);
    bar_.Send(ABM_ACTIVATE, ABE_BOTTOM, 1);
    bar_.Send(ABM_WINDOWPOSCHANGED, ABE_BOTTOM);

    EXPECT_THAT(shell_.Log(), ElementsAre(EndsWith(" top 0,0-0,0 lparam 0 -> 1"), testing::StartsWith("SETPOS "),
                                          testing::StartsWith("workarea "), EndsWith(" bottom 0,0-0,0 lparam 1 -> 1"),
                                          testing::StartsWith("ACTIVATE "), testing::StartsWith("WINDOWPOSCHANGED ")));
    EXPECT_EQ(shell_.Steps(), "NEW SETPOS SETAUTOHIDEBAR(1)");
    EXPECT_EQ(shell_.Count("ACTIVATE"), 1);
    shell_.ClearLog();
    EXPECT_THAT(shell_.Log(), IsEmpty());
}

TEST(FakeShellsEnd, LeavesTheWholeScreenAsTheWorkArea) {
    const RECT screen{0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
    {
        const FakeShell shell;
        ASSERT_NE(Text(WorkArea()), Text(screen));
    }
    EXPECT_EQ(Text(WorkArea()), Text(screen));
}

TEST(FakeShellsEnd, ByForceIsMadeUpForByTheNextOne) {
    const FakeShell killed;
    const HWND other = killed.ReserveStrip(ABE_TOP, 100);
    ASSERT_TRUE(::IsWindow(other));
    EndOwnersOf(L"WineAppBar");

    const FakeShell shell;

    ASSERT_TRUE(shell.Running());
    EXPECT_EQ(WorkArea().top, 0);
}

} // namespace
} // namespace korvane::test
