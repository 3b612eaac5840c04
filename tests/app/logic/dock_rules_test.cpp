#include "app/logic/dock_rules.h"

#include <gtest/gtest.h>

using namespace korvane;
using namespace korvane::app;
using base::Rect;
using std::chrono::milliseconds;

TEST(EdgeOfSetting, IsTheBottomForEveryValueAboveZero) {
    EXPECT_EQ(EdgeOfSetting(0), Edge::kTop);
    EXPECT_EQ(EdgeOfSetting(1), Edge::kBottom);
    EXPECT_EQ(EdgeOfSetting(7), Edge::kBottom);
    EXPECT_EQ(EdgeOfSetting(-1), Edge::kTop);
}

TEST(StripAt, LiesAlongTheEdge) {
    EXPECT_EQ(StripAt(Edge::kTop, {10, 20, 1290, 800}, 32), (Rect{10, 20, 1290, 52}));
    EXPECT_EQ(StripAt(Edge::kBottom, {10, 20, 1290, 800}, 32), (Rect{10, 768, 1290, 800}));
}

TEST(WithoutReservation, GivesTheBarsOwnStripBackToTheWorkArea) {
    EXPECT_EQ(WithoutReservation({0, 32, 1280, 760}, Rect{0, 0, 1280, 32}, Edge::kTop), (Rect{0, 0, 1280, 760}));
    EXPECT_EQ(WithoutReservation({0, 0, 1280, 728}, Rect{0, 728, 1280, 760}, Edge::kBottom), (Rect{0, 0, 1280, 760}));
}

TEST(WithoutReservation, LeavesAWorkAreaAloneThatEndsElsewhere) {
    EXPECT_EQ(WithoutReservation({0, 40, 1280, 760}, Rect{0, 0, 1280, 32}, Edge::kTop), (Rect{0, 40, 1280, 760}));
    EXPECT_EQ(WithoutReservation({0, 0, 1280, 760}, std::nullopt, Edge::kTop), (Rect{0, 0, 1280, 760}));
    EXPECT_EQ(WithoutReservation({0, 32, 1280, 760}, Rect{0, 0, 1280, 32}, Edge::kBottom), (Rect{0, 32, 1280, 760}));
}

TEST(HiddenThickness, IsTwoBesideATaskBarAtTheSameEdge) {
    const base::DpiScale scale;

    EXPECT_EQ(HiddenThickness(Edge::kBottom, Rect{0, 760, 1280, 800}, scale), 2);
    EXPECT_EQ(HiddenThickness(Edge::kTop, Rect{0, 0, 1280, 40}, scale), 2);
}

TEST(HiddenThickness, IsOneWhereTheTaskBarLiesElsewhere) {
    const base::DpiScale scale;

    EXPECT_EQ(HiddenThickness(Edge::kTop, Rect{0, 760, 1280, 800}, scale), 1) << "task bar at the bottom";
    EXPECT_EQ(HiddenThickness(Edge::kBottom, Rect{0, 0, 1280, 40}, scale), 1) << "at the top";
    EXPECT_EQ(HiddenThickness(Edge::kTop, Rect{0, 0, 60, 800}, scale), 1) << "at the left";
    EXPECT_EQ(HiddenThickness(Edge::kBottom, Rect{1220, 0, 1280, 800}, scale), 1) << "at the right";
}

TEST(HiddenThickness, IsOneWhenTheShellDoesNotTell) {
    EXPECT_EQ(HiddenThickness(Edge::kBottom, std::nullopt, base::DpiScale{}), 1);
}

TEST(HiddenThickness, GrowsWithTheScreensScale) {
    EXPECT_EQ(HiddenThickness(Edge::kBottom, std::nullopt, base::DpiScale{192}), 2);
    EXPECT_EQ(HiddenThickness(Edge::kBottom, Rect{0, 760, 1280, 800}, base::DpiScale{192}), 4);
}

TEST(SlideDistance, IsTheWayThatLeavesOnlyTheStrip) {
    EXPECT_EQ(SlideDistance({0, 0, 1280, 32}, {0, 0, 1280, 1}), -31);
    EXPECT_EQ(SlideDistance({0, 0, 1280, 1}, {0, 0, 1280, 32}), 31);
    EXPECT_EQ(SlideDistance({0, 768, 1280, 800}, {0, 799, 1280, 800}), 31);
    EXPECT_EQ(SlideDistance({0, 798, 1280, 800}, {0, 768, 1280, 800}), -30);
}

TEST(SlideTop, WalksTheWayInTwoHundredMilliseconds) {
    EXPECT_EQ(SlideTop(0, milliseconds{0}, -31), 0);
    EXPECT_EQ(SlideTop(0, milliseconds{100}, -31), -15);
    EXPECT_EQ(SlideTop(0, milliseconds{199}, -31), -30);
    EXPECT_EQ(SlideTop(768, milliseconds{50}, 30), 775);
}
