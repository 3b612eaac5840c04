#include "search/edit_ctrl_ex.h"

#include <array>
#include <string>

#include "framework/window_text.h"
#include "tests/support/clipboard.h"
#include "tests/support/window_test.h"

using namespace korvane;
using korvane::search::CEditCtrlEx;

namespace {

constexpr UINT kId = 1040;

struct EditCtrlEx : test::WindowTest {
    CEditCtrlEx box;

    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(box.Create({.rect = {10, 10, 210, 34},
                                .style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL,
                                .parent = Host(),
                                .id = kId}));
    }
    [[nodiscard]] std::wstring Text() const { return fw::WindowText(box.Handle()); }
    void SetText(const wchar_t* text) { ::SetWindowTextW(box.Handle(), text); }
    void Paste(std::wstring text) {
        // With a zero of its own, for Windows puts one in the place of the last character.
        text += L'\0';
        ASSERT_TRUE(test::Copy(Host(), {{CF_UNICODETEXT, test::BytesOf(text)}}));
        Send(box.Handle(), WM_PASTE);
    }
    void Limit(WPARAM characters) { Send(box.Handle(), EM_SETLIMITTEXT, characters); }
};

} // namespace

TEST_F(EditCtrlEx, IsAnEditControlUnderANameOfItsOwn) {
    std::array<wchar_t, 64> name{};
    ::GetClassNameW(box.Handle(), name.data(), static_cast<int>(name.size()));

    EXPECT_STREQ(name.data(), L"EditCtrlEx_WndClass");
    Send(box.Handle(), WM_CHAR, L'x');
    EXPECT_EQ(Text(), L"x");
}

TEST_F(EditCtrlEx, TellsOnceThatTheMouseHasComeAndOnceThatItHasGone) {
    SendMouse(box.Handle(), WM_MOUSEMOVE, {5, 5});
    SendMouse(box.Handle(), WM_MOUSEMOVE, {6, 5});
    EXPECT_EQ(host.CommandCount(kId, CEditCtrlEx::kMouseEntered), 1);
    EXPECT_EQ(host.CommandCount(kId, CEditCtrlEx::kMouseLeft), 0);

    Send(box.Handle(), WM_MOUSELEAVE);
    Send(box.Handle(), WM_MOUSELEAVE);
    EXPECT_EQ(host.CommandCount(kId, CEditCtrlEx::kMouseLeft), 1);

    SendMouse(box.Handle(), WM_MOUSEMOVE, {5, 5});
    EXPECT_EQ(host.CommandCount(kId, CEditCtrlEx::kMouseEntered), 2);
}

TEST_F(EditCtrlEx, TellsThatTheFocusHasComeAndGone) {
    Send(box.Handle(), WM_SETFOCUS);
    EXPECT_EQ(host.CommandCount(kId, EN_SETFOCUS), 1);

    Send(box.Handle(), WM_KILLFOCUS);
    EXPECT_EQ(host.CommandCount(kId, EN_KILLFOCUS), 1);
}

TEST_F(EditCtrlEx, HasCodesOfItsOwnForTheMouse) {
    for (const UINT code : {EN_SETFOCUS, EN_KILLFOCUS, EN_CHANGE, EN_UPDATE, EN_ERRSPACE, EN_MAXTEXT, EN_HSCROLL,
                            EN_VSCROLL, EN_ALIGN_LTR_EC, EN_ALIGN_RTL_EC}) {
        EXPECT_NE(code, CEditCtrlEx::kMouseEntered);
        EXPECT_NE(code, CEditCtrlEx::kMouseLeft);
    }
}

TEST_F(EditCtrlEx, SelectsAllOnCtrlA) {
    SetText(L"abc");

    Send(box.Handle(), WM_CHAR, 1);

    EXPECT_EQ(Send(box.Handle(), EM_GETSEL), MAKELRESULT(0, 3));
    EXPECT_EQ(Text(), L"abc");
}

TEST_F(EditCtrlEx, PastesSeveralLinesAsOne) {
    Paste(L"one\r\ntwo\nthree\r\n");

    EXPECT_EQ(Text(), L"one two three");
}

TEST_F(EditCtrlEx, PastesAsMuchAsTheLimitAllows) {
    Limit(5);
    SetText(L"abc");
    Send(box.Handle(), EM_SETSEL, 1, 2);

    Paste(L"123456");

    EXPECT_EQ(Text(), L"a123c");
}

TEST_F(EditCtrlEx, PastesNoHalfOfAPairAtTheLimit) {
    Limit(2);

    Paste(std::wstring{L'a', wchar_t{0xD867}, wchar_t{0xDE3D}});

    EXPECT_EQ(Text(), L"a");
}

TEST_F(EditCtrlEx, KeepsWhatIsSelectedWhenNothingOfThePasteFits) {
    SetText(L"abc");
    Limit(3);
    Send(box.Handle(), EM_SETSEL, 2, 3);

    Paste(L"\U0001F600");

    EXPECT_EQ(Text(), L"abc");
}

TEST_F(EditCtrlEx, KeepsATextThatIsLongerThanTheLimitWhenNothingMoreFits) {
    Limit(2);
    SetText(L"abcdef");
    Send(box.Handle(), EM_SETSEL, 1, 2);

    Paste(L"123");

    EXPECT_EQ(Text(), L"abcdef");
}

TEST_F(EditCtrlEx, TakesBackAPaste) {
    SetText(L"abc");
    Send(box.Handle(), EM_SETSEL, 3, 3);
    Paste(L"def");
    ASSERT_EQ(Text(), L"abcdef");

    Send(box.Handle(), EM_UNDO);

    EXPECT_EQ(Text(), L"abc");
}
