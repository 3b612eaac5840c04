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

using List = std::vector<ListedCommand>;

struct SavingUserCommands : testing::Test {
    FakeStore user;
    FakeStore settings;
    FakeUserFile file{user};
    UserCommandReading loaded;

    // The file holds these commands, and the list in the options was made from them.
    void Load(const List& list) {
        ASSERT_EQ(SaveUserCommands(list, {}, file, settings), 0U);
        loaded = file.Read();
        file.log.clear();
        settings.log.clear();
    }
    unsigned long Save(const List& list) { return SaveUserCommands(list, loaded, file, settings); }
};

} // namespace

TEST_F(SavingUserCommands, NumbersThemAnewAndTheSelectionFollows) {
    Load({Listed(1, L"a", true), Listed(2, L"b", true), Listed(3, L"c", true)});

    // The first was deleted.
    EXPECT_EQ(Save({Listed(2, L"b", true), Listed(3, L"c", true)}), 0U);

    EXPECT_EQ(file.log, L"write;");
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
    Load({Listed(1, L"old", false)});

    EXPECT_EQ(Save({}), 0U);

    EXPECT_EQ(file.log, L"delete;");
    EXPECT_EQ(settings.log, L"");
}

TEST_F(SavingUserCommands, SaysWhyTheFileCannotBeDeleted) {
    file.deleteError = 5;

    EXPECT_EQ(Save({}), 5U);
}

TEST_F(SavingUserCommands, SaysWhyTheFileCannotBeWrittenAndKeepsTheOldSelection) {
    Load({Listed(1, L"old", true)});
    file.writeError = 32;

    EXPECT_EQ(Save({Listed(1, L"a", true)}), 32U);

    EXPECT_EQ(SearchCommandTable{user}.NameOf(1), L"old");
    EXPECT_EQ(settings.log, L"");
}

TEST_F(SavingUserCommands, WritesNothingButTheSelectionWhenNothingElseChanged) {
    Load({Listed(1, L"a", true), Listed(2, L"b", true)});

    EXPECT_EQ(Save({Listed(1, L"a", false), Listed(2, L"b", true)}), 0U);

    EXPECT_EQ(file.log, L"");
    EXPECT_EQ(settings.log, L"Settings.UserSearchCommand=2\n");
}

TEST_F(SavingUserCommands, WritesACommandOfWhichOnlyTheCommentChanged) {
    Load({Listed(1, L"a", true)});
    auto changed = Listed(1, L"a", true);
    changed.command.comment = L"another";

    EXPECT_EQ(Save({changed}), 0U);

    EXPECT_EQ(file.log, L"write;");
    EXPECT_EQ(file.Read().commands.front().comment, L"another");
}

TEST_F(SavingUserCommands, WritesTheCommandsAgainWhenTheirFileIsGone) {
    Load({Listed(1, L"a", true)});
    user.sections.clear();

    EXPECT_EQ(Save({Listed(1, L"a", true)}), 0U);

    EXPECT_EQ(file.log, L"write;");
}

TEST_F(SavingUserCommands, NeverDeletesAFileThatCouldNotBeRead) {
    loaded.condition = FileCondition::kUnreadable;
    file.condition = FileCondition::kUnreadable;

    EXPECT_EQ(Save({}), 0U);

    EXPECT_EQ(file.log, L"");
}

TEST_F(SavingUserCommands, NeverDeletesAFileThatWasOnlyHeldWhileTheListWasMade) {
    Load({Listed(1, L"a", true)});
    loaded = {FileCondition::kUnreadable, {}};

    EXPECT_EQ(Save({}), 0U);

    EXPECT_EQ(file.log, L"");
    EXPECT_EQ(SearchCommandTable{user}.NameOf(1), L"a");
}

TEST_F(SavingUserCommands, LeavesAFileAloneThatIsHeldNow) {
    Load({Listed(1, L"a", true)});
    file.condition = FileCondition::kUnreadable;
    user.sections.clear();

    EXPECT_EQ(Save({Listed(1, L"a", true)}), 0U);

    EXPECT_EQ(file.log, L"");
}

TEST_F(SavingUserCommands, KeepsACopyOfWhatWasNotReadBeforeItIsReplaced) {
    Load({Listed(1, L"a", true)});
    file.condition = FileCondition::kUnreadable;
    EXPECT_EQ(Save({Listed(1, L"new", true)}), 0U);
    EXPECT_EQ(file.log, L"copy;write;");

    // Held while the list was made, and to be read again now.
    file.log.clear();
    loaded = {FileCondition::kUnreadable, {}};
    file.condition = FileCondition::kGood;
    EXPECT_EQ(Save({Listed(1, L"newer", true)}), 0U);
    EXPECT_EQ(file.log, L"copy;write;");
}

TEST_F(SavingUserCommands, KeepsACopyOfAPartlyReadFileBeforeItIsDeleted) {
    Load({Listed(1, L"a", true)});
    loaded.condition = FileCondition::kUnreadable;
    file.condition = FileCondition::kUnreadable;

    EXPECT_EQ(Save({}), 0U);

    EXPECT_EQ(file.log, L"copy;delete;");
}

TEST_F(SavingUserCommands, KeepsACopyOfWhatAnotherHandHasWritten) {
    Load({Listed(1, L"a", true)});
    loaded.condition = FileCondition::kForeign;
    file.condition = FileCondition::kForeign;

    EXPECT_EQ(Save({Listed(1, L"new", true)}), 0U);

    EXPECT_EQ(file.log, L"copy;write;");
}

TEST_F(SavingUserCommands, KeepsACopyOfWhatCameIntoTheFileMeanwhile) {
    Load({Listed(1, L"a", true)});
    user.sections[L"SearchCommand_02"][L"CommandName"] = std::wstring{L"of another"};

    EXPECT_EQ(Save({Listed(1, L"new", true)}), 0U);

    EXPECT_EQ(file.log, L"copy;write;");
}

TEST_F(SavingUserCommands, ReplacesNothingOfWhichNoCopyCanBeKept) {
    file.condition = FileCondition::kUnreadable;
    file.copyError = 32;

    EXPECT_EQ(Save({Listed(1, L"new", true)}), 32U);

    EXPECT_EQ(file.log, L"copy;");
    EXPECT_EQ(settings.log, L"");
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
