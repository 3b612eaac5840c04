#include "search/edit_search_dialog.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "framework/window_text.h"
#include "tests/support/dialog_walk.h"
#include "tests/support/fake_help.h"
#include "tests/support/fake_store.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::search;
using testing::ElementsAre;

namespace {

constexpr int kEveryControl[] = {1007, 1010, 1011, 1008, 1022, 1012, 1013, 1014, 1015, 1016, 1017, 1021, 1, 2, 1009};
constexpr int kOptions[] = {1012, 1013, 1014, 1015, 1016, 1017};

class EditSearchDialog : public test::WindowTest {
protected:
    test::TempFolder folder;
    test::FakeStore store;
    test::FakeHelp help;
    std::unique_ptr<CEditSearchDialog> dialog;

    void Open(SearchTool editor = SearchTool::kHidemaru, const std::wstring& text = L"abc") {
        dialog = std::make_unique<CEditSearchDialog>(editor, text, store, help);
        ASSERT_TRUE(dialog->Create(Host()));
    }
    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(dialog->Handle(), id); }
    [[nodiscard]] std::wstring Text(int id) const { return fw::WindowText(Control(id)); }
    void SetText(int id, const std::wstring& text) { ::SetWindowTextW(Control(id), text.c_str()); }
    void Command(int id) { Send(dialog->Handle(), WM_COMMAND, static_cast<WPARAM>(id)); }
    void Check(int id) { Send(Control(id), BM_SETCHECK, BST_CHECKED); }
    [[nodiscard]] bool Checked(int id) const { return Send(Control(id), BM_GETCHECK) == BST_CHECKED; }
    [[nodiscard]] std::vector<std::wstring> OfferedTypes() const {
        const HWND combo = Control(1008);
        std::vector<std::wstring> rows;
        for (LRESULT i = 0; i < Send(combo, CB_GETCOUNT); ++i) {
            const auto row = static_cast<WPARAM>(i);
            std::wstring text(static_cast<std::size_t>(Send(combo, CB_GETLBTEXTLEN, row)), L'\0');
            Send(combo, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text.data()));
            rows.push_back(text);
        }
        return rows;
    }
    test::FakeStore::Value& Kept(const wchar_t* name) { return store.sections[L"Settings\\HidemaruSearch"][name]; }
    void KeepSettings() {
        Kept(L"SaveSettings") = 1;
        Kept(L"ExtensionList") = std::wstring{L"*.pas\n*.inc\n"};
        Kept(L"SearchFolder") = folder.Path() + L"\\";
        std::vector<std::byte> options(24);
        options[4] = options[20] = std::byte{1};
        Kept(L"SearchOption") = options;
    }
};

TEST_F(EditSearchDialog, IsTitledWithTheNameOfTheEditor) {
    Open(SearchTool::kEmEditor);
    EXPECT_EQ(fw::WindowText(dialog->Handle()), L"EmEditor 検索 - 検索オプションの指定");

    Open(SearchTool::kHidemaru);
    EXPECT_EQ(fw::WindowText(dialog->Handle()), L"Hidemaru 検索 - 検索オプションの指定");
}

TEST_F(EditSearchDialog, NamesItsControls) {
    Open();

    EXPECT_EQ(Text(1012), L"大文字と小文字を区別する(&C)");
    EXPECT_EQ(Text(1013), L"サブフォルダも検索する(&U)");
    EXPECT_EQ(Text(1014), L"単語のみ検索する(&W)");
    EXPECT_EQ(Text(1015), L"ファイル名の一覧だけを作成(&L)");
    EXPECT_EQ(Text(1016), L"正規表現を使用する(&R)");
    EXPECT_EQ(Text(1017), L"あいまい検索を有効にする(&M)");
    EXPECT_EQ(Text(1021), L"この設定を保存する(&V)");
    EXPECT_EQ(Text(1), L"OK");
    EXPECT_EQ(Text(2), L"キャンセル");
    EXPECT_EQ(Text(1009), L"ヘルプ");
}

TEST_F(EditSearchDialog, HasTheLabelOfEachFieldRightBeforeIt) {
    Open();

    const auto labelOf = [&](int id) { return fw::WindowText(::GetWindow(Control(id), GW_HWNDPREV)); };
    EXPECT_EQ(labelOf(1007), L"検索する文字列(&S):");
    EXPECT_EQ(labelOf(1010), L"検索するフォルダ(&F):");
    EXPECT_EQ(labelOf(1008), L"ファイルの種類(&E):");
}

TEST_F(EditSearchDialog, IsWalkedThroughInTheOrderOfItsControls) {
    Open();

    const std::vector<int> order = test::TabOrder(dialog->Handle(), 1007);

    EXPECT_THAT(order, testing::ElementsAreArray(kEveryControl));
}

TEST_F(EditSearchDialog, GivesNoAccessKeyTwice) {
    Open();

    EXPECT_EQ(test::AccessKeys(dialog->Handle()), L"BCEFLMRSTUVW");
}

TEST_F(EditSearchDialog, ShowsPicturesOnTheButtonsThatOnlyScreenReadersRead) {
    Open();

    for (const int id : {1011, 1022}) {
        EXPECT_NE(Send(Control(id), BM_GETIMAGE, IMAGE_ICON), 0) << id;
        EXPECT_NE(Text(id), L"") << id;
    }
}

TEST_F(EditSearchDialog, DrawsThePicturesAnewWhenTheColoursChange) {
    Open();
    const LRESULT before = Send(Control(1011), BM_GETIMAGE, IMAGE_ICON);

    Send(dialog->Handle(), WM_SYSCOLORCHANGE);

    EXPECT_NE(Send(Control(1011), BM_GETIMAGE, IMAGE_ICON), 0);
    EXPECT_NE(Send(Control(1011), BM_GETIMAGE, IMAGE_ICON), before);
}

TEST_F(EditSearchDialog, OffersTheUsualTypesAtFirst) {
    Open();

    EXPECT_EQ(Text(1007), L"abc");
    EXPECT_EQ(Text(1010), L"");
    EXPECT_THAT(OfferedTypes(), ElementsAre(L"*.cpp;*.cxx;*.c;*.h;*.inl;*.rc",
                                            L"*.htm;*.html;*.asp;*.aspx;*.shtml;*.shtm;*.css", L"*.txt", L"*.*"));
    EXPECT_EQ(Text(1008), L"*.cpp;*.cxx;*.c;*.h;*.inl;*.rc");
    for (const int id : kOptions) EXPECT_FALSE(Checked(id)) << id;
    EXPECT_FALSE(Checked(1021));
}

TEST_F(EditSearchDialog, ShowsWhatWasKept) {
    KeepSettings();

    Open();

    EXPECT_EQ(Text(1010), folder.Path() + L"\\");
    EXPECT_THAT(OfferedTypes(), ElementsAre(L"*.pas", L"*.inc"));
    EXPECT_EQ(Text(1008), L"*.pas");
    for (const int id : kOptions) EXPECT_EQ(Checked(id), id == 1013 || id == 1017) << id;
    EXPECT_TRUE(Checked(1021));
}

TEST_F(EditSearchDialog, GreysTheFuzzySearchForTheEditorWithoutOne) {
    Open(SearchTool::kEmEditor);
    EXPECT_FALSE(::IsWindowEnabled(Control(1017)));

    Open(SearchTool::kHidemaru);
    EXPECT_TRUE(::IsWindowEnabled(Control(1017)));
}

TEST_F(EditSearchDialog, AsksFirstForWhatIsMissing) {
    Open(SearchTool::kHidemaru, L"");
    EXPECT_EQ(::GetFocus(), Control(1007));

    Open(SearchTool::kHidemaru, L"abc");
    EXPECT_EQ(::GetFocus(), Control(1010));
}

TEST_F(EditSearchDialog, SelectsTheTextWhenNothingIsMissing) {
    KeepSettings();

    Open();

    EXPECT_EQ(::GetFocus(), Control(1007));
    EXPECT_EQ(Send(Control(1007), EM_GETSEL), MAKELRESULT(0, 3));
}

TEST_F(EditSearchDialog, MakesHidemarusArguments) {
    Open();
    SetText(1010, folder.Path());
    SetText(1008, L"*.c");
    Check(1013);
    Check(1017);

    Command(IDOK);

    EXPECT_EQ(dialog->Answer(), (EditorSearchAnswer{L"abc", L"/gCuWORz,\"" + folder.Path() + L"\\*.c\",abc"}));
}

TEST_F(EditSearchDialog, MakesEmEditorsArguments) {
    Open(SearchTool::kEmEditor);
    SetText(1007, L"changed 検索");
    SetText(1010, folder.Path() + L"\\");
    SetText(1008, L"*.c");
    Check(1012);
    Check(1013);

    Command(IDOK);

    EXPECT_EQ(dialog->Answer(), (EditorSearchAnswer{L"changed 検索", L"/fc \"changed 検索\" /fr /cp 1048576 \"" +
                                                                         folder.Path() + L"\\*.c\""}));
}

TEST_F(EditSearchDialog, HandsEachBoxToItsOption) {
    const std::wstring letters = L"CUWORZ";
    for (std::size_t i = 0; i < letters.size(); ++i) {
        Open();
        SetText(1010, folder.Path());
        Check(kOptions[i]);

        Command(IDOK);

        std::wstring expected = letters;
        expected[i] = static_cast<wchar_t>(expected[i] + (L'a' - L'A'));
        EXPECT_EQ(dialog->Answer().value().arguments.substr(0, 8), L"/g" + expected);
    }
}

TEST_F(EditSearchDialog, SaysThatAFolderIsNotThereAndStaysOpen) {
    test::MessageBoxAnswer box{IDOK};
    Open();
    SetText(1010, folder.Path() + L"\\gone");
    ::SetFocus(Control(1007));

    Command(IDOK);

    EXPECT_EQ(box.Count(), 1);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), L"指定されたフォルダ '" + folder.Path() + L"\\gone\\' が見つかりません。");
    EXPECT_EQ(::GetFocus(), Control(1010));
    EXPECT_FALSE(dialog->Answer().has_value());
    EXPECT_EQ(store.log, L"");
}

TEST_F(EditSearchDialog, TakesAnEmptyFolderForMissing) {
    for (const wchar_t* const empty : {L"", L"  "}) {
        test::MessageBoxAnswer box{IDOK};
        Open();
        SetText(1010, empty);

        Command(IDOK);

        EXPECT_EQ(box.Count(), 1);
        EXPECT_FALSE(dialog->Answer().has_value());
    }
}

TEST_F(EditSearchDialog, TakesAFileForNoFolder) {
    folder.Write(L"file", "x");
    test::MessageBoxAnswer box{IDOK};
    Open();
    SetText(1010, folder.File(L"file"));

    Command(IDOK);

    EXPECT_EQ(box.Count(), 1);
}

TEST_F(EditSearchDialog, TakesNoFolderOfAbsurdLength) {
    test::MessageBoxAnswer box{IDOK};
    Open();
    SetText(1010, L"C:\\" + std::wstring(5000, L'f'));

    Command(IDOK);

    EXPECT_EQ(box.Count(), 1);
}

TEST_F(EditSearchDialog, ReportsAKeptFolderThatHasGoneOnlyWhenItIsUsed) {
    test::MessageBoxAnswer box{IDOK};
    KeepSettings();
    Kept(L"SearchFolder") = folder.Path() + L"\\gone\\";
    Open();
    EXPECT_EQ(box.Count(), 0);

    Command(IDOK);

    EXPECT_EQ(box.Count(), 1);
}

TEST_F(EditSearchDialog, KeepsItsSettingsWhenItIsToldTo) {
    Open();
    SetText(1010, folder.Path());
    SetText(1008, L"*.new");
    Check(1014);
    Check(1021);

    Command(IDOK);

    EXPECT_EQ(store.Read(settings::keys::HidemaruSearch.saveSettings), 1);
    EXPECT_EQ(store.Read(settings::keys::HidemaruSearch.searchFolder), folder.Path() + L"\\");
    EXPECT_EQ(store.Read(settings::keys::HidemaruSearch.extensionList),
              L"*.new\n*.cpp;*.cxx;*.c;*.h;*.inl;*.rc\n*.htm;*.html;*.asp;*.aspx;*.shtml;*.shtm;*.css\n*.txt\n*.*\n");
    Open();
    EXPECT_EQ(Text(1008), L"*.new");
    for (const int id : kOptions) EXPECT_EQ(Checked(id), id == 1014) << id;
}

TEST_F(EditSearchDialog, KeepsOnlyThatItKeepsNothing) {
    KeepSettings();
    Open();
    Send(Control(1021), BM_SETCHECK, BST_UNCHECKED);

    Command(IDOK);

    EXPECT_EQ(store.log, L"Settings\\HidemaruSearch.SaveSettings=0\n");
}

TEST_F(EditSearchDialog, KeepsNothingWhenItIsCancelled) {
    Open();
    SetText(1010, folder.Path());
    Check(1021);

    Command(IDCANCEL);

    EXPECT_EQ(store.log, L"");
    EXPECT_FALSE(dialog->Answer().has_value());
}

TEST_F(EditSearchDialog, KeepsNoEleventhType) {
    KeepSettings();
    Kept(L"ExtensionList") = std::wstring{L"*.1\n*.2\n*.3\n*.4\n*.5\n*.6\n*.7\n*.8\n*.9\n*.10\n"};
    Open();
    SetText(1008, L"*.11");

    Command(IDOK);

    EXPECT_EQ(store.Read(settings::keys::HidemaruSearch.extensionList),
              L"*.11\n*.1\n*.2\n*.3\n*.4\n*.5\n*.6\n*.7\n*.8\n*.9\n");
}

TEST_F(EditSearchDialog, AddsATypedPatternToTheList) {
    KeepSettings();
    Open();
    SetText(1008, L"*.new");

    Command(ID_ADD_FILE_TYPE);

    EXPECT_THAT(OfferedTypes(), ElementsAre(L"*.new", L"*.pas", L"*.inc"));
    EXPECT_EQ(Text(1008), L"*.new");
}

TEST_F(EditSearchDialog, RemovesThePatternFromListAndField) {
    KeepSettings();
    Open();

    Command(ID_REMOVE_FILE_TYPE);
    EXPECT_THAT(OfferedTypes(), ElementsAre(L"*.inc"));
    EXPECT_EQ(Text(1008), L"*.inc");

    Command(ID_REMOVE_FILE_TYPE);
    EXPECT_THAT(OfferedTypes(), ElementsAre());
    EXPECT_EQ(Text(1008), L"");
}

TEST_F(EditSearchDialog, RestoresTheUsualListAndLeavesTheFieldAlone) {
    KeepSettings();
    Open();

    Command(ID_RESTORE_FILE_TYPES);

    EXPECT_EQ(OfferedTypes().size(), 4u);
    EXPECT_EQ(Text(1008), L"*.pas");
}

TEST_F(EditSearchDialog, ShowsAndKeepsAPatternOfAnyLength) {
    const std::wstring pattern(5000, L'*');
    KeepSettings();
    Kept(L"ExtensionList") = pattern + L"\n";
    Open();
    EXPECT_EQ(Text(1008), pattern);

    Command(IDOK);

    EXPECT_EQ(store.Read(settings::keys::HidemaruSearch.extensionList), pattern + L"\n");
}

TEST_F(EditSearchDialog, OpensItsHelpByButtonAndByKey) {
    Open();

    Command(1009);
    EXPECT_EQ(help.log, L"editorsearch.html\n");
    EXPECT_EQ(help.asker, dialog->Handle());

    HELPINFO key{};
    key.cbSize = sizeof key;
    EXPECT_EQ(Send(dialog->Handle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&key)), TRUE);
    EXPECT_EQ(help.log, L"editorsearch.html\neditorsearch.html\n");
}

TEST_F(EditSearchDialog, SearchesForNothingWhenToldTo) {
    Open(SearchTool::kEmEditor, L"");
    SetText(1010, folder.Path());
    SetText(1008, L"");

    Command(IDOK);

    EXPECT_EQ(dialog->Answer().value().arguments, L"/fi \"\" /cp 1048576 \"" + folder.Path() + L"\\\"");
}

} // namespace
