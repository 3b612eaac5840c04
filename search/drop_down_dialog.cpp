#include "search/drop_down_dialog.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/monitors.h"
#include "framework/string_table.h"
#include "framework/theme.h"
#include "search/logic/drop_down_place.h"

namespace korvane::search {
namespace {

// Pixels. The frame that shows around the list.
constexpr int kFramePx = 1;

// Pixels. Rows as high as those of a menu are easier to hit than the font alone would make them.
constexpr int kRowHeightPx = 18;

// Characters; list views show no more of an item.
constexpr std::size_t kLongestShown = 259;

} // namespace

HistoryRowTexts LoadHistoryRowTexts() {
    return {fw::LoadText(IDS_BROWSE_FILE_ROW), fw::LoadText(IDS_BROWSE_FOLDER_ROW), fw::LoadText(IDS_CLEAR_HISTORY_ROW),
            fw::LoadText(IDS_NO_ROW)};
}

CDropDownDialog::CDropDownDialog(HistoryDropDownHost& host, DropDownSetup setup)
    : host_{host}, setup_{std::move(setup)} {}

HWND CDropDownDialog::Open(HistoryDropDownHost& host, DropDownSetup setup) {
    const HWND owner = setup.owner;
    std::unique_ptr<CDropDownDialog> dialog{new CDropDownDialog{host, std::move(setup)}};
    if (!dialog->Create(owner) || !dialog->list_) return nullptr;
    // From here on the window owns the object, through OnFinalMessage.
    const CDropDownDialog* const opened = dialog.release();
    const HWND window = opened->Handle();
    const HWND list = opened->list_;
    ::ShowWindow(window, SW_SHOW);
    ::SetFocus(list);
    return window;
}

void CDropDownDialog::OnFinalMessage() {
    HistoryDropDownHost& host = host_;
    const Box box = setup_.box;
    delete this;
    host.OnDropDownClosed(box);
}

bool CDropDownDialog::OnInitDialog(HWND) {
    MoveToBox();
    if (CreateList()) {
        AddColumn();
        FillList(0);
    }
    return false;
}

void CDropDownDialog::MoveToBox() {
    const base::Rect place =
        PlaceDropDown({setup_.region, fw::WindowRect(Handle()).Extent(), fw::WorkAreaOf(setup_.edit)});
    ::SetWindowPos(Handle(), nullptr, place.left, place.top, place.Width(), place.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

bool CDropDownDialog::CreateList() {
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL |
                             LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS;
    // With tracking the row under the mouse becomes the selected one, as in the list of a combo box.
    constexpr DWORD kExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_TRACKSELECT;
    constexpr LPARAM kHoverMilliseconds = 1;

    const base::Rect place = fw::ClientRect(Handle()).Inset(fw::Scale()(kFramePx));
    list_ =
        ::CreateWindowExW(0, WC_LISTVIEWW, L"", kStyle, place.left, place.top, place.Width(), place.Height(), Handle(),
                          reinterpret_cast<HMENU>(UINT_PTR{kListId}), ::GetModuleHandleW(nullptr), nullptr);
    if (!list_) return false;
    ::SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, kExtendedStyle, static_cast<LPARAM>(kExtendedStyle));
    ::SendMessageW(list_, LVM_SETHOVERTIME, 0, kHoverMilliseconds);
    ::SendMessageW(list_, WM_SETFONT, static_cast<WPARAM>(::SendMessageW(Handle(), WM_GETFONT, 0, 0)), FALSE);
    // A list view has no row height of its own; it is that of its small images, and these have no width to be seen.
    rowHeight_.Reset(::ImageList_Create(1, fw::Scale()(kRowHeightPx), ILC_COLOR, 0, 0));
    ::SendMessageW(list_, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(rowHeight_.Get()));
    fw::SetWindowTheme(list_, L"EXPLORER");
    return true;
}

void CDropDownDialog::AddColumn() {
    // Narrow at first: a wide column could call up a horizontal scroll bar, and that in turn a vertical one.
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    column.cx = 1;
    ::SendMessageW(list_, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
}

void CDropDownDialog::FillList(int selected) {
    ::SendMessageW(list_, LVM_DELETEALLITEMS, 0, 0);
    for (std::size_t i = 0; i < setup_.rows.size(); ++i) {
        std::wstring shown = setup_.rows[i].text.substr(0, kLongestShown);
        LVITEMW item{};
        item.mask = LVIF_TEXT | LVIF_PARAM;
        item.iItem = static_cast<int>(i);
        item.lParam = setup_.rows[i].number;
        item.pszText = shown.data();
        ::SendMessageW(list_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    const bool scrolls = (::GetWindowLongPtrW(list_, GWL_STYLE) & WS_VSCROLL) != 0;
    const int width = fw::WindowRect(list_).Width() - (scrolls ? ::GetSystemMetrics(SM_CXVSCROLL) : 0);
    ::SendMessageW(list_, LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(width, 0));

    SelectRow(selected);
}

void CDropDownDialog::SelectRow(int row) {
    // A row that only says that there is none to choose is not offered as chosen.
    const bool chosen = ActionOfRow(setup_.rows[static_cast<std::size_t>(row)].number) != HistoryAction::kNone;
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    if (chosen) item.state = item.stateMask;
    ::SendMessageW(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    ::SendMessageW(list_, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void CDropDownDialog::RemoveRow(int row) {
    if (closing_ || row < 0 || static_cast<std::size_t>(row) >= setup_.rows.size()) return;
    const HistoryRow& removed = setup_.rows[static_cast<std::size_t>(row)];
    if (ActionOfRow(removed.number) != HistoryAction::kUseEntry) return;
    setup_.rows = host_.RemoveEntry(setup_.box, removed.text);
    FillList(std::min(row, static_cast<int>(setup_.rows.size()) - 1));
}

fw::Reply CDropDownDialog::OnActivate(UINT activation, bool) {
    if (activation == WA_INACTIVE) {
        if (LostWhileOpening()) {
            ::PostMessageW(Handle(), kTakeActivationBack, 0, 0);
        } else {
            Close();
        }
    }
    return fw::kPassOn;
}

bool CDropDownDialog::LostWhileOpening() {
    const bool clicked = ::GetAsyncKeyState(VK_LBUTTON) < 0 || ::GetAsyncKeyState(VK_RBUTTON) < 0;
    const auto age = std::chrono::steady_clock::now() - opened_;
    return !clicked && !closing_ && age < setup_.openingMoment && !std::exchange(tookBack_, true);
}

void CDropDownDialog::OnTakeActivationBack(const fw::Message&) {
    ::SetForegroundWindow(Handle());
    if (::GetForegroundWindow() == Handle()) {
        ::SetFocus(list_);
    } else {
        Close();
    }
}

LRESULT CDropDownDialog::OnEraseBackground(HDC dc) {
    // All that shows of it is the frame around the list.
    const RECT client = fw::ToWindows(fw::ClientRect(Handle()));
    ::FillRect(dc, &client, ::GetSysColorBrush(COLOR_BTNSHADOW));
    return TRUE;
}

void CDropDownDialog::OnOk() {
    Choose(SelectedRow());
}

fw::Reply CDropDownDialog::OnCancel() {
    // The object goes with its window. What was chosen may open a dialog of its own, so it waits until then.
    HistoryDropDownHost& host = host_;
    const HistoryAction action = pending_;
    const Box box = setup_.box;
    ::DestroyWindow(Handle());
    switch (action) {
    case HistoryAction::kBrowseFile:
        host.BrowseFile();
        break;
    case HistoryAction::kBrowseFolder:
        host.BrowseFolder();
        break;
    case HistoryAction::kClear:
        host.ClearHistory(box);
        break;
    case HistoryAction::kUseEntry:
    case HistoryAction::kNone:
        break;
    }
    // A result would be written into the window that is gone.
    return fw::kPassOn;
}

void CDropDownDialog::OnRowClicked(const NMITEMACTIVATE& click) {
    Choose(click.iItem);
}

void CDropDownDialog::OnKeyDown(const NMLVKEYDOWN& key) {
    switch (key.wVKey) {
    case VK_RETURN:
        Choose(SelectedRow());
        break;
    case VK_DELETE:
        RemoveRow(SelectedRow());
        break;
    case VK_ESCAPE:
    case VK_F4: // opened it
        Close();
        break;
    default:
        break;
    }
}

LRESULT CDropDownDialog::OnDrawRow(NMLVCUSTOMDRAW& draw) {
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT && IsSpecialRow(static_cast<int>(draw.nmcd.lItemlParam)))
        draw.clrText = ::GetSysColor(COLOR_GRAYTEXT);
    return CDRF_DODEFAULT;
}

int CDropDownDialog::SelectedRow() const {
    return static_cast<int>(
        ::SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), MAKELPARAM(LVNI_SELECTED, 0)));
}

void CDropDownDialog::Choose(int row) {
    // A click may hit no row, and a second one may come before the pop-up is gone.
    if (closing_ || row < 0 || static_cast<std::size_t>(row) >= setup_.rows.size()) return;
    const HistoryRow& chosen = setup_.rows[static_cast<std::size_t>(row)];
    pending_ = ActionOfRow(chosen.number);
    if (pending_ == HistoryAction::kUseEntry) {
        ::SetWindowTextW(setup_.edit, chosen.text.c_str());
        const auto end = static_cast<WPARAM>(chosen.text.size());
        ::SendMessageW(setup_.edit, EM_SETSEL, end, static_cast<LPARAM>(end));
        host_.OnEntryPicked(setup_.box);
    }
    Close();
}

void CDropDownDialog::Close() {
    if (std::exchange(closing_, true)) return;
    ::PostMessageW(Handle(), WM_COMMAND, IDCANCEL, 0);
}

} // namespace korvane::search
