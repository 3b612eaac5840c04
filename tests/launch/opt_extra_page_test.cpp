#include "launch/opt_extra_page.h"

#include <gmock/gmock.h>
#include <shlobj.h>

#include <memory>
#include <string>
#include <vector>

#include "framework/system_library.h"
#include "framework/window_text.h"
#include "launch/stored_line.h"
#include "tests/launch/launch_items.h"
#include "tests/support/canvas.h"
#include "tests/support/dialog_walk.h"
#include "tests/support/fake_help.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/modal_dialog_answer.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::launch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kList = 1057;
constexpr int kButtons[] = {1030, 1031, 1032, 1033, 1034, 1058};

class OptExtraPage : public test::WindowTest {
protected:
    void Open(int count) {
        items.PutWholeUpTo(count);
        Open();
    }
    void Open() {
        page = std::make_unique<COptExtraPage>(items.store, nullptr, help);
        ASSERT_TRUE(page->Create(Host()));
        ::SetWindowTextW(Host(), L"オプション - ランチ メニューの設定");
        items.store.log.clear();
    }
    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(page->Handle(), id); }
    [[nodiscard]] std::wstring Text(int id) const { return fw::WindowText(Control(id)); }
    void Command(int id) { Send(page->Handle(), WM_COMMAND, static_cast<WPARAM>(id)); }
    void SelectRow(int row) {
        Send(Control(kList), LB_SETCURSEL, static_cast<WPARAM>(row));
        Send(page->Handle(), WM_COMMAND, MAKEWPARAM(kList, LBN_SELCHANGE), reinterpret_cast<LPARAM>(Control(kList)));
    }
    [[nodiscard]] int Selected() const { return static_cast<int>(Send(Control(kList), LB_GETCURSEL)); }
    [[nodiscard]] std::vector<std::wstring> Names() const {
        std::vector<std::wstring> names;
        for (LRESULT row = 0; row < Send(Control(kList), LB_GETCOUNT); ++row) {
            std::wstring text(static_cast<std::size_t>(Send(Control(kList), LB_GETTEXTLEN, static_cast<WPARAM>(row))),
                              L'\0');
            Send(Control(kList), LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
            names.push_back(text);
        }
        return names;
    }
    [[nodiscard]] std::vector<int> Enabled() const {
        std::vector<int> ids;
        for (const int id : kButtons)
            if (::IsWindowEnabled(Control(id))) ids.push_back(id);
        return ids;
    }
    // What the list answers to a key: -1 for its usual handling, -2 for none.
    [[nodiscard]] LRESULT Key(WORD key) {
        return Send(page->Handle(), WM_VKEYTOITEM, MAKEWPARAM(key, Selected()),
                    reinterpret_cast<LPARAM>(Control(kList)));
    }
    void Drop(const std::vector<std::wstring>& paths) {
        std::wstring list;
        for (const std::wstring& path : paths) list.append(path).append(1, L'\0');
        list.append(1, L'\0');
        const std::size_t bytes = sizeof(DROPFILES) + list.size() * sizeof(wchar_t);
        const HGLOBAL memory = ::GlobalAlloc(GHND, bytes);
        auto* const header = static_cast<DROPFILES*>(::GlobalLock(memory));
        header->pFiles = sizeof(DROPFILES);
        header->fWide = TRUE;
        std::copy(list.begin(), list.end(), reinterpret_cast<wchar_t*>(header + 1));
        ::GlobalUnlock(memory);
        Send(page->Handle(), WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
        Pump();
    }
    // Files that hold their own icon.
    std::vector<std::wstring> Files(int count) const {
        std::vector<std::wstring> paths;
        for (int i = 0; i < count; ++i) paths.push_back(items.Icon(base::FormatText(L"drop%02d.ico", i), RGB(1, 2, i)));
        return paths;
    }
    [[nodiscard]] std::wstring Stored(int number) const {
        return items.store.Read(settings::keys::LaunchMenuItem, number);
    }

    test::LaunchItems items;
    test::FakeHelp help;
    std::unique_ptr<COptExtraPage> page;
};

TEST_F(OptExtraPage, NamesItsControls) {
    Open(5);

    EXPECT_EQ(Text(1030), L"上へ移動(&U)");
    EXPECT_EQ(Text(1031), L"下へ移動(&D)");
    EXPECT_EQ(Text(1032), L"追加(&A)...");
    EXPECT_EQ(Text(1033), L"編集(&E)...");
    EXPECT_EQ(Text(1034), L"削除(&X)");
    EXPECT_EQ(Text(1058), L"インポート(&I)...");
    EXPECT_EQ(Text(1048), L"登録アイテム数: 5 (最小アイテム数: 3, 最大アイテム数: 38)");
    EXPECT_EQ(Text(1049), L"※ 上位3アイテム ([L-1]~[L-3]) は [ランチ ボタン] に表示されます。");
    EXPECT_NE(Text(kList), L"");
}

TEST_F(OptExtraPage, IsWalkedThroughInTheOrderOfItsControls) {
    Open(5);
    SelectRow(2);

    const std::vector<int> order = test::TabOrder(page->Handle(), kList);

    EXPECT_THAT(order, ElementsAre(kList, 1030, 1031, 1032, 1033, 1034, 1058));
}

TEST_F(OptExtraPage, GivesNoAccessKeyTwice) {
    Open(5);

    EXPECT_EQ(test::AccessKeys(page->Handle()), L"ADEIUX");
}

TEST_F(OptExtraPage, ShowsElevenWholeRows) {
    Open(5);

    const int client = fw::ClientRect(Control(kList)).Height();
    const auto row = static_cast<int>(Send(Control(kList), LB_GETITEMHEIGHT));

    EXPECT_EQ(client, 11 * row);
    const fw::WindowDc dc{page->Handle()};
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc.Get(), &metrics);
    EXPECT_EQ(row, 2 * (metrics.tmHeight - 1) + 4);
}

TEST_F(OptExtraPage, ScrollsAsSoonAsThereIsMoreThanElevenRows) {
    const auto scrolls = [&] { return (::GetWindowLongPtrW(Control(kList), GWL_STYLE) & WS_VSCROLL) != 0; };
    Open(11);
    EXPECT_FALSE(scrolls());

    Open(38);

    ASSERT_TRUE(scrolls());
    SCROLLINFO range{};
    range.cbSize = sizeof range;
    range.fMask = SIF_ALL;
    ASSERT_TRUE(::GetScrollInfo(Control(kList), SB_VERT, &range));
    EXPECT_EQ(range.nMax, 37);
    EXPECT_EQ(range.nPage, 11U);
}

TEST_F(OptExtraPage, KeepsWhatStandsBelowTheListBelowIt) {
    Open(5);

    const base::Rect list = fw::WindowRect(Control(kList));
    const base::Rect count = fw::WindowRect(Control(1048));
    const base::Rect note = fw::WindowRect(Control(1049));
    EXPECT_GE(count.top, list.bottom);
    EXPECT_GE(note.top, count.bottom);
    EXPECT_LE(note.bottom, fw::WindowRect(page->Handle()).bottom);
    EXPECT_NEAR(fw::WindowRect(Control(1058)).bottom, list.bottom, 2);
}

TEST_F(OptExtraPage, ListsTheStoredItemsAndSelectsTheFirst) {
    Open(5);

    EXPECT_THAT(Names(), ElementsAre(L"n1", L"n2", L"n3", L"n4", L"n5"));
    EXPECT_EQ(Selected(), 0);
    EXPECT_THAT(Enabled(), ElementsAre(1031, 1032, 1033, 1034, 1058));
}

TEST_F(OptExtraPage, AlwaysAcceptsItsInput) {
    Open(5);

    EXPECT_EQ(Send(page->Handle(), WM_APP + 10), 0);
}

TEST_F(OptExtraPage, EnablesItsButtonsWithTheSelection) {
    Open(5);

    SelectRow(4);
    EXPECT_THAT(Enabled(), ElementsAre(1030, 1032, 1033, 1034, 1058));

    SelectRow(-1);
    EXPECT_THAT(Enabled(), ElementsAre(1032, 1058));
}

TEST_F(OptExtraPage, MovesTheSelectedItem) {
    Open(5);
    SelectRow(1);

    Command(1031);
    EXPECT_THAT(Names(), ElementsAre(L"n1", L"n3", L"n2", L"n4", L"n5"));
    EXPECT_EQ(Selected(), 2);

    Command(1030);
    Command(1030);
    EXPECT_THAT(Names(), ElementsAre(L"n2", L"n1", L"n3", L"n4", L"n5"));
    EXPECT_EQ(Selected(), 0);
    EXPECT_THAT(Enabled(), ElementsAre(1031, 1032, 1033, 1034, 1058));
}

TEST_F(OptExtraPage, MovesNothingBeyondTheEnds) {
    Open(4);

    Command(1030);
    SelectRow(3);
    Command(1031);

    EXPECT_THAT(Names(), ElementsAre(L"n1", L"n2", L"n3", L"n4"));
}

TEST_F(OptExtraPage, GivesTheListTheFocusAfterAMove) {
    Open(5);
    ::SetFocus(Control(1031));

    Command(1031);

    EXPECT_EQ(::GetFocus(), Control(kList));
}

TEST_F(OptExtraPage, LeavesNoFocusOnAButtonThatHasBecomeUseless) {
    Open(4);
    SelectRow(1);
    ::SetFocus(Control(1030));

    SelectRow(0);

    EXPECT_EQ(::GetFocus(), Control(kList));
}

TEST_F(OptExtraPage, MovesTheSelectionWithTheArrowKeys) {
    Open(4);

    EXPECT_EQ(Key(VK_UP), -2);
    EXPECT_EQ(Selected(), 0);
    EXPECT_EQ(Key(VK_DOWN), -2);
    EXPECT_EQ(Selected(), 1);
    EXPECT_THAT(Enabled(), ElementsAre(1030, 1031, 1032, 1033, 1034, 1058));
    EXPECT_EQ(Key(VK_UP), -2);
    EXPECT_EQ(Selected(), 0);

    SelectRow(3);
    EXPECT_EQ(Key(VK_DOWN), -2);
    EXPECT_EQ(Selected(), 3);
    EXPECT_EQ(Key(VK_HOME), -1);
}

TEST_F(OptExtraPage, AsksBeforeItDeletes) {
    Open(5);
    SelectRow(1);
    test::MessageBoxAnswer no{IDNO};

    Command(1034);

    EXPECT_EQ(no.Text(), L"ランチ メニューから \"n2\" を削除します。よろしいですか？");
    EXPECT_EQ(no.Caption(), L"オプション - ランチ メニューの設定");
    EXPECT_THAT(Names(), ElementsAre(L"n1", L"n2", L"n3", L"n4", L"n5"));
}

TEST_F(OptExtraPage, DeletesNothingWhenTheQuestionIsCancelled) {
    Open(5);
    test::MessageBoxAnswer cancel{IDCANCEL};

    Command(1034);

    EXPECT_EQ(cancel.Count(), 1);
    EXPECT_EQ(Names().size(), 5U);
}

TEST_F(OptExtraPage, DeletesTheSelectedItem) {
    Open(5);
    SelectRow(1);
    test::MessageBoxAnswer yes{IDYES};

    Command(1034);

    EXPECT_THAT(Names(), ElementsAre(L"n1", L"n3", L"n4", L"n5"));
    EXPECT_EQ(Selected(), 1);
    EXPECT_EQ(Text(1048), L"登録アイテム数: 4 (最小アイテム数: 3, 最大アイテム数: 38)");
    EXPECT_EQ(::GetFocus(), Control(kList));
}

TEST_F(OptExtraPage, SelectsTheNewLastRowWhenTheLastWasDeleted) {
    Open(5);
    SelectRow(4);
    test::MessageBoxAnswer yes{IDYES};

    Command(1034);

    EXPECT_EQ(Selected(), 3);
}

TEST_F(OptExtraPage, DeletesNoneOfThreeItems) {
    Open(3);
    test::MessageBoxAnswer yes{IDYES};

    Command(1034);
    EXPECT_EQ(Key(VK_DELETE), -2);
    Pump();

    EXPECT_EQ(yes.Count(), 0);
    EXPECT_EQ(Names().size(), 3U);
    EXPECT_FALSE(::IsWindowEnabled(Control(1034)));
}

TEST_F(OptExtraPage, DeletesByKey) {
    Open(4);
    test::MessageBoxAnswer yes{IDYES};

    EXPECT_EQ(Key(VK_DELETE), -2);
    Pump();

    EXPECT_THAT(Names(), ElementsAre(L"n2", L"n3", L"n4"));
}

TEST_F(OptExtraPage, SaysWhenAnItemIsNotItsOwn) {
    Open(4);
    CLaunchItem strange;
    strange.Set(L"p", L"", L"", L"他人の", items.Icon(L"s.ico", RGB(1, 1, 1)), 0);
    Send(Control(kList), LB_SETITEMDATA, 0, reinterpret_cast<LPARAM>(&strange));
    test::MessageBoxAnswer yes{IDYES};

    Command(1034);

    EXPECT_EQ(yes.Count(), 2);
    EXPECT_EQ(yes.Text(), L"\"他人の\" の削除に失敗しました。");
    EXPECT_EQ(yes.Caption(), L"オプション - ランチ メニューの設定");
    EXPECT_EQ(Names().size(), 4U);
}

// The editor's field for the name.
constexpr int kEditorName = IDC_ITEM_NAME;

// Gives the item of an editor another name, and what can be confirmed.
void RenameIn(HWND editor) {
    ::SetDlgItemTextW(editor, kEditorName, L"renamed");
    ::SetDlgItemTextW(editor, IDC_PROGRAM, (fw::SystemFolder() + L"\\cmd.exe").c_str());
    ::SetDlgItemTextW(editor, IDC_WORKING_FOLDER, L"");
}

TEST_F(OptExtraPage, EditsItsItemThoughAnotherIsSelectedMeanwhile) {
    Open(5);
    SelectRow(1);
    test::ModalDialogAnswer editor{kEditorName, IDOK, [&](HWND dialog) {
                                       SelectRow(3);
                                       RenameIn(dialog);
                                   }};

    Command(1033);

    EXPECT_EQ(editor.Count(), 1);
    EXPECT_THAT(Names(), ElementsAre(L"n1", L"renamed", L"n3", L"n4", L"n5"));
    EXPECT_EQ(Selected(), 1);
}

TEST_F(OptExtraPage, EditsNothingWhenItsItemHasGoneMeanwhile) {
    Open(5);
    SelectRow(1);
    const test::MessageBoxAnswer yes{IDYES};
    test::ModalDialogAnswer editor{kEditorName, IDOK, [&](HWND dialog) {
                                       RenameIn(dialog);
                                       // Another program may give back what a dialog has taken.
                                       ::EnableWindow(Host(), TRUE);
                                       Command(1034);
                                   }};

    Command(1033);

    EXPECT_THAT(Names(), ElementsAre(L"n1", L"n3", L"n4", L"n5"));
    EXPECT_TRUE(page->Save());
    EXPECT_EQ(Stored(2), items.LineOf(3, L"n3"));
}

TEST_F(OptExtraPage, DeletesItsItemThoughAnotherIsSelectedMeanwhile) {
    Open(5);
    SelectRow(1);
    const test::ModalDialogAnswer yes{IDYES, [&](HWND) { SelectRow(3); }};

    Command(1034);

    EXPECT_THAT(Names(), ElementsAre(L"n1", L"n3", L"n4", L"n5"));
    EXPECT_EQ(Selected(), 1);
}

TEST_F(OptExtraPage, SaysWhenItsItemHasGoneMeanwhile) {
    Open(5);
    SelectRow(1);
    int questions = 0;
    const test::ModalDialogAnswer yes{IDYES, [&](HWND) {
                                          // The second asks for the same item, and is answered first.
                                          if (++questions != 1) return;
                                          ::EnableWindow(Host(), TRUE);
                                          Command(1034);
                                      }};

    Command(1034);

    EXPECT_EQ(questions, 3) << "two questions and a message";
    EXPECT_THAT(Names(), ElementsAre(L"n1", L"n3", L"n4", L"n5"));
}

TEST_F(OptExtraPage, OpensNoDialogOverTheOneThatItHasOpened) {
    Open(5);
    SelectRow(1);
    int opened = 0;
    const test::ModalDialogAnswer editor{IDCANCEL, [&](HWND) {
                                             if (++opened > 1) return;
                                             for (const int id : {1032, 1033, 1034, 1058})
                                                 ::PostMessageW(page->Handle(), WM_COMMAND, static_cast<WPARAM>(id), 0);
                                             ::PostMessageW(page->Handle(), WM_COMMAND, MAKEWPARAM(kList, LBN_DBLCLK),
                                                            reinterpret_cast<LPARAM>(Control(kList)));
                                         }};

    Command(1033);

    EXPECT_EQ(opened, 1);
    EXPECT_THAT(Names(), ElementsAre(L"n1", L"n2", L"n3", L"n4", L"n5"));
}

TEST_F(OptExtraPage, SkipsARowWithoutAnItem) {
    Open(4);
    Send(Control(kList), LB_SETITEMDATA, 1, 0);
    SelectRow(1);
    test::MessageBoxAnswer yes{IDYES};

    for (const int id : {1030, 1031, 1033, 1034}) Command(id);

    EXPECT_EQ(yes.Count(), 0);
    EXPECT_THAT(Names(), ElementsAre(L"n1", L"n2", L"n3", L"n4"));
    // Its number is used up all the same.
    EXPECT_TRUE(page->Save());
    EXPECT_EQ(Stored(2), L"");
    EXPECT_EQ(Stored(3), items.LineOf(3, L"n3"));
}

TEST_F(OptExtraPage, SavesTheItemsInTheOrderOfTheList) {
    Open(4);
    Command(1031);

    EXPECT_TRUE(page->Save());

    EXPECT_EQ(Stored(1), items.LineOf(2, L"n2"));
    EXPECT_EQ(Stored(2), items.LineOf(1, L"n1"));
    EXPECT_EQ(Stored(4), items.LineOf(4, L"n4"));
}

TEST_F(OptExtraPage, ChangesNothingThatIsStoredUntilItIsSaved) {
    Open(5);
    test::MessageBoxAnswer yes{IDYES};

    Command(1031);
    Command(1034);
    page.reset();

    EXPECT_EQ(items.store.log, L"");
}

TEST_F(OptExtraPage, KeepsItemsThatCannotBeLoadedNow) {
    items.PutWholeUpTo(3);
    items.Put(4, L"p4.exe, , ,gone.exe,0,n4");
    items.PutWhole(5);
    Open();
    ASSERT_EQ(Names().size(), 3U);

    EXPECT_TRUE(page->Save());

    EXPECT_EQ(Stored(4), L"p4.exe, , ,gone.exe,0,n4");
    EXPECT_EQ(Stored(5), items.LineOf(5, L"n5"));
}

TEST_F(OptExtraPage, TellsWhenItCouldNotSave) {
    Open(4);
    Command(1031);
    items.store.writesThatSucceed = 2;

    EXPECT_FALSE(page->Save());
}

TEST_F(OptExtraPage, TakesTheColourOfWindowTextForItsTexts) {
    Open(3);
    const test::Canvas canvas{{4, 4}};
    ::SetTextColor(canvas.Dc(), RGB(255, 0, 255));

    Send(page->Handle(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(canvas.Dc()),
         reinterpret_cast<LPARAM>(Control(1048)));

    EXPECT_EQ(::GetTextColor(canvas.Dc()), ::GetSysColor(COLOR_WINDOWTEXT));
}

TEST_F(OptExtraPage, SavesNothingWhenItListedNothing) {
    items.PutWholeUpTo(5);
    items.store.log.clear();
    COptExtraPage closed{items.store, nullptr, help};

    EXPECT_TRUE(closed.Save());

    EXPECT_EQ(items.store.log, L"");
}

TEST_F(OptExtraPage, DoesNotScrollWhenItMovesAnItem) {
    Open(30);
    SelectRow(20);
    Send(Control(kList), LB_SETTOPINDEX, 19);
    const LRESULT top = Send(Control(kList), LB_GETTOPINDEX);

    Command(1031);

    EXPECT_EQ(Selected(), 21);
    EXPECT_EQ(Send(Control(kList), LB_GETTOPINDEX), top);
}

TEST_F(OptExtraPage, DisablesAddingAtThirtyEightItems) {
    Open(38);

    EXPECT_THAT(Enabled(), ElementsAre(1031, 1033, 1034));
    EXPECT_EQ(Text(1048), L"登録アイテム数: 38 (最小アイテム数: 3, 最大アイテム数: 38)");
}

TEST_F(OptExtraPage, AppendsDroppedFiles) {
    Open(3);

    Drop(Files(2));

    EXPECT_EQ(Names().size(), 5U);
    EXPECT_EQ(Selected(), 4);
    EXPECT_EQ(Text(1048), L"登録アイテム数: 5 (最小アイテム数: 3, 最大アイテム数: 38)");
    EXPECT_TRUE(page->Save());
    EXPECT_TRUE(Stored(4).starts_with(items.folder.File(L"drop00.ico"))) << testing::PrintToString(Stored(4));
    EXPECT_TRUE(Stored(5).starts_with(items.folder.File(L"drop01.ico")));
}

TEST_F(OptExtraPage, TakesOnlyAsManyDroppedFilesAsThereIsRoomFor) {
    Open(36);

    Drop(Files(5));

    EXPECT_EQ(Names().size(), 38U);
    EXPECT_TRUE(page->Save());
    EXPECT_TRUE(Stored(37).starts_with(items.folder.File(L"drop00.ico")));
    EXPECT_TRUE(Stored(38).starts_with(items.folder.File(L"drop01.ico")));
}

TEST_F(OptExtraPage, IgnoresDroppedFilesWhenItIsFull) {
    Open(38);

    Drop(Files(2));

    EXPECT_EQ(Names().size(), 38U);
    EXPECT_EQ(Selected(), 0);
}

TEST_F(OptExtraPage, SurvivesSixtyDroppedFiles) {
    Open(3);

    Drop(Files(60));

    EXPECT_EQ(Names().size(), 38U);
}

TEST_F(OptExtraPage, LeavesOutPathsThatAreTooLong) {
    Open(3);
    const auto files = Files(1);

    Drop({L"C:\\" + std::wstring(400, L'x'), files[0]});

    EXPECT_EQ(Names().size(), 4U);
    EXPECT_TRUE(page->Save());
    EXPECT_TRUE(Stored(4).starts_with(files[0]));
}

TEST_F(OptExtraPage, TakesFoldersAndFilesThatAreGone) {
    Open(3);

    Drop({items.folder.Path(), items.folder.File(L"gone.lnk")});

    EXPECT_EQ(Names().size(), 5U);
    EXPECT_TRUE(page->Save());
    // All of it can be loaded again: an item without an icon would end the list.
    EXPECT_EQ(LoadList(items.store).size(), 5U);
}

TEST_F(OptExtraPage, AcceptsFilesFromExplorer) {
    Open(3);

    EXPECT_TRUE(::GetWindowLongPtrW(page->Handle(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES);
}

TEST_F(OptExtraPage, GivesEverythingBack) {
    items.PutWholeUpTo(38);
    const auto once = [&] {
        Open();
        page.reset();
    };
    once();
    const int before = test::GdiObjectCount();
    for (int i = 0; i < 3; ++i) once();

    EXPECT_LE(test::GdiObjectCount(), before);
}

} // namespace
