#include <gmock/gmock.h>

#include "controls/logic/contrast.h"
#include "controls/up_down_button.h"
#include "tests/controls/all_bar_buttons.h"
#include "tests/support/high_contrast.h"

namespace korvane::controls {
namespace {

using base::Colour;
using test::Canvas;

constexpr std::array kBarColours{Colour::Rgb(0, 0, 0),       Colour::Rgb(255, 255, 255), Colour::Rgb(255, 255, 0),
                                 Colour::Rgb(128, 128, 128), base::kThemeColour,         Colour::Rgb(173, 216, 230)};
constexpr std::array<UINT, 4> kItemStates{0, ODS_SELECTED, ODS_DISABLED, ODS_SELECTED | ODS_DISABLED};

class KeyboardFocus : public AllBarButtons {
protected:
    // The colours along the frame two pixels inside the button, each once.
    static std::vector<COLORREF> Frame(const Canvas& canvas) {
        const auto [width, height] = canvas.Extent();
        std::vector<COLORREF> found;
        const auto note = [&](int x, int y) {
            const COLORREF pixel = canvas.Pixel(x, y);
            if (std::ranges::find(found, pixel) == found.end()) found.push_back(pixel);
        };
        for (int x = 2; x < width - 2; ++x) {
            note(x, 2);
            note(x, height - 3);
        }
        for (int y = 2; y < height - 2; ++y) {
            note(2, y);
            note(width - 3, y);
        }
        return found;
    }
    void ShowFocus() {
        ForEach([](auto& button) { button.SetFocusShown(true); });
    }
    // The bar is to be seen and active, with an edit box that has the keyboard.
    HWND TypeIntoABox() {
        ::ShowWindow(Host(), SW_SHOW);
        ::SetActiveWindow(Host());
        const HWND box = ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 500, 0, 90, 20, Host(),
                                           reinterpret_cast<HMENU>(UINT_PTR{1}), nullptr, nullptr);
        ::SetFocus(box);
        EXPECT_EQ(::GetFocus(), box);
        return box;
    }
};

TEST_F(KeyboardFocus, ComesToEveryButtonAndIsTold) {
    (void)TypeIntoABox();
    for (const Member& member : Members()) {
        ::SetFocus(member.button->Handle());

        EXPECT_EQ(::GetFocus(), member.button->Handle()) << member.name;
        EXPECT_TRUE(Send(member.button->Handle(), BM_GETSTATE) & BST_FOCUS) << member.name;
    }
}

TEST_F(KeyboardFocus, IsFramedOnEveryButtonInEveryStateOnEveryBar) {
    ShowFocus();
    for (const Colour colour : kBarColours) {
        TellBarColour(colour);
        for (const Member& member : Members()) {
            for (const UINT state : kItemStates) {
                const std::vector<COLORREF> frame = Frame(Paint(*member.button, state | ODS_FOCUS));

                ASSERT_EQ(frame.size(), 1U) << member.name << " " << state << " " << colour.value;
                const COLORREF inside = Paint(*member.button, state | ODS_FOCUS).Pixel(1, 12);
                EXPECT_GE(Contrast({frame.front()}, {inside}), kVisible)
                    << member.name << " " << state << " " << colour.value;
            }
        }
    }
}

TEST_F(KeyboardFocus, IsFramedWithoutAVisualStyleToo) {
    ShowFocus();
    TakeThemesAway();
    for (const Colour colour : kBarColours) {
        TellBarColour(colour);
        for (const Member& member : Members())
            for (const UINT state : kItemStates) {
                const Canvas canvas = Paint(*member.button, state | ODS_FOCUS);
                ASSERT_EQ(Frame(canvas).size(), 1U) << member.name << " " << state;
                EXPECT_GE(Contrast({Frame(canvas).front()}, {canvas.Pixel(1, 12)}), kLegible)
                    << member.name << " " << state << " " << colour.value;
            }
    }
}

TEST_F(KeyboardFocus, IsFramedInTheSystemsColoursInHighContrast) {
    ShowFocus();
    for (const test::SystemColours& scheme : {test::ContrastBlack(), test::ContrastWhite()}) {
        const test::HighContrast highContrast{scheme};
        TellBarColour({scheme.at(COLOR_WINDOW)});
        for (const Member& member : Members()) {
            const Canvas canvas = Paint(*member.button, ODS_FOCUS);

            const bool lit = canvas.Pixel(0, 0) == scheme.at(COLOR_HIGHLIGHT);
            EXPECT_EQ(lit, member.button != &exit) << member.name;
            EXPECT_THAT(Frame(canvas), testing::ElementsAre(scheme.at(lit ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT)))
                << member.name;
        }
    }
}

TEST_F(KeyboardFocus, IsNotShownUntilTheButtonsAreToldTo) {
    TakeThemesAway();
    for (const Member& member : Members())
        EXPECT_EQ(Paint(*member.button, ODS_FOCUS).Pixels(), Paint(*member.button).Pixels()) << member.name;
}

TEST_F(KeyboardFocus, LightsTheButtonUpAsTheMouseDoes) {
    ShowFocus();
    TakeThemesAway();
    for (const Member& member : Members()) {
        const COLORREF expected = member.button == &exit ? Ground() : Plate(ButtonState::kHot);
        EXPECT_EQ(Paint(*member.button, ODS_FOCUS).Pixel(0, 0), expected) << member.name;
    }
}

TEST_F(KeyboardFocus, StaysWhereItWasWhenAButtonIsClicked) {
    for (const Member& member : Members()) {
        const HWND box = TypeIntoABox();

        Click(member.button->Handle());
        EXPECT_EQ(::GetFocus(), box) << member.name;
        Pump();

        EXPECT_EQ(::GetFocus(), box) << member.name;
        ::DestroyWindow(box);
    }
}

TEST_F(KeyboardFocus, LeavesTheClickWhatItIs) {
    (void)TypeIntoABox();
    host.sent.clear();
    for (const Member& member : Members()) {
        Click(member.button->Handle());
        Pump();

        EXPECT_EQ(host.CommandCount(member.id, BN_CLICKED), member.opensMenu ? 0 : 1) << member.name;
    }
    EXPECT_NE(bar.log.find(L"popup 0"), std::wstring::npos);
    EXPECT_NE(bar.log.find(L"popup 2"), std::wstring::npos);
}

TEST_F(KeyboardFocus, StaysOnTheButtonThatHasItWhenThatIsClicked) {
    (void)TypeIntoABox();
    ::SetFocus(tool.Handle());

    Click(tool.Handle());

    EXPECT_EQ(::GetFocus(), tool.Handle());
    EXPECT_EQ(host.CommandCount(ID_OPTIONS, BN_CLICKED), 1);
}

TEST_F(KeyboardFocus, GoesToTheStepButtonsOfADialogWithAClick) {
    (void)TypeIntoABox();
    CUpDownButton step{Direction::kLeft, Colour::Rgb(255, 255, 255)};
    Put(step, {600, 0, 625, 25}, 77);

    Click(step.Handle());

    EXPECT_EQ(::GetFocus(), step.Handle());
    EXPECT_EQ(host.CommandCount(77, BN_CLICKED), 1);
}

TEST_F(KeyboardFocus, LetsSpaceEnterAndAMessagePressEveryButton) {
    for (const Member& member : Members()) {
        const HWND window = member.button->Handle();
        const std::array<std::function<void()>, 3> presses{
            [&] {
                Send(window, WM_KEYDOWN, VK_SPACE);
                Send(window, WM_KEYUP, VK_SPACE);
            },
            [&] { Send(window, WM_KEYDOWN, VK_RETURN); },
            [&] { Send(window, BM_CLICK); },
        };
        for (std::size_t i = 0; i < presses.size(); ++i) {
            host.sent.clear();
            bar.log.clear();
            dropDown.SetMenuShown(false);

            presses[i]();
            Pump();

            EXPECT_EQ(bar.log.empty(), !member.opensMenu) << member.name << " " << i;
            EXPECT_EQ(host.CommandCount(member.id, BN_CLICKED), member.opensMenu ? 0 : 1) << member.name << " " << i;
        }
    }
}

TEST_F(KeyboardFocus, LetsTheirOwnerPressEveryButton) {
    tool.Press();
    mainMenu.Press();
    dropDown.Press();
    Pump();

    EXPECT_EQ(host.CommandCount(ID_OPTIONS, BN_CLICKED), 1);
    EXPECT_EQ(host.CommandCount(ID_COMMAND_HISTORY, BN_CLICKED), 1);
    EXPECT_NE(bar.log.find(L"popup 0"), std::wstring::npos);
}

// The dialog manager is asked as the frame does it.
TEST_F(KeyboardFocus, TakesEnterFromTheDialogManagerAndNoArrow) {
    for (const Member& member : Members()) {
        const HWND window = member.button->Handle();
        const auto code = [&](WPARAM key) {
            MSG message{window, WM_KEYDOWN, key, 1, 0, {}};
            return Send(window, WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&message));
        };
        EXPECT_TRUE(code(VK_RETURN) & DLGC_WANTMESSAGE) << member.name;
        for (const WPARAM key : {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_TAB, VK_ESCAPE})
            EXPECT_EQ(code(key) & (DLGC_WANTMESSAGE | DLGC_WANTARROWS | DLGC_WANTTAB), 0) << member.name << key;
    }
}

} // namespace
} // namespace korvane::controls
