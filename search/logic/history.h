#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "settings/logic/profile_store.h"

namespace korvane::search {

// The two boxes of the bar. The values are the indexes by which histories are kept.
enum class Box { kCommand = 0, kSearch = 1 };

// The texts that a box ran lately, newest first. No two of them are equal when the letters A to Z are compared without
// regard to case.
class History {
public:
    static constexpr std::size_t kMostEntries = 15;

    // Makes the text the newest entry, wherever it stood before. If it is the newest already, its old spelling stays.
    // An empty text is not kept: saved, it would end the list for its reader.
    void Add(std::wstring_view text);
    // Takes an entry out; one that is not there is no matter.
    void Remove(std::wstring_view text);
    void Clear() { entries_.clear(); }

    [[nodiscard]] const std::vector<std::wstring>& Entries() const { return entries_; }

    // Replaces the saved list by the newest entries, at most `most`; fewer than one leaves none. An end of the process
    // on the way costs no entry that is to stay. False when something could not be written.
    bool Save(settings::ProfileStore& store, const settings::NumberedSetting& list, int most) const;

    // What is saved, up to the first missing or empty entry.
    [[nodiscard]] static History Restore(const settings::ProfileStore& store, const settings::NumberedSetting& list);

private:
    [[nodiscard]] std::vector<std::wstring>::const_iterator Find(std::wstring_view text) const;

    std::vector<std::wstring> entries_;
};

// Where a box's history is saved.
[[nodiscard]] const settings::NumberedSetting& HistorySetting(Box box);

// Both boxes' histories.
class Histories {
public:
    [[nodiscard]] History& Of(Box box) { return box == Box::kCommand ? command_ : search_; }
    [[nodiscard]] const History& Of(Box box) const { return box == Box::kCommand ? command_ : search_; }

    // At exit and at start. Neither does anything while the user has turned the saving off.
    void SaveIfWanted(settings::ProfileStore& store) const;
    void RestoreIfWanted(const settings::ProfileStore& store);

private:
    History command_;
    History search_;
};

} // namespace korvane::search
