#include "about/program_version.h"

#include <gtest/gtest.h>

#include "framework/program_path.h"
#include "tests/support/fake_store.h"
#include "tests/support/temp_folder.h"

namespace korvane::about {
namespace {

TEST(ProgramVersion, IsTheFileVersionOfTheProgramsFile) {
    // The tests have the program's own resources.
    EXPECT_EQ(FileVersionOf(fw::ProgramPath().value()), L"1.0.0");
}

TEST(ProgramVersion, IsEmptyForAFileWithoutVersionInformation) {
    const test::TempFolder folder;
    folder.Write(L"none.exe", "MZ");

    EXPECT_EQ(FileVersionOf(folder.File(L"none.exe")), L"");
    EXPECT_EQ(FileVersionOf(folder.File(L"missing.exe")), L"");
    EXPECT_EQ(FileVersionOf(L""), L"");
}

TEST(ProgramVersion, IsToldTogetherWithTheEditionAndWindows) {
    test::FakeStore store;
    store.sections[L"CurrentVersion"][L"ProductName"] = std::wstring{L"Windows Test Edition"};
    const WindowsIdentity windows = ReadWindowsIdentity(store);

    const std::wstring text = ReadVersionText(store);

    EXPECT_EQ(text, VersionText(sizeof(void*) == 4 ? 32 : 64, L"1.0.0", windows));
    EXPECT_TRUE(text.starts_with(sizeof(void*) == 4 ? L"Korvane 32 Version 1.0.0\nfor Windows Test Edition ["
                                                    : L"Korvane 64 Version 1.0.0\nfor Windows Test Edition ["));
}

} // namespace
} // namespace korvane::about
