#pragma once

#include "controls/logic/calendar_month.h"
#include "controls/pop_up_look.h"
#include "framework/window.h"

namespace korvane::controls {

// One month as a sheet of days, in the date/time pop-up. Its window text is its title, for those who cannot see it.
class CCalenderWindow final : public fw::Window<CCalenderWindow> {
public:
    // The class is spelled like this.
    static constexpr fw::WindowClass kClass{.name = L"CalenderWindow_WndClass", .style = CS_DBLCLKS};

    // Posted to the parent: the user wants the current month again.
    static constexpr UINT kReturnToToday = WM_APP + 1;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_ERASEBKGND>(&CCalenderWindow::OnEraseBackground),
            fw::On<WM_LBUTTONDBLCLK>(&CCalenderWindow::OnLeftDoubleClick),
            fw::On<WM_RBUTTONDBLCLK>(&CCalenderWindow::OnRightDoubleClick),
        };
    }

    // Brush and font are borrowed. Shown at once when the window exists.
    void SetLook(const PopUpLook& look, HFONT font);

    // False when the user has turned the calendar away and it is only to follow the clock: nothing changes then.
    bool Fill(CalendarPage page, const ClockReading& today, Filling filling);

    // The current month again, however far the user has turned away from it. Comes with the next message.
    void ReturnToToday();

    [[nodiscard]] const CalendarMonth& Month() const { return month_; }

private:
    bool OnEraseBackground(HDC dc);
    void OnLeftDoubleClick(const fw::Message& message);
    void OnRightDoubleClick(const fw::Message& message);

    void Paint(HDC dc) const;
    void PaintCell(HDC dc, std::size_t index) const;
    void PaintTodaysFrame(HDC dc, const base::Rect& cell) const;

    PopUpLook look_;
    HFONT font_ = nullptr;
    CalendarMonth month_;
};

} // namespace korvane::controls
