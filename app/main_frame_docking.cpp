// The frame as docking moves it, and the messages that make it move.
#include "app/logic/floating_window.h"
#include "app/logic/start_checks.h"
#include "app/logic/typing_rules.h"
#include "app/main_frame.h"
#include "framework/centred_message_box.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/monitors.h"
#include "framework/scoped_flag.h"
#include "framework/string_table.h"
#include "framework/windows_version.h"
#include "settings/logic/setting_keys.h"
#include "settings/logic/window_placement.h"

namespace korvane::app {

namespace keys = settings::keys;

namespace {

constexpr DWORD kClipping = WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
constexpr DWORD kFloatingStyle = WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX | kClipping;
constexpr DWORD kFloatingExtendedStyle = WS_EX_APPWINDOW | WS_EX_WINDOWEDGE;
constexpr DWORD kDockedStyle = WS_POPUP | kClipping;
// Being topmost is not a style that could be set: Windows derives it from the z-order.
constexpr DWORD kDockedExtendedStyle = WS_EX_TOOLWINDOW;

constexpr UINT kInPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

void ChangeBits(HWND window, int index, DWORD removed, DWORD added) {
    const auto bits = static_cast<DWORD>(::GetWindowLongPtrW(window, index));
    ::SetWindowLongPtrW(window, index, static_cast<LONG_PTR>((bits & ~removed) | added));
}

void ChangeStyle(HWND window, DWORD removed, DWORD added, DWORD removedExtended, DWORD addedExtended) {
    ChangeBits(window, GWL_STYLE, removed, added);
    ChangeBits(window, GWL_EXSTYLE, removedExtended, addedExtended);
    ::SetWindowPos(window, nullptr, 0, 0, 0, 0, kInPlace | SWP_NOZORDER | SWP_FRAMECHANGED);
}

bool IsTopmost(HWND window) {
    return (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

HWND InsertAfter(ZOrder order) {
    switch (order) {
    case ZOrder::kTopmost:
        return HWND_TOPMOST;
    case ZOrder::kNotTopmost:
        return HWND_NOTOPMOST;
    case ZOrder::kBottom:
        return HWND_BOTTOM;
    case ZOrder::kKeep:
    case ZOrder::kTop:
        break;
    }
    return HWND_TOP;
}

// Also the menus that a box opens by itself.
bool MenuIsOpen() {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    return ::GetGUIThreadInfo(::GetCurrentThreadId(), &thread) && (thread.flags & GUI_INMENUMODE) != 0;
}

} // namespace

bool CMainFrame::CreateFrame() {
    const std::wstring title = fw::LoadText(IDS_PRODUCT);
    // Before it owns its tooltips: a window that others already stand above by right does not always become topmost.
    const DWORD order = StartsDocked() ? WS_EX_TOPMOST : 0;
    if (Create({.text = title.c_str(), .style = kFloatingStyle, .extendedStyle = kFloatingExtendedStyle | order}))
        return true;
    // What failed inside the creation says more than what Windows leaves behind after it.
    if (creationError_ != ERROR_SUCCESS) ::SetLastError(creationError_);
    return false;
}

bool CMainFrame::StartsDocked() const {
    return settings_.Read(keys::SaveWindowPlacement) == 1 && settings_.Read(keys::DefaultDesktopBarMode) == 1;
}

void CMainFrame::ShowDockedFirst() {
    const base::Rect place = Place();
    // A docked bar is neither minimised nor maximised, whatever its shortcut asks for. The shortcut is asked all the
    // same: otherwise its answer would become of the bar when it next docks or floats.
    ::ShowWindow(Handle(), SW_SHOWDEFAULT);
    if (::IsIconic(Handle()) || ::IsZoomed(Handle())) ::ShowWindow(Handle(), SW_RESTORE);
    ::SetWindowPos(Handle(), nullptr, place.left, place.top, place.Width(), place.Height(),
                   SWP_SHOWWINDOW | SWP_NOZORDER);
}

base::Size CMainFrame::Borders() const {
    RECT frame{};
    ::AdjustWindowRectEx(&frame, kFloatingStyle, FALSE, kFloatingExtendedStyle);
    return fw::FromWindows(frame).Extent();
}

base::Rect CMainFrame::WorkAreaAt(const base::Rect& place) const {
    return fw::WorkAreaAt(place);
}

base::Rect CMainFrame::Reachable(const base::Rect& place) const {
    const std::vector<base::Rect> workAreas = fw::WorkAreas();
    if (const auto reachable = settings::ReachableRect(place, workAreas, fw::Scale())) return *reachable;
    const base::Rect primary = workAreas.empty() ? base::Rect{} : workAreas.front();
    return DefaultFloatingRect(primary, Borders(), fw::Scale());
}

base::Rect CMainFrame::Place() const {
    return fw::WindowRect(Handle());
}

bool CMainFrame::Visible() const {
    return ::IsWindowVisible(Handle()) != FALSE;
}

void CMainFrame::Hide() {
    if (!Visible()) return;
    wasActive_ = ::GetForegroundWindow() == Handle();
    // Another mode's rectangle means nothing to a minimised or maximised window.
    if (::IsIconic(Handle()) || ::IsZoomed(Handle())) ::ShowWindow(Handle(), SW_SHOWNOACTIVATE);
    ::ShowWindow(Handle(), SW_HIDE);
}

void CMainFrame::Show() {
    // Hidden, the bar lost the activation to whatever lay below it. Only what it had it takes back.
    ::ShowWindow(Handle(), wasActive_ ? SW_SHOW : SW_SHOWNA);
    if (wasActive_) ::SetForegroundWindow(Handle());
}

void CMainFrame::BecomeDocked() {
    ChangeStyle(Handle(), kFloatingStyle, kDockedStyle, kFloatingExtendedStyle, kDockedExtendedStyle);
}

void CMainFrame::BecomeFloating(bool topmost) {
    ChangeStyle(Handle(), kDockedStyle, kFloatingStyle, kDockedExtendedStyle, kFloatingExtendedStyle);
    SetZOrder(topmost ? ZOrder::kTopmost : ZOrder::kNotTopmost);
}

void CMainFrame::MoveTo(const base::Rect& place, ZOrder order) {
    const UINT keepOrder = order == ZOrder::kKeep ? SWP_NOZORDER : 0;
    ::SetWindowPos(Handle(), InsertAfter(order), place.left, place.top, place.Width(), place.Height(),
                   SWP_NOACTIVATE | keepOrder);
    ::UpdateWindow(Handle());
}

void CMainFrame::SetZOrder(ZOrder order) {
    if (order != ZOrder::kKeep) ::SetWindowPos(Handle(), InsertAfter(order), 0, 0, 0, 0, kInPlace);
}

void CMainFrame::SlideTo(int top, bool coming) {
    const base::Rect place = Place();
    if (place.top == top) return;
    ::SetWindowPos(Handle(), nullptr, place.left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (coming) {
        ::RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    } else {
        ::UpdateWindow(::GetDesktopWindow());
    }
}

void CMainFrame::ShowControls(bool shown) {
    // Windows before 7 clips the controls to the strip well enough.
    if (fw::IsWindowsAtLeast(fw::kWindows7)) controls_.ShowWithBar(shown, clockShown_);
}

bool CMainFrame::CursorInside() const {
    POINT cursor{};
    return ::GetCursorPos(&cursor) && Place().Contains({cursor.x, cursor.y});
}

bool CMainFrame::InUse() const {
    return inputBusy_ || openHistory_ || openCalendars_ > 0 || modalMessageOpen_ || MenuIsOpen() ||
           IsBox(::GetCapture()) || drop_.DraggedOver();
}

bool CMainFrame::HasKeyboard() const {
    return ::GetForegroundWindow() == Handle() && ::IsChild(Handle(), ::GetFocus());
}

bool CMainFrame::IsBox(HWND window) const {
    return window && (window == controls_.commandBox.Handle() || window == controls_.searchBox.Handle());
}

void CMainFrame::WatchTyping(const MSG& message) {
    switch (message.message) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
        if (IsBox(message.hwnd)) docking_.OnTyping();
        break;
    case WM_KEYDOWN:
        switch (StepOfKey(static_cast<unsigned>(message.wParam))) {
        case TypingStep::kNone:
            break;
        case TypingStep::kBegins:
            docking_.OnTyping();
            break;
        case TypingStep::kEnds:
            docking_.OnTypingEnded();
            break;
        }
        break;
    default:
        break;
    }
}

WindowId CMainFrame::WindowAbove() const {
    return reinterpret_cast<WindowId>(::GetWindow(Handle(), GW_HWNDPREV));
}

bool CMainFrame::PutBehind(WindowId window, ZOrder order) {
    const auto above = reinterpret_cast<HWND>(window);
    if (!::IsWindow(above)) return false;
    if (order == ZOrder::kTopmost) {
        // At the bottom the bar has lost its being topmost, and behind another window it would not get it back.
        if (!IsTopmost(above)) return false;
        SetZOrder(order);
    }
    return ::SetWindowPos(Handle(), above, 0, 0, 0, 0, kInPlace);
}

void CMainFrame::StartTimer(DockTimer timer, std::chrono::milliseconds period) {
    const auto id = static_cast<UINT_PTR>(timer);
    dockTimers_.at(id - 1).Start(Handle(), id, period);
}

void CMainFrame::StopTimer(DockTimer timer) {
    dockTimers_.at(static_cast<std::size_t>(timer) - 1).Stop();
}

std::chrono::milliseconds CMainFrame::Now() const {
    return std::chrono::milliseconds{::GetTickCount64()};
}

void CMainFrame::Wait(std::chrono::milliseconds time) {
    ::Sleep(static_cast<DWORD>(time.count()));
}

void CMainFrame::DockingChanged() {
    // The exit button belongs to the docked bar; a floating one has the close box of its caption.
    controls_.ShowExit(docking_.Docked());
    LayOut();
}

fw::Reply CMainFrame::Dispatch(const fw::Message& message) {
    if (message.id != NotificationIcon::AreaCreatedMessage() || !created_) return Window::Dispatch(message);
    notificationIcon_.OnAreaCreated();
    docking_.OnShellRestarted();
    return LRESULT{0};
}

fw::Reply CMainFrame::OnPlaceChanged(const fw::Message&) {
    docking_.OnPlaceChanged();
    // Sizes and moves are made of it.
    return fw::kPassOn;
}

void CMainFrame::OnShellEvent(const fw::Message& message) {
    docking_.OnShellEvent(static_cast<ShellEvent>(message.wparam), message.lparam != 0);
}

void CMainFrame::OnDisplayChange(UINT, SIZE screen) {
    // While the message is up the screen may change again; it is told once.
    if (screen.cx < kNarrowestScreenPx && !narrowReported_) {
        narrowReported_ = true;
        {
            const fw::ScopedFlag modal{modalMessageOpen_};
            fw::ShowMessageById(Handle(), IDS_SCREEN_BECAME_NARROW, MB_ICONEXCLAMATION, fw::Centring::kNone);
        }
        askBeforeExit_ = false;
        ::PostMessageW(Handle(), WM_CLOSE, 0, 0);
    }
    docking_.DockAgain();
}

void CMainFrame::ShowBarUnderCursor() {
    if (!docking_.ShowOnDemand()) return;
    // So the bar stays out: it hides as soon as the cursor is elsewhere.
    const base::Rect box = fw::WindowRect(controls_.searchBox.Handle());
    ::SetCursorPos(box.left, (box.top + box.bottom) / 2);
}

void CMainFrame::SummonBar() {
    // What the bar asks has to be answered first.
    if (!::IsWindowEnabled(Handle())) {
        ::SetForegroundWindow(::GetLastActivePopup(Handle()));
        return;
    }
    if (inputBusy_) ::EndMenu();
    ShowBarUnderCursor();
    keyboard_.Summon(search::Box::kSearch);
    docking_.OnTyping();
}

void CMainFrame::ToggleAutoHide() {
    switch (docking_.ToggleAutoHide()) {
    case AutoHideResult::kDone:
        break;
    case AutoHideResult::kEdgeTaken:
        Warn(fw::LoadText(IDS_AUTO_HIDE_TAKEN));
        break;
    case AutoHideResult::kRefused:
        Warn(fw::LoadText(IDS_AUTO_HIDE_FAILED));
        break;
    }
}

void CMainFrame::ToggleTopmost() {
    // Its key arrives in both modes, but only a floating bar has the choice.
    if (docking_.Docked()) return;
    const bool topmost = settings_.Read(keys::TopMostWindow) <= 0;
    settings_.Write(keys::TopMostWindow, topmost ? 1 : 0);
    SetZOrder(topmost ? ZOrder::kTopmost : ZOrder::kNotTopmost);
}

} // namespace korvane::app
