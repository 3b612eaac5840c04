#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>

#include "search/logic/placeholder_expansion.h"
#include "search/logic/process_starter.h"
#include "search/logic/search_commands.h"
#include "search/logic/text_encoding.h"

namespace korvane::search {

// Carrying out the current search command as far as no window is needed.

// The search was started: its text belongs into the search history.
struct SearchStarted {
    friend bool operator==(const SearchStarted&, const SearchStarted&) = default;
};
// It was not: the system's text for the code is to be shown.
struct SearchFailed {
    unsigned long error = 0; // Windows error code
    friend bool operator==(const SearchFailed&, const SearchFailed&) = default;
};
// An EditorSearch is left to the caller, who asks the user for the options first; a Refusal comes with its message.
using SearchOutcome = std::variant<SearchStarted, SearchFailed, EditorSearch, Refusal>;

// What the user sees and typed when the search is started.
struct SearchRequest {
    SearchCommandId command;
    std::wstring text;     // of the search box, as it stands
    std::wstring menuName; // the command's text in the search menu
};

[[nodiscard]] SearchOutcome ExecuteSearch(const SearchRequest& request, const SearchStores& stores,
                                          const SearchTextEncoder& encoder, ProcessStarter& starter);

// Starts Everything with a command line of a search command.
[[nodiscard]] SearchOutcome RunEverythingSearch(std::wstring_view commandLine, std::wstring_view text,
                                                const settings::ProfileStore& settings, ProcessStarter& starter);

// What the user decided about a search with a text editor.
struct EditorSearchAnswer {
    std::wstring text;      // to search for, maybe changed
    std::wstring arguments; // for the editor
    friend bool operator==(const EditorSearchAnswer&, const EditorSearchAnswer&) = default;
};
// Asks the user; empty when the search was cancelled.
using AskEditorSearch =
    std::function<std::optional<EditorSearchAnswer>(SearchTool editor, const std::wstring& searchText)>;

// Asks for the options of a search with a text editor and starts the editor with them. `text` becomes what the user
// made of it, also when the editor then cannot be started.
[[nodiscard]] SearchOutcome RunEditorSearch(SearchTool tool, std::wstring& text, const settings::ProfileStore& settings,
                                            const AskEditorSearch& ask, ProcessStarter& starter);

} // namespace korvane::search
