#include "app/logic/one_bar.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

using namespace korvane::app;
using std::chrono::milliseconds;

namespace {

// The other copies as they are at each moment. Time passes only while this copy waits for a claim.
class ScriptedCopies final : public OtherCopies {
public:
    std::function<bool(int claim, milliseconds now)> claimFree = [](int, milliseconds) { return true; };
    std::function<BarPresence(milliseconds now)> bar = [](milliseconds) { return BarPresence::kNone; };
    milliseconds now{0};
    std::string taken;

    [[nodiscard]] bool TakeClaim(int claim, milliseconds patience) override {
        if (!claimFree(claim, now)) now += patience;
        if (!claimFree(claim, now)) return false;
        taken += std::to_string(claim);
        return true;
    }
    [[nodiscard]] BarPresence LookForBar() override { return bar(now); }
};

constexpr milliseconds kPatience = kClaimStep * kClaimSteps;

struct StartOfACopy : testing::Test {
    ScriptedCopies others;
    StartVerdict Decide() { return DecideStart(others); }
};

} // namespace

TEST_F(StartOfACopy, MakesTheBarWhenItIsAlone) {
    EXPECT_EQ(Decide(), StartVerdict::kMakeBar);

    EXPECT_EQ(others.taken, "0");
    EXPECT_EQ(others.now.count(), 0);
}

TEST_F(StartOfACopy, BringsForwardTheBarThatIsThere) {
    others.claimFree = [](int, milliseconds) { return false; };
    others.bar = [](milliseconds) { return BarPresence::kShown; };

    EXPECT_EQ(Decide(), StartVerdict::kBringForward);

    EXPECT_EQ(others.now.count(), 0);
}

TEST_F(StartOfACopy, BringsForwardABarWhoseMakerHoldsNoClaim) {
    for (const auto presence : {BarPresence::kShown, BarPresence::kHidden}) {
        others.bar = [&](milliseconds) { return presence; };

        EXPECT_EQ(Decide(), StartVerdict::kBringForward);
    }
}

TEST_F(StartOfACopy, WaitsForTheBarThatIsBeingMade) {
    others.claimFree = [](int, milliseconds) { return false; };
    others.bar = [](milliseconds now) {
        if (now < milliseconds{500}) return BarPresence::kNone;
        return now < milliseconds{900} ? BarPresence::kHidden : BarPresence::kShown;
    };

    EXPECT_EQ(Decide(), StartVerdict::kBringForward);

    EXPECT_EQ(others.now.count(), 900);
    EXPECT_EQ(others.taken, "");
}

TEST_F(StartOfACopy, MakesTheBarWhenTheOtherCopyEndsWithoutOne) {
    others.claimFree = [](int, milliseconds now) { return now >= milliseconds{700}; };

    EXPECT_EQ(Decide(), StartVerdict::kMakeBar);

    EXPECT_EQ(others.taken, "0");
    EXPECT_EQ(others.now.count(), 700);
}

TEST_F(StartOfACopy, MakesTheBarInPlaceOfACopyThatNeverGetsOne) {
    others.claimFree = [](int claim, milliseconds) { return claim == 1; };

    EXPECT_EQ(Decide(), StartVerdict::kMakeBar);

    EXPECT_EQ(others.taken, "1");
    EXPECT_EQ(others.now, kPatience);
}

TEST_F(StartOfACopy, LeavesTheBarToTheOneThatStepsInFirst) {
    others.claimFree = [](int, milliseconds) { return false; };
    others.bar = [](milliseconds now) {
        return now > kPatience + milliseconds{300} ? BarPresence::kShown : BarPresence::kNone;
    };

    EXPECT_EQ(Decide(), StartVerdict::kBringForward);

    EXPECT_EQ(others.taken, "");
}

TEST_F(StartOfACopy, TakesABarThatStaysHiddenForOne) {
    others.claimFree = [](int, milliseconds) { return false; };
    others.bar = [](milliseconds) { return BarPresence::kHidden; };

    EXPECT_EQ(Decide(), StartVerdict::kBringForward);

    EXPECT_EQ(others.now, kPatience);
}

TEST_F(StartOfACopy, EndsSomeTimeWhateverTheOthersDo) {
    others.claimFree = [](int, milliseconds) { return false; };

    EXPECT_EQ(Decide(), StartVerdict::kBringForward);

    EXPECT_EQ(others.now, kPatience * kClaims);
}
