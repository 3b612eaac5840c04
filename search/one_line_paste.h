#pragma once

#include <windows.h>

namespace korvane::search {

// Pastes the clipboard's text into an edit control of one line, which left to itself takes only the first line of it:
// the text comes in whole, as far as the control's limit allows, with its line breaks as blanks. False when the
// clipboard has no text to give.
[[nodiscard]] bool PasteOnOneLine(HWND edit);

} // namespace korvane::search
