#include "search/win_process_starter.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "search/logic/typed_command.h"

using namespace korvane::search;

TEST(WinProcessStarter, StartsAProcessWithItsArguments) {
    EXPECT_EQ(WinProcessStarter{}.StartCommandLine(L"cmd.exe /c exit 0"), 0U);
}

TEST(WinProcessStarter, SaysThatThereIsNoSuchProgram) {
    EXPECT_EQ(WinProcessStarter{}.StartCommandLine(L"korvane-no-such-program.exe"), ULONG{ERROR_FILE_NOT_FOUND});
}

TEST(WinProcessStarter, RefusesACommandLineOf100000Characters) {
    EXPECT_NE(WinProcessStarter{}.StartCommandLine(std::wstring(100'000, L'x')), 0U);
}

TEST(WinProcessStarter, RefusesAnEmptyCommandLine) {
    EXPECT_NE(WinProcessStarter{}.StartCommandLine(L""), 0U);
}

TEST(WinProcessStarter, GivesTheShellsCodeForWhatCannotBeOpened) {
    const int result = WinProcessStarter{}.Open(L"C:\\korvane no such file.xyz");

    EXPECT_GT(result, 0);
    EXPECT_LE(result, 32);
}

TEST(WinProcessStarter, ReportsATypedCommandThatIsNeitherProgramNorFile) {
    WinProcessStarter starter;

    EXPECT_EQ(RunTypedCommand(L"C:\\korvane no such file.xyz", starter), RunOutcome{ERROR_FILE_NOT_FOUND});
}
