#include "controls/calender_window.h"

#include <array>
#include <string>

#include "controls/logic/calendar_layout.h"
#include "framework/window_text.h"
#include "tests/controls/bar_button_test.h"

namespace korvane::controls {
namespace {

using base::Colour;
using base::Rect;
using test::Canvas;

constexpr base::DpiScale kPlain{96};

// Sunday, 15 November 2026; the month begins on a Sunday.
constexpr ClockReading kToday{2026, 11, 15, 0, 12, 0, 0};
constexpr CalendarPage kNovember{2026, 11};
constexpr std::size_t kCellOfToday = 14;
constexpr std::size_t kCellOfTheFirst = 0;
constexpr std::size_t kCellOfOtherMonth = 30;

class CalenderWindow : public BarButtonTest {
protected:
    void SetUp() override {
        BarButtonTest::SetUp();
        TakeBar(kDarkBar);
        ASSERT_TRUE(calendar.Create({.rect = {0, 0, 196, 130}, .style = WS_CHILD | WS_VISIBLE, .parent = Host()}));
    }
    void TakeBar(Colour colour) {
        brush.Reset(::CreateSolidBrush(fw::ToWindows(colour)));
        calendar.SetLook(LookOn(brush.Get()), bar.BarFont());
    }
    [[nodiscard]] Canvas Painted() const {
        Canvas canvas{{196, 130}};
        EXPECT_EQ(Send(calendar.Handle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc())), 1);
        return canvas;
    }
    // How a text looks on the bar, centred in a box of the given size.
    [[nodiscard]] std::string Drawn(const wchar_t* text, base::Size size, Colour ink) const {
        const Canvas canvas{size};
        const Rect all = Rect::At({}, size);
        LOGBRUSH ground{};
        ::GetObjectW(brush.Get(), sizeof ground, &ground);
        canvas.Fill(all, ground.lbColor);
        const fw::SelectedObject font{canvas.Dc(), bar.BarFont()};
        ::SetBkMode(canvas.Dc(), TRANSPARENT);
        ::SetTextColor(canvas.Dc(), fw::ToWindows(ink));
        RECT r = fw::ToWindows(all);
        ::DrawTextW(canvas.Dc(), text, -1, &r, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        return canvas.Picture(all, ground.lbColor);
    }
    // What is ground and what is not, in a part.
    [[nodiscard]] static std::string Ground(const Canvas& canvas, const Rect& part, Colour ground = kDarkBar) {
        return canvas.Picture(part, ground.value);
    }
    // The colours inside a part other than the ground's.
    [[nodiscard]] static bool Has(const Canvas& canvas, const Rect& part, Colour colour) {
        return canvas.Picture(part, colour.value).find('#') != std::string::npos;
    }
    [[nodiscard]] static Colour White() { return {::GetSysColor(COLOR_WINDOW)}; }
    [[nodiscard]] static Colour Dim() { return Between(kDarkBar, White()); }

    // Takes the posted wish for the current month out of the queue.
    [[nodiscard]] bool AskedForToday() const {
        MSG posted{};
        return ::PeekMessageW(&posted, Host(), WM_APP + 1, WM_APP + 1, PM_REMOVE) != FALSE;
    }

    fw::UniqueBrush brush;
    CCalenderWindow calendar;
};

TEST_F(CalenderWindow, IsOfItsOwnClassAndHearsDoubleClicks) {
    std::array<wchar_t, 64> name{};
    ::GetClassNameW(calendar.Handle(), name.data(), static_cast<int>(name.size()));
    EXPECT_STREQ(name.data(), L"CalenderWindow_WndClass");
    EXPECT_NE(::GetClassLongPtrW(calendar.Handle(), GCL_STYLE) & CS_DBLCLKS, 0U);
    EXPECT_EQ(CCalenderWindow::kReturnToToday, 32769U);
}

TEST_F(CalenderWindow, ShowsAMonthAndTellsItsName) {
    EXPECT_TRUE(calendar.Fill(kNovember, kToday, Filling::kFollowing));

    EXPECT_EQ(calendar.Month().title, L"2026年11月");
    EXPECT_EQ(fw::WindowText(calendar.Handle()), L"2026年11月");
    EXPECT_TRUE(calendar.Month().cells[kCellOfToday].isToday);
}

TEST_F(CalenderWindow, IsPaintedOverItsWholeArea) {
    calendar.Fill(kNovember, kToday, Filling::kFollowing);

    EXPECT_FALSE(Has(Painted(), {0, 0, 196, 130}, {Canvas::kUntouched}));
}

TEST_F(CalenderWindow, HasADimLineAcrossItsWidth) {
    const Canvas canvas = Painted();

    for (int x = 0; x < 196; ++x) ASSERT_EQ(canvas.Pixel(x, 32), Dim().value) << x;
    EXPECT_FALSE(Has(canvas, {0, 33, 196, 130}, Dim()));
}

TEST_F(CalenderWindow, NamesTheDaysOverTheirColumnsSundayFirst) {
    calendar.Fill(kNovember, kToday, Filling::kFollowing);
    const Canvas canvas = Painted();
    // The last row belongs to characters that are a pixel higher than their box.
    const std::array<const wchar_t*, 7> names{L"日", L"月", L"火", L"水", L"木", L"金", L"土"};

    for (std::size_t day = 0; day < names.size(); ++day)
        EXPECT_EQ(Ground(canvas, WeekdayRect(day, kPlain)), Drawn(names[day], {28, 16}, White())) << day;
}

TEST_F(CalenderWindow, HasItsTitleInTheMiddleOfTheTop) {
    calendar.Fill(kNovember, kToday, Filling::kFollowing);

    EXPECT_EQ(Ground(Painted(), {0, 0, 196, 15}), Drawn(L"2026年11月", {196, 16}, White()).substr(0, 197 * 15));
}

TEST_F(CalenderWindow, ShowsEveryDayInItsCell) {
    calendar.Fill({2026, 10}, kToday, Filling::kTurned);
    const Canvas canvas = Painted();
    const CalendarMonth& month = calendar.Month();

    for (std::size_t i = 0; i < month.cells.size(); ++i) {
        const DayCell& cell = month.cells[i];
        EXPECT_EQ(Ground(canvas, CellRect(i, kPlain)),
                  Drawn(std::to_wstring(cell.day).c_str(), {28, 16}, cell.isOtherMonth ? Dim() : White()))
            << i;
    }
}

TEST_F(CalenderWindow, ShowsOtherMonthsDaysInTheDimColour) {
    calendar.Fill(kNovember, kToday, Filling::kFollowing);
    const Canvas canvas = Painted();

    EXPECT_TRUE(Has(canvas, CellRect(kCellOfTheFirst, kPlain), White()));
    EXPECT_FALSE(Has(canvas, CellRect(kCellOfOtherMonth, kPlain), White()));
    EXPECT_TRUE(Has(canvas, CellRect(kCellOfOtherMonth, kPlain), Dim()));
}

TEST_F(CalenderWindow, FramesTodayAlone) {
    calendar.Fill(kNovember, kToday, Filling::kFollowing);
    const Canvas canvas = Painted();
    const auto framed = [&](std::size_t index) {
        const Rect cell = CellRect(index, kPlain);
        bool whole = true;
        for (int x = cell.left; x < cell.right; ++x)
            whole =
                whole && canvas.Pixel(x, cell.top) == Dim().value && canvas.Pixel(x, cell.bottom - 1) == Dim().value;
        for (int y = cell.top; y < cell.bottom; ++y)
            whole =
                whole && canvas.Pixel(cell.left, y) == Dim().value && canvas.Pixel(cell.right - 1, y) == Dim().value;
        return whole;
    };

    for (std::size_t i = 0; i < calendar.Month().cells.size(); ++i) EXPECT_EQ(framed(i), i == kCellOfToday) << i;
}

TEST_F(CalenderWindow, HasNoFrameInAnotherMonth) {
    calendar.Fill({2026, 9}, kToday, Filling::kTurned);
    // The 15th of September, without a frame: its corners are ground.
    const Rect cell = CellRect(16, kPlain);

    EXPECT_EQ(calendar.Month().cells[16].day, 15U);
    EXPECT_EQ(Painted().Pixel(cell.left, cell.top), kDarkBar.value);
}

TEST_F(CalenderWindow, TakesTheWindowTextColourOnALightBar) {
    TakeBar(kLightBarColour);
    calendar.Fill(kNovember, kToday, Filling::kFollowing);
    const Canvas canvas = Painted();
    const Colour ink{::GetSysColor(COLOR_WINDOWTEXT)};

    EXPECT_TRUE(Has(canvas, CellRect(kCellOfTheFirst, kPlain), ink));
    EXPECT_EQ(canvas.Pixel(0, 32), Between(kLightBarColour, ink).value);
    EXPECT_EQ(canvas.Pixel(0, 0), kLightBarColour.value);
}

TEST_F(CalenderWindow, CountsABarAsLightByItsDarkestChannel) {
    const auto textOn = [](Colour colour) {
        const fw::UniqueBrush ground{::CreateSolidBrush(fw::ToWindows(colour))};
        return LookOn(ground.Get()).text.colour;
    };

    EXPECT_EQ(textOn(Colour::Rgb(193, 193, 193)), Colour{::GetSysColor(COLOR_WINDOWTEXT)});
    EXPECT_EQ(textOn(Colour::Rgb(192, 255, 255)), Colour{::GetSysColor(COLOR_WINDOW)});
}

TEST_F(CalenderWindow, IsNotPulledBackByTheClockOnceItIsTurnedAway) {
    calendar.Fill(kNovember, kToday, Filling::kFollowing);
    EXPECT_TRUE(calendar.Fill({2026, 9}, kToday, Filling::kTurned));

    EXPECT_FALSE(calendar.Fill(kNovember, kToday, Filling::kFollowing));

    EXPECT_EQ(calendar.Month().title, L"2026年9月");
}

TEST_F(CalenderWindow, FollowsTheClockAgainOnceItIsTurnedBack) {
    calendar.Fill({2026, 10}, kToday, Filling::kTurned);
    calendar.Fill(kNovember, kToday, Filling::kTurned);

    EXPECT_TRUE(calendar.Fill({2026, 12}, {2026, 12, 1, 2, 0, 0, 0}, Filling::kFollowing));

    EXPECT_EQ(calendar.Month().title, L"2026年12月");
    EXPECT_TRUE(calendar.Month().showsToday);
}

TEST_F(CalenderWindow, AsksForTheCurrentMonthOnARightDoubleClick) {
    calendar.Fill({2026, 9}, kToday, Filling::kTurned);

    SendMouse(calendar.Handle(), WM_RBUTTONDBLCLK, {5, 5}, MK_RBUTTON);

    EXPECT_TRUE(AskedForToday());
    EXPECT_TRUE(calendar.Fill(kNovember, kToday, Filling::kFollowing));
}

TEST_F(CalenderWindow, AsksForNothingOnASingleClick) {
    SendMouse(calendar.Handle(), WM_RBUTTONDOWN, {5, 5}, MK_RBUTTON);
    SendMouse(calendar.Handle(), WM_RBUTTONUP, {5, 5});
    Click(calendar.Handle());

    EXPECT_FALSE(AskedForToday());
}

TEST_F(CalenderWindow, IsRedrawnAtOnceWhenItIsFilled) {
    ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
    ::UpdateWindow(calendar.Handle());
    ::InvalidateRect(calendar.Handle(), nullptr, FALSE);

    calendar.Fill(kNovember, kToday, Filling::kFollowing);

    EXPECT_FALSE(::GetUpdateRect(calendar.Handle(), nullptr, FALSE));
}

TEST_F(CalenderWindow, IsPaintedWithoutDaysBeforeItIsFilled) {
    const CCalenderWindow fresh;

    EXPECT_TRUE(fresh.Month().showsToday);
    EXPECT_EQ(Painted().Content({0, 33, 196, 130}, kDarkBar.value), Rect{});
}

} // namespace
} // namespace korvane::controls
