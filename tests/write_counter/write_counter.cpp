// Goes into a program by a message hook and takes the place of every function that the program imports to change the
// registry or a file. It counts the calls and ends the program at the one that it was told: before it is carried out,
// or half-way through it where the call writes bytes.

#include "tests/write_counter/protocol.h"

#include <array>
#include <cstddef>
#include <cstring>

namespace korvane::test {
namespace {

CountedCalls* g_calls = nullptr;

// True when the program is to end at this call.
bool CountCall(const char* name) {
    const LONG number = ::InterlockedIncrement(&g_calls->count);
    if (number <= CountedCalls::kMost) ::lstrcpynA(g_calls->names[number - 1], name, sizeof g_calls->names[0]);
    return number == g_calls->endAt;
}

void End() {
    ::TerminateProcess(::GetCurrentProcess(), kEndedByCounter);
}

struct Replacement {
    const char* name;
    void* function;
    void** original;
};

// A function that counts and passes on, for each of the given name and type.
template <std::size_t NameLength>
struct Name {
    char text[NameLength];
    consteval Name(const char (&from)[NameLength]) { // NOLINT(google-explicit-constructor)
        for (std::size_t i = 0; i < NameLength; ++i) text[i] = from[i];
    }
};
template <Name kName, class Function>
struct Counted;
template <Name kName, class Result, class... Arguments>
struct Counted<kName, Result(WINAPI*)(Arguments...)> {
    static inline Result(WINAPI* original)(Arguments...) = nullptr;
    static Result WINAPI Call(Arguments... arguments) {
        if (CountCall(kName.text)) End();
        return original(arguments...);
    }
    static Replacement Row() {
        return {kName.text, reinterpret_cast<void*>(&Call), reinterpret_cast<void**>(&original)};
    }
};

decltype(&::CreateFileW) g_createFile = nullptr;
HANDLE WINAPI CountedCreateFile(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                                DWORD disposition, DWORD flags, HANDLE like) {
    // Only what may change something.
    const bool writes = (access & (GENERIC_WRITE | FILE_APPEND_DATA)) != 0 || disposition != OPEN_EXISTING;
    if (writes && CountCall("CreateFileW")) End();
    return g_createFile(path, access, sharing, security, disposition, flags, like);
}

decltype(&::WriteFile) g_writeFile = nullptr;
BOOL WINAPI CountedWriteFile(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPOVERLAPPED overlapped) {
    if (CountCall("WriteFile")) {
        g_writeFile(file, bytes, count / 2, written, overlapped);
        End();
    }
    return g_writeFile(file, bytes, count, written, overlapped);
}

// Keys are made and opened by one function; an empty key more is nothing lost, and what is written into it is counted.
auto Replacements() {
    return std::array{
        Counted<"RegSetValueExW", decltype(&::RegSetValueExW)>::Row(),
        Counted<"RegDeleteValueW", decltype(&::RegDeleteValueW)>::Row(),
        Counted<"RegDeleteKeyW", decltype(&::RegDeleteKeyW)>::Row(),
        Counted<"RegDeleteTreeW", decltype(&::RegDeleteTreeW)>::Row(),
        Counted<"RegDeleteKeyExW", decltype(&::RegDeleteKeyExW)>::Row(),
        Counted<"RegSetKeyValueW", decltype(&::RegSetKeyValueW)>::Row(),
        Counted<"RegDeleteKeyValueW", decltype(&::RegDeleteKeyValueW)>::Row(),
        Counted<"WritePrivateProfileStringW", decltype(&::WritePrivateProfileStringW)>::Row(),
        Counted<"WritePrivateProfileSectionW", decltype(&::WritePrivateProfileSectionW)>::Row(),
        Counted<"FlushFileBuffers", decltype(&::FlushFileBuffers)>::Row(),
        Counted<"SetEndOfFile", decltype(&::SetEndOfFile)>::Row(),
        Counted<"ReplaceFileW", decltype(&::ReplaceFileW)>::Row(),
        Counted<"MoveFileW", decltype(&::MoveFileW)>::Row(),
        Counted<"MoveFileExW", decltype(&::MoveFileExW)>::Row(),
        Counted<"CopyFileW", decltype(&::CopyFileW)>::Row(),
        Counted<"DeleteFileW", decltype(&::DeleteFileW)>::Row(),
        Counted<"SetFileAttributesW", decltype(&::SetFileAttributesW)>::Row(),
        Replacement{"CreateFileW", reinterpret_cast<void*>(&CountedCreateFile),
                    reinterpret_cast<void**>(&g_createFile)},
        Replacement{"WriteFile", reinterpret_cast<void*>(&CountedWriteFile), reinterpret_cast<void**>(&g_writeFile)},
    };
}

void ReplaceImports(std::byte* module) {
    const auto at = [module](DWORD offset) { return module + offset; };
    const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(module);
    const auto& headers = *reinterpret_cast<const IMAGE_NT_HEADERS*>(at(static_cast<DWORD>(dos.e_lfanew)));
    const auto& imports = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto replacements = Replacements();
    for (auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(at(imports.VirtualAddress)); library->Name;
         ++library) {
        auto* name = reinterpret_cast<IMAGE_THUNK_DATA*>(at(library->OriginalFirstThunk));
        auto* slot = reinterpret_cast<IMAGE_THUNK_DATA*>(at(library->FirstThunk));
        for (; name->u1.AddressOfData; ++name, ++slot) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) continue;
            const auto* const byName =
                reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(at(static_cast<DWORD>(name->u1.AddressOfData)));
            for (const Replacement& replacement : replacements) {
                if (std::strcmp(reinterpret_cast<const char*>(byName->Name), replacement.name) != 0) continue;
                auto** const address = reinterpret_cast<void**>(&slot->u1.Function);
                *replacement.original = *address;
                DWORD protection = 0;
                ::VirtualProtect(address, sizeof *address, PAGE_READWRITE, &protection);
                *address = replacement.function;
                ::VirtualProtect(address, sizeof *address, protection, &protection);
            }
        }
    }
}

void Begin() {
    if (g_calls) return;
    const HANDLE mapping = ::OpenFileMappingW(FILE_MAP_ALL_ACCESS, FALSE, kCounterMapping);
    if (!mapping) return;
    g_calls = static_cast<CountedCalls*>(::MapViewOfFile(mapping, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(CountedCalls)));
    ::CloseHandle(mapping);
    if (!g_calls) return;
    // The program goes on to call into this library when the hook is gone.
    HMODULE self = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                         reinterpret_cast<LPCWSTR>(&CountCall), &self);
    ReplaceImports(reinterpret_cast<std::byte*>(::GetModuleHandleW(nullptr)));
    ::InterlockedExchange(&g_calls->counting, 1);
}

} // namespace
} // namespace korvane::test

extern "C" __declspec(dllexport) LRESULT CALLBACK WriteCounterHook(int code, WPARAM wparam, LPARAM lparam) {
    const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lparam);
    if (code == HC_ACTION && message.message == ::RegisterWindowMessageW(korvane::test::kCounterMessage))
        korvane::test::Begin();
    return ::CallNextHookEx(nullptr, code, wparam, lparam);
}
