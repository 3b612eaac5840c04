#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <string_view>
#include <vector>

#include "framework/handle.h"

namespace korvane::test {

// A process that plays Windows' shell for docked bars, see tests/fake_shell. Its task bar is 40 pixels at the bottom
// edge. It is ended together with this object, and the work area is the whole screen again then.
class FakeShell {
public:
    static constexpr int kTaskBarPx = 40;

    FakeShell();
    ~FakeShell();
    FakeShell(const FakeShell&) = delete;
    FakeShell& operator=(const FakeShell&) = delete;

    // False when it could not be started, or another process was taken for the shell.
    [[nodiscard]] bool Running() const { return window_ != nullptr; }

    // ---- What happens to bars. Edges are ABE_..., notifications ABN_...

    void MoveTaskBar(UINT edge, int thicknessPx = kTaskBarPx) const;
    void HideTaskBarAutomatically(bool on = true) const;
    // Another bar hides itself at the edge.
    void OccupyAutoHide(UINT edge) const;
    // Another bar docks at the edge; gives that bar.
    HWND ReserveStrip(UINT edge, int thicknessPx) const;
    void GiveStripBack(HWND otherBar) const;
    void RefuseRegistrations(bool on = true) const { Refuse(ABM_NEW, on); }
    void RefuseAutoHide(bool on = true) const { Refuse(ABM_SETAUTOHIDEBAR, on); }
    // Any ABM_... message is answered with failure.
    void Refuse(UINT message, bool on = true) const;
    // Posts a notification to every registered bar.
    void Notify(UINT notification, LPARAM argument = 0) const;
    // The shell forgets all bars and broadcasts "TaskbarCreated", so many times without a pause.
    void Restart(int times = 1) const;

    // ---- What bars did

    // One line for each message that bars sent, "SETPOS 0001008A top 0,0-1920,32 lparam 0 -> 1", and a changed
    // rectangle after the answer; what the shell does itself stands between them, "=> POSCHANGED 0 to 0001008A" or
    // "workarea 0,32-1920,1040".
    [[nodiscard]] std::vector<std::string> Log() const;
    void ClearLog() const;
    // The lines that begin with a word.
    [[nodiscard]] std::vector<std::string> Log(std::string_view word) const;
    [[nodiscard]] int Count(std::string_view word) const { return static_cast<int>(Log(word).size()); }
    // What changed registrations, places and auto-hide, and in which order: "NEW QUERYPOS SETPOS SETAUTOHIDEBAR(1)".
    [[nodiscard]] std::string Steps() const;

    [[nodiscard]] bool Registered(HWND bar) const;
    // Empty when the bar has reserved nothing.
    [[nodiscard]] RECT ReservedBy(HWND bar) const;
    [[nodiscard]] HWND AutoHideOwner(UINT edge) const;

private:
    LRESULT Send(UINT command, WPARAM wparam = 0, LPARAM lparam = 0) const;

    fw::UniqueKernelHandle process_;
    HWND window_ = nullptr;
};

// The work area of the primary screen, as every program sees it.
[[nodiscard]] RECT WorkArea();

// "0,32-1920,1040".
[[nodiscard]] std::string Text(const RECT& rect);

} // namespace korvane::test
