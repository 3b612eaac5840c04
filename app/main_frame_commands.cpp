// What the frame does when a command arrives.
#include <variant>

#include "about/logic/help_topics.h"
#include "app/built_in_programs.h"
#include "app/logic/command_routes.h"
#include "app/main_frame.h"
#include "app/screen_saver.h"
#include "app/session_end.h"
#include "controls/time_date_dialog.h"
#include "framework/dialog.h"
#include "framework/gdi.h"
#include "framework/menu_rows.h"
#include "framework/scoped_flag.h"
#include "framework/string_table.h"
#include "launch/command_entries.h"
#include "launch/launch_menu.h"
#include "search/editor_search.h"
#include "search/logic/process_starter.h"
#include "search/logic/typed_command.h"
#include "search/path_pickers.h"
#include "search/search_tools.h"
#include "search/user_command_file.h"
#include "settings/logic/setting_keys.h"

namespace korvane::app {

using search::Box;
namespace keys = settings::keys;

fw::Reply CMainFrame::OnCommand(UINT command) {
    const std::optional<Route> route = RouteOf(command);
    if (!route) return fw::kPassOn;
    if (!TakesCommand(*route)) return LRESULT{0};
    switch (*route) {
    case Route::kRunTyped:
        RunTypedCommand();
        break;
    case Route::kRunSearch:
        ExecuteSearchCommand();
        break;
    case Route::kOpenHistory:
        OpenHistory(command);
        break;
    case Route::kOpenMenuButton:
        OpenMenuButton(command);
        break;
    case Route::kPressHistoryButton:
        PressHistoryButton(command);
        break;
    case Route::kBrowseFile:
        BrowseFile();
        break;
    case Route::kBrowseFolder:
        BrowseFolder();
        break;
    case Route::kOpenOptions:
        OpenOptions(command);
        break;
    case Route::kOpenCalendar:
        OpenCalendar();
        break;
    case Route::kRunEntry:
        RunEntry(command);
        break;
    case Route::kChooseSearch:
        ChooseSearchCommand(command);
        break;
    case Route::kRunProgram:
        RunProgram(command);
        break;
    case Route::kRunLaunchItem:
        RunLaunchItem(command);
        break;
    case Route::kEndSession:
        EndWindowsSession(command, Handle(), modalMessageOpen_);
        break;
    case Route::kSwitchTask:
        tasks_.SwitchTo(command);
        break;
    case Route::kToggleClipboardMonitor:
        ToggleClipboardMonitor();
        break;
    case Route::kOpenSupport:
        OpenSupport(command);
        break;
    case Route::kStartScreenSaver:
        StartScreenSaver();
        break;
    case Route::kToggleMode:
        docking_.ToggleMode();
        break;
    case Route::kToggleTopmost:
        ToggleTopmost();
        break;
    case Route::kToggleAutoHide:
        ToggleAutoHide();
        break;
    case Route::kAbout:
        ShowAboutBox();
        break;
    case Route::kHelp:
        OpenHelp(about::help_topic::kContents, Handle());
        break;
    case Route::kExit:
        ::PostMessageW(Handle(), WM_CLOSE, 0, 0);
        break;
    }
    return LRESULT{0};
}

// Below a dialog or a message the bar has no commands: what one opens would come to stand on what is open, as often as
// it comes. Whoever asks for a dialog sees the one that there is.
bool CMainFrame::TakesCommand(Route route) const {
    const bool opensDialog = route == Route::kOpenOptions || route == Route::kAbout;
    if (!fw::IsBelowModal(Handle()) || (options_ && route == Route::kOpenOptions)) return true;
    if (opensDialog) ::SetForegroundWindow(::GetLastActivePopup(Handle()));
    return false;
}

void CMainFrame::RunTypedCommand() {
    const std::wstring text = controls_.commandBox.Text();
    // Its button is disabled then, but its key is not; the shell would take an empty name for the current folder.
    if (text.empty()) return;
    const search::RunOutcome outcome = search::RunTypedCommand(text, starter_);
    if (outcome.Started()) {
        docking_.OnTypingEnded();
        histories_.Of(Box::kCommand).Add(text);
    } else {
        // The next try begins with what failed, or replaces it.
        keyboard_.GoToAllOf(Box::kCommand);
        ReportError(outcome.error);
    }
}

void CMainFrame::RunEntry(UINT command) {
    ReportStart(launch::RunCommandEntry(launch::LoadCommandEntry(command, settings_)), fw::Centring::kNone);
}

void CMainFrame::RunEntryWith(UINT command, const std::wstring& moreArguments) {
    launch::CommandEntry entry = launch::LoadCommandEntry(command, settings_);
    entry.arguments = WithAppended(std::move(entry.arguments), moreArguments);
    ReportStart(launch::RunCommandEntry(entry), fw::Centring::kNone);
}

void CMainFrame::RunLaunchItem(UINT command) {
    if (const auto result = launch::RunLaunchItem(command, settings_)) ReportStart(*result, fw::Centring::kNone);
}

void CMainFrame::RunProgram(UINT command) {
    ReportStart(RunBuiltInProgram(command), fw::Centring::kOnOwner);
}

void CMainFrame::ReportStart(INT_PTR result, fw::Centring centring) {
    // The shell's result is shown as a system error code on purpose, also where the two numberings differ.
    if (const DWORD error = search::ErrorOfShell(static_cast<int>(result))) {
        ReportError(error, centring);
    } else {
        docking_.OnTypingEnded();
    }
}

void CMainFrame::ToggleClipboardMonitor() {
    clipboardMonitored_ = !clipboardMonitored_;
    settings_.Write(keys::MonitorClipBoard, clipboardMonitored_ ? 1 : 0);
    RefreshMenuStates();
}

void CMainFrame::OpenHistory(UINT command) {
    const Box box = command == ID_SEARCH_HISTORY ? Box::kSearch : Box::kCommand;
    if (openHistory_) {
        // The other history is still closing; this button was pressed for nothing. Its own stays pressed.
        HistoryButton(box).SetMenuShown(openHistory_ == box);
        return;
    }
    const base::Rect& region = box == Box::kSearch ? layout_.searchRegion : layout_.commandRegion;
    RECT onScreen = fw::ToWindows(region);
    ::MapWindowPoints(Handle(), nullptr, reinterpret_cast<POINT*>(&onScreen), 2);
    HistoryButton(box).SetMenuShown(true);
    openHistory_ = box;
    const HWND opened = search::CDropDownDialog::Open(*this, {.owner = Handle(),
                                                              .edit = keyboard_.BoxWindow(box).Handle(),
                                                              .box = box,
                                                              .region = fw::FromWindows(onScreen),
                                                              .rows = HistoryRows(box)});
    if (!opened) OnDropDownClosed(box);
}

std::vector<search::HistoryRow> CMainFrame::HistoryRows(Box box) const {
    return search::PlanHistoryRows(box, histories_.Of(box).Entries(), search::LoadHistoryRowTexts());
}

void CMainFrame::OnEntryPicked(Box box) {
    // Before the pop-up is gone: Windows gives the keyboard back while it is being destroyed.
    keyboard_.SetHome(box);
}

std::vector<search::HistoryRow> CMainFrame::RemoveEntry(Box box, const std::wstring& text) {
    histories_.Of(box).Remove(text);
    return HistoryRows(box);
}

void CMainFrame::OnDropDownClosed(Box box) {
    openHistory_.reset();
    docking_.OnTyping();
    HistoryButton(box).SetMenuShown(false);
    keyboard_.Return();
}

void CMainFrame::OpenCalendar() {
    // The next may open while one closes, but no more.
    if (openCalendars_ > 1) return;
    ++openCalendars_;
    if (!controls::CTimeDateDialog::Open(*this, Handle(), loop_)) --openCalendars_;
}

void CMainFrame::OnTimeDateClosed() {
    --openCalendars_;
    keyboard_.Return();
}

void CMainFrame::OnTimeSettingsStarted(INT_PTR shellResult) {
    ReportStart(shellResult, fw::Centring::kOnOwner);
}

void CMainFrame::PressHistoryButton(UINT command) {
    docking_.ShowOnDemand();
    const UINT opens = command - kHistoryKeyOffset;
    HistoryButton(opens == ID_SEARCH_HISTORY ? Box::kSearch : Box::kCommand).ShowPressed();
    ::PostMessageW(Handle(), WM_COMMAND, opens, 0);
}

void CMainFrame::OpenMenuButton(UINT command) {
    docking_.ShowOnDemand();
    const HWND button = ::GetDlgItem(Handle(), static_cast<int>(MenuButtonOf(command)));
    ::PostMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, 0);
}

void CMainFrame::BrowseFile() {
    const fw::ScopedFlag busy{inputBusy_};
    EnterPickedPath(search::PickFile(Handle(), fw::LoadText(IDS_ALL_FILES_FILTER)));
}

void CMainFrame::BrowseFolder() {
    const fw::ScopedFlag busy{inputBusy_};
    EnterPickedPath(
        search::PickFolder(Handle(), fw::LoadText(IDS_BROWSE_FOLDER_TITLE), fw::LoadText(IDS_BROWSE_FOLDER_PROMPT)));
}

void CMainFrame::EnterPickedPath(const std::optional<std::wstring>& path) {
    if (!path) return;
    search::CEditEx& box = controls_.commandBox;
    // A text that ends in a blank waits for its next argument.
    const std::wstring text = box.Text();
    const auto entry = text.ends_with(L' ') ? search::PathEntry::kAppend : search::PathEntry::kReplace;
    box.SetText(search::WithPickedPath(text, *path, entry));
    keyboard_.GoTo(Box::kCommand);
    docking_.OnTyping();
}

void CMainFrame::ClearHistory(Box box) {
    const std::wstring name = fw::LoadText(box == Box::kSearch ? IDS_SEARCH_BOX : IDS_COMMAND_BOX);
    if (Ask(fw::FormatResource(IDS_CLEAR_HISTORY, std::wstring_view{name})) != IDYES) return;
    histories_.Of(box).Clear();
    keyboard_.BoxWindow(box).SetText(L"");
}

bool CMainFrame::HistoriesEmpty() const {
    return histories_.Of(Box::kCommand).Entries().empty() && histories_.Of(Box::kSearch).Entries().empty();
}

void CMainFrame::ClearHistories() {
    for (const Box box : {Box::kCommand, Box::kSearch}) {
        histories_.Of(box).Clear();
        keyboard_.BoxWindow(box).SetText(L"");
    }
}

void CMainFrame::OpenOptions(UINT command) {
    const launch::OptionPage page = launch::OptionPageOf(command);
    if (options_) {
        // Over the options there may be a dialog or a message of theirs.
        const HWND top = ::GetLastActivePopup(options_->Handle());
        ::SetForegroundWindow(top);
        if (top == options_->Handle()) options_->GoTo(page);
        return;
    }
    // A tool that was installed since the start can then be put into a command.
    search::DetectSearchTools(settings_);
    search::WindowsUserCommandFile userCommandFile{userCommands_->Path(), fw::LoadText(IDS_USER_COMMAND_HEADER)};
    launch::COptionDialog dialog{
        page, {.stores = Stores(), .userCommands = userCommandFile, .histories = *this, .help = *this}};
    {
        const fw::ScopedFlag modal{modalMessageOpen_};
        options_ = &dialog;
        // How it was closed is not told by its result.
        static_cast<void>(dialog.ShowModal(Handle()));
        options_ = nullptr;
    }
    if (dialog.Confirmed()) ApplySettings();
}

void CMainFrame::BuildSearchCommandMenu() {
    const search::SearchMenuPlan plan = search::PlanSearchMenu(Stores(), fw::LoadText(IDS_SEARCH_SETTINGS));
    fw::FillMenu(Popup(POPUP_SEARCH), plan.rows);
    MakeCurrent(search::SearchCommandId{static_cast<int>(plan.current.command)}, plan.current.text);
}

void CMainFrame::MakeCurrent(search::SearchCommandId id, const std::wstring& name) {
    currentSearch_ = id;
    ::SetWindowTextW(controls_.searchChooser.Handle(), name.c_str());
    controls_.searchChooser.Redraw();
    ::CheckMenuRadioItem(Popup(POPUP_SEARCH), ID_SEARCH_FIRST, ID_SEARCH_LAST, static_cast<UINT>(id.Value()),
                         MF_BYCOMMAND);
}

void CMainFrame::ChooseSearchCommand(UINT command) {
    MakeCurrent(search::SearchCommandId{static_cast<int>(command)}, MenuText(command));
    keyboard_.GoToAllOf(Box::kSearch);
    if (::IsWindowEnabled(controls_.runSearch.Handle())) ExecuteSearchCommand();
}

std::wstring CMainFrame::MenuText(UINT command) const {
    const HMENU menu = Popup(POPUP_SEARCH);
    std::wstring text(static_cast<std::size_t>(::GetMenuStringW(menu, command, nullptr, 0, MF_BYCOMMAND)), L'\0');
    const int length = ::GetMenuStringW(menu, command, text.data(), static_cast<int>(text.size()) + 1, MF_BYCOMMAND);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void CMainFrame::ExecuteSearchCommand() {
    std::wstring text = controls_.searchBox.Text();
    auto outcome = search::ExecuteSearch(
        {.command = currentSearch_, .text = text, .menuName = MenuText(static_cast<UINT>(currentSearch_.Value()))},
        Stores(), encoder_, starter_);
    if (const auto* const editor = std::get_if<search::EditorSearch>(&outcome)) {
        const fw::ScopedFlag modal{modalMessageOpen_};
        outcome = search::RunEditorSearch(Handle(), editor->tool, text, settings_, *this, starter_);
        // What the user made of it in the dialog.
        if (std::holds_alternative<search::SearchStarted>(outcome)) controls_.searchBox.SetText(text);
    }
    if (std::holds_alternative<search::SearchStarted>(outcome)) {
        docking_.OnTypingEnded();
        histories_.Of(Box::kSearch).Add(text);
    } else if (const auto* const failed = std::get_if<search::SearchFailed>(&outcome)) {
        keyboard_.GoToAllOf(Box::kSearch);
        ReportError(failed->error);
    } else if (const auto* const refusal = std::get_if<search::Refusal>(&outcome)) {
        if (refusal->silent) return;
        keyboard_.GoToAllOf(Box::kSearch);
        Warn(fw::FormatResource(refusal->messageId, std::wstring_view{refusal->argument}));
    }
}

controls::CDropDownButton& CMainFrame::HistoryButton(Box box) {
    return box == Box::kSearch ? controls_.searchHistory : controls_.commandHistory;
}

search::SearchStores CMainFrame::Stores() {
    return {settings_, *standardCommands_, *userCommands_};
}

int CMainFrame::Ask(const std::wstring& text) {
    const fw::ScopedFlag modal{modalMessageOpen_};
    return fw::ShowProductMessage(Handle(), text, MB_YESNOCANCEL | MB_ICONQUESTION);
}

void CMainFrame::Warn(const std::wstring& text) {
    const fw::ScopedFlag modal{modalMessageOpen_};
    fw::ShowProductMessage(Handle(), text, MB_ICONEXCLAMATION);
}

void CMainFrame::ReportError(DWORD code, fw::Centring centring) {
    const fw::ScopedFlag modal{modalMessageOpen_};
    fw::ShowProductSystemError(Handle(), code, centring);
}

} // namespace korvane::app
