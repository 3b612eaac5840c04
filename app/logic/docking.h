#pragma once

#include <optional>

#include "app/logic/dock_rules.h"
#include "app/logic/docked_window.h"
#include "app/logic/shell.h"
#include "base/dpi.h"
#include "base/geometry.h"
#include "settings/logic/profile_store.h"

namespace korvane::app {

// What docking depends on besides the settings.
struct DockingOptions {
    bool windows8OrLater = true; // older shells want a bar registered afresh before it may hide
    base::DpiScale scale{};
};

enum class AutoHideResult { kDone, kEdgeTaken, kRefused };

// What the shell reports to a bar (ABN_...); the value is the notification's number.
enum class ShellEvent : unsigned { kStateChange = 0, kPositionChanged = 1, kFullScreenApp = 2, kWindowArrange = 3 };

enum class ShowAtEnd { kNo, kYes };

// The bar's mode and, while it is docked, its place, its hiding and its dealings with the shell. Shell, window and
// settings outlive it.
class Docking {
public:
    Docking(Shell& shell, DockedWindow& window, settings::ProfileStore& settings)
        : shell_{shell}, window_{window}, settings_{settings} {}

    // The state to begin with; nothing is done before the mode is applied.
    void Begin(const DockingOptions& options, bool docked, const base::Rect& floatingRect);

    // Makes window and shell agree with mode and settings.
    void ApplyMode(ShowAtEnd show);
    void ToggleMode();
    // Flips auto-hide and keeps what came of it in the settings.
    AutoHideResult ToggleAutoHide();
    // Leaves the shell and comes back: after it the place, the strip and the task bar's neighbourhood are right again.
    void DockAgain();
    // A new shell knows nothing of the bar. However often it reports its start, the bar docks once.
    void OnShellRestarted();
    // Gives everything back to the shell, for good. Twice is harmless.
    void Leave();

    void OnTimer(DockTimer timer);
    void OnHitTest();
    // Slides a hidden bar out; false when it was not hidden.
    bool ShowOnDemand();
    void OnShellEvent(ShellEvent event, bool opening);
    void OnPlaceChanged();
    void OnActivated(bool active);
    // The bar was activated, and not by a dialog of its own that has closed. One that is out got the keyboard with
    // that.
    void OnBroughtToFront() { typing_ = typing_ || !hidden_; }
    // The user types into the bar or has just put the caret into a box: as long as the bar keeps the keyboard it stays
    // out.
    void OnTyping() { typing_ = true; }
    // The user typed what there was to type: Esc, a start, a search, another program. The bar may hide until there is
    // more.
    void OnTypingEnded() { typing_ = false; }
    // The floating window was moved or sized.
    void OnFloatingRect(const base::Rect& place);

    [[nodiscard]] bool Docked() const { return docked_; }
    [[nodiscard]] bool AutoHide() const { return docked_ && autoHide_; }
    [[nodiscard]] bool Hidden() const { return hidden_; }
    // Whether a bar of another program hides itself where this one would.
    [[nodiscard]] bool OtherBarHides() const { return shell_.OtherBarHidesAt(edge_); }
    // The window-mode rectangle, also while the bar is docked.
    [[nodiscard]] const base::Rect& FloatingRect() const { return floatingRect_; }

private:
    void Dock();
    void Float();
    // Lets go of what the shell holds for the bar and shows it whole.
    void GiveBack();
    void RegisterWithShell();
    AutoHideResult SwitchAutoHide();
    void Reserve(int thicknessPx);
    void Put(ZOrder order);
    // Keeps the order for later and gives the one for now: nothing stands over a full-screen program.
    [[nodiscard]] ZOrder Take(ZOrder order);
    void DockAgainSoon();
    void Slide(bool show);
    void SlideIn();
    void SlideOut();
    [[nodiscard]] bool TypedInto() const;
    void OnFullScreenApp(bool opening);

    Shell& shell_;
    DockedWindow& window_;
    settings::ProfileStore& settings_;
    DockingOptions options_;

    bool docked_ = false;
    bool autoHide_ = false;
    bool hidden_ = false;
    bool typing_ = false; // since the bar was last hidden
    Edge edge_ = Edge::kTop;
    int hiddenThicknessPx_ = kHiddenThicknessPx;
    base::Rect floatingRect_;
    base::Rect dockedRect_;              // the whole bar, captured when it begins to hide
    std::optional<base::Rect> cameFrom_; // while the bar docks again

    bool known_ = false; // to the shell, as far as it let itself be told
    std::optional<base::Rect> lastReserved_;
    bool left_ = false;
    bool changing_ = false;
    bool repositioning_ = false;

    ZOrder order_ = ZOrder::kNotTopmost; // where no full-screen program is open
    bool fullScreenAppOpen_ = false;
    WindowId windowAbove_ = 0;
};

} // namespace korvane::app
