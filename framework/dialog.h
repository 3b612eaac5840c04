#pragma once

#include "framework/window.h"

namespace fw {

// True for a window that stands, as a whole, below a modal dialog or a message box: Windows has disabled it, and the
// user cannot reach it. Its commands are then not the user's, and what they open would come to stand on what is open
// already, as often as they are sent.
[[nodiscard]] bool IsBelowModal(HWND window);

// The part of a dialog that does not depend on its class.
//
// A dialog below another one carries out no commands. One that came to be without an icon of its own has the program's.
class DialogObject : public WindowObject {
public:
    ~DialogObject() override;
    // A dialog's map falls back to the dialog manager, which runs when the procedure answers FALSE.
    LRESULT Default(const Message&) override { return 0; }

    // True once the dialog was confirmed. What ShowModal gives would not tell: it is IDOK too when the program is told
    // to quit while the dialog is open.
    [[nodiscard]] bool Confirmed() const { return confirmed_; }

protected:
    // A control of the template by its identifier.
    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(Handle(), id); }

    // Ends a modal dialog as confirmed.
    void EndConfirmed();

    [[nodiscard]] INT_PTR RunModal(UINT dialogTemplate, HWND owner);
    [[nodiscard]] bool CreateModeless(UINT dialogTemplate, HWND owner);

private:
    static INT_PTR CALLBACK DialogProcedure(HWND window, UINT id, WPARAM wparam, LPARAM lparam) noexcept;

    bool confirmed_ = false;
};

// Base of a dialog class T, which declares `static constexpr UINT kTemplate` and `static constexpr auto Messages()`.
// Handlers just return their result; what Windows wants in DWLP_MSGRESULT goes there.
template <class T>
class Dialog : public DialogObject {
public:
    // The value given to EndDialog, or -1 when the template cannot be shown.
    [[nodiscard]] INT_PTR ShowModal(HWND owner) { return RunModal(T::kTemplate, owner); }
    [[nodiscard]] bool Create(HWND owner) { return CreateModeless(T::kTemplate, owner); }

    Reply Dispatch(const Message& m) override {
        static constexpr auto map = T::Messages();
        return map(static_cast<T&>(*this), m);
    }
};

} // namespace fw
