#include "launch/logic/launch_line.h"

#include <algorithm>

#include "base/format_text.h"
#include "base/text.h"

namespace korvane::launch {

LineFields SplitLaunchLine(std::wstring_view line) {
    LineFields fields;
    const auto pieces = base::SplitText(line, L',', kLineFields);
    std::transform(pieces.begin(), pieces.end(), fields.begin(), &base::Trimmed);
    return fields;
}

std::wstring FormatLaunchLine(const LaunchLineParts& parts) {
    const auto orBlank = [](std::wstring_view field) { return field.empty() ? std::wstring_view{L" "} : field; };
    return base::FormatText(L"%s,%s,%s,%s,%d,%s", parts.path, orBlank(parts.arguments), orBlank(parts.workingFolder),
                            parts.iconFile, parts.iconIndex, parts.name);
}

} // namespace korvane::launch
