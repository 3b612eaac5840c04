#pragma once

#include "framework/window.h"
#include "search/one_line_edit.h"

namespace korvane::search {

// An edit control of one line that also tells its parent when the mouse comes and goes, as it does by itself with the
// focus (EN_SETFOCUS, EN_KILLFOCUS): so the parent can say what is to be written into it.
class CEditCtrlEx final : public fw::Window<CEditCtrlEx>, public OneLineEdit<CEditCtrlEx> {
public:
    static constexpr fw::WindowClass kClass{.name = L"EditCtrlEx_WndClass", .base = L"EDIT"};

    // Notification codes of WM_COMMAND, beyond those of the edit control.
    static constexpr UINT kMouseEntered = 0x0A01;
    static constexpr UINT kMouseLeft = 0x0A02;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_MOUSEMOVE>(&CEditCtrlEx::OnMouseMove),
            fw::On<WM_MOUSELEAVE>(&CEditCtrlEx::OnMouseLeave),
            fw::Chain<OneLineEdit<CEditCtrlEx>>(),
        };
    }

private:
    fw::Reply OnMouseMove(const fw::Message& message);
    fw::Reply OnMouseLeave();
    void Tell(UINT code) const;

    bool mouseInside_ = false;
};

} // namespace korvane::search
