#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "app/logic/docked_window.h"
#include "app/logic/shell.h"

namespace korvane::test {

[[nodiscard]] inline std::string Text(const base::Rect& r) {
    return std::to_string(r.left) + "," + std::to_string(r.top) + "-" + std::to_string(r.right) + "," +
           std::to_string(r.bottom);
}

[[nodiscard]] inline const char* Text(app::Edge edge) {
    return edge == app::Edge::kTop ? "top" : "bottom";
}

// A screen of 1280 by 800 with its reserved strips, which shell and window look at alike.
struct DeskDouble {
    base::Rect screen{0, 0, 1280, 800};
    std::optional<base::Rect> secondScreen; // to the right of it
    std::optional<base::Rect> taskBar = base::Rect{0, 760, 1280, 800};
    std::optional<base::Rect> otherBar; // of another program, along the upper edge
    std::optional<base::Rect> strip;    // the bar's own

    // What happened, one word after the other; each step ends in "; ".
    std::string log;
    void Note(const std::string& what) { log += what + "; "; }
    std::string TakeLog() { return std::exchange(log, {}); }

    [[nodiscard]] base::Rect WorkArea() const { return WorkAreaOf(screen); }
    [[nodiscard]] base::Rect WorkAreaOf(base::Rect area) const {
        const base::Rect whole = area;
        for (const auto& taken : {taskBar, otherBar, strip}) {
            if (!taken || Intersection(*taken, whole).Empty()) continue;
            if (taken->top <= area.top && taken->bottom > area.top) area.top = taken->bottom;
            if (taken->bottom >= area.bottom && taken->top < area.bottom) area.bottom = taken->top;
        }
        return area;
    }
};

// Answers as Windows' shell does: it moves a bar away from what others hold, keeps one hiding bar per edge, and calls
// back while it is being called when told to.
class ShellDouble final : public app::Shell {
public:
    explicit ShellDouble(DeskDouble& desk) : desk_{desk} {}

    bool refusesRegistration = false;
    bool refusesAutoHide = false;
    std::set<app::Edge> othersHideAt;
    std::function<void()> onReserve; // called back from within ReservePlace

    [[nodiscard]] bool Registered() const { return registered_; }
    [[nodiscard]] std::optional<app::Edge> HidesAt() const { return hidesAt_; }
    // A new shell: nothing is known any more.
    void Restart() {
        registered_ = false;
        hidesAt_.reset();
        desk_.strip.reset();
    }

    bool Register() override {
        desk_.Note("register");
        if (refusesRegistration || registered_) return false;
        return registered_ = true;
    }
    void Unregister() override {
        desk_.Note("unregister");
        Restart();
    }
    base::Rect QueryPlace(app::Edge edge, const base::Rect& wanted) override {
        desk_.Note(std::string{"query "} + Text(edge) + " " + Text(wanted));
        return MovedAside(edge, wanted);
    }
    base::Rect ReservePlace(app::Edge edge, const base::Rect& wanted) override {
        desk_.Note(std::string{"reserve "} + Text(edge) + " " + Text(wanted));
        const base::Rect place = MovedAside(edge, wanted);
        if (registered_) desk_.strip = place;
        if (onReserve) onReserve();
        return place;
    }
    bool OtherBarHidesAt(app::Edge edge) override { return othersHideAt.contains(edge); }
    bool SetAutoHide(app::Edge edge, bool on) override {
        desk_.Note(std::string{on ? "hide at " : "stop hiding at "} + Text(edge));
        if (!registered_ || refusesAutoHide || othersHideAt.contains(edge)) return false;
        hidesAt_ = on ? std::optional{edge} : std::nullopt;
        return true;
    }
    std::optional<base::Rect> TaskBar() override { return desk_.taskBar; }
    void TellPlaceChanged(app::Edge edge) override { desk_.Note(std::string{"place changed "} + Text(edge)); }
    void TellActivated(app::Edge, bool active) override { desk_.Note(active ? "activated" : "deactivated"); }

private:
    [[nodiscard]] base::Rect MovedAside(app::Edge edge, base::Rect place) const {
        for (const auto& taken : {desk_.taskBar, desk_.otherBar}) {
            if (!taken || Intersection(*taken, place).Empty()) continue;
            const int by = edge == app::Edge::kTop ? taken->bottom - place.top : taken->top - place.bottom;
            place = place.Offset(0, by);
        }
        return place;
    }

    DeskDouble& desk_;
    bool registered_ = false;
    std::optional<app::Edge> hidesAt_;
};

// A bar's window without a window. Time passes by ten milliseconds with every step of a slide.
class WindowDouble final : public app::DockedWindow {
public:
    explicit WindowDouble(DeskDouble& desk) : desk_{desk} {}

    base::Rect place{100, 100, 1124, 160};
    std::optional<base::Rect> reachable; // where a monitor is gone
    bool visible = false;
    bool docked = false;
    bool controlsShown = true;
    bool cursorInside = false;
    bool inUse = false;
    bool hasKeyboard = false;
    app::ZOrder order = app::ZOrder::kKeep;
    app::WindowId above = 0;
    std::set<app::WindowId> windows;      // those that PutBehind finds
    std::set<app::WindowId> plainWindows; // those of them that are not topmost
    std::map<app::DockTimer, std::chrono::milliseconds> timers;
    std::vector<int> slideTops;
    int changes = 0;

    base::Rect WorkAreaAt(const base::Rect& near) const override {
        const bool onSecond = desk_.secondScreen && near.left >= desk_.secondScreen->left;
        return desk_.WorkAreaOf(onSecond ? *desk_.secondScreen : desk_.screen);
    }
    base::Rect Reachable(const base::Rect& wanted) const override { return reachable.value_or(wanted); }
    base::Rect Place() const override { return place; }
    bool Visible() const override { return visible; }
    void Hide() override {
        visible = false;
        desk_.Note("hide window");
    }
    void Show() override {
        visible = true;
        desk_.Note("show window");
    }
    void BecomeDocked() override {
        docked = true;
        desk_.Note("dock window");
    }
    void BecomeFloating(bool topmost) override {
        docked = false;
        if (topmost) order = app::ZOrder::kTopmost;
        desk_.Note(topmost ? "float window on top" : "float window");
    }
    void MoveTo(const base::Rect& to, app::ZOrder z) override {
        place = to;
        if (z != app::ZOrder::kKeep) order = z;
        desk_.Note("move " + Text(to));
    }
    void SetZOrder(app::ZOrder z) override {
        order = z;
        static constexpr std::array kNames{"keep", "topmost", "not topmost", "top", "bottom"};
        desk_.Note(kNames.at(static_cast<std::size_t>(z)));
    }
    void SlideTo(int top, bool) override {
        place = place.Offset(0, top - place.top);
        slideTops.push_back(top);
        now_ += std::chrono::milliseconds{10};
    }
    void ShowControls(bool shown) override { controlsShown = shown; }
    bool CursorInside() const override { return cursorInside; }
    bool InUse() const override { return inUse; }
    bool HasKeyboard() const override { return hasKeyboard; }
    app::WindowId WindowAbove() const override { return above; }
    bool PutBehind(app::WindowId window, app::ZOrder z) override {
        if (!windows.contains(window)) return false;
        if (z == app::ZOrder::kTopmost && plainWindows.contains(window)) return false;
        order = z;
        desk_.Note("behind " + std::to_string(window));
        return true;
    }
    void StartTimer(app::DockTimer timer, std::chrono::milliseconds period) override { timers[timer] = period; }
    void StopTimer(app::DockTimer timer) override { timers.erase(timer); }
    std::chrono::milliseconds Now() const override { return now_; }
    void Wait(std::chrono::milliseconds time) override {
        desk_.Note("wait " + std::to_string(time.count()));
        now_ += time;
    }
    void DockingChanged() override { ++changes; }

private:
    DeskDouble& desk_;
    std::chrono::milliseconds now_{5000};
};

} // namespace korvane::test
