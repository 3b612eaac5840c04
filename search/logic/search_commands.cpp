#include "search/logic/search_commands.h"

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <utility>

#include "base/format_text.h"
#include "base/text.h"
#include "res/ids.h"
#include "settings/logic/setting_keys.h"

namespace korvane::search {
namespace {

namespace keys = settings::keys;
namespace section = settings::section;
namespace value = settings::search_command;

// The sum of the greatest number and a kind's first identifier has no room in an integer.
static_assert(!MenuCommandId(SearchCommandKind::kUser, std::numeric_limits<int>::max()));
static_assert(!MenuCommandId(SearchCommandKind::kStandard, std::numeric_limits<int>::min()));

void AppendSearchCommandGroup(const SearchMenuGroup& group, const SearchCommandNameOf& nameOf,
                              std::vector<base::MenuRow>& rows) {
    for (const int number : group.numbers) {
        // The options never select more; only a list written by another hand can.
        if (rows.size() >= std::size_t{kMostSelectedCommands}) return;
        const auto id = MenuCommandId(group.kind, number);
        if (!id) continue;
        auto name = nameOf(group.kind, number);
        if (!name.empty()) rows.push_back({static_cast<unsigned>(id->Value()), std::move(name)});
    }
}

} // namespace

std::vector<int> ParseNumberList(std::wstring_view list) {
    std::vector<int> numbers;
    for (const auto piece : base::SplitText(list, L',', kMostListedNumbers))
        numbers.push_back(base::LeadingInteger(piece));
    return numbers;
}

std::wstring FormatNumberList(std::span<const int> numbers) {
    std::wstring list;
    for (const int number : numbers) {
        if (!list.empty()) list += L',';
        list += base::FormatText(L"%d", number);
    }
    return list;
}

std::wstring SearchCommandTable::NameOf(int number) const {
    return store_.ReadText(section::SearchCommand(number), value::kName);
}

std::wstring SearchCommandTable::LineOf(int number) const {
    return store_.ReadText(section::SearchCommand(number), value::kLine);
}

std::vector<SearchCommand> SearchCommandTable::ReadAll() const {
    std::vector<SearchCommand> commands;
    for (int number = 1; number <= kMostCommandsRead; ++number) {
        auto name = NameOf(number);
        if (name.empty()) break;
        commands.push_back({number, std::move(name), LineOf(number),
                            store_.ReadText(section::SearchCommand(number), value::kComment)});
    }
    return commands;
}

const settings::TextSetting& SelectionSetting(SearchCommandKind kind) {
    return kind == SearchCommandKind::kUser ? keys::UserSearchCommand : keys::DefaultSearchCommand;
}

std::vector<SearchCommand> InStoredOrder(std::vector<SearchCommand> commands, std::span<const int> order) {
    std::unordered_map<int, std::size_t> places;
    for (std::size_t i = 0; i < order.size(); ++i) places.try_emplace(order[i], i);
    std::stable_sort(commands.begin(), commands.end(), [&](const SearchCommand& a, const SearchCommand& b) {
        const auto placeOf = [&](const SearchCommand& command) {
            const auto at = places.find(command.number);
            return at == places.end() ? order.size() : at->second;
        };
        return placeOf(a) < placeOf(b);
    });
    return commands;
}

std::array<SearchMenuGroup, 2> ReadSearchMenuGroups(const settings::ProfileStore& store) {
    const auto read = [&](SearchCommandKind kind) {
        return SearchMenuGroup{kind, ParseNumberList(store.Read(SelectionSetting(kind)))};
    };
    auto standard = read(SearchCommandKind::kStandard);
    auto user = read(SearchCommandKind::kUser);
    // Only the very value 1 puts the user's own first.
    if (store.Read(keys::PriorityUserCommand) == 1) return {std::move(user), std::move(standard)};
    return {std::move(standard), std::move(user)};
}

SearchMenuPlan PlanSearchMenu(std::span<const SearchMenuGroup> groups, const SearchCommandNameOf& nameOf,
                              std::wstring_view settingsText) {
    SearchMenuPlan plan;
    for (const auto& group : groups) AppendSearchCommandGroup(group, nameOf, plan.rows);
    // Whatever was current before, the first command of the new menu is current now; that is on purpose.
    if (!plan.rows.empty()) plan.current = plan.rows.front();
    base::GroupByFive(plan.rows);
    plan.rows.push_back({});
    plan.rows.push_back({ID_SEARCH_SETTINGS, std::wstring{settingsText}});
    return plan;
}

SearchMenuPlan PlanSearchMenu(const SearchStores& stores, std::wstring_view settingsText) {
    const auto groups = ReadSearchMenuGroups(stores.settings);
    return PlanSearchMenu(
        groups, [&](SearchCommandKind kind, int number) { return stores.TableOf(kind).NameOf(number); }, settingsText);
}

} // namespace korvane::search
