#include "search/logic/search_tool.h"

#include <array>

#include "base/text.h"
#include "search/logic/placeholder_expansion.h"
#include "settings/logic/setting_keys.h"

namespace korvane::search {
namespace {

struct ToolRow {
    std::wstring_view program;
    settings::TextSetting path;
};

constexpr std::array<ToolRow, 3> kTools{{
    {L"Everything.exe", settings::keys::EverythingPath},
    {L"EmEditor.exe", settings::keys::EmEditorPath},
    {L"Hidemaru.exe", settings::keys::HidemaruPath},
}};

const ToolRow& RowOf(SearchTool tool) {
    return kTools[static_cast<std::size_t>(tool)];
}

} // namespace

std::wstring_view ProgramNameOf(SearchTool tool) {
    return RowOf(tool).program;
}

const settings::TextSetting& PathSetting(SearchTool tool) {
    return RowOf(tool).path;
}

std::wstring EverythingCommandLine(std::wstring_view commandLine, std::wstring_view text,
                                   std::wstring_view everythingPath) {
    const auto withText = base::ReplaceAll(commandLine, kUtf16Placeholder, text);
    return base::ReplaceAll(withText, kEverythingPlaceholder, everythingPath);
}

} // namespace korvane::search
