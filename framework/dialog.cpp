#include "framework/dialog.h"

namespace fw {
namespace {

// The messages whose result a dialog procedure returns itself; all others go through DWLP_MSGRESULT.
constexpr bool ReturnsItsResult(UINT id) {
    return id == WM_INITDIALOG || (id >= WM_CTLCOLORMSGBOX && id <= WM_CTLCOLORSTATIC) || id == WM_COMPAREITEM ||
           id == WM_VKEYTOITEM || id == WM_CHARTOITEM || id == WM_QUERYDRAGICON;
}

INT_PTR CALLBACK NoDialog(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

} // namespace

DialogObject::~DialogObject() {
    const HWND window = Handle();
    if (!window) return;
    Unbind();
    ::SetWindowLongPtrW(window, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(&NoDialog));
    ::DestroyWindow(window);
}

void DialogObject::EndConfirmed() {
    confirmed_ = true;
    ::EndDialog(Handle(), IDOK);
}

INT_PTR DialogObject::RunModal(UINT dialogTemplate, HWND owner) {
    return ::DialogBoxParamW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(dialogTemplate), owner, &DialogProcedure,
                             reinterpret_cast<LPARAM>(this));
}

bool DialogObject::CreateModeless(UINT dialogTemplate, HWND owner) {
    return ::CreateDialogParamW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(dialogTemplate), owner, &DialogProcedure,
                                reinterpret_cast<LPARAM>(this)) != nullptr;
}

INT_PTR CALLBACK DialogObject::DialogProcedure(HWND window, UINT id, WPARAM wparam, LPARAM lparam) {
    if (id == WM_INITDIALOG) reinterpret_cast<DialogObject*>(lparam)->Bind(window);
    auto* const self = static_cast<DialogObject*>(From(window));
    if (!self) return FALSE;

    const Reply reply = self->Dispatch({window, id, wparam, lparam});
    if (id == WM_NCDESTROY) {
        self->Unbind();
        self->OnFinalMessage();
        return FALSE;
    }
    // A dialog is only ever freed by OnFinalMessage, but its window may be gone after a handler.
    if (!reply) return FALSE;
    if (ReturnsItsResult(id)) return static_cast<INT_PTR>(*reply);
    ::SetWindowLongPtrW(window, DWLP_MSGRESULT, *reply);
    return TRUE;
}

} // namespace fw
