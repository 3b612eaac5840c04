#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/menu_rows.h"
#include "res/ids.h"
#include "settings/logic/profile_store.h"

namespace korvane::search {

// Standard commands come with the program, the user's own are made in the options. The values are offsets from the
// identifiers of the string table that belong to a kind.
enum class SearchCommandKind { kStandard = 0, kUser = 1 };

// At most this many commands, of both kinds together, stand in the menu.
inline constexpr int kMostSelectedCommands = 50;
// At most this many commands of the user's own.
inline constexpr int kMostUserCommands = 50;

// One search command: a template with a placeholder for the search text.
struct SearchCommand {
    int number = 0; // counts from 1 within its kind
    std::wstring name;
    std::wstring line;
    std::wstring comment;

    friend bool operator==(const SearchCommand&, const SearchCommand&) = default;
};

// A search command as the menu and the frame know it: 5000 + n for standard command n, 5051 + n for user command n.
// 5051 itself is standard command 51, so the user's first is 5052.
class SearchCommandId {
public:
    constexpr SearchCommandId() = default;
    constexpr explicit SearchCommandId(int value) : value_{value} {}
    constexpr SearchCommandId(SearchCommandKind kind, int number) : value_{BaseOf(kind) + number} {}

    [[nodiscard]] constexpr int Value() const { return value_; }
    [[nodiscard]] constexpr SearchCommandKind Kind() const {
        return value_ > kUserBase ? SearchCommandKind::kUser : SearchCommandKind::kStandard;
    }
    [[nodiscard]] constexpr int Number() const { return value_ - BaseOf(Kind()); }

    friend constexpr bool operator==(SearchCommandId, SearchCommandId) = default;

private:
    static constexpr int kStandardBase = 5000;
    static constexpr int kUserBase = 5051;
    static constexpr int BaseOf(SearchCommandKind kind) {
        return kind == SearchCommandKind::kUser ? kUserBase : kStandardBase;
    }

    int value_ = 0;
};

// The identifier of a command in the menu. What lies outside is no search command to the frame, where a click would do
// nothing or something else; a number that is stored may be any.
[[nodiscard]] constexpr std::optional<SearchCommandId> MenuCommandId(SearchCommandKind kind, int number) {
    if (number < 1 || number > ID_SEARCH_LAST) return std::nullopt;
    const SearchCommandId id{kind, number};
    if (id.Value() < ID_SEARCH_FIRST || id.Value() > ID_SEARCH_LAST) return std::nullopt;
    return id;
}

// More numbers than the menu and the standard commands' order ever need; a list that another hand has written may have
// millions, each of which would be looked up.
inline constexpr std::size_t kMostListedNumbers = 500;
// No more commands than these are read from one file.
inline constexpr int kMostCommandsRead = 1000;

// The first numbers of a list such as "1,5,6,". Empty pieces do not count; a piece that is no number gives 0.
[[nodiscard]] std::vector<int> ParseNumberList(std::wstring_view list);

// The numbers with commas between them and none at the end.
[[nodiscard]] std::wstring FormatNumberList(std::span<const int> numbers);

// The commands of one file. It looks into the store at every call and keeps nothing, so the store must outlive it.
class SearchCommandTable {
public:
    explicit SearchCommandTable(const settings::ProfileStore& store) : store_{store} {}

    // Empty when there is no such command.
    [[nodiscard]] std::wstring NameOf(int number) const;
    [[nodiscard]] std::wstring LineOf(int number) const;
    // All commands from number 1 up to the first that has no name, as far as anybody has made so many.
    [[nodiscard]] std::vector<SearchCommand> ReadAll() const;

private:
    const settings::ProfileStore& store_;
};

// The stores that search commands live in; all must outlive whatever takes this.
struct SearchStores {
    settings::ProfileStore& settings;
    const settings::ProfileStore& standard;
    const settings::ProfileStore& user;

    [[nodiscard]] SearchCommandTable TableOf(SearchCommandKind kind) const {
        return SearchCommandTable{kind == SearchCommandKind::kUser ? user : standard};
    }
};

// The setting that holds the selected numbers of a kind, in menu order.
[[nodiscard]] const settings::TextSetting& SelectionSetting(SearchCommandKind kind);

// The commands with those in `order` first, in its order, and the rest behind them as they were. Numbers that no
// command has, or that come a second time, do not count.
[[nodiscard]] std::vector<SearchCommand> InStoredOrder(std::vector<SearchCommand> commands, std::span<const int> order);

// One kind's selected commands.
struct SearchMenuGroup {
    SearchCommandKind kind;
    std::vector<int> numbers;
};

// Both kinds' selections, the one that the user wants first in front.
[[nodiscard]] std::array<SearchMenuGroup, 2> ReadSearchMenuGroups(const settings::ProfileStore& settings);

struct SearchMenuPlan {
    std::vector<base::MenuRow> rows;
    // What becomes current, with the text that the chooser then shows; a row without a command when none is selected.
    base::MenuRow current;
};

// Gives a command's name, or nothing when there is no such command.
using SearchCommandNameOf = std::function<std::wstring(SearchCommandKind, int number)>;

// What the search menu holds: the selected commands in blocks of five, a separator and the way to the settings.
[[nodiscard]] SearchMenuPlan PlanSearchMenu(std::span<const SearchMenuGroup> groups, const SearchCommandNameOf& nameOf,
                                            std::wstring_view settingsText);
// The same, read from the stores.
[[nodiscard]] SearchMenuPlan PlanSearchMenu(const SearchStores& stores, std::wstring_view settingsText);

} // namespace korvane::search
