#include "launch/app_menu_bar.h"

#include <gtest/gtest.h>

#include "framework/dpi.h"
#include "res/ids.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/icon_file.h"

using namespace korvane;
using launch::CAppMenuBar;

namespace {

class AppMenuBarTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(bar.Create()); }

    [[nodiscard]] HBITMAP ImageOf(UINT command) const {
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_BITMAP;
        EXPECT_TRUE(::GetMenuItemInfoW(bar.Menu(), command, FALSE, &item));
        return item.hbmpItem;
    }

    CAppMenuBar bar{[] { return fw::MenuImageStyle::kBitmap; }};
};

TEST_F(AppMenuBarTest, HoldsThreePopups) {
    EXPECT_EQ(::GetMenuItemCount(bar.Menu()), 3);
    EXPECT_NE(bar.Popup(POPUP_MAIN), nullptr);
    EXPECT_NE(bar.Popup(POPUP_SEARCH), nullptr);
    EXPECT_NE(bar.Popup(POPUP_CONTROL_PANEL), nullptr);
    EXPECT_EQ(bar.Popup(3), nullptr);
}

TEST_F(AppMenuBarTest, HasNoPopupsBeforeItIsCreated) {
    CAppMenuBar empty;

    empty.RemoveImage(ID_NOTEPAD);

    EXPECT_EQ(empty.Menu(), nullptr);
    EXPECT_EQ(empty.Popup(POPUP_MAIN), nullptr);
}

TEST_F(AppMenuBarTest, ShowsImagesOfSixteenPixels) {
    bar.AddIcon(ID_EXIT, test::AlphaIcon(0xFF112233).Get());

    bar.OnInitMenuPopup(bar.Popup(POPUP_MAIN));

    BITMAP image{};
    ASSERT_NE(::GetObjectW(ImageOf(ID_EXIT), sizeof image, &image), 0);
    EXPECT_EQ(image.bmWidth, fw::Scale()(16));
    EXPECT_EQ(image.bmHeight, fw::Scale()(16));
}

// A menu adds one pixel above and one below.
TEST_F(AppMenuBarTest, MakesRowsAsHighAsAButton) {
    bar.AddIcon(ID_EXIT, test::AlphaIcon(0xFF112233).Get());
    MEASUREITEMSTRUCT item{};
    item.CtlType = ODT_MENU;
    item.itemID = ID_EXIT;

    EXPECT_EQ(bar.OnMeasureItem(item), fw::Reply{TRUE});

    EXPECT_EQ(item.itemWidth, static_cast<UINT>(fw::Scale()(22)));
    EXPECT_EQ(item.itemHeight, static_cast<UINT>(fw::Scale()(22) - 2));
}

TEST_F(AppMenuBarTest, AsksTheSourcesOfAPopupWhenItOpensAndOfNoOther) {
    int mainAsked = 0;
    int panelAsked = 0;
    bar.AddIcon(ID_EXIT, [&] { return ++mainAsked, fw::UniqueIcon{}; });
    bar.AddIcon(4001, [&] { return ++panelAsked, test::AlphaIcon(0xFF112233); });

    bar.OnInitMenuPopup(bar.Popup(POPUP_CONTROL_PANEL));
    bar.OnInitMenuPopup(bar.Popup(POPUP_CONTROL_PANEL));

    EXPECT_EQ(mainAsked, 0);
    EXPECT_EQ(panelAsked, 1);
    EXPECT_NE(ImageOf(4001), nullptr);
}

TEST_F(AppMenuBarTest, TakesARemovedImageOutOfItsItemAtOnce) {
    bar.AddIcon(ID_EXIT, test::AlphaIcon(0xFF112233).Get());
    bar.OnInitMenuPopup(bar.Popup(POPUP_MAIN));
    ASSERT_NE(ImageOf(ID_EXIT), nullptr);

    bar.RemoveImage(ID_EXIT);

    EXPECT_EQ(ImageOf(ID_EXIT), nullptr);
    bar.OnInitMenuPopup(bar.Popup(POPUP_MAIN));
    EXPECT_EQ(ImageOf(ID_EXIT), nullptr);
}

TEST_F(AppMenuBarTest, TakesAReplacedImageOutOfItsItemAtOnce) {
    bar.AddIcon(ID_EXIT, test::AlphaIcon(0xFF112233).Get());
    bar.OnInitMenuPopup(bar.Popup(POPUP_MAIN));

    bar.AddIcon(ID_EXIT, test::AlphaIcon(0xFF445566).Get());

    EXPECT_EQ(ImageOf(ID_EXIT), nullptr);
}

TEST_F(AppMenuBarTest, RemovesAnImageThatIsNotThere) {
    bar.RemoveImage(ID_EXIT);
    bar.RemoveImage(4028);
    bar.RemoveImage(0);

    bar.OnInitMenuPopup(bar.Popup(POPUP_MAIN));

    EXPECT_EQ(ImageOf(ID_EXIT), nullptr);
}

TEST_F(AppMenuBarTest, KeepsItsOwnCopyOfAnIcon) {
    fw::UniqueIcon icon = test::AlphaIcon(0xFF112233);
    bar.AddIcon(ID_EXIT, icon.Get());
    icon.Reset();

    bar.OnInitMenuPopup(bar.Popup(POPUP_MAIN));

    EXPECT_NE(ImageOf(ID_EXIT), nullptr);
}

TEST_F(AppMenuBarTest, ReleasesEverythingWithItself) {
    const fw::UniqueIcon icon = test::AlphaIcon(0xFF112233);
    const int before = test::GdiObjectCount();
    HMENU menu = nullptr;
    {
        CAppMenuBar other{[] { return fw::MenuImageStyle::kBitmap; }};
        ASSERT_TRUE(other.Create());
        menu = other.Menu();
        for (UINT command = 4001; command <= 4024; ++command) other.AddIcon(command, icon.Get());
        other.OnInitMenuPopup(other.Popup(POPUP_CONTROL_PANEL));
        EXPECT_EQ(test::GdiObjectCount(), before + 24);
    }

    EXPECT_EQ(test::GdiObjectCount(), before);
    EXPECT_FALSE(::IsMenu(menu));
}

} // namespace
