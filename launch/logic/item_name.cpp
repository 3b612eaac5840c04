#include "launch/logic/item_name.h"

#include "base/text.h"
#include "launch/logic/path_parts.h"

namespace korvane::launch {

std::wstring ItemNameFor(std::wstring_view path, std::wstring_view description, bool isFile) {
    std::wstring_view name = base::Trimmed(description);
    if (name.empty()) {
        name = FileNameOf(path);
        const std::wstring_view extension = ExtensionOf(name);
        if (isFile && IsShortcut(name) && extension.size() < name.size()) name.remove_suffix(extension.size());
    }
    return base::ReplaceAll(name, L"&", L"＆");
}

} // namespace korvane::launch
