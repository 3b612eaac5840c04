#include "settings/logic/data_folder_path.h"

#include <gtest/gtest.h>

namespace korvane::settings {
namespace {

TEST(DataFolderPath, PutsABackslashBehindTheApplicationDataFolder) {
    EXPECT_EQ(DataFolderBelow(L"D:\\利用者\\Roaming"), L"D:\\利用者\\Roaming\\Dunmere Software\\Korvane\\");
}

TEST(DataFolderPath, PutsNoSecondBackslashBehindTheRootOfADrive) {
    EXPECT_EQ(DataFolderBelow(L"D:\\"), L"D:\\Dunmere Software\\Korvane\\");
}

TEST(DataFolderPath, AppendsTheFileNamesDirectly) {
    EXPECT_EQ(CommandFileIn(L"D:\\Dunmere Software\\Korvane\\"), L"D:\\Dunmere Software\\Korvane\\Korvane.dat");
    EXPECT_EQ(UserCommandFileIn(L"D:\\Dunmere Software\\Korvane\\"), L"D:\\Dunmere Software\\Korvane\\UserCommand.dat");
    EXPECT_EQ(CopyOfUserCommandFile(L"D:\\a.dat\\UserCommand.dat"), L"D:\\a.dat\\UserCommand.bak");
}

} // namespace
} // namespace korvane::settings
