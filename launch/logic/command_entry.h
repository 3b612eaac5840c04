#pragma once

#include <string>
#include <string_view>

namespace korvane::launch {

// What a launch button or a control panel entry starts.
struct CommandEntry {
    std::wstring path;
    std::wstring arguments;
    std::wstring workingFolder;
    std::wstring iconFile;
    std::wstring iconIndexText;
    std::wstring name;
    int iconIndex = -1; // -1: no icon
    // The program's own entry, not the user's: its files are Windows' and named without their folders.
    bool builtIn = false;

    [[nodiscard]] bool HasIcon() const { return !iconFile.empty() && iconIndex != -1; }
};

[[nodiscard]] CommandEntry ParseCommandEntry(std::wstring_view line);

} // namespace korvane::launch
