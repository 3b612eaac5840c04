#include "launch/logic/import_rules.h"

#include <algorithm>

#include "base/text.h"

namespace korvane::launch {
namespace {

constexpr wchar_t SmallLetter(wchar_t c) {
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

constexpr bool IsLetter(wchar_t c) {
    return SmallLetter(c) >= L'a' && SmallLetter(c) <= L'z';
}

} // namespace

SourceStep StepForSource(int chosen, int current) {
    if (chosen < 0 || chosen == current) return SourceStep::kNothing;
    const auto row = static_cast<std::size_t>(chosen);
    if (row >= kImportSources.size()) return SourceStep::kScanFolderAskedFor;
    return kImportSources[row].folder == ImportFolder::kAskedFor ? SourceStep::kAskForFolder
                                                                 : SourceStep::kScanSpecialFolder;
}

bool ScansSubfolders(int source) {
    const auto row = static_cast<std::size_t>(source);
    return row >= kImportSources.size() || kImportSources[row].subfolders;
}

bool IsDotEntry(std::wstring_view name) {
    return name == L"." || name == L"..";
}

bool CanBeKept(const LaunchLineParts& parts) {
    const auto& [path, arguments, folder, iconFile, indexText, name] = SplitLaunchLine(FormatLaunchLine(parts));
    // What follows a comma in the name is lost, and nothing else; blanks around a field do not matter.
    return !parts.path.empty() && !parts.iconFile.empty() && !name.empty() && path == base::Trimmed(parts.path) &&
           arguments == base::Trimmed(parts.arguments) && folder == base::Trimmed(parts.workingFolder) &&
           iconFile == base::Trimmed(parts.iconFile) && base::LeadingInteger(indexText) == parts.iconIndex;
}

std::vector<int> RefusedRows(std::span<const ImportRow> rows, int places) {
    const auto wantsPlace = [](const ImportRow& row) { return row.selected && row.selectable; };
    int kept = 0;
    for (const ImportRow& row : rows) kept += wantsPlace(row) && row.selectedBefore ? 1 : 0;
    int newOnes = places - kept;

    std::vector<int> refused;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!rows[i].selected) continue;
        const bool takesPlace = rows[i].selectable && (rows[i].selectedBefore || newOnes-- > 0);
        if (!takesPlace) refused.push_back(static_cast<int>(i));
    }
    return refused;
}

std::wstring RootOf(std::wstring_view path) {
    std::wstring root;
    std::size_t length = 0;
    if (path.size() >= 2 && IsLetter(path[0]) && path[1] == L':') {
        length = 2;
    } else if (path.starts_with(L"\\\\")) {
        const std::size_t behindComputer = path.find(L'\\', 2);
        length = behindComputer == std::wstring_view::npos ? path.size() : path.find(L'\\', behindComputer + 1);
    }
    for (const wchar_t c : path.substr(0, length)) root += SmallLetter(c);
    return root;
}

} // namespace korvane::launch
