#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "framework/centred_message_box.h"
#include "framework/windows_version.h"
#include "tests/support/canvas.h"
#include "tests/support/main_frame_fixture.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/popups_opened.h"

using namespace korvane;
namespace keys = settings::keys;

namespace {

class MenusTest : public test::MainFrameTest {
protected:
    HMENU MainMenu() { return Bar().Popup(POPUP_MAIN); }
    void Open(HMENU popup) { Send(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup)); }
    static MENUITEMINFOW Item(HMENU menu, UINT at, bool byPosition, wchar_t* text = nullptr, UINT length = 0) {
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_STATE | MIIM_FTYPE | MIIM_ID | MIIM_SUBMENU | MIIM_BITMAP | (text ? MIIM_STRING : 0);
        item.dwTypeData = text;
        item.cch = length;
        EXPECT_TRUE(::GetMenuItemInfoW(menu, at, byPosition, &item));
        return item;
    }
    bool Greyed(UINT command) { return (Item(MainMenu(), command, false).fState & MFS_GRAYED) != 0; }
    bool Checked(UINT command) { return (Item(MainMenu(), command, false).fState & MFS_CHECKED) != 0; }
    static std::wstring TextOf(HMENU menu, UINT command) {
        wchar_t text[400]{};
        Item(menu, command, false, text, 400);
        return text;
    }
    // "id text", "-" for a separator and "> text" for a pop-up, one per line.
    static std::wstring Rows(HMENU menu) {
        std::wstring all;
        for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
            wchar_t text[400]{};
            const MENUITEMINFOW item = Item(menu, static_cast<UINT>(i), true, text, 400);
            if (item.fType & MFT_SEPARATOR) {
                all += L"-";
            } else {
                all += (item.hSubMenu ? L">" : std::to_wstring(item.wID)) + L" " + text;
            }
            all += L"\n";
        }
        return all;
    }
    static DRAWITEMSTRUCT Drawing(const test::Canvas& canvas, UINT command) {
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_MENU;
        item.itemID = command;
        item.itemAction = ODA_DRAWENTIRE;
        item.hDC = canvas.Dc();
        item.rcItem = {0, 0, 40, 40};
        return item;
    }
    bool ShowsImage(UINT command) {
        const test::Canvas canvas{{40, 40}};
        const DRAWITEMSTRUCT item = Drawing(canvas, command);
        Send(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
        return canvas.Pixels() != test::Canvas({40, 40}).Pixels();
    }
    void StoreLaunchItems(int count) {
        for (int number = 1; number <= count; ++number)
            settings.Write(keys::LaunchMenuItem, number,
                           base::FormatText(L"notepad.exe, , ,notepad.exe,0,項目 %d", number));
    }
};

} // namespace

TEST_F(MenusTest, TheMainMenuHasItsItemsInTheirOrder) {
    EXPECT_EQ(Rows(MainMenu()), std::wstring{L"40001 デスクトップ バー モード(&B)\tCtrl+Shift+A\n"
                                             L"40003 バーを自動的に隠す(&I)\tCtrl+Shift+I\n"
                                             L"-\n"
                                             L"40002 常に手前に表示(&T)\tCtrl+Shift+T\n"
                                             L"-\n"
                                             L"> ランチ メニュー(&L)\n"
                                             L"-\n"
                                             L"3001 メモ帳(&M)\n"
                                             L"3002 ペイント(&P)\n"
                                             L"3003 電卓(&C)\n"
                                             L"3004 コマンド プロンプト(&D)\n"
                                             L"3005 エクスプローラ(&E)\n"
                                             L"3006 ワードパッド(&R)\n"
                                             L"-\n"
                                             L"> タスクの切り替え(&N)\n"
                                             L"-\n"
                                             L"40004 クリップボードの監視(&K)\tCtrl+Shift+Q\n"
                                             L"40008 スクリーンセーバーの起動(&V)\tCtrl+Shift+X\n"
                                             L"2009 オプション(&O)...\tCtrl+Shift+C\n"
                                             L"-\n"
                                             L"3007 Windows Update(&U)\n"
                                             L"-\n"
                                             L"57666 ヘルプ 目次(&H)\tCtrl+F1\n"
                                             L"> サポート(&S)\n"
                                             L"57664 バージョン情報(&A)...\n"
                                             L"-\n"
                                             L"> Windows の終了(&W)\n"
                                             L"-\n"
                                             L"57665 Korvane の終了(&X)\tAlt+F4\n"});
}

TEST_F(MenusTest, EndingWindowsHasItsItemsInTheirOrder) {
    const std::wstring signOut = fw::IsWindowsAtLeast(fw::kWindows8) ? L"サインアウト(&I)" : L"ログオフ(&I)";

    EXPECT_EQ(Rows(::GetSubMenu(MainMenu(), 26)),
              L"4100 " + signOut + L"\n4101 シャットダウン(&U)\tCtrl+Shift+Win\n-\n4102 再起動(&R)\tCtrl+Shift+R\n");
}

TEST_F(MenusTest, SupportHasItsItemsInTheirOrder) {
    EXPECT_EQ(Rows(::GetSubMenu(MainMenu(), 23)),
              std::wstring{L"40005 オンライン ドキュメント(&L)\n40006 メール送信(&N)\n-\n40007 Brannock(&T)\n"});
}

TEST_F(MenusTest, TheWaysToTheOptionsAreOpen) {
    Open(MainMenu());

    for (const UINT command : {2009U, 4063U}) EXPECT_FALSE(Greyed(command)) << command;
    EXPECT_EQ(Item(Bar().Popup(POPUP_SEARCH), 5000, false).fState & MFS_GRAYED, 0U);
    EXPECT_TRUE(::IsWindowEnabled(Child(2009)));
}

TEST_F(MenusTest, TheSecurityCentreHasItsOldNameOnlyBeforeWindows7) {
    EXPECT_EQ(TextOf(Bar().Popup(POPUP_CONTROL_PANEL), 4001),
              fw::IsWindowsAtLeast(fw::kWindows7) ? L"アクション センター(&A)" : L"セキュリティ センター(&A)");
}

TEST_F(MenusTest, AFloatingBarOffersToBeOnTopButNotToHide) {
    Open(MainMenu());

    EXPECT_FALSE(Checked(ID_DESKTOP_BAR_MODE));
    EXPECT_FALSE(Greyed(ID_TOPMOST));
    EXPECT_TRUE(Greyed(ID_AUTO_HIDE));
}

TEST_F(MenusTest, ADockedBarOffersToHideButNotToBeOnTop) {
    settings.Write(keys::TopMostWindow, 1);
    Send(WM_COMMAND, ID_DESKTOP_BAR_MODE);

    Open(MainMenu());

    EXPECT_TRUE(Checked(ID_DESKTOP_BAR_MODE));
    EXPECT_TRUE(Greyed(ID_TOPMOST));
    EXPECT_FALSE(Checked(ID_TOPMOST));
    EXPECT_FALSE(Greyed(ID_AUTO_HIDE));
}

TEST_F(MenusTest, AHidingBarIsMarkedAsSuch) {
    Send(WM_COMMAND, ID_DESKTOP_BAR_MODE);
    Send(WM_COMMAND, ID_AUTO_HIDE);

    Open(MainMenu());

    EXPECT_TRUE(Checked(ID_AUTO_HIDE));
}

TEST_F(MenusTest, BeingOnTopIsMarked) {
    Send(WM_COMMAND, ID_TOPMOST);

    Open(MainMenu());

    EXPECT_TRUE(Checked(ID_TOPMOST));
}

TEST_F(MenusTest, TogglingTheClipboardTwiceRestoresTheSetting) {
    Bar();

    Send(WM_COMMAND, ID_MONITOR_CLIPBOARD);
    Open(MainMenu());
    EXPECT_EQ(settings.Read(keys::MonitorClipBoard), 0);
    EXPECT_FALSE(Checked(ID_MONITOR_CLIPBOARD));

    Send(WM_COMMAND, ID_MONITOR_CLIPBOARD);
    Open(MainMenu());
    EXPECT_EQ(settings.Read(keys::MonitorClipBoard), 1);
    EXPECT_TRUE(Checked(ID_MONITOR_CLIPBOARD));
}

TEST_F(MenusTest, TheLaunchMenuHoldsTheItemsBehindTheButtons) {
    StoreLaunchItems(5);

    Bar().ShowFirst(SW_HIDE);

    EXPECT_EQ(Rows(::GetSubMenu(MainMenu(), 5)),
              std::wstring{L"4028 [&1] 項目 4\n4029 [&2] 項目 5\n-\n4063 [&0] ランチ メニューの設定...\n"});
}

TEST_F(MenusTest, ItemsWithAnIconShowItAndOthersDoNot) {
    StoreLaunchItems(4);
    Bar().ShowFirst(SW_HIDE);

    EXPECT_TRUE(ShowsImage(4028));
    EXPECT_TRUE(ShowsImage(ID_LAUNCH_SETTINGS));
    EXPECT_TRUE(ShowsImage(ID_SEARCH_SETTINGS));
    EXPECT_TRUE(ShowsImage(ID_NOTEPAD));
    EXPECT_FALSE(ShowsImage(4029)) << "there is no fifth item";
    EXPECT_FALSE(ShowsImage(ID_EXIT));
}

TEST_F(MenusTest, EveryPopUpThatHasImagesOpensWithThem) {
    Bar().ShowFirst(SW_HIDE);

    for (const HMENU popup : {MainMenu(), ::GetSubMenu(MainMenu(), 5), Bar().Popup(POPUP_SEARCH)}) Open(popup);

    // Either the picture itself or the request to be asked for it.
    EXPECT_NE(Item(MainMenu(), ID_NOTEPAD, false).hbmpItem, nullptr);
    EXPECT_NE(Item(MainMenu(), ID_LAUNCH_SETTINGS, false).hbmpItem, nullptr);
    EXPECT_NE(Item(Bar().Popup(POPUP_SEARCH), ID_SEARCH_SETTINGS, false).hbmpItem, nullptr);
}

TEST_F(MenusTest, TheImagesOfChildrenAreNotTakenForThoseOfMenus) {
    const test::Canvas canvas{{40, 40}};
    DRAWITEMSTRUCT item = Drawing(canvas, ID_NOTEPAD);
    item.CtlType = ODT_BUTTON;

    Send(WM_DRAWITEM, ID_NOTEPAD, reinterpret_cast<LPARAM>(&item));

    EXPECT_EQ(canvas.Pixels(), test::Canvas({40, 40}).Pixels());
}

TEST_F(MenusTest, TheTaskMenuIsFilledEachTimeItOpens) {
    const fw::UniqueHandle<HWND, &::DestroyWindow> task{::CreateWindowExW(0, L"STATIC", L"仕事 & 遊び",
                                                                          WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100,
                                                                          100, nullptr, nullptr, nullptr, nullptr)};
    const HMENU tasks = ::GetSubMenu(MainMenu(), 14);

    Open(tasks);
    const std::wstring with = Rows(tasks);
    ::ShowWindow(task.Get(), SW_HIDE);
    Open(tasks);

    EXPECT_NE(with.find(L"仕事 && 遊び"), std::wstring::npos) << "the ampersand is shown, not taken for a key";
    EXPECT_EQ(Rows(tasks).find(L"仕事"), std::wstring::npos);
}

TEST_F(MenusTest, WithoutATaskThereIsOneGreyedRow) {
    const HMENU tasks = ::GetSubMenu(MainMenu(), 14);

    Open(tasks);

    EXPECT_EQ(Rows(tasks), std::wstring{L"4500 (表示すべきタスクがありません)\n"});
    EXPECT_NE(Item(tasks, ID_NO_TASK, false).fState & MFS_GRAYED, 0U);
}

TEST_F(MenusTest, ALaunchItemWhoseProgramIsGoneIsReported) {
    settings.Write(keys::LaunchMenuItem, 4, L"C:\\nowhere\\gone.exe, , ,notepad.exe,0,消えた");
    Bar();
    const test::MessageBoxAnswer answer{IDOK};

    Send(WM_COMMAND, ID_LAUNCH_FIRST);

    EXPECT_EQ(answer.Caption(), L"Korvane");
    EXPECT_EQ(answer.Text(), fw::SystemErrorText(ERROR_FILE_NOT_FOUND));
}

TEST_F(MenusTest, ACommandWithoutALaunchItemDoesNothing) {
    Bar();
    const test::MessageBoxAnswer answer{IDOK};

    Send(WM_COMMAND, ID_LAUNCH_LAST);

    EXPECT_EQ(answer.Count(), 0);
}

TEST_F(MenusTest, TheIconInTheNotificationAreaOpensTheMainMenuUnlessABoxIsOpen) {
    Bar();
    // Taken by the menu's own loop, which it ends.
    ::PostMessageW(Bar().Handle(), WM_CANCELMODE, 0, 0);
    const test::PopupsOpened opened;

    Send(WM_APP + 2, 1, WM_RBUTTONUP);

    EXPECT_EQ(opened.First(), MainMenu());
}

TEST_F(MenusTest, AMenuOpenedFromOutsideIsFollowedByAMessageThatClosesItForGood) {
    Bar();
    ::PostMessageW(Bar().Handle(), WM_CANCELMODE, 0, 0);

    Send(WM_APP + 2, 1, WM_RBUTTONUP);

    // Otherwise the next menu closes at once, see TrackPopupMenu's documentation.
    MSG message{};
    bool followed = false;
    while (::PeekMessageW(&message, Bar().Handle(), 0, 0, PM_REMOVE)) followed = followed || message.message == WM_NULL;
    EXPECT_TRUE(followed);
}

TEST_F(MenusTest, TheIconInTheNotificationAreaIsDeafAfterARefusedQuestionUntilTheNextBox) {
    Bar();
    {
        const test::MessageBoxAnswer answer{IDNO};
        Send(WM_COMMAND, ID_SHUT_DOWN);
    }
    // Ends a menu that should not be there.
    ::PostMessageW(Bar().Handle(), WM_CANCELMODE, 0, 0);
    const test::PopupsOpened opened;

    Send(WM_APP + 2, 1, WM_RBUTTONUP);

    EXPECT_EQ(opened.First(), nullptr);
}

TEST_F(MenusTest, EndingTheSessionIsAskedWhateverTheSettingSays) {
    settings.Write(keys::ConfirmExitWindows, 0);
    Bar();
    const test::MessageBoxAnswer answer{IDNO};

    Send(WM_COMMAND, ID_RESTART);

    EXPECT_EQ(answer.Caption(), L"Korvane");
    EXPECT_EQ(answer.Text(), L"Windows を再起動します。よろしいですか？");
}
