#include "search/logic/grep_arguments.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace korvane::search;

namespace {

constexpr wchar_t kTarget[] = L"\"C:\\src\\*.c\"";

constexpr GrepOptions kAll{true, true, true, true, true, true};

std::vector<std::byte> Bytes(std::initializer_list<int> values) {
    std::vector<std::byte> bytes;
    for (const int value : values) bytes.push_back(static_cast<std::byte>(value));
    return bytes;
}

} // namespace

TEST(GrepTarget, IsFolderAndPatternInOnePairOfQuotationMarks) {
    EXPECT_EQ(GrepTarget(L"C:\\src\\", L"*.c"), kTarget);
    EXPECT_EQ(GrepTarget(L"C:\\My Files\\", L"*.cpp;*.h"), L"\"C:\\My Files\\*.cpp;*.h\"");
    EXPECT_EQ(GrepTarget(L"C:\\100%s\\", L"%d"), L"\"C:\\100%s\\%d\"");
    EXPECT_EQ(GrepTarget(L"C:\\src\\", L""), L"\"C:\\src\\\"");
}

TEST(EmEditorArguments, HoldTheOptionsInTheirOrder) {
    EXPECT_EQ(EmEditorArguments({.matchCase = true, .subfolders = true}, L"abc", kTarget),
              L"/fc \"abc\" /fr /cp 1048576 \"C:\\src\\*.c\"");
}

struct OneOption {
    bool GrepOptions::*option;
    const wchar_t* emEditor;
    const wchar_t* hidemaru;
};

class EachOption : public testing::TestWithParam<OneOption> {};

TEST_P(EachOption, IsHandedToTheEditors) {
    GrepOptions options;
    options.*GetParam().option = true;

    EXPECT_EQ(EmEditorArguments(options, L"abc", kTarget), GetParam().emEditor);
    EXPECT_EQ(HidemaruArguments(options, L"abc", kTarget), GetParam().hidemaru);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(GrepArguments, EachOption, testing::Values(
    OneOption{&GrepOptions::matchCase,         L"/fc \"abc\" /cp 1048576 \"C:\\src\\*.c\"",     L"/gcUWORZ,\"C:\\src\\*.c\",abc"},
    OneOption{&GrepOptions::subfolders,        L"/fi \"abc\" /fr /cp 1048576 \"C:\\src\\*.c\"", L"/gCuWORZ,\"C:\\src\\*.c\",abc"},
    OneOption{&GrepOptions::wholeWords,        L"/fi \"abc\" /fw /cp 1048576 \"C:\\src\\*.c\"", L"/gCUwORZ,\"C:\\src\\*.c\",abc"},
    OneOption{&GrepOptions::fileNamesOnly,     L"/fi \"abc\" /fn /cp 1048576 \"C:\\src\\*.c\"", L"/gCUWoRZ,\"C:\\src\\*.c\",abc"},
    OneOption{&GrepOptions::regularExpression, L"/fi \"abc\" /x /cp 1048576 \"C:\\src\\*.c\"",  L"/gCUWOrZ,\"C:\\src\\*.c\",abc"},
    OneOption{&GrepOptions::fuzzy,             L"/fi \"abc\" /cp 1048576 \"C:\\src\\*.c\"",     L"/gCUWORz,\"C:\\src\\*.c\",abc"}));
// clang-format on

TEST(EmEditorArguments, HoldAllOptions) {
    EXPECT_EQ(EmEditorArguments(kAll, L"abc", kTarget), L"/fc \"abc\" /fr /fw /fn /x /cp 1048576 \"C:\\src\\*.c\"");
}

TEST(EmEditorArguments, KeepTheFixedOptionWhenNothingIsSet) {
    EXPECT_EQ(EmEditorArguments({}, L"", kTarget), L"/fi \"\" /cp 1048576 \"C:\\src\\*.c\"");
}

TEST(EmEditorArguments, TakeTheTextAsItIs) {
    EXPECT_EQ(EmEditorArguments({}, L"a \"b\" %s 検索", kTarget),
              L"/fi \"a \"b\" %s 検索\" /cp 1048576 \"C:\\src\\*.c\"");
}

TEST(HidemaruArguments, TellSetAndUnsetOptionsByTheCaseOfTheLetter) {
    EXPECT_EQ(HidemaruArguments({.subfolders = true, .fuzzy = true}, L"abc", kTarget),
              L"/gCuWORz,\"C:\\src\\*.c\",abc");
    EXPECT_EQ(HidemaruArguments({}, L"abc", kTarget), L"/gCUWORZ,\"C:\\src\\*.c\",abc");
    EXPECT_EQ(HidemaruArguments(kAll, L"abc", kTarget), L"/gcuworz,\"C:\\src\\*.c\",abc");
}

TEST(HidemaruArguments, TakeTheTextUnquotedAsItIs) {
    EXPECT_EQ(HidemaruArguments({}, L"a, \"b\"", kTarget), L"/gCUWORZ,\"C:\\src\\*.c\",a, \"b\"");
    EXPECT_EQ(HidemaruArguments({}, L"", kTarget), L"/gCUWORZ,\"C:\\src\\*.c\",");
}

TEST(GrepArguments, AreThoseOfTheEditor) {
    EXPECT_EQ(GrepArguments(SearchTool::kEmEditor, kAll, L"a", kTarget), EmEditorArguments(kAll, L"a", kTarget));
    EXPECT_EQ(GrepArguments(SearchTool::kHidemaru, kAll, L"a", kTarget), HidemaruArguments(kAll, L"a", kTarget));
}

TEST(GrepOptionBlock, IsSixLittleEndianValues) {
    const auto bytes = EncodeGrepOptions({.subfolders = true, .fuzzy = true});

    EXPECT_EQ(std::vector(bytes.begin(), bytes.end()),
              Bytes({0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}));
}

TEST(GrepOptionBlock, ComesBackAsItWasKept) {
    for (const auto option : kGrepOptions) {
        GrepOptions options;
        options.*option = true;

        EXPECT_EQ(DecodeGrepOptions(EncodeGrepOptions(options)), options);
    }
    EXPECT_EQ(DecodeGrepOptions(EncodeGrepOptions(kAll)), kAll);
}

TEST(GrepOptionBlock, SetsNothingWhenItHasAnotherLength) {
    EXPECT_EQ(DecodeGrepOptions({}), GrepOptions{});
    EXPECT_EQ(DecodeGrepOptions(std::vector(23, std::byte{1})), GrepOptions{});
    EXPECT_EQ(DecodeGrepOptions(std::vector(25, std::byte{1})), GrepOptions{});
}

TEST(GrepOptionBlock, CountsEveryValueButZeroAsSet) {
    const auto bytes = Bytes({2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0xFF, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});

    EXPECT_EQ(DecodeGrepOptions(bytes), (GrepOptions{.matchCase = true, .subfolders = true, .wholeWords = true}));
}
