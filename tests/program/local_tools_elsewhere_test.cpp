// The search for local tools on a 64-bit Windows, on a desktop that was prepared for it, see CMakeLists.txt.

#include "tests/program/program_test.h"
#include "tests/support/machine_value.h"

namespace korvane::test {
namespace {

// A program for 32-bit Windows that was installed on a 64-bit one.
class LocalToolsOn64BitWindows : public ProgramTest {};

TEST_F(LocalToolsOn64BitWindows, AreFoundAmongThe32BitProgramsToo) {
    constexpr wchar_t kHidemaru[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Hidemaru";
    const MachineValue of32Bit{L"SOFTWARE\\EmSoft\\EmEditor v3\\Common", L"ModulePath", L"C:\\Small", REG_SZ,
                               KEY_WOW64_32KEY};
    const MachineValue own{kHidemaru, L"InstallLocation", L"C:\\Large", REG_SZ, KEY_WOW64_64KEY};
    const MachineValue other{kHidemaru, L"InstallLocation", L"C:\\Small", REG_SZ, KEY_WOW64_32KEY};
    const Program program{{.program = OwnFolder() + KORVANE_64BIT_PROGRAM}};

    ASSERT_NE(program.WaitForBar(), nullptr);

    EXPECT_TRUE(WaitUntil([] { return ReadText(kSettings, L"EmEditorPath") == L"C:\\Small\\EmEditor.exe"; }));
    EXPECT_EQ(ReadText(kSettings, L"HidemaruPath"), L"C:\\Large\\Hidemaru.exe");
}

} // namespace
} // namespace korvane::test
