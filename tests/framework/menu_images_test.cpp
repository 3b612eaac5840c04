#include "framework/menu_images.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "framework/gdi.h"
#include "framework/menu_pixels.h"
#include "framework/theme.h"
#include "framework/windows_version.h"
#include "tests/support/canvas.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/high_contrast.h"
#include "tests/support/icon_file.h"
#include "tests/support/menu_owner.h"
#include "tests/support/window_test.h"

namespace fw {
namespace {

using korvane::test::AlphaIcon;
using korvane::test::Canvas;
using korvane::test::HalfMaskedIcon;
using korvane::test::MenuOwner;

constexpr int kSidePx = 16;
constexpr korvane::base::Size kCell{22, 20};

TEST(MenuImageStyle, IsTheSystemsOnlyWhereItDrawsBitmapsRightInAVisualStyle) {
    EXPECT_EQ(MenuImageStyleFor(/*wine=*/false, /*visualStyles=*/true), MenuImageStyle::kBitmap);
    EXPECT_EQ(MenuImageStyleFor(false, false), MenuImageStyle::kCallback);
    EXPECT_EQ(MenuImageStyleFor(true, true), MenuImageStyle::kCallback);
    EXPECT_EQ(MenuImageStyleFor(true, false), MenuImageStyle::kCallback);
}

// Wine has its own key in the registry, Windows has not.
bool HasWineKey() {
    HKEY key = nullptr;
    const bool found = ::RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\Wine", 0, KEY_READ, &key) == ERROR_SUCCESS;
    const UniqueKey owner{found ? key : nullptr};
    return found;
}

TEST(Wine, IsToldFromWindows) {
    EXPECT_EQ(IsWine(), HasWineKey());
}

class VisualStylesTest : public korvane::test::WindowTest {};

TEST_F(VisualStylesTest, AreActiveWhenAButtonHasOne) {
    Theme button;
    button.Open(Host(), L"BUTTON");

    EXPECT_EQ(VisualStylesActive(), static_cast<bool>(button));
}

TEST_F(VisualStylesTest, LetTheSystemDrawMenuImagesUnlessItIsWine) {
    Theme button;
    button.Open(Host(), L"BUTTON");

    EXPECT_EQ(CurrentMenuImageStyle() == MenuImageStyle::kBitmap, button && !HasWineKey());
}

TEST(MenuPixel, IsOpaqueWhereTheGroundDoesNotShow) {
    EXPECT_EQ(PremultipliedPixel(0x00123456, 0x00123456), 0xFF123456U);
    EXPECT_EQ(PremultipliedPixel(0x00000000, 0x00000000), 0xFF000000U);
    EXPECT_EQ(PremultipliedPixel(0x00FFFFFF, 0x00FFFFFF), 0xFFFFFFFFU);
}

TEST(MenuPixel, IsTransparentWhereTheGroundIsLeftAlone) {
    EXPECT_EQ(PremultipliedPixel(0x00000000, 0x00FFFFFF), 0U);
}

TEST(MenuPixel, DoesNotGoByTheAlphaThatThePainterLeft) {
    EXPECT_EQ(PremultipliedPixel(0xAB123456, 0xCD123456), 0xFF123456U);
}

TEST(MenuPixel, HasNoChannelAboveItsAlpha) {
    for (std::uint32_t black = 0; black < 256; black += 5) {
        for (std::uint32_t white = 0; white < 256; white += 5) {
            const std::uint32_t pixel = PremultipliedPixel(black * 0x010101, white * 0x010101);
            ASSERT_LE(ChannelOf(pixel, 0), ChannelOf(pixel, 24)) << black << ' ' << white;
            ASSERT_LE(ChannelOf(DimmedPixel(pixel), 0), ChannelOf(DimmedPixel(pixel), 24)) << black << ' ' << white;
        }
    }
}

// What every alpha and colour makes of the two grounds gives the alpha back, and the colour times it.
TEST(MenuPixel, GivesEveryAlphaBack) {
    for (int alpha = 0; alpha <= 255; ++alpha) {
        std::uint32_t overBlack = 0;
        std::uint32_t overWhite = 0;
        const std::array colours{255, 100, 3};
        for (const int colour : colours) {
            const int product = (colour * alpha + 127) / 255;
            overBlack = overBlack << 8 | static_cast<std::uint32_t>(product);
            overWhite = overWhite << 8 | static_cast<std::uint32_t>(product + 255 - alpha);
        }

        const std::uint32_t pixel = PremultipliedPixel(overBlack, overWhite);

        ASSERT_EQ(pixel, static_cast<std::uint32_t>(alpha) << 24 | overBlack) << alpha;
    }
}

TEST(MenuPixel, BecomesOpaqueWhereItWouldInvertTheGround) {
    EXPECT_EQ(PremultipliedPixel(0x00FFFFFF, 0x00000000), 0xFFFFFFFFU);
}

TEST(MenuPixel, LosesItsColourAndHalfItsDensityWhenDimmed) {
    EXPECT_EQ(DimmedPixel(0xFFFF0000), 0x7F262626U);
    EXPECT_EQ(DimmedPixel(0xFFFFFFFF), 0x7F7F7F7FU);
    EXPECT_EQ(DimmedPixel(0x00000000), 0U);
}

class MenuImagesTest : public ::testing::Test {
protected:
    static constexpr UINT kFirst = 4028;

    MenuImagesTest() : images{kSidePx, kCell, [this] { return style; }} {}

    void Append(UINT command, UINT state = MF_ENABLED) {
        ::AppendMenuW(menu.Get(), MF_STRING | state, command, std::to_wstring(command).c_str());
    }
    [[nodiscard]] MENUITEMINFOW Item(UINT command) const {
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_BITMAP | MIIM_FTYPE | MIIM_STATE;
        EXPECT_TRUE(::GetMenuItemInfoW(menu.Get(), command, FALSE, &item));
        return item;
    }
    [[nodiscard]] HBITMAP ImageOf(UINT command) const { return Item(command).hbmpItem; }
    [[nodiscard]] HBITMAP ImageAt(UINT position) const {
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_BITMAP;
        EXPECT_TRUE(::GetMenuItemInfoW(menu.Get(), position, TRUE, &item));
        return item.hbmpItem;
    }
    void SetMenuStyle(DWORD menuStyle) const {
        MENUINFO info{};
        info.cbSize = sizeof info;
        info.fMask = MIM_STYLE;
        info.dwStyle = menuStyle;
        EXPECT_TRUE(::SetMenuInfo(menu.Get(), &info));
    }
    [[nodiscard]] DWORD MenuStyle() const {
        MENUINFO info{};
        info.cbSize = sizeof info;
        info.fMask = MIM_STYLE;
        EXPECT_TRUE(::GetMenuInfo(menu.Get(), &info));
        return info.dwStyle;
    }
    [[nodiscard]] static std::vector<std::uint32_t> PixelsOf(HBITMAP bitmap) {
        DIBSECTION section{};
        if (::GetObjectW(bitmap, sizeof section, &section) != sizeof section) return {};
        EXPECT_EQ(section.dsBm.bmBitsPixel, 32);
        EXPECT_EQ(section.dsBm.bmWidth, kSidePx);
        EXPECT_EQ(section.dsBm.bmHeight, kSidePx);
        const auto* const bits = static_cast<const std::uint32_t*>(section.dsBm.bmBits);
        return {bits, bits + kSidePx * kSidePx};
    }

    // Draws an item's image as the menu would, on white.
    Reply DrawOn(const Canvas& canvas, UINT command, UINT state = 0, UINT controlType = ODT_MENU) {
        canvas.Fill({0, 0, kCell.width, kCell.height}, RGB(255, 255, 255));
        DRAWITEMSTRUCT item{};
        item.CtlType = controlType;
        item.itemID = command;
        item.itemState = state;
        item.hDC = canvas.Dc();
        item.rcItem = {0, 0, kCell.width, kCell.height};
        return images.Draw(item);
    }

    MenuImageStyle style = MenuImageStyle::kBitmap;
    MenuImages images;
    UniqueMenu menu{::CreatePopupMenu()};
};

TEST_F(MenuImagesTest, MakesAPremultipliedBitmapOfAnIconWithAlpha) {
    Append(kFirst);
    images.Set(kFirst, AlphaIcon(0x80FF4000).Get());

    images.GiveTo(menu.Get());

    const auto pixels = PixelsOf(ImageOf(kFirst));
    ASSERT_EQ(pixels.size(), 256U);
    for (const std::uint32_t pixel : pixels) {
        // Painting an icon rounds once more than the arithmetic.
        EXPECT_NEAR(ChannelOf(pixel, 24), 0x80, 1);
        EXPECT_NEAR(ChannelOf(pixel, 16), 0x80, 1);
        EXPECT_NEAR(ChannelOf(pixel, 8), 0x20, 1);
        EXPECT_EQ(ChannelOf(pixel, 0), 0);
    }
}

TEST_F(MenuImagesTest, MakesAPremultipliedBitmapOfAnIconThatHasOnlyAMask) {
    Append(kFirst);
    images.Set(kFirst, HalfMaskedIcon(RGB(10, 200, 30)).Get());

    images.GiveTo(menu.Get());

    const auto pixels = PixelsOf(ImageOf(kFirst));
    ASSERT_EQ(pixels.size(), 256U);
    for (int y = 0; y < kSidePx; ++y) {
        for (int x = 0; x < kSidePx; ++x) {
            const std::uint32_t expected = x < kSidePx / 2 ? 0xFF0AC81EU : 0U;
            ASSERT_EQ(pixels[static_cast<std::size_t>(y * kSidePx + x)], expected) << x << ',' << y;
        }
    }
}

TEST_F(MenuImagesTest, GivesGreyedItemsADimmedImageAndTakesItBack) {
    Append(kFirst, MF_GRAYED);
    Append(kFirst + 1, MF_DISABLED);
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());
    images.Set(kFirst + 1, AlphaIcon(0xFFFF0000).Get());

    images.GiveTo(menu.Get());
    EXPECT_EQ(PixelsOf(ImageOf(kFirst)).at(0), 0x7F262626U);
    EXPECT_EQ(PixelsOf(ImageOf(kFirst + 1)).at(0), 0x7F262626U);

    ::EnableMenuItem(menu.Get(), kFirst, MF_ENABLED);
    images.GiveTo(menu.Get());
    EXPECT_EQ(PixelsOf(ImageOf(kFirst)).at(0), 0xFFFF0000U);
}

TEST_F(MenuImagesTest, OwnerDrawsNothingWhereBitmapsKeepTheVisualStyle) {
    Append(kFirst);
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());

    images.GiveTo(menu.Get());

    EXPECT_EQ(Item(kFirst).fType & MFT_OWNERDRAW, 0U);
    EXPECT_NE(ImageOf(kFirst), HBMMENU_CALLBACK);
}

TEST_F(MenuImagesTest, LeavesTheImageToTheOwnerInTheOtherStyleAndTheTextToTheSystem) {
    style = MenuImageStyle::kCallback;
    Append(kFirst);
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());

    images.GiveTo(menu.Get());

    EXPECT_EQ(ImageOf(kFirst), HBMMENU_CALLBACK);
    EXPECT_EQ(Item(kFirst).fType & MFT_OWNERDRAW, 0U);
}

TEST_F(MenuImagesTest, FollowsAStyleThatChangesBetweenTwoOpenings) {
    Append(kFirst);
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());
    images.GiveTo(menu.Get());

    style = MenuImageStyle::kCallback;
    images.GiveTo(menu.Get());
    EXPECT_EQ(ImageOf(kFirst), HBMMENU_CALLBACK);

    style = MenuImageStyle::kBitmap;
    images.GiveTo(menu.Get());
    EXPECT_EQ(PixelsOf(ImageOf(kFirst)).at(0), 0xFFFF0000U);
}

TEST_F(MenuImagesTest, KeepsCheckMarksAndRadioMarks) {
    for (const MenuImageStyle each : {MenuImageStyle::kBitmap, MenuImageStyle::kCallback}) {
        style = each;
        Append(kFirst, MF_CHECKED);
        Append(kFirst + 1);
        ::CheckMenuRadioItem(menu.Get(), kFirst + 1, kFirst + 1, kFirst + 1, MF_BYCOMMAND);
        images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());
        images.Set(kFirst + 1, AlphaIcon(0xFFFF0000).Get());

        images.GiveTo(menu.Get());

        EXPECT_NE(Item(kFirst).fState & MFS_CHECKED, 0U);
        EXPECT_NE(Item(kFirst + 1).fState & MFS_CHECKED, 0U);
        EXPECT_NE(Item(kFirst + 1).fType & MFT_RADIOCHECK, 0U);
    }
}

TEST_F(MenuImagesTest, LetsACheckMarkTakeABitmapsPlaceAndKeepsTheOtherStylesOfThePopup) {
    SetMenuStyle(MNS_AUTODISMISS);

    images.GiveTo(menu.Get());
    EXPECT_EQ(MenuStyle(), DWORD{MNS_AUTODISMISS | MNS_CHECKORBMP});

    style = MenuImageStyle::kCallback;
    images.GiveTo(menu.Get());
    EXPECT_EQ(MenuStyle(), DWORD{MNS_AUTODISMISS});
}

TEST_F(MenuImagesTest, GivesEveryItemACellWhereOneHasAnImageThatTheOwnerDraws) {
    style = MenuImageStyle::kCallback;
    Append(kFirst);
    Append(kFirst + 1);
    const HMENU inner = ::CreatePopupMenu();
    ::AppendMenuW(menu.Get(), MF_POPUP, reinterpret_cast<UINT_PTR>(inner), L"inner");
    ::AppendMenuW(menu.Get(), MF_SEPARATOR, 0, nullptr);
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());

    images.GiveTo(menu.Get());
    EXPECT_EQ(ImageAt(0), HBMMENU_CALLBACK);
    EXPECT_EQ(ImageAt(1), HBMMENU_CALLBACK);
    EXPECT_EQ(ImageAt(2), HBMMENU_CALLBACK);
    EXPECT_EQ(ImageAt(3), nullptr);

    images.Remove(kFirst);
    images.GiveTo(menu.Get());
    for (UINT position = 0; position < 4; ++position) EXPECT_EQ(ImageAt(position), nullptr) << position;
}

TEST_F(MenuImagesTest, LeavesItemsWithoutAnImageSeparatorsAndPopupsAlone) {
    Append(kFirst);
    ::AppendMenuW(menu.Get(), MF_SEPARATOR, 0, nullptr);
    const HMENU inner = ::CreatePopupMenu();
    ::AppendMenuW(menu.Get(), MF_POPUP, reinterpret_cast<UINT_PTR>(inner), L"inner");
    images.Set(0, AlphaIcon(0xFFFF0000).Get());
    images.Set(static_cast<UINT>(reinterpret_cast<UINT_PTR>(inner)), AlphaIcon(0xFFFF0000).Get());

    images.GiveTo(menu.Get());

    for (UINT position = 0; position < 3; ++position) EXPECT_EQ(ImageAt(position), nullptr) << position;
}

TEST_F(MenuImagesTest, LeavesTheImagesOfAWindowMenuToTheSystem) {
    Append(SC_CLOSE);
    Append(kFirst);
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_BITMAP;
    item.hbmpItem = HBMMENU_POPUP_CLOSE;
    ::SetMenuItemInfoW(menu.Get(), SC_CLOSE, FALSE, &item);

    for (const MenuImageStyle each : {MenuImageStyle::kBitmap, MenuImageStyle::kCallback}) {
        style = each;
        images.GiveTo(menu.Get());
        EXPECT_EQ(ImageOf(SC_CLOSE), HBMMENU_POPUP_CLOSE);
    }
}

TEST_F(MenuImagesTest, TakesTheImageFromAnItemWhoseCommandHasLostIt) {
    for (const MenuImageStyle each : {MenuImageStyle::kBitmap, MenuImageStyle::kCallback}) {
        style = each;
        ::RemoveMenu(menu.Get(), kFirst, MF_BYCOMMAND);
        Append(kFirst);
        images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());
        images.GiveTo(menu.Get());
        ASSERT_NE(ImageOf(kFirst), nullptr);

        images.Remove(kFirst);
        images.GiveTo(menu.Get());

        EXPECT_EQ(ImageOf(kFirst), nullptr);
    }
}

TEST_F(MenuImagesTest, AsksASourceWhenTheItemIsFirstShownAndNeverAgain) {
    int asked = 0;
    Append(kFirst);
    images.Set(kFirst, [&] {
        ++asked;
        return AlphaIcon(0xFF0000FF);
    });
    EXPECT_EQ(asked, 0);

    for (int opening = 0; opening < 3; ++opening) images.GiveTo(menu.Get());

    EXPECT_EQ(asked, 1);
    EXPECT_EQ(PixelsOf(ImageOf(kFirst)).at(0), 0xFF0000FFU);
}

TEST_F(MenuImagesTest, AsksASourceThatHasNoIconOnlyOnce) {
    int asked = 0;
    Append(kFirst);
    images.Set(kFirst, [&] {
        ++asked;
        return UniqueIcon{};
    });

    for (int opening = 0; opening < 3; ++opening) images.GiveTo(menu.Get());

    EXPECT_EQ(asked, 1);
    EXPECT_EQ(ImageOf(kFirst), nullptr);
}

TEST_F(MenuImagesTest, DoesNotAskASourceWhoseItemIsInAnotherMenu) {
    int asked = 0;
    Append(kFirst);
    images.Set(kFirst + 1, [&] {
        ++asked;
        return UniqueIcon{};
    });

    images.GiveTo(menu.Get());

    EXPECT_EQ(asked, 0);
}

TEST_F(MenuImagesTest, GivesNoImageForAnIconThatIsNone) {
    UniqueIcon gone = AlphaIcon(0xFFFF0000);
    const HICON dead = gone.Get();
    gone.Reset();
    Append(kFirst);
    Append(kFirst + 1);
    images.Set(kFirst, static_cast<HICON>(nullptr));
    images.Set(kFirst + 1, dead);

    images.GiveTo(menu.Get());

    EXPECT_EQ(ImageOf(kFirst), nullptr);
    EXPECT_EQ(ImageOf(kFirst + 1), nullptr);
}

TEST_F(MenuImagesTest, SurvivesAMenuThatIsGone) {
    const HMENU dead = menu.Get();
    menu.Reset();

    images.GiveTo(dead);
    images.GiveTo(nullptr);
}

TEST_F(MenuImagesTest, MeasuresTheSameCellForEveryItemOfAMenu) {
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());

    for (const UINT command : {kFirst, kFirst + 1}) {
        MEASUREITEMSTRUCT item{};
        item.CtlType = ODT_MENU;
        item.itemID = command;
        EXPECT_EQ(images.Measure(item), Reply{TRUE});
        EXPECT_EQ(item.itemWidth, static_cast<UINT>(kCell.width));
        EXPECT_EQ(item.itemHeight, static_cast<UINT>(kCell.height));
    }
}

TEST_F(MenuImagesTest, MeasuresNothingButMenus) {
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());
    MEASUREITEMSTRUCT item{};
    item.CtlType = ODT_LISTBOX;
    item.itemID = kFirst;

    EXPECT_EQ(images.Measure(item), Reply{});

    EXPECT_EQ(item.itemHeight, 0U);
}

TEST_F(MenuImagesTest, DrawsTheImageInTheMiddleOfItsCell) {
    const Canvas canvas{kCell};
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());

    EXPECT_EQ(DrawOn(canvas, kFirst), Reply{TRUE});

    EXPECT_EQ(canvas.Content({0, 0, kCell.width, kCell.height}, RGB(255, 255, 255)),
              (korvane::base::Rect{3, 2, 19, 18}));
    EXPECT_EQ(canvas.Pixel(10, 10), static_cast<COLORREF>(RGB(255, 0, 0)));
}

TEST_F(MenuImagesTest, LetsTheGroundShowThroughWhereTheIconIsTransparent) {
    const Canvas canvas{kCell};
    images.Set(kFirst, HalfMaskedIcon(RGB(255, 0, 0)).Get());

    EXPECT_EQ(DrawOn(canvas, kFirst, ODS_SELECTED), Reply{TRUE});

    EXPECT_EQ(canvas.Content({0, 0, kCell.width, kCell.height}, RGB(255, 255, 255)),
              (korvane::base::Rect{3, 2, 11, 18}));
}

TEST_F(MenuImagesTest, DrawsAGreyedItemDimmed) {
    const Canvas canvas{kCell};
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());

    for (const UINT state : {ODS_GRAYED, ODS_DISABLED, ODS_GRAYED | ODS_SELECTED}) {
        EXPECT_EQ(DrawOn(canvas, kFirst, state), Reply{TRUE});

        const COLORREF drawn = canvas.Pixel(10, 10);
        EXPECT_EQ(GetRValue(drawn), GetBValue(drawn));
        EXPECT_NEAR(GetRValue(drawn), 0x26 + 0x80, 2);
    }
}

TEST_F(MenuImagesTest, DrawsADrawingInTheColourOfItsTextInHighContrast) {
    const korvane::test::HighContrast highContrast{korvane::test::ContrastBlack()};
    images.Set(
        kFirst, [] { return AlphaIcon(0xFFFF0000); }, ImageKind::kDrawing);
    for (const auto& [state, index] :
         {std::pair<UINT, int>{0, COLOR_MENUTEXT}, std::pair<UINT, int>{ODS_SELECTED, COLOR_HIGHLIGHTTEXT},
          std::pair<UINT, int>{ODS_GRAYED, COLOR_GRAYTEXT},
          std::pair<UINT, int>{ODS_GRAYED | ODS_SELECTED, COLOR_GRAYTEXT}}) {
        const Canvas canvas{kCell};

        EXPECT_EQ(DrawOn(canvas, kFirst, state), Reply{TRUE});

        EXPECT_EQ(canvas.Pixel(kCell.width / 2, kCell.height / 2), korvane::test::HighContrast::Colour(index)) << state;
    }
}

TEST_F(MenuImagesTest, DrawsAPictureInItsOwnColoursInHighContrastToo) {
    const korvane::test::HighContrast highContrast{korvane::test::ContrastBlack()};
    images.Set(kFirst, [] { return AlphaIcon(0xFFFF0000); });
    const Canvas canvas{kCell};

    EXPECT_EQ(DrawOn(canvas, kFirst), Reply{TRUE});

    EXPECT_EQ(canvas.Pixel(kCell.width / 2, kCell.height / 2), static_cast<COLORREF>(RGB(255, 0, 0)));
}

TEST_F(MenuImagesTest, LeavesTheImagesToTheOwnerInHighContrast) {
    const korvane::test::HighContrast highContrast{korvane::test::ContrastBlack()};

    EXPECT_EQ(CurrentMenuImageStyle(), MenuImageStyle::kCallback);
}

TEST_F(MenuImagesTest, LeavesTheCellOfAnItemWithoutAnImageEmpty) {
    const Canvas canvas{kCell};

    EXPECT_EQ(DrawOn(canvas, kFirst + 1), Reply{TRUE});

    EXPECT_EQ(canvas.Content({0, 0, kCell.width, kCell.height}, RGB(255, 255, 255)), korvane::base::Rect{});
}

TEST_F(MenuImagesTest, DrawsNothingButMenus) {
    const Canvas canvas{kCell};
    images.Set(kFirst, AlphaIcon(0xFFFF0000).Get());

    EXPECT_EQ(DrawOn(canvas, kFirst, 0, ODT_BUTTON), Reply{});

    EXPECT_EQ(canvas.Pixel(10, 10), static_cast<COLORREF>(RGB(255, 255, 255)));
}

TEST_F(MenuImagesTest, ReleasesEveryBitmap) {
    for (UINT command = kFirst; command < kFirst + 40; ++command) Append(command, MF_GRAYED);
    const UniqueIcon icon = AlphaIcon(0xFFFF0000);
    const int before = korvane::test::GdiObjectCount();

    for (UINT command = kFirst; command < kFirst + 40; ++command) {
        images.Set(command, [] { return AlphaIcon(0xFFFF0000); });
        images.Set(command, icon.Get());
    }
    images.GiveTo(menu.Get());
    EXPECT_EQ(korvane::test::GdiObjectCount(), before + 80);
    for (UINT command = kFirst; command < kFirst + 40; ++command) images.Remove(command);

    EXPECT_EQ(korvane::test::GdiObjectCount(), before);
}

// Real menus, opened and obeying the keyboard.
class OpenMenuTest : public MenuImagesTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(owner.Create({.text = L"menus", .rect = {0, 0, 100, 100}, .style = WS_POPUP}));
        owner.init = [this](HMENU popup) { images.GiveTo(popup); };
        owner.measure = [this](MEASUREITEMSTRUCT& item) { return images.Measure(item); };
        owner.draw = [this](const DRAWITEMSTRUCT& item) {
            drawn.push_back(item.itemID);
            return images.Draw(item);
        };
        ::AppendMenuW(menu.Get(), MF_STRING, kFirst, L"[&1] one");
        ::AppendMenuW(menu.Get(), MF_STRING, kFirst + 1, L"[&2] two");
        ::AppendMenuW(menu.Get(), MF_SEPARATOR, 0, nullptr);
        ::AppendMenuW(menu.Get(), MF_STRING, kFirst + 2, L"[&A] eleven\tCtrl+F1");
        for (UINT command = kFirst; command < kFirst + 3; ++command) images.Set(command, AlphaIcon(0xFFFF0000).Get());
    }

    MenuOwner owner;
    std::vector<UINT> drawn;
};

TEST_F(OpenMenuTest, ObeysCharactersInEitherStyle) {
    for (const MenuImageStyle each : {MenuImageStyle::kBitmap, MenuImageStyle::kCallback}) {
        style = each;
        EXPECT_EQ(owner.Choose(menu.Get(), {'2'}), kFirst + 1);
        EXPECT_EQ(owner.Choose(menu.Get(), {'A'}), kFirst + 2);
        EXPECT_EQ(owner.Choose(menu.Get(), {'7'}), 0U);
    }
}

TEST_F(OpenMenuTest, ObeysTheArrowsInEitherStyle) {
    for (const MenuImageStyle each : {MenuImageStyle::kBitmap, MenuImageStyle::kCallback}) {
        style = each;
        EXPECT_EQ(owner.Choose(menu.Get(), {VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}), kFirst + 2);
        EXPECT_EQ(owner.Choose(menu.Get(), {VK_UP, VK_UP, VK_RETURN}), kFirst + 1);
    }
}

TEST_F(OpenMenuTest, DrawsTheImagesWhileItIsOpen) {
    style = MenuImageStyle::kCallback;
    COLORREF image = 0;
    owner.shown = [&](HWND window) {
        const WindowDc dc{window};
        RECT item{};
        ::GetMenuItemRect(nullptr, menu.Get(), 0, &item);
        const int middle = (item.bottom - item.top) / 2;
        for (int x = 0; x < 40 && image != RGB(255, 0, 0); ++x) image = ::GetPixel(dc.Get(), x, middle);
    };

    owner.Choose(menu.Get(), {});

    EXPECT_EQ(image, static_cast<COLORREF>(RGB(255, 0, 0)));
    EXPECT_NE(std::ranges::find(drawn, kFirst), drawn.end());
    EXPECT_NE(std::ranges::find(drawn, kFirst + 2), drawn.end());
}

// Rows would otherwise differ, and a shortcut would stand on the longest text where that text has no image.
TEST_F(OpenMenuTest, HasRowsOfOneHeightThoughNotAllHaveAnImage) {
    style = MenuImageStyle::kCallback;
    images.Remove(kFirst + 1);
    std::vector<LONG> heights;
    owner.shown = [&](HWND) {
        for (const UINT position : {0U, 1U, 3U}) {
            RECT item{};
            ::GetMenuItemRect(nullptr, menu.Get(), position, &item);
            heights.push_back(item.bottom - item.top);
        }
    };

    owner.Choose(menu.Get(), {});

    ASSERT_EQ(heights.size(), 3U);
    EXPECT_EQ(heights[0], heights[1]);
    EXPECT_EQ(heights[0], heights[2]);
    EXPECT_GE(heights[0], kCell.height);
}

TEST_F(OpenMenuTest, IsNotAskedToDrawBitmaps) {
    owner.Choose(menu.Get(), {VK_DOWN, VK_DOWN});

    EXPECT_TRUE(drawn.empty());
}

} // namespace
} // namespace fw
