#pragma once

#include <windows.h>

#include <winternl.h>

#include <cstddef>
#include <cstdint>

#include "framework/system_library.h"

namespace korvane::test {

// How many GDI objects the process holds. Windows tells; Wine does not, but keeps its table of GDI handles where
// Windows had it, in the process environment block.
[[nodiscard]] inline int GdiObjectCount() {
    if (const DWORD told = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS); told != 0)
        return static_cast<int>(told);

    struct Entry {
        std::uint64_t object;
        std::uint32_t owner;
        std::uint16_t unique;
        std::uint8_t type;
        std::uint8_t flags;
        std::uint64_t user;
    };
    constexpr std::size_t kEntries = 0x4000;
    constexpr std::size_t kTableOffset = sizeof(void*) == 4 ? 0x94 : 0xF8;
    using Query = NTSTATUS WINAPI(HANDLE, PROCESSINFOCLASS, void*, ULONG, ULONG*);
    auto* const query = fw::FunctionOf<Query>(::GetModuleHandleW(L"ntdll.dll"), "NtQueryInformationProcess");
    PROCESS_BASIC_INFORMATION process{};
    query(::GetCurrentProcess(), ProcessBasicInformation, &process, sizeof process, nullptr);
    const auto* const block = reinterpret_cast<const std::byte*>(process.PebBaseAddress);
    const Entry* const table = *reinterpret_cast<const Entry* const*>(block + kTableOffset);
    int count = 0;
    for (std::size_t i = 0; i < kEntries; ++i)
        if (table[i].type != 0 && table[i].object != 0) ++count;
    return count;
}

} // namespace korvane::test
