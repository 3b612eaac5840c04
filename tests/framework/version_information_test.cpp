#include "framework/version_information.h"

#include <gtest/gtest.h>

#include "framework/program_path.h"
#include "tests/support/temp_folder.h"

namespace fw {
namespace {

TEST(FileDescription, IsWhatTheProgramCallsItself) {
    // The tests have the program's own resources.
    EXPECT_EQ(FileDescription(ProgramPath().value()), L"Korvane");
}

TEST(VersionValue, IsWhatTheFileSaysUnderTheName) {
    const std::wstring program = ProgramPath().value();

    EXPECT_EQ(VersionValue(program, L"CompanyName"), L"Dunmere Software");
    EXPECT_EQ(VersionValue(program, L"InternalName"), L"korvane");
}

TEST(VersionValue, IsEmptyUnderANameThatTheFileDoesNotHave) {
    const std::wstring program = ProgramPath().value();

    EXPECT_EQ(VersionValue(program, L"NoSuchValue"), L"");
    EXPECT_EQ(VersionValue(program, std::wstring(5'000, L'x')), L"");
}

TEST(FileDescription, IsEmptyForAFileWithoutVersionInformation) {
    const korvane::test::TempFolder folder;
    folder.Write(L"plain.txt", "text");
    folder.Write(L"empty.exe", "");
    folder.Write(L"damaged.exe", "MZ and nothing that follows");

    EXPECT_EQ(FileDescription(folder.File(L"plain.txt")), L"");
    EXPECT_EQ(FileDescription(folder.File(L"empty.exe")), L"");
    EXPECT_EQ(FileDescription(folder.File(L"damaged.exe")), L"");
}

TEST(FileDescription, IsEmptyWithoutAFile) {
    EXPECT_EQ(FileDescription(L"C:\\korvane no such file.exe"), L"");
    EXPECT_EQ(FileDescription(L""), L"");
    EXPECT_EQ(FileDescription(std::wstring(40'000, L'x')), L"");
}

} // namespace
} // namespace fw
