// The options on a screen that is too low for them. The suite is started on a desktop that was prepared for it, see
// CMakeLists.txt.

#include "tests/program/options_driver.h"

namespace korvane::test {
namespace {

constexpr int kEdge = 1045;
constexpr int kTaskNames = 1068;

// A screen of 1,080 lines at 200 %, less the task bar.
class OptionsAtTwiceTheSize : public OptionsTest {
protected:
    void SetUp() override {
        OptionsTest::SetUp();
        ASSERT_EQ(::GetSystemMetrics(SM_CYSCREEN), 1000);
        ASSERT_EQ(::GetDeviceCaps(fw::WindowDc{nullptr}.Get(), LOGPIXELSY), 192);
    }
    static bool IsOnTheScreen(HWND window) {
        // The window manager moves what stands at the very edge by a pixel.
        const base::Rect screen{-1, -1, ::GetSystemMetrics(SM_CXSCREEN) + 1, ::GetSystemMetrics(SM_CYSCREEN) + 1};
        const base::Rect place = fw::WindowRect(window);
        return base::Intersection(screen, place) == place;
    }
    // What of a page is on view.
    static base::Rect ShownPartOf(HWND page) {
        RECT client{};
        const HWND around = ::GetParent(page);
        ::GetClientRect(around, &client);
        ::MapWindowPoints(around, nullptr, reinterpret_cast<POINT*>(&client), 2);
        return base::Intersection(fw::FromWindows(client), fw::WindowRect(page));
    }
};

TEST_F(OptionsAtTwiceTheSize, AreOnTheScreenWithTheirButtons) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);

    EXPECT_TRUE(IsOnTheScreen(options));
    for (const int id : {kOptionsOk, kOptionsCancel, kOptionsHelp})
        EXPECT_TRUE(IsOnTheScreen(::GetDlgItem(options, id))) << id;
    EXPECT_LT(ShownPartOf(PageOf(options)).Height(), fw::WindowRect(PageOf(options)).Height());

    ASSERT_TRUE(CancelByKey(options));
    EXPECT_TRUE(CloseBar(program));
}

TEST_F(OptionsAtTwiceTheSize, ShowTheControlThatTheKeyboardGoesTo) {
    const Program program;
    const HWND options = Open(program, kMainOptions);
    ASSERT_NE(options, nullptr);
    const HWND last = On(options, kTaskNames);
    const auto onView = [&](HWND control) {
        const base::Rect place = fw::WindowRect(control);
        return base::Intersection(ShownPartOf(PageOf(options)), place) == place;
    };
    EXPECT_FALSE(onView(last));

    Press('V');
    EXPECT_TRUE(WaitUntil([&] { return onView(last); }));
    EXPECT_TRUE(WaitUntil([&] { return IsChecked(options, kTaskNames); }));
    Press('O');
    EXPECT_TRUE(WaitUntil([&] { return onView(On(options, kEdge)) && !onView(last); }));

    ASSERT_TRUE(Confirm(options));
    EXPECT_EQ(ReadNumber(kSettings, L"TaskMenuAppName"), 1U);
    EXPECT_TRUE(CloseBar(program));
}

TEST_F(OptionsAtTwiceTheSize, HaveDialogsThatAreOnTheScreen) {
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);

    Press('I');
    const HWND import = WaitForDialogWith(program, 1057);
    ASSERT_NE(import, nullptr);
    EXPECT_TRUE(IsOnTheScreen(import));
    PressKeys({VK_ESCAPE});
    ASSERT_TRUE(WaitUntilGone(import));

    ASSERT_TRUE(WaitForKeyboard(options) && CancelByKey(options));
    EXPECT_TRUE(CloseBar(program));
}

} // namespace
} // namespace korvane::test
