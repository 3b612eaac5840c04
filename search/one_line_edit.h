#pragma once

#include "framework/message_map.h"
#include "search/delete_word.h"
#include "search/one_line_paste.h"

namespace korvane::search {

// What an edit control of one line does not do by itself: Ctrl+A selects all, Ctrl+Backspace takes the word before the
// caret away, and text of several lines is pasted whole. T is a window over the EDIT class.
template <class T>
class OneLineEdit {
public:
    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_PASTE>(&OneLineEdit::OnPaste),
            fw::On<WM_CHAR>(&OneLineEdit::OnCharacter),
        };
    }

private:
    fw::Reply OnPaste(const fw::Message& message) {
        if (!PasteOnOneLine(message.window)) return fw::kPassOn;
        return LRESULT{0};
    }
    fw::Reply OnCharacter(const fw::Message& message) {
        constexpr WPARAM kCtrlA = 1;
        constexpr WPARAM kCtrlBackspace = 0x7F;
        switch (message.wparam) {
        case kCtrlA:
            ::SendMessageW(message.window, EM_SETSEL, 0, -1);
            return LRESULT{0};
        case kCtrlBackspace:
            DeleteWordBeforeCaret(message.window);
            return LRESULT{0};
        default:
            return fw::kPassOn;
        }
    }

    friend T;
    OneLineEdit() = default;
};

} // namespace korvane::search
