#pragma once

#include <chrono>

namespace korvane::app {

// There is one bar in a session, however many copies of the program are started, be it at the same moment. Of two
// claims, which one process at a time can hold, the first is taken by the copy that goes on to make the bar. The second
// is for the bad day on which its holder never gets there.

enum class BarPresence {
    kNone,
    kHidden, // its window is being made, or is already going
    kShown,
};

// What a copy that starts can ask of the others.
class OtherCopies {
public:
    virtual ~OtherCopies() = default;

    // Takes a claim, waiting so long for its holder to leave it. One that can be held by nobody counts as taken.
    [[nodiscard]] virtual bool TakeClaim(int claim, std::chrono::milliseconds patience) = 0;
    [[nodiscard]] virtual BarPresence LookForBar() = 0;
};

inline constexpr int kClaims = 2;
inline constexpr std::chrono::milliseconds kClaimStep{50};
// How often the bar is looked for before its maker is given up: ten seconds, for a machine that is just starting.
inline constexpr int kClaimSteps = 200;

enum class StartVerdict {
    kMakeBar,
    kBringForward, // the bar that is there
};

[[nodiscard]] StartVerdict DecideStart(OtherCopies& others);

} // namespace korvane::app
