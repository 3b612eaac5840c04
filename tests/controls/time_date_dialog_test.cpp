#include "controls/time_date_dialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>

#include "controls/logic/bar_colour.h"
#include "controls/logic/calendar_layout.h"
#include "framework/centred_message_box.h"
#include "framework/centring.h"
#include "framework/dpi.h"
#include "framework/monitors.h"
#include "framework/window_text.h"
#include "tests/support/canvas.h"
#include "tests/support/fake_clock.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/message_count.h"
#include "tests/support/refused_window.h"
#include "tests/support/window_test.h"

namespace korvane::controls {
namespace {

using base::Colour;
using base::Rect;
using test::Canvas;
using test::MessageCount;

constexpr Colour kDarkBar = Colour::Rgb(159, 22, 106);
constexpr Colour kLightBar = Colour::Rgb(240, 240, 240);
constexpr base::DpiScale kPlain{96};

// A bar with a clock that can be asked what the pop-up told it.
class FakeBar final : public TimeDateHost {
public:
    FakeBar() { Colour(kDarkBar); }

    void Colour(base::Colour colour) { brush_.Reset(::CreateSolidBrush(fw::ToWindows(colour))); }

    [[nodiscard]] HBRUSH BarBrush() const override { return brush_.Get(); }
    [[nodiscard]] HFONT BarFont() const override { return font_.Get(); }
    void OnTimeSettingsStarted(INT_PTR shellResult) override {
        log += "started " + std::to_string(shellResult) + ";";
        if (whenStarted) whenStarted();
    }
    void OnTimeDateClosed() override { log += "closed;"; }

    std::function<void()> whenStarted;
    std::string log;

private:
    fw::UniqueBrush brush_;
    fw::UniqueFont font_{::CreateFontW(-12, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Meiryo UI")};
};

class TimeDateDialog : public test::WindowTest {
protected:
    void TearDown() override {
        if (popUp && ::IsWindow(popUp)) ::DestroyWindow(popUp);
    }
    void Open() {
        popUp = CTimeDateDialog::Open(bar, Host(), loop, Sources());
        ASSERT_NE(popUp, nullptr);
    }
    [[nodiscard]] TimeDateSources Sources() {
        return {clock, [this](const wchar_t* verb, const wchar_t* file, const wchar_t* parameters, int show) {
                    started += std::wstring{verb} + L" " + file + L" " + parameters + L" " + std::to_wstring(show);
                    const INT_PTR result = shellResult;
                    if (duringStart) duringStart();
                    return result;
                }};
    }
    void OpenAt(const ClockReading& now) {
        clock.now = now;
        Open();
    }

    // As the program's loop does it.
    void Pump() {
        MSG message{};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) loop.Process(message);
    }
    void Press(HWND window, UINT key) { loop.Process({window, WM_KEYDOWN, key, 1, 0, {}}); }
    void Tick(UINT_PTR timer = CTimeDateDialog::kTimer) const { Send(popUp, WM_TIMER, timer); }
    void Step(UINT button) const { Click(::GetDlgItem(popUp, static_cast<int>(button))); }
    void StepBack() const { Step(kPreviousMonthButton); }
    void StepForward() const { Step(kNextMonthButton); }

    [[nodiscard]] HWND Button(UINT id) const { return ::GetDlgItem(popUp, static_cast<int>(id)); }
    [[nodiscard]] HWND CalendarWindow() const {
        return ::FindWindowExW(popUp, nullptr, L"CalenderWindow_WndClass", nullptr);
    }
    [[nodiscard]] const CalendarMonth& Month() const {
        return dynamic_cast<CCalenderWindow&>(*fw::WindowObject::From(CalendarWindow())).Month();
    }
    // The day that is framed, if any.
    [[nodiscard]] std::optional<unsigned> Today() const {
        for (const DayCell& cell : Month().cells)
            if (cell.isToday) return cell.day;
        return std::nullopt;
    }
    [[nodiscard]] Rect InPopUp(HWND child) const {
        RECT r = fw::ToWindows(fw::WindowRect(child));
        ::MapWindowPoints(nullptr, popUp, reinterpret_cast<POINT*>(&r), 2);
        return fw::FromWindows(r);
    }
    // All of it, and what is inside its frame.
    [[nodiscard]] Canvas PaintedWithFrame() const {
        Canvas canvas{fw::ClientRect(popUp).Extent()};
        EXPECT_EQ(Send(popUp, WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc())), 1);
        return canvas;
    }
    [[nodiscard]] Canvas Painted() const {
        Canvas canvas{fw::ClientRect(popUp).Inset(1).Extent()};
        ::SetViewportOrgEx(canvas.Dc(), -1, -1, nullptr);
        EXPECT_EQ(Send(popUp, WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc())), 1);
        ::SetViewportOrgEx(canvas.Dc(), 0, 0, nullptr);
        return canvas;
    }
    [[nodiscard]] bool Closed() const { return !::IsWindow(popUp); }

    test::FakeClock clock;
    FakeBar bar;
    fw::MessageLoop loop;
    std::wstring started;
    INT_PTR shellResult = 42;
    std::function<void()> duringStart;
    HWND popUp = nullptr;
};

constexpr ClockReading kLastSecondOfNovember{2026, 11, 30, 1, 23, 59, 59};
constexpr ClockReading kFirstSecondOfDecember{2026, 12, 1, 2, 0, 0, 0};

TEST_F(TimeDateDialog, Is320By240AndBelongsToTheBar) {
    Open();

    EXPECT_EQ(fw::WindowRect(popUp).Extent(), (base::Size{320, 240}));
    EXPECT_EQ(::GetWindow(popUp, GW_OWNER), Host());
    EXPECT_TRUE(::IsWindowVisible(popUp));
    EXPECT_NE(::GetWindowLongPtrW(popUp, GWL_STYLE) & WS_CLIPCHILDREN, 0);
}

TEST_F(TimeDateDialog, StandsInTheMiddleOfTheWorkArea) {
    Open();

    const Rect work = fw::WorkAreaOf(popUp);
    EXPECT_EQ(fw::WindowRect(popUp).TopLeft(), fw::CentredOrigin({320, 240}, work, work));
}

TEST_F(TimeDateDialog, HoldsTheCalendarBetweenTwoButtons) {
    Open();

    EXPECT_EQ(InPopUp(CalendarWindow()), (Rect{62, 100, 258, 230}));
    EXPECT_EQ(InPopUp(Button(1031)), (Rect{30, 170, 55, 195}));
    EXPECT_EQ(InPopUp(Button(1030)), (Rect{264, 170, 289, 195}));
    EXPECT_EQ(fw::WindowText(Button(1031)), L"前月");
    EXPECT_EQ(fw::WindowText(Button(1030)), L"翌月");
    constexpr LONG_PTR kStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    for (const HWND child : {CalendarWindow(), Button(1030), Button(1031)})
        EXPECT_EQ(::GetWindowLongPtrW(child, GWL_STYLE) & kStyle, kStyle);
}

TEST_F(TimeDateDialog, HasArrowsThatPointAwayFromTheCalendar) {
    Open();
    // The rows of ink in the first and in the last column of the arrow.
    const auto edges = [&](UINT id) {
        const Canvas canvas{{25, 25}};
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.CtlID = id;
        item.hwndItem = Button(id);
        item.hDC = canvas.Dc();
        item.rcItem = {0, 0, 25, 25};
        Send(popUp, WM_DRAWITEM, id, reinterpret_cast<LPARAM>(&item));
        const Rect arrow = base::Centred({0, 0, 25, 25}, {4, 8});
        const COLORREF ink = canvas.Pixel(arrow.left + 2, arrow.top + 4);
        const auto count = [&](int x) {
            const std::string column = canvas.Picture({x, arrow.top, x + 1, arrow.bottom}, ink);
            return std::count(column.begin(), column.end(), '#');
        };
        return std::pair{count(arrow.left), count(arrow.right - 1)};
    };

    EXPECT_LT(edges(kPreviousMonthButton).first, edges(kPreviousMonthButton).second);
    EXPECT_GT(edges(kNextMonthButton).first, edges(kNextMonthButton).second);
}

TEST_F(TimeDateDialog, ShowsTheTimeOverTheDateInTheMiddle) {
    Open();

    const Canvas canvas = Painted();
    const auto [width, height] = canvas.Extent();

    const Rect time = canvas.Content({0, 0, width, 60}, kDarkBar.value);
    const Rect date = canvas.Content({0, 60, width, 100}, kDarkBar.value);
    EXPECT_GT(time.Height(), 2 * date.Height());
    EXPECT_NEAR(time.left, width - time.right, 4);
    EXPECT_NEAR(date.left, width - date.right, 4);
    EXPECT_GT(date.left, 30);
    // Everything below belongs to the children, and nothing is cut off at the top.
    EXPECT_EQ(canvas.Content({0, 90, width, height}, kDarkBar.value), Rect{});
    EXPECT_GT(time.top, 0);
}

TEST_F(TimeDateDialog, IsInTheBarsColours) {
    Open();
    const Canvas dark = Painted();
    EXPECT_EQ(dark.Pixel(0, 0), kDarkBar.value);
    EXPECT_NE(dark.Picture({0, 0, 320, 60}, ::GetSysColor(COLOR_WINDOW)).find('#'), std::string::npos);
    ::DestroyWindow(popUp);

    bar.Colour(kLightBar);
    Open();
    const Canvas light = Painted();
    EXPECT_EQ(light.Pixel(light.Extent().width - 1, light.Extent().height - 1), kLightBar.value);
    EXPECT_NE(light.Picture({0, 0, 320, 60}, ::GetSysColor(COLOR_WINDOWTEXT)).find('#'), std::string::npos);
}

TEST_F(TimeDateDialog, FitsTheLongestDateAndTheWidestTime) {
    OpenAt({30827, 12, 28, 2, 20, 0, 0});

    const Canvas canvas = Painted();

    const int width = canvas.Extent().width;
    for (const Rect line : {Rect{0, 0, width, 60}, Rect{0, 60, width, 100}}) {
        EXPECT_GT(canvas.Content(line, kDarkBar.value).left, 20);
        EXPECT_LT(canvas.Content(line, kDarkBar.value).right, width - 20);
    }
}

TEST_F(TimeDateDialog, TakesTheBarsNewColourAtTheNextTick) {
    Open();

    bar.Colour(kLightBar);
    Tick();

    EXPECT_EQ(Painted().Pixel(0, 0), kLightBar.value);
    const Canvas calendar{{196, 130}};
    Send(CalendarWindow(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(calendar.Dc()));
    EXPECT_EQ(calendar.Pixel(0, 0), kLightBar.value);
}

TEST_F(TimeDateDialog, TellsTheDateToThoseWhoCannotSeeIt) {
    Open();

    EXPECT_EQ(fw::WindowText(popUp), L"2026年3月5日 木曜日");
}

TEST_F(TimeDateDialog, OpensOnTheCurrentMonth) {
    Open();

    EXPECT_EQ(Month().title, L"2026年3月");
    EXPECT_EQ(Today(), 5U);
}

TEST_F(TimeDateDialog, LooksAtTheClockFourTimesASecond) {
    EXPECT_EQ(CTimeDateDialog::kTimer, UINT_PTR{103});
    EXPECT_EQ(CTimeDateDialog::kPeriod, std::chrono::milliseconds{250});
    Open();

    EXPECT_TRUE(::KillTimer(popUp, 103));
}

TEST_F(TimeDateDialog, IsRedrawnOnlyWhenTheSecondChanges) {
    Open();
    ::UpdateWindow(popUp);
    const MessageCount erased{popUp, WM_ERASEBKGND};

    for (int quarter = 0; quarter < 4; ++quarter) Tick();
    EXPECT_EQ(erased.Count(), 0);

    clock.now.second = 8;
    for (int quarter = 0; quarter < 4; ++quarter) Tick();
    EXPECT_EQ(erased.Count(), 1);
}

TEST_F(TimeDateDialog, LeavesItsChildrenAloneWhenItIsRedrawn) {
    Open();
    ::RedrawWindow(popUp, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
    clock.now.second = 8;

    {
        const MessageCount buttons{popUp, WM_DRAWITEM};
        Tick();
        EXPECT_EQ(buttons.Count(), 0);
    }
    clock.now.second = 9;
    const MessageCount calendar{CalendarWindow(), WM_ERASEBKGND};
    Tick();
    EXPECT_EQ(calendar.Count(), 0);
}

TEST_F(TimeDateDialog, LeavesForeignTimersAlone) {
    Open();
    clock.now = kFirstSecondOfDecember;

    Tick(CTimeDateDialog::kTimer + 1);

    EXPECT_EQ(Month().title, L"2026年3月");
}

TEST_F(TimeDateDialog, FollowsTheDateAcrossMidnight) {
    OpenAt({2026, 11, 15, 0, 23, 59, 59});

    clock.now = {2026, 11, 16, 1, 0, 0, 0};
    Tick();

    EXPECT_EQ(Today(), 16U);
    EXPECT_EQ(fw::WindowText(popUp), L"2026年11月16日 月曜日");
}

TEST_F(TimeDateDialog, FollowsTheDateIntoTheNextMonthAndIsTurnedOnFromThere) {
    OpenAt(kLastSecondOfNovember);

    clock.now = kFirstSecondOfDecember;
    Tick();
    EXPECT_EQ(Month().title, L"2026年12月");
    EXPECT_EQ(Today(), 1U);

    StepForward();
    EXPECT_EQ(Month().title, L"2027年1月");
}

TEST_F(TimeDateDialog, IsNotPulledBackAtMidnightOnceItIsTurnedAway) {
    OpenAt(kLastSecondOfNovember);
    StepBack();

    clock.now = kFirstSecondOfDecember;
    Tick();

    EXPECT_EQ(Month().title, L"2026年10月");
    EXPECT_EQ(fw::WindowText(popUp), L"2026年12月1日 火曜日");
    StepBack();
    EXPECT_EQ(Month().title, L"2026年9月");
}

TEST_F(TimeDateDialog, ComesBackToTodayOnARightDoubleClick) {
    OpenAt(kLastSecondOfNovember);
    StepBack();
    clock.now = kFirstSecondOfDecember;
    Tick();

    SendMouse(CalendarWindow(), WM_RBUTTONDBLCLK, {5, 5}, MK_RBUTTON);
    Pump();

    EXPECT_EQ(Month().title, L"2026年12月");
    EXPECT_EQ(Today(), 1U);
    StepForward();
    EXPECT_EQ(Month().title, L"2027年1月");
}

TEST_F(TimeDateDialog, TurnsByMonthAcrossTheYears) {
    OpenAt({2026, 12, 24, 4, 12, 0, 0});

    StepForward();
    EXPECT_EQ(Month().title, L"2027年1月");
    EXPECT_EQ(Today(), std::nullopt);
    StepBack();
    EXPECT_EQ(Month().title, L"2026年12月");
    EXPECT_EQ(Today(), 24U);
}

TEST_F(TimeDateDialog, DoesNotTurnBeforeJanuary1601) {
    OpenAt({1601, 1, 1, 1, 0, 0, 0});
    EXPECT_EQ(Month().title, L"1601年1月");
    const MessageCount erased{CalendarWindow(), WM_ERASEBKGND};

    StepBack();
    EXPECT_EQ(Month().title, L"1601年1月");
    EXPECT_EQ(Today(), 1U);
    EXPECT_EQ(erased.Count(), 0);

    StepForward();
    EXPECT_EQ(Month().title, L"1601年2月");
}

TEST_F(TimeDateDialog, DoesNotTurnAfterDecember30827) {
    OpenAt({30827, 12, 31, 5, 23, 59, 59});
    EXPECT_EQ(Month().title, L"30827年12月");

    StepForward();
    EXPECT_EQ(Month().title, L"30827年12月");
    EXPECT_EQ(Today(), 31U);

    StepBack();
    EXPECT_EQ(Month().title, L"30827年11月");
}

TEST_F(TimeDateDialog, ClosesOnEscapeAndEnter) {
    for (const UINT key : {VK_ESCAPE, VK_RETURN}) {
        bar.log.clear();
        Open();

        Press(::GetFocus() ? ::GetFocus() : popUp, key);

        EXPECT_TRUE(Closed()) << key;
        EXPECT_EQ(bar.log, "closed;") << key;
    }
}

TEST_F(TimeDateDialog, TurnsWithTheArrowAndPageKeys) {
    Open();

    Press(popUp, VK_LEFT);
    EXPECT_EQ(Month().title, L"2026年2月");
    Press(Button(kPreviousMonthButton), VK_PRIOR);
    EXPECT_EQ(Month().title, L"2026年1月");
    Press(Button(kNextMonthButton), VK_RIGHT);
    EXPECT_EQ(Month().title, L"2026年2月");
    Press(popUp, VK_NEXT);
    EXPECT_EQ(Month().title, L"2026年3月");
}

TEST_F(TimeDateDialog, LeavesTheKeysOfOtherWindowsAlone) {
    Open();

    Press(Host(), VK_LEFT);
    Press(Host(), VK_ESCAPE);

    EXPECT_FALSE(Closed());
    EXPECT_EQ(Month().title, L"2026年3月");
}

TEST_F(TimeDateDialog, IsWalkedInTheOrderOfReading) {
    Open();

    EXPECT_EQ(::GetWindow(popUp, GW_CHILD), Button(kPreviousMonthButton));
    EXPECT_EQ(::GetWindow(Button(kPreviousMonthButton), GW_HWNDNEXT), CalendarWindow());
    EXPECT_EQ(::GetWindow(CalendarWindow(), GW_HWNDNEXT), Button(kNextMonthButton));
}

TEST_F(TimeDateDialog, ComesBackToTodayOnTheHomeKey) {
    OpenAt(kLastSecondOfNovember);
    StepBack();
    StepBack();
    clock.now = kFirstSecondOfDecember;

    Press(Button(kNextMonthButton), VK_HOME);
    Pump();

    EXPECT_EQ(Month().title, L"2026年12月");
    EXPECT_EQ(Today(), 1U);
    clock.now = {2027, 1, 1, 5, 0, 0, 0};
    Tick();
    EXPECT_EQ(Month().title, L"2027年1月");
}

TEST_F(TimeDateDialog, TurnsWithTheWheelWhereverTheMouseIs) {
    Open();
    const auto wheel = [](int notches) { return MAKEWPARAM(0, static_cast<short>(notches * kWheelNotch)); };

    Send(popUp, WM_MOUSEWHEEL, wheel(1));
    EXPECT_EQ(Month().title, L"2026年2月");
    Send(CalendarWindow(), WM_MOUSEWHEEL, wheel(1));
    EXPECT_EQ(Month().title, L"2026年1月");
    Send(Button(kNextMonthButton), WM_MOUSEWHEEL, wheel(-3));
    EXPECT_EQ(Month().title, L"2026年4月");
}

TEST_F(TimeDateDialog, TurnsOnceForTheManyPartsOfAFineWheelsNotch) {
    Open();

    for (int part = 0; part < 4; ++part) Send(popUp, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<short>(-30)));

    EXPECT_EQ(Month().title, L"2026年4月");
}

TEST_F(TimeDateDialog, DrawsItsBorderInsteadOfOwningOne) {
    Open();

    EXPECT_EQ(fw::ClientRect(popUp).Extent(), (base::Size{320, 240}));
    const Canvas canvas = PaintedWithFrame();
    const COLORREF frame = ::GetSysColor(COLOR_WINDOWFRAME);
    for (const POINT at : {POINT{0, 0}, POINT{319, 0}, POINT{0, 239}, POINT{319, 239}, POINT{160, 0}, POINT{0, 120}})
        EXPECT_EQ(canvas.Pixel(at.x, at.y), frame) << at.x << "," << at.y;
    for (const POINT at : {POINT{1, 1}, POINT{318, 1}, POINT{1, 238}, POINT{318, 238}})
        EXPECT_EQ(canvas.Pixel(at.x, at.y), kDarkBar.value) << at.x << "," << at.y;
}

TEST_F(TimeDateDialog, HasItsCalendarInTheMiddleOfTheWindow) {
    Open();

    const Rect window = fw::WindowRect(popUp);
    const Rect calendar = fw::WindowRect(CalendarWindow());
    EXPECT_EQ(calendar.left - window.left, window.right - calendar.right);
}

TEST_F(TimeDateDialog, HasButtonsThatTabReaches) {
    Open();
    ASSERT_EQ(::SetFocus(Button(kPreviousMonthButton)), ::GetFocus());

    Press(Button(kPreviousMonthButton), VK_TAB);
    EXPECT_EQ(::GetFocus(), Button(kNextMonthButton));
    Press(Button(kNextMonthButton), VK_TAB);
    EXPECT_EQ(::GetFocus(), Button(kPreviousMonthButton));
}

TEST_F(TimeDateDialog, ShowsTheFocusFromTheFirstTabOn) {
    Open();
    const HWND next = Button(kNextMonthButton);
    const auto dots = [&] {
        const Canvas canvas{{25, 25}};
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.hwndItem = next;
        item.itemState = ODS_FOCUS;
        item.hDC = canvas.Dc();
        item.rcItem = {0, 0, 25, 25};
        Send(popUp, WM_DRAWITEM, kNextMonthButton, reinterpret_cast<LPARAM>(&item));
        return canvas.Content({0, 3, 25, 4}, canvas.Pixel(0, 0)) != Rect{};
    };
    EXPECT_FALSE(dots());

    Press(Button(kPreviousMonthButton), VK_TAB);

    EXPECT_TRUE(dots());
}

TEST_F(TimeDateDialog, ClosesWhenItIsConfirmedOrCancelled) {
    for (const WPARAM id : {IDOK, IDCANCEL}) {
        bar.log.clear();
        Open();

        Send(popUp, WM_COMMAND, id);

        EXPECT_TRUE(Closed()) << id;
        EXPECT_EQ(bar.log, "closed;") << id;
    }
}

TEST_F(TimeDateDialog, ClosesWithTheNextMessageWhenItIsNoLongerActive) {
    Open();

    Send(popUp, WM_ACTIVATE, WA_INACTIVE);
    EXPECT_FALSE(Closed());
    Pump();

    EXPECT_TRUE(Closed());
    EXPECT_EQ(bar.log, "closed;");
}

TEST_F(TimeDateDialog, StaysOpenWhenItIsActivated) {
    Open();

    Send(popUp, WM_ACTIVATE, WA_CLICKACTIVE);

    MSG posted{};
    EXPECT_FALSE(::PeekMessageW(&posted, popUp, WM_COMMAND, WM_COMMAND, PM_REMOVE));
}

TEST_F(TimeDateDialog, ClosesOnceHoweverOftenItIsAskedTo) {
    Open();

    for (int i = 0; i < 3; ++i) ::PostMessageW(popUp, WM_COMMAND, IDCANCEL, 0);
    Send(popUp, WM_ACTIVATE, WA_INACTIVE);
    Pump();

    EXPECT_TRUE(Closed());
    EXPECT_EQ(bar.log, "closed;");
}

TEST_F(TimeDateDialog, TellsTheBarWhenItGoesWithIt) {
    Open();

    ::DestroyWindow(Host());

    EXPECT_TRUE(Closed());
    EXPECT_EQ(bar.log, "closed;");
}

TEST_F(TimeDateDialog, IsMadeAnewByEveryOpening) {
    Open();
    const HWND first = popUp;
    StepBack();

    Open();

    EXPECT_NE(popUp, first);
    EXPECT_EQ(Month().title, L"2026年3月");
    if (::IsWindow(first)) ::DestroyWindow(first);
}

TEST_F(TimeDateDialog, ClosesUnseenWhenAPartOfItCannotBeCreated) {
    struct Refusal {
        const wchar_t* windowClass;
        int allowed;
    };
    for (const Refusal& refusal : {Refusal{L"UpDownButton_WndClass", 0}, Refusal{L"UpDownButton_WndClass", 1},
                                   Refusal{L"CalenderWindow_WndClass", 0}}) {
        bar.log.clear();
        {
            const test::RefusedWindow refused{refusal.windowClass, refusal.allowed};
            Open();
        }
        EXPECT_FALSE(::IsWindowVisible(popUp));
        EXPECT_FALSE(::KillTimer(popUp, CTimeDateDialog::kTimer));
        // There is no time to be shown yet.
        EXPECT_EQ(Painted().Content({0, 0, 318, 238}, kDarkBar.value), Rect{});
        EXPECT_EQ(bar.log, "");

        Pump();

        EXPECT_TRUE(Closed());
        EXPECT_EQ(bar.log, "closed;");
    }
}

TEST_F(TimeDateDialog, IsNotOpenedWithoutAWindow) {
    const test::RefusedWindow refused{L"#32770"};

    EXPECT_EQ(CTimeDateDialog::Open(bar, Host(), loop, Sources()), nullptr);

    EXPECT_EQ(bar.log, "");
}

TEST_F(TimeDateDialog, OpensTheDateAndTimeSettingsOnADoubleClickAnywhere) {
    Open();

    SendMouse(popUp, WM_LBUTTONDBLCLK, {5, 5}, MK_LBUTTON);
    EXPECT_EQ(started, L"open control.exe timedate.cpl 1");

    started.clear();
    SendMouse(CalendarWindow(), WM_LBUTTONDBLCLK, {5, 5}, MK_LBUTTON);
    EXPECT_EQ(started, L"open control.exe timedate.cpl 1");
    EXPECT_EQ(bar.log, "started 42;started 42;");
}

TEST_F(TimeDateDialog, OpensNothingOnTwoQuickStepsOrARightDoubleClick) {
    Open();

    SendMouse(Button(kNextMonthButton), WM_LBUTTONDBLCLK, {5, 5}, MK_LBUTTON);
    SendMouse(Button(kNextMonthButton), WM_LBUTTONUP, {5, 5});
    SendMouse(CalendarWindow(), WM_RBUTTONDBLCLK, {5, 5}, MK_RBUTTON);

    EXPECT_EQ(started, L"");
}

TEST_F(TimeDateDialog, LeavesTheReportOfAFailureToTheBarThatOutlivesIt) {
    Open();
    shellResult = ERROR_FILE_NOT_FOUND;
    const test::MessageBoxAnswer answer{IDOK};
    bar.whenStarted = [&] {
        // As when the message box takes the activation.
        Send(popUp, WM_ACTIVATE, WA_INACTIVE);
        fw::ShowProductSystemError(Host(), ERROR_FILE_NOT_FOUND, fw::Centring::kNone);
    };

    SendMouse(CalendarWindow(), WM_LBUTTONDBLCLK, {5, 5}, MK_LBUTTON);
    Pump();

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.Text(), fw::SystemErrorText(ERROR_FILE_NOT_FOUND));
    EXPECT_TRUE(Closed());
    EXPECT_EQ(bar.log, "started 2;closed;");
}

TEST_F(TimeDateDialog, MayBeGoneBeforeTheShellAnswers) {
    Open();
    duringStart = [&] { ::DestroyWindow(popUp); };

    SendMouse(CalendarWindow(), WM_LBUTTONDBLCLK, {5, 5}, MK_LBUTTON);

    EXPECT_TRUE(Closed());
    EXPECT_EQ(bar.log, "closed;started 42;");
}

TEST_F(TimeDateDialog, LeavesNoGdiObjectBehindInAHundredOpenings) {
    const auto live = [&] {
        Open();
        ::UpdateWindow(popUp);
        clock.now.second = (clock.now.second + 1) % 60;
        Tick();
        StepForward();
        (void)Painted();
        Send(popUp, WM_COMMAND, IDCANCEL);
        Pump();
    };
    // What Windows keeps for the first use of its own libraries is not ours.
    for (int i = 0; i < 5; ++i) live();
    const int before = test::GdiObjectCount();
    bar.log.clear();

    for (int i = 0; i < 100; ++i) live();

    EXPECT_EQ(test::GdiObjectCount(), before);
    EXPECT_EQ(bar.log.size(), 100 * std::string{"closed;"}.size());
}

} // namespace
} // namespace korvane::controls
