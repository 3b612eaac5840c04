#include "base/menu_groups.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane::base {
namespace {

// The menu after the insertions, an "i" for an item and a bar for a separator.
std::string Menu(int items) {
    std::string menu(static_cast<std::size_t>(items), 'i');
    for (const int at : SeparatorPositions(items)) menu.insert(static_cast<std::size_t>(at), 1, '|');
    return menu;
}

TEST(SeparatorPositions, PutItemsIntoBlocksOfFive) {
    EXPECT_EQ(Menu(6), "iiiii|i");
    EXPECT_EQ(Menu(12), "iiiii|iiiii|ii");
    EXPECT_EQ(Menu(16), "iiiii|iiiii|iiiii|i");
}

TEST(SeparatorPositions, EndNoMenuWithASeparator) {
    EXPECT_EQ(Menu(5), "iiiii");
    EXPECT_EQ(Menu(10), "iiiii|iiiii");
    EXPECT_EQ(Menu(35), "iiiii|iiiii|iiiii|iiiii|iiiii|iiiii|iiiii");
}

TEST(SeparatorPositions, LeaveAShortMenuAlone) {
    EXPECT_EQ(Menu(0), "");
    EXPECT_EQ(Menu(1), "i");
    EXPECT_TRUE(SeparatorPositions(-3).empty());
}

TEST(SeparatorPositions, AreEverySixthFromTheFifth) {
    EXPECT_EQ(SeparatorPositions(20), (std::vector<int>{5, 11, 17}));
}

} // namespace
} // namespace korvane::base
