#include "search/logic/execute_search.h"

#include <gtest/gtest.h>

#include "res/ids.h"
#include "tests/support/fake_process_starter.h"
#include "tests/support/fake_store.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::FakeProcessStarter;
using korvane::test::FakeStore;

namespace {

struct ExecutingASearch : testing::Test {
    FakeStore settings;
    FakeStore standard;
    FakeStore user;
    FakeProcessStarter starter;
    SearchTextEncoder encoder{[](std::wstring_view text, CodePage) {
                                  return std::string{text.begin(), text.end()};
                              },
                              [](unsigned char) { return false; }};

    void Put(FakeStore& store, const std::wstring& section, const std::wstring& line) {
        store.sections[section][L"CommandLine"] = line;
    }
    SearchOutcome Execute(int id, const std::wstring& text = L"ab", const std::wstring& name = L"name") {
        return ExecuteSearch({SearchCommandId{id}, text, name}, {settings, standard, user}, encoder, starter);
    }
};

} // namespace

TEST_F(ExecutingASearch, OpensTheExpandedLineOfAStandardCommand) {
    Put(standard, L"SearchCommand_01", L"http://s/?q=<%Search%>");

    EXPECT_EQ(Execute(5001), SearchOutcome{SearchStarted{}});

    EXPECT_EQ(starter.log, L"open http://s/?q=%61%62\n");
}

TEST_F(ExecutingASearch, OpensTheExpandedLineOfAUserCommand) {
    Put(user, L"SearchCommand_01", L"u <%Search_UTF16%>");

    EXPECT_EQ(Execute(5052), SearchOutcome{SearchStarted{}});

    EXPECT_EQ(starter.log, L"open u ab\n");
}

TEST_F(ExecutingASearch, Takes5051ForAStandardCommand) {
    Put(standard, L"SearchCommand_51", L"<%Search_UTF16%>");
    Put(user, L"SearchCommand_00", L"wrong <%Search%>");

    EXPECT_EQ(Execute(5051), SearchOutcome{SearchStarted{}});

    EXPECT_EQ(starter.log, L"open ab\n");
}

TEST_F(ExecutingASearch, OpensWithAnEmptyText) {
    Put(standard, L"SearchCommand_01", L"http://s/?q=<%Search%>");

    EXPECT_EQ(Execute(5001, L""), SearchOutcome{SearchStarted{}});

    EXPECT_EQ(starter.log, L"open http://s/?q=\n");
}

TEST_F(ExecutingASearch, ReportsTheShellsCode) {
    Put(standard, L"SearchCommand_01", L"<%Search%>");
    starter.openResult = 31;

    EXPECT_EQ(Execute(5001), SearchOutcome{SearchFailed{31}});
}

TEST_F(ExecutingASearch, RefusesWithoutACommandLine) {
    EXPECT_EQ(Execute(5003), (SearchOutcome{Refusal{IDS_NO_SEARCH_COMMAND, L"", false}}));
    EXPECT_EQ(Execute(0), (SearchOutcome{Refusal{IDS_NO_SEARCH_COMMAND, L"", false}}));
    EXPECT_EQ(starter.log, L"");
}

TEST_F(ExecutingASearch, RefusesWithoutAPlaceholder) {
    Put(standard, L"SearchCommand_01", L"http://s/");

    EXPECT_EQ(Execute(5001), (SearchOutcome{Refusal{IDS_BAD_USER_COMMAND, L"name", false}}));
    EXPECT_EQ(Execute(5001, L"ab", L""), (SearchOutcome{Refusal{IDS_BAD_USER_COMMAND, L"", true}}));
    EXPECT_EQ(starter.log, L"");
}

TEST_F(ExecutingASearch, StartsEverythingAsAProcess) {
    Put(standard, L"SearchCommand_01", L"\"<%Everything%>\" -search \"<%Search_UTF16%>\"");
    settings.WriteText(L"Settings", L"EverythingPath", L"C:\\E.exe");

    EXPECT_EQ(Execute(5001), SearchOutcome{SearchStarted{}});

    EXPECT_EQ(starter.log, L"start \"C:\\E.exe\" -search \"ab\"\n");
}

TEST_F(ExecutingASearch, SaysWhenEverythingIsNotThere) {
    Put(standard, L"SearchCommand_01", L"<%Everything%>");

    EXPECT_EQ(Execute(5001), (SearchOutcome{Refusal{IDS_TOOL_NOT_FOUND, L"Everything.exe", false}}));
    EXPECT_EQ(starter.log, L"");
}

TEST_F(ExecutingASearch, ReportsWhyEverythingDidNotStart) {
    Put(standard, L"SearchCommand_01", L"<%Everything%>");
    settings.WriteText(L"Settings", L"EverythingPath", L"C:\\E.exe");
    starter.startError = 740;

    EXPECT_EQ(Execute(5001), SearchOutcome{SearchFailed{740}});
}

TEST_F(ExecutingASearch, LeavesAnEditorsSearchToTheCaller) {
    Put(standard, L"SearchCommand_01", L"<%Hidemaru%>");
    Put(standard, L"SearchCommand_02", L"<%Hidemaru%> <%EmEditor%>");

    EXPECT_EQ(Execute(5001), SearchOutcome{EditorSearch{SearchTool::kHidemaru}});
    EXPECT_EQ(Execute(5002), SearchOutcome{EditorSearch{SearchTool::kEmEditor}});
    EXPECT_EQ(starter.log, L"");
}

namespace {

struct EditorSearches : testing::Test {
    FakeStore settings;
    FakeProcessStarter starter;
    std::wstring text = L"abc";
    std::wstring asked;
    std::optional<EditorSearchAnswer> answer = EditorSearchAnswer{L"changed", L"/arguments \"x\""};

    SearchOutcome Run(SearchTool tool) {
        const auto ask = [this](SearchTool editor, const std::wstring& searchText) {
            asked += std::wstring{ToolNameOf(editor)} + L": " + searchText + L"\n";
            return answer;
        };
        return RunEditorSearch(tool, text, settings, ask, starter);
    }
    void Install() {
        settings.WriteText(L"Settings", L"EmEditorPath", L"C:\\My Tools\\EmEditor.exe");
        settings.WriteText(L"Settings", L"HidemaruPath", L"C:\\H\\Hidemaru.exe");
    }
};

} // namespace

TEST_F(EditorSearches, StartTheQuotedEditorWithTheArguments) {
    Install();

    EXPECT_EQ(Run(SearchTool::kEmEditor), SearchOutcome{SearchStarted{}});
    EXPECT_EQ(Run(SearchTool::kHidemaru), SearchOutcome{SearchStarted{}});

    EXPECT_EQ(starter.log, L"start \"C:\\My Tools\\EmEditor.exe\" /arguments \"x\"\n"
                           L"start \"C:\\H\\Hidemaru.exe\" /arguments \"x\"\n");
}

TEST_F(EditorSearches, AskWithTheTextAndGiveBackWhatTheUserMadeOfIt) {
    Install();

    EXPECT_EQ(Run(SearchTool::kHidemaru), SearchOutcome{SearchStarted{}});

    EXPECT_EQ(asked, L"Hidemaru: abc\n");
    EXPECT_EQ(text, L"changed");
}

TEST_F(EditorSearches, EndSilentlyWhenTheUserCancels) {
    Install();
    answer.reset();

    const auto outcome = Run(SearchTool::kEmEditor);

    const auto* const refusal = std::get_if<Refusal>(&outcome);
    ASSERT_NE(refusal, nullptr);
    EXPECT_TRUE(refusal->silent);
    EXPECT_EQ(text, L"abc");
    EXPECT_EQ(starter.log, L"");
}

TEST_F(EditorSearches, SayThatTheEditorIsMissingAndAskNothing) {
    EXPECT_EQ(Run(SearchTool::kEmEditor), (SearchOutcome{Refusal{IDS_TOOL_NOT_FOUND, L"EmEditor.exe", false}}));
    EXPECT_EQ(Run(SearchTool::kHidemaru), (SearchOutcome{Refusal{IDS_TOOL_NOT_FOUND, L"Hidemaru.exe", false}}));

    EXPECT_EQ(asked, L"");
    EXPECT_EQ(starter.log, L"");
}

TEST_F(EditorSearches, ReportWhyTheEditorDidNotStart) {
    Install();
    starter.startError = 2;

    EXPECT_EQ(Run(SearchTool::kEmEditor), SearchOutcome{SearchFailed{2}});
    EXPECT_EQ(text, L"changed");
}

TEST_F(EditorSearches, FillInPathAndArgumentsAsTheyAre) {
    settings.WriteText(L"Settings", L"EmEditorPath", L"C:\\%s\\%d.exe");
    answer = EditorSearchAnswer{L"", L"%s 100%%"};

    EXPECT_EQ(Run(SearchTool::kEmEditor), SearchOutcome{SearchStarted{}});

    EXPECT_EQ(starter.log, L"start \"C:\\%s\\%d.exe\" %s 100%%\n");
}
