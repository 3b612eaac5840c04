// The options as a whole, and their page for the bar itself, from outside.
#include <array>
#include <optional>

#include "tests/program/docked_bar.h"
#include "tests/program/options_driver.h"
#include "tests/support/help_recorder.h"

namespace korvane::test {
namespace {

using testing::Contains;
using testing::StartsWith;

constexpr COLORREF kThemeColour = RGB(159, 22, 106);

// Controls of the main page.
constexpr int kAutoHide = 1012;
constexpr int kMonitor = 1013;
constexpr int kTopmost = 1014;
constexpr int kSaveHistories = 1015;
constexpr int kAutoRun = 1020;
constexpr int kClearHistories = 1042;
constexpr int kColour = 1044;
constexpr int kEdge = 1045;
constexpr int kLength = 1046;
constexpr int kDelay = 1063;
constexpr int kShowClock = 1064;
constexpr int kFormat = 1066;
constexpr int kSample = 1067;
constexpr int kTaskNames = 1068;

constexpr wchar_t kRunKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr wchar_t kRunValue[] = L"Korvane AutoRun";

std::optional<std::wstring> AutoRunValue() {
    std::array<wchar_t, 600> text{};
    DWORD size = sizeof text;
    if (::RegGetValueW(HKEY_CURRENT_USER, kRunKey, kRunValue, RRF_RT_REG_SZ, nullptr, text.data(), &size) !=
        ERROR_SUCCESS)
        return std::nullopt;
    return text.data();
}

// What a point of the bar shows on the screen.
COLORREF ColourOfBar(HWND bar) {
    POINT at{2, 2};
    ::ClientToScreen(bar, &at);
    const fw::WindowDc screen{nullptr};
    return ::GetPixel(screen.Get(), at.x, at.y);
}

class Options : public OptionsTest {
protected:
    void TearDown() override {
        ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kRunKey, kRunValue);
        OptionsTest::TearDown();
    }
    static LRESULT SelectionOf(HWND options, int combo) {
        return ::SendMessageW(On(options, combo), CB_GETCURSEL, 0, 0);
    }
    // Takes the number of history items away, and leaves the keyboard there.
    static bool EmptyTheLength(HWND options) {
        Press('N');
        if (!WaitForFocus(On(options, kLength))) return false;
        PressKeys({VK_DELETE});
        return WaitUntil([&] { return TextOn(options, kLength).empty(); });
    }
};

TEST_F(Options, AreOpenedByTheirButton) {
    const Program program;

    const HWND options = OpenByButton(program);

    ASSERT_NE(options, nullptr);
    EXPECT_EQ(TextOf(options), L"オプション - 基本設定");
    EXPECT_FALSE(::IsWindowEnabled(bar));
}

TEST_F(Options, AreOpenedByTheirKey) {
    const Program program;
    bar = program.WaitForBar();
    ASSERT_TRUE(bar && ClickIntoFocus(Control(bar, kSearchBox)));

    PressKeys({VK_CONTROL, VK_SHIFT, 'C'});

    const HWND options = WaitForDialogWith(program, kOptionsTree);
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(TextOf(options), L"オプション - 基本設定");
}

TEST_F(Options, OpenOnThePageOfTheMenuThatTheyWereOpenedFrom) {
    const Program program;
    HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(TextOf(options), L"オプション - ランチ メニューの設定");
    ASSERT_TRUE(CancelByKey(options));

    options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(TextOf(options), L"オプション - 検索コマンドの設定");
}

TEST_F(Options, AreOpenOnlyOnce) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);

    Command(bar, kLaunchOptions);

    EXPECT_TRUE(WaitForCaption(options, L"オプション - ランチ メニューの設定"));
    EXPECT_EQ(WindowsOf(program.Id(), L"#32770").size(), 1U);
}

TEST_F(Options, TurnTheirPagesWithTheArrowKeys) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);

    PressKeys({VK_DOWN});
    EXPECT_TRUE(WaitForCaption(options, L"オプション - 検索コマンドの設定"));
    PressKeys({VK_DOWN});
    EXPECT_TRUE(WaitForCaption(options, L"オプション - ランチ メニューの設定"));
    PressKeys({VK_UP});
    EXPECT_TRUE(WaitForCaption(options, L"オプション - 検索コマンドの設定"));
}

TEST_F(Options, AreReachedByTabFromTheTreeToTheButtons) {
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_EQ(FocusOf(options), ::GetDlgItem(options, kOptionsTree));

    PressKeys({VK_TAB});
    EXPECT_TRUE(WaitForFocus(On(options, 1057)));
    PressKeys({VK_SHIFT, VK_TAB});
    EXPECT_TRUE(WaitForFocus(::GetDlgItem(options, kOptionsTree)));
    PressKeys({VK_SHIFT, VK_TAB});
    EXPECT_TRUE(WaitForFocus(::GetDlgItem(options, kOptionsHelp)));
    PressKeys({VK_SHIFT, VK_TAB});
    PressKeys({VK_SHIFT, VK_TAB});
    EXPECT_TRUE(WaitForFocus(::GetDlgItem(options, kOptionsOk)));
}

TEST_F(Options, ApplyEverythingAtOnce) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_NE(ColourOfBar(bar), kThemeColour);

    Press('C'); // the colour: the first one is the theme's
    ASSERT_TRUE(WaitForFocus(On(options, kColour)));
    PressKeys({VK_HOME});
    ASSERT_TRUE(WaitUntil([&] { return SelectionOf(options, kColour) == 0; }));
    Click(On(options, kShowClock));
    ASSERT_TRUE(WaitUntilEnabled(On(options, kFormat)));
    Press('F');
    PressKeys({VK_END}); // the date alone
    ASSERT_TRUE(WaitUntil([&] { return SelectionOf(options, kFormat) == 4; }));
    Press('K'); // the clipboard is watched no longer
    ASSERT_TRUE(WaitUntil([&] { return !IsChecked(options, kMonitor); }));
    Press('V');
    ASSERT_TRUE(WaitUntil([&] { return IsChecked(options, kTaskNames); }));
    ASSERT_TRUE(Confirm(options));

    EXPECT_TRUE(WaitUntil([&] { return ColourOfBar(bar) == kThemeColour; }));
    EXPECT_TRUE(::IsWindowVisible(Control(bar, kClock)));
    EXPECT_EQ(ReadNumber(kSettings, L"DefaultBarColor"), 0U);
    EXPECT_EQ(ReadNumber(kSettings, L"ShowTimeBarClock"), 1U);
    EXPECT_EQ(ReadNumber(kSettings, L"TimeBarClockFormat"), 4U);
    EXPECT_EQ(ReadNumber(kSettings, L"MonitorClipBoard"), 0U);
    EXPECT_EQ(ReadNumber(kSettings, L"TaskMenuAppName"), 1U);
    EXPECT_EQ(ReadNumber(kSettings, L"SaveListItemNum"), 5U);
}

TEST_F(Options, WriteEverySettingOfTheMainPage) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);

    ASSERT_TRUE(Confirm(options));

    EXPECT_EQ(ReadNumber(kSettings, L"DesktopBarEdge"), 0U);
    EXPECT_EQ(ReadNumber(kSettings, L"DesktopBarAutoHide"), 0U);
    EXPECT_EQ(ReadNumber(kSettings, L"DesktopBarAutoHideSecond"), 0U);
    EXPECT_EQ(ReadNumber(kSettings, L"DefaultBarColor"), 1U);
    EXPECT_TRUE(ReadNumber(kSettings, L"UserBarColor"));
    EXPECT_EQ(ReadNumber(kSettings, L"ShowTimeBarClock"), 0U);
    EXPECT_EQ(ReadNumber(kSettings, L"TimeBarClockFormat"), 0U);
    EXPECT_EQ(ReadNumber(kSettings, L"MonitorClipBoard"), 1U);
    EXPECT_EQ(ReadNumber(kSettings, L"TopMostWindow"), 0U);
    EXPECT_EQ(ReadNumber(kSettings, L"SaveRecentlyList"), 1U);
    EXPECT_EQ(ReadNumber(kSettings, L"SaveListItemNum"), 5U);
    EXPECT_EQ(ReadNumber(kSettings, L"ConfirmExitApp"), 1U);
    EXPECT_EQ(ReadNumber(kSettings, L"ConfirmExitWindows"), 1U);
    EXPECT_EQ(ReadNumber(kSettings, L"EnableEnterEvent"), 1U);
    EXPECT_EQ(ReadNumber(kSettings, L"TaskMenuAppName"), 0U);
    EXPECT_EQ(ReadNumber(kPlacement, L"SaveWindowPlacement"), 0U);
    EXPECT_EQ(ReadNumber(kSettings, L"SaveWindowPlacement"), std::nullopt);
    EXPECT_EQ(AutoRunValue(), std::nullopt);
}

TEST_F(Options, LeaveEverythingAsItWasWhenTheyAreCancelled) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    const COLORREF before = ColourOfBar(bar);

    for (const WORD letter : {'U', 'K', 'T', 'S', 'M', 'W', 'E', 'P', 'R', 'V'}) Press(letter);
    ASSERT_TRUE(WaitUntil([&] { return IsChecked(options, kTaskNames); }));
    Press('C');
    PressKeys({VK_HOME});
    ASSERT_TRUE(WaitUntil([&] { return SelectionOf(options, kColour) == 0; }));
    ASSERT_TRUE(CancelByKey(options));

    EXPECT_EQ(ColourOfBar(bar), before);
    for (const wchar_t* const name :
         {L"DesktopBarAutoHide", L"MonitorClipBoard", L"TopMostWindow", L"SaveRecentlyList", L"ConfirmExitWindows",
          L"EnableEnterEvent", L"TaskMenuAppName", L"DefaultBarColor", L"DefaultSearchCommand"})
        EXPECT_EQ(ReadNumber(kSettings, name), std::nullopt) << name;
    EXPECT_EQ(ReadText(L"Settings\\LaunchMenuItem", L"LaunchMenu01"), std::nullopt);
    EXPECT_EQ(AutoRunValue(), std::nullopt);
}

TEST_F(Options, AreCancelledByTheirCloseBox) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    Press('V');
    ASSERT_TRUE(WaitUntil([&] { return IsChecked(options, kTaskNames); }));

    PressKeys({VK_MENU, VK_F4});

    ASSERT_TRUE(WaitUntilGone(options));
    EXPECT_EQ(ReadNumber(kSettings, L"TaskMenuAppName"), std::nullopt);
    EXPECT_TRUE(program.Running());
}

TEST_F(Options, StartWithWindowsOnlyWhileTheyAreToldTo) {
    const Program program;
    HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    Press('R');
    ASSERT_TRUE(WaitUntil([&] { return IsChecked(options, kAutoRun); }));
    ASSERT_TRUE(Confirm(options));
    const auto path = AutoRunValue();
    ASSERT_TRUE(path);
    EXPECT_TRUE(path->ends_with(L"\\korvane.exe")) << testing::PrintToString(*path);
    EXPECT_EQ(::GetFileAttributesW(path->c_str()) & FILE_ATTRIBUTE_DIRECTORY, 0U);

    options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    EXPECT_TRUE(IsChecked(options, kAutoRun));
    Press('R');
    ASSERT_TRUE(WaitUntil([&] { return !IsChecked(options, kAutoRun); }));
    ASSERT_TRUE(Confirm(options));
    EXPECT_EQ(AutoRunValue(), std::nullopt);
}

TEST_F(Options, InsistOnANumberOfHistoryItemsWhileTheyAreSaved) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_TRUE(EmptyTheLength(options));

    PressKeys({VK_RETURN});

    const auto box = program.WaitForBox(MessageBoxView{options});
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"オプション - 基本設定");
    EXPECT_EQ(box.Text(), L"コマンド入力ボックス および 検索ボックス の入力履歴の保存項目数が指定されていません。");
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    ASSERT_TRUE(box.Press(IDOK) && WaitForKeyboard(options));
    EXPECT_EQ(FocusOf(options), On(options, kLength));

    Press('S');
    ASSERT_TRUE(WaitUntil([&] { return !IsChecked(options, kSaveHistories); }));
    ASSERT_TRUE(Confirm(options));
    EXPECT_EQ(ReadNumber(kSettings, L"SaveListItemNum"), 0xFFFFFFFFU);
}

TEST_F(Options, ClearBothHistoriesAtOnce) {
    WriteSetting(kRecentSearches, L"ListItem01", L"前の検索");
    WriteSetting(kRecentCommands, L"ListItem01", L"前のコマンド");
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_TRUE(::IsWindowEnabled(On(options, kClearHistories)));

    Click(On(options, kClearHistories));
    const auto box = program.WaitForBox(MessageBoxView{options});
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Text(), L"[コマンド入力ボックス] と [検索ボックス] の現在の履歴をすべて消去します。よろしいですか？");
    EXPECT_EQ(box.Caption(), L"オプション - 基本設定");
    EXPECT_EQ(box.Icon(), BoxIcon::kQuestion);
    EXPECT_EQ(box.Buttons(), (std::vector<int>{IDYES, IDNO, IDCANCEL}));
    ASSERT_TRUE(box.Press(IDYES) && WaitForKeyboard(options));
    EXPECT_TRUE(WaitUntilEnabled(On(options, kClearHistories), false));

    ASSERT_TRUE(CancelByKey(options));
    ASSERT_TRUE(CloseBar(program));
    EXPECT_EQ(ReadText(kRecentSearches, L"ListItem01"), std::nullopt);
    EXPECT_EQ(ReadText(kRecentCommands, L"ListItem01"), std::nullopt);
}

TEST_F(Options, TakeEnterOnAPictureForItsOwnPress) {
    WriteSetting(kRecentSearches, L"ListItem01", L"前の検索");
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    Press('N');
    ASSERT_TRUE(WaitForFocus(On(options, kLength)));
    ASSERT_TRUE(TabTo(On(options, kClearHistories)));

    PressKeys({VK_RETURN});

    const auto box = program.WaitForBox(MessageBoxView{options});
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Icon(), BoxIcon::kQuestion);
    ASSERT_TRUE(box.Press(IDNO));
    EXPECT_TRUE(::IsWindowVisible(options));
    EXPECT_EQ(ReadNumber(kSettings, L"DefaultBarColor"), std::nullopt);
}

TEST_F(Options, AreNotTurnedByAClickWhileTheNumberIsMissing) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_TRUE(EmptyTheLength(options));

    // The third row of the tree.
    RECT tree{};
    ::GetWindowRect(::GetDlgItem(options, kOptionsTree), &tree);
    ::SetCursorPos(tree.left + 40, tree.top + 62);
    for (const DWORD flags : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        ::SendInput(1, &input, sizeof input);
    }

    const auto box = program.WaitForBox(MessageBoxView{options});
    ASSERT_TRUE(box);
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_TRUE(WaitForFocus(On(options, kLength)));
    EXPECT_EQ(TextOf(options), L"オプション - 基本設定");
}

TEST_F(Options, HaveNoHistoryToClearWhenThereIsNone) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);

    EXPECT_FALSE(::IsWindowEnabled(On(options, kClearHistories)));
}

TEST_F(Options, ShowTheClockAsItWillBe) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    Click(On(options, kShowClock));
    ASSERT_TRUE(WaitUntilEnabled(On(options, kFormat)));

    Press('F');
    PressKeys({VK_END});

    EXPECT_TRUE(WaitUntil([&] {
        SYSTEMTIME now{};
        ::GetLocalTime(&now);
        std::array<wchar_t, 20> date{};
        ::wsprintfW(date.data(), L"%02u/%02u/%02u", now.wYear, now.wMonth, now.wDay);
        return TextOn(options, kSample) == date.data();
    }));
}

TEST_F(Options, MoveTheDockedBarToTheOtherEdge) {
    StartDocked();
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    RECT before{};
    ::GetWindowRect(bar, &before);
    ASSERT_EQ(before.top, 0);

    Press('O');
    ASSERT_TRUE(WaitForFocus(On(options, kEdge)));
    PressKeys({VK_END});
    ASSERT_TRUE(WaitUntil([&] { return SelectionOf(options, kEdge) == 1; }));
    ASSERT_TRUE(Confirm(options));

    EXPECT_TRUE(WaitUntil([&] {
        RECT now{};
        ::GetWindowRect(bar, &now);
        return now.top > 0 && now.bottom - now.top == 32;
    }));
}

TEST_F(Options, OpenTheHelpOfTheirPageWithF1) {
    const HelpRecorder help;
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);
    PressKeys({VK_TAB});
    ASSERT_TRUE(WaitForFocus(On(options, 1057)));

    PressKeys({VK_F1});

    EXPECT_TRUE(WaitUntil([] {
        for (const std::wstring& call : HelpRecorder::WaitForCalls(2))
            if (call.find(L"optextra.html > Korvane_HelpWindow") != std::wstring::npos) return true;
        return false;
    }));
}

TEST_F(Options, OutliveAChangeOfTheScreen) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);

    for (const HWND window : {bar, options}) ::PostMessageW(window, WM_DISPLAYCHANGE, 32, MAKELPARAM(1920, 1080));
    ASSERT_TRUE(WaitUntilIdle(options));

    EXPECT_TRUE(::IsWindowVisible(options));
    EXPECT_TRUE(Confirm(options));
}

TEST_F(Options, GoWithTheBar) {
    const Program program;
    ASSERT_NE(Open(program, kMainOptions), nullptr);

    EXPECT_TRUE(CloseBar(program));

    EXPECT_EQ(ReadNumber(kSettings, L"DefaultBarColor"), std::nullopt);
}

class OptionsOfTheDockedBar : public DockedBar {};

TEST_F(OptionsOfTheDockedBar, KeepItOutWhileTheyAreOpen) {
    HideAutomatically();
    WriteSetting(kSettings, L"DesktopBarAutoHideSecond", 19);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    const std::string strip = TopOf(screen_, 1);
    ASSERT_EQ(PlaceIn(bar, strip), strip);
    ASSERT_TRUE(SlideOut(bar, TopOf(screen_)));

    Command(bar, kMainOptions);
    const HWND options = WaitForDialogWith(program, kOptionsTree);
    ASSERT_NE(options, nullptr);
    PutMouse(width_ / 2, height_ - 100);
    constexpr UINT_PTR kHideCheck = 1;
    ::SendMessageW(bar, WM_TIMER, kHideCheck, 0);

    EXPECT_EQ(PlaceOf(bar), TopOf(screen_));
    PressKeys({VK_ESCAPE});
    ASSERT_TRUE(WaitUntilGone(options));
    ::SendMessageW(bar, WM_TIMER, kHideCheck, 0);
    EXPECT_EQ(PlaceIn(bar, strip), strip);
}

TEST_F(OptionsOfTheDockedBar, MakeItHideItself) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ::SetForegroundWindow(bar);
    Command(bar, kMainOptions);
    const HWND options = WaitForDialogWith(program, kOptionsTree);
    ASSERT_NE(options, nullptr);

    PressKeys({VK_MENU, 'U'});
    ASSERT_TRUE(ClickAway(options, kOptionsOk));
    PutMouse(width_ / 2, height_ / 2);

    const std::string strip = TopOf(screen_, 1);
    EXPECT_EQ(PlaceIn(bar, strip), strip);
    EXPECT_EQ(ReadNumber(kSettings, L"DesktopBarAutoHide"), 1U);
}

} // namespace
} // namespace korvane::test
