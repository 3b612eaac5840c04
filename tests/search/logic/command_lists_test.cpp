#include "search/logic/command_lists.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "base/format_text.h"
#include "settings/logic/setting_keys.h"
#include "tests/support/fake_store.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::FakeStore;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointee;

namespace {

constexpr auto kStandard = SearchCommandKind::kStandard;
constexpr auto kUser = SearchCommandKind::kUser;

struct CommandListsTest : testing::Test {
    FakeStore settings;
    FakeStore standard;
    FakeStore user;
    CommandLists lists;

    static void Fill(FakeStore& store, int count, const wchar_t* letter) {
        for (int i = 1; i <= count; ++i) {
            auto& section = store.sections[settings::section::SearchCommand(i)];
            section[L"CommandName"] = base::FormatText(L"%s%d", std::wstring_view{letter}, i);
            section[L"CommandLine"] = base::FormatText(L"line %d", i);
            section[L"Comment"] = base::FormatText(L"about %d", i);
        }
    }
    void Set(const wchar_t* name, FakeStore::Value value) { settings.sections[L"Settings"][name] = std::move(value); }
    // The lists with commands s1, s2 ... and u1, u2 ..., none checked.
    void Load(int standardCommands, int userCommands) {
        Fill(standard, standardCommands, L"s");
        Fill(user, userCommands, L"u");
        Set(L"DefaultSearchCommand", std::wstring{});
        Reload();
    }
    void Reload() { lists = CommandLists{SearchStores{settings, standard, user}, SearchCommandTable{user}.ReadAll()}; }
    void Show(SearchCommandKind kind, std::optional<std::size_t> row = {}) {
        lists.Show(kind);
        lists.Select(row);
    }
    void Check(SearchCommandKind kind, std::size_t count) {
        const auto shown = lists.ShownKind();
        lists.Show(kind);
        for (std::size_t i = 0; i < count; ++i) lists.SetChecked(i, true);
        lists.Show(shown);
    }
    [[nodiscard]] std::vector<std::wstring> Names(SearchCommandKind kind) const {
        std::vector<std::wstring> names;
        for (const auto& item : lists.Of(kind)) names.push_back((item.selected ? L"*" : L"") + item.command.name);
        return names;
    }
};

SearchCommand Named(const std::wstring& name) {
    return {0, name, L"line of " + name, L"about " + name};
}

using LoadingCommandLists = CommandListsTest;
using CommandActionsTest = CommandListsTest;
using CheckingCommands = CommandListsTest;
using ChangingCommands = CommandListsTest;

} // namespace

TEST_F(LoadingCommandLists, TakesTheUsersCommandsAsTheyAreGiven) {
    Fill(user, 1, L"cut");
    const std::wstring longLine(5'000, L'x');

    lists = CommandLists{SearchStores{settings, standard, user}, {{1, L"whole", longLine, L""}}};

    ASSERT_THAT(Names(kUser), testing::ElementsAre(L"whole"));
    EXPECT_EQ(lists.Of(kUser).front().command.line, longLine);
}

TEST_F(LoadingCommandLists, IsEmptyWithoutFiles) {
    Reload();

    EXPECT_THAT(lists.Of(kStandard), IsEmpty());
    EXPECT_THAT(lists.Of(kUser), IsEmpty());
    EXPECT_EQ(lists.Actions(), CommandActions{});
    EXPECT_EQ(lists.SelectedCommand(), nullptr);
}

TEST_F(LoadingCommandLists, ShowsTheStandardCommandsFirstWithNothingSelected) {
    Load(3, 2);

    EXPECT_EQ(lists.ShownKind(), kStandard);
    EXPECT_EQ(lists.Selected(), std::nullopt);
    EXPECT_EQ(lists.Shown().size(), 3U);
}

TEST_F(LoadingCommandLists, ReadsAllTextsAndNumbers) {
    Load(2, 1);

    EXPECT_EQ(lists.Of(kStandard)[1].command, (SearchCommand{2, L"s2", L"line 2", L"about 2"}));
    EXPECT_EQ(lists.Of(kUser)[0].command, (SearchCommand{1, L"u1", L"line 1", L"about 1"}));
}

TEST_F(LoadingCommandLists, ChecksTheBuiltInSelectionAtFirst) {
    Fill(standard, 27, L"s");
    Fill(user, 2, L"u");
    Reload();

    EXPECT_THAT(Names(kStandard),
                ElementsAre(L"*s1", L"s2", L"s3", L"s4", L"*s5", L"*s6", L"s7", L"*s8", L"s9", L"*s10", L"s11", L"*s12",
                            L"s13", L"*s14", L"s15", L"s16", L"s17", L"s18", L"*s19", L"s20", L"s21", L"*s22", L"s23",
                            L"s24", L"s25", L"*s26", L"s27"));
    EXPECT_THAT(Names(kUser), ElementsAre(L"u1", L"u2"));
}

TEST_F(LoadingCommandLists, ChecksWhatIsStored) {
    Fill(standard, 3, L"s");
    Fill(user, 3, L"u");
    Set(L"DefaultSearchCommand", std::wstring{L"3,x,,99,3"});
    Set(L"UserSearchCommand", std::wstring{L"1,2"});
    Reload();

    EXPECT_THAT(Names(kStandard), ElementsAre(L"s1", L"s2", L"*s3"));
    EXPECT_THAT(Names(kUser), ElementsAre(L"*u1", L"*u2", L"u3"));
    EXPECT_EQ(lists.Checked(), 3);
}

TEST_F(LoadingCommandLists, PutsTheStandardCommandsInTheStoredOrder) {
    Fill(standard, 4, L"s");
    Fill(user, 2, L"u");
    Set(L"DefaultSearchCommand", std::wstring{L"2"});
    Set(L"SearchCommandOrder", std::wstring{L"3,9,2,3"});
    Reload();

    EXPECT_THAT(Names(kStandard), ElementsAre(L"s3", L"*s2", L"s1", L"s4"));
    EXPECT_THAT(Names(kUser), ElementsAre(L"u1", L"u2"));
}

TEST_F(LoadingCommandLists, EndsAtTheFirstCommandWithoutAName) {
    Fill(standard, 3, L"s");
    standard.sections[L"SearchCommand_02"].erase(L"CommandName");
    Reload();

    EXPECT_THAT(Names(kStandard), ElementsAre(L"*s1"));
}

TEST_F(LoadingCommandLists, KeepsMoreThanTheLimitWhenItIsStoredSo) {
    std::wstring all;
    for (int i = 1; i <= 60; ++i) all += base::FormatText(L"%d,", i);
    Fill(standard, 61, L"s");
    Set(L"DefaultSearchCommand", all);
    Reload();

    EXPECT_EQ(lists.Checked(), 60);
    EXPECT_FALSE(lists.Actions().checkAll);
    lists.SetChecked(60, true);
    EXPECT_EQ(lists.Checked(), 60);
    lists.SetChecked(0, false);
    EXPECT_EQ(lists.Checked(), 59);
}

TEST_F(LoadingCommandLists, TakesAsManyCommandsAsThereAre) {
    Load(150, 60);

    EXPECT_EQ(lists.Of(kStandard).size(), 150U);
    EXPECT_EQ(lists.Of(kUser).size(), 60U);
    Show(kUser, 0);
    EXPECT_FALSE(lists.Actions().add);
}

TEST_F(CommandActionsTest, MovesOnlyASelectedCommand) {
    Load(3, 0);

    const auto moves = [&](std::optional<std::size_t> row) {
        Show(kStandard, row);
        return std::pair{lists.Actions().moveUp, lists.Actions().moveDown};
    };

    EXPECT_EQ(moves({}), (std::pair{false, false}));
    EXPECT_EQ(moves(0), (std::pair{false, true}));
    EXPECT_EQ(moves(1), (std::pair{true, true}));
    EXPECT_EQ(moves(2), (std::pair{true, false}));
}

TEST_F(CommandActionsTest, MovesNothingInAListOfOne) {
    Load(1, 0);
    Show(kStandard, 0);

    EXPECT_FALSE(lists.Actions().moveUp);
    EXPECT_FALSE(lists.Actions().moveDown);
}

TEST_F(CommandActionsTest, ChecksAllOnlyWhatIsNotCheckedYet) {
    Load(2, 0);
    EXPECT_TRUE(lists.Actions().checkAll);
    EXPECT_FALSE(lists.Actions().uncheckAll);

    Check(kStandard, 1);
    EXPECT_TRUE(lists.Actions().checkAll);
    EXPECT_TRUE(lists.Actions().uncheckAll);

    Check(kStandard, 2);
    EXPECT_FALSE(lists.Actions().checkAll);
    EXPECT_TRUE(lists.Actions().uncheckAll);

    lists.Show(kUser);
    EXPECT_FALSE(lists.Actions().checkAll);
    EXPECT_FALSE(lists.Actions().uncheckAll);
}

TEST_F(CommandActionsTest, ChecksAllOnlyWhileBothListsTogetherAreBelowTheLimit) {
    Load(40, 20);
    Check(kStandard, 39);
    Check(kUser, 10);
    EXPECT_TRUE(lists.Actions().checkAll);

    Check(kUser, 11);
    EXPECT_FALSE(lists.Actions().checkAll);
    lists.Show(kUser);
    EXPECT_FALSE(lists.Actions().checkAll);
}

TEST_F(CommandActionsTest, CopiesASelectedCommandOfEitherList) {
    Load(1, 1);
    for (const auto kind : {kStandard, kUser}) {
        Show(kind, {});
        EXPECT_FALSE(lists.Actions().copy);
        Show(kind, 0);
        EXPECT_TRUE(lists.Actions().copy);
    }
}

TEST_F(CommandActionsTest, LeavesTheStandardCommandsAsTheyAre) {
    Load(2, 2);
    Show(kStandard, 0);
    lists.Copy();

    EXPECT_EQ(lists.Actions(), (CommandActions{.moveDown = true, .checkAll = true, .copy = true}));

    lists.Add(Named(L"new"));
    lists.Replace(Named(L"new"));
    lists.Paste();
    lists.Remove();
    EXPECT_THAT(Names(kStandard), ElementsAre(L"s1", L"s2"));
    EXPECT_THAT(Names(kUser), ElementsAre(L"u1", L"u2"));
}

TEST_F(CommandActionsTest, EditsAndDeletesASelectedCommandOfTheUser) {
    Load(0, 2);
    Show(kUser, {});
    EXPECT_EQ(lists.Actions(), (CommandActions{.checkAll = true, .add = true}));

    Show(kUser, 1);
    EXPECT_EQ(
        lists.Actions(),
        (CommandActions{.moveUp = true, .checkAll = true, .copy = true, .add = true, .edit = true, .remove = true}));
}

TEST_F(CommandActionsTest, PastesOnceSomethingIsCopied) {
    Load(1, 0);
    Show(kUser);
    EXPECT_FALSE(lists.Actions().paste);

    Show(kStandard, 0);
    lists.Copy();
    EXPECT_FALSE(lists.Actions().paste);
    Show(kUser);
    EXPECT_TRUE(lists.Actions().paste);
}

TEST_F(CommandActionsTest, HasNoRoomForThe51stCommandOfTheUser) {
    Load(0, 49);
    Show(kUser, 0);
    lists.Copy();
    EXPECT_TRUE(lists.Actions().add);
    EXPECT_TRUE(lists.Actions().paste);

    lists.Add(Named(L"the 50th"));
    EXPECT_FALSE(lists.Actions().add);
    EXPECT_FALSE(lists.Actions().paste);

    lists.Add(Named(L"the 51st"));
    lists.Paste();
    EXPECT_EQ(lists.Of(kUser).size(), 50U);
}

TEST_F(CheckingCommands, ChecksAndUnchecks) {
    Load(2, 0);

    lists.SetChecked(1, true);
    EXPECT_THAT(Names(kStandard), ElementsAre(L"s1", L"*s2"));
    lists.SetChecked(1, true);
    EXPECT_EQ(lists.Checked(), 1);
    lists.SetChecked(1, false);
    EXPECT_EQ(lists.Checked(), 0);
    lists.SetChecked(2, true);
    EXPECT_EQ(lists.Checked(), 0);
}

TEST_F(CheckingCommands, RefusesThe51stAndTellsOfTheOtherList) {
    Load(40, 20);
    Check(kStandard, 38);
    Check(kUser, 11);
    lists.Show(kStandard);
    EXPECT_EQ(lists.LimitReached(), std::nullopt);

    lists.SetChecked(38, true);
    EXPECT_EQ(lists.LimitReached(), (SelectionLimit{50, kUser, 11}));
    lists.SetChecked(39, true);
    EXPECT_EQ(lists.Checked(), 50);

    lists.Show(kUser);
    EXPECT_EQ(lists.LimitReached(), (SelectionLimit{50, kStandard, 39}));
    lists.SetChecked(11, true);
    EXPECT_EQ(lists.Checked(), 50);

    lists.SetChecked(0, false);
    EXPECT_EQ(lists.LimitReached(), std::nullopt);
}

TEST_F(CheckingCommands, ChecksAllOfTheListOnView) {
    Load(3, 2);
    lists.SetChecked(1, true);

    EXPECT_EQ(lists.CheckAll(), std::nullopt);

    EXPECT_THAT(Names(kStandard), ElementsAre(L"*s1", L"*s2", L"*s3"));
    EXPECT_THAT(Names(kUser), ElementsAre(L"u1", L"u2"));
}

TEST_F(CheckingCommands, ChecksFromTheTopUntilTheLimitIsMet) {
    Load(49, 3);
    Check(kStandard, 49);
    lists.Show(kUser);

    EXPECT_EQ(lists.CheckAll(), (SelectionLimit{50, kStandard, 49}));

    EXPECT_THAT(Names(kUser), ElementsAre(L"*u1", L"u2", L"u3"));
}

TEST_F(CheckingCommands, SaysNothingWhenAllJustFit) {
    Load(49, 1);
    Check(kStandard, 49);
    lists.Show(kUser);

    EXPECT_EQ(lists.CheckAll(), std::nullopt);

    EXPECT_EQ(lists.Checked(), 50);
}

TEST_F(CheckingCommands, UnchecksAllOfTheListOnView) {
    Load(2, 2);
    Check(kStandard, 2);
    Check(kUser, 2);

    lists.UncheckAll();

    EXPECT_THAT(Names(kStandard), ElementsAre(L"s1", L"s2"));
    EXPECT_THAT(Names(kUser), ElementsAre(L"*u1", L"*u2"));
}

TEST_F(ChangingCommands, SelectsNothingThatIsNotThere) {
    Load(2, 0);

    lists.Select(2);
    EXPECT_EQ(lists.Selected(), std::nullopt);
    lists.Select(1);
    EXPECT_THAT(lists.SelectedCommand(), Pointee(lists.Shown()[1].command));
}

TEST_F(ChangingCommands, KeepsASelectionInEachList) {
    Load(3, 3);
    Show(kStandard, 2);
    Show(kUser, 1);

    lists.Show(kStandard);
    EXPECT_EQ(lists.Selected(), 2U);
    lists.Show(kUser);
    EXPECT_EQ(lists.Selected(), 1U);
}

TEST_F(ChangingCommands, SwapsTheSelectedCommandWithItsNeighbour) {
    Load(3, 0);
    lists.SetChecked(2, true);
    lists.Select(2);

    lists.MoveUp();
    EXPECT_THAT(Names(kStandard), ElementsAre(L"s1", L"*s3", L"s2"));
    EXPECT_EQ(lists.Selected(), 1U);
    lists.MoveUp();
    lists.MoveUp();
    EXPECT_THAT(Names(kStandard), ElementsAre(L"*s3", L"s1", L"s2"));
    EXPECT_EQ(lists.Selected(), 0U);
    lists.MoveDown();
    EXPECT_THAT(Names(kStandard), ElementsAre(L"s1", L"*s3", L"s2"));
    EXPECT_EQ(lists.Selected(), 1U);
}

TEST_F(ChangingCommands, MovesNothingWithoutASelection) {
    Load(2, 0);

    lists.MoveUp();
    lists.MoveDown();

    EXPECT_THAT(Names(kStandard), ElementsAre(L"s1", L"s2"));
}

TEST_F(ChangingCommands, AddsAtTheEndCheckedAndSelected) {
    Load(0, 2);
    Check(kUser, 2);
    Show(kUser, 0);

    lists.Add(Named(L"new"));

    EXPECT_THAT(Names(kUser), ElementsAre(L"*u1", L"*u2", L"*new"));
    EXPECT_EQ(lists.Selected(), 2U);
}

TEST_F(ChangingCommands, AddsUncheckedWhereFiftyAreCheckedAlready) {
    Load(50, 1);
    Check(kStandard, 49);
    Show(kUser, {});

    lists.Add(Named(L"the 50th checked"));
    lists.Add(Named(L"one too many"));

    EXPECT_THAT(Names(kUser), ElementsAre(L"u1", L"*the 50th checked", L"one too many"));
}

TEST_F(ChangingCommands, GivesAnEditedCommandItsTextsAndNothingElse) {
    Load(0, 2);
    Check(kUser, 2);
    Show(kUser, 1);

    lists.Replace(Named(L"new"));

    EXPECT_THAT(Names(kUser), ElementsAre(L"*u1", L"*new"));
    EXPECT_EQ(lists.Shown()[1].command, (SearchCommand{2, L"new", L"line of new", L"about new"}));
    EXPECT_EQ(lists.Selected(), 1U);
}

TEST_F(ChangingCommands, PastesBeforeTheSelectedCommand) {
    Load(1, 3);
    Check(kStandard, 1);
    Show(kStandard, 0);
    lists.Copy();
    Show(kUser, 1);

    lists.Paste();

    EXPECT_THAT(Names(kUser), ElementsAre(L"u1", L"s1", L"u2", L"u3"));
    EXPECT_EQ(lists.Selected(), 1U);
    EXPECT_EQ(lists.Shown()[1].command.line, L"line 1");
    EXPECT_EQ(lists.Shown()[1].command.comment, L"about 1");
}

TEST_F(ChangingCommands, PastesAtTheEndWithNothingSelected) {
    Load(1, 2);
    Show(kStandard, 0);
    lists.Copy();
    Show(kUser);

    lists.Paste();

    EXPECT_THAT(Names(kUser), ElementsAre(L"u1", L"u2", L"s1"));
    EXPECT_EQ(lists.Selected(), 2U);
}

TEST_F(ChangingCommands, PastesAnyNumberOfDuplicates) {
    Load(0, 2);
    Show(kUser, 0);
    lists.Copy();

    lists.Replace(Named(L"changed"));
    lists.Paste();
    lists.Paste();

    EXPECT_THAT(Names(kUser), ElementsAre(L"u1", L"u1", L"changed", L"u2"));
}

TEST_F(ChangingCommands, KeepsWhatWasCopiedWhenItIsDeleted) {
    Load(0, 1);
    Show(kUser, 0);
    lists.Copy();
    lists.Remove();

    lists.Paste();

    EXPECT_THAT(Names(kUser), ElementsAre(L"u1"));
}

TEST_F(ChangingCommands, KeepsWhatWasCopiedWhenNothingIsSelectedToCopy) {
    Load(1, 0);
    lists.Select(0);
    lists.Copy();
    lists.Select({});
    lists.Copy();
    Show(kUser);

    lists.Paste();

    EXPECT_THAT(Names(kUser), ElementsAre(L"s1"));
}

TEST_F(ChangingCommands, SelectsWhatTookThePlaceOfADeletedCommand) {
    Load(0, 3);
    Show(kUser, 1);

    lists.Remove();
    EXPECT_THAT(Names(kUser), ElementsAre(L"u1", L"u3"));
    EXPECT_EQ(lists.Selected(), 1U);
    lists.Remove();
    EXPECT_THAT(Names(kUser), ElementsAre(L"u1"));
    EXPECT_EQ(lists.Selected(), 0U);
    lists.Remove();
    EXPECT_THAT(Names(kUser), IsEmpty());
    EXPECT_EQ(lists.Selected(), std::nullopt);
    lists.Remove();
    EXPECT_THAT(Names(kUser), IsEmpty());
}

TEST_F(ChangingCommands, DeletesNothingWithoutASelection) {
    Load(0, 2);
    Show(kUser);

    lists.Remove();

    EXPECT_THAT(Names(kUser), ElementsAre(L"u1", L"u2"));
}

TEST(CommandTexts, SaysTheCommentOrElseTheLineBesideTheName) {
    EXPECT_EQ(SummaryOf({1, L"n", L"l", L"c"}), L"c");
    EXPECT_EQ(SummaryOf({1, L"n", L"l", L""}), L"l");
    EXPECT_EQ(SummaryOf({1, L"n", L"", L""}), L"");
}

TEST(CommandTexts, TellsEachTextOnALineOfItsOwn) {
    const DetailFormats formats{L"N: %s", L"L: %s", L"C: %s"};

    EXPECT_EQ(DetailsOf({1, L"n", L"l", L"c"}, formats), L"N: n\r\nL: l\r\nC: c");
    EXPECT_EQ(DetailsOf({1, L"n", L"l", L""}, formats), L"N: n\r\nL: l");
    EXPECT_EQ(DetailsOf({1, L"%s%d", L"<%Search%>", L"100%"}, formats), L"N: %s%d\r\nL: <%Search%>\r\nC: 100%");
}

TEST_F(CommandListsTest, FindsAMarkedCommandAgain) {
    Load(2, 4);
    Show(kUser, 1);
    const auto mark = lists.Mark();
    ASSERT_TRUE(mark);

    Show(kUser, 2);
    lists.MoveUp();
    Show(kStandard, 0);

    EXPECT_TRUE(lists.GoBackTo(*mark));
    EXPECT_EQ(lists.ShownKind(), kUser);
    EXPECT_EQ(lists.Selected(), 2U);
    ASSERT_NE(lists.SelectedCommand(), nullptr);
    EXPECT_EQ(lists.SelectedCommand()->name, L"u2");
}

TEST_F(CommandListsTest, TellsAMarkedCommandFromItsDuplicates) {
    Load(0, 2);
    Show(kUser, 0);
    lists.Copy();
    const auto mark = lists.Mark();
    lists.Paste();
    lists.Paste();

    EXPECT_TRUE(lists.GoBackTo(*mark));

    EXPECT_EQ(lists.Selected(), 2U);
}

TEST_F(CommandListsTest, FindsAMarkedCommandNoMoreWhenItIsGone) {
    Load(0, 3);
    Show(kUser, 1);
    const auto mark = lists.Mark();
    lists.Remove();
    Show(kUser, 0);

    EXPECT_FALSE(lists.GoBackTo(*mark));

    EXPECT_EQ(lists.Selected(), 0U);
}

TEST_F(CommandListsTest, MarksNothingWhenNothingIsSelected) {
    Load(1, 1);

    EXPECT_FALSE(lists.Mark());
}
