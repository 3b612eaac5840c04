#pragma once

#include <span>
#include <string>

namespace korvane::app {

// What may be dropped where on the bar.

enum class DropPlace { kElsewhere, kCommandBox, kSearchBox, kLaunchButton };

// What the dragged thing can be taken as; it may be both.
struct DropOffer {
    bool text = false;
    bool files = false;
};

enum class DropAction {
    kRefuse,
    kInsertText, // into the box, where it was dropped
    kEnterPaths, // into the command input box
    kStartWith,  // the launch button's program, with the files
};

[[nodiscard]] constexpr DropAction ActionOfDrop(DropPlace place, DropOffer offer) {
    switch (place) {
    case DropPlace::kCommandBox:
        if (offer.files) return DropAction::kEnterPaths;
        return offer.text ? DropAction::kInsertText : DropAction::kRefuse;
    case DropPlace::kSearchBox:
        return offer.text ? DropAction::kInsertText : DropAction::kRefuse;
    case DropPlace::kLaunchButton:
        return offer.files ? DropAction::kStartWith : DropAction::kRefuse;
    case DropPlace::kElsewhere:
        break;
    }
    return DropAction::kRefuse;
}

// Each path in quotation marks, with a blank between two.
[[nodiscard]] std::wstring QuotedPaths(std::span<const std::wstring> paths);

// A text with more of it behind: one blank stands between the two unless one of them is empty or a blank is there
// already.
[[nodiscard]] std::wstring WithAppended(std::wstring text, const std::wstring& more);

} // namespace korvane::app
