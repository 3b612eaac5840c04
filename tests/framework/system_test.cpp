#include <gtest/gtest.h>

#include <array>
#include <string>

#include "base/format_text.h"
#include "framework/program_path.h"
#include "framework/system_library.h"
#include "framework/theme.h"
#include "framework/windows_version.h"
#include "tests/support/window_test.h"

namespace fw {
namespace {

TEST(ProgramPath, NamesTheRunningProgram) {
    const auto path = ProgramPath();

    ASSERT_TRUE(path);
    EXPECT_TRUE(path->ends_with(L"\\window_tests.exe")) << *path;
}

TEST(WindowsVersion, IncludesEveryEarlierOne) {
    constexpr std::array kVersions{kWindowsVista, kWindows7, kWindows8, kWindows10};

    for (std::size_t later = 1; later < kVersions.size(); ++later)
        EXPECT_TRUE(!IsWindowsAtLeast(kVersions[later]) || IsWindowsAtLeast(kVersions[later - 1])) << later;
    EXPECT_TRUE(IsWindowsAtLeast(kWindowsVista));
}

// Without the manifest every Windows after 8 would be taken for 8. tests/framework/on_every_windows.sh runs this as
// each of the versions that a rule tells apart, and says in the environment which one it is.
TEST(WindowsVersion, IsTheOneThatTheKernelNames) {
    using RtlGetVersion = LONG WINAPI(OSVERSIONINFOW*);
    auto* const kernelVersion = FunctionOf<RtlGetVersion>(::GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion");
    ASSERT_NE(kernelVersion, nullptr);
    OSVERSIONINFOW kernel{};
    kernel.dwOSVersionInfoSize = sizeof kernel;
    kernelVersion(&kernel);

    wchar_t expected[16]{};
    if (::GetEnvironmentVariableW(L"KORVANE_EXPECTED_WINDOWS", expected, 16) != 0) {
        const std::wstring found = korvane::base::FormatText(L"%u.%u", static_cast<unsigned>(kernel.dwMajorVersion),
                                                             static_cast<unsigned>(kernel.dwMinorVersion));
        EXPECT_EQ(found, expected);
    }
    for (const WindowsVersion& version : {kWindowsVista, kWindows7, kWindows8, kWindows10}) {
        const bool reached = kernel.dwMajorVersion > version.major ||
                             (kernel.dwMajorVersion == version.major && kernel.dwMinorVersion >= version.minor);
        EXPECT_EQ(IsWindowsAtLeast(version), reached) << version.major << '.' << version.minor;
    }
}

TEST(WindowsVersion, IsNotOneThatIsYetToCome) {
    EXPECT_FALSE(IsWindowsAtLeast({99, 0}));
}

TEST(WindowsVersion, ComparesTheMinorNumberOnlyWithinTheSameMajorOne) {
    EXPECT_TRUE(IsWindowsAtLeast({5, 9}));
}

TEST(SystemLibrary, ComesFromTheSystemFolder) {
    const UniqueLibrary library = LoadSystemLibrary(L"uxtheme.dll");
    ASSERT_TRUE(library);
    std::array<wchar_t, MAX_PATH> path{};
    std::array<wchar_t, MAX_PATH> folder{};

    ::GetModuleFileNameW(library.Get(), path.data(), MAX_PATH);
    ::GetSystemDirectoryW(folder.data(), MAX_PATH);

    EXPECT_EQ(::_wcsnicmp(path.data(), folder.data(), ::wcslen(folder.data())), 0) << path.data();
}

TEST(SystemLibrary, IsEmptyWhereThereIsNone) {
    EXPECT_FALSE(LoadSystemLibrary(L"korvane-no-such-library.dll"));
}

TEST(SystemLibrary, HasFunctionsByName) {
    const UniqueLibrary library = LoadSystemLibrary(L"kernel32.dll");

    EXPECT_NE((FunctionOf<decltype(::GetTickCount)>(library.Get(), "GetTickCount")), nullptr);
    EXPECT_EQ((FunctionOf<decltype(::GetTickCount)>(library.Get(), "NoSuchFunction")), nullptr);
    EXPECT_EQ((FunctionOf<decltype(::GetTickCount)>(nullptr, "GetTickCount")), nullptr);
}

class ThemeTest : public korvane::test::WindowTest {};

TEST_F(ThemeTest, DrawsNothingWhereThereIsNone) {
    const UniqueMemoryDc dc{::CreateCompatibleDC(nullptr)};
    Theme theme;
    EXPECT_FALSE(theme);

    theme.Open(Host(), L"NO SUCH CLASS");
    theme.DrawBackground(dc.Get(), 1, 1, {0, 0, 5, 5});
    theme.Close();

    EXPECT_FALSE(theme);
}

TEST_F(ThemeTest, CanBeOpenedAgain) {
    Theme theme;
    theme.Open(Host(), L"BUTTON");
    const bool opened = static_cast<bool>(theme);

    theme.Open(Host(), L"BUTTON");
    EXPECT_EQ(static_cast<bool>(theme), opened);

    theme.Close();
    EXPECT_FALSE(theme);
}

} // namespace
} // namespace fw
