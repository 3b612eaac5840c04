#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "base/geometry.h"

namespace korvane::fake_shell {

// In the order of Windows' own numbers (ABE_LEFT and so on).
enum class Edge : std::uint32_t { kLeft, kTop, kRight, kBottom };
inline constexpr std::size_t kEdges = 4;

[[nodiscard]] constexpr std::optional<Edge> EdgeOf(std::uint32_t number) {
    return number < kEdges ? std::optional{static_cast<Edge>(number)} : std::nullopt;
}

// A window's handle; 32 bits are all that a handle has.
using BarWindow = std::uint32_t;

// The shell's side of the bars at the edges of the one screen: who is registered, which strips are reserved and what
// remains for other windows.
class AppBars {
public:
    // `taskBar` is the window that owns the task bar's auto-hide.
    AppBars(base::Rect screen, BarWindow taskBar);

    // False for a window that is registered already.
    bool Register(BarWindow bar, std::uint32_t callbackMessage);
    // Gives the bar's strip back. The auto-hide of an edge stays with its owner until that gives it up itself.
    void Remove(BarWindow bar);
    [[nodiscard]] bool Registered(BarWindow bar) const;

    // Moves a rectangle that a bar would like out of the task bar and the strips that lie nearer to the same edge. Only
    // the side at the edge is moved, so the thickness changes. False when the bar is not registered.
    bool Query(BarWindow bar, Edge edge, base::Rect& rect) const;
    // Queries, then reserves the outcome.
    bool Reserve(BarWindow bar, Edge edge, base::Rect& rect);
    // Empty when the bar has reserved nothing.
    [[nodiscard]] base::Rect ReservedBy(BarWindow bar) const;

    // False when another bar owns the auto-hide of the edge. Giving up what belongs to another is no failure.
    bool SetAutoHide(BarWindow bar, Edge edge, bool on);
    // 0 for none.
    [[nodiscard]] BarWindow AutoHideOwner(Edge edge) const { return autoHide_[static_cast<std::size_t>(edge)]; }

    void MoveTaskBar(Edge edge, int thickness);
    void SetTaskBarAutoHide(bool on);
    [[nodiscard]] bool TaskBarHides() const { return taskBarHides_; }
    [[nodiscard]] Edge TaskBarEdge() const { return taskBarEdge_; }
    [[nodiscard]] base::Rect TaskBarRect() const { return StripAt(taskBarEdge_, taskBarThickness_); }

    // The strip along a whole edge of the screen.
    [[nodiscard]] base::Rect StripAt(Edge edge, int thickness) const;
    [[nodiscard]] const base::Rect& Screen() const { return screen_; }
    [[nodiscard]] base::Rect WorkArea() const;

    struct Bar {
        BarWindow window = 0;
        std::uint32_t callbackMessage = 0;
        Edge edge = Edge::kTop;
        base::Rect strip;
    };
    [[nodiscard]] const std::vector<Bar>& Bars() const { return bars_; }

    // Everything but the task bar.
    void ForgetBars();
    // Bars and auto-hide owners whose windows are gone, as a predicate tells. True when there were any.
    template <class Gone>
    bool DropBars(Gone gone) {
        for (BarWindow& owner : autoHide_)
            if (owner != 0 && gone(owner)) owner = 0;
        return std::erase_if(bars_, [&](const Bar& bar) { return gone(bar.window); }) > 0;
    }

private:
    [[nodiscard]] Bar* Find(BarWindow bar);
    [[nodiscard]] const Bar* Find(BarWindow bar) const;

    base::Rect screen_;
    BarWindow taskBar_;
    Edge taskBarEdge_ = Edge::kBottom;
    int taskBarThickness_ = 40;
    bool taskBarHides_ = false;
    std::vector<Bar> bars_;
    std::array<BarWindow, kEdges> autoHide_{};
};

} // namespace korvane::fake_shell
