// Where the keyboard is and what its keys do, with real keys and clicks.
#include <windows.h>

#include <commctrl.h>

#include "tests/program/bar_driver.h"
#include "tests/program/program_test.h"
#include "tests/support/other_window.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class Keyboard : public ProgramTest {
protected:
    void SetUp() override {
        ProgramTest::SetUp();
        CloseWithoutQuestion();
    }
    static StartOptions WithRecorderInThePath() { return {.searchPath = recorder::Folder()}; }
    static bool Holds(HWND box, const std::wstring& text) {
        return WaitUntil([&] { return TextOf(box) == text; });
    }
    static testing::AssertionResult HasKeyboard(HWND control) {
        const HWND bar = ::GetParent(control);
        const auto has = [&] { return FocusOf(control) == control && ::GetForegroundWindow() == bar; };
        // A busy window manager may forget the bar when a window above it has gone; a user would click it then.
        constexpr std::chrono::seconds kForTheWindowManager{5};
        if (WaitUntil(has, kForTheWindowManager) || (::SetForegroundWindow(bar) && WaitUntil(has)))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "the focus is on " << ::GetDlgCtrlID(FocusOf(control))
                                           << (::GetForegroundWindow() == bar ? "" : ", and the bar is not in front");
    }
    static std::wstring Searched(const std::wstring& encoded) {
        return recorder::CommandLineFor(L"http", L"http://encyclopedia.example/find?q=" + encoded + L"&lang=ja");
    }
};

TEST_F(Keyboard, IsInTheBoxThatHadItWhenAMenuHasClosed) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    for (const ControlId button : {kMainMenu, kControlPanel, kSearchChooser}) {
        ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));
        ASSERT_TRUE(ClickUntil(Control(bar, button), [] { return OpenMenu() != nullptr; }));

        PressKeys({VK_ESCAPE});

        ASSERT_TRUE(WaitForNoMenu()) << button;
        EXPECT_TRUE(HasKeyboard(Control(bar, kSearchBox))) << button;
    }
}

TEST_F(Keyboard, IsInTheSearchBoxWithAllOfItSelectedAfterASearchCommandWasChosen) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kCommandBox)));

    PressKeys({VK_CONTROL, VK_F4});
    ASSERT_TRUE(WaitForMenu());
    PressKeys({VK_DOWN});
    PressKeys({VK_RETURN});
    ASSERT_TRUE(WaitForNoMenu());
    ASSERT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
    TypeText(L"a");
    ASSERT_TRUE(Holds(Control(bar, kSearchBox), L"a"));
    PressKeys({VK_RETURN});

    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(Searched(L"%61")));
}

TEST_F(Keyboard, IsInTheBoxOfTheHistoryAfterAPickFromIt) {
    WriteSetting(kRecentCommands, L"ListItem01", L"rec.exe picked");
    const Program program{WithRecorderInThePath()};
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kSearchBox), L"another box"));

    PressKeys({VK_CONTROL, VK_F2});
    ASSERT_TRUE(HistoryList(program) != nullptr);
    PressKeys({VK_RETURN});
    ASSERT_TRUE(HasKeyboard(Control(bar, kCommandBox)));
    PressKeys({VK_RETURN});

    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(L"rec.exe picked"));
}

TEST_F(Keyboard, StaysInTheOtherBoxWhenAHistoryIsLeftWithoutAPick) {
    WriteSetting(kRecentCommands, L"ListItem01", L"rec.exe");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    PressKeys({VK_CONTROL, VK_F2});
    ASSERT_TRUE(HistoryList(program) != nullptr);
    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
}

TEST_F(Keyboard, IsInTheBoxAgainWhenTheCalendarHasClosed) {
    WriteSetting(kSettings, L"ShowTimeBarClock", 1);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    ASSERT_TRUE(ClickUntil(Control(bar, kClock), [&] { return program.ShowsBox(); }));
    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
}

TEST_F(Keyboard, OpensTheHistoryWithTheArrowsAsAComboBoxDoes) {
    WriteSetting(kRecentSearches, L"ListItem01", L"newest");
    WriteSetting(kRecentSearches, L"ListItem02", L"older");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    PressKeys({VK_DOWN});
    ASSERT_TRUE(HistoryList(program) != nullptr);
    PressKeys({VK_DOWN});
    PressKeys({VK_RETURN});

    EXPECT_TRUE(Holds(Control(bar, kSearchBox), L"older"));
    EXPECT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
}

TEST_F(Keyboard, RemovesAHistoryEntryWithDelForGood) {
    WriteSetting(kRecentSearches, L"ListItem01", L"secret");
    WriteSetting(kRecentSearches, L"ListItem02", L"older");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));
    PressKeys({VK_CONTROL, VK_F5});
    const HWND list = HistoryList(program);
    ASSERT_NE(list, nullptr);
    ASSERT_TRUE(WaitUntil([&] { return ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) == 3; }));

    PressKeys({VK_DELETE});
    ASSERT_TRUE(WaitUntil([&] { return ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) == 2; }));
    PressKeys({VK_ESCAPE});
    ASSERT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
    Close(bar);

    ASSERT_EQ(program.WaitForExit(), 0u);
    EXPECT_EQ(ReadText(kRecentSearches, L"ListItem01"), L"older");
    EXPECT_EQ(ReadText(kRecentSearches, L"ListItem02"), std::nullopt);
}

TEST_F(Keyboard, SelectsTheCommandThatFailedSoThatTypingReplacesIt) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kCommandBox), L"no-such-program-anywhere"));
    PressKeys({VK_RETURN});
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    ASSERT_TRUE(box.Press(IDOK));
    ASSERT_TRUE(HasKeyboard(Control(bar, kCommandBox)));

    EXPECT_TRUE(RepeatUntil([] { TypeText(L"x"); }, [&] { return TextOf(Control(bar, kCommandBox)) == L"x"; }));
}

TEST_F(Keyboard, StartsACommandOnceHoweverLongEnterIsHeld) {
    const Program program{WithRecorderInThePath()};
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kCommandBox), L"rec.exe once"));

    HoldKey(VK_RETURN, 5);
    ASSERT_THAT(recorder::WaitForCommandLines(1), SizeIs(1));
    // What a later command starts comes behind all that the held key may have started.
    TypeText(L"!");
    ASSERT_TRUE(Holds(Control(bar, kCommandBox), L"rec.exe once!"));
    PressKeys({VK_RETURN});

    EXPECT_THAT(recorder::WaitForCommandLines(2), ElementsAre(L"rec.exe once", L"rec.exe once!"));
}

TEST_F(Keyboard, EmptiesABoxWithEscapeAndThenGoesBackToTheOtherProgram) {
    const OtherWindow other{L"その他"};
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(other.TakeForeground());
    ASSERT_TRUE(TypeInto(Control(bar, kSearchBox), L"東京"));

    PressKeys({VK_ESCAPE});
    EXPECT_TRUE(Holds(Control(bar, kSearchBox), L""));
    EXPECT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
    other.ForgetActivation();
    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(other.WaitUntilActivated());
}

TEST_F(Keyboard, ComesToTheSearchBoxWithTheHotKeyAndGoesBackWithEscape) {
    const OtherWindow other{L"その他"};
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kSearchBox), L"earlier"));
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kCommandBox)));
    ASSERT_TRUE(other.TakeForeground());

    PressKeys({VK_MENU, VK_LWIN, 'Z'});
    ASSERT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
    TypeText(L"new");
    EXPECT_TRUE(Holds(Control(bar, kSearchBox), L"new"));
    PressKeys({VK_ESCAPE});
    ASSERT_TRUE(Holds(Control(bar, kSearchBox), L""));
    other.ForgetActivation();
    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(other.WaitUntilActivated());
}

TEST_F(Keyboard, GoesBackAtOnceFromATextThatWasOnlyLookedAt) {
    const OtherWindow other{L"その他"};
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kSearchBox), L"earlier"));
    ASSERT_TRUE(other.TakeForeground());
    PressKeys({VK_MENU, VK_LWIN, 'Z'});
    ASSERT_TRUE(HasKeyboard(Control(bar, kSearchBox)));

    other.ForgetActivation();
    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(other.WaitUntilActivated());
    EXPECT_EQ(TextOf(Control(bar, kSearchBox)), L"earlier");
}

TEST_F(Keyboard, WalksAlongTheButtonsWithF6AndTheArrowsAndPressesThem) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    // The search button is disabled while its box is empty.
    PressKeys({VK_F6});
    ASSERT_TRUE(HasKeyboard(Control(bar, kSearchHistory)));
    PressKeys({VK_RIGHT});
    ASSERT_TRUE(HasKeyboard(Control(bar, kControlPanel)));
    PressKeys({VK_LEFT});
    PressKeys({VK_SHIFT, VK_F6});
    ASSERT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
    for (int i = 0; i < 2; ++i) PressKeys({VK_F6});
    ASSERT_TRUE(HasKeyboard(Control(bar, kControlPanel)));
    PressKeys({VK_RETURN});
    ASSERT_TRUE(WaitForMenu());
    PressKeys({VK_ESCAPE});

    ASSERT_TRUE(WaitForNoMenu());
    EXPECT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
}

TEST_F(Keyboard, LeavesTheButtonsForTheBoxWithEscape) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));
    PressKeys({VK_F6});
    ASSERT_TRUE(HasKeyboard(Control(bar, kSearchHistory)));

    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
}

TEST_F(Keyboard, StartsAButtonsProgramWithTheSpaceBar) {
    WriteSetting(L"Settings\\LaunchMenuItem", L"LaunchMenu01",
                 recorder::Folder() + L"\\rec.exe,first, ,notepad.exe,0,記録係");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));
    for (int i = 0; i < 3; ++i) PressKeys({VK_F6});
    ASSERT_TRUE(HasKeyboard(Control(bar, kLaunch1)));

    PressKeys({VK_SPACE});

    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(testing::EndsWith(L"rec.exe\" first")));
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(bar) != Control(bar, kLaunch1); }));
}

TEST_F(Keyboard, KeepsTabBetweenTheBoxes) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kCommandBox)));

    PressKeys({VK_TAB});
    ASSERT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
    PressKeys({VK_TAB});

    EXPECT_TRUE(HasKeyboard(Control(bar, kCommandBox)));
}

TEST_F(Keyboard, OpensTheMainMenuWithF10) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kCommandBox)));

    PressKeys({VK_F10});
    ASSERT_TRUE(WaitForMenu());
    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(WaitForNoMenu());
    EXPECT_TRUE(HasKeyboard(Control(bar, kCommandBox)));
}

TEST_F(Keyboard, IsWhereTheFirstClickSelectsAll) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kSearchBox), L"earlier"));
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kCommandBox)));
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    TypeText(L"new");

    EXPECT_TRUE(Holds(Control(bar, kSearchBox), L"new"));
}

// What the right button and the wheel do.
using Mouse = Keyboard;

TEST_F(Mouse, OpensTheMainMenuWithTheRightButtonOnTheBar) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    for (const ControlId control : {kOptions, kMainMenu}) {
        ASSERT_TRUE(RightClickForMenu(Control(bar, control)));
        // About the program, which only the main menu has.
        ASSERT_TRUE(ChooseByKey('A')) << control;
        const HWND about = WaitForDialog(program);
        ASSERT_NE(about, nullptr) << control;
        ::PostMessageW(about, WM_COMMAND, IDCANCEL, 0);
        ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(about) && ::IsWindowEnabled(bar); })) << control;
    }
}

TEST_F(Mouse, StartsALaunchButtonsItemFromItsOwnMenu) {
    WriteSetting(L"Settings\\LaunchMenuItem", L"LaunchMenu02",
                 recorder::Folder() + L"\\rec.exe,second, ,notepad.exe,0,記録係");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    ASSERT_TRUE(RightClickForMenu(Control(bar, kLaunch2)));
    ASSERT_TRUE(ChooseByKey('O'));

    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(testing::EndsWith(L"rec.exe\" second")));
}

TEST_F(Mouse, EditsALaunchButtonsItemFromItsOwnMenu) {
    const std::wstring program1 = recorder::Folder() + L"\\rec.exe";
    WriteSetting(L"Settings\\LaunchMenuItem", L"LaunchMenu01", program1 + L",first, ,notepad.exe,0,一番");
    WriteSetting(L"Settings\\LaunchMenuItem", L"LaunchMenu02", program1 + L",second, ,notepad.exe,0,二番");
    WriteSetting(L"Settings\\LaunchMenuItem", L"LaunchMenu03", program1 + L",third, ,notepad.exe,0,三番");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    ASSERT_TRUE(RightClickForMenu(Control(bar, kLaunch2)));
    ASSERT_TRUE(ChooseByKey('E'));
    const HWND editor = WaitForDialog(program);
    ASSERT_NE(editor, nullptr);
    const HWND name = WaitUntil([&] { return ChildWithText(editor, L"二番"); });
    ASSERT_NE(name, nullptr);
    ::SendMessageW(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"新しい名前"));
    ::PostMessageW(editor, WM_COMMAND, IDOK, 0);

    EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(bar, kLaunch2)) == L"新しい名前"; }));
    EXPECT_EQ(ReadText(L"Settings\\LaunchMenuItem", L"LaunchMenu02"), program1 + L",second, ,notepad.exe,0,新しい名前");
    EXPECT_EQ(ReadText(L"Settings\\LaunchMenuItem", L"LaunchMenu03"), program1 + L",third, ,notepad.exe,0,三番");
}

TEST_F(Mouse, OpensTheFolderOfALaunchButtonsItem) {
    WriteSetting(L"Settings\\LaunchMenuItem", L"LaunchMenu01",
                 recorder::Folder() + L"\\rec.exe,first, ,notepad.exe,0,一番");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    ASSERT_TRUE(RightClickForMenu(Control(bar, kLaunch1)));
    ASSERT_TRUE(ChooseByKey('F'));

    const auto lines = recorder::WaitForCommandLines(1);
    ASSERT_THAT(lines, SizeIs(1));
    EXPECT_THAT(lines.front(), testing::HasSubstr(recorder::Folder() + L"\\\""));
}

TEST_F(Mouse, ChangesTheSearchCommandWithTheWheelOverTheChooser) {
    WriteSetting(kSettings, L"DefaultSearchCommand", L"1,2,");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kCommandBox)));
    ASSERT_EQ(TextOf(Control(bar, kSearchChooser)), L"百科");

    const HWND chooser = Control(bar, kSearchChooser);
    EXPECT_TRUE(RepeatUntil([&] { TurnWheel(chooser, -1); }, [&] { return TextOf(chooser) == L"地図"; }));
    EXPECT_TRUE(RepeatUntil([&] { TurnWheel(chooser, 1); }, [&] { return TextOf(chooser) == L"百科"; }));

    EXPECT_TRUE(HasKeyboard(Control(bar, kCommandBox)));
}

} // namespace
} // namespace korvane::test
