#include "controls/logic/main_options.h"

#include <gmock/gmock.h>

#include <limits>
#include <set>

namespace korvane::controls {
namespace {

using testing::ElementsAre;

namespace keys = settings::keys;
constexpr int kSmallest = std::numeric_limits<int>::min();
constexpr int kLargest = std::numeric_limits<int>::max();

TEST(MainOptions, WalksEightBoxesAndTheirSettingsTogether) {
    const auto names = [] {
        std::vector<std::wstring_view> all;
        for (const OptionBox& box : kOptionBoxes) all.push_back(box.setting.name);
        return all;
    }();

    EXPECT_THAT(names,
                ElementsAre(L"DesktopBarAutoHide", L"MonitorClipBoard", L"TopMostWindow", L"SaveRecentlyList",
                            L"ConfirmExitApp", L"ConfirmExitWindows", L"EnableEnterEvent", L"SaveWindowPlacement"));
    int id = 1012;
    for (const OptionBox& box : kOptionBoxes) EXPECT_EQ(box.id, id++);
}

TEST(MainOptions, KeepsTheLastOfTheEightBoxesApartFromTheOthers) {
    for (const OptionBox& box : kOptionBoxes)
        EXPECT_EQ(box.setting.section, box.id == 1019 ? L"Settings\\WindowPlacement" : L"Settings") << box.id;
}

TEST(MainOptions, OffersTenDelaysInStepsOfHalfASecond) {
    EXPECT_THAT(DelayTexts(),
                ElementsAre(L"0.5", L"1.0", L"1.5", L"2.0", L"2.5", L"3.0", L"3.5", L"4.0", L"4.5", L"5.0"));
}

TEST(MainOptions, LetsThreeBoxesGovernOtherControls) {
    std::set<int> governed;
    for (const DependentControls& dependent : kDependentControls)
        for (int id = dependent.first; id <= dependent.last; ++id) governed.insert(dependent.box * 10000 + id);

    EXPECT_THAT(governed, ElementsAre(10121061, 10121062, 10121063, 10151046, 10151047, 10151048, 10151049, 10151050,
                                      10641065, 10641066));
}

TEST(MainOptions, TakesEveryEdgeButZeroForTheBottom) {
    EXPECT_EQ(EdgeRow(0), 0);
    for (const int stored : {1, 2, -1, kSmallest, kLargest}) EXPECT_EQ(EdgeRow(stored), 1) << stored;
}

// The bar does the same.
TEST(MainOptions, TakesAColourThatThereIsNotForTheSystems) {
    for (const int stored : {0, 1, 2}) EXPECT_EQ(ColourRow(stored), stored);
    for (const int stored : {3, -1, kSmallest, kLargest}) EXPECT_EQ(ColourRow(stored), 1) << stored;
}

TEST(MainOptions, TakesADelayOutOfRangeForTheNearest) {
    for (int stored = 0; stored < 10; ++stored) EXPECT_EQ(DelayRow(stored), stored);
    for (const int stored : {-1, kSmallest}) EXPECT_EQ(DelayRow(stored), 0) << stored;
    for (const int stored : {10, kLargest}) EXPECT_EQ(DelayRow(stored), 9) << stored;
}

TEST(MainOptions, TakesAClockFormatThatThereIsNotForTheFirst) {
    for (int stored = 0; stored < 5; ++stored) EXPECT_EQ(FormatRow(stored), stored);
    for (const int stored : {5, 7, -1, kSmallest, kLargest}) EXPECT_EQ(FormatRow(stored), 0) << stored;
}

TEST(MainOptions, ShowsAStoredHistoryLengthWithinItsRange) {
    EXPECT_EQ(HistoryLengthText(5), L"5");
    EXPECT_EQ(HistoryLengthText(1), L"1");
    EXPECT_EQ(HistoryLengthText(15), L"15");
    EXPECT_EQ(HistoryLengthText(16), L"15");
    EXPECT_EQ(HistoryLengthText(kLargest), L"15");
    EXPECT_EQ(HistoryLengthText(0), L"1");
}

// It is what an empty field was stored as.
TEST(MainOptions, ShowsNothingForANegativeHistoryLength) {
    EXPECT_EQ(HistoryLengthText(kNoHistoryLength), L"");
    EXPECT_EQ(HistoryLengthText(kSmallest), L"");
}

TEST(MainOptions, ReadsAHistoryLengthWithinItsRange) {
    EXPECT_EQ(HistoryLengthOf(L"1"), 1);
    EXPECT_EQ(HistoryLengthOf(L"05"), 5);
    EXPECT_EQ(HistoryLengthOf(L"１０"), 10);
    EXPECT_EQ(HistoryLengthOf(L"９９"), 15);
    EXPECT_EQ(HistoryLengthOf(L"15"), 15);
    EXPECT_EQ(HistoryLengthOf(L"0"), 1);
    EXPECT_EQ(HistoryLengthOf(L"00"), 1);
    EXPECT_EQ(HistoryLengthOf(L"16"), 15);
    EXPECT_EQ(HistoryLengthOf(L"99"), 15);
    EXPECT_EQ(HistoryLengthOf(L"-3"), 1);
    EXPECT_EQ(HistoryLengthOf(std::wstring(100'000, L'9')), 15);
}

TEST(MainOptions, ReadsNoHistoryLengthWhereThereIsNoDigit) {
    EXPECT_EQ(HistoryLengthOf(L""), std::nullopt);
    EXPECT_EQ(HistoryLengthOf(L"  "), std::nullopt);
    EXPECT_EQ(HistoryLengthOf(L"abc"), std::nullopt);
    EXPECT_EQ(HistoryLengthOf(std::wstring(15, L' ') + L"7"), std::nullopt);
}

TEST(MainOptions, StepsTheHistoryLengthDownToOneOnly) {
    EXPECT_EQ(HistoryLengthStep(5, -1), -1);
    EXPECT_EQ(HistoryLengthStep(2, -1), -1);
    EXPECT_EQ(HistoryLengthStep(1, -1), 0);
    EXPECT_EQ(HistoryLengthStep(3, -5), -2);
    EXPECT_EQ(HistoryLengthStep(0, -1), 1);
    EXPECT_EQ(HistoryLengthStep(0, 1), 1);
    EXPECT_EQ(HistoryLengthStep(14, 5), 5);
}

} // namespace
} // namespace korvane::controls
