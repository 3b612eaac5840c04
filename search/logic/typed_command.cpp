#include "search/logic/typed_command.h"

namespace korvane::search {
namespace {

constexpr std::wstring_view kBlanks = L" \t";

} // namespace

std::wstring CommandLineOfTyped(std::wstring_view text) {
    std::wstring line = text.find(L".cpl") != std::wstring_view::npos ? L"control.exe " : L"";
    return line.append(text);
}

RunOutcome RunTypedCommand(std::wstring_view text, ProcessStarter& starter) {
    const std::wstring line = CommandLineOfTyped(text);
    if (starter.StartCommandLine(line) == 0) return {};
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
