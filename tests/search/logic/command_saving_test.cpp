#include "search/logic/command_saving.h"

#include <gtest/gtest.h>

#include "tests/support/fake_store.h"
#include "tests/support/fake_user_file.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::FakeStore;
using korvane::test::FakeUserFile;

namespace {

ListedCommand Listed(int number, const std::wstring& name, bool selected) {
    return {{number, name, L"line of " + name, L"about " + name}, selected};
}

struct SavingUserCommands : testing::Test {
    FakeStore user;
    FakeStore settings;
    FakeUserFile file{user};

    unsigned long Save(const std::vector<ListedCommand>& list) { return SaveUserCommands(list, file, user, settings); }
};

} // namespace

TEST_F(SavingUserCommands, WritesNameLineAndCommentInThisOrder) {
    EXPECT_EQ(Save({Listed(1, L"a", false)}), 0U);

    EXPECT_EQ(user.log, L"SearchCommand_01.CommandName=a\n"
                        L"SearchCommand_01.CommandLine=line of a\n"
                        L"SearchCommand_01.Comment=about a\r\n\n");
    EXPECT_EQ(file.log, L"recreate;");
}

TEST_F(SavingUserCommands, NumbersThemAnewAndTheSelectionFollows) {
    // Three commands of which the first was deleted.
    EXPECT_EQ(Save({Listed(2, L"b", true), Listed(3, L"c", true)}), 0U);

    EXPECT_EQ(SearchCommandTable{user}.NameOf(1), L"b");
    EXPECT_EQ(SearchCommandTable{user}.NameOf(2), L"c");
    EXPECT_EQ(SearchCommandTable{user}.NameOf(3), L"");
    EXPECT_EQ(settings.log, L"Settings.UserSearchCommand=1,2\n");
}

TEST_F(SavingUserCommands, SelectsOnlyTheCheckedOnes) {
    EXPECT_EQ(Save({Listed(1, L"a", false), Listed(2, L"b", true), Listed(3, L"c", false)}), 0U);

    EXPECT_EQ(settings.log, L"Settings.UserSearchCommand=2\n");
}

TEST_F(SavingUserCommands, RemovesTheSelectionWhenNothingIsChecked) {
    settings.WriteText(L"Settings", L"UserSearchCommand", L"1");

    EXPECT_EQ(Save({Listed(1, L"a", false)}), 0U);

    EXPECT_FALSE(settings.Has(L"Settings", L"UserSearchCommand"));
}

TEST_F(SavingUserCommands, DeletesTheFileOfAnEmptyListAndStops) {
    user.WriteText(L"SearchCommand_01", L"CommandName", L"old");

    EXPECT_EQ(Save({}), 0U);

    EXPECT_EQ(file.log, L"delete;");
    EXPECT_EQ(settings.log, L"");
}

TEST_F(SavingUserCommands, SaysWhyTheFileCannotBeDeleted) {
    file.deleteError = 5;

    EXPECT_EQ(Save({}), 5U);
}

TEST_F(SavingUserCommands, SaysWhyTheFileCannotBeCreatedAndStops) {
    file.recreateError = 32;

    EXPECT_EQ(Save({Listed(1, L"a", true)}), 32U);

    EXPECT_EQ(user.log, L"");
    EXPECT_EQ(settings.log, L"");
}

TEST_F(SavingUserCommands, BringsTheOldCommandsBackWhenAWriteFails) {
    ASSERT_EQ(Save({Listed(1, L"old", true)}), 0U);
    const auto before = user.sections;
    settings.log.clear();
    user.writesThatSucceed = 4;

    EXPECT_NE(Save({Listed(1, L"a", false), Listed(2, L"b", false)}), 0U);

    EXPECT_EQ(user.sections, before);
    EXPECT_EQ(settings.log, L"");
}

TEST(IniValue, LeavesOrdinaryTextsAlone) {
    EXPECT_EQ(AsIniValue(L""), L"");
    EXPECT_EQ(AsIniValue(L"Web 検索"), L"Web 検索");
    EXPECT_EQ(AsIniValue(L"\"<%Everything%>\" -search x"), L"\"<%Everything%>\" -search x");
    EXPECT_EQ(AsIniValue(L"\""), L"\"");
}

TEST(IniValue, ShieldsWhatAReaderTakesAway) {
    EXPECT_EQ(AsIniValue(L"\"a\" \"b\""), L"\"\"a\" \"b\"\"");
    EXPECT_EQ(AsIniValue(L"'a'"), L"\"'a'\"");
    EXPECT_EQ(AsIniValue(L" "), L"\" \"");
    EXPECT_EQ(AsIniValue(L"a\t"), L"\"a\t\"");
}

TEST(IniValue, StaysOnOneLine) {
    EXPECT_EQ(AsIniValue(L"a\r\n[SearchCommand_01]"), L"a  [SearchCommand_01]");
}

TEST(SavingStandardSelection, WritesAllNumbersAsTheOrderAndTheCheckedAsTheSelection) {
    FakeStore settings;

    EXPECT_TRUE(SaveStandardSelection(std::vector{Listed(3, L"c", true), Listed(1, L"a", false), Listed(2, L"b", true)},
                                      settings));

    EXPECT_EQ(settings.log, L"Settings.SearchCommandOrder=3,1,2\nSettings.DefaultSearchCommand=3,2\n");
}

TEST(SavingStandardSelection, KeepsAnEmptySelectionEmpty) {
    FakeStore settings;

    EXPECT_TRUE(SaveStandardSelection(std::vector{Listed(1, L"a", false)}, settings));

    EXPECT_TRUE(settings.Has(L"Settings", L"DefaultSearchCommand"));
    EXPECT_EQ(settings.Read(SelectionSetting(SearchCommandKind::kStandard)), L"");
}

TEST(SavingStandardSelection, SaysWhenItCannotWrite) {
    FakeStore settings;
    settings.writesThatSucceed = 1;

    EXPECT_FALSE(SaveStandardSelection(std::vector{Listed(1, L"a", true)}, settings));
}
