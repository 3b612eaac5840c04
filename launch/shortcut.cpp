#include "launch/shortcut.h"

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

#include <array>
#include <memory>

#include "framework/icons.h"
#include "launch/launch_item.h"
#include "launch/logic/import_rules.h"

namespace korvane::launch {
namespace {

struct ReleaseInterface {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class T>
using Interface = std::unique_ptr<T, ReleaseInterface>;

using Buffer = std::array<wchar_t, MAX_PATH>;

Interface<IShellLinkW> LoadLink(const std::wstring& file) {
    void* created = nullptr;
    if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, &created)))
        return {};
    Interface<IShellLinkW> link{static_cast<IShellLinkW*>(created)};
    void* persist = nullptr;
    if (FAILED(link->QueryInterface(IID_IPersistFile, &persist))) return {};
    const Interface<IPersistFile> persistFile{static_cast<IPersistFile*>(persist)};
    if (FAILED(persistFile->Load(file.c_str(), 0))) return {};
    return link;
}

void Fill(ImportableItem& item, IShellLinkW& link) {
    constexpr int kLength = MAX_PATH;
    Buffer path{};
    Buffer arguments{};
    Buffer folder{};
    Buffer iconFile{};
    link.GetPath(path.data(), kLength, nullptr, 0);
    item.path = path.data();
    if (SUCCEEDED(link.GetArguments(arguments.data(), kLength))) item.arguments = arguments.data();
    if (SUCCEEDED(link.GetWorkingDirectory(folder.data(), kLength))) item.workingFolder = folder.data();
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

// A shortcut may name its icon by variables, which not every version of Windows fills in when it takes an icon.
void FillInVariables(std::wstring& file) {
    if (file.find(L'%') == std::wstring::npos) return;
    Buffer whole{};
    const DWORD length = ::ExpandEnvironmentStringsW(file.c_str(), whole.data(), static_cast<DWORD>(whole.size()));
    if (length != 0 && length <= whole.size()) file = whole.data();
}

} // namespace

ImportableItem UnresolvedItem(const std::wstring& file) {
    ImportableItem item;
    item.name = DisplayName(file);
    return item;
}

ImportableItem ShellShortcutReader::Read(const std::wstring& file, ShortcutRoots& roots) {
    ImportableItem item = UnresolvedItem(file);
    const Interface<IShellLinkW> link = LoadLink(file);
    if (!link) return item;
    Fill(item, *link);
    FillInVariables(item.iconFile);
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
