#include "search/opt_command_page.h"

#include <algorithm>
#include <array>
#include <utility>

#include "framework/centred_message_box.h"
#include "framework/gdi.h"
#include "framework/placeholder.h"
#include "framework/scoped_flag.h"
#include "framework/string_table.h"
#include "framework/theme.h"
#include "framework/window_text.h"
#include "search/add_command_dialog.h"
#include "settings/logic/setting_keys.h"

namespace korvane::search {
namespace {

constexpr int kNameColumn = 0;
constexpr int kSummaryColumn = 1;
// The name's part of a list's width; the longest names that the editor takes do not need more.
constexpr int kNamePercent = 45;

// What stands for a kind on the page.
struct KindControls {
    int radioButton;
    int label;
    int list;
    UINT name; // in the string table
};
constexpr std::array<KindControls, 2> kKinds{{
    {IDC_STANDARD_COMMANDS, IDC_STANDARD_LIST_LABEL, IDC_STANDARD_LIST, IDS_STANDARD_COMMANDS},
    {IDC_USER_COMMANDS, IDC_USER_LIST_LABEL, IDC_USER_LIST, IDS_USER_COMMANDS},
}};
constexpr std::array kBothKinds{SearchCommandKind::kStandard, SearchCommandKind::kUser};

constexpr const KindControls& ControlsOf(SearchCommandKind kind) {
    return kKinds[static_cast<std::size_t>(kind)];
}

struct ActionButton {
    int id;
    bool CommandActions::*action;
};
constexpr std::array<ActionButton, 9> kActionButtons{{
    {IDC_MOVE_UP, &CommandActions::moveUp},
    {IDC_MOVE_DOWN, &CommandActions::moveDown},
    {IDC_ADD, &CommandActions::add},
    {IDC_EDIT, &CommandActions::edit},
    {IDC_COPY, &CommandActions::copy},
    {IDC_PASTE, &CommandActions::paste},
    {IDC_CHECK_ALL, &CommandActions::checkAll},
    {IDC_UNCHECK_ALL, &CommandActions::uncheckAll},
    {IDC_DELETE, &CommandActions::remove},
}};

// The pictures of a check box in a list's row count from 1, and a row without one has 0.
constexpr UINT kUnchecked = INDEXTOSTATEIMAGEMASK(1);
constexpr UINT kChecked = INDEXTOSTATEIMAGEMASK(2);

constexpr bool Becomes(const NMLISTVIEW& change, UINT picture) {
    return (change.uChanged & LVIF_STATE) != 0 && (change.uNewState & LVIS_STATEIMAGEMASK) == picture &&
           (change.uOldState & LVIS_STATEIMAGEMASK) != picture;
}

void SetRowState(HWND list, int row, UINT state, UINT mask) {
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    ::SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void InsertColumn(HWND list, int column, UINT textId, int width) {
    std::wstring text = fw::LoadText(textId);
    LVCOLUMNW data{};
    data.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    data.pszText = text.data();
    data.cx = width;
    data.iSubItem = column;
    ::SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&data));
}

// The rows have no texts of their own: the list asks for them when it draws.
void AppendRow(HWND list, int row) {
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = LPSTR_TEXTCALLBACKW;
    ::SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    item.iSubItem = kSummaryColumn;
    ::SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void AnswerText(const CommandLists::List& list, LVITEMW& item) {
    if ((item.mask & LVIF_TEXT) == 0 || !item.pszText || item.cchTextMax <= 0) return;
    const auto row = static_cast<std::size_t>(item.iItem);
    const std::wstring empty;
    const std::wstring& text = item.iItem < 0 || row >= list.size() ? empty
                               : item.iSubItem == kNameColumn       ? list[row].command.name
                                                                    : SummaryOf(list[row].command);
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(item.cchTextMax) - 1);
    *std::copy_n(text.begin(), length, item.pszText) = L'\0';
}

} // namespace

COptCommandPage::COptCommandPage(SearchStores stores, UserCommandFile& userFile, about::HelpOpener& help)
    : stores_{stores}, userFile_{userFile}, help_{help} {}

HWND COptCommandPage::ListOf(SearchCommandKind kind) const {
    return Control(ControlsOf(kind).list);
}

bool COptCommandPage::OnInitDialog(HWND) {
    // Where Windows refuses it the template's own stays, with a caret.
    static_cast<void>(fw::TakePlace(details_, Handle(), IDC_COMMAND_DETAILS));
    loaded_ = userFile_.Read();
    if (loaded_.condition == FileCondition::kUnreadable) ::PostMessageW(Handle(), kTellUnreadable, 0, 0);
    lists_ = CommandLists{stores_, loaded_.commands};
    for (const auto kind : kBothKinds) PrepareList(kind);
    const bool userFirst = stores_.settings.Read(settings::keys::PriorityUserCommand) == 1;
    ::CheckDlgButton(Handle(), IDC_PRIORITY_USER, userFirst ? BST_CHECKED : BST_UNCHECKED);
    for (const auto kind : {SearchCommandKind::kUser, SearchCommandKind::kStandard}) {
        lists_.Show(kind);
        ShowRows();
    }
    ShowKind(SearchCommandKind::kStandard);
    return false;
}

void COptCommandPage::PrepareList(SearchCommandKind kind) {
    const HWND list = ListOf(kind);
    constexpr DWORD kLook = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
    ::SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, kLook, kLook);
    fw::SetWindowTheme(list, L"EXPLORER");
    // Room is kept for the vertical scroll bar, so that none below is ever needed.
    const int width = fw::ClientRect(list).Width() - ::GetSystemMetrics(SM_CXVSCROLL);
    const int nameWidth = width * kNamePercent / 100;
    InsertColumn(list, kNameColumn, IDS_NAME_COLUMN, nameWidth);
    InsertColumn(list, kSummaryColumn, IDS_SUMMARY_COLUMN, width - nameWidth);
}

void COptCommandPage::ShowKind(SearchCommandKind kind) {
    lists_.Show(kind);
    for (const auto one : kBothKinds) {
        const KindControls& controls = ControlsOf(one);
        ::ShowWindow(Control(controls.label), one == kind ? SW_SHOW : SW_HIDE);
        ::ShowWindow(Control(controls.list), one == kind ? SW_SHOW : SW_HIDE);
        ::CheckDlgButton(Handle(), controls.radioButton, one == kind ? BST_CHECKED : BST_UNCHECKED);
    }
    Update();
}

void COptCommandPage::ShowRows() {
    const HWND list = ShownList();
    const int count = static_cast<int>(lists_.Shown().size());
    ::SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    {
        const fw::ScopedFlag filling{filling_};
        int rows = static_cast<int>(::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
        for (; rows < count; ++rows) AppendRow(list, rows);
        for (; rows > count; --rows) ::SendMessageW(list, LVM_DELETEITEM, static_cast<WPARAM>(rows - 1), 0);
        ShowChecks(lists_.ShownKind());
        ShowSelection();
    }
    ::SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(list, nullptr, TRUE);
    Update();
}

void COptCommandPage::ShowChecks(SearchCommandKind kind) {
    const HWND list = ListOf(kind);
    int row = 0;
    for (const auto& item : lists_.Of(kind))
        SetRowState(list, row++, item.selected ? kChecked : kUnchecked, LVIS_STATEIMAGEMASK);
}

void COptCommandPage::ShowSelection() {
    const HWND list = ShownList();
    const auto selected = lists_.Selected();
    if (!selected) {
        constexpr int kEveryRow = -1;
        SetRowState(list, kEveryRow, 0, LVIS_SELECTED);
        // Where the keyboard begins.
        SetRowState(list, 0, LVIS_FOCUSED, LVIS_FOCUSED);
        return;
    }
    const int row = static_cast<int>(*selected);
    SetRowState(list, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ::SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void COptCommandPage::Update() {
    const CommandActions actions = lists_.Actions();
    for (const auto& [id, action] : kActionButtons) Enable(id, actions.*action);

    const std::wstring kindName = fw::LoadText(ControlsOf(lists_.ShownKind()).name);
    const auto status = fw::FormatResource(IDS_COMMAND_COUNT, lists_.CheckedIn(lists_.ShownKind()),
                                           std::wstring_view{kindName}, static_cast<int>(lists_.Shown().size()));
    ::SetWindowTextW(Control(IDC_COMMAND_COUNT), status.c_str());

    std::wstring details;
    if (const auto* const command = lists_.SelectedCommand())
        details = DetailsOf(
            *command, {fw::LoadText(IDS_DETAIL_NAME), fw::LoadText(IDS_DETAIL_LINE), fw::LoadText(IDS_DETAIL_COMMENT)});
    // Set anew it would scroll back to its top.
    if (fw::WindowText(Control(IDC_COMMAND_DETAILS)) != details)
        ::SetWindowTextW(Control(IDC_COMMAND_DETAILS), details.c_str());
}

void COptCommandPage::Enable(int id, bool enabled) {
    const HWND button = Control(id);
    // A greyed button that has the focus would take the keyboard with it.
    if (!enabled && ::GetFocus() == button) FocusOn(ShownList());
    ::EnableWindow(button, enabled);
}

void COptCommandPage::FocusOn(HWND control) {
    ::SendMessageW(Dialog(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

HBRUSH COptCommandPage::OnColour(const fw::Message& message) {
    const auto dc = reinterpret_cast<HDC>(message.wparam);
    ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
    return ::GetSysColorBrush(COLOR_WINDOW);
}

fw::Reply COptCommandPage::OnColoursChanged(const fw::Message& message) {
    // Common controls do not hear of it by themselves.
    for (const auto kind : kBothKinds) ::SendMessageW(ListOf(kind), message.id, message.wparam, message.lparam);
    return fw::kPassOn;
}

int COptCommandPage::Ask(const std::wstring& text, UINT flags) {
    return fw::ShowProductMessage(Dialog(), text, flags);
}

bool COptCommandPage::OnValidate(const fw::Message&) {
    if (lists_.Checked() > 0) return false;
    Ask(fw::LoadText(IDS_NO_COMMAND_SELECTED), MB_ICONEXCLAMATION);
    return true;
}

void COptCommandPage::TellLimit(const SelectionLimit& limit) {
    const std::wstring other = fw::LoadText(ControlsOf(limit.other).name);
    Ask(fw::FormatResource(IDS_TOO_MANY_SELECTED, limit.most, std::wstring_view{other}, limit.checkedThere),
        MB_ICONINFORMATION);
}

void COptCommandPage::OnTellLimit(const fw::Message&) {
    limitToBeTold_ = false;
    if (const auto limit = lists_.LimitReached()) TellLimit(*limit);
}

void COptCommandPage::OnUpdate(const fw::Message&) {
    Update();
}

void COptCommandPage::OnTellUnreadable(const fw::Message&) {
    // Windows shows a dialog when nothing is left to do, and a box over one that is not there says little.
    ::ShowWindow(Dialog(), SW_SHOW);
    Ask(fw::LoadText(IDS_USER_FILE_UNREADABLE), MB_ICONEXCLAMATION);
}

void COptCommandPage::OnShowKind(UINT radioButton) {
    ShowKind(radioButton == IDC_USER_COMMANDS ? SearchCommandKind::kUser : SearchCommandKind::kStandard);
}

void COptCommandPage::OnMoveUp() {
    lists_.MoveUp();
    ShowRows();
}

void COptCommandPage::OnMoveDown() {
    lists_.MoveDown();
    ShowRows();
}

std::optional<SearchCommand> COptCommandPage::AskForTexts(std::optional<SearchCommand> edited) {
    CAddCommandDialog dialog{help_, std::move(edited)};
    // Its result tells neither whether it was there nor whether the user has ended it.
    static_cast<void>(dialog.ShowModal(Dialog()));
    if (!dialog.WasOpened()) Ask(fw::LoadText(IDS_DIALOG_FAILED), MB_ICONEXCLAMATION);
    return dialog.Answer();
}

void COptCommandPage::OnAdd() {
    if (!lists_.Actions().add) return;
    auto command = AskForTexts({});
    if (!command) return;
    lists_.Add(std::move(*command));
    ShowRows();
}

void COptCommandPage::OnEdit() {
    if (!lists_.Actions().edit) return;
    auto command = AskForTexts(*lists_.SelectedCommand());
    if (!command) return;
    lists_.Replace(std::move(*command));
    ShowRows();
}

void COptCommandPage::OnCopy() {
    lists_.Copy();
    Update();
}

void COptCommandPage::OnPaste() {
    lists_.Paste();
    ShowRows();
}

void COptCommandPage::OnCheckAll() {
    const auto limit = lists_.CheckAll();
    ShowRows();
    if (limit) TellLimit(*limit);
}

void COptCommandPage::OnUncheckAll() {
    lists_.UncheckAll();
    ShowRows();
}

void COptCommandPage::OnDelete() {
    if (!lists_.Actions().remove) return;
    const std::wstring name = lists_.SelectedCommand()->name;
    if (Ask(fw::FormatResource(IDS_DELETE_COMMAND, std::wstring_view{name}), MB_YESNOCANCEL | MB_ICONQUESTION) != IDYES)
        return;
    lists_.Remove();
    ShowRows();
}

void COptCommandPage::OnStandardText(NMLVDISPINFOW& asked) {
    AnswerText(lists_.Of(SearchCommandKind::kStandard), asked.item);
}

void COptCommandPage::OnUserText(NMLVDISPINFOW& asked) {
    AnswerText(lists_.Of(SearchCommandKind::kUser), asked.item);
}

bool COptCommandPage::OnRowChanging(const NMLISTVIEW& change) {
    if (filling_ || !Becomes(change, kChecked) || !lists_.LimitReached()) return false;
    if (!limitToBeTold_) limitToBeTold_ = ::PostMessageW(Handle(), kTellLimit, 0, 0) != 0;
    return true;
}

void COptCommandPage::OnRowChanged(const NMLISTVIEW& change) {
    // The list that is not on view changes only while it is filled.
    if (filling_ || change.hdr.hwndFrom != ShownList() || (change.uChanged & LVIF_STATE) == 0 || change.iItem < 0)
        return;
    const auto row = static_cast<std::size_t>(change.iItem);
    if (Becomes(change, kChecked)) lists_.SetChecked(row, true);
    if (Becomes(change, kUnchecked)) lists_.SetChecked(row, false);
    const bool selected = (change.uNewState & LVIS_SELECTED) != 0;
    const bool wasSelected = (change.uOldState & LVIS_SELECTED) != 0;
    if (selected) lists_.Select(row);
    if (wasSelected && !selected && lists_.Selected() == row) lists_.Select({});
    // A list that moves its selection first takes it from one row and then gives it to another. In between nothing is
    // greyed that would come back at once.
    const bool onlyLosesSelection =
        wasSelected && !selected && !Becomes(change, kChecked) && !Becomes(change, kUnchecked);
    if (onlyLosesSelection) {
        ::PostMessageW(Handle(), kUpdate, 0, 0);
    } else {
        Update();
    }
}

void COptCommandPage::OnUserKey(const NMLVKEYDOWN& key) {
    // Posted, so that the list has done with the key before a box opens.
    if (key.wVKey == VK_DELETE) ::PostMessageW(Handle(), WM_COMMAND, IDC_DELETE, 0);
    if (key.wVKey == VK_F2) ::PostMessageW(Handle(), WM_COMMAND, IDC_EDIT, 0);
}

void COptCommandPage::OnUserDoubleClick(const NMITEMACTIVATE& click) {
    LVHITTESTINFO hit{};
    hit.pt = click.ptAction;
    const auto row = ::SendMessageW(click.hdr.hwndFrom, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    // Two clicks on a check box are two changes of it. A list whose rows are selected as a whole may say of a place in
    // a row that it is on all parts of it.
    if (row < 0 || (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON) return;
    ::PostMessageW(Handle(), WM_COMMAND, IDC_EDIT, 0);
}

bool COptCommandPage::Save() {
    if (!Handle()) return true;
    settings::ProfileStore& settings = stores_.settings;
    const int userFirst = ::IsDlgButtonChecked(Handle(), IDC_PRIORITY_USER) == BST_CHECKED ? 1 : 0;
    const bool priorityWritten = settings.Write(settings::keys::PriorityUserCommand, userFirst);
    const bool selectionWritten = SaveStandardSelection(lists_.Of(SearchCommandKind::kStandard), settings);
    const unsigned long error = SaveUserCommands(lists_.Of(SearchCommandKind::kUser), loaded_, userFile_, settings);
    if (error != 0) fw::ShowProductSystemError(Dialog(), error);
    return priorityWritten && selectionWritten;
}

} // namespace korvane::search
