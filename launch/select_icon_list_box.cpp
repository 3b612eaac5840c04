#include "launch/select_icon_list_box.h"

#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/placeholder.h"

namespace korvane::launch {
namespace {

// Pixels: an icon, and the square that it has to itself.
constexpr int kIconSidePx = 16;
constexpr int kCellSidePx = 24;

// What the control whose place is taken has as a static, and means something else to a list.
constexpr DWORD kStaticStyles = SS_TYPEMASK | SS_NOTIFY | SS_SUNKEN | SS_CENTERIMAGE | WS_GROUP | WS_BORDER;
constexpr DWORD kListStyles =
    WS_TABSTOP | WS_HSCROLL | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_MULTICOLUMN | LBS_NOINTEGRALHEIGHT;

// Bytes that a row takes besides its data: there is no text.
constexpr LPARAM kRowTextBytes = 0;

} // namespace

bool CSelectIconListBox::TakePlaceOf(HWND dialog, int id) {
    if (!fw::TakePlace(*this, dialog, id, {.without = kStaticStyles, .with = kListStyles, .id = kId})) return false;
    OpenTheme();
    const int side = fw::Scale()(kCellSidePx);
    ::SendMessageW(Handle(), LB_SETITEMHEIGHT, 0, side);
    ::SendMessageW(Handle(), LB_SETCOLUMNWIDTH, static_cast<WPARAM>(side), 0);
    return true;
}

void CSelectIconListBox::Clear() {
    ::SendMessageW(Handle(), LB_RESETCONTENT, 0, 0);
}

void CSelectIconListBox::BeginAdding(std::size_t count) {
    ::SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
    ::SendMessageW(Handle(), LB_INITSTORAGE, count, kRowTextBytes);
}

void CSelectIconListBox::Add(HICON icon) {
    ::SendMessageW(Handle(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(icon));
}

void CSelectIconListBox::EndAdding() {
    ::SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(Handle(), nullptr, TRUE);
}

int CSelectIconListBox::Count() const {
    return static_cast<int>(::SendMessageW(Handle(), LB_GETCOUNT, 0, 0));
}

int CSelectIconListBox::Selected() const {
    const auto row = static_cast<int>(::SendMessageW(Handle(), LB_GETCURSEL, 0, 0));
    return row >= 0 && row < Count() ? row : -1;
}

void CSelectIconListBox::Select(int row) {
    const int selected = row < Count() ? row : -1;
    ::SendMessageW(Handle(), LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
}

bool CSelectIconListBox::OnDrawItem(const DRAWITEMSTRUCT& item) {
    constexpr UINT kNoRow = static_cast<UINT>(-1);
    const fw::SavedDc saved{item.hDC};
    const auto icon = item.itemID == kNoRow ? nullptr : reinterpret_cast<HICON>(item.itemData);
    Paint(item.hDC, fw::FromWindows(item.rcItem), icon, item.itemState);
    return true;
}

void CSelectIconListBox::Paint(HDC dc, const base::Rect& row, HICON icon, UINT state) const {
    const RECT ground = fw::ToWindows(row);
    ::FillRect(dc, &ground, ::GetSysColorBrush(COLOR_WINDOW));
    if ((state & ODS_SELECTED) != 0) controls::PaintSelectedRow(CurrentTheme(), dc, row, windows8_);
    if (icon) {
        const int side = fw::Scale()(kIconSidePx);
        const base::Rect place = base::Centred(row, {side, side});
        ::DrawIconEx(dc, place.left, place.top, icon, side, side, 0, nullptr, DI_NORMAL);
    }
    if ((state & ODS_FOCUS) != 0 && (state & ODS_NOFOCUSRECT) == 0) controls::PaintRowFocus(dc, row);
}

} // namespace korvane::launch
