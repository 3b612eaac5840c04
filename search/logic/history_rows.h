#pragma once

#include <string>
#include <vector>

#include "search/logic/history.h"

namespace korvane::search {

// What choosing a row of the history drop-down does.
enum class HistoryAction { kNone, kUseEntry, kBrowseFile, kBrowseFolder, kClear };

// A row of the history drop-down. History entries carry their position, the rows that do something else carry 253 and
// more and are drawn in grey.
struct HistoryRow {
    int number = 0;
    std::wstring text;

    friend bool operator==(const HistoryRow&, const HistoryRow&) = default;
};

inline constexpr int kFirstSpecialRow = 253;

[[nodiscard]] constexpr bool IsSpecialRow(int number) {
    return number >= kFirstSpecialRow;
}

[[nodiscard]] HistoryAction ActionOfRow(int number);

// The texts of the special rows.
struct HistoryRowTexts {
    std::wstring browseFile;
    std::wstring browseFolder;
    std::wstring clear;
    std::wstring nothing;
};

// The rows that a box's drop-down shows: its history, the pickers for the command input box, and clearing when there is
// something to clear. A drop-down without any of these says so.
[[nodiscard]] std::vector<HistoryRow> PlanHistoryRows(Box box, const std::vector<std::wstring>& entries,
                                                      const HistoryRowTexts& texts);

} // namespace korvane::search
