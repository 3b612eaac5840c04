#include "launch/logic/launch_page.h"

#include "base/format_text.h"

namespace korvane::launch {

std::wstring RowLabel(int row) {
    return IsButtonRow(row) ? base::FormatText(L"[L-%d]", row + 1)
                            : base::FormatText(L"[%d]", row - MinLaunchItems + 1);
}

} // namespace korvane::launch
