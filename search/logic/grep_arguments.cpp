#include "search/logic/grep_arguments.h"

#include <cstdint>

#include "base/format_text.h"

namespace korvane::search {
namespace {

constexpr std::size_t kValueBytes = sizeof(GrepOptionBytes) / kGrepOptions.size();

// A letter in its two cases, in the order of kGrepOptions.
struct Letter {
    wchar_t set;
    wchar_t notSet;
};
constexpr std::array<Letter, kGrepOptions.size()> kHidemaruLetters{
    {{L'c', L'C'}, {L'u', L'U'}, {L'w', L'W'}, {L'o', L'O'}, {L'r', L'R'}, {L'z', L'Z'}}};

// EmEditor knows no fuzzy search.
struct Switch {
    bool GrepOptions::*option;
    std::wstring_view text;
};
constexpr std::array<Switch, 4> kEmEditorSwitches{{
    {&GrepOptions::subfolders, L" /fr"},
    {&GrepOptions::wholeWords, L" /fw"},
    {&GrepOptions::fileNamesOnly, L" /fn"},
    {&GrepOptions::regularExpression, L" /x"},
}};

} // namespace

GrepOptionBytes EncodeGrepOptions(const GrepOptions& options) {
    GrepOptionBytes bytes{};
    for (std::size_t i = 0; i < kGrepOptions.size(); ++i)
        bytes[i * kValueBytes] = std::byte{options.*kGrepOptions[i] ? std::uint8_t{1} : std::uint8_t{0}};
    return bytes;
}

GrepOptions DecodeGrepOptions(std::span<const std::byte> bytes) {
    GrepOptions options;
    if (bytes.size() != sizeof(GrepOptionBytes)) return options;
    for (std::size_t i = 0; i < kGrepOptions.size(); ++i)
        for (const std::byte byte : bytes.subspan(i * kValueBytes, kValueBytes))
            if (byte != std::byte{}) options.*kGrepOptions[i] = true;
    return options;
}

std::wstring GrepTarget(std::wstring_view folder, std::wstring_view fileTypes) {
    return base::FormatText(L"\"%s%s\"", folder, fileTypes);
}

std::wstring EmEditorArguments(const GrepOptions& options, std::wstring_view text, std::wstring_view target) {
    std::wstring arguments{options.matchCase ? L"/fc \"" : L"/fi \""};
    arguments.append(text).append(L"\"");
    for (const Switch& one : kEmEditorSwitches)
        if (options.*one.option) arguments += one.text;
    return arguments.append(L" /cp 1048576 ").append(target);
}

std::wstring HidemaruArguments(const GrepOptions& options, std::wstring_view text, std::wstring_view target) {
    std::wstring arguments{L"/g"};
    for (std::size_t i = 0; i < kGrepOptions.size(); ++i)
        arguments += options.*kGrepOptions[i] ? kHidemaruLetters[i].set : kHidemaruLetters[i].notSet;
    return arguments.append(L",").append(target).append(L",").append(text);
}

std::wstring GrepArguments(SearchTool editor, const GrepOptions& options, std::wstring_view text,
                           std::wstring_view target) {
    return editor == SearchTool::kHidemaru ? HidemaruArguments(options, text, target)
                                           : EmEditorArguments(options, text, target);
}

} // namespace korvane::search
