#include "tests/program/bar_driver.h"
#include "tests/program/bar_picture.h"

namespace korvane::test {
namespace {

class Bar : public ProgramTest {};

TEST_F(Bar, HasAllItsControls) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    int children = 0;
    for (HWND child = ::GetWindow(bar, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) ++children;

    EXPECT_EQ(children, static_cast<int>(kControls.size()));
    for (int id : kControls) {
        const HWND control = ::GetDlgItem(bar, id);
        ASSERT_NE(control, nullptr) << id;
        constexpr LONG kEveryControl = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
        EXPECT_EQ(::GetWindowLongW(control, GWL_STYLE) & kEveryControl, kEveryControl) << id;
    }
}

TEST_F(Bar, GivesItsControlsTheirClassesAndStyles) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(ClassOf(Control(bar, kClock)), L"TimeBar_WndClass");
    EXPECT_EQ(ClassOf(Control(bar, kExit)), L"ExitButton_WndClass");
    for (ControlId box : {kCommandBox, kSearchBox}) {
        constexpr LONG kBoxStyle = WS_TABSTOP | ES_AUTOHSCROLL;
        EXPECT_EQ(::GetWindowLongW(Control(bar, box), GWL_STYLE) & kBoxStyle, kBoxStyle) << box;
        EXPECT_EQ(::SendMessageW(Control(bar, box), EM_GETLINECOUNT, 0, 0), 1) << box;
    }
}

TEST_F(Bar, NamesItsControls) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    const auto text = [&](ControlId id) { return TextOf(Control(bar, id)); };
    EXPECT_EQ(text(kMainMenu), L"Korvane メニュー");
    EXPECT_EQ(text(kCommandHistory), L"コマンド履歴");
    EXPECT_EQ(text(kSearchHistory), L"検索履歴");
    EXPECT_EQ(text(kRun), L"実行");
    EXPECT_EQ(text(kSearch), L"検索");
    EXPECT_EQ(text(kControlPanel), L"コントロール パネル");
    EXPECT_EQ(text(kOptions), L"オプション");
    EXPECT_EQ(text(kHelp), L"ヘルプ 目次");
    EXPECT_EQ(text(kExit), L"終了");
    EXPECT_EQ(text(kCommandBox), L"");
    EXPECT_EQ(text(kSearchBox), L"");
}

TEST_F(Bar, ShowsTheFirstSearchCommandOnTheChooser) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(TextOf(Control(bar, kSearchChooser)), L"百科");
}

TEST_F(Bar, PutsTheUsersOwnSearchCommandsFirst) {
    WriteDataFile(L"UserCommand.dat", L"[SearchCommand_01]\r\nCommandName=自作\r\n"
                                      L"CommandLine=http://own.example/<%Search%>\r\nComment=test\r\n\r\n");
    WriteSetting(kSettings, L"UserSearchCommand", L"1,");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(TextOf(Control(bar, kSearchChooser)), L"自作");
}

TEST_F(Bar, FollowsTheWidthOfTheFloatingWindow) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    ASSERT_TRUE(SetClientWidth(bar, 1024));
    EXPECT_EQ(PictureOf(bar), kFloating1024);

    ASSERT_TRUE(SetClientWidth(bar, 1280));
    EXPECT_EQ(PictureOf(bar), kFloating1280);

    ASSERT_TRUE(SetClientWidth(bar, 1900));
    EXPECT_EQ(PictureOf(bar), kFloating1900);
}

TEST_F(Bar, HasLowerDropButtonsFromWindows8On) {
    PretendWindowsIs(L"win8");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    ASSERT_TRUE(SetClientWidth(bar, 1280));

    EXPECT_EQ(PictureOf(bar), kFloatingOnWindows8At1280);
}

TEST_F(Bar, MakesRoomForTheClock) {
    WriteSetting(kSettings, L"ShowTimeBarClock", 1);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    ASSERT_TRUE(SetClientWidth(bar, 1280));

    EXPECT_EQ(PictureOf(bar), kFloatingWithClock1280);
}

class BoxButtons : public ProgramTest, public testing::WithParamInterface<int> {};

TEST_P(BoxButtons, AreEnabledExactlyWhileTheBoxHoldsText) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    const HWND box = ::GetDlgItem(bar, GetParam());
    const HWND button = ::GetDlgItem(bar, GetParam() + 4);
    EXPECT_FALSE(::IsWindowEnabled(button));

    ASSERT_TRUE(TypeInto(box, L"a"));
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(button); }));

    PressKeys({VK_BACK});
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindowEnabled(button); }));
}

INSTANTIATE_TEST_SUITE_P(Of, BoxButtons, testing::Values(int{kCommandBox}, int{kSearchBox}),
                         [](const auto& test) { return test.param == kCommandBox ? "CommandBox" : "SearchBox"; });

class BarToolTips : public ProgramTest {
protected:
    // What the tooltips on view say that belong to the program.
    [[nodiscard]] static std::vector<HWND> Shown(const Program& program) {
        return WindowsOf(program.Id(), L"tooltips_class32");
    }
    // A mouse that moves over a control until its tooltip comes.
    [[nodiscard]] static bool PointAt(const Program& program, HWND control) {
        RECT place{};
        ::GetWindowRect(control, &place);
        auto point = [&place, step = 4]() mutable {
            step = step == 4 ? 8 : 4;
            ::SetCursorPos(place.left + step, place.top + step);
            ::SetCursorPos(place.left + step + 1, place.top + step + 1);
        };
        return RepeatUntil(point, [&] { return !Shown(program).empty(); });
    }
};

TEST_F(BarToolTips, ExplainTheGreyedButtonsToo) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    for (const ControlId id : {kRun, kSearch}) {
        ASSERT_FALSE(::IsWindowEnabled(Control(bar, id)));

        EXPECT_TRUE(PointAt(program, Control(bar, id))) << id;

        ::SetCursorPos(5, 700);
        EXPECT_TRUE(WaitUntil([&] { return Shown(program).empty(); }));
    }
}

TEST_F(BarToolTips, VanishWithAKey) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kCommandBox)));
    ASSERT_TRUE(PointAt(program, Control(bar, kHelp)));

    TypeText(L"a");

    EXPECT_TRUE(WaitUntil([&] { return Shown(program).empty(); }));
}

TEST_F(BarToolTips, VanishWhenAMenuOpensByKey) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kCommandBox)));
    ASSERT_TRUE(PointAt(program, Control(bar, kHelp)));

    // A tooltip that goes can take the menu along: the display server hands out the focus anew then.
    EXPECT_TRUE(RepeatUntil([] { PressKeys({VK_F10}); }, [] { return OpenMenu() != nullptr; }));
    EXPECT_TRUE(WaitUntil([&] { return Shown(program).empty(); }));
    PressKeys({VK_ESCAPE});
}

} // namespace
} // namespace korvane::test
