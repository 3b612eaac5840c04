#pragma once

namespace fw {

struct WindowsVersion {
    unsigned major;
    unsigned minor;
};

inline constexpr WindowsVersion kWindowsVista{6, 0};
inline constexpr WindowsVersion kWindows7{6, 1};
inline constexpr WindowsVersion kWindows8{6, 2};
inline constexpr WindowsVersion kWindows10{10, 0};

// True on the given version and every later one. The manifest names the versions that the program knows; without it
// Windows would call every version after 8 by 8's number.
[[nodiscard]] bool IsWindowsAtLeast(WindowsVersion version);

// True on Wine, which names the version of a Windows that it stands for but draws some things in its own way.
[[nodiscard]] bool IsWine();

} // namespace fw
