#include "about/logic/help_topics.h"

#include <gtest/gtest.h>

namespace korvane::about {
namespace {

TEST(HelpTopics, AreOpenedInTheHelpFilesOwnWindowType) {
    EXPECT_EQ(HelpAddress(help_topic::kContents), L"Korvane.chm::/index.html > Korvane_HelpWindow");
    EXPECT_EQ(HelpAddress(help_topic::kImport), L"Korvane.chm::/optextra.html#ImportItem > Korvane_HelpWindow");
}

} // namespace
} // namespace korvane::about
