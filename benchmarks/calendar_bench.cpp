// calendar_bench CLOCK_SECONDS: how long the date/time pop-up takes until it is painted, how long turning its calendar
// takes, and how often the bar's clock wakes up and paints itself in that many seconds while it shows hours and
// minutes.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

#include "benchmarks/program_run.h"
#include "controls/time_bar_button.h"
#include "controls/time_date_dialog.h"
#include "framework/gdi.h"
#include "tests/support/fake_bar_host.h"
#include "tests/support/pump.h"

namespace {

using namespace korvane;
using bench::Median;
using bench::Seconds;

constexpr int kOpenings = 50;
constexpr int kPages = 1000;

// The bar with its clock, which the pop-up belongs to.
class Bar final : public fw::Window<Bar>, public controls::TimeDateHost {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneCalendarBench_WndClass"};
    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_ERASEBKGND>(&Bar::OnErase),
            fw::On<WM_DRAWITEM>(&Bar::OnDrawItem),
        };
    }

    [[nodiscard]] HBRUSH BarBrush() const override { return brush_.Get(); }
    [[nodiscard]] HFONT BarFont() const override { return host_.BarFont(); }
    void OnTimeSettingsStarted(INT_PTR) override {}
    void OnTimeDateClosed() override {}
    [[nodiscard]] controls::BarHost& Host() { return host_; }

    int drawn = 0;

private:
    bool OnErase(HDC dc) {
        const RECT all = fw::ToWindows(fw::ClientRect(Handle()));
        ::FillRect(dc, &all, brush_.Get());
        return true;
    }
    fw::Reply OnDrawItem(const fw::Message& m) {
        ++drawn;
        return Reflect(m);
    }

    test::FakeBarHost host_;
    fw::UniqueBrush brush_{::CreateSolidBrush(RGB(159, 22, 106))};
};

double PaintAll(HWND window) {
    const double before = Seconds();
    ::RedrawWindow(window, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
    ::GdiFlush();
    return Seconds() - before;
}

void MeasureOpening(Bar& bar, fw::MessageLoop& loop) {
    std::vector<double> opened;
    for (int i = 0; i < kOpenings; ++i) {
        const double before = Seconds();
        const HWND popUp = controls::CTimeDateDialog::Open(bar, bar.Handle(), loop);
        PaintAll(popUp);
        opened.push_back((Seconds() - before) * 1000);
        ::SendMessageW(popUp, WM_COMMAND, IDCANCEL, 0);
        test::PumpMessages();
    }
    std::printf("pop-up opened and painted: median %6.2f ms, worst %6.2f ms\n", Median(opened),
                *std::max_element(opened.begin(), opened.end()));
}

void MeasureTurning(Bar& bar, fw::MessageLoop& loop) {
    const HWND popUp = controls::CTimeDateDialog::Open(bar, bar.Handle(), loop);
    PaintAll(popUp);
    std::vector<double> turned;
    for (int i = 0; i < kPages; ++i) {
        const double before = Seconds();
        ::SendMessageW(popUp, WM_COMMAND, controls::kNextMonthButton, 0);
        ::GdiFlush();
        turned.push_back((Seconds() - before) * 1000);
    }
    double all = 0;
    for (const double ms : turned) all += ms;
    std::printf("%d months turned and painted: %6.1f ms, each %6.3f ms (median), worst %6.2f ms\n", kPages, all,
                Median(turned), *std::max_element(turned.begin(), turned.end()));
    ::SendMessageW(popUp, WM_COMMAND, IDCANCEL, 0);
    test::PumpMessages();
}

void MeasureClock(Bar& bar, double seconds) {
    controls::CTimeBarButton clock{bar.Host()};
    clock.SetFormat(controls::kTime);
    if (!clock.Create({.rect = {0, 0, 100, 32},
                       .style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN,
                       .parent = bar.Handle(),
                       .id = controls::CTimeBarButton::kTimer}))
        return;
    PaintAll(bar.Handle());
    test::PumpMessages();
    SYSTEMTIME start{};
    ::GetLocalTime(&start);
    bar.drawn = 0;
    int ticks = 0;
    const double cpuBefore = bench::CpuMs(::GetCurrentProcess());
    const double end = Seconds() + seconds;
    while (Seconds() < end) {
        MSG message{};
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 300, QS_ALLINPUT);
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            ticks += message.message == WM_TIMER ? 1 : 0;
            ::DispatchMessageW(&message);
        }
    }
    const double cpu = bench::CpuMs(::GetCurrentProcess()) - cpuBefore;
    SYSTEMTIME stop{};
    ::GetLocalTime(&stop);
    const int minutes = (stop.wHour * 60 + stop.wMinute - start.wHour * 60 - start.wMinute + 24 * 60) % (24 * 60);
    std::printf(
        "clock with hours and minutes: %d ticks, %d paintings and %d new minutes in %.0f s, processor %5.1f ms\n",
        ticks, bar.drawn, minutes, seconds, cpu);
}

} // namespace

int main(int count, char** arguments) {
    const double seconds = count > 1 ? std::atof(arguments[1]) : 60;
    fw::MessageLoop loop;
    Bar bar;
    if (!bar.Create({.text = L"bar", .rect = {0, 0, 1024, 32}, .style = WS_POPUP | WS_VISIBLE})) return 1;
    MeasureOpening(bar, loop);
    MeasureTurning(bar, loop);
    MeasureClock(bar, seconds);
    return 0;
}
