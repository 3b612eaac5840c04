#include "tests/support/fake_shell.h"

#include <algorithm>
#include <array>
#include <sstream>

#include "tests/fake_shell/protocol.h"
#include "tests/fake_shell/work_area.h"
#include "tests/support/program_driver.h"

namespace korvane::test {

using fake_shell::kServiceClass;

namespace {

constexpr UINT kAnswerTimeoutMs = 10'000;

std::string FirstWord(std::string_view line) {
    return std::string{line.substr(0, line.find(' '))};
}

// The log is plain ASCII.
std::string Narrow(std::wstring_view text) {
    std::string narrow;
    std::ranges::transform(text, std::back_inserter(narrow), [](wchar_t letter) { return static_cast<char>(letter); });
    return narrow;
}

} // namespace

FakeShell::FakeShell() {
    EndOwnersOf(kServiceClass);
    const std::wstring program = OwnFolder() + KORVANE_FAKE_SHELL;
    std::wstring commandLine = L"\"" + program + L"\" " + std::to_wstring(::GetCurrentProcessId());
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    if (!::CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                          &started))
        return;
    ::CloseHandle(started.hThread);
    process_.Reset(started.hProcess);
    // Found just as SHAppBarMessage finds it.
    window_ = WaitUntil([&]() -> HWND {
        const HWND found = ::FindWindowW(kServiceClass, nullptr);
        return found != nullptr && ProcessOf(found) == started.dwProcessId ? found : nullptr;
    });
    if (window_ != nullptr) WaitUntilIdle(window_);
}

FakeShell::~FakeShell() {
    if (!process_) return;
    if (window_ != nullptr) ::PostMessageW(window_, WM_CLOSE, 0, 0);
    if (::WaitForSingleObject(process_.Get(), kAnswerTimeoutMs) == WAIT_OBJECT_0) return;
    ::TerminateProcess(process_.Get(), 1);
    ::WaitForSingleObject(process_.Get(), kAnswerTimeoutMs);
    fake_shell::PublishWorkArea(fake_shell::WholeScreen());
}

LRESULT FakeShell::Send(UINT command, WPARAM wparam, LPARAM lparam) const {
    DWORD_PTR answer = 0;
    ::SendMessageTimeoutW(window_, command, wparam, lparam, SMTO_NORMAL, kAnswerTimeoutMs, &answer);
    return static_cast<LRESULT>(answer);
}

void FakeShell::MoveTaskBar(UINT edge, int thicknessPx) const {
    Send(fake_shell::kMoveTaskBar, edge, thicknessPx);
}

void FakeShell::HideTaskBarAutomatically(bool on) const {
    Send(fake_shell::kSetTaskBarAutoHide, on);
}

void FakeShell::OccupyAutoHide(UINT edge) const {
    Send(fake_shell::kOccupyAutoHide, edge);
}

HWND FakeShell::ReserveStrip(UINT edge, int thicknessPx) const {
    return reinterpret_cast<HWND>(Send(fake_shell::kReserveStrip, edge, thicknessPx));
}

void FakeShell::GiveStripBack(HWND otherBar) const {
    Send(fake_shell::kGiveStripBack, reinterpret_cast<WPARAM>(otherBar));
}

void FakeShell::Refuse(UINT message, bool on) const {
    Send(fake_shell::kRefuse, message, on);
}

void FakeShell::Notify(UINT notification, LPARAM argument) const {
    Send(fake_shell::kNotify, notification, argument);
}

void FakeShell::Restart(int times) const {
    Send(fake_shell::kRestart, static_cast<WPARAM>(times));
}

std::vector<std::string> FakeShell::Log() const {
    // The log may grow between the question and the answer; what is cut off then comes with the next question.
    std::wstring text(static_cast<std::size_t>(Send(WM_GETTEXTLENGTH)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(Send(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    std::vector<std::string> lines;
    std::istringstream stream{Narrow(text)};
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

void FakeShell::ClearLog() const {
    Send(fake_shell::kClearLog);
}

std::vector<std::string> FakeShell::Log(std::string_view word) const {
    std::vector<std::string> lines = Log();
    std::erase_if(lines, [&](const std::string& line) { return FirstWord(line) != word; });
    return lines;
}

std::string FakeShell::Steps() const {
    constexpr std::array<std::string_view, 4> kPlain{"NEW", "REMOVE", "QUERYPOS", "SETPOS"};
    std::string steps;
    for (const std::string& line : Log()) {
        std::string word = FirstWord(line);
        if (word == "SETAUTOHIDEBAR")
            word += line.find(" lparam 0 ") == std::string::npos ? "(1)" : "(0)";
        else if (std::ranges::find(kPlain, word) == kPlain.end())
            continue;
        steps += steps.empty() ? word : " " + word;
    }
    return steps;
}

bool FakeShell::Registered(HWND bar) const {
    return Send(fake_shell::kAskRegistered, reinterpret_cast<WPARAM>(bar)) != 0;
}

RECT FakeShell::ReservedBy(HWND bar) const {
    const auto side = [&](LPARAM which) {
        return static_cast<LONG>(Send(fake_shell::kAskReserved, reinterpret_cast<WPARAM>(bar), which));
    };
    return {side(0), side(1), side(2), side(3)};
}

HWND FakeShell::AutoHideOwner(UINT edge) const {
    return reinterpret_cast<HWND>(Send(fake_shell::kAskAutoHideOwner, edge));
}

RECT WorkArea() {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(::MonitorFromPoint({}, MONITOR_DEFAULTTOPRIMARY), &info);
    return info.rcWork;
}

std::string Text(const RECT& rect) {
    std::ostringstream text;
    text << rect.left << ',' << rect.top << '-' << rect.right << ',' << rect.bottom;
    return text.str();
}

} // namespace korvane::test
