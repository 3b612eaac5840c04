// Opening the help from the bar, with a recorder in the place of the HTML Help control.
#include <optional>

#include "tests/program/bar_driver.h"
#include "tests/program/program_test.h"
#include "tests/support/help_recorder.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::StartsWith;

constexpr wchar_t kDisplay[] =
    L"DISPLAY_TOPIC caller=desktop file=Korvane.chm::/index.html > Korvane_HelpWindow data=0 folder=own";

class Help : public ProgramTest {
protected:
    void SetUp() override {
        ProgramTest::SetUp();
        recorder_.emplace();
        CloseWithoutQuestion();
        ::GetCurrentDirectoryW(static_cast<DWORD>(before_.size()), before_.data());
        // As from a shortcut that names another folder.
        ::SetCurrentDirectoryW(L"C:\\windows");
    }
    void TearDown() override {
        ::SetCurrentDirectoryW(before_.data());
        recorder_.reset();
        ProgramTest::TearDown();
    }

    static std::vector<std::wstring> WaitForCalls(std::size_t count) { return HelpRecorder::WaitForCalls(count); }
    // What one opening leaves in the log: the call, and what the tree of contents was told.
    static std::vector<std::wstring> Opening() {
        return {kDisplay, L"TREE styles 68 of 68", L"TREE row height 20", L"TREE font", L"TREE theme"};
    }
    static constexpr std::size_t kAfterOpening = 6; // with the session's beginning

    static testing::Matcher<std::vector<std::wstring>> IsBeginningAndOpening() {
        auto expected = Opening();
        expected.insert(expected.begin(), L"INITIALIZE caller=none file=none data=cookie folder=C:\\windows");
        return ElementsAreArray(expected);
    }

private:
    std::optional<HelpRecorder> recorder_;
    std::array<wchar_t, MAX_PATH> before_{};
};

TEST_F(Help, IsOpenedByTheMenuCommandAndClosedWithTheBar) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kHelp);
    ASSERT_THAT(WaitForCalls(kAfterOpening), IsBeginningAndOpening());
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);

    auto calls = WaitForCalls(kAfterOpening + 3);
    ASSERT_EQ(calls.size(), kAfterOpening + 3);
    calls.erase(calls.begin(), calls.begin() + kAfterOpening);
    EXPECT_THAT(calls, ElementsAre(L"GET_WIN_HANDLE caller=desktop file=Korvane.chm data=Korvane_HelpWindow folder=own",
                                   StartsWith(L"CLOSE_ALL caller=none file=none data=0"),
                                   L"UNINITIALIZE caller=none file=none data=cookie folder=C:\\windows"));
}

TEST_F(Help, IsNotClosedWhenItWasNeverOpened) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);

    EXPECT_THAT(WaitForCalls(3),
                ElementsAre(StartsWith(L"INITIALIZE"), StartsWith(L"GET_WIN_HANDLE"), StartsWith(L"UNINITIALIZE")));
}

TEST_F(Help, IsOpenedByF1) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    PressKeys({VK_F1});

    EXPECT_THAT(WaitForCalls(kAfterOpening), IsBeginningAndOpening());
}

TEST_F(Help, IsOpenedOnceByCtrlF1) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    PressKeys({VK_CONTROL, VK_F1});

    // The bar has seen the key, and whatever follows from it, when it has seen what is typed next.
    TypeText(L"x");
    ASSERT_TRUE(WaitUntil([&] { return TextOf(Control(bar, kSearchBox)) == L"x"; }));
    EXPECT_THAT(WaitForCalls(kAfterOpening), IsBeginningAndOpening());
}

TEST_F(Help, IsOpenedByItsButton) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_TRUE(bar && ClickIntoFocus(Control(bar, kSearchBox)));

    ASSERT_TRUE(ClickUntil(Control(bar, kHelp), [] { return WaitForCalls(0).size() > 1; }));

    EXPECT_THAT(WaitForCalls(kAfterOpening), IsBeginningAndOpening());
}

TEST_F(Help, OffersTheKeysToItsWindowWhileThatIsOpen) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kHelp);
    ASSERT_THAT(WaitForCalls(kAfterOpening), IsBeginningAndOpening());
    const auto windows = AllWindows(kHelpWindowClass);
    ASSERT_EQ(windows.size(), 1u);

    ::PostMessageW(windows.front(), WM_KEYDOWN, VK_TAB, 0);

    const auto calls = WaitForCalls(kAfterOpening + 1);
    ASSERT_EQ(calls.size(), kAfterOpening + 1);
    EXPECT_THAT(calls.back(), StartsWith(L"PRETRANSLATEMESSAGE caller=none file=none data=key 9"));
}

TEST_F(Help, ThatDoesNotOpenIsReported) {
    HelpRecorder::AnswerNothing();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kHelp);

    const MessageBoxView box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), L"ヘルプ ファイル 'Korvane.chm' を開くことができませんでした。\n\n"
                          L"ファイルが見つからないときは Korvane を再インストールしてください。");
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    EXPECT_TRUE(box.Press(IDOK));
    EXPECT_THAT(WaitForCalls(2), ElementsAre(StartsWith(L"INITIALIZE"), kDisplay));
}

} // namespace
} // namespace korvane::test
