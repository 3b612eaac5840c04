#include "launch/import_list_box.h"

#include <algorithm>
#include <utility>

#include "controls/list_item_look.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/high_contrast.h"
#include "framework/windows_version.h"
#include "launch/logic/import_rules.h"

namespace korvane::launch {
namespace {

// Pixels, as design figures.
constexpr int kRowPaddingPx = 2; // above and below
constexpr int kIconLeftPx = 5;
constexpr int kTextGapPx = 6;
constexpr int kTextRightPx = 5;

int TextHeight(HWND window) {
    const fw::WindowDc dc{window};
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
    const fw::SelectedObject selected{dc.Get(), font ? font : ::GetStockObject(DEFAULT_GUI_FONT)};
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc.Get(), &metrics);
    return metrics.tmHeight;
}

} // namespace

const wchar_t* CImportListBox::ThemeClasses() const {
    return controls::kListTheme;
}

LRESULT CImportListBox::OnCreate(const fw::Message& message) {
    const LRESULT result = Default(message);
    OpenTheme();
    return result;
}

void CImportListBox::Clear() {
    ::SendMessageW(Handle(), LB_RESETCONTENT, 0, 0);
    rows_.clear();
}

void CImportListBox::Append(std::vector<ImportableItem> items) {
    if (items.empty()) return;
    ::SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
    for (ImportableItem& item : items) {
        rows_.push_back({std::move(item)});
        const auto name = reinterpret_cast<LPARAM>(rows_.back().item.name.c_str());
        if (::SendMessageW(Handle(), LB_ADDSTRING, 0, name) < 0) {
            // Windows has no room for more.
            rows_.pop_back();
            break;
        }
    }
    ::SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
    // Each row paints its own ground.
    ::InvalidateRect(Handle(), nullptr, FALSE);
}

int CImportListBox::SelectedCount() const {
    return static_cast<int>(std::count_if(rows_.begin(), rows_.end(), [](const Row& row) { return row.selected; }));
}

bool CImportListBox::AnySelectable() const {
    return std::ranges::any_of(rows_, [](const Row& row) { return row.item.selectable; });
}

std::vector<const ImportableItem*> CImportListBox::Selected() const {
    std::vector<const ImportableItem*> selected;
    for (const Row& row : rows_)
        if (row.selected) selected.push_back(&row.item);
    return selected;
}

void CImportListBox::RefuseSelection() {
    std::vector<ImportRow> rows;
    rows.reserve(rows_.size());
    for (std::size_t i = 0; i < rows_.size(); ++i)
        rows.push_back({rows_[i].item.selectable, Ask(LB_GETSEL, i) > 0, rows_[i].selected});
    const std::vector<int> refused = RefusedRows(rows, places_);

    for (std::size_t i = 0; i < rows_.size(); ++i) rows_[i].selected = rows[i].selected;
    for (const int row : refused) rows_[static_cast<std::size_t>(row)].selected = false;
    // Neighbours go together: the list box paints after each call.
    for (auto first = refused.begin(); first != refused.end();) {
        auto last = first;
        while (last + 1 != refused.end() && *(last + 1) == *last + 1) ++last;
        Deselect(*first, *last);
        first = last + 1;
    }
}

void CImportListBox::Deselect(int first, int last) {
    // Ranges leave the row alone from which Shift extends the selection. A range is taken away by giving its ends the
    // wrong way round, which a single row has not; and the message that takes one has room for 16 bits.
    constexpr int kLargestShort = 0xFFFF;
    if (first < last)
        Ask(LB_SELITEMRANGEEX, static_cast<WPARAM>(last), first);
    else if (first <= kLargestShort)
        Ask(LB_SELITEMRANGE, FALSE, MAKELPARAM(first, first));
    else
        Ask(LB_SETSEL, FALSE, first);
}

LRESULT CImportListBox::OnKeyDown(const fw::Message& message) {
    const bool wantsAll = message.wparam == 'A' && ::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_MENU) >= 0;
    if (!wantsAll) return OnInput(message);
    constexpr LPARAM kEveryRow = -1;
    return OnInput({message.window, LB_SETSEL, TRUE, kEveryRow});
}

LRESULT CImportListBox::OnInput(const fw::Message& message) {
    const auto selection = [this] {
        std::vector<bool> selected;
        for (const Row& row : rows_) selected.push_back(row.selected);
        return selected;
    };
    const std::vector<bool> before = selection();
    const LRESULT result = Default(message);
    if (!Handle()) return result;
    RefuseSelection();
    // The list box tells its owner of some changes at once, of some later and of some not at all.
    if (selection() != before)
        ::SendMessageW(::GetParent(Handle()), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(Handle()), LBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(Handle()));
    return result;
}

void CImportListBox::OnMeasureItem(MEASUREITEMSTRUCT& measure) {
    const int content = std::max(TextHeight(Handle()), ::GetSystemMetrics(SM_CYSMICON));
    measure.itemHeight = static_cast<UINT>(content + 2 * fw::Scale()(kRowPaddingPx));
}

void CImportListBox::OnDrawItem(const DRAWITEMSTRUCT& draw) {
    const fw::SavedDc saved{draw.hDC};
    ::FillRect(draw.hDC, &draw.rcItem, ::GetSysColorBrush(COLOR_WINDOW));
    // An empty list is asked to draw its focus, at a row that is not there.
    if (draw.itemID < rows_.size()) DrawRow(draw.hDC, draw.rcItem, rows_[draw.itemID].item, draw.itemState);
    if ((draw.itemState & ODS_FOCUS) && !(draw.itemState & ODS_NOFOCUSRECT))
        controls::PaintRowFocus(draw.hDC, fw::FromWindows(draw.rcItem));
}

void CImportListBox::DrawRow(HDC dc, const RECT& rect, const ImportableItem& item, UINT state) const {
    const bool selected = (state & ODS_SELECTED) != 0 && item.selectable;
    if (selected)
        controls::PaintSelectedRow(CurrentTheme(), dc, fw::FromWindows(rect), fw::IsWindowsAtLeast(fw::kWindows8));
    const auto& scale = fw::Scale();
    const int iconWidth = ::GetSystemMetrics(SM_CXSMICON);
    const int iconHeight = ::GetSystemMetrics(SM_CYSMICON);
    const int iconLeft = rect.left + scale(kIconLeftPx);
    if (item.icon)
        ::DrawIconEx(dc, iconLeft, (rect.top + rect.bottom - iconHeight) / 2, item.icon.Get(), iconWidth, iconHeight, 0,
                     nullptr, DI_NORMAL);

    RECT text = rect;
    text.left = iconLeft + iconWidth + scale(kTextGapPx);
    text.right -= scale(kTextRightPx);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, ::GetSysColor(controls::RowTextColour(selected, item.selectable, fw::HighContrast())));
    ::DrawTextW(dc, item.name.c_str(), static_cast<int>(item.name.size()), &text,
                DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

} // namespace korvane::launch
