#include "app/built_in_programs.h"

#include <shlobj.h>

#include <array>
#include <string>

#include "app/logic/built_in_programs.h"
#include "framework/string_table.h"

namespace korvane::app {
namespace {

std::wstring PathOf(StandardFolder folder) {
    if (folder == StandardFolder::kNone) return {};
    const int id = folder == StandardFolder::kDocuments ? CSIDL_PERSONAL : CSIDL_PROGRAM_FILES;
    std::array<wchar_t, MAX_PATH> path{};
    if (!::SHGetSpecialFolderPathW(nullptr, path.data(), id, FALSE)) return {};
    return path.data();
}

std::wstring IconFileOf(const BuiltInProgram& program) {
    std::wstring path = PathOf(program.iconFolder);
    if (!path.empty() && !path.ends_with(L'\\')) path += L'\\';
    return path.append(program.iconFile);
}

} // namespace

std::optional<launch::CommandEntry> BuiltInProgramEntry(UINT command) {
    const BuiltInProgram* const program = BuiltInProgramOf(command);
    if (!program) return std::nullopt;
    launch::CommandEntry entry;
    entry.builtIn = true;
    entry.path = program->file;
    if (program->parametersId != 0) entry.arguments = fw::LoadText(program->parametersId);
    entry.workingFolder = PathOf(program->workingFolder);
    entry.iconFile = IconFileOf(*program);
    entry.iconIndex = program->iconIndex;
    return entry;
}

INT_PTR RunBuiltInProgram(UINT command, const EntryStarter& start) {
    const auto entry = BuiltInProgramEntry(command);
    return entry ? start(*entry, SW_SHOWNORMAL) : INT_PTR{ERROR_FILE_NOT_FOUND};
}

fw::UniqueIcon BuiltInProgramIcon(UINT command) {
    const auto entry = BuiltInProgramEntry(command);
    return entry ? launch::IconOf(*entry) : fw::UniqueIcon{};
}

} // namespace korvane::app
