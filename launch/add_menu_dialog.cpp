#include "launch/add_menu_dialog.h"

#include <shlobj.h>
#include <shlwapi.h>

#include <array>
#include <utility>

#include "about/logic/help_topics.h"
#include "framework/centred_message_box.h"
#include "framework/centring.h"
#include "framework/dpi.h"
#include "framework/icons.h"
#include "framework/string_table.h"
#include "framework/version_information.h"
#include "framework/window_text.h"
#include "framework/windows_version.h"
#include "launch/dropped_item.h"
#include "launch/logic/icon_lookup.h"
#include "launch/logic/item_editor.h"
#include "launch/logic/path_parts.h"
#include "launch/search_path.h"
#include "launch/select_icon_dialog.h"
#include "res/image_ids.h"
#include "search/path_pickers.h"

namespace korvane::launch {
namespace {

bool OnWindows7() {
    return fw::IsWindowsAtLeast(fw::kWindows7);
}

class WinFileLookup final : public FileLookup {
public:
    [[nodiscard]] std::wstring OnSearchPath(const std::wstring& name) const override { return WithFolderFound(name); }
    [[nodiscard]] PathKind KindOf(const std::wstring& path) const override {
        if (!::PathFileExistsW(path.c_str())) return PathKind::kNothing;
        return ::PathIsDirectoryW(path.c_str()) ? PathKind::kFolder : PathKind::kFile;
    }
};

std::wstring ProgramFiles() {
    std::array<wchar_t, MAX_PATH> folder{};
    ::SHGetSpecialFolderPathW(nullptr, folder.data(), CSIDL_PROGRAM_FILES, FALSE);
    return folder.data();
}

int ControlOf(ItemProblem::Field field) {
    switch (field) {
    case ItemProblem::Field::kIcon:
        return IDC_CHANGE_ICON;
    case ItemProblem::Field::kProgram:
        return IDC_PROGRAM;
    case ItemProblem::Field::kName:
        return IDC_ITEM_NAME;
    case ItemProblem::Field::kWorkingFolder:
        break;
    }
    return IDC_WORKING_FOLDER;
}

} // namespace

CAddMenuDialog::CAddMenuDialog(HICON smallIcon, about::HelpOpener& help, std::optional<CLaunchItem> edited)
    : smallIcon_{smallIcon}, help_{help}, editing_{edited.has_value()} {
    if (edited) item_ = *std::move(edited);
}

bool CAddMenuDialog::OnInitDialog(HWND) {
    ::SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_));
    ::SetWindowTextW(
        Handle(),
        fw::FormatResource(IDS_ITEM_EDITOR_TITLE, fw::LoadText(editing_ ? IDS_VERB_EDIT : IDS_VERB_ADD)).c_str());
    browseProgram_.Attach(Control(IDC_BROWSE_PROGRAM), fw::LoadText(IDS_BROWSE_PROGRAM));
    browseFolder_.Attach(Control(IDC_BROWSE_WORKING_FOLDER), fw::LoadText(IDS_BROWSE_FOLDER_TITLE));
    ::SendMessageW(Control(IDC_ITEM_NAME), EM_SETLIMITTEXT, kLongestItemName, 0);
    PrepareIconButton();
    SetText(IDC_PROGRAM, item_.Path());
    SetText(IDC_ITEM_NAME, item_.Name());
    SetText(IDC_ARGUMENTS, item_.Arguments());
    SetText(IDC_WORKING_FOLDER, item_.WorkingFolder());
    ShowIcon();
    UpdateButtons();
    fw::CentreWindow(Handle());
    return true;
}

fw::Reply CAddMenuDialog::OnDestroy() {
    browseProgram_.Detach();
    browseFolder_.Detach();
    return fw::kPassOn;
}

fw::Reply CAddMenuDialog::OnColoursChanged(const fw::Message&) {
    browseProgram_.OnColoursChanged();
    browseFolder_.OnColoursChanged();
    return fw::kPassOn;
}

LRESULT CAddMenuDialog::OnHelpKey(const fw::Message&) {
    OnHelp();
    return TRUE;
}

void CAddMenuDialog::OnHelp() {
    help_.OpenHelp(about::help_topic::kLaunchItem, Handle());
}

std::wstring CAddMenuDialog::TextOf(int id) const {
    return fw::WindowText(Control(id));
}

void CAddMenuDialog::SetText(int id, const std::wstring& text) {
    ::SetWindowTextW(Control(id), text.c_str());
}

void CAddMenuDialog::PrepareIconButton() {
    // From a list the button takes its picture anew whenever it is drawn, and it shows picture and text side by side.
    shownIcon_ = fw::MakeImageList({IDI_SETTINGS}, ::GetSystemMetrics(SM_CXSMICON));
    constexpr int kMarginPx = 4;
    BUTTON_IMAGELIST picture{};
    picture.himl = shownIcon_.Get();
    picture.margin.left = fw::Scale()(kMarginPx);
    picture.uAlign = BUTTON_IMAGELIST_ALIGN_LEFT;
    ::SendMessageW(Control(IDC_CHANGE_ICON), BCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(&picture));
}

void CAddMenuDialog::ShowIcon() {
    if (item_.Icon()) {
        ::ImageList_ReplaceIcon(shownIcon_.Get(), 0, item_.Icon());
    } else {
        const auto none = fw::LoadResourceIcon(IDI_SETTINGS, ::GetSystemMetrics(SM_CXSMICON));
        ::ImageList_ReplaceIcon(shownIcon_.Get(), 0, none.Get());
    }
    ::InvalidateRect(Control(IDC_CHANGE_ICON), nullptr, TRUE);
}

void CAddMenuDialog::UpdateButtons() {
    const auto buttons = ButtonsFor(TextOf(IDC_PROGRAM), TextOf(IDC_ITEM_NAME));
    ::EnableWindow(Control(IDOK), buttons.ok);
    ::EnableWindow(Control(IDC_CHANGE_ICON), buttons.changeIcon);
}

void CAddMenuDialog::OnBrowseProgram() {
    const std::wstring typed = TypedPath(TextOf(IDC_PROGRAM));
    const auto program =
        search::PickFile(Handle(), fw::LoadText(IDS_PROGRAM_FILTER),
                         {.title = fw::LoadText(IDS_BROWSE_PROGRAM),
                          .startFolder = typed.empty() ? ProgramFiles() : std::wstring{FolderOf(typed)}});
    if (program) UseProgram(*program);
}

void CAddMenuDialog::UseProgram(const std::wstring& program) {
    SetText(IDC_PROGRAM, program);
    GiveFirstIcon(item_, ProgramIcons(program, OnWindows7()));
    ShowIcon();
    if (::IsDlgButtonChecked(Handle(), IDC_KEEP_NAME) == BST_CHECKED) return;
    const std::wstring name = NameFrom(fw::FileDescription(program));
    if (!name.empty()) SetText(IDC_ITEM_NAME, name);
}

void CAddMenuDialog::OnBrowseFolder() {
    const auto folder =
        search::PickFolder(Handle(), fw::LoadText(IDS_WORKING_FOLDER_TITLE), fw::LoadText(IDS_WORKING_FOLDER_PROMPT),
                           TypedPath(TextOf(IDC_WORKING_FOLDER)));
    if (folder) SetText(IDC_WORKING_FOLDER, *folder);
}

void CAddMenuDialog::OnChangeIcon() {
    auto [file, index] = item_.GetIconLocation();
    if (file.empty()) file = SystemProgramIcon(OnWindows7()).file;
    CSelectIconDialog picker{std::move(file), index, smallIcon_, help_};
    (void)picker.ShowModal(Handle());
    if (picker.Confirmed()) UseIcon(picker.IconFile(), picker.IconIndex());
}

void CAddMenuDialog::UseIcon(const std::wstring& file, int index) {
    item_.SetIcon(file, index);
    ShowIcon();
}

ItemFields CAddMenuDialog::Fields() const {
    return {.program = TextOf(IDC_PROGRAM),
            .name = TextOf(IDC_ITEM_NAME),
            .arguments = TextOf(IDC_ARGUMENTS),
            .workingFolder = TextOf(IDC_WORKING_FOLDER),
            .hasIcon = item_.Icon() != nullptr};
}

bool CAddMenuDialog::Ask(const ItemProblem& problem) {
    const UINT look = problem.mayBeAccepted ? MB_YESNOCANCEL | MB_ICONQUESTION : MB_OK | MB_ICONEXCLAMATION;
    const int answer = fw::ShowMessage(Handle(), fw::FormatResource(problem.text, std::wstring_view{problem.argument}),
                                       fw::WindowText(Handle()), look);
    if (answer == IDYES) return true;
    ::SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(ControlOf(problem.field))), TRUE);
    return false;
}

void CAddMenuDialog::OnOk() {
    // By Enter it comes even while the button is greyed.
    if (!::IsWindowEnabled(Control(IDOK))) return;
    const ItemFields fields = Fields();
    const WinFileLookup files;
    ItemCheck check = CheckItem(fields, files);
    if (check.problem) {
        if (!Ask(*check.problem)) return;
        check = CheckItem(fields, files, true);
        if (check.problem) return (void)Ask(*check.problem);
    }

    ItemFields& item = check.accepted;
    item_.Set(std::move(item.program), std::move(item.arguments), std::move(item.workingFolder), std::move(item.name));
    EndConfirmed();
}

void CAddMenuDialog::OnCancel() {
    ::EndDialog(Handle(), IDCANCEL);
}

} // namespace korvane::launch
