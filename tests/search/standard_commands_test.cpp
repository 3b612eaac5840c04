#include <windows.h>

#include <gmock/gmock.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "search/code_pages.h"
#include "search/logic/execute_search.h"
#include "settings/ini_backend.h"
#include "settings/logic/setting_keys.h"

using namespace korvane;
using namespace korvane::search;

// The data file as it is shipped.

namespace {

std::filesystem::path DataFile() {
    std::array<wchar_t, 1024> program{};
    ::GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    return (std::filesystem::path{program.data()}.parent_path() / KORVANE_DATA_FILE).lexically_normal();
}

struct StandardCommands : testing::Test {
    settings::IniFileStore store{DataFile().wstring()};
    std::vector<SearchCommand> commands = SearchCommandTable{store}.ReadAll();
};

int CountIn(std::wstring_view text, std::wstring_view what) {
    int count = 0;
    for (std::size_t at = text.find(what); at != std::wstring_view::npos; at = text.find(what, at + what.size()))
        ++count;
    return count;
}

} // namespace

TEST_F(StandardCommands, AreUnicodeWithWindowsLineEnds) {
    std::ifstream file{DataFile(), std::ios::binary};
    const std::string bytes{std::istreambuf_iterator<char>{file}, {}};

    ASSERT_GT(bytes.size(), 2U);
    ASSERT_EQ(bytes.size() % 2, 0U);
    EXPECT_EQ(bytes.substr(0, 2), "\xFF\xFE");
    for (std::size_t at = 2; at < bytes.size(); at += 2) {
        if (bytes[at] != '\n' || bytes[at + 1] != '\0') continue;
        ASSERT_EQ(bytes.substr(at - 2, 2), (std::string{"\r\0", 2}));
    }
}

TEST_F(StandardCommands, AreAtLeast32AndHaveIdentifiersOfTheirOwn) {
    EXPECT_GE(commands.size(), 32U);
    // From 52 on a standard command would be taken for one of the user's.
    EXPECT_LE(commands.size(), 51U);
}

TEST_F(StandardCommands, AreNumberedWithoutAGap) {
    for (int number = static_cast<int>(commands.size()) + 1; number < 200; ++number)
        EXPECT_EQ(SearchCommandTable{store}.NameOf(number), L"") << number;
}

TEST_F(StandardCommands, KeepToTheLimitsOfTheEditor) {
    std::set<std::wstring> names;
    for (const auto& command : commands) {
        EXPECT_LE(command.name.size(), 25U) << command.number;
        EXPECT_FALSE(command.line.empty()) << command.number;
        EXPECT_LT(command.line.size(), 2'000U) << command.number;
        EXPECT_FALSE(command.comment.empty()) << command.number;
        EXPECT_LE(command.comment.size(), 150U) << command.number;
        EXPECT_EQ(command.name.find_first_of(L"&\t"), std::wstring::npos) << "a menu would take it for its own";
        EXPECT_TRUE(names.insert(command.name).second) << "the name of number " << command.number << " is not new";
    }
}

TEST_F(StandardCommands, HaveOnePlaceholderEach) {
    const auto encoder = WindowsTextEncoder(932);
    const auto encode = [&](std::wstring_view text, TextEncoding encoding) { return encoder.Encode(text, encoding); };
    for (const auto& command : commands) {
        int texts = 0;
        for (std::size_t i = 0; i < 5; ++i) texts += CountIn(command.line, kPlaceholders[i]);
        const auto expansion = Expand(command.line, L"東京", command.name, encode);

        if (const auto* const launch = std::get_if<Launch>(&expansion)) {
            EXPECT_EQ(texts, 1) << command.number;
            EXPECT_EQ(launch->commandLine.find(L"<%"), std::wstring::npos) << command.number;
            EXPECT_TRUE(launch->commandLine.starts_with(L"https://")) << command.number;
            EXPECT_EQ(launch->commandLine.find_first_of(L" \"\\"), std::wstring::npos) << command.number;
        } else if (std::holds_alternative<EverythingSearch>(expansion)) {
            EXPECT_EQ(CountIn(command.line, kEverythingPlaceholder), 1);
            EXPECT_EQ(texts, 1);
        } else {
            EXPECT_TRUE(std::holds_alternative<EditorSearch>(expansion)) << command.number;
            EXPECT_EQ(texts, 0) << command.number;
        }
    }
}

TEST_F(StandardCommands, IncludeTheThreeLocalTools) {
    std::map<std::wstring, int> tools;
    for (const auto& command : commands)
        for (const auto placeholder : {kEverythingPlaceholder, kEmEditorPlaceholder, kHidemaruPlaceholder})
            tools[std::wstring{placeholder}] += CountIn(command.line, placeholder);

    for (const auto& [placeholder, count] : tools)
        EXPECT_EQ(count, 1) << std::string{placeholder.begin(), placeholder.end()};
}

TEST_F(StandardCommands, QuoteBothThePathAndTheTextForEverything) {
    for (const auto& command : commands) {
        if (CountIn(command.line, kEverythingPlaceholder) == 0) continue;
        EXPECT_EQ(EverythingCommandLine(command.line, L"a b", L"C:\\Program Files\\E.exe"),
                  L"\"C:\\Program Files\\E.exe\" -search \"a b\"");
    }
}

TEST_F(StandardCommands, IncludeSitesInShiftJisAndInEucJp) {
    int shiftJis = 0;
    int euc = 0;
    for (const auto& command : commands) {
        shiftJis += CountIn(command.line, L"<%Search_SJIS%>");
        euc += CountIn(command.line, L"<%Search_EUC%>");
    }

    EXPECT_GE(shiftJis, 2);
    EXPECT_GE(euc, 1);
}

TEST_F(StandardCommands, IncludeTheTenOfTheBuiltInSelection) {
    const auto selection = ParseNumberList(settings::keys::DefaultSearchCommand.fallback);

    ASSERT_EQ(selection.size(), 10U);
    for (const int number : selection) EXPECT_NE(SearchCommandTable{store}.NameOf(number), L"") << number;
}
