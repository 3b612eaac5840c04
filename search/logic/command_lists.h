#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "search/logic/command_saving.h"
#include "search/logic/search_commands.h"

namespace korvane::search {

// What can be done with the list on view.
struct CommandActions {
    bool moveUp = false;
    bool moveDown = false;
    bool checkAll = false;
    bool uncheckAll = false;
    bool copy = false;
    // With the user's commands only.
    bool add = false;
    bool edit = false;
    bool remove = false;
    bool paste = false;

    friend bool operator==(const CommandActions&, const CommandActions&) = default;
};

// What the user is told when no more commands can be checked: the limit, and how much of it the other list takes.
struct SelectionLimit {
    int most = kMostSelectedCommands;
    SearchCommandKind other = SearchCommandKind::kUser;
    int checkedThere = 0;

    friend bool operator==(const SelectionLimit&, const SelectionLimit&) = default;
};

// What a command is found again by, whatever became of the lists in the meantime.
struct CommandMark {
    SearchCommandKind kind;
    unsigned identity;
};

// The two lists of search commands in the options, of which one is on view, with a row of each that may be selected.
// What changes a list changes the one on view. Calls that make no sense at the time (see Actions) change nothing.
class CommandLists {
public:
    using List = std::vector<ListedCommand>;

    CommandLists() = default;
    // All commands of both kinds, with the stored order and selection. The user's are given, for they must be as they
    // stand in their file, while a store may cut them. More commands than the limit stay checked when they are stored
    // so: only checking another one is refused then.
    CommandLists(const SearchStores& stores, std::vector<SearchCommand> userCommands);

    [[nodiscard]] const List& Of(SearchCommandKind kind) const { return HalfOf(kind).list; }
    [[nodiscard]] const List& Shown() const { return Of(shown_); }
    [[nodiscard]] SearchCommandKind ShownKind() const { return shown_; }
    void Show(SearchCommandKind kind) { shown_ = kind; }

    // The row on view that is selected. A row that the list does not have selects nothing.
    [[nodiscard]] std::optional<std::size_t> Selected() const { return HalfOf(shown_).selected; }
    void Select(std::optional<std::size_t> row);
    // Null when nothing is selected.
    [[nodiscard]] const SearchCommand* SelectedCommand() const;

    // The selected command's mark; empty when nothing is selected.
    [[nodiscard]] std::optional<CommandMark> Mark() const;
    // Puts the list of a marked command on view and selects the command. False, and nothing is changed, when it is
    // gone.
    [[nodiscard]] bool GoBackTo(const CommandMark& mark);

    [[nodiscard]] CommandActions Actions() const;
    [[nodiscard]] int CheckedIn(SearchCommandKind kind) const;
    [[nodiscard]] int Checked() const;

    // Empty when one more command of the list on view may be checked.
    [[nodiscard]] std::optional<SelectionLimit> LimitReached() const;
    void SetChecked(std::size_t row, bool checked);
    // Checks from the top on. Gives what the user is to be told when the limit is met before the end of the list.
    std::optional<SelectionLimit> CheckAll();
    void UncheckAll();

    // The selected command changes places with its neighbour and stays selected.
    void MoveUp();
    void MoveDown();

    // Behind the user's last command. It becomes selected, and checked while one more may be: whoever makes a command
    // looks for it in the menu.
    void Add(SearchCommand command);
    // Gives the selected command new texts.
    void Replace(SearchCommand command);
    // Keeps a duplicate of the selected command, for any number of pastes.
    void Copy();
    // Before the selected command, or behind the last one. It becomes selected, but is not checked.
    void Paste();
    // Selects what comes to stand in the place of the selected command, or the last one.
    void Remove();

private:
    struct Half {
        List list;
        std::optional<std::size_t> selected;
    };

    [[nodiscard]] const Half& HalfOf(SearchCommandKind kind) const { return halves_[static_cast<std::size_t>(kind)]; }
    [[nodiscard]] Half& HalfOf(SearchCommandKind kind) { return halves_[static_cast<std::size_t>(kind)]; }
    void MoveTo(std::size_t row);
    void Insert(std::size_t row, SearchCommand command);

    std::array<Half, 2> halves_; // in the order of SearchCommandKind
    SearchCommandKind shown_ = SearchCommandKind::kStandard;
    std::optional<SearchCommand> copied_;
    unsigned lastIdentity_ = 0;
};

// What a command's row says beside its name: its comment, or its command line where there is none.
[[nodiscard]] const std::wstring& SummaryOf(const SearchCommand& command);

// Formats for one text each.
struct DetailFormats {
    std::wstring name;
    std::wstring line;
    std::wstring comment;
};
// All of a command's texts, each on a line of its own; no line for a comment that there is not.
[[nodiscard]] std::wstring DetailsOf(const SearchCommand& command, const DetailFormats& formats);

} // namespace korvane::search
