#include "launch/logic/icon_lookup.h"

#include <algorithm>

#include "base/format_text.h"
#include "base/text.h"
#include "launch/logic/path_parts.h"

namespace korvane::launch {
namespace {

using Root = RegistryTexts::Root;

constexpr std::wstring_view kFileExts = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\%s\\%s";
constexpr std::wstring_view kAppPaths = L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\%s";

// The index -1 asks for the number of icons, so the resource with the identifier 1 cannot be had by it. There is no
// lower identifier: it is the first icon.
int UsableIndex(int index) {
    return index == -1 ? 0 : index;
}

// Behind the comma that it begins with.
bool BeginsNumber(std::wstring_view text) {
    const std::wstring_view number = base::Trimmed(text.substr(text.empty() ? 0 : 1));
    return number.find_first_of(L"0123456789-+") == 0;
}

std::vector<std::wstring> TypesOf(const std::wstring& extension, const RegistryTexts& registry) {
    return {registry.Text(Root::kUser, base::FormatText(kFileExts, extension, L"UserChoice"), L"ProgId"),
            registry.Text(Root::kClasses, extension, {}), extension, L"SystemFileAssociations\\" + extension};
}

// With its folder where it is registered with one; otherwise it is left to the search path.
std::wstring RegisteredProgram(const std::wstring& program, const RegistryTexts& registry) {
    const std::wstring key = base::FormatText(kAppPaths, program);
    for (const Root root : {Root::kUser, Root::kMachine})
        if (std::wstring path = TypedPath(registry.Text(root, key, {})); !path.empty()) return path;
    return program;
}

// The programs that such files were opened with. Each has a letter, and the letters stand in the order of their last
// use.
std::vector<IconLocation> IconsOfOpeners(const std::wstring& extension, const RegistryTexts& registry) {
    const std::wstring key = base::FormatText(kFileExts, extension, L"OpenWithList");
    std::vector<IconLocation> icons;
    for (const wchar_t letter : registry.Text(Root::kUser, key, L"MRUList")) {
        const std::wstring program = TypedPath(registry.Text(Root::kUser, key, std::wstring(1, letter)));
        if (!program.empty()) icons.push_back({RegisteredProgram(program, registry), 0});
    }
    return icons;
}

std::vector<std::wstring> TypesOf(const std::wstring& path, DroppedKind kind, const RegistryTexts& registry) {
    switch (kind) {
    case DroppedKind::kDrive:
        return {L"Drive", L"Folder"};
    case DroppedKind::kFolder:
        return {L"Folder", L"Directory"};
    case DroppedKind::kFile:
        break;
    }
    const std::wstring extension{ExtensionOf(path)};
    return extension.empty() ? std::vector<std::wstring>{L"Unknown"} : TypesOf(extension, registry);
}

} // namespace

IconLocation SystemProgramIcon(bool windows7) {
    return {L"imageres.dll", windows7 ? 11 : 10};
}

std::optional<IconLocation> ParseDefaultIcon(std::wstring_view text, const std::wstring& path) {
    text = base::Trimmed(text);
    std::wstring_view file;
    std::wstring_view rest;
    if (text.starts_with(L'"')) {
        const std::size_t end = text.find(L'"', 1);
        file = text.substr(1, end == std::wstring_view::npos ? end : end - 1);
        rest = end == std::wstring_view::npos ? std::wstring_view{} : text.substr(end + 1);
    } else {
        // A path may hold commas; the index stands behind the last, if there is one.
        std::size_t comma = std::min(text.rfind(L','), text.size());
        if (!BeginsNumber(text.substr(comma))) comma = text.size();
        file = text.substr(0, comma);
        rest = text.substr(comma);
    }
    file = base::Trimmed(file);
    if (file.empty()) return std::nullopt;
    const std::size_t comma = rest.find(L',');
    const int index = comma == std::wstring_view::npos ? 0 : base::LeadingInteger(rest.substr(comma + 1));
    return IconLocation{file == L"%1" ? path : std::wstring{file}, UsableIndex(index)};
}

std::vector<IconLocation> ProgramIcons(const std::wstring& program, bool windows7) {
    return {{program, 0}, SystemProgramIcon(windows7)};
}

std::vector<IconLocation> IconsFor(const std::wstring& path, DroppedKind kind, const RegistryTexts& registry,
                                   bool windows7) {
    const std::wstring extension{ExtensionOf(path)};
    if (kind == DroppedKind::kFile && IsProgramExtension(extension)) return ProgramIcons(path, windows7);

    std::vector<IconLocation> icons;
    for (const std::wstring& type : TypesOf(path, kind, registry)) {
        if (type.empty()) continue;
        if (auto icon = ParseDefaultIcon(registry.Text(Root::kClasses, type + L"\\DefaultIcon", {}), path))
            icons.push_back(*std::move(icon));
    }
    if (kind == DroppedKind::kFile && !extension.empty())
        for (IconLocation& icon : IconsOfOpeners(extension, registry)) icons.push_back(std::move(icon));
    icons.push_back(SystemProgramIcon(windows7));
    return icons;
}

std::vector<IconLocation> IconsForShortcut(const std::wstring& path, const ShortcutIcon& shortcut,
                                           const RegistryTexts& registry, bool windows7) {
    std::vector<IconLocation> icons;
    if (!shortcut.icon.file.empty()) icons.push_back({shortcut.icon.file, UsableIndex(shortcut.icon.index)});
    if (!shortcut.target.empty()) {
        for (IconLocation& icon : IconsFor(shortcut.target, shortcut.targetKind, registry, windows7))
            icons.push_back(std::move(icon));
        // The last resort comes once, at the end.
        icons.pop_back();
    }
    for (IconLocation& icon : IconsFor(path, DroppedKind::kFile, registry, windows7)) icons.push_back(std::move(icon));
    return icons;
}

} // namespace korvane::launch
