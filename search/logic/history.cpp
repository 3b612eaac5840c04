#include "search/logic/history.h"

#include <algorithm>
#include <span>

#include "base/text.h"
#include "settings/logic/setting_keys.h"
#include "settings/logic/stored_list.h"

namespace korvane::search {

namespace keys = settings::keys;

std::vector<std::wstring>::const_iterator History::Find(std::wstring_view text) const {
    return std::find_if(entries_.begin(), entries_.end(),
                        [&](const std::wstring& entry) { return base::EqualIgnoringAsciiCase(entry, text); });
}

void History::Add(std::wstring_view text) {
    if (text.empty()) return;
    // A copy, for the text may belong to an entry that is about to go.
    std::wstring added{text};
    const auto found = Find(added);
    if (found != entries_.end()) {
        if (found == entries_.begin()) return;
        entries_.erase(found);
    }
    entries_.insert(entries_.begin(), std::move(added));
    if (entries_.size() > kMostEntries) entries_.pop_back();
}

void History::Remove(std::wstring_view text) {
    if (const auto found = Find(text); found != entries_.end()) entries_.erase(found);
}

bool History::Save(settings::ProfileStore& store, const settings::NumberedSetting& list, int most) const {
    const auto count = static_cast<std::size_t>(std::clamp(most, 0, static_cast<int>(entries_.size())));
    return settings::StoreList(store, list, std::span{entries_}.first(count), kMostEntries);
}

History History::Restore(const settings::ProfileStore& store, const settings::NumberedSetting& list) {
    History history;
    for (int number = 1; history.entries_.size() < kMostEntries; ++number) {
        auto text = store.Read(list, number);
        if (text.empty()) break;
        // Only a list written by another hand holds the same text twice.
        if (history.Find(text) == history.entries_.end()) history.entries_.push_back(std::move(text));
    }
    return history;
}

const settings::NumberedSetting& HistorySetting(Box box) {
    return box == Box::kCommand ? keys::RecentCommand : keys::RecentSearch;
}

void Histories::SaveIfWanted(settings::ProfileStore& store) const {
    if (store.Read(keys::SaveRecentlyList) != 1) return;
    const int most = store.Read(keys::SaveListItemNum);
    for (const Box box : {Box::kCommand, Box::kSearch}) Of(box).Save(store, HistorySetting(box), most);
}

void Histories::RestoreIfWanted(const settings::ProfileStore& store) {
    if (store.Read(keys::SaveRecentlyList) != 1) return;
    for (const Box box : {Box::kCommand, Box::kSearch}) Of(box) = History::Restore(store, HistorySetting(box));
}

} // namespace korvane::search
