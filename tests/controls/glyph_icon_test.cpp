#include "controls/glyph_icon.h"

#include <gtest/gtest.h>

#include <array>

#include "framework/gdi.h"

using namespace korvane;
using namespace korvane::controls;

namespace {

// The picture of an icon on white, a line of characters per row.
std::string Drawn(HICON icon, base::Size size) {
    const fw::WindowDc screen{nullptr};
    const fw::UniqueMemoryDc dc{::CreateCompatibleDC(screen.Get())};
    const fw::UniqueBitmap bitmap{::CreateCompatibleBitmap(screen.Get(), size.width, size.height)};
    const fw::SelectedObject selected{dc.Get(), bitmap.Get()};
    const RECT all{0, 0, size.width, size.height};
    ::FillRect(dc.Get(), &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    ::DrawIconEx(dc.Get(), 0, 0, icon, size.width, size.height, 0, nullptr, DI_NORMAL);
    std::string drawn;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const COLORREF colour = ::GetPixel(dc.Get(), x, y);
            drawn += colour == RGB(255, 255, 255) ? '.' : colour == RGB(1, 2, 3) ? '#' : '?';
        }
        drawn += '\n';
    }
    return drawn;
}

} // namespace

TEST(GlyphIcon, IsItsRectanglesOnNothing) {
    const std::array<base::Rect, 2> rectangles{{{0, 0, 2, 1}, {3, 1, 5, 3}}};

    const auto icon = GlyphIcon(rectangles, {5, 3}, RGB(1, 2, 3));

    ASSERT_TRUE(icon);
    EXPECT_EQ(Drawn(icon.Get(), {5, 3}), "##...\n"
                                         "...##\n"
                                         "...##\n");
}

TEST(GlyphIcon, LeavesOutWhatDoesNotFit) {
    const std::array<base::Rect, 1> rectangles{{{-5, -5, 2, 9}}};

    const auto icon = GlyphIcon(rectangles, {3, 2}, RGB(1, 2, 3));

    ASSERT_TRUE(icon);
    EXPECT_EQ(Drawn(icon.Get(), {3, 2}), "##.\n##.\n");
}
