#include "about/logic/version_text.h"

#include <gtest/gtest.h>

namespace korvane::about {
namespace {

TEST(VersionText, NamesEditionVersionAndWindows) {
    EXPECT_EQ(VersionText(32, L"1.0.0", {L"Windows 7 Professional", 6, 1, 7601}),
              L"Korvane 32 Version 1.0.0\nfor Windows 7 Professional [6.1.7601]");
}

TEST(VersionText, NamesThe64BitEdition) {
    EXPECT_EQ(VersionText(64, L"1.2.3", {L"Windows 10 Pro", 10, 0, 19045}),
              L"Korvane 64 Version 1.2.3\nfor Windows 10 Pro [10.0.19045]");
}

TEST(VersionText, KeepsItsFormWhenTheFileHasNoVersion) {
    EXPECT_EQ(VersionText(32, L"", {L"Windows Vista", 6, 0, 6002}),
              L"Korvane 32 Version ?\nfor Windows Vista [6.0.6002]");
}

TEST(VersionText, KeepsItsFormWhenWindowsDoesNotTellItsName) {
    EXPECT_EQ(VersionText(32, L"1.0.0", {L"", 6, 1, 7601}), L"Korvane 32 Version 1.0.0\nfor Windows [6.1.7601]");
}

TEST(VersionText, LeavesPercentSignsInNamesAlone) {
    EXPECT_EQ(VersionText(32, L"%s", {L"%d %s", 1, 2, 3}), L"Korvane 32 Version %s\nfor %d %s [1.2.3]");
}

} // namespace
} // namespace korvane::about
