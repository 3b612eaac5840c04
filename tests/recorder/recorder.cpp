// Stands for whatever the program starts: appends its own command line to a log, one UTF-8 line per start, and ends.

#include <windows.h>

#include "tests/support/line_log.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    return korvane::test::AppendLine(L"korvane_recorder.txt", ::GetCommandLineW()) ? 0 : 1;
}
