#include "search/logic/search_tool.h"

#include <gtest/gtest.h>

#include "tests/support/fake_store.h"

using namespace korvane::search;

TEST(EverythingCommandLine, HoldsTheTextAsItStandsAndThePath) {
    EXPECT_EQ(EverythingCommandLine(L"\"<%Everything%>\" -search \"<%Search_UTF16%>\"", L"a & b", L"C:\\E\\E.exe"),
              L"\"C:\\E\\E.exe\" -search \"a & b\"");
}

TEST(EverythingCommandLine, ReplacesEveryOccurrence) {
    EXPECT_EQ(EverythingCommandLine(L"<%Everything%> <%Search_UTF16%> <%Everything%> <%Search_UTF16%>", L"t", L"p"),
              L"p t p t");
}

TEST(EverythingCommandLine, KnowsNoOtherTextPlaceholder) {
    EXPECT_EQ(EverythingCommandLine(L"<%Everything%> <%Search%>", L"t", L"p"), L"p <%Search%>");
}

TEST(EverythingCommandLine, PutsThePathInLast) {
    EXPECT_EQ(EverythingCommandLine(L"x <%Search_UTF16%>", L"<%Everything%>", L"p"), L"x p");
}

TEST(SearchTools, HaveTheirProgramsAndSettings) {
    EXPECT_EQ(ProgramNameOf(SearchTool::kEverything), L"Everything.exe");
    EXPECT_EQ(ProgramNameOf(SearchTool::kEmEditor), L"EmEditor.exe");
    EXPECT_EQ(ProgramNameOf(SearchTool::kHidemaru), L"Hidemaru.exe");
    EXPECT_EQ(PathSetting(SearchTool::kEverything).name, L"EverythingPath");
    EXPECT_EQ(PathSetting(SearchTool::kEmEditor).name, L"EmEditorPath");
    EXPECT_EQ(PathSetting(SearchTool::kHidemaru).name, L"HidemaruPath");
}

TEST(SearchTools, AreKnownByName) {
    EXPECT_EQ(ToolNameOf(SearchTool::kEverything), L"Everything");
    EXPECT_EQ(ToolNameOf(SearchTool::kEmEditor), L"EmEditor");
    EXPECT_EQ(ToolNameOf(SearchTool::kHidemaru), L"Hidemaru");
}

TEST(SearchTools, AreLookedForWhereTheirInstallersLeaveWord) {
    EXPECT_EQ(TraceOf(SearchTool::kEverything).key,
              L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Everything");
    EXPECT_EQ(TraceOf(SearchTool::kEverything).value, L"UninstallString");
    EXPECT_EQ(TraceOf(SearchTool::kEmEditor).key, L"SOFTWARE\\EmSoft\\EmEditor v3\\Common");
    EXPECT_EQ(TraceOf(SearchTool::kEmEditor).value, L"ModulePath");
    EXPECT_EQ(TraceOf(SearchTool::kHidemaru).key, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Hidemaru");
    EXPECT_EQ(TraceOf(SearchTool::kHidemaru).value, L"InstallLocation");
}

TEST(SearchTools, KeepTheOptionsOfEachEditorApart) {
    EXPECT_EQ(OptionsSetting(SearchTool::kEmEditor).saveSettings.section, L"Settings\\EmEditorSearch");
    EXPECT_EQ(OptionsSetting(SearchTool::kHidemaru).saveSettings.section, L"Settings\\HidemaruSearch");
}

TEST(ToolPath, OfEverythingStandsBesideItsUninstaller) {
    EXPECT_EQ(ToolPathFrom(SearchTool::kEverything, L"C:\\Tools\\Everything\\Uninstall.exe"),
              L"C:\\Tools\\Everything\\Everything.exe");
}

TEST(ToolPath, DropsTheUninstallersArguments) {
    EXPECT_EQ(ToolPathFrom(SearchTool::kEverything, L"C:\\E\\Uninstall.exe -quiet"), L"C:\\E\\Everything.exe");
}

TEST(ToolPath, KeepsTheQuotationMarkBeforeTheUninstaller) {
    EXPECT_EQ(ToolPathFrom(SearchTool::kEverything, L"\"C:\\Program Files\\Everything\\Uninstall.exe\""),
              L"\"C:\\Program Files\\Everything\\Everything.exe");
}

TEST(ToolPath, IsTheProgramAloneForAnUninstallerWithoutAFolder) {
    EXPECT_EQ(ToolPathFrom(SearchTool::kEverything, L"Uninstall.exe"), L"Everything.exe");
}

TEST(ToolPath, OfAnEditorStandsInTheNamedFolder) {
    EXPECT_EQ(ToolPathFrom(SearchTool::kEmEditor, L"C:\\Program Files\\EmEditor"),
              L"C:\\Program Files\\EmEditor\\EmEditor.exe");
    EXPECT_EQ(ToolPathFrom(SearchTool::kHidemaru, L"C:\\Hidemaru"), L"C:\\Hidemaru\\Hidemaru.exe");
}

TEST(ToolPath, GetsNoSecondBackslash) {
    EXPECT_EQ(ToolPathFrom(SearchTool::kEmEditor, L"C:\\EmEditor\\"), L"C:\\EmEditor\\EmEditor.exe");
    EXPECT_EQ(ToolPathFrom(SearchTool::kHidemaru, L"D:\\"), L"D:\\Hidemaru.exe");
}

TEST(ToolPath, KeepsQuotationMarksAroundAnEditorsFolder) {
    EXPECT_EQ(ToolPathFrom(SearchTool::kEmEditor, L"\"C:\\E\""), L"\"C:\\E\"\\EmEditor.exe");
}

TEST(ToolPath, IsEmptyWhenNothingIsInstalled) {
    for (const SearchTool tool : kSearchTools) EXPECT_EQ(ToolPathFrom(tool, L""), L"");
}

TEST(ToolPath, IsOfAnyLength) {
    const std::wstring folder = L"C:\\" + std::wstring(2000, L'f');

    EXPECT_EQ(ToolPathFrom(SearchTool::kEverything, folder + L"\\Uninstall.exe"), folder + L"\\Everything.exe");
    EXPECT_EQ(ToolPathFrom(SearchTool::kHidemaru, folder), folder + L"\\Hidemaru.exe");
}

TEST(ToolPath, IsReadFromTheToolsOwnSetting) {
    korvane::test::FakeStore settings;
    settings.sections[L"Settings"][L"EmEditorPath"] = std::wstring{L"C:\\E\\EmEditor.exe"};
    settings.sections[L"Settings"][L"HidemaruPath"] = std::wstring{};
    settings.sections[L"Settings"][L"EverythingPath"] = 7;

    EXPECT_EQ(ReadToolPath(settings, SearchTool::kEmEditor), L"C:\\E\\EmEditor.exe");
    EXPECT_EQ(ReadToolPath(settings, SearchTool::kHidemaru), std::nullopt);
    EXPECT_EQ(ReadToolPath(settings, SearchTool::kEverything), std::nullopt);
}
