#include "settings/logic/setting_keys.h"

#include <gmock/gmock.h>

namespace korvane::settings {
namespace {

using testing::UnorderedElementsAre;

// A name that changes loses what users have set, so each stands here once more, letter by letter. All are ASCII.
template <class Rows, class Describe>
std::vector<std::string> Described(const Rows& rows, Describe describe) {
    std::vector<std::string> lines;
    for (const auto& row : rows) {
        const std::wstring line = base::FormatText(L"%s | %s | ", row.section, row.name) + describe(row);
        std::string narrow;
        for (const wchar_t character : line) narrow += static_cast<char>(character);
        lines.push_back(narrow);
    }
    return lines;
}

TEST(SettingKeys, NamesEveryIntegerWithItsFallback) {
    const auto rows = Described(kEveryInt, [](const IntSetting& row) { return std::to_wstring(row.fallback); });

    EXPECT_THAT(rows, UnorderedElementsAre("Settings | DesktopBarEdge | 0",           //
                                           "Settings | DefaultBarColor | 1",          //
                                           "Settings | DesktopBarAutoHide | 0",       //
                                           "Settings | DesktopBarAutoHideSecond | 0", //
                                           "Settings | MonitorClipBoard | 1",         //
                                           "Settings | TopMostWindow | 0",            //
                                           "Settings | SaveRecentlyList | 1",         //
                                           "Settings | SaveListItemNum | 5",          //
                                           "Settings | ConfirmExitApp | 0",           //
                                           "Settings | ConfirmExitWindows | 1",       //
                                           "Settings | EnableEnterEvent | 1",         //
                                           "Settings | ShowTimeBarClock | 0",         //
                                           "Settings | TimeBarClockFormat | 0",       //
                                           "Settings | TaskMenuAppName | 0",          //
                                           "Settings | PriorityUserCommand | 1",      //
                                           "Settings\\WindowPlacement | SaveWindowPlacement | 0",
                                           "Settings\\WindowPlacement | DefaultDesktopBarMode | 0",
                                           "Settings\\EmEditorSearch | SaveSettings | 0",
                                           "Settings\\HidemaruSearch | SaveSettings | 0"));
}

TEST(SettingKeys, NamesEveryTextWithItsFallback) {
    const auto rows = Described(kEveryText, [](const TextSetting& row) { return std::wstring{row.fallback}; });

    EXPECT_THAT(rows, UnorderedElementsAre(
                          "Settings | DefaultSearchCommand | 1,5,6,8,10,12,14,19,22,26,",
                          "Settings | UserSearchCommand | ",  //
                          "Settings | SearchCommandOrder | ", //
                          "Settings | EverythingPath | ",     //
                          "Settings | EmEditorPath | ",       //
                          "Settings | HidemaruPath | ",       //
                          "Settings\\EmEditorSearch | ExtensionList | ", "Settings\\EmEditorSearch | SearchFolder | ",
                          "Settings\\HidemaruSearch | ExtensionList | ", "Settings\\HidemaruSearch | SearchFolder | "));
}

TEST(SettingKeys, NamesEveryBinaryValueWithItsBytes) {
    const auto rows = Described(kEveryBinary, [](const BinarySetting& row) { return std::to_wstring(row.size); });

    EXPECT_THAT(rows, UnorderedElementsAre("Settings\\WindowPlacement | WindowPosRect | 16",
                                           "Settings\\EmEditorSearch | SearchOption | 24",
                                           "Settings\\HidemaruSearch | SearchOption | 24"));
}

TEST(SettingKeys, LeavesTheUsersColourWithoutAFallback) {
    const auto rows = Described(kEveryColour, [](const ColourSetting&) { return std::wstring{}; });

    EXPECT_THAT(rows, UnorderedElementsAre("Settings | UserBarColor | "));
}

TEST(SettingKeys, NumbersListsWithTwoDigits) {
    const auto rows = Described(kEveryNumbered, [](const NumberedSetting& row) {
        return row.NameOf(1) + L' ' + row.NameOf(15) + L' ' + row.NameOf(100);
    });

    EXPECT_THAT(rows, UnorderedElementsAre(
                          "Settings\\RecentCommandList | ListItem%02d | ListItem01 ListItem15 ListItem100",
                          "Settings\\RecentSearchList | ListItem%02d | ListItem01 ListItem15 ListItem100",
                          "Settings\\LaunchMenuItem | LaunchMenu%02d | LaunchMenu01 LaunchMenu15 LaunchMenu100"));
}

TEST(SettingKeys, NumbersSearchCommandsWithAtLeastTwoDigits) {
    EXPECT_EQ(section::SearchCommand(1), L"SearchCommand_01");
    EXPECT_EQ(section::SearchCommand(99), L"SearchCommand_99");
    EXPECT_EQ(section::SearchCommand(100), L"SearchCommand_100");
    EXPECT_EQ(search_command::kName, L"CommandName");
    EXPECT_EQ(search_command::kLine, L"CommandLine");
    EXPECT_EQ(search_command::kComment, L"Comment");
}

TEST(SettingKeys, TakesNamesThatDifferInCaseForTheSame) {
    EXPECT_FALSE(AllDistinct(std::array{SettingPlace{L"Settings", L"One"}, SettingPlace{L"SETTINGS", L"oNE"}}));
    EXPECT_TRUE(AllDistinct(std::array{SettingPlace{L"Settings", L"One"}, SettingPlace{L"Settings\\One", L"One"}}));
}

} // namespace
} // namespace korvane::settings
