// The frame's menus: what they are called, what they look like and in which state they open.
#include "app/built_in_programs.h"
#include "app/logic/menu_states.h"
#include "app/logic/menu_texts.h"
#include "app/logic/notification_icon_rules.h"
#include "app/main_frame.h"
#include "app/screen_saver.h"
#include "framework/icons.h"
#include "framework/scoped_flag.h"
#include "framework/string_table.h"
#include "framework/windows_version.h"
#include "launch/command_entries.h"
#include "settings/logic/setting_keys.h"

namespace korvane::app {

namespace keys = settings::keys;

namespace {

// Within the main menu's pop-up, where separators count too.
constexpr int kTaskMenuPosition = 14;

} // namespace

HMENU CMainFrame::Popup(int position) const {
    return menus_.Popup(position);
}

UINT CMainFrame::TrackPopup(int position, UINT flags, POINT at) {
    return Track(Popup(position), flags, at);
}

UINT CMainFrame::Track(HMENU menu, UINT flags, POINT at) {
    const fw::ScopedFlag busy{inputBusy_};
    toolTips_.Begin();
    return static_cast<UINT>(::TrackPopupMenuEx(menu, flags, at.x, at.y, Handle(), nullptr));
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
        menus_.AddIcon(command, [command, this] {
            const launch::CommandEntry entry = launch::LoadCommandEntry(command, settings_);
            return entry.HasIcon() ? fw::ExtractSmallIcon(entry.iconFile, entry.iconIndex) : fw::UniqueIcon{};
        });
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
