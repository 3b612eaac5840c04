#include "launch/launch_menu.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "framework/string_table.h"
#include "res/ids.h"
#include "tests/launch/launch_items.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/menu_owner.h"
#include "tests/support/wait.h"

using namespace korvane;
using namespace korvane::launch;

namespace {

class LaunchMenuTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(bar.Create()); }

    void Build() { BuildLaunchMenu(bar, items.store); }
    [[nodiscard]] int Count() const { return ::GetMenuItemCount(LaunchPopup(bar)); }
    [[nodiscard]] std::wstring TextAt(int position) const {
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_STRING | MIIM_FTYPE;
        EXPECT_TRUE(::GetMenuItemInfoW(LaunchPopup(bar), static_cast<UINT>(position), TRUE, &item)) << position;
        if ((item.fType & MFT_SEPARATOR) != 0) return L"-";
        std::wstring text(item.cch, L'\0');
        item.dwTypeData = text.data();
        ++item.cch;
        ::GetMenuItemInfoW(LaunchPopup(bar), static_cast<UINT>(position), TRUE, &item);
        return text;
    }
    [[nodiscard]] std::wstring Shown() const {
        std::wstring all;
        for (int at = 0; at < Count(); ++at) all += (at == 0 ? L"" : L"|") + TextAt(at);
        return all;
    }
    // The first pixel of a command's image, 0xAARRGGBB; 0 when it has none.
    [[nodiscard]] std::uint32_t ImagePixel(UINT command) {
        bar.OnInitMenuPopup(LaunchPopup(bar));
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_BITMAP;
        ::GetMenuItemInfoW(LaunchPopup(bar), command, FALSE, &item);
        DIBSECTION section{};
        if (::GetObjectW(item.hbmpItem, sizeof section, &section) != sizeof section) return 0;
        return *static_cast<const std::uint32_t*>(section.dsBm.bmBits);
    }
    [[nodiscard]] static std::uint32_t PixelOfItem(int number) {
        const COLORREF colour = test::LaunchItems::ColourOfItem(number);
        return 0xFF000000U | static_cast<std::uint32_t>(GetRValue(colour)) << 16 |
               static_cast<std::uint32_t>(GetGValue(colour)) << 8 | GetBValue(colour);
    }

    const std::wstring settings = L"[&0] ランチ メニューの設定...";
    fw::MenuImageStyle style = fw::MenuImageStyle::kBitmap;
    test::LaunchItems items;
    CAppMenuBar bar{[this] { return style; }};
};

TEST_F(LaunchMenuTest, IsTheSixthEntryOfTheMainMenu) {
    EXPECT_NE(LaunchPopup(bar), nullptr);
    EXPECT_EQ(LaunchPopup(bar), ::GetSubMenu(::GetSubMenu(bar.Menu(), 0), 5));
    EXPECT_EQ(::GetMenuItemID(LaunchPopup(bar), 0), UINT{ID_LAUNCH_SETTINGS});
}

TEST_F(LaunchMenuTest, HoldsOnlyTheSettingsForTheThreeDefaults) {
    Build();

    EXPECT_EQ(Shown(), settings);
    EXPECT_EQ(::GetMenuItemID(LaunchPopup(bar), 0), UINT{ID_LAUNCH_SETTINGS});
}

TEST_F(LaunchMenuTest, HoldsTheFourthItemASeparatorAndTheSettings) {
    items.PutWholeUpTo(4);

    Build();

    EXPECT_EQ(Shown(), L"[&1] n4|-|" + settings);
    EXPECT_EQ(::GetMenuItemID(LaunchPopup(bar), 0), 4028U);
    EXPECT_EQ(::GetMenuState(LaunchPopup(bar), 4028, MF_BYCOMMAND), UINT{MF_ENABLED});
}

TEST_F(LaunchMenuTest, HoldsFortyThreeEntriesForThirtyEightItems) {
    items.PutWholeUpTo(39);

    Build();

    ASSERT_EQ(Count(), 43);
    EXPECT_EQ(TextAt(0), L"[&1] n4");
    EXPECT_EQ(TextAt(8 + 1), L"[&9] n12");
    EXPECT_EQ(TextAt(9 + 1), L"[&A] n13");
    EXPECT_EQ(TextAt(40), L"[&Z] n38");
    for (const int separator : {5, 11, 17, 23, 29, 35, 41}) EXPECT_EQ(TextAt(separator), L"-");
    EXPECT_EQ(TextAt(42), settings);
    EXPECT_EQ(::GetMenuItemID(LaunchPopup(bar), 40), 4062U);
}

TEST_F(LaunchMenuTest, HasOneSeparatorAmongTenEntriesAndNoneAfterThem) {
    items.PutWholeUpTo(13);

    Build();

    EXPECT_EQ(Shown(),
              L"[&1] n4|[&2] n5|[&3] n6|[&4] n7|[&5] n8|-|[&6] n9|[&7] n10|[&8] n11|[&9] n12|[&A] n13|-|" + settings);
}

TEST_F(LaunchMenuTest, ShowsEveryItemWithItsOwnIcon) {
    items.PutWholeUpTo(38);

    Build();

    for (int number = 4; number <= 38; ++number)
        EXPECT_EQ(ImagePixel(static_cast<UINT>(4024 + number)), PixelOfItem(number)) << number;
}

TEST_F(LaunchMenuTest, DoesNotNeedTheLaunchButtons) {
    items.PutWholeUpTo(5);
    items.Put(2, L"no icon");

    Build();

    EXPECT_EQ(Shown(), L"[&1] n4|[&2] n5|-|" + settings);
}

TEST_F(LaunchMenuTest, EndsAtAnItemThatCannotBeRead) {
    items.PutWholeUpTo(8);
    items.Put(6, L"app.exe, , ,\\\\korvane.invalid\\share\\a.ico,0,Name");

    Build();

    EXPECT_EQ(Shown(), L"[&1] n4|[&2] n5|-|" + settings);
    EXPECT_EQ(ImagePixel(4030), 0U);
}

TEST_F(LaunchMenuTest, ForgetsTheItemsOfTheLastTimeAndTheirImages) {
    items.PutWholeUpTo(12);
    Build();
    ASSERT_NE(ImagePixel(4030), 0U);
    items.store.DeleteSection(settings::section::kLaunchItems);
    items.PutWhole(4);
    items.Put(5, items.LineOf(20, L"other"));

    Build();

    EXPECT_EQ(Shown(), L"[&1] n4|[&2] other|-|" + settings);
    EXPECT_EQ(ImagePixel(4029), PixelOfItem(20));
    // An item with that command would show an image that was left over.
    ::AppendMenuW(LaunchPopup(bar), MF_STRING, 4030, L"left over");
    EXPECT_EQ(ImagePixel(4030), 0U);
}

TEST_F(LaunchMenuTest, KeepsTheImageOfTheSettings) {
    bar.AddIcon(ID_LAUNCH_SETTINGS, test::AlphaIcon(0xFF102030).Get());

    Build();
    Build();

    EXPECT_EQ(ImagePixel(ID_LAUNCH_SETTINGS), 0xFF102030U);
}

TEST_F(LaunchMenuTest, LeavesTheRestOfTheMainMenuAsItIs) {
    const int before = ::GetMenuItemCount(bar.Popup(POPUP_MAIN));
    items.PutWholeUpTo(10);

    Build();

    EXPECT_EQ(::GetMenuItemCount(bar.Popup(POPUP_MAIN)), before);
}

TEST_F(LaunchMenuTest, IsNotBuiltWithoutAMenu) {
    items.PutWholeUpTo(5);
    CAppMenuBar none;

    BuildLaunchMenu(none, items.store);

    EXPECT_EQ(LaunchPopup(none), nullptr);
}

TEST_F(LaunchMenuTest, ReleasesWhatItReplaces) {
    items.PutWholeUpTo(38);
    Build();
    (void)ImagePixel(4028);
    const int before = test::GdiObjectCount();

    for (int again = 0; again < 5; ++again) {
        Build();
        (void)ImagePixel(4028);
    }

    EXPECT_EQ(test::GdiObjectCount(), before);
}

TEST_F(LaunchMenuTest, KeepsNamesOfThreeHundredCharacters) {
    const std::wstring name(300, L'長');
    items.Put(4, items.LineOf(4, name));

    Build();

    EXPECT_EQ(TextAt(0), L"[&1] " + name);
}

// Opened for the keyboard.
class OpenLaunchMenuTest : public LaunchMenuTest {
protected:
    void SetUp() override {
        LaunchMenuTest::SetUp();
        ASSERT_TRUE(owner.Create({.text = L"menus", .rect = {0, 0, 100, 100}, .style = WS_POPUP}));
        owner.init = [this](HMENU popup) { bar.OnInitMenuPopup(popup); };
        owner.measure = [this](MEASUREITEMSTRUCT& item) { return bar.OnMeasureItem(item); };
        owner.draw = [this](const DRAWITEMSTRUCT& item) { return bar.OnDrawItem(item); };
    }

    test::MenuOwner owner;
};

TEST_F(OpenLaunchMenuTest, ChoosesByPlace) {
    items.PutWholeUpTo(38);
    Build();

    for (const fw::MenuImageStyle each : {fw::MenuImageStyle::kBitmap, fw::MenuImageStyle::kCallback}) {
        style = each;
        EXPECT_EQ(owner.Choose(LaunchPopup(bar), {'1'}), 4028U);
        EXPECT_EQ(owner.Choose(LaunchPopup(bar), {'A'}), 4037U);
        EXPECT_EQ(owner.Choose(LaunchPopup(bar), {'Z'}), 4062U);
        EXPECT_EQ(owner.Choose(LaunchPopup(bar), {'0'}), 4063U);
    }
}

// Were the name's ampersand to count, '2' would choose the first entry and 'B' the second.
TEST_F(OpenLaunchMenuTest, ChoosesByPlaceThoughNamesHoldAmpersands) {
    items.Put(4, items.LineOf(4, L"R&2D&"));
    items.Put(5, items.LineOf(5, L"A&B"));
    items.Put(6, items.LineOf(6, L"&1&&"));
    Build();

    for (const fw::MenuImageStyle each : {fw::MenuImageStyle::kBitmap, fw::MenuImageStyle::kCallback}) {
        style = each;
        EXPECT_EQ(owner.Choose(LaunchPopup(bar), {'1'}), 4028U);
        EXPECT_EQ(owner.Choose(LaunchPopup(bar), {'2'}), 4029U);
        EXPECT_EQ(owner.Choose(LaunchPopup(bar), {'3'}), 4030U);
        EXPECT_EQ(owner.Choose(LaunchPopup(bar), {'B'}), 0U);
    }
}

TEST_F(OpenLaunchMenuTest, OpensWithNamesOfThreeHundredCharacters) {
    for (int number = 4; number <= 8; ++number) items.Put(number, items.LineOf(number, std::wstring(300, L'長')));
    Build();

    for (const fw::MenuImageStyle each : {fw::MenuImageStyle::kBitmap, fw::MenuImageStyle::kCallback}) {
        style = each;
        EXPECT_EQ(owner.Choose(LaunchPopup(bar), {'5'}), 4032U);
    }
}

class RunLaunchItemTest : public LaunchMenuTest {};

TEST_F(RunLaunchItemTest, DoesNothingForAnItemThatIsNotStored) {
    EXPECT_EQ(RunLaunchItem(4028, items.store), std::nullopt);
    items.Put(4, L"");
    EXPECT_EQ(RunLaunchItem(4028, items.store), std::nullopt);
    items.PutWhole(39);
    EXPECT_EQ(RunLaunchItem(4063, items.store), std::nullopt);
    EXPECT_EQ(RunLaunchItem(0, items.store), std::nullopt);
}

TEST_F(RunLaunchItemTest, GivesTheShellsCodeForAProgramThatIsGone) {
    items.Put(4, L"C:\\korvane no such program.exe, , ,x,0,n");

    EXPECT_EQ(RunLaunchItem(4028, items.store), INT_PTR{ERROR_FILE_NOT_FOUND});
}

TEST_F(RunLaunchItemTest, StartsAProgramWithItsArgumentsInItsFolderThoughItsIconIsGone) {
    items.Put(38, L"cmd.exe,/c echo started>witness.txt," + items.folder.Path() + L",C:\\no such.ico,0,n");

    const auto result = RunLaunchItem(4062, items.store);

    ASSERT_TRUE(result);
    EXPECT_GT(*result, 32);
    EXPECT_TRUE(test::WaitUntil([&] { return items.folder.Read(L"witness.txt").starts_with("started"); }));
}

TEST_F(RunLaunchItemTest, StartsTheItemAsItIsStoredNow) {
    items.Put(4, L"C:\\korvane no such program.exe, , ,x,0,n");
    ASSERT_EQ(RunLaunchItem(4028, items.store), INT_PTR{ERROR_FILE_NOT_FOUND});
    items.Put(4, L"cmd.exe,/c exit 0, ,x,0,n");

    EXPECT_GT(RunLaunchItem(4028, items.store).value_or(0), 32);
}

} // namespace
