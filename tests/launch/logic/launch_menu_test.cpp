#include "launch/logic/launch_menu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "launch/logic/launch_limits.h"

using namespace korvane;
using namespace korvane::launch;

namespace {

constexpr std::wstring_view kSettings = L"[&0] settings";

std::vector<std::wstring> Names(int count) {
    std::vector<std::wstring> names;
    for (int i = 1; i <= count; ++i) names.push_back(L"n" + std::to_wstring(i));
    return names;
}

// One line: the texts, "-" for a separator.
std::wstring Shown(const std::vector<std::wstring>& names) {
    std::wstring all;
    for (const base::MenuRow& row : PlanLaunchMenu(names, kSettings))
        all += (all.empty() ? L"" : L"|") + (row.IsSeparator() ? L"-" : row.text);
    return all;
}

} // namespace

TEST(LaunchLimits, GiveEveryItemACommandOfItsOwn) {
    EXPECT_EQ(LaunchItemCommandId(0), 4025U);
    EXPECT_EQ(LaunchItemCommandId(2), 4027U);
    EXPECT_EQ(LaunchItemCommandId(3), 4028U);
    EXPECT_EQ(LaunchItemCommandId(37), 4062U);
    for (int index = 0; index < MaxLaunchItems; ++index) EXPECT_EQ(LaunchItemIndex(LaunchItemCommandId(index)), index);
}

TEST(LaunchMenuPlan, HoldsOnlyTheSettingsWithoutItems) {
    EXPECT_EQ(Shown({}), L"[&0] settings");
}

TEST(LaunchMenuPlan, PutsASeparatorBetweenTheItemsAndTheSettings) {
    EXPECT_EQ(Shown(Names(1)), L"[&1] n1|-|[&0] settings");
}

TEST(LaunchMenuPlan, HasNoSeparatorWithinTheFirstFive) {
    EXPECT_EQ(Shown(Names(5)), L"[&1] n1|[&2] n2|[&3] n3|[&4] n4|[&5] n5|-|[&0] settings");
}

TEST(LaunchMenuPlan, SeparatesTheSixthFromTheFifth) {
    EXPECT_EQ(Shown(Names(6)), L"[&1] n1|[&2] n2|[&3] n3|[&4] n4|[&5] n5|-|[&6] n6|-|[&0] settings");
}

TEST(LaunchMenuPlan, HasOneSeparatorBetweenTenItemsAndNoSecondAfterThem) {
    EXPECT_EQ(Shown(Names(10)), L"[&1] n1|[&2] n2|[&3] n3|[&4] n4|[&5] n5|-|"
                                L"[&6] n6|[&7] n7|[&8] n8|[&9] n9|[&A] n10|-|[&0] settings");
}

TEST(LaunchMenuPlan, SeparatesTheEleventhFromTheTenth) {
    EXPECT_EQ(Shown(Names(11)), L"[&1] n1|[&2] n2|[&3] n3|[&4] n4|[&5] n5|-|"
                                L"[&6] n6|[&7] n7|[&8] n8|[&9] n9|[&A] n10|-|[&B] n11|-|[&0] settings");
}

TEST(LaunchMenuPlan, HoldsThirtyFiveItemsInSevenBlocks) {
    const auto rows = PlanLaunchMenu(Names(35), kSettings);

    ASSERT_EQ(rows.size(), 43U);
    std::vector<std::size_t> separators;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].IsSeparator()) separators.push_back(i);
    EXPECT_EQ(separators, (std::vector<std::size_t>{5, 11, 17, 23, 29, 35, 41}));
    EXPECT_EQ(rows[0], (base::MenuRow{4028, L"[&1] n1"}));
    EXPECT_EQ(rows[40], (base::MenuRow{4062, L"[&Z] n35"}));
    EXPECT_EQ(rows[42], (base::MenuRow{4063, L"[&0] settings"}));
}

TEST(LaunchMenuPlan, LeavesOutWhatHasNoCharacterLeft) {
    EXPECT_EQ(PlanLaunchMenu(Names(36), kSettings), PlanLaunchMenu(Names(35), kSettings));
}

TEST(LaunchMenuPlan, NumbersTheCommandsWithoutAGap) {
    unsigned expected = 4028;
    for (const base::MenuRow& row : PlanLaunchMenu(Names(35), kSettings)) {
        if (!row.IsSeparator()) {
            EXPECT_EQ(row.command, expected++);
        }
    }
    EXPECT_EQ(expected, 4064U);
}

TEST(LaunchMenuPlan, ShowsNamesAsTheyStandWithAmpersandsPercentSignsAndTabs) {
    EXPECT_EQ(Shown({L"A&B", L"&2", L"C&", L"&&", L"100%s%c", L""}),
              L"[&1] A&B|[&2] &2|[&3] C&|[&4] &&|[&5] 100%s%c|-|[&6] |-|[&0] settings");
}

// A menu goes by the first ampersand.
TEST(LaunchMenuPlan, PutsItsOwnAmpersandBeforeAnyOfTheName) {
    char expected = '1';
    for (const base::MenuRow& row : PlanLaunchMenu(std::vector<std::wstring>(9, L"&X&&1&"), kSettings)) {
        if (row.IsSeparator()) continue;
        const wchar_t own = row.command == 4063 ? L'0' : static_cast<wchar_t>(expected++);
        EXPECT_EQ(row.text.at(row.text.find(L'&') + 1), own) << row.command;
    }
}

TEST(LaunchMenuPlan, KeepsANameOfThreeHundredCharactersWhole) {
    const std::wstring name(300, L'長');

    EXPECT_EQ(PlanLaunchMenu(std::vector{name}, kSettings)[0].text, L"[&1] " + name);
}
