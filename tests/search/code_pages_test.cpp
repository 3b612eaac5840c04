#include "search/code_pages.h"

#include <gtest/gtest.h>

#include <mbctype.h>
#include <mbstring.h>

#include <chrono>

using namespace korvane::search;

namespace {

constexpr UINT kJapanese = 932;

std::wstring Encoded(std::wstring_view text, TextEncoding encoding) {
    return WindowsTextEncoder(kJapanese).Encode(text, encoding);
}

struct EncodingCase {
    const char* name;
    TextEncoding encoding;
    const wchar_t* text;
    const wchar_t* expected;
};

class SearchTextInAnAddress : public testing::TestWithParam<EncodingCase> {};

// The multibyte code page of the C runtime for the length of a scope.
class RuntimeCodePage {
public:
    explicit RuntimeCodePage(int page) : before_{::_getmbcp()} { ::_setmbcp(page); }
    RuntimeCodePage(const RuntimeCodePage&) = delete;
    RuntimeCodePage& operator=(const RuntimeCodePage&) = delete;
    ~RuntimeCodePage() { ::_setmbcp(before_); }

private:
    int before_;
};

} // namespace

TEST_P(SearchTextInAnAddress, IsEncoded) {
    EXPECT_EQ(Encoded(GetParam().text, GetParam().encoding), GetParam().expected);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, SearchTextInAnAddress, testing::Values(
    EncodingCase{"Letters",               TextEncoding::kUtf8,     L"abc",          L"%61%62%63"},
    EncodingCase{"Blank",                 TextEncoding::kUtf8,     L" ",            L"%20"},
    EncodingCase{"HiraganaUtf8",          TextEncoding::kUtf8,     L"\x3042",       L"%E3%81%82"},
    EncodingCase{"SurrogatePairUtf8",     TextEncoding::kUtf8,     L"\xD83D\xDE00", L"%F0%9F%98%80"},
    EncodingCase{"HiraganaUtf7",          TextEncoding::kUtf7,     L"\x3042",       L"%2B%4D%45%49%2D"},
    EncodingCase{"HiraganaShiftJis",      TextEncoding::kShiftJis, L"\x3042",       L"%82%A0"},
    EncodingCase{"HiraganaEuc",           TextEncoding::kEucJp,    L"\x3042",       L"%A4%A2"},
    EncodingCase{"HalfWidthShiftJis",     TextEncoding::kShiftJis, L"\xFF71",       L"%B1"},
    EncodingCase{"HalfWidthEuc",          TextEncoding::kEucJp,    L"\xFF71",       L"%8E%B1"},
    EncodingCase{"MixedEuc",              TextEncoding::kEucJp,    L"a\x4E9C\xFF9F", L"%61%B0%A1%8E%DF"},
    EncodingCase{"ForeignShiftJis",       TextEncoding::kShiftJis, L"a\x0E01z",     L"%61%3F%7A"},
    EncodingCase{"ForeignEuc",            TextEncoding::kEucJp,    L"\x0E01",       L"%3F"},
    EncodingCase{"EmojiShiftJis",         TextEncoding::kShiftJis, L"\xD83D\xDE00", L"%3F%3F"},
    // An IBM extension: Shift JIS has it at 0xFAFC, JIS X 0208 has it not.
    EncodingCase{"WithoutJisCode",        TextEncoding::kEucJp,    L"\x9ED1",       L"%80%80"},
    EncodingCase{"AsIs",                  TextEncoding::kAsIs,     L"a &\x3042",    L"a &\x3042"}),
    [](const auto& one) { return std::string{one.param.name}; });
// clang-format on

TEST(CodePages, MakeNothingOfAnEmptyText) {
    EXPECT_EQ(BytesInCodePage(L"", CP_UTF8), "");
    EXPECT_EQ(BytesInCodePage(L"", kJapanese), "");
}

TEST(CodePages, MakeNothingOfAPageThatIsNotThere) {
    EXPECT_EQ(BytesInCodePage(L"abc", 12345), "");
}

TEST(CodePages, TakeLoneSurrogates) {
    EXPECT_EQ(BytesInCodePage({L"\xD83D", 1}, CP_UTF8), "\xEF\xBF\xBD");
    EXPECT_EQ(BytesInCodePage(L"a\xDE00z", kJapanese), "a?z");
}

TEST(CodePages, TakeAZeroWithinTheText) {
    EXPECT_EQ(BytesInCodePage({L"a\0b", 3}, CP_UTF8), (std::string{"a\0b", 3}));
}

TEST(CodePages, TakeAMegabyteInEveryEncoding) {
    const std::wstring text(1'000'000, L'\x3042');
    const auto start = std::chrono::steady_clock::now();

    EXPECT_EQ(Encoded(text, TextEncoding::kUtf8).size(), 9'000'000U);
    EXPECT_GT(Encoded(text, TextEncoding::kUtf7).size(), 3'000'000U);
    EXPECT_EQ(Encoded(text, TextEncoding::kShiftJis).size(), 6'000'000U);
    EXPECT_EQ(Encoded(text, TextEncoding::kEucJp).size(), 6'000'000U);

    // Anything that grows with the square of the length would take hours.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds{30});
}

// Of this thread, for the length of a scope.
class ThreadLocale {
public:
    explicit ThreadLocale(LCID locale) : before_{::GetThreadLocale()} { ::SetThreadLocale(locale); }
    ThreadLocale(const ThreadLocale&) = delete;
    ThreadLocale& operator=(const ThreadLocale&) = delete;
    ~ThreadLocale() { ::SetThreadLocale(before_); }

private:
    LCID before_;
};

TEST(CodePages, FollowTheSystemThoughTheUsersFormatsAreEnglish) {
    constexpr LCID kEnglish = 0x0409;
    ASSERT_EQ(::GetACP(), kJapanese);
    const ThreadLocale english{kEnglish};
    ASSERT_EQ(WindowsTextEncoder().Encode(L"\x3042", TextEncoding::kShiftJis), L"%3F") << "in the formats' page";

    FollowSystemLocale();

    EXPECT_EQ(WindowsTextEncoder().Encode(L"\x3042", TextEncoding::kShiftJis), L"%82%A0");
    EXPECT_EQ(WindowsTextEncoder().Encode(L"\x3042", TextEncoding::kEucJp), L"%A4%A2");
}

TEST(CodePages, UseTheThreadsPageUnlessToldOtherwise) {
    const std::wstring_view text = L"\x00E9\x3042";

    EXPECT_EQ(WindowsTextEncoder().Encode(text, TextEncoding::kShiftJis),
              PercentEncodeBytes(BytesInCodePage(text, CP_THREAD_ACP)));
}

TEST(JisCode, IsTheRuntimesForEveryCode) {
    const RuntimeCodePage page{static_cast<int>(kJapanese)};
    ASSERT_EQ(::_getmbcp(), static_cast<int>(kJapanese));

    for (unsigned code = 0; code <= 0xFFFF; ++code)
        ASSERT_EQ(JisFromShiftJis(code), static_cast<unsigned>(::_mbcjmstojis(code))) << std::hex << code;
}

TEST(EucJp, KnowsTheRuntimesHalfWidthKatakana) {
    const RuntimeCodePage page{static_cast<int>(kJapanese)};
    const auto noLead = [](unsigned char) { return false; };

    for (unsigned byte = 0; byte <= 0xFF; ++byte)
        EXPECT_EQ(ConvertToEucJp(std::string(1, static_cast<char>(byte)), noLead).size(),
                  ::_ismbbkana(byte) != 0 ? 2U : 1U)
            << byte;
}
