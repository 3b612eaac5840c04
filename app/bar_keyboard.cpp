#include "app/bar_keyboard.h"

#include <vector>

#include "app/task_list.h"
#include "res/ids.h"
#include "search/logic/command_selection.h"

namespace korvane::app {

using search::Box;

namespace {

bool Held(int key) {
    return ::GetKeyState(key) < 0;
}

// Those of a hot key that is still held arrive too.
bool IsModifier(WPARAM key) {
    return key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU || key == VK_LWIN || key == VK_RWIN;
}

bool IsBox(HWND control) {
    const int id = ::GetDlgCtrlID(control);
    return id == ID_COMMAND_BOX || id == ID_SEARCH_BOX;
}

bool CanGetKeyboard(HWND window, HWND bar) {
    return window != bar && ::IsWindow(window) && ::IsWindowVisible(window) && !::IsIconic(window) &&
           ::IsWindowEnabled(window);
}

} // namespace

search::CEditEx& BarKeyboard::BoxWindow(Box box) const {
    return box == Box::kSearch ? controls_.searchBox : controls_.commandBox;
}

search::CEditEx& BarKeyboard::BoxOf(HWND window) const {
    return BoxWindow(window == controls_.searchBox.Handle() ? Box::kSearch : Box::kCommand);
}

void BarKeyboard::Return() {
    if (::GetActiveWindow() == bar_) ::SetFocus(BoxWindow(home_).Handle());
}

void BarKeyboard::GoTo(Box box) {
    SetHome(box);
    Return();
}

void BarKeyboard::GoToAllOf(Box box) {
    GoTo(box);
    BoxWindow(box).SelectAll();
}

void BarKeyboard::OnPressed(UINT button) {
    if (button == ID_RUN_TYPED) SetHome(Box::kCommand);
    if (button == ID_RUN_SEARCH) SetHome(Box::kSearch);
    Return();
}

void BarKeyboard::Summon(Box box) {
    const HWND before = ::GetForegroundWindow();
    if (before && ::GetWindowThreadProcessId(before, nullptr) != ::GetCurrentThreadId()) origin_ = before;
    SetHome(box);
    if (::IsIconic(bar_)) ::ShowWindow(bar_, SW_RESTORE);
    ::SetForegroundWindow(bar_);
    GoToAllOf(box);
    untouched_ = true;
}

void BarKeyboard::Take(Box box) {
    SetHome(box);
    ::SetForegroundWindow(bar_);
    Return();
}

void BarKeyboard::Leave() {
    HWND target = CanGetKeyboard(origin_, bar_) ? origin_ : nullptr;
    origin_ = nullptr;
    if (!target) target = TopmostTask(bar_);
    // With nothing else open the desktop itself takes it.
    if (!target) target = ::GetShellWindow();
    if (target) ::SetForegroundWindow(target);
}

bool BarKeyboard::OnKey(const MSG& message, bool enterRuns) {
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return false;
    // The input method has keys of its own for all that follows.
    if (IsBox(message.hwnd) && BoxOf(message.hwnd).Composing()) return false;
    return OnBoxKey(message, enterRuns) || OnWalkKey(message);
}

bool BarKeyboard::OnBoxKey(const MSG& message, bool enterRuns) {
    if (!IsBox(message.hwnd)) return false;
    search::CEditEx& edit = BoxOf(message.hwnd);
    const search::KeyDecision decision = search::CommandForKey({.virtualKey = static_cast<unsigned>(message.wParam),
                                                                .controlId = ::GetDlgCtrlID(message.hwnd),
                                                                .enterEnabled = enterRuns,
                                                                .boxEmpty = edit.Empty(),
                                                                .untouched = untouched_,
                                                                .repeated = (HIWORD(message.lParam) & KF_REPEAT) != 0,
                                                                .control = Held(VK_CONTROL),
                                                                .shift = Held(VK_SHIFT),
                                                                .alt = (HIWORD(message.lParam) & KF_ALTDOWN) != 0});
    if (!IsModifier(message.wParam)) Touch();
    switch (decision.answer) {
    case search::KeyAnswer::kPassOn:
        return false;
    case search::KeyAnswer::kIgnore:
        break;
    case search::KeyAnswer::kRun:
        Post(static_cast<UINT>(decision.command));
        break;
    case search::KeyAnswer::kEmpty:
        edit.EmptyUndoably();
        break;
    case search::KeyAnswer::kLeave:
        Leave();
        break;
    }
    return true;
}

bool BarKeyboard::OnWalkKey(const MSG& message) {
    const WalkKey key = WalkKeyOf({.virtualKey = static_cast<unsigned>(message.wParam),
                                   .onButton = message.hwnd != bar_ && !IsBox(message.hwnd),
                                   .control = Held(VK_CONTROL),
                                   .shift = Held(VK_SHIFT),
                                   .alt = (HIWORD(message.lParam) & KF_ALTDOWN) != 0});
    switch (key) {
    case WalkKey::kNone:
        return false;
    case WalkKey::kMainMenu:
        Post(ID_OPEN_MAIN_MENU);
        return true;
    case WalkKey::kBack:
        Return();
        return true;
    case WalkKey::kPress:
        // The dialog manager would take Enter for a dialog's default button; the buttons know both keys themselves.
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
        return true;
    default:
        Walk(key);
        return true;
    }
}

void BarKeyboard::Walk(WalkKey key) {
    const HWND focus = ::GetFocus();
    const std::vector<HWND> windows = controls_.InReadingOrder();
    std::vector<WalkStop> stops;
    stops.reserve(windows.size());
    for (const HWND window : windows)
        stops.push_back({.box = IsBox(window),
                         .usable = ::IsWindowVisible(window) && ::IsWindowEnabled(window),
                         .current = window == focus});
    if (const auto next = NextStop(stops, key)) ::SetFocus(windows[*next]);
}

bool BarKeyboard::IsForEyes(const MSG& message) const {
    return message.message == WM_KEYDOWN && message.wParam != VK_ESCAPE && !IsModifier(message.wParam) &&
           !Held(VK_CONTROL) && (IsBox(message.hwnd) || message.wParam == VK_F6);
}

void BarKeyboard::Post(UINT command) const {
    ::PostMessageW(bar_, WM_COMMAND, command, 0);
}

} // namespace korvane::app
