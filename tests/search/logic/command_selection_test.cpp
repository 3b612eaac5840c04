#include "search/logic/command_selection.h"

#include <gtest/gtest.h>

#include "res/ids.h"

using namespace korvane::search;

namespace {

constexpr unsigned kReturn = 13;
constexpr unsigned kEscape = 0x1B;
constexpr unsigned kUp = 0x26;
constexpr unsigned kDown = 0x28;
constexpr unsigned kF4 = 0x73;
constexpr KeyDecision kNothing{};

} // namespace

TEST(CommandForKey, TurnsEnterIntoTheCommandOfTheBox) {
    EXPECT_EQ(CommandForKey({.virtualKey = kReturn, .controlId = ID_COMMAND_BOX}),
              (KeyDecision{KeyAnswer::kRun, ID_RUN_TYPED}));
    EXPECT_EQ(CommandForKey({.virtualKey = kReturn, .controlId = ID_SEARCH_BOX}),
              (KeyDecision{KeyAnswer::kRun, ID_RUN_SEARCH}));
}

TEST(CommandForKey, LeavesEnterElsewhereAlone) {
    for (const int id : {0, ID_MAIN_MENU, ID_COMMAND_HISTORY, ID_RUN_SEARCH})
        EXPECT_EQ(CommandForKey({.virtualKey = kReturn, .controlId = id}), kNothing) << id;
}

TEST(CommandForKey, LeavesOtherKeysAlone) {
    for (const unsigned key : {0U, 9U, 65U, 0xE5U})
        EXPECT_EQ(CommandForKey({.virtualKey = key, .controlId = ID_SEARCH_BOX}), kNothing) << key;
}

TEST(CommandForKey, LeavesEnterAloneWhenItIsTurnedOff) {
    EXPECT_EQ(CommandForKey({.virtualKey = kReturn, .controlId = ID_SEARCH_BOX, .enterEnabled = false}), kNothing);
}

TEST(CommandForKey, LeavesEnterToTheInputMethod) {
    EXPECT_EQ(CommandForKey({.virtualKey = kReturn, .controlId = ID_SEARCH_BOX, .composing = true}), kNothing);
}

TEST(CommandForKey, TakesEnterInAnEmptyBoxAndRunsNothing) {
    EXPECT_EQ(CommandForKey({.virtualKey = kReturn, .controlId = ID_SEARCH_BOX, .boxEmpty = true}),
              (KeyDecision{KeyAnswer::kIgnore, 0}));
}

TEST(CommandForKey, RunsOnceWhileEnterIsHeld) {
    EXPECT_EQ(CommandForKey({.virtualKey = kReturn, .controlId = ID_SEARCH_BOX, .repeated = true}),
              (KeyDecision{KeyAnswer::kIgnore, 0}));
}

TEST(CommandForKey, OpensTheHistoryOfTheBoxAsAComboBoxDoes) {
    for (const unsigned key : {kUp, kDown, kF4}) {
        EXPECT_EQ(CommandForKey({.virtualKey = key, .controlId = ID_COMMAND_BOX}),
                  (KeyDecision{KeyAnswer::kRun, ID_OPEN_COMMAND_HISTORY}))
            << key;
        EXPECT_EQ(CommandForKey({.virtualKey = key, .controlId = ID_SEARCH_BOX, .boxEmpty = true}),
                  (KeyDecision{KeyAnswer::kRun, ID_OPEN_SEARCH_HISTORY}))
            << key;
    }
    for (const unsigned key : {kUp, kDown})
        EXPECT_EQ(CommandForKey({.virtualKey = key, .controlId = ID_SEARCH_BOX, .alt = true}),
                  (KeyDecision{KeyAnswer::kRun, ID_OPEN_SEARCH_HISTORY}))
            << key;
}

TEST(CommandForKey, OpensTheHistoryOnceWhileTheKeyIsHeld) {
    EXPECT_EQ(CommandForKey({.virtualKey = kDown, .controlId = ID_SEARCH_BOX, .repeated = true}),
              (KeyDecision{KeyAnswer::kIgnore, 0}));
}

TEST(CommandForKey, LeavesAltF4AndTheSelectingArrowsAlone) {
    EXPECT_EQ(CommandForKey({.virtualKey = kF4, .controlId = ID_SEARCH_BOX, .alt = true}), kNothing);
    EXPECT_EQ(CommandForKey({.virtualKey = kF4, .controlId = ID_SEARCH_BOX, .control = true}), kNothing);
    EXPECT_EQ(CommandForKey({.virtualKey = kUp, .controlId = ID_SEARCH_BOX, .shift = true}), kNothing);
    EXPECT_EQ(CommandForKey({.virtualKey = kDown, .controlId = ID_SEARCH_BOX, .control = true}), kNothing);
}

TEST(CommandForKey, EmptiesTheBoxWithEscapeAndThenLeavesIt) {
    EXPECT_EQ(CommandForKey({.virtualKey = kEscape, .controlId = ID_SEARCH_BOX}), (KeyDecision{KeyAnswer::kEmpty, 0}));
    EXPECT_EQ(CommandForKey({.virtualKey = kEscape, .controlId = ID_SEARCH_BOX, .boxEmpty = true}),
              (KeyDecision{KeyAnswer::kLeave, 0}));
}

TEST(CommandForKey, LeavesATextThatTheUserHasNotTouchedWithTheFirstEscape) {
    EXPECT_EQ(CommandForKey({.virtualKey = kEscape, .controlId = ID_SEARCH_BOX, .untouched = true}),
              (KeyDecision{KeyAnswer::kLeave, 0}));
}

TEST(CommandForKey, DoesNotLeaveWithTheEscapeThatEmptiedTheBoxAndIsStillHeld) {
    EXPECT_EQ(CommandForKey({.virtualKey = kEscape, .controlId = ID_SEARCH_BOX, .boxEmpty = true, .repeated = true}),
              (KeyDecision{KeyAnswer::kIgnore, 0}));
}

TEST(CommandForKey, LeavesEveryKeyToTheInputMethodWhileItComposes) {
    for (const unsigned key : {kReturn, kEscape, kUp, kDown, kF4})
        EXPECT_EQ(CommandForKey({.virtualKey = key, .controlId = ID_COMMAND_BOX, .composing = true}), kNothing) << key;
}
