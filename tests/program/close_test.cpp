#include <array>
#include <chrono>

#include "tests/program/program_test.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;

// A rectangle that no default gives.
constexpr std::array<LONG, 4> kSavedRect{40, 200, 1340, 270};

class Closing : public ProgramTest {
protected:
    void SetUp() override {
        ProgramTest::SetUp();
        WriteSetting(kPlacement, L"SaveWindowPlacement", 1);
        WriteSetting(kPlacement, L"WindowPosRect", REG_BINARY, kSavedRect.data(), sizeof kSavedRect);
    }

    static void MoveTo(HWND bar, int left, int top) {
        ::SetWindowPos(bar, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        WaitUntilIdle(bar);
    }
    static LONG SavedLeft() {
        const auto rect = ReadRect(kPlacement, L"WindowPosRect");
        return rect ? rect->left : -1;
    }
};

TEST_F(Closing, AsksFirst) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Close(bar);

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), L"Korvane を終了します。よろしいですか？");
    EXPECT_EQ(box.Icon(), BoxIcon::kQuestion);
    EXPECT_THAT(box.Buttons(), ElementsAre(IDYES, IDNO, IDCANCEL));
}

TEST_F(Closing, AsksOverTheMiddleOfTheBarInsideTheScreen) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Close(bar);

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    RECT owner{}, asked{};
    ::GetWindowRect(bar, &owner);
    ::GetWindowRect(box.Handle(), &asked);
    EXPECT_NEAR((owner.left + owner.right) / 2, (asked.left + asked.right) / 2, 2);
    EXPECT_NEAR((owner.top + owner.bottom) / 2, (asked.top + asked.bottom) / 2, 2);
}

TEST_F(Closing, AsksInsideTheScreenWhenTheBarLeavesIt) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    const int screenWidth = ::GetSystemMetrics(SM_CXSCREEN);
    MoveTo(bar, screenWidth - 60, 5);

    Close(bar);

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    RECT asked{};
    ::GetWindowRect(box.Handle(), &asked);
    // Window managers may shift a window at the very edge by a pixel.
    EXPECT_NEAR(asked.right, screenWidth, 1);
    EXPECT_GE(asked.top, -1);
}

class RefusedClosing : public Closing, public testing::WithParamInterface<int> {};

TEST_P(RefusedClosing, KeepsTheBarAndSavesNothing) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    MoveTo(bar, 90, 300);
    Close(bar);
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);

    ASSERT_TRUE(box.Press(GetParam()));

    ASSERT_TRUE(WaitUntilIdle(bar));
    EXPECT_TRUE(program.Running());
    EXPECT_TRUE(::IsWindowVisible(bar));
    EXPECT_EQ(SavedLeft(), kSavedRect[0]);
}

INSTANTIATE_TEST_SUITE_P(Answers, RefusedClosing, testing::Values(IDNO, IDCANCEL),
                         [](const auto& test) { return test.param == IDNO ? "No" : "Cancel"; });

TEST_F(Closing, SavesTheRectangleAndEndsWithZeroAfterYes) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    RECT before{};
    ::GetWindowRect(bar, &before);
    MoveTo(bar, before.left + 50, before.top + 60);
    RECT moved{};
    ::GetWindowRect(bar, &moved);
    Close(bar);
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);

    ASSERT_TRUE(box.Press(IDYES));

    EXPECT_EQ(program.WaitForExit(), 0u);
    EXPECT_NE(moved.left, kSavedRect[0]);
    EXPECT_EQ(SavedLeft(), moved.left);
}

TEST_F(Closing, DoesNotAskWhenTheSettingSaysSo) {
    CloseWithoutQuestion();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Close(bar);

    EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(Closing, SavesNoRectangleUnlessAskedTo) {
    CloseWithoutQuestion();
    WriteSetting(kPlacement, L"SaveWindowPlacement", DWORD{0});
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    MoveTo(bar, 90, 300);

    Close(bar);

    EXPECT_EQ(program.WaitForExit(), 0u);
    EXPECT_EQ(SavedLeft(), kSavedRect[0]);
}

TEST_F(Closing, TheExitCommandAsksToo) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kExit);

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    ASSERT_TRUE(box.Press(IDYES));
    EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(Closing, TheEndOfTheSessionSavesWithoutAsking) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    RECT before{};
    ::GetWindowRect(bar, &before);
    MoveTo(bar, before.left + 50, before.top + 60);
    RECT moved{};
    ::GetWindowRect(bar, &moved);

    EXPECT_EQ(::SendMessageW(bar, WM_QUERYENDSESSION, 0, 0), TRUE);
    ::SendMessageW(bar, WM_ENDSESSION, TRUE, 0);

    EXPECT_FALSE(program.ShowsBox());
    EXPECT_EQ(SavedLeft(), moved.left);
}

TEST_F(Closing, ASessionThatGoesOnSavesNothing) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    MoveTo(bar, 90, 300);

    ::SendMessageW(bar, WM_ENDSESSION, FALSE, 0);

    EXPECT_EQ(SavedLeft(), kSavedRect[0]);
}

class HotKeys : public ProgramTest {
protected:
    // A hot key belongs to one window of the desktop at a time.
    static bool IsFree(UINT key) {
        if (!::RegisterHotKey(nullptr, 1, MOD_ALT | MOD_WIN, key)) return false;
        ::UnregisterHotKey(nullptr, 1);
        return true;
    }
};

TEST_F(HotKeys, BelongToTheBarWhileItRuns) {
    CloseWithoutQuestion();
    ASSERT_TRUE(IsFree('Z'));
    ASSERT_TRUE(IsFree('X'));
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_FALSE(IsFree('Z'));
    EXPECT_FALSE(IsFree('X'));

    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);
    EXPECT_TRUE(IsFree('Z'));
    EXPECT_TRUE(IsFree('X'));
}

TEST_F(HotKeys, OpenTheLaunchMenu) {
    const Program program;
    ASSERT_NE(program.WaitForBar(), nullptr);

    // A busy display server can swallow a key, or hand the focus out so late that it closes the menu; a user would
    // press once more, too.
    bool opened = false;
    for (int attempt = 0; attempt < 5 && !opened; ++attempt) {
        PressKeys({VK_MENU, VK_LWIN, 'X'});
        opened = WaitUntil([] { return !AllWindows(L"#32768").empty(); }, std::chrono::seconds{4});
    }

    ASSERT_TRUE(opened);
    PressKeys({VK_ESCAPE});
    EXPECT_TRUE(WaitUntil([] { return AllWindows(L"#32768").empty(); }));
}

TEST_F(HotKeys, TakenByAnotherProgramAreNoObstacle) {
    ASSERT_TRUE(::RegisterHotKey(nullptr, 1, MOD_ALT | MOD_WIN, 'Z'));
    CloseWithoutQuestion();
    const Program program;
    const HWND bar = program.WaitForBar();

    EXPECT_NE(bar, nullptr);
    EXPECT_FALSE(program.ShowsBox());

    // The key still belongs to the other program when the bar is gone.
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);
    EXPECT_FALSE(::RegisterHotKey(nullptr, 2, MOD_ALT | MOD_WIN, 'Z'));
    ::UnregisterHotKey(nullptr, 1);
}

} // namespace
} // namespace korvane::test
