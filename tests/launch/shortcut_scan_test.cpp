#include "launch/shortcut_scan.h"

#include <gmock/gmock.h>

#include <objbase.h>

#include <filesystem>

#include "base/format_text.h"
#include "tests/support/fake_shortcut_reader.h"
#include "tests/support/folder_link.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/icon_file.h"
#include "tests/support/shortcut_file.h"
#include "tests/support/temp_folder.h"
#include "tests/support/wait.h"

using namespace korvane;
using namespace korvane::launch;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

std::vector<std::wstring> NamesOf(const std::vector<ImportableItem>& items) {
    std::vector<std::wstring> names;
    for (const ImportableItem& item : items) names.push_back(item.name);
    return names;
}

void Append(std::vector<ImportableItem>& all, std::vector<ImportableItem> more) {
    for (ImportableItem& item : more) all.push_back(std::move(item));
}

class ShortcutScanTest : public testing::Test {
protected:
    test::TempFolder folder;
    std::shared_ptr<test::FakeShortcutReader> reader = std::make_shared<test::FakeShortcutReader>();

    void TearDown() override {
        // Whatever hangs lets go, and the threads end before the next test begins.
        reader->Release();
        EXPECT_TRUE(test::WaitUntil([&] { return reader.use_count() == 1; }));
    }
    void Put(const std::wstring& name) const {
        const std::filesystem::path path{folder.File(name)};
        std::filesystem::create_directories(path.parent_path());
        folder.Write(name, "x");
    }
    [[nodiscard]] std::vector<std::wstring> Scanned(bool subfolders = true, std::wstring from = {}) {
        std::vector<ImportableItem> found;
        ScanShortcuts(from.empty() ? folder.Path() : from, subfolders, *reader, [&](ImportableItem item) {
            found.push_back(std::move(item));
            return true;
        });
        return NamesOf(found);
    }
    // All that a scan on its own thread finds until it ends.
    [[nodiscard]] static std::vector<ImportableItem> TakeAll(ShortcutScan& scan) {
        std::vector<ImportableItem> all;
        EXPECT_TRUE(test::WaitUntil([&] {
            const bool running = scan.Running();
            Append(all, scan.Take());
            return !running;
        }));
        return all;
    }
};

TEST_F(ShortcutScanTest, FindsShortcutsAndNothingElse) {
    Put(L"a.lnk");
    Put(L"b.txt");
    Put(L"c.url");
    Put(L"d.lnk.bak");
    Put(L"lnk");
    std::filesystem::create_directory(folder.File(L"folder.lnk"));

    EXPECT_THAT(Scanned(), ElementsAre(L"a"));
}

TEST_F(ShortcutScanTest, FindsAShortcutInCapitals) {
    Put(L"CAPITALS.LNK");

    EXPECT_THAT(Scanned(), ElementsAre(L"CAPITALS"));
}

TEST_F(ShortcutScanTest, FindsNothingInAnEmptyOrMissingFolder) {
    EXPECT_THAT(Scanned(), IsEmpty());
    EXPECT_THAT(Scanned(true, folder.File(L"missing")), IsEmpty());
    EXPECT_THAT(Scanned(true, L"\\\\?\\nonsense|<>"), IsEmpty());
    EXPECT_THAT(Scanned(true, std::wstring(40000, L'x')), IsEmpty());
}

TEST_F(ShortcutScanTest, TakesAFolderWithAndWithoutABackslashAtItsEnd) {
    Put(L"a.lnk");

    EXPECT_THAT(Scanned(true, folder.Path() + L"\\"), ElementsAre(L"a"));
    EXPECT_THAT(Scanned(true, folder.Path()), ElementsAre(L"a"));
}

TEST_F(ShortcutScanTest, DoesNotTakeNoFolderForTheRootOfTheDrive) {
    std::vector<ImportableItem> found;
    ScanShortcuts(L"", true, *reader, [&](ImportableItem item) {
        found.push_back(std::move(item));
        return true;
    });

    EXPECT_TRUE(found.empty());
    EXPECT_EQ(reader->reads, 0);
}

TEST_F(ShortcutScanTest, LooksIntoSubfoldersOnlyWhenItIsTo) {
    Put(L"a.lnk");
    Put(L"x\\b.lnk");
    Put(L"x\\y\\c.lnk");

    EXPECT_THAT(Scanned(false), ElementsAre(L"a"));
    EXPECT_THAT(Scanned(true), UnorderedElementsAre(L"a", L"b", L"c"));
}

// The order is that of the file system: a subfolder's shortcuts come together, at the place where it is met.
TEST_F(ShortcutScanTest, ReadsASubfolderWhereItIsMet) {
    for (const wchar_t* const name : {L"a.lnk", L"m\\1.lnk", L"m\\n\\2.lnk", L"m\\o.lnk", L"z.lnk"}) Put(name);
    std::vector<std::wstring> expected;
    const auto walk = [&](const auto& self, const std::wstring& path) -> void {
        WIN32_FIND_DATAW entry{};
        const HANDLE search = ::FindFirstFileW((path + L"\\*.*").c_str(), &entry);
        do {
            const std::wstring name = entry.cFileName;
            if (name == L"." || name == L"..") continue;
            if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
                self(self, path + L"\\" + name);
            else
                expected.push_back(name.substr(0, name.size() - 4));
        } while (::FindNextFileW(search, &entry));
        ::FindClose(search);
    };
    walk(walk, folder.Path());

    EXPECT_EQ(expected.size(), 5U);
    EXPECT_EQ(Scanned(), expected);
}

TEST_F(ShortcutScanTest, StopsWhenTheSinkHasEnough) {
    for (int i = 0; i < 10; ++i) Put(base::FormatText(L"%d.lnk", i));
    int taken = 0;

    ScanShortcuts(folder.Path(), true, *reader, [&](const ImportableItem&) { return ++taken < 3; });

    EXPECT_EQ(taken, 3);
    EXPECT_EQ(reader->reads, 3);
}

TEST_F(ShortcutScanTest, EndsInVeryDeepFolders) {
    std::wstring path = folder.Path();
    int made = 0;
    while (path.size() < 240 && ::CreateDirectoryW((path += L"\\d").c_str(), nullptr)) ++made;
    ASSERT_GT(made, 20);
    Put(L"a.lnk");

    EXPECT_THAT(Scanned(), ElementsAre(L"a"));
}

TEST_F(ShortcutScanTest, EndsInALoopOfFolderLinks) {
    Put(L"a.lnk");
    Put(L"sub\\b.lnk");
    ASSERT_TRUE(test::LinkFolder(folder.File(L"sub\\loop"), folder.Path()));

    const std::vector<std::wstring> names = Scanned();

    EXPECT_THAT(names, testing::Contains(L"a"));
    EXPECT_THAT(names, testing::Contains(L"b"));
}

TEST_F(ShortcutScanTest, FindsTheSameOnAThreadOfItsOwn) {
    Put(L"a.lnk");
    Put(L"x\\b.lnk");
    Put(L"x\\grey.lnk");
    ShortcutScan scan{reader};
    EXPECT_FALSE(scan.Running());

    scan.Start(folder.Path(), true);
    EXPECT_EQ(NamesOf(TakeAll(scan)), Scanned());

    EXPECT_FALSE(scan.Running());
    EXPECT_TRUE(scan.Take().empty());
}

TEST_F(ShortcutScanTest, ReadsRealShortcutsOnItsThread) {
    ASSERT_TRUE(SUCCEEDED(::CoInitialize(nullptr)));
    folder.Write(L"i.ico", test::IconFile(RGB(4, 5, 6)));
    test::WriteShortcut(folder.File(L"s.lnk"), {.target = folder.File(L"i.ico"), .arguments = L"/x"});
    ::CoUninitialize();
    ShortcutScan scan{std::make_shared<ShellShortcutReader>()};

    scan.Start(folder.Path(), true);
    const std::vector<ImportableItem> found = TakeAll(scan);

    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(found[0].selectable);
    EXPECT_EQ(found[0].arguments, L"/x");
    EXPECT_EQ(test::ColourOf(found[0].icon.Get()), RGB(4, 5, 6));
}

TEST_F(ShortcutScanTest, KeepsWhatWasFoundWhenItIsStopped) {
    for (int i = 0; i < 20; ++i) Put(base::FormatText(L"%02d.lnk", i));
    // Which one comes when is the file system's business; the scan is held in the middle.
    const std::vector<std::wstring> order = Scanned();
    ASSERT_EQ(order.size(), 20U);
    reader->hanging = {order[10]};
    ShortcutScan scan{reader, 1h};
    scan.Start(folder.Path(), true);
    std::vector<ImportableItem> found;
    ASSERT_TRUE(test::WaitUntil([&] {
        Append(found, scan.Take());
        return found.size() >= 10;
    }));

    scan.Stop();
    EXPECT_FALSE(scan.Running());
    reader->Release();
    Append(found, scan.Take());

    EXPECT_EQ(NamesOf(found), (std::vector<std::wstring>{order.begin(), order.begin() + 10}));
}

TEST_F(ShortcutScanTest, DropsTheOldScanWhenANewOneStarts) {
    Put(L"old\\a.lnk");
    Put(L"old\\b.lnk");
    Put(L"new\\c.lnk");
    reader->hanging = {L"a", L"b"};
    ShortcutScan scan{reader, 1h};
    scan.Start(folder.File(L"old"), true);
    ASSERT_TRUE(test::WaitUntil([&] { return reader->reads == 1; }));

    scan.Start(folder.File(L"new"), true);
    EXPECT_THAT(NamesOf(TakeAll(scan)), ElementsAre(L"c"));
    reader->Release();
    ASSERT_TRUE(test::WaitUntil([&] { return reader.use_count() <= 3; }));

    EXPECT_TRUE(scan.Take().empty());
    EXPECT_EQ(reader->reads, 2);
}

TEST_F(ShortcutScanTest, GoesOnPastAShortcutThatTakesTooLong) {
    for (const wchar_t* const name : {L"a.lnk", L"b.lnk", L"c.lnk"}) Put(name);
    const std::vector<std::wstring> order = Scanned();
    reader->hanging = {order[1]};
    ShortcutScan scan{reader, 50ms};

    scan.Start(folder.Path(), true);
    const std::vector<ImportableItem> found = TakeAll(scan);

    ASSERT_EQ(NamesOf(found), order);
    EXPECT_TRUE(found[0].selectable);
    EXPECT_FALSE(found[1].selectable);
    EXPECT_FALSE(found[1].icon);
    EXPECT_TRUE(found[2].selectable);
}

TEST_F(ShortcutScanTest, LeavesOnlySoManyThreadsBehind) {
    for (int i = 0; i < 20; ++i) {
        Put(base::FormatText(L"%02d.lnk", i));
        reader->hanging.insert(base::FormatText(L"%02d", i));
    }
    ShortcutScan scan{reader, 0ms};
    scan.Start(folder.Path(), true);
    std::vector<ImportableItem> found;
    ASSERT_TRUE(test::WaitUntil([&] {
        Append(found, scan.Take());
        return reader->reads == 9;
    }));

    for (int i = 0; i < 20; ++i) Append(found, scan.Take());
    EXPECT_EQ(found.size(), 8U);
    EXPECT_EQ(reader->reads, 9);
    EXPECT_TRUE(scan.Running());
    reader->Release();

    Append(found, TakeAll(scan));
    EXPECT_EQ(found.size(), 20U);
}

TEST_F(ShortcutScanTest, CanGoAwayWhileItsThreadHangs) {
    Put(L"a.lnk");
    reader->hanging = {L"a"};
    const int before = test::GdiObjectCount();
    {
        ShortcutScan scan{reader, 1h};
        scan.Start(folder.Path(), true);
        ASSERT_TRUE(test::WaitUntil([&] { return reader->reads == 1; }));
    }

    reader->Release();
    // The answer that came too late is gone with the thread, its icon too.
    EXPECT_TRUE(test::WaitUntil([&] { return reader.use_count() == 1; }));
    EXPECT_EQ(test::GdiObjectCount(), before);
}

} // namespace
