#include "controls/calender_window.h"

#include <array>
#include <string>
#include <string_view>

#include "controls/bar_painting.h"
#include "controls/logic/calendar_layout.h"
#include "framework/dpi.h"
#include "framework/gdi.h"

namespace korvane::controls {
namespace {

// A pixel's worth at 96 dpi: of the line and of today's frame.
constexpr int kHairline = 1;

// Fonts may be a little higher than their line; nothing of a character is cut off for that.
void DrawCentred(HDC dc, std::wstring_view text, const base::Rect& area, const Ink& ink) {
    DrawInked(dc, std::wstring{text}, area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP, ink);
}

} // namespace

void CCalenderWindow::SetLook(const PopUpLook& look, HFONT font) {
    look_ = look;
    font_ = font;
    if (Handle()) Redraw();
}

bool CCalenderWindow::Fill(CalendarPage page, const ClockReading& today, Filling filling) {
    if (!MayFill(filling, month_.showsToday)) return false;
    month_ = BuildMonth(page, today);
    if (Handle()) {
        ::SetWindowTextW(Handle(), month_.title.c_str());
        Redraw();
    }
    return true;
}

bool CCalenderWindow::OnEraseBackground(HDC dc) {
    const base::Rect client = fw::ClientRect(Handle());
    if (client.Empty()) return true;
    const PaintBuffer buffer{dc, client};
    const fw::SavedDc saved{buffer.Dc()};
    FillFigure(buffer.Dc(), {&client, 1}, look_.ground);
    Paint(buffer.Dc());
    return true;
}

void CCalenderWindow::Paint(HDC dc) const {
    const base::DpiScale& scale = fw::Scale();
    const base::Rect rule = base::Rect::At({0, scale(kRuleTop)}, {CalendarSize(scale).width, scale(kHairline)});
    FillInked(dc, {&rule, 1}, look_.dim);

    ::SelectObject(dc, font_);
    for (unsigned day = 0; day < kDaysInWeek; ++day)
        DrawCentred(dc, DayOfWeekName(day), WeekdayRect(day, scale), look_.text);
    DrawCentred(dc, month_.title, TitleRect(scale), look_.text);
    for (std::size_t i = 0; i < month_.cells.size(); ++i) PaintCell(dc, i);
}

void CCalenderWindow::PaintCell(HDC dc, std::size_t index) const {
    const DayCell& cell = month_.cells[index];
    if (cell.day == 0) return; // never filled
    const base::Rect area = CellRect(index, fw::Scale());
    if (cell.isToday) PaintTodaysFrame(dc, area);
    DrawCentred(dc, std::to_wstring(cell.day), area, cell.isOtherMonth ? look_.dim : look_.text);
}

void CCalenderWindow::PaintTodaysFrame(HDC dc, const base::Rect& cell) const {
    const int line = fw::Scale()(kHairline);
    const std::array edges{
        base::Rect{cell.left, cell.top, cell.right, cell.top + line},
        base::Rect{cell.left, cell.bottom - line, cell.right, cell.bottom},
        base::Rect{cell.left, cell.top, cell.left + line, cell.bottom},
        base::Rect{cell.right - line, cell.top, cell.right, cell.bottom},
    };
    FillInked(dc, edges, look_.dim);
}

// What a double click opens is the pop-up's, here as everywhere on it. The pop-up may be gone afterwards.
void CCalenderWindow::OnLeftDoubleClick(const fw::Message& m) {
    const HWND parent = ::GetParent(m.window);
    POINT at{static_cast<short>(LOWORD(m.lparam)), static_cast<short>(HIWORD(m.lparam))};
    ::MapWindowPoints(m.window, parent, &at, 1);
    ::SendMessageW(parent, m.id, m.wparam, MAKELPARAM(at.x, at.y));
}

void CCalenderWindow::OnRightDoubleClick(const fw::Message&) {
    ReturnToToday();
}

void CCalenderWindow::ReturnToToday() {
    month_.showsToday = true;
    ::PostMessageW(::GetParent(Handle()), kReturnToToday, 0, 0);
}

} // namespace korvane::controls
