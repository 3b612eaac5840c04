#include "search/logic/command_selection.h"

#include <gtest/gtest.h>

#include "res/ids.h"

using namespace korvane::search;

namespace {

constexpr unsigned kReturn = 13;
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
    for (const unsigned key : {0U, 9U, 27U, 65U, 0xE5U})
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
