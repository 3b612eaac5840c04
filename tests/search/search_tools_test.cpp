#include "search/search_tools.h"

#include <gtest/gtest.h>

#include <string>

#include "search/logic/search_tool.h"
#include "tests/support/fake_store.h"
#include "tests/support/machine_value.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::FakeStore;
using korvane::test::MachineValue;

namespace {

struct DetectingSearchTools : testing::Test {
    FakeStore settings;

    static constexpr wchar_t kEverythingKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Everything";
    static constexpr wchar_t kEmEditorKey[] = L"SOFTWARE\\EmSoft\\EmEditor v3\\Common";
    static constexpr wchar_t kHidemaruKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Hidemaru";

    std::wstring PathOf(SearchTool tool) { return settings.Read(PathSetting(tool)); }
};

} // namespace

TEST_F(DetectingSearchTools, FindsWhatIsInstalledOnTheMachine) {
    const MachineValue everything{kEverythingKey, L"UninstallString", L"C:\\Tools\\Everything\\Uninstall.exe"};
    const MachineValue emEditor{kEmEditorKey, L"ModulePath", L"C:\\Tools\\EmEditor"};
    const MachineValue hidemaru{kHidemaruKey, L"InstallLocation", L"C:\\Tools\\Hidemaru\\"};

    DetectSearchTools(settings);

    EXPECT_EQ(PathOf(SearchTool::kEverything), L"C:\\Tools\\Everything\\Everything.exe");
    EXPECT_EQ(PathOf(SearchTool::kEmEditor), L"C:\\Tools\\EmEditor\\EmEditor.exe");
    EXPECT_EQ(PathOf(SearchTool::kHidemaru), L"C:\\Tools\\Hidemaru\\Hidemaru.exe");
}

TEST_F(DetectingSearchTools, FindsNothingOnABareMachine) {
    settings.WriteText(L"Settings", L"EmEditorPath", L"C:\\gone\\EmEditor.exe");

    DetectSearchTools(settings);

    for (const SearchTool tool : kSearchTools) EXPECT_EQ(PathOf(tool), L"");
    EXPECT_FALSE(settings.Has(L"Settings", L"EmEditorPath"));
}

TEST_F(DetectingSearchTools, FillsInTheVariablesOfAnExpandableText) {
    ::SetEnvironmentVariableW(L"KorvaneTestTools", L"C:\\Tools");
    const MachineValue emEditor{kEmEditorKey, L"ModulePath", L"%KorvaneTestTools%\\EmEditor", REG_EXPAND_SZ};
    const MachineValue hidemaru{kHidemaruKey, L"InstallLocation", L"%KorvaneTestTools%\\Hidemaru"};

    DetectSearchTools(settings);

    EXPECT_EQ(PathOf(SearchTool::kEmEditor), L"C:\\Tools\\EmEditor\\EmEditor.exe");
    EXPECT_EQ(PathOf(SearchTool::kHidemaru), L"%KorvaneTestTools%\\Hidemaru\\Hidemaru.exe");
    ::SetEnvironmentVariableW(L"KorvaneTestTools", nullptr);
}

TEST_F(DetectingSearchTools, TakesAValueOfAnotherTypeForMissing) {
    const MachineValue emEditor{kEmEditorKey, L"ModulePath", L"C:\\Tools", REG_BINARY};
    const DWORD number = 67;
    const MachineValue hidemaru{kHidemaruKey, L"InstallLocation", REG_DWORD, std::as_bytes(std::span{&number, 1})};

    DetectSearchTools(settings);

    EXPECT_EQ(settings.log, L"");
}

TEST_F(DetectingSearchTools, NeedsNoTerminatorInTheRegistry) {
    const std::wstring folder = L"C:\\Tools";
    const MachineValue emEditor{kEmEditorKey, L"ModulePath", REG_SZ,
                                std::as_bytes(std::span{folder.data(), folder.size()})};

    DetectSearchTools(settings);

    EXPECT_EQ(PathOf(SearchTool::kEmEditor), L"C:\\Tools\\EmEditor.exe");
}

TEST_F(DetectingSearchTools, KeepsALongPathWhole) {
    const std::wstring folder = L"C:\\" + std::wstring(2000, L'f');
    const MachineValue hidemaru{kHidemaruKey, L"InstallLocation", folder};

    DetectSearchTools(settings);

    EXPECT_EQ(PathOf(SearchTool::kHidemaru), folder + L"\\Hidemaru.exe");
}
