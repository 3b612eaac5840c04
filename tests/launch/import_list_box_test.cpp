#include "launch/import_list_box.h"

#include <gmock/gmock.h>

#include <array>

#include "base/format_text.h"
#include "tests/support/canvas.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/solid_icon.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::launch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr UINT kId = 77;
constexpr int kWidthPx = 200;
constexpr int kHeightPx = 150;

std::vector<ImportableItem> Items(const std::vector<std::wstring>& names) {
    std::vector<ImportableItem> items;
    for (const std::wstring& name : names) {
        ImportableItem item;
        item.name = name;
        item.selectable = !name.starts_with(L"grey");
        if (item.selectable) item.icon = test::SolidIcon(RGB(200, 60, 20));
        items.push_back(std::move(item));
    }
    return items;
}

class ImportListBox : public test::WindowTest {
protected:
    CImportListBox list;

    void SetUp() override {
        WindowTest::SetUp();
        host.answer = [this](const fw::Message& m) -> fw::Reply {
            return m.id == WM_COMMAND && HIWORD(m.wparam) == LBN_SELCHANGE ? (list.RefuseSelection(), fw::kPassOn)
                                                                           : fw::kPassOn;
        };
    }
    void Open(const std::vector<std::wstring>& names, int places = 35) {
        ASSERT_TRUE(list.Create({.rect = {0, 0, kWidthPx, kHeightPx},
                                 .style = WS_CHILD | WS_VISIBLE | CImportListBox::kStyle,
                                 .parent = Host(),
                                 .id = kId}));
        list.SetPlaces(places);
        list.Append(Items(names));
    }
    void ClickRow(int row, WPARAM keys = 0) {
        RECT rect{};
        Send(list.Handle(), LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
        const POINT at{rect.left + 30, (rect.top + rect.bottom) / 2};
        SendMouse(list.Handle(), WM_LBUTTONDOWN, at, MK_LBUTTON | keys);
        SendMouse(list.Handle(), WM_LBUTTONUP, at, keys);
    }
    // The list box asks for the state of Shift and Ctrl, which belongs to the thread's queue.
    void Press(UINT key, std::initializer_list<int> held = {}) {
        std::array<BYTE, 256> before{};
        ::GetKeyboardState(before.data());
        std::array<BYTE, 256> state{};
        for (const int modifier : held) state[static_cast<std::size_t>(modifier)] = 0x80;
        ::SetKeyboardState(state.data());
        Send(list.Handle(), WM_KEYDOWN, key);
        ::SetKeyboardState(before.data());
    }
    [[nodiscard]] std::vector<std::wstring> Selected() const {
        std::vector<std::wstring> names;
        for (const ImportableItem* const item : list.Selected()) names.push_back(item->name);
        return names;
    }
    // What the list box itself says.
    [[nodiscard]] std::vector<int> SelectedRows() const {
        std::array<int, 100> rows{};
        const LRESULT count = Send(list.Handle(), LB_GETSELITEMS, rows.size(), reinterpret_cast<LPARAM>(rows.data()));
        return {rows.begin(), rows.begin() + count};
    }
};

TEST_F(ImportListBox, HasTheStylesOfAListToSelectManyFrom) {
    Open({L"a"});

    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(list.Handle(), GWL_STYLE));
    // The scroll bar's style comes and goes with the bar.
    constexpr DWORD kConstant = CImportListBox::kStyle & ~static_cast<DWORD>(WS_VSCROLL);
    EXPECT_EQ(style & kConstant, kConstant);
    EXPECT_FALSE(style & LBS_SORT);
}

TEST_F(ImportListBox, TellsAScreenReaderTheNames) {
    Open({L"メモ帳", L"grey b"});

    std::array<wchar_t, 100> text{};
    EXPECT_EQ(Send(list.Handle(), LB_GETTEXT, 0, reinterpret_cast<LPARAM>(text.data())), 3);
    EXPECT_STREQ(text.data(), L"メモ帳");
    Send(list.Handle(), LB_GETTEXT, 1, reinterpret_cast<LPARAM>(text.data()));
    EXPECT_STREQ(text.data(), L"grey b");
}

TEST_F(ImportListBox, SelectsWhatIsClicked) {
    Open({L"a", L"b", L"c"});

    ClickRow(1);
    EXPECT_THAT(Selected(), ElementsAre(L"b"));
    ClickRow(2);
    EXPECT_THAT(Selected(), ElementsAre(L"c"));
    EXPECT_GE(host.CommandCount(kId, LBN_SELCHANGE), 2);
}

TEST_F(ImportListBox, AddsToTheSelectionWithCtrlAndTakesAway) {
    Open({L"a", L"b", L"c"});

    ClickRow(0);
    ClickRow(2, MK_CONTROL);
    EXPECT_THAT(Selected(), ElementsAre(L"a", L"c"));
    ClickRow(0, MK_CONTROL);
    EXPECT_THAT(Selected(), ElementsAre(L"c"));
}

TEST_F(ImportListBox, RefusesAClickOnAGreyRow) {
    Open({L"a", L"grey", L"c"});

    ClickRow(1);
    EXPECT_THAT(Selected(), IsEmpty());
    EXPECT_THAT(SelectedRows(), IsEmpty());

    ClickRow(0);
    ClickRow(1, MK_CONTROL);
    EXPECT_THAT(Selected(), ElementsAre(L"a"));
    EXPECT_THAT(SelectedRows(), ElementsAre(0));
}

TEST_F(ImportListBox, LeavesGreyRowsOutOfARange) {
    Open({L"a", L"grey 1", L"grey 2", L"d", L"grey 3"});

    ClickRow(0);
    ClickRow(4, MK_SHIFT);

    EXPECT_THAT(SelectedRows(), ElementsAre(0, 3));
    EXPECT_THAT(Selected(), ElementsAre(L"a", L"d"));
}

TEST_F(ImportListBox, KeepsTheRowFromWhichARangeExtends) {
    Open({L"a", L"b", L"grey", L"d", L"e"});

    ClickRow(1);
    ClickRow(3, MK_SHIFT);
    ClickRow(4, MK_SHIFT);
    EXPECT_THAT(SelectedRows(), ElementsAre(1, 3, 4));
    ClickRow(0, MK_SHIFT);
    EXPECT_THAT(SelectedRows(), ElementsAre(0, 1));
}

TEST_F(ImportListBox, RefusesGreyRowsToTheKeyboard) {
    Open({L"a", L"grey", L"c"});

    ClickRow(0);
    Press(VK_DOWN);
    EXPECT_THAT(SelectedRows(), IsEmpty());
    EXPECT_EQ(Send(list.Handle(), LB_GETCARETINDEX), 1) << "the keyboard gets past it";
    Press(VK_DOWN);
    EXPECT_THAT(SelectedRows(), ElementsAre(2));

    ClickRow(0);
    Press(VK_DOWN, {VK_SHIFT});
    EXPECT_THAT(SelectedRows(), ElementsAre(0));
    Press(VK_DOWN, {VK_SHIFT});
    EXPECT_THAT(SelectedRows(), ElementsAre(0, 2));
    ClickRow(0);
    Press(VK_END, {VK_SHIFT});
    EXPECT_THAT(SelectedRows(), ElementsAre(0, 2));
}

TEST_F(ImportListBox, SelectsAllThatCanBeWithCtrlA) {
    Open({L"a", L"grey", L"c", L"d"}, 2);

    Press('A', {VK_CONTROL});

    EXPECT_THAT(SelectedRows(), ElementsAre(0, 2));
    EXPECT_EQ(host.CommandCount(kId, LBN_SELCHANGE), 1);
}

TEST_F(ImportListBox, FindsARowByItsFirstLetter) {
    Open({L"alpha", L"beta", L"gamma"});

    Send(list.Handle(), WM_CHAR, L'g');

    EXPECT_EQ(Send(list.Handle(), LB_GETCARETINDEX), 2);
}

TEST_F(ImportListBox, RefusesWhatAnAidForTheDisabledSelects) {
    Open({L"a", L"grey", L"c"}, 1);

    Send(list.Handle(), LB_SETSEL, TRUE, 1);
    EXPECT_THAT(SelectedRows(), IsEmpty());
    Send(list.Handle(), LB_SETSEL, TRUE, -1);
    EXPECT_THAT(SelectedRows(), ElementsAre(0));
    Send(list.Handle(), LB_SELITEMRANGE, TRUE, MAKELPARAM(0, 2));
    EXPECT_THAT(SelectedRows(), ElementsAre(0));
    Send(list.Handle(), LB_SETSEL, FALSE, -1);
    EXPECT_THAT(SelectedRows(), IsEmpty());
    Send(list.Handle(), LB_SELITEMRANGEEX, 1, 2);
    EXPECT_THAT(SelectedRows(), ElementsAre(2));
    EXPECT_THAT(Selected(), ElementsAre(L"c"));
}

TEST_F(ImportListBox, SelectsNoMoreRowsThanThereArePlaces) {
    Open({L"a", L"b", L"c", L"d"}, 2);

    ClickRow(2);
    ClickRow(3, MK_CONTROL);
    ClickRow(0, MK_CONTROL);
    EXPECT_THAT(Selected(), ElementsAre(L"c", L"d"));

    ClickRow(3, MK_CONTROL);
    ClickRow(0, MK_CONTROL);
    EXPECT_THAT(Selected(), ElementsAre(L"a", L"c"));
}

TEST_F(ImportListBox, SelectsNothingWithoutPlaces) {
    Open({L"a", L"b"}, 0);

    ClickRow(0);
    Press('A', {VK_CONTROL});

    EXPECT_THAT(SelectedRows(), IsEmpty());
    EXPECT_EQ(list.SelectedCount(), 0);
}

TEST_F(ImportListBox, RefusesWhatIsDraggedOver) {
    Open({L"a", L"grey", L"c"});
    RECT last{};
    Send(list.Handle(), LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&last));

    SendMouse(list.Handle(), WM_LBUTTONDOWN, {30, 5}, MK_LBUTTON);
    SendMouse(list.Handle(), WM_MOUSEMOVE, {30, last.top + 5}, MK_LBUTTON);
    EXPECT_THAT(SelectedRows(), ElementsAre(0, 2));
    SendMouse(list.Handle(), WM_LBUTTONUP, {30, last.top + 5});

    EXPECT_THAT(Selected(), ElementsAre(L"a", L"c"));
}

TEST_F(ImportListBox, KeepsTheSelectionWhenMoreIsFound) {
    Open({L"a", L"b"});
    ClickRow(1);

    list.Append(Items({L"c", L"grey", L"e"}));

    EXPECT_THAT(Selected(), ElementsAre(L"b"));
    EXPECT_THAT(SelectedRows(), ElementsAre(1));
    EXPECT_EQ(list.Count(), 5);
    EXPECT_EQ(Send(list.Handle(), LB_GETCOUNT), 5);
}

TEST_F(ImportListBox, IsEmptyAfterItIsCleared) {
    Open({L"a", L"b"});
    ClickRow(1);

    list.Clear();

    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.SelectedCount(), 0);
    EXPECT_EQ(Send(list.Handle(), LB_GETCOUNT), 0);
    Press(VK_DOWN);
    Press('A', {VK_CONTROL});
    ClickRow(0);
    EXPECT_THAT(Selected(), IsEmpty());
}

TEST_F(ImportListBox, SurvivesEmptyAndEndlessNames) {
    Open({L"", std::wstring(5000, L'あ'), L"&&&"});

    ClickRow(1);
    ::RedrawWindow(list.Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);

    EXPECT_EQ(list.SelectedCount(), 1);
}

TEST_F(ImportListBox, SelectsAmongThousandsOfRows) {
    std::vector<std::wstring> names;
    for (int i = 0; i < 2000; ++i) names.push_back(base::FormatText(i % 2 ? L"grey %d" : L"%d", i));
    Open(names, 35);

    Press('A', {VK_CONTROL});

    EXPECT_EQ(list.SelectedCount(), 35);
    EXPECT_EQ(Send(list.Handle(), LB_GETSELCOUNT), 35);
    EXPECT_EQ(Selected().back(), L"68");
}

// Draws one row onto a canvas and gives the colour in the middle of its icon, and how dark its text gets.
struct Look {
    COLORREF icon;
    int darkest;
};
Look LookOf(HWND host, HWND list, UINT row, UINT state) {
    const test::Canvas canvas{{kWidthPx, 24}};
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_LISTBOX;
    draw.CtlID = kId;
    draw.itemID = row;
    draw.itemAction = ODA_DRAWENTIRE;
    draw.itemState = state;
    draw.hwndItem = list;
    draw.hDC = canvas.Dc();
    draw.rcItem = {0, 0, kWidthPx, 24};
    ::SendMessageW(host, WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&draw));
    Look look{canvas.Pixel(13, 12), 255};
    for (int y = 0; y < 24; ++y)
        for (int x = 28; x < 100; ++x) look.darkest = std::min<int>(look.darkest, GetGValue(canvas.Pixel(x, y)));
    return look;
}

TEST_F(ImportListBox, DrawsIconAndNameAndGreyWhatCannotBeSelected) {
    Open({L"MMMM", L"grey MMMM"});

    const Look whole = LookOf(Host(), list.Handle(), 0, ODS_NOFOCUSRECT);
    const Look grey = LookOf(Host(), list.Handle(), 1, ODS_NOFOCUSRECT);

    EXPECT_EQ(whole.icon, RGB(200, 60, 20));
    EXPECT_LT(whole.darkest, 100);
    EXPECT_EQ(grey.icon, ::GetSysColor(COLOR_WINDOW));
    EXPECT_GT(grey.darkest, whole.darkest + 20);
    EXPECT_LT(grey.darkest, 220);
}

TEST_F(ImportListBox, DrawsTheGroundOfASelectedRow) {
    Open({L"a"});
    const auto groundOf = [&](UINT state) {
        const test::Canvas canvas{{kWidthPx, 24}};
        DRAWITEMSTRUCT draw{};
        draw.CtlType = ODT_LISTBOX;
        draw.itemState = state | ODS_NOFOCUSRECT;
        draw.hwndItem = list.Handle();
        draw.hDC = canvas.Dc();
        draw.rcItem = {0, 0, kWidthPx, 24};
        Send(Host(), WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&draw));
        return canvas.Pixel(150, 12);
    };

    EXPECT_NE(groundOf(ODS_SELECTED), groundOf(0));
    EXPECT_EQ(groundOf(0), ::GetSysColor(COLOR_WINDOW));
}

TEST_F(ImportListBox, IsNotUpsetByARowThatIsNotThere) {
    Open({});

    (void)LookOf(Host(), list.Handle(), static_cast<UINT>(-1), ODS_FOCUS);
    (void)LookOf(Host(), list.Handle(), 5, ODS_SELECTED);
}

TEST_F(ImportListBox, ReleasesItsIcons) {
    Open({L"a"});
    list.Clear();
    const int before = test::GdiObjectCount();

    list.Append(Items(std::vector<std::wstring>(50, L"x")));
    EXPECT_GT(test::GdiObjectCount(), before);
    list.Clear();

    EXPECT_EQ(test::GdiObjectCount(), before);
}

} // namespace
