#include "launch/logic/launch_menu.h"

#include <algorithm>

#include "base/format_text.h"
#include "base/menu_rows.h"
#include "launch/logic/launch_limits.h"

namespace korvane::launch {
namespace {

// The settings entry has the 0.
constexpr std::wstring_view kAccelerators = L"123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
static_assert(kAccelerators.size() == MaxLaunchItems - MinLaunchItems);

} // namespace

std::vector<base::MenuRow> PlanLaunchMenu(std::span<const std::wstring> names, std::wstring_view settingsText) {
    std::vector<base::MenuRow> rows;
    for (std::size_t i = 0; i < std::min(names.size(), kAccelerators.size()); ++i)
        rows.push_back({LaunchItemCommandId(MinLaunchItems + static_cast<int>(i)),
                        base::FormatText(L"[&%c] %s", kAccelerators[i], std::wstring_view{names[i]})});
    base::GroupByFive(rows);
    if (!rows.empty()) rows.emplace_back();
    rows.push_back({ID_LAUNCH_SETTINGS, std::wstring{settingsText}});
    return rows;
}

} // namespace korvane::launch
