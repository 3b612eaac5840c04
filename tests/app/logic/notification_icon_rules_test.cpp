#include "app/logic/notification_icon_rules.h"

#include <gtest/gtest.h>

using korvane::app::ActionOf;
using korvane::app::IconAction;
using korvane::app::NextAttempt;

namespace {

constexpr unsigned kMouseMove = 0x0200;
constexpr unsigned kLeftDown = 0x0201;
constexpr unsigned kLeftUp = 0x0202;
constexpr unsigned kLeftDouble = 0x0203;
constexpr unsigned kRightDown = 0x0204;
constexpr unsigned kRightUp = 0x0205;

constexpr unsigned kTimeout = 1460; // what Windows says of a shell that did not answer
constexpr unsigned kNoShell = 2;

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

TEST(NotificationIconAttempts, ABusyShellIsAskedEverMoreRarelyForSomeMinutes) {
    std::chrono::seconds sum{0};
    std::chrono::seconds last{0};
    for (int made = 1; const auto delay = NextAttempt(kTimeout, made); ++made) {
        ASSERT_GT(*delay, last);
        last = *delay;
        sum += last;
    }
    EXPECT_GE(sum, std::chrono::minutes{3});
    EXPECT_LE(sum, std::chrono::minutes{6});
}

TEST(NotificationIconAttempts, TheFirstComesSoon) {
    EXPECT_EQ(NextAttempt(kTimeout, 1), std::chrono::seconds{2});
}

TEST(NotificationIconAttempts, AShellThatIsNotThereIsNotAsked) {
    EXPECT_EQ(NextAttempt(kNoShell, 1), std::nullopt);
}
