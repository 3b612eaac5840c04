#pragma once

#include <windows.h>

namespace korvane::search {

// Takes away what is selected in an edit control, or else the word before the caret. It can be undone like typing.
void DeleteWordBeforeCaret(HWND edit);

} // namespace korvane::search
