#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::launch {

// Where an icon stands: a file, and its number there or, when negative, the identifier of its resource.
struct IconLocation {
    std::wstring file;
    int index = 0;
    friend bool operator==(const IconLocation&, const IconLocation&) = default;
};

// Texts of the registry. The dropped items' is the real one; tests have their own.
class RegistryTexts {
public:
    enum class Root : std::uint8_t { kClasses, kUser, kMachine };

    // The empty name is the key's default value. Empty when there is no such text; variables of the environment come
    // replaced.
    [[nodiscard]] virtual std::wstring Text(Root root, const std::wstring& key, const std::wstring& name) const = 0;

protected:
    ~RegistryTexts() = default;
};

enum class DroppedKind : std::uint8_t { kFile, kFolder, kDrive };

// What a shortcut says of its icon.
struct ShortcutIcon {
    IconLocation icon;   // without a file when it has none of its own and looks like its target
    std::wstring target; // empty when it leads to no file or folder
    DroppedKind targetKind = DroppedKind::kFile;
    friend bool operator==(const ShortcutIcon&, const ShortcutIcon&) = default;
};

// Windows' own icon of a program, for what has no icon of its own. Since Windows 7 it stands one place further on.
[[nodiscard]] IconLocation SystemProgramIcon(bool windows7);

// What a "DefaultIcon" says, such as `"C:\a b\c.dll",-5`; without an index it is the first icon. "%1" stands for the
// file whose icon is looked for. Empty when no file is named.
[[nodiscard]] std::optional<IconLocation> ParseDefaultIcon(std::wstring_view text, const std::wstring& path);

// Where to look for the icon of a program: in itself, then Windows' own.
[[nodiscard]] std::vector<IconLocation> ProgramIcons(const std::wstring& program, bool windows7);

// Where to look for the icon of a file or folder, the best place first. A program has its own. Anything else has that
// of its type: of the one that the user chose, of the registered one, of the extension. Then come the programs with
// which the user last opened such files, and at last Windows' own icon.
[[nodiscard]] std::vector<IconLocation> IconsFor(const std::wstring& path, DroppedKind kind,
                                                 const RegistryTexts& registry, bool windows7);

// The same for a shortcut: its own icon, that of its target, and then as for any other file.
[[nodiscard]] std::vector<IconLocation> IconsForShortcut(const std::wstring& path, const ShortcutIcon& shortcut,
                                                         const RegistryTexts& registry, bool windows7);

} // namespace korvane::launch
