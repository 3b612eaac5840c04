#pragma once

#include <windows.h>

#include "base/geometry.h"
#include "framework/theme.h"

// How the owner-drawn lists of the dialogs draw their rows: as the lists of Explorer do, or plainly where there is no
// visual style.
namespace korvane::controls {

inline constexpr const wchar_t* kListTheme = L"EXPLORER::LISTVIEW";
// Part and states of that class: LVP_LISTITEM and LISS_… of vsstyle.h.
inline constexpr int kListItemPart = 1;
inline constexpr int kListItemHot = 2;
inline constexpr int kListItemSelected = 3;
inline constexpr int kListItemSelectedUnfocused = 5;

// Since Windows 8 a list's hot state is the quiet light blue that the selected state was before.
[[nodiscard]] constexpr int SelectedRowState(bool windows8) {
    return windows8 ? kListItemHot : kListItemSelected;
}

// What the text of a row is drawn in: an index of GetSysColor. On the system's highlight, which high contrast asks for,
// it is another than elsewhere.
[[nodiscard]] constexpr int RowTextColour(bool selected, bool enabled, bool highContrast) {
    if (selected && highContrast) return COLOR_HIGHLIGHTTEXT;
    return enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT;
}

// The ground of a selected row: the system's highlight in high contrast; else the text on it keeps its colour, so the
// plain one is pale.
void PaintSelectedRow(const fw::Theme& theme, HDC dc, const base::Rect& row, bool windows8);

// A frame that stands out quietly, such as the one around an item's icon.
void PaintItemFrame(const fw::Theme& theme, HDC dc, const base::Rect& frame);

// The dotted rectangle around the row that the keyboard is on.
void PaintRowFocus(HDC dc, const base::Rect& row);

} // namespace korvane::controls
