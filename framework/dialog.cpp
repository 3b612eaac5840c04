#include "framework/dialog.h"

#include <utility>

#include "framework/icons.h"

namespace fw {
namespace {

// The object whose dialog is being created. WM_INITDIALOG brings its address too, but anyone can post that message.
DialogObject* g_creating = nullptr;

class Creation {
public:
    explicit Creation(DialogObject& object) : outer_{std::exchange(g_creating, &object)} {}
    Creation(const Creation&) = delete;
    Creation& operator=(const Creation&) = delete;
    ~Creation() { g_creating = outer_; }

private:
    DialogObject* outer_;
};

// The messages whose result a dialog procedure returns itself; all others go through DWLP_MSGRESULT.
constexpr bool ReturnsItsResult(UINT id) {
    return id == WM_INITDIALOG || (id >= WM_CTLCOLORMSGBOX && id <= WM_CTLCOLORSTATIC) || id == WM_COMPAREITEM ||
           id == WM_VKEYTOITEM || id == WM_CHARTOITEM || id == WM_QUERYDRAGICON;
}

// What a user does to a control or a menu. A double click has the same code in every list.
constexpr bool IsChoice(UINT code, LPARAM control) {
    static_assert(LBN_DBLCLK == CBN_DBLCLK);
    return IsDoIt(code, control) || code == LBN_DBLCLK;
}

INT_PTR CALLBACK NoDialog(HWND, UINT, WPARAM, LPARAM) noexcept {
    return FALSE;
}

} // namespace

bool IsBelowModal(HWND window) {
    return !::IsWindowEnabled(::GetAncestor(window, GA_ROOT));
}

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
    const Creation creation{*this};
    return ::DialogBoxParamW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(dialogTemplate), owner, &DialogProcedure,
                             reinterpret_cast<LPARAM>(this));
}

bool DialogObject::CreateModeless(UINT dialogTemplate, HWND owner) {
    const Creation creation{*this};
    return ::CreateDialogParamW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(dialogTemplate), owner, &DialogProcedure,
                                reinterpret_cast<LPARAM>(this)) != nullptr;
}

INT_PTR CALLBACK DialogObject::DialogProcedure(HWND window, UINT id, WPARAM wparam, LPARAM lparam) noexcept {
    auto* self = static_cast<DialogObject*>(From(window));
    if (id == WM_INITDIALOG) {
        if (self || !g_creating || reinterpret_cast<LPARAM>(g_creating) != lparam) return FALSE;
        self = std::exchange(g_creating, nullptr);
        self->Bind(window);
    }
    if (!self) return FALSE;
    if (id == WM_COMMAND && IsChoice(HIWORD(wparam), lparam) && IsBelowModal(window)) return TRUE;

    const Reply reply = self->Dispatch({window, id, wparam, lparam});
    if (id == WM_NCDESTROY) {
        self->Unbind();
        self->OnFinalMessage();
        return FALSE;
    }
    // A dialog is only ever freed by OnFinalMessage, but its window may be gone after a handler.
    if (id == WM_INITDIALOG && ::IsWindow(window)) GiveProgramIcons(window);
    if (!reply) return FALSE;
    if (ReturnsItsResult(id)) return static_cast<INT_PTR>(*reply);
    ::SetWindowLongPtrW(window, DWLP_MSGRESULT, *reply);
    return TRUE;
}

} // namespace fw
