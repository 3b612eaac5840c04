#include "framework/placeholder.h"

#include "framework/window_text.h"

namespace fw {

Placeholder::Placeholder(HWND dialog, int id) : control_{::GetDlgItem(dialog, id)} {
    if (!control_) return;
    text_ = WindowText(control_);
    ::GetWindowRect(control_, &place_);
    ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place_), 2);
}

CreateOptions Placeholder::Options(const Changes& changes) const {
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(control_, GWL_STYLE));
    const int id = changes.id != 0 ? changes.id : ::GetDlgCtrlID(control_);
    CreateOptions options;
    options.text = text_.c_str();
    options.rect = place_;
    options.style = (style & ~changes.without) | changes.with;
    options.extendedStyle = static_cast<DWORD>(::GetWindowLongPtrW(control_, GWL_EXSTYLE));
    options.parent = ::GetParent(control_);
    options.id = static_cast<UINT_PTR>(id);
    return options;
}

void Placeholder::HandOverTo(HWND window) {
    ::SendMessageW(window, WM_SETFONT, static_cast<WPARAM>(::SendMessageW(control_, WM_GETFONT, 0, 0)), FALSE);
    ::SetWindowPos(window, control_, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ::DestroyWindow(control_);
    control_ = nullptr;
}

} // namespace fw
