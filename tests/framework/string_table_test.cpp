#include "framework/string_table.h"

#include <gtest/gtest.h>

#include "tests/framework/test_ids.h"

namespace fw {
namespace {

TEST(StringTable, GivesATextWhole) {
    EXPECT_EQ(LoadText(IDS_TEST_CAPTION), L"題名");
}

TEST(StringTable, GivesNothingForAnUnknownIdentifier) {
    EXPECT_EQ(LoadText(IDS_TEST_CAPTION + 1000), L"");
}

TEST(StringTable, FillsItsFormats) {
    EXPECT_EQ(FormatResource(IDS_TEST_FORMAT, L"辞書", 3), L"検索 辞書 (03)");
}

} // namespace
} // namespace fw
