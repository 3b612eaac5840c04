#include "search/logic/placeholder_expansion.h"

#include <gtest/gtest.h>

#include "res/ids.h"

using namespace korvane::search;

namespace {

// Shows which encoding was asked for.
std::wstring Encode(std::wstring_view text, TextEncoding encoding) {
    constexpr const wchar_t* kNames[] = {L"utf8", L"utf7", L"sjis", L"euc", L"asis"};
    return std::wstring{kNames[static_cast<std::size_t>(encoding)]}.append(L"(").append(text).append(L")");
}

Expansion ExpandWith(std::wstring_view line, std::wstring_view text = L"abc", std::wstring_view name = L"name") {
    return Expand(line, text, name, Encode);
}

struct ExpansionCase {
    const char* name;
    const wchar_t* line;
    const wchar_t* expected;
};

class PlaceholderExpansion : public testing::TestWithParam<ExpansionCase> {};

} // namespace

TEST_P(PlaceholderExpansion, Launches) {
    EXPECT_EQ(ExpandWith(GetParam().line), Expansion{Launch{GetParam().expected}});
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, PlaceholderExpansion, testing::Values(
    ExpansionCase{"Utf8",                 L"s?q=<%Search%>&x",                      L"s?q=utf8(abc)&x"},
    ExpansionCase{"Utf7",                 L"<%Search_UTF7%>",                       L"utf7(abc)"},
    ExpansionCase{"ShiftJis",             L"<%Search_SJIS%>",                       L"sjis(abc)"},
    ExpansionCase{"EucJp",                L"<%Search_EUC%>",                        L"euc(abc)"},
    ExpansionCase{"AsIs",                 L"<%Search_UTF16%>",                      L"asis(abc)"},
    ExpansionCase{"EveryOccurrence",      L"<%Search%>-<%Search%>",                 L"utf8(abc)-utf8(abc)"},
    ExpansionCase{"OneEncodingOnly",      L"<%Search%><%Search_SJIS%>",             L"utf8(abc)<%Search_SJIS%>"},
    ExpansionCase{"RankNotPlaceDecides",  L"<%Search_SJIS%><%Search%>",             L"<%Search_SJIS%>utf8(abc)"},
    ExpansionCase{"Utf7BeforeShiftJis",   L"<%Search_SJIS%><%Search_UTF7%>",        L"<%Search_SJIS%>utf7(abc)"},
    ExpansionCase{"ShiftJisBeforeEuc",    L"<%Search_EUC%><%Search_SJIS%>",         L"<%Search_EUC%>sjis(abc)"},
    ExpansionCase{"EucBeforeAsIs",        L"<%Search_UTF16%><%Search_EUC%>",        L"<%Search_UTF16%>euc(abc)"},
    ExpansionCase{"OtherCaseStays",       L"<%search%><%Search%>",                  L"<%search%>utf8(abc)"},
    ExpansionCase{"OtherCaseOfAToolStays", L"<%everything%><%Search%>",             L"<%everything%>utf8(abc)"}),
    [](const auto& one) { return std::string{one.param.name}; });
// clang-format on

TEST(Expansion, LaunchesWithAnEmptyText) {
    const auto nothing = [](std::wstring_view text, TextEncoding) { return std::wstring{text}; };

    EXPECT_EQ(Expand(L"s?q=<%Search%>&x", L"", L"", nothing), Expansion{Launch{L"s?q=&x"}});
}

TEST(Expansion, DoesNotLookIntoTheTextThatItPutsIn) {
    const auto asIs = [](std::wstring_view text, TextEncoding) { return std::wstring{text}; };

    EXPECT_EQ(Expand(L"a <%Search_UTF16%> b", L"<%Search_UTF16%><%Search%>&", L"", asIs),
              Expansion{Launch{L"a <%Search_UTF16%><%Search%>& b"}});
}

TEST(Expansion, TakesEverythingBeforeAnEditor) {
    EXPECT_EQ(ExpandWith(L"<%EmEditor%> <%Everything%> <%Search%>"), Expansion{EverythingSearch{}});
    EXPECT_EQ(ExpandWith(L"\"<%Everything%>\" -search \"<%Search_UTF16%>\""), Expansion{EverythingSearch{}});
}

TEST(Expansion, TakesEmEditorBeforeHidemaru) {
    EXPECT_EQ(ExpandWith(L"<%Hidemaru%><%EmEditor%>"), Expansion{EditorSearch{SearchTool::kEmEditor}});
    EXPECT_EQ(ExpandWith(L"<%Hidemaru%><%Search%>"), Expansion{EditorSearch{SearchTool::kHidemaru}});
}

TEST(Expansion, RefusesAnEmptyCommandLineEvenWithoutAName) {
    EXPECT_EQ(ExpandWith(L"", L"abc", L""), (Expansion{Refusal{IDS_NO_SEARCH_COMMAND, L"", false}}));
}

TEST(Expansion, RefusesACommandLineWithoutAPlaceholder) {
    for (const auto* const line : {L"http://example.com/", L"<%search%>", L"<% Search %>", L"<%Search%", L"<%SEARCH%>"})
        EXPECT_EQ(ExpandWith(line), (Expansion{Refusal{IDS_BAD_USER_COMMAND, L"name", false}})) << line;
}

TEST(Expansion, RefusesSilentlyWithoutAMenuName) {
    EXPECT_EQ(ExpandWith(L"http://example.com/", L"abc", L""), (Expansion{Refusal{IDS_BAD_USER_COMMAND, L"", true}}));
}

TEST(Expansion, TakesALongTextAndALongCommandLine) {
    const std::wstring text(100'000, L'あ');
    const std::wstring line = std::wstring(4'000, L'x') + L"<%Search_UTF16%>";
    const auto asIs = [](std::wstring_view given, TextEncoding) { return std::wstring{given}; };

    const auto expansion = Expand(line, text, L"", asIs);

    EXPECT_EQ(std::get<Launch>(expansion).commandLine.size(), 4'000U + 100'000U);
}

TEST(Placeholders, StandInTheOrderOfTheEditorsList) {
    EXPECT_EQ(kPlaceholders[0], L"<%Search%>");
    EXPECT_EQ(kPlaceholders[1], L"<%Search_UTF7%>");
    EXPECT_EQ(kPlaceholders[2], L"<%Search_SJIS%>");
    EXPECT_EQ(kPlaceholders[3], L"<%Search_EUC%>");
    EXPECT_EQ(kPlaceholders[4], L"<%Search_UTF16%>");
    EXPECT_EQ(kPlaceholders[5], L"<%Everything%>");
    EXPECT_EQ(kPlaceholders[6], L"<%EmEditor%>");
    EXPECT_EQ(kPlaceholders[7], L"<%Hidemaru%>");
}
