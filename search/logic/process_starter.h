#pragma once

#include <string>

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
};

// The Windows error code for a result of the shell: 0 when it opened something. Its results up to 32 are error codes as
// they stand, except that it says 0 when memory ran out.
[[nodiscard]] constexpr unsigned long ErrorOfShell(int result) {
    constexpr int kLastFailure = 32;
    constexpr unsigned long kNotEnoughMemory = 8;
    if (result > kLastFailure) return 0;
    return result > 0 ? static_cast<unsigned long>(result) : kNotEnoughMemory;
}

} // namespace korvane::search
