#include "about/about_dialog.h"

#include <gtest/gtest.h>

#include <string>

#include "base/colour.h"
#include "framework/centred_message_box.h"
#include "framework/gdi.h"
#include "framework/gdiplus_image.h"
#include "framework/icons.h"
#include "framework/monitors.h"
#include "framework/window_text.h"
#include "framework/windows_program.h"
#include "tests/about/recording_opener.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/window_test.h"

namespace korvane::about {
namespace {

constexpr COLORREF kBand = RGB(159, 22, 106);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kGreen = RGB(0, 255, 0);

// A banner of one colour that the box's own ground does not have.
fw::UniqueBitmap GreenBanner(int width, int height) {
    const fw::WindowDc screen{nullptr};
    fw::UniqueBitmap bitmap{::CreateCompatibleBitmap(screen.Get(), width, height)};
    const fw::UniqueMemoryDc dc{::CreateCompatibleDC(screen.Get())};
    const fw::SelectedObject selected{dc.Get(), bitmap.Get()};
    const fw::UniqueBrush brush{::CreateSolidBrush(kGreen)};
    const RECT all{0, 0, width, height};
    ::FillRect(dc.Get(), &all, brush.Get());
    return bitmap;
}

class AboutBox : public test::WindowTest {
protected:
    static constexpr int kBannerWidth = 21;
    static constexpr int kBannerHeight = 13;

    AboutBoxContent Content() {
        return {.versionText = L"Korvane 32 Version 1.0.0\nfor Windows 7 [6.1.7601]",
                .smallIcon = icon_.Get(),
                .licensee = {L"山田 太郎", L"R&D 部"},
                .loadBanner = [] { return GreenBanner(kBannerWidth, kBannerHeight); },
                .open = shell.AsOpener()};
    }
    CAboutDialog& Box() { return Box(Content()); }
    CAboutDialog& Box(AboutBoxContent content) {
        box_ = std::make_unique<CAboutDialog>(std::move(content));
        EXPECT_TRUE(box_->Create(Host()));
        return *box_;
    }
    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(box_->Handle(), id); }
    [[nodiscard]] base::Rect Place(int id) const {
        RECT rect{};
        ::GetWindowRect(Control(id), &rect);
        ::MapWindowPoints(nullptr, box_->Handle(), reinterpret_cast<POINT*>(&rect), 2);
        return fw::FromWindows(rect);
    }
    // The colour of a point of the box's ground.
    [[nodiscard]] COLORREF GroundAt(int x, int y) const {
        const base::Rect client = fw::ClientRect(box_->Handle());
        const fw::WindowDc screen{nullptr};
        const fw::UniqueMemoryDc dc{::CreateCompatibleDC(screen.Get())};
        const fw::UniqueBitmap bitmap{::CreateCompatibleBitmap(screen.Get(), client.Width(), client.Height())};
        const fw::SelectedObject selected{dc.Get(), bitmap.Get()};
        EXPECT_NE(Send(box_->Handle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.Get())), 0);
        return ::GetPixel(dc.Get(), x, y);
    }
    struct Colours {
        COLORREF text;
        int mode;
        HGDIOBJ brush;
    };
    [[nodiscard]] Colours ColoursOf(HWND control) const {
        const fw::WindowDc dc{control};
        const LRESULT brush = Send(box_->Handle(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.Get()),
                                   reinterpret_cast<LPARAM>(control));
        return {::GetTextColor(dc.Get()), ::GetBkMode(dc.Get()), reinterpret_cast<HGDIOBJ>(brush)};
    }

    test::RecordingOpener shell;

private:
    fw::UniqueIcon icon_ = fw::LoadResourceIcon(IDI_KORVANE, 16);
    std::unique_ptr<CAboutDialog> box_;
};

TEST_F(AboutBox, HasTheProductInItsCaption) {
    EXPECT_EQ(fw::WindowText(Box().Handle()), L"Korvane のバージョン情報");
}

TEST_F(AboutBox, ShowsTheVersionAndTheRights) {
    Box();

    EXPECT_EQ(fw::WindowText(Control(IDC_VERSION)), L"Korvane 32 Version 1.0.0\nfor Windows 7 [6.1.7601]\n\n"
                                                    L"Copyright (C) 2026 Dunmere Software. All rights reserved.");
}

TEST_F(AboutBox, ShowsTheLicenseeOnTwoLines) {
    Box();

    EXPECT_EQ(fw::WindowText(Control(IDC_LICENSED_TO)), L"山田 太郎\nR&D 部");
}

TEST_F(AboutBox, HasTwoEmptyLinesForNobody) {
    AboutBoxContent content = Content();
    content.licensee = {};
    Box(std::move(content));

    EXPECT_EQ(fw::WindowText(Control(IDC_LICENSED_TO)), L"\n");
}

TEST_F(AboutBox, ShortensALicenseeThatDoesNotFit) {
    AboutBoxContent content = Content();
    content.licensee = {std::wstring(5'000, L'山'), std::wstring(5'000, L'W')};
    Box(std::move(content));

    const std::wstring text = fw::WindowText(Control(IDC_LICENSED_TO));
    const std::size_t lineBreak = text.find(L'\n');
    ASSERT_NE(lineBreak, std::wstring::npos);
    const fw::WindowDc dc{Control(IDC_LICENSED_TO)};
    const fw::SelectedObject font{dc.Get(), reinterpret_cast<HFONT>(Send(Control(IDC_LICENSED_TO), WM_GETFONT))};
    for (const std::wstring& line : {text.substr(0, lineBreak), text.substr(lineBreak + 1)}) {
        SIZE size{};
        ::GetTextExtentPoint32W(dc.Get(), line.data(), static_cast<int>(line.size()), &size);
        EXPECT_GT(line.size(), 10U);
        EXPECT_LE(size.cx, Place(IDC_LICENSED_TO).Width());
        EXPECT_TRUE(line.ends_with(L"..."));
    }
}

TEST_F(AboutBox, HasTheBarsIcon) {
    const AboutBoxContent content = Content();

    EXPECT_EQ(reinterpret_cast<HICON>(Send(Box(content).Handle(), WM_GETICON, ICON_SMALL)), content.smallIcon);
}

TEST_F(AboutBox, StandsInTheMiddleOfTheWorkArea) {
    const base::Rect box = fw::WindowRect(Box().Handle());

    const base::Rect area = fw::WorkAreaOf(Host());
    EXPECT_EQ(box.TopLeft(), base::Centred(area, box.Extent()).TopLeft());
}

TEST_F(AboutBox, IsColouredDownToTheSeparatorAndWhiteBelow) {
    Box();
    const int bandEnd = Place(IDC_BAND_END).top;

    EXPECT_EQ(GroundAt(0, 0), kBand);
    EXPECT_EQ(GroundAt(3, bandEnd - 1), kBand);
    EXPECT_EQ(GroundAt(3, bandEnd), kWhite);
    EXPECT_EQ(GroundAt(3, fw::ClientRect(::GetParent(Control(IDOK))).bottom - 1), kWhite);
    EXPECT_FALSE(::IsWindowVisible(Control(IDC_BAND_END)));
}

TEST_F(AboutBox, HasItsBannerInTheMiddleOfItsTop) {
    const int left = (fw::ClientRect(Box().Handle()).Width() - kBannerWidth) / 2;

    EXPECT_EQ(GroundAt(left, 0), kGreen);
    EXPECT_EQ(GroundAt(left + kBannerWidth - 1, kBannerHeight - 1), kGreen);
    EXPECT_EQ(GroundAt(left - 1, 0), kBand);
    EXPECT_EQ(GroundAt(left + kBannerWidth, 0), kBand);
    EXPECT_EQ(GroundAt(left, kBannerHeight), kBand);
}

TEST_F(AboutBox, WritesOnItsGroundInWhiteOnlyOnTheBand) {
    Box();

    for (const int id : {IDC_VERSION, IDC_SITE, IDC_LICENSED_TO}) {
        const Colours colours = ColoursOf(Control(id));
        EXPECT_EQ(colours.text, id == IDC_LICENSED_TO ? RGB(0, 0, 0) : kWhite) << id;
        EXPECT_EQ(colours.mode, TRANSPARENT) << id;
        EXPECT_EQ(colours.brush, ::GetStockObject(HOLLOW_BRUSH)) << id;
    }
}

TEST_F(AboutBox, HasItsTextsWhereTheirColourCanBeRead) {
    Box();
    const int bandEnd = Place(IDC_BAND_END).top;

    EXPECT_LE(Place(IDC_VERSION).bottom, Place(IDC_SITE).top);
    EXPECT_LE(Place(IDC_SITE).bottom, bandEnd);
    EXPECT_GT(Place(IDC_LICENSED_TO).top, bandEnd);
    EXPECT_LE(Place(IDC_LICENSED_TO).bottom, Place(IDOK).top);
}

TEST_F(AboutBox, StartsTheSystemInformation) {
    Box();

    Send(Control(IDC_SYSTEM_INFORMATION), BM_CLICK);

    EXPECT_EQ(shell.log, L"open " + fw::WindowsProgram(L"msinfo32.exe") + L"\n");
}

TEST_F(AboutBox, ReportsASystemInformationThatDoesNotStart) {
    shell.answer = ERROR_FILE_NOT_FOUND;
    Box();
    const test::MessageBoxAnswer answer{IDOK};

    Send(Control(IDC_SYSTEM_INFORMATION), BM_CLICK);

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.Caption(), L"Korvane");
    EXPECT_EQ(answer.Text(), fw::SystemErrorText(ERROR_FILE_NOT_FOUND));
}

TEST_F(AboutBox, OpensTheMakersSiteFromItsAddress) {
    Box();
    EXPECT_EQ(fw::WindowText(Control(IDC_SITE)), L"https://korvane.example/");

    Click(Control(IDC_SITE));

    EXPECT_EQ(shell.log, L"open https://korvane.example/\n");
}

TEST_F(AboutBox, ShowsAHandOverTheAddressOnly) {
    Box();
    const HCURSOR before = ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));

    EXPECT_EQ(Send(::GetParent(Control(IDOK)), WM_SETCURSOR, reinterpret_cast<WPARAM>(Control(IDC_SITE)),
                   MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)),
              TRUE);
    EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_HAND));

    Send(::GetParent(Control(IDOK)), WM_SETCURSOR, reinterpret_cast<WPARAM>(Control(IDC_VERSION)),
         MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_ARROW));
    ::SetCursor(before);
}

TEST_F(AboutBox, IsALinkOnlyWhereTheAddressStands) {
    const base::Rect client = fw::ClientRect(Box().Handle());
    const base::Rect site = Place(IDC_SITE);

    EXPECT_LT(site.Width(), client.Width() / 2);
    EXPECT_NEAR(site.left + site.right, client.Width(), 4);
}

TEST_F(AboutBox, FailsWithItsOwnResultWhenThereIsNoBanner) {
    AboutBoxContent content = Content();
    content.loadBanner = [] { return fw::UniqueBitmap{}; };
    CAboutDialog box{std::move(content)};
    const test::MessageBoxAnswer answer{IDOK};

    EXPECT_EQ(box.ShowModal(Host()), 3);

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.Caption(), L"Korvane");
    EXPECT_EQ(answer.Text(), L"ダイアログボックスの初期化に失敗しました。");
}

TEST_F(AboutBox, LeavesNothingBehind) {
    const auto showOnce = [this] {
        CAboutDialog box{Content()};
        ASSERT_TRUE(box.Create(Host()));
        ::DestroyWindow(box.Handle());
    };
    showOnce();
    const int before = test::GdiObjectCount();

    for (int i = 0; i < 20; ++i) showOnce();

    EXPECT_EQ(test::GdiObjectCount(), before);
}

class ClosingTheAboutBox : public AboutBox, public testing::WithParamInterface<int> {};

TEST_P(ClosingTheAboutBox, EndsIt) {
    // A banner is asked for once the box exists, so a message for it can be left waiting then.
    AboutBoxContent content = Content();
    CAboutDialog* shown = nullptr;
    content.loadBanner = [&] {
        ::PostMessageW(shown->Handle(), WM_COMMAND, static_cast<WPARAM>(GetParam()), 0);
        return GreenBanner(kBannerWidth, kBannerHeight);
    };
    CAboutDialog box{std::move(content)};
    shown = &box;

    EXPECT_EQ(box.ShowModal(Host()), GetParam());
    EXPECT_EQ(box.Handle(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Buttons, ClosingTheAboutBox, testing::Values(IDOK, IDCANCEL));

class Banner : public testing::Test {
protected:
    // Its size, and whether all four corners have the colour of the band.
    struct Look {
        LONG width;
        LONG height;
        bool ofTheBand;
    };
    static Look LookAt(int dpi) {
        const fw::UniqueBitmap banner = LoadBanner(FinerBannerFor(dpi));
        DIBSECTION section{};
        EXPECT_EQ(::GetObjectW(banner.Get(), sizeof section, &section), static_cast<int>(sizeof section));
        const LONG width = section.dsBm.bmWidth;
        const LONG height = section.dsBm.bmHeight;
        const fw::UniqueMemoryDc dc{::CreateCompatibleDC(nullptr)};
        const fw::SelectedObject selected{dc.Get(), banner.Get()};
        bool ofTheBand = true;
        for (const int x : {0, static_cast<int>(width) - 1})
            for (const int y : {0, static_cast<int>(height) - 1})
                ofTheBand = ofTheBand && ::GetPixel(dc.Get(), x, y) == fw::ToWindows(base::kThemeColour);
        return {width, height, ofTheBand};
    }

    fw::GdiplusSession gdiplus;
};

TEST_F(Banner, IsADibSectionOnTheColourOfTheBandAtEveryScale) {
    struct Case {
        int dpi;
        LONG width;
        LONG height;
    };
    for (const Case& at : {Case{96, 320, 80}, Case{110, 320, 80}, Case{120, 400, 100}, Case{144, 480, 120},
                           Case{168, 480, 120}, Case{192, 640, 160}, Case{288, 640, 160}, Case{0, 320, 80}}) {
        const Look look = LookAt(at.dpi);
        EXPECT_EQ(look.width, at.width) << at.dpi;
        EXPECT_EQ(look.height, at.height) << at.dpi;
        EXPECT_TRUE(look.ofTheBand) << at.dpi;
    }
}

TEST_F(Banner, IsThePlainOneWhereTheFinerIsMissing) {
    constexpr unsigned kNoImage = 9999;
    const fw::UniqueBitmap banner = LoadBanner(kNoImage);

    BITMAP bitmap{};
    ASSERT_NE(::GetObjectW(banner.Get(), sizeof bitmap, &bitmap), 0);
    EXPECT_EQ(bitmap.bmWidth, 320);
}

} // namespace
} // namespace korvane::about
