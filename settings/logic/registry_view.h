#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace korvane::settings {

// 64-bit Windows shows a program the machine's values as programs of its own word size see them; what 32-bit programs
// left there stands apart.
enum class RegistryView : std::uint8_t { kOwn, k32Bit };

inline constexpr std::array kViewsOn64Bit{RegistryView::kOwn, RegistryView::k32Bit};

// The views in which the traces of installed programs are to be looked for, first choice first, by a program with
// pointers of that many bytes. The 32-bit edition runs on 32-bit Windows only, which has a single view.
[[nodiscard]] constexpr std::span<const RegistryView> ViewsOfInstalledPrograms(std::size_t pointerBytes) {
    constexpr std::size_t kPointerOf64Bit = 8;
    return std::span{kViewsOn64Bit}.first(pointerBytes == kPointerOf64Bit ? 2 : 1);
}

} // namespace korvane::settings
