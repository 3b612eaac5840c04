#include "controls/time_bar_button.h"

#include <gmock/gmock.h>

#include <array>
#include <optional>
#include <string>
#include <tuple>

#include "tests/controls/bar_button_test.h"
#include "tests/support/fake_clock.h"

namespace korvane::controls {
namespace {

using test::Canvas;
using testing::ElementsAreArray;

constexpr RECT kRect{0, 0, 100, 32};
constexpr UINT kId = 2014;

class TimeBarButton : public BarButtonTest {
protected:
    [[nodiscard]] ClockSources Sources(ClockStyle style) const { return {time, &fw::LoadText, style}; }
    void Tick(const CTimeBarButton& button, UINT_PTR timer = CTimeBarButton::kTimer) {
        Send(button.Handle(), WM_TIMER, timer);
    }
    void ShowBar(const CTimeBarButton& button) {
        ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
        ::UpdateWindow(button.Handle());
        host.sent.clear();
    }
    // The text with centred lines in the given font, at the given height or in the middle.
    [[nodiscard]] std::vector<COLORREF> Expected(const wchar_t* text, HFONT font, std::optional<int> top,
                                                 COLORREF ink) const {
        const Canvas canvas{{100, 32}};
        canvas.Fill({0, 0, 100, 32}, Ground());
        const fw::SelectedObject selected{canvas.Dc(), font};
        ::SetBkMode(canvas.Dc(), TRANSPARENT);
        ::SetTextColor(canvas.Dc(), ink);
        RECT r{};
        ::DrawTextW(canvas.Dc(), text, -1, &r, DT_CALCRECT | DT_CENTER);
        const LONG y = top.value_or((32 - static_cast<int>(r.bottom)) / 2);
        ::OffsetRect(&r, (100 - r.right) / 2, y);
        ::DrawTextW(canvas.Dc(), text, -1, &r, DT_CENTER);
        return canvas.Pixels();
    }
    [[nodiscard]] fw::UniqueFont EightPoints() const {
        LOGFONTW font{};
        ::GetObjectW(bar.BarFont(), sizeof font, &font);
        font.lfHeight = -11; // 8 points at 96 dpi
        return fw::UniqueFont{::CreateFontIndirectW(&font)};
    }

    test::FakeClock time;
};

TEST_F(TimeBarButton, ShowsNothingBeforeItHasAFormat) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);

    EXPECT_EQ(button.Text(), L"");
    EXPECT_EQ(button.TipText(), L"2026年3月5日(木)");
}

TEST_F(TimeBarButton, ShowsTheFormatsOfTheStringTable) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);

    button.SetFormat(ClockFormatOf(0));
    EXPECT_EQ(button.Text(), L"09:05");
    button.SetFormat(ClockFormatOf(1));
    EXPECT_EQ(button.Text(), L"09:05:07");
    button.SetFormat(ClockFormatOf(2));
    EXPECT_EQ(button.Text(), L"09:05\r\n2026/03/05");
    button.SetFormat(ClockFormatOf(3));
    EXPECT_EQ(button.Text(), L"09:05:07\r\n2026/03/05");
    button.SetFormat(ClockFormatOf(4));
    EXPECT_EQ(button.Text(), L"2026/03/05");
}

TEST_F(TimeBarButton, ShowsTheFormatThatWasSetBeforeItsCreation) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    button.SetFormat(kDate);

    Put(button, kRect, kId);

    EXPECT_EQ(button.Text(), L"2026/03/05");
}

TEST_F(TimeBarButton, ShowsWhateverStandsUnderAFormatThatIsNoneOfTheFive) {
    ClockSources sources = Sources(ClockStyle::kTray);
    sources.text = [](UINT id) -> std::wstring { return id == 137 ? L"[%u|%u|%u]" : L""; };
    CTimeBarButton button{bar, sources};
    Put(button, kRect, kId);

    button.SetFormat(ClockFormatOf(7));
    EXPECT_EQ(button.Text(), L"[2026|3|5]");
    button.SetFormat(ClockFormatOf(8));
    EXPECT_EQ(button.Text(), L"");
}

// The setting is not clamped: nothing stands under these identifiers.
TEST_F(TimeBarButton, ShowsNothingForSettingsWithoutAText) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);
    TakeThemeAway(button);

    for (const int setting : {7, 5, 1'000'000, -1'000'000}) {
        button.SetFormat(kTime);
        button.SetFormat(ClockFormatOf(setting));
        EXPECT_EQ(button.Text(), L"") << setting;
        EXPECT_EQ(Paint(button).Content({0, 0, 100, 32}, Ground()), base::Rect{}) << setting;
    }
}

TEST_F(TimeBarButton, KeepsItsTextWhenTheFormatIsTakenAway) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);
    button.SetFormat(kTime);

    button.SetFormat(kNoClockFormat);
    time.now.hour = 10;
    Tick(button);

    EXPECT_EQ(button.Text(), L"09:05");
}

TEST_F(TimeBarButton, RepaintsTheTimeOnlyWhenTheMinuteChanges) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);
    button.SetFormat(kTime);
    ShowBar(button);

    time.now.second = 59;
    for (int quarter = 0; quarter < 4; ++quarter) Tick(button);
    ::UpdateWindow(button.Handle());
    EXPECT_EQ(host.DrawCount(kId), 0);

    time.now.minute = 6;
    time.now.second = 0;
    for (int quarter = 0; quarter < 4; ++quarter) Tick(button);
    EXPECT_EQ(host.DrawCount(kId), 1);
    EXPECT_EQ(button.Text(), L"09:06");
}

TEST_F(TimeBarButton, ChangesItsTooltipExactlyAtMidnight) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);
    time.now = {2026, 11, 15, 0, 23, 59, 59};
    Tick(button);
    EXPECT_EQ(button.TipText(), L"2026年11月15日(日)");

    time.now = {2026, 11, 16, 1, 0, 0, 0};
    Tick(button);
    EXPECT_EQ(button.TipText(), L"2026年11月16日(月)");
}

TEST_F(TimeBarButton, LeavesForeignTimersAlone) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);
    button.SetFormat(kTime);
    time.now.hour = 10;

    Tick(button, CTimeBarButton::kTimer + 1);

    EXPECT_EQ(button.Text(), L"09:05");
}

TEST_F(TimeBarButton, RunsFromItsCreationOn) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);

    EXPECT_TRUE(button.Running());
    EXPECT_EQ(CTimeBarButton::kTimer, UINT_PTR{2014});
    EXPECT_EQ(CTimeBarButton::kPeriod, std::chrono::milliseconds{250});
}

TEST_F(TimeBarButton, StopsWhileItIsHidden) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);
    button.SetFormat(kTime);

    ::ShowWindow(button.Handle(), SW_HIDE);
    EXPECT_FALSE(button.Running());
    // There is no timer of that number any more.
    EXPECT_FALSE(::KillTimer(button.Handle(), CTimeBarButton::kTimer));

    time.now.hour = 10;
    ::ShowWindow(button.Handle(), SW_SHOWNA);
    EXPECT_TRUE(button.Running());
    EXPECT_EQ(button.Text(), L"09:05");
    Tick(button);
    EXPECT_EQ(button.Text(), L"10:05");
}

TEST_F(TimeBarButton, KillsItsTimerWithItsWindow) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);

    ::DestroyWindow(button.Handle());

    EXPECT_FALSE(button.Running());
}

TEST_F(TimeBarButton, TakesItsTextColourFromTheBar) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    EXPECT_EQ(button.TextColour(), BarTextColour::kButtonText);

    button.SetBarColour(base::Colour::Rgb(200, 200, 200));
    EXPECT_EQ(button.TextColour(), BarTextColour::kWindowText);
    button.SetBarColour(base::Colour::Rgb(200, 200, 100));
    EXPECT_EQ(button.TextColour(), BarTextColour::kWindow);
    button.SetBarColour(kSystemDefaultColour);
    EXPECT_EQ(button.TextColour(), BarTextColour::kButtonText);
}

TEST_F(TimeBarButton, IsRedrawnAtOnceInItsNewColour) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);
    ShowBar(button);

    button.SetBarColour(kLightBarColour);

    EXPECT_EQ(host.DrawCount(kId), 1);
}

TEST_F(TimeBarButton, ReportsAClickToItsParent) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);

    Click(button.Handle());

    EXPECT_EQ(host.CommandCount(kId, BN_CLICKED), 1);
}

struct FormatCase {
    const char* name;
    int setting;
    const wchar_t* text;
    bool twoLines;
};

using Surroundings = std::tuple<FormatCase, ClockStyle, base::Colour>;

std::string NameOf(const testing::TestParamInfo<Surroundings>& info) {
    const auto& [format, style, barColour] = info.param;
    constexpr std::array kWindows{"OnVista", "OnWindows7", "OnWindows10"};
    return std::string{format.name} + kWindows[static_cast<std::size_t>(style)] +
           (barColour == kDarkBar ? "Dark" : "Light");
}

class TimeBarButtonIn : public TimeBarButton, public testing::WithParamInterface<Surroundings> {};

TEST_P(TimeBarButtonIn, ShowsItsTextInTheFontAndAtThePlaceOfItsWindows) {
    const auto& [format, style, barColour] = GetParam();
    host.ground = barColour.value;
    CTimeBarButton button{bar, Sources(style)};
    Put(button, kRect, kId);
    TakeThemeAway(button);
    button.SetBarColour(barColour);

    button.SetFormat(ClockFormatOf(format.setting));

    // Two lines stand in eight points at the top until Windows 10 puts them into the middle in the bar's own font.
    const bool small = format.twoLines && style != ClockStyle::kTrayBarFont;
    const fw::UniqueFont eightPoints = EightPoints();
    const COLORREF ink = ::GetSysColor(barColour == kDarkBar ? COLOR_WINDOW : COLOR_WINDOWTEXT);
    EXPECT_THAT(Paint(button).Pixels(),
                ElementsAreArray(Expected(format.text, small ? eightPoints.Get() : bar.BarFont(),
                                          small ? std::optional{0} : std::nullopt, ink)));
}

INSTANTIATE_TEST_SUITE_P(
    EveryFormatAndWindows, TimeBarButtonIn,
    testing::Combine(testing::Values(FormatCase{"Time", 0, L"09:05", false},
                                     FormatCase{"Seconds", 1, L"09:05:07", false},
                                     FormatCase{"TimeAndDate", 2, L"09:05\r\n2026/03/05", true},
                                     FormatCase{"SecondsAndDate", 3, L"09:05:07\r\n2026/03/05", true},
                                     FormatCase{"Date", 4, L"2026/03/05", false}),
                     testing::Values(ClockStyle::kPlain, ClockStyle::kTray, ClockStyle::kTrayBarFont),
                     testing::Values(kDarkBar, kLightBarColour)),
    NameOf);

TEST_F(TimeBarButton, IsInTheButtonTextColourOnABarOfTheSystemsOwn) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);
    TakeThemeAway(button);

    button.SetFormat(kTime);

    EXPECT_THAT(Paint(button).Pixels(),
                ElementsAreArray(Expected(L"09:05", bar.BarFont(), {}, ::GetSysColor(COLOR_BTNTEXT))));
}

TEST_F(TimeBarButton, HasNoPressedLookBeforeWindows7) {
    CTimeBarButton button{bar, Sources(ClockStyle::kPlain)};
    Put(button, kRect, kId);
    TakeThemeAway(button);
    button.SetFormat(kTime);
    Enter(button);

    EXPECT_EQ(Paint(button, ODS_SELECTED).Pixel(0, 0), Ground());
    EXPECT_EQ(Paint(button).Pixel(0, 0), Ground());
}

TEST_F(TimeBarButton, HasHoverAndPressedLooksSinceWindows7) {
    CTimeBarButton button{bar, Sources(ClockStyle::kTray)};
    Put(button, kRect, kId);
    TakeThemeAway(button);

    EXPECT_EQ(Paint(button, ODS_SELECTED).Pixel(0, 0), Plate(ButtonState::kPressed));
    EXPECT_EQ(Paint(button, ODS_DISABLED).Pixel(0, 0), Ground());
    Enter(button);
    EXPECT_EQ(Paint(button).Pixel(0, 0), Plate(ButtonState::kHot));
}

TEST_F(TimeBarButton, TakesTheThemeOfItsStyle) {
    EXPECT_STREQ(CTimeBarButton(bar, Sources(ClockStyle::kPlain)).ThemeClasses(), L"TOOLBAR");
    EXPECT_STREQ(CTimeBarButton(bar, Sources(ClockStyle::kTray)).ThemeClasses(), L"TRAYNOTIFY::CLOCK");
    EXPECT_STREQ(CTimeBarButton(bar, Sources(ClockStyle::kTrayBarFont)).ThemeClasses(), L"TRAYNOTIFY::CLOCK");
}

TEST_F(TimeBarButton, ReadsTheComputersClock) {
    SYSTEMTIME before{};
    SYSTEMTIME after{};
    ClockReading now;

    // Once more when midnight passed between the readings.
    do {
        ::GetLocalTime(&before);
        now = SystemLocalClock().Now();
        ::GetLocalTime(&after);
    } while (before.wDay != after.wDay);

    const auto seconds = [](unsigned hour, unsigned minute, unsigned second) {
        return (hour * 60 + minute) * 60 + second;
    };
    EXPECT_EQ(now.year, before.wYear);
    EXPECT_EQ(now.month, before.wMonth);
    EXPECT_EQ(now.day, before.wDay);
    EXPECT_EQ(now.dayOfWeek, before.wDayOfWeek);
    EXPECT_GE(seconds(now.hour, now.minute, now.second), seconds(before.wHour, before.wMinute, before.wSecond));
    EXPECT_LE(seconds(now.hour, now.minute, now.second), seconds(after.wHour, after.wMinute, after.wSecond));
}

} // namespace
} // namespace korvane::controls
