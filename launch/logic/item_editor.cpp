#include "launch/logic/item_editor.h"

#include "base/text.h"

namespace korvane::launch {
namespace {

// The first of the two units that make up a character beyond U+FFFF.
constexpr bool BeginsPair(wchar_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

} // namespace

ItemEditorButtons ButtonsFor(std::wstring_view program, std::wstring_view name) {
    const bool hasProgram = !base::Trimmed(program).empty();
    return {.ok = hasProgram && !base::Trimmed(name).empty(), .changeIcon = hasProgram};
}

std::wstring NameFrom(std::wstring_view description) {
    if (description.size() <= kLongestItemName) return std::wstring{description};
    const bool split = BeginsPair(description[kLongestItemName - 1]);
    return std::wstring{description.substr(0, kLongestItemName - (split ? 1 : 0))};
}

} // namespace korvane::launch
