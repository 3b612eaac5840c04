#pragma once

#include "tests/support/line_log.h"

// What the recorder in the place of the HTML Help control and the tests agree on.
namespace korvane::test {

inline constexpr wchar_t kHelpLog[] = L"korvane_help.txt";
inline constexpr wchar_t kHelpWindowClass[] = L"HelpRecorder_WndClass";
// An environment variable that keeps the recorder from opening a window.
inline constexpr wchar_t kHelpAnswersNothing[] = L"KORVANE_HELP_ANSWERS_NOTHING";

} // namespace korvane::test
