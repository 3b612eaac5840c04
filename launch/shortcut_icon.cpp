#include "launch/shortcut_icon.h"

#include <windows.h>

#include <array>

#include "launch/registry_texts.h"
#include "launch/shell_link.h"

namespace korvane::launch {

ShortcutIcon ReadShortcutIcon(const std::wstring& file) {
    const auto link = LoadShellLink(file);
    if (!link) return {};
    ShortcutIcon icon;
    std::array<wchar_t, MAX_PATH> text{};
    constexpr int kLength = static_cast<int>(text.size());
    if (SUCCEEDED(link->GetIconLocation(text.data(), kLength, &icon.icon.index)))
        icon.icon.file = WithVariablesReplaced(text.data());
    text = {};
    WIN32_FIND_DATAW target{};
    if (SUCCEEDED(link->GetPath(text.data(), kLength, &target, 0))) icon.target = WithVariablesReplaced(text.data());
    if ((target.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) icon.targetKind = DroppedKind::kFolder;
    return icon;
}

} // namespace korvane::launch
