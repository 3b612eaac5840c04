#include "app/built_in_programs.h"

#include <gtest/gtest.h>

#include <shlobj.h>

#include <array>
#include <string>

#include "app/logic/built_in_programs.h"
#include "framework/icons.h"
#include "tests/support/solid_icon.h"

using namespace korvane;
using namespace korvane::app;
using korvane::test::ColourOf;

namespace {

std::wstring FolderOf(int id) {
    std::array<wchar_t, MAX_PATH> path{};
    EXPECT_TRUE(::SHGetSpecialFolderPathW(nullptr, path.data(), id, FALSE));
    return path.data();
}

struct RunCase {
    const char* name;
    UINT command;
    const wchar_t* file;
    const wchar_t* parameters;
    int folder;
};

class RunBuiltInProgramTest : public testing::TestWithParam<RunCase> {};

} // namespace

TEST_P(RunBuiltInProgramTest, StartsItsFileInItsFolder) {
    launch::CommandEntry started;
    int shown = -1;

    const INT_PTR result = RunBuiltInProgram(GetParam().command, [&](const launch::CommandEntry& entry, int show) {
        started = entry;
        shown = show;
        return INT_PTR{31};
    });

    EXPECT_EQ(started.path, GetParam().file);
    EXPECT_EQ(started.arguments, GetParam().parameters);
    EXPECT_EQ(started.workingFolder, FolderOf(GetParam().folder));
    EXPECT_FALSE(started.workingFolder.empty());
    EXPECT_EQ(shown, SW_SHOWNORMAL);
    EXPECT_EQ(result, 31);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, RunBuiltInProgramTest, testing::Values(
    RunCase{"Notepad",       3001, L"notepad.exe",  L"", CSIDL_PERSONAL},
    RunCase{"Paint",         3002, L"mspaint.exe",  L"", CSIDL_PERSONAL},
    RunCase{"Calculator",    3003, L"calc.exe",     L"", CSIDL_PERSONAL},
    RunCase{"CommandPrompt", 3004, L"cmd.exe",      L"/K \"title コマンド プロンプト (Korvane)\" && ver", CSIDL_PROGRAM_FILES},
    RunCase{"Explorer",      3005, L"explorer.exe", L"", CSIDL_PERSONAL},
    RunCase{"Wordpad",       3006, L"wordpad.exe",  L"", CSIDL_PERSONAL},
    RunCase{"WindowsUpdate", 3007, L"wuapp.exe",    L"", CSIDL_PERSONAL}),
    [](const auto& row) { return std::string{row.param.name}; });
// clang-format on

TEST(RunBuiltInProgram, StartsNothingForAnotherCommand) {
    for (const UINT command : {0U, 3000U, 3008U}) {
        const INT_PTR result = RunBuiltInProgram(command, [](const launch::CommandEntry&, int) {
            ADD_FAILURE() << "something was started";
            return INT_PTR{33};
        });

        EXPECT_LE(result, 32) << command;
    }
}

TEST(RunBuiltInProgram, GivesTheShellsResult) {
    for (const INT_PTR result : {INT_PTR{ERROR_FILE_NOT_FOUND}, INT_PTR{31}, INT_PTR{33}})
        EXPECT_EQ(RunBuiltInProgram(ID_NOTEPAD, [&](const launch::CommandEntry&, int) { return result; }), result);
}

TEST(BuiltInProgramEntry, TakesItsPictureFromItsOwnFile) {
    for (const UINT command : {3001U, 3002U, 3003U, 3004U, 3005U}) {
        const auto entry = BuiltInProgramEntry(command).value();

        EXPECT_EQ(entry.iconFile, entry.path);
        EXPECT_EQ(entry.iconIndex, 0);
    }
}

TEST(BuiltInProgramEntry, FindsWordpadsPictureBelowTheProgramFiles) {
    const auto entry = BuiltInProgramEntry(ID_WORDPAD).value();

    EXPECT_EQ(entry.iconFile, FolderOf(CSIDL_PROGRAM_FILES) + L"\\Windows NT\\Accessories\\wordpad.exe");
    EXPECT_EQ(entry.iconIndex, 0);
}

TEST(BuiltInProgramEntry, TakesWindowsUpdatesPictureFromTheShell) {
    const auto entry = BuiltInProgramEntry(ID_WINDOWS_UPDATE).value();

    EXPECT_EQ(entry.iconFile, L"shell32.dll");
    EXPECT_EQ(entry.iconIndex, 46);
}

TEST(BuiltInProgramIcon, IsTheOneThatTheEntryNames) {
    const fw::UniqueIcon icon = BuiltInProgramIcon(ID_WINDOWS_UPDATE);
    ASSERT_TRUE(icon);

    EXPECT_EQ(ColourOf(icon.Get()), ColourOf(fw::ExtractSmallIcon(L"shell32.dll", 46).Get()));
}

TEST(BuiltInProgramIcon, IsThereForAProgramOfThisWindows) {
    EXPECT_TRUE(BuiltInProgramIcon(ID_NOTEPAD));
}

TEST(BuiltInProgramIcon, IsEmptyForAnotherCommand) {
    EXPECT_FALSE(BuiltInProgramIcon(3000));
    EXPECT_FALSE(BuiltInProgramIcon(3008));
}
