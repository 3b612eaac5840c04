#include "controls/colour_dialog.h"

#include <gtest/gtest.h>

#include "framework/gdi.h"
#include "tests/support/modal_dialog_answer.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::controls;
using base::Colour;

namespace {

// What Windows' own dialog calls them.
constexpr int kRedField = 706;
constexpr int kGreenField = 707;
constexpr int kBlueField = 708;
constexpr int kAddCustomColour = 712;
constexpr int kMoreButton = 719;

using ColourDialog = test::WindowTest;

TEST_F(ColourDialog, StartsAtTheColourThatItIsGiven) {
    CAppColorDlg dialog{Colour::Rgb(10, 20, 30)};
    std::array<UINT, 3> shown{};
    test::ModalDialogAnswer answer{IDOK, [&](HWND window) {
                                       shown = {::GetDlgItemInt(window, kRedField, nullptr, FALSE),
                                                ::GetDlgItemInt(window, kGreenField, nullptr, FALSE),
                                                ::GetDlgItemInt(window, kBlueField, nullptr, FALSE)};
                                   }};

    EXPECT_TRUE(dialog.ShowModal(Host()));

    EXPECT_EQ(shown, (std::array<UINT, 3>{10, 20, 30}));
    EXPECT_EQ(dialog.Colour(), Colour::Rgb(10, 20, 30));
}

TEST_F(ColourDialog, IsTitledAndOwned) {
    CAppColorDlg dialog{Colour{}};
    test::ModalDialogAnswer answer{IDCANCEL};

    EXPECT_FALSE(dialog.ShowModal(Host()));

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.Caption(), L"背景色の設定");
    EXPECT_EQ(answer.Owner(), Host());
}

TEST_F(ColourDialog, IsFullyOpen) {
    CAppColorDlg dialog{Colour{}};
    bool canOpenMore = true;
    test::ModalDialogAnswer answer{
        IDCANCEL, [&](HWND window) { canOpenMore = ::IsWindowEnabled(::GetDlgItem(window, kMoreButton)) != 0; }};

    EXPECT_FALSE(dialog.ShowModal(Host()));

    EXPECT_FALSE(canOpenMore);
}

TEST_F(ColourDialog, IsInTheMiddleOfItsOwner) {
    ::SetWindowPos(Host(), nullptr, 300, 200, 900, 700, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    CAppColorDlg dialog{Colour{}};
    base::Rect place;
    test::ModalDialogAnswer answer{IDCANCEL, [&](HWND window) { place = fw::WindowRect(window); }};

    EXPECT_FALSE(dialog.ShowModal(Host()));

    EXPECT_NEAR(place.left + place.right, 2 * 300 + 900, 2);
    EXPECT_NEAR(place.top + place.bottom, 2 * 200 + 700, 2);
}

TEST_F(ColourDialog, GivesTheColourThatWasPicked) {
    CAppColorDlg dialog{Colour{}};
    test::ModalDialogAnswer answer{IDOK, [](HWND window) {
                                       ::SetDlgItemInt(window, kRedField, 255, FALSE);
                                       ::SetDlgItemInt(window, kGreenField, 128, FALSE);
                                       ::SetDlgItemInt(window, kBlueField, 1, FALSE);
                                   }};

    EXPECT_TRUE(dialog.ShowModal(Host()));

    EXPECT_EQ(dialog.Colour(), Colour::Rgb(255, 128, 1));
}

TEST_F(ColourDialog, KeepsItsColourWhenItIsCancelled) {
    CAppColorDlg dialog{Colour::Rgb(10, 20, 30)};
    test::ModalDialogAnswer answer{IDCANCEL, [](HWND window) { ::SetDlgItemInt(window, kRedField, 255, FALSE); }};

    EXPECT_FALSE(dialog.ShowModal(Host()));

    EXPECT_EQ(dialog.Colour(), Colour::Rgb(10, 20, 30));
}

} // namespace
