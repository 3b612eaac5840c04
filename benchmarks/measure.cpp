// measure RUNS IDLE_SECONDS PROGRAM CLASS [PROGRAM CLASS]...
// Starts each program RUNS times, in turns so that none has a warmer machine than the others, and prints a line for
// each: the median and worst time from process start until its window is painted, the median of its private memory, and
// the processor time that it takes while nobody touches it.
//
// "Painted" is when the window of that class is visible, its thread answers a message, which it does once it has drawn
// what it draws before its message loop, and neither the window nor any of its children has anything left to draw.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "framework/handle.h"

namespace {

constexpr DWORD kDeadlineMs = 20'000;

struct Program {
    std::wstring path;
    std::wstring windowClass;
    std::vector<double> paintedMs;
    std::vector<double> privateMegabytes;
    double idleCpuMs = 0;
};

double Seconds() {
    LARGE_INTEGER now{};
    LARGE_INTEGER frequency{};
    ::QueryPerformanceCounter(&now);
    ::QueryPerformanceFrequency(&frequency);
    return static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double PrivateMegabytes(HANDLE process) {
    SIZE_T bytes = 0;
    MEMORY_BASIC_INFORMATION block{};
    for (const char* at = nullptr; ::VirtualQueryEx(process, at, &block, sizeof block) != 0;) {
        if (block.State == MEM_COMMIT && block.Type == MEM_PRIVATE) bytes += block.RegionSize;
        const char* const next = static_cast<const char*>(block.BaseAddress) + block.RegionSize;
        if (next <= at) break;
        at = next;
    }
    return static_cast<double>(bytes) / (1024 * 1024);
}

double CpuMs(HANDLE process) {
    FILETIME created{};
    FILETIME exited{};
    FILETIME kernel{};
    FILETIME user{};
    ::GetProcessTimes(process, &created, &exited, &kernel, &user);
    const auto ticks = [](const FILETIME& t) { return (ULONGLONG{t.dwHighDateTime} << 32) | t.dwLowDateTime; };
    return static_cast<double>(ticks(kernel) + ticks(user)) / 10'000;
}

BOOL CALLBACK StopAtUnpainted(HWND child, LPARAM unpainted) {
    if (!::IsWindowVisible(child) || !::GetUpdateRect(child, nullptr, FALSE)) return TRUE;
    *reinterpret_cast<bool*>(unpainted) = true;
    return FALSE;
}

bool Painted(HWND window) {
    DWORD_PTR answer = 0;
    if (!window || !::IsWindowVisible(window) ||
        !::SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kDeadlineMs, &answer))
        return false;
    bool unpainted = ::GetUpdateRect(window, nullptr, FALSE) != FALSE;
    ::EnumChildWindows(window, &StopAtUnpainted, reinterpret_cast<LPARAM>(&unpainted));
    return !unpainted;
}

// One started program; ended with the object.
class Run {
public:
    explicit Run(Program& program) {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION started{};
        std::wstring line = L"\"" + program.path + L"\"";
        const double before = Seconds();
        if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started)) {
            std::fprintf(stderr, "cannot start %ls: error %lu\n", program.path.c_str(), ::GetLastError());
            std::exit(1);
        }
        process_.Reset(started.hProcess);
        ::CloseHandle(started.hThread);
        while (!Painted(::FindWindowW(program.windowClass.c_str(), nullptr))) {
            if ((Seconds() - before) * 1000 > kDeadlineMs) {
                std::fprintf(stderr, "%ls shows no window\n", program.path.c_str());
                std::exit(1);
            }
            ::Sleep(1);
        }
        program.paintedMs.push_back((Seconds() - before) * 1000);
        program.privateMegabytes.push_back(PrivateMegabytes(process_.Get()));
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run() {
        ::TerminateProcess(process_.Get(), 0);
        ::WaitForSingleObject(process_.Get(), kDeadlineMs);
    }
    [[nodiscard]] HANDLE Process() const { return process_.Get(); }

private:
    fw::UniqueKernelHandle process_;
};

long long FileSize(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    ::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data);
    return (static_cast<long long>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 5 || count % 2 == 0) {
        std::fprintf(stderr, "measure RUNS IDLE_SECONDS PROGRAM CLASS [PROGRAM CLASS]...\n");
        return 2;
    }
    const int runs = std::max(1, static_cast<int>(std::wcstol(arguments[1], nullptr, 10)));
    const DWORD idleSeconds = std::wcstoul(arguments[2], nullptr, 10);
    std::vector<Program> programs;
    for (int i = 3; i + 1 < count; i += 2) programs.push_back({arguments[i], arguments[i + 1], {}, {}, 0});

    // The first start of each reads its files from the disk; it does not count.
    for (Program& program : programs) {
        const Run warmUp{program};
        program.paintedMs.clear();
        program.privateMegabytes.clear();
    }
    for (int run = 0; run < runs; ++run)
        for (Program& program : programs) const Run measured{program};

    for (Program& program : programs) {
        const Run idle{program};
        const double before = CpuMs(idle.Process());
        ::Sleep(idleSeconds * 1000);
        program.idleCpuMs = CpuMs(idle.Process()) - before;
    }

    for (const Program& program : programs) {
        const double worst = *std::max_element(program.paintedMs.begin(), program.paintedMs.end());
        std::printf("%-24ls painted after %6.1f ms (worst %6.1f)   private %6.2f MB   file %8lld bytes   "
                    "processor %5.1f ms in %lu idle s\n",
                    program.windowClass.c_str(), Median(program.paintedMs), worst, Median(program.privateMegabytes),
                    FileSize(program.path), program.idleCpuMs, idleSeconds);
    }
    return 0;
}
