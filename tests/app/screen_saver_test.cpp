#include "app/screen_saver.h"

#include <vector>

#include "framework/window.h"
#include "settings/registry_backend.h"
#include "tests/support/registry_test.h"

using namespace korvane;
using korvane::app::HasScreenSaver;

namespace {

// Stands for the desktop and writes down the system commands that it gets.
class DesktopDouble final : public fw::Window<DesktopDouble> {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneTestDesktop_WndClass"};
    static constexpr auto Messages() { return fw::MessageMap{fw::On<WM_SYSCOMMAND>(&DesktopDouble::OnSystemCommand)}; }

    std::vector<WPARAM> commands;

private:
    void OnSystemCommand(const fw::Message& message) { commands.push_back(message.wparam); }
};

class ScreenSaverTest : public test::RegistryTest {
protected:
    [[nodiscard]] bool Has() const { return HasScreenSaver(key.Root(), key.Path()); }

    settings::RegistryStore store{key.Root(), key.Path()};
};

} // namespace

TEST_F(ScreenSaverTest, IsNotThereWithoutItsKey) {
    EXPECT_FALSE(Has());
}

TEST_F(ScreenSaverTest, IsNotThereWithoutItsValue) {
    store.WriteText(L"Desktop", L"ScreenSaveActive", L"1");

    EXPECT_FALSE(Has());
}

TEST_F(ScreenSaverTest, IsNotThereWhenTheValueIsEmpty) {
    store.WriteText(L"Desktop", L"SCRNSAVE.EXE", L"");

    EXPECT_FALSE(Has());
}

TEST_F(ScreenSaverTest, IsNotThereWhenTheValueIsNoText) {
    store.WriteInt(L"Desktop", L"SCRNSAVE.EXE", 1);

    EXPECT_FALSE(Has());
}

TEST_F(ScreenSaverTest, IsThereWhenTheValueNamesOne) {
    store.WriteText(L"Desktop", L"SCRNSAVE.EXE", L"C:\\Windows\\system32\\Bubbles.scr");

    EXPECT_TRUE(Has());
}

TEST_F(ScreenSaverTest, IsLookedForWhereWindowsKeepsTheUsersChoice) {
    // A value of the test's own would change the user's; what is there is compared instead.
    const settings::RegistryStore desktop{HKEY_CURRENT_USER, L"Control Panel"};

    EXPECT_EQ(HasScreenSaver(), !desktop.ReadText(L"Desktop", L"SCRNSAVE.EXE").empty());
}

TEST_F(ScreenSaverTest, IsStartedByTheDesktop) {
    DesktopDouble desktop;
    ASSERT_TRUE(desktop.Create({.style = WS_POPUP}));

    app::StartScreenSaver(desktop.Handle());

    EXPECT_EQ(desktop.commands, std::vector<WPARAM>{SC_SCREENSAVE});
}
