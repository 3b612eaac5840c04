#include "settings/data_folder.h"

#include <shlobj.h>

#include <array>

#include "settings/logic/data_folder_path.h"

namespace korvane::settings {

DataFolder FindDataFolder() {
    std::array<wchar_t, MAX_PATH> applicationData{};
    if (!::SHGetSpecialFolderPathW(nullptr, applicationData.data(), CSIDL_APPDATA, FALSE))
        return {std::nullopt, ::GetLastError()};
    return {DataFolderBelow(applicationData.data())};
}

} // namespace korvane::settings
