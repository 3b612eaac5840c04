#pragma once

#include <windows.h>

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "about/help_opener.h"
#include "about/help_session.h"
#include "app/active_caption.h"
#include "app/bar_controls.h"
#include "app/bar_drop.h"
#include "app/bar_keyboard.h"
#include "app/clipboard_monitor.h"
#include "app/logic/bar_layout.h"
#include "app/logic/command_routes.h"
#include "app/logic/docked_window.h"
#include "app/logic/docking.h"
#include "app/notification_icon.h"
#include "app/task_list.h"
#include "app/win_shell.h"
#include "base/colour.h"
#include "base/geometry.h"
#include "controls/bar_host.h"
#include "controls/logic/wheel_steps.h"
#include "controls/option_page.h"
#include "controls/time_date_host.h"
#include "controls/tool_tip_rest.h"
#include "framework/centred_message_box.h"
#include "framework/handle.h"
#include "framework/hot_key.h"
#include "framework/message_loop.h"
#include "framework/timer.h"
#include "framework/window.h"
#include "launch/app_menu_bar.h"
#include "launch/option_dialog.h"
#include "res/ids.h"
#include "search/drop_down_dialog.h"
#include "search/logic/execute_search.h"
#include "search/logic/history.h"
#include "search/logic/search_commands.h"
#include "search/win_process_starter.h"
#include "settings/data_folder.h"
#include "settings/ini_backend.h"
#include "settings/registry_backend.h"

namespace korvane::app {

// Where the frame's state lives. The defaults are the program's; tests have a place of their own.
struct FramePlaces {
    std::wstring settingsKey = L"Software\\Dunmere Software\\Korvane"; // below HKEY_CURRENT_USER
    std::function<settings::DataFolder()> findDataFolder = &settings::FindDataFolder;
};

// The bar: the one top-level window of the process. It owns every control on the bar, the stores, the fonts and
// brushes, and is where every command arrives.
class CMainFrame final : public fw::Window<CMainFrame>,
                         public controls::BarHost,
                         public controls::TimeDateHost,
                         public about::HelpOpener,
                         public search::HistoryDropDownHost,
                         public controls::HistoryKeeper,
                         private DockedWindow,
                         private fw::MessageFilter {
public:
    static constexpr fw::WindowClass kClass{.name = L"Korvane_WndClass"};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_CREATE>(&CMainFrame::OnCreate),
            fw::On<WM_DESTROY>(&CMainFrame::OnDestroy),
            fw::On<WM_CLOSE>(&CMainFrame::OnClose),
            fw::On<WM_ENDSESSION>(&CMainFrame::OnEndSession),
            fw::On<WM_SIZE>(&CMainFrame::OnSize),
            fw::On<WM_MOVE>(&CMainFrame::OnMove),
            fw::On<WM_WINDOWPOSCHANGED>(&CMainFrame::OnPlaceChanged),
            fw::On<WM_DISPLAYCHANGE>(&CMainFrame::OnDisplayChange),
            fw::On<kShellMessage>(&CMainFrame::OnShellEvent),
            fw::On<NotificationIcon::kMessage>(&CMainFrame::OnNotificationIcon),
            fw::On<WM_TIMER>(&CMainFrame::OnTimer),
            fw::On<WM_CLIPBOARDUPDATE>(&CMainFrame::OnClipboardUpdate),
            fw::On<WM_INITMENUPOPUP>(&CMainFrame::OnInitMenuPopup),
            fw::On<WM_MEASUREITEM>(&CMainFrame::OnMeasureItem),
            fw::On<WM_GETMINMAXINFO>(&CMainFrame::OnGetMinMaxInfo),
            fw::On<WM_NCHITTEST>(&CMainFrame::OnHitTest),
            fw::On<WM_ERASEBKGND>(&CMainFrame::OnEraseBackground),
            fw::On<WM_SETFOCUS>(&CMainFrame::OnSetFocus),
            fw::On<WM_ACTIVATE>(&CMainFrame::OnActivate),
            fw::On<WM_ACTIVATEAPP>(&CMainFrame::OnActivateApp),
            fw::On<WM_CONTEXTMENU>(&CMainFrame::OnContextMenu),
            fw::On<WM_HOTKEY>(&CMainFrame::OnHotKey),
            fw::On<WM_HELP>(&CMainFrame::OnHelp),
            fw::On<WM_DWMCOLORIZATIONCOLORCHANGED>(&CMainFrame::OnColorizationChanged),
            fw::On<WM_SYSCOLORCHANGE>(&CMainFrame::OnColoursChanged),
            fw::On<WM_THEMECHANGED>(&CMainFrame::OnColoursChanged),
            fw::On<WM_SETTINGCHANGE>(&CMainFrame::OnSettingChange),
            fw::On<WM_COMMAND>(&CMainFrame::OnControlCommand),
            fw::OnControl<ID_COMMAND_BOX, ID_SEARCH_BOX, EN_CHANGE>(&CMainFrame::OnBoxChanged),
            fw::OnControl<ID_COMMAND_BOX, ID_SEARCH_BOX, EN_SETFOCUS>(&CMainFrame::OnBoxFocused),
            fw::OnCommand<ID_COMMAND_HISTORY, ID_HELP_CONTENTS>(&CMainFrame::OnCommand),
            fw::On<WM_DRAWITEM>(&CMainFrame::OnDrawItem),
            fw::On<WM_NOTIFY>(&CMainFrame::OnNotify),
        };
    }

    // Loop and session outlive the frame.
    CMainFrame(fw::MessageLoop& loop, about::HelpSession& help, FramePlaces places = {});
    ~CMainFrame() override;

    // False when Windows or one of the creation's own checks refused; what can be told to the user has been told then,
    // and the thread's last error says the rest.
    [[nodiscard]] bool CreateFrame();
    void ShowFirst(int showCommand);

    // The messages of the map, and what the shell broadcasts when it has started again, whose number Windows gives out.
    fw::Reply Dispatch(const fw::Message& message) override;

    // Reads every general setting again and applies it. Called at creation and whenever the options were confirmed.
    void ApplySettings();

    // Rebuilds the search commands' menu from the stores. The first command becomes the current one.
    void BuildSearchCommandMenu();
    // Hands the search box's text to the current search command.
    void ExecuteSearchCommand();
    // Starts what stands in the command input box.
    void RunTypedCommand();
    // controls::BarHost and controls::TimeDateHost
    [[nodiscard]] HFONT BarFont() const override { return barFont_.Get(); }
    [[nodiscard]] HMENU Popup(int position) const override;
    UINT TrackPopup(int position, UINT flags, POINT at) override;

    // controls::TimeDateHost
    [[nodiscard]] HBRUSH BarBrush() const override { return barBrush_.Get(); }
    void OnTimeSettingsStarted(INT_PTR shellResult) override;
    void OnTimeDateClosed() override;

    // about::HelpOpener
    void OpenHelp(std::wstring_view topic, HWND asker) override;

    // search::HistoryDropDownHost
    void OnEntryPicked(search::Box box) override;
    std::vector<search::HistoryRow> RemoveEntry(search::Box box, const std::wstring& text) override;
    void OnDropDownClosed(search::Box box) override;
    void BrowseFile() override;
    void BrowseFolder() override;
    // Asks, then empties one history and its box.
    void ClearHistory(search::Box box) override;

    // controls::HistoryKeeper
    [[nodiscard]] bool HistoriesEmpty() const override;
    void ClearHistories() override;

private:
    bool PreTranslate(const MSG& message) override;
    // Tells docking whether the user types, from a message to the bar or one of its controls.
    void WatchTyping(const MSG& message);
    [[nodiscard]] bool IsBox(HWND window) const;

    // DockedWindow
    [[nodiscard]] base::Rect WorkAreaAt(const base::Rect& place) const override;
    [[nodiscard]] base::Rect Reachable(const base::Rect& place) const override;
    [[nodiscard]] base::Rect Place() const override;
    [[nodiscard]] bool Visible() const override;
    void Hide() override;
    void Show() override;
    void BecomeDocked() override;
    void BecomeFloating(bool topmost) override;
    void MoveTo(const base::Rect& place, ZOrder order) override;
    void SetZOrder(ZOrder order) override;
    void SlideTo(int top, bool coming) override;
    void ShowControls(bool shown) override;
    [[nodiscard]] bool CursorInside() const override;
    [[nodiscard]] bool InUse() const override;
    [[nodiscard]] bool HasKeyboard() const override;
    [[nodiscard]] WindowId WindowAbove() const override;
    bool PutBehind(WindowId window, ZOrder order) override;
    void StartTimer(DockTimer timer, std::chrono::milliseconds period) override;
    void StopTimer(DockTimer timer) override;
    [[nodiscard]] std::chrono::milliseconds Now() const override;
    void Wait(std::chrono::milliseconds time) override;
    void DockingChanged() override;

    // Handlers.
    int OnCreate(const CREATESTRUCTW& creation);
    void OnDestroy();
    fw::Reply OnClose();
    void OnEndSession(bool ending);
    fw::Reply OnSize(UINT kind, SIZE client);
    fw::Reply OnMove(const fw::Message& message);
    fw::Reply OnPlaceChanged(const fw::Message& message);
    void OnDisplayChange(UINT bitsPerPixel, SIZE screen);
    void OnShellEvent(const fw::Message& message);
    void OnNotificationIcon(const fw::Message& message);
    fw::Reply OnTimer(UINT_PTR id);
    void OnClipboardUpdate(const fw::Message& message);
    fw::Reply OnInitMenuPopup(const fw::Message& message);
    fw::Reply OnMeasureItem(MEASUREITEMSTRUCT& item);
    void OnGetMinMaxInfo(MINMAXINFO& info);
    LRESULT OnHitTest(const fw::Message& message);
    bool OnEraseBackground(HDC dc);
    void OnSetFocus(const fw::Message& message);
    fw::Reply OnActivate(const fw::Message& message);
    fw::Reply OnActivateApp(const fw::Message& message);
    fw::Reply OnContextMenu(const fw::Message& message);
    void OnHotKey(int id);
    void OnHelp(const fw::Message& message);
    void OnColorizationChanged();
    fw::Reply OnColoursChanged(const fw::Message& message);
    fw::Reply OnSettingChange(const fw::Message& message);
    void OnBoxChanged(UINT boxId);
    void OnBoxFocused(UINT boxId);
    fw::Reply OnControlCommand(const fw::Message& message);
    fw::Reply OnCommand(UINT command);
    fw::Reply OnDrawItem(const fw::Message& message);
    fw::Reply OnNotify(const fw::Message& message);

    // Creation, in this order. False fails it.
    bool OpenStores();
    bool CommandFileIsThere();
    void RegisterHotKeys();
    bool CreateChildren();
    void BeginDocking();
    [[nodiscard]] bool StartsDocked() const;
    void ShowDockedFirst();

    // Applying settings.
    void ReadColours();
    void ApplyColour();

    void SaveState();
    [[nodiscard]] BarLayout LayoutForClient() const;
    void LayOut();
    void RedrawAll() const;
    [[nodiscard]] base::Size Borders() const;
    void RememberWindowRect();

    // Menus.
    void NameMenusForThisWindows();
    void AddMenuImages();
    void RefreshMenuStates();
    // Shows a menu at a point of the screen; gives the chosen command, or 0.
    UINT Track(HMENU menu, UINT flags, POINT at);
    // The same when the user did not come from the bar itself.
    void TrackFromOutside(HMENU menu);

    // What can be done with the item on a launch button, and what its menu does.
    void OpenLaunchButtonMenu(UINT command, POINT at);
    void EditLaunchButton(UINT command);
    // Over the chooser the wheel changes the search command. False where it is somebody else's.
    [[nodiscard]] bool OnWheel(const MSG& message);

    // Commands.
    [[nodiscard]] bool TakesCommand(Route route) const;
    void ShowBarUnderCursor();
    // Brings the bar and the keyboard to the user, wherever both are.
    void SummonBar();
    void RunLaunchItem(UINT command);
    void RunProgram(UINT command);
    // Tells what went wrong when the shell's result says that something did.
    void ReportStart(INT_PTR result, fw::Centring centring);
    void OpenCalendar();
    void OpenOptions(UINT command);
    void ShowAboutBox();
    void OpenSupport(UINT command);
    void ToggleClipboardMonitor();
    void ToggleAutoHide();
    void ToggleTopmost();
    void OpenHistory(UINT command);
    [[nodiscard]] std::vector<search::HistoryRow> HistoryRows(search::Box box) const;
    void PressHistoryButton(UINT command);
    void OpenMenuButton(UINT command);
    void EnterPickedPath(const std::optional<std::wstring>& path);
    void RunEntry(UINT command);
    void RunEntryWith(UINT command, const std::wstring& moreArguments);
    void ChooseSearchCommand(UINT command);
    void MakeCurrent(search::SearchCommandId id, const std::wstring& name);

    // A text of the search menu.
    [[nodiscard]] std::wstring MenuText(UINT command) const;
    [[nodiscard]] controls::CDropDownButton& HistoryButton(search::Box box);
    [[nodiscard]] search::SearchStores Stores();

    // Message boxes of the frame: the modal flag is set while they are up.
    int Ask(const std::wstring& text);
    void Warn(const std::wstring& text);
    void ReportError(DWORD code, fw::Centring centring = fw::Centring::kOnOwner);

    // Beside the timers of docking.
    static constexpr UINT_PTR kClipboardTimer = 5;
    static constexpr UINT_PTR kIconTimer = 6;

    fw::MessageLoop& loop_;
    about::HelpSession& help_;
    FramePlaces places_;
    fw::MessageLoop::Registration filter_;
    controls::ToolTipRest toolTips_;
    fw::UniqueHandle<HACCEL, &::DestroyAcceleratorTable> accelerators_;
    std::wstring versionText_;
    launch::CAppMenuBar menus_;
    fw::HotKey showBarKey_;
    fw::HotKey launchMenuKey_;

    settings::RegistryStore settings_;
    std::optional<settings::IniFileStore> standardCommands_;
    std::optional<settings::IniFileStore> userCommands_;
    search::Histories histories_;

    BarControls controls_;
    BarKeyboard keyboard_{controls_};
    BarDrop drop_{controls_, keyboard_,
                  [this](UINT command, const std::wstring& arguments) { RunEntryWith(command, arguments); }};
    BarLayout layout_;
    LONG laidOutWidth_ = -1; // of the client area that the layout is for
    fw::UniqueFont barFont_;
    fw::UniqueBrush barBrush_;
    fw::UniqueIcon commandIcon_;
    fw::UniqueIcon icon_;
    fw::UniqueIcon smallIcon_;
    base::Colour barColour_;
    base::Colour systemColour_;
    std::optional<base::Colour> systemColourAtStart_;

    search::SearchCommandId currentSearch_;
    controls::WheelSteps wheel_;
    search::WinProcessStarter starter_;
    search::SearchTextEncoder encoder_;

    NotificationIcon notificationIcon_{kIconTimer};
    WinShell shell_;
    Docking docking_{shell_, *this, settings_};
    std::array<fw::Timer, 4> dockTimers_; // by identifier, from 1
    bool wasActive_ = false;              // before it was hidden
    ActiveCaption caption_;
    bool narrowReported_ = false;

    ClipboardMonitor clipboard_;
    bool clipboardMonitored_ = false;
    TaskList tasks_;
    int taskNameChoice_ = 0;

    launch::COptionDialog* options_ = nullptr; // while it is open

    bool clockShown_ = false;

    // While one of these is set the bar is in use and must not hide.
    bool modalMessageOpen_ = false;
    std::optional<search::Box> openHistory_;
    int openCalendars_ = 0; // more than one while the next opens and the last closes
    bool inputBusy_ = false;
    bool helpFailureShown_ = false;

    // Cleared only when the bar has to close itself.
    bool askBeforeExit_ = true;
    bool exitAsked_ = false; // and not answered yet
    DWORD creationError_ = ERROR_SUCCESS;
    bool created_ = false;
};

} // namespace korvane::app
