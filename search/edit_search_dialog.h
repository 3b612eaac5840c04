#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "about/help_opener.h"
#include "controls/glyph_button.h"
#include "framework/dialog.h"
#include "res/ids.h"
#include "search/logic/editor_search_form.h"
#include "search/logic/execute_search.h"
#include "search/logic/search_tool.h"
#include "settings/logic/profile_store.h"

namespace korvane::search {

// Asks how a text editor is to search for a text: where, in which files and with which options.
class CEditSearchDialog final : public fw::Dialog<CEditSearchDialog> {
public:
    static constexpr UINT kTemplate = IDD_EDIT_SEARCH;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&CEditSearchDialog::OnInitDialog),
            fw::On<WM_DESTROY>(&CEditSearchDialog::OnDestroy),
            fw::On<WM_SYSCOLORCHANGE>(&CEditSearchDialog::OnColoursChanged),
            fw::On<WM_HELP>(&CEditSearchDialog::OnHelpKey),
            fw::OnCommand<IDOK>(&CEditSearchDialog::OnOk),
            fw::OnCommand<IDCANCEL>(&CEditSearchDialog::OnCancel),
            fw::OnCommand<IDC_DIALOG_HELP>(&CEditSearchDialog::OnHelp),
            fw::OnCommand<IDC_BROWSE_SEARCH_FOLDER>(&CEditSearchDialog::OnBrowse),
            fw::OnCommand<IDC_EDIT_FILE_TYPES>(&CEditSearchDialog::OnEditFileTypes),
            fw::OnCommand<ID_ADD_FILE_TYPE>(&CEditSearchDialog::OnAddFileType),
            fw::OnCommand<ID_REMOVE_FILE_TYPE>(&CEditSearchDialog::OnRemoveFileType),
            fw::OnCommand<ID_RESTORE_FILE_TYPES>(&CEditSearchDialog::OnRestoreFileTypes),
        };
    }

    // The store holds the options that are kept from one search to the next. Store and help outlive the dialog.
    CEditSearchDialog(SearchTool editor, std::wstring searchText, settings::ProfileStore& store,
                      about::HelpOpener& help);

    // What the user decided; empty unless the search was confirmed. The dialog's result would not tell: it is IDOK too
    // when the program is told to quit while the dialog is open.
    [[nodiscard]] const std::optional<EditorSearchAnswer>& Answer() const { return answer_; }
    // False when Windows had no dialog to give.
    [[nodiscard]] bool WasOpened() const { return opened_; }

private:
    bool OnInitDialog(HWND firstControl);
    fw::Reply OnDestroy();
    fw::Reply OnColoursChanged(const fw::Message& message);
    LRESULT OnHelpKey(const fw::Message& message);
    void OnOk();
    void OnCancel();
    void OnHelp();
    void OnBrowse();
    void OnEditFileTypes();
    void OnAddFileType();
    void OnRemoveFileType();
    void OnRestoreFileTypes();

    [[nodiscard]] std::wstring TextOf(int id) const;
    void FocusOn(int id);
    void MakeFieldsEqual();
    void ShowForm();
    // Fills the drop-down list; the field keeps its text.
    void ShowFileTypes();
    [[nodiscard]] GrepOptions CheckedOptions() const;

    SearchTool editor_;
    settings::ProfileStore& store_;
    about::HelpOpener& help_;
    EditorSearchForm form_;
    std::wstring searchText_;
    bool opened_ = false;
    std::optional<EditorSearchAnswer> answer_;
    controls::GlyphButton browse_{&controls::DotsGlyph};
    controls::GlyphButton fileTypeMenu_{&controls::MenuGlyph};
};

} // namespace korvane::search
