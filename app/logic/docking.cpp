#include "app/logic/docking.h"

#include <utility>

#include "app/logic/bar_layout.h"
#include "settings/logic/auto_hide_delay.h"
#include "settings/logic/setting_keys.h"

namespace korvane::app {

namespace keys = settings::keys;
using std::chrono::milliseconds;

namespace {

// The shell and the other windows need a moment to take the strip back before the bar asks for one again.
constexpr milliseconds kPauseBetweenModes{500};
// Docking again can itself make the shell report moved bars; this long the bar does not listen to it.
constexpr milliseconds kRepositioningPause{2000};
// How long the mouse must stay at the strip.
constexpr milliseconds kTouchTime{100};
// A shell that has just started broadcasts more than once, and its task bar takes a moment to settle.
constexpr milliseconds kSettlingTime{250};

// Sets a flag for the length of a scope, within a scope that set it already too.
class Scope {
public:
    explicit Scope(bool& flag) : flag_{flag}, before_{std::exchange(flag, true)} {}
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
    ~Scope() { flag_ = before_; }

private:
    bool& flag_;
    bool before_;
};

} // namespace

void Docking::Begin(const DockingOptions& options, bool docked, const base::Rect& floatingRect) {
    options_ = options;
    docked_ = docked;
    floatingRect_ = floatingRect;
}

void Docking::ApplyMode(ShowAtEnd show) {
    {
        const Scope changing{changing_};
        window_.Hide();
        if (docked_) {
            Dock();
        } else {
            Float();
        }
        window_.DockingChanged();
    }
    if (show == ShowAtEnd::kYes) window_.Show();
}

void Docking::Dock() {
    window_.BecomeDocked();
    // A bar that is docked already may change its edge or stop hiding.
    GiveBack();
    RegisterWithShell();
    edge_ = EdgeOfSetting(settings_.Read(keys::DesktopBarEdge));
    hiddenThicknessPx_ = HiddenThickness(edge_, shell_.TaskBar(), options_.scale);
    Reserve(options_.scale(kBarHeightPx));
    Put(ZOrder::kTopmost);
    autoHide_ = settings_.Read(keys::DesktopBarAutoHide) > 0;
    if (autoHide_) SwitchAutoHide();
}

void Docking::Float() {
    const bool topmost = settings_.Read(keys::TopMostWindow) > 0;
    Put(ZOrder::kNotTopmost);
    GiveBack();
    window_.ShowControls(true);
    // Its monitor may be gone. The place is kept: the monitor may come back.
    window_.MoveTo(window_.Reachable(floatingRect_), ZOrder::kKeep);
    window_.BecomeFloating(topmost);
}

void Docking::GiveBack() {
    window_.StopTimer(DockTimer::kHideCheck);
    window_.StopTimer(DockTimer::kShowCheck);
    if (std::exchange(hidden_, false)) window_.ShowControls(true);
    if (!known_) return;
    // Nothing depends on the answer: leaving the shell lets go of the edge anyway.
    if (autoHide_) static_cast<void>(shell_.SetAutoHide(edge_, false));
    autoHide_ = false;
    shell_.Unregister();
    known_ = false;
}

void Docking::RegisterWithShell() {
    // A refusal leaves the bar at the edge without a strip of its own. It counts as known all the same: a shell also
    // refuses whom it knows already, and then there is something to be given back.
    shell_.Register();
    known_ = true;
}

void Docking::Reserve(int thicknessPx) {
    const base::Rect nearest = window_.WorkAreaAt(cameFrom_.value_or(window_.Place()));
    const base::Rect area = WithoutReservation(nearest, lastReserved_, edge_);
    const base::Rect freePlace = shell_.QueryPlace(edge_, StripAt(edge_, area, thicknessPx));
    lastReserved_ = shell_.ReservePlace(edge_, StripAt(edge_, freePlace, thicknessPx));
    window_.MoveTo(*lastReserved_, ZOrder::kKeep);
}

void Docking::Put(ZOrder order) {
    window_.SetZOrder(Take(order));
}

ZOrder Docking::Take(ZOrder order) {
    order_ = order;
    // Under such a program the bar may still hide, or dock again because the resolution was changed.
    return fullScreenAppOpen_ ? ZOrder::kBottom : order;
}

AutoHideResult Docking::SwitchAutoHide() {
    if (autoHide_ && shell_.OtherBarHidesAt(edge_)) {
        autoHide_ = false;
        return AutoHideResult::kEdgeTaken;
    }
    const bool afresh = autoHide_ && !options_.windows8OrLater;
    if (afresh) {
        shell_.Unregister();
        RegisterWithShell();
    }
    if (!shell_.SetAutoHide(edge_, autoHide_)) {
        autoHide_ = !autoHide_;
        // The strip went with the old registration.
        if (afresh) Reserve(options_.scale(kBarHeightPx));
        return AutoHideResult::kRefused;
    }
    if (autoHide_) {
        dockedRect_ = window_.Place();
        Reserve(hiddenThicknessPx_);
        SlideIn();
    } else {
        window_.StopTimer(DockTimer::kHideCheck);
        window_.StopTimer(DockTimer::kShowCheck);
        hidden_ = false;
        Reserve(options_.scale(kBarHeightPx));
        window_.ShowControls(true);
    }
    Put(autoHide_ ? ZOrder::kTopmost : ZOrder::kNotTopmost);
    return AutoHideResult::kDone;
}

void Docking::ToggleMode() {
    docked_ = !docked_;
    fullScreenAppOpen_ = false;
    ApplyMode(ShowAtEnd::kYes);
}

AutoHideResult Docking::ToggleAutoHide() {
    if (!docked_) return AutoHideResult::kDone;
    AutoHideResult result{};
    {
        const Scope changing{changing_};
        autoHide_ = !autoHide_;
        result = SwitchAutoHide();
    }
    settings_.Write(keys::DesktopBarAutoHide, autoHide_ ? 1 : 0);
    window_.DockingChanged();
    return result;
}

void Docking::DockAgain() {
    if (!docked_ || left_) return;
    if (changing_) {
        DockAgainSoon();
        return;
    }
    const bool typing = TypedInto();
    // In between the bar is where it floats, which may be on another monitor.
    cameFrom_ = window_.Place();
    docked_ = false;
    ApplyMode(ShowAtEnd::kNo);
    window_.Wait(kPauseBetweenModes);
    docked_ = true;
    ApplyMode(ShowAtEnd::kNo);
    cameFrom_.reset();
    if (typing && ShowOnDemand()) OnTyping();
    window_.Show();
}

bool Docking::TypedInto() const {
    return typing_ && window_.HasKeyboard();
}

void Docking::DockAgainSoon() {
    if (docked_ && !left_) window_.StartTimer(DockTimer::kDockAgain, kSettlingTime);
}

void Docking::OnShellRestarted() {
    // The new shell will not report the end of what the old one saw begin.
    fullScreenAppOpen_ = false;
    DockAgainSoon();
}

void Docking::Leave() {
    left_ = true;
    window_.StopTimer(DockTimer::kRepositioning);
    window_.StopTimer(DockTimer::kDockAgain);
    GiveBack();
}

void Docking::Slide(bool show) {
    const Scope changing{changing_};
    hidden_ = !show;
    const base::Rect target = show ? dockedRect_ : StripAt(edge_, dockedRect_, hiddenThicknessPx_);
    const int distance = SlideDistance(window_.Place(), target);
    if (show) window_.MoveTo(dockedRect_.Offset(0, -distance), ZOrder::kKeep);
    // Where nothing is to be seen the way is not walked.
    if (distance != 0 && window_.Visible()) {
        const int startTop = window_.Place().top;
        const milliseconds start = window_.Now();
        for (milliseconds elapsed{0}; elapsed < kSlideTime; elapsed = window_.Now() - start)
            window_.SlideTo(SlideTop(startTop, elapsed, distance), show);
    }
    // The strip lies over other windows; the bar that has come out of it deliberately does not.
    window_.MoveTo(target, Take(hidden_ ? ZOrder::kTopmost : ZOrder::kNotTopmost));
}

void Docking::SlideIn() {
    Slide(false);
    // Nobody types into what cannot be seen: the next time it comes out the bar goes with the mouse again.
    typing_ = false;
    window_.ShowControls(false);
    window_.StopTimer(DockTimer::kHideCheck);
}

void Docking::SlideOut() {
    window_.StopTimer(DockTimer::kShowCheck);
    window_.ShowControls(true);
    Slide(true);
    window_.StartTimer(DockTimer::kHideCheck, settings::AutoHideDelay(settings_.Read(keys::DesktopBarAutoHideSecond)));
}

void Docking::OnTimer(DockTimer timer) {
    switch (timer) {
    case DockTimer::kHideCheck:
        if (!AutoHide() || hidden_) {
            window_.StopTimer(timer);
        } else if (!window_.CursorInside() && !window_.InUse() && !TypedInto()) {
            // Otherwise the timer stays armed, so that the bar hides at the first tick after they let go of it.
            SlideIn();
        }
        break;
    case DockTimer::kShowCheck:
        window_.StopTimer(timer);
        if (AutoHide() && hidden_ && window_.CursorInside() && !fullScreenAppOpen_) SlideOut();
        break;
    case DockTimer::kRepositioning:
        repositioning_ = false;
        window_.StopTimer(timer);
        break;
    case DockTimer::kDockAgain:
        window_.StopTimer(timer);
        DockAgain();
        break;
    }
}

void Docking::OnHitTest() {
    if (AutoHide() && hidden_) window_.StartTimer(DockTimer::kShowCheck, kTouchTime);
}

bool Docking::ShowOnDemand() {
    if (!AutoHide() || !hidden_) return false;
    SlideOut();
    return true;
}

void Docking::OnShellEvent(ShellEvent event, bool opening) {
    if (!docked_) return;
    // The shell may report what the bar itself is just causing. A full-screen program is none of that.
    if (changing_ && event != ShellEvent::kFullScreenApp) return;
    switch (event) {
    case ShellEvent::kStateChange:
        DockAgain();
        break;
    case ShellEvent::kPositionChanged:
        if (repositioning_) break;
        repositioning_ = true;
        DockAgain();
        window_.StartTimer(DockTimer::kRepositioning, kRepositioningPause);
        break;
    case ShellEvent::kFullScreenApp:
        OnFullScreenApp(opening);
        break;
    case ShellEvent::kWindowArrange:
        break;
    }
}

void Docking::OnFullScreenApp(bool opening) {
    if (opening == fullScreenAppOpen_) return;
    fullScreenAppOpen_ = opening;
    if (opening) {
        windowAbove_ = window_.WindowAbove();
        window_.SetZOrder(ZOrder::kBottom);
    } else if (const WindowId above = std::exchange(windowAbove_, 0); above == 0 || !window_.PutBehind(above, order_)) {
        // Nothing stood above it, or what did is gone or has become a window like others, above which a strip stands.
        window_.SetZOrder(order_ == ZOrder::kTopmost ? ZOrder::kTopmost : ZOrder::kTop);
    }
}

void Docking::OnPlaceChanged() {
    if (docked_ && known_) shell_.TellPlaceChanged(edge_);
}

void Docking::OnActivated(bool active) {
    if (docked_ && known_) shell_.TellActivated(edge_, active);
}

void Docking::OnFloatingRect(const base::Rect& place) {
    if (!docked_ && !changing_) floatingRect_ = place;
}

} // namespace korvane::app
