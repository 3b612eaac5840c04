#include "search/logic/placeholder_expansion.h"

#include "base/text.h"
#include "res/ids.h"

namespace korvane::search {
namespace {

// The text placeholders stand first, in the order of the encodings that they ask for.
constexpr std::array kEncodings{TextEncoding::kUtf8, TextEncoding::kUtf7, TextEncoding::kShiftJis, TextEncoding::kEucJp,
                                TextEncoding::kAsIs};
static_assert(kPlaceholders[kEncodings.size() - 1] == kUtf16Placeholder);

constexpr bool Contains(std::wstring_view text, std::wstring_view what) {
    return text.find(what) != std::wstring_view::npos;
}

} // namespace

Expansion Expand(std::wstring_view commandLine, std::wstring_view text, std::wstring_view menuName,
                 const EncodeText& encode) {
    if (commandLine.empty()) return Refusal{IDS_NO_SEARCH_COMMAND, {}, false};
    if (Contains(commandLine, kEverythingPlaceholder)) return EverythingSearch{};
    if (Contains(commandLine, kEmEditorPlaceholder)) return EditorSearch{SearchTool::kEmEditor};
    if (Contains(commandLine, kHidemaruPlaceholder)) return EditorSearch{SearchTool::kHidemaru};

    for (std::size_t i = 0; i < kEncodings.size(); ++i)
        if (Contains(commandLine, kPlaceholders[i]))
            return Launch{base::ReplaceAll(commandLine, kPlaceholders[i], encode(text, kEncodings[i]))};

    // The message speaks of a command of the user's own even when it is a standard one; that is on purpose.
    return Refusal{IDS_BAD_USER_COMMAND, std::wstring{menuName}, menuName.empty()};
}

} // namespace korvane::search
