#include "launch/add_menu_dialog.h"

#include <gmock/gmock.h>
#include <objbase.h>

#include <memory>
#include <string>
#include <vector>

#include "framework/icons.h"
#include "framework/program_path.h"
#include "framework/window_text.h"
#include "framework/windows_version.h"
#include "res/image_ids.h"
#include "tests/launch/launch_items.h"
#include "tests/launch/system_icons.h"
#include "tests/support/canvas.h"
#include "tests/support/dialog_walk.h"
#include "tests/support/fake_help.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/modal_dialog_answer.h"
#include "tests/support/solid_icon.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::launch;
using testing::ElementsAre;

namespace {

constexpr COLORREF kRed = RGB(250, 10, 10);
constexpr COLORREF kGreen = RGB(10, 250, 10);

class AddMenuDialog : public test::WindowTest {
protected:
    test::LaunchItems items;
    test::FakeHelp help;
    std::unique_ptr<CAddMenuDialog> dialog;

    void Open(std::optional<CLaunchItem> edited = {}) {
        dialog = std::make_unique<CAddMenuDialog>(nullptr, help, std::move(edited));
        ASSERT_TRUE(dialog->Create(Host()));
    }
    // An item that passes every check.
    [[nodiscard]] CLaunchItem Whole() {
        items.folder.Write(L"p.exe", "x");
        CLaunchItem item;
        item.Set(items.folder.File(L"p.exe"), L"/a b", items.folder.Path(), L"名前", items.Icon(L"red.ico", kRed), 0);
        return item;
    }
    [[nodiscard]] HWND Control(int id) const { return ::GetDlgItem(dialog->Handle(), id); }
    [[nodiscard]] std::wstring Text(int id) const { return fw::WindowText(Control(id)); }
    void SetText(int id, const std::wstring& text) { ::SetWindowTextW(Control(id), text.c_str()); }
    [[nodiscard]] bool Enabled(int id) const { return ::IsWindowEnabled(Control(id)) != FALSE; }
    void Command(int id) { Send(dialog->Handle(), WM_COMMAND, static_cast<WPARAM>(id)); }
    // The picture on the button.
    [[nodiscard]] fw::UniqueIcon Shown() const {
        BUTTON_IMAGELIST picture{};
        EXPECT_TRUE(Send(Control(1055), BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&picture)));
        EXPECT_EQ(::ImageList_GetImageCount(picture.himl), 1);
        return fw::UniqueIcon{::ImageList_GetIcon(picture.himl, 0, ILD_NORMAL)};
    }
    [[nodiscard]] static std::vector<COLORREF> PixelsOf(HICON icon) {
        constexpr int kSidePx = 16;
        const test::Canvas canvas{{kSidePx, kSidePx}};
        EXPECT_TRUE(::DrawIconEx(canvas.Dc(), 0, 0, icon, kSidePx, kSidePx, 0, nullptr, DI_NORMAL));
        return canvas.Pixels();
    }
    [[nodiscard]] static std::vector<COLORREF> PlaceholderPixels() {
        return PixelsOf(fw::LoadResourceIcon(IDI_SETTINGS, ::GetSystemMetrics(SM_CXSMICON)).Get());
    }
    // A failure of the last check before which everything is right; gives the message.
    [[nodiscard]] std::wstring Refusal(int focused) {
        test::MessageBoxAnswer box{IDOK};
        ::SetFocus(Control(1052));
        Command(IDOK);
        EXPECT_EQ(box.Count(), 1);
        EXPECT_EQ(box.Caption(), fw::WindowText(dialog->Handle()));
        EXPECT_FALSE(dialog->Confirmed());
        EXPECT_TRUE(::IsWindow(dialog->Handle()));
        EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), focused);
        return box.Text();
    }
};

TEST_F(AddMenuDialog, IsTitledByWhatItIsFor) {
    Open();
    EXPECT_EQ(fw::WindowText(dialog->Handle()), L"ランチ メニュー の追加");

    Open(Whole());
    EXPECT_EQ(fw::WindowText(dialog->Handle()), L"ランチ メニュー の編集");
}

TEST_F(AddMenuDialog, NamesItsControls) {
    Open();

    EXPECT_EQ(Text(1012), L"プログラムの名前を自動取得しない(&S)");
    EXPECT_EQ(Text(1055), L"アイコンの変更");
    EXPECT_EQ(Text(1), L"OK");
    EXPECT_EQ(Text(2), L"キャンセル");
    EXPECT_EQ(Text(1009), L"ヘルプ");
    EXPECT_EQ(fw::WindowText(::GetWindow(Control(1055), GW_HWNDPREV)), L"アイコン");
    std::wstring note;
    for (HWND child = ::GetWindow(dialog->Handle(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (fw::WindowText(child).starts_with(L"※")) note = fw::WindowText(child);
    EXPECT_EQ(note, L"※ 起動オプションと作業フォルダは\n　　任意設定です。");
}

TEST_F(AddMenuDialog, HasTheLabelOfEachFieldRightBeforeIt) {
    Open();

    const auto labelOf = [&](int id) { return fw::WindowText(::GetWindow(Control(id), GW_HWNDPREV)); };
    EXPECT_EQ(labelOf(1051), L"プログラム(&P):");
    EXPECT_EQ(labelOf(1053), L"名前(&N):");
    EXPECT_EQ(labelOf(1052), L"起動オプション(&O):");
    EXPECT_EQ(labelOf(1059), L"作業フォルダ(&W):");
}

TEST_F(AddMenuDialog, IsWalkedThroughInTheOrderOfItsControls) {
    Open(Whole());

    const std::vector<int> order = test::TabOrder(dialog->Handle(), 1051);

    EXPECT_THAT(order, ElementsAre(1051, 1054, 1053, 1052, 1059, 1060, 1012, 1055, 1, 2, 1009));
}

TEST_F(AddMenuDialog, GivesNoAccessKeyTwice) {
    Open();

    EXPECT_EQ(test::AccessKeys(dialog->Handle()), L"BFNOPSW");
}

TEST_F(AddMenuDialog, ShowsPicturesOnTheButtonsThatOnlyScreenReadersRead) {
    Open();

    EXPECT_EQ(Text(1054), L"プログラムの参照(&B)");
    EXPECT_EQ(Text(1060), L"フォルダの参照(&F)");
    for (const int id : {1054, 1060}) EXPECT_NE(Send(Control(id), BM_GETIMAGE, IMAGE_ICON), 0) << id;
}

TEST_F(AddMenuDialog, IsEmptyForANewItem) {
    Open();

    for (const int id : {1051, 1053, 1052, 1059}) EXPECT_EQ(Text(id), L"") << id;
    EXPECT_EQ(Send(Control(1012), BM_GETCHECK), BST_UNCHECKED);
    EXPECT_FALSE(Enabled(IDOK));
    EXPECT_FALSE(Enabled(1055));
    EXPECT_EQ(PixelsOf(Shown().Get()), PlaceholderPixels());
}

TEST_F(AddMenuDialog, ShowsTheItemThatIsEdited) {
    Open(Whole());

    EXPECT_EQ(Text(1051), items.folder.File(L"p.exe"));
    EXPECT_EQ(Text(1053), L"名前");
    EXPECT_EQ(Text(1052), L"/a b");
    EXPECT_EQ(Text(1059), items.folder.Path());
    EXPECT_EQ(test::ColourOf(Shown().Get()), kRed);
    EXPECT_TRUE(Enabled(IDOK));
    EXPECT_TRUE(Enabled(1055));
}

TEST_F(AddMenuDialog, EnablesItsButtonsAfterEveryChange) {
    Open();

    SetText(1051, L"p");
    EXPECT_FALSE(Enabled(IDOK));
    EXPECT_TRUE(Enabled(1055));
    SetText(1053, L"n");
    EXPECT_TRUE(Enabled(IDOK));
    SetText(1051, L"");
    EXPECT_FALSE(Enabled(IDOK));
    EXPECT_FALSE(Enabled(1055));
}

TEST_F(AddMenuDialog, TakesNoMoreThan50CharactersForTheName) {
    Open();

    EXPECT_EQ(Send(Control(1053), EM_GETLIMITTEXT), 50);
    for (int i = 0; i < 60; ++i) Send(Control(1053), WM_CHAR, L'x');
    EXPECT_EQ(Text(1053), std::wstring(50, L'x'));
}

TEST_F(AddMenuDialog, ShowsALongerNameThatAnItemHas) {
    CLaunchItem item = Whole();
    item.Set(item.Path(), {}, {}, std::wstring(80, L'n'));

    Open(std::move(item));
    EXPECT_EQ(Text(1053), std::wstring(80, L'n'));
    Command(IDOK);

    EXPECT_EQ(dialog->Item().Name(), std::wstring(80, L'n'));
}

TEST_F(AddMenuDialog, StoresWhatWasEntered) {
    const CLaunchItem whole = Whole();
    Open();
    dialog->UseIcon(items.folder.File(L"red.ico"), 0);
    SetText(1051, whole.Path());
    SetText(1053, L"新しい");
    SetText(1052, L"/x");
    SetText(1059, items.folder.Path());

    Command(IDOK);

    EXPECT_TRUE(dialog->Confirmed());
    const CLaunchItem& item = dialog->Item();
    EXPECT_EQ(item.Format(),
              whole.Path() + L",/x," + items.folder.Path() + L"," + items.folder.File(L"red.ico") + L",0,新しい");
    EXPECT_EQ(test::ColourOf(item.Icon()), kRed);
}

TEST_F(AddMenuDialog, KeepsTheIconOfAnEditedItem) {
    Open(Whole());
    SetText(1053, L"anders");

    Command(IDOK);

    EXPECT_TRUE(dialog->Confirmed());
    EXPECT_EQ(dialog->Item().Name(), L"anders");
    EXPECT_EQ(dialog->Item().GetIconLocation(), (std::pair{items.folder.File(L"red.ico"), 0}));
    EXPECT_EQ(test::ColourOf(dialog->Item().Icon()), kRed);
}

TEST_F(AddMenuDialog, TouchesNoItemWhenItIsCancelled) {
    const CLaunchItem whole = Whole();
    Open(whole);
    SetText(1051, L"C:\\other.exe");
    SetText(1053, L"other");

    Command(IDCANCEL);

    EXPECT_FALSE(dialog->Confirmed());
    EXPECT_EQ(dialog->Item().Format(), whole.Format());
}

TEST_F(AddMenuDialog, IgnoresEnterWhileOkIsGreyed) {
    test::MessageBoxAnswer box{IDOK};
    Open();

    Command(IDOK);

    EXPECT_EQ(box.Count(), 0);
    EXPECT_FALSE(dialog->Confirmed());
}

TEST_F(AddMenuDialog, WantsAnIcon) {
    const CLaunchItem whole = Whole();
    Open();
    SetText(1051, L"C:\\gone.exe");
    SetText(1053, L"&");

    EXPECT_EQ(Refusal(1055), L"メニューに表示するアイコンが設定されていません。");
}

// Such an item would hide itself and all items behind it.
TEST_F(AddMenuDialog, WantsAnIconThatIsThere) {
    Open(Whole());
    dialog->UseIcon(items.folder.File(L"red.ico"), -1);

    EXPECT_EQ(Refusal(1055), L"メニューに表示するアイコンが設定されていません。");
}

TEST_F(AddMenuDialog, SaysThatAProgramIsNotThere) {
    Open(Whole());
    SetText(1051, L"C:\\gone\\p.exe");
    SetText(1053, L"&");

    EXPECT_EQ(Refusal(1051), L"指定されたファイル 'C:\\gone\\p.exe' が見つかりません。");
}

TEST_F(AddMenuDialog, RefusesAnAmpersandInTheName) {
    Open(Whole());
    SetText(1053, L"A&B");
    SetText(1059, L"C:\\gone");

    EXPECT_EQ(Refusal(1053), L"名前にアンパサンド (&) を含めることはできません。");
}

TEST_F(AddMenuDialog, SaysThatAWorkingFolderIsNotThere) {
    Open(Whole());
    SetText(1059, L"C:\\gone");

    EXPECT_EQ(Refusal(1059), L"指定されたフォルダ 'C:\\gone' が見つかりません。");
}

TEST_F(AddMenuDialog, StoresNothingBeforeAllChecksPass) {
    const CLaunchItem whole = Whole();
    Open(whole);
    SetText(1053, L"neu");
    SetText(1059, L"C:\\gone");

    (void)Refusal(1059);

    EXPECT_EQ(dialog->Item().Format(), whole.Format());
}

TEST_F(AddMenuDialog, DoesNotCheckAnEmptyWorkingFolder) {
    Open(Whole());
    SetText(1059, L"");

    Command(IDOK);

    EXPECT_TRUE(dialog->Confirmed());
    EXPECT_EQ(dialog->Item().WorkingFolder(), L"");
}

TEST_F(AddMenuDialog, StoresTheFullPathOfAProgramOnTheSearchPath) {
    Open(Whole());
    SetText(1051, L"notepad.exe");

    Command(IDOK);

    ASSERT_TRUE(dialog->Confirmed());
    EXPECT_TRUE(dialog->Item().Path().ends_with(L"\\notepad.exe"));
    EXPECT_NE(::GetFileAttributesW(dialog->Item().Path().c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(AddMenuDialog, TakesADocumentOnlyAfterYes) {
    items.folder.Write(L"a.txt", "x");
    const std::wstring document = items.folder.File(L"a.txt");
    for (const int answer : {IDNO, IDCANCEL, IDYES}) {
        Open(Whole());
        SetText(1051, document);
        test::MessageBoxAnswer box{answer};

        Command(IDOK);

        EXPECT_EQ(box.Count(), 1);
        EXPECT_EQ(box.Caption(), L"ランチ メニュー の編集");
        EXPECT_EQ(box.Text(), L"指定されたファイル '" + document +
                                  L"' は実行可能形式のファイルではありません。このまま登録してもよろしいですか？");
        EXPECT_EQ(dialog->Confirmed(), answer == IDYES);
        if (answer == IDYES) {
            EXPECT_EQ(dialog->Item().Path(), document);
        } else {
            EXPECT_EQ(::GetFocus(), Control(1051));
        }
    }
}

TEST_F(AddMenuDialog, ChecksTheRestAfterYes) {
    items.folder.Write(L"a.txt", "x");
    Open(Whole());
    SetText(1051, items.folder.File(L"a.txt"));
    SetText(1053, L"&");
    test::MessageBoxAnswer box{IDYES};

    Command(IDOK);

    EXPECT_EQ(box.Count(), 2);
    EXPECT_EQ(box.Text(), L"名前にアンパサンド (&) を含めることはできません。");
    EXPECT_FALSE(dialog->Confirmed());
}

TEST_F(AddMenuDialog, TakesAFolderWithoutAsking) {
    test::MessageBoxAnswer box{IDNO};
    Open(Whole());
    SetText(1051, items.folder.Path());

    Command(IDOK);

    EXPECT_EQ(box.Count(), 0);
    EXPECT_TRUE(dialog->Confirmed());
    EXPECT_EQ(dialog->Item().Path(), items.folder.Path());
}

TEST_F(AddMenuDialog, TakesAPathWithQuotationMarksForThePath) {
    const CLaunchItem whole = Whole();
    Open(whole);
    SetText(1051, L" \"" + whole.Path() + L"\" ");
    SetText(1059, L"\"" + items.folder.Path() + L"\"");

    Command(IDOK);

    EXPECT_TRUE(dialog->Confirmed());
    EXPECT_EQ(dialog->Item().Format(), whole.Format());
}

TEST_F(AddMenuDialog, SurvivesTextsOfAbsurdLength) {
    Open(Whole());
    for (const std::size_t length : {std::size_t{259}, std::size_t{260}, std::size_t{261}, std::size_t{20'000}}) {
        const std::wstring text(length, L'p');
        SetText(1051, text);
        SetText(1052, text);
        SetText(1059, text);

        EXPECT_EQ(Refusal(1051), L"指定されたファイル '" + text + L"' が見つかりません。") << length;
    }
}

TEST_F(AddMenuDialog, TakesAProgramWithItsIconAndItsDescription) {
    // The tests have the program's own resources.
    const std::wstring program = fw::ProgramPath().value();
    Open();

    dialog->UseProgram(program);

    EXPECT_EQ(Text(1051), program);
    EXPECT_EQ(Text(1053), L"Korvane");
    EXPECT_EQ(dialog->Item().GetIconLocation(), (std::pair{program, 0}));
    EXPECT_EQ(PixelsOf(Shown().Get()), PixelsOf(dialog->Item().Icon()));
    EXPECT_NE(PixelsOf(Shown().Get()), PlaceholderPixels());
    EXPECT_TRUE(Enabled(IDOK));
}

TEST_F(AddMenuDialog, KeepsTheNameWhenItIsToldTo) {
    Open();
    Send(Control(1012), BM_SETCHECK, BST_CHECKED);
    SetText(1053, L"mine");

    dialog->UseProgram(fw::ProgramPath().value());

    EXPECT_EQ(Text(1053), L"mine");
    EXPECT_NE(dialog->Item().Icon(), nullptr);
}

TEST_F(AddMenuDialog, KeepsTheNameForAFileWithoutADescription) {
    Open(Whole());

    dialog->UseProgram(items.folder.File(L"p.exe"));

    EXPECT_EQ(Text(1053), L"名前");
}

TEST_F(AddMenuDialog, GivesAProgramWithoutAnIconTheSystems) {
    const test::SystemIcons system;
    items.folder.Write(L"x.bat", "rem");
    Open(Whole());

    dialog->UseProgram(items.folder.File(L"x.bat"));

    const int index = fw::IsWindowsAtLeast(fw::kWindows7) ? 11 : 10;
    EXPECT_EQ(dialog->Item().GetIconLocation(), (std::pair{system.File(), index}));
    EXPECT_EQ(test::ColourOf(Shown().Get()), test::SystemIcons::ColourOf(index));
}

TEST_F(AddMenuDialog, HasNoIconWhereEvenTheSystemHasNone) {
    const test::NoSystemIcons none;
    items.folder.Write(L"x.bat", "rem");
    Open();
    dialog->UseIcon(items.Icon(L"red.ico", kRed), 0);
    SetText(1053, L"n");

    dialog->UseProgram(items.folder.File(L"x.bat"));

    EXPECT_EQ(dialog->Item().GetIconLocation(), (std::pair{std::wstring{}, -1}));
    EXPECT_EQ(PixelsOf(Shown().Get()), PlaceholderPixels());
    EXPECT_EQ(Refusal(1055), L"メニューに表示するアイコンが設定されていません。");
}

TEST_F(AddMenuDialog, BrowsesForAProgramUnderItsTitle) {
    Open(Whole());
    const test::ModalDialogAnswer answer{IDCANCEL};

    Command(1054);

    EXPECT_EQ(answer.Caption(), L"プログラムの参照");
    EXPECT_EQ(Text(1051), items.folder.File(L"p.exe"));
}

TEST_F(AddMenuDialog, BrowsesForAFolderAndKeepsTheOldOneWhenThatIsCancelled) {
    ASSERT_TRUE(SUCCEEDED(::CoInitialize(nullptr)));
    Open(Whole());
    {
        const test::ModalDialogAnswer answer{IDCANCEL};

        Command(1060);

        EXPECT_EQ(answer.Caption(), L"作業フォルダの指定");
    }
    EXPECT_EQ(Text(1059), items.folder.Path());
    ::CoUninitialize();
}

TEST_F(AddMenuDialog, ChangesTheIconWithThePicker) {
    Open(Whole());
    const std::wstring green = items.Icon(L"green.ico", kGreen);
    std::wstring offered;
    test::ModalDialogAnswer answer{IDOK, [&](HWND picker) {
                                       offered = fw::WindowText(::GetDlgItem(picker, 1039));
                                       ::SetWindowTextW(::GetDlgItem(picker, 1039), green.c_str());
                                       ::PostMessageW(picker, WM_NEXTDLGCTL,
                                                      reinterpret_cast<WPARAM>(::GetDlgItem(picker, 1056)), TRUE);
                                   }};

    Command(1055);

    EXPECT_EQ(answer.Caption(), L"アイコンの変更");
    EXPECT_EQ(offered, items.folder.File(L"red.ico"));
    EXPECT_EQ(dialog->Item().GetIconLocation(), (std::pair{green, 0}));
    EXPECT_EQ(test::ColourOf(Shown().Get()), kGreen);
}

TEST_F(AddMenuDialog, KeepsTheIconWhenThePickerIsCancelled) {
    Open(Whole());
    const test::ModalDialogAnswer answer{IDCANCEL};

    Command(1055);

    EXPECT_EQ(dialog->Item().GetIconLocation(), (std::pair{items.folder.File(L"red.ico"), 0}));
    EXPECT_EQ(test::ColourOf(Shown().Get()), kRed);
}

TEST_F(AddMenuDialog, OffersTheSystemsIconsWhenTheItemHasNone) {
    Open();
    SetText(1051, L"p");
    std::wstring offered;
    test::ModalDialogAnswer answer{IDCANCEL,
                                   [&](HWND picker) { offered = fw::WindowText(::GetDlgItem(picker, 1039)); }};

    Command(1055);

    EXPECT_EQ(offered, L"imageres.dll");
}

TEST_F(AddMenuDialog, OpensItsHelpByButtonAndByKey) {
    Open();

    Command(1009);
    HELPINFO key{};
    key.cbSize = sizeof key;
    EXPECT_EQ(Send(dialog->Handle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&key)), TRUE);

    EXPECT_EQ(help.log, L"addextra.html\naddextra.html\n");
    EXPECT_EQ(help.asker, dialog->Handle());
}

TEST_F(AddMenuDialog, DrawsThePicturesAnewWhenTheColoursChange) {
    Open();
    const LRESULT before = Send(Control(1054), BM_GETIMAGE, IMAGE_ICON);

    Send(dialog->Handle(), WM_SYSCOLORCHANGE);

    EXPECT_NE(Send(Control(1054), BM_GETIMAGE, IMAGE_ICON), 0);
    EXPECT_NE(Send(Control(1054), BM_GETIMAGE, IMAGE_ICON), before);
}

TEST_F(AddMenuDialog, LeaksNothing) {
    const CLaunchItem whole = Whole();
    Open(whole);
    dialog.reset();
    const int before = test::GdiObjectCount();

    for (int i = 0; i < 10; ++i) {
        Open(whole);
        dialog->UseIcon(items.folder.File(L"red.ico"), 0);
        dialog->UseProgram(items.folder.File(L"p.exe"));
        dialog.reset();
    }

    EXPECT_LE(test::GdiObjectCount(), before);
}

} // namespace
