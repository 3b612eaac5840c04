#include "controls/list_item_look.h"

#include "base/colour.h"
#include "framework/gdi.h"
#include "framework/handle.h"
#include "framework/high_contrast.h"

namespace korvane::controls {
namespace {

// `percent` of one system colour on another.
COLORREF Blend(int ink, int ground, int percent) {
    const base::Colour a{::GetSysColor(ink)};
    const base::Colour b{::GetSysColor(ground)};
    const auto mix = [percent](int x, int y) {
        return static_cast<unsigned>((x * percent + y * (100 - percent)) / 100);
    };
    return fw::ToWindows(base::Colour::Rgb(mix(a.Red(), b.Red()), mix(a.Green(), b.Green()), mix(a.Blue(), b.Blue())));
}

void PaintPlainRow(HDC dc, const base::Rect& row, COLORREF fill, COLORREF edge) {
    const RECT r = fw::ToWindows(row);
    const fw::UniqueBrush fillBrush{::CreateSolidBrush(fill)};
    const fw::UniqueBrush edgeBrush{::CreateSolidBrush(edge)};
    ::FillRect(dc, &r, fillBrush.Get());
    ::FrameRect(dc, &r, edgeBrush.Get());
}

} // namespace

void PaintSelectedRow(const fw::Theme& theme, HDC dc, const base::Rect& row, bool windows8) {
    if (fw::HighContrast()) {
        const RECT r = fw::ToWindows(row);
        ::FillRect(dc, &r, ::GetSysColorBrush(COLOR_HIGHLIGHT));
        return;
    }
    if (theme) return theme.DrawBackground(dc, kListItemPart, SelectedRowState(windows8), row);
    PaintPlainRow(dc, row, Blend(COLOR_HIGHLIGHT, COLOR_WINDOW, 20), Blend(COLOR_HIGHLIGHT, COLOR_WINDOW, 60));
}

void PaintItemFrame(const fw::Theme& theme, HDC dc, const base::Rect& frame) {
    if (fw::HighContrast()) {
        const RECT r = fw::ToWindows(frame);
        ::FillRect(dc, &r, ::GetSysColorBrush(COLOR_WINDOW));
        ::FrameRect(dc, &r, ::GetSysColorBrush(COLOR_WINDOWTEXT));
        return;
    }
    if (theme) return theme.DrawBackground(dc, kListItemPart, kListItemSelectedUnfocused, frame);
    PaintPlainRow(dc, frame, Blend(COLOR_WINDOWTEXT, COLOR_WINDOW, 6), Blend(COLOR_WINDOWTEXT, COLOR_WINDOW, 20));
}

void PaintRowFocus(HDC dc, const base::Rect& row) {
    const RECT r = fw::ToWindows(row);
    ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
    ::DrawFocusRect(dc, &r);
}

} // namespace korvane::controls
