#pragma once

#include <array>
#include <chrono>
#include <string>

#include "tests/program/bar_picture.h"
#include "tests/support/fake_shell.h"

namespace korvane::test {

// Commands of the docked bar.
enum DockCommand : int {
    kToggleMode = 40001,
    kToggleAutoHide = 40003,
    kOpenMainMenu = 2010,
    kOpenCommandHistory = 2011,
    kOpenSearchChooser = 2013,
    kOpenControlPanel = 4000,
};

// A user who has the bar docked and is never asked before it ends. The mouse rests in the middle of the screen, away
// from all edges.
class DockedBar : public ProgramTest {
protected:
    static constexpr int kBarPx = 32;
    // The window-mode rectangle that the user left behind.
    static constexpr std::array<LONG, 4> kFloatingPlace{100, 200, 1300, 270};

    void SetUp() override {
        ProgramTest::SetUp();
        ASSERT_TRUE(shell_.Running());
        StartDocked();
        CloseWithoutQuestion();
        WriteSetting(kPlacement, L"WindowPosRect", REG_BINARY, kFloatingPlace.data(), sizeof kFloatingPlace);
        PutMouse(width_ / 2, height_ / 2);
    }

    static void DockAtTheBottom() { WriteSetting(kSettings, L"DesktopBarEdge", 1); }
    static void HideAutomatically() { WriteSetting(kSettings, L"DesktopBarAutoHide", 1); }

    static void PutMouse(int x, int y) {
        ::SetCursorPos(x, y);
        WaitUntil([&] {
            POINT at{};
            ::GetCursorPos(&at);
            return at.x == x && at.y == y;
        });
    }

    static void Touch(HWND strip, LONG besideMiddle = 0) {
        RECT rect{};
        ::GetWindowRect(strip, &rect);
        PutMouse((rect.left + rect.right) / 2 + besideMiddle, rect.top);
    }
    // A busy display server can swallow a movement; a user would move the mouse once more, too.
    static bool SlideOut(HWND bar, const std::string& whole) {
        for (LONG attempt = 0; attempt < 5; ++attempt) {
            Touch(bar, attempt);
            const auto out = [&] { return ::IsWindowVisible(bar) && PlaceOf(bar) == whole; };
            if (WaitUntil(out, std::chrono::seconds{4})) return WaitUntilIdle(bar);
        }
        return false;
    }

    static std::string PlaceOf(HWND window) {
        RECT rect{};
        ::GetWindowRect(window, &rect);
        return Text(rect);
    }
    // Where the bar is once it is there, or where else it was at the deadline.
    static std::string PlaceIn(HWND bar, const std::string& expected) {
        WaitUntil([&] { return ::IsWindowVisible(bar) && PlaceOf(bar) == expected; });
        return ::IsWindowVisible(bar) ? PlaceOf(bar) : "hidden";
    }
    static bool Floats(HWND bar) { return (::GetWindowLongW(bar, GWL_STYLE) & WS_CAPTION) == WS_CAPTION; }
    static bool WaitUntilItFloats(HWND bar) {
        return WaitUntil([&] { return Floats(bar) && ::IsWindowVisible(bar) && WaitUntilIdle(bar); });
    }
    // The strip that a bar would take at an edge of a rectangle.
    static std::string TopOf(const RECT& area, int thickness = kBarPx) {
        return Text({area.left, area.top, area.right, area.top + thickness});
    }
    static std::string BottomOf(const RECT& area, int thickness = kBarPx) {
        return Text({area.left, area.bottom - thickness, area.right, area.bottom});
    }

    bool WaitForCount(std::string_view word, int count) const {
        return WaitUntil([&] { return shell_.Count(word) >= count; });
    }

    const int width_ = ::GetSystemMetrics(SM_CXSCREEN);
    const int height_ = ::GetSystemMetrics(SM_CYSCREEN);
    const RECT screen_{0, 0, width_, height_};
    // What the task bar leaves.
    const RECT besideTaskBar_{0, 0, width_, height_ - FakeShell::kTaskBarPx};
    const FakeShell shell_;
};

} // namespace korvane::test
