#include "launch/opt_extra_page.h"

#include <shellapi.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "framework/centred_message_box.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/placeholder.h"
#include "framework/string_table.h"
#include "framework/wait_cursor.h"
#include "framework/window_text.h"
#include "launch/add_menu_dialog.h"
#include "launch/dropped_item.h"
#include "launch/import_dialog.h"
#include "launch/logic/launch_page.h"
#include "launch/logic/launch_row_layout.h"

namespace korvane::launch {
namespace {

// The height of a line of text: that of the font which a device context has by itself, less one pixel. That font may
// stay small on a fine screen; the text of the list does not.
int LineHeightFor(HWND page) {
    const fw::WindowDc dc{page};
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc.Get(), &metrics);
    constexpr int kDesignLine = 15;
    const int scaled = fw::Scale().Dpi() > base::DpiScale::kDesignDpi ? fw::Scale()(kDesignLine) : 0;
    return std::max(static_cast<int>(metrics.tmHeight) - 1, scaled);
}

void MoveDownBy(HWND page, int id, int pixels) {
    const HWND control = ::GetDlgItem(page, id);
    RECT r{};
    ::GetWindowRect(control, &r);
    ::MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&r), 2);
    ::SetWindowPos(control, nullptr, r.left, r.top + pixels, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

COptExtraPage::COptExtraPage(settings::ProfileStore& store, HICON smallIcon, about::HelpOpener& help)
    : store_{store}, smallIcon_{smallIcon}, help_{help} {}

bool COptExtraPage::OnInitDialog(HWND) {
    // The empty list of the template has put its scroll bar away, and with it the style that asks for one.
    if (!fw::TakePlace(list_, Handle(), IDC_LAUNCH_LIST, {.with = WS_VSCROLL})) return false;
    list_.SetLineHeight(LineHeightFor(Handle()));
    SizeList();
    FillList();
    Select(0);
    UpdateCount();
    ::DragAcceptFiles(Handle(), TRUE);
    return false;
}

void COptExtraPage::SizeList() {
    const base::Rect window = fw::WindowRect(list_.Handle());
    const int borders = window.Height() - fw::ClientRect(list_.Handle()).Height();
    const int height = kLaunchRowsShown * list_.RowHeight() + borders;
    ::SetWindowPos(list_.Handle(), nullptr, 0, 0, window.Width(), height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    for (const int id : {IDC_ITEM_COUNT, IDC_IMPORT}) MoveDownBy(Handle(), id, height - window.Height());
}

void COptExtraPage::FillList() {
    ::SendMessageW(list_.Handle(), WM_SETREDRAW, FALSE, 0);
    for (CLaunchItem& item : LoadList(store_)) Append(std::move(item));
    ::SendMessageW(list_.Handle(), WM_SETREDRAW, TRUE, 0);
    unlisted_ = ReadLinesFrom(store_, list_.Count());
}

bool COptExtraPage::Save() {
    // Nothing was listed that could take the place of what is stored.
    if (!list_.Handle()) return true;
    std::vector<const CLaunchItem*> items;
    items.reserve(static_cast<std::size_t>(list_.Count()));
    for (int row = 0; row < list_.Count(); ++row) items.push_back(list_.ItemAt(row));
    return SaveList(store_, items, unlisted_);
}

bool COptExtraPage::OnValidate(const fw::Message&) {
    return false;
}

fw::Reply COptExtraPage::OnDrawItem(const fw::Message& message) {
    return Reflect(message);
}

HBRUSH COptExtraPage::OnColour(const fw::Message& message) {
    const auto dc = reinterpret_cast<HDC>(message.wparam);
    ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
    ::SetBkMode(dc, TRANSPARENT);
    return ::GetSysColorBrush(COLOR_WINDOW);
}

int COptExtraPage::OnListKey(const fw::Message& message) {
    constexpr int kUsualWay = -1;
    constexpr int kDone = -2;
    const int row = list_.Selected();
    switch (LOWORD(message.wparam)) {
    case VK_DELETE:
        ::PostMessageW(Handle(), WM_COMMAND, IDC_DELETE, 0);
        return kDone;
    case VK_UP:
        if (row > 0) Select(row - 1);
        return kDone;
    case VK_DOWN:
        if (row < list_.Count() - 1) Select(row + 1);
        return kDone;
    default:
        return kUsualWay;
    }
}

void COptExtraPage::Append(CLaunchItem item) {
    if (FreePlaces(list_.Count()) > 0) InsertAt(list_.Count(), std::move(item));
}

void COptExtraPage::InsertAt(int row, CLaunchItem item) {
    items_.push_back(std::make_shared<CLaunchItem>(std::move(item)));
    if (!list_.Insert(row, items_.back().get())) items_.pop_back();
}

std::shared_ptr<CLaunchItem> COptExtraPage::ItemAt(int row) const {
    const auto owned = std::ranges::find(items_, list_.ItemAt(row), &std::shared_ptr<CLaunchItem>::get);
    return owned != items_.end() ? *owned : nullptr;
}

int COptExtraPage::RowOf(const CLaunchItem& item) const {
    for (int row = 0; row < list_.Count(); ++row)
        if (list_.ItemAt(row) == &item) return row;
    return kNoRow;
}

void COptExtraPage::OnMoveUp() {
    MoveSelectedTo(list_.Selected() - 1);
}

void COptExtraPage::OnMoveDown() {
    MoveSelectedTo(list_.Selected() + 1);
}

void COptExtraPage::MoveSelectedTo(int row) {
    const int from = list_.Selected();
    CLaunchItem* const item = list_.ItemAt(from);
    if (!item || row < 0 || row >= list_.Count()) return;
    list_.Move(from, row, item);
    Select(row);
    FocusList();
}

HWND COptExtraPage::DialogOwner() const {
    // None is active while the program is in the background, and a dialog without an owner would leave this one open
    // to use.
    const HWND active = ::GetActiveWindow();
    return active ? active : ::GetAncestor(Handle(), GA_ROOT);
}

void COptExtraPage::OnAdd() {
    const bool inFront = ::GetKeyState(VK_SHIFT) < 0;
    if (!LaunchPageButtonsFor(list_.Count(), list_.Selected()).add) return;
    CAddMenuDialog editor{smallIcon_, help_};
    static_cast<void>(editor.ShowModal(DialogOwner()));
    if (!editor.Confirmed() || FreePlaces(list_.Count()) <= 0) return;
    const int row = InsertRow(list_.Count(), list_.Selected(), inFront);
    InsertAt(row, editor.Item());
    Select(row);
    UpdateCount();
    FocusList();
}

void COptExtraPage::OnEdit() {
    const auto item = ItemAt(list_.Selected());
    if (!item) return;
    CAddMenuDialog editor{smallIcon_, help_, *item};
    static_cast<void>(editor.ShowModal(DialogOwner()));
    const int row = RowOf(*item);
    if (!editor.Confirmed() || row == kNoRow) return;
    item->Assign(editor.Item());
    // The row's text is the item's name.
    list_.Move(row, row, item.get());
    Select(row);
    FocusList();
}

void COptExtraPage::OnDelete() {
    const CLaunchItem* const listed = list_.ItemAt(list_.Selected());
    if (!listed || !CanDelete(list_.Count(), list_.Selected())) return;
    const auto item = ItemAt(list_.Selected());
    const std::wstring caption = fw::WindowText(::GetAncestor(Handle(), GA_ROOT));
    const std::wstring name = listed->Name();
    if (fw::ShowMessage(Handle(), fw::FormatResource(IDS_DELETE_ITEM, std::wstring_view{name}), caption,
                        MB_YESNOCANCEL | MB_ICONQUESTION) != IDYES)
        return;
    const auto owned = std::ranges::find(items_, item);
    const int row = item ? RowOf(*item) : kNoRow;
    if (owned == items_.end() || !CanDelete(list_.Count(), row)) {
        fw::ShowMessage(Handle(), fw::FormatResource(IDS_DELETE_ITEM_FAILED, std::wstring_view{name}), caption,
                        MB_ICONEXCLAMATION);
        return;
    }
    list_.Remove(row);
    items_.erase(owned);
    Select(RowAfterDelete(list_.Count(), row));
    UpdateCount();
    FocusList();
}

void COptExtraPage::OnImport() {
    if (!LaunchPageButtonsFor(list_.Count(), list_.Selected()).import) return;
    CImportDialog import{list_.Count(), smallIcon_, help_};
    static_cast<void>(import.ShowModal(DialogOwner()));
    if (!import.Confirmed()) return;
    for (CLaunchItem& item : import.TakeItems()) Append(std::move(item));
    SelectLast();
}

void COptExtraPage::OnDropFiles(const fw::Message& message) {
    const auto drop = reinterpret_cast<HDROP>(message.wparam);
    constexpr UINT kHowMany = 0xFFFFFFFF;
    const auto dropped = static_cast<int>(::DragQueryFileW(drop, kHowMany, nullptr, 0));
    const int room = FreePlaces(list_.Count() + static_cast<int>(droppedFiles_.size()));
    for (UINT i = 0; i < static_cast<UINT>(std::min(dropped, room)); ++i) {
        // A path that the shell could not start is not worth a place in the list.
        const UINT length = ::DragQueryFileW(drop, i, nullptr, 0);
        if (length == 0 || length >= MAX_PATH) continue;
        std::wstring path(length, L'\0');
        ::DragQueryFileW(drop, i, path.data(), length + 1);
        droppedFiles_.push_back(std::move(path));
    }
    ::DragFinish(drop);
    if (!droppedFiles_.empty()) ::PostMessageW(Handle(), kTakeDroppedFiles, 0, 0);
}

void COptExtraPage::OnTakeDroppedFiles(const fw::Message&) {
    if (droppedFiles_.empty()) return;
    const fw::WaitCursor wait;
    for (const std::wstring& path : std::exchange(droppedFiles_, {})) Append(ItemFromFile(path));
    SelectLast();
}

void COptExtraPage::Select(int row) {
    list_.Select(row);
    UpdateButtons();
}

void COptExtraPage::SelectLast() {
    Select(list_.Count() - 1);
    UpdateCount();
}

void COptExtraPage::UpdateButtons() {
    const LaunchPageButtons can = LaunchPageButtonsFor(list_.Count(), list_.Selected());
    const std::pair<int, bool> buttons[] = {
        {IDC_MOVE_UP, can.moveUp}, {IDC_MOVE_DOWN, can.moveDown}, {IDC_ADD, can.add},
        {IDC_EDIT, can.edit},      {IDC_DELETE, can.remove},      {IDC_IMPORT, can.import},
    };
    for (const auto& [id, enabled] : buttons) {
        // The keyboard would be nowhere with the focus on a disabled button.
        if (!enabled && ::GetFocus() == Control(id)) FocusList();
        ::EnableWindow(Control(id), enabled);
    }
}

void COptExtraPage::UpdateCount() {
    ::SetWindowTextW(Control(IDC_ITEM_COUNT),
                     fw::FormatResource(IDS_ITEM_COUNT, list_.Count(), MaxLaunchItems).c_str());
}

void COptExtraPage::FocusList() {
    ::SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(list_.Handle()), TRUE);
}

} // namespace korvane::launch
