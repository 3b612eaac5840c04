#include "controls/number_edit.h"

#include <string>

#include "base/text.h"
#include "framework/window_text.h"

namespace korvane::controls {

LRESULT NumberEdit::OnCharacter(const fw::Message& message) {
    fw::Message typed = message;
    typed.wparam = base::NarrowDigit(static_cast<wchar_t>(message.wparam));
    return Default(typed);
}

void NumberEdit::OnPaste(const fw::Message& message) {
    const std::wstring before = fw::WindowText(Handle());
    DWORD first = 0;
    DWORD last = 0;
    ::SendMessageW(Handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    Default(message);
    if (fw::WindowText(Handle()).find_first_not_of(L"0123456789") == std::wstring::npos) return;
    ::SetWindowTextW(Handle(), before.c_str());
    ::SendMessageW(Handle(), EM_SETSEL, first, static_cast<LPARAM>(last));
}

} // namespace korvane::controls
