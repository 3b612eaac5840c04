#pragma once

#include <span>
#include <string>

namespace korvane::app {

// What the process ends with.
inline constexpr int kExitNormal = 0;
inline constexpr int kExitForwarded = 2; // another copy runs and was brought forward
inline constexpr int kExitFontMissing = 3;

// The narrowest screen, in physical pixels, on which the bar can be used.
inline constexpr int kNarrowestScreenPx = 1024;

enum class StartRefusal { kNone, kWrongEdition, kScreenTooNarrow };

struct StartSurroundings {
    bool underWow64 = false; // a 32-bit process on 64-bit Windows, for which there is an edition of its own
    int screenWidthPx = 0;
};

[[nodiscard]] constexpr StartRefusal CheckStart(const StartSurroundings& now) {
    if (now.underWow64) return StartRefusal::kWrongEdition;
    if (now.screenWidthPx < kNarrowestScreenPx) return StartRefusal::kScreenTooNarrow;
    return StartRefusal::kNone;
}

// The interface is laid out for one font. Windows 7 and later always have it; before, it came with an update.
// `fullNames` are the names that Windows lists for the face.
[[nodiscard]] inline bool HasInterfaceFont(bool windows7OrLater, std::span<const std::wstring> fullNames) {
    if (windows7OrLater) return true;
    for (const std::wstring& name : fullNames)
        if (name.find(L"Meiryo UI") != std::wstring::npos) return true;
    return false;
}

} // namespace korvane::app
