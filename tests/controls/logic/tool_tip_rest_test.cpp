#include "controls/logic/tool_tip_rest.h"

#include <gtest/gtest.h>

namespace korvane::controls {
namespace {

TEST(ToolTipRestRule, PutsThemToRestWithEveryKey) {
    EXPECT_EQ(ActionOn(TipEvent::kKey, false, false), TipAction::kPutToRest);
    EXPECT_EQ(ActionOn(TipEvent::kKey, true, false), TipAction::kPutToRest);
}

TEST(ToolTipRestRule, WakesThemWhenTheMouseHasMoved) {
    EXPECT_EQ(ActionOn(TipEvent::kMouseMove, true, true), TipAction::kWake);
}

TEST(ToolTipRestRule, LeavesThemAtRestWhileTheMouseRests) {
    EXPECT_EQ(ActionOn(TipEvent::kMouseMove, true, false), TipAction::kNone);
    EXPECT_EQ(ActionOn(TipEvent::kOther, true, true), TipAction::kNone);
}

TEST(ToolTipRestRule, DoesNothingWithTheMouseWhileTheyAreAwake) {
    EXPECT_EQ(ActionOn(TipEvent::kMouseMove, false, true), TipAction::kNone);
}

} // namespace
} // namespace korvane::controls
