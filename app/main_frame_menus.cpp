// The frame's menus: what they are called, what they look like and in which state they open.
#include <windowsx.h>

#include "app/built_in_programs.h"
#include "app/logic/command_after_wheel.h"
#include "app/logic/menu_states.h"
#include "app/logic/menu_texts.h"
#include "app/logic/notification_icon_rules.h"
#include "app/main_frame.h"
#include "app/screen_saver.h"
#include "framework/gdi.h"
#include "framework/icons.h"
#include "framework/scoped_flag.h"
#include "framework/string_table.h"
#include "framework/windows_version.h"
#include "launch/command_entries.h"
#include "launch/edit_stored_item.h"
#include "launch/launch_menu.h"
#include "launch/logic/launch_limits.h"
#include "settings/logic/setting_keys.h"

namespace korvane::app {

namespace keys = settings::keys;

namespace {

// Within the main menu's pop-up, where separators count too.
constexpr int kTaskMenuPosition = 14;

// The search commands of a pop-up in their order.
std::vector<UINT> CommandsOf(HMENU popup) {
    std::vector<UINT> commands;
    for (int at = 0; at < ::GetMenuItemCount(popup); ++at) {
        const UINT command = ::GetMenuItemID(popup, at);
        if (command >= ID_SEARCH_FIRST && command <= ID_SEARCH_LAST) commands.push_back(command);
    }
    return commands;
}

} // namespace

HMENU CMainFrame::Popup(int position) const {
    return menus_.Popup(position);
}

UINT CMainFrame::TrackPopup(int position, UINT flags, POINT at) {
    return Track(Popup(position), flags, at);
}

UINT CMainFrame::Track(HMENU menu, UINT flags, POINT at) {
    UINT command = 0;
    {
        const fw::ScopedFlag busy{inputBusy_};
        toolTips_.Begin();
        command = static_cast<UINT>(::TrackPopupMenuEx(menu, flags, at.x, at.y, Handle(), nullptr));
    }
    // Before the command: what that opens takes the keyboard from a box, and gives it back there.
    keyboard_.Return();
    return command;
}

void CMainFrame::TrackFromOutside(HMENU menu) {
    // A menu is open already; Windows would refuse a second one.
    if (inputBusy_) return;
    POINT cursor{};
    ::GetCursorPos(&cursor);
    // A menu of a window that is not in the foreground does not close when the user clicks elsewhere, and the one after
    // it closes at once unless a message comes in between (TrackPopupMenu's documentation).
    ::SetForegroundWindow(Handle());
    Track(menu, TPM_RIGHTBUTTON, cursor);
    ::PostMessageW(Handle(), WM_NULL, 0, 0);
}

fw::Reply CMainFrame::OnContextMenu(const fw::Message& message) {
    if (modalMessageOpen_ || inputBusy_) return LRESULT{0};
    const auto from = reinterpret_cast<HWND>(message.wparam);
    POINT at{GET_X_LPARAM(message.lparam), GET_Y_LPARAM(message.lparam)};
    constexpr LPARAM kByKeyboard = -1;
    if (message.lparam == kByKeyboard) {
        const base::Rect control = fw::WindowRect(from);
        at = {control.left, control.bottom};
    } else {
        POINT inside = at;
        ::ScreenToClient(Handle(), &inside);
        // On the caption it is the system's menu.
        if (!fw::ClientRect(Handle()).Contains({inside.x, inside.y})) return fw::kPassOn;
    }
    const auto id = static_cast<UINT>(::GetDlgCtrlID(from));
    if (from != Handle() && id >= ID_LAUNCH_BUTTON_1 && id <= ID_ENTRY_LAST) {
        OpenLaunchButtonMenu(id, at);
    } else {
        Track(Popup(POPUP_MAIN), TPM_RIGHTBUTTON, at);
    }
    return LRESULT{0};
}

void CMainFrame::OpenLaunchButtonMenu(UINT command, POINT at) {
    const fw::UniqueMenu menu{::LoadMenuW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDM_LAUNCH_BUTTON))};
    const HMENU popup = ::GetSubMenu(menu.Get(), 0);
    launch::CommandEntry entry = launch::LoadCommandEntry(command, settings_);
    const std::wstring folder = launch::FolderOfEntry(entry);
    const auto grey = [popup](UINT item) { ::EnableMenuItem(popup, item, MF_BYCOMMAND | MF_GRAYED); };
    if (entry.path.empty()) grey(ID_ITEM_OPEN);
    if (folder.empty()) grey(ID_ITEM_FOLDER);
    ::SetMenuDefaultItem(popup, ID_ITEM_OPEN, FALSE);
    switch (Track(popup, TPM_RIGHTBUTTON | TPM_RETURNCMD, at)) {
    case ID_ITEM_OPEN:
        RunEntry(command);
        break;
    case ID_ITEM_EDIT:
        EditLaunchButton(command);
        break;
    case ID_ITEM_FOLDER:
        entry = {};
        entry.path = folder;
        ReportStart(launch::RunCommandEntry(entry), fw::Centring::kOnOwner);
        break;
    default:
        break;
    }
}

void CMainFrame::EditLaunchButton(UINT command) {
    launch::EditOutcome outcome{};
    {
        const fw::ScopedFlag modal{modalMessageOpen_};
        outcome =
            launch::EditStoredItem(Handle(), settings_, launch::LaunchItemIndex(command), smallIcon_.Get(), *this);
    }
    switch (outcome) {
    case launch::EditOutcome::kSaved:
        controls_.ReloadLaunchButtons(settings_);
        launch::BuildLaunchMenu(menus_, settings_);
        break;
    case launch::EditOutcome::kNotListed:
        // There the user sees which items there are.
        OpenOptions(ID_LAUNCH_SETTINGS);
        break;
    case launch::EditOutcome::kCancelled:
        break;
    }
}

bool CMainFrame::OnWheel(const MSG& message) {
    if (!fw::WindowRect(controls_.searchChooser.Handle()).Contains({message.pt.x, message.pt.y})) return false;
    const int steps = wheel_.Turn(GET_WHEEL_DELTA_WPARAM(message.wParam));
    const auto command = static_cast<UINT>(currentSearch_.Value());
    if (const UINT next = CommandAfterWheel(CommandsOf(Popup(POPUP_SEARCH)), command, steps); next != command)
        MakeCurrent(search::SearchCommandId{static_cast<int>(next)}, MenuText(next));
    return true;
}

void CMainFrame::OnNotificationIcon(const fw::Message& message) {
    switch (ActionOf(LOWORD(message.lparam), modalMessageOpen_)) {
    case IconAction::kNone:
        break;
    case IconAction::kShowMenu:
        TrackFromOutside(Popup(POPUP_MAIN));
        break;
    case IconAction::kShowBar:
        ShowBarUnderCursor();
        break;
    }
}

void CMainFrame::NameMenusForThisWindows() {
    for (const MenuTextChange& change :
         MenuTextChanges(fw::IsWindowsAtLeast(fw::kWindows7), fw::IsWindowsAtLeast(fw::kWindows8)))
        ::ModifyMenuW(menus_.Menu(), change.command, MF_BYCOMMAND | MF_STRING, change.command,
                      fw::LoadText(change.textId).c_str());
}

void CMainFrame::AddMenuImages() {
    for (UINT command = ID_PROGRAM_FIRST; command <= ID_PROGRAM_LAST; ++command)
        menus_.AddIcon(command, [command] { return BuiltInProgramIcon(command); });
    for (UINT command = ID_ENTRY_FIRST; command <= ID_CONTROL_PANEL_LAST; ++command)
        menus_.AddIcon(command,
                       [command, this] { return launch::IconOf(launch::LoadCommandEntry(command, settings_)); });
    for (const UINT command : {ID_LAUNCH_SETTINGS, ID_SEARCH_SETTINGS})
        menus_.AddIcon(
            command, [] { return fw::LoadResourceIcon(IDI_SETTINGS, ::GetSystemMetrics(SM_CXSMICON)); },
            fw::ImageKind::kDrawing);
}

fw::Reply CMainFrame::OnInitMenuPopup(const fw::Message& message) {
    const auto popup = reinterpret_cast<HMENU>(message.wparam);
    const HMENU mainMenu = Popup(POPUP_MAIN);
    if (popup == mainMenu) RefreshMenuStates();
    if (popup == ::GetSubMenu(mainMenu, kTaskMenuPosition)) tasks_.BuildMenu(popup, menus_, Handle(), taskNameChoice_);
    menus_.OnInitMenuPopup(popup);
    return fw::kPassOn;
}

fw::Reply CMainFrame::OnMeasureItem(MEASUREITEMSTRUCT& item) {
    return menus_.OnMeasureItem(item);
}

void CMainFrame::RefreshMenuStates() {
    MenuSituation now;
    now.desktopBarMode = docking_.Docked();
    now.autoHide = docking_.AutoHide();
    now.topmost = settings_.Read(keys::TopMostWindow) > 0;
    now.clipboardMonitored = clipboardMonitored_;
    now.screenSaverThere = HasScreenSaver();
    now.otherAutoHideBarOnEdge = now.desktopBarMode && !now.autoHide && docking_.OtherBarHides();
    for (const MenuItemState& item : MenuStates(now)) {
        ::CheckMenuItem(menus_.Menu(), item.command, MF_BYCOMMAND | (item.checked ? MF_CHECKED : MF_UNCHECKED));
        ::EnableMenuItem(menus_.Menu(), item.command, MF_BYCOMMAND | (item.enabled ? MF_ENABLED : MF_GRAYED));
    }
}

} // namespace korvane::app
