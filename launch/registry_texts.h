#pragma once

#include <string>

#include "launch/logic/icon_lookup.h"

namespace korvane::launch {

// A text in which each variable of the environment is replaced by its value.
[[nodiscard]] std::wstring WithVariablesReplaced(const std::wstring& text);

// The registry of Windows.
class WinRegistryTexts final : public RegistryTexts {
public:
    [[nodiscard]] std::wstring Text(Root root, const std::wstring& key, const std::wstring& name) const override;
};

} // namespace korvane::launch
