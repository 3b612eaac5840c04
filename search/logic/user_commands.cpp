#include "search/logic/user_commands.h"

#include <algorithm>
#include <array>
#include <set>

#include "base/text.h"
#include "settings/logic/setting_keys.h"

namespace korvane::search {
namespace {

namespace section = settings::section;
namespace value = settings::search_command;

constexpr std::string_view kByteOrderMark = "\xFF\xFE";

constexpr bool IsBlank(wchar_t character) {
    return character == L' ' || character == L'\t';
}

constexpr bool IsQuotationMark(wchar_t character) {
    return character == L'"' || character == L'\'';
}

void AppendLine(std::wstring& text, std::wstring_view name, std::wstring_view value) {
    text.append(name).append(L"=").append(value).append(L"\r\n");
}

void AppendUtf16(std::string& bytes, std::wstring_view text) {
    for (const wchar_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
}

// The text of a file, in which at least the letters of ASCII are right whatever the file's encoding.
std::wstring TextOf(std::string_view bytes) {
    std::wstring text;
    if (!bytes.starts_with(kByteOrderMark)) {
        for (const char byte : bytes) text += static_cast<wchar_t>(static_cast<unsigned char>(byte));
        return text;
    }
    for (std::size_t at = kByteOrderMark.size(); at + 1 < bytes.size(); at += 2)
        text += static_cast<wchar_t>(static_cast<unsigned char>(bytes[at]) |
                                     (static_cast<unsigned char>(bytes[at + 1]) << 8));
    return text;
}

bool StartsWith(std::wstring_view text, std::wstring_view start) {
    return base::EqualIgnoringAsciiCase(text.substr(0, start.size()), start);
}

// What a line of the file is to a reader of commands.
enum class LineKind { kNothing, kExpected, kStrange, kLostCommand };

class FileReader {
public:
    explicit FileReader(std::size_t commandsRead) : commandsRead_{commandsRead} {}

    LineKind Read(std::wstring_view line) {
        line = base::Trimmed(line);
        // One line of the header begins with a colon.
        if (line.empty() || line.front() == L';' || line.front() == L':') return LineKind::kNothing;
        if (line.front() == L'[') return ReadSection(line);
        if (!inCommand_) return LineKind::kStrange;
        constexpr std::array kValues{value::kName, value::kLine, value::kComment};
        const std::wstring_view name = base::Trimmed(line.substr(0, line.find(L'=')));
        const bool known = line.find(L'=') != std::wstring_view::npos &&
                           std::any_of(kValues.begin(), kValues.end(), [&](std::wstring_view each) {
                               return base::EqualIgnoringAsciiCase(each, name);
                           });
        return known ? LineKind::kExpected : LineKind::kStrange;
    }

private:
    LineKind ReadSection(std::wstring_view line) {
        inCommand_ = false;
        const std::size_t end = line.find(L']');
        const std::wstring_view name = line.substr(1, end == std::wstring_view::npos ? end : end - 1);
        // A number may be written in several ways, of which a reader looks for one only.
        const std::wstring_view first = L"SearchCommand_";
        if (!StartsWith(name, first)) return LineKind::kStrange;
        const int number = base::LeadingInteger(name.substr(first.size()));
        const bool read = number >= 1 && static_cast<std::size_t>(number) <= commandsRead_ &&
                          base::EqualIgnoringAsciiCase(name, section::SearchCommand(number)) &&
                          end != std::wstring_view::npos;
        if (!read) return LineKind::kLostCommand;
        inCommand_ = true;
        // Of two sections with one name the second is not read.
        return seen_.insert(number).second ? LineKind::kExpected : LineKind::kLostCommand;
    }

    std::size_t commandsRead_;
    bool inCommand_ = false;
    std::set<int> seen_;
};

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

std::string FormatUserCommands(std::wstring_view header, std::span<const SearchCommand> commands) {
    std::wstring text{header};
    int number = 0;
    for (const SearchCommand& command : commands) {
        text.append(L"[").append(section::SearchCommand(++number)).append(L"]\r\n");
        AppendLine(text, value::kName, AsIniValue(command.name));
        AppendLine(text, value::kLine, AsIniValue(command.line));
        AppendLine(text, value::kComment, AsIniValue(command.comment));
        text.append(L"\r\n");
    }
    std::string bytes{kByteOrderMark};
    AppendUtf16(bytes, text);
    return bytes;
}

FileCondition JudgeUserCommands(std::string_view bytes, std::size_t commandsRead) {
    const std::wstring text = TextOf(bytes);
    const bool odd = bytes.size() % 2 != 0;
    bool strange = !bytes.starts_with(kByteOrderMark) || odd || !text.ends_with(L'\n');
    bool anything = odd;
    FileReader reader{commandsRead};
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of(L"\r\n", at), text.size());
        const LineKind kind = reader.Read(std::wstring_view{text}.substr(at, end - at));
        if (kind == LineKind::kLostCommand) return FileCondition::kUnreadable;
        if (kind == LineKind::kStrange) strange = true;
        if (kind != LineKind::kNothing) anything = true;
        at = end + 1;
    }
    if (!anything) return FileCondition::kNone;
    if (commandsRead == 0) return FileCondition::kUnreadable;
    return strange ? FileCondition::kForeign : FileCondition::kGood;
}

} // namespace korvane::search
