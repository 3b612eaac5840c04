#include "launch/logic/item_check.h"

#include "base/text.h"
#include "launch/logic/path_parts.h"
#include "res/ids.h"

namespace korvane::launch {
namespace {

using Field = ItemProblem::Field;

// Without what the settings would drop as well.
ItemFields Cleaned(const ItemFields& fields) {
    return {.program = TypedPath(fields.program),
            .name = std::wstring{base::Trimmed(fields.name)},
            .arguments = std::wstring{base::Trimmed(fields.arguments)},
            .workingFolder = TypedPath(fields.workingFolder),
            .hasIcon = fields.hasIcon};
}

std::wstring WithFolder(const std::wstring& program, const FileLookup& files) {
    if (program.empty() || program.find(L'\\') != std::wstring::npos) return program;
    std::wstring found = files.OnSearchPath(program);
    return found.empty() ? program : found;
}

std::optional<ItemProblem> ProblemOfProgram(const std::wstring& program, const FileLookup& files, bool anyFile) {
    const PathKind kind = files.KindOf(program);
    if (kind == PathKind::kNothing) return ItemProblem{IDS_FILE_NOT_FOUND, program, Field::kProgram};
    if (kind == PathKind::kFile && !IsProgramExtension(ExtensionOf(program)) && !anyFile)
        return ItemProblem{IDS_NOT_EXECUTABLE, program, Field::kProgram, true};
    return std::nullopt;
}

std::optional<ItemProblem> FirstProblem(const ItemFields& item, const FileLookup& files, bool anyFile) {
    if (!item.hasIcon) return ItemProblem{IDS_NO_ITEM_ICON, {}, Field::kIcon};
    if (auto problem = ProblemOfProgram(item.program, files, anyFile)) return problem;
    if (item.name.find(L'&') != std::wstring::npos) return ItemProblem{IDS_AMPERSAND_IN_NAME, {}, Field::kName};
    if (!item.workingFolder.empty() && files.KindOf(item.workingFolder) != PathKind::kFolder)
        return ItemProblem{IDS_FOLDER_NOT_FOUND, item.workingFolder, Field::kWorkingFolder};
    return std::nullopt;
}

} // namespace

ItemCheck CheckItem(const ItemFields& fields, const FileLookup& files, bool anyFile) {
    ItemFields item = Cleaned(fields);
    // Nobody is asked about an item without an icon.
    if (item.hasIcon) item.program = WithFolder(item.program, files);
    auto problem = FirstProblem(item, files, anyFile);
    return {std::move(problem), std::move(item)};
}

} // namespace korvane::launch
