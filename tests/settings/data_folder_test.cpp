#include "settings/data_folder.h"

#include <gtest/gtest.h>

namespace korvane::settings {
namespace {

TEST(DataFolder, StandsBelowTheUsersApplicationData) {
    const DataFolder folder = FindDataFolder();

    ASSERT_TRUE(folder.path);
    EXPECT_TRUE(folder.path->ends_with(L"\\Dunmere Software\\Korvane\\")) << *folder.path;
    EXPECT_EQ(folder.path->find(L"\\\\"), std::wstring::npos);
    EXPECT_EQ(folder.error, static_cast<DWORD>(ERROR_SUCCESS));
}

} // namespace
} // namespace korvane::settings
