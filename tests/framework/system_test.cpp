#include <gtest/gtest.h>

#include <array>
#include <string>

#include "base/format_text.h"
#include "framework/program_path.h"
#include "framework/system_library.h"
#include "framework/theme.h"
#include "framework/windows_program.h"
#include "framework/windows_version.h"
#include "tests/support/temp_folder.h"
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

// A library of nothing that a test can have loaded, under a name that no other has.
class PlantedLibrary {
public:
    PlantedLibrary() {
        const std::wstring program = ProgramPath().value();
        const std::wstring library = program.substr(0, program.rfind(L'\\') + 1) + KORVANE_HELP_RECORDER;
        planted_ = ::CopyFileW(library.c_str(), folder_.File(kName).c_str(), FALSE) != FALSE;
        before_.resize(::GetCurrentDirectoryW(0, nullptr));
        ::GetCurrentDirectoryW(static_cast<DWORD>(before_.size()), before_.data());
        ::SetCurrentDirectoryW(folder_.Path().c_str());
    }
    PlantedLibrary(const PlantedLibrary&) = delete;
    PlantedLibrary& operator=(const PlantedLibrary&) = delete;
    ~PlantedLibrary() { ::SetCurrentDirectoryW(before_.c_str()); }

    static constexpr const wchar_t* kName = L"korvane_planted.dll";
    [[nodiscard]] bool Planted() const { return planted_; }
    [[nodiscard]] std::wstring Path() const { return folder_.File(kName); }

private:
    korvane::test::TempFolder folder_;
    std::wstring before_;
    bool planted_ = false;
};

// For good, so it is the last of its suite; each suite is a process of its own.
TEST(LibrariesOfTheSystemFolder, AreTheOnlyOnesThatAreTakenByTheirNames) {
    const PlantedLibrary library;
    ASSERT_TRUE(library.Planted());
    ASSERT_TRUE(UniqueLibrary{::LoadLibraryW(PlantedLibrary::kName)}) << "it would be taken otherwise";

    TakeLibrariesFromSystemFolder();

    EXPECT_FALSE(UniqueLibrary{::LoadLibraryW(PlantedLibrary::kName)});
    EXPECT_TRUE(UniqueLibrary{::LoadLibraryW(library.Path().c_str())}) << "whose folder is named";
    EXPECT_TRUE(UniqueLibrary{::LoadLibraryW(L"winmm.dll")});
    EXPECT_TRUE(LoadSystemLibrary(L"winmm.dll"));
}

TEST(WindowsProgram, IsNamedFromTheSystemFolder) {
    EXPECT_EQ(::lstrcmpiW(WindowsProgram(L"control.exe").c_str(), (SystemFolder() + L"\\control.exe").c_str()), 0);
    EXPECT_EQ(::lstrcmpiW(WindowsProgram(L"shell32.dll").c_str(), (SystemFolder() + L"\\shell32.dll").c_str()), 0);
}

TEST(WindowsProgram, IsNamedFromTheWindowsFolderWhereItLivesThere) {
    std::array<wchar_t, MAX_PATH> windows{};
    ::GetWindowsDirectoryW(windows.data(), MAX_PATH);

    EXPECT_EQ(::lstrcmpiW(WindowsProgram(L"win.ini").c_str(), (std::wstring{windows.data()} + L"\\win.ini").c_str()),
              0);
}

TEST(WindowsProgram, IsNeverThatOfTheCurrentFolder) {
    const PlantedLibrary library;
    ASSERT_TRUE(library.Planted());

    EXPECT_EQ(WindowsProgram(PlantedLibrary::kName), SystemFolder() + L"\\" + PlantedLibrary::kName);
}

TEST(WindowsProgram, IsFoundOnTheSearchPathAfterThem) {
    const korvane::test::TempFolder folder;
    folder.Write(L"korvane_program.exe", "");
    folder.Write(L"control.exe", "");
    std::wstring before(32767, L'\0');
    before.resize(::GetEnvironmentVariableW(L"PATH", before.data(), 32767));
    ::SetEnvironmentVariableW(L"PATH", folder.Path().c_str());

    EXPECT_EQ(WindowsProgram(L"korvane_program.exe"), folder.File(L"korvane_program.exe"));
    EXPECT_NE(WindowsProgram(L"control.exe"), folder.File(L"control.exe"));

    ::SetEnvironmentVariableW(L"PATH", before.c_str());
}

TEST(WindowsProgram, IsFoundWhereItIsRegisteredUnderItsName) {
    constexpr const wchar_t* kKey = L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\korvane_registered.exe";
    constexpr wchar_t kPath[] = L"\"%SystemRoot%\\a folder\\korvane_registered.exe\"";
    std::array<wchar_t, MAX_PATH> windows{};
    ::GetWindowsDirectoryW(windows.data(), MAX_PATH);
    ASSERT_EQ(::RegSetKeyValueW(HKEY_CURRENT_USER, kKey, nullptr, REG_EXPAND_SZ, kPath, sizeof kPath), ERROR_SUCCESS);

    const std::wstring found = WindowsProgram(L"korvane_registered.exe");

    ::RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
    EXPECT_EQ(found, std::wstring{windows.data()} + L"\\a folder\\korvane_registered.exe");
}

TEST(WindowsProgram, StaysAsItIsWithAFolderOrWithoutAName) {
    for (const wchar_t* name : {L"", L"C:\\a\\control.exe", L"a/control.exe", L"C:control.exe"})
        EXPECT_EQ(WindowsProgram(name), name);
}

} // namespace
} // namespace fw
