#include "base/format_text.h"

#include <gtest/gtest.h>

using korvane::base::FormatText;

TEST(FormatText, ReadsWideTextForPercentS) {
    EXPECT_EQ(FormatText(L"[%s]", L"東京"), L"[東京]");
}
