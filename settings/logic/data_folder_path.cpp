#include "settings/logic/data_folder_path.h"

namespace korvane::settings {

std::wstring DataFolderBelow(std::wstring_view applicationData) {
    std::wstring folder{applicationData};
    // A redirected folder may be the root of a drive, which ends in a backslash already.
    if (!folder.ends_with(L'\\')) folder += L'\\';
    return folder += L"Dunmere Software\\Korvane\\";
}

std::wstring CommandFileIn(std::wstring_view dataFolder) {
    return std::wstring{dataFolder} += L"Korvane.dat";
}

std::wstring UserCommandFileIn(std::wstring_view dataFolder) {
    return std::wstring{dataFolder} += L"UserCommand.dat";
}

std::wstring CopyOfUserCommandFile(std::wstring_view userCommandFile) {
    constexpr std::wstring_view kExtension = L".dat";
    if (userCommandFile.ends_with(kExtension)) userCommandFile.remove_suffix(kExtension.size());
    return std::wstring{userCommandFile}.append(L".bak");
}

} // namespace korvane::settings
