#include <gtest/gtest.h>

#include "controls/calender_window.h"
#include "controls/logic/calendar_layout.h"
#include "controls/logic/contrast.h"
#include "tests/controls/all_bar_buttons.h"

namespace korvane::controls {
namespace {

using base::Colour;
using base::Rect;
using test::Canvas;

constexpr Colour kYellow = Colour::Rgb(255, 255, 0);
constexpr Colour kLightBlue = Colour::Rgb(173, 216, 230);
constexpr Colour kMidGrey = Colour::Rgb(128, 128, 128);

class LegibleText : public AllBarButtons {
protected:
    // How many pixels of the ink there are, and how many of them touch the bare ground.
    struct Count {
        int ink = 0;
        int bare = 0;
    };
    static Count Edges(const Canvas& canvas, COLORREF ink, COLORREF ground) {
        Count count;
        const auto [width, height] = canvas.Extent();
        for (int y = 1; y < height - 1; ++y)
            for (int x = 1; x < width - 1; ++x) {
                if (canvas.Pixel(x, y) != ink) continue;
                ++count.ink;
                for (const auto& [dx, dy] : {std::pair{1, 0}, std::pair{-1, 0}, std::pair{0, 1}, std::pair{0, -1}})
                    if (canvas.Pixel(x + dx, y + dy) == ground) {
                        ++count.bare;
                        break;
                    }
            }
        return count;
    }
};

TEST_F(LegibleText, HasSomethingAroundItWhereWhiteWouldVanish) {
    TakeThemesAway();
    for (const Colour colour : {kYellow, kLightBlue, kMidGrey}) {
        TellBarColour(colour);
        for (const fw::WindowObject* const button : std::initializer_list<const fw::WindowObject*>{&clock, &textDrop}) {
            const Count edges = Edges(Paint(*button), kWhite, colour.value);

            EXPECT_GT(edges.ink, 20) << colour.value;
            EXPECT_EQ(edges.bare, 0) << colour.value;
        }
    }
}

TEST_F(LegibleText, HasTheOutlineOfItsColourAndGround) {
    TakeThemesAway();
    TellBarColour(kYellow);

    const COLORREF outline = OutlineOf(Colour{kWhite}, kYellow).value().value;
    for (const fw::WindowObject* const button : std::initializer_list<const fw::WindowObject*>{&clock, &textDrop})
        EXPECT_NE(Paint(*button).Picture({0, 0, 100, 32}, outline).find('#'), std::string::npos);
}

TEST_F(LegibleText, StandsBareWhereItIsLegible) {
    TakeThemesAway();
    for (const Colour colour : {kDarkBar, kLightBarColour}) {
        TellBarColour(colour);
        const Colour ink = SystemColour(TextColourOn(colour));

        EXPECT_GT(Edges(Paint(clock), ink.value, Ground()).bare, 20);
        EXPECT_GT(Edges(Paint(textDrop), ink.value, Ground()).bare, 20);
    }
}

// What is drawn goes by what is behind it, which the mouse changes.
TEST_F(LegibleText, GoesByThePlateUnderIt) {
    TakeThemesAway();
    // White is just legible on this grey, but no longer on the brighter plate of a press.
    const Colour grey = Colour::Rgb(112, 112, 112);
    TellBarColour(grey);
    ASSERT_GE(Contrast(Colour{kWhite}, grey), kLegible);
    ASSERT_LT(Contrast(Colour{kWhite}, Colour{Plate(ButtonState::kPressed)}), kLegible);

    EXPECT_GT(Edges(Paint(clock), kWhite, grey.value).bare, 0);
    const Count pressed = Edges(Paint(clock, ODS_SELECTED), kWhite, Plate(ButtonState::kPressed));
    EXPECT_GT(pressed.ink, 20);
    EXPECT_EQ(pressed.bare, 0);
}

TEST_F(LegibleText, IsTheSystemsOwnOnAFieldOfTheSystem) {
    TakeThemesAway();
    CTextDropButton chooser{bar};
    Put(chooser, {500, 4, 640, 26}, ID_SEARCH_CHOOSER, L"検索");
    host.ground = ::GetSysColor(COLOR_WINDOW);

    EXPECT_GT(Edges(Paint(chooser), ::GetSysColor(COLOR_BTNTEXT), Ground()).bare, 5);
}

class LegibleCalendar : public LegibleText {
protected:
    Canvas PaintOn(Colour colour) {
        const fw::UniqueBrush ground{::CreateSolidBrush(fw::ToWindows(colour))};
        calendar.SetLook(LookOn(ground.Get()), bar.BarFont());
        if (!calendar.Handle()) {
            EXPECT_TRUE(calendar.Create({.rect = {0, 100, 196, 230}, .style = WS_CHILD, .parent = Host()}));
        }
        calendar.Fill({2026, 11}, {2026, 11, 15, 0, 12, 0, 0}, Filling::kTurned);
        Canvas canvas{{196, 130}};
        Send(calendar.Handle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc()));
        return canvas;
    }
    CCalenderWindow calendar;
};

TEST_F(LegibleCalendar, HasSomethingAroundItsDaysWhereTheyWouldVanish) {
    for (const Colour colour : {kYellow, kLightBlue, kMidGrey}) {
        const Canvas canvas = PaintOn(colour);

        EXPECT_GT(Edges(canvas, kWhite, colour.value).ink, 50) << colour.value;
        EXPECT_EQ(Edges(canvas, kWhite, colour.value).bare, 0) << colour.value;
    }
}

TEST_F(LegibleCalendar, HasSomethingAroundTodaysFrameAndItsLine) {
    const Canvas canvas = PaintOn(kYellow);

    const COLORREF dim = Between(kYellow, Colour{kWhite}).value;
    const COLORREF around = OutlineOf({dim}, kYellow, kReceding).value().value;
    const Rect today = CellRect(14, base::DpiScale{96});
    EXPECT_EQ(canvas.Pixel(today.left + 4, today.top), dim);
    EXPECT_EQ(canvas.Pixel(today.left + 4, today.top - 1), around);
    EXPECT_EQ(canvas.Pixel(today.left + 4, today.top + 1), around);
    EXPECT_EQ(canvas.Pixel(90, 32), dim);
    EXPECT_EQ(canvas.Pixel(90, 31), around);
    EXPECT_EQ(canvas.Pixel(90, 33), around);
}

TEST_F(LegibleCalendar, StandsBareOnTheProductsColour) {
    const Canvas canvas = PaintOn(base::kThemeColour);

    EXPECT_GT(Edges(canvas, kWhite, base::kThemeColour.value).bare, 50);
    EXPECT_EQ(canvas.Pixel(90, 31), base::kThemeColour.value);
}

} // namespace
} // namespace korvane::controls
