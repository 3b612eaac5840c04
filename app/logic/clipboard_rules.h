#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace korvane::app {

// Another program may have the clipboard open; it is asked so often, with this pause in between.
inline constexpr int kClipboardAttempts = 10;
inline constexpr auto kClipboardPause = std::chrono::milliseconds{100};

// UTF-16 units. No search takes a longer text, and a box of one line would only choke on what a program may copy.
inline constexpr std::size_t kLongestClipboardText = 4096;

// Numbers of the two formats that text comes in.
inline constexpr unsigned kAnsiTextFormat = 1;
inline constexpr unsigned kUnicodeTextFormat = 13;

[[nodiscard]] constexpr bool IsTextFormat(unsigned format) {
    return format == kAnsiTextFormat || format == kUnicodeTextFormat;
}

// What the owner of the clipboard says about who may look at its content.
struct ClipboardMarks {
    bool excludedFromMonitors = false;
    bool viewersIgnore = false;
    std::optional<unsigned> mayBeKept{}; // 0 forbids to keep it in a history
};

// Password managers mark what nobody but the user is to see. The search box shows its text and its history keeps it, so
// what may not be kept may not be taken either.
[[nodiscard]] constexpr bool MayTakeFromClipboard(const ClipboardMarks& marks) {
    return !marks.excludedFromMonitors && !marks.viewersIgnore && marks.mayBeKept != 0U;
}

// The copied text as it goes into a box of one line: up to the first zero, without the line breaks at its ends (a
// copied cell or line has one), with a blank for a run of them in between, and cut to the longest length.
[[nodiscard]] std::wstring OneLine(std::wstring_view copied);

} // namespace korvane::app
