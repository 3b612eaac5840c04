#include "framework/placeholder.h"

#include <gtest/gtest.h>

#include "framework/handle.h"
#include "framework/window_text.h"
#include "tests/support/window_test.h"

namespace fw {
namespace {

class Field final : public Window<Field> {
public:
    static constexpr WindowClass kClass{.name = L"KorvaneTestField_WndClass", .base = L"EDIT"};
    static constexpr auto Messages() { return MessageMap{}; }
};

class RefusedWindow final : public Window<RefusedWindow> {
public:
    static constexpr WindowClass kClass{.name = L"KorvaneTestRefused_WndClass"};
    static constexpr auto Messages() { return MessageMap{On<WM_CREATE>(&RefusedWindow::OnCreate)}; }

private:
    int OnCreate(const CREATESTRUCTW&) { return -1; }
};

class PlaceholderTest : public korvane::test::WindowTest {
protected:
    HWND Add(const wchar_t* text, int id, DWORD style) {
        return ::CreateWindowExW(WS_EX_CLIENTEDGE, L"EDIT", text, WS_CHILD | style, 10, 20, 100, 24, Host(),
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }
    Field field;
};

TEST_F(PlaceholderTest, LeavesItsPlaceTextStylesAndIdentifier) {
    const HWND control = Add(L"abc", 1040, WS_TABSTOP | ES_AUTOHSCROLL | ES_READONLY);

    ASSERT_TRUE(TakePlace(field, Host(), 1040));

    EXPECT_FALSE(::IsWindow(control));
    EXPECT_EQ(::GetDlgItem(Host(), 1040), field.Handle());
    EXPECT_EQ(WindowText(field.Handle()), L"abc");
    korvane::base::Rect place = WindowRect(field.Handle());
    place = place.Offset(-WindowRect(Host()).left, -WindowRect(Host()).top);
    EXPECT_EQ(place, (korvane::base::Rect{10, 20, 110, 44}));
    const auto style = ::GetWindowLongPtrW(field.Handle(), GWL_STYLE);
    EXPECT_TRUE(style & WS_TABSTOP);
    EXPECT_TRUE(style & ES_READONLY);
    EXPECT_TRUE(::GetWindowLongPtrW(field.Handle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
}

TEST_F(PlaceholderTest, LeavesItsFont) {
    const HWND control = Add(L"", 1040, 0);
    const UniqueFont font{::CreateFontW(-20, 0, 0, 0, 400, 0, 0, 0, 1, 0, 0, 0, 0, L"Meiryo UI")};
    Send(control, WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()));

    ASSERT_TRUE(TakePlace(field, Host(), 1040));

    EXPECT_EQ(Send(field.Handle(), WM_GETFONT), reinterpret_cast<LRESULT>(font.Get()));
}

TEST_F(PlaceholderTest, LeavesItsTurnInTheTabOrder) {
    const HWND first = Add(L"", 1039, WS_TABSTOP);
    Add(L"", 1040, WS_TABSTOP);
    const HWND last = Add(L"", 1041, WS_TABSTOP);

    ASSERT_TRUE(TakePlace(field, Host(), 1040));

    EXPECT_EQ(::GetWindow(field.Handle(), GW_HWNDPREV), first);
    EXPECT_EQ(::GetWindow(field.Handle(), GW_HWNDNEXT), last);
}

TEST_F(PlaceholderTest, CanLeaveStylesAndIdentifierBehind) {
    Add(L"", 1024, ES_READONLY);

    ASSERT_TRUE(TakePlace(field, Host(), 1024, {.without = ES_READONLY, .with = ES_NUMBER, .id = 1056}));

    EXPECT_EQ(::GetDlgItem(Host(), 1024), nullptr);
    EXPECT_EQ(::GetDlgItem(Host(), 1056), field.Handle());
    const auto style = ::GetWindowLongPtrW(field.Handle(), GWL_STYLE);
    EXPECT_FALSE(style & ES_READONLY);
    EXPECT_TRUE(style & ES_NUMBER);
}

TEST_F(PlaceholderTest, ThatIsNotThereGivesNoWindow) {
    EXPECT_FALSE(TakePlace(field, Host(), 4711));
    EXPECT_EQ(field.Handle(), nullptr);
}

TEST_F(PlaceholderTest, StaysWhenThereIsNoWindowToBeHad) {
    const HWND control = Add(L"abc", 1040, 0);
    RefusedWindow refused;

    EXPECT_FALSE(TakePlace(refused, Host(), 1040));

    EXPECT_TRUE(::IsWindow(control));
}

} // namespace
} // namespace fw
