#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "base/format_text.h"
#include "settings/logic/profile_store.h"

// Every value that Korvane keeps: its section, its name and what it reads as when it is not there. Nothing of this is
// written down a second time anywhere; callers say store.Read(keys::ConfirmExitApp).
namespace korvane::settings {

namespace section {

inline constexpr std::wstring_view kGeneral = L"Settings";
// The check box for SaveWindowPlacement stands among boxes whose values are general ones; its own value is not.
inline constexpr std::wstring_view kPlacement = L"Settings\\WindowPlacement";
inline constexpr std::wstring_view kRecentCommands = L"Settings\\RecentCommandList";
inline constexpr std::wstring_view kRecentSearches = L"Settings\\RecentSearchList";
inline constexpr std::wstring_view kLaunchItems = L"Settings\\LaunchMenuItem";
inline constexpr std::wstring_view kEmEditorSearch = L"Settings\\EmEditorSearch";
inline constexpr std::wstring_view kHidemaruSearch = L"Settings\\HidemaruSearch";

// The section of a search command in one of the two command files; numbers start at 1.
[[nodiscard]] inline std::wstring SearchCommand(int number) {
    return base::FormatText(L"SearchCommand_%02d", number);
}

} // namespace section

// The values of a search command's section.
namespace search_command {

inline constexpr std::wstring_view kName = L"CommandName";
inline constexpr std::wstring_view kLine = L"CommandLine";
inline constexpr std::wstring_view kComment = L"Comment";

} // namespace search_command

// What the options dialog of a search with a text editor keeps; each editor has a section of its own.
struct EditorSearchSettings {
    IntSetting saveSettings;   // 1 = the three below are saved and restored
    TextSetting extensionList; // up to ten entries, each followed by a line feed
    TextSetting searchFolder;
    BinarySetting searchOption; // six 32-bit values
};

[[nodiscard]] constexpr EditorSearchSettings EditorSearchIn(std::wstring_view section) {
    return {{section, L"SaveSettings", 0},
            {section, L"ExtensionList", L""},
            {section, L"SearchFolder", L""},
            {section, L"SearchOption", 24}};
}

namespace keys {

// clang-format off

// The bar and its place.
inline constexpr IntSetting    DesktopBarEdge           {section::kGeneral, L"DesktopBarEdge",           0}; // 0 = top, else bottom
inline constexpr IntSetting    DefaultBarColor          {section::kGeneral, L"DefaultBarColor",          1}; // see BarColour
inline constexpr ColourSetting UserBarColor             {section::kGeneral, L"UserBarColor"};                // falls back to the window manager's
inline constexpr IntSetting    DesktopBarAutoHide       {section::kGeneral, L"DesktopBarAutoHide",       0};
inline constexpr IntSetting    DesktopBarAutoHideSecond {section::kGeneral, L"DesktopBarAutoHideSecond", 0}; // an index, see AutoHideDelay
inline constexpr IntSetting    TopMostWindow            {section::kGeneral, L"TopMostWindow",            0};
inline constexpr IntSetting    ShowTimeBarClock         {section::kGeneral, L"ShowTimeBarClock",         0};
inline constexpr IntSetting    TimeBarClockFormat       {section::kGeneral, L"TimeBarClockFormat",       0};
inline constexpr IntSetting    TaskMenuAppName          {section::kGeneral, L"TaskMenuAppName",          0};
// Leaving. The first name reads the other way round; the second is only kept by its check box, for the commands that
// end the session always ask.
inline constexpr IntSetting    ConfirmExitApp           {section::kGeneral, L"ConfirmExitApp",           0}; // 1 = do NOT ask
inline constexpr IntSetting    ConfirmExitWindows       {section::kGeneral, L"ConfirmExitWindows",       1};

// The boxes.
inline constexpr IntSetting    MonitorClipBoard         {section::kGeneral, L"MonitorClipBoard",         1};
inline constexpr IntSetting    SaveRecentlyList         {section::kGeneral, L"SaveRecentlyList",         1};
inline constexpr IntSetting    SaveListItemNum          {section::kGeneral, L"SaveListItemNum",          5};
inline constexpr IntSetting    EnableEnterEvent         {section::kGeneral, L"EnableEnterEvent",         1};

// Search commands: lists of numbers, separated by commas, in menu order.
inline constexpr IntSetting    PriorityUserCommand      {section::kGeneral, L"PriorityUserCommand",      1}; // 1 = the user's own come first
inline constexpr TextSetting   SearchCommandOrder       {section::kGeneral, L"SearchCommandOrder",       L""};
inline constexpr TextSetting   DefaultSearchCommand     {section::kGeneral, L"DefaultSearchCommand",     L"1,5,6,8,10,12,14,19,22,26,"};
inline constexpr TextSetting   UserSearchCommand        {section::kGeneral, L"UserSearchCommand",        L""};

// Local search tools, full paths.
inline constexpr TextSetting   EverythingPath           {section::kGeneral, L"EverythingPath",           L""};
inline constexpr TextSetting   EmEditorPath             {section::kGeneral, L"EmEditorPath",             L""};
inline constexpr TextSetting   HidemaruPath             {section::kGeneral, L"HidemaruPath",             L""};
inline constexpr EditorSearchSettings EmEditorSearch = EditorSearchIn(section::kEmEditorSearch);
inline constexpr EditorSearchSettings HidemaruSearch = EditorSearchIn(section::kHidemaruSearch);

// Where the bar was when it was left.
inline constexpr IntSetting    SaveWindowPlacement      {section::kPlacement, L"SaveWindowPlacement",    0};
inline constexpr IntSetting    DefaultDesktopBarMode    {section::kPlacement, L"DefaultDesktopBarMode",  0}; // 1 = docked
inline constexpr BinarySetting WindowPosRect            {section::kPlacement, L"WindowPosRect",         16}; // see window_placement.h

// Lists of lines, numbered from 1.
inline constexpr NumberedSetting RecentCommand          {section::kRecentCommands, L"ListItem%02d"};         // 1 is the newest
inline constexpr NumberedSetting RecentSearch           {section::kRecentSearches, L"ListItem%02d"};
inline constexpr NumberedSetting LaunchMenuItem         {section::kLaunchItems,    L"LaunchMenu%02d"};

// clang-format on

} // namespace keys

inline constexpr std::array kEveryInt{
    keys::DesktopBarEdge,
    keys::DefaultBarColor,
    keys::DesktopBarAutoHide,
    keys::DesktopBarAutoHideSecond,
    keys::TopMostWindow,
    keys::ShowTimeBarClock,
    keys::TimeBarClockFormat,
    keys::TaskMenuAppName,
    keys::ConfirmExitApp,
    keys::ConfirmExitWindows,
    keys::MonitorClipBoard,
    keys::SaveRecentlyList,
    keys::SaveListItemNum,
    keys::EnableEnterEvent,
    keys::PriorityUserCommand,
    keys::EmEditorSearch.saveSettings,
    keys::HidemaruSearch.saveSettings,
    keys::SaveWindowPlacement,
    keys::DefaultDesktopBarMode,
};

inline constexpr std::array kEveryText{
    keys::SearchCommandOrder,
    keys::DefaultSearchCommand,
    keys::UserSearchCommand,
    keys::EverythingPath,
    keys::EmEditorPath,
    keys::HidemaruPath,
    keys::EmEditorSearch.extensionList,
    keys::EmEditorSearch.searchFolder,
    keys::HidemaruSearch.extensionList,
    keys::HidemaruSearch.searchFolder,
};

inline constexpr std::array kEveryBinary{
    keys::EmEditorSearch.searchOption,
    keys::HidemaruSearch.searchOption,
    keys::WindowPosRect,
};

inline constexpr std::array kEveryColour{
    keys::UserBarColor,
};

inline constexpr std::array kEveryNumbered{
    keys::RecentCommand,
    keys::RecentSearch,
    keys::LaunchMenuItem,
};

// One row's place, whatever its type.
struct SettingPlace {
    std::wstring_view section;
    std::wstring_view name;

    // The registry and INI files know no upper and lower case.
    [[nodiscard]] constexpr bool SameAs(const SettingPlace& other) const {
        return SameLetters(section, other.section) && SameLetters(name, other.name);
    }

private:
    static constexpr wchar_t Fold(wchar_t letter) {
        return letter >= L'A' && letter <= L'Z' ? static_cast<wchar_t>(letter - L'A' + L'a') : letter;
    }
    static constexpr bool SameLetters(std::wstring_view a, std::wstring_view b) {
        if (a.size() != b.size()) return false;
        for (std::size_t i = 0; i < a.size(); ++i)
            if (Fold(a[i]) != Fold(b[i])) return false;
        return true;
    }
};

inline constexpr auto kEveryPlace = [] {
    std::array<SettingPlace,
               kEveryInt.size() + kEveryText.size() + kEveryBinary.size() + kEveryColour.size() + kEveryNumbered.size()>
        places{};
    std::size_t at = 0;
    const auto append = [&](const auto& rows) {
        for (const auto& row : rows) places[at++] = {row.section, row.name};
    };
    append(kEveryInt);
    append(kEveryText);
    append(kEveryBinary);
    append(kEveryColour);
    append(kEveryNumbered);
    return places;
}();

[[nodiscard]] constexpr bool AllDistinct(std::span<const SettingPlace> places) {
    for (std::size_t i = 0; i < places.size(); ++i)
        for (std::size_t j = i + 1; j < places.size(); ++j)
            if (places[i].SameAs(places[j])) return false;
    return true;
}
static_assert(AllDistinct(kEveryPlace), "two rows of the table stand for the same value");

} // namespace korvane::settings
