// The options' page for the launch menu with its editor, its icon picker and its import, from outside.
#include <shlobj.h>

#include "tests/program/options_driver.h"
#include "tests/support/icon_file.h"
#include "tests/support/temp_folder.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;

constexpr wchar_t kItems[] = L"Settings\\LaunchMenuItem";

// Controls of the page.
constexpr int kList = 1057;
constexpr int kUp = 1030;
constexpr int kAdd = 1032;
constexpr int kEdit = 1033;
constexpr int kDelete = 1034;
constexpr int kImport = 1058;
constexpr int kItemCount = 1048;
// Controls of the editor.
constexpr int kProgram = 1051;
constexpr int kArguments = 1052;
constexpr int kName = 1053;
constexpr int kChangeIcon = 1055;
// Controls of the icon picker and of the import.
constexpr int kIconFile = 1039;
constexpr int kIconList = 1056;
constexpr int kSource = 1045;

class LaunchOptions : public OptionsTest {
protected:
    void SetUp() override {
        OptionsTest::SetUp();
        for (int number = 1; number <= 5; ++number) PutItem(number);
    }
    void PutItem(int number) {
        const std::wstring digits = std::to_wstring(number);
        const std::wstring icon = folder.File(digits + L".ico");
        folder.Write(digits + L".ico", IconFile(RGB(number * 40, 20, 30)));
        wchar_t name[40]{};
        ::wsprintfW(name, L"LaunchMenu%02d", number);
        WriteSetting(kItems, name, recorder::Folder() + L"\\rec.exe,n" + digits + L", ," + icon + L",0,項目" + digits);
    }
    // The names of the stored items in their order.
    static std::vector<std::wstring> StoredNames() {
        std::vector<std::wstring> names;
        for (int number = 1; number <= 38; ++number) {
            wchar_t key[40]{};
            ::wsprintfW(key, L"LaunchMenu%02d", number);
            const auto line = ReadText(kItems, key);
            if (!line) break;
            names.push_back(line->substr(line->rfind(L',') + 1));
        }
        return names;
    }
    static std::vector<std::wstring> Names(HWND options) {
        const HWND list = On(options, kList);
        std::vector<std::wstring> names;
        for (LRESULT row = 0; row < ::SendMessageW(list, LB_GETCOUNT, 0, 0); ++row) {
            std::array<wchar_t, 200> text{};
            ::SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
            names.emplace_back(text.data());
        }
        return names;
    }
    static bool WaitForNames(HWND options, const std::vector<std::wstring>& names) {
        return WaitUntil([&] { return Names(options) == names; });
    }
    static bool WaitForRow(HWND options, int row) {
        return WaitUntil([&] { return ::SendMessageW(On(options, kList), LB_GETCURSEL, 0, 0) == row; });
    }
    // Puts the keyboard on the list.
    static bool GoToList(HWND options) {
        PressKeys({VK_TAB});
        return WaitForFocus(On(options, kList));
    }
    static bool Retype(HWND dialog, int field, WORD letter, const std::wstring& text) {
        Press(letter);
        if (!WaitForFocus(::GetDlgItem(dialog, field))) return false;
        PressKeys({VK_CONTROL, 'A'});
        TypeText(text);
        return WaitUntil([&] { return TextOf(::GetDlgItem(dialog, field)) == text; });
    }

    TempFolder folder;
};

TEST_F(LaunchOptions, ListTheItems) {
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);

    EXPECT_THAT(Names(options), ElementsAre(L"項目1", L"項目2", L"項目3", L"項目4", L"項目5"));
    EXPECT_EQ(TextOn(options, kItemCount), L"登録アイテム数: 5 (最小アイテム数: 3, 最大アイテム数: 38)");
}

TEST_F(LaunchOptions, MakeAnItemALaunchButtonByMovingIt) {
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_TRUE(GoToList(options));
    for (int row = 1; row <= 3; ++row) {
        PressKeys({VK_DOWN});
        ASSERT_TRUE(WaitForRow(options, row));
    }

    Press('U');
    ASSERT_TRUE(WaitForNames(options, {L"項目1", L"項目2", L"項目4", L"項目3", L"項目5"}));
    ASSERT_TRUE(Confirm(options));

    EXPECT_THAT(StoredNames(), ElementsAre(L"項目1", L"項目2", L"項目4", L"項目3", L"項目5"));
    // The bar has read its buttons and its menu anew.
    Click(Control(bar, kLaunch3));
    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(testing::EndsWith(L"n4")));
    Command(bar, 4028);
    EXPECT_THAT(recorder::WaitForCommandLines(2), ElementsAre(testing::_, testing::EndsWith(L"n3")));
}

TEST_F(LaunchOptions, LeaveTheItemsAsTheyWereWhenTheyAreCancelled) {
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_TRUE(GoToList(options));
    Press('D');
    ASSERT_TRUE(WaitForRow(options, 1));
    PressKeys({VK_DELETE});
    const auto box = program.WaitForBox(MessageBoxView{options});
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Text(), L"ランチ メニューから \"項目1\" を削除します。よろしいですか？");
    EXPECT_EQ(box.Caption(), L"オプション - ランチ メニューの設定");
    EXPECT_EQ(box.Icon(), BoxIcon::kQuestion);
    EXPECT_EQ(box.Buttons(), (std::vector<int>{IDYES, IDNO, IDCANCEL}));
    ASSERT_TRUE(box.Press(IDYES) && WaitForKeyboard(options));
    ASSERT_TRUE(WaitForNames(options, {L"項目2", L"項目3", L"項目4", L"項目5"}));

    ASSERT_TRUE(CancelByKey(options));

    EXPECT_THAT(StoredNames(), ElementsAre(L"項目1", L"項目2", L"項目3", L"項目4", L"項目5"));
}

TEST_F(LaunchOptions, AddAnItemByKeyboardAlone) {
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);

    Press('A');
    const HWND editor = WaitForDialogWith(program, kProgram);
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(TextOf(editor), L"ランチ メニュー の追加");
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(editor, IDOK)));
    ASSERT_TRUE(Retype(editor, kProgram, 'P', L"notepad.exe"));
    ASSERT_TRUE(Retype(editor, kName, 'N', L"メモ"));
    ASSERT_TRUE(Retype(editor, kArguments, 'O', L"memo.txt"));
    ASSERT_TRUE(WaitUntilEnabled(::GetDlgItem(editor, IDOK)));

    // Without an icon it is not accepted.
    PressKeys({VK_RETURN});
    const auto box = program.WaitForBox(MessageBoxView{editor});
    ASSERT_TRUE(box && box.Handle() != options);
    EXPECT_EQ(box.Text(), L"メニューに表示するアイコンが設定されていません。");
    EXPECT_EQ(box.Caption(), L"ランチ メニュー の追加");
    ASSERT_TRUE(box.Press(IDOK) && WaitForKeyboard(editor));

    // To the button of the icon, and into the picker.
    ASSERT_TRUE(TabTo(::GetDlgItem(editor, kChangeIcon)));
    PressKeys({VK_SPACE});
    const HWND picker = WaitForDialogWith(program, kIconFile);
    ASSERT_NE(picker, nullptr);
    EXPECT_EQ(TextOf(picker), L"アイコンの変更");
    ASSERT_TRUE(Retype(picker, kIconFile, 'L', folder.File(L"2.ico")));
    Press('S');
    ASSERT_TRUE(WaitForFocus(::GetDlgItem(picker, kIconList)));
    ASSERT_TRUE(WaitUntil([&] { return ::SendMessageW(::GetDlgItem(picker, kIconList), LB_GETCOUNT, 0, 0) == 1; }));
    PressKeys({VK_HOME});
    PressKeys({VK_SPACE});
    ASSERT_TRUE(WaitUntil([&] { return ::SendMessageW(::GetDlgItem(picker, kIconList), LB_GETCURSEL, 0, 0) == 0; }));
    PressKeys({VK_RETURN});
    ASSERT_TRUE(WaitUntilGone(picker));
    ASSERT_TRUE(ClickAway(editor, IDOK));

    ASSERT_TRUE(WaitForNames(options, {L"項目1", L"メモ", L"項目2", L"項目3", L"項目4", L"項目5"}));
    ASSERT_TRUE(Confirm(options));
    const auto line = ReadText(kItems, L"LaunchMenu02");
    ASSERT_TRUE(line);
    EXPECT_TRUE(line->ends_with(L"notepad.exe,memo.txt, ," + folder.File(L"2.ico") + L",0,メモ"))
        << testing::PrintToString(*line);
    EXPECT_EQ(line->find(L"C:\\"), 0U) << "the path was not looked up";
}

TEST_F(LaunchOptions, InsertANewFirstButtonWithShift) {
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_TRUE(TabTo(On(options, kAdd)));

    PressKeys({VK_SHIFT, VK_SPACE});
    const HWND editor = WaitForDialogWith(program, kProgram);
    ASSERT_NE(editor, nullptr);
    ASSERT_TRUE(Retype(editor, kProgram, 'P', recorder::Folder() + L"\\rec.exe"));
    ASSERT_TRUE(Retype(editor, kName, 'N', L"先頭"));
    Click(::GetDlgItem(editor, kChangeIcon));
    const HWND picker = WaitForDialogWith(program, kIconFile);
    ASSERT_NE(picker, nullptr);
    ASSERT_TRUE(Retype(picker, kIconFile, 'L', folder.File(L"3.ico")));
    Press('S');
    ASSERT_TRUE(WaitUntil([&] { return ::SendMessageW(::GetDlgItem(picker, kIconList), LB_GETCOUNT, 0, 0) == 1; }));
    Click(::GetDlgItem(picker, kIconList));
    PressKeys({VK_HOME});
    PressKeys({VK_SPACE});
    ASSERT_TRUE(WaitUntil([&] { return ::SendMessageW(::GetDlgItem(picker, kIconList), LB_GETCURSEL, 0, 0) == 0; }));
    ASSERT_TRUE(ClickAway(picker, IDOK));
    ASSERT_TRUE(ClickAway(editor, IDOK));

    EXPECT_TRUE(WaitForNames(options, {L"先頭", L"項目1", L"項目2", L"項目3", L"項目4", L"項目5"}));
    EXPECT_TRUE(WaitForRow(options, 0));
}

TEST_F(LaunchOptions, EditAnItemByADoubleClick) {
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);

    RECT row{};
    ::GetWindowRect(On(options, kList), &row);
    ::SetCursorPos(row.left + 60, row.top + 12);
    for (int i = 0; i < 2; ++i)
        for (const DWORD flags : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
            INPUT input{};
            input.type = INPUT_MOUSE;
            input.mi.dwFlags = flags;
            ::SendInput(1, &input, sizeof input);
        }

    const HWND editor = WaitForDialogWith(program, kProgram);
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(TextOf(editor), L"ランチ メニュー の編集");
    EXPECT_EQ(TextOf(::GetDlgItem(editor, kName)), L"項目1");
    ASSERT_TRUE(Retype(editor, kName, 'N', L"改名"));
    PressKeys({VK_RETURN});
    ASSERT_TRUE(WaitUntilGone(editor));
    EXPECT_TRUE(WaitForNames(options, {L"改名", L"項目2", L"項目3", L"項目4", L"項目5"}));
}

TEST_F(LaunchOptions, RefuseAnAmpersandInAName) {
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_TRUE(GoToList(options));
    Press('E');
    const HWND editor = WaitForDialogWith(program, kProgram);
    ASSERT_NE(editor, nullptr);
    ASSERT_TRUE(Retype(editor, kName, 'N', L"A&B"));

    PressKeys({VK_RETURN});

    const auto box = program.WaitForBox(MessageBoxView{editor});
    ASSERT_TRUE(box && box.Handle() != options);
    EXPECT_EQ(box.Text(), L"名前にアンパサンド (&) を含めることはできません。");
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_TRUE(::IsWindowVisible(editor));
}

TEST_F(LaunchOptions, DeleteNothingOfThreeItems) {
    ForgetAllSettings();
    CloseWithoutQuestion();
    for (int number = 1; number <= 3; ++number) PutItem(number);
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_TRUE(GoToList(options));

    EXPECT_FALSE(::IsWindowEnabled(On(options, kDelete)));
    PressKeys({VK_DELETE});
    PressKeys({VK_DOWN});
    ASSERT_TRUE(WaitForRow(options, 1));
    EXPECT_EQ(WindowsOf(program.Id(), L"#32770").size(), 1U);
    EXPECT_EQ(Names(options).size(), 3U);
}

TEST_F(LaunchOptions, AddNothingToThirtyEightItems) {
    for (int number = 6; number <= 38; ++number) PutItem(number);
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);

    EXPECT_EQ(TextOn(options, kItemCount), L"登録アイテム数: 38 (最小アイテム数: 3, 最大アイテム数: 38)");
    EXPECT_FALSE(::IsWindowEnabled(On(options, kAdd)));
    EXPECT_FALSE(::IsWindowEnabled(On(options, kImport)));
    EXPECT_TRUE(::IsWindowEnabled(On(options, kEdit)));
}

// The user's start menu, moved to a folder of the test's own.
class StartMenu {
public:
    StartMenu() {
        DWORD size = sizeof before_;
        ::RegGetValueW(HKEY_CURRENT_USER, kKey, L"Programs", RRF_RT_REG_SZ, nullptr, before_.data(), &size);
        Set(folder.Path());
    }
    StartMenu(const StartMenu&) = delete;
    StartMenu& operator=(const StartMenu&) = delete;
    ~StartMenu() { Set(before_.data()); }

    // A shortcut to the recorder, with an icon of its own.
    void Add(const std::wstring& name, const std::wstring& arguments, const std::wstring& iconFile) const {
        IShellLinkW* link = nullptr;
        ASSERT_EQ(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                     reinterpret_cast<void**>(&link)),
                  S_OK);
        link->SetPath((recorder::Folder() + L"\\rec.exe").c_str());
        link->SetArguments(arguments.c_str());
        link->SetIconLocation(iconFile.c_str(), 0);
        IPersistFile* file = nullptr;
        ASSERT_EQ(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)), S_OK);
        EXPECT_EQ(file->Save(folder.File(name).c_str(), TRUE), S_OK);
        file->Release();
        link->Release();
    }

    TempFolder folder;

private:
    static constexpr wchar_t kKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
    static void Set(const std::wstring& path) {
        if (path.empty()) {
            ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, L"Programs");
            return;
        }
        ::RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"Programs", REG_SZ, path.c_str(),
                          static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t)));
    }

    std::array<wchar_t, MAX_PATH> before_{};
};

class LaunchImport : public LaunchOptions {
protected:
    void SetUp() override {
        LaunchOptions::SetUp();
        ::CoInitialize(nullptr);
    }
    void TearDown() override {
        ::CoUninitialize();
        LaunchOptions::TearDown();
    }
    static int CountOf(HWND import) {
        return static_cast<int>(::SendMessageW(::GetDlgItem(import, kList), LB_GETCOUNT, 0, 0));
    }
};

TEST_F(LaunchImport, AppendsTheSelectedShortcuts) {
    const StartMenu menu;
    menu.Add(L"一.lnk", L"one", folder.File(L"1.ico"));
    menu.Add(L"二.LNK", L"two", folder.File(L"2.ico"));
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);

    Press('I');
    const HWND import = WaitForDialogWith(program, kSource);
    ASSERT_NE(import, nullptr);
    EXPECT_EQ(TextOf(import), L"ランチ メニューへのインポート");
    ASSERT_TRUE(WaitUntil([&] { return CountOf(import) == 2; }));
    Press('L');
    ASSERT_TRUE(WaitForFocus(::GetDlgItem(import, kList)));
    PressKeys({VK_HOME});
    PressKeys({VK_SHIFT, VK_DOWN});
    ASSERT_TRUE(WaitUntil([&] { return ::SendMessageW(::GetDlgItem(import, kList), LB_GETSELCOUNT, 0, 0) == 2; }));
    EXPECT_TRUE(TextOf(::GetDlgItem(import, kItemCount)).starts_with(L"選択アイテム数: 2 (全アイテム数: 2, "));
    PressKeys({VK_RETURN});
    ASSERT_TRUE(WaitUntilGone(import));

    ASSERT_TRUE(WaitUntil([&] { return Names(options).size() == 7; }));
    EXPECT_TRUE(WaitForRow(options, 6));
    ASSERT_TRUE(Confirm(options));
    EXPECT_EQ(StoredNames().size(), 7U);
    Command(bar, 4030); // the sixth item
    EXPECT_THAT(recorder::WaitForCommandLines(1),
                ElementsAre(testing::AnyOf(testing::EndsWith(L"one"), testing::EndsWith(L"two"))));
}

TEST_F(LaunchImport, OfTwoThousandShortcutsCanBeStoppedAndKeepsWhatWasFound) {
    const StartMenu menu;
    menu.Add(L"0.lnk", L"", folder.File(L"1.ico"));
    constexpr int kShortcuts = 2000;
    for (int i = 1; i < kShortcuts; ++i)
        ASSERT_TRUE(::CopyFileW(menu.folder.File(L"0.lnk").c_str(),
                                menu.folder.File(std::to_wstring(i) + L".lnk").c_str(), TRUE));
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);
    Press('I');
    const HWND import = WaitForDialogWith(program, kSource);
    ASSERT_NE(import, nullptr);

    // The dialog answers while the search goes on.
    constexpr int kStop = 1070;
    const HWND stop = ::GetDlgItem(import, kStop);
    ASSERT_NE(stop, nullptr);
    ASSERT_TRUE(WaitUntil([&] { return CountOf(import) > 0; }));
    if (::IsWindowVisible(stop)) Click(stop);
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindowVisible(stop); }));
    const int found = CountOf(import);
    EXPECT_GT(found, 0);
    EXPECT_LE(found, kShortcuts);
    ASSERT_TRUE(WaitUntilIdle(import));
    EXPECT_EQ(CountOf(import), found);

    PressKeys({VK_ESCAPE});
    ASSERT_TRUE(WaitUntilGone(import));
    EXPECT_EQ(Names(options).size(), 5U);
}

TEST_F(LaunchImport, ClosesAtOnceWhileItIsSearching) {
    const StartMenu menu;
    menu.Add(L"0.lnk", L"", folder.File(L"1.ico"));
    for (int i = 1; i < 500; ++i)
        ASSERT_TRUE(::CopyFileW(menu.folder.File(L"0.lnk").c_str(),
                                menu.folder.File(std::to_wstring(i) + L".lnk").c_str(), TRUE));
    const Program program;
    const HWND options = Open(program, kLaunchOptions);
    ASSERT_NE(options, nullptr);
    Press('I');
    const HWND import = WaitForDialogWith(program, kSource);
    ASSERT_NE(import, nullptr);

    PressKeys({VK_ESCAPE});

    ASSERT_TRUE(WaitUntilGone(import));
    ASSERT_TRUE(CancelByKey(options));
    EXPECT_TRUE(CloseBar(program));
}

} // namespace
} // namespace korvane::test
