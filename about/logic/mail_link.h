#pragma once

#include <string>
#include <string_view>

namespace korvane::about {

// What opens a new mail to the maker's support in the user's mail program, with the version text in its body.
[[nodiscard]] std::wstring SupportMailLink(std::wstring_view versionText);

} // namespace korvane::about
