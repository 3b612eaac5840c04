#pragma once

#include <string>

#include "launch/logic/icon_lookup.h"

namespace korvane::launch {

// The registry of Windows.
class WinRegistryTexts final : public RegistryTexts {
public:
    [[nodiscard]] std::wstring Text(Root root, const std::wstring& key, const std::wstring& name) const override;
};

} // namespace korvane::launch
