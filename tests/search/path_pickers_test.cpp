#include "search/path_pickers.h"

#include <objbase.h>
#include <shlobj.h>

#include <array>

#include "framework/string_table.h"
#include "res/ids.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::TempFolder;
using korvane::test::WindowTest;

namespace {

// What a picker showed. It is noted from a timer, which the picker's own message loop serves.
std::wstring g_caption;
std::wstring g_texts;
std::wstring g_typed;
bool g_confirms = false;
// The folder that a picker was told to begin with.
std::wstring g_begin;
int g_ticks = 0;

std::wstring TextOf(HWND window) {
    std::array<wchar_t, 512> text{};
    ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

BOOL CALLBACK NoteText(HWND child, LPARAM) {
    g_texts += TextOf(child) + L"\n";
    return TRUE;
}

BOOL CALLBACK FindDialog(HWND window, LPARAM found) {
    std::array<wchar_t, 64> name{};
    ::GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    if (std::wstring_view{name.data()} != L"#32770" || !::IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

LRESULT CALLBACK NoteBeginning(int code, WPARAM wparam, LPARAM lparam) {
    const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lparam);
    if (code == HC_ACTION && message.message == BFFM_SETSELECTIONW && message.wParam == TRUE)
        g_begin = reinterpret_cast<const wchar_t*>(message.lParam);
    return ::CallNextHookEx(nullptr, code, wparam, lparam);
}

void CALLBACK AnswerDialog(HWND, UINT, UINT_PTR, DWORD) {
    HWND dialog = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &FindDialog, reinterpret_cast<LPARAM>(&dialog));
    // The first tick with a dialog lets it finish its own set-up.
    if (!dialog || ++g_ticks < 2) return;
    g_caption = TextOf(dialog);
    g_texts.clear();
    ::EnumChildWindows(dialog, &NoteText, 0);
    if (g_typed.empty()) {
        ::PostMessageW(dialog, WM_COMMAND, g_confirms ? IDOK : IDCANCEL, 0);
        return;
    }
    // The file name's box of the common dialog.
    constexpr int kFileNameCombo = 0x047C;
    constexpr int kFileNameEdit = 0x0480;
    const HWND combo = ::GetDlgItem(dialog, kFileNameCombo);
    ::SetWindowTextW(combo ? combo : ::GetDlgItem(dialog, kFileNameEdit), g_typed.c_str());
    ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

struct PathPickers : WindowTest {
    UINT_PTR timer = 0;

    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(SUCCEEDED(::CoInitialize(nullptr)));
        g_caption.clear();
        g_texts.clear();
        g_typed.clear();
        g_confirms = false;
        g_begin.clear();
        g_ticks = 0;
        timer = ::SetTimer(nullptr, 0, 50, &AnswerDialog);
    }
    void TearDown() override {
        ::KillTimer(nullptr, timer);
        ::CoUninitialize();
    }
};

} // namespace

TEST_F(PathPickers, GiveNoFileWhenTheUserCancels) {
    EXPECT_FALSE(PickFile(Host(), fw::LoadText(IDS_ALL_FILES_FILTER)).has_value());

    EXPECT_GE(g_ticks, 2);
}

TEST_F(PathPickers, GiveTheFileThatTheUserNamed) {
    const TempFolder folder;
    folder.Write(L"資料 1.txt", "x");
    g_typed = folder.File(L"資料 1.txt");

    EXPECT_EQ(PickFile(Host(), fw::LoadText(IDS_ALL_FILES_FILTER)), g_typed);
}

TEST_F(PathPickers, AskForAFileUnderTheGivenTitle) {
    EXPECT_FALSE(PickFile(Host(), L"All|*.*||", {.title = L"プログラムの参照", .startFolder = {}}).has_value());

    EXPECT_EQ(g_caption, L"プログラムの参照");
}

TEST_F(PathPickers, LookForAFileInTheFolderThatTheyAreGiven) {
    const TempFolder folder;
    folder.Write(L"資料 2.txt", "x");
    g_typed = L"資料 2.txt";

    EXPECT_EQ(PickFile(Host(), L"All|*.*||", {.title = {}, .startFolder = folder.Path() + L"\\"}),
              folder.File(L"資料 2.txt"));
}

TEST_F(PathPickers, AskForAFileWhenTheFirstFolderIsGone) {
    EXPECT_FALSE(PickFile(Host(), L"All|*.*||", {.title = L"t", .startFolder = L"C:\\no such folder"}).has_value());

    EXPECT_EQ(g_caption, L"t");
}

TEST_F(PathPickers, AskForAFolderUnderTheGivenTitle) {
    const auto picked =
        PickFolder(Host(), fw::LoadText(IDS_BROWSE_FOLDER_TITLE), fw::LoadText(IDS_BROWSE_FOLDER_PROMPT));

    EXPECT_FALSE(picked.has_value());
    EXPECT_EQ(g_caption, L"フォルダの参照");
    EXPECT_NE(g_texts.find(L"[コマンド入力ボックス] に入力するフォルダ名を指定します。"), std::wstring::npos);
}

// How far the picker then opens its tree is up to Windows.
TEST_F(PathPickers, BeginWithTheFolderThatTheyAreGiven) {
    const TempFolder folder;
    const HHOOK hook = ::SetWindowsHookExW(WH_CALLWNDPROC, &NoteBeginning, nullptr, ::GetCurrentThreadId());

    EXPECT_FALSE(PickFolder(Host(), L"title", L"prompt", folder.Path()).has_value());

    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(g_begin, folder.Path());
}

TEST_F(PathPickers, GiveTheFolderThatIsConfirmed) {
    g_confirms = true;

    const auto picked = PickFolder(Host(), L"title", L"prompt", L"C:\\windows");

    EXPECT_EQ(picked, L"C:\\windows");
}

TEST_F(PathPickers, AskForAFolderWhenTheFirstOneIsGone) {
    EXPECT_FALSE(PickFolder(Host(), L"title", L"prompt", L"C:\\no such folder\\at all").has_value());

    EXPECT_EQ(g_caption, L"title");
}
