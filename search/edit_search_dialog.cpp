#include "search/edit_search_dialog.h"

#include <shlwapi.h>

#include <array>
#include <utility>
#include <vector>

#include "about/logic/help_topics.h"
#include "base/text.h"
#include "framework/centred_message_box.h"
#include "framework/centring.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/menu_rows.h"
#include "framework/string_table.h"
#include "framework/window_text.h"
#include "search/logic/folder_text.h"
#include "search/path_pickers.h"

namespace korvane::search {
namespace {

// In the order of kGrepOptions.
constexpr std::array<int, kGrepOptions.size()> kOptionBoxes{
    IDC_MATCH_CASE, IDC_SUBFOLDERS, IDC_WHOLE_WORDS, IDC_FILE_NAMES_ONLY, IDC_REGULAR_EXPRESSION, IDC_FUZZY,
};

// A field that was left empty would name the root of the current drive once it ends in a backslash, and nobody means
// that.
bool NamesFolder(const std::wstring& typed, const std::wstring& folder) {
    return !base::Trimmed(typed).empty() && ::PathIsDirectoryW(folder.c_str());
}

} // namespace

CEditSearchDialog::CEditSearchDialog(SearchTool editor, std::wstring searchText, settings::ProfileStore& store,
                                     about::HelpOpener& help)
    : editor_{editor}, store_{store}, help_{help}, searchText_{std::move(searchText)} {}

bool CEditSearchDialog::OnInitDialog(HWND) {
    opened_ = true;
    ::SetWindowTextW(Handle(), fw::FormatResource(IDS_EDITOR_SEARCH_TITLE, ToolNameOf(editor_)).c_str());
    MakeFieldsEqual();
    browse_.Attach(Control(IDC_BROWSE_SEARCH_FOLDER), fw::LoadText(IDS_PICK_SEARCH_FOLDER));
    fileTypeMenu_.Attach(Control(IDC_EDIT_FILE_TYPES), fw::LoadText(IDS_EDIT_FILE_TYPES));
    ::EnableWindow(Control(IDC_FUZZY), editor_ == SearchTool::kHidemaru);
    form_ = ReadForm(store_, OptionsSetting(editor_));
    ShowForm();
    fw::CentreWindow(Handle());

    // What is still missing is asked for first; otherwise the Enter key is enough.
    const bool onlyFolderIsMissing = !searchText_.empty() && form_.folder.empty();
    FocusOn(onlyFolderIsMissing ? IDC_SEARCH_FOLDER : IDC_SEARCH_TEXT);
    return false;
}

fw::Reply CEditSearchDialog::OnDestroy() {
    browse_.Detach();
    fileTypeMenu_.Detach();
    return fw::kPassOn;
}

fw::Reply CEditSearchDialog::OnColoursChanged(const fw::Message&) {
    browse_.OnColoursChanged();
    fileTypeMenu_.OnColoursChanged();
    return fw::kPassOn;
}

void CEditSearchDialog::MakeFieldsEqual() {
    // A combo box is as high as its font wants, whatever the template says; on a fine screen that is less than a field.
    constexpr WPARAM kField = static_cast<WPARAM>(-1);
    const HWND combo = Control(IDC_FILE_TYPES);
    const int missing = fw::WindowRect(Control(IDC_SEARCH_FOLDER)).Height() - fw::WindowRect(combo).Height();
    if (missing > 0)
        ::SendMessageW(combo, CB_SETITEMHEIGHT, kField, ::SendMessageW(combo, CB_GETITEMHEIGHT, kField, 0) + missing);
}

void CEditSearchDialog::ShowForm() {
    ::SetWindowTextW(Control(IDC_SEARCH_TEXT), searchText_.c_str());
    ::SetWindowTextW(Control(IDC_SEARCH_FOLDER), form_.folder.c_str());
    ShowFileTypes();
    ::SetWindowTextW(Control(IDC_FILE_TYPES), form_.fileTypes.Entries().front().c_str());
    for (std::size_t i = 0; i < kOptionBoxes.size(); ++i)
        ::CheckDlgButton(Handle(), kOptionBoxes[i], form_.options.*kGrepOptions[i] ? BST_CHECKED : BST_UNCHECKED);
    ::CheckDlgButton(Handle(), IDC_SAVE_SEARCH, form_.keep ? BST_CHECKED : BST_UNCHECKED);
}

void CEditSearchDialog::ShowFileTypes() {
    const HWND combo = Control(IDC_FILE_TYPES);
    const std::wstring typed = fw::WindowText(combo);
    ::SendMessageW(combo, CB_RESETCONTENT, 0, 0);
    for (const std::wstring& entry : form_.fileTypes.Entries())
        ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
    ::SetWindowTextW(combo, typed.c_str());
}

std::wstring CEditSearchDialog::TextOf(int id) const {
    return fw::WindowText(Control(id));
}

void CEditSearchDialog::FocusOn(int id) {
    ::SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(id)), TRUE);
}

GrepOptions CEditSearchDialog::CheckedOptions() const {
    GrepOptions options;
    for (std::size_t i = 0; i < kOptionBoxes.size(); ++i)
        options.*kGrepOptions[i] = ::IsDlgButtonChecked(Handle(), kOptionBoxes[i]) == BST_CHECKED;
    return options;
}

void CEditSearchDialog::OnOk() {
    const std::wstring typedFolder = TextOf(IDC_SEARCH_FOLDER);
    const std::wstring folder = WithBackslash(typedFolder);
    if (!NamesFolder(typedFolder, folder)) {
        fw::ShowProductMessage(Handle(), fw::FormatResource(IDS_FOLDER_NOT_FOUND, std::wstring_view{folder}),
                               MB_ICONEXCLAMATION);
        FocusOn(IDC_SEARCH_FOLDER);
        return;
    }
    const std::wstring fileTypes = TextOf(IDC_FILE_TYPES);
    form_.folder = folder;
    form_.options = CheckedOptions();
    searchText_ = TextOf(IDC_SEARCH_TEXT);
    answer_ = {searchText_, GrepArguments(editor_, form_.options, searchText_, GrepTarget(form_.folder, fileTypes))};

    form_.keep = ::IsDlgButtonChecked(Handle(), IDC_SAVE_SEARCH) == BST_CHECKED;
    form_.fileTypes.Use(fileTypes);
    KeepForm(store_, OptionsSetting(editor_), form_);
    ::EndDialog(Handle(), IDOK);
}

void CEditSearchDialog::OnCancel() {
    ::EndDialog(Handle(), IDCANCEL);
}

void CEditSearchDialog::OnHelp() {
    help_.OpenHelp(about::help_topic::kEditorSearch, Handle());
}

LRESULT CEditSearchDialog::OnHelpKey(const fw::Message&) {
    OnHelp();
    return TRUE;
}

void CEditSearchDialog::OnBrowse() {
    const auto folder = PickFolder(Handle(), fw::LoadText(IDS_SEARCH_FOLDER_TITLE),
                                   fw::LoadText(IDS_SEARCH_FOLDER_PROMPT), TextOf(IDC_SEARCH_FOLDER));
    if (folder) ::SetWindowTextW(Control(IDC_SEARCH_FOLDER), folder->c_str());
}

void CEditSearchDialog::OnEditFileTypes() {
    const fw::UniqueMenu menu{::CreatePopupMenu()};
    if (!menu) return;
    fw::FillMenu(menu.Get(), FileTypeMenu(form_.fileTypes, TextOf(IDC_FILE_TYPES),
                                          {fw::LoadText(IDS_ADD_FILE_TYPE), fw::LoadText(IDS_REMOVE_FILE_TYPE),
                                           fw::LoadText(IDS_RESTORE_FILE_TYPES)}));
    // Below the button, or above it where there is no room.
    TPMPARAMS apart{};
    apart.cbSize = sizeof apart;
    ::GetWindowRect(Control(IDC_EDIT_FILE_TYPES), &apart.rcExclude);
    ::TrackPopupMenuEx(menu.Get(), TPM_LEFTALIGN | TPM_TOPALIGN | TPM_VERTICAL, apart.rcExclude.left,
                       apart.rcExclude.bottom, Handle(), &apart);
}

void CEditSearchDialog::OnAddFileType() {
    form_.fileTypes.Use(TextOf(IDC_FILE_TYPES));
    ShowFileTypes();
}

void CEditSearchDialog::OnRemoveFileType() {
    form_.fileTypes.Remove(TextOf(IDC_FILE_TYPES));
    ShowFileTypes();
    // What stays in the field would join the list again when the search is confirmed.
    const auto& entries = form_.fileTypes.Entries();
    ::SetWindowTextW(Control(IDC_FILE_TYPES), entries.empty() ? L"" : entries.front().c_str());
}

void CEditSearchDialog::OnRestoreFileTypes() {
    form_.fileTypes = {};
    ShowFileTypes();
}

} // namespace korvane::search
