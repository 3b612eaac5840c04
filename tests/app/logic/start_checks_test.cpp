#include "app/logic/start_checks.h"

#include <gtest/gtest.h>

#include <vector>

using namespace korvane::app;

TEST(StartChecks, A64BitWindowsWantsItsOwnEditionWhateverTheScreen) {
    EXPECT_EQ(CheckStart({.underWow64 = true, .screenWidthPx = 1920}), StartRefusal::kWrongEdition);
    EXPECT_EQ(CheckStart({.underWow64 = true, .screenWidthPx = 800}), StartRefusal::kWrongEdition);
}

TEST(StartChecks, AScreenOfExactly1024PixelsIsWideEnough) {
    EXPECT_EQ(CheckStart({.screenWidthPx = 1024}), StartRefusal::kNone);
}

TEST(StartChecks, AScreenOf1023PixelsIsTooNarrow) {
    EXPECT_EQ(CheckStart({.screenWidthPx = 1023}), StartRefusal::kScreenTooNarrow);
}

TEST(StartChecks, Windows7NeedsNoLookAtTheFonts) {
    EXPECT_TRUE(HasInterfaceFont(true, {}));
}

TEST(StartChecks, VistaNeedsAFontWhoseFullNameContainsTheFace) {
    EXPECT_FALSE(HasInterfaceFont(false, {}));
    EXPECT_FALSE(HasInterfaceFont(false, std::vector<std::wstring>{L"Noto Sans CJK JP", L"Meiryo"}));
    EXPECT_TRUE(HasInterfaceFont(false, std::vector<std::wstring>{L"Noto Sans", L"Meiryo UI Bold"}));
}
