#include "framework/menu_rows.h"

namespace fw {

void FillMenu(HMENU popup, std::span<const korvane::base::MenuRow> rows) {
    for (int at = ::GetMenuItemCount(popup) - 1; at >= 0; --at)
        ::RemoveMenu(popup, static_cast<UINT>(at), MF_BYPOSITION);
    for (const korvane::base::MenuRow& row : rows)
        ::AppendMenuW(popup, (row.IsSeparator() ? MF_SEPARATOR : MF_STRING) | (row.enabled ? MF_ENABLED : MF_GRAYED),
                      row.command, row.text.c_str());
}

} // namespace fw
