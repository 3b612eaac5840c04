// Real keys where no window manager hands out the focus, see CMakeLists.txt.

#include "tests/program/bar_driver.h"
#include "tests/program/program_test.h"
#include "tests/support/other_window.h"

namespace korvane::test {
namespace {

class KeysOnAWineDesktop : public ProgramTest {
protected:
    static bool HasKeyboard(HWND control) {
        return WaitUntil([&] { return FocusOf(control) == control; });
    }
};

TEST_F(KeysOnAWineDesktop, OpenAHistoryThatStaysAndGiveItsBoxTheKeyboard) {
    WriteSetting(kRecentCommands, L"ListItem01", L"newest");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    PressKeys({VK_CONTROL, VK_F2});
    ASSERT_NE(HistoryList(program), nullptr);
    ASSERT_TRUE(WaitUntilIdle(bar));
    PressKeys({VK_RETURN});

    EXPECT_TRUE(HasKeyboard(Control(bar, kCommandBox)));
    EXPECT_EQ(TextOf(Control(bar, kCommandBox)), L"newest");
}

TEST_F(KeysOnAWineDesktop, BringTheUserToTheSearchBoxAndBack) {
    const OtherWindow other{L"other"};
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(other.TakeForeground());

    PressKeys({VK_MENU, VK_LWIN, 'Z'});
    ASSERT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
    TypeText(L"a");
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(bar, kSearchBox)) == L"a"; }));
    other.ForgetActivation();
    PressKeys({VK_ESCAPE});
    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(other.WaitUntilActivated());
}

TEST_F(KeysOnAWineDesktop, AreBackInTheBoxWhenAMenuHasClosed) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));

    PressKeys({VK_F10});
    ASSERT_TRUE(WaitForMenu());
    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(WaitForNoMenu());
    EXPECT_TRUE(HasKeyboard(Control(bar, kSearchBox)));
}

} // namespace
} // namespace korvane::test
