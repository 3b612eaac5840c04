#include "launch/launch_menu_list_box.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tests/launch/launch_items.h"
#include "tests/support/canvas.h"
#include "tests/support/high_contrast.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::launch;

namespace {

constexpr int kId = 1057;
constexpr COLORREF kButtonText = 0x886800;

class LaunchMenuListBox : public test::WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(list.Create({.rect = {0, 0, 300, 400},
                                 .style = WS_CHILD | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY,
                                 .parent = Host(),
                                 .id = kId}));
        list.SetLineHeight(15);
        item.Set(L"C:\\tools\\program.exe", L"", L"", L"道具", items.Icon(L"i.ico", kIconColour), 0);
    }
    // A row as it is drawn, on a picture that begins at the row's corner.
    test::Canvas Drawn(int row, UINT state = 0) {
        test::Canvas canvas{{300, 34}};
        DRAWITEMSTRUCT drawing{};
        drawing.CtlType = ODT_LISTBOX;
        drawing.CtlID = kId;
        drawing.itemID = static_cast<UINT>(row);
        drawing.itemAction = ODA_DRAWENTIRE;
        drawing.itemState = state;
        drawing.hwndItem = list.Handle();
        drawing.hDC = canvas.Dc();
        drawing.rcItem = {0, 0, 300, 34};
        Send(Host(), WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&drawing));
        return canvas;
    }
    static bool Holds(const test::Canvas& canvas, const base::Rect& part, COLORREF colour) {
        for (int y = part.top; y < part.bottom; ++y)
            for (int x = part.left; x < part.right; ++x)
                if (canvas.Pixel(x, y) == colour) return true;
        return false;
    }

    // A smoothed text reaches its colour only nearly.
    static bool HoldsNear(const test::Canvas& canvas, const base::Rect& part, COLORREF colour) {
        const auto close = [](int a, int b) { return std::abs(a - b) < 80; };
        for (int y = part.top; y < part.bottom; ++y)
            for (int x = part.left; x < part.right; ++x) {
                const COLORREF pixel = canvas.Pixel(x, y);
                if (close(GetRValue(pixel), GetRValue(colour)) && close(GetGValue(pixel), GetGValue(colour)) &&
                    close(GetBValue(pixel), GetBValue(colour)))
                    return true;
            }
        return false;
    }

    static constexpr COLORREF kIconColour = RGB(10, 200, 30);
    static constexpr base::Rect kText{48, 2, 295, 32};

    test::LaunchItems items;
    CLaunchItem item;
    CLaunchMenuListBox list;
};

TEST_F(LaunchMenuListBox, HasRowsForTwoLinesOfText) {
    EXPECT_EQ(list.RowHeight(), 34);
    EXPECT_EQ(Send(list.Handle(), LB_GETITEMHEIGHT), 34);
}

TEST_F(LaunchMenuListBox, KeepsAPointerToEachItemAndItsNameForScreenReaders) {
    ASSERT_TRUE(list.Insert(0, &item));

    EXPECT_EQ(list.Count(), 1);
    EXPECT_EQ(list.ItemAt(0), &item);
    wchar_t name[20]{};
    Send(list.Handle(), LB_GETTEXT, 0, reinterpret_cast<LPARAM>(name));
    EXPECT_STREQ(name, L"道具");
}

TEST_F(LaunchMenuListBox, HasNoItemsBesideItsRows) {
    EXPECT_EQ(list.ItemAt(0), nullptr);
    EXPECT_EQ(list.ItemAt(-1), nullptr);
    EXPECT_EQ(list.Selected(), -1);
}

TEST_F(LaunchMenuListBox, TakesRowsAway) {
    CLaunchItem other;
    list.Insert(0, &item);
    list.Insert(0, &other);

    list.Remove(1);

    EXPECT_EQ(list.Count(), 1);
    EXPECT_EQ(list.ItemAt(0), &other);
}

TEST_F(LaunchMenuListBox, DrawsTheItemsIconInAFrame) {
    list.Insert(0, &item);

    const auto row = Drawn(0);

    EXPECT_EQ(row.Pixel(16, 10), kIconColour);
    EXPECT_EQ(row.Pixel(31, 25), kIconColour);
    EXPECT_NE(row.Pixel(15, 10), kIconColour);
    EXPECT_NE(row.Pixel(32, 25), kIconColour);
    // The frame is 38 by 28 pixels.
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    EXPECT_EQ(row.Content({0, 0, 46, 33}, window), (base::Rect{5, 4, 43, 32}));
}

TEST_F(LaunchMenuListBox, RulesALineBelowEachRow) {
    list.Insert(0, &item);

    const auto row = Drawn(0);

    for (const int x : {0, 150, 299}) EXPECT_EQ(row.Pixel(x, 33), ::GetSysColor(COLOR_3DLIGHT)) << x;
}

TEST_F(LaunchMenuListBox, DrawsTheLaunchButtonsInBlueGreen) {
    for (int i = 0; i < 5; ++i) list.Insert(i, &item);

    for (int i = 0; i < 3; ++i) EXPECT_TRUE(Holds(Drawn(i), kText, kButtonText)) << i;
    for (int i = 3; i < 5; ++i) {
        EXPECT_FALSE(Holds(Drawn(i), kText, kButtonText)) << i;
        EXPECT_TRUE(Holds(Drawn(i), kText, ::GetSysColor(COLOR_WINDOWTEXT))) << i;
    }
}

TEST_F(LaunchMenuListBox, DrawsTwoLinesOfText) {
    list.Insert(0, &item);

    const auto row = Drawn(0);

    EXPECT_TRUE(Holds(row, {48, 2, 295, 17}, kButtonText));
    EXPECT_TRUE(Holds(row, {48, 17, 295, 32}, kButtonText));
    EXPECT_FALSE(Holds(row, {295, 0, 300, 33}, kButtonText));
}

TEST_F(LaunchMenuListBox, ShortensWhatIsTooLong) {
    CLaunchItem wide;
    wide.Set(L"C:\\" + std::wstring(200, L'p') + L"\\x.exe", L"", L"", std::wstring(50, L'名'),
             items.Icon(L"i.ico", kIconColour), 0);
    list.Insert(0, &wide);

    EXPECT_FALSE(Holds(Drawn(0), {295, 0, 300, 33}, kButtonText));
}

TEST_F(LaunchMenuListBox, EndsAPathInsideTheRowHoweverWideItsFileNameIs) {
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    for (const std::wstring& path : {L"C:\\tools\\" + std::wstring(100, L'w') + L".exe", std::wstring(100, L'w'),
                                     L"C:/tools/" + std::wstring(100, L'w')}) {
        CLaunchItem wide;
        wide.Set(path, L"", L"", L"道具", items.Icon(L"i.ico", kIconColour), 0);
        list.Insert(0, &wide);

        const auto row = Drawn(0);
        EXPECT_TRUE(row.Content({295, 0, 300, 33}, window).Empty());
        EXPECT_FALSE(row.Content({275, 17, 295, 32}, window).Empty());
        list.Remove(0);
    }
}

TEST_F(LaunchMenuListBox, KeepsTheFileNameOfAPathThatHasRoomForIt) {
    CLaunchItem wide;
    wide.Set(L"C:\\" + std::wstring(100, L'w') + L"\\ii.exe", L"", L"", L"道具", items.Icon(L"i.ico", kIconColour), 0);
    CLaunchItem other;
    other.Set(L"C:\\" + std::wstring(100, L'w') + L"\\ww.exe", L"", L"", L"道具", items.Icon(L"i.ico", kIconColour), 0);

    list.Insert(0, &wide);
    list.Insert(0, &other);

    const auto end = [&](int row) { return Drawn(row).Picture({200, 17, 295, 32}, ::GetSysColor(COLOR_WINDOW)); };
    EXPECT_NE(end(0), end(1));
}

TEST_F(LaunchMenuListBox, FillsTheSelectedRow) {
    list.Insert(0, &item);

    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    EXPECT_EQ(Drawn(0).Pixel(200, 31), window);
    EXPECT_NE(Drawn(0, ODS_SELECTED).Pixel(200, 31), window);
}

TEST_F(LaunchMenuListBox, ShowsWhereTheKeyboardIs) {
    list.Insert(0, &item);

    const auto without = Drawn(0, ODS_SELECTED).Pixels();
    EXPECT_NE(Drawn(0, ODS_SELECTED | ODS_FOCUS).Pixels(), without);
    EXPECT_EQ(Drawn(0, ODS_SELECTED | ODS_FOCUS | ODS_NOFOCUSRECT).Pixels(), without);
}

TEST_F(LaunchMenuListBox, DrawsARowWithoutAnItem) {
    ASSERT_TRUE(list.Insert(0, nullptr));

    const auto row = Drawn(0);

    EXPECT_FALSE(Holds(row, kText, kButtonText));
    EXPECT_EQ(row.Pixel(150, 33), ::GetSysColor(COLOR_3DLIGHT));
}

TEST_F(LaunchMenuListBox, DrawsNothingForTheFocusOfAnEmptyList) {
    EXPECT_EQ(Drawn(-1, ODS_FOCUS).Pixel(100, 10), test::Canvas::kUntouched);
}

TEST_F(LaunchMenuListBox, OpensTheThemeOfExplorersLists) {
    EXPECT_STREQ(list.ThemeClasses(), L"EXPLORER::LISTVIEW");
}

TEST_F(LaunchMenuListBox, WritesInTheSystemsColoursInHighContrast) {
    ASSERT_TRUE(list.Insert(0, &item));
    for (const test::SystemColours& scheme : {test::ContrastBlack(), test::ContrastWhite()}) {
        const test::HighContrast highContrast{scheme};

        EXPECT_TRUE(Holds(Drawn(0), kText, scheme.at(COLOR_WINDOW)));
        EXPECT_FALSE(Holds(Drawn(0), kText, kButtonText));
        EXPECT_TRUE(HoldsNear(Drawn(0), kText, scheme.at(COLOR_WINDOWTEXT)));
        EXPECT_TRUE(Holds(Drawn(0, ODS_SELECTED), kText, scheme.at(COLOR_HIGHLIGHT)));
        EXPECT_TRUE(HoldsNear(Drawn(0, ODS_SELECTED), kText, scheme.at(COLOR_HIGHLIGHTTEXT)));
    }
}

} // namespace
