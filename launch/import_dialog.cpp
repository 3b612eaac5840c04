#include "launch/import_dialog.h"

#include <lmcons.h>
#include <shellapi.h>
#include <shlobj.h>

#include <array>

#include "about/logic/help_topics.h"
#include "framework/centring.h"
#include "framework/placeholder.h"
#include "framework/scoped_flag.h"
#include "framework/string_table.h"
#include "framework/window_text.h"
#include "launch/logic/import_rules.h"
#include "launch/logic/launch_limits.h"
#include "launch/shortcut.h"
#include "search/logic/folder_text.h"
#include "search/path_pickers.h"

namespace korvane::launch {
namespace {

constexpr UINT_PTR kCollectTimer = 1;
// Often enough for the eye, and seldom enough to leave the list box time to paint.
constexpr auto kCollectPeriod = std::chrono::milliseconds{50};

std::wstring UserName() {
    std::array<wchar_t, UNLEN + 1> name{};
    auto length = static_cast<DWORD>(name.size());
    return ::GetUserNameW(name.data(), &length) ? name.data() : std::wstring{};
}

std::optional<std::wstring> SpecialFolder(HWND owner, int id) {
    std::array<wchar_t, MAX_PATH> path{};
    if (!::SHGetSpecialFolderPathW(owner, path.data(), id, FALSE)) return std::nullopt;
    return std::wstring{path.data()};
}

// The system's list of small pictures, which belongs to the system, and the place of a folder's picture in it.
std::pair<HIMAGELIST, int> FolderPicture() {
    SHFILEINFOW info{};
    const auto list = ::SHGetFileInfoW(L"folder", FILE_ATTRIBUTE_DIRECTORY, &info, sizeof info,
                                       SHGFI_SYSICONINDEX | SHGFI_SMALLICON | SHGFI_USEFILEATTRIBUTES);
    return {reinterpret_cast<HIMAGELIST>(list), info.iIcon};
}

} // namespace

CImportDialog::CImportDialog(int count, HICON smallIcon, about::HelpOpener& help)
    : CImportDialog{count, smallIcon, help, std::make_shared<ShellShortcutReader>()} {}

CImportDialog::CImportDialog(int count, HICON smallIcon, about::HelpOpener& help,
                             std::shared_ptr<ShortcutReader> reader)
    : count_{count}, smallIcon_{smallIcon}, help_{help}, scan_{std::move(reader)} {}

bool CImportDialog::OnInitDialog(HWND) {
    ::SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_));
    if (!fw::TakePlace(list_, Handle(), IDC_IMPORT_LIST, {.with = CImportListBox::kStyle})) {
        ::EndDialog(Handle(), IDCANCEL);
        return true;
    }
    list_.SetPlaces(FreePlaces(count_));
    FillSources();
    ShowCounts();
    fw::CentreWindow(Handle());
    SelectSource(0);
    ChangeSource();
    return true;
}

fw::Reply CImportDialog::OnDestroy() {
    timer_.Stop();
    scan_.Stop();
    return fw::kPassOn;
}

fw::Reply CImportDialog::OnOwnerDraw(const fw::Message& message) {
    return fw::WindowObject::Reflect(message);
}

void CImportDialog::FillSources() {
    ::SendMessageW(Control(IDC_IMPORT_SOURCE), CBEM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(FolderPicture().first));
    const std::wstring user = UserName();
    // Only the first of the texts has a place for the name; the others stay as they are.
    for (const ImportSource& source : kImportSources)
        AddSource(fw::FormatResource(source.textId, std::wstring_view{user}));
}

void CImportDialog::AddSource(const std::wstring& text) {
    std::wstring name = text;
    COMBOBOXEXITEMW item{};
    item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE;
    item.iItem = -1; // at the end
    item.pszText = name.data();
    item.iImage = item.iSelectedImage = FolderPicture().second;
    ::SendMessageW(Control(IDC_IMPORT_SOURCE), CBEM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

void CImportDialog::SelectSource(int source) {
    ::SendMessageW(Control(IDC_IMPORT_SOURCE), CB_SETCURSEL, static_cast<WPARAM>(source), 0);
}

void CImportDialog::OnSourceSelected() {
    // While its list is open the user is still on the way, perhaps only past the row that asks for a folder.
    if (!::SendMessageW(Control(IDC_IMPORT_SOURCE), CB_GETDROPPEDSTATE, 0, 0)) ChangeSource();
}

void CImportDialog::OnSourceCloseUp() {
    // The selection may yet change after the list is closed.
    ::PostMessageW(Handle(), kSourceListClosed, 0, 0);
}

void CImportDialog::OnSourceListClosed(const fw::Message&) {
    ChangeSource();
}

void CImportDialog::ChangeSource() {
    if (asking_) return;
    const auto chosen = static_cast<int>(::SendMessageW(Control(IDC_IMPORT_SOURCE), CB_GETCURSEL, 0, 0));
    switch (StepForSource(chosen, source_)) {
    case SourceStep::kNothing:
        break;
    case SourceStep::kAskForFolder:
        AskForFolder();
        break;
    case SourceStep::kScanSpecialFolder:
    case SourceStep::kScanFolderAskedFor:
        if (const auto folder = FolderOf(chosen))
            Scan(chosen, *folder);
        else if (source_ >= 0)
            SelectSource(source_);
        break;
    }
}

std::optional<std::wstring> CImportDialog::FolderOf(int source) const {
    const auto row = static_cast<std::size_t>(source);
    if (row >= kImportSources.size()) {
        const std::size_t asked = row - kImportSources.size();
        return asked < foldersAskedFor_.size() ? std::optional{foldersAskedFor_[asked]} : std::nullopt;
    }
    switch (kImportSources[row].folder) {
    case ImportFolder::kPrograms:
        return SpecialFolder(Handle(), CSIDL_PROGRAMS);
    case ImportFolder::kCommonPrograms:
        return SpecialFolder(Handle(), CSIDL_COMMON_PROGRAMS);
    case ImportFolder::kQuickLaunch:
        if (const auto data = SpecialFolder(Handle(), CSIDL_APPDATA))
            return search::WithBackslash(*data).append(kQuickLaunchFolder);
        break;
    case ImportFolder::kAskedFor:
        break;
    }
    return std::nullopt;
}

void CImportDialog::AskForFolder() {
    std::optional<std::wstring> folder;
    {
        const fw::ScopedFlag asking{asking_};
        folder =
            search::PickFolder(Handle(), fw::LoadText(IDS_BROWSE_FOLDER_TITLE), fw::LoadText(IDS_IMPORT_FOLDER_PROMPT),
                               foldersAskedFor_.empty() ? std::wstring{} : foldersAskedFor_.back());
    }
    // The program may have been told to quit meanwhile.
    if (!Handle()) return;
    if (!folder) return SelectSource(source_);
    foldersAskedFor_.push_back(*folder);
    AddSource(*folder);
    const auto added = static_cast<int>(kImportSources.size() + foldersAskedFor_.size()) - 1;
    SelectSource(added);
    Scan(added, *folder);
}

void CImportDialog::Scan(int source, const std::wstring& folder) {
    source_ = source;
    list_.Clear();
    scan_.Start(folder, ScansSubfolders(source));
    timer_.Start(Handle(), kCollectTimer, kCollectPeriod);
    ShowScanning(true);
    ShowCounts();
}

void CImportDialog::OnTimer(UINT_PTR id) {
    if (id == kCollectTimer) Collect();
}

void CImportDialog::Collect() {
    // Asked first: what is found until it ends is then there to be taken.
    const bool running = scan_.Running();
    std::vector<ImportableItem> found = scan_.Take();
    const bool changed = !found.empty() || !running;
    list_.Append(std::move(found));
    if (!running) timer_.Stop();
    if (!changed) return;
    ShowScanning(running);
    ShowCounts();
}

void CImportDialog::ShowScanning(bool scanning) {
    const HWND stop = Control(IDC_IMPORT_STOP);
    const ImportNote note = NoteFor(scanning, list_.AnySelectable());
    if (note == ImportNote::kSearching)
        SetText(IDC_IMPORT_PROGRESS, fw::FormatResource(IDS_IMPORT_PROGRESS, list_.Count()));
    if (note == ImportNote::kNothingFound) SetText(IDC_IMPORT_PROGRESS, fw::LoadText(IDS_IMPORT_NONE));
    // A hidden control that kept the focus would leave the keyboard without effect.
    if (!scanning && ::GetFocus() == stop)
        ::SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(list_.Handle()), TRUE);
    ::ShowWindow(Control(IDC_IMPORT_PROGRESS), note != ImportNote::kNone ? SW_SHOWNA : SW_HIDE);
    ::ShowWindow(stop, scanning ? SW_SHOWNA : SW_HIDE);
    EnableOk();
}

void CImportDialog::EnableOk() {
    const HWND ok = Control(IDOK);
    const bool enabled = list_.AnySelectable();
    if (!enabled && ::GetFocus() == ok)
        ::SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(IDC_IMPORT_SOURCE)), TRUE);
    ::EnableWindow(ok, enabled);
}

void CImportDialog::ShowCounts() {
    SetText(IDC_IMPORT_COUNT,
            fw::FormatResource(IDS_IMPORT_COUNT, list_.SelectedCount(), list_.Count(), FreePlaces(count_)));
}

void CImportDialog::SetText(int id, const std::wstring& text) {
    const HWND control = Control(id);
    if (fw::WindowText(control) != text) ::SetWindowTextW(control, text.c_str());
}

void CImportDialog::OnSelectionChanged() {
    list_.RefuseSelection();
    ShowCounts();
}

void CImportDialog::OnStop() {
    scan_.Stop();
    Collect();
}

void CImportDialog::OnOk() {
    // Enter comes here also while the button is greyed.
    if (!list_.AnySelectable()) return;
    scan_.Stop();
    for (const ImportableItem* found : list_.Selected()) {
        CLaunchItem item;
        item.Set(found->path, found->arguments, found->workingFolder, found->name);
        // The file may be on a computer that has gone since.
        item.SetIcon(found->iconFile, found->iconIndex, fw::UniqueIcon{::CopyIcon(found->icon.Get())});
        items_.push_back(std::move(item));
    }
    EndConfirmed();
}

void CImportDialog::OnCancel() {
    scan_.Stop();
    ::EndDialog(Handle(), IDCANCEL);
}

void CImportDialog::OnHelp() {
    help_.OpenHelp(about::help_topic::kImport, Handle());
}

LRESULT CImportDialog::OnHelpKey(const fw::Message&) {
    OnHelp();
    return TRUE;
}

} // namespace korvane::launch
