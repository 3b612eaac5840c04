#include "app/one_bar.h"

#include "app/main_frame.h"

namespace korvane::app {

HWND ThisCopy::FindBar() {
    return ::FindWindowW(CMainFrame::kClass.name, nullptr);
}

bool ThisCopy::TakeClaim(int claim, std::chrono::milliseconds patience) {
    fw::NamedMutex& mutex = claims_[static_cast<std::size_t>(claim)];
    return !mutex.Exists() || mutex.Take(patience);
}

BarPresence ThisCopy::LookForBar() {
    const HWND bar = FindBar();
    if (!bar) return BarPresence::kNone;
    return ::IsWindowVisible(bar) ? BarPresence::kShown : BarPresence::kHidden;
}

} // namespace korvane::app
