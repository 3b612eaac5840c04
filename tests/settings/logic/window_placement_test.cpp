#include "settings/logic/window_placement.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "base/format_text.h"

namespace korvane::settings {
namespace {

using base::DpiScale;
using base::Rect;

constexpr Rect kDesk{0, 0, 1280, 760};
constexpr Rect kLeftDesk{-1920, -200, 0, 840};

std::wstring Text(const std::optional<Rect>& rect) {
    if (!rect) return L"none";
    return base::FormatText(L"%d,%d-%d,%d", rect->left, rect->top, rect->right, rect->bottom);
}

std::wstring Placed(const Rect& saved, std::initializer_list<Rect> workAreas = {kDesk}, DpiScale scale = DpiScale{}) {
    return Text(ReachableRect(saved, std::span{workAreas.begin(), workAreas.size()}, scale));
}

std::vector<unsigned> Numbers(std::span<const std::byte> bytes) {
    std::vector<unsigned> numbers;
    for (const std::byte value : bytes) numbers.push_back(std::to_integer<unsigned>(value));
    return numbers;
}

TEST(WindowPlacement, WritesFourNumbersLowByteFirst) {
    const auto bytes = EncodeRect({1, -2, 0x12345678, 768});

    EXPECT_EQ(Numbers(bytes), (std::vector<unsigned>{0x01, 0, 0, 0, 0xFE, 0xFF, 0xFF, 0xFF, //
                                                     0x78, 0x56, 0x34, 0x12, 0x00, 0x03, 0, 0}));
}

TEST(WindowPlacement, ReadsBackWhatItWrote) {
    for (const Rect& rect : {Rect{}, Rect{-5, -7, 600, 40}, Rect{INT_MIN, INT_MIN, INT_MAX, INT_MAX}})
        EXPECT_EQ(DecodeRect(EncodeRect(rect)), rect);
}

TEST(WindowPlacement, ReadsNoOtherLengthThanSixteenBytes) {
    const std::vector<std::byte> bytes(33);

    for (const std::size_t length : {0U, 15U, 17U, 33U})
        EXPECT_FALSE(DecodeRect(std::span{bytes}.first(length))) << length;
}

TEST(ReachableRect, LeavesAWindowWhereItWas) {
    EXPECT_EQ(Placed({100, 200, 900, 260}), L"100,200-900,260");
    EXPECT_EQ(Placed({0, 0, 1280, 760}), L"0,0-1280,760");
    EXPECT_EQ(Placed({-1000, -200, -200, -150}, {kDesk, kLeftDesk}), L"-1000,-200--200,-150");
}

TEST(ReachableRect, LeavesAWindowOfWhichEnoughShows) {
    EXPECT_EQ(Placed({1216, 744, 2016, 804}), L"1216,744-2016,804");
    EXPECT_EQ(Placed({-736, 100, 64, 160}), L"-736,100-64,160");
}

TEST(ReachableRect, MovesAWindowOfWhichTooLittleShows) {
    EXPECT_EQ(Placed({1217, 100, 2017, 160}), L"480,100-1280,160");
    EXPECT_EQ(Placed({100, 745, 900, 805}), L"100,700-900,760");
    EXPECT_EQ(Placed({-737, 100, 63, 160}), L"0,100-800,160");
}

TEST(ReachableRect, MovesAWindowWhoseUpperEdgeIsHidden) {
    EXPECT_EQ(Placed({100, -1, 900, 500}), L"100,-1-900,500");
    EXPECT_EQ(Placed({100, -30, 900, 500}), L"100,0-900,530");
}

TEST(ReachableRect, AsksForMoreToShowOnAFinerScreen) {
    EXPECT_EQ(Placed({1200, 100, 2000, 160}, {kDesk}, DpiScale{96}), L"1200,100-2000,160");
    EXPECT_EQ(Placed({1200, 100, 2000, 160}, {kDesk}, DpiScale{192}), L"480,100-1280,160");
}

TEST(ReachableRect, BringsBackAWindowOfAMonitorThatIsGone) {
    EXPECT_EQ(Placed({-1500, 300, -700, 360}), L"0,300-800,360");
    EXPECT_EQ(Placed({5000, 5000, 5800, 5060}), L"480,700-1280,760");
}

TEST(ReachableRect, ChoosesTheNearestMonitor) {
    EXPECT_EQ(Placed({-4000, 0, -3200, 60}, {kDesk, kLeftDesk}), L"-1920,0--1120,60");
    EXPECT_EQ(Placed({4000, 0, 4800, 60}, {kLeftDesk, kDesk}), L"480,0-1280,60");
}

TEST(ReachableRect, CutsAMovedWindowToItsMonitor) {
    EXPECT_EQ(Placed({3000, 3000, 9000, 9000}), L"0,0-1280,760");
}

TEST(ReachableRect, ShowsASmallWindowWhole) {
    EXPECT_EQ(Placed({1270, 100, 1280, 105}), L"1270,100-1280,105");
    EXPECT_EQ(Placed({1271, 100, 1281, 105}), L"1270,100-1280,105");
}

TEST(ReachableRect, RefusesWhatWasNeverAWindow) {
    EXPECT_EQ(Placed({}), L"none");
    EXPECT_EQ(Placed({500, 500, 500, 560}), L"none");
    EXPECT_EQ(Placed({900, 260, 100, 200}), L"none");
    EXPECT_EQ(Placed({INT_MIN, INT_MIN, INT_MAX, INT_MAX}), L"none");
    EXPECT_EQ(Placed({INT_MAX, INT_MAX, INT_MIN, INT_MIN}), L"none");
    EXPECT_EQ(Placed({0, 0, INT_MAX, 60}), L"none");
    EXPECT_EQ(Placed({INT_MIN, 0, 100, 60}), L"none");
    EXPECT_EQ(Placed({INT_MAX - 1, INT_MAX - 1, INT_MAX, INT_MAX}), L"none");
    EXPECT_EQ(Placed({32000, 100, 32768, 160}), L"none");
}

TEST(ReachableRect, RefusesThePlaceOfAMinimisedWindow) {
    EXPECT_EQ(Placed({-32000, -32000, -31840, -31972}), L"none");
}

TEST(ReachableRect, HasNoAnswerWithoutAMonitor) {
    EXPECT_EQ(Placed({100, 200, 900, 260}, {}), L"none");
    EXPECT_EQ(Placed({100, 200, 900, 260}, {Rect{}}), L"none");
    EXPECT_EQ(Placed({100, 200, 900, 260}, {Rect{}, kDesk}), L"100,200-900,260");
}

} // namespace
} // namespace korvane::settings
