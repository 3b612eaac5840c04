#include "search/logic/execute_search.h"

#include "res/ids.h"

namespace korvane::search {
namespace {

SearchOutcome StartedOrFailed(unsigned long error) {
    if (error != 0) return SearchFailed{error};
    return SearchStarted{};
}

} // namespace

SearchOutcome RunEverythingSearch(std::wstring_view commandLine, std::wstring_view text,
                                  const settings::ProfileStore& settings, ProcessStarter& starter) {
    const std::wstring path = settings.Read(PathSetting(SearchTool::kEverything));
    if (path.empty()) return Refusal{IDS_TOOL_NOT_FOUND, std::wstring{ProgramNameOf(SearchTool::kEverything)}, false};
    return StartedOrFailed(starter.StartCommandLine(EverythingCommandLine(commandLine, text, path)));
}

SearchOutcome ExecuteSearch(const SearchRequest& request, const SearchStores& stores, const SearchTextEncoder& encoder,
                            ProcessStarter& starter) {
    const std::wstring line = stores.TableOf(request.command.Kind()).LineOf(request.command.Number());
    const auto encode = [&](std::wstring_view text, TextEncoding encoding) { return encoder.Encode(text, encoding); };
    Expansion expansion = Expand(line, request.text, request.menuName, encode);

    if (const auto* const launch = std::get_if<Launch>(&expansion))
        return StartedOrFailed(ErrorOfShell(starter.Open(launch->commandLine)));
    if (std::holds_alternative<EverythingSearch>(expansion))
        return RunEverythingSearch(line, request.text, stores.settings, starter);
    if (const auto* const editor = std::get_if<EditorSearch>(&expansion)) return *editor;
    return std::get<Refusal>(std::move(expansion));
}

} // namespace korvane::search
