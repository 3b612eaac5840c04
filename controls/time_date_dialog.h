#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <string>

#include "controls/calender_window.h"
#include "controls/local_clock.h"
#include "controls/logic/wheel_steps.h"
#include "controls/time_date_host.h"
#include "controls/up_down_button.h"
#include "framework/dialog.h"
#include "framework/message_loop.h"
#include "framework/timer.h"
#include "res/ids.h"

namespace korvane::controls {

// As ShellExecuteW does it, with its result. The file is a program of Windows, named without its folder.
using ShellStart =
    std::function<INT_PTR(const wchar_t* verb, const wchar_t* file, const wchar_t* parameters, int showCommand)>;
INT_PTR StartByShell(const wchar_t* verb, const wchar_t* file, const wchar_t* parameters, int showCommand);

// What the pop-up takes from outside. The defaults are the program's; the clock must outlive the pop-up.
struct TimeDateSources {
    const LocalClock& clock = SystemLocalClock();
    ShellStart start = &StartByShell;
};

// The pop-up of the clock: the time, the date and a calendar to page through. It belongs to itself: it frees itself
// when its window is gone, which it is as soon as it is no longer the active window.
class CTimeDateDialog final : public fw::Dialog<CTimeDateDialog>, private fw::MessageFilter {
public:
    static constexpr UINT kTemplate = IDD_TIME_DATE;
    static constexpr UINT_PTR kTimer = 103;
    static constexpr std::chrono::milliseconds kPeriod{250};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&CTimeDateDialog::OnInitDialog),
            fw::On<WM_TIMER>(&CTimeDateDialog::OnTimer),
            fw::On<WM_ERASEBKGND>(&CTimeDateDialog::OnEraseBackground),
            fw::On<WM_DRAWITEM>(&CTimeDateDialog::OnDrawItem),
            fw::On<WM_ACTIVATE>(&CTimeDateDialog::OnActivate),
            fw::On<WM_LBUTTONDBLCLK>(&CTimeDateDialog::OnDoubleClick),
            fw::On<WM_MOUSEWHEEL>(&CTimeDateDialog::OnWheel),
            fw::On<WM_SYSCOLORCHANGE>(&CTimeDateDialog::OnColoursChanged),
            fw::On<CCalenderWindow::kReturnToToday>(&CTimeDateDialog::OnReturnToToday),
            fw::OnCommand<kPreviousMonthButton>(&CTimeDateDialog::OnStep),
            fw::OnCommand<kNextMonthButton>(&CTimeDateDialog::OnStep),
            fw::OnCommand<IDOK, IDCANCEL>(&CTimeDateDialog::OnClose),
        };
    }

    // Shows a new pop-up over the work area of the owner's monitor and gives its window, or null when there can be
    // none; the host is then not told of a closing. The loop must outlive the pop-up.
    static HWND Open(TimeDateHost& host, HWND owner, fw::MessageLoop& loop, const TimeDateSources& sources = {});

private:
    CTimeDateDialog(TimeDateHost& host, fw::MessageLoop& loop, const TimeDateSources& sources);
    void OnFinalMessage() override;
    bool PreTranslate(const MSG& message) override;

    [[nodiscard]] bool PressKey(WPARAM virtualKey);
    bool OnInitDialog(HWND focus);
    fw::Reply OnTimer(UINT_PTR id);
    bool OnEraseBackground(HDC dc);
    fw::Reply OnDrawItem(const fw::Message& message);
    fw::Reply OnActivate(UINT activation, bool minimised);
    void OnDoubleClick(const fw::Message& message);
    void OnWheel(const fw::Message& message);
    fw::Reply OnColoursChanged(const fw::Message& message);
    void OnReturnToToday(const fw::Message& message);
    void OnStep(UINT button);
    fw::Reply OnClose();

    [[nodiscard]] bool CreateChildren();
    void ShowFocus();
    void MakeFonts();
    void TakeLook();
    void Update();
    void FillCalendar(CalendarPage page, const ClockReading& now, Filling filling);
    static void PaintFrame(HDC dc, const base::Rect& client);
    void Paint(HDC dc, base::Rect client) const;

    TimeDateHost& host_;
    TimeDateSources sources_;
    fw::MessageLoop::Registration filter_;
    PopUpLook look_;
    std::wstring timeText_;
    std::wstring dateText_;
    fw::UniqueFont timeFont_;
    fw::UniqueFont dateFont_;
    fw::Timer timer_;
    CCalenderWindow calendar_;
    CUpDownButton previousMonth_{Direction::kLeft, look_.text.colour};
    CUpDownButton nextMonth_{Direction::kRight, look_.text.colour};
    CalendarPage page_;
    WheelSteps wheel_;
    bool closing_ = false;
};

} // namespace korvane::controls
