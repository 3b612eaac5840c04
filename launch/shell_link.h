#pragma once

#include <windows.h>

#include <shlobj.h>

#include <memory>
#include <string>

namespace korvane::launch {

struct ReleaseInterface {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class T>
using UniqueInterface = std::unique_ptr<T, ReleaseInterface>;

// What a shortcut file says. Nobody asks its target. COM must be initialised on this thread. Empty when the file is no
// shortcut or cannot be read.
[[nodiscard]] UniqueInterface<IShellLinkW> LoadShellLink(const std::wstring& file);

} // namespace korvane::launch
