#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "about/help_opener.h"
#include "framework/dialog.h"
#include "res/ids.h"
#include "search/edit_ctrl_ex.h"
#include "search/logic/search_commands.h"

namespace korvane::search {

// Edits one search command of the user's own, or makes a new one.
class CAddCommandDialog final : public fw::Dialog<CAddCommandDialog> {
public:
    static constexpr UINT kTemplate = IDD_ADD_COMMAND;
    static constexpr WPARAM kLongestName = 25;
    static constexpr WPARAM kLongestComment = 150;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&CAddCommandDialog::OnInitDialog),
            fw::On<WM_HELP>(&CAddCommandDialog::OnHelpKey),
            fw::OnCommand<IDOK>(&CAddCommandDialog::OnOk),
            fw::OnCommand<IDCANCEL>(&CAddCommandDialog::OnCancel),
            fw::OnCommand<IDC_DIALOG_HELP>(&CAddCommandDialog::OnHelp),
            fw::OnCommand<IDC_INSERT_PLACEHOLDER>(&CAddCommandDialog::OnInsertPlaceholder),
            fw::OnControl<IDC_COMMAND_NAME, IDC_COMMAND_LINE, EN_CHANGE>(&CAddCommandDialog::OnTextChanged),
            fw::OnControl<IDC_COMMAND_LINE, IDC_COMMAND_LINE, EN_SETFOCUS>(&CAddCommandDialog::OnLineFocused),
            fw::OnControl<IDC_COMMAND_LINE, IDC_COMMAND_LINE, EN_KILLFOCUS>(&CAddCommandDialog::OnLineUnfocused),
            fw::OnControl<IDC_COMMAND_LINE, IDC_COMMAND_LINE, CEditCtrlEx::kMouseEntered>(
                &CAddCommandDialog::OnLineEntered),
            fw::OnControl<IDC_COMMAND_LINE, IDC_COMMAND_LINE, CEditCtrlEx::kMouseLeft>(&CAddCommandDialog::OnLineLeft),
            fw::OnControl<IDC_PLACEHOLDERS, IDC_PLACEHOLDERS, CBN_SELCHANGE>(&CAddCommandDialog::OnPlaceholderChosen),
        };
    }

    // Without a command to edit a new one is made. Help outlives the dialog.
    explicit CAddCommandDialog(about::HelpOpener& help, std::optional<SearchCommand> edited = {});

    // What the user made of it; empty unless it was confirmed. The dialog's result would not tell: it is IDOK too when
    // the program is told to quit while the dialog is open.
    [[nodiscard]] const std::optional<SearchCommand>& Answer() const { return answer_; }
    // False when Windows had no dialog to give.
    [[nodiscard]] bool WasOpened() const { return opened_; }

private:
    bool OnInitDialog(HWND firstControl);
    LRESULT OnHelpKey(const fw::Message& message);
    void OnOk();
    void OnCancel();
    void OnHelp();
    void OnInsertPlaceholder();
    void OnTextChanged();
    void OnLineFocused();
    void OnLineUnfocused();
    void OnLineEntered();
    void OnLineLeft();
    void OnPlaceholderChosen();

    void MakeBoxes();
    void OfferPlaceholders();
    // Placeholders count from 0, in the order in which they are offered.
    [[nodiscard]] std::optional<std::size_t> ChosenPlaceholder() const;
    [[nodiscard]] std::wstring TextOf(int id) const;
    [[nodiscard]] bool IsComplete() const;
    void FocusOn(int id);
    void ShowLineHint();

    about::HelpOpener& help_;
    bool editing_;
    SearchCommand command_;
    bool opened_ = false;
    std::optional<SearchCommand> answer_;
    bool lineFocused_ = false;
    bool lineHovered_ = false;
    // Last, for they tell the dialog of their end.
    CEditCtrlEx name_;
    CEditCtrlEx line_;
    CEditCtrlEx comment_;
};

} // namespace korvane::search
