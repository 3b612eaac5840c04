#include "settings/logic/stored_list.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <set>
#include <utility>

namespace korvane::settings {
namespace {

class ListPlan {
public:
    ListPlan(std::vector<std::wstring> stored, std::span<const std::wstring> wanted)
        : slots_{std::move(stored)}, wanted_{wanted} {
        // A line behind the last one may be of use on the way, a gap there is of none.
        while (!slots_.empty() && slots_.back().empty()) slots_.pop_back();
        if (slots_.size() < wanted_.size()) slots_.resize(wanted_.size());
    }

    std::vector<LineWrite> Writes() {
        while (const auto next = FirstChange([](std::size_t) { return true; })) {
            // What is empty comes first, so that a list grows before it changes.
            auto slot = FirstChange([this](std::size_t at) { return slots_[at].empty(); });
            if (!slot) slot = FirstChange([this](std::size_t at) { return !WouldBeMissed(slots_[at]); });
            if (slot) {
                Write(*slot, wanted_[*slot]);
            } else {
                // Lines that change places all wait for each other. One of them steps aside.
                slots_.emplace_back();
                Write(slots_.size() - 1, std::wstring{slots_[*next]});
            }
        }
        return std::move(writes_);
    }

private:
    // The first slot with another line than the wanted one of which the condition holds.
    template <class Condition>
    [[nodiscard]] std::optional<std::size_t> FirstChange(Condition holds) const {
        for (std::size_t slot = 0; slot < wanted_.size(); ++slot)
            if (!wanted_[slot].empty() && slots_[slot] != wanted_[slot] && holds(slot)) return slot;
        return std::nullopt;
    }
    // True when the line is to stay in the list and stands in one place only.
    [[nodiscard]] bool WouldBeMissed(const std::wstring& line) const {
        return std::count(wanted_.begin(), wanted_.end(), line) > 0 &&
               std::count(slots_.begin(), slots_.end(), line) < 2;
    }
    void Write(std::size_t slot, std::wstring line) {
        slots_[slot] = line;
        writes_.push_back({static_cast<int>(slot) + 1, std::move(line)});
    }

    std::vector<std::wstring> slots_;
    std::span<const std::wstring> wanted_;
    std::vector<LineWrite> writes_;
};

std::wstring InLowerCase(std::wstring name) {
    for (wchar_t& letter : name)
        if (letter >= L'A' && letter <= L'Z') letter = static_cast<wchar_t>(letter - L'A' + L'a');
    return name;
}

// From the last to the first, so that a list that is still too long has no gap.
bool DeleteAllBut(ProfileStore& store, std::wstring_view section, const std::set<std::wstring>& kept) {
    auto names = store.ValueNames(section);
    std::sort(names.begin(), names.end(), std::greater<>{});
    bool deleted = true;
    for (const std::wstring& name : names)
        if (!kept.contains(InLowerCase(name))) deleted = store.DeleteValue(section, name) && deleted;
    return deleted;
}

} // namespace

std::vector<LineWrite> PlanListWrites(std::vector<std::wstring> stored, std::span<const std::wstring> wanted) {
    return ListPlan{std::move(stored), wanted}.Writes();
}

bool StoreList(ProfileStore& store, const NumberedSetting& list, std::span<const std::wstring> lines,
               std::size_t most) {
    const auto hasLine = [](const std::wstring& line) { return !line.empty(); };
    if (std::none_of(lines.begin(), lines.end(), hasLine)) return store.DeleteSection(list.section);

    std::vector<std::wstring> stored;
    for (std::size_t i = 0; i < std::max(most, lines.size()); ++i)
        stored.push_back(store.Read(list, static_cast<int>(i) + 1));
    // The later writes rely on the earlier ones.
    for (const LineWrite& write : PlanListWrites(std::move(stored), lines))
        if (!store.Write(list, write.number, write.line)) return false;

    std::set<std::wstring> kept;
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (hasLine(lines[i])) kept.insert(InLowerCase(list.NameOf(static_cast<int>(i) + 1)));
    return DeleteAllBut(store, list.section, kept);
}

} // namespace korvane::settings
