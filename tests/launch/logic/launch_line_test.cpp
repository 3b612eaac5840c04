#include "launch/logic/launch_line.h"

#include <gtest/gtest.h>

#include <string>

#include "launch/logic/command_entry.h"

using korvane::launch::CommandEntry;
using korvane::launch::HasPath;
using korvane::launch::ParseCommandEntry;
using korvane::launch::SplitLaunchLine;

namespace {

std::wstring Fields(std::wstring_view line) {
    std::wstring all;
    for (const std::wstring& field : SplitLaunchLine(line)) all += L"[" + field + L"]";
    return all;
}

} // namespace

TEST(LaunchLine, ReadsABlankAsAnEmptyField) {
    EXPECT_EQ(Fields(L"regedit.exe, , ,regedit.exe,0,レジストリ エディタ"),
              L"[regedit.exe][][][regedit.exe][0][レジストリ エディタ]");
}

TEST(LaunchLine, ShiftsTheFieldsAfterARunOfCommas) {
    EXPECT_EQ(Fields(L"app.exe,,,app.exe,0,Name"), L"[app.exe][app.exe][0][Name][][]");
}

TEST(LaunchLine, LosesWhatFollowsACommaInTheName) {
    EXPECT_EQ(Fields(L"a.exe, , ,a.exe,0,A,B"), L"[a.exe][][][a.exe][0][A]");
}

TEST(LaunchLine, TrimsBlanksTabsAndLineBreaks) {
    EXPECT_EQ(Fields(L" \ta.exe \r\n,\tx "), L"[a.exe][x][][][][]");
}

TEST(LaunchLine, GivesEmptyFieldsForAnEmptyLineAndForCommasAlone) {
    EXPECT_EQ(Fields(L""), L"[][][][][][]");
    EXPECT_EQ(Fields(L",,,,,,,,"), L"[][][][][][]");
}

TEST(CommandEntry, HasNoIconWithoutAnIconFile) {
    const CommandEntry entry = ParseCommandEntry(L"control.exe,wscui.cpl");

    EXPECT_EQ(entry.path, L"control.exe");
    EXPECT_EQ(entry.arguments, L"wscui.cpl");
    EXPECT_EQ(entry.iconIndex, -1);
    EXPECT_FALSE(entry.HasIcon());
}

TEST(CommandEntry, ReadsTheIconIndexAsALeadingNumber) {
    EXPECT_EQ(ParseCommandEntry(L"p, , ,shell32.dll,272").iconIndex, 272);
    EXPECT_EQ(ParseCommandEntry(L"p, , ,shell32.dll,-16").iconIndex, -16);
    EXPECT_EQ(ParseCommandEntry(L"p, , ,shell32.dll,x").iconIndex, 0);
    EXPECT_EQ(ParseCommandEntry(L"p, , ,shell32.dll").iconIndex, 0);
}

TEST(CommandEntry, TakesAnIndexOfMinusOneAsNoIcon) {
    EXPECT_FALSE(ParseCommandEntry(L"p, , ,shell32.dll,-1").HasIcon());
}

namespace {

std::wstring Format(std::wstring_view path, std::wstring_view arguments, std::wstring_view folder,
                    std::wstring_view iconFile, int iconIndex, std::wstring_view name) {
    return korvane::launch::FormatLaunchLine({.path = path,
                                              .arguments = arguments,
                                              .workingFolder = folder,
                                              .iconFile = iconFile,
                                              .iconIndex = iconIndex,
                                              .name = name});
}

} // namespace

TEST(LaunchLineFormat, WritesEmptyArgumentsAndFolderAsABlank) {
    EXPECT_EQ(Format(L"regedit.exe", L"", L"", L"regedit.exe", 0, L"レジストリ エディタ"),
              L"regedit.exe, , ,regedit.exe,0,レジストリ エディタ");
}

TEST(LaunchLine, HasNoPathWhenItsFirstFieldIsBlank) {
    EXPECT_TRUE(HasPath(L"a.exe"));
    EXPECT_TRUE(HasPath(L",,a.exe, , ,i,0,n"));
    for (const wchar_t* const line : {L"", L" ", L",,,", L" , , ,i.ico,0,name", L"\t,a"})
        EXPECT_FALSE(HasPath(line)) << line;
}

TEST(LaunchLineFormat, WritesPathIconFileAndNameAsTheyStandEvenWhenTheyAreEmpty) {
    EXPECT_EQ(Format(L"", L"a", L"b", L"", -1, L""), L",a,b,,-1,");
}

TEST(LaunchLineFormat, WritesTheIndexAsADecimalNumber) {
    EXPECT_EQ(Format(L"p", L"a", L"f", L"i", -2147483647 - 1, L"n"), L"p,a,f,i,-2147483648,n");
    EXPECT_EQ(Format(L"p", L"a", L"f", L"i", 2147483647, L"n"), L"p,a,f,i,2147483647,n");
}

TEST(LaunchLineFormat, IsReadBackWhole) {
    EXPECT_EQ(Fields(Format(L"C:\\a b\\c.exe", L"/x %s \"y\"", L"D:\\", L"c.ico", 12, L"名前")),
              L"[C:\\a b\\c.exe][/x %s \"y\"][D:\\][c.ico][12][名前]");
}

TEST(LaunchLineFormat, StoresACommaInTheNameThatIsNotReadBack) {
    const std::wstring line = Format(L"a.exe", L"", L"", L"a.exe", 0, L"A,B");

    EXPECT_EQ(line, L"a.exe, , ,a.exe,0,A,B");
    EXPECT_EQ(Fields(line), L"[a.exe][][][a.exe][0][A]");
}
