#include "launch/shell_link.h"

#include <objbase.h>

namespace korvane::launch {

fw::UniqueInterface<IShellLinkW> LoadShellLink(const std::wstring& file) {
    void* created = nullptr;
    if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, &created)))
        return {};
    fw::UniqueInterface<IShellLinkW> link{static_cast<IShellLinkW*>(created)};
    void* persist = nullptr;
    if (FAILED(link->QueryInterface(IID_IPersistFile, &persist))) return {};
    const fw::UniqueInterface<IPersistFile> persistFile{static_cast<IPersistFile*>(persist)};
    return SUCCEEDED(persistFile->Load(file.c_str(), STGM_READ)) ? std::move(link) : nullptr;
}

} // namespace korvane::launch
