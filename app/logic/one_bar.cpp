#include "app/logic/one_bar.h"

namespace korvane::app {

StartVerdict DecideStart(OtherCopies& others) {
    for (int claim = 0; claim < kClaims; ++claim) {
        for (int step = 0; step <= kClaimSteps; ++step) {
            const bool ours = others.TakeClaim(claim, step == 0 ? std::chrono::milliseconds{0} : kClaimStep);
            const BarPresence bar = others.LookForBar();
            // The maker of a bar that is there need not have held the claim.
            if (ours) return bar == BarPresence::kNone ? StartVerdict::kMakeBar : StartVerdict::kBringForward;
            if (bar == BarPresence::kShown) return StartVerdict::kBringForward;
        }
        if (others.LookForBar() == BarPresence::kHidden) return StartVerdict::kBringForward;
    }
    return StartVerdict::kBringForward;
}

} // namespace korvane::app
