#include "search/add_command_dialog.h"

#include <gmock/gmock.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "framework/window_text.h"
#include "tests/support/clipboard.h"
#include "tests/support/dialog_walk.h"
#include "tests/support/fake_help.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::search;
using testing::ElementsAre;

namespace {

constexpr int kName = 1039;
constexpr int kLine = 1040;
constexpr int kComment = 1041;
constexpr int kPlaceholderList = 1038;
constexpr int kInsert = 1032;
constexpr int kHint = 1072;
constexpr int kMeaning = 1073;

class AddCommandDialog : public test::WindowTest {
protected:
    test::FakeHelp help;
    std::unique_ptr<CAddCommandDialog> dialog;

    void Open(std::optional<SearchCommand> edited = {}) {
        dialog = std::make_unique<CAddCommandDialog>(help, std::move(edited));
        ASSERT_TRUE(dialog->Create(Host()));
    }
    void TearDown() override { dialog.reset(); }
    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(dialog->Handle(), id); }
    [[nodiscard]] std::wstring Text(int id) const { return fw::WindowText(Control(id)); }
    void SetText(int id, const std::wstring& text) { ::SetWindowTextW(Control(id), text.c_str()); }
    void Command(int id, UINT code = 0) {
        Send(dialog->Handle(), WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(Control(id)));
    }
    void Choose(int placeholder) {
        Send(Control(kPlaceholderList), CB_SETCURSEL, static_cast<WPARAM>(placeholder));
        Command(kPlaceholderList, CBN_SELCHANGE);
    }
    void Insert(int placeholder) {
        Choose(placeholder);
        Command(kInsert);
    }
    void SelectInLine(WPARAM first, LPARAM last) { Send(Control(kLine), EM_SETSEL, first, last); }
    [[nodiscard]] std::pair<int, int> SelectionInLine() const {
        const LRESULT selection = Send(Control(kLine), EM_GETSEL);
        return {LOWORD(selection), HIWORD(selection)};
    }
    [[nodiscard]] bool OkEnabled() const { return ::IsWindowEnabled(Control(IDOK)) != 0; }
    void CopyText(std::wstring text) {
        // With a zero of its own, for Windows puts one in the place of the last character.
        text += L'\0';
        ASSERT_TRUE(test::Copy(Host(), {{CF_UNICODETEXT, test::BytesOf(text)}}));
    }
    void Type(int id, const std::wstring& text) {
        for (const wchar_t character : text) Send(Control(id), WM_CHAR, character);
    }
};

} // namespace

TEST_F(AddCommandDialog, IsTitledWithWhatItIsOpenedFor) {
    Open();
    EXPECT_EQ(fw::WindowText(dialog->Handle()), L"ユーザー定義コマンド の追加");

    Open(SearchCommand{});
    EXPECT_EQ(fw::WindowText(dialog->Handle()), L"ユーザー定義コマンド の編集");
}

TEST_F(AddCommandDialog, HasTheLabelOfEachFieldBeforeIt) {
    Open();

    const auto labelOf = [&](int id) { return fw::WindowText(::GetWindow(Control(id), GW_HWNDPREV)); };
    EXPECT_EQ(labelOf(kName), L"コマンド 名(&N):");
    EXPECT_EQ(labelOf(kLine), L"コマンド 文字列(&C):");
    EXPECT_EQ(labelOf(kComment), L"コマンド の概要(&T):　（※任意設定項目です）");
    EXPECT_EQ(labelOf(kPlaceholderList), L"変数の種別(&K):");
}

TEST_F(AddCommandDialog, NamesItsButtonsAndItsGroup) {
    Open();

    EXPECT_EQ(Text(kInsert), L"変数の挿入(&I)");
    EXPECT_EQ(Text(1), L"OK");
    EXPECT_EQ(Text(2), L"キャンセル");
    EXPECT_EQ(Text(1009), L"ヘルプ");
    EXPECT_NE(::FindWindowExW(dialog->Handle(), nullptr, L"Button", L"検索語句の変換変数"), nullptr);
}

TEST_F(AddCommandDialog, IsWalkedThroughInTheOrderOfItsControls) {
    Open(SearchCommand{1, L"n", L"l", L"c"});

    const std::vector<int> order = test::TabOrder(dialog->Handle(), kName);

    EXPECT_THAT(order, ElementsAre(kName, kLine, kComment, kPlaceholderList, kInsert, 1, 2, 1009));
}

TEST_F(AddCommandDialog, GivesNoAccessKeyTwice) {
    Open();

    EXPECT_EQ(test::AccessKeys(dialog->Handle()), L"CIKNT");
}

TEST_F(AddCommandDialog, OpensEmptyForANewCommand) {
    Open();

    EXPECT_EQ(Text(kName), L"");
    EXPECT_EQ(Text(kLine), L"");
    EXPECT_EQ(Text(kComment), L"");
    EXPECT_FALSE(OkEnabled());
    EXPECT_EQ(::GetFocus(), Control(kName));
}

TEST_F(AddCommandDialog, ShowsTheCommandToEdit) {
    Open(SearchCommand{3, L"name", L"http://a/<%Search%>", L"comment"});

    EXPECT_EQ(Text(kName), L"name");
    EXPECT_EQ(Text(kLine), L"http://a/<%Search%>");
    EXPECT_EQ(Text(kComment), L"comment");
    EXPECT_TRUE(OkEnabled());
}

TEST_F(AddCommandDialog, OffersThePlaceholdersInTheirOrder) {
    Open();

    const HWND list = Control(kPlaceholderList);
    std::vector<std::wstring> rows;
    for (LRESULT i = 0; i < Send(list, CB_GETCOUNT); ++i) {
        std::wstring row(static_cast<std::size_t>(Send(list, CB_GETLBTEXTLEN, static_cast<WPARAM>(i))), L'\0');
        Send(list, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(row.data()));
        rows.push_back(row);
    }
    EXPECT_THAT(rows, ElementsAre(L"<%Search%>", L"<%Search_UTF7%>", L"<%Search_SJIS%>", L"<%Search_EUC%>",
                                  L"<%Search_UTF16%>", L"<%Everything%>", L"<%EmEditor%>", L"<%Hidemaru%>"));
    EXPECT_EQ(Send(list, CB_GETCURSEL), 0);
    EXPECT_EQ(::GetWindowLongPtrW(list, GWL_STYLE) & CBS_DROPDOWNLIST, CBS_DROPDOWNLIST);
}

TEST_F(AddCommandDialog, SaysWhatEachPlaceholderDoes) {
    Open();
    EXPECT_EQ(Text(kMeaning), L"UTF-8 で URL エンコードした検索語句と置き換わります。");

    std::set<std::wstring> meanings;
    for (int i = 0; i < 8; ++i) {
        Choose(i);
        meanings.insert(Text(kMeaning));
    }
    EXPECT_EQ(meanings.size(), 8U);
    EXPECT_EQ(Text(kMeaning), L"秀丸エディタで検索します。コマンド文字列はこの変数だけになります。");
}

TEST_F(AddCommandDialog, CanBeConfirmedOnlyWithANameAndACommandLine) {
    Open();

    SetText(kName, L"n");
    EXPECT_FALSE(OkEnabled());
    SetText(kLine, L"l");
    EXPECT_TRUE(OkEnabled());
    SetText(kName, L"");
    EXPECT_FALSE(OkEnabled());
    SetText(kName, L" ");
    EXPECT_TRUE(OkEnabled());
}

TEST_F(AddCommandDialog, IsNotConfirmedByEnterWhileSomethingIsMissing) {
    Open();
    SetText(kName, L"n");

    Command(IDOK);

    EXPECT_FALSE(dialog->Answer());
}

TEST_F(AddCommandDialog, TakesTheTextsAsTheyStand) {
    Open(SearchCommand{3, L"a", L"b", L"c"});
    SetText(kName, L" \"名前\" ");
    SetText(kLine, L" ;x=<%Search%> ");
    SetText(kComment, L"");

    Command(IDOK);

    EXPECT_EQ(dialog->Answer(), (SearchCommand{3, L" \"名前\" ", L" ;x=<%Search%> ", L""}));
}

TEST_F(AddCommandDialog, HasNoAnswerWhenItIsCancelled) {
    Open(SearchCommand{3, L"a", L"b", L"c"});
    SetText(kName, L"x");

    Command(IDCANCEL);

    EXPECT_FALSE(dialog->Answer());
    EXPECT_TRUE(dialog->WasOpened());
}

TEST_F(AddCommandDialog, LimitsWhatIsTypedIntoNameAndComment) {
    Open();

    Type(kName, std::wstring(26, L'n'));
    Type(kComment, std::wstring(151, L'c'));

    EXPECT_EQ(Text(kName).size(), 25U);
    EXPECT_EQ(Text(kComment).size(), 150U);
}

TEST_F(AddCommandDialog, LimitsWhatIsPastedIntoNameAndComment) {
    Open();
    CopyText(std::wstring(200, L'あ'));

    for (const int id : {kName, kLine, kComment}) Send(Control(id), WM_PASTE);

    EXPECT_EQ(Text(kName).size(), 25U);
    EXPECT_EQ(Text(kLine).size(), 200U);
    EXPECT_EQ(Text(kComment).size(), 150U);
}

TEST_F(AddCommandDialog, PastesSeveralLinesWholeIntoEachField) {
    Open();
    CopyText(L"a\r\nb");

    for (const int id : {kName, kLine, kComment}) {
        Send(Control(id), WM_PASTE);
        EXPECT_EQ(Text(id), L"a b") << id;
    }
}

TEST_F(AddCommandDialog, TakesAsMuchOfACommandLineAsAFileGivesBack) {
    Open();
    SetText(kLine, std::wstring(4094, L'x'));
    Send(Control(kLine), EM_SETSEL, 4094, 4094);

    Type(kLine, L"yz");

    EXPECT_EQ(Text(kLine), std::wstring(4094, L'x') + L"y");
}

TEST_F(AddCommandDialog, InsertsNoPlaceholderThatAFileWouldCut) {
    Open();
    const std::wstring line(4085, L'x');
    SetText(kLine, line);
    SelectInLine(4085, 4085);
    Insert(0);
    EXPECT_EQ(Text(kLine), line + L"<%Search%>");

    SelectInLine(0, 9);
    Insert(0);
    EXPECT_EQ(Text(kLine), line + L"<%Search%>");
    Insert(7);
    EXPECT_EQ(Text(kLine), L"<%Hidemaru%>");
}

TEST_F(AddCommandDialog, LeavesStoredTextsBeyondTheLimitsWhole) {
    const SearchCommand stored{1, std::wstring(60, L'n'), std::wstring(40'000, L'l'), std::wstring(400, L'c')};
    Open(stored);

    Command(IDOK);

    EXPECT_TRUE(dialog->Answer() == stored);
}

TEST_F(AddCommandDialog, InsertsATextPlaceholderInPlaceOfTheSelection) {
    Open();
    for (int i = 0; i < 5; ++i) {
        SetText(kLine, L"http://a/abc/z");
        SelectInLine(9, 12);

        Insert(i);

        const std::wstring placeholder{std::wstring_view{Text(kLine)}.substr(9, Text(kLine).size() - 11)};
        EXPECT_EQ(Text(kLine), L"http://a/" + placeholder + L"/z");
        EXPECT_TRUE(placeholder.starts_with(L"<%Search") && placeholder.ends_with(L"%>")) << i;
    }
}

TEST_F(AddCommandDialog, InsertsATextPlaceholderAtTheCaretAndGoesOnBehindIt) {
    Open();
    SetText(kLine, L"ab");
    SelectInLine(1, 1);

    Insert(0);

    EXPECT_EQ(Text(kLine), L"a<%Search%>b");
    EXPECT_EQ(::GetFocus(), Control(kLine));
    EXPECT_EQ(SelectionInLine(), (std::pair{11, 11}));
}

TEST_F(AddCommandDialog, InsertsEverythingAtTheStart) {
    Open();
    SetText(kLine, L" -s abc");
    SelectInLine(2, 5);

    Insert(5);

    EXPECT_EQ(Text(kLine), L"<%Everything%> -s abc");
    EXPECT_EQ(SelectionInLine(), (std::pair{14, 14}));
}

TEST_F(AddCommandDialog, LeavesOnlyAnEditorsPlaceholder) {
    Open();
    for (const auto& [row, text] : {std::pair{6, L"<%EmEditor%>"}, std::pair{7, L"<%Hidemaru%>"}}) {
        SetText(kLine, L"http://a/<%Search%>");
        SelectInLine(2, 5);

        Insert(row);

        EXPECT_EQ(Text(kLine), text);
    }
}

TEST_F(AddCommandDialog, TakesBackEachInsertion) {
    Open();
    for (int i = 0; i < 8; ++i) {
        SetText(kLine, L"http://a/abc");
        SelectInLine(9, 12);
        Insert(i);
        ASSERT_NE(Text(kLine), L"http://a/abc") << i;

        Send(Control(kLine), EM_UNDO);

        EXPECT_EQ(Text(kLine), L"http://a/abc") << i;
    }
}

TEST_F(AddCommandDialog, CanBeConfirmedOnceAPlaceholderIsInserted) {
    Open();
    SetText(kName, L"n");

    Insert(7);

    EXPECT_TRUE(OkEnabled());
}

TEST_F(AddCommandDialog, SaysWhatToWriteWhileTheCommandLineHasTheFocusOrTheMouse) {
    Open();
    EXPECT_EQ(Text(kHint), L"");
    const std::wstring hint = L"アドレスなどを入力し、検索語句の入る位置に変数を挿入します。";

    SendMouse(Control(kLine), WM_MOUSEMOVE, {3, 3});
    EXPECT_EQ(Text(kHint), hint);
    ::SetFocus(Control(kLine));
    Send(Control(kLine), WM_MOUSELEAVE);
    EXPECT_EQ(Text(kHint), hint);
    ::SetFocus(Control(kComment));
    EXPECT_EQ(Text(kHint), L"");
}

TEST_F(AddCommandDialog, OpensItsHelpByButtonAndKey) {
    Open();

    Command(1009);
    Send(dialog->Handle(), WM_HELP);

    EXPECT_EQ(help.log, L"addcmd.html\naddcmd.html\n");
    EXPECT_EQ(help.asker, dialog->Handle());
}
