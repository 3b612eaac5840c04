#include "search/logic/user_commands.h"

#include <gtest/gtest.h>

using namespace korvane::search;

namespace {

std::string Utf16(std::wstring_view text) {
    std::string bytes;
    for (const wchar_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

FileCondition Judge(std::wstring_view text, std::size_t commandsRead) {
    return JudgeUserCommands("\xFF\xFE" + Utf16(text), commandsRead);
}

} // namespace

TEST(UserCommandText, HasNameLineAndCommentInThisOrderAndAnEmptyLine) {
    EXPECT_EQ(
        FormatUserCommands(L";h\r\n\r\n", std::vector<SearchCommand>{{7, L"名", L"l", L"c"}, {9, L"b", L"l", L""}}),
        "\xFF\xFE" + Utf16(L";h\r\n\r\n"
                           L"[SearchCommand_01]\r\nCommandName=名\r\nCommandLine=l\r\nComment=c\r\n\r\n"
                           L"[SearchCommand_02]\r\nCommandName=b\r\nCommandLine=l\r\nComment=\r\n\r\n"));
}

TEST(UserCommandText, KeepsEveryCodeUnit) {
    const std::wstring odd{L'\xD800', L'\xDC00', L'\xFFFE', L'\x00FF'};

    const std::string bytes = FormatUserCommands(L"", std::vector<SearchCommand>{{1, odd, L"l", L""}});

    EXPECT_NE(bytes.find(Utf16(L"=" + odd + L"\r\n")), std::string::npos);
}

TEST(IniValue, LeavesOrdinaryTextsAlone) {
    EXPECT_EQ(AsIniValue(L""), L"");
    EXPECT_EQ(AsIniValue(L"Web 検索"), L"Web 検索");
    EXPECT_EQ(AsIniValue(L"\"<%Everything%>\" -search x"), L"\"<%Everything%>\" -search x");
    EXPECT_EQ(AsIniValue(L"\""), L"\"");
}

TEST(IniValue, ShieldsWhatAReaderTakesAway) {
    EXPECT_EQ(AsIniValue(L"\"a\" \"b\""), L"\"\"a\" \"b\"\"");
    EXPECT_EQ(AsIniValue(L"'a'"), L"\"'a'\"");
    EXPECT_EQ(AsIniValue(L" "), L"\" \"");
    EXPECT_EQ(AsIniValue(L"a\t"), L"\"a\t\"");
}

TEST(IniValue, StaysOnOneLine) {
    EXPECT_EQ(AsIniValue(L"a\r\n[SearchCommand_01]"), L"a  [SearchCommand_01]");
}

TEST(UserCommandCondition, IsGoodForWhatKorvaneWrites) {
    const std::vector<SearchCommand> commands{{1, L"a", L"[x]=;", L"; c"}, {2, L"b", L"l", L""}};

    EXPECT_EQ(JudgeUserCommands(FormatUserCommands(L";h\r\n:// h\r\n", commands), 2), FileCondition::kGood);
}

TEST(UserCommandCondition, IsNoneWhereThereIsNothingToLose) {
    EXPECT_EQ(JudgeUserCommands("", 0), FileCondition::kNone);
    EXPECT_EQ(Judge(L"", 0), FileCondition::kNone);
    EXPECT_EQ(Judge(L";////\r\n:// UserCommand.dat\r\n;  x\r\n\r\n", 0), FileCondition::kNone);
}

TEST(UserCommandCondition, IsUnreadableWhenNoCommandWasFoundInIt) {
    EXPECT_EQ(JudgeUserCommands("x", 0), FileCondition::kUnreadable);
    EXPECT_EQ(JudgeUserCommands(std::string(10'000, '\0'), 0), FileCondition::kUnreadable);
    EXPECT_EQ(JudgeUserCommands("\xFF\xFE[", 0), FileCondition::kUnreadable);
    EXPECT_EQ(Judge(L"[SearchCommand_01]\r\n", 0), FileCondition::kUnreadable);
}

TEST(UserCommandCondition, IsUnreadableWhenACommandWasNotRead) {
    const std::wstring first = L"[SearchCommand_01]\r\nCommandName=a\r\n";

    EXPECT_EQ(Judge(first, 1), FileCondition::kGood);
    for (const wchar_t* const second :
         {L"[SearchCommand_02]", L"[SearchCommand_03]", L"[SearchCommand_1]", L"[searchcommand_99]",
          L"[SearchCommand_02", L"[SearchCommand_01]", L"[SearchCommand_99999999999999999999]", L"[SearchCommand_]"})
        EXPECT_EQ(Judge(first + second + L"\r\nCommandName=b\r\n", 1), FileCondition::kUnreadable) << second;
}

TEST(UserCommandCondition, IsForeignWhenThereIsMoreThanKorvaneWrites) {
    const std::wstring first = L"[SearchCommand_01]\r\nCommandName=a\r\n";

    for (const wchar_t* const more :
         {L"Colour=red\r\n", L"no value\r\n", L"[Other]\r\nCommandName=b\r\n", L"Comment=c"})
        EXPECT_EQ(Judge(first + more, 1), FileCondition::kForeign) << more;
    EXPECT_EQ(Judge(L"stray\r\n" + first, 1), FileCondition::kForeign);
    EXPECT_EQ(JudgeUserCommands("[SearchCommand_01]\r\nCommandName=a\r\n", 1), FileCondition::kForeign);
}

TEST(UserCommandCondition, DoesNotMindTheCaseOfLettersAndBlanks) {
    EXPECT_EQ(Judge(L"  [SEARCHCOMMAND_01]\r\n commandname = a\r\n\tCOMMENT=\n", 1), FileCondition::kGood);
}
