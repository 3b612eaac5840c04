#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "framework/handle.h"
#include "framework/window_text.h"
#include "res/ids.h"
#include "tests/support/window_test.h"

using namespace korvane;
namespace {

// A control and the letter that its text shows in brackets.
struct Shown {
    HWND control;
    wchar_t letter;
    bool isKey; // underlined
};

int g_clicked = 0; // the control that was pressed last

INT_PTR CALLBACK NoteClicks(HWND, UINT id, WPARAM wparam, LPARAM) {
    if (id == WM_COMMAND && HIWORD(wparam) == BN_CLICKED) g_clicked = LOWORD(wparam);
    return FALSE;
}

BOOL CALLBACK Collect(HMODULE, const wchar_t*, wchar_t* name, LONG_PTR templates) {
    if (IS_INTRESOURCE(name)) reinterpret_cast<std::vector<WORD>*>(templates)->push_back(LOWORD(name));
    return TRUE;
}

std::vector<WORD> Templates() {
    std::vector<WORD> templates;
    ::EnumResourceNamesW(nullptr, RT_DIALOG, &Collect, reinterpret_cast<LONG_PTR>(&templates));
    return templates;
}

// Every dialog of the program as its template makes it, without what stands behind it.
class DialogTemplates : public test::WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_USEREX_CLASSES | ICC_WIN95_CLASSES};
        ::InitCommonControlsEx(&controls);
    }
    void Open(WORD id) {
        dialog.Reset(::CreateDialogParamW(nullptr, MAKEINTRESOURCEW(id), Host(), &NoteClicks, 0));
        ASSERT_NE(dialog.Get(), nullptr) << id;
    }
    [[nodiscard]] std::vector<Shown> Letters() const {
        std::vector<Shown> letters;
        for (HWND child = ::GetWindow(dialog.Get(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
            // Of two lists that share a place, and a key, one is hidden.
            if ((::GetWindowLongPtrW(child, GWL_STYLE) & WS_VISIBLE) == 0) continue;
            const std::wstring text = fw::WindowText(child);
            for (std::size_t at = text.find(L'('); at != std::wstring::npos; at = text.find(L'(', at + 1)) {
                const bool isKey = text.compare(at, 2, L"(&") == 0;
                const std::size_t letter = at + (isKey ? 2 : 1);
                if (letter + 1 < text.size() && text[letter] >= L'A' && text[letter] <= L'Z' &&
                    text[letter + 1] == L')')
                    letters.push_back({child, text[letter], isKey});
            }
        }
        return letters;
    }
    // Presses a letter with Alt while another control has the focus.
    void Press(const Shown& key) {
        HWND elsewhere = ::GetNextDlgTabItem(dialog.Get(), key.control, TRUE);
        if (elsewhere == key.control) elsewhere = ::GetNextDlgTabItem(dialog.Get(), key.control, FALSE);
        ::SetFocus(elsewhere);
        g_clicked = 0;
        constexpr LPARAM kWithAlt = 1 << 29;
        MSG press{::GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(key.letter), kWithAlt, 0, {}};
        ::IsDialogMessageW(dialog.Get(), &press);
        Pump();
    }
    static bool IsLabel(HWND control) { return (::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0; }

    fw::UniqueHandle<HWND, &::DestroyWindow> dialog;
};

TEST_F(DialogTemplates, GiveNoLetterToTwoControls) {
    int letterCount = 0;
    for (const WORD id : Templates()) {
        Open(id);
        std::wstring keys;
        for (const Shown& shown : Letters())
            if (shown.isKey) keys += shown.letter;
        letterCount += static_cast<int>(keys.size());
        std::sort(keys.begin(), keys.end());
        EXPECT_EQ(std::adjacent_find(keys.begin(), keys.end()), keys.end()) << "dialog " << id;
    }
    EXPECT_GT(letterCount, 50);
}

TEST_F(DialogTemplates, ShowNoLetterThatIsNoKey) {
    for (const WORD id : Templates()) {
        Open(id);
        const std::vector<Shown> letters = Letters();
        for (const Shown& shown : letters)
            EXPECT_TRUE(std::any_of(letters.begin(), letters.end(),
                                    [&](const Shown& other) { return other.isKey && other.letter == shown.letter; }))
                << "dialog " << id << ", " << static_cast<char>(shown.letter);
    }
}

TEST_F(DialogTemplates, GoWithEachLetterToTheControlThatShowsIt) {
    for (const WORD id : Templates()) {
        Open(id);
        for (const Shown& key : Letters()) {
            if (!key.isKey) continue;
            Press(key);

            const HWND reached =
                IsLabel(key.control) ? ::GetNextDlgTabItem(dialog.Get(), key.control, FALSE) : key.control;
            // A box with a list has its field inside.
            const HWND focus = ::GetFocus();
            EXPECT_TRUE(focus == reached || ::IsChild(reached, focus) || g_clicked == ::GetDlgCtrlID(reached))
                << "dialog " << id << ", " << static_cast<char>(key.letter);
        }
    }
}

// The frame's own buttons are pressed beside those of each page.
TEST_F(DialogTemplates, GiveTheOptionsFrameNoLetterOfAPage) {
    Open(IDD_OPTIONS);
    EXPECT_TRUE(Letters().empty());
}

TEST_F(DialogTemplates, LetTheClocksLetterGoToItsBox) {
    Open(IDD_OPTIONS_MAIN);

    for (const Shown& key : Letters())
        if (key.letter == L'L' && key.isKey) Press(key);

    EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog.Get(), IDC_SHOW_CLOCK));
}

} // namespace
