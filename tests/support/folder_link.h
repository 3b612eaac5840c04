#pragma once

#include <windows.h>

#include <string>

#include "base/format_text.h"
#include "framework/handle.h"
#include "tests/support/wait.h"

namespace korvane::test {

// Makes a folder that leads to another one. Wine has no links of its own but passes through those of the system below
// it, which its tool makes.
[[nodiscard]] inline bool LinkFolder(const std::wstring& link, const std::wstring& target) {
    if (::CreateSymbolicLinkW(link.c_str(), target.c_str(), SYMBOLIC_LINK_FLAG_DIRECTORY)) return true;
    const auto below = [](const std::wstring& path) {
        using ToUnix = char*(CDECL*)(const wchar_t*);
        const auto toUnix = reinterpret_cast<ToUnix>(
            reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
        std::wstring text;
        if (!toUnix) return text;
        char* const name = toUnix(path.c_str());
        for (const char* c = name; c && *c; ++c) text += static_cast<wchar_t>(*c);
        ::HeapFree(::GetProcessHeap(), 0, name);
        return text;
    };
    const std::wstring parent = link.substr(0, link.rfind(L'\\'));
    std::wstring command =
        base::FormatText(L"Z:\\bin\\ln -s \"%s\" \"%s/%s\"", std::wstring_view{below(target)},
                         std::wstring_view{below(parent)}, std::wstring_view{link}.substr(link.rfind(L'\\') + 1));
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(L"Z:\\bin\\ln", command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                          &process))
        return false;
    const fw::UniqueKernelHandle owner{process.hProcess};
    const fw::UniqueKernelHandle thread{process.hThread};
    return WaitUntil([&] { return ::GetFileAttributesW(link.c_str()) != INVALID_FILE_ATTRIBUTES; });
}

} // namespace korvane::test
