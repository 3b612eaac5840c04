#include "launch/logic/item_name.h"

#include <gtest/gtest.h>

using namespace korvane::launch;

namespace {

TEST(ItemName, IsTheDescriptionWhereThereIsOne) {
    EXPECT_EQ(ItemNameFor(L"C:\\notepad.exe", L"メモ帳", true), L"メモ帳");
}

TEST(ItemName, IsTheFileNameOtherwise) {
    EXPECT_EQ(ItemNameFor(L"C:\\a b\\資料.txt", L"", true), L"資料.txt");
    EXPECT_EQ(ItemNameFor(L"C:\\a b\\資料.txt", L"  ", true), L"資料.txt");
    EXPECT_EQ(ItemNameFor(L"C:\\a b\\noextension", L"", true), L"noextension");
    EXPECT_EQ(ItemNameFor(L"C:\\folder.lnk", L"", false), L"folder.lnk");
    EXPECT_EQ(ItemNameFor(L"D:\\", L"", false), L"D:\\");
}

TEST(ItemName, LeavesTheExtensionOfAShortcutOut) {
    EXPECT_EQ(ItemNameFor(L"C:\\メモ帳.lnk", L"", true), L"メモ帳");
    EXPECT_EQ(ItemNameFor(L"C:\\v1.0.LNK", L"", true), L"v1.0");
    EXPECT_EQ(ItemNameFor(L"C:\\.lnk", L"", true), L".lnk");
    EXPECT_EQ(ItemNameFor(L"C:\\a.b\\Ver 1.5.LNK", L"", true), L"Ver 1.5");
    EXPECT_EQ(ItemNameFor(L"a.lnk", L"", true), L"a");
}

TEST(ItemName, HoldsNoAmpersand) {
    EXPECT_EQ(ItemNameFor(L"C:\\Q&A.txt", L"", true), L"Q＆A.txt");
    EXPECT_EQ(ItemNameFor(L"C:\\x.exe", L"Cut & Paste", true), L"Cut ＆ Paste");
}

} // namespace
