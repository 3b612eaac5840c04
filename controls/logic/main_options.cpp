#include "controls/logic/main_options.h"

#include <algorithm>

#include "base/format_text.h"
#include "base/text.h"
#include "settings/logic/bar_colour.h"

namespace korvane::controls {
namespace {

// More characters than this do not count.
constexpr std::size_t kReadCharacters = 15;

constexpr bool IsRowOf(int value, std::size_t rows) {
    return value >= 0 && static_cast<std::size_t>(value) < rows;
}

} // namespace

std::array<std::wstring, kDelayCount> DelayTexts() {
    std::array<std::wstring, kDelayCount> texts;
    int halves = 0;
    for (std::wstring& text : texts) {
        ++halves;
        text = base::FormatText(L"%d.%d", halves / 2, halves % 2 * 5);
    }
    return texts;
}

int EdgeRow(int stored) {
    return stored == 0 ? 0 : 1;
}

int ColourRow(int stored) {
    return IsRowOf(stored, kColourTexts.size()) ? stored : settings::kSystemColour;
}

int DelayRow(int stored) {
    return std::clamp(stored, 0, kDelayCount - 1);
}

int FormatRow(int stored) {
    return IsRowOf(stored, kFormatTexts.size()) ? stored : 0;
}

std::wstring HistoryLengthText(int stored) {
    return stored < 0 ? std::wstring{} : base::FormatText(L"%d", std::clamp(stored, kShortestHistory, kLongestHistory));
}

std::optional<int> HistoryLengthOf(std::wstring_view text) {
    std::wstring digits{text.substr(0, kReadCharacters)};
    std::transform(digits.begin(), digits.end(), digits.begin(), &base::NarrowDigit);
    if (digits.find_first_of(L"0123456789") == std::wstring::npos) return std::nullopt;
    return std::clamp(base::LeadingInteger(digits), kShortestHistory, kLongestHistory);
}

int HistoryLengthStep(int position, int step) {
    // Downwards only: the arrows' own range ends where the number's does.
    return std::max(step, kShortestHistory - position);
}

} // namespace korvane::controls
