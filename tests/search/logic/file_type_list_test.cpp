#include "search/logic/file_type_list.h"

#include <gmock/gmock.h>

#include "res/ids.h"

using namespace korvane;
using namespace korvane::search;
using testing::ElementsAre;

namespace {

constexpr wchar_t kInitial[] =
    L"*.cpp;*.cxx;*.c;*.h;*.inl;*.rc\n*.htm;*.html;*.asp;*.aspx;*.shtml;*.shtm;*.css\n*.txt\n*.*\n";

const FileTypeMenuTexts kTexts{L"add", L"remove", L"restore"};

// The menu as text, "-" before what is greyed.
std::wstring Menu(const FileTypeList& list, std::wstring_view typed) {
    std::wstring all;
    for (const base::MenuRow& row : FileTypeMenu(list, typed, kTexts))
        all += row.IsSeparator() ? L"| " : (row.enabled ? L"" : L"-") + row.text + L" ";
    return all;
}

FileTypeList Numbered(int count) {
    std::wstring kept;
    for (int i = 1; i <= count; ++i) kept += L"*." + std::to_wstring(i) + L"\n";
    return FileTypeList::Restore(kept);
}

} // namespace

TEST(FileTypeList, BeginsWithTheUsualTypes) {
    EXPECT_EQ(FileTypeList{}.Kept(), kInitial);
    EXPECT_TRUE(FileTypeList{}.IsInitial());
}

TEST(FileTypeList, ComesBackAsItWasKept) {
    const auto list = FileTypeList::Restore(L"*.c;*.h\n*.txt\n");

    EXPECT_THAT(list.Entries(), ElementsAre(L"*.c;*.h", L"*.txt"));
    EXPECT_EQ(list.Kept(), L"*.c;*.h\n*.txt\n");
    EXPECT_FALSE(list.IsInitial());
}

TEST(FileTypeList, NeedsNoLineFeedAtTheEnd) {
    EXPECT_THAT(FileTypeList::Restore(L"*.c\n*.h").Entries(), ElementsAre(L"*.c", L"*.h"));
}

TEST(FileTypeList, ReadsAHundredEntriesOfAListThatHasMillions) {
    std::wstring kept;
    for (int i = 0; i < 2'000'000; ++i) kept += L"*.c\n";

    EXPECT_EQ(FileTypeList::Restore(kept).Entries().size(), 100U);
}

TEST(FileTypeList, SkipsEmptyLines) {
    EXPECT_THAT(FileTypeList::Restore(L"\n\n*.c\n \n\n*.h\n\n").Entries(), ElementsAre(L"*.c", L"*.h"));
}

TEST(FileTypeList, TakesLinesThatEndInACarriageReturnToo) {
    EXPECT_THAT(FileTypeList::Restore(L"*.c\r\n*.h\r\n\r\n").Entries(), ElementsAre(L"*.c", L"*.h"));
}

TEST(FileTypeList, IsTheInitialOneWhenNothingWasKept) {
    EXPECT_TRUE(FileTypeList::Restore(L"").IsInitial());
    EXPECT_TRUE(FileTypeList::Restore(L"\n\r\n ").IsInitial());
}

TEST(FileTypeList, KeepsNoEleventhEntry) {
    EXPECT_EQ(Numbered(10).Kept(), L"*.1\n*.2\n*.3\n*.4\n*.5\n*.6\n*.7\n*.8\n*.9\n*.10\n");
    EXPECT_EQ(Numbered(11).Kept(), Numbered(10).Kept());
    EXPECT_THAT(Numbered(11).Entries(), testing::SizeIs(11));
}

TEST(FileTypeList, KeepsALongEntryWhole) {
    const std::wstring entry(5000, L'*');

    EXPECT_EQ(FileTypeList::Restore(entry + L"\n").Kept(), entry + L"\n");
}

TEST(FileTypeList, PutsANewEntryAtTheTop) {
    auto list = FileTypeList::Restore(L"*.c\n*.h\n");

    list.Use(L"*.txt");

    EXPECT_THAT(list.Entries(), ElementsAre(L"*.txt", L"*.c", L"*.h"));
}

TEST(FileTypeList, MovesAnEntryThatIsUsedAgainToTheTop) {
    auto list = FileTypeList::Restore(L"*.c\n*.h\n*.txt\n");

    list.Use(L" *.H ");

    EXPECT_THAT(list.Entries(), ElementsAre(L"*.H", L"*.c", L"*.txt"));
}

TEST(FileTypeList, UsesAnEntryOfItsOwn) {
    auto list = FileTypeList::Restore(L"*.c\n*.h\n");

    list.Use(list.Entries()[1]);

    EXPECT_THAT(list.Entries(), ElementsAre(L"*.h", L"*.c"));
}

TEST(FileTypeList, TakesNoEmptyEntry) {
    auto list = FileTypeList::Restore(L"*.c\n");

    list.Use(L"");
    list.Use(L"  ");

    EXPECT_THAT(list.Entries(), ElementsAre(L"*.c"));
}

TEST(FileTypeList, LetsTheLastEntryOfAFullListGo) {
    auto list = Numbered(10);

    list.Use(L"*.new");

    EXPECT_EQ(list.Kept(), L"*.new\n*.1\n*.2\n*.3\n*.4\n*.5\n*.6\n*.7\n*.8\n*.9\n");
}

TEST(FileTypeList, RemovesAnEntryInWhateverCase) {
    auto list = FileTypeList::Restore(L"*.c\n*.h\n");

    list.Remove(L"*.C");
    list.Remove(L"*.unknown");

    EXPECT_THAT(list.Entries(), ElementsAre(L"*.h"));
}

TEST(FileTypeMenu, OffersToAddWhatIsNotInTheList) {
    EXPECT_EQ(Menu(FileTypeList{}, L"*.new"), L"add -remove | -restore ");
}

TEST(FileTypeMenu, OffersToRemoveWhatIsInTheList) {
    EXPECT_EQ(Menu(FileTypeList{}, L"*.TXT"), L"-add remove | -restore ");
}

TEST(FileTypeMenu, OffersToRestoreAListThatHasChanged) {
    EXPECT_EQ(Menu(Numbered(2), L"*.1"), L"-add remove | restore ");
}

TEST(FileTypeMenu, OffersNothingWithAnEmptyFieldAndTheInitialList) {
    EXPECT_EQ(Menu(FileTypeList{}, L" "), L"-add -remove | -restore ");
}

TEST(FileTypeMenu, SendsItsCommands) {
    const auto rows = FileTypeMenu(FileTypeList{}, L"", kTexts);

    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].command, unsigned{ID_ADD_FILE_TYPE});
    EXPECT_EQ(rows[1].command, unsigned{ID_REMOVE_FILE_TYPE});
    EXPECT_EQ(rows[3].command, unsigned{ID_RESTORE_FILE_TYPES});
}
