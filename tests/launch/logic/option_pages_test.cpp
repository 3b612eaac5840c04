#include "launch/logic/option_pages.h"

#include <gtest/gtest.h>

using namespace korvane::launch;

TEST(OptionPages, EachOpenByTheirOwnCommand) {
    EXPECT_EQ(OptionPageOf(2009), OptionPage::kMain);
    EXPECT_EQ(OptionPageOf(5000), OptionPage::kCommands);
    EXPECT_EQ(OptionPageOf(4063), OptionPage::kLaunch);
}

TEST(OptionPages, HaveANameEach) {
    EXPECT_EQ(OptionPageName(OptionPage::kMain), unsigned{IDS_OPTIONS_MAIN});
    EXPECT_EQ(OptionPageName(OptionPage::kCommands), unsigned{IDS_OPTIONS_COMMANDS});
    EXPECT_EQ(OptionPageName(OptionPage::kLaunch), unsigned{IDS_OPTIONS_LAUNCH});
}
