#pragma once

#include <string>

namespace fw {

// The full path of a program of Windows, or a file of one, that is named without its folder: that of the system folder,
// of the Windows folder, of the search path or, at last, what is registered under the name. What is nowhere is sought
// in the system folder, where it is not: the shell, given the name alone, would go on to the current folder. Anything
// that is named with a folder comes back as it is.
[[nodiscard]] std::wstring WindowsProgram(const std::wstring& name);

} // namespace fw
