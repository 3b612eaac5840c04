#pragma once

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

#include <stdexcept>
#include <string>

namespace korvane::test {

// What a shortcut file is to hold; what is empty is left out.
struct Shortcut {
    std::wstring target{};
    std::wstring arguments{};
    std::wstring workingFolder{};
    std::wstring iconFile{};
    int iconIndex = 0;
};

// Writes a shortcut as the shell does. COM must be initialised on this thread.
inline void WriteShortcut(const std::wstring& file, const Shortcut& shortcut) {
    const auto check = [](HRESULT result) {
        if (FAILED(result)) throw std::runtime_error{"the shortcut cannot be written"};
    };
    void* created = nullptr;
    check(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, &created));
    auto* const link = static_cast<IShellLinkW*>(created);
    if (!shortcut.target.empty()) link->SetPath(shortcut.target.c_str());
    if (!shortcut.arguments.empty()) link->SetArguments(shortcut.arguments.c_str());
    if (!shortcut.workingFolder.empty()) link->SetWorkingDirectory(shortcut.workingFolder.c_str());
    if (!shortcut.iconFile.empty()) link->SetIconLocation(shortcut.iconFile.c_str(), shortcut.iconIndex);
    void* persist = nullptr;
    const HRESULT got = link->QueryInterface(IID_IPersistFile, &persist);
    link->Release();
    check(got);
    auto* const persistFile = static_cast<IPersistFile*>(persist);
    const HRESULT saved = persistFile->Save(file.c_str(), TRUE);
    persistFile->Release();
    check(saved);
}

} // namespace korvane::test
