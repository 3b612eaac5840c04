// Searches with the programs on the user's own machine. The recorder stands for each of them.

#include <windows.h>

#include <optional>

#include "tests/program/program_test.h"
#include "tests/support/machine_value.h"
#include "tests/support/temp_folder.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr wchar_t kToolCommands[] = L"[SearchCommand_01]\r\n"
                                    L"CommandName=Everything\r\n"
                                    L"CommandLine=\"\"<%Everything%>\" -search \"<%Search_UTF16%>\"\"\r\n"
                                    L"[SearchCommand_02]\r\n"
                                    L"CommandName=EmEditor\r\n"
                                    L"CommandLine=<%EmEditor%>\r\n"
                                    L"[SearchCommand_03]\r\n"
                                    L"CommandName=秀丸エディタ\r\n"
                                    L"CommandLine=<%Hidemaru%>\r\n";

constexpr wchar_t kEverythingKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Everything";
constexpr wchar_t kEmEditorKey[] = L"SOFTWARE\\EmSoft\\EmEditor v3\\Common";
constexpr wchar_t kHidemaruKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Hidemaru";
constexpr wchar_t kHidemaruSearch[] = L"Settings\\HidemaruSearch";

// Controls of the dialog as the outside world knows them.
constexpr int kSearchText = 1007;
constexpr int kFileTypes = 1008;
constexpr int kSearchFolder = 1010;

class LocalTools : public ProgramTest {
protected:
    void SetUp() override {
        ProgramTest::SetUp();
        WriteDataFile(L"Korvane.dat", kToolCommands);
        CloseWithoutQuestion();
    }
    // The number in the data file.
    static void Select(int command) {
        WriteSetting(kSettings, L"DefaultSearchCommand", std::to_wstring(command) + L",");
    }
    // Leaves a program in the folder of tools, and gives its path.
    std::wstring PutRecorder(const wchar_t* program) const {
        const std::wstring path = tools.File(program);
        EXPECT_TRUE(::CopyFileW((recorder::Folder() + L"\\rec.exe").c_str(), path.c_str(), FALSE));
        return path;
    }
    void InstallEverything() {
        registered.emplace(kEverythingKey, L"UninstallString", tools.File(L"Uninstall.exe"));
        everything = PutRecorder(L"Everything.exe");
    }
    void InstallEmEditor() {
        registered.emplace(kEmEditorKey, L"ModulePath", tools.Path());
        emEditor = PutRecorder(L"EmEditor.exe");
        Select(2);
    }
    void InstallHidemaru() {
        registered.emplace(kHidemaruKey, L"InstallLocation", tools.Path() + L"\\");
        hidemaru = PutRecorder(L"Hidemaru.exe");
        Select(3);
    }

    // Types into the search box and presses Enter.
    static void Search(const Program& program, HWND bar, const std::wstring& text) {
        ASSERT_TRUE(program.Running());
        ASSERT_TRUE(TypeInto(Control(bar, kSearchBox), text));
        PressKeys({VK_RETURN});
    }
    // The options dialog, once it has the keyboard; null when there is none at the deadline.
    static HWND WaitForDialog(const Program& program) {
        return WaitUntil([&]() -> HWND {
            for (HWND window : WindowsOf(program.Id(), L"#32770"))
                if (::GetDlgItem(window, kSearchText) && ::GetParent(FocusOf(window)) == window &&
                    ::GetForegroundWindow() == window)
                    return window;
            return nullptr;
        });
    }
    static bool WaitForFocus(HWND control) {
        return WaitUntil([&] { return FocusOf(control) == control; });
    }
    // Replaces what stands in the field that has the focus.
    static bool Retype(HWND field, const std::wstring& text) {
        PressKeys({VK_HOME});
        PressKeys({VK_SHIFT, VK_END});
        TypeText(text);
        return WaitUntil([&] { return TextOf(field) == text; });
    }
    static bool IsChecked(HWND dialog, int id) {
        return ::SendMessageW(::GetDlgItem(dialog, id), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    static bool PressToCheck(HWND dialog, WORD letter, int id) {
        PressKeys({VK_MENU, letter});
        return WaitUntil([&] { return IsChecked(dialog, id); });
    }

    TempFolder tools;
    TempFolder searched;
    std::optional<MachineValue> registered;
    std::wstring everything;
    std::wstring emEditor;
    std::wstring hidemaru;
};

TEST_F(LocalTools, EverythingIsStartedWithTheTextAsItStands) {
    InstallEverything();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Search(program, bar, L"東京 a&b");

    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(L"\"" + everything + L"\" -search \"東京 a&b\""));
    ASSERT_TRUE(WaitUntilIdle(bar));
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);
    EXPECT_EQ(ReadText(kRecentSearches, L"ListItem01"), L"東京 a&b");
}

TEST_F(LocalTools, AreLookedForAtEveryStart) {
    InstallEmEditor();
    WriteSetting(kSettings, L"HidemaruPath", L"C:\\gone\\Hidemaru.exe");
    const Program program;

    ASSERT_NE(program.WaitForBar(), nullptr);

    EXPECT_TRUE(WaitUntil([&] { return ReadText(kSettings, L"EmEditorPath") == emEditor; }));
    EXPECT_TRUE(WaitUntil([] { return !ReadText(kSettings, L"HidemaruPath"); }));
    EXPECT_EQ(ReadText(kSettings, L"EverythingPath"), std::nullopt);
}

TEST_F(LocalTools, TheUserIsToldOfAProgramThatIsNotInstalled) {
    const wchar_t* const programs[] = {L"Everything.exe", L"EmEditor.exe", L"Hidemaru.exe"};
    for (int command = 1; command <= 3; ++command) {
        Select(command);
        const Program program;
        const HWND bar = program.WaitForBar();
        ASSERT_NE(bar, nullptr);

        Search(program, bar, L"abc");

        const auto box = program.WaitForBox();
        ASSERT_TRUE(box);
        EXPECT_EQ(box.Caption(), L"Korvane");
        EXPECT_EQ(box.Text(), std::wstring{programs[command - 1]} + L" を見つけることができませんでした。");
        EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
        ASSERT_TRUE(box.Press(IDOK));
        Close(bar);
        ASSERT_EQ(program.WaitForExit(), 0u);
        EXPECT_EQ(ReadText(kRecentSearches, L"ListItem01"), std::nullopt);
    }
}

TEST_F(LocalTools, TheSystemSaysWhyARegisteredProgramDoesNotStart) {
    InstallEverything();
    ::DeleteFileW(everything.c_str());
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Search(program, bar, L"abc");

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), TextOfError(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    ASSERT_TRUE(box.Press(IDOK));
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);
    EXPECT_EQ(ReadText(kRecentSearches, L"ListItem01"), std::nullopt);
}

TEST_F(LocalTools, EmEditorSearchesAsTheUserAsks) {
    InstallEmEditor();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Search(program, bar, L"abc");
    const HWND dialog = WaitForDialog(program);
    ASSERT_NE(dialog, nullptr);

    EXPECT_EQ(TextOf(dialog), L"EmEditor 検索 - 検索オプションの指定");
    EXPECT_EQ(FocusOf(dialog), ::GetDlgItem(dialog, kSearchFolder));
    TypeText(searched.Path());
    PressKeys({VK_MENU, 'E'});
    ASSERT_TRUE(Retype(::GetDlgItem(dialog, kFileTypes), L"*.c"));
    ASSERT_TRUE(PressToCheck(dialog, 'C', 1012));
    ASSERT_TRUE(PressToCheck(dialog, 'U', 1013));
    PressKeys({VK_RETURN});

    EXPECT_THAT(recorder::WaitForCommandLines(1),
                ElementsAre(L"\"" + emEditor + L"\" /fc \"abc\" /fr /cp 1048576 \"" + searched.Path() + L"\\*.c\""));
}

TEST_F(LocalTools, HidemaruSearchesForTheChangedText) {
    InstallHidemaru();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Search(program, bar, L"abc");
    const HWND dialog = WaitForDialog(program);
    ASSERT_NE(dialog, nullptr);

    TypeText(searched.Path() + L"\\");
    PressKeys({VK_MENU, 'S'});
    ASSERT_TRUE(Retype(::GetDlgItem(dialog, kSearchText), L"検索, x"));
    ASSERT_TRUE(PressToCheck(dialog, 'U', 1013));
    ASSERT_TRUE(PressToCheck(dialog, 'M', 1017));
    PressKeys({VK_RETURN});

    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(L"\"" + hidemaru + L"\" /gCuWORz,\"" + searched.Path() +
                                                              L"\\*.cpp;*.cxx;*.c;*.h;*.inl;*.rc\",検索, x"));
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(bar, kSearchBox)) == L"検索, x"; }));
    ASSERT_TRUE(WaitUntilIdle(bar));
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);
    EXPECT_EQ(ReadText(kRecentSearches, L"ListItem01"), L"検索, x");
}

TEST_F(LocalTools, ACancelledSearchStartsNothing) {
    InstallHidemaru();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Search(program, bar, L"abc");
    const HWND dialog = WaitForDialog(program);
    ASSERT_NE(dialog, nullptr);

    PressKeys({VK_ESCAPE});

    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
    EXPECT_FALSE(program.ShowsBox());
    EXPECT_EQ(TextOf(Control(bar, kSearchBox)), L"abc");
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);
    EXPECT_EQ(ReadText(kRecentSearches, L"ListItem01"), std::nullopt);
    EXPECT_THAT(recorder::WaitForCommandLines(0), IsEmpty());
}

TEST_F(LocalTools, TheDialogStaysOverAFolderThatIsNotThere) {
    InstallHidemaru();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Search(program, bar, L"abc");
    const HWND dialog = WaitForDialog(program);
    ASSERT_NE(dialog, nullptr);
    TypeText(searched.Path() + L"\\gone");
    PressKeys({VK_RETURN});

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), L"指定されたフォルダ '" + searched.Path() + L"\\gone\\' が見つかりません。");
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    ASSERT_TRUE(box.Press(IDOK));
    ASSERT_TRUE(WaitForFocus(::GetDlgItem(dialog, kSearchFolder)));
    ASSERT_TRUE(Retype(::GetDlgItem(dialog, kSearchFolder), searched.Path()));
    PressKeys({VK_RETURN});

    EXPECT_THAT(recorder::WaitForCommandLines(1), testing::SizeIs(1));
}

TEST_F(LocalTools, TheDialogKeepsItsSettingsFromSearchToSearch) {
    InstallHidemaru();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Search(program, bar, L"abc");
    HWND dialog = WaitForDialog(program);
    ASSERT_NE(dialog, nullptr);
    TypeText(searched.Path());
    PressKeys({VK_MENU, 'E'});
    ASSERT_TRUE(Retype(::GetDlgItem(dialog, kFileTypes), L"*.new"));
    ASSERT_TRUE(PressToCheck(dialog, 'R', 1016));
    ASSERT_TRUE(PressToCheck(dialog, 'V', 1021));
    PressKeys({VK_RETURN});
    ASSERT_THAT(recorder::WaitForCommandLines(1), testing::SizeIs(1));

    EXPECT_EQ(ReadNumber(kHidemaruSearch, L"SaveSettings"), 1u);
    EXPECT_EQ(ReadText(kHidemaruSearch, L"SearchFolder"), searched.Path() + L"\\");
    EXPECT_EQ(ReadText(kHidemaruSearch, L"ExtensionList"),
              L"*.new\n*.cpp;*.cxx;*.c;*.h;*.inl;*.rc\n*.htm;*.html;*.asp;*.aspx;*.shtml;*.shtm;*.css\n*.txt\n*.*\n");
    ASSERT_TRUE(ClickIntoFocus(Control(bar, kSearchBox)));
    PressKeys({VK_RETURN});
    dialog = WaitForDialog(program);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(FocusOf(dialog), ::GetDlgItem(dialog, kSearchText));
    EXPECT_EQ(TextOf(::GetDlgItem(dialog, kSearchFolder)), searched.Path() + L"\\");
    EXPECT_EQ(TextOf(::GetDlgItem(dialog, kFileTypes)), L"*.new");
    EXPECT_TRUE(IsChecked(dialog, 1016));
    EXPECT_TRUE(IsChecked(dialog, 1021));
    PressKeys({VK_RETURN});
    EXPECT_THAT(recorder::WaitForCommandLines(2), testing::SizeIs(2));
}

TEST_F(LocalTools, TheMenuBesideTheFileTypesEditsTheirList) {
    InstallHidemaru();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Search(program, bar, L"abc");
    const HWND dialog = WaitForDialog(program);
    ASSERT_NE(dialog, nullptr);
    const HWND types = ::GetDlgItem(dialog, kFileTypes);
    const auto waitForCount = [&](LRESULT count) {
        return WaitUntil([&] { return ::SendMessageW(types, CB_GETCOUNT, 0, 0) == count; });
    };
    const auto chooseInMenu = [&](WORD letter) {
        const auto open = [&] { return !WindowsOf(program.Id(), L"#32768").empty(); };
        PressKeys({VK_MENU, 'T'});
        if (!WaitUntil(open)) return false;
        PressKeys({letter});
        return WaitUntil([&] { return !open(); });
    };

    PressKeys({VK_MENU, 'E'});
    ASSERT_TRUE(Retype(types, L"*.new"));
    ASSERT_TRUE(chooseInMenu('A'));
    EXPECT_TRUE(waitForCount(5));
    ASSERT_TRUE(chooseInMenu('D'));
    EXPECT_TRUE(waitForCount(4));
    EXPECT_EQ(TextOf(types), L"*.cpp;*.cxx;*.c;*.h;*.inl;*.rc");
    ASSERT_TRUE(chooseInMenu('D'));
    EXPECT_TRUE(waitForCount(3));
    ASSERT_TRUE(chooseInMenu('R'));
    EXPECT_TRUE(waitForCount(4));
    PressKeys({VK_ESCAPE});
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
}

TEST_F(LocalTools, AClickOnTheFirstButtonWithAPicturePicksAFolder) {
    InstallHidemaru();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Search(program, bar, L"abc");
    const HWND dialog = WaitForDialog(program);
    ASSERT_NE(dialog, nullptr);
    // The picker's own spelling has no backslash at the end.
    const std::wstring typed = searched.Path() + L"\\";
    TypeText(typed);
    ASSERT_TRUE(WaitUntil([&] { return TextOf(::GetDlgItem(dialog, kSearchFolder)) == typed; }));

    Click(::GetDlgItem(dialog, 1011));

    const HWND picker = WaitUntil([&]() -> HWND {
        for (HWND window : WindowsOf(program.Id(), L"#32770"))
            if (window != dialog && ::GetDlgItem(window, IDOK)) return window;
        return nullptr;
    });
    ASSERT_NE(picker, nullptr);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(picker) == L"フォルダの参照"; }));
    ::PostMessageW(picker, WM_COMMAND, IDOK, 0);
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(picker); }));
    EXPECT_EQ(TextOf(::GetDlgItem(dialog, kSearchFolder)), searched.Path());
}

} // namespace
} // namespace korvane::test
