#include "launch/logic/path_parts.h"

#include <gtest/gtest.h>

#include <string>

using namespace korvane::launch;

namespace {

TEST(PathParts, TakeTheNameBehindTheLastBackslash) {
    EXPECT_EQ(FileNameOf(L"C:\\a b\\資料.txt"), L"資料.txt");
    EXPECT_EQ(FileNameOf(L"C:\\folder\\"), L"folder");
    EXPECT_EQ(FileNameOf(L"\\\\server\\share\\"), L"share");
    EXPECT_EQ(FileNameOf(L"C:/a/b.exe"), L"b.exe");
    EXPECT_EQ(FileNameOf(L"notepad.exe"), L"notepad.exe");
    EXPECT_EQ(FileNameOf(L""), L"");
    EXPECT_EQ(FileNameOf(L"\\"), L"\\");
}

TEST(PathParts, TakeTheRootOfADriveForItsName) {
    EXPECT_EQ(FileNameOf(L"C:\\"), L"C:\\");
    EXPECT_EQ(FileNameOf(L"C:"), L"C:");
}

TEST(PathParts, TakeTheExtensionOfTheFileAlone) {
    EXPECT_EQ(ExtensionOf(L"C:\\a.b\\c.tar.gz"), L".gz");
    EXPECT_EQ(ExtensionOf(L"C:\\a.b\\c"), L"");
    EXPECT_EQ(ExtensionOf(L".profile"), L".profile");
    EXPECT_EQ(ExtensionOf(L"c."), L".");
    EXPECT_EQ(ExtensionOf(L"v1. second part"), L"");
    EXPECT_EQ(ExtensionOf(L""), L"");
}

TEST(PathParts, ArePutBehindDotsWhenAPathIsShortened) {
    EXPECT_EQ(ShortestPath(L"C:\\a b\\c.exe"), L"...\\c.exe");
    EXPECT_EQ(ShortestPath(L"C:\\folder\\"), L"...\\");
    EXPECT_EQ(ShortestPath(L"c.exe"), L"c.exe");
    EXPECT_EQ(ShortestPath(L""), L"");
}

TEST(PathParts, TakeTheFolderWithItsBackslash) {
    EXPECT_EQ(FolderOf(L"C:\\a b\\c.exe"), L"C:\\a b\\");
    EXPECT_EQ(FolderOf(L"C:\\c.exe"), L"C:\\");
    EXPECT_EQ(FolderOf(L"c.exe"), L"");
    EXPECT_EQ(FolderOf(L""), L"");
}

TEST(PathParts, KnowTheExtensionsOfProgramsInAnyCase) {
    for (const wchar_t* const program : {L".exe", L".com", L".bat", L".EXE", L".Com", L".bAT"})
        EXPECT_TRUE(IsProgramExtension(program));
    for (const wchar_t* const other : {L"", L".", L"exe", L".ex", L".exe2", L".txt", L".lnk", L".cmd"})
        EXPECT_FALSE(IsProgramExtension(other));
}

TEST(PathParts, FreeATypedPathOfBlanksAndQuotationMarks) {
    EXPECT_EQ(TypedPath(L"  C:\\a b\\c.exe\t"), L"C:\\a b\\c.exe");
    EXPECT_EQ(TypedPath(L"\"C:\\a b\\c.exe\""), L"C:\\a b\\c.exe");
    EXPECT_EQ(TypedPath(L" \" C:\\a b\\c.exe \" "), L"C:\\a b\\c.exe");
    EXPECT_EQ(TypedPath(L"\"C:\\a b"), L"\"C:\\a b");
    EXPECT_EQ(TypedPath(L"\""), L"\"");
    EXPECT_EQ(TypedPath(L"\"\""), L"");
    EXPECT_EQ(TypedPath(L"   "), L"");
}

TEST(PathParts, TakePathsOfAbsurdLength) {
    const std::wstring path = L"C:\\" + std::wstring(100'000, L'f') + L".txt";

    EXPECT_EQ(FileNameOf(path).size(), 100'004U);
    EXPECT_EQ(ExtensionOf(path), L".txt");
    EXPECT_EQ(FolderOf(path), L"C:\\");
    EXPECT_EQ(TypedPath(path), path);
}

TEST(PathParts, KnowShortcutsInSmallLettersAndCapitals) {
    EXPECT_TRUE(IsShortcut(L"a.lnk"));
    EXPECT_TRUE(IsShortcut(L"A.LNK"));
    EXPECT_TRUE(IsShortcut(L"メモ帳.Lnk"));
    EXPECT_TRUE(IsShortcut(L"a.txt.lnk"));
    EXPECT_FALSE(IsShortcut(L"a.lnk.txt"));
    EXPECT_FALSE(IsShortcut(L"alnk"));
    EXPECT_FALSE(IsShortcut(L"a.url"));
    EXPECT_FALSE(IsShortcut(L"lnk"));
    EXPECT_FALSE(IsShortcut(L""));
}

} // namespace
