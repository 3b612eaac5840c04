#include "search/logic/placeholder_insertion.h"

#include "search/logic/placeholder_expansion.h"

namespace korvane::search {

TextEdit InsertionOf(std::wstring_view placeholder, std::size_t lineLength, TextPart selected) {
    if (placeholder == kEverythingPlaceholder) return {{0, 0}, placeholder};
    if (placeholder == kEmEditorPlaceholder || placeholder == kHidemaruPlaceholder)
        return {{0, lineLength}, placeholder};
    return {selected, placeholder};
}

} // namespace korvane::search
