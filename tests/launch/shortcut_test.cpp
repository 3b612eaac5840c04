#include "launch/shortcut.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/support/gdi_objects.h"
#include "tests/support/icon_file.h"
#include "tests/support/shortcut_file.h"
#include "tests/support/solid_icon.h"
#include "tests/support/temp_folder.h"

using namespace korvane;
using namespace korvane::launch;

namespace {

class ShortcutTest : public testing::Test {
protected:
    test::TempFolder folder;
    ShellShortcutReader reader;
    ShortcutRoots roots;

    void SetUp() override { ASSERT_TRUE(SUCCEEDED(::CoInitialize(nullptr))); }
    void TearDown() override { ::CoUninitialize(); }

    [[nodiscard]] std::wstring Icon(const wchar_t* name, COLORREF colour) const {
        folder.Write(name, test::IconFile(colour));
        return folder.File(name);
    }
    [[nodiscard]] ImportableItem Read(const std::wstring& name) { return reader.Read(folder.File(name), roots); }
    [[nodiscard]] ImportableItem WriteAndRead(const test::Shortcut& shortcut) {
        test::WriteShortcut(folder.File(L"s.lnk"), shortcut);
        return Read(L"s.lnk");
    }
    [[nodiscard]] std::wstring Target(const wchar_t* name = L"target.exe") const {
        folder.Write(name, "x");
        return folder.File(name);
    }
};

TEST_F(ShortcutTest, IsReadWithAllThatItSays) {
    const std::wstring icon = Icon(L"i.ico", RGB(10, 200, 30));
    const ImportableItem item = WriteAndRead(
        {.target = Target(), .arguments = L"/a \"日本 語\"", .workingFolder = L"C:\\windows", .iconFile = icon});

    EXPECT_EQ(item.name, L"s");
    EXPECT_EQ(item.path, Target());
    EXPECT_EQ(item.arguments, L"/a \"日本 語\"");
    EXPECT_EQ(item.workingFolder, L"C:\\windows");
    EXPECT_EQ(item.iconFile, icon);
    EXPECT_EQ(item.iconIndex, 0);
    EXPECT_TRUE(item.selectable);
    EXPECT_EQ(test::ColourOf(item.icon.Get()), RGB(10, 200, 30));
}

TEST_F(ShortcutTest, FindsAWorkingFolderThatIsNamedByVariables) {
    const ImportableItem item = WriteAndRead({.target = Target(), .workingFolder = L"%SystemRoot%\\system32"});

    EXPECT_EQ(item.workingFolder.find(L'%'), std::wstring::npos);
    EXPECT_TRUE(item.workingFolder.ends_with(L"\\system32"));
}

TEST_F(ShortcutTest, KeepsTheNumberOfItsIcon) {
    std::array<wchar_t, MAX_PATH> system{};
    ::GetSystemDirectoryW(system.data(), static_cast<UINT>(system.size()));

    const ImportableItem item =
        WriteAndRead({.target = Target(), .iconFile = std::wstring{system.data()} + L"\\shell32.dll", .iconIndex = 4});

    EXPECT_EQ(item.iconIndex, 4);
    EXPECT_TRUE(item.selectable);
}

TEST_F(ShortcutTest, TakesItsIconFromTheTargetWhenItNamesNone) {
    const std::wstring target = Icon(L"target.ico", RGB(1, 2, 250));

    const ImportableItem item = WriteAndRead({.target = target});

    EXPECT_EQ(item.iconFile, target);
    EXPECT_EQ(item.iconIndex, 0);
    EXPECT_TRUE(item.selectable);
    EXPECT_EQ(test::ColourOf(item.icon.Get()), RGB(1, 2, 250));
}

TEST_F(ShortcutTest, CannotBeSelectedWithoutAnIcon) {
    const ImportableItem item = WriteAndRead({.target = Target(), .iconFile = folder.File(L"gone.ico")});

    EXPECT_FALSE(item.selectable);
    EXPECT_FALSE(item.icon);
    EXPECT_EQ(item.name, L"s");
    EXPECT_EQ(item.path, Target());
}

TEST_F(ShortcutTest, CannotBeSelectedWhenItsIconsNumberIsTooLarge) {
    EXPECT_FALSE(WriteAndRead({.target = Target(), .iconFile = Icon(L"i.ico", 0), .iconIndex = 5000}).selectable);
}

// A launch item would take the number -1 for "none", and the list would end at it.
TEST_F(ShortcutTest, TakesTheFirstIconForOneThatALaunchItemCannotName) {
    const ImportableItem item =
        WriteAndRead({.target = Target(), .iconFile = Icon(L"i.ico", RGB(9, 9, 9)), .iconIndex = -1});

    EXPECT_EQ(item.iconIndex, 0);
    EXPECT_TRUE(item.selectable);
}

TEST_F(ShortcutTest, FindsAnIconThatIsNamedByVariables) {
    const ImportableItem item =
        WriteAndRead({.target = Target(), .iconFile = L"%SystemRoot%\\system32\\shell32.dll", .iconIndex = 3});

    EXPECT_TRUE(item.selectable);
    EXPECT_EQ(item.iconFile.find(L'%'), std::wstring::npos);
    EXPECT_EQ(item.iconIndex, 3);
}

TEST_F(ShortcutTest, CannotBeSelectedWithoutATarget) {
    const ImportableItem item = WriteAndRead({.arguments = L"x"});

    EXPECT_FALSE(item.selectable);
    EXPECT_TRUE(item.path.empty());
}

TEST_F(ShortcutTest, CannotBeSelectedWhenALaunchItemWouldNotReadBack) {
    const ImportableItem item = WriteAndRead(
        {.target = Target(), .arguments = L"shell32.dll,Control_RunDLL", .iconFile = Icon(L"i.ico", RGB(9, 9, 9))});

    EXPECT_FALSE(item.selectable);
    EXPECT_TRUE(item.icon);
}

TEST_F(ShortcutTest, IsListedByNameWhenItIsDamaged) {
    folder.Write(L"empty.lnk", "");
    folder.Write(L"damaged.lnk", "this is not a shortcut at all, but long enough to hold the head of one: "
                                 "0123456789012345678901234567890123456789");

    for (const wchar_t* const name : {L"empty", L"damaged", L"missing"}) {
        const ImportableItem item = Read(std::wstring{name} + L".lnk");
        EXPECT_EQ(item.name, name);
        EXPECT_FALSE(item.selectable);
        EXPECT_FALSE(item.icon);
        EXPECT_TRUE(item.path.empty());
    }
}

TEST_F(ShortcutTest, IsListedByNameWhenItsPathIsTooLong) {
    const ImportableItem item = reader.Read(L"C:\\" + std::wstring(400, L'a') + L"\\long.lnk", roots);

    EXPECT_EQ(item.name, L"long");
    EXPECT_FALSE(item.selectable);
}

TEST_F(ShortcutTest, SurvivesArgumentsThatAreLongerThanItTakes) {
    const ImportableItem item = WriteAndRead(
        {.target = Target(), .arguments = std::wstring(2000, L'x'), .iconFile = Icon(L"i.ico", RGB(9, 9, 9))});

    EXPECT_LT(item.arguments.size(), 260U);
    EXPECT_EQ(item.path, Target());
}

TEST_F(ShortcutTest, DoesNotAskASharedFolderThatIsToBeLeftAlone) {
    ASSERT_TRUE(roots.BeginAsking(L"\\\\korvane-test\\gone"));
    roots.GiveUpAsking();

    const ImportableItem item = WriteAndRead({.target = Target(), .iconFile = L"\\\\KORVANE-test\\gone\\i.ico"});

    EXPECT_FALSE(item.selectable);
    EXPECT_EQ(item.path, Target());
}

TEST_F(ShortcutTest, ReleasesTheIconsThatItGot) {
    test::WriteShortcut(folder.File(L"s.lnk"), {.target = Target(), .iconFile = Icon(L"i.ico", RGB(9, 9, 9))});
    (void)Read(L"s.lnk");
    const int before = test::GdiObjectCount();

    for (int i = 0; i < 50; ++i) EXPECT_TRUE(Read(L"s.lnk").selectable);

    EXPECT_EQ(test::GdiObjectCount(), before);
}

TEST(ShortcutRoots, AreAskedAgainWhileTheyAnswerQuickly) {
    ShortcutRoots roots;
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(roots.BeginAsking(L"\\\\a\\b"));
        roots.EndAsking(L"\\\\a\\b", std::chrono::milliseconds{1999}, false);
    }
    EXPECT_TRUE(roots.BeginAsking(L"\\\\a\\b"));
}

TEST(ShortcutRoots, AreAskedAgainWhenTheyAnswerSlowlyButRightly) {
    ShortcutRoots roots;
    EXPECT_TRUE(roots.BeginAsking(L"\\\\a\\b"));
    roots.EndAsking(L"\\\\a\\b", std::chrono::seconds{9}, true);

    EXPECT_TRUE(roots.BeginAsking(L"\\\\a\\b"));
}

TEST(ShortcutRoots, AreLeftAloneAfterALongWaitInVain) {
    ShortcutRoots roots;
    EXPECT_TRUE(roots.BeginAsking(L"\\\\a\\b"));
    roots.EndAsking(L"\\\\a\\b", std::chrono::seconds{2}, false);

    EXPECT_FALSE(roots.BeginAsking(L"\\\\a\\b"));
    EXPECT_TRUE(roots.BeginAsking(L"\\\\a\\c"));
}

TEST(ShortcutRoots, NeverLeaveThisComputersOwnDrivesAlone) {
    ShortcutRoots roots;
    EXPECT_TRUE(roots.BeginAsking(L""));
    roots.EndAsking(L"", std::chrono::seconds{30}, false);
    EXPECT_TRUE(roots.BeginAsking(L""));
    roots.GiveUpAsking();

    EXPECT_TRUE(roots.BeginAsking(L""));
}

} // namespace
