#pragma once

#include <windows.h>

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "framework/handle.h"
#include "tests/support/wait.h"

// Drives a program from outside, as a user or another program would: nothing here looks into its memory.
namespace korvane::test {

// ---- Windows of any process

[[nodiscard]] std::wstring ClassOf(HWND window);
// The text as the window itself tells it; works for controls of another process too.
[[nodiscard]] std::wstring TextOf(HWND window);
// A child's rectangle in its parent's client area.
[[nodiscard]] RECT RectInParent(HWND child);
// The visible top-level windows of a process, optionally of one class only.
[[nodiscard]] std::vector<HWND> WindowsOf(DWORD processId, const wchar_t* className = nullptr);
// Every top-level window of a class, visible or not.
[[nodiscard]] std::vector<HWND> AllWindows(const wchar_t* className);
// The process that a window belongs to.
[[nodiscard]] DWORD ProcessOf(HWND window);
// Ends the processes that own windows of a class, and waits until they are gone.
void EndOwnersOf(const wchar_t* className);
// Waits until the window's thread has handled everything that was sent or posted to it so far.
bool WaitUntilIdle(HWND window);

// ---- Real input

// Presses the keys one after another, holding each, and releases them in the opposite order.
void PressKeys(std::initializer_list<WORD> keys);
// Types characters, whatever the keyboard layout.
void TypeText(std::wstring_view text);
// Clicks the middle of a window with the left mouse button.
void Click(HWND window);
// What has the keyboard focus in the thread of a window; null when nothing has.
[[nodiscard]] HWND FocusOf(HWND window);
// Gives a control of another process the keyboard focus by clicking it; false when it did not get it.
[[nodiscard]] bool ClickIntoFocus(HWND control);

// ---- Message boxes

// The system's own text for an error, as message boxes show it.
[[nodiscard]] std::wstring TextOfError(DWORD code);

enum class BoxIcon { kNone, kError, kQuestion, kWarning, kInformation };

// A message box on the screen.
class MessageBoxView {
public:
    explicit MessageBoxView(HWND window = nullptr) : window_{window} {}
    explicit operator bool() const { return window_ != nullptr; }

    [[nodiscard]] HWND Handle() const { return window_; }
    [[nodiscard]] std::wstring Caption() const { return TextOf(window_); }
    [[nodiscard]] std::wstring Text() const;
    // Told by the picture, which is the only trace that the icon leaves outside its process.
    [[nodiscard]] BoxIcon Icon() const;
    // The identifiers of the buttons in their order: IDOK, IDYES and so on.
    [[nodiscard]] std::vector<int> Buttons() const;
    // Presses a button and waits until the box is gone.
    bool Press(int button) const;

private:
    HWND window_;
};

// ---- The program

struct StartOptions {
    std::wstring program = {};    // full path; empty for the korvane.exe of this build
    std::wstring searchPath = {}; // a folder to put in front of PATH
    WORD showCommand = SW_SHOWNORMAL;
};

// One running copy of the program. It is ended together with this object.
class Program {
public:
    explicit Program(const StartOptions& options = {});
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    [[nodiscard]] DWORD Id() const { return id_; }
    [[nodiscard]] bool Running() const;
    // Waits for the end; empty when the program still runs at the deadline.
    [[nodiscard]] std::optional<DWORD> WaitForExit() const;
    // Waits for the visible, idle bar; null when the program ended or there is none at the deadline.
    [[nodiscard]] HWND WaitForBar() const;
    // Waits for a message box of the program, other than `previous`.
    [[nodiscard]] MessageBoxView WaitForBox(const MessageBoxView& previous = MessageBoxView{}) const;
    [[nodiscard]] bool ShowsBox() const { return !WindowsOf(id_, L"#32770").empty(); }

private:
    fw::UniqueKernelHandle process_;
    DWORD id_ = 0;
    DWORD thread_ = 0; // its first, which is the one with the windows
};

// The folder of the running test program, with a backslash at the end.
[[nodiscard]] std::wstring OwnFolder();

} // namespace korvane::test
