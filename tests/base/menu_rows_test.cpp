#include "base/menu_rows.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane::base {
namespace {

// The menu after the grouping, an "i" for an item and a bar for a separator.
std::string Menu(std::size_t items) {
    std::vector<MenuRow> rows(items, MenuRow{1, L"item"});
    GroupByFive(rows);
    std::string menu;
    for (const MenuRow& row : rows) menu += row.IsSeparator() ? '|' : 'i';
    return menu;
}

TEST(GroupByFive, PutsItemsIntoBlocksOfFive) {
    EXPECT_EQ(Menu(6), "iiiii|i");
    EXPECT_EQ(Menu(12), "iiiii|iiiii|ii");
    EXPECT_EQ(Menu(16), "iiiii|iiiii|iiiii|i");
    EXPECT_EQ(Menu(20), "iiiii|iiiii|iiiii|iiiii");
}

TEST(GroupByFive, EndsNoMenuWithASeparator) {
    EXPECT_EQ(Menu(5), "iiiii");
    EXPECT_EQ(Menu(10), "iiiii|iiiii");
    EXPECT_EQ(Menu(35), "iiiii|iiiii|iiiii|iiiii|iiiii|iiiii|iiiii");
}

TEST(GroupByFive, LeavesAShortMenuAlone) {
    EXPECT_EQ(Menu(0), "");
    EXPECT_EQ(Menu(1), "i");
}

TEST(GroupByFive, KeepsTheItemsAndTheirOrder) {
    std::vector<MenuRow> rows;
    for (unsigned command = 1; command <= 7; ++command) rows.push_back({command, std::to_wstring(command)});

    GroupByFive(rows);

    EXPECT_EQ(rows[4], (MenuRow{5, L"5"}));
    EXPECT_EQ(rows[5], MenuRow{});
    EXPECT_EQ(rows[6], (MenuRow{6, L"6"}));
}

} // namespace
} // namespace korvane::base
