#include "launch/dropped_item.h"

#include <windows.h>

#include <shlwapi.h>

#include <vector>

#include "framework/program_path.h"
#include "framework/version_information.h"
#include "framework/windows_version.h"
#include "launch/logic/item_name.h"
#include "launch/logic/path_parts.h"
#include "launch/registry_texts.h"
#include "launch/search_path.h"
#include "launch/shortcut_icon.h"

namespace korvane::launch {
namespace {

DroppedKind KindOf(const std::wstring& path) {
    if (::PathIsRootW(path.c_str()) && path.find(L':') != std::wstring::npos) return DroppedKind::kDrive;
    return ::PathIsDirectoryW(path.c_str()) ? DroppedKind::kFolder : DroppedKind::kFile;
}

std::vector<IconLocation> IconsOf(const std::wstring& path, DroppedKind kind) {
    const WinRegistryTexts registry;
    const bool windows7 = fw::IsWindowsAtLeast(fw::kWindows7);
    if (kind == DroppedKind::kFile && IsShortcut(path))
        return IconsForShortcut(path, ReadShortcutIcon(path), registry, windows7);
    return IconsFor(path, kind, registry, windows7);
}

} // namespace

bool GiveFirstIcon(CLaunchItem& item, std::span<const IconLocation> icons) {
    for (const IconLocation& icon : icons) {
        item.SetIcon(WithFolderFound(icon.file), icon.index);
        if (item.Icon()) return true;
    }
    item.SetIcon({}, CLaunchItem::kNoIcon);
    return false;
}

CLaunchItem ItemFromFile(const std::wstring& path) {
    const DroppedKind kind = KindOf(path);
    const bool isFile = kind == DroppedKind::kFile;
    CLaunchItem item;
    item.Set(path, {}, {}, ItemNameFor(path, isFile ? fw::FileDescription(path) : std::wstring{}, isFile));
    auto icons = IconsOf(path, kind);
    if (auto program = fw::ProgramPath()) icons.push_back({*std::move(program), 0});
    GiveFirstIcon(item, icons);
    return item;
}

} // namespace korvane::launch
