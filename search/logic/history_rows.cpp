#include "search/logic/history_rows.h"

namespace korvane::search {
namespace {

enum SpecialRow { kBrowseFileRow = kFirstSpecialRow, kBrowseFolderRow, kClearRow, kNothingRow };

static_assert(History::kMostEntries <= kFirstSpecialRow, "an entry's number would be that of a special row");

} // namespace

HistoryAction ActionOfRow(int number) {
    switch (number) {
    case kBrowseFileRow:
        return HistoryAction::kBrowseFile;
    case kBrowseFolderRow:
        return HistoryAction::kBrowseFolder;
    case kClearRow:
        return HistoryAction::kClear;
    default:
        return number >= 0 && !IsSpecialRow(number) ? HistoryAction::kUseEntry : HistoryAction::kNone;
    }
}

std::vector<HistoryRow> PlanHistoryRows(Box box, const std::vector<std::wstring>& entries,
                                        const HistoryRowTexts& texts) {
    constexpr std::size_t kMostSpecialRows = 3;
    std::vector<HistoryRow> rows;
    rows.reserve(entries.size() + kMostSpecialRows);
    for (const auto& entry : entries) rows.push_back({static_cast<int>(rows.size()), entry});
    if (box == Box::kCommand) {
        rows.push_back({kBrowseFileRow, texts.browseFile});
        rows.push_back({kBrowseFolderRow, texts.browseFolder});
    }
    if (!entries.empty()) rows.push_back({kClearRow, texts.clear});
    if (rows.empty()) rows.push_back({kNothingRow, texts.nothing});
    return rows;
}

} // namespace korvane::search
