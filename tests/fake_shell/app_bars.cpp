#include "tests/fake_shell/app_bars.h"

#include <algorithm>

namespace korvane::fake_shell {

using base::Rect;

namespace {

// Takes a strip at an edge away from a rectangle.
void Subtract(Rect& rect, Edge edge, const Rect& strip) {
    switch (edge) {
    case Edge::kLeft:
        rect.left = std::max(rect.left, strip.right);
        break;
    case Edge::kTop:
        rect.top = std::max(rect.top, strip.bottom);
        break;
    case Edge::kRight:
        rect.right = std::min(rect.right, strip.left);
        break;
    case Edge::kBottom:
        rect.bottom = std::min(rect.bottom, strip.top);
        break;
    }
}

// Whether a strip lies at least as near to the edge as the rectangle.
bool NearerToTheEdge(Edge edge, const Rect& strip, const Rect& rect) {
    switch (edge) {
    case Edge::kLeft:
        return strip.left <= rect.left;
    case Edge::kTop:
        return strip.top <= rect.top;
    case Edge::kRight:
        return strip.right >= rect.right;
    case Edge::kBottom:
        return strip.bottom >= rect.bottom;
    }
    return false;
}

} // namespace

AppBars::AppBars(Rect screen, BarWindow taskBar) : screen_{screen}, taskBar_{taskBar} {}

AppBars::Bar* AppBars::Find(BarWindow window) {
    const auto found = std::ranges::find(bars_, window, &Bar::window);
    return found == bars_.end() ? nullptr : &*found;
}

const AppBars::Bar* AppBars::Find(BarWindow window) const {
    const auto found = std::ranges::find(bars_, window, &Bar::window);
    return found == bars_.end() ? nullptr : &*found;
}

bool AppBars::Register(BarWindow window, std::uint32_t callbackMessage) {
    if (Find(window)) return false;
    bars_.push_back({.window = window, .callbackMessage = callbackMessage, .strip = {}});
    return true;
}

void AppBars::Remove(BarWindow window) {
    std::erase_if(bars_, [&](const Bar& bar) { return bar.window == window; });
}

bool AppBars::Registered(BarWindow window) const {
    return Find(window) != nullptr;
}

bool AppBars::Query(BarWindow window, Edge edge, Rect& rect) const {
    if (!Find(window)) return false;
    rect = {std::max(rect.left, screen_.left), std::max(rect.top, screen_.top), std::min(rect.right, screen_.right),
            std::min(rect.bottom, screen_.bottom)};
    if (!taskBarHides_) Subtract(rect, taskBarEdge_, TaskBarRect());
    for (const Bar& other : bars_)
        if (other.window != window && other.edge == edge && !other.strip.Empty() &&
            NearerToTheEdge(edge, other.strip, rect))
            Subtract(rect, edge, other.strip);
    return true;
}

bool AppBars::Reserve(BarWindow window, Edge edge, Rect& rect) {
    Bar* const bar = Find(window);
    if (!bar) return false;
    Query(window, edge, rect);
    bar->edge = edge;
    bar->strip = rect;
    return true;
}

Rect AppBars::ReservedBy(BarWindow window) const {
    const Bar* const bar = Find(window);
    return bar ? bar->strip : Rect{};
}

bool AppBars::SetAutoHide(BarWindow window, Edge edge, bool on) {
    BarWindow& owner = autoHide_[static_cast<std::size_t>(edge)];
    if (!on) {
        if (owner == window) owner = 0;
        return true;
    }
    if (owner == 0) owner = window;
    return owner == window;
}

void AppBars::MoveTaskBar(Edge edge, int thickness) {
    const bool hides = taskBarHides_;
    SetTaskBarAutoHide(false);
    taskBarEdge_ = edge;
    taskBarThickness_ = thickness;
    SetTaskBarAutoHide(hides);
}

void AppBars::SetTaskBarAutoHide(bool on) {
    // Where another bar hides itself already, the task bar cannot.
    if (SetAutoHide(taskBar_, taskBarEdge_, on)) taskBarHides_ = on;
}

Rect AppBars::StripAt(Edge edge, int thickness) const {
    Rect strip = screen_;
    switch (edge) {
    case Edge::kLeft:
        strip.right = strip.left + thickness;
        break;
    case Edge::kTop:
        strip.bottom = strip.top + thickness;
        break;
    case Edge::kRight:
        strip.left = strip.right - thickness;
        break;
    case Edge::kBottom:
        strip.top = strip.bottom - thickness;
        break;
    }
    return strip;
}

Rect AppBars::WorkArea() const {
    Rect area = screen_;
    if (!taskBarHides_) Subtract(area, taskBarEdge_, TaskBarRect());
    for (const Bar& bar : bars_)
        if (!bar.strip.Empty()) Subtract(area, bar.edge, bar.strip);
    return area;
}

void AppBars::ForgetBars() {
    bars_.clear();
    autoHide_.fill(0);
    SetTaskBarAutoHide(taskBarHides_);
}

} // namespace korvane::fake_shell
