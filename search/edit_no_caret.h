#pragma once

#include "framework/window.h"

namespace korvane::search {

// A read-only edit control of several lines that shows no caret: a text to be read, which can be scrolled, selected and
// copied by mouse and by keyboard.
class CEditNoCaret final : public fw::Window<CEditNoCaret> {
public:
    static constexpr fw::WindowClass kClass{.name = L"EditNoCaret_WndClass", .base = L"EDIT"};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_SETFOCUS>(&CEditNoCaret::OnSetFocus), fw::On<WM_GETDLGCODE>(&CEditNoCaret::OnGetDialogCode),
            fw::On<WM_KEYDOWN>(&CEditNoCaret::OnKeyDown),   fw::On<WM_CHAR>(&CEditNoCaret::OnCharacter),
            fw::On<WM_COPY>(&CEditNoCaret::OnCopy),
        };
    }

private:
    LRESULT OnSetFocus(const fw::Message& message);
    LRESULT OnGetDialogCode(const fw::Message& message);
    fw::Reply OnKeyDown(const fw::Message& message);
    fw::Reply OnCharacter(const fw::Message& message);
    fw::Reply OnCopy(const fw::Message& message);
};

} // namespace korvane::search
