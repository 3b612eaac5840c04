#pragma once

#include <string>
#include <string_view>

#include "framework/handle.h"

namespace fw {

// Loads a library of the system folder by its full path, so that a file of the same name beside the program, or in the
// current folder, is never taken for it. Null when it is not there.
[[nodiscard]] UniqueLibrary LoadSystemLibrary(std::wstring_view fileName);

// From now on libraries that are named without a folder come from the system folder alone. For the first line of the
// program.
void TakeLibrariesFromSystemFolder();

// The system folder, without a backslash at the end; empty when Windows does not tell.
[[nodiscard]] std::wstring SystemFolder();

// The address of an exported function, or null when the library is missing or too old.
template <class Function>
[[nodiscard]] Function* FunctionOf(HMODULE library, const char* name) {
    if (!library) return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(library, name)));
}

} // namespace fw
