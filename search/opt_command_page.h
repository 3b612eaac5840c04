#pragma once

#include "about/help_opener.h"
#include "controls/option_page.h"
#include "framework/dialog.h"
#include "res/ids.h"
#include "search/logic/command_saving.h"
#include "search/logic/search_commands.h"

namespace korvane::search {

// Where the page writes the user's commands to; both outlive whatever takes this.
struct UserCommandPlaces {
    UserCommandFile& file;
    settings::ProfileStore& store; // writes into that file
};

// The options' page for the search commands.
class COptCommandPage final : public fw::Dialog<COptCommandPage> {
public:
    static constexpr UINT kTemplate = IDD_OPTIONS_COMMANDS;

    static constexpr auto Messages() { return fw::MessageMap{}; }

    // All outlive the page.
    COptCommandPage(SearchStores stores, UserCommandPlaces user, about::HelpOpener& help);

    // Writes which kind comes first, the order and selection of the standard commands, and the user's commands with
    // theirs. False when a setting could not be written; that the user's commands could not, the user has been told.
    bool Save();

private:
    SearchStores stores_;
    UserCommandPlaces user_;
    about::HelpOpener& help_;
};

} // namespace korvane::search
