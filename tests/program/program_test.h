#pragma once

#include <gmock/gmock.h>

#include <string>

#include "tests/support/program_driver.h"
#include "tests/support/program_surroundings.h"

namespace korvane::test {

// Controls and commands of the bar as the outside world knows them; written down once more, so that a changed number is
// a failure.
enum ControlId : int {
    kMainMenu = 2000,
    kCommandBox = 2001,
    kSearchBox = 2002,
    kCommandHistory = 2003,
    kSearchHistory = 2004,
    kRun = 2005,
    kSearch = 2006,
    kSearchChooser = 2007,
    kControlPanel = 2008,
    kOptions = 2009,
    kClock = 2014,
    kLaunch1 = 4025,
    kLaunch2 = 4026,
    kLaunch3 = 4027,
    kExit = 57665,
    kHelp = 57666,
};

// Two searches; the default selection of search commands starts with the first.
inline constexpr wchar_t kSearchCommands[] = L"[SearchCommand_01]\r\n"
                                             L"CommandName=百科\r\n"
                                             L"CommandLine=http://encyclopedia.example/find?q=<%Search%>&lang=ja\r\n"
                                             L"Comment=test\r\n"
                                             L"[SearchCommand_02]\r\n"
                                             L"CommandName=地図\r\n"
                                             L"CommandLine=https://maps.example/<%Search_SJIS%>\r\n"
                                             L"Comment=test\r\n";

// A user's first start on a freshly installed program: no settings, the installed data file, and the recorder as the
// program that opens addresses.
class ProgramTest : public testing::Test {
protected:
    void SetUp() override {
        EndOwnersOf(L"Korvane_WndClass");
        ForgetAllSettings();
        RemoveDataFiles();
        WriteDataFile(L"Korvane.dat", kSearchCommands);
        recorder::Install();
    }
    void TearDown() override { ForgetAllSettings(); }

    static void CloseWithoutQuestion() { WriteSetting(kSettings, L"ConfirmExitApp", 1); }
    static void StartDocked() {
        WriteSetting(kPlacement, L"SaveWindowPlacement", 1);
        WriteSetting(kPlacement, L"DefaultDesktopBarMode", 1);
    }

    static HWND Control(HWND bar, ControlId id) { return ::GetDlgItem(bar, id); }
    static void Command(HWND bar, int id) { ::PostMessageW(bar, WM_COMMAND, static_cast<WPARAM>(id), 0); }
    static void Close(HWND bar) { ::PostMessageW(bar, WM_CLOSE, 0, 0); }

    // Clicks into a box and types; true when the box then holds exactly the text.
    static bool TypeInto(HWND box, const std::wstring& text) {
        if (!ClickIntoFocus(box)) return false;
        TypeText(text);
        return WaitUntil([&] { return TextOf(box) == text; });
    }
};

} // namespace korvane::test
