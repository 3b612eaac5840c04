#include "search/user_command_file.h"

#include <windows.h>

#include <gmock/gmock.h>

#include "framework/handle.h"
#include "framework/string_table.h"
#include "res/ids.h"
#include "settings/ini_backend.h"
#include "tests/support/fake_store.h"
#include "tests/support/temp_folder.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::FakeStore;
using korvane::test::TempFolder;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr wchar_t kName[] = L"UserCommand.dat";

std::string Utf16(std::wstring_view text) {
    std::string bytes;
    for (const wchar_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

std::string WithoutEmptyLines(std::string bytes) {
    const std::string twoBreaks = Utf16(L"\r\n\r\n");
    for (std::size_t at; (at = bytes.find(twoBreaks)) != std::string::npos;) bytes.erase(at, twoBreaks.size() / 2);
    return bytes;
}

struct UserCommandFileOnDisk : testing::Test {
    TempFolder folder;
    FakeStore settings;
    settings::IniFileStore store{folder.File(kName)};
    WindowsUserCommandFile file{folder.File(kName), fw::LoadText(IDS_USER_COMMAND_HEADER)};

    unsigned long Save(const std::vector<SearchCommand>& commands) {
        std::vector<ListedCommand> list;
        for (const auto& command : commands) list.push_back({command, true});
        return SaveUserCommands(list, file, store, settings);
    }
    [[nodiscard]] std::vector<SearchCommand> Read() const { return SearchCommandTable{store}.ReadAll(); }
};

} // namespace

TEST_F(UserCommandFileOnDisk, BeginsWithAByteOrderMarkAndTheHeader) {
    ASSERT_EQ(file.Recreate(), 0U);

    EXPECT_EQ(folder.Read(kName), "\xFF\xFE" + Utf16(L";////////////////////////////////////////////////////////\r\n"
                                                     L":// UserCommand.dat for Korvane\r\n"
                                                     L";//    ※ このファイルを直接編集しないでください\r\n"
                                                     L";////////////////////////////////////////////////////////\r\n"
                                                     L"\r\n"));
}

TEST_F(UserCommandFileOnDisk, HasOneUnicodeSectionForEachCommand) {
    ASSERT_EQ(Save({{1, L"東京", L"http://a/?<%Search%>", L"about"}, {2, L"b", L"c", L""}}), 0U);

    // Where the empty lines go is left to the profile functions: not every edition of them keeps any.
    EXPECT_EQ(WithoutEmptyLines(folder.Read(kName)),
              "\xFF\xFE" + Utf16(L";////////////////////////////////////////////////////////\r\n"
                                 L":// UserCommand.dat for Korvane\r\n"
                                 L";//    ※ このファイルを直接編集しないでください\r\n"
                                 L";////////////////////////////////////////////////////////\r\n"
                                 L"[SearchCommand_01]\r\n"
                                 L"CommandName=東京\r\n"
                                 L"CommandLine=http://a/?<%Search%>\r\n"
                                 L"Comment=about\r\n"
                                 L"[SearchCommand_02]\r\n"
                                 L"CommandName=b\r\n"
                                 L"CommandLine=c\r\n"
                                 L"Comment=\r\n"));
}

TEST_F(UserCommandFileOnDisk, GivesTheCommandsBack) {
    const std::vector<SearchCommand> commands{
        {1, L"日本語の名前", L"\"<%Everything%>\" -search \"<%Search_UTF16%>\"", L"'quoted'"},
        {2, L" ", L"http://b/;x=[y]&z==<%Search%>", L"a 😀 b"},
        {3, L"[x]", L"<%Hidemaru%>", L""}};

    ASSERT_EQ(Save(commands), 0U);

    EXPECT_EQ(Read(), commands);
}

TEST_F(UserCommandFileOnDisk, HoldsFiftyCommands) {
    std::vector<SearchCommand> commands;
    for (int n = 1; n <= 50; ++n)
        commands.push_back({n, L"name " + std::to_wstring(n), std::wstring(500, L'x'), std::wstring(150, L'漢')});

    ASSERT_EQ(Save(commands), 0U);

    EXPECT_EQ(Read(), commands);
}

TEST_F(UserCommandFileOnDisk, IsWrittenAnewEachTime) {
    ASSERT_EQ(Save({{1, L"a", L"l", L""}, {2, L"b", L"l", L""}, {3, L"c", L"l", L""}}), 0U);

    ASSERT_EQ(Save({{2, L"b", L"l", L""}, {3, L"c", L"l", L""}}), 0U);

    EXPECT_THAT(Read(), ElementsAre(SearchCommand{1, L"b", L"l", L""}, SearchCommand{2, L"c", L"l", L""}));
    EXPECT_EQ(settings.log, L"Settings.UserSearchCommand=1,2,3\nSettings.UserSearchCommand=1,2\n");
}

TEST_F(UserCommandFileOnDisk, IsDeletedWithTheLastCommand) {
    ASSERT_EQ(Save({{1, L"a", L"l", L""}}), 0U);

    EXPECT_EQ(Save({}), 0U);

    EXPECT_FALSE(folder.Has(kName));
    EXPECT_THAT(Read(), IsEmpty());
}

TEST_F(UserCommandFileOnDisk, NeedNotBeThereToBeDeleted) {
    EXPECT_EQ(Save({}), 0U);
}

TEST_F(UserCommandFileOnDisk, SaysWhyItCannotBeCreated) {
    WindowsUserCommandFile elsewhere{folder.File(L"no folder\\UserCommand.dat"), L""};

    EXPECT_EQ(elsewhere.Recreate(), ULONG{ERROR_PATH_NOT_FOUND});
}

TEST_F(UserCommandFileOnDisk, SaysThatAnotherProgramHoldsItAndKeepsIt) {
    ASSERT_EQ(Save({{1, L"a", L"l", L""}}), 0U);
    fw::UniqueKernelHandle reader{::CreateFileW(folder.File(kName).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)};
    ASSERT_NE(reader.Get(), INVALID_HANDLE_VALUE);

    EXPECT_EQ(Save({{1, L"b", L"l", L""}}), ULONG{ERROR_SHARING_VIOLATION});
    EXPECT_EQ(Save({}), ULONG{ERROR_SHARING_VIOLATION});
    reader.Reset();

    EXPECT_THAT(Read(), ElementsAre(SearchCommand{1, L"a", L"l", L""}));
    EXPECT_EQ(settings.log, L"Settings.UserSearchCommand=1\n");
}

TEST_F(UserCommandFileOnDisk, ComesBackAsItWas) {
    folder.Write(kName, "whatever was in it");

    ASSERT_EQ(file.Recreate(), 0U);
    ASSERT_NE(folder.Read(kName), "whatever was in it");
    file.Restore();

    EXPECT_EQ(folder.Read(kName), "whatever was in it");
}

TEST_F(UserCommandFileOnDisk, GoesAgainWhereThereWasNone) {
    ASSERT_EQ(file.Recreate(), 0U);

    file.Restore();

    EXPECT_FALSE(folder.Has(kName));
}

TEST_F(UserCommandFileOnDisk, ReadsALineOf5000CharactersUpToTheStoresLimit) {
    ASSERT_EQ(Save({{1, L"a", std::wstring(5'000, L'x'), L"c"}, {2, L"b", L"l", L""}}), 0U);

    const auto commands = Read();

    ASSERT_EQ(commands.size(), 2U);
    EXPECT_EQ(commands[0].line, std::wstring(4'095, L'x'));
    EXPECT_EQ(commands[1].name, L"b");
}

TEST_F(UserCommandFileOnDisk, ReadsAsMuchAsThereIsOfADamagedFile) {
    for (const auto& bytes :
         {std::string{"\xFF\xFE\x00\xD8\x5B", 5}, std::string(10'000, '\0'), std::string{"[SearchCommand_01"},
          "\xFF\xFE" + Utf16(L"[SearchCommand_01]\r\nCommandName\r\n=x\r\n\xDC00"), std::string(5'000, '\xFF')}) {
        folder.Write(kName, bytes);

        EXPECT_THAT(settings::IniFileStore{folder.File(kName)}.Path(), folder.File(kName));
        EXPECT_THAT(Read(), IsEmpty());
    }
}

TEST_F(UserCommandFileOnDisk, ReadsTheGoodCommandsBeforeTheDamage) {
    folder.Write(kName, "\xFF\xFE" + Utf16(L"[SearchCommand_01]\r\nCommandName=a\r\nCommandLine=l\r\n"
                                           L"[SearchCommand_02]\r\nCommandNa"));

    EXPECT_THAT(Read(), ElementsAre(SearchCommand{1, L"a", L"l", L""}));
}

TEST_F(UserCommandFileOnDisk, ReadsAFileInUtf8WithoutItsJapaneseNames) {
    folder.Write(kName, "[SearchCommand_01]\r\nCommandName=\xE6\x9D\xB1 x\r\nCommandLine=http://a/?<%Search%>\r\n");

    const auto commands = Read();

    // It is read in the system's code page, so the name is garbled; the template is not.
    ASSERT_EQ(commands.size(), 1U);
    EXPECT_EQ(commands[0].line, L"http://a/?<%Search%>");
}
