#include "search/search_tools.h"

#include <windows.h>

#include <vector>

#include "search/logic/tool_detection.h"
#include "settings/registry_backend.h"

namespace korvane::search {

void DetectSearchTools(settings::ProfileStore& settings) {
    std::vector<settings::RegistryStore> machine;
    for (const settings::RegistryView view : settings::ViewsOfInstalledPrograms(sizeof(void*)))
        machine.emplace_back(HKEY_LOCAL_MACHINE, L"", settings::RegistryAccess{.view = view, .expandTexts = true});

    std::vector<const settings::ProfileStore*> views;
    views.reserve(machine.size());
    for (const settings::RegistryStore& store : machine) views.push_back(&store);
    KeepToolPaths(settings, views);
}

} // namespace korvane::search
