#include "app/logic/notification_icon_rules.h"

#include <gtest/gtest.h>

using korvane::app::ActionOf;
using korvane::app::IconAction;

namespace {

constexpr unsigned kMouseMove = 0x0200;
constexpr unsigned kLeftDown = 0x0201;
constexpr unsigned kLeftUp = 0x0202;
constexpr unsigned kLeftDouble = 0x0203;
constexpr unsigned kRightDown = 0x0204;
constexpr unsigned kRightUp = 0x0205;

} // namespace

TEST(NotificationIconAction, TheRightButtonShowsTheMenuWhenItIsReleased) {
    EXPECT_EQ(ActionOf(kRightUp, false), IconAction::kShowMenu);
}

TEST(NotificationIconAction, ADoubleClickShowsTheBar) {
    EXPECT_EQ(ActionOf(kLeftDouble, false), IconAction::kShowBar);
}

TEST(NotificationIconAction, OtherMouseMessagesDoNothing) {
    for (const unsigned message : {0U, kMouseMove, kLeftDown, kLeftUp, kRightDown})
        EXPECT_EQ(ActionOf(message, false), IconAction::kNone) << message;
}

TEST(NotificationIconAction, NothingHappensWhileAMessageBoxIsOpen) {
    EXPECT_EQ(ActionOf(kRightUp, true), IconAction::kNone);
    EXPECT_EQ(ActionOf(kLeftDouble, true), IconAction::kNone);
}
