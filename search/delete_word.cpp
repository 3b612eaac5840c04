#include "search/delete_word.h"

#include "framework/window_text.h"
#include "search/logic/word_start.h"

namespace korvane::search {

void DeleteWordBeforeCaret(HWND edit) {
    if (::GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY) return;
    DWORD first = 0;
    DWORD last = 0;
    ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    if (first == last) {
        const auto start = static_cast<WPARAM>(WordStart(fw::WindowText(edit), first));
        ::SendMessageW(edit, EM_SETSEL, start, static_cast<LPARAM>(last));
    }
    ::SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L""));
}

} // namespace korvane::search
