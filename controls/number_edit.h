#pragma once

#include "framework/window.h"

namespace korvane::controls {

// A dialog's field for digits. The system's own with ES_NUMBER keeps other characters from being typed, but on some
// Windows lets them be pasted. Wide digits, which an input method gives, become ordinary ones.
class NumberEdit final : public fw::Window<NumberEdit> {
public:
    static constexpr fw::WindowClass kClass{.name = L"NumberEdit_WndClass", .base = L"EDIT"};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_CHAR>(&NumberEdit::OnCharacter),
            fw::On<WM_PASTE>(&NumberEdit::OnPaste),
        };
    }

private:
    LRESULT OnCharacter(const fw::Message& message);
    void OnPaste(const fw::Message& message);
};

} // namespace korvane::controls
