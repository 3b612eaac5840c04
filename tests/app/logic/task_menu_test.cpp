#include "app/logic/task_menu.h"

#include <gtest/gtest.h>

using namespace korvane::app;

namespace {

constexpr std::wstring_view kNone = L"(none)";

std::vector<TaskNames> Tasks(int count) {
    std::vector<TaskNames> tasks;
    for (int i = 1; i <= count; ++i)
        tasks.push_back({L"title " + std::to_wstring(i), L"program " + std::to_wstring(i)});
    return tasks;
}

// The commands, "-" for a separator.
std::string Commands(const std::vector<TaskMenuRow>& rows) {
    std::string all;
    for (const TaskMenuRow& row : rows)
        all += row.IsSeparator() ? "- " : std::to_string(row.command) + (row.enabled ? " " : " (grey) ");
    return all;
}

std::wstring TextOfTitle(std::wstring title) {
    return PlanTaskMenu(std::vector<TaskNames>{{std::move(title), L"program"}}, 0, kNone).front().text;
}

} // namespace

TEST(IsTask, HoldsForAVisibleTitledWindowThatStandsAlone) {
    EXPECT_TRUE(IsTask({}));
}

TEST(IsTask, EachReasonAloneKeepsAWindowOut) {
    EXPECT_FALSE(IsTask({.own = true}));
    EXPECT_FALSE(IsTask({.visible = false}));
    EXPECT_FALSE(IsTask({.toolWindow = true}));
    EXPECT_FALSE(IsTask({.owned = true}));
    EXPECT_FALSE(IsTask({.titled = false}));
    EXPECT_FALSE(IsTask({.cloaked = true}));
}

TEST(PlanTaskMenu, SaysInGreyThatThereIsNoTask) {
    EXPECT_EQ(PlanTaskMenu({}, 0, kNone), (std::vector<TaskMenuRow>{{4500, L"(none)", false}}));
}

TEST(PlanTaskMenu, FiveTasksNeedNoSeparator) {
    EXPECT_EQ(Commands(PlanTaskMenu(Tasks(5), 0, kNone)), "4501 4502 4503 4504 4505 ");
}

TEST(PlanTaskMenu, TheSixthTaskStandsBelowASeparator) {
    EXPECT_EQ(Commands(PlanTaskMenu(Tasks(6), 0, kNone)), "4501 4502 4503 4504 4505 - 4506 ");
}

TEST(PlanTaskMenu, ABlockThatIsFullHasNoSeparatorBelow) {
    EXPECT_EQ(Commands(PlanTaskMenu(Tasks(10), 0, kNone)), "4501 4502 4503 4504 4505 - 4506 4507 4508 4509 4510 ");
}

TEST(PlanTaskMenu, TwelveTasksStandAsFiveFiveAndTwo) {
    EXPECT_EQ(Commands(PlanTaskMenu(Tasks(12), 0, kNone)),
              "4501 4502 4503 4504 4505 - 4506 4507 4508 4509 4510 - 4511 4512 ");
}

TEST(PlanTaskMenu, AHundredTasksUseEveryCommand) {
    const auto rows = PlanTaskMenu(Tasks(100), 0, kNone);

    EXPECT_EQ(rows.size(), 100U + 19U);
    EXPECT_EQ(rows.back().command, 4600U);
    EXPECT_EQ(rows.back().text, L"title 100");
}

TEST(PlanTaskMenu, TheHundredAndFirstTaskIsLeftOut) {
    EXPECT_EQ(PlanTaskMenu(Tasks(101), 0, kNone), PlanTaskMenu(Tasks(100), 0, kNone));
}

TEST(PlanTaskMenu, ShowsTitlesUnlessTheSettingIsOne) {
    for (const int choice : {0, 2, -1}) EXPECT_EQ(PlanTaskMenu(Tasks(1), choice, kNone).front().text, L"title 1");
    EXPECT_EQ(PlanTaskMenu(Tasks(1), 1, kNone).front().text, L"program 1");
}

TEST(PlanTaskMenu, AnAmpersandIsShownAsOne) {
    EXPECT_EQ(TextOfTitle(L"R&D && more"), L"R&&D &&&& more");
}

TEST(PlanTaskMenu, AnAmpersandOfADescriptionIsShownToo) {
    const std::vector<TaskNames> tasks{{L"title", L"This & That"}};

    EXPECT_EQ(PlanTaskMenu(tasks, 1, kNone).front().text, L"This && That");
}

TEST(PlanTaskMenu, NeitherTabsNorLineBreaksSplitAText) {
    EXPECT_EQ(TextOfTitle(L"a\tb\r\nc\nd\be"), L"a b  c d e");
}

TEST(PlanTaskMenu, ALongTitleOfAmpersandsIsShownWhole) {
    EXPECT_EQ(TextOfTitle(std::wstring(kLongestTaskTitle, L'&')), std::wstring(2 * kLongestTaskTitle, L'&'));
}

TEST(DefaultTaskIcon, MovedByOneWithWindows7) {
    EXPECT_EQ(DefaultTaskIcon(true), 11);
    EXPECT_EQ(DefaultTaskIcon(false), 10);
}

TEST(TaskIndexOf, CountsFromTheFirstCommand) {
    EXPECT_EQ(TaskIndexOf(4501), 0U);
    EXPECT_EQ(TaskIndexOf(4600), 99U);
}

TEST(TaskIndexOf, IsEmptyForAnyOtherCommand) {
    for (const unsigned command : {0U, 4500U, 4601U}) EXPECT_EQ(TaskIndexOf(command), std::nullopt) << command;
}
