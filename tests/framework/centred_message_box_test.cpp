#include "framework/centred_message_box.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "framework/centring.h"
#include "framework/gdi.h"
#include "framework/icons.h"
#include "res/image_ids.h"
#include "tests/framework/test_ids.h"
#include "tests/support/icon_pixels.h"
#include "tests/support/window_test.h"

namespace fw {
namespace {

using korvane::base::Rect;

// What a message box looked like when it stood on the screen.
struct SeenBox {
    int count = 0;
    HWND owner = nullptr;
    std::wstring caption;
    std::wstring text;
    Rect rect;
    std::vector<COLORREF> smallIcon;
};

SeenBox g_seen;
UINT g_answer = IDOK;

BOOL CALLBACK FindBox(HWND window, LPARAM found) {
    wchar_t className[16] = L"";
    ::GetClassNameW(window, className, 16);
    if (std::wstring_view{className} != L"#32770" || !::IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

// Runs inside the box's own message loop, looks at the box and answers it.
void CALLBACK AnswerBox(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &FindBox, reinterpret_cast<LPARAM>(&box));
    if (!box) return;
    ::KillTimer(nullptr, timer);
    // The text's identifier is -1 in some versions of Windows and 0xFFFF in others.
    HWND text = ::GetDlgItem(box, 0xFFFF);
    if (!text) text = ::GetDlgItem(box, -1);
    g_seen = {g_seen.count + 1,
              ::GetWindow(box, GW_OWNER),
              TextOf(box),
              TextOf(text),
              WindowRect(box),
              korvane::test::PixelsOf(reinterpret_cast<HICON>(::SendMessageW(box, WM_GETICON, ICON_SMALL, 0)))};
    ::EndDialog(box, static_cast<INT_PTR>(g_answer));
}

class MessageBoxTest : public testing::Test {
protected:
    void SetUp() override {
        g_seen = {};
        g_answer = IDOK;
        owner = ::CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 150, 100, 900, 600, nullptr,
                                  nullptr, nullptr, nullptr);
        ASSERT_NE(owner, nullptr);
        timer = ::SetTimer(nullptr, 0, 10, &AnswerBox);
    }
    void TearDown() override {
        ::KillTimer(nullptr, timer);
        ::DestroyWindow(owner);
    }
    [[nodiscard]] Rect InTheMiddleOfTheOwner() const {
        return korvane::base::Centred({150, 100, 1050, 700}, g_seen.rect.Extent());
    }

    HWND owner = nullptr;
    UINT_PTR timer = 0;
};

TEST_F(MessageBoxTest, HasTheProgramsIcon) {
    ShowMessage(owner, L"text", L"caption", MB_OK);

    const UniqueIcon program = LoadResourceIcon(IDI_KORVANE, ::GetSystemMetrics(SM_CXSMICON));
    EXPECT_FALSE(g_seen.smallIcon.empty());
    EXPECT_EQ(g_seen.smallIcon, korvane::test::PixelsOf(program.Get()));
}

TEST_F(MessageBoxTest, ShowsItsTextAndCaptionAndGivesTheAnswer) {
    g_answer = IDNO;

    EXPECT_EQ(ShowMessage(owner, L"終了しますか?", L"題", MB_YESNO | MB_ICONQUESTION), IDNO);

    EXPECT_EQ(g_seen.count, 1);
    EXPECT_EQ(g_seen.caption, L"題");
    EXPECT_EQ(g_seen.text, L"終了しますか?");
    EXPECT_EQ(g_seen.owner, owner);
}

TEST_F(MessageBoxTest, StandsInTheMiddleOfItsOwner) {
    ShowMessage(owner, L"text", L"caption", MB_OK);

    EXPECT_EQ(g_seen.rect, InTheMiddleOfTheOwner());
}

TEST_F(MessageBoxTest, StandsInTheMiddleOfTheScreenWhenItIsNotToBeCentred) {
    ShowMessage(owner, L"text", L"caption", MB_OK, Centring::kNone);

    EXPECT_EQ(g_seen.count, 1);
    EXPECT_EQ(g_seen.owner, owner);
    EXPECT_NE(g_seen.rect, InTheMiddleOfTheOwner());
}

TEST_F(MessageBoxTest, NeedsNoOwner) {
    EXPECT_EQ(ShowMessage(nullptr, L"text", L"caption", MB_OK), IDOK);

    EXPECT_EQ(g_seen.count, 1);
    EXPECT_EQ(g_seen.owner, nullptr);
}

TEST_F(MessageBoxTest, SaysThatItsOwnerIsGone) {
    const HWND gone = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    ::DestroyWindow(gone);

    EXPECT_EQ(ShowMessage(gone, L"text", L"caption", MB_YESNO), 0);

    EXPECT_EQ(g_seen.count, 1);
    EXPECT_EQ(g_seen.text, L"The window handle does not identify an existing window.");
    EXPECT_EQ(g_seen.owner, nullptr);
    EXPECT_NE(g_seen.caption, L"caption");
}

TEST_F(MessageBoxTest, TakesItsTextsFromTheStringTable) {
    ShowMessageById(owner, IDS_TEST_FORMAT, IDS_TEST_CAPTION, MB_OK);

    EXPECT_EQ(g_seen.text, L"検索 %s (%02d)");
    EXPECT_EQ(g_seen.caption, L"題名");
}

TEST_F(MessageBoxTest, ShowsTheSystemsTextForAnErrorCode) {
    ShowSystemError(owner, ERROR_FILE_NOT_FOUND, L"caption");

    EXPECT_NE(g_seen.text, L"");
    EXPECT_EQ(g_seen.text, SystemErrorText(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(g_seen.caption, L"caption");
    EXPECT_EQ(g_seen.rect, InTheMiddleOfTheOwner());
}

TEST_F(MessageBoxTest, ShowsTheThreadsLastErrorForTheCodeZero) {
    ::SetLastError(ERROR_ACCESS_DENIED);

    ShowSystemError(owner, 0, L"caption");

    EXPECT_EQ(g_seen.text, SystemErrorText(ERROR_ACCESS_DENIED));
    EXPECT_NE(g_seen.text, SystemErrorText(ERROR_FILE_NOT_FOUND));
}

TEST_F(MessageBoxTest, KeepsTheLastErrorWhileTheProductsNameIsLoaded) {
    ::SetLastError(ERROR_ACCESS_DENIED);

    ShowProductSystemError(owner, 0);

    EXPECT_EQ(g_seen.text, SystemErrorText(ERROR_ACCESS_DENIED));
}

TEST_F(MessageBoxTest, CentresAnErrorWithThePlatformsCaptionToo) {
    ShowSystemError(owner, ERROR_FILE_NOT_FOUND, nullptr);

    EXPECT_EQ(g_seen.count, 1);
    EXPECT_NE(g_seen.caption, L"");
    EXPECT_EQ(g_seen.rect, InTheMiddleOfTheOwner());
}

TEST_F(MessageBoxTest, SaysThatItsOwnerIsGoneForAnErrorWithThePlatformsCaptionToo) {
    const HWND gone = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    ::DestroyWindow(gone);

    EXPECT_EQ(ShowSystemError(gone, ERROR_FILE_NOT_FOUND, nullptr), 0);

    EXPECT_EQ(g_seen.text, L"The window handle does not identify an existing window.");
}

TEST_F(MessageBoxTest, HasNoTextForAnUnknownErrorCode) {
    EXPECT_EQ(SystemErrorText(0x2FFFFFFF), L"");
}

// Stands before the box's own hook and lets no activation through to it.
LRESULT CALLBACK SwallowActivation(int code, WPARAM wparam, LPARAM lparam) {
    return code == HCBT_ACTIVATE ? 0 : ::CallNextHookEx(nullptr, code, wparam, lparam);
}

HHOOK g_swallower = nullptr;

// Hooks run newest first, so this one has to come after the box's own: the box's creation is early enough.
LRESULT CALLBACK AtCreation(int code, WPARAM wparam, LPARAM lparam) {
    if (code == HCBT_CREATEWND && !g_swallower)
        g_swallower = ::SetWindowsHookExW(WH_CBT, &SwallowActivation, nullptr, ::GetCurrentThreadId());
    return ::CallNextHookEx(nullptr, code, wparam, lparam);
}

TEST_F(MessageBoxTest, LeavesTheNextWindowAloneWhenTheBoxWasNeverActivated) {
    const HHOOK atCreation = ::SetWindowsHookExW(WH_CBT, &AtCreation, nullptr, ::GetCurrentThreadId());
    ShowMessage(owner, L"text", L"caption", MB_OK);
    ::UnhookWindowsHookEx(g_swallower);
    ::UnhookWindowsHookEx(atCreation);
    g_swallower = nullptr;
    ASSERT_NE(g_seen.rect, InTheMiddleOfTheOwner());

    const HWND next = ::CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 3, 4, 50, 60, owner,
                                        nullptr, nullptr, nullptr);
    ::SetActiveWindow(next);

    EXPECT_EQ(WindowRect(next), (Rect{3, 4, 53, 64}));
}

} // namespace
} // namespace fw
