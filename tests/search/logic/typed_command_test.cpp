#include "search/logic/typed_command.h"

#include <gtest/gtest.h>

#include "tests/support/fake_process_starter.h"

using namespace korvane::search;
using korvane::test::FakeProcessStarter;

namespace {

constexpr unsigned long kElevationRequired = 740;

} // namespace

TEST(TypedCommand, IsRunAsItStands) {
    EXPECT_EQ(CommandLineOfTyped(L"notepad  a.txt "), L"notepad  a.txt ");
    EXPECT_EQ(CommandLineOfTyped(L""), L"");
}

TEST(TypedCommand, LeavesControlPanelItemsToTheControlPanel) {
    EXPECT_EQ(CommandLineOfTyped(L"ncpa.cpl"), L"control.exe ncpa.cpl");
    EXPECT_EQ(CommandLineOfTyped(L"a.cplx"), L"control.exe a.cplx");
}

TEST(TypedCommand, KnowsControlPanelItemsInSmallLettersOnly) {
    EXPECT_EQ(CommandLineOfTyped(L"NCPA.CPL"), L"NCPA.CPL");
}

TEST(RunningATypedCommand, StartsAProcessAndAsksNoShell) {
    FakeProcessStarter starter;

    EXPECT_TRUE(RunTypedCommand(L"notepad", starter).Started());

    EXPECT_EQ(starter.log, L"start notepad\n");
}

TEST(RunningATypedCommand, HasTheShellOpenWhatIsNoProcess) {
    FakeProcessStarter starter;
    starter.startError = 2;

    EXPECT_TRUE(RunTypedCommand(L"C:\\a.txt", starter).Started());

    EXPECT_EQ(starter.log, L"start C:\\a.txt\nopen C:\\a.txt\n");
}

TEST(RunningATypedCommand, GivesTheShellTheSameCommandLine) {
    FakeProcessStarter starter;
    starter.startError = 2;

    EXPECT_TRUE(RunTypedCommand(L"x.cpl", starter).Started());

    EXPECT_EQ(starter.log, L"start control.exe x.cpl\nopen control.exe x.cpl\n");
}

TEST(RunningATypedCommand, ReportsTheShellsCode) {
    FakeProcessStarter starter;
    starter.startError = 5;
    starter.openResult = 2;

    EXPECT_EQ(RunTypedCommand(L"nonsense", starter), RunOutcome{2});
}

TEST(RunningATypedCommand, TakesResultsUpTo32ForFailures) {
    FakeProcessStarter starter;
    starter.startError = 2;

    starter.openResult = 32;
    EXPECT_EQ(RunTypedCommand(L"x", starter), RunOutcome{32});
    starter.openResult = 33;
    EXPECT_TRUE(RunTypedCommand(L"x", starter).Started());
}

TEST(RunningATypedCommand, NeverTakesTheShellsZeroForSuccess) {
    FakeProcessStarter starter;
    starter.startError = 2;
    starter.openResult = 0;

    EXPECT_EQ(RunTypedCommand(L"x", starter), RunOutcome{8});
}

TEST(RunningATypedCommand, StartsAProgramThatNeedsMoreRightsWithItsArguments) {
    FakeProcessStarter starter;
    starter.startError = kElevationRequired;
    starter.programs = {L"regedit", L"regedit /e"};

    EXPECT_TRUE(RunTypedCommand(L"regedit /e out.reg", starter).Started());

    EXPECT_EQ(starter.log, L"start regedit /e out.reg\nopen <regedit> with /e out.reg\n");
}

TEST(RunningATypedCommand, FindsAProgramThatNeedsMoreRightsInAFolderWithBlanks) {
    FakeProcessStarter starter;
    starter.startError = kElevationRequired;
    starter.programs = {L"C:\\Program Files\\Set Up.exe"};

    EXPECT_TRUE(RunTypedCommand(L"C:\\Program Files\\Set Up.exe /s  a b", starter).Started());
    EXPECT_TRUE(RunTypedCommand(L"\"C:\\Program Files\\Set Up.exe\"  /s", starter).Started());

    EXPECT_EQ(starter.log, L"start C:\\Program Files\\Set Up.exe /s  a b\n"
                           L"open <C:\\Program Files\\Set Up.exe> with /s  a b\n"
                           L"start \"C:\\Program Files\\Set Up.exe\"  /s\n"
                           L"open <C:\\Program Files\\Set Up.exe> with /s\n");
}

TEST(RunningATypedCommand, ReportsThatTheUserRefusedMoreRights) {
    FakeProcessStarter starter;
    starter.startError = kElevationRequired;
    starter.programs = {L"regedit"};
    starter.openResult = 5;

    EXPECT_EQ(RunTypedCommand(L"regedit", starter), RunOutcome{5});
    EXPECT_EQ(starter.log, L"start regedit\nopen <regedit> with \n");
}

TEST(RunningATypedCommand, LeavesAProgramThatNobodyFindsToTheShellAsItStands) {
    FakeProcessStarter starter;
    starter.startError = kElevationRequired;

    EXPECT_TRUE(RunTypedCommand(L"a b", starter).Started());

    EXPECT_EQ(starter.log, L"start a b\nopen a b\n");
}

TEST(RunningATypedCommand, GivesTheShellTheWholeLineAfterAnyOtherError) {
    FakeProcessStarter starter;
    starter.startError = 5;
    starter.programs = {L"regedit"};

    EXPECT_TRUE(RunTypedCommand(L"regedit /e", starter).Started());

    EXPECT_EQ(starter.log, L"start regedit /e\nopen regedit /e\n");
}

TEST(PartingACommandLine, TakesMoreAndMoreWordsForTheProgram) {
    EXPECT_EQ(PartingsOf(L"a  b c"), (std::vector<CommandParts>{{L"a", L"b c"}, {L"a  b", L"c"}, {L"a  b c", L""}}));
}

TEST(PartingACommandLine, KeepsToTheQuotationMarks) {
    EXPECT_EQ(PartingsOf(L" \"a b\" c d"), (std::vector<CommandParts>{{L"a b", L"c d"}}));
    EXPECT_EQ(PartingsOf(L"\"a b"), (std::vector<CommandParts>{{L"a b", L""}}));
}

TEST(PartingACommandLine, FindsNothingInBlanks) {
    EXPECT_TRUE(PartingsOf(L"").empty());
    EXPECT_TRUE(PartingsOf(L" \t").empty());
}

TEST(PickedPath, ReplacesTheText) {
    EXPECT_EQ(WithPickedPath(L"old", L"C:\\My Docs\\a.txt", PathEntry::kReplace), L"C:\\My Docs\\a.txt");
}

TEST(PickedPath, FollowsTheTextAfterOneBlank) {
    EXPECT_EQ(WithPickedPath(L"notepad", L"C:\\a.txt", PathEntry::kAppend), L"notepad C:\\a.txt");
    EXPECT_EQ(WithPickedPath(L"notepad ", L"C:\\a.txt", PathEntry::kAppend), L"notepad C:\\a.txt");
}

TEST(PickedPath, IsQuotedWhenAppendedWithBlanks) {
    EXPECT_EQ(WithPickedPath(L"notepad", L"C:\\My Docs\\a.txt", PathEntry::kAppend), L"notepad \"C:\\My Docs\\a.txt\"");
}

TEST(PickedPath, StandsAloneInAnEmptyBox) {
    EXPECT_EQ(WithPickedPath(L"", L"C:\\My Docs", PathEntry::kAppend), L"C:\\My Docs");
}

TEST(OneLine, HasBlanksInPlaceOfLineBreaks) {
    EXPECT_EQ(OnOneLine(L"a\r\nb\nc\rd"), L"a b c d");
    EXPECT_EQ(OnOneLine(L"a\n\nb"), L"a  b");
    EXPECT_EQ(OnOneLine(L"\r\na"), L" a");
}

TEST(OneLine, DropsTheLineBreaksAtTheEnd) {
    EXPECT_EQ(OnOneLine(L"a b \r\n\r\n"), L"a b ");
    EXPECT_EQ(OnOneLine(L"\r\n"), L"");
    EXPECT_EQ(OnOneLine(L""), L"");
}

TEST(OneLine, TakesALongText) {
    std::wstring text;
    for (int i = 0; i < 100'000; ++i) text += L"a\r\n";

    EXPECT_EQ(OnOneLine(text).size(), 199'999U);
}

TEST(TextWithinRoom, IsCutBehindTheLastCharacterThatFits) {
    EXPECT_EQ(WithinRoom(L"abc", 3), L"abc");
    EXPECT_EQ(WithinRoom(L"abc", 2), L"ab");
    EXPECT_EQ(WithinRoom(L"abc", 0), L"");
    EXPECT_EQ(WithinRoom(L"", 5), L"");
}

TEST(TextWithinRoom, HoldsNoHalfOfAPair) {
    const std::wstring fish{L'a', wchar_t{0xD867}, wchar_t{0xDE3D}, L'b'};

    EXPECT_EQ(WithinRoom(fish, 2), L"a");
    EXPECT_EQ(WithinRoom(fish, 3), fish.substr(0, 3));
}
