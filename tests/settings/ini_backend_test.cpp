#include "settings/ini_backend.h"

#include <windows.h>

#include <gmock/gmock.h>

#include "settings/logic/setting_keys.h"
#include "tests/support/temp_folder.h"

namespace korvane::settings {
namespace {

using testing::HasSubstr;

class IniFileStoreTest : public testing::Test {
protected:
    test::TempFolder folder;
    IniFileStore store{folder.File(L"test.dat")};

    // A file with a byte order mark, as the command files are.
    void WriteUnicode(std::wstring_view text) {
        std::string bytes{"\xFF\xFE"};
        for (const wchar_t character : text) {
            bytes += static_cast<char>(character & 0xFF);
            bytes += static_cast<char>(character >> 8);
        }
        folder.Write(L"test.dat", bytes);
    }
};

TEST_F(IniFileStoreTest, TakesASectionsTextAsItStands) {
    ASSERT_TRUE(store.Write(keys::SaveWindowPlacement, 1));

    EXPECT_THAT(folder.Read(L"test.dat"), HasSubstr("[Settings\\WindowPlacement]\r\nSaveWindowPlacement=1"));
}

TEST_F(IniFileStoreTest, WritesAnIntegerInDecimal) {
    ASSERT_TRUE(store.WriteInt(L"Settings", L"Value", -2147483647));

    EXPECT_EQ(store.ReadText(L"Settings", L"Value"), L"-2147483647");
}

TEST_F(IniFileStoreTest, WritesSixteenBytesAsThirtyTwoLetters) {
    std::vector<std::byte> bytes(16, std::byte{0x3C});
    bytes.back() = std::byte{0xF0};
    ASSERT_TRUE(store.Write(keys::WindowPosRect, bytes));

    EXPECT_EQ(store.ReadText(section::kPlacement, L"WindowPosRect"), L"MDMDMDMDMDMDMDMDMDMDMDMDMDMDMDAP");
    EXPECT_EQ(store.Read(keys::WindowPosRect), bytes);
}

TEST_F(IniFileStoreTest, ReadsALongTextUpToTheEndOfItsBuffer) {
    for (const std::size_t length : {4094U, 4095U, 4096U, 9000U}) {
        std::wstring text;
        while (text.size() < length) text += static_cast<wchar_t>(L'a' + text.size() % 26);
        ASSERT_TRUE(store.WriteText(L"Settings", L"Value", text));

        EXPECT_EQ(store.ReadText(L"Settings", L"Value"), text.substr(0, 4095)) << length;
        const IniFileStore whole{store.Path(), LongTexts::kWhole};
        EXPECT_EQ(whole.ReadText(L"Settings", L"Value"), text) << length;
    }
}

TEST_F(IniFileStoreTest, ReadsALongBinaryValueUpToTheEndOfItsBuffer) {
    const std::vector<std::byte> bytes(3000, std::byte{0x3C});
    ASSERT_TRUE(store.WriteBinary(L"Settings", L"Value", bytes));

    EXPECT_EQ(store.ReadBinary(L"Settings", L"Value"), std::vector<std::byte>(2047, std::byte{0x3C}));
}

TEST_F(IniFileStoreTest, TakesADamagedBinaryValueForMissing) {
    for (const char* value : {"", "M", "MDx", "md", "MDMQ", "\"MD\" x"}) {
        folder.Write(L"test.dat", std::string{"[Settings]\r\nValue="} + value + "\r\n");
        // A store of its own sees the file anew.
        const bool readable = std::string_view{value} == "MDx";

        EXPECT_EQ(IniFileStore{folder.File(L"test.dat")}.ReadBinary(L"Settings", L"Value").has_value(), readable)
            << value;
    }
}

TEST_F(IniFileStoreTest, ReadsAFileThatBeginsWithAByteOrderMark) {
    WriteUnicode(L":// UserCommand.dat for Korvane\r\n\r\n[SearchCommand_01]\r\nCommandName=辞書 ※\r\n");

    EXPECT_EQ(store.ReadText(section::SearchCommand(1), search_command::kName), L"辞書 ※");
}

TEST_F(IniFileStoreTest, WritesJapaneseIntoAFileThatBeginsWithAByteOrderMark) {
    WriteUnicode(L"; ※\r\n");
    ASSERT_TRUE(store.WriteText(section::SearchCommand(1), search_command::kComment, L"国語辞典 — ♥"));

    EXPECT_EQ(IniFileStore{folder.File(L"test.dat")}.ReadText(section::SearchCommand(1), search_command::kComment),
              L"国語辞典 — ♥");
    EXPECT_EQ(folder.Read(L"test.dat").substr(0, 2), "\xFF\xFE");
}

TEST_F(IniFileStoreTest, PutsAnEmptyLineBehindATextThatEndsInALineBreak) {
    WriteUnicode(L"");
    ASSERT_TRUE(store.WriteText(L"SearchCommand_01", L"Comment", L"first\r\n"));
    ASSERT_TRUE(store.WriteText(L"SearchCommand_02", L"Comment", L"second\r\n"));

    EXPECT_EQ(store.ReadText(L"SearchCommand_01", L"Comment"), L"first");
    EXPECT_EQ(store.ReadText(L"SearchCommand_02", L"Comment"), L"second");
}

TEST_F(IniFileStoreTest, ReadsTheFallbackWhenTheFileIsMissing) {
    EXPECT_EQ(store.ReadInt(L"Settings", L"Value", 5), 5);
    EXPECT_EQ(store.ReadText(L"Settings", L"Value", L"five "), L"five ");
    EXPECT_FALSE(folder.Has(L"test.dat"));
}

TEST_F(IniFileStoreTest, SurvivesAFileOfOtherBytes) {
    std::string bytes;
    for (int i = 0; i < 5000; ++i) bytes += static_cast<char>(i * 7919 >> 3);
    folder.Write(L"test.dat", bytes);

    EXPECT_EQ(store.ReadInt(L"Settings", L"Value", 5), 5);
    EXPECT_EQ(store.ReadText(L"Settings", L"Value", L"five"), L"five");
    EXPECT_FALSE(store.ReadBinary(L"Settings", L"Value"));
}

TEST_F(IniFileStoreTest, ReportsAWriteIntoAFolderThatIsMissing) {
    IniFileStore nowhere{folder.File(L"missing\\test.dat")};

    EXPECT_FALSE(nowhere.WriteInt(L"Settings", L"Value", 1));
    EXPECT_FALSE(folder.Has(L"missing"));
}

TEST(IniFileStore, CompletesARelativePath) {
    const IniFileStore store{L"relative.dat"};

    EXPECT_EQ(store.Path().substr(1, 2), L":\\");
    EXPECT_TRUE(store.Path().ends_with(L"\\relative.dat"));
}

TEST(IniFileStore, FailsInEverythingWithoutAPath) {
    IniFileStore store{L""};

    EXPECT_EQ(store.Path(), L"");
    EXPECT_FALSE(store.WriteInt(L"Settings", L"Value", 1));
    EXPECT_FALSE(store.DeleteValue(L"Settings", L"Value"));
    EXPECT_FALSE(store.DeleteSection(L"Settings"));
    EXPECT_EQ(store.ReadInt(L"Settings", L"Value", 2), 2);
    EXPECT_EQ(store.ReadText(L"Settings", L"Value", L"x"), L"x");
}

} // namespace
} // namespace korvane::settings
