// The options' page for search commands and its editor, from outside.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/program/options_driver.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// Controls of the page.
constexpr int kCount = 1001;
constexpr int kStandard = 1026;
constexpr int kUser = 1027;
constexpr int kStandardList = 1028;
constexpr int kUserList = 1029;
constexpr int kUp = 1030;
constexpr int kDown = 1031;
constexpr int kAdd = 1032;
constexpr int kEdit = 1033;
constexpr int kDelete = 1034;
constexpr int kCopy = 1035;
constexpr int kPaste = 1036;
constexpr int kDetails = 1037;
constexpr int kUncheckAll = 1042;
constexpr int kCheckAll = 1043;
// Controls of the editor.
constexpr int kPlaceholders = 1038;
constexpr int kName = 1039;
constexpr int kLine = 1040;

std::wstring NumberedCommands(int count) {
    std::wstring file;
    for (int i = 1; i <= count; ++i) {
        wchar_t section[200]{};
        ::wsprintfW(section,
                    L"[SearchCommand_%02d]\r\nCommandName=命令%d\r\nCommandLine=http://n%d.example/<%%Search%%>\r\n", i,
                    i, i);
        file += section;
    }
    return file;
}

class CommandOptions : public OptionsTest {
protected:
    // The commands that the bar offers, told by their radio buttons' places.
    static std::optional<std::wstring> Selection() { return ReadText(kSettings, L"DefaultSearchCommand"); }
    static std::optional<std::wstring> UserSelection() { return ReadText(kSettings, L"UserSearchCommand"); }
    static std::wstring UserFile() {
        std::ifstream file{std::filesystem::path{DataFolder() + L"\\UserCommand.dat"}, std::ios::binary};
        std::ostringstream bytes;
        bytes << file.rdbuf();
        const std::string raw = bytes.str();
        std::wstring text(raw.size() / 2, L'\0');
        std::copy_n(raw.data(), text.size() * 2, reinterpret_cast<char*>(text.data()));
        return text;
    }
    static bool WaitForCount(HWND options, const std::wstring& text) {
        return WaitUntil([&] { return TextOn(options, kCount) == text; });
    }
    static void ShowUserList(HWND options) {
        Press('T');
        ASSERT_TRUE(WaitUntil([&] { return ::IsWindowVisible(On(options, kUserList)) != FALSE; }));
    }
    // Puts the keyboard on a row of the list on view, and selects it.
    static void GoToRow(HWND options, int list, int row) {
        Press('L');
        ASSERT_TRUE(WaitForFocus(On(options, list)));
        PressKeys({VK_HOME});
        for (int i = 0; i < row; ++i) PressKeys({VK_DOWN});
        PressKeys({VK_SPACE});
        PressKeys({VK_SPACE});
    }
    // Fills the editor that is open and confirms it.
    static void WriteCommand(const Program& program, const std::wstring& name, const std::wstring& line) {
        const HWND editor = WaitForDialogWith(program, kLine);
        ASSERT_NE(editor, nullptr);
        Press('N');
        PressKeys({VK_CONTROL, 'A'});
        TypeText(name);
        Press('C');
        PressKeys({VK_CONTROL, 'A'});
        TypeText(line);
        ASSERT_TRUE(WaitUntil([&] { return TextOf(::GetDlgItem(editor, kLine)) == line; }));
        ASSERT_EQ(TextOf(::GetDlgItem(editor, kName)), name);
        ASSERT_TRUE(WaitUntilEnabled(::GetDlgItem(editor, IDOK)));
        PressKeys({VK_RETURN});
        ASSERT_TRUE(WaitUntilGone(editor));
    }
    std::wstring ChooserText() const { return TextOf(Control(bar, kSearchChooser)); }
};

TEST_F(CommandOptions, CountWhatIsSelected) {
    WriteSetting(kSettings, L"DefaultSearchCommand", L"2,");
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);

    EXPECT_EQ(TextOn(options, kCount), L"選択コマンド数: 1 (標準コマンド数: 2)");
    ShowUserList(options);
    EXPECT_TRUE(WaitForCount(options, L"選択コマンド数: 0 (ユーザー定義コマンド数: 0)"));
    EXPECT_TRUE(::IsWindowEnabled(On(options, kAdd)));
    for (const int id : {kUp, kDown, kEdit, kDelete, kCopy, kPaste, kUncheckAll, kCheckAll})
        EXPECT_FALSE(::IsWindowEnabled(On(options, id))) << id;
}

TEST_F(CommandOptions, ShowWhatACommandDoes) {
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);

    GoToRow(options, kStandardList, 1);

    EXPECT_TRUE(WaitUntil([&] { return TextOn(options, kDetails).find(L"地図") != std::wstring::npos; }));
    EXPECT_THAT(TextOn(options, kDetails), HasSubstr(L"https://maps.example/<%Search_SJIS%>"));
}

TEST_F(CommandOptions, ChangeOrderAndSelectionOfTheBarsMenu) {
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    GoToRow(options, kStandardList, 1);
    PressKeys({VK_SPACE}); // checks the second, the first is checked
    ASSERT_TRUE(WaitForCount(options, L"選択コマンド数: 2 (標準コマンド数: 2)"));

    Press('U');
    ASSERT_TRUE(WaitUntilEnabled(On(options, kUp), false));
    ASSERT_TRUE(Confirm(options));

    EXPECT_EQ(ReadText(kSettings, L"SearchCommandOrder"), L"2,1");
    EXPECT_EQ(Selection(), L"2,1");
    EXPECT_EQ(ChooserText(), L"地図");
}

TEST_F(CommandOptions, AddACommandThatTheBarThenRuns) {
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    ShowUserList(options);

    Press('A');
    WriteCommand(program, L"私の検索", L"http://mine.example/?q=<%Search%>");
    ASSERT_TRUE(WaitForCount(options, L"選択コマンド数: 1 (ユーザー定義コマンド数: 1)"));
    ASSERT_TRUE(Confirm(options));

    EXPECT_EQ(ChooserText(), L"私の検索");
    EXPECT_EQ(UserSelection(), L"1");
    EXPECT_THAT(UserFile(),
                HasSubstr(L"[SearchCommand_01]\r\nCommandName=私の検索\r\nCommandLine=http://mine.example/?q="
                          L"<%Search%>\r\nComment="));
    ASSERT_TRUE(TypeInto(Control(bar, kSearchBox), L"ab"));
    PressKeys({VK_RETURN});
    EXPECT_THAT(recorder::WaitForCommandLines(1),
                ElementsAre(recorder::CommandLineFor(L"http", L"http://mine.example/?q=%61%62")));
}

TEST_F(CommandOptions, InsertAPlaceholderByKeys) {
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    ShowUserList(options);
    Press('A');
    const HWND editor = WaitForDialogWith(program, kLine);
    ASSERT_NE(editor, nullptr);
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(editor, IDOK)));
    Press('C');
    TypeText(L"http://x.example/");
    ASSERT_TRUE(WaitUntil([&] { return TextOf(::GetDlgItem(editor, kLine)) == L"http://x.example/"; }));

    Press('I');
    EXPECT_TRUE(WaitUntil([&] { return TextOf(::GetDlgItem(editor, kLine)) == L"http://x.example/<%Search%>"; }));
    Press('K');
    PressKeys({VK_END});
    ASSERT_TRUE(
        WaitUntil([&] { return ::SendMessageW(::GetDlgItem(editor, kPlaceholders), CB_GETCURSEL, 0, 0) == 7; }));
    Press('I');
    EXPECT_TRUE(WaitUntil([&] { return TextOf(::GetDlgItem(editor, kLine)) == L"<%Hidemaru%>"; }));
    // Without a name it cannot be confirmed.
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(editor, IDOK)));

    PressKeys({VK_ESCAPE});
    ASSERT_TRUE(WaitUntilGone(editor));
    EXPECT_TRUE(WaitForCount(options, L"選択コマンド数: 0 (ユーザー定義コマンド数: 0)"));
}

TEST_F(CommandOptions, TurnAStandardCommandIntoAUsers) {
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    GoToRow(options, kStandardList, 1);
    Press('C');
    ShowUserList(options);
    ASSERT_TRUE(WaitUntilEnabled(On(options, kPaste)));
    Press('P');
    ASSERT_TRUE(WaitForCount(options, L"選択コマンド数: 0 (ユーザー定義コマンド数: 1)"));
    Press('E');
    WriteCommand(program, L"わが町の地図", L"http://town.example/<%Search%>");
    ASSERT_TRUE(Confirm(options));

    EXPECT_THAT(UserFile(), HasSubstr(L"CommandName=わが町の地図\r\n"));
    EXPECT_EQ(UserSelection(), std::nullopt);
    EXPECT_EQ(ChooserText(), L"百科");
}

TEST_F(CommandOptions, AskBeforeACommandIsDeleted) {
    WriteDataFile(L"UserCommand.dat", NumberedCommands(3));
    WriteSetting(kSettings, L"UserSearchCommand", L"1,3");
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    ShowUserList(options);
    GoToRow(options, kUserList, 0);

    PressKeys({VK_DELETE});
    const auto box = program.WaitForBox(MessageBoxView{options});
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Text(), L"\"命令1\" コマンドを削除します。よろしいですか？");
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Icon(), BoxIcon::kQuestion);
    ASSERT_TRUE(box.Press(IDYES));
    EXPECT_TRUE(WaitForCount(options, L"選択コマンド数: 1 (ユーザー定義コマンド数: 2)"));
    ASSERT_TRUE(Confirm(options));

    // They are numbered anew, and so is their selection.
    EXPECT_EQ(UserSelection(), L"2");
    EXPECT_THAT(UserFile(), HasSubstr(L"[SearchCommand_01]\r\nCommandName=命令2\r\n"));
    EXPECT_THAT(UserFile(), HasSubstr(L"[SearchCommand_02]\r\nCommandName=命令3\r\n"));
}

TEST_F(CommandOptions, InsistOnOneSelectedCommand) {
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    Press('O');
    ASSERT_TRUE(WaitForCount(options, L"選択コマンド数: 0 (標準コマンド数: 2)"));

    Click(::GetDlgItem(options, kOptionsOk));

    const auto box = program.WaitForBox(MessageBoxView{options});
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Text(), L"使用する検索コマンドをひとつ以上選択する必要があります。");
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    EXPECT_EQ(box.Caption(), L"Korvane");
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_TRUE(::IsWindowVisible(options));
    EXPECT_EQ(Selection(), std::nullopt);
}

TEST_F(CommandOptions, AreNotLeftWithoutASelectedCommand) {
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    Press('O');
    ASSERT_TRUE(WaitForCount(options, L"選択コマンド数: 0 (標準コマンド数: 2)"));

    ASSERT_TRUE(TabTo(::GetDlgItem(options, kOptionsTree), {VK_SHIFT, VK_TAB}));
    PressKeys({VK_DOWN});

    const auto box = program.WaitForBox(MessageBoxView{options});
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Text(), L"使用する検索コマンドをひとつ以上選択する必要があります。");
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_EQ(TextOf(options), L"オプション - 検索コマンドの設定");
}

TEST_F(CommandOptions, StopAtFiftySelectedCommands) {
    WriteDataFile(L"Korvane.dat", NumberedCommands(150));
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    ASSERT_EQ(TextOn(options, kCount), L"選択コマンド数: 10 (標準コマンド数: 150)");

    Press('I');

    auto box = program.WaitForBox(MessageBoxView{options});
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Text(),
              L"選択可能な最大コマンド数は [標準コマンド] と [ユーザー定義コマンド] をあわせて 50 個です。\n\n※ "
              L"[ユーザー定義コマンド] で現在 0 個のコマンドが選択されています。");
    EXPECT_EQ(box.Icon(), BoxIcon::kInformation);
    ASSERT_TRUE(box.Press(IDOK) && WaitForKeyboard(options));
    EXPECT_TRUE(WaitForCount(options, L"選択コマンド数: 50 (標準コマンド数: 150)"));
    EXPECT_TRUE(WaitUntilEnabled(On(options, kCheckAll), false));
    EXPECT_EQ(WindowsOf(program.Id(), L"#32770").size(), 1U);

    // The fifty-first is refused too.
    Press('L');
    ASSERT_TRUE(WaitForFocus(On(options, kStandardList)));
    PressKeys({VK_END});
    PressKeys({VK_SPACE});
    box = program.WaitForBox(MessageBoxView{options});
    ASSERT_TRUE(box);
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_TRUE(WaitForCount(options, L"選択コマンド数: 50 (標準コマンド数: 150)"));
    ASSERT_TRUE(Confirm(options));
    ASSERT_TRUE(Selection());
    EXPECT_TRUE(Selection()->starts_with(L"1,2,3,4,5,6,"));
}

TEST_F(CommandOptions, TakeFiftyUserCommandsAndNoMore) {
    WriteDataFile(L"UserCommand.dat", NumberedCommands(49));
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    ShowUserList(options);
    ASSERT_TRUE(WaitUntilEnabled(On(options, kAdd)));

    Press('A');
    WriteCommand(program, L"五十番目", L"http://fifty.example/<%Search%>");

    EXPECT_TRUE(WaitForCount(options, L"選択コマンド数: 1 (ユーザー定義コマンド数: 50)"));
    EXPECT_TRUE(WaitUntilEnabled(On(options, kAdd), false));
    ASSERT_TRUE(Confirm(options));
    EXPECT_THAT(UserFile(), HasSubstr(L"[SearchCommand_50]\r\nCommandName=五十番目\r\n"));
}

TEST_F(CommandOptions, LeaveCommandsAsTheyWereWhenTheyAreCancelled) {
    WriteDataFile(L"UserCommand.dat", NumberedCommands(2));
    const std::wstring before = UserFile();
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    ShowUserList(options);
    Press('A');
    WriteCommand(program, L"新しい", L"http://new.example/<%Search%>");
    Press('I');
    ASSERT_TRUE(WaitForCount(options, L"選択コマンド数: 3 (ユーザー定義コマンド数: 3)"));

    ASSERT_TRUE(CancelByKey(options));

    EXPECT_EQ(UserFile(), before);
    EXPECT_EQ(UserSelection(), std::nullopt);
    EXPECT_EQ(Selection(), std::nullopt);
}

// As when a second copy of the program, or an editor, is at work on the file.
TEST_F(CommandOptions, SayWhyTheUsersCommandsCannotBeWrittenAndKeepThem) {
    WriteDataFile(L"UserCommand.dat", NumberedCommands(2));
    const std::wstring before = UserFile();
    const Program program;
    const HWND options = Open(program, kCommandOptions);
    ASSERT_NE(options, nullptr);
    ShowUserList(options);
    Press('A');
    WriteCommand(program, L"新しい", L"http://new.example/<%Search%>");
    {
        const fw::UniqueKernelHandle held{::CreateFileW((DataFolder() + L"\\UserCommand.dat").c_str(), GENERIC_READ,
                                                        FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr)};
        ASSERT_NE(held.Get(), INVALID_HANDLE_VALUE);

        Click(::GetDlgItem(options, kOptionsOk));

        const auto box = program.WaitForBox(MessageBoxView{options});
        ASSERT_TRUE(box);
        EXPECT_EQ(box.Text(), TextOfError(ERROR_SHARING_VIOLATION));
        EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
        ASSERT_TRUE(box.Press(IDOK));
        ASSERT_TRUE(WaitUntilGone(options));
    }
    EXPECT_EQ(UserFile(), before);
    // Everything else is saved.
    EXPECT_TRUE(WaitUntil([] { return ReadText(L"Settings\\LaunchMenuItem", L"LaunchMenu01").has_value(); }));
}

} // namespace
} // namespace korvane::test
