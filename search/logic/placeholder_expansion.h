#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <variant>

#include "search/logic/search_tool.h"
#include "search/logic/text_encoding.h"

namespace korvane::search {

inline constexpr std::wstring_view kUtf16Placeholder = L"<%Search_UTF16%>";
inline constexpr std::wstring_view kEverythingPlaceholder = L"<%Everything%>";
inline constexpr std::wstring_view kEmEditorPlaceholder = L"<%EmEditor%>";
inline constexpr std::wstring_view kHidemaruPlaceholder = L"<%Hidemaru%>";

// All placeholders in the order in which the editor of user commands offers them. Case matters.
inline constexpr std::array<std::wstring_view, 8> kPlaceholders{
    L"<%Search%>",     L"<%Search_UTF7%>",     L"<%Search_SJIS%>",   L"<%Search_EUC%>",
    kUtf16Placeholder, kEverythingPlaceholder, kEmEditorPlaceholder, kHidemaruPlaceholder,
};

// What a command line with a search text becomes: something for the shell to open, ...
struct Launch {
    std::wstring commandLine;
    friend bool operator==(const Launch&, const Launch&) = default;
};
// ... a search with Everything, which needs the program's path, ...
struct EverythingSearch {
    friend bool operator==(const EverythingSearch&, const EverythingSearch&) = default;
};
// ... a search with a text editor, which needs the user's options and nothing of the command line, ...
struct EditorSearch {
    SearchTool tool = SearchTool::kEmEditor;
    friend bool operator==(const EditorSearch&, const EditorSearch&) = default;
};
// ... or nothing, with the text of the string table to be shown, and what goes into it. A silent refusal shows none.
struct Refusal {
    unsigned messageId = 0;
    std::wstring argument;
    bool silent = false;
    friend bool operator==(const Refusal&, const Refusal&) = default;
};

using Expansion = std::variant<Launch, EverythingSearch, EditorSearch, Refusal>;
using EncodeText = std::function<std::wstring(std::wstring_view text, TextEncoding encoding)>;

// Puts a search text into a command line. The tools' placeholders come first, then the first text placeholder in the
// order above decides the encoding, and only that one is replaced: one command line has one encoding. `menuName` is the
// command's name in the menu.
[[nodiscard]] Expansion Expand(std::wstring_view commandLine, std::wstring_view text, std::wstring_view menuName,
                               const EncodeText& encode);

} // namespace korvane::search
