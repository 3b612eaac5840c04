#include "app/main_frame.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <memory>
#include <string>
#include <vector>

#include "framework/centred_message_box.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/window_text.h"
#include "settings/logic/data_folder_path.h"
#include "settings/logic/setting_keys.h"
#include "settings/logic/window_placement.h"
#include "tests/support/canvas.h"
#include "tests/support/high_contrast.h"
#include "tests/support/main_frame_fixture.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/modal_dialog_answer.h"

using namespace korvane;
using app::CMainFrame;
namespace keys = settings::keys;

using test::Canvas;
using test::HighContrast;
using test::MainFrameTest;

namespace {

BOOL CALLBACK FindHistoryPopUp(HWND window, LPARAM found) {
    if (!::FindWindowExW(window, nullptr, L"SysListView32", nullptr)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

} // namespace

TEST_F(MainFrameTest, CreatesItsChildrenInTheirOrder) {
    std::vector<int> ids;
    for (HWND child = ::GetWindow(Child(ID_MAIN_MENU), GW_HWNDFIRST); child; child = ::GetWindow(child, GW_HWNDNEXT))
        ids.push_back(::GetDlgCtrlID(child));

    EXPECT_EQ(ids, (std::vector{2000, 2001, 2002, 2003, 2004, 2007, 2005, 2006, 2008, 4025, 4026, 4027, 2009, 57666,
                                2014, 57665}));
}

TEST_F(MainFrameTest, GivesEveryChildTheCommonStyles) {
    for (const int id :
         {2000, 2001, 2002, 2003, 2004, 2005, 2006, 2007, 2008, 2009, 4025, 4026, 4027, 57665, 57666, 2014}) {
        const auto style = static_cast<DWORD>(::GetWindowLongPtrW(Child(id), GWL_STYLE));

        EXPECT_EQ(style & (WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN),
                  DWORD{WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN})
            << id;
    }
}

TEST_F(MainFrameTest, GivesTheBarFontToTheBoxesAndTheTextButtons) {
    for (const int id : {2001, 2002, 2007, 2008})
        EXPECT_EQ(reinterpret_cast<HFONT>(::SendMessageW(Child(id), WM_GETFONT, 0, 0)), Bar().BarFont()) << id;
}

TEST_F(MainFrameTest, StartsWithTheRunAndSearchButtonsDisabled) {
    EXPECT_FALSE(::IsWindowEnabled(Child(2005)));
    EXPECT_FALSE(::IsWindowEnabled(Child(2006)));
}

TEST_F(MainFrameTest, OneCharacterEnablesABoxesButtonAndDeletingItDisablesItAgain) {
    for (const int box : {2001, 2002}) {
        ::SetWindowTextW(Child(box), L"a");
        EXPECT_TRUE(::IsWindowEnabled(Child(box + 4)));

        ::SetWindowTextW(Child(box), L"");
        EXPECT_FALSE(::IsWindowEnabled(Child(box + 4)));
    }
}

TEST_F(MainFrameTest, LaysItselfOutAnewWhenItsWidthChanges) {
    SetClientWidth(1280);
    EXPECT_EQ(PlaceOf(2001), "151,8-446,24");
    EXPECT_EQ(PlaceOf(2008), "970,0-1100,32");

    SetClientWidth(1024);
    EXPECT_EQ(PlaceOf(2001), "151,8-318,24");
    EXPECT_EQ(PlaceOf(2008), "714,0-844,32");
}

TEST_F(MainFrameTest, MakesRoomForTheClockAsSoonAsTheSettingsAreApplied) {
    SetClientWidth(1024);
    EXPECT_FALSE(::GetWindowLongPtrW(Child(ID_CLOCK), GWL_STYLE) & WS_VISIBLE);

    settings.Write(keys::ShowTimeBarClock, 1);
    Bar().ApplySettings();

    EXPECT_TRUE(::GetWindowLongPtrW(Child(ID_CLOCK), GWL_STYLE) & WS_VISIBLE);
    EXPECT_EQ(PlaceOf(2008), "614,0-744,32");
    EXPECT_EQ(PlaceOf(ID_CLOCK), "924,0-1024,32");
}

TEST_F(MainFrameTest, ErasesTheBarInItsColourAndTheFieldsInTheWindowColour) {
    settings.Write(keys::DefaultBarColor, 0);
    SetClientWidth(1024);

    EXPECT_EQ(ErasedColourAt(1, 1), RGB(159, 22, 106));
    EXPECT_EQ(ErasedColourAt(126, 16), RGB(159, 22, 106));
    EXPECT_EQ(ErasedColourAt(127, 4), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(ErasedColourAt(355, 27), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(ErasedColourAt(357, 16), RGB(159, 22, 106));
    EXPECT_EQ(ErasedColourAt(360, 4), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(ErasedColourAt(708, 27), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(ErasedColourAt(709, 16), RGB(159, 22, 106));
    EXPECT_EQ(ErasedColourAt(200, 28), RGB(159, 22, 106));
}

TEST_F(MainFrameTest, AppliesAChangedColourAtOnce) {
    settings.Write(keys::DefaultBarColor, 0);
    EXPECT_EQ(ErasedColourAt(1, 1), RGB(159, 22, 106));

    settings.Write(keys::DefaultBarColor, 2);
    settings.Write(keys::UserBarColor, base::Colour::Rgb(10, 20, 30));
    Bar().ApplySettings();

    EXPECT_EQ(ErasedColourAt(1, 1), RGB(10, 20, 30));
}

TEST_F(MainFrameTest, ReadsTheColourAgainWhenTheWindowManagersChanges) {
    settings.Write(keys::DefaultBarColor, 2);
    settings.Write(keys::UserBarColor, base::Colour::Rgb(10, 20, 30));
    EXPECT_EQ(ErasedColourAt(1, 1), RGB(10, 20, 30));

    settings.Write(keys::DefaultBarColor, 0);
    Send(WM_DWMCOLORIZATIONCOLORCHANGED);

    EXPECT_EQ(ErasedColourAt(1, 1), RGB(159, 22, 106));
}

// Without a restart, whichever of its messages Windows sends last.
TEST_F(MainFrameTest, TakesTheSystemsColoursWhenHighContrastComesAndItsOwnWhenItGoes) {
    settings.Write(keys::DefaultBarColor, 0);
    SetClientWidth(1024);
    for (const auto& [message, wparam] :
         {std::pair<UINT, WPARAM>{WM_SYSCOLORCHANGE, 0}, std::pair<UINT, WPARAM>{WM_THEMECHANGED, 0},
          std::pair<UINT, WPARAM>{WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST}}) {
        {
            const HighContrast highContrast{test::ContrastBlack()};
            Send(message, wparam);

            EXPECT_EQ(ErasedColourAt(1, 1), HighContrast::Colour(COLOR_WINDOW)) << message;
            EXPECT_EQ(ErasedColourAt(127, 16), HighContrast::Colour(COLOR_WINDOWTEXT)) << message;
            EXPECT_EQ(ErasedColourAt(200, 16), HighContrast::Colour(COLOR_WINDOW)) << message;
            LOGBRUSH brush{};
            ::GetObjectW(Bar().BarBrush(), sizeof brush, &brush);
            EXPECT_EQ(brush.lbColor, HighContrast::Colour(COLOR_WINDOW)) << message;
        }
        Send(message, wparam);

        EXPECT_EQ(ErasedColourAt(1, 1), RGB(159, 22, 106)) << message;
        EXPECT_EQ(ErasedColourAt(127, 16), ::GetSysColor(COLOR_WINDOW)) << message;
    }
}

TEST_F(MainFrameTest, PaintsItsWordsInTheSystemsColoursInHighContrast) {
    const HighContrast highContrast{test::ContrastBlack()};
    Send(WM_SYSCOLORCHANGE);
    for (const int id : {ID_CLOCK, ID_CONTROL_PANEL, ID_OPTIONS, ID_HELP_CONTENTS, ID_EXIT, ID_MAIN_MENU}) {
        const base::Rect area = fw::ClientRect(Child(id));
        const Canvas canvas{area.Extent()};
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.hwndItem = Child(id);
        item.hDC = canvas.Dc();
        item.rcItem = fw::ToWindows(area);
        Send(WM_DRAWITEM, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&item));

        EXPECT_EQ(canvas.Pixel(0, 0), HighContrast::Colour(COLOR_WINDOW)) << id;
        // The schemes' yellow: no blue in any smoothed pixel of it either.
        for (const COLORREF pixel : canvas.Pixels()) ASSERT_EQ(GetBValue(pixel), 0) << id;
        EXPECT_NE(canvas.Content(area, canvas.Pixel(0, 0)), base::Rect{}) << id;
    }
}

TEST_F(MainFrameTest, ShowsTheKeyboardOnEveryButtonOfTheBar) {
    for (const int id : {ID_MAIN_MENU, ID_COMMAND_HISTORY, ID_RUN_TYPED, ID_SEARCH_CHOOSER, ID_SEARCH_HISTORY,
                         ID_RUN_SEARCH, ID_CONTROL_PANEL, ID_LAUNCH_BUTTON_1, ID_LAUNCH_BUTTON_2, ID_LAUNCH_BUTTON_3,
                         ID_OPTIONS, ID_HELP_CONTENTS, ID_CLOCK, ID_EXIT}) {
        const base::Rect area = fw::ClientRect(Child(id));
        const auto paint = [&](UINT state) {
            const Canvas canvas{area.Extent()};
            DRAWITEMSTRUCT item{};
            item.CtlType = ODT_BUTTON;
            item.hwndItem = Child(id);
            item.itemState = state;
            item.hDC = canvas.Dc();
            item.rcItem = fw::ToWindows(area);
            Send(WM_DRAWITEM, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&item));
            return canvas.Pixel(2, 2);
        };
        EXPECT_NE(paint(ODS_FOCUS), paint(0)) << id;
    }
}

TEST_F(MainFrameTest, CanBeWidenedButNeverMadeTaller) {
    const base::Rect window = fw::WindowRect(Bar().Handle());

    ::SetWindowPos(Bar().Handle(), nullptr, 0, 0, window.Width() + 100, window.Height() + 100,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);

    EXPECT_EQ(fw::WindowRect(Bar().Handle()).Width(), window.Width() + 100);
    EXPECT_EQ(fw::ClientRect(Bar().Handle()).Height(), fw::Scale()(32));
}

TEST_F(MainFrameTest, ItsUpperBorderMovesItAndItsLowerBorderDoesNothing) {
    const base::Rect window = fw::WindowRect(Bar().Handle());
    const int middle = (window.left + window.right) / 2;
    const auto hit = [&](int x, int y) { return Send(WM_NCHITTEST, 0, MAKELPARAM(x, y)); };

    EXPECT_EQ(hit(middle, window.top + 1), HTCAPTION);
    EXPECT_EQ(hit(window.left + 1, window.top + 1), HTCAPTION);
    EXPECT_EQ(hit(window.right - 2, window.top + 1), HTCAPTION);
    EXPECT_EQ(hit(middle, window.bottom - 2), HTCLIENT);
    EXPECT_EQ(hit(window.left + 1, window.bottom - 2), HTCLIENT);
    EXPECT_EQ(hit(window.right - 2, window.bottom - 2), HTCLIENT);
    EXPECT_EQ(hit(window.left + 1, (window.top + window.bottom) / 2), HTLEFT);
    EXPECT_EQ(hit(window.right - 2, (window.top + window.bottom) / 2), HTRIGHT);
}

TEST_F(MainFrameTest, OffersTheTenDefaultSearchCommandsInTwoBlocks) {
    EXPECT_EQ(SearchMenu(), L"*標準 1|標準 5|標準 6|標準 8|標準 10|-|標準 12|標準 14|標準 19|標準 22|標準 26|-|"
                            L"検索コマンドの設定(&S)...");
    EXPECT_EQ(fw::WindowText(Child(2007)), L"標準 1");
}

TEST_F(MainFrameTest, ShowsTheChosenSearchCommandOnTheChooser) {
    Send(WM_COMMAND, 5012);

    EXPECT_EQ(fw::WindowText(Child(2007)), L"標準 12");
    EXPECT_EQ(SearchMenu(), L"標準 1|標準 5|標準 6|標準 8|標準 10|-|*標準 12|標準 14|標準 19|標準 22|標準 26|-|"
                            L"検索コマンドの設定(&S)...");
}

TEST_F(MainFrameTest, TheFirstCommandIsCurrentAfterEveryRebuildWhateverWasBefore) {
    Send(WM_COMMAND, 5012);

    Bar().BuildSearchCommandMenu();

    EXPECT_EQ(fw::WindowText(Child(2007)), L"標準 1");
}

TEST_F(MainFrameTest, PutsTheUsersOwnCommandsFirstUnlessToldOtherwise) {
    AddCommand(L"UserCommand.dat", 1, L"自分");
    settings.Write(keys::UserSearchCommand, L"1");
    settings.Write(keys::DefaultSearchCommand, L"3");
    EXPECT_EQ(SearchMenu(), L"*自分 1|標準 3|-|検索コマンドの設定(&S)...");
    EXPECT_EQ(::GetMenuItemID(Bar().Popup(POPUP_SEARCH), 0), 5052U);

    settings.Write(keys::PriorityUserCommand, 0);
    Bar().BuildSearchCommandMenu();

    EXPECT_EQ(SearchMenu(), L"*標準 3|自分 1|-|検索コマンドの設定(&S)...");
}

TEST_F(MainFrameTest, KeepsTheSettingsItemWhenNoCommandIsSelected) {
    settings.WriteText(L"Settings", L"DefaultSearchCommand", L"");

    EXPECT_EQ(SearchMenu(), L"-|検索コマンドの設定(&S)...");
    EXPECT_EQ(fw::WindowText(Child(2007)), L"");
}

TEST_F(MainFrameTest, SaysWhenASearchCommandHasLostItsLine) {
    settings.Write(keys::DefaultSearchCommand, L"1");
    Bar();
    settings::IniFileStore{folder.Path() + L"\\Korvane.dat"}.DeleteValue(L"SearchCommand_01", L"CommandLine");
    const test::MessageBoxAnswer box{IDOK};

    Send(WM_COMMAND, 2006);

    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(
        box.Text(),
        L"検索コマンドの設定ファイルが改変または削除されているため、この検索コマンドを実行することができません。");
}

TEST_F(MainFrameTest, SaysWhenASearchCommandHasNoPlaceholder) {
    settings.Write(keys::DefaultSearchCommand, L"1");
    settings::IniFileStore{folder.Path() + L"\\Korvane.dat"}.WriteText(L"SearchCommand_01", L"CommandLine",
                                                                       L"https://search.invalid/?q=<%search%>");
    Bar();
    const test::MessageBoxAnswer box{IDOK};

    Send(WM_COMMAND, 2006);

    EXPECT_EQ(box.Text(), L"ユーザー定義コマンド [標準 1] に設定されたコマンド文字列が正しくありません。");
}

TEST_F(MainFrameTest, SaysWhenEverythingIsNotInstalled) {
    settings::IniFileStore{folder.Path() + L"\\Korvane.dat"}.WriteText(L"SearchCommand_01", L"CommandLine",
                                                                       L"<%Everything%> -search <%Search_UTF16%>");
    Bar();
    const test::MessageBoxAnswer box{IDOK};

    Send(WM_COMMAND, 2006);

    EXPECT_EQ(box.Text(), L"Everything.exe を見つけることができませんでした。");
}

TEST_F(MainFrameTest, AsksBeforeAHistoryIsClearedAndEmptiesTheBoxOnYes) {
    settings.Write(keys::RecentSearch, 1, L"前の検索");
    ::SetWindowTextW(Child(2002), L"次の検索");
    {
        const test::MessageBoxAnswer box{IDNO};
        Bar().ClearHistory(search::Box::kSearch);
        EXPECT_EQ(box.Text(), L"[検索ボックス] の履歴をすべて消去します。よろしいですか？");
    }
    EXPECT_EQ(fw::WindowText(Child(2002)), L"次の検索");

    {
        const test::MessageBoxAnswer box{IDYES};
        Bar().ClearHistory(search::Box::kSearch);
    }

    EXPECT_EQ(fw::WindowText(Child(2002)), L"");
    settings.Write(keys::ConfirmExitApp, 1);
    Send(WM_CLOSE);
    EXPECT_EQ(settings.Read(keys::RecentSearch, 1), L"");
}

TEST_F(MainFrameTest, NamesTheCommandBoxWhenItsHistoryIsToBeCleared) {
    Bar();
    const test::MessageBoxAnswer box{IDCANCEL};

    Bar().ClearHistory(search::Box::kCommand);

    EXPECT_EQ(box.Text(), L"[コマンド入力ボックス] の履歴をすべて消去します。よろしいですか？");
}

TEST_F(MainFrameTest, OpensNothingOverItsAboutBox) {
    Bar();
    int opened = 0;
    const test::ModalDialogAnswer answer{
        IDCANCEL, [&](HWND) {
            if (++opened > 1) return;
            for (const int id : {ID_ABOUT, ID_OPTIONS, ID_SEND_MAIL, ID_SHUT_DOWN, ID_RUN_SEARCH, ID_EXIT})
                ::PostMessageW(Bar().Handle(), WM_COMMAND, static_cast<WPARAM>(id), 0);
        }};

    Send(WM_COMMAND, ID_ABOUT);

    EXPECT_EQ(opened, 1);
    EXPECT_EQ(answer.Caption(), L"Korvane のバージョン情報");
}

TEST_F(MainFrameTest, AsksOnceHoweverOftenItIsToldToClose) {
    Bar();
    int asked = 0;
    const test::ModalDialogAnswer no{IDNO, [&](HWND) {
                                         if (++asked > 1) return;
                                         for (int i = 0; i < 10; ++i) ::PostMessageW(Bar().Handle(), WM_CLOSE, 0, 0);
                                     }};

    Send(WM_CLOSE);

    EXPECT_EQ(asked, 1);
    EXPECT_NE(Bar().Handle(), nullptr);
}

TEST_F(MainFrameTest, SaysOnceThatThereIsNoHelpThoughTheMessageIsAskedForHelpToo) {
    about::HelpSession none{fw::UniqueLibrary{}};
    CMainFrame frame{loop, none, Places()};
    ASSERT_TRUE(frame.CreateFrame());
    int shown = 0;
    const test::ModalDialogAnswer box{IDOK, [&](HWND) {
                                          if (++shown == 1) frame.OpenHelp(L"index.html", frame.Handle());
                                      }};

    frame.OpenHelp(L"index.html", frame.Handle());

    EXPECT_EQ(shown, 1);
    ::DestroyWindow(frame.Handle());
}

TEST_F(MainFrameTest, ClosingWritesNoPlacementUnlessItIsToBeSaved) {
    settings.Write(keys::ConfirmExitApp, 1);

    Send(WM_CLOSE);

    EXPECT_FALSE(settings.Read(keys::WindowPosRect).has_value());
}

TEST_F(MainFrameTest, KeepsTheSavedDockedModeWhileItCannotDock) {
    settings.Write(keys::ConfirmExitApp, 1);
    settings.Write(keys::SaveWindowPlacement, 1);
    settings.Write(keys::DefaultDesktopBarMode, 1);

    Send(WM_CLOSE);

    EXPECT_EQ(settings.Read(keys::DefaultDesktopBarMode), 1);
    EXPECT_TRUE(settings.Read(keys::WindowPosRect).has_value());
}

TEST_F(MainFrameTest, OpensAHistoryUnderItsBoxAndReleasesItsButtonWhenItCloses) {
    settings.Write(keys::RecentSearch, 1, L"前の検索");
    Send(WM_COMMAND, MAKEWPARAM(2004, BN_CLICKED), reinterpret_cast<LPARAM>(Child(2004)));
    auto* const button = dynamic_cast<controls::CDropDownButton*>(fw::WindowObject::From(Child(2004)));
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->MenuShown());

    HWND popup = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &FindHistoryPopUp, reinterpret_cast<LPARAM>(&popup));
    ASSERT_NE(popup, nullptr);
    ::SendMessageW(popup, WM_COMMAND, IDCANCEL, 0);

    EXPECT_FALSE(button->MenuShown());
    EXPECT_FALSE(::IsWindow(popup));
}

TEST_F(MainFrameTest, IsNotCreatedAndSaysWhyWhenWindowsKnowsNoDataFolder) {
    CMainFrame frame{loop, help, {key.Path(), [] { return settings::DataFolder{{}, ERROR_ACCESS_DENIED}; }}};
    const test::MessageBoxAnswer box{IDOK};

    EXPECT_FALSE(frame.CreateFrame());

    EXPECT_EQ(::GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Count(), 1);
}

TEST_F(MainFrameTest, IsNotCreatedWithoutTheDataFile) {
    test::TempFolder empty;
    CMainFrame frame{loop, help, {key.Path(), [&] { return settings::DataFolder{empty.Path() + L"\\", 0}; }}};
    const test::MessageBoxAnswer box{IDOK};

    EXPECT_FALSE(frame.CreateFrame());

    EXPECT_EQ(box.Text(),
              L"Korvane の実行に必要なファイルの一部が削除されています。\nKorvane を再インストールしてください。");
    EXPECT_EQ(::GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
}

TEST_F(MainFrameTest, AFailedCreationDoesNotEndTheMessageLoop) {
    test::TempFolder empty;
    CMainFrame frame{loop, help, {key.Path(), [&] { return settings::DataFolder{empty.Path() + L"\\", 0}; }}};
    const test::MessageBoxAnswer box{IDOK};
    ASSERT_FALSE(frame.CreateFrame());

    // Windows sends this after a refused creation.
    (void)frame.Dispatch({nullptr, WM_DESTROY, 0, 0});

    MSG quit{};
    EXPECT_FALSE(::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(MainFrameTest, TheEndOfTheBarEndsTheMessageLoop) {
    settings.Write(keys::ConfirmExitApp, 1);

    Send(WM_CLOSE);

    MSG quit{};
    EXPECT_TRUE(::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(MainFrameTest, EnterInABoxWithTextPostsItsCommandAndAnEmptyBoxTakesItInSilence) {
    const auto press = [&](int id) {
        loop.Process({.hwnd = Child(id), .message = WM_KEYDOWN, .wParam = VK_RETURN, .lParam = 1, .time = 0, .pt = {}});
        MSG posted{};
        return ::PeekMessageW(&posted, Bar().Handle(), WM_COMMAND, WM_COMMAND, PM_REMOVE)
                   ? static_cast<int>(posted.wParam)
                   : 0;
    };
    EXPECT_EQ(press(2001), 0);
    EXPECT_EQ(press(2002), 0);

    ::SetWindowTextW(Child(2001), L"notepad");
    ::SetWindowTextW(Child(2002), L"東京 天気");

    EXPECT_EQ(press(2001), 2005);
    EXPECT_EQ(press(2002), 2006);

    settings.Write(keys::EnableEnterEvent, 0);
    EXPECT_EQ(press(2002), 0);
}

TEST_F(MainFrameTest, ComesBackWhereItWasLeft) {
    const base::Rect saved{100, 120, 1200, 200};
    settings.Write(keys::SaveWindowPlacement, 1);
    settings.Write(keys::WindowPosRect, settings::EncodeRect(saved));

    const base::Rect now = fw::WindowRect(Bar().Handle());

    EXPECT_EQ(now.TopLeft(), saved.TopLeft());
    EXPECT_EQ(now.Width(), saved.Width());
}

TEST_F(MainFrameTest, OpensAtItsDefaultPlaceWhenTheSavedRectangleIsDamaged) {
    const std::array<std::byte, 15> fifteen{};
    settings.Write(keys::SaveWindowPlacement, 1);
    key.SetRaw(L"Settings\\WindowPlacement", L"WindowPosRect", REG_BINARY, fifteen);

    EXPECT_EQ(fw::ClientRect(Bar().Handle()).Extent(), (base::Size{1024, 32}));
}

TEST_F(MainFrameTest, OpensAtItsDefaultPlaceWhenTheSavedRectangleIsAbsurd) {
    settings.Write(keys::SaveWindowPlacement, 1);
    settings.Write(keys::WindowPosRect, settings::EncodeRect({INT_MIN, INT_MIN, INT_MAX, INT_MAX}));

    EXPECT_EQ(fw::ClientRect(Bar().Handle()).Extent(), (base::Size{1024, 32}));
}

TEST_F(MainFrameTest, ComesBackOntoTheScreenWhenItWasLeftFarOffIt) {
    settings.Write(keys::SaveWindowPlacement, 1);
    settings.Write(keys::WindowPosRect, settings::EncodeRect({20000, 20000, 21100, 20071}));

    const base::Rect now = fw::WindowRect(Bar().Handle());

    RECT onScreen = fw::ToWindows(now);
    EXPECT_NE(::MonitorFromRect(&onScreen, MONITOR_DEFAULTTONULL), nullptr);
    EXPECT_LT(now.top, ::GetSystemMetrics(SM_CYSCREEN));
}

TEST_F(MainFrameTest, StartsWithAnEmptyDataFileAndHasNoSearchCommands) {
    folder.Write(L"Korvane.dat", "");

    EXPECT_EQ(SearchMenu(), L"-|検索コマンドの設定(&S)...");
    EXPECT_EQ(fw::WindowText(Child(2007)), L"");
}

TEST_F(MainFrameTest, SearchingWithoutAnyCommandSaysThatTheFileIsDamaged) {
    folder.Write(L"Korvane.dat", "");
    Bar();
    const test::MessageBoxAnswer box{IDOK};

    Send(WM_COMMAND, 2006);

    EXPECT_EQ(
        box.Text(),
        L"検索コマンドの設定ファイルが改変または削除されているため、この検索コマンドを実行することができません。");
}

TEST_F(MainFrameTest, StartsWithADataFileWhoseMarkIsBroken) {
    folder.Write(L"Korvane.dat", "\xFE\xFF[SearchCommand_01]\r\nCommandName=a\r\nCommandLine=b<%Search%>\r\n");

    EXPECT_TRUE(::IsWindow(Bar().Handle()));
    EXPECT_TRUE(SearchMenu().ends_with(L"検索コマンドの設定(&S)..."));
}

TEST_F(MainFrameTest, StartsWithADataFileInUtf8) {
    folder.Write(L"Korvane.dat", "[SearchCommand_01]\r\nCommandName=plain\r\nCommandLine=b<%Search%>\r\n");
    settings.Write(keys::DefaultSearchCommand, L"1");

    EXPECT_EQ(SearchMenu(), L"*plain|-|検索コマンドの設定(&S)...");
}

TEST_F(MainFrameTest, SkipsSelectedNumbersThatHaveNoCommand) {
    settings.Write(keys::DefaultSearchCommand, L"3,,7,x,900");

    EXPECT_EQ(SearchMenu(), L"*標準 3|標準 7|-|検索コマンドの設定(&S)...");
}

TEST_F(MainFrameTest, LosesNothingOfATextOf100000CharactersInABox) {
    const std::wstring text(100'000, L'東');

    ::SetWindowTextW(Child(2002), text.c_str());

    EXPECT_EQ(fw::WindowText(Child(2002)), text);
    EXPECT_TRUE(::IsWindowEnabled(Child(2006)));
}

TEST_F(MainFrameTest, RunsNothingFromAnEmptyCommandBox) {
    Bar();
    const test::MessageBoxAnswer box{IDOK};

    Send(WM_COMMAND, 2005);

    EXPECT_EQ(box.Count(), 0);
}

TEST_F(MainFrameTest, ATypedCommandThatDoesNotExistIsReportedAndNotRemembered) {
    ::SetWindowTextW(Child(2001), L"there-is-no-such-program");
    {
        const test::MessageBoxAnswer box{IDOK};
        Send(WM_COMMAND, 2005);
        EXPECT_EQ(box.Caption(), L"Korvane");
        EXPECT_EQ(box.Text(), fw::SystemErrorText(ERROR_FILE_NOT_FOUND));
    }

    settings.Write(keys::ConfirmExitApp, 1);
    Send(WM_CLOSE);
    EXPECT_EQ(settings.Read(keys::RecentCommand, 1), L"");
}
