#include "launch/select_icon_dialog.h"

#include <gmock/gmock.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "framework/dpi.h"
#include "framework/window_text.h"
#include "tests/support/canvas.h"
#include "tests/support/dialog_walk.h"
#include "tests/support/fake_help.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/icon_library.h"
#include "tests/support/modal_dialog_answer.h"
#include "tests/support/refused_window.h"
#include "tests/support/solid_icon.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::launch;
using testing::ElementsAre;

namespace {

constexpr COLORREF kRed = RGB(250, 10, 10);
constexpr COLORREF kGreen = RGB(10, 250, 10);
constexpr COLORREF kBlue = RGB(10, 10, 250);

class SelectIconDialog : public test::WindowTest {
protected:
    test::TempFolder folder;
    test::FakeHelp help;
    std::unique_ptr<CSelectIconDialog> dialog;

    std::wstring Library(const std::vector<COLORREF>& colours, std::wstring_view name = L"icons.dll") {
        folder.Write(name, test::IconLibrary{colours}.Bytes());
        return folder.File(name);
    }
    void Open(const std::wstring& file, int index = 0) {
        dialog = std::make_unique<CSelectIconDialog>(file, index, nullptr, help);
        ASSERT_TRUE(dialog->Create(Host()));
    }
    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(dialog->Handle(), id); }
    [[nodiscard]] HWND List() const { return Control(1056); }
    [[nodiscard]] std::wstring Text(int id) const { return fw::WindowText(Control(id)); }
    void Type(const std::wstring& text) {
        ::SetFocus(Control(1039));
        ::SetWindowTextW(Control(1039), text.c_str());
    }
    void Command(int id) { Send(dialog->Handle(), WM_COMMAND, static_cast<WPARAM>(id)); }
    void Notify(UINT code) {
        Send(dialog->Handle(), WM_COMMAND, MAKEWPARAM(1056, code), reinterpret_cast<LPARAM>(List()));
    }
    [[nodiscard]] std::vector<COLORREF> Rows() const {
        std::vector<COLORREF> colours;
        for (LRESULT i = 0; i < Send(List(), LB_GETCOUNT); ++i)
            colours.push_back(
                test::ColourOf(reinterpret_cast<HICON>(Send(List(), LB_GETITEMDATA, static_cast<WPARAM>(i)))));
        return colours;
    }
    [[nodiscard]] LRESULT Selected() const { return Send(List(), LB_GETCURSEL); }
    void Select(int row) { Send(List(), LB_SETCURSEL, static_cast<WPARAM>(row)); }
    // Confirmed as OK closes it.
    [[nodiscard]] std::pair<std::wstring, int> Answer() const { return {dialog->IconFile(), dialog->IconIndex()}; }
};

TEST_F(SelectIconDialog, NamesItsControls) {
    Open(L"");

    EXPECT_EQ(fw::WindowText(dialog->Handle()), L"アイコンの変更");
    EXPECT_EQ(Text(1048), L"下の一覧からアイコンを選択(&S):");
    EXPECT_EQ(Text(1), L"OK");
    EXPECT_EQ(Text(2), L"キャンセル");
    EXPECT_EQ(Text(1009), L"ヘルプ");
    EXPECT_EQ(Text(1011), L"ファイルの参照(&B)");
    EXPECT_NE(Send(Control(1011), BM_GETIMAGE, IMAGE_ICON), 0);
}

TEST_F(SelectIconDialog, HasTheLabelOfEachControlRightBeforeIt) {
    Open(L"");

    EXPECT_EQ(fw::WindowText(::GetWindow(Control(1039), GW_HWNDPREV)), L"このファイル内のアイコンを検索(&L):");
    EXPECT_EQ(::GetWindow(List(), GW_HWNDPREV), Control(1048));
}

TEST_F(SelectIconDialog, IsWalkedThroughInTheOrderOfItsControls) {
    Open(L"");

    const std::vector<int> order = test::TabOrder(dialog->Handle(), 1039);

    EXPECT_THAT(order, ElementsAre(1039, 1011, 1056, 1, 2, 1009));
}

TEST_F(SelectIconDialog, PutsAListOfItsOwnIntoThePlaceOfTheTemplates) {
    Open(L"");

    wchar_t name[64]{};
    ::GetClassNameW(List(), name, 64);
    EXPECT_STREQ(name, L"SelectIconListBox_WndClass");
    EXPECT_EQ(Control(1024), nullptr);
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(List(), GWL_STYLE));
    constexpr DWORD kWanted =
        WS_VISIBLE | WS_TABSTOP | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_MULTICOLUMN | LBS_NOINTEGRALHEIGHT;
    EXPECT_EQ(style & kWanted, kWanted);
    EXPECT_EQ(style & (LBS_SORT | LBS_HASSTRINGS | WS_GROUP), 0U);
}

TEST_F(SelectIconDialog, ListsTheIconsInTheOrderOfTheFile) {
    const std::wstring file = Library({kRed, kGreen, kBlue});

    Open(file, 1);

    EXPECT_EQ(Text(1039), file);
    EXPECT_THAT(Rows(), ElementsAre(kRed, kGreen, kBlue));
    EXPECT_EQ(Selected(), 1);
}

TEST_F(SelectIconDialog, ListsTheOneIconOfAnIconFile) {
    folder.Write(L"one.ico", test::IconFile(kGreen));

    Open(folder.File(L"one.ico"), 0);

    EXPECT_THAT(Rows(), ElementsAre(kGreen));
}

TEST_F(SelectIconDialog, ListsSmallIcons) {
    Open(Library({kRed}));

    ICONINFO info{};
    ASSERT_TRUE(::GetIconInfo(reinterpret_cast<HICON>(Send(List(), LB_GETITEMDATA, 0)), &info));
    const fw::UniqueBitmap mask{info.hbmMask};
    const fw::UniqueBitmap colours{info.hbmColor};
    BITMAP picture{};
    ::GetObjectW(colours.Get(), sizeof picture, &picture);
    EXPECT_EQ(picture.bmWidth, ::GetSystemMetrics(SM_CXSMICON));
}

TEST_F(SelectIconDialog, HasAnEmptyListWhereThereAreNoIcons) {
    folder.Write(L"text.txt", "no icon in here");
    folder.Write(L"empty.ico", "");
    for (const std::wstring& file :
         {folder.File(L"text.txt"), folder.File(L"empty.ico"), folder.File(L"gone.dll"), folder.Path(), std::wstring{},
          std::wstring(50'000, L'x'), std::wstring{L"\\\\korvane.invalid\\share\\i.dll"}}) {
        Open(file, 0);

        EXPECT_THAT(Rows(), ElementsAre());
        EXPECT_EQ(Selected(), LB_ERR);
    }
}

TEST_F(SelectIconDialog, SurvivesADamagedFile) {
    std::string bytes = test::IconLibrary{std::vector<COLORREF>{kRed, kGreen}}.Bytes();
    for (const std::size_t length : {std::size_t{100}, std::size_t{600}, bytes.size() / 2}) {
        folder.Write(L"damaged.dll", bytes.substr(0, length));

        Open(folder.File(L"damaged.dll"), 0);

        EXPECT_LE(Rows().size(), 2U);
    }
}

TEST_F(SelectIconDialog, SelectsNothingForAnIndexThatTheFileDoesNotHave) {
    for (const int index : {-1, -5, 3, 100'000}) {
        Open(Library({kRed, kGreen, kBlue}), index);

        EXPECT_EQ(Selected(), LB_ERR) << index;
    }
}

TEST_F(SelectIconDialog, AnswersWithFileAndRow) {
    const std::wstring file = Library({kRed, kGreen, kBlue});
    Open(file, 0);
    Select(2);

    Command(IDOK);

    EXPECT_TRUE(dialog->Confirmed());
    EXPECT_EQ(Answer(), (std::pair{file, 2}));
}

TEST_F(SelectIconDialog, AnswersWithMinusOneWhenNoRowIsSelected) {
    const std::wstring file = Library({kRed});
    Open(file, 7);

    Command(IDOK);

    EXPECT_TRUE(dialog->Confirmed());
    EXPECT_EQ(Answer(), (std::pair{file, -1}));
}

TEST_F(SelectIconDialog, IsNotConfirmedByCancel) {
    Open(Library({kRed, kGreen}), 0);
    Select(1);
    Notify(LBN_SELCHANGE);

    Command(IDCANCEL);

    EXPECT_FALSE(dialog->Confirmed());
}

TEST_F(SelectIconDialog, ClosesWithADoubleClickOnARow) {
    const std::wstring file = Library({kRed, kGreen});
    Open(file, 1);

    Notify(LBN_DBLCLK);

    EXPECT_TRUE(dialog->Confirmed());
    EXPECT_EQ(Answer(), (std::pair{file, 1}));
}

TEST_F(SelectIconDialog, IsCancelledByADoubleClickOnNothing) {
    test::ModalDialogAnswer answer{test::ModalDialogAnswer::kNoButton, [](HWND opened) {
                                       ::PostMessageW(opened, WM_COMMAND, MAKEWPARAM(1056, LBN_DBLCLK),
                                                      reinterpret_cast<LPARAM>(::GetDlgItem(opened, 1056)));
                                   }};
    CSelectIconDialog picker{folder.File(L"gone.dll"), 0, nullptr, help};

    EXPECT_EQ(picker.ShowModal(Host()), IDCANCEL);

    EXPECT_FALSE(picker.Confirmed());
}

TEST_F(SelectIconDialog, ListsATypedFileWhenItsFieldIsLeft) {
    Open(Library({kRed}), 0);
    const std::wstring other = Library({kGreen, kBlue}, L"other.dll");

    Type(other);
    EXPECT_THAT(Rows(), ElementsAre(kRed));
    ::SetFocus(List());

    EXPECT_THAT(Rows(), ElementsAre(kGreen, kBlue));
    EXPECT_EQ(Selected(), 0);
}

TEST_F(SelectIconDialog, KeepsTheRowThatWasSelectedForAnotherFile) {
    Open(Library({kRed, kGreen, kBlue}), 0);
    Select(1);
    Notify(LBN_SELCHANGE);

    dialog->UseFile(Library({kBlue, kRed}, L"two.dll"));
    EXPECT_EQ(Selected(), 1);

    dialog->UseFile(Library({kBlue}, L"one.dll"));
    EXPECT_EQ(Selected(), LB_ERR);
}

TEST_F(SelectIconDialog, ShowsATypedFileBeforeEnterConfirmsIt) {
    Open(Library({kRed}), 0);
    const std::wstring other = Library({kGreen, kBlue}, L"other.dll");
    Type(L" \"" + other + L"\" ");

    Command(IDOK);
    EXPECT_FALSE(dialog->Confirmed());
    EXPECT_THAT(Rows(), ElementsAre(kGreen, kBlue));

    Command(IDOK);
    EXPECT_TRUE(dialog->Confirmed());
    EXPECT_EQ(Answer(), (std::pair{other, 0}));
}

TEST_F(SelectIconDialog, DoesNotWaitForATypedFileWhenItIsCancelled) {
    Open(Library({kRed}), 0);
    Type(Library({kGreen, kBlue}, L"other.dll"));

    ::SetFocus(Control(IDCANCEL));

    EXPECT_THAT(Rows(), ElementsAre(kRed));
}

TEST_F(SelectIconDialog, LooksAtNoTypedFileOnItsWayOut) {
    Open(Library({kRed}), 0);
    ::SetFocus(Control(1039));
    Type(Library({kGreen, kBlue}, L"other.dll"));

    Send(dialog->Handle(), WM_COMMAND, IDCANCEL);
    Send(dialog->Handle(), WM_COMMAND, MAKEWPARAM(1039, EN_KILLFOCUS), reinterpret_cast<LPARAM>(Control(1039)));

    EXPECT_THAT(Rows(), ElementsAre(kRed));
}

TEST_F(SelectIconDialog, LeavesTheListAloneWhileTheFileIsTheSame) {
    Open(Library({kRed, kGreen}), 0);
    const LRESULT icon = Send(List(), LB_GETITEMDATA, 0);

    Type(Text(1039));
    ::SetFocus(List());

    EXPECT_EQ(Send(List(), LB_GETITEMDATA, 0), icon);
}

TEST_F(SelectIconDialog, IsWalkedThroughByTheArrowKeys) {
    Open(Library(std::vector<COLORREF>(40, kRed)), 0);
    ::SetFocus(List());

    Send(List(), WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(Selected(), 1);
    Send(List(), WM_KEYDOWN, VK_RIGHT);
    const LRESULT nextColumn = Selected();
    EXPECT_GT(nextColumn, 2);
    Send(List(), WM_KEYDOWN, VK_LEFT);
    EXPECT_EQ(Selected(), 1);
    Send(List(), WM_KEYDOWN, VK_END);
    EXPECT_EQ(Selected(), 39);

    Command(IDOK);
    EXPECT_EQ(dialog->IconIndex(), 39);
}

TEST_F(SelectIconDialog, HasCellsALittleLargerThanTheirIcons) {
    Open(Library(std::vector<COLORREF>(40, kRed)), 0);

    RECT first{};
    Send(List(), LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first));
    RECT list{};
    ::GetClientRect(List(), &list);

    EXPECT_EQ(first.right - first.left, fw::Scale()(24));
    EXPECT_EQ(first.bottom - first.top, fw::Scale()(24));
    EXPECT_GE((list.right / (first.right - first.left)) * (list.bottom / (first.bottom - first.top)), 30);
}

TEST_F(SelectIconDialog, ScrollsSidewaysToManyIcons) {
    Open(Library(std::vector<COLORREF>(400, kRed)), 399);

    EXPECT_NE(::GetWindowLongPtrW(List(), GWL_STYLE) & WS_HSCROLL, 0);
    RECT last{};
    Send(List(), LB_GETITEMRECT, 399, reinterpret_cast<LPARAM>(&last));
    EXPECT_LT(last.left, fw::ClientRect(List()).right);
}

TEST_F(SelectIconDialog, OpensFiveThousandIconsQuickly) {
    const std::wstring file = Library(std::vector<COLORREF>(5000, kGreen));
    const auto start = std::chrono::steady_clock::now();

    Open(file, 4999);

    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(Send(List(), LB_GETCOUNT), 5000);
    EXPECT_EQ(Selected(), 4999);
    RecordProperty("milliseconds",
                   static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(took).count()));
    EXPECT_LT(took, std::chrono::seconds{10});
}

TEST_F(SelectIconDialog, ReleasesItsIconsWhenTheFileChangesAndWhenItCloses) {
    const std::wstring file = Library(std::vector<COLORREF>(50, kGreen));
    const std::wstring none = folder.File(L"gone.dll");
    const auto once = [&] {
        Open(file);
        const auto icon = reinterpret_cast<HICON>(Send(List(), LB_GETITEMDATA, 0));
        dialog->UseFile(none);
        ICONINFO info{};
        EXPECT_FALSE(::GetIconInfo(icon, &info));
        dialog->UseFile(file);
        dialog.reset();
    };
    // What Windows keeps from the first times.
    once();
    once();
    const int before = test::GdiObjectCount();

    for (int i = 0; i < 5; ++i) once();

    EXPECT_LE(test::GdiObjectCount(), before);
}

TEST_F(SelectIconDialog, ClosesAtOnceWhenThereIsNoListToBeHad) {
    const test::RefusedWindow refused{L"SelectIconListBox_WndClass"};
    CSelectIconDialog picker{folder.File(L"gone.dll"), 0, nullptr, help};

    EXPECT_EQ(picker.ShowModal(Host()), IDCANCEL);

    EXPECT_FALSE(picker.Confirmed());
}

TEST_F(SelectIconDialog, BrowsesUnderItsTitle) {
    const std::wstring file = Library({kRed});
    Open(file, 0);
    const test::ModalDialogAnswer answer{IDCANCEL};

    Command(1011);

    EXPECT_EQ(answer.Caption(), L"アイコンファイルの参照");
    EXPECT_EQ(Text(1039), file);
}

TEST_F(SelectIconDialog, OpensItsHelpByButtonAndByKey) {
    Open(L"");

    Command(1009);
    HELPINFO key{};
    key.cbSize = sizeof key;
    EXPECT_EQ(Send(dialog->Handle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&key)), TRUE);

    EXPECT_EQ(help.log, L"addextra.html#SelectIcon\naddextra.html#SelectIcon\n");
    EXPECT_EQ(help.asker, dialog->Handle());
}

TEST_F(SelectIconDialog, DrawsThePictureAnewWhenTheColoursChange) {
    Open(L"");
    const LRESULT before = Send(Control(1011), BM_GETIMAGE, IMAGE_ICON);

    Send(dialog->Handle(), WM_SYSCOLORCHANGE);

    EXPECT_NE(Send(Control(1011), BM_GETIMAGE, IMAGE_ICON), 0);
    EXPECT_NE(Send(Control(1011), BM_GETIMAGE, IMAGE_ICON), before);
}

class SelectIconListBox : public SelectIconDialog {
protected:
    // How the list draws a row in a cell of 40 by 30 pixels.
    [[nodiscard]] test::Canvas Drawn(UINT state, HICON icon, UINT row = 0) const {
        test::Canvas canvas{{40, 30}};
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_LISTBOX;
        item.CtlID = 1056;
        item.itemID = row;
        item.itemState = state;
        item.hwndItem = List();
        item.hDC = canvas.Dc();
        item.rcItem = {0, 0, 40, 30};
        item.itemData = reinterpret_cast<ULONG_PTR>(icon);
        EXPECT_EQ(Send(dialog->Handle(), WM_DRAWITEM, 1056, reinterpret_cast<LPARAM>(&item)), TRUE);
        return canvas;
    }
};

TEST_F(SelectIconListBox, DrawsAnIconInTheMiddleOfItsCell) {
    Open(L"");
    const fw::UniqueIcon icon = test::SolidIcon(kRed);

    const test::Canvas canvas = Drawn(0, icon.Get());

    EXPECT_EQ(canvas.Pixel(12, 7), kRed);
    EXPECT_EQ(canvas.Pixel(27, 22), kRed);
    const COLORREF ground = ::GetSysColor(COLOR_WINDOW);
    EXPECT_EQ(canvas.Pixel(11, 7), ground);
    EXPECT_EQ(canvas.Pixel(28, 22), ground);
    EXPECT_EQ(canvas.Pixel(12, 6), ground);
    EXPECT_EQ(canvas.Pixel(27, 23), ground);
    EXPECT_EQ(canvas.Pixel(0, 0), ground);
    EXPECT_EQ(canvas.Pixel(39, 29), ground);
}

TEST_F(SelectIconListBox, ShowsWhichRowIsSelectedAndWhichHasTheFocus) {
    Open(L"");
    const fw::UniqueIcon icon = test::SolidIcon(kRed);
    const auto plain = Drawn(0, icon.Get()).Pixels();
    const auto selected = Drawn(ODS_SELECTED, icon.Get()).Pixels();
    const auto focused = Drawn(ODS_SELECTED | ODS_FOCUS, icon.Get()).Pixels();

    EXPECT_NE(selected, plain);
    EXPECT_NE(focused, selected);
    EXPECT_EQ(Drawn(ODS_SELECTED | ODS_FOCUS | ODS_NOFOCUSRECT, icon.Get()).Pixels(), selected);
}

TEST_F(SelectIconListBox, DrawsARowWithoutAnIconEmpty) {
    Open(L"");

    const test::Canvas canvas = Drawn(0, nullptr);

    for (const COLORREF pixel : canvas.Pixels()) ASSERT_EQ(pixel, ::GetSysColor(COLOR_WINDOW));
}

TEST_F(SelectIconListBox, DrawsTheFocusOfAnEmptyList) {
    Open(L"");

    const auto canvas = Drawn(ODS_FOCUS, nullptr, static_cast<UINT>(-1)).Pixels();

    EXPECT_NE(canvas, Drawn(0, nullptr).Pixels());
}

TEST_F(SelectIconListBox, GoesWithoutATheme) {
    Open(L"");
    const fw::UniqueIcon icon = test::SolidIcon(kRed);

    Send(List(), WM_THEMECHANGED);

    EXPECT_EQ(Drawn(ODS_SELECTED, icon.Get()).Pixel(20, 15), kRed);
}

TEST_F(SelectIconListBox, LeaksNothingWhenItDraws) {
    Open(L"");
    const fw::UniqueIcon icon = test::SolidIcon(kRed);
    (void)Drawn(ODS_SELECTED | ODS_FOCUS, icon.Get());
    const int before = test::GdiObjectCount();

    for (int i = 0; i < 20; ++i) (void)Drawn(ODS_SELECTED | ODS_FOCUS, icon.Get());

    EXPECT_EQ(test::GdiObjectCount(), before);
}

} // namespace
