#include "framework/themed.h"

#include <gtest/gtest.h>

#include "tests/support/window_test.h"

namespace fw {
namespace {

class ThemedWindow final : public Window<ThemedWindow>, public Themed<ThemedWindow> {
public:
    static constexpr WindowClass kClass{.name = L"KorvaneTestThemed_WndClass"};
    static constexpr auto Messages() {
        return MessageMap{
            On<WM_CREATE>(&ThemedWindow::OnCreate),
            Chain<Themed<ThemedWindow>>(),
        };
    }
    const wchar_t* ThemeClasses() const {
        ++asked;
        return classes;
    }
    const wchar_t* classes = L"BUTTON";
    mutable int asked = 0;

private:
    void OnCreate(const CREATESTRUCTW&) { OpenTheme(); }
};

class ThemedTest : public korvane::test::WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));
    }
    ThemedWindow window;
};

TEST_F(ThemedTest, OpensItsThemeAnewWhenTheStyleChanges) {
    const bool before = static_cast<bool>(window.CurrentTheme());

    Send(window.Handle(), WM_THEMECHANGED);

    EXPECT_EQ(window.asked, 2);
    EXPECT_EQ(static_cast<bool>(window.CurrentTheme()), before);
}

TEST_F(ThemedTest, HasNoThemeWhereTheNewStyleLacksItsClass) {
    window.classes = L"NO SUCH CLASS";

    Send(window.Handle(), WM_THEMECHANGED);

    EXPECT_FALSE(window.CurrentTheme());
}

TEST_F(ThemedTest, GivesItsThemeUpWithItsWindow) {
    ::DestroyWindow(window.Handle());

    EXPECT_FALSE(window.CurrentTheme());
}

} // namespace
} // namespace fw
