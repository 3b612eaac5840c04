#include "search/logic/editor_search_form.h"

#include <gtest/gtest.h>

#include "tests/support/fake_store.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::FakeStore;

namespace {

constexpr wchar_t kSection[] = L"Settings\\HidemaruSearch";
constexpr auto& kSettings = settings::keys::HidemaruSearch;

struct EditorSearchFormTest : testing::Test {
    FakeStore store;

    FakeStore::Value& Value(const wchar_t* name) { return store.sections[kSection][name]; }
    void KeepEverything() {
        Value(L"SaveSettings") = 1;
        Value(L"ExtensionList") = std::wstring{L"*.c\n*.h\n"};
        Value(L"SearchFolder") = std::wstring{L"C:\\src\\"};
        Value(L"SearchOption") = std::vector(24, std::byte{1});
    }
};

} // namespace

TEST_F(EditorSearchFormTest, StartsEmptyWithTheUsualTypes) {
    const auto form = ReadForm(store, kSettings);

    EXPECT_FALSE(form.keep);
    EXPECT_TRUE(form.fileTypes.IsInitial());
    EXPECT_EQ(form.folder, L"");
    EXPECT_EQ(form.options, GrepOptions{});
}

TEST_F(EditorSearchFormTest, ComesBackWhenItWasKept) {
    KeepEverything();

    const auto form = ReadForm(store, kSettings);

    EXPECT_TRUE(form.keep);
    EXPECT_EQ(form.fileTypes.Kept(), L"*.c\n*.h\n");
    EXPECT_EQ(form.folder, L"C:\\src\\");
    EXPECT_EQ(form.options, (GrepOptions{true, true, true, true, true, true}));
}

TEST_F(EditorSearchFormTest, IgnoresWhatStandsThereWhenItIsNotToBeKept) {
    for (const int keep : {0, 2, -1}) {
        KeepEverything();
        Value(L"SaveSettings") = keep;

        const auto form = ReadForm(store, kSettings);

        EXPECT_FALSE(form.keep) << keep;
        EXPECT_TRUE(form.fileTypes.IsInitial()) << keep;
        EXPECT_EQ(form.folder, L"") << keep;
        EXPECT_EQ(form.options, GrepOptions{}) << keep;
    }
}

TEST_F(EditorSearchFormTest, TakesValuesOfTheWrongTypeForMissing) {
    Value(L"SaveSettings") = 1;
    Value(L"ExtensionList") = 1;
    Value(L"SearchFolder") = 2;
    Value(L"SearchOption") = std::wstring{L"abc"};

    const auto form = ReadForm(store, kSettings);

    EXPECT_TRUE(form.keep);
    EXPECT_TRUE(form.fileTypes.IsInitial());
    EXPECT_EQ(form.folder, L"");
    EXPECT_EQ(form.options, GrepOptions{});
}

TEST_F(EditorSearchFormTest, TakesTextsThatFitNoCommandLineForMissing) {
    KeepEverything();
    Value(L"ExtensionList") = std::wstring(32768, L'a');
    Value(L"SearchFolder") = std::wstring(32768, L'a');

    const auto form = ReadForm(store, kSettings);

    EXPECT_TRUE(form.fileTypes.IsInitial());
    EXPECT_EQ(form.folder, L"");
}

TEST_F(EditorSearchFormTest, TakesLongTextsAsLongAsTheyFit) {
    KeepEverything();
    Value(L"ExtensionList") = std::wstring(5000, L'a') + L"\n";
    Value(L"SearchFolder") = std::wstring(32767, L'b');

    const auto form = ReadForm(store, kSettings);

    EXPECT_EQ(form.fileTypes.Kept(), std::wstring(5000, L'a') + L"\n");
    EXPECT_EQ(form.folder.size(), 32767u);
}

TEST_F(EditorSearchFormTest, SetsNoOptionFromABlockOfAnotherLength) {
    KeepEverything();
    Value(L"SearchOption") = std::vector(20, std::byte{1});

    EXPECT_EQ(ReadForm(store, kSettings).options, GrepOptions{});
}

TEST_F(EditorSearchFormTest, IsKeptInTheEditorsSection) {
    EditorSearchForm form;
    form.keep = true;
    form.fileTypes = FileTypeList::Restore(L"*.c\n");
    form.folder = L"C:\\src\\";
    form.options.fuzzy = true;

    KeepForm(store, kSettings, form);

    EXPECT_EQ(store.log, L"Settings\\HidemaruSearch.SaveSettings=1\n"
                         L"Settings\\HidemaruSearch.ExtensionList=*.c\n\n"
                         L"Settings\\HidemaruSearch.SearchFolder=C:\\src\\\n"
                         L"Settings\\HidemaruSearch.SearchOption=(bytes)\n");
    EXPECT_EQ(ReadForm(store, kSettings).options, form.options);
}

TEST_F(EditorSearchFormTest, WritesOnlyThatItIsNotToBeKept) {
    KeepEverything();
    EditorSearchForm form;
    form.folder = L"C:\\other\\";

    KeepForm(store, kSettings, form);

    EXPECT_EQ(store.log, L"Settings\\HidemaruSearch.SaveSettings=0\n");
}
