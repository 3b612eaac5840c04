#include "search/logic/history_rows.h"

#include <gmock/gmock.h>

using namespace korvane::search;
using testing::ElementsAre;

namespace {

const HistoryRowTexts kTexts{L"file", L"folder", L"clear", L"nothing"};

} // namespace

TEST(HistoryRows, OfTheCommandBoxLeadToThePickers) {
    const auto rows = PlanHistoryRows(Box::kCommand, {L"a", L"b"}, kTexts);

    EXPECT_THAT(rows, ElementsAre(HistoryRow{0, L"a"}, HistoryRow{1, L"b"}, HistoryRow{253, L"file"},
                                  HistoryRow{254, L"folder"}, HistoryRow{255, L"clear"}));
}

TEST(HistoryRows, OfTheSearchBoxLeadToNoPicker) {
    const auto rows = PlanHistoryRows(Box::kSearch, {L"a"}, kTexts);

    EXPECT_THAT(rows, ElementsAre(HistoryRow{0, L"a"}, HistoryRow{255, L"clear"}));
}

TEST(HistoryRows, OfferNoClearingOfAnEmptyHistory) {
    const auto rows = PlanHistoryRows(Box::kCommand, {}, kTexts);

    EXPECT_THAT(rows, ElementsAre(HistoryRow{253, L"file"}, HistoryRow{254, L"folder"}));
}

TEST(HistoryRows, SayWhenThereIsNothingToChoose) {
    const auto rows = PlanHistoryRows(Box::kSearch, {}, kTexts);

    EXPECT_THAT(rows, ElementsAre(HistoryRow{256, L"nothing"}));
}

TEST(HistoryRows, AreSpecialFrom253On) {
    EXPECT_FALSE(IsSpecialRow(0));
    EXPECT_FALSE(IsSpecialRow(252));
    EXPECT_TRUE(IsSpecialRow(253));
    EXPECT_TRUE(IsSpecialRow(256));
}

TEST(HistoryRows, DoWhatTheirNumberSays) {
    EXPECT_EQ(ActionOfRow(0), HistoryAction::kUseEntry);
    EXPECT_EQ(ActionOfRow(14), HistoryAction::kUseEntry);
    EXPECT_EQ(ActionOfRow(253), HistoryAction::kBrowseFile);
    EXPECT_EQ(ActionOfRow(254), HistoryAction::kBrowseFolder);
    EXPECT_EQ(ActionOfRow(255), HistoryAction::kClear);
    EXPECT_EQ(ActionOfRow(256), HistoryAction::kNone);
    EXPECT_EQ(ActionOfRow(-1), HistoryAction::kNone);
}
