#include "launch/shortcut.h"

#include <windows.h>

#include <array>

#include "framework/icons.h"
#include "launch/launch_item.h"
#include "launch/logic/import_rules.h"
#include "launch/logic/item_name.h"
#include "launch/registry_texts.h"
#include "launch/shell_link.h"

namespace korvane::launch {
namespace {

using Buffer = std::array<wchar_t, MAX_PATH>;

void Fill(ImportableItem& item, IShellLinkW& link) {
    constexpr int kLength = MAX_PATH;
    Buffer path{};
    Buffer arguments{};
    Buffer folder{};
    Buffer iconFile{};
    link.GetPath(path.data(), kLength, nullptr, 0);
    item.path = path.data();
    if (SUCCEEDED(link.GetArguments(arguments.data(), kLength))) item.arguments = arguments.data();
    if (SUCCEEDED(link.GetWorkingDirectory(folder.data(), kLength)))
        item.workingFolder = WithVariablesReplaced(folder.data());
    int index = 0;
    if (SUCCEEDED(link.GetIconLocation(iconFile.data(), kLength, &index))) {
        item.iconFile = iconFile.data();
        // A launch item takes this number for "no icon", and an item without an icon ends the list.
        item.iconIndex = index == CLaunchItem::kNoIcon ? 0 : index;
    }
    if (item.iconFile.empty()) item.iconFile = item.path;
}

// Empty unless the file lies on the network.
std::wstring NetworkRootOf(const std::wstring& file) {
    std::wstring root = RootOf(file);
    const bool isDrive = root.ends_with(L':');
    if (isDrive && ::GetDriveTypeW((root + L"\\").c_str()) != DRIVE_REMOTE) root.clear();
    return root;
}

fw::UniqueIcon AskForIcon(const ImportableItem& item, ShortcutRoots& roots) {
    if (item.iconFile.empty()) return {};
    const std::wstring root = NetworkRootOf(item.iconFile);
    if (!roots.BeginAsking(root)) return {};
    const ULONGLONG beginMs = ::GetTickCount64();
    fw::UniqueIcon icon = fw::ExtractSmallIcon(item.iconFile, item.iconIndex);
    roots.EndAsking(root, std::chrono::milliseconds{::GetTickCount64() - beginMs}, static_cast<bool>(icon));
    return icon;
}

} // namespace

ImportableItem UnresolvedItem(const std::wstring& file) {
    ImportableItem item;
    item.name = ItemNameFor(file, {}, true);
    return item;
}

ImportableItem ShellShortcutReader::Read(const std::wstring& file, ShortcutRoots& roots) {
    ImportableItem item = UnresolvedItem(file);
    const auto link = LoadShellLink(file);
    if (!link) return item;
    Fill(item, *link);
    // Not every version of Windows fills variables in when it takes an icon.
    item.iconFile = WithVariablesReplaced(item.iconFile);
    item.icon = AskForIcon(item, roots);
    item.selectable = item.icon && CanBeKept({.path = item.path,
                                              .arguments = item.arguments,
                                              .workingFolder = item.workingFolder,
                                              .iconFile = item.iconFile,
                                              .iconIndex = item.iconIndex,
                                              .name = item.name});
    return item;
}

} // namespace korvane::launch
