#include "launch/launch_menu_list_box.h"

#include "base/colour.h"
#include "base/text.h"
#include "controls/logic/contrast.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/high_contrast.h"
#include "launch/logic/launch_page.h"
#include "launch/logic/launch_row_layout.h"
#include "launch/logic/path_parts.h"

namespace korvane::launch {
namespace {

// The items that stand on the launch buttons.
constexpr base::Colour kButtonRowColour = base::Colour::Rgb(0, 104, 136);

// On a dark window the blue-green could not be read.
COLORREF TextColourOf(int row, bool selected) {
    const bool highContrast = fw::HighContrast();
    const base::Colour window{::GetSysColor(COLOR_WINDOW)};
    const bool legible = controls::Contrast(kButtonRowColour, window) >= controls::kLegible;
    if (IsButtonRow(row) && legible && !highContrast) return fw::ToWindows(kButtonRowColour);
    return ::GetSysColor(controls::RowTextColour(selected, true, highContrast));
}

int WidthOf(HDC dc, const std::wstring& text) {
    SIZE extent{};
    ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &extent);
    return static_cast<int>(extent.cx);
}

void DrawLine(HDC dc, const base::Rect& place, const std::wstring& text, UINT ellipsis) {
    RECT r = fw::ToWindows(place);
    // The letters may be higher than their line, but are never to be wider.
    ::DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &r,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_NOCLIP | ellipsis);
}

// Windows shortens a path in its middle and leaves the file's name whole, however wide it is.
void DrawPath(HDC dc, const base::Rect& place, const std::wstring& path) {
    const std::wstring leastOfIt = ShortestPath(path);
    if (WidthOf(dc, path) > place.Width() && WidthOf(dc, leastOfIt) > place.Width())
        DrawLine(dc, place, leastOfIt, DT_END_ELLIPSIS);
    else
        DrawLine(dc, place, path, DT_PATH_ELLIPSIS);
}

} // namespace

LRESULT CLaunchMenuListBox::OnCreate(const fw::Message& message) {
    const LRESULT result = Default(message);
    OpenTheme();
    return result;
}

void CLaunchMenuListBox::SetLineHeight(int lineHeightPx) {
    lineHeightPx_ = lineHeightPx;
    ::SendMessageW(Handle(), LB_SETITEMHEIGHT, 0, RowHeight());
}

int CLaunchMenuListBox::RowHeight() const {
    return LaunchRowHeight(lineHeightPx_, fw::Scale());
}

int CLaunchMenuListBox::Count() const {
    return static_cast<int>(::SendMessageW(Handle(), LB_GETCOUNT, 0, 0));
}

int CLaunchMenuListBox::Selected() const {
    return static_cast<int>(::SendMessageW(Handle(), LB_GETCURSEL, 0, 0));
}

void CLaunchMenuListBox::Select(int row) {
    ::SendMessageW(Handle(), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

CLaunchItem* CLaunchMenuListBox::ItemAt(int row) const {
    if (row < 0 || row >= Count()) return nullptr;
    return reinterpret_cast<CLaunchItem*>(::SendMessageW(Handle(), LB_GETITEMDATA, static_cast<WPARAM>(row), 0));
}

bool CLaunchMenuListBox::Insert(int row, CLaunchItem* item) {
    const wchar_t* const text = item ? item->Name().c_str() : L"";
    const LRESULT at =
        ::SendMessageW(Handle(), LB_INSERTSTRING, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text));
    if (at < 0) return false;
    ::SendMessageW(Handle(), LB_SETITEMDATA, static_cast<WPARAM>(at), reinterpret_cast<LPARAM>(item));
    return true;
}

void CLaunchMenuListBox::Remove(int row) {
    ::SendMessageW(Handle(), LB_DELETESTRING, static_cast<WPARAM>(row), 0);
}

void CLaunchMenuListBox::Move(int from, int to, CLaunchItem* item) {
    const LRESULT top = ::SendMessageW(Handle(), LB_GETTOPINDEX, 0, 0);
    ::SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
    Remove(from);
    Insert(to, item);
    ::SendMessageW(Handle(), LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
    ::SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(Handle(), nullptr, FALSE);
}

LRESULT CLaunchMenuListBox::OnDrawItem(const DRAWITEMSTRUCT& item) {
    // An empty list is drawn as one row that is none, for the focus.
    if (static_cast<int>(item.itemID) < 0) return TRUE;
    const base::Rect place = fw::FromWindows(item.rcItem);
    const fw::SavedDc saved{item.hDC};
    ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(COLOR_WINDOW));
    DrawRow(item.hDC, static_cast<int>(item.itemID), place, (item.itemState & ODS_SELECTED) != 0);
    if ((item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT)) controls::PaintRowFocus(item.hDC, place);
    return TRUE;
}

void CLaunchMenuListBox::DrawRow(HDC dc, int row, const base::Rect& place, bool selected) const {
    const LaunchRowLayout layout = LayOutLaunchRow(place, lineHeightPx_, fw::Scale());
    const RECT line = fw::ToWindows(layout.line);
    ::FillRect(dc, &line, ::GetSysColorBrush(COLOR_3DLIGHT));
    if (selected) controls::PaintSelectedRow(CurrentTheme(), dc, place, windows8_);

    const CLaunchItem* const item = ItemAt(row);
    if (!item) return;
    controls::PaintItemFrame(CurrentTheme(), dc, layout.frame);
    if (item->Icon())
        ::DrawIconEx(dc, layout.icon.left, layout.icon.top, item->Icon(), layout.icon.Width(), layout.icon.Height(), 0,
                     nullptr, DI_NORMAL);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, TextColourOf(row, selected));
    DrawLine(dc, layout.firstLine, RowLabel(row) + L" " + item->Name(), DT_END_ELLIPSIS);
    DrawPath(dc, layout.secondLine, item->Path());
}

} // namespace korvane::launch
