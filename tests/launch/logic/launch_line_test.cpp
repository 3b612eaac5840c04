#include "launch/logic/launch_line.h"

#include <gtest/gtest.h>

#include <string>

#include "launch/logic/command_entry.h"

using korvane::launch::CommandEntry;
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
