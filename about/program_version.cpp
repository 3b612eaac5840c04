#include "about/program_version.h"

#include <climits>

#include "framework/program_path.h"
#include "framework/version_information.h"

namespace korvane::about {

std::wstring FileVersionOf(const std::wstring& file) {
    return fw::VersionValue(file, L"FileVersion");
}

std::wstring ReadVersionText(const settings::ProfileStore& windowsValues) {
    constexpr int kAddressBits = static_cast<int>(sizeof(void*) * CHAR_BIT);
    return VersionText(kAddressBits, FileVersionOf(fw::ProgramPath().value_or(std::wstring{})),
                       ReadWindowsIdentity(windowsValues));
}

} // namespace korvane::about
