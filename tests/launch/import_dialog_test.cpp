#include "launch/import_dialog.h"

#include <gmock/gmock.h>

#include <lmcons.h>
#include <objbase.h>
#include <shlobj.h>

#include <array>
#include <filesystem>

#include "base/format_text.h"
#include "framework/string_table.h"
#include "framework/window_text.h"
#include "tests/support/dialog_walk.h"
#include "tests/support/fake_help.h"
#include "tests/support/fake_shortcut_reader.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/icon_file.h"
#include "tests/support/shell_folder.h"
#include "tests/support/shortcut_file.h"
#include "tests/support/temp_folder.h"
#include "tests/support/wait.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::launch;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

constexpr wchar_t kPrograms[] = L"programs";
constexpr wchar_t kCommon[] = L"common";
constexpr wchar_t kData[] = L"data";
constexpr wchar_t kQuick[] = L"data\\Microsoft\\Internet Explorer\\Quick Launch\\";

// What is done with a folder browser as soon as it is there: chooses a folder, or cancels when that is empty.
std::wstring g_browserChoice;
std::wstring g_browserTexts;
int g_browserTicks = 0;
int g_browsers = 0;

BOOL CALLBACK NoteText(HWND child, LPARAM) {
    g_browserTexts += fw::WindowText(child) + L"\n";
    return TRUE;
}

BOOL CALLBACK FindBrowser(HWND window, LPARAM found) {
    if (fw::WindowText(window) != fw::LoadText(IDS_BROWSE_FOLDER_TITLE)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

void CALLBACK AnswerBrowser(HWND, UINT, UINT_PTR, DWORD) {
    HWND browser = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &FindBrowser, reinterpret_cast<LPARAM>(&browser));
    if (!browser || !::IsWindowVisible(browser)) return;
    // Its tree is filled while it is already there, and a folder that is not yet in it cannot be chosen.
    constexpr int kTicksToFill = 5;
    if (++g_browserTicks == 1) ++g_browsers;
    if (g_browserTicks <= kTicksToFill) {
        if (!g_browserChoice.empty())
            ::SendMessageW(browser, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(g_browserChoice.c_str()));
        return;
    }
    ::EnumChildWindows(browser, &NoteText, 0);
    ::PostMessageW(browser, WM_COMMAND, g_browserChoice.empty() ? IDCANCEL : IDOK, 0);
}

class ImportDialog : public test::WindowTest {
protected:
    test::TempFolder folder;
    test::ShellFolder programs{HKEY_CURRENT_USER, L"Programs", folder.File(kPrograms)};
    test::ShellFolder data{HKEY_CURRENT_USER, L"AppData", folder.File(kData)};
    test::ShellFolder common{HKEY_LOCAL_MACHINE, L"Common Programs", folder.File(kCommon)};
    test::FakeHelp help;
    std::shared_ptr<test::FakeShortcutReader> reader = std::make_shared<test::FakeShortcutReader>();
    std::unique_ptr<CImportDialog> dialog;
    fw::UniqueIcon icon = test::SolidIcon(RGB(1, 2, 3));
    UINT_PTR browserTimer = 0;

    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(SUCCEEDED(::CoInitialize(nullptr)));
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_USEREX_CLASSES};
        ::InitCommonControlsEx(&controls);
        for (const wchar_t* const name : {kPrograms, kCommon, kQuick})
            std::filesystem::create_directories(folder.File(name));
        g_browserChoice.clear();
        g_browserTexts.clear();
        g_browsers = 0;
    }
    void TearDown() override {
        if (browserTimer) ::KillTimer(nullptr, browserTimer);
        dialog.reset();
        reader->Release();
        EXPECT_TRUE(test::WaitUntil([&] { return reader.use_count() == 1; }));
        ::CoUninitialize();
    }

    void Put(const std::wstring& name) const {
        const std::filesystem::path path{folder.File(name)};
        std::filesystem::create_directories(path.parent_path());
        folder.Write(name, "x");
    }
    void Open(int count = 3) {
        dialog = std::make_unique<CImportDialog>(count, icon.Get(), help, reader);
        ASSERT_TRUE(dialog->Create(Host()));
    }
    // Opens and waits until the first source is scanned.
    void OpenAndSettle(int count = 3) {
        Open(count);
        Settle();
    }
    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(dialog->Handle(), id); }
    [[nodiscard]] std::wstring Text(int id) const { return fw::WindowText(Control(id)); }
    [[nodiscard]] bool Shown(int id) const { return (::GetWindowLongPtrW(Control(id), GWL_STYLE) & WS_VISIBLE) != 0; }
    void Command(int id) { Send(dialog->Handle(), WM_COMMAND, static_cast<WPARAM>(id)); }
    // The period by which the dialog looks after its scan.
    void Tick() { Send(dialog->Handle(), WM_TIMER, 1); }
    [[nodiscard]] bool Scanning() const { return Shown(IDC_IMPORT_STOP); }
    void Settle() {
        ASSERT_TRUE(test::WaitUntil([&] { return Tick(), !Scanning(); }));
    }
    void WaitForRows(int count) {
        ASSERT_TRUE(test::WaitUntil([&] { return Tick(), Send(Control(IDC_IMPORT_LIST), LB_GETCOUNT) >= count; }));
    }
    [[nodiscard]] std::wstring RowText(int row) const {
        const HWND list = Control(IDC_IMPORT_LIST);
        const auto at = static_cast<WPARAM>(row);
        std::wstring text(static_cast<std::size_t>(Send(list, LB_GETTEXTLEN, at)), L'\0');
        Send(list, LB_GETTEXT, at, reinterpret_cast<LPARAM>(text.data()));
        return text;
    }
    [[nodiscard]] std::vector<std::wstring> Rows() const {
        std::vector<std::wstring> rows;
        for (int i = 0; i < Send(Control(IDC_IMPORT_LIST), LB_GETCOUNT); ++i) rows.push_back(RowText(i));
        return rows;
    }
    void SelectRow(const std::wstring& name) {
        const std::vector<std::wstring> rows = Rows();
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (rows[i] == name) Send(Control(IDC_IMPORT_LIST), LB_SETSEL, TRUE, static_cast<LPARAM>(i));
    }
    [[nodiscard]] int Source() const { return static_cast<int>(Send(Control(IDC_IMPORT_SOURCE), CB_GETCURSEL)); }
    [[nodiscard]] std::vector<std::wstring> Sources() const {
        const HWND combo = Control(IDC_IMPORT_SOURCE);
        std::vector<std::wstring> texts;
        for (LRESULT i = 0; i < Send(combo, CB_GETCOUNT); ++i) {
            std::array<wchar_t, 300> text{};
            COMBOBOXEXITEMW item{};
            item.mask = CBEIF_TEXT;
            item.iItem = static_cast<INT_PTR>(i);
            item.pszText = text.data();
            item.cchTextMax = static_cast<int>(text.size());
            Send(combo, CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
            texts.emplace_back(item.pszText);
        }
        return texts;
    }
    void Choose(int source) {
        Send(Control(IDC_IMPORT_SOURCE), CB_SETCURSEL, static_cast<WPARAM>(source));
        Send(dialog->Handle(), WM_COMMAND, MAKEWPARAM(IDC_IMPORT_SOURCE, CBN_SELCHANGE),
             reinterpret_cast<LPARAM>(Control(IDC_IMPORT_SOURCE)));
    }
    // Answers the folder browser that choosing the last fixed source opens.
    void ChooseElsewhere(const std::wstring& chosenFolder) {
        g_browserChoice = chosenFolder;
        g_browserTicks = 0;
        if (!browserTimer) browserTimer = ::SetTimer(nullptr, 0, 50, &AnswerBrowser);
        Choose(3);
    }
    [[nodiscard]] static std::wstring Counts(int selected, int all, int places) {
        return base::FormatText(L"選択アイテム数: %d (全アイテム数: %d, 選択可能アイテム数: %d)", selected, all,
                                places);
    }
};

TEST_F(ImportDialog, NamesItsControls) {
    Open();

    EXPECT_EQ(fw::WindowText(dialog->Handle()), L"ランチ メニューへのインポート");
    EXPECT_EQ(Text(IDOK), L"OK");
    EXPECT_EQ(Text(IDCANCEL), L"キャンセル");
    EXPECT_EQ(Text(1009), L"ヘルプ");
    EXPECT_EQ(Text(IDC_IMPORT_STOP), L"中止(&S)");
    const auto labelOf = [&](int id) { return fw::WindowText(::GetWindow(Control(id), GW_HWNDPREV)); };
    EXPECT_EQ(labelOf(1045), L"インポート元(&P):");
    EXPECT_EQ(labelOf(1057), L"インポート可能なアイテムの一覧(&L):");
}

TEST_F(ImportDialog, GivesNoAccessKeyTwice) {
    Open();

    EXPECT_EQ(test::AccessKeys(dialog->Handle()), L"LPS");
}

TEST_F(ImportDialog, IsWalkedThroughInTheOrderOfItsControls) {
    Put(L"programs\\a.lnk");
    reader->hanging = {L"a"};
    Open();
    ASSERT_TRUE(Scanning());
    // Hidden with its owner, the dialog's controls count as shown once it is.
    std::vector<int> order;
    for (HWND child = ::GetWindow(dialog->Handle(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (::GetWindowLongPtrW(child, GWL_STYLE) & WS_TABSTOP) order.push_back(::GetDlgCtrlID(child));

    EXPECT_THAT(order, ElementsAre(1045, 1057, IDC_IMPORT_STOP, IDOK, IDCANCEL, 1009));
}

TEST_F(ImportDialog, HasTheSmallIconThatItIsGiven) {
    Open();

    EXPECT_EQ(reinterpret_cast<HICON>(Send(dialog->Handle(), WM_GETICON, ICON_SMALL)), icon.Get());
}

TEST_F(ImportDialog, OffersItsSourcesInTheirOrder) {
    std::array<wchar_t, UNLEN + 1> user{};
    auto length = static_cast<DWORD>(user.size());
    ASSERT_TRUE(::GetUserNameW(user.data(), &length));
    Open();

    EXPECT_THAT(Sources(), ElementsAre(L"スタートメニュー (" + std::wstring{user.data()} + L")",
                                       L"スタートメニュー (すべてのユーザー)", L"クイック 起動", L"その他の場所..."));
    EXPECT_EQ(Source(), 0);
}

TEST_F(ImportDialog, ScansTheUsersStartMenuWhenItOpens) {
    Put(L"programs\\a.lnk");
    Put(L"programs\\tools\\B.LNK");
    Put(L"programs\\tools\\c.txt");

    OpenAndSettle();

    EXPECT_THAT(Rows(), UnorderedElementsAre(L"a", L"B"));
    EXPECT_EQ(Text(1048), Counts(0, 2, 35));
}

TEST_F(ImportDialog, SaysWhenThereIsNothingToImport) {
    Put(L"programs\\grey.lnk");
    OpenAndSettle();

    EXPECT_TRUE(Shown(IDC_IMPORT_PROGRESS));
    EXPECT_EQ(Text(IDC_IMPORT_PROGRESS), L"インポートできるショートカットはありません。");
    EXPECT_FALSE(::IsWindowEnabled(Control(IDOK)));
    EXPECT_FALSE(Shown(IDC_IMPORT_STOP));

    // As Enter does.
    Command(IDOK);
    EXPECT_FALSE(dialog->Confirmed());
}

TEST_F(ImportDialog, TakesThatBackForASourceThatHasSomething) {
    Put(L"common\\a.lnk");
    OpenAndSettle();
    EXPECT_FALSE(::IsWindowEnabled(Control(IDOK)));

    Choose(1);
    Settle();

    EXPECT_FALSE(Shown(IDC_IMPORT_PROGRESS));
    EXPECT_TRUE(::IsWindowEnabled(Control(IDOK)));
}

TEST_F(ImportDialog, HasRoomForWhatItSaysOfNothing) {
    OpenAndSettle();

    const HWND note = Control(IDC_IMPORT_PROGRESS);
    const fw::WindowDc dc{note};
    const fw::SelectedObject font{dc.Get(), reinterpret_cast<HFONT>(Send(note, WM_GETFONT))};
    const std::wstring text = fw::WindowText(note);
    SIZE needed{};
    ASSERT_TRUE(::GetTextExtentPoint32W(dc.Get(), text.c_str(), static_cast<int>(text.size()), &needed));
    EXPECT_LE(needed.cx * 6 / 5, fw::WindowRect(note).Width());
}

TEST_F(ImportDialog, ScansTheStartMenuOfAllUsers) {
    Put(L"programs\\mine.lnk");
    Put(L"common\\a.lnk");
    Put(L"common\\x\\b.lnk");
    OpenAndSettle();

    Choose(1);
    Settle();

    EXPECT_THAT(Rows(), UnorderedElementsAre(L"a", L"b"));
}

TEST_F(ImportDialog, ListsOfQuickLaunchOnlyWhatIsDirectlyInIt) {
    Put(std::wstring{kQuick} + L"a.lnk");
    Put(std::wstring{kQuick} + L"User Pinned\\b.lnk");
    OpenAndSettle();

    Choose(2);
    Settle();

    EXPECT_THAT(Rows(), ElementsAre(L"a"));
}

TEST_F(ImportDialog, ShowsAnEmptyListForAnEmptyFolder) {
    OpenAndSettle(10);

    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(Text(1048), Counts(0, 0, 28));
}

TEST_F(ImportDialog, KeepsTheSourceWhenAFolderCannotBeGot) {
    Put(L"programs\\a.lnk");
    OpenAndSettle();
    common.MoveTo(folder.File(L"no such folder"));

    Choose(1);

    EXPECT_EQ(Source(), 0);
    EXPECT_THAT(Rows(), ElementsAre(L"a"));
    EXPECT_FALSE(Scanning());
}

TEST_F(ImportDialog, OpensWithAnEmptyListWhenThereIsNoStartMenu) {
    programs.MoveTo(folder.File(L"no such folder"));
    Open();

    EXPECT_FALSE(Scanning());
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(Text(1048), Counts(0, 0, 35));
    Put(L"common\\a.lnk");
    Choose(1);
    Settle();
    EXPECT_THAT(Rows(), ElementsAre(L"a"));
}

TEST_F(ImportDialog, DoesNothingWhenTheSameSourceIsChosenAgain) {
    Put(L"programs\\a.lnk");
    OpenAndSettle();
    SelectRow(L"a");
    Put(L"programs\\b.lnk");

    Choose(0);

    EXPECT_FALSE(Scanning());
    EXPECT_THAT(Rows(), ElementsAre(L"a"));
    EXPECT_EQ(Text(1048), Counts(1, 1, 35));
}

TEST_F(ImportDialog, KeepsSourceAndListWhenNoOtherFolderIsChosen) {
    Put(std::wstring{kQuick} + L"a.lnk");
    OpenAndSettle();
    Choose(2);
    Settle();
    SelectRow(L"a");

    ChooseElsewhere(L"");

    EXPECT_EQ(g_browsers, 1);
    EXPECT_NE(g_browserTexts.find(
                  L"インポート元となるフォルダを指定します。指定したフォルダのサブフォルダも対象となります。"),
              std::wstring::npos);
    EXPECT_EQ(Source(), 2);
    EXPECT_EQ(Sources().size(), 4U);
    EXPECT_THAT(Rows(), ElementsAre(L"a"));
    EXPECT_EQ(Text(1048), Counts(1, 1, 35));
}

TEST_F(ImportDialog, AddsAFolderThatIsChosenElsewhere) {
    Put(L"else\\a.lnk");
    Put(L"else\\x\\b.lnk");
    Put(L"programs\\mine.lnk");
    OpenAndSettle();

    ChooseElsewhere(folder.File(L"else"));
    Settle();

    EXPECT_EQ(Source(), 4);
    ASSERT_EQ(Sources().size(), 5U);
    EXPECT_EQ(Sources()[4], folder.File(L"else"));
    EXPECT_THAT(Rows(), UnorderedElementsAre(L"a", L"b"));
}

TEST_F(ImportDialog, ScansAFolderThatWasChosenBeforeAgain) {
    Put(L"else\\a.lnk");
    Put(L"programs\\mine.lnk");
    OpenAndSettle();
    ChooseElsewhere(folder.File(L"else"));
    Settle();
    Choose(0);
    Settle();
    ASSERT_THAT(Rows(), ElementsAre(L"mine"));

    Choose(4);
    Settle();

    EXPECT_THAT(Rows(), ElementsAre(L"a"));
    EXPECT_EQ(g_browsers, 1);
    ChooseElsewhere(L"");
    EXPECT_EQ(Source(), 4);
}

TEST_F(ImportDialog, WaitsUntilTheListOfSourcesIsClosed) {
    Put(L"common\\a.lnk");
    OpenAndSettle();
    const HWND combo = Control(IDC_IMPORT_SOURCE);
    ::ShowWindow(Host(), SW_SHOWNOACTIVATE);
    ::ShowWindow(dialog->Handle(), SW_SHOWNOACTIVATE);
    Send(combo, CB_SHOWDROPDOWN, TRUE);
    ASSERT_TRUE(Send(combo, CB_GETDROPPEDSTATE));

    // With the arrow keys past the row that would ask for a folder, and back.
    Choose(3);
    Choose(1);
    EXPECT_EQ(g_browsers, 0);
    EXPECT_THAT(Rows(), IsEmpty());
    Send(combo, CB_SHOWDROPDOWN, FALSE);
    Pump();
    Settle();

    EXPECT_THAT(Rows(), ElementsAre(L"a"));
}

TEST_F(ImportDialog, GivesBackWhatIsSelectedInTheOrderOfItsList) {
    ASSERT_TRUE(SUCCEEDED(::CoInitialize(nullptr)));
    const std::wstring iconFile = folder.File(L"i.ico");
    folder.Write(L"i.ico", test::IconFile(RGB(9, 8, 200)));
    folder.Write(L"t.exe", "x");
    for (const wchar_t* const name : {L"one", L"two", L"three"})
        test::WriteShortcut(folder.File(std::wstring{L"programs\\"} + name + L".lnk"),
                            {.target = folder.File(L"t.exe"),
                             .arguments = std::wstring{L"/"} + name,
                             .workingFolder = L"C:\\windows",
                             .iconFile = iconFile});
    ::CoUninitialize();
    dialog = std::make_unique<CImportDialog>(3, icon.Get(), help);
    ASSERT_TRUE(dialog->Create(Host()));
    Settle();
    const std::vector<std::wstring> rows = Rows();
    ASSERT_EQ(rows.size(), 3U);
    SelectRow(rows[2]);
    SelectRow(rows[0]);

    Command(IDOK);
    const std::vector<CLaunchItem> items = dialog->TakeItems();

    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].Name(), rows[0]);
    EXPECT_EQ(items[0].Path(), folder.File(L"t.exe"));
    EXPECT_EQ(items[0].Arguments(), L"/" + rows[0]);
    EXPECT_EQ(items[0].WorkingFolder(), L"C:\\windows");
    EXPECT_EQ(items[0].GetIconLocation(), (std::pair{iconFile, 0}));
    EXPECT_EQ(test::ColourOf(items[0].Icon()), RGB(9, 8, 200));
    EXPECT_EQ(items[1].Name(), rows[2]);
    EXPECT_TRUE(dialog->Confirmed());
    EXPECT_TRUE(dialog->TakeItems().empty());
}

// The reader names files that there are not, and gives icons all the same.
TEST_F(ImportDialog, GivesBackTheIconsOfItsListWithoutAskingTheirFilesAgain) {
    Put(L"programs\\a.lnk");
    OpenAndSettle();
    SelectRow(L"a");

    Command(IDOK);
    const std::vector<CLaunchItem> items = dialog->TakeItems();

    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(test::ColourOf(items[0].Icon()), RGB(200, 60, 20));
    EXPECT_EQ(items[0].GetIconLocation(), (std::pair<std::wstring, int>{L"C:\\a.ico", 3}));
}

TEST_F(ImportDialog, GivesNothingBackWhenNothingIsSelected) {
    Put(L"programs\\a.lnk");
    OpenAndSettle();

    Command(IDOK);

    EXPECT_TRUE(dialog->TakeItems().empty());
}

TEST_F(ImportDialog, GivesNothingBackWhenItIsCancelled) {
    Put(L"programs\\a.lnk");
    OpenAndSettle();
    SelectRow(L"a");

    Command(IDCANCEL);

    EXPECT_FALSE(dialog->Confirmed());
    EXPECT_TRUE(dialog->TakeItems().empty());
}

TEST_F(ImportDialog, CountsWhatIsSelected) {
    Put(L"programs\\a.lnk");
    Put(L"programs\\b.lnk");
    Put(L"programs\\grey.lnk");
    OpenAndSettle(36);
    EXPECT_EQ(Text(1048), Counts(0, 3, 2));

    SelectRow(L"a");
    EXPECT_EQ(Text(1048), Counts(1, 3, 2));
    SelectRow(L"grey");
    EXPECT_EQ(Text(1048), Counts(1, 3, 2));
    SelectRow(L"b");
    EXPECT_EQ(Text(1048), Counts(2, 3, 2));
}

TEST_F(ImportDialog, TakesNoMoreThanTheLaunchMenuHasPlacesFor) {
    for (int i = 0; i < 5; ++i) Put(base::FormatText(L"programs\\%d.lnk", i));
    OpenAndSettle(36);

    Send(Control(IDC_IMPORT_LIST), LB_SETSEL, TRUE, -1);
    EXPECT_EQ(Text(1048), Counts(2, 5, 2));
    Command(IDOK);

    EXPECT_EQ(dialog->TakeItems().size(), 2U);
}

TEST_F(ImportDialog, TakesNothingWhenTheLaunchMenuIsFull) {
    Put(L"programs\\a.lnk");
    OpenAndSettle(38);

    SelectRow(L"a");

    EXPECT_EQ(Text(1048), Counts(0, 1, 0));
}

TEST_F(ImportDialog, ShowsWhatIsFoundWhileItIsStillSearching) {
    Put(L"programs\\a.lnk");
    Put(L"programs\\b.lnk");
    Open();
    Settle();
    const std::vector<std::wstring> order = Rows();
    reader->hanging = {order[1]};
    Choose(1);
    Settle();

    Choose(0);
    WaitForRows(1);

    EXPECT_THAT(Rows(), ElementsAre(order[0]));
    EXPECT_TRUE(Scanning());
    EXPECT_TRUE(Shown(IDC_IMPORT_PROGRESS));
    EXPECT_EQ(Text(IDC_IMPORT_PROGRESS), L"検索しています... 1 個");
    EXPECT_EQ(Text(1048), Counts(0, 1, 35));
    // What is there can be selected meanwhile, and stays so.
    SelectRow(order[0]);
    reader->Release();
    Settle();
    EXPECT_EQ(Rows(), order);
    EXPECT_EQ(Text(1048), Counts(1, 2, 35));
    EXPECT_FALSE(Shown(IDC_IMPORT_PROGRESS));
    EXPECT_FALSE(Shown(IDC_IMPORT_STOP));
}

TEST_F(ImportDialog, StopsInTheMidstOfTwoThousandAndKeepsWhatWasFound) {
    for (int i = 0; i < 2000; ++i) {
        const std::wstring file = folder.File(base::FormatText(L"programs\\%04d.lnk", i));
        ::CloseHandle(::CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
    }
    reader->givesIcons = false;
    std::vector<std::wstring> order;
    ScanShortcuts(folder.File(kPrograms), true, *reader,
                  [&](const ImportableItem& item) { return order.push_back(item.name), true; });
    reader->hanging = {order[1000]};
    Open();
    WaitForRows(1000);

    Command(IDC_IMPORT_STOP);

    EXPECT_FALSE(Scanning());
    EXPECT_EQ(Text(1048), Counts(0, 1000, 35));
    reader->Release();
    Tick();
    EXPECT_EQ(Rows().size(), 1000U);
    SelectRow(order[999]);
    EXPECT_EQ(Text(1048), Counts(1, 1000, 35));
}

TEST_F(ImportDialog, ClosesAtOnceWhileAShortcutHangs) {
    Put(L"programs\\a.lnk");
    reader->hanging = {L"a"};
    for (const int button : {IDCANCEL, IDOK}) {
        const int before = reader->reads;
        Open();
        ASSERT_TRUE(test::WaitUntil([&] { return reader->reads == before + 1; }));

        Command(button);
        dialog.reset();

        // The thread still hangs, and holds what it needs.
        EXPECT_GT(reader.use_count(), 1);
    }
}

TEST_F(ImportDialog, StartsAnewWhenTheSourceChangesWhileItSearches) {
    Put(L"programs\\a.lnk");
    Put(L"common\\b.lnk");
    reader->hanging = {L"a"};
    Open();
    ASSERT_TRUE(test::WaitUntil([&] { return reader->reads == 1; }));

    Choose(1);
    Settle();
    reader->Release();
    ASSERT_TRUE(test::WaitUntil([&] { return reader.use_count() <= 3; }));
    Tick();

    EXPECT_THAT(Rows(), ElementsAre(L"b"));
    EXPECT_EQ(Source(), 1);
}

TEST_F(ImportDialog, HasRowsThatHoldTextAndIcon) {
    Put(L"programs\\a.lnk");
    OpenAndSettle();

    const LRESULT height = Send(Control(IDC_IMPORT_LIST), LB_GETITEMHEIGHT, 0);
    EXPECT_GE(height, ::GetSystemMetrics(SM_CYSMICON) + 4);
    EXPECT_LT(height, 4 * ::GetSystemMetrics(SM_CYSMICON));
}

TEST_F(ImportDialog, OpensItsPlaceInTheHelp) {
    OpenAndSettle();

    Command(1009);
    HELPINFO info{};
    info.cbSize = sizeof info;
    Send(dialog->Handle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&info));

    EXPECT_EQ(help.log, L"optextra.html#ImportItem\noptextra.html#ImportItem\n");
    EXPECT_EQ(help.asker, dialog->Handle());
}

TEST_F(ImportDialog, LeavesNothingBehind) {
    for (int i = 0; i < 20; ++i) Put(base::FormatText(L"programs\\%d.lnk", i));
    const auto once = [&] {
        OpenAndSettle();
        Send(Control(IDC_IMPORT_LIST), LB_SETSEL, TRUE, -1);
        Command(IDCANCEL);
        dialog.reset();
    };
    once();
    const int before = test::GdiObjectCount();

    for (int i = 0; i < 5; ++i) once();

    EXPECT_EQ(test::GdiObjectCount(), before);
}

} // namespace
