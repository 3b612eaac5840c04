#include "search/one_line_paste.h"

#include <algorithm>
#include <optional>
#include <string>

#include "search/logic/typed_command.h"

namespace korvane::search {
namespace {

// The clipboard's text; empty when it has none or another program holds the clipboard.
std::optional<std::wstring> ClipboardText(HWND window) {
    if (!::IsClipboardFormatAvailable(CF_UNICODETEXT) || !::OpenClipboard(window)) return std::nullopt;
    std::optional<std::wstring> text;
    if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
        if (const auto* const first = static_cast<const wchar_t*>(::GlobalLock(data))) {
            // A program may leave out the terminating zero.
            const auto* const end = first + ::GlobalSize(data) / sizeof(wchar_t);
            text.emplace(first, std::find(first, end, L'\0'));
            ::GlobalUnlock(data);
        }
    }
    ::CloseClipboard();
    return text;
}

// How many characters the control takes in the place of what is selected. Typing stops at the limit by itself, but
// EM_REPLACESEL does not know it.
std::size_t RoomIn(HWND edit) {
    const auto limit = static_cast<std::size_t>(::SendMessageW(edit, EM_GETLIMITTEXT, 0, 0));
    DWORD first = 0;
    DWORD last = 0;
    ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    const auto kept = static_cast<std::size_t>(::GetWindowTextLengthW(edit)) - (last - first);
    return limit > kept ? limit - kept : 0;
}

} // namespace

bool PasteOnOneLine(HWND edit) {
    const auto text = ClipboardText(edit);
    if (!text) return false;
    // Where nothing fits, what is selected stays.
    const std::size_t room = RoomIn(edit);
    if (room == 0) return true;
    const std::wstring whole = OnOneLine(*text);
    const std::wstring line{WithinRoom(whole, room)};
    if (line.empty() && !whole.empty()) return true;
    ::SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(line.c_str()));
    return true;
}

} // namespace korvane::search
