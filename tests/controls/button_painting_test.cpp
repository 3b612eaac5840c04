#include <gmock/gmock.h>

#include <array>

#include "controls/app_image_btn.h"
#include "controls/drop_down_button.h"
#include "controls/exit_button.h"
#include "controls/korvane_button.h"
#include "controls/text_drop_button.h"
#include "controls/tool_button.h"
#include "controls/up_down_button.h"
#include "framework/image_list.h"
#include "res/ids.h"
#include "tests/controls/bar_button_test.h"

namespace korvane::controls {
namespace {

using test::Canvas;
using testing::ElementsAreArray;
using testing::Not;

class ButtonPainting : public BarButtonTest {
protected:
    // A list of images of one colour each.
    [[nodiscard]] static fw::UniqueImageList MakeList(std::initializer_list<COLORREF> colours) {
        fw::UniqueImageList list{::ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, 2, 0)};
        for (const COLORREF colour : colours) ::ImageList_ReplaceIcon(list.Get(), -1, MakeIcon(colour).Get());
        return list;
    }
};

// What every member does: the bar shows through where the button paints nothing.
TEST_F(ButtonPainting, CoversTheWholeButtonWithTheBarBehindIt) {
    CToolButton button;
    Put(button, {200, 0, 236, 32});
    TakeThemeAway(button);

    const Canvas canvas = Paint(button);

    EXPECT_EQ(canvas.Content({0, 0, 36, 32}, Ground()), base::Rect{});
}

TEST_F(ButtonPainting, ShowsWhatTheParentPaintsAtTheButtonsPlace) {
    // Given a bar whose right part, from 220 on, is white.
    CToolButton button;
    Put(button, {200, 0, 236, 32});
    TakeThemeAway(button);
    host.paintOver = [](HDC dc) {
        const RECT field{220, 0, 800, 600};
        ::FillRect(dc, &field, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    };

    const Canvas canvas = Paint(button);

    EXPECT_EQ(canvas.Pixel(19, 10), Ground());
    EXPECT_EQ(canvas.Pixel(20, 10), kWhite);
}

TEST_F(ButtonPainting, ShowsTheSameBehindItWithoutTheLibraryOfTheVisualStyles) {
    CToolButton button;
    Put(button, {200, 0, 236, 32});
    TakeThemeAway(button);
    host.paintOver = [](HDC dc) {
        const RECT field{220, 0, 800, 600};
        ::FillRect(dc, &field, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    };
    const Canvas canvas{{36, 32}};

    PaintBehindUnthemed(button.Handle(), canvas.Dc(), {0, 0, 36, 32});

    EXPECT_EQ(canvas.Pixels(), Paint(button).Pixels());
    EXPECT_EQ(canvas.Pixel(20, 10), kWhite);
}

TEST_F(ButtonPainting, HasAPlateOfItsOwnWhereTheVisualStyleHasNone) {
    CToolButton button;
    Put(button, {0, 0, 36, 32});
    TakeThemeAway(button);
    for (const base::Colour ground : {kDarkBar, kLightBarColour}) {
        host.ground = ground.value;

        EXPECT_EQ(Paint(button, ODS_SELECTED).Pixel(0, 0), Plate(ButtonState::kPressed));
        EXPECT_EQ(Paint(button, ODS_DISABLED).Pixel(0, 0), Ground());
        Enter(button);
        EXPECT_EQ(Paint(button).Pixel(35, 31), Plate(ButtonState::kHot));
        EXPECT_NE(Plate(ButtonState::kHot), Ground());
        Send(button.Handle(), WM_MOUSELEAVE);
    }
}

class MainMenuButton : public ButtonPainting {
protected:
    void SetUp() override {
        ButtonPainting::SetUp();
        Put(button, {4, 0, 124, 32}, ID_MAIN_MENU);
        TakeThemeAway(button);
    }
    // The picture in the middle of a plain ground, moved by `offset`.
    [[nodiscard]] std::vector<COLORREF> Expected(UINT picture, COLORREF ground, int offset) const {
        const Canvas canvas{{120, 32}};
        canvas.Fill({0, 0, 120, 32}, ground);
        const fw::PngImage image = fw::PngImage::FromResource(picture);
        EXPECT_TRUE(static_cast<bool>(image));
        image.Draw(canvas.Dc(), base::Centred({0, 0, 120, 32}, image.Extent()).Offset(offset, offset));
        return canvas.Pixels();
    }

    CKorvaneButton button{bar};
};

TEST_F(MainMenuButton, ShowsThePictureForLightBarsFrom193) {
    button.SetBarColour(base::Colour::Rgb(193, 193, 193));

    EXPECT_THAT(Paint(button).Pixels(), ElementsAreArray(Expected(202, Ground(), 0)));
}

TEST_F(MainMenuButton, ShowsThePictureForDarkBarsWhenOneByteIsBelow193) {
    button.SetBarColour(base::Colour::Rgb(192, 255, 255));

    EXPECT_THAT(Paint(button).Pixels(), ElementsAreArray(Expected(201, Ground(), 0)));
    EXPECT_THAT(Expected(201, Ground(), 0), Not(ElementsAreArray(Expected(202, Ground(), 0))));
}

TEST_F(MainMenuButton, MovesItsPictureWhilePressed) {
    button.SetBarColour(kDarkBar);

    EXPECT_THAT(Paint(button, ODS_SELECTED).Pixels(), ElementsAreArray(Expected(201, Plate(ButtonState::kPressed), 1)));
}

TEST_F(MainMenuButton, MovesItsPictureWhileItsMenuIsShown) {
    button.SetBarColour(kDarkBar);

    button.SetMenuShown(true);

    EXPECT_THAT(Paint(button).Pixels(), ElementsAreArray(Expected(201, Plate(ButtonState::kPressed), 1)));
}

TEST_F(MainMenuButton, IsRedrawnAtOnceWhenTheBarChangesColour) {
    ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
    ::UpdateWindow(button.Handle());
    host.sent.clear();

    button.SetBarColour(kLightBarColour);

    EXPECT_EQ(host.DrawCount(ID_MAIN_MENU), 1);
}

TEST_F(MainMenuButton, FallsBackOnItsOrdinaryPictures) {
    CKorvaneButton bare{bar};
    bare.SetImages(9998, 9999, 96);
    Put(bare, {200, 0, 320, 32});
    TakeThemeAway(bare);
    bare.SetBarColour(kDarkBar);

    EXPECT_THAT(Paint(bare).Pixels(), ElementsAreArray(Expected(201, Ground(), 0)));
}

class ToolButton : public ButtonPainting {
protected:
    void SetUp() override {
        ButtonPainting::SetUp();
        Put(button, {0, 0, 36, 32});
        TakeThemeAway(button);
    }
    // Where the 16 by 16 image stands, and where it stands when pressed.
    static constexpr base::Rect kImage{10, 8, 26, 24};
    static constexpr base::Rect kPushed{11, 9, 27, 25};

    CToolButton button;
};

TEST_F(ToolButton, ShowsItsIconInTheMiddle) {
    button.SetIcon(MakeIcon(kRed));

    const Canvas canvas = Paint(button);

    EXPECT_EQ(canvas.Content({0, 0, 36, 32}, Ground()), kImage);
    EXPECT_EQ(canvas.Pixel(18, 16), kRed);
}

TEST_F(ToolButton, MovesItsIconWhenPressed) {
    button.SetIcon(MakeIcon(kRed));

    EXPECT_EQ(Paint(button, ODS_SELECTED).Content({0, 0, 36, 32}, Plate(ButtonState::kPressed)), kPushed);
}

TEST_F(ToolButton, ShowsALargerIconAt16By16) {
    button.SetIcon(MakeIcon(kRed, 32));

    EXPECT_EQ(Paint(button).Content({0, 0, 36, 32}, Ground()), kImage);
}

TEST_F(ToolButton, ShowsTheDisabledListOnlyWhenDisabled) {
    const fw::UniqueImageList normal = MakeList({kWhite, kRed});
    const fw::UniqueImageList disabled = MakeList({kWhite, kGreen});
    button.SetImageListIndex(normal.Get(), disabled.Get(), 1);

    EXPECT_EQ(Paint(button).Pixel(18, 16), kRed);
    EXPECT_EQ(Paint(button, ODS_SELECTED).Pixel(18, 16), kRed);
    EXPECT_EQ(Paint(button, ODS_DISABLED).Pixel(18, 16), kGreen);
    Enter(button);
    EXPECT_EQ(Paint(button).Pixel(18, 16), kRed);
    EXPECT_EQ(Paint(button, ODS_DISABLED).Content({0, 0, 36, 32}, Ground()), kImage);
}

TEST_F(ToolButton, PressedWinsOverDisabledInTheChoiceOfTheList) {
    const fw::UniqueImageList normal = MakeList({kRed});
    const fw::UniqueImageList disabled = MakeList({kGreen});
    button.SetImageListIndex(normal.Get(), disabled.Get(), 0);

    EXPECT_EQ(Paint(button, ODS_SELECTED | ODS_DISABLED).Pixel(18, 16), kRed);
}

TEST_F(ToolButton, TakesTheIconBeforeTheListBeforeThePicture) {
    const fw::UniqueImageList list = MakeList({kGreen});
    button.SetImage(fw::PngImage::FromResource(IDP_MENU_ON_DARK));
    button.SetImageListIndex(list.Get(), nullptr, 0);
    button.SetIcon(MakeIcon(kRed));
    EXPECT_EQ(Paint(button).Pixel(18, 16), kRed);

    button.SetIcon({});
    EXPECT_EQ(Paint(button).Pixel(18, 16), kGreen);

    button.SetImageListIndex(nullptr, nullptr, -1);
    const base::Rect content = Paint(button).Content({0, 0, 36, 32}, Ground());
    EXPECT_FALSE(content.Empty());
    EXPECT_EQ(base::Intersection(content, kImage), content);
}

TEST_F(ToolButton, ShowsTheFocusAsHotOnlyWhenTold) {
    EXPECT_EQ(Paint(button, ODS_FOCUS).Pixel(0, 0), Ground());

    button.SetFocusShown(true);

    EXPECT_EQ(Paint(button, ODS_FOCUS).Pixel(0, 0), Plate(ButtonState::kHot));
    EXPECT_EQ(Paint(button).Pixel(0, 0), Ground());
}

TEST_F(ToolButton, LetsTheIconOfADisabledButtonRecede) {
    button.SetIcon(MakeIcon(kRed));

    const Canvas canvas = Paint(button, ODS_DISABLED);

    EXPECT_EQ(canvas.Content({0, 0, 36, 32}, Ground()), kImage);
    EXPECT_NE(canvas.Pixel(18, 16), kRed);
}

class DropDownArrow : public ButtonPainting {
protected:
    void SetUp() override {
        ButtonPainting::SetUp();
        host.ground = kWhite;
        Put(button, {0, 0, 15, 20});
        TakeThemeAway(button);
    }
    CDropDownButton button;
};

TEST_F(DropDownArrow, StandsInTheMiddle) {
    EXPECT_EQ(Paint(button).Picture({3, 7, 12, 13}, ::GetSysColor(COLOR_BTNTEXT)), ".........\n"
                                                                                   ".#######.\n"
                                                                                   "..#####..\n"
                                                                                   "...###...\n"
                                                                                   "....#....\n"
                                                                                   ".........\n");
}

TEST_F(DropDownArrow, MovesWhenPressed) {
    EXPECT_EQ(Paint(button, ODS_SELECTED).Picture({3, 7, 12, 13}, ::GetSysColor(COLOR_BTNTEXT)), ".........\n"
                                                                                                 ".........\n"
                                                                                                 "..#######\n"
                                                                                                 "...#####.\n"
                                                                                                 "....###..\n"
                                                                                                 ".....#...\n");
}

TEST_F(DropDownArrow, StandsThereWithAVisualStyleToo) {
    CDropDownButton themed;
    Put(themed, {20, 0, 35, 20});
    ASSERT_TRUE(static_cast<bool>(themed.CurrentTheme()));

    EXPECT_EQ(Paint(themed).Picture({4, 8, 11, 12}, ::GetSysColor(COLOR_BTNTEXT)), "#######\n"
                                                                                   ".#####.\n"
                                                                                   "..###..\n"
                                                                                   "...#...\n");
}

class TextDrop : public ButtonPainting {
protected:
    void SetUp() override {
        ButtonPainting::SetUp();
        Put(button, {0, 0, 140, 22}, ID_SEARCH_CHOOSER, L"検索");
        TakeThemeAway(button);
        button.SetIcon(MakeIcon(kRed));
        Send(button.Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(bar.BarFont()), FALSE);
    }
    static constexpr base::Rect kAll{0, 0, 140, 22};
    static constexpr base::Rect kTextPart{20, 0, 127, 22};

    CTextDropButton button{bar};
};

TEST_F(TextDrop, HasItsImageAtFour) {
    const Canvas canvas = Paint(button);

    EXPECT_EQ(canvas.Content({0, 0, 22, 22}, Ground()), (base::Rect{4, 3, 20, 19}));
}

TEST_F(TextDrop, HasItsImageAtFiveWhenPressed) {
    const Canvas canvas = Paint(button, ODS_SELECTED);

    EXPECT_EQ(canvas.Content({0, 0, 22, 22}, Plate(ButtonState::kPressed)), (base::Rect{5, 4, 21, 20}));
}

TEST_F(TextDrop, HasItsArrowTwelvePixelsFromTheRight) {
    button.SetBarColour(kDarkBar);

    EXPECT_EQ(Paint(button).Picture({127, 8, 137, 14}, ::GetSysColor(COLOR_WINDOW)), "..........\n"
                                                                                     ".#######..\n"
                                                                                     "..#####...\n"
                                                                                     "...###....\n"
                                                                                     "....#.....\n"
                                                                                     "..........\n");
    EXPECT_EQ(Paint(button, ODS_SELECTED).Picture({127, 8, 137, 14}, ::GetSysColor(COLOR_WINDOW)), "..........\n"
                                                                                                   "..........\n"
                                                                                                   "..#######.\n"
                                                                                                   "...#####..\n"
                                                                                                   "....###...\n"
                                                                                                   ".....#....\n");
}

// The text as DrawTextW puts it, in one colour, on a plain ground.
std::vector<COLORREF> TextOnly(const base::Rect& part, COLORREF ground, COLORREF ink, HFONT font, const wchar_t* text,
                               RECT where) {
    const Canvas canvas{{140, 22}};
    canvas.Fill({0, 0, 140, 22}, ground);
    const fw::SelectedObject selected{canvas.Dc(), font};
    ::SetBkMode(canvas.Dc(), TRANSPARENT);
    ::SetTextColor(canvas.Dc(), ink);
    ::DrawTextW(canvas.Dc(), text, -1, &where, DT_SINGLELINE | DT_VCENTER | DT_WORD_ELLIPSIS | DT_NOPREFIX);
    std::vector<COLORREF> pixels;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x) pixels.push_back(canvas.Pixel(x, y));
    return pixels;
}

std::vector<COLORREF> PartOf(const Canvas& canvas, const base::Rect& part) {
    std::vector<COLORREF> pixels;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x) pixels.push_back(canvas.Pixel(x, y));
    return pixels;
}

TEST_F(TextDrop, WritesItsTextFromTwentyFour) {
    EXPECT_THAT(PartOf(Paint(button), kTextPart),
                ElementsAreArray(TextOnly(kTextPart, Ground(), ::GetSysColor(COLOR_BTNTEXT), bar.BarFont(), L"検索",
                                          {24, 0, 124, 22})));
}

TEST_F(TextDrop, WritesItsTextFromTwentyFiveWhenPressed) {
    constexpr base::Rect kPushedText{21, 0, 127, 22};

    EXPECT_THAT(PartOf(Paint(button, ODS_SELECTED), kPushedText),
                ElementsAreArray(TextOnly(kPushedText, Plate(ButtonState::kPressed), ::GetSysColor(COLOR_BTNTEXT),
                                          bar.BarFont(), L"検索", {25, 1, 125, 23})));
}

TEST_F(TextDrop, KeepsALongTextOffTheArrow) {
    button.SetCaption(L"とても長い名前の検索コマンドで、どこまでも続くもの");

    const base::Rect text = Paint(button).Content(kTextPart, Ground());

    EXPECT_GE(text.left, 24);
    EXPECT_LE(text.right, 124);
    EXPECT_GT(text.Width(), 60);
}

TEST_F(TextDrop, ShowsAnAmpersandAsItIs) {
    button.SetCaption(L"A&B");

    EXPECT_THAT(PartOf(Paint(button), kTextPart),
                ElementsAreArray(TextOnly(kTextPart, Ground(), ::GetSysColor(COLOR_BTNTEXT), bar.BarFont(), L"A&B",
                                          {24, 0, 124, 22})));
}

TEST_F(TextDrop, WritesInTheColourThatSuitsTheBar) {
    button.SetBarColour(kDarkBar);

    EXPECT_THAT(PartOf(Paint(button), kTextPart),
                ElementsAreArray(TextOnly(kTextPart, Ground(), ::GetSysColor(COLOR_WINDOW), bar.BarFont(), L"検索",
                                          {24, 0, 124, 22})));
}

TEST_F(TextDrop, IsRedrawnAtOnceWithANewCaption) {
    ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
    ::UpdateWindow(button.Handle());
    host.sent.clear();

    button.SetCaption(L"別の検索");

    EXPECT_GE(host.DrawCount(ID_SEARCH_CHOOSER), 1);
}

TEST_F(TextDrop, ShowsThePictureBeforeTheIcon) {
    button.SetImage(fw::PngImage::FromResource(IDP_MENU_ON_DARK));

    EXPECT_NE(Paint(button).Pixel(4, 3), kRed);
}

class StepButton : public ButtonPainting {
protected:
    static constexpr base::Rect kPart{7, 7, 13, 17};
};

TEST_F(StepButton, PointsToTheLeft) {
    CUpDownButton button{Direction::kLeft, base::Colour{kWhite}};
    Put(button, {0, 0, 20, 24});
    TakeThemeAway(button);

    EXPECT_EQ(Paint(button).Picture(kPart, kWhite), "......\n"
                                                    "....#.\n"
                                                    "...##.\n"
                                                    "..###.\n"
                                                    ".####.\n"
                                                    ".####.\n"
                                                    "..###.\n"
                                                    "...##.\n"
                                                    "....#.\n"
                                                    "......\n");
}

TEST_F(StepButton, PointsToTheRightAndMovesWhenPressed) {
    CUpDownButton button{Direction::kRight, base::Colour{kWhite}};
    Put(button, {0, 0, 20, 24});
    TakeThemeAway(button);

    EXPECT_EQ(Paint(button, ODS_SELECTED).Picture(kPart, kWhite), "......\n"
                                                                  "......\n"
                                                                  "..#...\n"
                                                                  "..##..\n"
                                                                  "..###.\n"
                                                                  "..####\n"
                                                                  "..####\n"
                                                                  "..###.\n"
                                                                  "..##..\n"
                                                                  "..#...\n");
}

TEST_F(StepButton, HasNoDisabledLook) {
    CUpDownButton button{Direction::kLeft, base::Colour{kWhite}};
    Put(button, {0, 0, 20, 24});
    TakeThemeAway(button);

    EXPECT_EQ(Paint(button, ODS_DISABLED).Pixels(), Paint(button).Pixels());
}

TEST_F(StepButton, TakesItsColourFromItsOwner) {
    CUpDownButton button{Direction::kLeft, base::Colour{kWhite}};
    Put(button, {0, 0, 20, 24});
    TakeThemeAway(button);

    button.SetArrowColour(base::Colour{kGreen});

    EXPECT_EQ(Paint(button).Pixel(9, 12), kGreen);
}

TEST_F(StepButton, KeepsItsArrowVisibleOnAGroundOfTheSameColour) {
    host.ground = kWhite;
    CUpDownButton button{Direction::kLeft, base::Colour{kWhite}};
    Put(button, {0, 0, 20, 24});
    TakeThemeAway(button);

    EXPECT_EQ(Paint(button).Pixel(9, 12), kBlack);
}

TEST_F(StepButton, ReportsItsClickToTheParent) {
    CUpDownButton button{Direction::kLeft, base::Colour{kWhite}};
    Put(button, {0, 0, 20, 24}, 77);

    Click(button.Handle());

    EXPECT_EQ(host.CommandCount(77, BN_CLICKED), 1);
}

class ExitButton : public ButtonPainting {
protected:
    void SetUp() override {
        ButtonPainting::SetUp();
        Put(button, {0, 7, 18, 25}, ID_EXIT, L"終了");
    }
    CExitButton button;
};

TEST_F(ExitButton, ShowsTheThemesSmallCloseButton) {
    ASSERT_TRUE(static_cast<bool>(button.CurrentTheme()));
    fw::Theme window;
    window.Open(Host(), L"WINDOW");
    const Canvas expected{{18, 18}};
    for (const auto& [itemState, state] : {std::pair{UINT{0}, 1}, std::pair{UINT{ODS_SELECTED}, 3},
                                           std::pair{UINT{ODS_DISABLED}, 4}, std::pair{UINT{ODS_FOCUS}, 1}}) {
        expected.Fill({0, 0, 18, 18}, Ground());
        window.DrawBackground(expected.Dc(), 19, state, {0, 0, 18, 18});

        EXPECT_THAT(Paint(button, itemState).Pixels(), ElementsAreArray(expected.Pixels())) << itemState;
    }
}

TEST_F(ExitButton, DrawsACrossWhereThereIsNoTheme) {
    TakeThemeAway(button);

    EXPECT_EQ(Paint(button).Picture({5, 5, 13, 13}, kWhite), "##....##\n"
                                                             ".##..##.\n"
                                                             "..####..\n"
                                                             "...##...\n"
                                                             "...##...\n"
                                                             "..####..\n"
                                                             ".##..##.\n"
                                                             "##....##\n");
}

TEST_F(ExitButton, DrawsADarkCrossOnALightBar) {
    TakeThemeAway(button);
    host.ground = kLightBarColour.value;

    EXPECT_EQ(Paint(button).Pixel(5, 5), kBlack);
    EXPECT_EQ(Paint(button, ODS_SELECTED).Pixel(6, 6), kBlack);
}

TEST_F(ExitButton, ReportsItsClickToTheParent) {
    Click(button.Handle());

    EXPECT_EQ(host.CommandCount(ID_EXIT, BN_CLICKED), 1);
}

class ImageButton : public ButtonPainting {
protected:
    void SetUp() override {
        ButtonPainting::SetUp();
        Put(button, {0, 0, 32, 28}, 1011);
        button.SetImages(images.Get());
    }
    // The whole button as the system draws a classic one, with a red square in the middle moved by `offset`.
    [[nodiscard]] static std::vector<COLORREF> Classic(UINT flags, int offset) {
        const Canvas canvas{{32, 28}};
        RECT r{0, 0, 32, 28};
        ::DrawFrameControl(canvas.Dc(), &r, DFC_BUTTON, DFCS_BUTTONPUSH | flags);
        canvas.Fill(base::Rect{8, 6, 24, 22}.Offset(offset, offset), kRed);
        return canvas.Pixels();
    }

    fw::UniqueImageList images = MakeList({kRed, kGreen});
    CAppImageBtn button;
};

TEST_F(ImageButton, IsAClassicPushButtonWithoutAVisualStyle) {
    TakeThemeAway(button);
    ASSERT_FALSE(static_cast<bool>(button.CurrentTheme()));

    EXPECT_THAT(Paint(button).Pixels(), ElementsAreArray(Classic(0, 0)));
}

TEST_F(ImageButton, MovesItsIconByOnePixelWhenPressedWithoutAVisualStyle) {
    TakeThemeAway(button);

    EXPECT_THAT(Paint(button, ODS_SELECTED).Pixels(), ElementsAreArray(Classic(DFCS_PUSHED, 1)));
}

TEST_F(ImageButton, ShowsItsSecondImageWhenDisabled) {
    EXPECT_EQ(Paint(button).Pixel(16, 14), kRed);
    EXPECT_EQ(Paint(button, ODS_DISABLED).Pixel(16, 14), kGreen);

    TakeThemeAway(button);
    EXPECT_EQ(Paint(button, ODS_DISABLED).Pixel(16, 14), kGreen);
}

TEST_F(ImageButton, KeepsItsOnlyImageWhenDisabled) {
    const fw::UniqueImageList one = MakeList({kRed});
    button.SetImages(one.Get());

    EXPECT_EQ(Paint(button, ODS_DISABLED).Pixel(16, 14), kRed);
}

TEST_F(ImageButton, HasItsFocusThreePixelsInWithAVisualStyle) {
    ASSERT_TRUE(static_cast<bool>(button.CurrentTheme()));
    const Canvas without = Paint(button);
    const Canvas with = Paint(button, ODS_FOCUS);

    base::Rect changed{32, 28, 0, 0};
    for (int y = 0; y < 28; ++y)
        for (int x = 0; x < 32; ++x)
            if (with.Pixel(x, y) != without.Pixel(x, y))
                changed = {std::min(changed.left, x), std::min(changed.top, y), std::max(changed.right, x + 1),
                           std::max(changed.bottom, y + 1)};

    EXPECT_EQ(changed, (base::Rect{3, 3, 29, 25}));
}

TEST_F(ImageButton, HasItsFocusFourPixelsInWithoutOne) {
    TakeThemeAway(button);
    const Canvas without = Paint(button);
    const Canvas with = Paint(button, ODS_FOCUS);

    base::Rect changed{32, 28, 0, 0};
    for (int y = 0; y < 28; ++y)
        for (int x = 0; x < 32; ++x)
            if (with.Pixel(x, y) != without.Pixel(x, y))
                changed = {std::min(changed.left, x), std::min(changed.top, y), std::max(changed.right, x + 1),
                           std::max(changed.bottom, y + 1)};

    EXPECT_EQ(changed, (base::Rect{4, 4, 28, 24}));
}

TEST_F(ImageButton, TakesThePlaceOfADialogsButton) {
    const HWND before = ::CreateWindowExW(0, L"BUTTON", L"before", WS_CHILD | WS_TABSTOP, 0, 40, 9, 9, Host(),
                                          reinterpret_cast<HMENU>(UINT_PTR{1}), nullptr, nullptr);
    const HWND placeholder =
        ::CreateWindowExW(0, L"BUTTON", L"背景色", WS_CHILD | WS_TABSTOP | WS_DISABLED | BS_DEFPUSHBUTTON, 50, 40, 30,
                          20, Host(), reinterpret_cast<HMENU>(UINT_PTR{1042}), nullptr, nullptr);
    const HWND after = ::CreateWindowExW(0, L"BUTTON", L"after", WS_CHILD | WS_TABSTOP, 90, 40, 9, 9, Host(),
                                         reinterpret_cast<HMENU>(UINT_PTR{2}), nullptr, nullptr);
    ::SetWindowPos(placeholder, before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    ::SetWindowPos(after, placeholder, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    CAppImageBtn image;

    ASSERT_TRUE(image.Replace(Host(), 1042));

    EXPECT_FALSE(::IsWindow(placeholder));
    EXPECT_EQ(::GetDlgItem(Host(), 1042), image.Handle());
    EXPECT_EQ(::GetWindow(image.Handle(), GW_HWNDNEXT), after);
    EXPECT_EQ(::GetWindow(image.Handle(), GW_HWNDPREV), before);
    EXPECT_EQ(fw::WindowRect(image.Handle()).Extent(), (base::Size{30, 20}));
    EXPECT_FALSE(::IsWindowEnabled(image.Handle()));
    const LONG_PTR style = ::GetWindowLongPtrW(image.Handle(), GWL_STYLE);
    EXPECT_EQ(style & BS_TYPEMASK, BS_OWNERDRAW);
    EXPECT_TRUE(style & WS_TABSTOP);
    EXPECT_EQ(image.TipText(), L"背景色");
}

TEST_F(ImageButton, TakesThePlaceOfNothingWhereThereIsNothing) {
    CAppImageBtn image;

    EXPECT_FALSE(image.Replace(Host(), 4711));

    EXPECT_EQ(image.Handle(), nullptr);
}

} // namespace
} // namespace korvane::controls
