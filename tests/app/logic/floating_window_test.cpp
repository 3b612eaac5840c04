#include "app/logic/floating_window.h"

#include <gtest/gtest.h>

using namespace korvane::app;
using korvane::base::DpiScale;
using korvane::base::Rect;
using korvane::base::Size;

namespace {
constexpr Size kBorders{16, 39};
} // namespace

TEST(DefaultFloatingRect, GivesAClientAreaOf1024By32InTheMiddleOfTheWorkArea) {
    const Rect rect = DefaultFloatingRect({0, 0, 1920, 1040}, kBorders, DpiScale{});

    EXPECT_EQ(rect, (Rect{440, 208, 1480, 279}));
}

TEST(DefaultFloatingRect, StaysInsideANarrowWorkArea) {
    const Rect rect = DefaultFloatingRect({100, 0, 1124, 768}, kBorders, DpiScale{});

    EXPECT_EQ(rect.left, 100);
    EXPECT_EQ(rect.right, 1124);
}

TEST(WithBarHeight, KeepsPlaceAndWidthAndGivesTheBarsHeight) {
    EXPECT_EQ(WithBarHeight({10, 20, 1200, 900}, kBorders, DpiScale{}), (Rect{10, 20, 1200, 91}));
}
