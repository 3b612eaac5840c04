#include "launch/logic/path_parts.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace korvane::launch {
namespace {

constexpr std::size_t kNone = std::wstring_view::npos;

} // namespace

std::wstring_view FileNameOf(std::wstring_view path) {
    const std::size_t end = path.find_last_not_of(L'\\');
    if (end == kNone) return path;
    if (path[end] == L':') return path;
    const std::wstring_view whole = path.substr(0, end + 1);
    const std::size_t slash = whole.find_last_of(L"\\/");
    return slash == kNone ? whole : whole.substr(slash + 1);
}

std::wstring_view ExtensionOf(std::wstring_view path) {
    const std::wstring_view name = FileNameOf(path);
    const std::size_t dot = name.find_last_of(L". ");
    return dot == kNone || name[dot] == L' ' ? std::wstring_view{} : name.substr(dot);
}

std::wstring_view FolderOf(std::wstring_view path) {
    const std::size_t slash = path.find_last_of(L"\\/");
    return slash == kNone ? std::wstring_view{} : path.substr(0, slash + 1);
}

std::wstring ShortestPath(std::wstring_view path) {
    const std::size_t slash = path.find_last_of(L'\\');
    return slash == kNone ? std::wstring{path} : std::wstring{L"..."}.append(path.substr(slash));
}

bool IsProgramExtension(std::wstring_view extension) {
    constexpr std::array<std::wstring_view, 3> kPrograms{L".exe", L".com", L".bat"};
    return std::any_of(kPrograms.begin(), kPrograms.end(), [extension](std::wstring_view program) {
        return base::EqualIgnoringAsciiCase(extension, program);
    });
}

bool IsShortcut(std::wstring_view path) {
    return base::EqualIgnoringAsciiCase(ExtensionOf(path), L".lnk");
}

std::wstring TypedPath(std::wstring_view text) {
    std::wstring_view path = base::Trimmed(text);
    if (path.size() >= 2 && path.front() == L'"' && path.back() == L'"')
        path = base::Trimmed(path.substr(1, path.size() - 2));
    return std::wstring{path};
}

} // namespace korvane::launch
