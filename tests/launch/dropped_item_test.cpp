#include "launch/dropped_item.h"

#include <gtest/gtest.h>
#include <objbase.h>
#include <shlobj.h>

#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "framework/program_path.h"
#include "framework/windows_version.h"
#include "launch/registry_texts.h"
#include "tests/launch/launch_items.h"
#include "tests/launch/system_icons.h"
#include "tests/support/fake_store.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/machine_value.h"
#include "tests/support/solid_icon.h"

using namespace korvane;
using namespace korvane::launch;

namespace {

constexpr COLORREF kRed = RGB(250, 10, 10);

// What the user last opened files of the test's type with.
class OpenedWith {
public:
    OpenedWith() { ::RegDeleteTreeW(HKEY_CURRENT_USER, kKey); }
    OpenedWith(const OpenedWith&) = delete;
    OpenedWith& operator=(const OpenedWith&) = delete;
    ~OpenedWith() { ::RegDeleteTreeW(HKEY_CURRENT_USER, kKey); }

    void Put(const wchar_t* name, const std::wstring& text, DWORD type = REG_SZ) const {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, kList, name, type, text.c_str(),
                          static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }

private:
    static constexpr const wchar_t* kKey =
        L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.korvanetest";
    static constexpr const wchar_t* kList =
        L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.korvanetest\\OpenWithList";
};

class ItemFromFileTest : public ::testing::Test {
protected:
    test::LaunchItems items;
    test::SystemIcons system;

    [[nodiscard]] std::pair<std::wstring, int> SystemIcon() const {
        return {system.File(), fw::IsWindowsAtLeast(fw::kWindows7) ? 11 : 10};
    }
    // A file of the test's own type.
    std::wstring File(std::wstring_view name = L"資料.korvanetest") {
        items.folder.Write(name, "x");
        return items.folder.File(name);
    }
    // An item is only listed with an icon that can be got again.
    static void ExpectListed(const CLaunchItem& item) {
        test::FakeStore store;
        const CLaunchItem* const list[] = {&item};
        EXPECT_TRUE(SaveList(store, list));
        CLaunchItem again;
        EXPECT_TRUE(again.Load(store, 0, true));
        EXPECT_EQ(again.Format(), item.Format());
    }
};

TEST_F(ItemFromFileTest, NamesAProgramByItsDescription) {
    // The tests have the program's own resources.
    const std::wstring program = fw::ProgramPath().value();

    const CLaunchItem item = ItemFromFile(program);

    EXPECT_EQ(item.Path(), program);
    EXPECT_EQ(item.Name(), L"Korvane");
    EXPECT_EQ(item.Arguments(), L"");
    EXPECT_EQ(item.WorkingFolder(), L"");
    EXPECT_EQ(item.GetIconLocation(), (std::pair{program, 0}));
    EXPECT_NE(item.Icon(), nullptr);
    ExpectListed(item);
}

TEST_F(ItemFromFileTest, GivesAProgramWithoutAnIconTheSystems) {
    for (const wchar_t* const name : {L"a.bat", L"b.COM", L"c.Exe"}) {
        const CLaunchItem item = ItemFromFile(File(name));

        EXPECT_EQ(item.Name(), name);
        EXPECT_EQ(item.GetIconLocation(), SystemIcon());
        EXPECT_EQ(test::ColourOf(item.Icon()), test::SystemIcons::ColourOf(SystemIcon().second));
        ExpectListed(item);
    }
}

TEST_F(ItemFromFileTest, GivesAFileTheIconOfItsType) {
    const std::wstring icon = items.Icon(L"type.ico", kRed);
    const test::MachineValue extension{L"Software\\Classes\\.korvanetest", L"", std::wstring{L"korvanetestfile"}};
    const test::MachineValue type{L"Software\\Classes\\korvanetestfile\\DefaultIcon", L"", L"\"" + icon + L"\",0"};

    const CLaunchItem item = ItemFromFile(File());

    EXPECT_EQ(item.Name(), L"資料.korvanetest");
    EXPECT_EQ(item.GetIconLocation(), (std::pair{icon, 0}));
    EXPECT_EQ(test::ColourOf(item.Icon()), kRed);
    ExpectListed(item);
}

TEST_F(ItemFromFileTest, ReplacesTheVariablesInTheIconOfAType) {
    (void)items.Icon(L"type.ico", kRed);
    ::SetEnvironmentVariableW(L"KORVANE_TEST_FOLDER", items.folder.Path().c_str());
    for (const DWORD kind : {DWORD{REG_SZ}, DWORD{REG_EXPAND_SZ}}) {
        const test::MachineValue icon{L"Software\\Classes\\.korvanetest\\DefaultIcon", L"",
                                      std::wstring{L"%KORVANE_TEST_FOLDER%\\type.ico,0"}, kind};

        EXPECT_EQ(ItemFromFile(File()).GetIconLocation(), (std::pair{items.folder.File(L"type.ico"), 0}));
    }
    ::SetEnvironmentVariableW(L"KORVANE_TEST_FOLDER", nullptr);
}

TEST_F(ItemFromFileTest, TakesAnIconByItsResource) {
    items.folder.Write(L"type.dll", test::IconLibrary{std::vector<COLORREF>{RGB(1, 1, 1), kRed}, 101}.Bytes());
    const test::MachineValue icon{L"Software\\Classes\\.korvanetest\\DefaultIcon", L"",
                                  items.folder.File(L"type.dll") + L",-102"};

    const CLaunchItem item = ItemFromFile(File());

    EXPECT_EQ(item.GetIconLocation(), (std::pair{items.folder.File(L"type.dll"), -102}));
    EXPECT_EQ(test::ColourOf(item.Icon()), kRed);
    ExpectListed(item);
}

TEST_F(ItemFromFileTest, GivesAnIconFileItself) {
    const test::MachineValue type{L"Software\\Classes\\.ico\\DefaultIcon", L"", std::wstring{L"%1"}};
    const std::wstring icon = items.Icon(L"own.ico", kRed);

    EXPECT_EQ(ItemFromFile(icon).GetIconLocation(), (std::pair{icon, 0}));
}

TEST_F(ItemFromFileTest, GivesAFileTheIconOfTheProgramThatLastOpenedIt) {
    const std::wstring icon = items.Icon(L"opener.ico", kRed);
    const OpenedWith opened;
    opened.Put(L"MRUList", L"ba");
    opened.Put(L"a", items.Icon(L"older.ico", RGB(1, 2, 3)));
    opened.Put(L"b", icon);

    EXPECT_EQ(ItemFromFile(File()).GetIconLocation(), (std::pair{icon, 0}));
}

TEST_F(ItemFromFileTest, GoesOnWhereAnIconCannotBeGot) {
    const std::wstring icon = items.Icon(L"opener.ico", kRed);
    const test::MachineValue type{L"Software\\Classes\\.korvanetest\\DefaultIcon", L"",
                                  items.folder.File(L"gone.dll") + L",3"};
    const OpenedWith opened;
    opened.Put(L"MRUList", L"abc");
    opened.Put(L"a", items.folder.File(L"gone.exe"));
    opened.Put(L"c", icon);

    EXPECT_EQ(ItemFromFile(File()).GetIconLocation(), (std::pair{icon, 0}));
}

TEST_F(ItemFromFileTest, FindsAnOpenerOnTheSearchPath) {
    const OpenedWith opened;
    opened.Put(L"MRUList", L"a");
    opened.Put(L"a", L"notepad.exe");

    const auto [file, index] = ItemFromFile(File()).GetIconLocation();

    EXPECT_TRUE(file.ends_with(L"\\notepad.exe"));
    EXPECT_EQ(index, 0);
}

TEST_F(ItemFromFileTest, TakesValuesOfAWrongTypeForMissing) {
    const std::vector<std::byte> number{std::byte{1}, std::byte{2}, std::byte{3}, std::byte{4}};
    const test::MachineValue type{L"Software\\Classes\\.korvanetest\\DefaultIcon", L"", REG_DWORD, number};
    const OpenedWith opened;
    opened.Put(L"MRUList", L"a", REG_BINARY);
    opened.Put(L"a", L"notepad.exe");

    EXPECT_EQ(ItemFromFile(File()).GetIconLocation(), SystemIcon());
}

TEST_F(ItemFromFileTest, ReadsATextThatDoesNotEnd) {
    const std::wstring icon = items.Icon(L"type.ico", kRed);
    const test::MachineValue type{L"Software\\Classes\\.korvanetest\\DefaultIcon", L"", REG_SZ,
                                  std::as_bytes(std::span{icon})};

    EXPECT_EQ(ItemFromFile(File()).GetIconLocation(), (std::pair{icon, 0}));
}

TEST_F(ItemFromFileTest, GivesAFileOfUnknownTypeTheSystemsIcon) {
    for (const wchar_t* const name : {L"noextension", L"x.korvanetest", L"dot."}) {
        const CLaunchItem item = ItemFromFile(File(name));

        EXPECT_NE(item.Icon(), nullptr);
        EXPECT_NE(item.Name(), L"");
    }
    EXPECT_EQ(ItemFromFile(File()).GetIconLocation(), SystemIcon());
}

TEST_F(ItemFromFileTest, GivesAFolderTheIconOfFolders) {
    const std::wstring icon = items.Icon(L"folder.ico", kRed);
    const test::MachineValue type{L"Software\\Classes\\Folder\\DefaultIcon", L"", icon + L",0"};
    const std::wstring folder = items.folder.File(L"tools.exe");
    ASSERT_TRUE(::CreateDirectoryW(folder.c_str(), nullptr));

    const CLaunchItem item = ItemFromFile(folder);

    EXPECT_EQ(item.Path(), folder);
    EXPECT_EQ(item.Name(), L"tools.exe");
    EXPECT_EQ(item.GetIconLocation(), (std::pair{icon, 0}));
    ExpectListed(item);
}

TEST_F(ItemFromFileTest, GivesADriveTheIconOfDrives) {
    const std::wstring icon = items.Icon(L"drive.ico", kRed);
    const test::MachineValue type{L"Software\\Classes\\Drive\\DefaultIcon", L"", icon};

    const CLaunchItem item = ItemFromFile(L"C:\\");

    EXPECT_EQ(item.Name(), L"C:\\");
    EXPECT_EQ(item.GetIconLocation(), (std::pair{icon, 0}));
}

TEST_F(ItemFromFileTest, LeavesAShortcutAShortcut) {
    const CLaunchItem item = ItemFromFile(File(L"メモ帳.lnk"));

    EXPECT_EQ(item.Path(), items.folder.File(L"メモ帳.lnk"));
    EXPECT_EQ(item.Name(), L"メモ帳");
    EXPECT_NE(item.Icon(), nullptr);
    ExpectListed(item);
}

class ShortcutIconTest : public ItemFromFileTest {
protected:
    void SetUp() override { ASSERT_TRUE(SUCCEEDED(::CoInitialize(nullptr))); }
    void TearDown() override { ::CoUninitialize(); }

    // A shortcut file; without an icon of its own it looks like its target.
    [[nodiscard]] std::wstring Shortcut(const std::wstring& target, const std::wstring& icon, int index) const {
        const std::wstring file = items.folder.File(L"近道.lnk");
        IShellLinkW* link = nullptr;
        IPersistFile* persist = nullptr;
        EXPECT_TRUE(SUCCEEDED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                                 reinterpret_cast<void**>(&link))));
        EXPECT_TRUE(SUCCEEDED(link->SetPath(target.c_str())));
        if (!icon.empty()) {
            EXPECT_TRUE(SUCCEEDED(link->SetIconLocation(icon.c_str(), index)));
        }
        EXPECT_TRUE(SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&persist))));
        EXPECT_TRUE(SUCCEEDED(persist->Save(file.c_str(), TRUE)));
        persist->Release();
        link->Release();
        return file;
    }
};

TEST_F(ShortcutIconTest, IsTheOneThatTheShortcutNames) {
    const std::wstring icon = items.Icon(L"own.ico", kRed);
    const std::wstring file = Shortcut(fw::ProgramPath().value(), icon, 0);

    const CLaunchItem item = ItemFromFile(file);

    EXPECT_EQ(item.Path(), file);
    EXPECT_EQ(item.Name(), L"近道");
    EXPECT_EQ(item.GetIconLocation(), (std::pair{icon, 0}));
    ExpectListed(item);
}

TEST_F(ShortcutIconTest, IsThatOfTheTargetOtherwise) {
    const std::wstring program = fw::ProgramPath().value();

    EXPECT_EQ(ItemFromFile(Shortcut(program, {}, 0)).GetIconLocation(), (std::pair{program, 0}));
}

TEST_F(ShortcutIconTest, IsTheSystemsForABrokenShortcut) {
    const CLaunchItem item = ItemFromFile(Shortcut(L"C:\\gone\\gone.exe", {}, 0));

    EXPECT_EQ(item.Name(), L"近道");
    EXPECT_EQ(item.GetIconLocation(), SystemIcon());
    ExpectListed(item);
}

TEST_F(ItemFromFileTest, MakesAnItemOfAFileThatHasGone) {
    const CLaunchItem item = ItemFromFile(items.folder.File(L"gone.korvanetest"));

    EXPECT_EQ(item.Name(), L"gone.korvanetest");
    EXPECT_EQ(item.GetIconLocation(), SystemIcon());
    ExpectListed(item);
}

TEST_F(ItemFromFileTest, MakesItemsOfPathsOfAnyLength) {
    for (const std::size_t length : {std::size_t{250}, std::size_t{260}, std::size_t{5000}}) {
        const std::wstring path = L"C:\\" + std::wstring(length, L'f') + L".exe";

        const CLaunchItem item = ItemFromFile(path);

        EXPECT_EQ(item.Path(), path);
        EXPECT_EQ(item.GetIconLocation(), SystemIcon());
    }
    EXPECT_NE(ItemFromFile(L"").Icon(), nullptr);
}

TEST_F(ItemFromFileTest, PutsNoAmpersandIntoAName) {
    EXPECT_EQ(ItemFromFile(File(L"Q&A.korvanetest")).Name(), L"Q＆A.korvanetest");
}

TEST_F(ItemFromFileTest, LeaksNothing) {
    const std::wstring file = File();
    (void)ItemFromFile(file);
    const int before = test::GdiObjectCount();

    for (int i = 0; i < 20; ++i) (void)ItemFromFile(file);

    EXPECT_EQ(test::GdiObjectCount(), before);
}

TEST(ItemFromFileWithoutSystemIcons, TakesThisProgramsIconInTheEnd) {
    const test::NoSystemIcons none;
    const test::TempFolder folder;
    folder.Write(L"x.bat", "rem");

    const CLaunchItem item = ItemFromFile(folder.File(L"x.bat"));

    EXPECT_EQ(item.GetIconLocation(), (std::pair{fw::ProgramPath().value(), 0}));
    EXPECT_NE(item.Icon(), nullptr);
}

TEST(RegistryTextsOfWindows, AreEmptyWhereThereIsNone) {
    const WinRegistryTexts registry;

    EXPECT_EQ(registry.Text(RegistryTexts::Root::kClasses, L"no such key of Korvane", L""), L"");
    EXPECT_EQ(registry.Text(RegistryTexts::Root::kUser, L"Software", L"no such value of Korvane"), L"");
    EXPECT_EQ(registry.Text(RegistryTexts::Root::kMachine, std::wstring(10'000, L'k'), L""), L"");
}

TEST(RegistryTextsOfWindows, HaveAnyLength) {
    const std::wstring text(20'000, L't');
    const test::MachineValue value{L"Software\\KorvaneTest", L"long", text};

    EXPECT_EQ(WinRegistryTexts{}.Text(RegistryTexts::Root::kMachine, L"Software\\KorvaneTest", L"long"), text);
}

} // namespace
