#pragma once

#include <optional>
#include <string>

#include "base/shell_result.h"

namespace korvane::search {

// Starts what the user asks for.
class ProcessStarter {
public:
    virtual ~ProcessStarter() = default;

    // Starts a command line as a process: program first, then its arguments. Gives the Windows error code, 0 for
    // success.
    [[nodiscard]] virtual unsigned long StartCommandLine(const std::wstring& commandLine) = 0;

    // Has the shell open a file, a folder or an address. Gives the shell's result; see ErrorOfShell.
    [[nodiscard]] virtual int Open(const std::wstring& file) = 0;

    // Has the shell start a program, for which it may ask the user for more rights. Gives the shell's result.
    [[nodiscard]] virtual int OpenProgram(const std::wstring& program, const std::wstring& arguments) = 0;

    // The full path of the program that a command line would start which begins with this name; empty when there is
    // none.
    [[nodiscard]] virtual std::optional<std::wstring> FindProgram(const std::wstring& name) = 0;
};

using base::ErrorOfShell;

} // namespace korvane::search
