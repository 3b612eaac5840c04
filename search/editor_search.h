#pragma once

#include <windows.h>

#include <string>

#include "about/help_opener.h"
#include "search/logic/execute_search.h"

namespace korvane::search {

// A search with a text editor: asks for its options in a dialog over the owner, then starts the editor. `text` becomes
// what the user made of it, also when the editor then cannot be started.
[[nodiscard]] SearchOutcome RunEditorSearch(HWND owner, SearchTool editor, std::wstring& text,
                                            settings::ProfileStore& settings, about::HelpOpener& help,
                                            ProcessStarter& starter);

} // namespace korvane::search
