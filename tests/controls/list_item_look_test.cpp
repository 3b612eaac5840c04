#include "controls/list_item_look.h"

#include <gtest/gtest.h>

#include "base/colour.h"
#include "tests/support/canvas.h"

using namespace korvane;
using namespace korvane::controls;

namespace {

constexpr base::Rect kRow{2, 2, 18, 12};

TEST(ListItemLook, TakesTheHotStateForSelectedRowsSinceWindows8) {
    EXPECT_EQ(SelectedRowState(false), kListItemSelected);
    EXPECT_EQ(SelectedRowState(true), kListItemHot);
}

TEST(ListItemLook, FillsASelectedRowWithoutAVisualStyle) {
    const test::Canvas canvas{{20, 14}};

    PaintSelectedRow({}, canvas.Dc(), kRow, true);

    EXPECT_EQ(canvas.Content({0, 0, 20, 14}, test::Canvas::kUntouched), kRow);
    EXPECT_NE(canvas.Pixel(2, 2), canvas.Pixel(10, 7));
    // Pale enough for text in its usual colour.
    const base::Colour ground{canvas.Pixel(10, 7)};
    const base::Colour window{::GetSysColor(COLOR_WINDOW)};
    EXPECT_NE(ground, window);
    EXPECT_LT(window.Green() - ground.Green(), 64);
}

TEST(ListItemLook, DrawsAQuietFrameWithoutAVisualStyle) {
    const test::Canvas canvas{{20, 14}};

    PaintItemFrame({}, canvas.Dc(), kRow);

    EXPECT_EQ(canvas.Content({0, 0, 20, 14}, test::Canvas::kUntouched), kRow);
    EXPECT_NE(canvas.Pixel(2, 2), canvas.Pixel(10, 7));
}

TEST(ListItemLook, DotsTheEdgeOfTheRowThatTheKeyboardIsOn) {
    const test::Canvas canvas{{20, 14}};
    canvas.Fill({0, 0, 20, 14}, RGB(255, 255, 255));

    PaintRowFocus(canvas.Dc(), kRow);

    EXPECT_EQ(canvas.Content({0, 0, 20, 14}, RGB(255, 255, 255)).Width(), kRow.Width());
    EXPECT_EQ(canvas.Pixel(10, 7), RGB(255, 255, 255));
}

} // namespace
