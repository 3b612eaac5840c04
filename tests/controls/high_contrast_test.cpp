#include "framework/high_contrast.h"

#include <gtest/gtest.h>

#include "controls/app_image_btn.h"
#include "controls/calender_window.h"
#include "controls/list_item_look.h"
#include "controls/logic/calendar_layout.h"
#include "controls/up_down_button.h"
#include "framework/image_list.h"
#include "tests/controls/all_bar_buttons.h"
#include "tests/support/high_contrast.h"

namespace korvane::controls {
namespace {

using base::Colour;
using base::Rect;
using test::Canvas;
using test::SystemColours;

class HighContrastLook : public AllBarButtons, public testing::WithParamInterface<SystemColours (*)()> {
protected:
    void SetUp() override {
        AllBarButtons::SetUp();
        TellBarColour({Of(COLOR_WINDOW)});
    }
    [[nodiscard]] COLORREF Of(int index) const { return scheme.at(index); }
    static bool Has(const Canvas& canvas, COLORREF colour) {
        const auto [width, height] = canvas.Extent();
        return canvas.Picture({0, 0, width, height}, colour).find('#') != std::string::npos;
    }
    // Smoothing mixes the ink with the ground; nothing else may be there.
    static bool OnlyBetween(const Canvas& canvas, Colour ground, Colour ink) {
        for (const COLORREF pixel : canvas.Pixels()) {
            const Colour found{pixel};
            const auto within = [](int x, int a, int b) { return x >= std::min(a, b) && x <= std::max(a, b); };
            if (!within(found.Red(), ground.Red(), ink.Red()) || !within(found.Green(), ground.Green(), ink.Green()) ||
                !within(found.Blue(), ground.Blue(), ink.Blue()))
                return false;
        }
        return true;
    }
    void ExpectInkOnGround(const Canvas& canvas, int ink, int ground, const std::string& what) {
        EXPECT_EQ(canvas.Pixel(0, 0), Of(ground)) << what;
        EXPECT_TRUE(Has(canvas, Of(ink))) << what;
        EXPECT_TRUE(OnlyBetween(canvas, {Of(ground)}, {Of(ink)})) << what;
    }

    SystemColours scheme = GetParam()();
    test::HighContrast highContrast{scheme};
};

TEST_P(HighContrastLook, IsAskedOfWindows) {
    EXPECT_TRUE(fw::HighContrast());
}

// The visual style of this Windows is there, and plays no part.
TEST_P(HighContrastLook, PairsTheSystemsColoursInEveryStateOfEveryButton) {
    for (const Member& member : Members()) {
        ExpectInkOnGround(Paint(*member.button), COLOR_WINDOWTEXT, COLOR_WINDOW, member.name);
        ExpectInkOnGround(Paint(*member.button, ODS_DISABLED), COLOR_GRAYTEXT, COLOR_WINDOW, member.name + " disabled");
        ExpectInkOnGround(Paint(*member.button, ODS_SELECTED), COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT,
                          member.name + " pressed");
        Enter(*member.button);
        ExpectInkOnGround(Paint(*member.button), COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT, member.name + " hot");
        Send(member.button->Handle(), WM_MOUSELEAVE);
    }
}

TEST_P(HighContrastLook, LeavesAPictureItsOwnColours) {
    tool.SetIcon(MakeIcon(kRed), fw::ImageKind::kPicture);

    EXPECT_EQ(Paint(tool).Pixel(18, 16), kRed);
}

TEST_P(HighContrastLook, DrawsTheImagesOfTheFieldsInTheSystemsColours) {
    fw::UniqueImageList normal{::ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, 1, 0)};
    ::ImageList_ReplaceIcon(normal.Get(), -1, MakeIcon(kRed).Get());
    CToolButton run;
    Put(run, {500, 5, 522, 27}, ID_RUN_TYPED);
    run.SetImageListIndex(normal.Get(), normal.Get(), 0, fw::ImageKind::kDrawing);

    EXPECT_EQ(Paint(run).Pixel(11, 11), Of(COLOR_WINDOWTEXT));
    EXPECT_EQ(Paint(run, ODS_DISABLED).Pixel(11, 11), Of(COLOR_GRAYTEXT));
}

TEST_P(HighContrastLook, DrawsTheStepButtonsInTheSystemsColours) {
    CUpDownButton step{Direction::kLeft, Colour{kRed}};
    Put(step, {500, 0, 525, 25});

    ExpectInkOnGround(Paint(step), COLOR_WINDOWTEXT, COLOR_WINDOW, "step");
    ExpectInkOnGround(Paint(step, ODS_SELECTED), COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT, "step pressed");
}

TEST_P(HighContrastLook, DrawsTheImagesOfADialogsButtonsInTheTextColourOfButtons) {
    fw::UniqueImageList images{::ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, 2, 0)};
    ::ImageList_ReplaceIcon(images.Get(), -1, MakeIcon(kRed).Get());
    ::ImageList_ReplaceIcon(images.Get(), -1, MakeIcon(kGreen).Get());
    CAppImageBtn button;
    Put(button, {500, 0, 532, 28}, 1011);
    button.SetImages(images.Get());

    EXPECT_EQ(Paint(button).Pixel(16, 14), Of(COLOR_BTNTEXT));
    EXPECT_EQ(Paint(button, ODS_DISABLED).Pixel(16, 14), Of(COLOR_GRAYTEXT));
}

TEST_P(HighContrastLook, GivesTheCalendarTheSystemsColours) {
    const fw::UniqueBrush ground{::CreateSolidBrush(Of(COLOR_WINDOW))};
    CCalenderWindow calendar;
    calendar.SetLook(LookOn(ground.Get()), bar.BarFont());
    ASSERT_TRUE(calendar.Create({.rect = {0, 100, 196, 230}, .style = WS_CHILD, .parent = Host()}));
    calendar.Fill({2026, 11}, {2026, 11, 15, 0, 12, 0, 0}, Filling::kTurned);
    const Canvas canvas{{196, 130}};
    Send(calendar.Handle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc()));

    EXPECT_EQ(canvas.Pixel(0, 0), Of(COLOR_WINDOW));
    EXPECT_TRUE(Has(canvas, Of(COLOR_WINDOWTEXT)));
    EXPECT_EQ(canvas.Pixel(90, 32), Of(COLOR_GRAYTEXT));
    const Rect today = CellRect(14, base::DpiScale{96});
    EXPECT_EQ(canvas.Pixel(today.left, today.top), Of(COLOR_GRAYTEXT));
}

TEST_P(HighContrastLook, HighlightsTheSelectedRowOfAList) {
    fw::Theme theme;
    theme.Open(Host(), kListTheme);
    const Canvas canvas{{40, 20}};

    PaintSelectedRow(theme, canvas.Dc(), {0, 0, 40, 20}, true);

    EXPECT_EQ(canvas.Content({0, 0, 40, 20}, Of(COLOR_HIGHLIGHT)), Rect{});
}

TEST_P(HighContrastLook, FramesTheIconsOfAListInTheTextColour) {
    fw::Theme theme;
    theme.Open(Host(), kListTheme);
    const Canvas canvas{{40, 20}};

    PaintItemFrame(theme, canvas.Dc(), {0, 0, 40, 20});

    EXPECT_EQ(canvas.Pixel(0, 10), Of(COLOR_WINDOWTEXT));
    EXPECT_EQ(canvas.Pixel(20, 10), Of(COLOR_WINDOW));
}

INSTANTIATE_TEST_SUITE_P(Schemes, HighContrastLook, testing::Values(&test::ContrastBlack, &test::ContrastWhite),
                         [](const auto& scheme) { return scheme.index == 0 ? "Black" : "White"; });

TEST(HighContrastSetting, IsOffUnlessTheUserHasIt) {
    EXPECT_FALSE(fw::HighContrast());
}

TEST(RowText, IsTheHighlightsOnlyOnTheHighlight) {
    EXPECT_EQ(RowTextColour(true, true, true), COLOR_HIGHLIGHTTEXT);
    EXPECT_EQ(RowTextColour(true, false, true), COLOR_HIGHLIGHTTEXT);
    EXPECT_EQ(RowTextColour(false, true, true), COLOR_WINDOWTEXT);
    EXPECT_EQ(RowTextColour(false, false, true), COLOR_GRAYTEXT);
    EXPECT_EQ(RowTextColour(true, true, false), COLOR_WINDOWTEXT);
    EXPECT_EQ(RowTextColour(true, false, false), COLOR_GRAYTEXT);
}

} // namespace
} // namespace korvane::controls
