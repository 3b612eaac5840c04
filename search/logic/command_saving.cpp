#include "search/logic/command_saving.h"

#include <string>
#include <vector>

#include "settings/logic/setting_keys.h"

namespace korvane::search {
namespace {

namespace keys = settings::keys;
namespace section = settings::section;
namespace value = settings::search_command;

// ERROR_WRITE_FAULT. A store says only that it could not write.
constexpr unsigned long kWriteFault = 29;

bool WriteCommand(const SearchCommand& command, int number, settings::ProfileStore& store) {
    const std::wstring name = section::SearchCommand(number);
    // The line break behind the last value leaves an empty line in the file after every command. Readers never see it.
    return store.WriteText(name, value::kName, AsIniValue(command.name)) &&
           store.WriteText(name, value::kLine, AsIniValue(command.line)) &&
           store.WriteText(name, value::kComment, AsIniValue(command.comment) + L"\r\n");
}

constexpr bool IsBlank(wchar_t character) {
    return character == L' ' || character == L'\t';
}

constexpr bool IsQuotationMark(wchar_t character) {
    return character == L'"' || character == L'\'';
}

} // namespace

std::wstring AsIniValue(std::wstring_view text) {
    std::wstring line{text};
    for (wchar_t& character : line)
        if (character == L'\r' || character == L'\n' || character == L'\0') character = L' ';
    if (line.empty()) return line;
    const bool losesBlanks = IsBlank(line.front()) || IsBlank(line.back());
    const bool losesMarks = line.size() > 1 && IsQuotationMark(line.front()) && line.front() == line.back();
    return losesBlanks || losesMarks ? L'"' + line + L'"' : line;
}

unsigned long SaveUserCommands(std::span<const ListedCommand> list, UserCommandFile& file,
                               settings::ProfileStore& userStore, settings::ProfileStore& settings) {
    if (list.empty()) return file.Delete();
    if (const unsigned long error = file.Recreate()) return error;

    std::vector<int> selected;
    int number = 0;
    for (const auto& item : list) {
        ++number;
        if (!WriteCommand(item.command, number, userStore)) {
            file.Restore();
            return kWriteFault;
        }
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
