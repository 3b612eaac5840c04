#include "search/logic/search_commands.h"

#include <gmock/gmock.h>

#include <set>

#include "settings/logic/setting_keys.h"
#include "tests/support/fake_store.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::FakeStore;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

namespace keys = settings::keys;

constexpr auto kStandard = SearchCommandKind::kStandard;
constexpr auto kUser = SearchCommandKind::kUser;

void PutCommand(FakeStore& store, int number, const std::wstring& name, const std::wstring& line = L"x") {
    auto& section = store.sections[settings::section::SearchCommand(number)];
    section[L"CommandName"] = name;
    section[L"CommandLine"] = line;
}

// The menu in one line: identifiers, "|" for a separator.
std::wstring Shape(const SearchMenuPlan& plan) {
    std::wstring shape;
    for (const auto& row : plan.rows) {
        if (!shape.empty()) shape += L' ';
        shape += row.IsSeparator() ? L"|" : std::to_wstring(row.command);
    }
    return shape;
}

struct SearchMenu : testing::Test {
    FakeStore settings;
    FakeStore standard;
    FakeStore user;

    [[nodiscard]] SearchMenuPlan Plan() { return PlanSearchMenu({settings, standard, user}, L"settings"); }
    void FillStandard(int count) {
        for (int n = 1; n <= count; ++n) PutCommand(standard, n, L"s" + std::to_wstring(n));
    }
    void FillUser(int count) {
        for (int n = 1; n <= count; ++n) PutCommand(user, n, L"u" + std::to_wstring(n));
    }
    void Select(const settings::TextSetting& setting, const std::wstring& list) {
        settings.sections[L"Settings"][std::wstring{setting.name}] = list;
    }
};

} // namespace

TEST(SearchCommandId, GivesTheFirstOfEachKindItsNumber) {
    EXPECT_EQ((SearchCommandId{kStandard, 1}.Value()), 5001);
    EXPECT_EQ((SearchCommandId{kUser, 1}.Value()), 5052);
    EXPECT_EQ((SearchCommandId{kUser, 50}.Value()), 5101);
}

TEST(SearchCommandId, Takes5051ForTheStandardCommand51) {
    constexpr SearchCommandId id{5051};

    EXPECT_EQ(id.Kind(), kStandard);
    EXPECT_EQ(id.Number(), 51);
}

TEST(SearchCommandId, Takes5052ForTheFirstOfTheUser) {
    constexpr SearchCommandId id{5052};

    EXPECT_EQ(id.Kind(), kUser);
    EXPECT_EQ(id.Number(), 1);
}

TEST(SearchCommandId, ComesBackFromItsValue) {
    for (int n = 1; n <= 51; ++n)
        for (const auto kind : {kStandard, kUser}) {
            const SearchCommandId back{SearchCommandId{kind, n}.Value()};
            EXPECT_EQ(back.Kind(), kind) << n;
            EXPECT_EQ(back.Number(), n);
        }
}

TEST(NumberList, IgnoresEmptyPieces) {
    EXPECT_THAT(ParseNumberList(L"3,,7"), ElementsAre(3, 7));
    EXPECT_THAT(ParseNumberList(L"1,5,6,8,10,12,14,19,22,26,"), ElementsAre(1, 5, 6, 8, 10, 12, 14, 19, 22, 26));
    EXPECT_THAT(ParseNumberList(L""), IsEmpty());
    EXPECT_THAT(ParseNumberList(L",,,"), IsEmpty());
}

TEST(NumberList, ReadsAPieceWithoutANumberAsZero) {
    EXPECT_THAT(ParseNumberList(L"3,x"), ElementsAre(3, 0));
    EXPECT_THAT(ParseNumberList(L" 4 ,5b,-2"), ElementsAre(4, 5, -2));
}

TEST(NumberList, IsReadUpToASensibleLength) {
    std::wstring list;
    for (int i = 0; i < 100'000; ++i) list += L"9,";

    EXPECT_EQ(ParseNumberList(list).size(), 500U);
}

TEST(NumberList, IsWrittenWithoutACommaAtTheEnd) {
    EXPECT_EQ(FormatNumberList(std::vector{2, 10, 3}), L"2,10,3");
    EXPECT_EQ(FormatNumberList({}), L"");
}

TEST(SearchCommandTable, ReadsUpToTheFirstCommandWithoutAName) {
    FakeStore store;
    PutCommand(store, 1, L"first", L"http://first/");
    PutCommand(store, 2, L"second");
    PutCommand(store, 3, L"");
    PutCommand(store, 4, L"never reached");
    store.sections[L"SearchCommand_01"][L"Comment"] = std::wstring{L"about"};

    const auto commands = SearchCommandTable{store}.ReadAll();

    EXPECT_THAT(commands, ElementsAre(SearchCommand{1, L"first", L"http://first/", L"about"},
                                      SearchCommand{2, L"second", L"x", L""}));
}

TEST(SearchCommandTable, IsEmptyWithoutAFile) {
    const FakeStore store;

    EXPECT_THAT(SearchCommandTable{store}.ReadAll(), IsEmpty());
}

TEST(SearchCommandTable, StopsAtAGapInTheNumbers) {
    FakeStore store;
    PutCommand(store, 1, L"first");
    PutCommand(store, 3, L"third");

    EXPECT_EQ(SearchCommandTable{store}.ReadAll().size(), 1U);
}

TEST(SearchCommandTable, WritesNumbersFrom100OnWithThreeDigits) {
    FakeStore store;
    store.sections[L"SearchCommand_100"][L"CommandName"] = std::wstring{L"hundredth"};

    EXPECT_EQ(SearchCommandTable{store}.NameOf(100), L"hundredth");
}

TEST(StoredOrder, PutsTheListedCommandsFirst) {
    const std::vector<SearchCommand> commands{{1, L"a", {}, {}}, {2, L"b", {}, {}}, {3, L"c", {}, {}}};

    const auto ordered = InStoredOrder(commands, std::vector{3, 9, 1, 3});

    EXPECT_THAT(ordered, ElementsAre(commands[2], commands[0], commands[1]));
}

TEST(StoredOrder, IsFileOrderWithoutAList) {
    const std::vector<SearchCommand> commands{{1, L"a", {}, {}}, {2, L"b", {}, {}}};

    EXPECT_EQ(InStoredOrder(commands, {}), commands);
}

TEST_F(SearchMenu, ShowsTheBuiltInSelectionInTwoBlocksOfFive) {
    FillStandard(30);

    const auto plan = Plan();

    EXPECT_EQ(Shape(plan), L"5001 5005 5006 5008 5010 | 5012 5014 5019 5022 5026 | 5000");
    EXPECT_EQ(plan.rows.front().text, L"s1");
    EXPECT_EQ(plan.rows.back().text, L"settings");
}

TEST_F(SearchMenu, HasNoSeparatorBetweenFiveCommands) {
    FillStandard(30);
    Select(keys::DefaultSearchCommand, L"1,2,3,4,5");

    EXPECT_EQ(Shape(Plan()), L"5001 5002 5003 5004 5005 | 5000");
}

TEST_F(SearchMenu, SeparatesTheSixthCommand) {
    FillStandard(30);
    Select(keys::DefaultSearchCommand, L"1,2,3,4,5,6");

    EXPECT_EQ(Shape(Plan()), L"5001 5002 5003 5004 5005 | 5006 | 5000");
}

TEST(SearchCommandId, IsMadeOnlyOfANumberThatTheMenuHasRoomFor) {
    EXPECT_EQ(MenuCommandId(kStandard, 1), (SearchCommandId{kStandard, 1}));
    EXPECT_EQ(MenuCommandId(kStandard, 102), SearchCommandId{5102});
    EXPECT_EQ(MenuCommandId(kUser, 51), SearchCommandId{5102});
    for (const auto kind : {kStandard, kUser})
        for (const int number : {0, -1, 103, 2'147'483'647, -2'147'483'647 - 1})
            EXPECT_EQ(MenuCommandId(kind, number), std::nullopt) << number;
    EXPECT_EQ(MenuCommandId(kUser, 52), std::nullopt);
}

// A store that counts how often it is read.
class CountingStore final : public settings::ProfileStore {
public:
    explicit CountingStore(const FakeStore& store) : store_{store} {}
    mutable int reads = 0;

    [[nodiscard]] int ReadInt(std::wstring_view section, std::wstring_view name, int fallback) const override {
        return ++reads, store_.ReadInt(section, name, fallback);
    }
    [[nodiscard]] std::wstring ReadText(std::wstring_view section, std::wstring_view name,
                                        std::wstring_view fallback) const override {
        return ++reads, store_.ReadText(section, name, fallback);
    }
    [[nodiscard]] std::optional<std::vector<std::byte>> ReadBinary(std::wstring_view,
                                                                   std::wstring_view) const override {
        return std::nullopt;
    }
    [[nodiscard]] std::vector<std::wstring> ValueNames(std::wstring_view) const override { return {}; }
    bool WriteInt(std::wstring_view, std::wstring_view, int) override { return false; }
    bool WriteText(std::wstring_view, std::wstring_view, std::wstring_view) override { return false; }
    bool WriteBinary(std::wstring_view, std::wstring_view, std::span<const std::byte>) override { return false; }
    bool DeleteValue(std::wstring_view, std::wstring_view) override { return false; }
    bool DeleteSection(std::wstring_view) override { return false; }

private:
    const FakeStore& store_;
};

TEST_F(SearchMenu, LooksForFewOfTheMillionsOfNumbersOfADamagedList) {
    std::wstring list;
    for (int i = 0; i < 3'000'000; ++i) list += L"77,";
    Select(keys::DefaultSearchCommand, list);
    const CountingStore file{standard};

    static_cast<void>(PlanSearchMenu({settings, file, user}, L"settings"));

    EXPECT_LE(file.reads, 500);
}

TEST_F(SearchMenu, ReadsNoMoreThanAThousandCommandsOfOneFile) {
    FillUser(1'200);

    EXPECT_EQ(SearchCommandTable{user}.ReadAll().size(), 1'000U);
}

TEST_F(SearchMenu, SkipsNumbersWithoutACommand) {
    FillStandard(10);
    Select(keys::DefaultSearchCommand, L"3,x,99,7,-1");

    EXPECT_EQ(Shape(Plan()), L"5003 5007 | 5000");
}

TEST_F(SearchMenu, NeverTakesNumberZeroForTheSettingsItem) {
    FillStandard(3);
    PutCommand(standard, 0, L"zero");
    Select(keys::DefaultSearchCommand, L"x,2");

    EXPECT_EQ(Shape(Plan()), L"5002 | 5000");
}

TEST_F(SearchMenu, PutsTheUsersCommandsFirstByDefault) {
    FillStandard(3);
    FillUser(2);
    Select(keys::DefaultSearchCommand, L"3");
    Select(keys::UserSearchCommand, L"2,1");

    const auto plan = Plan();

    EXPECT_EQ(Shape(plan), L"5053 5052 5003 | 5000");
    EXPECT_EQ(plan.current, (base::MenuRow{5053, L"u2"}));
}

TEST_F(SearchMenu, PutsTheStandardCommandsFirstForAnyOtherPriority) {
    FillStandard(3);
    FillUser(2);
    Select(keys::DefaultSearchCommand, L"3");
    Select(keys::UserSearchCommand, L"1");

    for (const int priority : {0, 2, -1}) {
        settings.sections[L"Settings"][L"PriorityUserCommand"] = priority;

        const auto plan = Plan();

        EXPECT_EQ(Shape(plan), L"5003 5052 | 5000");
        EXPECT_EQ(plan.current, (base::MenuRow{5003, L"s3"}));
    }
}

TEST_F(SearchMenu, ShowsNoneOfAKindWhoseSelectionIsEmpty) {
    FillStandard(30);
    FillUser(1);
    Select(keys::DefaultSearchCommand, L"");
    Select(keys::UserSearchCommand, L"1");

    EXPECT_EQ(Shape(Plan()), L"5052 | 5000");
}

TEST_F(SearchMenu, LeadsToTheSettingsEvenWithoutAnyCommand) {
    const auto plan = Plan();

    EXPECT_EQ(Shape(plan), L"| 5000");
    EXPECT_EQ(plan.current, base::MenuRow{});
}

TEST_F(SearchMenu, TakesNoMoreThanFiftyCommands) {
    FillStandard(51);
    FillUser(50);
    std::wstring list;
    for (int n = 1; n <= 50; ++n) list += std::to_wstring(n) + L",";
    Select(keys::DefaultSearchCommand, list);
    Select(keys::UserSearchCommand, list);

    const auto plan = Plan();

    int commands = 0;
    for (const auto& row : plan.rows) commands += row.IsSeparator() ? 0 : 1;
    EXPECT_EQ(commands, 50 + 1);
    EXPECT_EQ(plan.rows[plan.rows.size() - 3].command, 5101U);
}

TEST_F(SearchMenu, StaysWithinTheCommandsOfTheFrame) {
    FillStandard(51);
    PutCommand(user, 51, L"last");
    PutCommand(user, 52, L"beyond");
    Select(keys::DefaultSearchCommand, L"51,2147483647,-2147483648");
    Select(keys::UserSearchCommand, L"51,52");

    EXPECT_EQ(Shape(Plan()), L"5102 5051 | 5000");
}
