#include "launch/logic/launch_line.h"

#include <algorithm>

#include "base/text.h"

namespace korvane::launch {

LineFields SplitLaunchLine(std::wstring_view line) {
    LineFields fields;
    const auto pieces = base::SplitText(line, L',');
    for (std::size_t i = 0; i < std::min(pieces.size(), kLineFields); ++i) fields[i] = base::Trimmed(pieces[i]);
    return fields;
}

} // namespace korvane::launch
