#include "controls/sample_time_bar.h"

#include <gtest/gtest.h>

#include <memory>

#include "framework/window_text.h"
#include "tests/support/canvas.h"
#include "tests/support/fake_clock.h"
#include "tests/support/refused_window.h"
#include "tests/support/wait.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::controls;
using test::Canvas;

namespace {

constexpr UINT kId = 1067;
constexpr base::Rect kArea{0, 0, 120, 44};

class SampleTimeBar : public test::WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        host.ground = RGB(250, 240, 230);
        MakePlaceholder();
        font = reinterpret_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
        Send(::GetDlgItem(Host(), kId), WM_SETFONT, reinterpret_cast<WPARAM>(font));
    }
    void MakePlaceholder() {
        ::CreateWindowExW(0, L"STATIC", L"9999/99/99", WS_CHILD | WS_VISIBLE, 10, 10, kArea.right, kArea.bottom, Host(),
                          reinterpret_cast<HMENU>(UINT_PTR{kId}), nullptr, nullptr);
    }
    void Put() {
        ASSERT_TRUE(sample.Replace(Host(), kId));
        sample.SetFormat(kTime);
        sample.Run(true);
    }
    // As the dialog hands it back.
    [[nodiscard]] Canvas Painted() const {
        Canvas canvas{{kArea.right, kArea.bottom}};
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_STATIC;
        item.CtlID = kId;
        item.hwndItem = sample.Handle();
        item.hDC = canvas.Dc();
        item.rcItem = fw::ToWindows(kArea);
        Send(Host(), WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&item));
        return canvas;
    }

    test::FakeClock clock;
    HFONT font = nullptr;
    CSampleTimeBar sample{clock};
};

TEST_F(SampleTimeBar, ShowsItsFirstTextUntilItHasAFormat) {
    ASSERT_TRUE(sample.Replace(Host(), kId));

    EXPECT_EQ(sample.Text(), L"9999/99/99");
    EXPECT_EQ(::GetDlgItem(Host(), kId), sample.Handle());
    EXPECT_EQ(::GetWindowLongPtrW(sample.Handle(), GWL_STYLE) & SS_TYPEMASK, SS_OWNERDRAW);
}

TEST_F(SampleTimeBar, ShowsTheTimeAsTheClockDoes) {
    Put();

    sample.SetFormat(ClockFormatOf(0));
    EXPECT_EQ(sample.Text(), L"09:05");
    sample.SetFormat(ClockFormatOf(1));
    EXPECT_EQ(sample.Text(), L"09:05:07");
    sample.SetFormat(ClockFormatOf(2));
    EXPECT_EQ(sample.Text(), L"09:05\r\n2026/03/05");
    sample.SetFormat(ClockFormatOf(3));
    EXPECT_EQ(sample.Text(), L"09:05:07\r\n2026/03/05");
    sample.SetFormat(ClockFormatOf(4));
    EXPECT_EQ(sample.Text(), L"2026/03/05");
}

TEST_F(SampleTimeBar, TellsScreenReadersWhatItShows) {
    Put();

    EXPECT_EQ(fw::WindowText(sample.Handle()), L"09:05");
}

TEST_F(SampleTimeBar, RunsByATimerThatIsNumberedAsTheControl) {
    Put();
    ASSERT_TRUE(sample.Running());
    clock.now.minute = 6;

    Send(sample.Handle(), WM_TIMER, kId + 1);
    EXPECT_EQ(sample.Text(), L"09:05");
    Send(sample.Handle(), WM_TIMER, kId);
    EXPECT_EQ(sample.Text(), L"09:06");
}

TEST_F(SampleTimeBar, RunsOnlyWhileItIsToBeSeen) {
    ASSERT_TRUE(sample.Replace(Host(), kId));
    EXPECT_FALSE(sample.Running());

    sample.Run(true);
    EXPECT_TRUE(sample.Running());
    sample.Run(false);
    EXPECT_FALSE(sample.Running());
}

TEST_F(SampleTimeBar, FollowsTheClockByItself) {
    Put();
    clock.now.minute = 6;

    EXPECT_TRUE(test::WaitUntil([&] {
        Pump();
        return sample.Text() == L"09:06";
    }));
}

TEST_F(SampleTimeBar, IsDrawnAnewOnlyWhenItsTextChanges) {
    Put();
    ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
    ::UpdateWindow(sample.Handle());
    Pump();
    host.sent.clear();

    for (int i = 0; i < 5; ++i) Send(sample.Handle(), WM_TIMER, kId);
    EXPECT_EQ(host.DrawCount(kId), 0);
    clock.now.minute = 6;
    Send(sample.Handle(), WM_TIMER, kId);
    EXPECT_EQ(host.DrawCount(kId), 1);
}

TEST_F(SampleTimeBar, StopsItsTimerWhenItIsDestroyed) {
    Put();

    ::DestroyWindow(sample.Handle());

    EXPECT_FALSE(sample.Running());
    EXPECT_EQ(sample.Handle(), nullptr);
}

TEST_F(SampleTimeBar, StandsInTheMiddleOfItsControl) {
    Put();
    for (const unsigned format : {kTime, kTimeWithSecondsAndDate}) {
        sample.SetFormat(format);
        const Canvas canvas = Painted();

        // The letters are in the window's text colour, on the frame's ground.
        const base::Rect inside = kArea.Inset(4);
        const base::Rect letters = canvas.Content(inside, canvas.Pixel(5, 5));
        EXPECT_NEAR(letters.left + letters.right, kArea.right, 4) << format;
        EXPECT_NEAR(letters.top + letters.bottom, kArea.bottom, 8) << format;
    }
}

TEST_F(SampleTimeBar, LeavesNoPlaceUnpainted) {
    Put();

    const Canvas canvas = Painted();

    for (const COLORREF pixel : canvas.Pixels()) ASSERT_NE(pixel, Canvas::kUntouched);
}

TEST_F(SampleTimeBar, IsPaintedAnewForAnotherStyle) {
    Put();
    ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
    ::UpdateWindow(sample.Handle());
    Pump();
    host.sent.clear();

    Send(sample.Handle(), WM_THEMECHANGED);
    ::UpdateWindow(sample.Handle());

    EXPECT_GE(host.DrawCount(kId), 1);
}

TEST_F(SampleTimeBar, LeavesTheControlWhereThereIsNoWindow) {
    const HWND before = ::GetDlgItem(Host(), kId);
    const test::RefusedWindow refused{L"SampleTimeBar_WndClass"};

    EXPECT_FALSE(sample.Replace(Host(), kId));

    EXPECT_EQ(::GetDlgItem(Host(), kId), before);
    sample.SetFormat(kDate); // is to do no harm
}

} // namespace
