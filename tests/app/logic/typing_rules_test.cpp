#include "app/logic/typing_rules.h"

#include <gtest/gtest.h>

using namespace korvane::app;

namespace {

constexpr unsigned kTab = 0x09;
constexpr unsigned kReturn = 0x0D;
constexpr unsigned kShift = 0x10;
constexpr unsigned kControl = 0x11;
constexpr unsigned kAlt = 0x12;
constexpr unsigned kEscape = 0x1B;
constexpr unsigned kLeft = 0x25;
constexpr unsigned kInputMethod = 0xE5;

} // namespace

TEST(TypingRules, LettersAndTheKeysThatMoveTheCaretAreTyping) {
    for (const unsigned key : {unsigned{'A'}, unsigned{'5'}, kTab, kLeft})
        EXPECT_EQ(StepOfKey(key), TypingStep::kBegins);
}

TEST(TypingRules, WhatAnInputMethodTakesIsTyping) {
    EXPECT_EQ(StepOfKey(kInputMethod), TypingStep::kBegins);
}

TEST(TypingRules, EscEndsIt) {
    EXPECT_EQ(StepOfKey(kEscape), TypingStep::kEnds);
}

TEST(TypingRules, AnEnterThatRepeatsAfterAStartDoesNotBeginItAgain) {
    EXPECT_EQ(StepOfKey(kReturn), TypingStep::kNone);
}

TEST(TypingRules, AHeldKeyOfAShortcutIsNotTypedYet) {
    for (const unsigned key : {kShift, kControl, kAlt}) EXPECT_EQ(StepOfKey(key), TypingStep::kNone);
}
