#pragma once

#include <cstddef>
#include <string_view>

namespace korvane::search {

// Part of a text from one character up to but not including another. An empty part is a place between characters.
struct TextPart {
    std::size_t first = 0;
    std::size_t last = 0;

    friend bool operator==(const TextPart&, const TextPart&) = default;
};

// One step of editing: a part of a text that another text replaces. The caret goes behind what was put in.
struct TextEdit {
    TextPart part;
    std::wstring_view text;

    friend bool operator==(const TextEdit&, const TextEdit&) = default;
};

// How a placeholder goes into a command line of that length (in characters) in which a part is selected. Everything
// takes what follows it as its arguments, so it goes to the start; an editor's placeholder is a command by itself. All
// others replace what is selected.
[[nodiscard]] TextEdit InsertionOf(std::wstring_view placeholder, std::size_t lineLength, TextPart selected);

} // namespace korvane::search
