#include "launch/option_dialog.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "framework/window_text.h"
#include "settings/ini_backend.h"
#include "tests/support/canvas.h"
#include "tests/support/dialog_walk.h"
#include "tests/support/fake_help.h"
#include "tests/support/fake_store.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/high_contrast.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::launch;
using testing::ElementsAre;

namespace {

constexpr int kTree = 1023;
constexpr int kOk = 6;
constexpr int kHelpButton = 1009;
constexpr COLORREF kGrey = RGB(96, 96, 96);

class NoHistories final : public controls::HistoryKeeper {
public:
    [[nodiscard]] bool HistoriesEmpty() const override { return true; }
    void ClearHistories() override {}
};

class NoFile final : public search::UserCommandFile {
public:
    [[nodiscard]] search::UserCommandReading Read() const override { return {}; }
    [[nodiscard]] unsigned long KeepCopy() override { return 0; }
    [[nodiscard]] unsigned long Write(std::span<const search::SearchCommand>) override { return 0; }
    [[nodiscard]] unsigned long Delete() override { return 0; }
};

class OptionDialog : public test::WindowTest {
protected:
    OptionDialog() {
        standard.sections[L"SearchCommand_01"][L"CommandName"] = std::wstring{L"検索"};
        standard.sections[L"SearchCommand_01"][L"CommandLine"] = std::wstring{L"http://a.example/<%Search%>"};
        store.sections[L"Settings"][L"DefaultSearchCommand"] = std::wstring{L"1"};
    }
    void Open(OptionPage page = OptionPage::kMain) {
        dialog = std::make_unique<COptionDialog>(
            page, OptionServices{
                      .stores = {store, standard, user}, .userCommands = file, .histories = histories, .help = help});
        ASSERT_TRUE(dialog->Create(Host()));
        store.log.clear();
    }
    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(dialog->Handle(), id); }
    void Command(int id) { Send(dialog->Handle(), WM_COMMAND, static_cast<WPARAM>(id)); }
    [[nodiscard]] std::wstring Caption() const { return fw::WindowText(dialog->Handle()); }
    // The page that holds a control.
    [[nodiscard]] HWND PageWith(int id) const {
        for (HWND child = ::GetWindow(dialog->Handle(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
            if (::GetDlgItem(child, id)) return child;
        return nullptr;
    }
    static base::Rect PlaceIn(HWND window, HWND control) {
        RECT r = fw::ToWindows(fw::WindowRect(control));
        ::MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&r), 2);
        return fw::FromWindows(r);
    }
    [[nodiscard]] base::Rect ClientPlace(HWND control) const { return PlaceIn(dialog->Handle(), control); }
    // What pages that do not fit are seen through; null when they do.
    [[nodiscard]] HWND View() const {
        return ::FindWindowExW(dialog->Handle(), nullptr, L"OptionPageView_WndClass", nullptr);
    }
    // The page in the view that holds a control.
    [[nodiscard]] HWND OnView(int id) const {
        for (HWND page = ::GetWindow(View(), GW_CHILD); page; page = ::GetWindow(page, GW_HWNDNEXT))
            if (::GetDlgItem(page, id)) return page;
        return nullptr;
    }
    [[nodiscard]] HWND MainPage() const { return PageWith(1044); }
    [[nodiscard]] HWND CommandPage() const { return PageWith(1028); }
    [[nodiscard]] HWND LaunchPage() const { return PageWith(1057); }
    static bool Shown(HWND window) { return (::GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0; }
    [[nodiscard]] std::vector<bool> ShownPages() const {
        return {Shown(MainPage()), Shown(CommandPage()), Shown(LaunchPage())};
    }
    HTREEITEM Item(int index) const {
        auto item = reinterpret_cast<HTREEITEM>(Send(Control(kTree), TVM_GETNEXTITEM, TVGN_ROOT));
        for (int i = 0; i < index; ++i)
            item = reinterpret_cast<HTREEITEM>(
                Send(Control(kTree), TVM_GETNEXTITEM, TVGN_NEXT, reinterpret_cast<LPARAM>(item)));
        return item;
    }
    void SelectItem(int index) {
        Send(Control(kTree), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(Item(index)));
    }
    std::wstring ItemText(int index) const {
        wchar_t text[100]{};
        TVITEMW item{};
        item.mask = TVIF_HANDLE | TVIF_TEXT;
        item.hItem = Item(index);
        item.pszText = text;
        item.cchTextMax = 100;
        Send(Control(kTree), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return text;
    }
    // Without a number of items to keep the main page is not acceptable.
    void MakeMainPageUnacceptable() {
        Send(::GetDlgItem(MainPage(), 1015), BM_SETCHECK, BST_CHECKED);
        ::SetWindowTextW(::GetDlgItem(MainPage(), 1046), L"");
    }

    test::FakeStore store;
    test::FakeStore standard;
    test::FakeStore user;
    NoFile file;
    NoHistories histories;
    test::FakeHelp help;
    std::unique_ptr<COptionDialog> dialog;
};

TEST_F(OptionDialog, HasATreeOfThreePages) {
    Open();

    EXPECT_EQ(ItemText(0), L"基本設定");
    EXPECT_EQ(ItemText(1), L"検索コマンドの設定");
    EXPECT_EQ(ItemText(2), L"ランチ メニューの設定");
    EXPECT_EQ(Item(3), nullptr);
}

TEST_F(OptionDialog, MarksThePagesWithTheSecondImage) {
    Open();

    for (int i = 0; i < 3; ++i) {
        TVITEMW item{};
        item.mask = TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
        item.hItem = Item(i);
        Send(Control(kTree), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(item.iImage, 1);
        EXPECT_EQ(item.iSelectedImage, 1);
        EXPECT_EQ(item.lParam, i);
    }
    const auto images = reinterpret_cast<HIMAGELIST>(Send(Control(kTree), TVM_GETIMAGELIST, TVSIL_NORMAL));
    EXPECT_EQ(::ImageList_GetImageCount(images), 2);
    EXPECT_NE(Send(dialog->Handle(), WM_GETICON, ICON_SMALL), 0);
}

TEST_F(OptionDialog, DrawsTheTreeInWhiteOnGrey) {
    Open();

    EXPECT_EQ(Send(Control(kTree), TVM_GETBKCOLOR), 0x606060);
    EXPECT_EQ(Send(Control(kTree), TVM_GETTEXTCOLOR), 0xFFFFFF);
}

TEST_F(OptionDialog, MakesTheRowsOfTheTreeSevenPixelsHigher) {
    Open();
    const HWND tree = Control(kTree);
    const LRESULT height = Send(tree, TVM_GETITEMHEIGHT);

    Send(tree, TVM_SETITEMHEIGHT, static_cast<WPARAM>(-1));

    EXPECT_EQ(height, Send(tree, TVM_GETITEMHEIGHT) + 7);
}

TEST_F(OptionDialog, OpensOnThePageThatWasAskedFor) {
    for (const OptionPage page : kOptionPages) {
        Open(page);
        std::vector<bool> expected(3);
        expected[static_cast<std::size_t>(page)] = true;
        EXPECT_EQ(ShownPages(), expected) << static_cast<int>(page);
    }
}

TEST_F(OptionDialog, IsTitledWithThePageOnView) {
    Open(OptionPage::kLaunch);
    EXPECT_EQ(Caption(), L"オプション - ランチ メニューの設定");

    SelectItem(0);
    EXPECT_EQ(Caption(), L"オプション - 基本設定");
    SelectItem(1);
    EXPECT_EQ(Caption(), L"オプション - 検索コマンドの設定");
}

TEST_F(OptionDialog, ShowsThePageThatIsSelectedInTheTree) {
    Open();

    SelectItem(2);
    EXPECT_THAT(ShownPages(), ElementsAre(false, false, true));
    SelectItem(1);
    EXPECT_THAT(ShownPages(), ElementsAre(false, true, false));
}

TEST_F(OptionDialog, PutsThePagesInTheirPlace) {
    Open();

    const base::Rect place = fw::WindowRect(Control(1024));
    for (const HWND page : {MainPage(), CommandPage(), LaunchPage()}) {
        EXPECT_EQ(fw::WindowRect(page).TopLeft(), place.TopLeft());
        EXPECT_EQ(fw::WindowRect(page).Extent(), place.Extent());
    }
}

TEST_F(OptionDialog, IsWalkedThroughFromTheTreeOverThePageToTheButtons) {
    Open(OptionPage::kLaunch);
    ::ShowWindow(dialog->Handle(), SW_SHOWNA);

    const std::vector<int> order = test::TabOrder(dialog->Handle(), kTree);

    EXPECT_EQ(order.front(), kTree);
    EXPECT_EQ(order[1], 1057);
    EXPECT_THAT(std::vector<int>(order.end() - 3, order.end()), ElementsAre(kOk, IDCANCEL, kHelpButton));
}

TEST_F(OptionDialog, HasOkAsItsDefaultButton) {
    Open();

    EXPECT_EQ(Send(dialog->Handle(), DM_GETDEFID), MAKELRESULT(kOk, DC_HASDEFID));
    EXPECT_EQ(fw::WindowText(Control(kOk)), L"OK");
    EXPECT_EQ(fw::WindowText(Control(IDCANCEL)), L"キャンセル");
    EXPECT_EQ(fw::WindowText(Control(kHelpButton)), L"ヘルプ");
}

TEST_F(OptionDialog, PaintsAGreyStripBehindTheTreeAndTheLogoOnIt) {
    Open();
    const base::Rect client = fw::ClientRect(dialog->Handle());
    test::Canvas canvas{client.Extent()};

    Send(dialog->Handle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc()));

    RECT tree{};
    ::GetWindowRect(Control(kTree), &tree);
    ::MapWindowPoints(nullptr, dialog->Handle(), reinterpret_cast<POINT*>(&tree), 2);
    EXPECT_EQ(canvas.Pixel(0, 0), kGrey);
    EXPECT_EQ(canvas.Pixel(tree.right - 1, client.bottom - 1), kGrey);
    EXPECT_EQ(canvas.Pixel(tree.right, client.bottom - 1), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(canvas.Pixel(client.right - 1, 0), ::GetSysColor(COLOR_WINDOW));

    RECT logo{};
    ::GetWindowRect(Control(1025), &logo);
    ::MapWindowPoints(nullptr, dialog->Handle(), reinterpret_cast<POINT*>(&logo), 2);
    const base::Rect drawn = canvas.Content({0, tree.bottom, tree.right, client.bottom}, kGrey);
    EXPECT_FALSE(drawn.Empty());
    EXPECT_GE(drawn.left, logo.left);
    EXPECT_GE(drawn.top, logo.top);
    EXPECT_LE(drawn.right, tree.right);
}

TEST_F(OptionDialog, StaysOnAPageWhoseInputIsNotAcceptable) {
    Open();
    MakeMainPageUnacceptable();
    test::MessageBoxAnswer ok{IDOK};

    SelectItem(2);

    EXPECT_EQ(ok.Count(), 1);
    EXPECT_THAT(ShownPages(), ElementsAre(true, false, false));
    EXPECT_EQ(Caption(), L"オプション - 基本設定");
}

TEST_F(OptionDialog, SavesNothingWhileThePageOnViewIsNotAcceptable) {
    Open();
    MakeMainPageUnacceptable();
    test::MessageBoxAnswer ok{IDOK};

    Command(kOk);

    EXPECT_EQ(ok.Count(), 1);
    EXPECT_FALSE(dialog->Confirmed());
    EXPECT_EQ(store.log, L"");
}

TEST_F(OptionDialog, AsksOnlyThePageOnView) {
    Open(OptionPage::kLaunch);
    MakeMainPageUnacceptable();
    test::MessageBoxAnswer ok{IDOK};

    Command(kOk);

    EXPECT_EQ(ok.Count(), 0);
    EXPECT_TRUE(dialog->Confirmed());
}

TEST_F(OptionDialog, SavesAllPagesInTheirOrder) {
    Open(OptionPage::kLaunch);

    Command(kOk);

    EXPECT_TRUE(dialog->Confirmed());
    const auto main = store.log.find(L"Settings.DesktopBarEdge=");
    const auto priority = store.log.find(L"Settings.PriorityUserCommand=");
    const auto order = store.log.find(L"Settings.SearchCommandOrder=");
    const auto items = store.log.find(L"Settings\\LaunchMenuItem.LaunchMenu01=");
    EXPECT_NE(main, std::wstring::npos);
    EXPECT_LT(main, priority);
    EXPECT_LT(priority, order);
    EXPECT_LT(order, items);
    EXPECT_NE(items, std::wstring::npos);
}

TEST_F(OptionDialog, SavesNothingWhenItIsCancelled) {
    Open();

    Command(IDCANCEL);

    EXPECT_FALSE(dialog->Confirmed());
    EXPECT_EQ(store.log, L"");
}

TEST_F(OptionDialog, SaysNothingOfSettingsThatCouldNotBeWritten) {
    Open(OptionPage::kLaunch);
    store.writesThatSucceed = 0;
    test::MessageBoxAnswer ok{IDOK};

    Command(kOk);

    EXPECT_EQ(ok.Count(), 0);
    EXPECT_TRUE(dialog->Confirmed());
}

TEST_F(OptionDialog, AsksNoPageWhileItIsDestroyed) {
    Open();
    MakeMainPageUnacceptable();
    test::MessageBoxAnswer ok{IDOK};

    ::DestroyWindow(dialog->Handle());

    EXPECT_EQ(ok.Count(), 0);
}

TEST_F(OptionDialog, LeavesNoFocusOnAPageThatHasGone) {
    Open(OptionPage::kLaunch);
    ::ShowWindow(dialog->Handle(), SW_SHOWNA);
    ::SetFocus(::GetDlgItem(LaunchPage(), 1057));

    dialog->GoTo(OptionPage::kMain);

    EXPECT_EQ(::GetFocus(), Control(kTree));
}

TEST_F(OptionDialog, RunsTheSampleClockOnlyOnItsPage) {
    Open(OptionPage::kLaunch);
    ::ShowWindow(dialog->Handle(), SW_SHOWNA);
    const HWND sample = ::GetDlgItem(MainPage(), 1067);
    EXPECT_FALSE(::KillTimer(sample, 1067));

    SelectItem(0);
    EXPECT_TRUE(::KillTimer(sample, 1067));
}

TEST_F(OptionDialog, OpensTheHelpOfThePageOnView) {
    Open();

    Command(kHelpButton);
    SelectItem(1);
    Send(dialog->Handle(), WM_HELP);
    SelectItem(2);
    Command(kHelpButton);

    EXPECT_EQ(help.log, L"optmain.html\noptcmd.html\noptextra.html\n");
    EXPECT_EQ(help.asker, dialog->Handle());
}

TEST_F(OptionDialog, TakesF1WhereverTheFocusIs) {
    Open(OptionPage::kLaunch);

    HELPINFO info{};
    info.cbSize = sizeof info;
    Send(::GetDlgItem(LaunchPage(), 1057), WM_HELP, 0, reinterpret_cast<LPARAM>(&info));

    EXPECT_EQ(help.log, L"optextra.html\n");
}

TEST_F(OptionDialog, StaysWhereItIsWhileItsScreenHoldsIt) {
    Open();
    ::SetWindowPos(dialog->Handle(), nullptr, 20, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);

    Send(dialog->Handle(), WM_DISPLAYCHANGE, 32, MAKELPARAM(1920, 1080));

    EXPECT_EQ(fw::WindowRect(dialog->Handle()).TopLeft(), (base::Point{20, 30}));
}

TEST_F(OptionDialog, ComesBackWhenItsScreenIsGone) {
    Open();
    ::SetWindowPos(dialog->Handle(), nullptr, 20000, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);

    Send(dialog->Handle(), WM_DISPLAYCHANGE, 32, MAKELPARAM(1920, 1080));

    EXPECT_LT(fw::WindowRect(dialog->Handle()).right, 20000);
    EXPECT_GE(fw::WindowRect(dialog->Handle()).left, 0);
}

TEST_F(OptionDialog, FitsIntoAScreenThatIsTooLowForIt) {
    Open();
    const base::Size full = fw::WindowRect(dialog->Handle()).Extent();
    const int spared = fw::ClientRect(dialog->Handle()).bottom - ClientPlace(Control(kOk)).bottom;

    dialog->FitInto({1920, full.height - 100});

    EXPECT_EQ(fw::WindowRect(dialog->Handle()).Height(), full.height - 100);
    for (const int id : {kOk, static_cast<int>(IDCANCEL), kHelpButton}) {
        EXPECT_EQ(fw::ClientRect(dialog->Handle()).bottom - ClientPlace(Control(id)).bottom, spared) << id;
        EXPECT_LE(ClientPlace(Control(id)).right, fw::ClientRect(dialog->Handle()).right) << id;
    }
    EXPECT_LE(ClientPlace(Control(kTree)).bottom, ClientPlace(Control(kOk)).top);
    EXPECT_LE(ClientPlace(View()).bottom, ClientPlace(Control(kOk)).top);
    // All of the page's width is on view: the bar has its own.
    EXPECT_EQ(fw::ClientRect(View()).Width(), fw::WindowRect(OnView(1044)).Width());
}

TEST_F(OptionDialog, KeepsItsButtonsOnAnyScreen) {
    Open();

    for (const base::Size area : {base::Size{600, 400}, base::Size{500, 250}, base::Size{1024, 300}}) {
        dialog->FitInto(area);

        const base::Rect client = fw::ClientRect(dialog->Handle());
        for (const int id : {kOk, static_cast<int>(IDCANCEL), kHelpButton}) {
            const base::Rect button = ClientPlace(Control(id));
            EXPECT_EQ(base::Intersection(client, button), button) << area.width << " " << id;
        }
        EXPECT_LE(fw::WindowRect(dialog->Handle()).Width(), area.width);
        EXPECT_LE(fw::WindowRect(dialog->Handle()).Height(), area.height);
    }
}

TEST_F(OptionDialog, ReachesEveryControlOfAPageThatDoesNotFit) {
    Open();
    dialog->FitInto({1920, 300});
    ::ShowWindow(dialog->Handle(), SW_SHOWNA);

    for (const int id : {1068, 1045, 1046, 1020}) {
        const HWND control = ::GetDlgItem(OnView(1044), id);
        ::SetFocus(control);
        Pump();
        const base::Rect shown = fw::ClientRect(View());
        EXPECT_EQ(base::Intersection(shown, PlaceIn(View(), control)), PlaceIn(View(), control)) << id;
    }
}

TEST_F(OptionDialog, ScrollsAPageByTheWheelAndTheBar) {
    Open();
    dialog->FitInto({1920, 300});
    const HWND page = OnView(1044);
    const auto top = [&] { return PlaceIn(View(), page).top; };
    ASSERT_EQ(top(), 0);

    Send(page, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)));
    const int afterWheel = top();
    EXPECT_LT(afterWheel, 0);

    Send(View(), WM_VSCROLL, SB_LINEDOWN);
    EXPECT_LT(top(), afterWheel);
    Send(View(), WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(PlaceIn(View(), page).bottom, fw::ClientRect(View()).bottom);
    Send(View(), WM_VSCROLL, SB_TOP);
    EXPECT_EQ(top(), 0);
}

TEST_F(OptionDialog, IsWalkedThroughInTheSameOrderWhenItScrolls) {
    Open(OptionPage::kLaunch);
    ::ShowWindow(dialog->Handle(), SW_SHOWNA);
    const std::vector<int> whole = test::TabOrder(dialog->Handle(), kTree);

    dialog->FitInto({1920, 300});

    EXPECT_EQ(test::TabOrder(dialog->Handle(), kTree), whole);
}

TEST_F(OptionDialog, ChangesAndSavesPagesThatScroll) {
    Open();
    dialog->FitInto({1920, 300});

    SelectItem(2);
    EXPECT_TRUE(Shown(OnView(1057)));
    EXPECT_FALSE(Shown(OnView(1044)));
    Command(kOk);

    EXPECT_TRUE(dialog->Confirmed());
    EXPECT_NE(store.log.find(L"Settings.DesktopBarEdge="), std::wstring::npos);
}

TEST_F(OptionDialog, IsWholeAgainOnALargerScreen) {
    Open();
    const base::Size full = fw::WindowRect(dialog->Handle()).Extent();
    const base::Rect ok = ClientPlace(Control(kOk));
    const base::Rect tree = ClientPlace(Control(kTree));
    const base::Rect page = ClientPlace(MainPage());

    dialog->FitInto({400, 300});
    dialog->FitInto({500, 250});
    dialog->FitInto({1920, 1080});

    EXPECT_EQ(fw::WindowRect(dialog->Handle()).Extent(), full);
    EXPECT_EQ(ClientPlace(Control(kOk)), ok);
    EXPECT_EQ(ClientPlace(Control(kTree)), tree);
    EXPECT_EQ(ClientPlace(MainPage()), page);
    EXPECT_EQ(View(), nullptr);
}

TEST_F(OptionDialog, GivesEverythingBack) {
    const auto once = [&] {
        Open(OptionPage::kCommands);
        dialog->FitInto({1920, 300});
        dialog.reset();
    };
    once();
    once();
    const int before = test::GdiObjectCount();
    for (int i = 0; i < 3; ++i) once();

    EXPECT_LE(test::GdiObjectCount(), before);
}

TEST_F(OptionDialog, GivesItsStripTheSystemsColoursInHighContrastAtOnce) {
    Open();
    const auto left = [&] {
        const test::Canvas canvas{fw::ClientRect(dialog->Handle()).Extent()};
        Send(dialog->Handle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc()));
        return canvas.Pixel(0, 0);
    };
    const auto row = [&](UINT state) {
        NMTVCUSTOMDRAW drawing{};
        drawing.nmcd.hdr = {Control(kTree), kTree, static_cast<UINT>(NM_CUSTOMDRAW)};
        drawing.nmcd.dwDrawStage = CDDS_ITEMPREPAINT;
        drawing.nmcd.uItemState = state;
        Send(dialog->Handle(), WM_NOTIFY, kTree, reinterpret_cast<LPARAM>(&drawing));
        return std::pair{drawing.clrText, drawing.clrTextBk};
    };
    {
        const test::HighContrast highContrast{test::ContrastWhite()};
        const auto of = &test::HighContrast::Colour;
        Send(dialog->Handle(), WM_SYSCOLORCHANGE);

        EXPECT_EQ(left(), of(COLOR_WINDOW));
        EXPECT_EQ(static_cast<COLORREF>(Send(Control(kTree), TVM_GETBKCOLOR)), of(COLOR_WINDOW));
        EXPECT_EQ(static_cast<COLORREF>(Send(Control(kTree), TVM_GETTEXTCOLOR)), of(COLOR_WINDOWTEXT));
        EXPECT_EQ(row(0), (std::pair{of(COLOR_WINDOWTEXT), of(COLOR_WINDOW)}));
        EXPECT_EQ(row(CDIS_SELECTED), (std::pair{of(COLOR_HIGHLIGHTTEXT), of(COLOR_HIGHLIGHT)}));
        EXPECT_EQ(Send(Control(kTree), TVM_GETIMAGELIST, TVSIL_NORMAL), 0);
    }
    Send(dialog->Handle(), WM_SYSCOLORCHANGE);

    EXPECT_EQ(left(), kGrey);
    EXPECT_EQ(static_cast<COLORREF>(Send(Control(kTree), TVM_GETBKCOLOR)), kGrey);
    EXPECT_NE(Send(Control(kTree), TVM_GETIMAGELIST, TVSIL_NORMAL), 0);
}

} // namespace
