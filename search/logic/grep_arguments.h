#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "search/logic/search_tool.h"

namespace korvane::search {

// How a text editor is to search.
struct GrepOptions {
    bool matchCase = false;
    bool subfolders = false;
    bool wholeWords = false;
    bool fileNamesOnly = false;
    bool regularExpression = false;
    bool fuzzy = false; // Hidemaru only

    friend bool operator==(const GrepOptions&, const GrepOptions&) = default;
};

// In the order in which the options are asked for, kept and handed to Hidemaru.
inline constexpr std::array<bool GrepOptions::*, 6> kGrepOptions{
    &GrepOptions::matchCase,     &GrepOptions::subfolders,        &GrepOptions::wholeWords,
    &GrepOptions::fileNamesOnly, &GrepOptions::regularExpression, &GrepOptions::fuzzy,
};

// As they are kept: a 32-bit little-endian value for each, 1 or 0.
using GrepOptionBytes = std::array<std::byte, 4 * kGrepOptions.size()>;
[[nodiscard]] GrepOptionBytes EncodeGrepOptions(const GrepOptions& options);
// A value other than 0 counts as set, as it does for a check box of Windows. A block of another length sets nothing.
[[nodiscard]] GrepOptions DecodeGrepOptions(std::span<const std::byte> bytes);

// The files to search: a folder that ends in a backslash, and a list of file name patterns.
[[nodiscard]] std::wstring GrepTarget(std::wstring_view folder, std::wstring_view fileTypes);

// What an editor is started with; the text stands in them as it is.
[[nodiscard]] std::wstring EmEditorArguments(const GrepOptions& options, std::wstring_view text,
                                             std::wstring_view target);
[[nodiscard]] std::wstring HidemaruArguments(const GrepOptions& options, std::wstring_view text,
                                             std::wstring_view target);
[[nodiscard]] std::wstring GrepArguments(SearchTool editor, const GrepOptions& options, std::wstring_view text,
                                         std::wstring_view target);

} // namespace korvane::search
