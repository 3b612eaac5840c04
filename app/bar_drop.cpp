#include "app/bar_drop.h"

#include "res/ids.h"
#include "search/logic/typed_command.h"

namespace korvane::app {

using search::Box;

void BarDrop::Start(HWND bar, std::function<void()> draggedOver) {
    bar_ = bar;
    draggedOver_ = std::move(draggedOver);
    // Without it nothing can be dropped, and that shows in the pointer.
    static_cast<void>(target_.Start(bar, *this));
}

bool BarDrop::DraggedOver() const {
    // A program that dies while it drags leaves without a word.
    return over_ && (::GetAsyncKeyState(VK_LBUTTON) < 0 || ::GetAsyncKeyState(VK_RBUTTON) < 0);
}

HWND BarDrop::ControlAt(POINT at) const {
    ::ScreenToClient(bar_, &at);
    return ::ChildWindowFromPointEx(bar_, at, CWP_SKIPINVISIBLE);
}

DropPlace BarDrop::PlaceOf(HWND control) const {
    if (control == controls_.commandBox.Handle()) return DropPlace::kCommandBox;
    if (control == controls_.searchBox.Handle()) return DropPlace::kSearchBox;
    for (const controls::CToolButton& button : controls_.launchButtons)
        if (control == button.Handle()) return DropPlace::kLaunchButton;
    return DropPlace::kElsewhere;
}

DropAction BarDrop::ActionAt(HWND control, const fw::DragData& data) const {
    // A dialog of the bar is open: the boxes are not to be changed behind its back.
    if (!::IsWindowEnabled(bar_)) return DropAction::kRefuse;
    return ActionOfDrop(PlaceOf(control), {.text = data.HasText(), .files = data.HasFiles()});
}

bool BarDrop::OnDragOver(const fw::DragData& data, POINT at) {
    over_ = true;
    draggedOver_();
    return ActionAt(ControlAt(at), data) != DropAction::kRefuse;
}

void BarDrop::OnDrop(const fw::DragData& data, POINT at) {
    over_ = false;
    const HWND control = ControlAt(at);
    switch (ActionAt(control, data)) {
    case DropAction::kRefuse:
        break;
    case DropAction::kInsertText:
        InsertText(PlaceOf(control) == DropPlace::kSearchBox ? Box::kSearch : Box::kCommand, data.Text(), at);
        break;
    case DropAction::kEnterPaths:
        EnterPaths(QuotedPaths(data.Files()));
        break;
    case DropAction::kStartWith:
        start_(static_cast<UINT>(::GetDlgCtrlID(control)), QuotedPaths(data.Files()));
        break;
    }
}

void BarDrop::InsertText(Box box, const std::wstring& text, POINT at) {
    const HWND edit = keyboard_.BoxWindow(box).Handle();
    ::ScreenToClient(edit, &at);
    // The low word is the character under the pointer, as far as sixteen bits tell.
    const LRESULT found = ::SendMessageW(edit, EM_CHARFROMPOS, 0, MAKELPARAM(at.x, at.y));
    const int length = ::GetWindowTextLengthW(edit);
    const int place = length > 0xFFFF ? length : LOWORD(found);
    ::SendMessageW(edit, EM_SETSEL, static_cast<WPARAM>(place), place);
    ::SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(search::OnOneLine(text).c_str()));
    keyboard_.Take(box);
}

void BarDrop::EnterPaths(const std::wstring& paths) {
    search::CEditEx& box = controls_.commandBox;
    box.SetText(WithAppended(box.Text(), paths));
    keyboard_.Take(Box::kCommand);
}

} // namespace korvane::app
