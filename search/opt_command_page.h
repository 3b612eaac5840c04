#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <string>

#include "about/help_opener.h"
#include "controls/option_page.h"
#include "framework/dialog.h"
#include "res/ids.h"
#include "search/edit_no_caret.h"
#include "search/logic/command_lists.h"
#include "search/logic/command_saving.h"
#include "search/logic/search_commands.h"
#include "search/logic/user_commands.h"

namespace korvane::search {

// The options' page for the search commands. What its lists hold and what can be done with them decides CommandLists;
// the page keeps the controls in step with that.
class COptCommandPage final : public fw::Dialog<COptCommandPage> {
public:
    static constexpr UINT kTemplate = IDD_OPTIONS_COMMANDS;

    // Posted to itself. A list that asks whether a row may change must not be kept waiting for a message box.
    static constexpr UINT kTellLimit = WM_APP + 1;
    static constexpr UINT kUpdate = WM_APP + 2;
    // Nor is a dialog that is being made a place for one.
    static constexpr UINT kTellUnreadable = WM_APP + 3;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&COptCommandPage::OnInitDialog),
            fw::On<WM_CTLCOLORDLG>(&COptCommandPage::OnColour),
            fw::On<WM_CTLCOLORSTATIC>(&COptCommandPage::OnColour),
            fw::On<WM_CTLCOLORBTN>(&COptCommandPage::OnColour),
            fw::On<WM_SYSCOLORCHANGE>(&COptCommandPage::OnColoursChanged),
            fw::On<controls::kValidatePage>(&COptCommandPage::OnValidate),
            fw::On<kTellLimit>(&COptCommandPage::OnTellLimit),
            fw::On<kUpdate>(&COptCommandPage::OnUpdate),
            fw::On<kTellUnreadable>(&COptCommandPage::OnTellUnreadable),
            fw::OnCommand<IDC_STANDARD_COMMANDS, IDC_USER_COMMANDS>(&COptCommandPage::OnShowKind),
            fw::OnCommand<IDC_MOVE_UP>(&COptCommandPage::OnMoveUp),
            fw::OnCommand<IDC_MOVE_DOWN>(&COptCommandPage::OnMoveDown),
            fw::OnCommand<IDC_ADD>(&COptCommandPage::OnAdd),
            fw::OnCommand<IDC_EDIT>(&COptCommandPage::OnEdit),
            fw::OnCommand<IDC_COPY>(&COptCommandPage::OnCopy),
            fw::OnCommand<IDC_PASTE>(&COptCommandPage::OnPaste),
            fw::OnCommand<IDC_CHECK_ALL>(&COptCommandPage::OnCheckAll),
            fw::OnCommand<IDC_UNCHECK_ALL>(&COptCommandPage::OnUncheckAll),
            fw::OnCommand<IDC_DELETE>(&COptCommandPage::OnDelete),
            fw::OnNotify<IDC_STANDARD_LIST, LVN_GETDISPINFOW>(&COptCommandPage::OnStandardText),
            fw::OnNotify<IDC_USER_LIST, LVN_GETDISPINFOW>(&COptCommandPage::OnUserText),
            fw::OnNotify<IDC_STANDARD_LIST, LVN_ITEMCHANGING>(&COptCommandPage::OnRowChanging),
            fw::OnNotify<IDC_USER_LIST, LVN_ITEMCHANGING>(&COptCommandPage::OnRowChanging),
            fw::OnNotify<IDC_STANDARD_LIST, LVN_ITEMCHANGED>(&COptCommandPage::OnRowChanged),
            fw::OnNotify<IDC_USER_LIST, LVN_ITEMCHANGED>(&COptCommandPage::OnRowChanged),
            fw::OnNotify<IDC_USER_LIST, LVN_KEYDOWN>(&COptCommandPage::OnUserKey),
            fw::OnNotify<IDC_USER_LIST, NM_DBLCLK>(&COptCommandPage::OnUserDoubleClick),
        };
    }

    // All outlive the page.
    COptCommandPage(SearchStores stores, UserCommandFile& userFile, about::HelpOpener& help);

    // Writes which kind comes first, the order and selection of the standard commands, and the user's commands with
    // theirs. False when a setting could not be written; that the user's commands could not, the user has been told.
    // Without a window there is nothing to write.
    bool Save();

private:
    bool OnInitDialog(HWND firstControl);
    HBRUSH OnColour(const fw::Message& message);
    fw::Reply OnColoursChanged(const fw::Message& message);
    bool OnValidate(const fw::Message& message);
    void OnTellLimit(const fw::Message& message);
    void OnUpdate(const fw::Message& message);
    void OnTellUnreadable(const fw::Message& message);
    void OnShowKind(UINT radioButton);
    void OnMoveUp();
    void OnMoveDown();
    void OnAdd();
    void OnEdit();
    void OnCopy();
    void OnPaste();
    void OnCheckAll();
    void OnUncheckAll();
    void OnDelete();
    void OnStandardText(NMLVDISPINFOW& asked);
    void OnUserText(NMLVDISPINFOW& asked);
    bool OnRowChanging(const NMLISTVIEW& change);
    void OnRowChanged(const NMLISTVIEW& change);
    void OnUserKey(const NMLVKEYDOWN& key);
    void OnUserDoubleClick(const NMITEMACTIVATE& click);

    void PrepareList(SearchCommandKind kind);
    void ShowKind(SearchCommandKind kind);
    // Makes the rows of the list on view what they are to be, and all that follows from them.
    void ShowRows();
    void ShowSelection();
    void ShowChecks(SearchCommandKind kind);
    // The buttons, the status line and the details.
    void Update();
    void Enable(int id, bool enabled);
    void FocusOn(HWND control);
    // Empty when it was not confirmed.
    [[nodiscard]] std::optional<SearchCommand> AskForTexts(std::optional<SearchCommand> edited);
    // To a command that a dialog was about. False when it has gone meanwhile.
    [[nodiscard]] bool GoBackTo(const CommandMark& mark);
    void TellLimit(const SelectionLimit& limit);
    int Ask(const std::wstring& text, UINT flags);

    [[nodiscard]] HWND Dialog() const { return ::GetAncestor(Handle(), GA_ROOT); }
    [[nodiscard]] HWND ListOf(SearchCommandKind kind) const;
    [[nodiscard]] HWND ShownList() const { return ListOf(lists_.ShownKind()); }

    SearchStores stores_;
    UserCommandFile& userFile_;
    about::HelpOpener& help_;
    UserCommandReading loaded_; // what the user's list was made from
    CommandLists lists_;
    bool filling_ = false;
    bool limitToBeTold_ = false;
    CEditNoCaret details_; // last, for it tells the page of its end
};

} // namespace korvane::search
