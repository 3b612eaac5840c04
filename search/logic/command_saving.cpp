#include "search/logic/command_saving.h"

#include <string>
#include <vector>

#include "settings/logic/setting_keys.h"

namespace korvane::search {
namespace {

namespace keys = settings::keys;

std::vector<SearchCommand> CommandsOf(std::span<const ListedCommand> list) {
    std::vector<SearchCommand> commands;
    for (const auto& item : list) {
        commands.push_back(item.command);
        commands.back().number = static_cast<int>(commands.size());
    }
    return commands;
}

unsigned long SaveFile(const std::vector<SearchCommand>& commands, const UserCommandReading& loaded,
                       UserCommandFile& file) {
    const UserCommandReading now = file.Read();
    const bool nothingThere = now.condition == FileCondition::kNone;
    // What the user did not change is not written, even if another program has changed it since or holds it now.
    if (commands == loaded.commands && !nothingThere) return 0;
    if (!commands.empty() && commands == now.commands) return 0;
    const bool allLoaded = now.condition == FileCondition::kGood && now.commands == loaded.commands;
    if (!nothingThere && !allLoaded)
        if (const unsigned long error = file.KeepCopy()) return error;
    return commands.empty() ? file.Delete() : file.Write(commands);
}

} // namespace

unsigned long SaveUserCommands(std::span<const ListedCommand> list, const UserCommandReading& loaded,
                               UserCommandFile& file, settings::ProfileStore& settings) {
    if (const unsigned long error = SaveFile(CommandsOf(list), loaded, file)) return error;
    if (list.empty()) return 0;

    std::vector<int> selected;
    int number = 0;
    for (const auto& item : list) {
        ++number;
        if (item.selected) selected.push_back(number);
    }
    settings.Write(keys::UserSearchCommand, FormatNumberList(selected));
    return 0;
}

bool SaveStandardSelection(std::span<const ListedCommand> list, settings::ProfileStore& settings) {
    std::vector<int> order;
    std::vector<int> selected;
    for (const auto& item : list) {
        order.push_back(item.command.number);
        if (item.selected) selected.push_back(item.command.number);
    }
    const bool orderWritten = settings.Write(keys::SearchCommandOrder, FormatNumberList(order));
    // An empty selection is written as an empty text, not removed: removed, it would read as the built-in one again.
    const bool selectionWritten = settings.Write(keys::DefaultSearchCommand, FormatNumberList(selected));
    return orderWritten && selectionWritten;
}

} // namespace korvane::search
