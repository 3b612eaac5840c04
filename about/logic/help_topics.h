#pragma once

#include <string>
#include <string_view>

namespace korvane::about {

// The pages of the help that the program opens by itself, each as HTML Help names it: the file, and the place in it
// where there is one.
namespace help_topic {
inline constexpr std::wstring_view kContents = L"index.html";
inline constexpr std::wstring_view kMainOptions = L"optmain.html";
inline constexpr std::wstring_view kSearchOptions = L"optcmd.html";
inline constexpr std::wstring_view kSearchCommand = L"addcmd.html";
inline constexpr std::wstring_view kEditorSearch = L"editorsearch.html";
inline constexpr std::wstring_view kLaunchOptions = L"optextra.html";
inline constexpr std::wstring_view kImport = L"optextra.html#ImportItem";
inline constexpr std::wstring_view kLaunchItem = L"addextra.html";
inline constexpr std::wstring_view kIcon = L"addextra.html#SelectIcon";
} // namespace help_topic

// What HTML Help is asked to open for a page: the compiled file, the page in it, and the type of the window to show it
// in.
[[nodiscard]] inline std::wstring HelpAddress(std::wstring_view topic) {
    return L"Korvane.chm::/" + std::wstring{topic} + L" > Korvane_HelpWindow";
}

} // namespace korvane::about
