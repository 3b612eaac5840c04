#include "search/user_command_file.h"

#include <windows.h>

#include <gmock/gmock.h>

#include <ostream>

#include "framework/handle.h"
#include "framework/string_table.h"
#include "res/ids.h"
#include "search/logic/command_saving.h"
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
constexpr wchar_t kCopy[] = L"UserCommand.bak";
constexpr wchar_t kHeader[] = L";////////////////////////////////////////////////////////\r\n"
                              L":// UserCommand.dat for Korvane\r\n"
                              L";//    ※ このファイルを直接編集しないでください\r\n"
                              L";////////////////////////////////////////////////////////\r\n"
                              L"\r\n";

std::string Utf16(std::wstring_view text) {
    std::string bytes;
    for (const wchar_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

struct UserCommandFileOnDisk : testing::Test {
    TempFolder folder;
    FakeStore settings;
    settings::IniFileStore store{folder.File(kName)};
    WindowsUserCommandFile file{folder.File(kName), fw::LoadText(IDS_USER_COMMAND_HEADER)};

    // As the options do it: the list is made from the file, changed and saved.
    unsigned long Save(const std::vector<SearchCommand>& commands) {
        const UserCommandReading loaded = file.Read();
        std::vector<ListedCommand> list;
        for (const auto& command : commands) list.push_back({command, true});
        return SaveUserCommands(list, loaded, file, settings);
    }
    [[nodiscard]] std::vector<SearchCommand> Read() const { return SearchCommandTable{store}.ReadAll(); }
    // Lets nobody else read the file, or only read it, while it lives.
    [[nodiscard]] fw::UniqueKernelHandle Hold(DWORD sharing) const {
        const HANDLE held = ::CreateFileW(folder.File(kName).c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        EXPECT_NE(held, INVALID_HANDLE_VALUE);
        return fw::UniqueKernelHandle{held == INVALID_HANDLE_VALUE ? nullptr : held};
    }
    [[nodiscard]] bool LeftABesideFile() const {
        return folder.Has(std::wstring{kName} + L".tmp") || folder.Has(std::wstring{kCopy} + L".tmp");
    }
};

} // namespace

TEST_F(UserCommandFileOnDisk, HasOneUnicodeSectionForEachCommandBehindTheHeader) {
    ASSERT_EQ(Save({{1, L"東京", L"http://a/?<%Search%>", L"about"}, {2, L"b", L"c", L""}}), 0U);

    EXPECT_EQ(folder.Read(kName), "\xFF\xFE" + Utf16(std::wstring{kHeader} + L"[SearchCommand_01]\r\n"
                                                                             L"CommandName=東京\r\n"
                                                                             L"CommandLine=http://a/?<%Search%>\r\n"
                                                                             L"Comment=about\r\n"
                                                                             L"\r\n"
                                                                             L"[SearchCommand_02]\r\n"
                                                                             L"CommandName=b\r\n"
                                                                             L"CommandLine=c\r\n"
                                                                             L"Comment=\r\n"
                                                                             L"\r\n"));
    EXPECT_FALSE(LeftABesideFile());
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

    EXPECT_EQ(elsewhere.Write({}), ULONG{ERROR_PATH_NOT_FOUND});
}

TEST_F(UserCommandFileOnDisk, SaysThatAnotherProgramHoldsItAndKeepsIt) {
    ASSERT_EQ(Save({{1, L"a", L"l", L""}}), 0U);
    const std::string before = folder.Read(kName);
    auto reader = Hold(FILE_SHARE_READ);

    EXPECT_EQ(Save({{1, L"b", L"l", L""}}), ULONG{ERROR_SHARING_VIOLATION});
    EXPECT_EQ(Save({}), ULONG{ERROR_SHARING_VIOLATION});
    reader.Reset();

    EXPECT_EQ(folder.Read(kName), before);
    EXPECT_FALSE(LeftABesideFile());
    EXPECT_EQ(settings.log, L"Settings.UserSearchCommand=1\n");
}

TEST_F(UserCommandFileOnDisk, IsNotTouchedWhenNothingChanged) {
    ASSERT_EQ(Save({{1, L"a", L"l", L""}}), 0U);
    // Nobody could write it, but nobody needs to.
    const auto reader = Hold(FILE_SHARE_READ);

    EXPECT_EQ(Save({{1, L"a", L"l", L""}}), 0U);
}

TEST_F(UserCommandFileOnDisk, IsUnreadableWhileAnotherProgramKeepsItToItself) {
    ASSERT_EQ(Save({{1, L"a", L"l", L""}}), 0U);
    auto owner = Hold(0);

    EXPECT_EQ(file.Read().condition, FileCondition::kUnreadable);
    EXPECT_EQ(Save({}), 0U);
    EXPECT_EQ(Save({{1, L"new", L"l", L""}}), ULONG{ERROR_SHARING_VIOLATION});
    owner.Reset();

    EXPECT_EQ(file.Read().condition, FileCondition::kGood);
    EXPECT_THAT(Read(), ElementsAre(SearchCommand{1, L"a", L"l", L""}));
    EXPECT_FALSE(LeftABesideFile());
}

TEST_F(UserCommandFileOnDisk, ComesBackWholeWhateverTheLengthOfItsTexts) {
    const std::vector<SearchCommand> commands{{1, L"a", std::wstring(5'000, L'x'), L"c"},
                                              {2, L"b", std::wstring(30'000, L'y'), std::wstring(4'095, L'z')}};
    ASSERT_EQ(Save(commands), 0U);

    const auto read = file.Read();

    EXPECT_EQ(read.condition, FileCondition::kGood);
    EXPECT_EQ(read.commands, commands);
    // What runs a command goes on to read it only up to its limit.
    EXPECT_EQ(Read()[0].line, std::wstring(4'095, L'x'));
}

TEST_F(UserCommandFileOnDisk, KeepsALongTextThatIsNotWhatWasChanged) {
    const std::wstring longLine(5'000, L'x');
    ASSERT_EQ(Save({{1, L"a", longLine, L""}}), 0U);
    auto commands = file.Read().commands;
    commands.push_back({2, L"b", L"l", L""});

    ASSERT_EQ(Save(commands), 0U);

    EXPECT_EQ(file.Read().commands.front().line, longLine);
}

// What a file may hold that is none of Korvane's.
struct DamagedFile {
    const char* name;
    std::string bytes;

    friend void PrintTo(const DamagedFile& file, std::ostream* out) { *out << file.name; }
};

class DamagedUserCommandFile : public UserCommandFileOnDisk, public testing::WithParamInterface<DamagedFile> {};

TEST_P(DamagedUserCommandFile, IsLeftAloneUntilItsCopyIsKept) {
    folder.Write(kName, GetParam().bytes);
    const auto loaded = file.Read();
    ASSERT_EQ(loaded.condition, FileCondition::kUnreadable);

    std::vector<ListedCommand> list;
    for (const auto& command : loaded.commands) list.push_back({command, true});
    EXPECT_EQ(SaveUserCommands(list, loaded, file, settings), 0U);
    EXPECT_EQ(folder.Read(kName), GetParam().bytes);
    EXPECT_FALSE(folder.Has(kCopy));

    list.push_back({{0, L"new", L"l", L""}, true});
    EXPECT_EQ(SaveUserCommands(list, loaded, file, settings), 0U);
    EXPECT_EQ(folder.Read(kCopy), GetParam().bytes);
    EXPECT_EQ(file.Read().condition, FileCondition::kGood);
    EXPECT_EQ(Read().back().name, L"new");
    EXPECT_FALSE(LeftABesideFile());
}

INSTANTIATE_TEST_SUITE_P(
    Damages, DamagedUserCommandFile,
    testing::Values(DamagedFile{"Zeros", std::string(10'000, '\0')},
                    DamagedFile{"AllBitsSet", std::string(5'000, '\xFF')},
                    DamagedFile{"RandomBytes", std::string{"\x8F\x01[\x11\x00\x93zQ\r\n\xC3(=\x7F", 14}},
                    DamagedFile{"OneByte", "x"}, DamagedFile{"HalfACharacter", std::string{"\xFF\xFE\x00\xD8\x5B", 5}},
                    DamagedFile{"FirstSectionMissing",
                                "\xFF\xFE" + Utf16(std::wstring{kHeader} + L"[SearchCommand_02]\r\nCommandName=b\r\n")},
                    DamagedFile{"FirstNameMissing",
                                "\xFF\xFE" + Utf16(std::wstring{kHeader} + L"[SearchCommand_01]\r\nCommandLine=l\r\n")},
                    DamagedFile{"SecondCommandCutOff",
                                "\xFF\xFE" + Utf16(L"[SearchCommand_01]\r\nCommandName=a\r\n"
                                                   L"CommandLine=l\r\n[SearchCommand_02]\r\nCommandNa")},
                    DamagedFile{"GapInTheMiddle", "\xFF\xFE" + Utf16(L"[SearchCommand_01]\r\nCommandName=a\r\n"
                                                                     L"[SearchCommand_03]\r\nCommandName=c\r\n")}),
    [](const auto& tested) { return std::string{tested.param.name}; });

TEST_F(UserCommandFileOnDisk, IsLargerThanAnyThatKorvaneWrites) {
    folder.Write(kName, std::string((16U << 20) + 1, ' '));

    const auto loaded = file.Read();

    EXPECT_EQ(loaded.condition, FileCondition::kUnreadable);
    EXPECT_THAT(loaded.commands, IsEmpty());
}

TEST_F(UserCommandFileOnDisk, ReplacesAnEarlierCopy) {
    folder.Write(kCopy, "earlier");
    folder.Write(kName, "damaged");

    EXPECT_EQ(file.KeepCopy(), 0U);

    EXPECT_EQ(folder.Read(kCopy), "damaged");
    EXPECT_EQ(folder.Read(kName), "damaged");
}

TEST_F(UserCommandFileOnDisk, KeepsACopyAlsoOfAFileThatMayOnlyBeRead) {
    folder.Write(kName, "damaged");
    ::SetFileAttributesW(folder.File(kName).c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(file.KeepCopy(), 0U);
    EXPECT_EQ(file.KeepCopy(), 0U);

    EXPECT_EQ(folder.Read(kCopy), "damaged");
    ::SetFileAttributesW(folder.File(kName).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(UserCommandFileOnDisk, NeedNotBeThereForACopy) {
    EXPECT_EQ(file.KeepCopy(), 0U);

    EXPECT_FALSE(folder.Has(kCopy));
}

TEST_F(UserCommandFileOnDisk, IsGoodInTheFormOfWindowsOwnFunctions) {
    folder.Write(kName, "\xFF\xFE" + Utf16(kHeader));
    settings::IniFileStore writer{folder.File(kName)};
    for (const wchar_t* const section : {L"SearchCommand_01", L"SearchCommand_02"})
        for (const wchar_t* const name : {L"CommandName", L"CommandLine", L"Comment"})
            ASSERT_TRUE(writer.WriteText(section, name, L"text"));

    EXPECT_EQ(file.Read().condition, FileCondition::kGood);
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
