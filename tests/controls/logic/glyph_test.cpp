#include "controls/logic/glyph.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane::controls {
namespace {

using base::DpiScale;
using base::Rect;

// The figure as rows of text, so that a failure can be looked at.
std::string Picture(const std::vector<Rect>& figure, base::Size size) {
    std::string picture;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            bool inked = false;
            for (const Rect& piece : figure) inked = inked || piece.Contains({x, y});
            picture += inked ? '#' : '.';
        }
        picture += '\n';
    }
    return picture;
}

TEST(DownArrow, IsSevenByFour) {
    EXPECT_EQ(DownArrowSize(DpiScale{96}), (base::Size{7, 4}));
    EXPECT_EQ(Picture(DownArrow({0, 0, 7, 4}), {7, 4}), "#######\n"
                                                        ".#####.\n"
                                                        "..###..\n"
                                                        "...#...\n");
}

TEST(DownArrow, EndsInOnePixelAtEveryScale) {
    for (const int dpi : {96, 120, 144, 168, 192, 240}) {
        const base::Size size = DownArrowSize(DpiScale{dpi});

        const auto rows = DownArrow(Rect::At({0, 0}, size));

        ASSERT_EQ(static_cast<int>(rows.size()), size.height) << dpi;
        EXPECT_EQ(rows.front().Width(), size.width) << dpi;
        EXPECT_EQ(rows.back().Width(), 1) << dpi;
    }
}

TEST(DownArrow, StandsInItsBox) {
    EXPECT_EQ(DownArrow({10, 20, 17, 24}).front(), (Rect{10, 20, 17, 21}));
}

TEST(SideArrow, IsFourByEight) {
    EXPECT_EQ(SideArrowSize(DpiScale{96}), (base::Size{4, 8}));
}

TEST(SideArrow, ToTheRightHasItsFlatSideOnTheLeft) {
    EXPECT_EQ(Picture(SideArrow({0, 0, 4, 8}, Direction::kRight), {4, 8}), "#...\n"
                                                                           "##..\n"
                                                                           "###.\n"
                                                                           "####\n"
                                                                           "####\n"
                                                                           "###.\n"
                                                                           "##..\n"
                                                                           "#...\n");
}

TEST(SideArrow, ToTheLeftHasItsFlatSideOnTheRight) {
    EXPECT_EQ(Picture(SideArrow({0, 0, 4, 8}, Direction::kLeft), {4, 8}), "...#\n"
                                                                          "..##\n"
                                                                          ".###\n"
                                                                          "####\n"
                                                                          "####\n"
                                                                          ".###\n"
                                                                          "..##\n"
                                                                          "...#\n");
}

TEST(Cross, GoesFromCornerToCornerAndIsSymmetric) {
    EXPECT_EQ(Picture(Cross({0, 0, 8, 8}, DpiScale{96}), {8, 8}), "##....##\n"
                                                                  ".##..##.\n"
                                                                  "..####..\n"
                                                                  "...##...\n"
                                                                  "...##...\n"
                                                                  "..####..\n"
                                                                  ".##..##.\n"
                                                                  "##....##\n");
}

} // namespace
} // namespace korvane::controls
