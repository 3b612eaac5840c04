#include "search/drop_down_dialog.h"

#include <array>
#include <chrono>

#include "framework/dpi.h"
#include "framework/handle.h"
#include "search/edit_ex.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::WindowTest;

namespace {

class LoggingHost final : public HistoryDropDownHost {
public:
    std::string log;

    std::vector<std::wstring> entries;

    void OnEntryPicked(Box box) override { log += box == Box::kCommand ? "picked command;" : "picked search;"; }
    std::vector<HistoryRow> RemoveEntry(Box box, const std::wstring& text) override {
        log += box == Box::kCommand ? "removed command;" : "removed search;";
        std::erase(entries, text);
        return PlanHistoryRows(box, entries, LoadHistoryRowTexts());
    }
    void OnDropDownClosed(Box box) override { log += box == Box::kCommand ? "closed command;" : "closed search;"; }
    void BrowseFile() override { log += "file;"; }
    void BrowseFolder() override { log += "folder;"; }
    void ClearHistory(Box box) override { log += box == Box::kCommand ? "clear command;" : "clear search;"; }
};

struct DropDown : WindowTest {
    static constexpr base::Rect kRegion{100, 100, 500, 124};

    CEditEx edit;
    LoggingHost bar;
    HWND popUp = nullptr;
    std::chrono::milliseconds openingMoment{0};

    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(edit.CreateBox(Host(), 2001, {0, 0, 100, 16}, nullptr, L""));
        edit.SetText(L"typed");
    }
    void TearDown() override {
        if (popUp && ::IsWindow(popUp)) ::DestroyWindow(popUp);
    }
    void Open(Box box, const std::vector<std::wstring>& entries, base::Rect region = kRegion) {
        bar.entries = entries;
        popUp = CDropDownDialog::Open(bar, {.owner = Host(),
                                            .edit = edit.Handle(),
                                            .box = box,
                                            .region = region,
                                            .rows = PlanHistoryRows(box, entries, LoadHistoryRowTexts()),
                                            .openingMoment = openingMoment});
        ASSERT_NE(popUp, nullptr);
    }
    [[nodiscard]] HWND List() const { return ::GetDlgItem(popUp, CDropDownDialog::kListId); }
    [[nodiscard]] std::wstring RowText(int row) const {
        std::array<wchar_t, 300> text{};
        LVITEMW item{};
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        Send(List(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        return text.data();
    }
    [[nodiscard]] int Selected() const {
        return static_cast<int>(Send(List(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    }
    void ClickRow(int row) const {
        NMITEMACTIVATE click{};
        click.hdr = {List(), CDropDownDialog::kListId, static_cast<UINT>(NM_CLICK)};
        click.iItem = row;
        Send(popUp, WM_NOTIFY, CDropDownDialog::kListId, reinterpret_cast<LPARAM>(&click));
    }
    // What the list is told to draw a row with.
    struct Drawn {
        LRESULT answer;
        COLORREF colour;
    };
    [[nodiscard]] Drawn Draw(DWORD stage, int number) const {
        NMLVCUSTOMDRAW draw{};
        draw.nmcd.hdr = {List(), CDropDownDialog::kListId, static_cast<UINT>(NM_CUSTOMDRAW)};
        draw.nmcd.dwDrawStage = stage;
        draw.nmcd.lItemlParam = number;
        draw.clrText = CLR_DEFAULT;
        const LRESULT answer = Send(popUp, WM_NOTIFY, CDropDownDialog::kListId, reinterpret_cast<LPARAM>(&draw));
        return {answer, draw.clrText};
    }
};

std::vector<std::wstring> Entries(int count) {
    std::vector<std::wstring> entries;
    for (int i = 0; i < count; ++i) entries.push_back(L"entry " + std::to_wstring(i));
    return entries;
}

} // namespace

TEST_F(DropDown, ListsTheRowsOfItsBox) {
    Open(Box::kCommand, {L"notepad", L"東京"});

    ASSERT_EQ(Send(List(), LVM_GETITEMCOUNT), 5);
    EXPECT_EQ(RowText(0), L"notepad");
    EXPECT_EQ(RowText(1), L"東京");
    EXPECT_EQ(RowText(2), L"ファイルの参照...");
    EXPECT_EQ(RowText(3), L"フォルダの参照...");
    EXPECT_EQ(RowText(4), L"履歴の消去...");
}

TEST_F(DropDown, SaysWhenThereIsNothingToChoose) {
    Open(Box::kSearch, {});

    ASSERT_EQ(Send(List(), LVM_GETITEMCOUNT), 1);
    EXPECT_EQ(RowText(0), L"現在選択できる項目はありません");
}

TEST_F(DropDown, BelongsToTheBarAndHasNoBorder) {
    Open(Box::kCommand, {});

    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(popUp, GWL_STYLE));
    EXPECT_EQ(::GetWindow(popUp, GW_OWNER), Host());
    EXPECT_EQ(style & (WS_BORDER | WS_DLGFRAME | WS_THICKFRAME), 0U);
    EXPECT_EQ(fw::ClientRect(popUp).Extent(), fw::WindowRect(popUp).Extent());
}

TEST_F(DropDown, StandsBelowItsRegionAndIsAsWide) {
    Open(Box::kCommand, {});

    const auto place = fw::WindowRect(popUp);
    EXPECT_EQ(place.TopLeft(), (base::Point{kRegion.left, kRegion.bottom}));
    EXPECT_EQ(place.Width(), kRegion.Width());
}

TEST_F(DropDown, IsNeverNarrowerThanItsTemplate) {
    RECT units{0, 0, 144, 73};
    Open(Box::kCommand, {}, {100, 100, 150, 124});
    ::MapDialogRect(popUp, &units);

    EXPECT_EQ(fw::WindowRect(popUp).Extent(), fw::FromWindows(units).Extent());
}

TEST_F(DropDown, StandsAboveARegionAtTheBottomOfTheScreen) {
    const int screenHeight = ::GetSystemMetrics(SM_CYSCREEN);
    const base::Rect region{100, screenHeight - 28, 500, screenHeight - 4};

    Open(Box::kCommand, {}, region);

    EXPECT_EQ(fw::WindowRect(popUp).bottom, region.top);
}

TEST_F(DropDown, IsFilledByItsListButForAFrame) {
    Open(Box::kCommand, {});

    EXPECT_EQ(fw::WindowRect(List()), fw::WindowRect(popUp).Inset(fw::Scale()(1)));
}

TEST_F(DropDown, ShowsOneColumnOverItsWholeWidth) {
    Open(Box::kSearch, Entries(1));

    EXPECT_EQ(::GetWindowLongPtrW(List(), GWL_STYLE) & WS_VSCROLL, 0);
    EXPECT_EQ(Send(List(), LVM_GETCOLUMNWIDTH, 0), fw::WindowRect(List()).Width());
}

TEST_F(DropDown, LeavesRoomForTheScrollBar) {
    Open(Box::kCommand, Entries(15));

    EXPECT_NE(::GetWindowLongPtrW(List(), GWL_STYLE) & WS_VSCROLL, 0);
    EXPECT_EQ(::GetWindowLongPtrW(List(), GWL_STYLE) & WS_HSCROLL, 0);
    EXPECT_EQ(Send(List(), LVM_GETCOLUMNWIDTH, 0), fw::WindowRect(List()).Width() - ::GetSystemMetrics(SM_CXVSCROLL));
}

TEST_F(DropDown, PutsAClickedEntryIntoTheBoxAndCloses) {
    Open(Box::kCommand, {L"one", L"two"});

    ClickRow(1);
    EXPECT_EQ(edit.Text(), L"two");
    EXPECT_TRUE(::IsWindow(popUp));
    Pump();

    EXPECT_FALSE(::IsWindow(popUp));
    EXPECT_EQ(bar.log, "picked command;closed command;");
}

TEST_F(DropDown, PutsALongEntryIntoTheBoxWhole) {
    const std::wstring text(100'000, L'あ');
    Open(Box::kSearch, {text});

    ClickRow(0);

    EXPECT_TRUE(edit.Text() == text);
}

TEST_F(DropDown, ClosesBeforeThePickersOpen) {
    Open(Box::kCommand, {L"one"});
    ClickRow(1);
    Pump();
    EXPECT_EQ(bar.log, "closed command;file;");

    bar.log.clear();
    Open(Box::kCommand, {L"one"});
    ClickRow(2);
    Pump();
    EXPECT_EQ(bar.log, "closed command;folder;");
    EXPECT_EQ(edit.Text(), L"typed");
}

TEST_F(DropDown, LeavesTheClearingToTheBar) {
    Open(Box::kSearch, {L"one"});

    ClickRow(1);
    Pump();

    EXPECT_EQ(bar.log, "closed search;clear search;");
    EXPECT_EQ(edit.Text(), L"typed");
}

TEST_F(DropDown, ChangesNothingWhenThereIsNothingToChoose) {
    Open(Box::kSearch, {});

    ClickRow(0);
    Pump();

    EXPECT_EQ(bar.log, "closed search;");
    EXPECT_EQ(edit.Text(), L"typed");
}

TEST_F(DropDown, StaysForAClickBesideTheRows) {
    Open(Box::kCommand, {L"one"});

    ClickRow(-1);
    ClickRow(99);
    Pump();

    EXPECT_TRUE(::IsWindow(popUp));
    EXPECT_EQ(bar.log, "");
}

TEST_F(DropDown, TakesOnlyTheFirstOfTwoClicks) {
    Open(Box::kCommand, {L"one", L"two"});

    ClickRow(0);
    ClickRow(1);
    Pump();

    EXPECT_EQ(edit.Text(), L"one");
    EXPECT_EQ(bar.log, "picked command;closed command;");
}

TEST_F(DropDown, IsWorkedByTheArrowKeysAndEnter) {
    Open(Box::kCommand, {L"one", L"two"});
    ASSERT_EQ(Selected(), 0);

    Send(List(), WM_KEYDOWN, VK_DOWN);
    ASSERT_EQ(Selected(), 1);
    Send(List(), WM_KEYDOWN, VK_RETURN);
    Pump();

    EXPECT_EQ(edit.Text(), L"two");
    EXPECT_FALSE(::IsWindow(popUp));
}

TEST_F(DropDown, TakesTheDialogManagersEnterToo) {
    Open(Box::kCommand, {L"one"});

    Send(popUp, WM_COMMAND, IDOK);
    Pump();

    EXPECT_EQ(edit.Text(), L"one");
    EXPECT_FALSE(::IsWindow(popUp));
}

TEST_F(DropDown, ClosesOnEscapeWithoutAChoice) {
    Open(Box::kCommand, {L"one"});

    Send(List(), WM_KEYDOWN, VK_ESCAPE);
    Pump();

    EXPECT_FALSE(::IsWindow(popUp));
    EXPECT_EQ(edit.Text(), L"typed");
    EXPECT_EQ(bar.log, "closed command;");
}

TEST_F(DropDown, ClosesWhenItIsNoLongerActive) {
    Open(Box::kSearch, {L"one"});

    Send(popUp, WM_ACTIVATE, WA_INACTIVE);
    Pump();

    EXPECT_FALSE(::IsWindow(popUp));
    EXPECT_EQ(bar.log, "closed search;");
}

TEST_F(DropDown, TakesBackOnceTheActivationThatItLosesWhileOpening) {
    openingMoment = std::chrono::hours{1};
    Open(Box::kSearch, {L"one"});
    Send(popUp, WM_ACTIVATE, WA_INACTIVE);
    Pump();
    EXPECT_TRUE(::IsWindow(popUp));

    Send(popUp, WM_ACTIVATE, WA_INACTIVE);
    Pump();

    EXPECT_FALSE(::IsWindow(popUp));
}

TEST_F(DropDown, RemovesTheSelectedEntryWithDelAndStaysOpen) {
    Open(Box::kCommand, {L"one", L"two", L"three"});
    Send(List(), WM_KEYDOWN, VK_DOWN);

    Send(List(), WM_KEYDOWN, VK_DELETE);
    Pump();

    ASSERT_TRUE(::IsWindow(popUp));
    EXPECT_EQ(bar.log, "removed command;");
    EXPECT_EQ(Send(List(), LVM_GETITEMCOUNT), 5);
    EXPECT_EQ(RowText(0), L"one");
    EXPECT_EQ(RowText(1), L"three");
    EXPECT_EQ(Selected(), 1);
}

TEST_F(DropDown, RemovesTheLastEntryToo) {
    Open(Box::kSearch, {L"one"});

    Send(List(), WM_KEYDOWN, VK_DELETE);
    Pump();

    ASSERT_TRUE(::IsWindow(popUp));
    ASSERT_EQ(Send(List(), LVM_GETITEMCOUNT), 1);
    EXPECT_EQ(RowText(0), L"現在選択できる項目はありません");
}

TEST_F(DropDown, LeavesTheSpecialRowsWhenDelIsPressedOnThem) {
    Open(Box::kCommand, {L"one"});
    Send(List(), WM_KEYDOWN, VK_END);
    ASSERT_EQ(Selected(), 3);

    Send(List(), WM_KEYDOWN, VK_DELETE);
    Pump();

    EXPECT_EQ(bar.log, "");
    EXPECT_EQ(Send(List(), LVM_GETITEMCOUNT), 4);
}

TEST_F(DropDown, ShowsTheRowsAfterARemovedOneOverTheirWholeWidth) {
    std::vector<std::wstring> entries = Entries(15);
    Open(Box::kSearch, entries);
    ASSERT_NE(::GetWindowLongPtrW(List(), GWL_STYLE) & WS_VSCROLL, 0);

    for (int i = 0; i < 14; ++i) Send(List(), WM_KEYDOWN, VK_DELETE);

    EXPECT_EQ(::GetWindowLongPtrW(List(), GWL_STYLE) & WS_VSCROLL, 0);
    EXPECT_EQ(Send(List(), LVM_GETCOLUMNWIDTH, 0), fw::WindowRect(List()).Width());
}

TEST_F(DropDown, OffersNothingAsChosenWhenThereIsNothingToChoose) {
    Open(Box::kSearch, {});

    EXPECT_EQ(Selected(), -1);
}

TEST_F(DropDown, ClosesWithTheKeyThatOpenedIt) {
    Open(Box::kCommand, {L"one"});

    Send(List(), WM_KEYDOWN, VK_F4);
    Pump();

    EXPECT_FALSE(::IsWindow(popUp));
    EXPECT_EQ(edit.Text(), L"typed");
}

TEST_F(DropDown, TellsTheBarWhenItGoesWithIt) {
    Open(Box::kSearch, {L"one"});

    ::DestroyWindow(popUp);

    EXPECT_EQ(bar.log, "closed search;");
}

TEST_F(DropDown, DrawsSpecialRowsInGrey) {
    Open(Box::kCommand, {L"one"});

    EXPECT_EQ(Draw(CDDS_PREPAINT, 0).answer, CDRF_NOTIFYITEMDRAW);
    EXPECT_EQ(Draw(CDDS_ITEMPREPAINT, 252).colour, CLR_DEFAULT);
    for (const int number : {253, 254, 255, 256})
        EXPECT_EQ(Draw(CDDS_ITEMPREPAINT, number).colour, ::GetSysColor(COLOR_GRAYTEXT)) << number;
}

TEST_F(DropDown, DrawsItsFrameAroundTheList) {
    Open(Box::kCommand, {L"one"});
    const fw::WindowDc screen{nullptr};
    const fw::UniqueMemoryDc dc{::CreateCompatibleDC(screen.Get())};
    const fw::UniqueBitmap bitmap{::CreateCompatibleBitmap(screen.Get(), 600, 300)};
    const fw::SelectedObject selected{dc.Get(), bitmap.Get()};

    EXPECT_NE(Send(popUp, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.Get())), 0);

    EXPECT_EQ(::GetPixel(dc.Get(), 0, 0), ::GetSysColor(COLOR_BTNSHADOW));
}
