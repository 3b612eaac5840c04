#include "search/edit_ex.h"

#include <commctrl.h>

#include <array>
#include <cstring>

#include "framework/handle.h"
#include "tests/support/window_test.h"

using namespace korvane;
using korvane::search::CEditEx;
using korvane::test::WindowTest;

namespace {

constexpr UINT kId = 2001;

struct EditEx : WindowTest {
    CEditEx box;
    fw::UniqueFont font{::CreateFontW(-12, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Meiryo UI")};

    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(box.CreateBox(Host(), kId, {10, 8, 210, 24}, font.Get(), L"コマンド入力ボックス"));
    }
    [[nodiscard]] std::pair<DWORD, DWORD> Selection() const {
        DWORD first = 0;
        DWORD last = 0;
        Send(box.Handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
        return {first, last};
    }
    // Puts a text on the clipboard, without a terminating zero when `terminated` is false.
    void Copy(const std::wstring& text, bool terminated = true) const {
        ASSERT_TRUE(::OpenClipboard(Host()));
        ::EmptyClipboard();
        const std::size_t bytes = (text.size() + (terminated ? 1 : 0)) * sizeof(wchar_t);
        const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
        std::memcpy(::GlobalLock(memory), text.c_str(), bytes);
        ::GlobalUnlock(memory);
        const bool taken = ::SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
        ::CloseClipboard();
        ASSERT_TRUE(taken);
    }
    void ClearClipboard() const {
        ASSERT_TRUE(::OpenClipboard(Host()));
        ::EmptyClipboard();
        ::CloseClipboard();
    }
};

} // namespace

TEST_F(EditEx, IsAnEditControlUnderANameOfItsOwn) {
    std::array<wchar_t, 64> name{};
    ::GetClassNameW(box.Handle(), name.data(), static_cast<int>(name.size()));
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(box.Handle(), GWL_STYLE));
    constexpr DWORD kExpected = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_TABSTOP | ES_AUTOHSCROLL;

    EXPECT_STREQ(name.data(), L"EditEx_WndClass");
    EXPECT_EQ(style & kExpected, kExpected);
    EXPECT_EQ(style & ES_MULTILINE, 0U);
    EXPECT_EQ(::GetDlgCtrlID(box.Handle()), static_cast<int>(kId));
    EXPECT_EQ(fw::WindowRect(box.Handle()).Extent(), (base::Size{200, 16}));
}

TEST_F(EditEx, TakesTheFontThatItIsGiven) {
    EXPECT_EQ(reinterpret_cast<HFONT>(Send(box.Handle(), WM_GETFONT)), font.Get());
}

TEST_F(EditEx, IsNamedByATooltipForItself) {
    ASSERT_NE(box.ToolTip(), nullptr);
    ASSERT_EQ(Send(box.ToolTip(), TTM_GETTOOLCOUNT), 1);
    std::array<wchar_t, 80> text{};
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.lpszText = text.data();
    ASSERT_TRUE(Send(box.ToolTip(), TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)));

    EXPECT_STREQ(text.data(), L"コマンド入力ボックス");
    EXPECT_EQ(reinterpret_cast<HWND>(tool.uId), box.Handle());
    EXPECT_EQ(tool.uFlags & (TTF_IDISHWND | TTF_SUBCLASS), UINT{TTF_IDISHWND | TTF_SUBCLASS});
}

TEST_F(EditEx, TakesItsTooltipAlong) {
    const HWND tip = box.ToolTip();

    ::DestroyWindow(box.Handle());

    EXPECT_FALSE(::IsWindow(tip));
    EXPECT_EQ(box.ToolTip(), nullptr);
}

TEST_F(EditEx, StartsEmpty) {
    EXPECT_TRUE(box.Empty());
    EXPECT_EQ(box.Text(), L"");
}

TEST_F(EditEx, GivesTheTextBackAsItWasSet) {
    for (const std::wstring& text :
         {std::wstring{L"東京 駅"}, std::wstring{L" a "}, std::wstring(1, L'\xD83D'), std::wstring(100'000, L'あ')}) {
        box.SetText(text);

        EXPECT_FALSE(box.Empty());
        EXPECT_TRUE(box.Text() == text);
    }
}

TEST_F(EditEx, PutsTheCaretBehindTheTextThatIsSet) {
    box.SetText(L"abc");

    EXPECT_EQ(Selection(), (std::pair<DWORD, DWORD>{3, 3}));
}

TEST_F(EditEx, TellsItsParentOfEveryChange) {
    box.SetText(L"a");
    EXPECT_EQ(host.CommandCount(kId, EN_CHANGE), 1);

    Send(box.Handle(), WM_CHAR, L'b');
    EXPECT_EQ(host.CommandCount(kId, EN_CHANGE), 2);
}

TEST_F(EditEx, SelectsAllOnCtrlA) {
    box.SetText(L"abc");

    Send(box.Handle(), WM_CHAR, 1);

    EXPECT_EQ(Selection(), (std::pair<DWORD, DWORD>{0, 3}));
    EXPECT_EQ(box.Text(), L"abc");
}

TEST_F(EditEx, TakesTypedLetters) {
    Send(box.Handle(), WM_CHAR, L'x');

    EXPECT_EQ(box.Text(), L"x");
}

TEST_F(EditEx, PastesSeveralLinesAsOne) {
    Copy(L"one\r\ntwo\nthree\r\n");

    Send(box.Handle(), WM_PASTE);

    EXPECT_EQ(box.Text(), L"one two three");
    EXPECT_GE(host.CommandCount(kId, EN_CHANGE), 1);
}

TEST_F(EditEx, PastesOverTheSelection) {
    box.SetText(L"abcd");
    Send(box.Handle(), EM_SETSEL, 1, 3);
    Copy(L"X");

    Send(box.Handle(), WM_PASTE);

    EXPECT_EQ(box.Text(), L"aXd");
}

TEST_F(EditEx, PastesMoreThanTheUsualLimit) {
    Copy(std::wstring(100'000, L'x'));

    Send(box.Handle(), WM_PASTE);

    EXPECT_EQ(box.Text().size(), 100'000U);
}

TEST_F(EditEx, PastesATextWithoutATerminatingZero) {
    Copy(L"12345678", /*terminated=*/false);

    Send(box.Handle(), WM_PASTE);

    // Windows itself may put a zero in place of the last character.
    EXPECT_EQ(box.Text().substr(0, 7), L"1234567");
    EXPECT_LE(box.Text().size(), 8U);
}

TEST_F(EditEx, StaysAsItIsWhenThereIsNothingToPaste) {
    box.SetText(L"abc");
    ClearClipboard();

    Send(box.Handle(), WM_PASTE);

    EXPECT_EQ(box.Text(), L"abc");
}

TEST_F(EditEx, IsNotComposingByItself) {
    EXPECT_FALSE(box.Composing());
}

TEST_F(EditEx, SelectsAllWithTheClickThatBringsTheKeyboardThere) {
    box.SetText(L"notepad readme.txt");
    ::SetFocus(Host());

    Send(box.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 8));
    Send(box.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(20, 8));

    EXPECT_EQ(Selection(), (std::pair<DWORD, DWORD>{0, 18}));
}

TEST_F(EditEx, PlacesTheCaretWithTheSecondClick) {
    box.SetText(L"notepad readme.txt");
    ::SetFocus(box.Handle());
    box.SelectAll();

    Send(box.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 8));
    Send(box.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(20, 8));

    EXPECT_EQ(Selection().first, Selection().second);
}

TEST_F(EditEx, SelectsAllWhenTheClickActivatesTheBarFirst) {
    box.SetText(L"notepad");
    ::SetFocus(Host());
    Send(box.Handle(), WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(Host()), MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    // The activation gives the keyboard to the box that had it last, before the press arrives.
    ::SetFocus(box.Handle());

    Send(box.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 8));
    Send(box.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(20, 8));

    EXPECT_EQ(Selection(), (std::pair<DWORD, DWORD>{0, 7}));
}

TEST_F(EditEx, KeepsWhatTheFirstPressHasDraggedOver) {
    box.SetText(L"notepad readme.txt");
    ::SetFocus(Host());

    Send(box.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 8));
    Send(box.Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(30, 8));
    Send(box.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(30, 8));

    EXPECT_GT(Selection().second, Selection().first);
    EXPECT_LT(Selection().second, 18U);
}

TEST_F(EditEx, TakesTheWordBeforeTheCaretAwayWithCtrlBackspace) {
    box.SetText(L"東京 タワー");

    Send(box.Handle(), WM_CHAR, 0x7F);

    EXPECT_EQ(box.Text(), L"東京 ");
    EXPECT_EQ(Selection(), (std::pair<DWORD, DWORD>{3, 3}));
}

TEST_F(EditEx, TakesOnlyTheSelectionAwayWithCtrlBackspace) {
    box.SetText(L"one two");
    Send(box.Handle(), EM_SETSEL, 4, 6);

    Send(box.Handle(), WM_CHAR, 0x7F);

    EXPECT_EQ(box.Text(), L"one o");
}

TEST_F(EditEx, CanBeEmptiedAndFilledAgain) {
    box.SetText(L"typed with care");

    box.EmptyUndoably();
    EXPECT_TRUE(box.Empty());
    Send(box.Handle(), EM_UNDO);

    EXPECT_EQ(box.Text(), L"typed with care");
}
