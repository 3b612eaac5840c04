#include "app/win_shell.h"

#include "framework/abnormal_end.h"
#include "framework/gdi.h"

namespace korvane::app {
namespace {

static_assert(static_cast<UINT>(Edge::kTop) == ABE_TOP && static_cast<UINT>(Edge::kBottom) == ABE_BOTTOM);
static_assert(kShellMessage == 0x8001);

// What the shell would otherwise keep reserved for a process that ended on its own.
HWND registeredWindow = nullptr;

void GiveStripBack() {
    if (!registeredWindow) return;
    APPBARDATA data{};
    data.cbSize = sizeof data;
    data.hWnd = registeredWindow;
    data.uCallbackMessage = kShellMessage;
    registeredWindow = nullptr;
    ::SHAppBarMessage(ABM_REMOVE, &data);
}

} // namespace

WinShell::~WinShell() {
    if (window_ && registeredWindow == window_) GiveStripBack();
}

APPBARDATA WinShell::Data() const {
    APPBARDATA data{};
    data.cbSize = sizeof data;
    data.hWnd = window_;
    data.uCallbackMessage = kShellMessage;
    data.uEdge = static_cast<UINT>(edge_);
    return data;
}

APPBARDATA WinShell::Data(Edge edge, LPARAM lparam) const {
    APPBARDATA data = Data();
    data.uEdge = static_cast<UINT>(edge);
    data.lParam = lparam;
    return data;
}

bool WinShell::Register() {
    fw::GuardAgainstAbnormalEnd();
    fw::SetLastAct(&GiveStripBack);
    APPBARDATA data = Data();
    registeredWindow = window_;
    return ::SHAppBarMessage(ABM_NEW, &data) != 0;
}

void WinShell::Unregister() {
    registeredWindow = nullptr;
    APPBARDATA data = Data();
    ::SHAppBarMessage(ABM_REMOVE, &data);
}

base::Rect WinShell::Place(DWORD message, Edge edge, const base::Rect& wanted) const {
    APPBARDATA data = Data(edge);
    data.rc = fw::ToWindows(wanted);
    ::SHAppBarMessage(message, &data);
    return fw::FromWindows(data.rc);
}

base::Rect WinShell::QueryPlace(Edge edge, const base::Rect& wanted) {
    edge_ = edge;
    return Place(ABM_QUERYPOS, edge, wanted);
}

base::Rect WinShell::ReservePlace(Edge edge, const base::Rect& wanted) {
    edge_ = edge;
    return Place(ABM_SETPOS, edge, wanted);
}

bool WinShell::OtherBarHidesAt(Edge edge) {
    APPBARDATA data = Data(edge);
    const UINT_PTR bar = ::SHAppBarMessage(ABM_GETAUTOHIDEBAR, &data);
    return bar != 0 && reinterpret_cast<HWND>(bar) != window_;
}

bool WinShell::SetAutoHide(Edge edge, bool on) {
    APPBARDATA data = Data(edge, on ? TRUE : FALSE);
    return ::SHAppBarMessage(ABM_SETAUTOHIDEBAR, &data) != 0;
}

std::optional<base::Rect> WinShell::TaskBar() {
    APPBARDATA data = Data();
    if (::SHAppBarMessage(ABM_GETTASKBARPOS, &data) == 0) return std::nullopt;
    return fw::FromWindows(data.rc);
}

void WinShell::TellPlaceChanged(Edge edge) {
    APPBARDATA data = Data(edge);
    ::SHAppBarMessage(ABM_WINDOWPOSCHANGED, &data);
}

void WinShell::TellActivated(Edge edge, bool active) {
    APPBARDATA data = Data(edge, active ? TRUE : FALSE);
    ::SHAppBarMessage(ABM_ACTIVATE, &data);
}

} // namespace korvane::app
