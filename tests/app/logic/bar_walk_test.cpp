#include "app/logic/bar_walk.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace korvane::app;

namespace {

constexpr unsigned kReturn = 0x0D;
constexpr unsigned kEscape = 0x1B;
constexpr unsigned kSpace = 0x20;
constexpr unsigned kLeft = 0x25;
constexpr unsigned kUp = 0x26;
constexpr unsigned kRight = 0x27;
constexpr unsigned kDown = 0x28;
constexpr unsigned kF6 = 0x75;
constexpr unsigned kF10 = 0x79;

// "m" a button, "B" a box, "-" a button that cannot be used; the one in brackets has the keyboard.
std::vector<WalkStop> Stops(const std::string& picture) {
    std::vector<WalkStop> stops;
    for (std::size_t i = 0; i < picture.size(); ++i) {
        if (picture[i] == '[' || picture[i] == ']') continue;
        stops.push_back(
            {.box = picture[i] == 'B', .usable = picture[i] != '-', .current = i > 0 && picture[i - 1] == '['});
    }
    return stops;
}

int Next(const std::string& picture, WalkKey key) {
    const auto next = NextStop(Stops(picture), key);
    return next ? static_cast<int>(*next) : -1;
}

} // namespace

TEST(WalkKeyOf, WalksWithF6FromAnywhereAndBackWithShift) {
    for (const bool onButton : {false, true}) {
        EXPECT_EQ(WalkKeyOf({.virtualKey = kF6, .onButton = onButton}), WalkKey::kNext);
        EXPECT_EQ(WalkKeyOf({.virtualKey = kF6, .onButton = onButton, .shift = true}), WalkKey::kPrevious);
        EXPECT_EQ(WalkKeyOf({.virtualKey = kF10, .onButton = onButton}), WalkKey::kMainMenu);
    }
}

TEST(WalkKeyOf, LeavesOtherMeaningsOfTheFunctionKeysAlone) {
    EXPECT_EQ(WalkKeyOf({.virtualKey = kF6, .control = true}), WalkKey::kNone);
    EXPECT_EQ(WalkKeyOf({.virtualKey = kF6, .alt = true}), WalkKey::kNone);
    EXPECT_EQ(WalkKeyOf({.virtualKey = kF10, .shift = true}), WalkKey::kNone);
}

TEST(WalkKeyOf, GivesTheArrowsAndTheRestToTheButtonsOnly) {
    struct Case {
        unsigned key;
        WalkKey meaning;
    };
    for (const Case& c :
         {Case{kLeft, WalkKey::kPreviousButton}, Case{kUp, WalkKey::kPreviousButton},
          Case{kRight, WalkKey::kNextButton}, Case{kDown, WalkKey::kNextButton}, Case{kReturn, WalkKey::kPress},
          Case{kSpace, WalkKey::kPress}, Case{kEscape, WalkKey::kBack}}) {
        EXPECT_EQ(WalkKeyOf({.virtualKey = c.key, .onButton = true}), c.meaning) << c.key;
        EXPECT_EQ(WalkKeyOf({.virtualKey = c.key, .onButton = false}), WalkKey::kNone) << c.key;
        EXPECT_EQ(WalkKeyOf({.virtualKey = c.key, .onButton = true, .alt = true}), WalkKey::kNone) << c.key;
    }
}

TEST(NextStop, GoesOnToTheNextThingThatCanBeUsed) {
    EXPECT_EQ(Next("m[B]m-B", WalkKey::kNext), 2);
    EXPECT_EQ(Next("mB[m]-B", WalkKey::kNext), 4);
    EXPECT_EQ(Next("mBm-[B]", WalkKey::kPrevious), 2);
}

TEST(NextStop, GoesRoundTheEndOfTheBar) {
    EXPECT_EQ(Next("mB[m]", WalkKey::kNext), 0);
    EXPECT_EQ(Next("[m]Bm", WalkKey::kPrevious), 2);
    EXPECT_EQ(Next("mB[m]", WalkKey::kNextButton), 0);
}

TEST(NextStop, PassesTheBoxesWithTheArrows) {
    EXPECT_EQ(Next("[m]Bm", WalkKey::kNextButton), 2);
    EXPECT_EQ(Next("mB[m]", WalkKey::kPreviousButton), 0);
}

TEST(NextStop, StaysWhereThereIsNothingElse) {
    EXPECT_EQ(Next("[m]--", WalkKey::kNext), -1);
    EXPECT_EQ(Next("[m]B", WalkKey::kNextButton), -1);
    EXPECT_EQ(Next("", WalkKey::kNext), -1);
}

TEST(NextStop, BeginsAtAnEndWhenTheKeyboardIsNowhere) {
    EXPECT_EQ(Next("-mB", WalkKey::kNext), 1);
    EXPECT_EQ(Next("mBm", WalkKey::kPrevious), 2);
}
