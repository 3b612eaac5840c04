#include "launch/select_icon_dialog.h"

#include <utility>

#include "about/logic/help_topics.h"
#include "framework/centring.h"
#include "framework/icons.h"
#include "framework/string_table.h"
#include "framework/wait_cursor.h"
#include "framework/window_text.h"
#include "launch/logic/path_parts.h"
#include "search/path_pickers.h"

namespace korvane::launch {

CSelectIconDialog::CSelectIconDialog(std::wstring iconFile, int iconIndex, HICON smallIcon, about::HelpOpener& help)
    : iconFile_{std::move(iconFile)}, iconIndex_{iconIndex}, smallIcon_{smallIcon}, help_{help} {}

bool CSelectIconDialog::OnInitDialog(HWND) {
    ::SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_));
    browse_.Attach(Control(IDC_BROWSE_ICON_FILE), fw::LoadText(IDS_BROWSE_FILE_TIP));
    if (!list_.TakePlaceOf(Handle(), IDC_ICON_LIST_PLACE)) {
        ::EndDialog(Handle(), IDCANCEL);
        return true;
    }
    ::SetWindowTextW(Control(IDC_ICON_FILE), iconFile_.c_str());
    iconFile_.clear();
    ShowIcons();
    fw::CentreWindow(Handle());
    return true;
}

fw::Reply CSelectIconDialog::OnDestroy() {
    closing_ = true;
    browse_.Detach();
    return fw::kPassOn;
}

fw::Reply CSelectIconDialog::OnColoursChanged(const fw::Message&) {
    browse_.OnColoursChanged();
    return fw::kPassOn;
}

fw::Reply CSelectIconDialog::OnDrawItem(const fw::Message& message) {
    return fw::WindowObject::Reflect(message);
}

LRESULT CSelectIconDialog::OnHelpKey(const fw::Message&) {
    OnHelp();
    return TRUE;
}

void CSelectIconDialog::OnHelp() {
    help_.OpenHelp(about::help_topic::kIcon, Handle());
}

std::wstring CSelectIconDialog::TypedFile() const {
    return TypedPath(fw::WindowText(Control(IDC_ICON_FILE)));
}

void CSelectIconDialog::ShowIcons() {
    std::wstring file = TypedFile();
    if (file == iconFile_) return;

    const fw::WaitCursor wait;
    iconFile_ = std::move(file);
    list_.Clear();
    icons_ = fw::ExtractSmallIcons(iconFile_);
    list_.BeginAdding(icons_.size());
    for (const fw::UniqueIcon& icon : icons_) list_.Add(icon.Get());
    list_.Select(iconIndex_);
    list_.EndAdding();
}

void CSelectIconDialog::UseFile(const std::wstring& file) {
    ::SetWindowTextW(Control(IDC_ICON_FILE), file.c_str());
    ShowIcons();
}

void CSelectIconDialog::OnBrowse() {
    const auto file = search::PickFile(
        Handle(), fw::LoadText(IDS_ICON_FILE_FILTER),
        {.title = fw::LoadText(IDS_ICON_FILE_TITLE), .startFolder = std::wstring{FolderOf(TypedFile())}});
    if (file) UseFile(*file);
}

void CSelectIconDialog::OnFileLeft() {
    // Whoever goes to cancel, or has closed the dialog, does not want to wait for a file that is slow to answer.
    if (!closing_ && ::GetFocus() != Control(IDCANCEL)) ShowIcons();
}

void CSelectIconDialog::OnIconSelected() {
    iconIndex_ = list_.Selected();
}

void CSelectIconDialog::OnIconDoubleClicked() {
    if (list_.Selected() < 0) return OnCancel();
    Choose();
}

void CSelectIconDialog::OnOk() {
    // Within the field the Enter key first shows what was typed: nobody can mean an icon that is not to be seen yet.
    const bool enterInField = ::GetFocus() == Control(IDC_ICON_FILE) && TypedFile() != iconFile_;
    ShowIcons();
    if (!enterInField) Choose();
}

void CSelectIconDialog::Choose() {
    iconIndex_ = list_.Selected();
    closing_ = true;
    EndConfirmed();
}

void CSelectIconDialog::OnCancel() {
    closing_ = true;
    ::EndDialog(Handle(), IDCANCEL);
}

} // namespace korvane::launch
