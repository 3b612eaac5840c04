#include "search/win_process_starter.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "framework/system_library.h"
#include "search/logic/typed_command.h"
#include "tests/support/temp_folder.h"
#include "tests/support/wait.h"

using namespace korvane;
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

TEST(WinProcessStarter, FindsTheProgramThatACommandLineWouldStart) {
    const std::wstring cmd = fw::SystemFolder() + L"\\cmd.exe";

    for (const wchar_t* name : {L"cmd", L"cmd.exe"}) {
        const auto found = WinProcessStarter{}.FindProgram(name);
        ASSERT_TRUE(found) << name;
        EXPECT_EQ(::lstrcmpiW(found->c_str(), cmd.c_str()), 0) << name;
    }
    EXPECT_TRUE(WinProcessStarter{}.FindProgram(cmd));
}

TEST(WinProcessStarter, FindsNoProgramInAFolderOrNowhere) {
    EXPECT_EQ(WinProcessStarter{}.FindProgram(fw::SystemFolder()), std::nullopt);
    EXPECT_EQ(WinProcessStarter{}.FindProgram(L"korvane-no-such-program"), std::nullopt);
    EXPECT_EQ(WinProcessStarter{}.FindProgram(L""), std::nullopt);
}

TEST(WinProcessStarter, HasTheShellStartAProgramWithItsArguments) {
    const test::TempFolder folder;
    const std::wstring written = folder.Path() + L"\\written.txt";

    EXPECT_GT(WinProcessStarter{}.OpenProgram(fw::SystemFolder() + L"\\cmd.exe", L"/c echo 1 > \"" + written + L"\""),
              32);

    EXPECT_TRUE(test::WaitUntil([&] { return ::GetFileAttributesW(written.c_str()) != INVALID_FILE_ATTRIBUTES; }));
}
