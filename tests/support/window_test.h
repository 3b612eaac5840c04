#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "framework/gdi.h"
#include "framework/handle.h"
#include "framework/window.h"
#include "tests/support/pump.h"

namespace korvane::test {

// What a child told its host: the message, the child's identifier, and the notification code of WM_COMMAND and
// WM_NOTIFY.
struct FromChild {
    UINT message;
    UINT id;
    UINT code;
    friend bool operator==(const FromChild&, const FromChild&) = default;
};

// A parent window that records what its children send, and hands it back to them as the bar does.
class RecordingHost final : public fw::Window<RecordingHost> {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneTestHost_WndClass"};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_COMMAND>(&RecordingHost::OnCommand),        fw::On<WM_NOTIFY>(&RecordingHost::OnNotify),
            fw::On<WM_DRAWITEM>(&RecordingHost::OnDrawItem),      fw::On<WM_CTLCOLORBTN>(&RecordingHost::OnColour),
            fw::On<WM_CTLCOLOREDIT>(&RecordingHost::OnColour),    fw::On<WM_CTLCOLORSTATIC>(&RecordingHost::OnColour),
            fw::On<WM_CTLCOLORLISTBOX>(&RecordingHost::OnColour), fw::On<WM_ERASEBKGND>(&RecordingHost::OnErase),
        };
    }

    // Asked after the message is recorded and before it is offered to the child.
    std::function<fw::Reply(const fw::Message&)> answer;
    std::vector<FromChild> sent;
    // What the host paints behind its children; nothing when it is empty.
    std::optional<COLORREF> ground;
    // What it paints over that.
    std::function<void(HDC)> paintOver;

    // How often a child sent this notification as WM_COMMAND.
    [[nodiscard]] int CommandCount(UINT id, UINT code) const {
        int count = 0;
        for (const FromChild& one : sent) count += one == FromChild{WM_COMMAND, id, code} ? 1 : 0;
        return count;
    }
    // How often the child was to be painted.
    [[nodiscard]] int DrawCount(UINT id) const {
        int count = 0;
        for (const FromChild& one : sent) count += one.message == WM_DRAWITEM && one.id == id ? 1 : 0;
        return count;
    }

private:
    fw::Reply Record(const fw::Message& m, UINT id, UINT code) {
        sent.push_back({m.id, id, code});
        if (answer)
            if (const fw::Reply reply = answer(m)) return reply;
        return fw::WindowObject::Reflect(m);
    }
    fw::Reply OnCommand(const fw::Message& m) { return Record(m, LOWORD(m.wparam), HIWORD(m.wparam)); }
    fw::Reply OnNotify(const fw::Message& m) {
        const auto& header = *reinterpret_cast<const NMHDR*>(m.lparam);
        return Record(m, static_cast<UINT>(header.idFrom), header.code);
    }
    fw::Reply OnErase(HDC dc) {
        if (!ground) return fw::kPassOn;
        const fw::UniqueBrush brush{::CreateSolidBrush(*ground)};
        RECT all{};
        ::GetClientRect(Handle(), &all);
        ::FillRect(dc, &all, brush.Get());
        if (paintOver) paintOver(dc);
        return LRESULT{1};
    }
    fw::Reply OnDrawItem(const fw::Message& m) { return Record(m, static_cast<UINT>(m.wparam), 0); }
    fw::Reply OnColour(const fw::Message& m) {
        const auto child = reinterpret_cast<HWND>(m.lparam);
        return Record(m, static_cast<UINT>(::GetDlgCtrlID(child)), 0);
    }
};

// For tests of controls: a hidden host, 800 by 600 pixels, that outlives what the test creates in it when the test
// declares its controls after it is set up. Nothing here waits for time to pass or needs the focus.
class WindowTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(host.Create({.text = L"host", .rect = {0, 0, 800, 600}, .style = WS_POPUP})); }

    [[nodiscard]] HWND Host() const { return host.Handle(); }

    static LRESULT Send(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
        return ::SendMessageW(window, message, wparam, lparam);
    }
    static LRESULT SendMouse(HWND window, UINT message, POINT client, WPARAM keys = 0) {
        return Send(window, message, keys, MAKELPARAM(client.x, client.y));
    }
    // Presses and releases the left button over a point of the client area, by default its middle.
    static void Click(HWND window, std::optional<POINT> client = {}) {
        const base::Rect area = fw::ClientRect(window);
        const POINT at = client.value_or(POINT{area.Width() / 2, area.Height() / 2});
        SendMouse(window, WM_LBUTTONDOWN, at, MK_LBUTTON);
        SendMouse(window, WM_LBUTTONUP, at);
    }
    static std::optional<int> Pump() { return PumpMessages(); }

    RecordingHost host;
};

} // namespace korvane::test
