#include "launch/launch_item.h"

#include <gmock/gmock.h>
#include <shlwapi.h>

#include <climits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "framework/string_table.h"
#include "framework/system_library.h"
#include "framework/windows_program.h"
#include "launch/command_entries.h"
#include "launch/logic/launch_limits.h"
#include "launch/stored_line.h"
#include "tests/launch/launch_items.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/solid_icon.h"

using namespace korvane;
using namespace korvane::launch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A growing list must not go back to the icon files.
static_assert(std::is_nothrow_move_constructible_v<CLaunchItem>);
static_assert(std::is_nothrow_move_assignable_v<CLaunchItem>);

class LaunchItemTest : public ::testing::Test {
protected:
    // Everything that an item holds but its icon.
    static std::wstring Text(const CLaunchItem& item) {
        const auto [iconFile, iconIndex] = item.GetIconLocation();
        return L"[" + item.Path() + L"][" + item.Arguments() + L"][" + item.WorkingFolder() + L"][" + iconFile + L"][" +
               std::to_wstring(iconIndex) + L"][" + item.Name() + L"]";
    }
    static std::vector<std::wstring> NamesOf(const std::vector<CLaunchItem>& list) {
        std::vector<std::wstring> names;
        for (const CLaunchItem& item : list) names.push_back(item.Name());
        return names;
    }
    static std::vector<const CLaunchItem*> PointersTo(const std::vector<CLaunchItem>& list) {
        std::vector<const CLaunchItem*> pointers;
        for (const CLaunchItem& item : list) pointers.push_back(&item);
        return pointers;
    }
    // Puts a file that holds an icon where a bare file name is looked for.
    void PutOnSearchPath(std::wstring_view name) {
        (void)items.Icon(name, RGB(1, 2, 3));
        std::wstring path(32767, L'\0');
        path.resize(::GetEnvironmentVariableW(L"PATH", path.data(), static_cast<DWORD>(path.size())));
        oldPath = path;
        ::SetEnvironmentVariableW(L"PATH", (path + L";" + items.folder.Path()).c_str());
    }
    void TearDown() override {
        if (!oldPath.empty()) ::SetEnvironmentVariableW(L"PATH", oldPath.c_str());
    }

    test::LaunchItems items;
    std::wstring oldPath;
};

TEST_F(LaunchItemTest, IsEmptyWhenItIsNew) {
    const CLaunchItem item;

    EXPECT_EQ(Text(item), L"[][][][][-1][]");
    EXPECT_EQ(item.Icon(), nullptr);
}

TEST_F(LaunchItemTest, LoadsAStoredLineWithItsIcon) {
    const std::wstring icon = items.Icon(L"i.ico", RGB(200, 10, 20));
    items.Put(4, L"C:\\a b\\p.exe,/x \"y\",D:\\w," + icon + L",0,名前");
    CLaunchItem item;

    ASSERT_TRUE(item.Load(items.store, 3, true));

    EXPECT_EQ(Text(item), L"[C:\\a b\\p.exe][/x \"y\"][D:\\w][" + icon + L"][0][名前]");
    EXPECT_EQ(test::ColourOf(item.Icon()), static_cast<COLORREF>(RGB(200, 10, 20)));
}

TEST_F(LaunchItemTest, HasASmallIcon) {
    items.PutWhole(4);
    CLaunchItem item;
    ASSERT_TRUE(item.Load(items.store, 3, true));

    ICONINFO info{};
    ASSERT_TRUE(::GetIconInfo(item.Icon(), &info));
    const fw::UniqueBitmap mask{info.hbmMask};
    const fw::UniqueBitmap colours{info.hbmColor};
    BITMAP picture{};
    ::GetObjectW(mask.Get(), sizeof picture, &picture);
    EXPECT_EQ(picture.bmWidth, ::GetSystemMetrics(SM_CXSMICON));
}

TEST_F(LaunchItemTest, HasDefaultsForTheFirstThreeOnly) {
    for (const int index : {0, 1, 2}) {
        CLaunchItem item;
        EXPECT_TRUE(item.Load(items.store, index, false)) << index;
        EXPECT_EQ(item.Path() + L", , ," + item.GetIconLocation().first + L",0," + item.Name(),
                  fw::LoadText(LaunchItemCommandId(index)));
    }
    for (int index = 3; index < 39; ++index) EXPECT_FALSE(CLaunchItem{}.Load(items.store, index, false)) << index;
}

TEST_F(LaunchItemTest, TakesTheDefaultForAnEmptyValue) {
    items.Put(1, L"");
    items.Put(4, L"");
    CLaunchItem item;

    EXPECT_TRUE(item.Load(items.store, 0, false));
    EXPECT_EQ(item.Path(), L"regedit.exe");
    EXPECT_FALSE(item.Load(items.store, 3, false));
}

TEST_F(LaunchItemTest, HasNoItemBelowTheFirstOrAboveTheLast) {
    items.PutWhole(39);

    EXPECT_FALSE(CLaunchItem{}.Load(items.store, -1, false));
    EXPECT_FALSE(CLaunchItem{}.Load(items.store, 38, false));
    EXPECT_FALSE(CLaunchItem{}.Load(items.store, INT_MAX, false));
    EXPECT_FALSE(CLaunchItem{}.Load(items.store, INT_MIN, false));
}

TEST_F(LaunchItemTest, FindsTheFilesOfADefaultOnTheSearchPath) {
    PutOnSearchPath(L"msconfig.exe");
    CLaunchItem item;

    ASSERT_TRUE(item.Load(items.store, 1, true));

    const std::wstring file = items.folder.File(L"msconfig.exe");
    EXPECT_EQ(Text(item), L"[" + file + L"][][][" + file + L"][0][システム構成 ユーティリティ]");
    EXPECT_EQ(test::ColourOf(item.Icon()), static_cast<COLORREF>(RGB(1, 2, 3)));
}

TEST_F(LaunchItemTest, DoesNotSearchForTheFilesOfAStoredItem) {
    PutOnSearchPath(L"msconfig.exe");
    items.Put(2, fw::LoadText(4026));
    CLaunchItem item;

    ASSERT_TRUE(item.Load(items.store, 1, true));

    EXPECT_EQ(Text(item), L"[msconfig.exe][][][msconfig.exe][0][システム構成 ユーティリティ]");
}

TEST_F(LaunchItemTest, DoesNotSearchWhenAnItemIsStarted) {
    PutOnSearchPath(L"msconfig.exe");
    CLaunchItem item;

    ASSERT_TRUE(item.Load(items.store, 1, false));

    EXPECT_EQ(item.Path(), L"msconfig.exe");
}

TEST_F(LaunchItemTest, IsReadWithoutAnIconToBeStarted) {
    items.PutWhole(4);
    CLaunchItem item;
    ASSERT_TRUE(item.Load(items.store, 3, true));

    ASSERT_TRUE(item.Load(items.store, 3, false));

    EXPECT_EQ(item.Icon(), nullptr);
    EXPECT_EQ(item.GetIconLocation().second, -1);
}

// Lines whose icon cannot be got; '*' stands for the folder that the test has.
struct NoIconCase {
    const char* name;
    const wchar_t* line;
};

class NoIconTest : public LaunchItemTest, public ::testing::WithParamInterface<NoIconCase> {};

TEST_P(NoIconTest, HidesAnItemButNotWhatItStarts) {
    (void)items.Icon(L"one.ico", RGB(9, 9, 9));
    items.folder.Write(L"text.txt", "no icon in here");
    items.folder.Write(L"empty.ico", "");
    std::wstring line = GetParam().line;
    if (const auto star = line.find(L'*'); star != std::wstring::npos) line.replace(star, 1, items.folder.Path());
    items.Put(4, line);
    CLaunchItem item;

    EXPECT_FALSE(item.Load(items.store, 3, true));
    EXPECT_EQ(item.Icon(), nullptr);
    EXPECT_TRUE(item.Load(items.store, 3, false));
    EXPECT_EQ(item.Path(), L"app.exe");
}

INSTANTIATE_TEST_SUITE_P(Lines, NoIconTest,
                         testing::Values(NoIconCase{"NoIconFile", L"app.exe"},
                                         NoIconCase{"BlankIconFile", L"app.exe, , , ,0,Name"},
                                         NoIconCase{"ShiftedFields", L"app.exe,,,app.exe,0,Name"},
                                         NoIconCase{"MissingFile", L"app.exe, , ,*\\no such.ico,0,Name"},
                                         NoIconCase{"Folder", L"app.exe, , ,*,0,Name"},
                                         NoIconCase{"EmptyFile", L"app.exe, , ,*\\empty.ico,0,Name"},
                                         NoIconCase{"FileWithoutIcon", L"app.exe, , ,*\\text.txt,0,Name"},
                                         NoIconCase{"IndexOutOfRange", L"app.exe, , ,*\\one.ico,500,Name"},
                                         NoIconCase{"NoSuchResource", L"app.exe, , ,shell32.dll,-31999,Name"},
                                         NoIconCase{"IndexMinusOne", L"app.exe, , ,*\\one.ico,-1,Name"},
                                         NoIconCase{"Share", L"app.exe, , ,\\\\korvane.invalid\\share\\a.ico,0,Name"}),
                         [](const auto& each) { return std::string{each.param.name}; });

TEST_F(LaunchItemTest, ShiftsTheFieldsAfterARunOfCommas) {
    items.Put(4, L"app.exe,,,app.exe,0,Name");
    CLaunchItem item;

    ASSERT_TRUE(item.Load(items.store, 3, false));

    EXPECT_EQ(Text(item), L"[app.exe][app.exe][0][Name][-1][]");
}

TEST_F(LaunchItemTest, TakesAnIndexThatIsNoNumberForTheFirstIcon) {
    items.Put(4, L"p, , ," + items.Icon(L"i.ico", RGB(5, 6, 7)) + L",x,n");
    CLaunchItem item;

    ASSERT_TRUE(item.Load(items.store, 3, true));

    EXPECT_EQ(item.GetIconLocation().second, 0);
}

TEST_F(LaunchItemTest, ReadsALineOf100000Characters) {
    items.Put(4, std::wstring(100'000, L'x') + L", , ," + items.Icon(L"i.ico", RGB(5, 6, 7)) + L",0," +
                     std::wstring(300, L'n'));
    CLaunchItem item;

    ASSERT_TRUE(item.Load(items.store, 3, true));

    EXPECT_EQ(item.Path().size(), 100'000U);
    EXPECT_EQ(item.Name(), std::wstring(300, L'n'));
}

TEST_F(LaunchItemTest, SurvivesAnIconFileOf100000Characters) {
    items.Put(4, L"p, , ," + std::wstring(100'000, L'x') + L",0,n");

    EXPECT_FALSE(CLaunchItem{}.Load(items.store, 3, true));
}

TEST_F(LaunchItemTest, LosesItsIconWhenItCannotBeLoadedAgain) {
    items.PutWhole(4);
    CLaunchItem item;
    ASSERT_TRUE(item.Load(items.store, 3, true));

    EXPECT_FALSE(item.Load(items.store, 4, true));

    EXPECT_EQ(item.Icon(), nullptr);
    EXPECT_EQ(item.GetIconLocation().second, -1);
}

TEST_F(LaunchItemTest, IsSetWithAnIcon) {
    const std::wstring icon = items.Icon(L"i.ico", RGB(1, 200, 1));
    CLaunchItem item;

    item.Set(L"p", L"a", L"f", L"n", icon, 0);

    EXPECT_EQ(Text(item), L"[p][a][f][" + icon + L"][0][n]");
    EXPECT_EQ(test::ColourOf(item.Icon()), static_cast<COLORREF>(RGB(1, 200, 1)));
}

TEST_F(LaunchItemTest, KeepsItsIconWhenItIsSetWithoutAnIconFile) {
    const std::wstring icon = items.Icon(L"i.ico", RGB(1, 200, 1));
    CLaunchItem item;
    item.Set(L"p", L"a", L"f", L"n", icon, 0);
    const HICON before = item.Icon();

    item.Set(L"p2", L"", L"", L"n2");

    EXPECT_EQ(Text(item), L"[p2][][][" + icon + L"][0][n2]");
    EXPECT_EQ(item.Icon(), before);
}

TEST_F(LaunchItemTest, TakesAnotherIconAndKeepsTheRest) {
    CLaunchItem item;
    item.Set(L"p", L"a", L"f", L"n", items.Icon(L"i.ico", RGB(1, 200, 1)), 0);
    const std::wstring other = items.Icon(L"other.ico", RGB(1, 1, 200));

    item.SetIcon(other, 0);
    EXPECT_EQ(Text(item), L"[p][a][f][" + other + L"][0][n]");
    EXPECT_EQ(test::ColourOf(item.Icon()), static_cast<COLORREF>(RGB(1, 1, 200)));

    item.SetIcon({}, -1);
    EXPECT_EQ(Text(item), L"[p][a][f][][-1][n]");
    EXPECT_EQ(item.Icon(), nullptr);
}

TEST_F(LaunchItemTest, HasNoIconWhenItIsSetToOneThatIsNotThere) {
    CLaunchItem item;
    item.Set(L"p", L"a", L"f", L"n", items.Icon(L"i.ico", RGB(1, 200, 1)), 0);

    item.Set(L"p", L"a", L"f", L"n", items.folder.File(L"none.ico"), 3);

    EXPECT_EQ(item.Icon(), nullptr);
    EXPECT_EQ(item.GetIconLocation(), (std::pair{items.folder.File(L"none.ico"), 3}));
}

TEST_F(LaunchItemTest, GivesACopyAnIconOfItsOwn) {
    items.PutWhole(4);
    CLaunchItem item;
    ASSERT_TRUE(item.Load(items.store, 3, true));

    const CLaunchItem copy = item;
    CLaunchItem assigned;
    assigned.Set(L"x", L"x", L"x", L"x", items.Icon(L"other.ico", RGB(0, 0, 250)), 0);
    assigned = item;

    EXPECT_EQ(Text(copy), Text(item));
    EXPECT_EQ(Text(assigned), Text(item));
    EXPECT_NE(copy.Icon(), item.Icon());
    EXPECT_NE(assigned.Icon(), item.Icon());
    EXPECT_EQ(test::ColourOf(copy.Icon()), items.ColourOfItem(4));
    EXPECT_EQ(test::ColourOf(assigned.Icon()), items.ColourOfItem(4));
}

TEST_F(LaunchItemTest, LeavesACopyWithoutAnIconWhoseFileIsGone) {
    items.PutWhole(4);
    CLaunchItem item;
    ASSERT_TRUE(item.Load(items.store, 3, true));
    ::DeleteFileW(items.folder.File(L"4.ico").c_str());

    const CLaunchItem copy = item;

    EXPECT_EQ(copy.Icon(), nullptr);
    EXPECT_EQ(Text(copy), Text(item));
    EXPECT_NE(item.Icon(), nullptr);
}

TEST_F(LaunchItemTest, StaysWhatItIsWhenItIsAssignedToItself) {
    items.PutWhole(4);
    CLaunchItem item;
    ASSERT_TRUE(item.Load(items.store, 3, true));
    const HICON before = item.Icon();

    item.Assign(item);

    EXPECT_EQ(item.Icon(), before);
}

TEST_F(LaunchItemTest, TakesItsIconAlongWhenItIsMoved) {
    items.PutWhole(4);
    CLaunchItem item;
    ASSERT_TRUE(item.Load(items.store, 3, true));
    const HICON before = item.Icon();
    ::DeleteFileW(items.folder.File(L"4.ico").c_str());

    const CLaunchItem moved = std::move(item);

    EXPECT_EQ(moved.Icon(), before);
}

// Icons are counted by the bitmaps that they are made of.
TEST_F(LaunchItemTest, ReleasesEveryIcon) {
    items.PutWholeUpTo(6);
    (void)LoadList(items.store);
    const int before = test::GdiObjectCount();
    {
        std::vector<CLaunchItem> list = LoadList(items.store);
        std::vector<CLaunchItem> copy = list;
        EXPECT_GT(test::GdiObjectCount(), before);
        copy.erase(copy.begin());
        for (int again = 0; again < 5; ++again) {
            EXPECT_TRUE(list[0].Load(items.store, 3, true));
            copy[0] = list[0];
            list[1].Set(L"p", L"", L"", L"n", items.folder.File(L"2.ico"), 0);
        }
        list.push_back(std::move(copy[2]));
    }

    EXPECT_EQ(test::GdiObjectCount(), before);
}

TEST_F(LaunchItemTest, FormatsWhatIsStored) {
    CLaunchItem item;
    item.Set(L"regedit.exe", L"", L"", L"レジストリ エディタ", L"regedit.exe", 0);

    EXPECT_EQ(item.Format(), L"regedit.exe, , ,regedit.exe,0,レジストリ エディタ");
}

TEST_F(LaunchItemTest, FormatsAnItemWithoutAnIcon) {
    EXPECT_EQ(CLaunchItem{}.Format(), L", , ,,-1,");
}

TEST_F(LaunchItemTest, ListsTheThreeDefaultsForAnEmptySection) {
    PutOnSearchPath(L"msconfig.exe");

    const std::vector<CLaunchItem> list = LoadList(items.store);

    EXPECT_THAT(NamesOf(list),
                ElementsAre(L"レジストリ エディタ", L"システム構成 ユーティリティ", L"タスク マネージャ"));
    for (const CLaunchItem& item : list) {
        EXPECT_TRUE(::PathFileExistsW(item.Path().c_str())) << item.Path();
        EXPECT_TRUE(::PathFileExistsW(item.GetIconLocation().first.c_str()));
    }
}

TEST_F(LaunchItemTest, ListsThirtyEightItemsAndNeverAThirtyNinth) {
    items.PutWholeUpTo(40);

    const std::vector<CLaunchItem> list = LoadList(items.store);

    ASSERT_EQ(list.size(), 38U);
    for (int number = 1; number <= 38; ++number) {
        const CLaunchItem& item = list[static_cast<std::size_t>(number - 1)];
        EXPECT_EQ(item.Name(), L"n" + std::to_wstring(number));
        EXPECT_EQ(test::ColourOf(item.Icon()), items.ColourOfItem(number)) << number;
    }
}

TEST_F(LaunchItemTest, EndsTheListAtAMissingKey) {
    items.PutWholeUpTo(8);
    items.store.DeleteValue(settings::section::kLaunchItems, L"LaunchMenu05");

    EXPECT_THAT(NamesOf(LoadList(items.store)), ElementsAre(L"n1", L"n2", L"n3", L"n4"));
}

TEST_F(LaunchItemTest, EndsTheListAtAnIconThatCannotBeGot) {
    items.PutWholeUpTo(8);
    ::DeleteFileW(items.folder.File(L"6.ico").c_str());
    EXPECT_THAT(NamesOf(LoadList(items.store)), ElementsAre(L"n1", L"n2", L"n3", L"n4", L"n5"));

    items.Put(1, L"app.exe");
    EXPECT_THAT(LoadList(items.store), IsEmpty());
}

TEST_F(LaunchItemTest, ReplacesTheWholeSectionWhenTheListIsSaved) {
    items.PutWholeUpTo(5);
    std::vector<CLaunchItem> list = LoadList(items.store);
    std::swap(list[0], list[4]);
    list.resize(3);

    EXPECT_TRUE(SaveList(items.store, PointersTo(list)));

    EXPECT_EQ(items.store.sections[std::wstring{settings::section::kLaunchItems}].size(), 3U);
    EXPECT_THAT(NamesOf(LoadList(items.store)), ElementsAre(L"n5", L"n2", L"n3"));
}

TEST_F(LaunchItemTest, IsNeverMissingWhereverTheSavingOfItsListEnds) {
    items.PutWholeUpTo(5);
    std::vector<CLaunchItem> list = LoadList(items.store);
    std::swap(list[0], list[4]);
    std::swap(list[1], list[2]);
    const auto before = items.store.sections;

    for (int writes = 0;; ++writes) {
        items.store.sections = before;
        items.store.writesThatSucceed = writes;
        const bool whole = SaveList(items.store, PointersTo(list));

        EXPECT_THAT(NamesOf(LoadList(items.store)), testing::IsSupersetOf({L"n1", L"n2", L"n3", L"n4", L"n5"}))
            << writes;
        if (whole) break;
    }
    EXPECT_THAT(NamesOf(LoadList(items.store)), ElementsAre(L"n5", L"n3", L"n2", L"n4", L"n1"));
}

TEST_F(LaunchItemTest, IsNotKeptWithoutAPath) {
    items.PutWholeUpTo(3);
    items.Put(4, L" , , ," + items.Icon(L"i.ico", RGB(1, 1, 1)) + L",0,nothing");
    items.PutWhole(5);
    const std::vector<CLaunchItem> list = LoadList(items.store);
    ASSERT_EQ(list.size(), 5U);

    EXPECT_TRUE(SaveList(items.store, PointersTo(list)));

    // Written again, its fields would have moved forward, and the items after it would be hidden.
    EXPECT_THAT(NamesOf(LoadList(items.store)), ElementsAre(L"n1", L"n2", L"n3", L"n5"));
}

TEST_F(LaunchItemTest, KeepsNoUnloadedLineWithoutAPath) {
    items.PutWholeUpTo(3);
    items.Put(4, L"   ");
    items.Put(5, L" , , ,a.ico,0,nothing");
    items.PutWhole(6);

    EXPECT_THAT(ReadLinesFrom(items.store, 3), ElementsAre(items.LineOf(6, L"n6")));
}

TEST_F(LaunchItemTest, WritesTwoDigitsInEveryKey) {
    items.PutWholeUpTo(38);
    const std::vector<CLaunchItem> list = LoadList(items.store);

    EXPECT_TRUE(SaveList(items.store, PointersTo(list)));

    EXPECT_TRUE(items.store.Has(settings::section::kLaunchItems, L"LaunchMenu09"));
    EXPECT_TRUE(items.store.Has(settings::section::kLaunchItems, L"LaunchMenu38"));
    EXPECT_EQ(items.store.sections[std::wstring{settings::section::kLaunchItems}].size(), 38U);
}

TEST_F(LaunchItemTest, SavesAnEmptyListAsNoSectionAtAll) {
    items.PutWholeUpTo(5);

    EXPECT_TRUE(SaveList(items.store, {}));

    EXPECT_FALSE(items.store.sections.contains(std::wstring{settings::section::kLaunchItems}));
}

TEST_F(LaunchItemTest, UsesUpTheNumberOfAnItemThatIsMissing) {
    items.PutWholeUpTo(2);
    const std::vector<CLaunchItem> list = LoadList(items.store);

    EXPECT_TRUE(SaveList(items.store, std::vector<const CLaunchItem*>{&list[0], nullptr, &list[1]}));

    EXPECT_FALSE(items.store.Has(settings::section::kLaunchItems, L"LaunchMenu02"));
    EXPECT_EQ(items.store.Read(settings::keys::LaunchMenuItem, 3), items.LineOf(2, L"n2"));
}

TEST_F(LaunchItemTest, KeepsTheLinesThatCannotBeLoaded) {
    items.PutWholeUpTo(3);
    items.Put(4, L"p4.exe, , ,gone.exe,0,n4");
    items.PutWhole(5);
    const std::vector<CLaunchItem> list = LoadList(items.store);
    ASSERT_EQ(list.size(), 3U);

    const std::vector<std::wstring> unlisted = ReadLinesFrom(items.store, 3);
    EXPECT_THAT(unlisted, ElementsAre(L"p4.exe, , ,gone.exe,0,n4", items.LineOf(5, L"n5")));
    EXPECT_TRUE(SaveList(items.store, PointersTo(list), unlisted));

    EXPECT_EQ(items.store.Read(settings::keys::LaunchMenuItem, 4), L"p4.exe, , ,gone.exe,0,n4");
    EXPECT_EQ(items.store.Read(settings::keys::LaunchMenuItem, 5), items.LineOf(5, L"n5"));
}

TEST_F(LaunchItemTest, KeepsUnloadedLinesOnlyWhileThereIsRoom) {
    items.PutWholeUpTo(38);
    const std::vector<CLaunchItem> list = LoadList(items.store);

    EXPECT_TRUE(SaveList(items.store, PointersTo(list), std::vector<std::wstring>{L"a", L"b"}));

    EXPECT_EQ(items.store.sections[std::wstring{settings::section::kLaunchItems}].size(), 38U);
}

TEST_F(LaunchItemTest, KeepsNothingFromBehindANumberThatIsMissing) {
    items.PutWholeUpTo(4);
    items.PutWhole(6);

    EXPECT_THAT(ReadLinesFrom(items.store, 4), IsEmpty());
}

TEST_F(LaunchItemTest, CountsNoneOfTheProgramsOwnLinesAsUnlisted) {
    EXPECT_THAT(ReadLinesFrom(items.store, 0), IsEmpty());
}

TEST_F(LaunchItemTest, LosesWhatFollowsACommaInTheName) {
    CLaunchItem item;
    item.Set(L"p", L"", L"", L"A,B", items.Icon(L"i.ico", RGB(1, 1, 1)), 0);
    items.Put(4, item.Format());
    CLaunchItem read;

    ASSERT_TRUE(read.Load(items.store, 3, true));

    EXPECT_EQ(read.Name(), L"A");
}

// The launch buttons read the same lines.
TEST_F(LaunchItemTest, SharesItsLinesWithTheLaunchButtons) {
    items.PutWhole(2);

    EXPECT_EQ(LoadCommandEntry(4026, items.store).name, L"n2");
    EXPECT_EQ(LoadCommandEntry(4025, items.store).name, L"レジストリ エディタ");
    EXPECT_EQ(LoadCommandEntry(4027, items.store).path, L"taskmgr.exe");
    EXPECT_TRUE(ReadStoredLine(items.store, 0).builtIn);
    EXPECT_FALSE(ReadStoredLine(items.store, 1).builtIn);
}

TEST_F(LaunchItemTest, HasNothingToDoWithControlPanelEntries) {
    items.PutWholeUpTo(38);

    EXPECT_EQ(LoadCommandEntry(4024, items.store).path, L"control.exe");
}

// Names are compared without regard to case, as the file system does.
bool SamePath(const std::wstring& one, const std::wstring& other) {
    return ::CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

TEST_F(LaunchItemTest, StartsTheControlPanelFromTheSystemFolder) {
    for (const UINT command : {4001U, 4004U, 4013U, 4022U, 4024U})
        EXPECT_TRUE(SamePath(ProgramOf(LoadCommandEntry(command, items.store)), fw::SystemFolder() + L"\\control.exe"))
            << command;
}

TEST_F(LaunchItemTest, NamesEveryEntryOfItsOwnWithItsFolder) {
    for (UINT command = 4001; command <= 4027; ++command) {
        const CommandEntry entry = LoadCommandEntry(command, items.store);

        EXPECT_TRUE(ProgramOf(entry).ends_with(L"\\" + entry.path)) << command;
    }
}

TEST_F(LaunchItemTest, StartsAnItemOfTheUsersAsItStands) {
    items.Put(2, L"control.exe,a.cpl, ,control.exe,0,Name");

    EXPECT_EQ(ProgramOf(LoadCommandEntry(4026, items.store)), L"control.exe");
    EXPECT_TRUE(SamePath(ProgramOf(LoadCommandEntry(4025, items.store)), fw::WindowsProgram(L"regedit.exe")));
}

TEST_F(LaunchItemTest, ShowsTheIconOfAnEntry) {
    items.PutWhole(2);
    const CommandEntry entry = LoadCommandEntry(4026, items.store);

    EXPECT_EQ(test::ColourOf(IconOf(entry).Get()), test::LaunchItems::ColourOfItem(2));
    EXPECT_FALSE(IconOf(LoadCommandEntry(4001, items.store))) << "which names none";
}

} // namespace
