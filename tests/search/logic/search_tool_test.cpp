#include "search/logic/search_tool.h"

#include <gtest/gtest.h>

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
