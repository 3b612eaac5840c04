#include "controls/tool_tip_rest.h"

#include <commctrl.h>

#include <string_view>

#include "controls/logic/tool_tip_rest.h"

namespace korvane::controls {
namespace {

struct Change {
    HWND owner;
    BOOL active;
};

constexpr UINT_PTR kStopTimers = 1;

// A tooltip that is turned off is hidden, but on some Windows one whose delay has begun comes all the same.
LRESULT CALLBACK StopTimers(HWND tip, UINT id, WPARAM wparam, LPARAM lparam, UINT_PTR, DWORD_PTR) noexcept {
    return id == WM_TIMER ? 0 : ::DefSubclassProc(tip, id, wparam, lparam);
}

BOOL CALLBACK ChangeTip(HWND window, LPARAM parameter) noexcept {
    const auto& change = *reinterpret_cast<const Change*>(parameter);
    wchar_t name[32]{};
    if (::GetWindow(window, GW_OWNER) != change.owner || ::GetClassNameW(window, name, 32) == 0) return TRUE;
    if (std::wstring_view{name} != TOOLTIPS_CLASSW) return TRUE;
    ::SendMessageW(window, TTM_ACTIVATE, static_cast<WPARAM>(change.active), 0);
    if (change.active)
        ::RemoveWindowSubclass(window, &StopTimers, kStopTimers);
    else
        ::SetWindowSubclass(window, &StopTimers, kStopTimers, 0);
    return TRUE;
}

void SetActive(HWND owner, bool active) {
    Change change{owner, active};
    if (owner) ::EnumThreadWindows(::GetCurrentThreadId(), &ChangeTip, reinterpret_cast<LPARAM>(&change));
}

TipEvent EventOf(UINT message) {
    switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_HOTKEY:
    case WM_MOUSEWHEEL:
        return TipEvent::kKey;
    case WM_MOUSEMOVE:
        return TipEvent::kMouseMove;
    default:
        return TipEvent::kOther;
    }
}

} // namespace

void ToolTipRest::Watch(fw::MessageLoop& loop, HWND bar) {
    filter_ = loop.Add(*this);
    bar_ = bar;
}

void ToolTipRest::Begin() {
    resting_ = true;
    ::GetCursorPos(&mouse_);
    SetActive(bar_, false);
}

void ToolTipRest::End() {
    resting_ = false;
    SetActive(bar_, true);
}

bool ToolTipRest::PreTranslate(const MSG& message) {
    const bool moved = message.pt.x != mouse_.x || message.pt.y != mouse_.y;
    switch (ActionOn(EventOf(message.message), resting_, moved)) {
    case TipAction::kPutToRest:
        Begin();
        break;
    case TipAction::kWake:
        End();
        break;
    case TipAction::kNone:
        break;
    }
    return false;
}

} // namespace korvane::controls
