#include "search/edit_no_caret.h"

#include <optional>

namespace korvane::search {
namespace {

// How a key scrolls, as WM_VSCROLL has it.
std::optional<WORD> ScrollingOf(WPARAM key) {
    switch (key) {
    case VK_UP:
    case VK_LEFT:
        return WORD{SB_LINEUP};
    case VK_DOWN:
    case VK_RIGHT:
        return WORD{SB_LINEDOWN};
    case VK_PRIOR:
        return WORD{SB_PAGEUP};
    case VK_NEXT:
        return WORD{SB_PAGEDOWN};
    case VK_HOME:
        return WORD{SB_TOP};
    case VK_END:
        return WORD{SB_BOTTOM};
    default:
        return std::nullopt;
    }
}

} // namespace

LRESULT CEditNoCaret::OnSetFocus(const fw::Message& message) {
    const LRESULT result = Default(message);
    // The control's own calls to a caret that there is not fail and do no harm.
    ::DestroyCaret();
    return result;
}

LRESULT CEditNoCaret::OnGetDialogCode(const fw::Message&) {
    // A control of several lines would keep Tab, Enter and Esc to itself (and close its parent with Esc, which here is
    // only a page of the dialog), and all of it would be selected when the focus comes.
    return DLGC_WANTARROWS | DLGC_WANTCHARS;
}

fw::Reply CEditNoCaret::OnKeyDown(const fw::Message& message) {
    // With Shift the keys select, as ever.
    const auto scrolling = ScrollingOf(message.wparam);
    if (!scrolling || ::GetKeyState(VK_SHIFT) < 0) return fw::kPassOn;
    ::SendMessageW(Handle(), WM_VSCROLL, MAKEWPARAM(*scrolling, 0), 0);
    return LRESULT{0};
}

fw::Reply CEditNoCaret::OnCharacter(const fw::Message& message) {
    constexpr WPARAM kCtrlA = 1;
    if (message.wparam != kCtrlA) return fw::kPassOn;
    ::SendMessageW(Handle(), EM_SETSEL, 0, -1);
    return LRESULT{0};
}

fw::Reply CEditNoCaret::OnCopy(const fw::Message& message) {
    DWORD first = 0;
    DWORD last = 0;
    ::SendMessageW(Handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    if (first != last) return fw::kPassOn;
    // Nothing shows where a selection by keyboard would begin, so without one all is meant.
    ::SendMessageW(Handle(), EM_SETSEL, 0, -1);
    Default(message);
    ::SendMessageW(Handle(), EM_SETSEL, first, static_cast<LPARAM>(last));
    return LRESULT{0};
}

} // namespace korvane::search
