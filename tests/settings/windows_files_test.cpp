#include "settings/windows_files.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "framework/handle.h"
#include "tests/support/temp_folder.h"

namespace korvane::settings {
namespace {

class WindowsFilesTest : public testing::Test {
protected:
    [[nodiscard]] std::wstring Path(std::wstring_view name) const { return folder.File(name); }

    test::TempFolder folder;
    WindowsFiles files;
};

TEST_F(WindowsFilesTest, WriteEveryByte) {
    std::string bytes;
    for (int i = 0; i < 3'000'000; ++i) bytes += static_cast<char>(i * 31 / 7);

    EXPECT_EQ(files.WriteNew(Path(L"a"), bytes), 0U);

    EXPECT_EQ(folder.Read(L"a"), bytes);
    EXPECT_EQ(files.WriteNew(Path(L"a"), "short"), 0U);
    EXPECT_EQ(folder.Read(L"a"), "short");
}

TEST_F(WindowsFilesTest, SayWhyTheyCannotBeWritten) {
    EXPECT_EQ(files.WriteNew(Path(L"no folder\\a"), "x"), ULONG{ERROR_PATH_NOT_FOUND});
}

TEST_F(WindowsFilesTest, TakeThePlaceOfOneThatIsThere) {
    folder.Write(L"a", "old");
    folder.Write(L"b", "new");

    EXPECT_EQ(files.Replace(Path(L"a"), Path(L"b")), 0U);

    EXPECT_EQ(folder.Read(L"a"), "new");
    EXPECT_FALSE(folder.Has(L"b"));
    EXPECT_NE(files.Replace(Path(L"c"), Path(L"a")), 0U);
    EXPECT_TRUE(folder.Has(L"a"));
}

TEST_F(WindowsFilesTest, MoveOverOneThatIsThereAndWhereThereIsNone) {
    for (const wchar_t* const to : {L"a", L"c"}) {
        folder.Write(L"a", "old");
        folder.Write(L"b", "new");

        EXPECT_EQ(files.MoveOver(Path(L"b"), Path(to)), 0U);

        EXPECT_EQ(folder.Read(to), "new");
        EXPECT_FALSE(folder.Has(L"b"));
    }
}

TEST_F(WindowsFilesTest, CopyToOneThatCanBeWrittenAgain) {
    folder.Write(L"a", "content");
    ::SetFileAttributesW(Path(L"a").c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(files.CopyNew(Path(L"a"), Path(L"b")), 0U);
    EXPECT_EQ(files.CopyNew(Path(L"a"), Path(L"b")), 0U);

    EXPECT_EQ(folder.Read(L"b"), "content");
    ::SetFileAttributesW(Path(L"a").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(files.CopyNew(Path(L"none"), Path(L"b")), ULONG{ERROR_FILE_NOT_FOUND});
}

TEST_F(WindowsFilesTest, AreDeletedAlsoWhenTheyAreNotThere) {
    folder.Write(L"a", "x");

    EXPECT_EQ(files.Delete(Path(L"a")), 0U);
    EXPECT_EQ(files.Delete(Path(L"a")), 0U);
    EXPECT_EQ(files.Delete(Path(L"no folder\\a")), 0U);

    EXPECT_FALSE(files.Exists(Path(L"a")));
}

TEST_F(WindowsFilesTest, AreReadWholeOrNotAtAll) {
    folder.Write(L"a", std::string(1'000, 'x'));

    EXPECT_EQ(ReadContent(Path(L"a"), 1'000).bytes, std::string(1'000, 'x'));
    EXPECT_EQ(ReadContent(Path(L"a"), 999).error, ULONG{ERROR_FILE_TOO_LARGE});
    EXPECT_FALSE(ReadContent(Path(L"a"), 999).Missing());
    EXPECT_TRUE(ReadContent(Path(L"b"), 999).Missing());
    EXPECT_TRUE(ReadContent(Path(L"no folder\\b"), 999).Missing());
}

TEST_F(WindowsFilesTest, AreNotMissingWhileAnotherProgramHasThem) {
    folder.Write(L"a", "x");
    const fw::UniqueKernelHandle owner{::CreateFileW(Path(L"a").c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)};

    const FileContent content = ReadContent(Path(L"a"), 10);

    EXPECT_EQ(content.error, ULONG{ERROR_SHARING_VIOLATION});
    EXPECT_FALSE(content.Missing());
    EXPECT_TRUE(files.Exists(Path(L"a")));
}

} // namespace
} // namespace korvane::settings
