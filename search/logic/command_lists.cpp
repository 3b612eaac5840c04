#include "search/logic/command_lists.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "base/format_text.h"
#include "settings/logic/setting_keys.h"

namespace korvane::search {
namespace {

namespace keys = settings::keys;

constexpr SearchCommandKind Other(SearchCommandKind kind) {
    return kind == SearchCommandKind::kUser ? SearchCommandKind::kStandard : SearchCommandKind::kUser;
}

CommandLists::List WithSelection(std::vector<SearchCommand> commands, const settings::ProfileStore& settings,
                                 SearchCommandKind kind) {
    const auto numbers = ParseNumberList(settings.Read(SelectionSetting(kind)));
    const std::unordered_set<int> checked{numbers.begin(), numbers.end()};
    CommandLists::List list;
    list.reserve(commands.size());
    for (auto& command : commands) {
        const bool isChecked = checked.contains(command.number);
        list.push_back({std::move(command), isChecked});
    }
    return list;
}

} // namespace

CommandLists::CommandLists(const SearchStores& stores, std::vector<SearchCommand> userCommands) {
    constexpr auto kStandard = SearchCommandKind::kStandard;
    constexpr auto kUser = SearchCommandKind::kUser;
    auto standard = InStoredOrder(stores.TableOf(kStandard).ReadAll(),
                                  ParseNumberList(stores.settings.Read(keys::SearchCommandOrder)));
    HalfOf(kStandard).list = WithSelection(std::move(standard), stores.settings, kStandard);
    // The user's commands are renumbered whenever they are saved, so the file's order is theirs.
    HalfOf(kUser).list = WithSelection(std::move(userCommands), stores.settings, kUser);
    for (Half& half : halves_)
        for (auto& item : half.list) item.identity = ++lastIdentity_;
}

void CommandLists::Select(std::optional<std::size_t> row) {
    HalfOf(shown_).selected = row && *row < Shown().size() ? row : std::nullopt;
}

const SearchCommand* CommandLists::SelectedCommand() const {
    const auto row = Selected();
    return row ? &Shown()[*row].command : nullptr;
}

std::optional<CommandMark> CommandLists::Mark() const {
    const auto row = Selected();
    return row ? std::optional{CommandMark{shown_, Shown()[*row].identity}} : std::nullopt;
}

bool CommandLists::GoBackTo(const CommandMark& mark) {
    const List& list = Of(mark.kind);
    const auto found = std::ranges::find(list, mark.identity, &ListedCommand::identity);
    if (found == list.end()) return false;
    Show(mark.kind);
    Select(static_cast<std::size_t>(found - list.begin()));
    return true;
}

CommandActions CommandLists::Actions() const {
    const List& list = Shown();
    const auto row = Selected();
    const auto checked = static_cast<std::size_t>(CheckedIn(shown_));
    const bool user = shown_ == SearchCommandKind::kUser;
    const bool hasRoom = list.size() < std::size_t{kMostUserCommands};

    CommandActions actions;
    actions.moveUp = row && *row > 0;
    actions.moveDown = row && *row + 1 < list.size();
    actions.checkAll = checked < list.size() && !LimitReached();
    actions.uncheckAll = checked > 0;
    actions.copy = row.has_value();
    actions.add = user && hasRoom;
    actions.edit = user && row;
    actions.remove = user && row;
    actions.paste = user && hasRoom && copied_;
    return actions;
}

int CommandLists::CheckedIn(SearchCommandKind kind) const {
    const List& list = Of(kind);
    return static_cast<int>(std::count_if(list.begin(), list.end(), [](const auto& item) { return item.selected; }));
}

int CommandLists::Checked() const {
    return CheckedIn(SearchCommandKind::kStandard) + CheckedIn(SearchCommandKind::kUser);
}

std::optional<SelectionLimit> CommandLists::LimitReached() const {
    const auto other = Other(shown_);
    if (Checked() < kMostSelectedCommands) return std::nullopt;
    return SelectionLimit{kMostSelectedCommands, other, CheckedIn(other)};
}

void CommandLists::SetChecked(std::size_t row, bool checked) {
    List& list = HalfOf(shown_).list;
    if (row >= list.size() || list[row].selected == checked || (checked && LimitReached())) return;
    list[row].selected = checked;
}

std::optional<SelectionLimit> CommandLists::CheckAll() {
    int room = kMostSelectedCommands - Checked();
    for (auto& item : HalfOf(shown_).list) {
        if (item.selected) continue;
        if (room <= 0) return LimitReached();
        item.selected = true;
        --room;
    }
    return std::nullopt;
}

void CommandLists::UncheckAll() {
    for (auto& item : HalfOf(shown_).list) item.selected = false;
}

void CommandLists::MoveTo(std::size_t row) {
    Half& half = HalfOf(shown_);
    std::swap(half.list[*half.selected], half.list[row]);
    half.selected = row;
}

void CommandLists::MoveUp() {
    if (Actions().moveUp) MoveTo(*Selected() - 1);
}

void CommandLists::MoveDown() {
    if (Actions().moveDown) MoveTo(*Selected() + 1);
}

void CommandLists::Insert(std::size_t row, SearchCommand command) {
    Half& half = HalfOf(shown_);
    half.list.insert(std::next(half.list.begin(), static_cast<std::ptrdiff_t>(row)),
                     {std::move(command), false, ++lastIdentity_});
    half.selected = row;
}

void CommandLists::Add(SearchCommand command) {
    if (!Actions().add) return;
    const std::size_t row = Shown().size();
    Insert(row, std::move(command));
    SetChecked(row, true);
}

void CommandLists::Replace(SearchCommand command) {
    if (!Actions().edit) return;
    SearchCommand& replaced = HalfOf(shown_).list[*Selected()].command;
    command.number = replaced.number;
    replaced = std::move(command);
}

void CommandLists::Copy() {
    if (const auto* const command = SelectedCommand()) copied_ = *command;
}

void CommandLists::Paste() {
    if (Actions().paste) Insert(Selected().value_or(Shown().size()), *copied_);
}

void CommandLists::Remove() {
    if (!Actions().remove) return;
    Half& half = HalfOf(shown_);
    const std::size_t row = *half.selected;
    half.list.erase(std::next(half.list.begin(), static_cast<std::ptrdiff_t>(row)));
    if (half.list.empty()) {
        half.selected.reset();
    } else {
        half.selected = std::min(row, half.list.size() - 1);
    }
}

const std::wstring& SummaryOf(const SearchCommand& command) {
    return command.comment.empty() ? command.line : command.comment;
}

std::wstring DetailsOf(const SearchCommand& command, const DetailFormats& formats) {
    constexpr std::wstring_view kLineBreak = L"\r\n";
    std::wstring text = base::FormatText(formats.name, std::wstring_view{command.name});
    text.append(kLineBreak).append(base::FormatText(formats.line, std::wstring_view{command.line}));
    if (!command.comment.empty())
        text.append(kLineBreak).append(base::FormatText(formats.comment, std::wstring_view{command.comment}));
    return text;
}

} // namespace korvane::search
