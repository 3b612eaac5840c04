#include "search/logic/search_tool.h"

#include "base/text.h"
#include "search/logic/folder_text.h"
#include "search/logic/placeholder_expansion.h"

namespace korvane::search {
namespace {

// What a registry value tells of where the program stands.
enum class Names { kUninstaller, kFolder };

struct ToolRow {
    std::wstring_view name;
    std::wstring_view program;
    settings::TextSetting path;
    InstallationTrace trace;
    Names names;
};

constexpr std::array<ToolRow, kSearchTools.size()> kTools{{
    {L"Everything",
     L"Everything.exe",
     settings::keys::EverythingPath,
     {L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Everything", L"UninstallString"},
     Names::kUninstaller},
    {L"EmEditor",
     L"EmEditor.exe",
     settings::keys::EmEditorPath,
     {L"SOFTWARE\\EmSoft\\EmEditor v3\\Common", L"ModulePath"},
     Names::kFolder},
    {L"Hidemaru",
     L"Hidemaru.exe",
     settings::keys::HidemaruPath,
     {L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Hidemaru", L"InstallLocation"},
     Names::kFolder},
}};

const ToolRow& RowOf(SearchTool tool) {
    return kTools[static_cast<std::size_t>(tool)];
}

} // namespace

std::wstring_view ToolNameOf(SearchTool tool) {
    return RowOf(tool).name;
}

std::wstring_view ProgramNameOf(SearchTool tool) {
    return RowOf(tool).program;
}

const settings::TextSetting& PathSetting(SearchTool tool) {
    return RowOf(tool).path;
}

const settings::EditorSearchSettings& OptionsSetting(SearchTool editor) {
    return editor == SearchTool::kHidemaru ? settings::keys::HidemaruSearch : settings::keys::EmEditorSearch;
}

const InstallationTrace& TraceOf(SearchTool tool) {
    return RowOf(tool).trace;
}

std::wstring ToolPathFrom(SearchTool tool, std::wstring_view registryText) {
    if (registryText.empty()) return {};
    const ToolRow& row = RowOf(tool);
    if (row.names == Names::kFolder) return WithBackslash(registryText).append(row.program);
    // Nothing is left of a text without a backslash, as npos + 1 is 0.
    return std::wstring{registryText.substr(0, registryText.rfind(L'\\') + 1)}.append(row.program);
}

std::optional<std::wstring> ReadToolPath(const settings::ProfileStore& settings, SearchTool tool) {
    auto path = settings.Read(PathSetting(tool));
    if (path.empty()) return std::nullopt;
    return path;
}

std::wstring EverythingCommandLine(std::wstring_view commandLine, std::wstring_view text,
                                   std::wstring_view everythingPath) {
    const auto withText = base::ReplaceAll(commandLine, kUtf16Placeholder, text);
    return base::ReplaceAll(withText, kEverythingPlaceholder, everythingPath);
}

} // namespace korvane::search
