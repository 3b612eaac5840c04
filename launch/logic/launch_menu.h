#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/menu_rows.h"

namespace korvane::launch {

// What the launch menu holds, given the names of the items behind the launch buttons: an entry for each in blocks of
// five, a separator, and the way to the settings; without items only the latter. Characters to choose an entry by go by
// its place, 1 to 9 and then A to Z; names beyond the 35th have none and are left out.
//
// Names are shown as they stand. One with an ampersand, which the editor refuses, still obeys its own character and no
// other: a menu goes by the first ampersand of a text, and that is the one in front of the name.
[[nodiscard]] std::vector<base::MenuRow> PlanLaunchMenu(std::span<const std::wstring> names,
                                                        std::wstring_view settingsText);

} // namespace korvane::launch
