#include "search/logic/tool_detection.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/support/fake_store.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::FakeStore;

namespace {

constexpr wchar_t kEverythingKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Everything";
constexpr wchar_t kEmEditorKey[] = L"SOFTWARE\\EmSoft\\EmEditor v3\\Common";
constexpr wchar_t kHidemaruKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Hidemaru";

struct ToolDetection : testing::Test {
    FakeStore settings;
    FakeStore machine;
    FakeStore machineOf32Bit;

    void Detect() {
        const std::array<const settings::ProfileStore*, 2> views{&machine, &machineOf32Bit};
        KeepToolPaths(settings, views);
    }
    static void Install(FakeStore& view, const wchar_t* key, const wchar_t* name, std::wstring text) {
        view.sections[key][name] = std::move(text);
    }
};

} // namespace

TEST_F(ToolDetection, KeepsThePathsOfAllTools) {
    Install(machine, kEverythingKey, L"UninstallString", L"C:\\E\\Uninstall.exe");
    Install(machine, kEmEditorKey, L"ModulePath", L"C:\\M");
    Install(machine, kHidemaruKey, L"InstallLocation", L"C:\\H\\");

    Detect();

    EXPECT_EQ(settings.log, L"Settings.EverythingPath=C:\\E\\Everything.exe\n"
                            L"Settings.EmEditorPath=C:\\M\\EmEditor.exe\n"
                            L"Settings.HidemaruPath=C:\\H\\Hidemaru.exe\n");
}

TEST_F(ToolDetection, WritesNothingWhenThereIsNothingNew) {
    Install(machine, kEmEditorKey, L"ModulePath", L"C:\\M");
    Detect();
    settings.log.clear();

    Detect();

    EXPECT_EQ(settings.log, L"");
}

TEST_F(ToolDetection, RemovesThePathOfAToolThatIsGone) {
    Install(machine, kHidemaruKey, L"InstallLocation", L"C:\\H");
    Detect();
    machine.sections.clear();

    Detect();

    EXPECT_FALSE(settings.Has(L"Settings", L"HidemaruPath"));
}

TEST_F(ToolDetection, FollowsAToolThatHasMoved) {
    Install(machine, kHidemaruKey, L"InstallLocation", L"C:\\H");
    Detect();
    Install(machine, kHidemaruKey, L"InstallLocation", L"D:\\Other");

    Detect();

    EXPECT_EQ(ReadToolPath(settings, SearchTool::kHidemaru), L"D:\\Other\\Hidemaru.exe");
}

TEST_F(ToolDetection, FindsAToolInTheOtherViewOnlyWhenTheFirstHasNone) {
    Install(machine, kEmEditorKey, L"ModulePath", L"C:\\Own");
    Install(machineOf32Bit, kEmEditorKey, L"ModulePath", L"C:\\Other");
    Install(machine, kHidemaruKey, L"InstallLocation", L"");
    Install(machineOf32Bit, kHidemaruKey, L"InstallLocation", L"C:\\Other");

    Detect();

    EXPECT_EQ(ReadToolPath(settings, SearchTool::kEmEditor), L"C:\\Own\\EmEditor.exe");
    EXPECT_EQ(ReadToolPath(settings, SearchTool::kHidemaru), L"C:\\Other\\Hidemaru.exe");
}

TEST_F(ToolDetection, KeepsALongPathWhole) {
    const std::wstring folder = L"C:\\" + std::wstring(2000, L'f');
    Install(machine, kEmEditorKey, L"ModulePath", folder);

    Detect();

    EXPECT_EQ(ReadToolPath(settings, SearchTool::kEmEditor), folder + L"\\EmEditor.exe");
}

TEST_F(ToolDetection, TakesAValueThatIsNoTextForMissing) {
    machine.sections[kEmEditorKey][L"ModulePath"] = 1;

    Detect();

    EXPECT_EQ(settings.log, L"");
}
