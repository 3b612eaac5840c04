#include "search/edit_no_caret.h"

#include <array>
#include <string>

#include "framework/window_text.h"
#include "tests/support/clipboard.h"
#include "tests/support/window_test.h"

using namespace korvane;
using korvane::search::CEditNoCaret;

namespace {

constexpr UINT kId = 1037;

struct EditNoCaret : test::WindowTest {
    CEditNoCaret box;

    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(box.Create(
            {.rect = {10, 10, 210, 60},
             .style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL,
             .parent = Host(),
             .id = kId}));
        std::wstring text;
        for (int i = 0; i < 40; ++i) text += L"line\r\n";
        ::SetWindowTextW(box.Handle(), text.c_str());
    }
    [[nodiscard]] LRESULT FirstLine() const { return Send(box.Handle(), EM_GETFIRSTVISIBLELINE); }
    void Key(WPARAM key) { Send(box.Handle(), WM_KEYDOWN, key); }
    [[nodiscard]] std::wstring Copied() const {
        std::wstring text;
        if (!test::WaitUntil([&] { return ::OpenClipboard(Host()) != 0; })) return text;
        if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
            text = static_cast<const wchar_t*>(::GlobalLock(data));
            ::GlobalUnlock(data);
        }
        ::CloseClipboard();
        return text;
    }
};

} // namespace

TEST_F(EditNoCaret, IsAnEditControlUnderANameOfItsOwn) {
    std::array<wchar_t, 64> name{};
    ::GetClassNameW(box.Handle(), name.data(), static_cast<int>(name.size()));

    EXPECT_STREQ(name.data(), L"EditNoCaret_WndClass");
}

TEST_F(EditNoCaret, ShowsNoCaretWhenItHasTheFocus) {
    ::SetFocus(box.Handle());
    ASSERT_EQ(::GetFocus(), box.Handle());

    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetGUIThreadInfo(::GetCurrentThreadId(), &info));
    EXPECT_EQ(info.hwndCaret, nullptr);
}

TEST_F(EditNoCaret, LeavesTabEnterAndEscToTheDialog) {
    const LRESULT code = Send(box.Handle(), WM_GETDLGCODE);

    EXPECT_EQ(code & (DLGC_WANTTAB | DLGC_WANTALLKEYS | DLGC_HASSETSEL), 0);
    EXPECT_EQ(code & DLGC_WANTARROWS, DLGC_WANTARROWS);
}

TEST_F(EditNoCaret, IsScrolledByTheKeys) {
    ASSERT_EQ(FirstLine(), 0);

    Key(VK_DOWN);
    EXPECT_EQ(FirstLine(), 1);
    Key(VK_DOWN);
    EXPECT_EQ(FirstLine(), 2);
    Key(VK_UP);
    EXPECT_EQ(FirstLine(), 1);
    Key(VK_NEXT);
    EXPECT_GT(FirstLine(), 1);
    Key(VK_PRIOR);
    Key(VK_PRIOR);
    EXPECT_EQ(FirstLine(), 0);
    Key(VK_END);
    EXPECT_GT(FirstLine(), 30);
    Key(VK_HOME);
    EXPECT_EQ(FirstLine(), 0);
}

TEST_F(EditNoCaret, CannotBeWrittenInto) {
    const std::wstring before = fw::WindowText(box.Handle());

    Send(box.Handle(), WM_CHAR, L'x');
    Key(VK_DELETE);

    EXPECT_EQ(fw::WindowText(box.Handle()), before);
}

TEST_F(EditNoCaret, CopiesWhatIsSelected) {
    ::SetWindowTextW(box.Handle(), L"abcdef");
    Send(box.Handle(), EM_SETSEL, 1, 3);

    Send(box.Handle(), WM_CHAR, 3);

    EXPECT_EQ(Copied(), L"bc");
}

TEST_F(EditNoCaret, CopiesAllWhenNothingIsSelected) {
    ::SetWindowTextW(box.Handle(), L"ab\r\ncd");
    Send(box.Handle(), EM_SETSEL, 2, 2);

    Send(box.Handle(), WM_CHAR, 3);

    EXPECT_EQ(Copied(), L"ab\r\ncd");
    EXPECT_EQ(Send(box.Handle(), EM_GETSEL), MAKELRESULT(2, 2));
}

TEST_F(EditNoCaret, SelectsAllOnCtrlA) {
    ::SetWindowTextW(box.Handle(), L"abc");

    Send(box.Handle(), WM_CHAR, 1);

    EXPECT_EQ(Send(box.Handle(), EM_GETSEL), MAKELRESULT(0, 3));
}
