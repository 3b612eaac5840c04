#include "app/main_frame.h"

#include <shlwapi.h>

#include "about/program_version.h"
#include "app/bar_font.h"
#include "app/logic/command_routes.h"
#include "app/logic/floating_window.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/high_contrast.h"
#include "framework/icons.h"
#include "framework/late_bound.h"
#include "framework/scoped_flag.h"
#include "framework/string_table.h"
#include "framework/windows_version.h"
#include "launch/launch_menu.h"
#include "search/code_pages.h"
#include "search/logic/command_selection.h"
#include "search/search_tools.h"
#include "settings/logic/bar_colour.h"
#include "settings/logic/data_folder_path.h"
#include "settings/logic/setting_keys.h"
#include "settings/logic/window_placement.h"

namespace korvane::app {

namespace keys = settings::keys;

namespace {

// The prompt-like picture before the command input box.
constexpr const wchar_t* kCommandIconFile = L"shell32.dll";
constexpr int kCommandIconIndex = 24;

} // namespace

CMainFrame::CMainFrame(fw::MessageLoop& loop, about::HelpSession& help, FramePlaces places)
    : loop_{loop}, help_{help}, places_{std::move(places)}, settings_{HKEY_CURRENT_USER, places_.settingsKey},
      controls_{*this}, encoder_{search::WindowsTextEncoder()},
      clipboard_{kClipboardTimer, [this] { return clipboardMonitored_ && !controls_.searchBox.Composing(); },
                 [this](const std::wstring& text) { controls_.searchBox.SetText(text); }} {}

CMainFrame::~CMainFrame() {
    // A loop that was told to quit leaves the window behind, and its pop-ups tell the frame that they are gone.
    if (Handle()) fw::DestroyOwnedPopUps(Handle());
}

void CMainFrame::ShowFirst(int showCommand) {
    if (docking_.Docked()) {
        ShowDockedFirst();
    } else {
        ::ShowWindow(Handle(), showCommand);
    }
    ::UpdateWindow(Handle());
    // The children too, before what could wait until the bar is to be seen.
    ::RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    clipboard_.Start(Handle());
    // What is dragged to a hidden bar's strip calls it out as the mouse alone does.
    drop_.Start(Handle(), [this] { docking_.OnHitTest(); });
    launch::BuildLaunchMenu(menus_, settings_);
    search::DetectSearchTools(settings_);
    versionText_ = about::ReadVersionText();
    // Last, because the shell is waited for: what other programs send meanwhile finds a bar that is ready.
    notificationIcon_.Add(Handle(), smallIcon_.Get());
}

int CMainFrame::OnCreate(const CREATESTRUCTW&) {
    if (!OpenStores() || !CommandFileIsThere()) return -1;
    RegisterHotKeys();

    icon_ = fw::LoadResourceIcon(IDI_KORVANE, ::GetSystemMetrics(SM_CXICON));
    smallIcon_ = fw::LoadResourceIcon(IDI_KORVANE, ::GetSystemMetrics(SM_CXSMICON));
    ::SendMessageW(Handle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon_.Get()));
    ::SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_.Get()));

    if (!CreateChildren()) return -1;
    histories_.RestoreIfWanted(settings_);
    systemColourAtStart_ = systemColour_;
    BeginDocking();
    ApplySettings();
    filter_ = loop_.Add(*this);
    toolTips_.Watch(loop_, Handle());
    created_ = true;
    return 0;
}

bool CMainFrame::OpenStores() {
    const settings::DataFolder folder = places_.findDataFolder();
    if (!folder.path) {
        creationError_ = folder.error;
        ReportError(folder.error);
        return false;
    }
    standardCommands_.emplace(settings::CommandFileIn(*folder.path));
    userCommands_.emplace(settings::UserCommandFileIn(*folder.path));
    return true;
}

bool CMainFrame::CommandFileIsThere() {
    if (::PathFileExistsW(standardCommands_->Path().c_str())) return true;
    creationError_ = ::GetLastError();
    const fw::ScopedFlag modal{modalMessageOpen_};
    fw::ShowMessageById(Handle(), IDS_REINSTALL, MB_ICONERROR);
    return false;
}

void CMainFrame::RegisterHotKeys() {
    showBarKey_.Register(Handle(), HOTKEY_SHOW_BAR, MOD_ALT | MOD_WIN, 'Z');
    launchMenuKey_.Register(Handle(), HOTKEY_LAUNCH_MENU, MOD_ALT | MOD_WIN, 'X');
}

bool CMainFrame::CreateChildren() {
    const HINSTANCE instance = ::GetModuleHandleW(nullptr);
    barFont_ = MakeBarFont(fw::IsWindowsAtLeast(fw::kWindows8));
    accelerators_.Reset(::LoadAcceleratorsW(instance, MAKEINTRESOURCEW(IDA_BAR)));
    commandIcon_ = fw::ExtractSmallIcon(kCommandIconFile, kCommandIconIndex);
    ReadColours();
    layout_ = LayoutForClient();
    if (!menus_.Create() || !controls_.Create(Handle(), barFont_.Get(), layout_)) {
        creationError_ = ::GetLastError();
        return false;
    }
    keyboard_.Begin(Handle());
    NameMenusForThisWindows();
    AddMenuImages();
    return true;
}

void CMainFrame::BeginDocking() {
    base::Rect floating;
    if (settings_.Read(keys::SaveWindowPlacement) == 1) {
        if (const auto bytes = settings_.Read(keys::WindowPosRect))
            floating = settings::DecodeRect(*bytes).value_or(floating);
    }
    shell_.SetWindow(Handle());
    docking_.Begin({.windows8OrLater = fw::IsWindowsAtLeast(fw::kWindows8), .scale = fw::Scale()}, StartsDocked(),
                   WithBarHeight(Reachable(floating), Borders(), fw::Scale()));
}

void CMainFrame::ApplySettings() {
    ReadColours();
    ApplyColour();
    controls_.clock.SetFormat(controls::ClockFormatOf(settings_.Read(keys::TimeBarClockFormat)));
    clipboardMonitored_ = settings_.Read(keys::MonitorClipBoard) > 0;
    taskNameChoice_ = settings_.Read(keys::TaskMenuAppName);
    clockShown_ = settings_.Read(keys::ShowTimeBarClock) > 0;
    controls_.ShowClock(clockShown_);
    controls_.ReloadLaunchButtons(settings_);
    BuildSearchCommandMenu();
    // The first time it can wait until the bar is to be seen.
    if (created_) launch::BuildLaunchMenu(menus_, settings_);
    docking_.ApplyMode(created_ ? ShowAtEnd::kYes : ShowAtEnd::kNo);
}

void CMainFrame::ReadColours() {
    // Without a desktop window manager there is no such colour, and black stands for it.
    systemColour_ = base::Colour::FromArgb(fw::ColorizationColour().value_or(0));
    const base::Colour user = settings_.Read(keys::UserBarColor, systemColourAtStart_.value_or(systemColour_));
    // In high contrast no program has a colour of its own.
    barColour_ = fw::HighContrast() ? base::Colour{::GetSysColor(COLOR_WINDOW)}
                                    : settings::BarColour(settings_.Read(keys::DefaultBarColor), systemColour_, user);
}

void CMainFrame::ApplyColour() {
    barBrush_.Reset(::CreateSolidBrush(fw::ToWindows(barColour_)));
    controls_.SetColour(barColour_);
    RedrawAll();
}

void CMainFrame::RedrawAll() const {
    ::RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

BarLayout CMainFrame::LayoutForClient() const {
    return LayOutBar(fw::ClientRect(Handle()).Width(), {.clockShown = clockShown_,
                                                        .windowMode = !docking_.Docked(),
                                                        .windows7OrLater = fw::IsWindowsAtLeast(fw::kWindows7),
                                                        .windows8OrLater = fw::IsWindowsAtLeast(fw::kWindows8),
                                                        .scale = fw::Scale()});
}

void CMainFrame::LayOut() {
    // Sizes also arrive while the frame is being created.
    if (!controls_.exit.Handle()) return;
    layout_ = LayoutForClient();
    laidOutWidth_ = fw::ClientRect(Handle()).Width();
    controls_.Place(layout_);
    RememberWindowRect();
    RedrawAll();
}

void CMainFrame::RememberWindowRect() {
    if (!::IsIconic(Handle()) && !::IsZoomed(Handle())) docking_.OnFloatingRect(fw::WindowRect(Handle()));
}

fw::Reply CMainFrame::OnClose() {
    // Told once more while the question stands, it waits for the answer to that.
    if (exitAsked_) return LRESULT{0};
    if (askBeforeExit_ && settings_.Read(keys::ConfirmExitApp) == 0) {
        const fw::ScopedFlag asked{exitAsked_};
        if (Ask(fw::LoadText(IDS_CONFIRM_EXIT)) != IDYES) return LRESULT{0};
    }
    SaveState();
    docking_.Leave();
    return fw::kPassOn;
}

void CMainFrame::OnEndSession(bool ending) {
    if (!ending) return;
    SaveState();
    docking_.Leave();
}

void CMainFrame::SaveState() {
    if (settings_.Read(keys::SaveWindowPlacement) == 1) {
        settings_.Write(keys::DefaultDesktopBarMode, docking_.Docked() ? 1 : 0);
        settings_.Write(keys::WindowPosRect, settings::EncodeRect(docking_.FloatingRect()));
    }
    histories_.SaveIfWanted(settings_);
}

void CMainFrame::OnDestroy() {
    notificationIcon_.Remove();
    help_.CloseWindows();
    filter_.Reset();
    showBarKey_.Unregister();
    launchMenuKey_.Unregister();
    clipboard_.Stop();
    drop_.Stop();
    // A creation that fails late has no closing before it.
    docking_.Leave();
    // A frame that was never there does not end the loop: the message would close the box that reports the failure.
    if (created_) ::PostQuitMessage(0);
}

fw::Reply CMainFrame::OnSize(UINT kind, SIZE client) {
    // The first showing and the return from the task bar report a size that is none the newer.
    if (kind != SIZE_MINIMIZED && client.cx != laidOutWidth_) LayOut();
    return fw::kPassOn;
}

fw::Reply CMainFrame::OnMove(const fw::Message&) {
    if (::IsWindowVisible(Handle())) RememberWindowRect();
    return fw::kPassOn;
}

fw::Reply CMainFrame::OnTimer(UINT_PTR id) {
    if (clipboard_.OnTimer(id) || notificationIcon_.OnTimer(id)) return LRESULT{0};
    if (id < 1 || id > dockTimers_.size()) return fw::kPassOn;
    docking_.OnTimer(static_cast<DockTimer>(id));
    return LRESULT{0};
}

void CMainFrame::OnClipboardUpdate(const fw::Message&) {
    clipboard_.OnUpdate();
}

void CMainFrame::OnGetMinMaxInfo(MINMAXINFO& info) {
    if (docking_.Docked()) return;
    const base::Size borders = Borders();
    const LONG height = fw::Scale()(kBarHeightPx) + borders.height;
    info.ptMinTrackSize.x = std::min<LONG>(NarrowestBarPx(fw::Scale()) + borders.width, info.ptMaxSize.x);
    info.ptMinTrackSize.y = info.ptMaxTrackSize.y = info.ptMaxSize.y = height;
}

LRESULT CMainFrame::OnHitTest(const fw::Message& message) {
    docking_.OnHitTest();
    // The floating bar can be widened but never made taller: the upper border moves it, the lower one does nothing.
    switch (const LRESULT place = Default(message)) {
    case HTTOP:
    case HTTOPLEFT:
    case HTTOPRIGHT:
        return HTCAPTION;
    case HTBOTTOM:
    case HTBOTTOMLEFT:
    case HTBOTTOMRIGHT:
        return HTCLIENT;
    default:
        return place;
    }
}

bool CMainFrame::OnEraseBackground(HDC dc) {
    const RECT client = fw::ToWindows(fw::ClientRect(Handle()));
    ::FillRect(dc, &client, barBrush_.Get());
    for (const base::Rect& region : {layout_.commandRegion, layout_.searchRegion}) {
        const RECT field = fw::ToWindows(region);
        ::FillRect(dc, &field, ::GetSysColorBrush(COLOR_WINDOW));
        // The bar is of the fields' colour then.
        if (fw::HighContrast()) ::FrameRect(dc, &field, ::GetSysColorBrush(COLOR_WINDOWTEXT));
    }
    const base::Rect& icon = layout_.commandIcon;
    if (commandIcon_)
        ::DrawIconEx(dc, icon.left, icon.top, commandIcon_.Get(), icon.Width(), icon.Height(), 0, nullptr, DI_NORMAL);
    return true;
}

void CMainFrame::OnSetFocus(const fw::Message&) {
    ::SetFocus(keyboard_.BoxWindow(keyboard_.Home()).Handle());
}

fw::Reply CMainFrame::OnActivate(const fw::Message& message) {
    const UINT how = LOWORD(message.wparam);
    // Whatever opens takes the activation.
    if (how == WA_INACTIVE) toolTips_.Begin();
    docking_.OnActivated(how != WA_INACTIVE);
    const auto other = reinterpret_cast<HWND>(message.lparam);
    if (how != WA_INACTIVE && !BelongsTo(Handle(), other)) docking_.OnBroughtToFront();
    caption_.OnActivate(Handle(), how, other);
    // On the way back the default procedure gives the focus to the frame, and the frame passes it on.
    return fw::kPassOn;
}

fw::Reply CMainFrame::OnActivateApp(const fw::Message& message) {
    const bool active = message.wparam != FALSE;
    if (!active) {
        keyboard_.ForgetOrigin();
        docking_.OnTypingEnded();
    }
    caption_.OnActivateApp(Handle(), active);
    return fw::kPassOn;
}

void CMainFrame::OnBoxFocused(UINT boxId) {
    keyboard_.SetHome(boxId == ID_SEARCH_BOX ? search::Box::kSearch : search::Box::kCommand);
}

void CMainFrame::OnColorizationChanged() {
    ReadColours();
    ApplyColour();
}

// WM_SYSCOLORCHANGE and WM_THEMECHANGED.
fw::Reply CMainFrame::OnColoursChanged(const fw::Message&) {
    OnColorizationChanged();
    return fw::kPassOn;
}

// Windows tells of high contrast before and after it has changed the colours, as it pleases.
fw::Reply CMainFrame::OnSettingChange(const fw::Message& message) {
    if (message.wparam == SPI_SETHIGHCONTRAST) OnColorizationChanged();
    return fw::kPassOn;
}

void CMainFrame::OnBoxChanged(UINT boxId) {
    const bool empty = ::GetWindowTextLengthW(::GetDlgItem(Handle(), static_cast<int>(boxId))) == 0;
    const HWND button = ::GetDlgItem(Handle(), static_cast<int>(boxId) + search::kRunButtonOffset);
    ::EnableWindow(button, !empty);
    ::RedrawWindow(button, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

// A control of the bar may know better than the frame what its notification means.
fw::Reply CMainFrame::OnControlCommand(const fw::Message& message) {
    if (message.lparam == 0) return fw::kPassOn;
    const fw::Reply reply = Reflect(message);
    // A pressed button has done its part; what is typed next belongs into a box.
    if (!reply && HIWORD(message.wparam) == BN_CLICKED) keyboard_.OnPressed(LOWORD(message.wparam));
    return reply;
}

fw::Reply CMainFrame::OnDrawItem(const fw::Message& message) {
    const fw::Reply menuItem = menus_.OnDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(message.lparam));
    return menuItem ? menuItem : Reflect(message);
}

fw::Reply CMainFrame::OnNotify(const fw::Message& message) {
    return Reflect(message);
}

void CMainFrame::OnHotKey(int id) {
    if (id == HOTKEY_SHOW_BAR) SummonBar();
    if (id == HOTKEY_LAUNCH_MENU && !modalMessageOpen_) TrackFromOutside(launch::LaunchPopup(menus_));
}

bool CMainFrame::PreTranslate(const MSG& message) {
    if (message.hwnd != Handle() && !::IsChild(Handle(), message.hwnd)) return false;
    WatchTyping(message);

    if (keyboard_.IsForEyes(message)) docking_.ShowOnDemand();
    const bool enterRuns = message.wParam == VK_RETURN && settings_.Read(keys::EnableEnterEvent) == 1;
    if (keyboard_.OnKey(message, enterRuns)) return true;
    if (message.message == WM_MOUSEWHEEL && OnWheel(message)) return true;
    if (message.message == WM_LBUTTONDOWN) keyboard_.Touch();
    MSG translated = message;
    return ::TranslateAcceleratorW(Handle(), accelerators_.Get(), &translated) ||
           ::IsDialogMessageW(Handle(), &translated);
}

} // namespace korvane::app
