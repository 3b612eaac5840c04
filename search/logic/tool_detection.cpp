#include "search/logic/tool_detection.h"

namespace korvane::search {
namespace {

std::wstring InstalledPath(SearchTool tool, std::span<const settings::ProfileStore* const> machineViews) {
    const InstallationTrace& trace = TraceOf(tool);
    for (const settings::ProfileStore* const view : machineViews) {
        std::wstring path = ToolPathFrom(tool, view->ReadText(trace.key, trace.value));
        if (!path.empty()) return path;
    }
    return {};
}

} // namespace

void KeepToolPaths(settings::ProfileStore& settings, std::span<const settings::ProfileStore* const> machineViews) {
    for (const SearchTool tool : kSearchTools) {
        const settings::TextSetting& setting = PathSetting(tool);
        const std::wstring path = InstalledPath(tool, machineViews);
        // The paths hardly ever change, and every start comes by here.
        if (settings.Read(setting) != path) settings.Write(setting, path);
    }
}

} // namespace korvane::search
