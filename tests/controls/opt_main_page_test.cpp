#include "controls/opt_main_page.h"

#include <gmock/gmock.h>

#include <commdlg.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "framework/program_path.h"
#include "framework/window_text.h"
#include "tests/support/clipboard.h"
#include "tests/support/dialog_host.h"
#include "tests/support/dialog_walk.h"
#include "tests/support/fake_clock.h"
#include "tests/support/fake_store.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/message_count.h"
#include "tests/support/modal_dialog_answer.h"
#include "tests/support/refused_window.h"
#include "tests/support/registry_test.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::controls;
using testing::ElementsAre;

namespace {

constexpr std::array kEightBoxes{1012, 1013, 1014, 1015, 1016, 1017, 1018, 1019};
constexpr std::array kEightKeys{L"DesktopBarAutoHide", L"MonitorClipBoard",   L"TopMostWindow",
                                L"SaveRecentlyList",   L"ConfirmExitApp",     L"ConfirmExitWindows",
                                L"EnableEnterEvent",   L"SaveWindowPlacement"};

std::optional<std::uint32_t> g_systemColour;

class FakeHistories final : public HistoryKeeper {
public:
    [[nodiscard]] bool HistoriesEmpty() const override { return empty; }
    void ClearHistories() override {
        ++cleared;
        empty = true;
    }
    bool empty = false;
    int cleared = 0;
};

class OptMainPage : public test::WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        g_systemColour = 0xC4102030;
    }

    void Open() { Open(store); }
    void Open(settings::ProfileStore& from) {
        page = std::make_unique<COptMainPage>(from, histories, settings::AutoRun{key.Root(), key.Path()}, clock,
                                              [] { return g_systemColour; });
        ASSERT_TRUE(page->Create(options.Handle()));
    }
    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(page->Handle(), id); }
    [[nodiscard]] std::wstring Text(int id) const { return fw::WindowText(Control(id)); }
    void SetText(int id, const wchar_t* text) { ::SetWindowTextW(Control(id), text); }
    void Click(int id) { Send(Control(id), BM_CLICK); }
    void Check(int id, bool checked) { Send(Control(id), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED); }
    [[nodiscard]] bool Checked(int id) const { return Send(Control(id), BM_GETCHECK) == BST_CHECKED; }
    [[nodiscard]] bool Enabled(int id) const { return ::IsWindowEnabled(Control(id)) != 0; }
    void Notify(int id, UINT code) {
        Send(page->Handle(), WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(Control(id)));
    }
    // As a user does it.
    void Choose(int id, int row) {
        Send(Control(id), CB_SETCURSEL, static_cast<WPARAM>(row));
        Notify(id, CBN_SELCHANGE);
    }
    [[nodiscard]] int Row(int id) const { return static_cast<int>(Send(Control(id), CB_GETCURSEL)); }
    [[nodiscard]] std::vector<std::wstring> Rows(int id) const {
        std::vector<std::wstring> rows;
        for (LRESULT i = 0; i < Send(Control(id), CB_GETCOUNT); ++i) {
            const auto row = static_cast<WPARAM>(i);
            std::wstring text(static_cast<std::size_t>(Send(Control(id), CB_GETLBTEXTLEN, row)), L'\0');
            Send(Control(id), CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text.data()));
            rows.push_back(text);
        }
        return rows;
    }
    bool Validate() { return Send(page->Handle(), kValidatePage) != 0; }
    // What a control is painted with; nothing when that is left to Windows.
    [[nodiscard]] std::optional<COLORREF> GroundOf(UINT message, HWND control) const {
        const fw::WindowDc dc{control};
        const auto brush = reinterpret_cast<HBRUSH>(
            Send(page->Handle(), message, reinterpret_cast<WPARAM>(dc.Get()), reinterpret_cast<LPARAM>(control)));
        LOGBRUSH look{};
        if (::GetObjectW(brush, sizeof look, &look) == 0) return std::nullopt;
        return look.lbColor;
    }
    [[nodiscard]] COLORREF Swatch() const { return GroundOf(WM_CTLCOLORSTATIC, Control(1025)).value_or(CLR_INVALID); }

    test::FakeStore::Value& Stored(const wchar_t* name) { return store.sections[L"Settings"][name]; }
    [[nodiscard]] int StoredInt(const wchar_t* name) { return store.ReadInt(L"Settings", name, 12345); }

    test::TempRegistryKey key;
    test::FakeStore store;
    test::FakeClock clock;
    FakeHistories histories;
    // Before the page, which is its child.
    test::DialogHost options{L"オプション - 基本設定"};
    std::unique_ptr<COptMainPage> page;
};

TEST_F(OptMainPage, NamesItsControls) {
    Open();

    EXPECT_EQ(Text(1012), L"バーを自動的に隠す(&U)");
    EXPECT_EQ(Text(1061), L"※ バーからマウスカーソルが離れて");
    EXPECT_EQ(Text(1062), L"秒後に隠す");
    EXPECT_EQ(Text(1011), L"背景色の設定");
    EXPECT_EQ(Text(1064), L"バーに時刻を表示する(L)");
    EXPECT_EQ(Text(1065), L"内容(&F):");
    EXPECT_EQ(Text(1013), L"クリップボードを監視して内容を [検索ボックス] に反映する(&K)");
    EXPECT_EQ(Text(1014), L"通常モード時は常に手前に表示する(&T)");
    EXPECT_EQ(Text(1015), L"[コマンド入力ボックス] および [検索ボックス] への入力履歴を保存する(&S)");
    EXPECT_EQ(Text(1048), L"保存する履歴項目の数(&N):");
    EXPECT_EQ(Text(1049), L"直近に入力した");
    EXPECT_EQ(Text(1050), L"項目");
    EXPECT_EQ(Text(1042), L"履歴の消去");
    EXPECT_EQ(Text(1016), L"Korvane の終了時に確認のメッセージを表示しない(&M)");
    EXPECT_EQ(Text(1017), L"Korvane から Windows を終了する時には確認のメッセージを表示する(&W)");
    EXPECT_EQ(Text(1018), L"[コマンド入力ボックス] および [検索ボックス] の Enter キー操作を有効にする(&E)");
    EXPECT_EQ(Text(1019), L"終了時のウィンドウ状態を保存する(&P)");
    EXPECT_EQ(Text(1020), L"Windows の起動にあわせて Korvane を自動起動する(&R)");
    EXPECT_EQ(Text(1068), L"[タスクの切り替え] メニュー にはアプリケーション名を表示する(&V)");
}

TEST_F(OptMainPage, HasTheLabelOfEachFieldRightBeforeIt) {
    Open();

    const auto labelOf = [&](int id) { return fw::WindowText(::GetWindow(Control(id), GW_HWNDPREV)); };
    EXPECT_EQ(labelOf(1045), L"バーの位置(&O):");
    EXPECT_EQ(labelOf(1063), L"※ バーからマウスカーソルが離れて");
    EXPECT_EQ(labelOf(1044), L"背景色(&C):");
    EXPECT_EQ(labelOf(1066), L"内容(&F):");
    EXPECT_EQ(labelOf(1046), L"保存する履歴項目の数(&N):");
}

TEST_F(OptMainPage, IsWalkedThroughInTheOrderOfItsControls) {
    Stored(L"DesktopBarAutoHide") = 1;
    Stored(L"ShowTimeBarClock") = 1;
    Stored(L"DefaultBarColor") = 2;
    Open();

    const std::vector<int> order = test::TabOrder(page->Handle(), 1045);

    EXPECT_THAT(order, ElementsAre(1045, 1012, 1063, 1044, 1011, 1064, 1066, 1013, 1015, 1046, 1042, 1018, 1014, 1016,
                                   1017, 1019, 1020, 1068));
}

TEST_F(OptMainPage, GivesNoAccessKeyTwice) {
    Open();

    EXPECT_EQ(test::AccessKeys(page->Handle()), L"CEFKLMNOPRSTUVW");
}

// With a fifth to spare, for fonts whose letters are wider. The space between two controls in a row is theirs too.
TEST_F(OptMainPage, LeavesRoomForItsTexts) {
    Open();

    const fw::WindowDc dc{page->Handle()};
    const fw::SelectedObject font{dc.Get(), reinterpret_cast<HFONT>(Send(page->Handle(), WM_GETFONT))};
    for (HWND child = ::GetWindow(page->Handle(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const LRESULT kind = Send(child, WM_GETDLGCODE);
        const std::wstring text = fw::WindowText(child);
        const int id = ::GetDlgCtrlID(child);
        if ((kind & (DLGC_STATIC | DLGC_BUTTON)) == 0 || text.empty() || id == 1011 || id == 1042) continue;
        // A label that only has a key shows nothing.
        if (fw::WindowRect(child).Empty()) continue;
        RECT needed{};
        ::DrawTextW(dc.Get(), text.c_str(), -1, &needed, DT_CALCRECT | DT_SINGLELINE);
        const int width = needed.right * 6 / 5;
        const int box = (kind & DLGC_BUTTON) != 0 ? ::GetSystemMetrics(SM_CXMENUCHECK) + 6 : 0;
        const base::Size room = {fw::WindowRect(child).Width() - box, fw::WindowRect(child).Height()};
        const bool breaks = (::GetWindowLongPtrW(child, GWL_STYLE) & BS_MULTILINE) != 0 && box != 0;
        const int lines = breaks ? (width + room.width - 1) / room.width : 1;
        EXPECT_LE(width, room.width * lines) << id;
        EXPECT_LE(needed.bottom * lines, room.height) << id;
    }
}

TEST_F(OptMainPage, OffersTheRowsOfItsLists) {
    Open();

    EXPECT_THAT(Rows(1045), ElementsAre(L"画面の上部", L"画面の下部"));
    EXPECT_THAT(Rows(1044), ElementsAre(L"テーマカラー", L"システム標準色", L"ユーザー定義色"));
    EXPECT_THAT(Rows(1063),
                ElementsAre(L"0.5", L"1.0", L"1.5", L"2.0", L"2.5", L"3.0", L"3.5", L"4.0", L"4.5", L"5.0"));
    EXPECT_THAT(Rows(1066),
                ElementsAre(L"時刻のみ", L"時刻(秒あり)のみ", L"時刻＋日付", L"時刻(秒あり)＋日付", L"日付のみ"));
}

TEST_F(OptMainPage, ShowsTheDefaultsToANewUser) {
    Open();

    EXPECT_EQ(Row(1045), 0);
    EXPECT_EQ(Row(1044), 1);
    EXPECT_EQ(Row(1063), 0);
    EXPECT_EQ(Row(1066), 0);
    EXPECT_EQ(Text(1046), L"5");
    std::vector<int> checked;
    for (const int id : {1012, 1013, 1014, 1015, 1016, 1017, 1018, 1019, 1020, 1064, 1068})
        if (Checked(id)) checked.push_back(id);
    EXPECT_THAT(checked, ElementsAre(1013, 1015, 1017, 1018));
}

TEST_F(OptMainPage, ShowsWhatIsStored) {
    Stored(L"DesktopBarEdge") = 1;
    Stored(L"DefaultBarColor") = 2;
    Stored(L"DesktopBarAutoHideSecond") = 9;
    Stored(L"TimeBarClockFormat") = 4;
    Stored(L"SaveListItemNum") = 12;
    Stored(L"ShowTimeBarClock") = 1;
    Stored(L"TaskMenuAppName") = 1;
    Open();

    EXPECT_EQ(Row(1045), 1);
    EXPECT_EQ(Row(1044), 2);
    EXPECT_EQ(Row(1063), 9);
    EXPECT_EQ(Row(1066), 4);
    EXPECT_EQ(Text(1046), L"12");
    EXPECT_TRUE(Checked(1064));
    EXPECT_TRUE(Checked(1068));
}

TEST_F(OptMainPage, ChecksEachOfTheEightBoxesForItsKeyAlone) {
    for (std::size_t i = 0; i < kEightBoxes.size(); ++i) {
        for (const wchar_t* name : kEightKeys)
            store.sections[name == kEightKeys[7] ? L"Settings\\WindowPlacement" : L"Settings"][name] =
                name == kEightKeys[i] ? 1 : 0;
        Open();
        for (const int id : kEightBoxes) EXPECT_EQ(Checked(id), id == kEightBoxes[i]) << id << " at " << i;
    }
}

TEST_F(OptMainPage, TakesAnyNumberButZeroForChecked) {
    for (const int stored : {2, -1, 0x7FFFFFFF}) {
        Stored(L"ConfirmExitApp") = stored;
        Stored(L"ShowTimeBarClock") = stored;
        Open();
        EXPECT_TRUE(Checked(1016)) << stored;
        EXPECT_TRUE(Checked(1064)) << stored;
    }
}

TEST_F(OptMainPage, HasARowSelectedWhateverIsStored) {
    for (const int stored : {-1, 3, 5, 10, 100, static_cast<int>(0x80000000), 0x7FFFFFFF}) {
        for (const wchar_t* name :
             {L"DesktopBarEdge", L"DefaultBarColor", L"DesktopBarAutoHideSecond", L"TimeBarClockFormat"})
            Stored(name) = stored;
        Open();
        for (const int list : {1045, 1044, 1063, 1066}) EXPECT_GE(Row(list), 0) << list << " at " << stored;
        EXPECT_EQ(Row(1045), 1) << stored;

        ASSERT_TRUE(page->Save());
        for (const wchar_t* name : {L"DesktopBarEdge", L"DefaultBarColor", L"DesktopBarAutoHideSecond"})
            EXPECT_GE(StoredInt(name), 0) << stored;
        EXPECT_LE(StoredInt(L"TimeBarClockFormat"), 4) << stored;
    }
}

TEST_F(OptMainPage, ShowsTheDefaultsWhereValuesHaveAnotherType) {
    const settings::RegistryStore damaged{key.Root(), key.Path()};
    const std::array text{std::byte{'x'}, std::byte{0}, std::byte{0}, std::byte{0}};
    for (const wchar_t* name : {L"DesktopBarEdge", L"DefaultBarColor", L"UserBarColor", L"SaveListItemNum",
                                L"SaveRecentlyList", L"TimeBarClockFormat", L"DesktopBarAutoHideSecond"})
        key.SetRaw(L"Settings", name, REG_SZ, text);
    settings::RegistryStore from{key.Root(), key.Path()};

    Open(from);

    EXPECT_EQ(Row(1045), 0);
    EXPECT_EQ(Row(1044), 1);
    EXPECT_EQ(Row(1063), 0);
    EXPECT_EQ(Row(1066), 0);
    EXPECT_EQ(Text(1046), L"5");
    EXPECT_TRUE(Checked(1015));
    EXPECT_EQ(Swatch(), RGB(0x10, 0x20, 0x30));
}

TEST_F(OptMainPage, SavesEverySettingInItsSection) {
    Open();
    Choose(1045, 1);
    Choose(1044, 2);
    Choose(1063, 3);
    Choose(1066, 4);
    SetText(1046, L"9");
    for (const int id : kEightBoxes) Click(id);
    Click(1064);
    Click(1068);
    store.log.clear();

    EXPECT_TRUE(page->Save());

    EXPECT_EQ(store.log, L"Settings.DesktopBarEdge=1\n"
                         L"Settings.DefaultBarColor=2\n"
                         L"Settings.UserBarColor=3153936\n" // 0x302010
                         L"Settings.DesktopBarAutoHide=1\n"
                         L"Settings.MonitorClipBoard=0\n"
                         L"Settings.TopMostWindow=1\n"
                         L"Settings.SaveRecentlyList=0\n"
                         L"Settings.ConfirmExitApp=1\n"
                         L"Settings.ConfirmExitWindows=0\n"
                         L"Settings.EnableEnterEvent=0\n"
                         L"Settings\\WindowPlacement.SaveWindowPlacement=1\n"
                         L"Settings.SaveListItemNum=9\n"
                         L"Settings.DesktopBarAutoHideSecond=3\n"
                         L"Settings.ShowTimeBarClock=1\n"
                         L"Settings.TimeBarClockFormat=4\n"
                         L"Settings.TaskMenuAppName=1\n");
}

TEST_F(OptMainPage, SavesNothingUnlessItIsTold) {
    key.SetRaw(L"Run", L"Korvane AutoRun", REG_SZ, {});
    Open();
    Choose(1045, 1);
    Choose(1044, 0);
    for (const int id : kEightBoxes) Click(id);
    Click(1020);
    SetText(1046, L"7");

    page.reset();

    EXPECT_EQ(store.log, L"");
    EXPECT_FALSE(settings::AutoRun(key.Root(), key.Path()).IsSet());
}

TEST_F(OptMainPage, HasNothingToSaveBeforeItIsOpened) {
    COptMainPage unopened{store, histories, settings::AutoRun{key.Root(), key.Path()}, clock};

    EXPECT_TRUE(unopened.Save());

    EXPECT_EQ(store.log, L"");
}

TEST_F(OptMainPage, TellsOfEachWriteThatFailed) {
    Open();
    const auto lines = [&] { return std::count(store.log.begin(), store.log.end(), L'\n'); };
    ASSERT_TRUE(page->Save());
    const auto writes = static_cast<int>(lines());
    ASSERT_EQ(writes, 16);

    for (int succeeding = 0; succeeding < writes; ++succeeding) {
        store.writesThatSucceed = succeeding;
        EXPECT_FALSE(page->Save()) << succeeding;
    }
    store.writesThatSucceed = writes;
    EXPECT_TRUE(page->Save());
}

TEST_F(OptMainPage, TellsOfAStartWithWindowsThatCannotBeWritten) {
    page = std::make_unique<COptMainPage>(store, histories, settings::AutoRun{nullptr, L"nowhere"}, clock);
    ASSERT_TRUE(page->Create(options.Handle()));
    EXPECT_FALSE(Checked(1020));
    EXPECT_TRUE(page->Save());

    Check(1020, true);

    EXPECT_FALSE(page->Save());
    EXPECT_EQ(StoredInt(L"TaskMenuAppName"), 0); // the rest is written all the same
}

TEST_F(OptMainPage, ShowsWhetherAProgramStartsWithWindows) {
    settings::AutoRun run{key.Root(), key.Path()};
    Open();
    EXPECT_FALSE(Checked(1020));

    ASSERT_TRUE(run.Set(L"C:\\elsewhere\\Korvane.exe"));
    Open();
    EXPECT_TRUE(Checked(1020));

    const std::array empty{std::byte{0}, std::byte{0}};
    key.SetRaw(L"Run", L"Korvane AutoRun", REG_SZ, empty);
    Open();
    EXPECT_FALSE(Checked(1020));
}

TEST_F(OptMainPage, RewritesTheStartWithWindowsWithItsOwnPath) {
    settings::AutoRun{key.Root(), key.Path()}.Set(L"C:\\elsewhere\\Korvane.exe");
    Open();

    ASSERT_TRUE(page->Save());

    const settings::RegistryStore run{key.Root(), key.Path()};
    EXPECT_EQ(run.ReadText(L"Run", L"Korvane AutoRun"), fw::ProgramPath());
}

TEST_F(OptMainPage, RemovesTheStartWithWindowsOnlyWhereThereIsOne) {
    settings::AutoRun run{key.Root(), key.Path()};
    Open();
    ASSERT_TRUE(page->Save());
    EXPECT_FALSE(key.Exists(L"Run"));

    ASSERT_TRUE(run.Set(L"C:\\Korvane.exe"));
    Open();
    Click(1020);
    ASSERT_TRUE(page->Save());
    EXPECT_FALSE(run.IsSet());
    EXPECT_TRUE(key.Exists(L"Run"));
}

TEST_F(OptMainPage, ShowsTheThemeColourAndGreysTheButtonForTheUsersColour) {
    Stored(L"DefaultBarColor") = 2;
    Open();
    EXPECT_TRUE(Enabled(1011));

    Choose(1044, 0);

    EXPECT_EQ(Swatch(), RGB(159, 22, 106));
    EXPECT_FALSE(Enabled(1011));
}

TEST_F(OptMainPage, ShowsTheSystemsColourWithoutItsAlpha) {
    Open();

    EXPECT_EQ(Swatch(), RGB(0x10, 0x20, 0x30));
    EXPECT_FALSE(Enabled(1011));
}

TEST_F(OptMainPage, ShowsBlackWhereTheSystemHasNoColour) {
    g_systemColour = std::nullopt;
    Open();
    EXPECT_EQ(Swatch(), RGB(0, 0, 0));

    Choose(1044, 2);
    EXPECT_EQ(Swatch(), RGB(0, 0, 0));
}

TEST_F(OptMainPage, ShowsTheUsersColour) {
    Stored(L"DefaultBarColor") = 2;
    Stored(L"UserBarColor") = static_cast<int>(RGB(10, 20, 30));
    Open();

    EXPECT_EQ(Swatch(), RGB(10, 20, 30));
    EXPECT_TRUE(Enabled(1011));
}

// The highest byte of a COLORREF makes it a palette's index or a colour out of it.
TEST_F(OptMainPage, DropsWhatIsNoColourFromADamagedOne) {
    Stored(L"DefaultBarColor") = 2;
    for (const unsigned damage : {0xFF000000U, 0x01000000U, 0x02000000U}) {
        Stored(L"UserBarColor") = static_cast<int>(damage | RGB(10, 20, 30));
        Open();
        EXPECT_EQ(Swatch(), RGB(10, 20, 30));
        ASSERT_TRUE(page->Save());
        EXPECT_EQ(StoredInt(L"UserBarColor"), static_cast<int>(RGB(10, 20, 30)));
    }
}

TEST_F(OptMainPage, TakesTheSystemsColourOfItsOpeningForAUserWithoutOne) {
    Open();
    g_systemColour = 0xFF999999;

    Choose(1044, 2);
    EXPECT_EQ(Swatch(), RGB(0x10, 0x20, 0x30));

    Choose(1044, 1);
    EXPECT_EQ(Swatch(), RGB(0x99, 0x99, 0x99));
}

TEST_F(OptMainPage, FollowsTheSystemsColour) {
    Open();
    g_systemColour = 0xFF445566;

    Send(page->Handle(), WM_DWMCOLORIZATIONCOLORCHANGED);

    EXPECT_EQ(Swatch(), RGB(0x44, 0x55, 0x66));
}

TEST_F(OptMainPage, KeepsOneBrushForTheSwatch) {
    Open();
    Choose(1044, 0);
    const int before = test::GdiObjectCount();

    for (int i = 0; i < 300; ++i) Choose(1044, i % 3);
    Choose(1044, 0);

    EXPECT_EQ(test::GdiObjectCount(), before);
}

TEST_F(OptMainPage, LeavesNothingBehind) {
    Open();
    page.reset();
    Pump();
    const int before = test::GdiObjectCount();

    for (int i = 0; i < 5; ++i) {
        Open();
        Pump();
        page.reset();
    }
    Pump();

    EXPECT_EQ(test::GdiObjectCount(), before);
}

TEST_F(OptMainPage, LetsTheUserPickAColour) {
    Stored(L"DefaultBarColor") = 2;
    Stored(L"UserBarColor") = static_cast<int>(RGB(10, 20, 30));
    Open();
    {
        test::ModalDialogAnswer answer{IDOK, [](HWND dialog) {
                                           // The dialog's fields for red, green and blue.
                                           ::SetDlgItemInt(dialog, 706, 200, FALSE);
                                           ::SetDlgItemInt(dialog, 707, 100, FALSE);
                                           ::SetDlgItemInt(dialog, 708, 50, FALSE);
                                       }};
        Click(1011);
        EXPECT_EQ(answer.Caption(), L"背景色の設定");
    }

    EXPECT_EQ(Swatch(), RGB(200, 100, 50));
    ASSERT_TRUE(page->Save());
    EXPECT_EQ(StoredInt(L"UserBarColor"), static_cast<int>(RGB(200, 100, 50)));
}

TEST_F(OptMainPage, KeepsTheColourWhenPickingIsCancelled) {
    Stored(L"DefaultBarColor") = 2;
    Stored(L"UserBarColor") = static_cast<int>(RGB(10, 20, 30));
    Open();
    {
        test::ModalDialogAnswer answer{IDCANCEL, [](HWND dialog) { ::SetDlgItemInt(dialog, 706, 200, FALSE); }};
        Click(1011);
        EXPECT_EQ(answer.Count(), 1);
    }

    EXPECT_EQ(Swatch(), RGB(10, 20, 30));
}

TEST_F(OptMainPage, EnablesWhatABoxGoverns) {
    struct Case {
        int box;
        std::vector<int> governed;
    };
    Open();
    for (const Case& one :
         {Case{1012, {1061, 1062, 1063}}, Case{1015, {1046, 1047, 1048, 1049, 1050}}, Case{1064, {1065, 1066}}}) {
        const bool before = Checked(one.box);
        for (const int id : one.governed) EXPECT_EQ(Enabled(id), before) << id << " at first";
        Click(one.box);
        for (const int id : one.governed) EXPECT_EQ(Enabled(id), !before) << id << " after a click";
        Click(one.box);
        for (const int id : one.governed) EXPECT_EQ(Enabled(id), before) << id << " after two clicks";
    }
}

TEST_F(OptMainPage, LeavesTheOtherControlsEnabledWhateverIsChecked) {
    Open();
    for (const int id : {1012, 1015, 1064}) Check(id, false);
    for (const int id : {1012, 1015, 1064}) {
        Click(id);
        Click(id);
    }

    for (const int id : {1045, 1044, 1012, 1013, 1014, 1015, 1016, 1017, 1018, 1019, 1020, 1042, 1064, 1067, 1068})
        EXPECT_TRUE(Enabled(id)) << id;
}

TEST_F(OptMainPage, ShowsTheTimeInTheChosenFormat) {
    Stored(L"TimeBarClockFormat") = 2;
    Open();
    EXPECT_EQ(Text(1067), L"09:05\r\n2026/03/05");

    Choose(1066, 4);
    EXPECT_EQ(Text(1067), L"2026/03/05");

    Choose(1066, 1);
    EXPECT_EQ(Text(1067), L"09:05:07");
}

TEST_F(OptMainPage, ShowsTheTimeInTheFormatOfTheSelectedRowWhateverIsStored) {
    Stored(L"TimeBarClockFormat") = 7;
    Open();

    EXPECT_EQ(Row(1066), 0);
    EXPECT_EQ(Text(1067), L"09:05");
}

TEST_F(OptMainPage, LimitsTheHistoryLengthToTwoDigits) {
    Open();
    const HWND field = Control(1046);

    EXPECT_EQ(Send(field, EM_GETLIMITTEXT), 2);
    EXPECT_NE(::GetWindowLongPtrW(field, GWL_STYLE) & ES_NUMBER, 0);
    SetText(1046, L"");
    for (const wchar_t letter : {L'a', L'1', L'-', L'2', L'3'}) Send(field, WM_CHAR, letter, 1);
    EXPECT_EQ(Text(1046), L"12");
}

TEST_F(OptMainPage, StepsTheHistoryLengthByArrows) {
    Open();
    const HWND arrows = Control(1047);
    EXPECT_EQ(Send(arrows, UDM_GETRANGE), MAKELRESULT(15, 0));
    EXPECT_EQ(reinterpret_cast<HWND>(Send(arrows, UDM_GETBUDDY)), Control(1046));
    EXPECT_EQ(Text(1046), L"5");

    Send(Control(1046), WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(Text(1046), L"6");
    for (int i = 0; i < 20; ++i) Send(Control(1046), WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(Text(1046), L"15");
    for (int i = 0; i < 30; ++i) Send(Control(1046), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(Text(1046), L"1");
}

TEST_F(OptMainPage, PastesOnlyDigitsIntoTheHistoryLength) {
    Open();
    for (const wchar_t* text : {L"ab", L"1x", L"-1", L"\r\n", L"３"}) {
        SetText(1046, L"7");
        Send(Control(1046), EM_SETSEL, 0, 1);
        ASSERT_TRUE(test::Copy(Host(), {{CF_UNICODETEXT, test::BytesOf({text, std::wcslen(text) + 1})}}));

        Send(Control(1046), WM_PASTE);

        EXPECT_EQ(Text(1046).find_first_not_of(L"0123456789"), std::wstring::npos) << testing::PrintToString(text);
    }

    SetText(1046, L"7");
    Send(Control(1046), EM_SETSEL, 0, 1);
    ASSERT_TRUE(test::Copy(Host(), {{CF_UNICODETEXT, test::BytesOf({L"12\r\n34", 7})}}));
    Send(Control(1046), WM_PASTE);
    EXPECT_EQ(Text(1046), L"12");
}

TEST_F(OptMainPage, KeepsTheHistoryLengthAndItsSelectionWhenLettersArePasted) {
    Open();
    SetText(1046, L"12");
    Send(Control(1046), EM_SETSEL, 1, 2);
    ASSERT_TRUE(test::Copy(Host(), {{CF_UNICODETEXT, test::BytesOf({L"x", 2})}}));

    Send(Control(1046), WM_PASTE);

    EXPECT_EQ(Text(1046), L"12");
    EXPECT_EQ(Send(Control(1046), EM_GETSEL), MAKELRESULT(1, 2));
}

TEST_F(OptMainPage, CorrectsTheHistoryLengthWhenTheFieldIsLeft) {
    struct Case {
        const wchar_t* typed;
        const wchar_t* corrected;
    };
    Open();
    for (const Case& one :
         {Case{L"00", L"1"}, Case{L"0", L"1"}, Case{L"16", L"15"}, Case{L"99", L"15"}, Case{L"05", L"5"},
          Case{L"15", L"15"}, Case{L"1", L"1"}, Case{L"", L""}, Case{L"１２", L"12"}}) {
        SetText(1046, one.typed);
        Notify(1046, EN_KILLFOCUS);
        EXPECT_EQ(Text(1046), one.corrected) << testing::PrintToString(one.typed);
    }
}

TEST_F(OptMainPage, TakesTheWideDigitsOfAnInputMethod) {
    Open();
    SetText(1046, L"");

    for (const wchar_t digit : {L'１', L'０'}) Send(Control(1046), WM_CHAR, digit);

    EXPECT_EQ(Text(1046), L"10");
}

TEST_F(OptMainPage, GivesTheFocusToTheNumberWhoseArrowsAreUsed) {
    Open();
    ::SetFocus(Control(1045));
    NMUPDOWN step{};
    step.hdr = {Control(1047), 1047, static_cast<UINT>(UDN_DELTAPOS)};
    step.iPos = 5;
    step.iDelta = 1;

    Send(page->Handle(), WM_NOTIFY, 1047, reinterpret_cast<LPARAM>(&step));

    EXPECT_EQ(::GetFocus(), Control(1046));
}

// Enter in the field presses OK without leaving it.
TEST_F(OptMainPage, SavesAHistoryLengthWithinItsRange) {
    struct Case {
        const wchar_t* typed;
        int saved;
    };
    Open();
    for (const Case& one : {Case{L"00", 1}, Case{L"0", 1}, Case{L"16", 15}, Case{L"99", 15}, Case{L"1", 1},
                            Case{L"15", 15}, Case{L"99999999999999999999", 15}}) {
        SetText(1046, one.typed);
        EXPECT_FALSE(Validate()) << testing::PrintToString(one.typed);
        ASSERT_TRUE(page->Save());
        EXPECT_EQ(StoredInt(L"SaveListItemNum"), one.saved) << testing::PrintToString(one.typed);
    }
}

TEST_F(OptMainPage, ShowsAHistoryLengthOutOfRangeWithinIt) {
    Stored(L"SaveListItemNum") = 100;
    Open();
    EXPECT_EQ(Text(1046), L"15");

    Stored(L"SaveListItemNum") = 0;
    Open();
    EXPECT_EQ(Text(1046), L"1");
}

TEST_F(OptMainPage, KeepsThatNoHistoryLengthWasGiven) {
    Stored(L"SaveRecentlyList") = 0;
    Open();
    SetText(1046, L"");

    EXPECT_FALSE(Validate());
    ASSERT_TRUE(page->Save());
    EXPECT_EQ(StoredInt(L"SaveListItemNum"), -1);

    Open();
    EXPECT_EQ(Text(1046), L"");
}

TEST_F(OptMainPage, AsksForAHistoryLengthThatIsMissing) {
    Open();
    SetText(1046, L"");
    const test::MessageBoxAnswer answer{IDOK};

    EXPECT_TRUE(Validate());

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.Text(), L"コマンド入力ボックス および 検索ボックス の入力履歴の保存項目数が指定されていません。");
    EXPECT_EQ(answer.Caption(), L"オプション - 基本設定");
    EXPECT_EQ(::GetFocus(), Control(1046));
}

TEST_F(OptMainPage, ClearsTheHistoriesWhenToldTwice) {
    Open();
    ::SetFocus(Control(1042));
    const test::MessageBoxAnswer answer{IDYES};

    Click(1042);

    EXPECT_EQ(histories.cleared, 1);
    EXPECT_FALSE(Enabled(1042));
    EXPECT_EQ(::GetFocus(), Control(1018));
    EXPECT_EQ(answer.Text(),
              L"[コマンド入力ボックス] と [検索ボックス] の現在の履歴をすべて消去します。よろしいですか？");
    EXPECT_EQ(answer.Caption(), L"オプション - 基本設定");
}

TEST_F(OptMainPage, KeepsTheHistoriesOtherwise) {
    for (const int button : {IDNO, IDCANCEL}) {
        Open();
        const test::MessageBoxAnswer answer{button};
        Click(1042);
        EXPECT_EQ(answer.Count(), 1);
        EXPECT_EQ(histories.cleared, 0);
        EXPECT_TRUE(Enabled(1042));
    }
}

TEST_F(OptMainPage, GreysTheClearingOfHistoriesThatAreEmpty) {
    histories.empty = true;
    Open();

    EXPECT_FALSE(Enabled(1042));
}

TEST_F(OptMainPage, StandsOnTheColourOfWindows) {
    Open();
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);

    EXPECT_EQ(GroundOf(WM_CTLCOLORDLG, page->Handle()), window);
    EXPECT_EQ(GroundOf(WM_CTLCOLORBTN, Control(1011)), window);
    for (const int id : {1012, 1061, 1049}) EXPECT_EQ(GroundOf(WM_CTLCOLORSTATIC, Control(id)), window) << id;
}

TEST_F(OptMainPage, PassesNewSystemColoursOnToTheArrows) {
    Open();
    const test::MessageCount told{Control(1047), WM_SYSCOLORCHANGE};

    Send(page->Handle(), WM_SYSCOLORCHANGE);

    EXPECT_EQ(told.Count(), 1);
}

TEST_F(OptMainPage, IsPaintedAnewInNewSystemColours) {
    Open();
    ::ShowWindow(page->Handle(), SW_SHOWNOACTIVATE);
    ::ShowWindow(options.Handle(), SW_SHOWNOACTIVATE);
    Pump();
    ::ValidateRect(Control(1067), nullptr);
    ASSERT_FALSE(::GetUpdateRect(Control(1067), nullptr, FALSE));

    Send(page->Handle(), WM_SYSCOLORCHANGE);

    for (const int id : {1067, 1011, 1025, 1012}) EXPECT_TRUE(::GetUpdateRect(Control(id), nullptr, FALSE)) << id;
}

TEST_F(OptMainPage, PaintsTheSwatchAnewForEachChoice) {
    Open();
    ::ShowWindow(page->Handle(), SW_SHOWNOACTIVATE);
    ::ShowWindow(options.Handle(), SW_SHOWNOACTIVATE);
    ::UpdateWindow(Control(1025));
    const auto shown = [&] {
        ::UpdateWindow(Control(1025));
        const fw::WindowDc dc{Control(1025)};
        return ::GetPixel(dc.Get(), 5, 5);
    };
    EXPECT_EQ(shown(), RGB(0x10, 0x20, 0x30));

    Choose(1044, 0);

    EXPECT_EQ(shown(), RGB(159, 22, 106));
}

TEST_F(OptMainPage, LeavesGreyedFieldsGrey) {
    Open();

    for (const int id : {1046, 1066})
        EXPECT_EQ(GroundOf(WM_CTLCOLORSTATIC, Control(id)), ::GetSysColor(COLOR_BTNFACE)) << id;
}

TEST_F(OptMainPage, DrawsThePictureButtonsItself) {
    Open();

    for (const int id : {1011, 1042}) {
        std::array<wchar_t, 64> name{};
        ::GetClassNameW(Control(id), name.data(), static_cast<int>(name.size()));
        EXPECT_STREQ(name.data(), L"AppImageBtn_WndClass") << id;
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.CtlID = static_cast<UINT>(id);
        item.hwndItem = Control(id);
        EXPECT_NE(Send(page->Handle(), WM_DRAWITEM, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&item)), 0) << id;
    }
}

TEST_F(OptMainPage, WorksWithTheTemplatesControlsWhereThereAreNoOthers) {
    for (const wchar_t* windowClass : {L"AppImageBtn_WndClass", L"NumberEdit_WndClass", L"SampleTimeBar_WndClass"}) {
        {
            const test::RefusedWindow refused{windowClass};
            Open();
        }
        SetText(1046, L"8");
        Choose(1066, 3);
        Choose(1044, 2);
        EXPECT_TRUE(Enabled(1011));
        ASSERT_TRUE(page->Save());
        EXPECT_EQ(StoredInt(L"SaveListItemNum"), 8);
    }
}

TEST_F(OptMainPage, OutlivesItsWindow) {
    Open();
    ::DestroyWindow(page->Handle());

    EXPECT_TRUE(page->Save());
    EXPECT_EQ(store.log, L"");
}

} // namespace
