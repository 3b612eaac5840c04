#include "launch/logic/item_editor.h"

#include <gtest/gtest.h>

#include <string>

using namespace korvane::launch;

namespace {

TEST(ItemEditor, NeedsAProgramAndANameForOk) {
    EXPECT_EQ(ButtonsFor(L"", L""), (ItemEditorButtons{.ok = false, .changeIcon = false}));
    EXPECT_EQ(ButtonsFor(L"", L"n"), (ItemEditorButtons{.ok = false, .changeIcon = false}));
    EXPECT_EQ(ButtonsFor(L"p", L""), (ItemEditorButtons{.ok = false, .changeIcon = true}));
    EXPECT_EQ(ButtonsFor(L"p", L"n"), (ItemEditorButtons{.ok = true, .changeIcon = true}));
}

TEST(ItemEditor, TakesBlanksForNothing) {
    EXPECT_EQ(ButtonsFor(L" ", L"n"), (ItemEditorButtons{.ok = false, .changeIcon = false}));
    EXPECT_EQ(ButtonsFor(L"p", L" \t"), (ItemEditorButtons{.ok = false, .changeIcon = true}));
}

TEST(ItemEditor, TakesADescriptionOf50CharactersForTheName) {
    EXPECT_EQ(NameFrom(L""), L"");
    EXPECT_EQ(NameFrom(L"メモ帳"), L"メモ帳");
    EXPECT_EQ(NameFrom(std::wstring(50, L'n')), std::wstring(50, L'n'));
    EXPECT_EQ(NameFrom(std::wstring(51, L'n')), std::wstring(50, L'n'));
}

TEST(ItemEditor, CutsNoCharacterInTwo) {
    const std::wstring before(49, L'n');
    const std::wstring pair{wchar_t{0xD83D}, wchar_t{0xDE00}};

    EXPECT_EQ(NameFrom(before + pair), before);
    EXPECT_EQ(NameFrom(std::wstring(48, L'n') + pair + L"x"), std::wstring(48, L'n') + pair);
}

} // namespace
