#include "search/logic/typed_command.h"

#include <algorithm>

namespace korvane::search {
namespace {

constexpr std::wstring_view kBlanks = L" \t";
constexpr wchar_t kQuote = L'"';

} // namespace

std::wstring CommandLineOfTyped(std::wstring_view text) {
    std::wstring line = text.find(L".cpl") != std::wstring_view::npos ? L"control.exe " : L"";
    return line.append(text);
}

std::vector<CommandParts> PartingsOf(std::wstring_view line) {
    const auto part = [line](std::size_t first, std::size_t last, std::size_t rest) {
        rest = std::min(line.find_first_not_of(kBlanks, rest), line.size());
        return CommandParts{std::wstring{line.substr(first, last - first)}, std::wstring{line.substr(rest)}};
    };
    const std::size_t first = line.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos) return {};
    if (line[first] == kQuote) {
        const std::size_t last = std::min(line.find(kQuote, first + 1), line.size());
        return {part(first + 1, last, std::min(last + 1, line.size()))};
    }
    std::vector<CommandParts> partings;
    for (std::size_t last = first; last < line.size();) {
        last = std::min(line.find_first_of(kBlanks, last), line.size());
        partings.push_back(part(first, last, last));
        last = std::min(line.find_first_not_of(kBlanks, last), line.size());
    }
    return partings;
}

RunOutcome RunTypedCommand(std::wstring_view text, ProcessStarter& starter) {
    const std::wstring line = CommandLineOfTyped(text);
    const unsigned long error = starter.StartCommandLine(line);
    if (error == 0) return {};
    // Only the shell can ask the user for more rights, and it takes a whole line for the name of a file.
    constexpr unsigned long kElevationRequired = 740;
    if (error == kElevationRequired)
        for (const CommandParts& parts : PartingsOf(line))
            if (const auto program = starter.FindProgram(parts.program))
                return {ErrorOfShell(starter.OpenProgram(*program, parts.arguments))};
    return {ErrorOfShell(starter.Open(line))};
}

std::wstring WithPickedPath(std::wstring_view text, std::wstring_view path, PathEntry entry) {
    if (entry == PathEntry::kReplace || text.empty()) return std::wstring{path};
    std::wstring joined{text};
    if (kBlanks.find(joined.back()) == std::wstring_view::npos) joined += L' ';
    if (path.find_first_of(kBlanks) == std::wstring_view::npos) return joined.append(path);
    return joined.append(L"\"").append(path).append(L"\"");
}

std::wstring OnOneLine(std::wstring_view text) {
    const std::size_t last = text.find_last_not_of(L"\r\n");
    if (last == std::wstring_view::npos) return {};
    text = text.substr(0, last + 1);

    std::wstring line;
    line.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == L'\r' && at + 1 < text.size() && text[at + 1] == L'\n') continue;
        line += text[at] == L'\r' || text[at] == L'\n' ? L' ' : text[at];
    }
    return line;
}

std::wstring_view WithinRoom(std::wstring_view text, std::size_t room) {
    constexpr auto isLeadingHalf = [](wchar_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
    if (text.size() <= room) return text;
    if (room > 0 && isLeadingHalf(text[room - 1])) --room;
    return text.substr(0, room);
}

} // namespace korvane::search
