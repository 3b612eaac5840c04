#include "search/logic/execute_search.h"

#include <utility>

#include "base/format_text.h"
#include "res/ids.h"

namespace korvane::search {
namespace {

SearchOutcome StartedOrFailed(unsigned long error) {
    if (error != 0) return SearchFailed{error};
    return SearchStarted{};
}

SearchOutcome NotFound(SearchTool tool) {
    return Refusal{IDS_TOOL_NOT_FOUND, std::wstring{ProgramNameOf(tool)}, false};
}

} // namespace

SearchOutcome RunEverythingSearch(std::wstring_view commandLine, std::wstring_view text,
                                  const settings::ProfileStore& settings, ProcessStarter& starter) {
    const auto path = ReadToolPath(settings, SearchTool::kEverything);
    if (!path) return NotFound(SearchTool::kEverything);
    return StartedOrFailed(starter.StartCommandLine(EverythingCommandLine(commandLine, text, *path)));
}

SearchOutcome RunEditorSearch(SearchTool tool, std::wstring& text, const settings::ProfileStore& settings,
                              const AskEditorSearch& ask, ProcessStarter& starter) {
    const auto path = ReadToolPath(settings, tool);
    if (!path) return NotFound(tool);
    auto answer = ask(tool, text);
    if (!answer) return Refusal{.messageId = 0, .argument = {}, .silent = true};
    text = std::move(answer->text);
    return StartedOrFailed(starter.StartCommandLine(
        base::FormatText(L"\"%s\" %s", std::wstring_view{*path}, std::wstring_view{answer->arguments})));
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
