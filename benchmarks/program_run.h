#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "framework/handle.h"

// What the measuring programs share: a clock, medians, and programs that they start.
namespace korvane::bench {

inline constexpr DWORD kDeadlineMs = 20'000;

inline double Seconds() {
    LARGE_INTEGER now{};
    LARGE_INTEGER frequency{};
    ::QueryPerformanceCounter(&now);
    ::QueryPerformanceFrequency(&frequency);
    return static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

inline double CpuMs(HANDLE process) {
    FILETIME created{};
    FILETIME exited{};
    FILETIME kernel{};
    FILETIME user{};
    ::GetProcessTimes(process, &created, &exited, &kernel, &user);
    const auto ticks = [](const FILETIME& t) { return (ULONGLONG{t.dwHighDateTime} << 32) | t.dwLowDateTime; };
    return static_cast<double>(ticks(kernel) + ticks(user)) / 10'000;
}

namespace detail {

inline BOOL CALLBACK StopAtUnpainted(HWND child, LPARAM unpainted) {
    if (!::IsWindowVisible(child) || !::GetUpdateRect(child, nullptr, FALSE)) return TRUE;
    *reinterpret_cast<bool*>(unpainted) = true;
    return FALSE;
}

} // namespace detail

// The window is visible, its thread answers, and neither it nor any of its children has anything left to draw.
inline bool Painted(HWND window) {
    DWORD_PTR answer = 0;
    if (!window || !::IsWindowVisible(window) ||
        !::SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kDeadlineMs, &answer))
        return false;
    bool unpainted = ::GetUpdateRect(window, nullptr, FALSE) != FALSE;
    ::EnumChildWindows(window, &detail::StopAtUnpainted, reinterpret_cast<LPARAM>(&unpainted));
    return !unpainted;
}

// A program started and waited for until its window is painted; ended with the object.
class Run {
public:
    Run(const std::wstring& path, const std::wstring& windowClass) {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION started{};
        std::wstring line = L"\"" + path + L"\"";
        const double before = Seconds();
        if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started)) {
            std::fprintf(stderr, "cannot start %ls: error %lu\n", path.c_str(), ::GetLastError());
            std::exit(1);
        }
        process_.Reset(started.hProcess);
        ::CloseHandle(started.hThread);
        while (!Painted(::FindWindowW(windowClass.c_str(), nullptr))) {
            if ((Seconds() - before) * 1000 > kDeadlineMs) {
                std::fprintf(stderr, "%ls shows no window\n", path.c_str());
                std::exit(1);
            }
            ::Sleep(1);
        }
        paintedMs_ = (Seconds() - before) * 1000;
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run() {
        ::TerminateProcess(process_.Get(), 0);
        ::WaitForSingleObject(process_.Get(), kDeadlineMs);
    }
    [[nodiscard]] HANDLE Process() const { return process_.Get(); }
    // From the process's start.
    [[nodiscard]] double PaintedMs() const { return paintedMs_; }

private:
    fw::UniqueKernelHandle process_;
    double paintedMs_ = 0;
};

} // namespace korvane::bench
