// The clock on the bar and the calendar that it opens, from outside: real clicks and keys.

#include <chrono>
#include <vector>

#include "framework/gdi.h"
#include "tests/program/docked_bar.h"
#include "tests/support/other_window.h"
#include "tests/support/stand_in_program.h"

namespace korvane::test {
namespace {

constexpr int kOpenCalendar = 2014;

std::vector<HWND> CalendarsOf(const Program& program) {
    std::vector<HWND> calendars;
    for (const HWND dialog : WindowsOf(program.Id(), L"#32770"))
        if (::FindWindowExW(dialog, nullptr, L"CalenderWindow_WndClass", nullptr)) calendars.push_back(dialog);
    return calendars;
}
// Null when there is none at the deadline.
HWND WaitForCalendar(const Program& program, std::chrono::milliseconds deadline = kDeadline) {
    HWND calendar = nullptr;
    WaitUntil(
        [&] {
            const auto open = CalendarsOf(program);
            calendar = open.size() == 1 && WaitUntilIdle(open.front()) ? open.front() : nullptr;
            return calendar != nullptr && ::GetForegroundWindow() == calendar;
        },
        deadline);
    return calendar;
}
bool WaitForNoCalendar(const Program& program) {
    return WaitUntil([&] { return CalendarsOf(program).empty(); });
}

// What a window shows on the screen.
std::vector<COLORREF> Picture(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    BITMAPINFO format{};
    format.bmiHeader = {sizeof format.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    std::vector<COLORREF> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const fw::WindowDc screen{nullptr};
    const fw::UniqueMemoryDc copy{::CreateCompatibleDC(screen.Get())};
    const fw::UniqueBitmap bitmap{::CreateCompatibleBitmap(screen.Get(), width, height)};
    {
        const fw::SelectedObject selected{copy.Get(), bitmap.Get()};
        ::BitBlt(copy.Get(), 0, 0, width, height, screen.Get(), rect.left, rect.top, SRCCOPY);
    }
    ::GetDIBits(screen.Get(), bitmap.Get(), 0, static_cast<UINT>(height), pixels.data(), &format, DIB_RGB_COLORS);
    return pixels;
}

class Clock : public ProgramTest {
protected:
    void SetUp() override {
        ProgramTest::SetUp();
        CloseWithoutQuestion();
        WriteSetting(kSettings, L"ShowTimeBarClock", 1);
    }

    // Opens the calendar by the clock. A busy display server can swallow a click, or hand the focus that the bar had
    // before out so late that it closes the calendar; a user would click once more, too.
    static HWND ClickForCalendar(const Program& program, HWND bar) {
        HWND calendar = nullptr;
        for (int attempt = 0; attempt < 5 && !calendar; ++attempt) {
            Click(Control(bar, kClock));
            calendar = WaitForCalendar(program, std::chrono::seconds{4});
        }
        return calendar;
    }
};

TEST_F(Clock, ShowsTheSecondsPassWhenItIsToShowThem) {
    WriteSetting(kSettings, L"TimeBarClockFormat", 1);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    const auto before = Picture(Control(bar, kClock));
    EXPECT_TRUE(WaitUntil([&] { return Picture(Control(bar, kClock)) != before; }));
}

TEST_F(Clock, StartsWithAFormatThatThereIsNot) {
    for (const DWORD format : {7U, 0xFFFFFFFFU}) {
        WriteSetting(kSettings, L"TimeBarClockFormat", format);
        const Program program;
        const HWND bar = program.WaitForBar();
        ASSERT_NE(bar, nullptr) << format;

        EXPECT_FALSE(program.ShowsBox()) << format;
        Close(bar);
        EXPECT_EQ(program.WaitForExit(), 0U) << format;
    }
}

TEST_F(Clock, OpensTheCalendarInTheMiddleOfTheScreenWhenItIsClicked) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    const HWND calendar = ClickForCalendar(program, bar);
    ASSERT_NE(calendar, nullptr);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ASSERT_TRUE(::GetMonitorInfoW(::MonitorFromWindow(calendar, MONITOR_DEFAULTTONEAREST), &monitor));
    RECT rect{};
    ::GetWindowRect(calendar, &rect);
    EXPECT_EQ(rect.right - rect.left, 320);
    EXPECT_EQ(rect.bottom - rect.top, 240);
    EXPECT_EQ(rect.left - monitor.rcWork.left, (monitor.rcWork.right - monitor.rcWork.left - 320) / 2);
    EXPECT_EQ(rect.top - monitor.rcWork.top, (monitor.rcWork.bottom - monitor.rcWork.top - 240) / 2);
}

TEST_F(Clock, TheCalendarShowsTheSecondsPass) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kOpenCalendar);
    const HWND calendar = WaitForCalendar(program);
    ASSERT_NE(calendar, nullptr);

    const auto before = Picture(calendar);
    EXPECT_TRUE(WaitUntil([&] { return Picture(calendar) != before; }));
}

TEST_F(Clock, EscapeAndEnterCloseTheCalendar) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    for (const WORD key : {VK_ESCAPE, VK_RETURN}) {
        ASSERT_NE(ClickForCalendar(program, bar), nullptr) << key;
        PressKeys({key});
        EXPECT_TRUE(WaitForNoCalendar(program)) << key;
    }
    EXPECT_TRUE(program.Running());
}

TEST_F(Clock, ADoubleClickOnTheCalendarOpensTheDateAndTimeSettings) {
    const StandInProgram control{L"control.exe"};
    ASSERT_TRUE(control.Installed());
    const Program program{{.searchPath = StandInProgram::Folder()}};
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    const HWND popup = ClickForCalendar(program, bar);
    ASSERT_NE(popup, nullptr);

    ::PostMessageW(::FindWindowExW(popup, nullptr, L"CalenderWindow_WndClass", nullptr), WM_LBUTTONDBLCLK, MK_LBUTTON,
                   MAKELPARAM(50, 60));

    EXPECT_THAT(recorder::WaitForCommandLines(1),
                testing::ElementsAre(testing::EndsWith(L"control.exe\" timedate.cpl")));
    EXPECT_TRUE(program.Running());
}

TEST_F(Clock, SaysWhyTheDateAndTimeSettingsDoNotOpen) {
    const MovedSystemFile missing{L"control.exe"};
    ASSERT_TRUE(missing.Moved());
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    const HWND popup = ClickForCalendar(program, bar);
    ASSERT_NE(popup, nullptr);

    ::PostMessageW(popup, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));

    const MessageBoxView error = program.WaitForBox(MessageBoxView{popup});
    ASSERT_TRUE(error);
    EXPECT_EQ(error.Caption(), L"Korvane");
    EXPECT_EQ(::GetWindow(error.Handle(), GW_OWNER), bar);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(popup); }));
    EXPECT_TRUE(error.Press(IDOK));
    EXPECT_TRUE(program.Running());
}

TEST_F(Clock, AnotherWindowThatComesForwardClosesTheCalendar) {
    const OtherWindow other{L"別のウィンドウ"};
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_NE(ClickForCalendar(program, bar), nullptr);

    ASSERT_TRUE(other.TakeForeground());

    EXPECT_TRUE(WaitForNoCalendar(program));
}

TEST_F(Clock, ASecondOneReplacesTheFirst) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kOpenCalendar);
    const HWND first = WaitForCalendar(program);
    ASSERT_NE(first, nullptr);

    Command(bar, kOpenCalendar);

    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(first); }));
    EXPECT_NE(WaitForCalendar(program), nullptr);
}

TEST_F(Clock, TheBarEndsWithItsCalendarOpen) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kOpenCalendar);
    ASSERT_NE(WaitForCalendar(program), nullptr);

    Close(bar);

    EXPECT_EQ(program.WaitForExit(), 0U);
}

TEST_F(Clock, TheBarIsToldToQuitWithItsCalendarOpen) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kOpenCalendar);
    ASSERT_NE(WaitForCalendar(program), nullptr);

    ::PostThreadMessageW(::GetWindowThreadProcessId(bar, nullptr), WM_QUIT, 0, 0);

    EXPECT_EQ(program.WaitForExit(), 0U);
}

class ClockOnAHidingBar : public DockedBar {
protected:
    void SetUp() override {
        DockedBar::SetUp();
        HideAutomatically();
        WriteSetting(kSettings, L"ShowTimeBarClock", 1);
        WriteSetting(kSettings, L"DesktopBarAutoHideSecond", 19); // ten seconds: only the test expires the timer
    }
};

TEST_F(ClockOnAHidingBar, KeepsItOutWhileTheCalendarIsOpen) {
    constexpr UINT_PTR kHideCheck = 1;
    const std::string whole = TopOf(screen_);
    const std::string strip = TopOf(screen_, 1);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(PlaceIn(bar, strip), strip);

    // The display server may still be handing out the focus that the bar had at its start, which closes the calendar;
    // then it is opened once more.
    HWND calendar = nullptr;
    for (int attempt = 0; attempt < 5 && !::IsWindow(calendar); ++attempt) {
        PutMouse(width_ / 2 + attempt, 0);
        ASSERT_EQ(PlaceIn(bar, whole), whole);
        Command(bar, kOpenCalendar);
        calendar = WaitForCalendar(program);
        PutMouse(width_ / 2, height_ - 100);
        ::SendMessageW(bar, WM_TIMER, kHideCheck, 0);
    }
    ASSERT_TRUE(::IsWindow(calendar));
    EXPECT_EQ(PlaceOf(bar), whole);

    ::PostMessageW(calendar, WM_COMMAND, IDCANCEL, 0);
    ASSERT_TRUE(WaitForNoCalendar(program));
    ::SendMessageW(bar, WM_TIMER, kHideCheck, 0);
    EXPECT_EQ(PlaceIn(bar, strip), strip);
}

} // namespace
} // namespace korvane::test
