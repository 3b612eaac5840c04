// The menus and what they start, from outside: real keys, the real clipboard, real programs.
#include <windows.h>

#include <array>

#include "tests/program/bar_driver.h"
#include "tests/program/program_test.h"
#include "tests/support/clipboard.h"
#include "tests/support/other_window.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

constexpr UINT kNotificationIcon = WM_APP + 2;
constexpr int kOpenMainMenu = 2010;
constexpr int kPaint = 3002;
constexpr int kNotepad = 3001;

class MainMenu : public ProgramTest {
protected:
    static constexpr wchar_t kLaunchItems[] = L"Settings\\LaunchMenuItem";

    static void StoreLaunchItems() {
        WriteSetting(kLaunchItems, L"LaunchMenu04", recorder::Folder() + L"\\rec.exe,一番 x, ,notepad.exe,0,記録係");
        WriteSetting(kLaunchItems, L"LaunchMenu05",
                     std::wstring_view{L"C:\\nowhere\\gone.exe, , ,notepad.exe,0,消えた"});
    }
    static void Copy(std::wstring_view text) { ASSERT_TRUE(test::Copy(nullptr, {{CF_UNICODETEXT, BytesOf(text)}})); }
    // The display server hands out the focus some time after a window has come up; a menu that opens before is closed
    // by it.
    static bool InForeground(HWND bar) { return bar && ClickIntoFocus(Control(bar, kSearchBox)); }
    static bool SearchBoxShows(HWND bar, const std::wstring& text) {
        return WaitUntil([&] { return TextOf(Control(bar, kSearchBox)) == text; });
    }
};

TEST_F(MainMenu, TheLaunchMenuOpensWithItsHotKeyAndStartsWhatIsChosen) {
    StoreLaunchItems();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_TRUE(InForeground(bar));

    // The message of the key and not the key: keys that still wait would arrive in the menu, and Alt would end it.
    ::PostMessageW(bar, WM_HOTKEY, 1001, MAKELPARAM(MOD_ALT | MOD_WIN, 'X'));
    ASSERT_TRUE(WaitForMenu());
    PressKeys({'1'});

    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(EndsWith(L"rec.exe\" 一番 x")));
    EXPECT_TRUE(WaitForNoMenu());
}

TEST_F(MainMenu, ALaunchItemThatIsGoneIsReported) {
    StoreLaunchItems();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, 4029);

    const MessageBoxView box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), TextOfError(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    EXPECT_TRUE(box.Press(IDOK));
}

TEST_F(MainMenu, AnItemEditedMeanwhileStartsAsItStandsNow) {
    StoreLaunchItems();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    WriteSetting(kLaunchItems, L"LaunchMenu04", recorder::Folder() + L"\\rec.exe,changed, ,no icon,0,記録係");

    Command(bar, 4028);

    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(EndsWith(L"rec.exe\" changed")));
}

TEST_F(MainMenu, ABuiltInProgramStarts) {
    EndOwnersOf(L"Notepad");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kNotepad);

    EXPECT_TRUE(WaitUntil([] { return !AllWindows(L"Notepad").empty(); }));
    EndOwnersOf(L"Notepad");
}

TEST_F(MainMenu, ABuiltInProgramThatIsNotThereIsReported) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kPaint);

    const MessageBoxView box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), TextOfError(ERROR_FILE_NOT_FOUND));
    EXPECT_TRUE(box.Press(IDOK));
}

TEST_F(MainMenu, OpensFromTheNotificationAreaInsideTheScreen) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 3, ::GetSystemMetrics(SM_CYSCREEN) - 3);

    ::PostMessageW(bar, kNotificationIcon, 1, WM_RBUTTONUP);

    ASSERT_TRUE(WaitForMenu());
    RECT menu{};
    ::GetWindowRect(OpenMenu(), &menu);
    EXPECT_LE(menu.right, ::GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LE(menu.bottom, ::GetSystemMetrics(SM_CYSCREEN));
    EXPECT_GE(menu.top, 0);
    PressKeys({VK_ESCAPE});
    EXPECT_TRUE(WaitForNoMenu());
}

TEST_F(MainMenu, TheNotificationAreaIsDeafWhileABoxAsks) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Close(bar);
    const MessageBoxView box = program.WaitForBox();
    ASSERT_TRUE(box);

    ::PostMessageW(bar, kNotificationIcon, 1, WM_RBUTTONUP);

    ASSERT_TRUE(WaitUntilIdle(bar));
    EXPECT_EQ(OpenMenu(), nullptr);
    EXPECT_TRUE(box.Press(IDNO));
}

TEST_F(MainMenu, SwitchesToTheChosenTask) {
    const OtherWindow other{L"切り替え先", SW_SHOWMINNOACTIVE};
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_TRUE(InForeground(bar));
    other.ForgetActivation();

    // The window is the only task, and so the first row of the pop-up.
    Command(bar, kOpenMainMenu);
    ASSERT_TRUE(WaitForMenu());
    PressKeys({'N'});
    ASSERT_TRUE(WaitUntil([] {
        int menus = 0;
        for (const HWND window : AllWindows(L"#32768")) menus += ::IsWindowVisible(window) ? 1 : 0;
        return menus == 2;
    }));
    PressKeys({VK_RETURN});

    EXPECT_TRUE(other.WaitUntilActivated());
    EXPECT_TRUE(WaitUntil([&] { return !::IsIconic(other.Handle()); }));
}

TEST_F(MainMenu, CopiedTextComesIntoTheSearchBox) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Copy(std::wstring_view{L"写した\r\n言葉\0", 8});

    EXPECT_TRUE(SearchBoxShows(bar, L"写した 言葉"));
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(Control(bar, kSearch)); }));
}

TEST_F(MainMenu, CopiedTextStaysOutOnceTheMonitorIsSwitchedOff) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, 40004);
    ASSERT_TRUE(WaitUntil([] { return ReadNumber(kSettings, L"MonitorClipBoard") == 0U; }));

    Copy(std::wstring_view{L"secret\0", 7});
    ASSERT_TRUE(WaitUntilIdle(bar));
    EXPECT_EQ(TextOf(Control(bar, kSearchBox)), L"");

    Command(bar, 40004);
    ASSERT_TRUE(WaitUntil([] { return ReadNumber(kSettings, L"MonitorClipBoard") == 1U; }));
    Copy(std::wstring_view{L"public\0", 7});
    EXPECT_TRUE(SearchBoxShows(bar, L"public"));
}

TEST_F(MainMenu, ContentThatItsOwnerExcludesStaysOut) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    const UINT excluded = ::RegisterClipboardFormatW(L"ExcludeClipboardContentFromMonitorProcessing");

    ASSERT_TRUE(test::Copy(nullptr, {{CF_UNICODETEXT, BytesOf(std::wstring_view{L"password\0", 9})},
                                     {excluded, std::string_view{"\0", 1}}}));
    // What comes next arrives next.
    Copy(std::wstring_view{L"later\0", 6});

    EXPECT_TRUE(WaitUntil([&] {
        const std::wstring text = TextOf(Control(bar, kSearchBox));
        EXPECT_NE(text, L"password");
        return text == L"later";
    }));
}

TEST_F(MainMenu, EndingTheSessionAsksAndNoKeepsTheBar) {
    WriteSetting(kSettings, L"ConfirmExitWindows", 0);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_TRUE(InForeground(bar));

    PressKeys({VK_CONTROL, VK_SHIFT, 'R'});

    const MessageBoxView box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), L"Windows を再起動します。よろしいですか？");
    EXPECT_EQ(box.Icon(), BoxIcon::kQuestion);
    EXPECT_THAT(box.Buttons(), ElementsAre(IDYES, IDNO, IDCANCEL));
    EXPECT_TRUE(box.Press(IDNO));
    EXPECT_TRUE(WaitUntilIdle(bar));
    EXPECT_TRUE(program.Running());
}

struct Farewell {
    const char* name;
    const wchar_t* windows;
    int command;
    const wchar_t* question;
};

class EndingWindows : public MainMenu, public testing::WithParamInterface<Farewell> {};

TEST_P(EndingWindows, AsksInItsOwnWords) {
    PretendWindowsIs(GetParam().windows);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, GetParam().command);

    const MessageBoxView box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Text(), GetParam().question);
    EXPECT_TRUE(box.Press(IDCANCEL));
}

INSTANTIATE_TEST_SUITE_P(
    Table, EndingWindows,
    testing::Values(Farewell{"SignOutOnWindows7", L"win7", 4100, L"Windows からログオフします。よろしいですか？"},
                    Farewell{"SignOutOnWindows8", L"win8", 4100, L"Windows からサインアウトします。よろしいですか？"},
                    Farewell{"SignOutOnWindows10", L"win10", 4100, L"Windows からサインアウトします。よろしいですか？"},
                    Farewell{"ShutDown", L"win7", 4101, L"Windows をシャットダウンします。よろしいですか？"},
                    Farewell{"Restart", L"win10", 4102, L"Windows を再起動します。よろしいですか？"}),
    [](const auto& tested) { return std::string{tested.param.name}; });

} // namespace
} // namespace korvane::test
