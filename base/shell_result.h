#pragma once

namespace korvane::base {

// The Windows error code for a result of the shell: 0 when it opened something. Its results up to 32 are error codes as
// they stand, except that it says 0 when memory ran out.
[[nodiscard]] constexpr unsigned long ErrorOfShell(int result) {
    constexpr int kLastFailure = 32;
    constexpr unsigned long kNotEnoughMemory = 8;
    if (result > kLastFailure) return 0;
    return result > 0 ? static_cast<unsigned long>(result) : kNotEnoughMemory;
}

} // namespace korvane::base
