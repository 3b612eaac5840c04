#include "settings/logic/window_placement.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace korvane::settings {
namespace {

using base::Rect;

// Design pixels. A window is dragged by a strip at its upper edge, and so much of that strip must show. A smaller
// window must show whole.
constexpr int kStripHeightPx = 32;
constexpr int kGripWidthPx = 64;
constexpr int kGripHeightPx = 16;

// Windows parks minimised windows at -32000; such a place, and all beyond, was never one that the user chose.
constexpr int kParkedPx = -32000;
constexpr int kFarthestPx = std::numeric_limits<std::int16_t>::max();

bool CanBeAWindow(const Rect& rect) {
    return !rect.Empty() && rect.left > kParkedPx && rect.top > kParkedPx && rect.right <= kFarthestPx &&
           rect.bottom <= kFarthestPx;
}

bool CanBeGrasped(const Rect& rect, const Rect& workArea, const base::DpiScale& scale) {
    const int gripWidth = std::min(rect.Width(), scale(kGripWidthPx));
    const int gripHeight = std::min(rect.Height(), scale(kGripHeightPx));
    const int stripHeight = std::min(rect.Height(), scale(kStripHeightPx));
    const Rect strip{rect.left, rect.top, rect.right, rect.top + stripHeight};
    const Rect visible = base::Intersection(strip, workArea);
    return visible.Width() >= gripWidth && visible.Height() >= gripHeight;
}

// How far a span would have to move to lie within another one of at least its length.
constexpr int Shift(int first, int last, int lowest, int highest) {
    if (first < lowest) return lowest - first;
    if (last > highest) return std::max(highest - last, lowest - first);
    return 0;
}

Rect MovedInto(const Rect& rect, const Rect& workArea) {
    const base::Size size{std::min(rect.Width(), workArea.Width()), std::min(rect.Height(), workArea.Height())};
    const Rect cut = Rect::At(rect.TopLeft(), size);
    return cut.Offset(Shift(cut.left, cut.right, workArea.left, workArea.right),
                      Shift(cut.top, cut.bottom, workArea.top, workArea.bottom));
}

std::int64_t SquaredDistance(const Rect& from, const Rect& to) {
    const std::int64_t dx = to.left - from.left;
    const std::int64_t dy = to.top - from.top;
    return dx * dx + dy * dy;
}

} // namespace

std::array<std::byte, kEncodedRectSize> EncodeRect(const base::Rect& rect) {
    std::array<std::byte, kEncodedRectSize> bytes{};
    std::size_t at = 0;
    for (const int edge : {rect.left, rect.top, rect.right, rect.bottom})
        for (int shift = 0; shift < 32; shift += 8)
            bytes[at++] = static_cast<std::byte>((static_cast<std::uint32_t>(edge) >> shift) & 0xFFU);
    return bytes;
}

std::optional<base::Rect> DecodeRect(std::span<const std::byte> bytes) {
    if (bytes.size() != kEncodedRectSize) return std::nullopt;
    std::array<int, 4> edges{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        edges[i / 4] = static_cast<int>(static_cast<std::uint32_t>(edges[i / 4]) |
                                        (std::to_integer<std::uint32_t>(bytes[i]) << (8 * (i % 4))));
    return base::Rect{edges[0], edges[1], edges[2], edges[3]};
}

std::optional<base::Rect> ReachableRect(const base::Rect& saved, std::span<const base::Rect> workAreas,
                                        const base::DpiScale& scale) {
    if (!CanBeAWindow(saved)) return std::nullopt;

    std::optional<base::Rect> nearest;
    for (const Rect& workArea : workAreas) {
        if (workArea.Empty()) continue;
        if (CanBeGrasped(saved, workArea, scale)) return saved;
        const Rect moved = MovedInto(saved, workArea);
        if (!nearest || SquaredDistance(saved, moved) < SquaredDistance(saved, *nearest)) nearest = moved;
    }
    return nearest;
}

} // namespace korvane::settings
