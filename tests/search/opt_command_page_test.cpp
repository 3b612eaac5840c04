#include "search/opt_command_page.h"

#include <gmock/gmock.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "base/format_text.h"
#include "framework/centred_message_box.h"
#include "framework/gdi.h"
#include "framework/window_text.h"
#include "search/user_command_file.h"
#include "settings/ini_backend.h"
#include "settings/logic/setting_keys.h"
#include "tests/support/dialog_host.h"
#include "tests/support/dialog_walk.h"
#include "tests/support/fake_help.h"
#include "tests/support/fake_store.h"
#include "tests/support/fake_user_file.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/message_count.h"
#include "tests/support/modal_dialog_answer.h"
#include "tests/support/pump.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::search;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kStatus = 1001;
constexpr int kPriority = 1012;
constexpr int kStandardRadio = 1026;
constexpr int kUserRadio = 1027;
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
constexpr int kEditorName = 1039;
constexpr int kEditorLine = 1040;
constexpr int kEditorComment = 1041;

constexpr const wchar_t* kTitle = L"オプション - 検索コマンドの設定";

class OptCommandPage : public test::WindowTest {
protected:
    test::FakeStore settings;
    test::FakeStore standard;
    test::FakeStore user;
    test::FakeUserFile file{user};
    test::FakeHelp help;
    test::DialogHost dialog{kTitle};
    std::unique_ptr<COptCommandPage> page;

    static void Fill(test::FakeStore& store, int count, const wchar_t* letter) {
        for (int i = 1; i <= count; ++i) {
            auto& section = store.sections[settings::section::SearchCommand(i)];
            section[L"CommandName"] = base::FormatText(L"%s%d", std::wstring_view{letter}, i);
            section[L"CommandLine"] = base::FormatText(L"line %d", i);
            section[L"Comment"] = base::FormatText(L"about %d", i);
        }
    }
    void Set(const wchar_t* name, test::FakeStore::Value value) {
        settings.sections[L"Settings"][name] = std::move(value);
    }
    static std::wstring NumbersTo(int last) {
        std::wstring list;
        for (int i = 1; i <= last; ++i) list += base::FormatText(L"%d,", i);
        return list;
    }
    // A page with so many commands, of which the first ones are checked.
    void Open(int standardCommands, int userCommands, int standardChecked = 0, int userChecked = 0) {
        Fill(standard, standardCommands, L"s");
        Fill(user, userCommands, L"u");
        Set(L"DefaultSearchCommand", NumbersTo(standardChecked));
        Set(L"UserSearchCommand", NumbersTo(userChecked));
        Reopen();
    }
    void Reopen() {
        page = MakePage();
        settings.log.clear();
        user.log.clear();
    }
    std::unique_ptr<COptCommandPage> MakePage() {
        auto made = std::make_unique<COptCommandPage>(SearchStores{settings, standard, user}, file, help);
        EXPECT_TRUE(made->Create(dialog.Handle()));
        ::ShowWindow(made->Handle(), SW_SHOW);
        return made;
    }
    void TearDown() override { page.reset(); }

    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(page->Handle(), id); }
    [[nodiscard]] std::wstring Text(int id) const { return fw::WindowText(Control(id)); }
    void Press(int id) { Send(Control(id), BM_CLICK); }
    void Command(int id) { Send(page->Handle(), WM_COMMAND, static_cast<WPARAM>(id)); }
    [[nodiscard]] bool Visible(int id) const { return (::GetWindowLongPtrW(Control(id), GWL_STYLE) & WS_VISIBLE) != 0; }
    [[nodiscard]] std::wstring Cell(int list, int row, int column) const {
        std::wstring text(512, L'\0');
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        text.resize(static_cast<std::size_t>(
            Send(Control(list), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item))));
        return text;
    }
    [[nodiscard]] int RowCount(int list) const { return static_cast<int>(Send(Control(list), LVM_GETITEMCOUNT)); }
    [[nodiscard]] bool Checked(int list, int row) const {
        return Send(Control(list), LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK) ==
               INDEXTOSTATEIMAGEMASK(2);
    }
    // The names as they are on view, with a star before those that are checked.
    [[nodiscard]] std::vector<std::wstring> Rows(int list) const {
        std::vector<std::wstring> rows;
        for (int i = 0; i < RowCount(list); ++i) rows.push_back((Checked(list, i) ? L"*" : L"") + Cell(list, i, 0));
        return rows;
    }
    [[nodiscard]] int Selected(int list) const {
        return static_cast<int>(Send(Control(list), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    }
    void SetState(int list, int row, UINT state, UINT mask) {
        LVITEMW item{};
        item.state = state;
        item.stateMask = mask;
        Send(Control(list), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
    // As the arrow keys do.
    void Select(int list, int row) { SetState(list, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED); }
    void SelectUser(int row) {
        Press(kUserRadio);
        Select(kUserList, row);
    }
    // As Space does.
    void Check(int list, int row, bool checked = true) {
        SetState(list, row, INDEXTOSTATEIMAGEMASK(checked ? 2 : 1), LVIS_STATEIMAGEMASK);
    }
    [[nodiscard]] POINT Middle(int list, int row, int part) const {
        RECT place{part, 0, 0, 0};
        Send(Control(list), LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
        return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    }
    void DoubleClick(int list, POINT at) {
        Click(Control(list), at);
        SendMouse(Control(list), WM_LBUTTONDBLCLK, at, MK_LBUTTON);
        SendMouse(Control(list), WM_LBUTTONUP, at);
        Pump();
    }
    // The enabled ones of the nine buttons.
    [[nodiscard]] std::vector<int> EnabledButtons() const {
        std::vector<int> enabled;
        for (const int id : {kUp, kDown, kAdd, kEdit, kCopy, kPaste, kCheckAll, kUncheckAll, kDelete})
            if (::IsWindowEnabled(Control(id))) enabled.push_back(id);
        return enabled;
    }
};

} // namespace

TEST_F(OptCommandPage, NamesItsControls) {
    Open(1, 0);

    EXPECT_EQ(Text(kStandardRadio), L"標準コマンド(&S)");
    EXPECT_EQ(Text(kUserRadio), L"ユーザー定義コマンド(&T)");
    EXPECT_EQ(Text(kUp), L"上へ移動(&U)");
    EXPECT_EQ(Text(kDown), L"下へ移動(&D)");
    EXPECT_EQ(Text(kAdd), L"追加(&A)...");
    EXPECT_EQ(Text(kEdit), L"編集(&E)...");
    EXPECT_EQ(Text(kCopy), L"コピー(&C)");
    EXPECT_EQ(Text(kPaste), L"貼り付け(&P)");
    EXPECT_EQ(Text(kCheckAll), L"全て選択(&I)");
    EXPECT_EQ(Text(kUncheckAll), L"全て解除(&O)");
    EXPECT_EQ(Text(kDelete), L"削除(&X)");
    EXPECT_EQ(Text(kPriority), L"ユーザー定義コマンドを優先してメニューに表示する(&M)");
}

TEST_F(OptCommandPage, HasALabelRightBeforeEachListAndTheDetails) {
    Open(1, 0);

    const auto labelOf = [&](int id) { return fw::WindowText(::GetWindow(Control(id), GW_HWNDPREV)); };
    EXPECT_EQ(labelOf(kStandardList), L"標準コマンドの一覧(&L):");
    EXPECT_EQ(labelOf(kUserList), L"ユーザー定義コマンドの一覧(&L):");
    EXPECT_EQ(labelOf(kDetails), L"選択したコマンドの内容(&V):");
}

TEST_F(OptCommandPage, IsWalkedThroughInTheOrderOfItsControls) {
    Open(3, 3, 1, 1);
    SelectUser(1);
    Press(kCopy);

    const std::vector<int> order = test::TabOrder(page->Handle(), kUserRadio);

    EXPECT_THAT(order, ElementsAre(kUserRadio, kUserList, kUp, kDown, kAdd, kEdit, kCopy, kPaste, kCheckAll,
                                   kUncheckAll, kDelete, kDetails, kPriority));
}

TEST_F(OptCommandPage, GivesNoAccessKeyTwiceButToTheListsOfWhichOneIsShown) {
    Open(1, 1);

    EXPECT_EQ(test::AccessKeys(page->Handle()), L"ACDEILLMOPSTUVX");
}

TEST_F(OptCommandPage, ShowsListsWithCheckBoxesAndOneSelection) {
    Open(1, 0);

    for (const int id : {kStandardList, kUserList}) {
        const auto style = static_cast<DWORD>(::GetWindowLongPtrW(Control(id), GWL_STYLE));
        constexpr DWORD kStyle = LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER;
        constexpr LRESULT kLook = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;
        EXPECT_EQ(style & kStyle, kStyle) << id;
        EXPECT_EQ(Send(Control(id), LVM_GETEXTENDEDLISTVIEWSTYLE) & kLook, kLook) << id;
    }
}

TEST_F(OptCommandPage, HeadsItsColumnsAndNeedsNoHorizontalScrollBar) {
    Open(150, 50);

    for (const int id : {kStandardList, kUserList}) {
        int width = 0;
        std::vector<std::wstring> heads;
        for (WPARAM column = 0; column < 2; ++column) {
            std::array<wchar_t, 32> text{};
            LVCOLUMNW data{};
            data.mask = LVCF_TEXT;
            data.pszText = text.data();
            data.cchTextMax = static_cast<int>(text.size());
            Send(Control(id), LVM_GETCOLUMNW, column, reinterpret_cast<LPARAM>(&data));
            heads.emplace_back(text.data());
            width += static_cast<int>(Send(Control(id), LVM_GETCOLUMNWIDTH, column));
        }
        EXPECT_THAT(heads, ElementsAre(L"名前", L"概要")) << id;
        EXPECT_LE(width, fw::ClientRect(Control(id)).Width()) << id;
        EXPECT_EQ(::GetWindowLongPtrW(Control(id), GWL_STYLE) & WS_HSCROLL, 0) << id;
    }
}

TEST_F(OptCommandPage, ShowsTheStandardCommandsFirst) {
    Open(3, 2, 1, 2);

    EXPECT_TRUE(Visible(kStandardList));
    EXPECT_FALSE(Visible(kUserList));
    EXPECT_EQ(Send(Control(kStandardRadio), BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(Send(Control(kUserRadio), BM_GETCHECK), BST_UNCHECKED);
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"*s1", L"s2", L"s3"));
    EXPECT_EQ(Selected(kStandardList), -1);
    EXPECT_EQ(Text(kStatus), L"選択コマンド数: 1 (標準コマンド数: 3)");
    EXPECT_EQ(Text(kDetails), L"");
}

TEST_F(OptCommandPage, ShowsTheUsersCommandsInstead) {
    Open(3, 2, 1, 2);

    Press(kUserRadio);

    EXPECT_FALSE(Visible(kStandardList));
    EXPECT_TRUE(Visible(kUserList));
    EXPECT_EQ(Send(Control(kUserRadio), BM_GETCHECK), BST_CHECKED);
    EXPECT_THAT(Rows(kUserList), ElementsAre(L"*u1", L"*u2"));
    EXPECT_EQ(Text(kStatus), L"選択コマンド数: 2 (ユーザー定義コマンド数: 2)");

    Press(kStandardRadio);
    EXPECT_TRUE(Visible(kStandardList));
    EXPECT_FALSE(Visible(kUserList));
}

TEST_F(OptCommandPage, ShowsTheStandardCommandsInTheStoredOrder) {
    Set(L"SearchCommandOrder", std::wstring{L"3,1,2"});

    Open(3, 0, 1);

    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"s3", L"*s1", L"s2"));
}

TEST_F(OptCommandPage, SaysTheCommentOrElseTheLineBesideTheName) {
    Fill(user, 2, L"u");
    user.sections[L"SearchCommand_02"].erase(L"Comment");

    Reopen();

    EXPECT_EQ(Cell(kUserList, 0, 1), L"about 1");
    EXPECT_EQ(Cell(kUserList, 1, 1), L"line 2");
}

TEST_F(OptCommandPage, TellsAllOfTheSelectedCommand) {
    Open(2, 0);

    Select(kStandardList, 1);
    EXPECT_EQ(Text(kDetails), L"コマンド 名: s2\r\nコマンド 文字列: line 2\r\nコマンド の概要: about 2");

    SetState(kStandardList, 1, 0, LVIS_SELECTED);
    test::PumpMessages();
    EXPECT_EQ(Text(kDetails), L"");
}

TEST_F(OptCommandPage, TellsTextsOfAnyLength) {
    const std::wstring name(60, L'n');
    const std::wstring line(40'000, L'l');
    const std::wstring comment(400, L'c');
    user.sections[L"SearchCommand_01"] = {{L"CommandName", name}, {L"CommandLine", line}, {L"Comment", comment}};
    Reopen();

    SelectUser(0);

    EXPECT_EQ(Cell(kUserList, 0, 0), name);
    EXPECT_TRUE(Text(kDetails) ==
                L"コマンド 名: " + name + L"\r\nコマンド 文字列: " + line + L"\r\nコマンド の概要: " + comment);
}

TEST_F(OptCommandPage, ChecksThePriorityOnlyForOne) {
    Open(1, 0);
    EXPECT_EQ(Send(Control(kPriority), BM_GETCHECK), BST_CHECKED);

    for (const int value : {0, 2}) {
        Set(L"PriorityUserCommand", value);
        Reopen();
        EXPECT_EQ(Send(Control(kPriority), BM_GETCHECK), BST_UNCHECKED) << value;
    }
}

TEST_F(OptCommandPage, OpensWithoutAnyCommand) {
    Reopen();

    EXPECT_THAT(EnabledButtons(), IsEmpty());
    Press(kUserRadio);
    EXPECT_THAT(EnabledButtons(), ElementsAre(kAdd));
    EXPECT_EQ(Text(kStatus), L"選択コマンド数: 0 (ユーザー定義コマンド数: 0)");
}

TEST_F(OptCommandPage, EnablesWhatCanBeDone) {
    Open(3, 3, 1, 1);
    EXPECT_THAT(EnabledButtons(), ElementsAre(kCheckAll, kUncheckAll));

    Select(kStandardList, 0);
    EXPECT_THAT(EnabledButtons(), ElementsAre(kDown, kCopy, kCheckAll, kUncheckAll));
    Select(kStandardList, 2);
    EXPECT_THAT(EnabledButtons(), ElementsAre(kUp, kCopy, kCheckAll, kUncheckAll));
    Check(kStandardList, 0, false);
    EXPECT_THAT(EnabledButtons(), ElementsAre(kUp, kCopy, kCheckAll));

    Press(kUserRadio);
    EXPECT_THAT(EnabledButtons(), ElementsAre(kAdd, kCheckAll, kUncheckAll));
    Select(kUserList, 1);
    EXPECT_THAT(EnabledButtons(), ElementsAre(kUp, kDown, kAdd, kEdit, kCopy, kCheckAll, kUncheckAll, kDelete));
    Press(kCopy);
    EXPECT_THAT(EnabledButtons(), ElementsAre(kUp, kDown, kAdd, kEdit, kCopy, kPaste, kCheckAll, kUncheckAll, kDelete));
}

TEST_F(OptCommandPage, GreysAddingAt50) {
    Open(1, 49);
    Press(kUserRadio);
    EXPECT_TRUE(::IsWindowEnabled(Control(kAdd)));

    test::ModalDialogAnswer answer{kEditorLine, IDOK, [](HWND editor) {
                                       ::SetDlgItemTextW(editor, kEditorName, L"n");
                                       ::SetDlgItemTextW(editor, kEditorLine, L"l");
                                   }};
    Press(kAdd);

    EXPECT_EQ(RowCount(kUserList), 50);
    EXPECT_FALSE(::IsWindowEnabled(Control(kAdd)));
    Command(kAdd);
    EXPECT_EQ(answer.Count(), 1);
}

TEST_F(OptCommandPage, ChecksByClickAndBySpace) {
    Open(3, 0);
    Select(kStandardList, 1);
    ::SetFocus(Control(kStandardList));

    Send(Control(kStandardList), WM_KEYDOWN, VK_SPACE);
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"s1", L"*s2", L"s3"));
    EXPECT_EQ(Text(kStatus), L"選択コマンド数: 1 (標準コマンド数: 3)");

    POINT box = Middle(kStandardList, 2, LVIR_LABEL);
    RECT label{LVIR_LABEL, 0, 0, 0};
    Send(Control(kStandardList), LVM_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&label));
    box.x = label.left / 2;
    Click(Control(kStandardList), box);
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"s1", L"*s2", L"*s3"));
    EXPECT_EQ(Text(kStatus), L"選択コマンド数: 2 (標準コマンド数: 3)");
}

TEST_F(OptCommandPage, RefusesThe51stCheckWithOneMessage) {
    Open(40, 20, 38, 12);
    test::MessageBoxAnswer answer{IDOK};

    Check(kStandardList, 39);
    EXPECT_EQ(answer.Count(), 0);
    Pump();

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.Caption(), L"Korvane");
    EXPECT_EQ(answer.Text(),
              L"選択可能な最大コマンド数は [標準コマンド] と [ユーザー定義コマンド] をあわせて 50 個です。\n\n"
              L"※ [ユーザー定義コマンド] で現在 12 個のコマンドが選択されています。");
    EXPECT_FALSE(Checked(kStandardList, 39));
    EXPECT_EQ(Text(kStatus), L"選択コマンド数: 38 (標準コマンド数: 40)");

    Check(kStandardList, 0, false);
    Check(kStandardList, 39);
    Pump();
    EXPECT_EQ(answer.Count(), 1);
    EXPECT_TRUE(Checked(kStandardList, 39));
}

TEST_F(OptCommandPage, NamesTheOtherListWhenTheUsersListIsFull) {
    Open(40, 20, 38, 12);
    Press(kUserRadio);
    test::MessageBoxAnswer answer{IDOK};

    Check(kUserList, 15);
    Pump();

    EXPECT_EQ(answer.Text(),
              L"選択可能な最大コマンド数は [標準コマンド] と [ユーザー定義コマンド] をあわせて 50 個です。\n\n"
              L"※ [標準コマンド] で現在 38 個のコマンドが選択されています。");
}

TEST_F(OptCommandPage, ChecksAllUntilTheLimitIsMetAndSaysSoOnce) {
    Open(40, 14, 39, 10);
    Press(kUserRadio);
    test::MessageBoxAnswer answer{IDOK};

    Press(kCheckAll);
    Pump();

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.Text(),
              L"選択可能な最大コマンド数は [標準コマンド] と [ユーザー定義コマンド] をあわせて 50 個です。\n\n"
              L"※ [標準コマンド] で現在 39 個のコマンドが選択されています。");
    EXPECT_TRUE(Checked(kUserList, 10));
    EXPECT_FALSE(Checked(kUserList, 11));
    EXPECT_FALSE(::IsWindowEnabled(Control(kCheckAll)));
}

TEST_F(OptCommandPage, ChecksAndUnchecksAll) {
    Open(3, 2, 1, 1);

    Press(kCheckAll);
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"*s1", L"*s2", L"*s3"));
    EXPECT_EQ(Text(kStatus), L"選択コマンド数: 3 (標準コマンド数: 3)");

    Press(kUncheckAll);
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"s1", L"s2", L"s3"));
    Press(kUserRadio);
    EXPECT_THAT(Rows(kUserList), ElementsAre(L"*u1", L"u2"));
}

TEST_F(OptCommandPage, MovesTheSelectedCommandWithItsCheck) {
    Open(3, 0, 1);
    Select(kStandardList, 0);

    Press(kDown);
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"s2", L"*s1", L"s3"));
    EXPECT_EQ(Selected(kStandardList), 1);
    Press(kDown);
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"s2", L"s3", L"*s1"));
    EXPECT_EQ(Selected(kStandardList), 2);
    Press(kUp);
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"s2", L"*s1", L"s3"));
    EXPECT_EQ(Selected(kStandardList), 1);
}

TEST_F(OptCommandPage, GivesTheListTheFocusOfAButtonThatIsGreyed) {
    Open(2, 0);
    Select(kStandardList, 0);
    ::SetFocus(Control(kDown));

    Press(kDown);

    EXPECT_FALSE(::IsWindowEnabled(Control(kDown)));
    EXPECT_EQ(::GetFocus(), Control(kStandardList));
}

TEST_F(OptCommandPage, AddsACommandAtTheEndAndSelectsIt) {
    Open(1, 2);
    SelectUser(0);
    std::wstring title;
    test::ModalDialogAnswer answer{kEditorLine, IDOK, [&](HWND editor) {
                                       title = fw::WindowText(editor);
                                       ::SetDlgItemTextW(editor, kEditorName, L"new");
                                       ::SetDlgItemTextW(editor, kEditorLine, L"line");
                                       ::SetDlgItemTextW(editor, kEditorComment, L"comment");
                                   }};

    Press(kAdd);

    EXPECT_EQ(title, L"ユーザー定義コマンド の追加");
    EXPECT_THAT(Rows(kUserList), ElementsAre(L"u1", L"u2", L"new"));
    EXPECT_EQ(Cell(kUserList, 2, 1), L"comment");
    EXPECT_EQ(Selected(kUserList), 2);
    EXPECT_EQ(Text(kStatus), L"選択コマンド数: 0 (ユーザー定義コマンド数: 3)");
}

TEST_F(OptCommandPage, AddsNothingWhenTheEditorIsCancelled) {
    Open(1, 1);
    Press(kUserRadio);
    test::ModalDialogAnswer answer{kEditorLine, IDCANCEL};

    Press(kAdd);

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(RowCount(kUserList), 1);
}

TEST_F(OptCommandPage, EditsTheSelectedCommandInItsPlace) {
    Open(1, 3, 0, 3);
    SelectUser(1);
    std::vector<std::wstring> shown;
    test::ModalDialogAnswer answer{kEditorLine, IDOK, [&](HWND editor) {
                                       shown.push_back(fw::WindowText(editor));
                                       for (const int id : {kEditorName, kEditorLine, kEditorComment})
                                           shown.push_back(fw::WindowText(::GetDlgItem(editor, id)));
                                       ::SetDlgItemTextW(editor, kEditorName, L"new");
                                   }};

    Press(kEdit);

    EXPECT_THAT(shown, ElementsAre(L"ユーザー定義コマンド の編集", L"u2", L"line 2", L"about 2"));
    EXPECT_THAT(Rows(kUserList), ElementsAre(L"*u1", L"*new", L"*u3"));
    EXPECT_EQ(Selected(kUserList), 1);
    EXPECT_TRUE(Text(kDetails).starts_with(L"コマンド 名: new\r\n"));
}

TEST_F(OptCommandPage, EditsWithADoubleClickAndKeepsTheCheck) {
    Open(1, 2, 0, 1);
    Press(kUserRadio);
    test::ModalDialogAnswer answer{kEditorLine, IDCANCEL};

    DoubleClick(kUserList, Middle(kUserList, 0, LVIR_LABEL));

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_THAT(Rows(kUserList), ElementsAre(L"*u1", L"u2"));
    EXPECT_EQ(Selected(kUserList), 0);
}

TEST_F(OptCommandPage, EditsNothingWithADoubleClickElsewhere) {
    Open(1, 1, 1, 1);
    test::ModalDialogAnswer answer{kEditorLine, IDCANCEL};

    DoubleClick(kStandardList, Middle(kStandardList, 0, LVIR_LABEL));
    Press(kUserRadio);
    POINT box = Middle(kUserList, 0, LVIR_BOUNDS);
    box.x = 8;
    DoubleClick(kUserList, box);
    DoubleClick(kUserList, {50, fw::ClientRect(Control(kUserList)).Height() - 4});

    EXPECT_EQ(answer.Count(), 0);
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"*s1"));
}

TEST_F(OptCommandPage, EditsWithF2) {
    Open(1, 1);
    SelectUser(0);
    test::ModalDialogAnswer answer{kEditorLine, IDCANCEL};

    Send(Control(kUserList), WM_KEYDOWN, VK_F2);
    Pump();

    EXPECT_EQ(answer.Count(), 1);
}

TEST_F(OptCommandPage, PastesAStandardCommandAmongTheUsers) {
    Open(2, 3, 2, 3);
    Select(kStandardList, 1);
    Press(kCopy);
    SelectUser(1);

    Press(kPaste);

    EXPECT_THAT(Rows(kUserList), ElementsAre(L"*u1", L"s2", L"*u2", L"*u3"));
    EXPECT_EQ(Selected(kUserList), 1);
}

TEST_F(OptCommandPage, PastesAtTheEndWithNothingSelected) {
    Open(2, 2);
    Select(kStandardList, 0);
    Press(kCopy);
    Press(kUserRadio);

    Press(kPaste);

    EXPECT_THAT(Rows(kUserList), ElementsAre(L"u1", L"u2", L"s1"));
    EXPECT_EQ(Selected(kUserList), 2);
}

TEST_F(OptCommandPage, AsksBeforeItDeletes) {
    Open(1, 2);
    SelectUser(0);
    for (const int button : {IDNO, IDCANCEL}) {
        test::MessageBoxAnswer answer{button};

        Press(kDelete);

        EXPECT_EQ(answer.Caption(), L"Korvane");
        EXPECT_EQ(answer.Text(), L"\"u1\" コマンドを削除します。よろしいですか？");
        EXPECT_EQ(RowCount(kUserList), 2) << button;
    }
}

TEST_F(OptCommandPage, DeletesAndSelectsWhatTookThePlace) {
    Open(1, 3, 0, 3);
    SelectUser(1);
    test::MessageBoxAnswer answer{IDYES};

    Press(kDelete);
    EXPECT_THAT(Rows(kUserList), ElementsAre(L"*u1", L"*u3"));
    EXPECT_EQ(Selected(kUserList), 1);
    EXPECT_EQ(Text(kStatus), L"選択コマンド数: 2 (ユーザー定義コマンド数: 2)");
    Press(kDelete);
    EXPECT_EQ(Selected(kUserList), 0);
    Press(kDelete);
    EXPECT_EQ(RowCount(kUserList), 0);
    EXPECT_EQ(Text(kDetails), L"");
    EXPECT_FALSE(::IsWindowEnabled(Control(kDelete)));
}

TEST_F(OptCommandPage, DeletesWithTheDeleteKeyInTheUsersListOnly) {
    Open(2, 2);
    Select(kStandardList, 0);
    test::MessageBoxAnswer answer{IDYES};

    Send(Control(kStandardList), WM_KEYDOWN, VK_DELETE);
    Pump();
    EXPECT_EQ(answer.Count(), 0);

    Press(kUserRadio);
    Send(Control(kUserList), WM_KEYDOWN, VK_DELETE);
    Pump();
    EXPECT_EQ(answer.Count(), 0);

    Select(kUserList, 0);
    Send(Control(kUserList), WM_KEYDOWN, VK_DELETE);
    Pump();
    EXPECT_EQ(answer.Count(), 1);
    EXPECT_THAT(Rows(kUserList), ElementsAre(L"u2"));
}

TEST_F(OptCommandPage, IsAcceptedWithOneCheckedCommandInEitherList) {
    Open(1, 1, 1, 0);
    EXPECT_EQ(Send(page->Handle(), WM_APP + 10), 0);

    Check(kStandardList, 0, false);
    Press(kUserRadio);
    Check(kUserList, 0);
    EXPECT_EQ(Send(page->Handle(), WM_APP + 10), 0);
}

TEST_F(OptCommandPage, IsRefusedWithNothingChecked) {
    Open(1, 1);
    test::MessageBoxAnswer answer{IDOK};

    EXPECT_NE(Send(page->Handle(), WM_APP + 10), 0);

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.Caption(), L"Korvane");
    EXPECT_EQ(answer.Text(), L"使用する検索コマンドをひとつ以上選択する必要があります。");
}

TEST_F(OptCommandPage, SavesPriorityThenStandardThenUserCommands) {
    Open(3, 2, 1, 1);
    Select(kStandardList, 0);
    Press(kDown);
    Press(kPriority);
    SelectUser(0);
    Press(kDown);

    EXPECT_TRUE(page->Save());

    EXPECT_EQ(settings.log, L"Settings.PriorityUserCommand=0\n"
                            L"Settings.SearchCommandOrder=2,1,3\n"
                            L"Settings.DefaultSearchCommand=1\n"
                            L"Settings.UserSearchCommand=2\n");
    EXPECT_EQ(file.log, L"write;");
    EXPECT_EQ(user.sections.size(), 2U);
    EXPECT_EQ(user.ReadText(L"SearchCommand_02", L"CommandName"), L"u1");
}

TEST_F(OptCommandPage, LeavesTheFileAloneWhenOnlyTheSelectionChanged) {
    Open(1, 2, 1, 1);
    Press(kUserRadio);
    Press(kCheckAll);

    EXPECT_TRUE(page->Save());

    EXPECT_EQ(file.log, L"");
    EXPECT_EQ(settings.ReadText(L"Settings", L"UserSearchCommand"), L"1,2");
}

TEST_F(OptCommandPage, TellsOfAFileThatCouldNotBeReadAndLeavesItAlone) {
    file.condition = FileCondition::kUnreadable;
    test::MessageBoxAnswer answer{IDOK};
    Open(1, 0, 1);

    Pump();

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_TRUE(::IsWindowVisible(dialog.Handle()));
    EXPECT_EQ(answer.Caption(), L"Korvane");
    EXPECT_THAT(answer.Text(),
                testing::StartsWith(L"ユーザー定義コマンドのファイル 'UserCommand.dat' の全部または一部を"));
    EXPECT_THAT(answer.Text(), testing::HasSubstr(L"'UserCommand.bak'"));
    EXPECT_TRUE(page->Save());
    EXPECT_EQ(file.log, L"");
    EXPECT_EQ(answer.Count(), 1);
}

TEST_F(OptCommandPage, SaysNothingOfAFileThatIsAsItShouldBe) {
    test::MessageBoxAnswer answer{IDOK};
    for (const auto condition : {FileCondition::kNone, FileCondition::kGood, FileCondition::kForeign}) {
        file.condition = condition;
        Open(1, 1, 1);

        Pump();

        EXPECT_EQ(answer.Count(), 0);
    }
}

TEST_F(OptCommandPage, KeepsACopyOfAFileThatCouldNotBeReadBeforeItWritesANewOne) {
    file.condition = FileCondition::kUnreadable;
    test::MessageBoxAnswer answer{IDOK};
    Open(1, 0, 1);
    Pump();
    Select(kStandardList, 0);
    Press(kCopy);
    Press(kUserRadio);
    Press(kPaste);

    EXPECT_TRUE(page->Save());

    EXPECT_EQ(file.log, L"copy;write;");
}

TEST_F(OptCommandPage, DeletesTheFileOfAnEmptyUsersList) {
    Open(1, 1, 1, 1);
    SelectUser(0);
    {
        test::MessageBoxAnswer answer{IDYES};
        Press(kDelete);
    }

    EXPECT_TRUE(page->Save());

    EXPECT_EQ(file.log, L"delete;");
}

TEST_F(OptCommandPage, SavesNothingWithoutAWindow) {
    Open(1, 1);
    page.reset();
    COptCommandPage closed{SearchStores{settings, standard, user}, file, help};

    EXPECT_TRUE(closed.Save());

    EXPECT_EQ(settings.log, L"");
    EXPECT_EQ(file.log, L"");
}

TEST_F(OptCommandPage, LeavesAllAsItWasUnlessItIsSaved) {
    Open(2, 2, 1, 1);
    Press(kUncheckAll);
    SelectUser(0);
    Press(kDown);
    Press(kCopy);
    Press(kPaste);

    page.reset();

    EXPECT_EQ(settings.log, L"");
    EXPECT_EQ(user.log, L"");
    EXPECT_EQ(file.log, L"");
}

TEST_F(OptCommandPage, TellsWhyTheUsersCommandsCouldNotBeWrittenAndSavesTheRest) {
    Open(2, 1, 1, 0);
    file.writeError = ERROR_ACCESS_DENIED;
    test::MessageBoxAnswer answer{IDOK};
    SelectUser(0);
    Press(kCopy);
    Press(kPaste);

    EXPECT_TRUE(page->Save());

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.Caption(), L"Korvane");
    EXPECT_EQ(answer.Text(), fw::SystemErrorText(ERROR_ACCESS_DENIED));
    EXPECT_EQ(settings.log, L"Settings.PriorityUserCommand=1\n"
                            L"Settings.SearchCommandOrder=1,2\n"
                            L"Settings.DefaultSearchCommand=1\n");
    EXPECT_EQ(user.ReadText(L"SearchCommand_01", L"CommandName"), L"u1");
}

TEST_F(OptCommandPage, SaysWhenASettingCouldNotBeWritten) {
    for (const int succeed : {0, 1, 2}) {
        Open(2, 0, 1);
        settings.writesThatSucceed = succeed;

        EXPECT_FALSE(page->Save()) << succeed;

        settings.writesThatSucceed = -1;
    }
}

TEST_F(OptCommandPage, WritesAWholeFileAlsoWhenAnotherProgramHasChangedIt) {
    Open(1, 3, 1);
    user.sections[L"SearchCommand_04"][L"CommandName"] = std::wstring{L"of another"};
    SelectUser(1);
    {
        test::MessageBoxAnswer answer{IDYES};
        Press(kDelete);
    }

    EXPECT_TRUE(page->Save());

    EXPECT_EQ(file.log, L"copy;write;");
    EXPECT_EQ(user.sections.size(), 2U);
    EXPECT_EQ(user.ReadText(L"SearchCommand_02", L"CommandName"), L"u3");
    Reopen();
    EXPECT_THAT(Rows(kUserList), ElementsAre(L"u1", L"u3"));
}

TEST_F(OptCommandPage, GetsEveryTextBackFromItsFile) {
    const test::TempFolder folder;
    settings::IniFileStore store{folder.File(L"UserCommand.dat"), settings::LongTexts::kWhole};
    WindowsUserCommandFile realFile{folder.File(L"UserCommand.dat"), L";header\r\n\r\n"};
    const auto open = [&] {
        page = std::make_unique<COptCommandPage>(SearchStores{settings, standard, store}, realFile, help);
        EXPECT_TRUE(page->Create(dialog.Handle()));
        Press(kUserRadio);
    };
    const std::vector<SearchCommand> commands{
        {1, L" 名前 ", L"\"C:\\a b.exe\" \"<%Search_UTF16%>\"", L"; a = b [c]"},
        {2, L"\"quoted\"", L"='<%Search%>'", L""},
        {3, std::wstring(25, L'名'), std::wstring(9'000, L'x'), std::wstring(150, L'概')},
    };

    open();
    for (const SearchCommand& command : commands) {
        const test::ModalDialogAnswer answer{kEditorLine, IDOK, [&](HWND editor) {
                                                 ::SetDlgItemTextW(editor, kEditorName, command.name.c_str());
                                                 ::SetDlgItemTextW(editor, kEditorLine, command.line.c_str());
                                                 ::SetDlgItemTextW(editor, kEditorComment, command.comment.c_str());
                                             }};
        Press(kAdd);
    }
    EXPECT_TRUE(page->Save());
    open();

    EXPECT_EQ(RowCount(kUserList), 3);
    EXPECT_EQ(SearchCommandTable{store}.ReadAll(), commands);
}

TEST_F(OptCommandPage, StandsOnTheWindowColour) {
    Open(1, 0);
    const fw::WindowDc dc{page->Handle()};

    for (const UINT message : {WM_CTLCOLORDLG, WM_CTLCOLORSTATIC, WM_CTLCOLORBTN}) {
        const auto brush = Send(page->Handle(), message, reinterpret_cast<WPARAM>(dc.Get()),
                                reinterpret_cast<LPARAM>(Control(kDetails)));
        EXPECT_EQ(brush, reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_WINDOW))) << message;
        EXPECT_EQ(::GetBkColor(dc.Get()), ::GetSysColor(COLOR_WINDOW)) << message;
    }
}

TEST_F(OptCommandPage, TellsItsListsOfNewColours) {
    Open(1, 0);
    const test::MessageCount told{Control(kStandardList), WM_SYSCOLORCHANGE};

    Send(page->Handle(), WM_SYSCOLORCHANGE);

    EXPECT_EQ(told.Count(), 1);
}

TEST_F(OptCommandPage, GoesFromControlToControlByTab) {
    Open(2, 0);
    ::SetFocus(Control(kStandardRadio));

    std::vector<int> order;
    for (int i = 0; i < 6; ++i) {
        order.push_back(::GetDlgCtrlID(::GetFocus()));
        dialog.Key(WM_KEYDOWN, VK_TAB);
    }

    EXPECT_THAT(order, ElementsAre(kStandardRadio, kStandardList, kCheckAll, kDetails, kPriority, kStandardRadio));
}

TEST_F(OptCommandPage, ReachesItsListByTheAccessKey) {
    Open(2, 2);
    Press(kUserRadio);
    ::SetFocus(Control(kUserRadio));

    dialog.Key(WM_SYSCHAR, L'l');

    EXPECT_EQ(::GetFocus(), Control(kUserList));
}

TEST_F(OptCommandPage, DoesByTheAccessKeysWhatItsButtonsDo) {
    Open(2, 0);
    ::SetFocus(Control(kStandardList));

    dialog.Key(WM_SYSCHAR, L'i');
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"*s1", L"*s2"));
    dialog.Key(WM_SYSCHAR, L'o');
    EXPECT_THAT(Rows(kStandardList), ElementsAre(L"s1", L"s2"));
    dialog.Key(WM_SYSCHAR, L't');
    EXPECT_TRUE(Visible(kUserList));
}
