#include "launch/page_view.h"

#include <utility>

#include "framework/dpi.h"
#include "framework/gdi.h"
#include "launch/logic/options_fit.h"

namespace korvane::launch {
namespace {

// At 96 dpi.
constexpr int kLineHeight = 16;

// A window is not told that the focus has come to a control somewhere inside it. There is one view at a time.
HWND g_watchingView = nullptr;
HHOOK g_focusHook = nullptr;

LRESULT CALLBACK OnComputerBasedTraining(int code, WPARAM wparam, LPARAM lparam) noexcept {
    // What is clicked is on view already, and must not move away under the mouse.
    if (code == HCBT_SETFOCUS && ::GetKeyState(VK_LBUTTON) >= 0 &&
        ::IsChild(g_watchingView, reinterpret_cast<HWND>(wparam)))
        ::PostMessageW(g_watchingView, PageView::kFocusMoved, wparam, 0);
    return ::CallNextHookEx(g_focusHook, code, wparam, lparam);
}

void StopWatching(HWND view) {
    if (g_watchingView != view) return;
    if (g_focusHook) ::UnhookWindowsHookEx(g_focusHook);
    g_focusHook = nullptr;
    g_watchingView = nullptr;
}

void StartWatching(HWND view) {
    StopWatching(g_watchingView);
    g_watchingView = view;
    g_focusHook =
        ::SetWindowsHookExW(WH_CBT, &OnComputerBasedTraining, ::GetModuleHandleW(nullptr), ::GetCurrentThreadId());
}

void SetBar(HWND view, int bar, int page, int extent) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_PAGE | SIF_RANGE | SIF_POS;
    info.nMax = page - 1;
    info.nPage = static_cast<UINT>(extent);
    ::SetScrollInfo(view, bar, &info, TRUE);
}

} // namespace

PageView::~PageView() {
    StopWatching(Handle());
}

bool PageView::Open(HWND dialog, HWND before) {
    if (!Create({.style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_VSCROLL | WS_HSCROLL,
                 .extendedStyle = WS_EX_CONTROLPARENT,
                 .parent = dialog}))
        return false;
    ::SetWindowPos(Handle(), before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    StartWatching(Handle());
    return true;
}

fw::Reply PageView::OnGone(const fw::Message& message) {
    StopWatching(message.window);
    return fw::kPassOn;
}

void PageView::Show(const base::Rect& place, base::Size page) {
    page_ = page;
    ::SetWindowPos(Handle(), nullptr, place.left, place.top, place.Width(), place.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
    // A bar that comes takes room in the other direction, so both are set until both know.
    for (int round = 0; round < 2; ++round) {
        const base::Size shown = fw::ClientRect(Handle()).Extent();
        SetBar(Handle(), SB_VERT, page_.height, shown.height);
        SetBar(Handle(), SB_HORZ, page_.width, shown.width);
    }
    ScrollTo({});
}

int PageView::BarPosition(int bar, UINT command, int position) const {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    ::GetScrollInfo(Handle(), bar, &info);
    const int line = fw::Scale()(kLineHeight);
    switch (command) {
    case SB_LINEUP:
        return position - line;
    case SB_LINEDOWN:
        return position + line;
    case SB_PAGEUP:
        return position - static_cast<int>(info.nPage);
    case SB_PAGEDOWN:
        return position + static_cast<int>(info.nPage);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return info.nTrackPos;
    case SB_TOP:
        return info.nMin;
    case SB_BOTTOM:
        return info.nMax;
    default:
        return position;
    }
}

fw::Reply PageView::OnVerticalBar(const fw::Message& message) {
    ScrollTo({position_.x, BarPosition(SB_VERT, LOWORD(message.wparam), position_.y)});
    return 0;
}

fw::Reply PageView::OnHorizontalBar(const fw::Message& message) {
    ScrollTo({BarPosition(SB_HORZ, LOWORD(message.wparam), position_.x), position_.y});
    return 0;
}

void PageView::OnWheel(const fw::Message& message) {
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int extent = fw::ClientRect(Handle()).Height();
    const int step = lines == WHEEL_PAGESCROLL ? extent : static_cast<int>(lines) * fw::Scale()(kLineHeight);
    wheel_ += GET_WHEEL_DELTA_WPARAM(message.wparam);
    const int pixels = ::MulDiv(wheel_, step, WHEEL_DELTA);
    if (pixels == 0) return;
    wheel_ = 0;
    ScrollTo({position_.x, position_.y - pixels});
}

void PageView::OnFocusMoved(const fw::Message& message) {
    const auto control = reinterpret_cast<HWND>(message.wparam);
    // It may have gone on, or be gone.
    if (::GetFocus() != control || !::IsChild(Handle(), control)) return;
    RECT r = fw::ToWindows(fw::WindowRect(control));
    ::MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&r), 2);
    const base::Size shown = fw::ClientRect(Handle()).Extent();
    ScrollTo({ScrolledTo(position_.x, shown.width, position_.x + r.left, position_.x + r.right),
              ScrolledTo(position_.y, shown.height, position_.y + r.top, position_.y + r.bottom)});
}

bool PageView::OnEraseBackground(HDC dc) {
    const RECT all = fw::ToWindows(fw::ClientRect(Handle()));
    ::FillRect(dc, &all, ::GetSysColorBrush(COLOR_WINDOW));
    return true;
}

void PageView::ScrollTo(base::Point position) {
    const base::Size shown = fw::ClientRect(Handle()).Extent();
    position_ = {ScrollPosition(position.x, shown.width, page_.width),
                 ScrollPosition(position.y, shown.height, page_.height)};
    for (const auto& [bar, at] : {std::pair{SB_VERT, position_.y}, std::pair{SB_HORZ, position_.x}})
        ::SetScrollPos(Handle(), bar, at, TRUE);
    for (HWND page = ::GetWindow(Handle(), GW_CHILD); page; page = ::GetWindow(page, GW_HWNDNEXT))
        ::SetWindowPos(page, nullptr, -position_.x, -position_.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace korvane::launch
