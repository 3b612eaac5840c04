#include "launch/shortcut_icon.h"

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

#include <array>
#include <memory>

#include "launch/registry_texts.h"

namespace korvane::launch {
namespace {

struct ReleaseInterface {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class T>
using Interface = std::unique_ptr<T, ReleaseInterface>;

Interface<IShellLinkW> LoadLink(const std::wstring& file) {
    void* created = nullptr;
    if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, &created)))
        return {};
    Interface<IShellLinkW> link{static_cast<IShellLinkW*>(created)};
    void* persist = nullptr;
    if (FAILED(link->QueryInterface(IID_IPersistFile, &persist))) return {};
    const Interface<IPersistFile> persistFile{static_cast<IPersistFile*>(persist)};
    return SUCCEEDED(persistFile->Load(file.c_str(), STGM_READ)) ? std::move(link) : nullptr;
}

} // namespace

ShortcutIcon ReadShortcutIcon(const std::wstring& file) {
    const auto link = LoadLink(file);
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
