#include "search/add_command_dialog.h"

#include <utility>

#include "about/logic/help_topics.h"
#include "framework/centring.h"
#include "framework/placeholder.h"
#include "framework/string_table.h"
#include "framework/window_text.h"
#include "search/logic/placeholder_expansion.h"
#include "search/logic/placeholder_insertion.h"

namespace korvane::search {
namespace {

static_assert(IDS_PLACEHOLDER_LAST - IDS_PLACEHOLDER_FIRST + 1 == kPlaceholders.size());

TextPart SelectedPart(HWND edit) {
    DWORD first = 0;
    DWORD last = 0;
    ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    return {first, last};
}

void SelectPart(HWND edit, TextPart part) {
    ::SendMessageW(edit, EM_SETSEL, part.first, static_cast<LPARAM>(part.last));
}

} // namespace

CAddCommandDialog::CAddCommandDialog(about::HelpOpener& help, std::optional<SearchCommand> edited)
    : help_{help}, editing_{edited.has_value()}, command_{std::move(edited).value_or(SearchCommand{})} {}

bool CAddCommandDialog::OnInitDialog(HWND) {
    opened_ = true;
    const std::wstring verb = fw::LoadText(editing_ ? IDS_VERB_EDIT : IDS_VERB_ADD);
    ::SetWindowTextW(Handle(), fw::FormatResource(IDS_COMMAND_EDITOR_TITLE, std::wstring_view{verb}).c_str());
    MakeBoxes();
    OfferPlaceholders();
    // The limits do not touch these: what is longer, from a file that another hand wrote, stays whole.
    ::SetWindowTextW(Control(IDC_COMMAND_NAME), command_.name.c_str());
    ::SetWindowTextW(Control(IDC_COMMAND_LINE), command_.line.c_str());
    ::SetWindowTextW(Control(IDC_COMMAND_COMMENT), command_.comment.c_str());
    OnTextChanged();
    fw::CentreWindow(Handle());
    FocusOn(IDC_COMMAND_NAME);
    return false;
}

void CAddCommandDialog::MakeBoxes() {
    const std::pair<CEditCtrlEx&, int> boxes[] = {
        {name_, IDC_COMMAND_NAME}, {line_, IDC_COMMAND_LINE}, {comment_, IDC_COMMAND_COMMENT}};
    // Where Windows refuses a box the template's own stays, which can do the most of it.
    for (const auto& [box, id] : boxes) static_cast<void>(fw::TakePlace(box, Handle(), id));
    ::SendMessageW(Control(IDC_COMMAND_NAME), EM_SETLIMITTEXT, kLongestName, 0);
    // 0 lifts the limit of 32,767 characters that typing and pasting otherwise have.
    ::SendMessageW(Control(IDC_COMMAND_LINE), EM_SETLIMITTEXT, 0, 0);
    ::SendMessageW(Control(IDC_COMMAND_COMMENT), EM_SETLIMITTEXT, kLongestComment, 0);
}

void CAddCommandDialog::OfferPlaceholders() {
    const HWND combo = Control(IDC_PLACEHOLDERS);
    for (const std::wstring_view placeholder : kPlaceholders)
        ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::wstring{placeholder}.c_str()));
    ::SendMessageW(combo, CB_SETCURSEL, 0, 0);
    OnPlaceholderChosen();
}

std::optional<std::size_t> CAddCommandDialog::ChosenPlaceholder() const {
    const LRESULT row = ::SendMessageW(Control(IDC_PLACEHOLDERS), CB_GETCURSEL, 0, 0);
    if (row < 0 || static_cast<std::size_t>(row) >= kPlaceholders.size()) return std::nullopt;
    return static_cast<std::size_t>(row);
}

void CAddCommandDialog::OnPlaceholderChosen() {
    const auto chosen = ChosenPlaceholder();
    const auto text = chosen ? fw::LoadText(IDS_PLACEHOLDER_FIRST + static_cast<UINT>(*chosen)) : std::wstring{};
    ::SetWindowTextW(Control(IDC_PLACEHOLDER_MEANING), text.c_str());
}

void CAddCommandDialog::OnInsertPlaceholder() {
    const auto chosen = ChosenPlaceholder();
    if (!chosen) return;
    const HWND box = Control(IDC_COMMAND_LINE);
    const auto length = static_cast<std::size_t>(::GetWindowTextLengthW(box));
    const TextEdit edit = InsertionOf(kPlaceholders[*chosen], length, SelectedPart(box));
    SelectPart(box, edit.part);
    ::SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(std::wstring{edit.text}.c_str()));
    // Writing goes on behind the placeholder; the focus that comes would select all.
    FocusOn(IDC_COMMAND_LINE);
    const std::size_t caret = edit.part.first + edit.text.size();
    SelectPart(box, {caret, caret});
}

std::wstring CAddCommandDialog::TextOf(int id) const {
    return fw::WindowText(Control(id));
}

bool CAddCommandDialog::IsComplete() const {
    return ::GetWindowTextLengthW(Control(IDC_COMMAND_NAME)) > 0 &&
           ::GetWindowTextLengthW(Control(IDC_COMMAND_LINE)) > 0;
}

void CAddCommandDialog::OnTextChanged() {
    ::EnableWindow(Control(IDOK), IsComplete());
}

void CAddCommandDialog::FocusOn(int id) {
    ::SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(id)), TRUE);
}

void CAddCommandDialog::OnOk() {
    // Enter comes here also while the button is greyed.
    if (!IsComplete()) return;
    command_.name = TextOf(IDC_COMMAND_NAME);
    command_.line = TextOf(IDC_COMMAND_LINE);
    command_.comment = TextOf(IDC_COMMAND_COMMENT);
    answer_ = command_;
    ::EndDialog(Handle(), IDOK);
}

void CAddCommandDialog::OnCancel() {
    ::EndDialog(Handle(), IDCANCEL);
}

void CAddCommandDialog::OnHelp() {
    help_.OpenHelp(about::help_topic::kSearchCommand, Handle());
}

LRESULT CAddCommandDialog::OnHelpKey(const fw::Message&) {
    OnHelp();
    return TRUE;
}

void CAddCommandDialog::OnLineFocused() {
    lineFocused_ = true;
    ShowLineHint();
}

void CAddCommandDialog::OnLineUnfocused() {
    lineFocused_ = false;
    ShowLineHint();
}

void CAddCommandDialog::OnLineEntered() {
    lineHovered_ = true;
    ShowLineHint();
}

void CAddCommandDialog::OnLineLeft() {
    lineHovered_ = false;
    ShowLineHint();
}

void CAddCommandDialog::ShowLineHint() {
    const bool wanted = lineFocused_ || lineHovered_;
    ::SetWindowTextW(Control(IDC_COMMAND_LINE_HINT), wanted ? fw::LoadText(IDS_COMMAND_LINE_HINT).c_str() : L"");
}

} // namespace korvane::search
